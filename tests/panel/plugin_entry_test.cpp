// SPDX-License-Identifier: Apache-2.0
// The bundle's way into a dialog: metadata, entry, principal object, its panels, and the print systems it serves.
#include "PanelUnderTest.h"
#include "TextPrinting.h"

#include "pdekit/SystemVersion.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QPluginLoader>

#include <cstdlib>
#include <vector>

using namespace pdekit;

namespace
{

std::shared_ptr<RecordingCallback> newCallback()
{
    return std::make_shared<RecordingCallback>(PpdText::withEveryOption().open());
}

TEST(PlugInEntry, Metadata_NamesThePrincipalClassAndTheServedType)
{
    const QPluginLoader loader(LoadedBundle().modulePath());
    const QJsonObject all = loader.metaData();
    EXPECT_EQ(all.value(u"IID").toString(), QStringLiteral(PDEKIT_PLUGIN_IID));
    const QJsonObject metadata = all.value(u"MetaData").toObject();
    EXPECT_EQ(metadata.value(u"PrincipalClass").toString(), u"KSHNPageSettingsPlugIn13_v100_");
    EXPECT_EQ(metadata.value(u"PanelTypes").toArray(), QJsonArray{u"BDB091F4-E57F-11D3-B5CC-0050E4603277"_qs});
}

TEST(PlugInEntry, OtherClassNames_HaveNoPrincipalObject)
{
    const LoadedBundle loaded;
    EXPECT_EQ(loaded.entry()->newPrincipalObject(u"KSHNPageSettingsPlugIn14_v100_"_qs), nullptr);
    EXPECT_EQ(loaded.entry()->newPrincipalObject(u"kshnpagesettingsplugin13_v100_"_qs), nullptr);
    EXPECT_EQ(loaded.entry()->newPrincipalObject(QString()), nullptr);
}

TEST(PlugInEntry, ServedType_GivesExactlyOnePageSettingsPanel)
{
    const LoadedBundle loaded;
    const auto plugIn = loaded.newPlugIn();
    const PanelArray *panels = plugIn->PDEPanelsForType(u"BDB091F4-E57F-11D3-B5CC-0050E4603277"_qs, newCallback());
    ASSERT_NE(panels, nullptr);
    ASSERT_EQ(panels->size(), 1U);
    const auto *panel = dynamic_cast<QObject *>(panels->front().get());
    ASSERT_NE(panel, nullptr);
    EXPECT_STREQ(panel->metaObject()->className(), "PageSettingPDE13_v100_");
}

TEST(PlugInEntry, OtherTypes_GiveAnEmptyArrayNotNil)
{
    const LoadedBundle loaded;
    const auto plugIn = loaded.newPlugIn();
    for (const QString &type : {u"another type"_qs, kPrinterModulePanelType.toLower(), u""_qs, QString()}) {
        const PanelArray *panels = plugIn->PDEPanelsForType(type, newCallback());
        ASSERT_NE(panels, nullptr) << type.toStdString();
        EXPECT_TRUE(panels->empty()) << type.toStdString();
    }
}

TEST(PlugInEntry, PanelThatCannotBeConstructed_GivesNilForTheServedTypeAlone)
{
    const LoadedBundle loaded;
    const auto plugIn = loaded.newPlugIn();
    EXPECT_EQ(plugIn->PDEPanelsForType(kPrinterModulePanelType, nullptr), nullptr);
    const PanelArray *others = plugIn->PDEPanelsForType(u"another type"_qs, nullptr);
    ASSERT_NE(others, nullptr);
    EXPECT_TRUE(others->empty());
}

TEST(PlugInEntry, SecondRequest_GivesNewPanelsAndLeavesTheFirstAlive)
{
    const LoadedBundle loaded;
    const auto plugIn = loaded.newPlugIn();
    const PanelArray *first = plugIn->PDEPanelsForType(kPrinterModulePanelType, newCallback());
    ASSERT_NE(first, nullptr);
    const std::weak_ptr<Panel> firstPanel = first->front();
    const PanelArray *second = plugIn->PDEPanelsForType(kPrinterModulePanelType, newCallback());
    ASSERT_NE(second, nullptr);
    EXPECT_NE(second, first);
    ASSERT_FALSE(firstPanel.expired());
    EXPECT_NE(second->front(), firstPanel.lock());
    EXPECT_EQ(firstPanel.lock()->panelName(), u"Page Settings");
    EXPECT_TRUE(plugIn->PDEPanelsForType(u"another type"_qs, newCallback())->empty());
    EXPECT_FALSE(firstPanel.expired());
}

TEST(PlugInEntry, Release_LetsItsPanelsGo)
{
    const LoadedBundle loaded;
    auto plugIn = loaded.newPlugIn();
    const auto callback = newCallback();
    const std::weak_ptr<Panel> panel = plugIn->PDEPanelsForType(kPrinterModulePanelType, callback)->front();
    EXPECT_GT(callback.use_count(), 1);
    plugIn.reset();
    EXPECT_TRUE(panel.expired());
    EXPECT_EQ(callback.use_count(), 1);
}

TEST(PlugInEntry, PanelThatTheDialogHolds_OutlivesThePrincipalObject)
{
    const LoadedBundle loaded;
    auto plugIn = loaded.newPlugIn();
    const std::shared_ptr<Panel> panel = plugIn->PDEPanelsForType(kPrinterModulePanelType, newCallback())->front();
    plugIn.reset();
    EXPECT_EQ(panel->panelName(), u"Page Settings");
    EXPECT_TRUE(panel->saveValuesAndReturnError(nullptr));
}

// ---- The print systems it serves. The answer is kept for the life of a process: each case has its own.
// ---------------

constexpr int kServes = 71;
constexpr int kRefuses = 72;

/// A print system of a version; a selector in `failing` is not answered.
GestaltSource systemOf(std::int32_t major, std::int32_t minor, const std::vector<std::uint32_t> &failing = {})
{
    return [=](std::uint32_t selector, std::int32_t *response) -> OSStatus {
        if (std::find(failing.begin(), failing.end(), selector) != failing.end()) {
            return kPMNoSuchEntry;
        }
        *response = selector == gestaltSystemVersionMajor ? major : selector == gestaltSystemVersionMinor ? minor : 0;
        return kPMNoError;
    };
}

/// Loads the bundle on such a system and ends the process with the answer.
[[noreturn]] void exitWithAnswerOn(const GestaltSource &source)
{
    setGestaltSource(source);
    const LoadedBundle loaded;
    const auto plugIn = loaded.entry()->newPrincipalObject(u"KSHNPageSettingsPlugIn13_v100_"_qs);
    std::_Exit(plugIn->initWithBundle(loaded.bundle().get()) ? kServes : kRefuses);
}

class PlugInSystemDeathTest : public testing::Test
{
protected:
    PlugInSystemDeathTest() { GTEST_FLAG_SET(death_test_style, "threadsafe"); }

    static void expectAnswer(int answer, const GestaltSource &source)
    {
        EXPECT_EXIT(exitWithAnswerOn(source), testing::ExitedWithCode(answer), "");
    }
};

TEST_F(PlugInSystemDeathTest, System10_4_IsRefused)
{
    expectAnswer(kRefuses, systemOf(10, 4));
}

TEST_F(PlugInSystemDeathTest, System10_5_IsServed)
{
    expectAnswer(kServes, systemOf(10, 5));
}

TEST_F(PlugInSystemDeathTest, System11_0_IsServed)
{
    expectAnswer(kServes, systemOf(11, 0));
}

TEST_F(PlugInSystemDeathTest, System9_9_IsRefused)
{
    expectAnswer(kRefuses, systemOf(9, 9));
}

TEST_F(PlugInSystemDeathTest, ThisPrintSystem_IsServed)
{
    expectAnswer(kServes, {});
}

TEST_F(PlugInSystemDeathTest, SystemThatAnswersNothing_ReadsAs10_4)
{
    expectAnswer(kRefuses,
                 systemOf(11, 9, {gestaltSystemVersionMajor, gestaltSystemVersionMinor, gestaltSystemVersionBugFix}));
}

TEST_F(PlugInSystemDeathTest, UnansweredMajor_ReadsAs10)
{
    expectAnswer(kServes, systemOf(9, 5, {gestaltSystemVersionMajor}));
}

TEST_F(PlugInSystemDeathTest, UnansweredMinor_ReadsAs4)
{
    expectAnswer(kRefuses, systemOf(10, 9, {gestaltSystemVersionMinor}));
}

TEST_F(PlugInSystemDeathTest, UnansweredBugFix_ChangesNothing)
{
    expectAnswer(kServes, systemOf(10, 5, {gestaltSystemVersionBugFix}));
}

TEST_F(PlugInSystemDeathTest, ErrorBesideANumber_IsIgnored)
{
    expectAnswer(kServes, [](std::uint32_t, std::int32_t *response) -> OSStatus {
        *response = 11;
        return kPMNoSuchEntry;
    });
}

/// Asks twice, by two principal objects, and changes the system in between.
[[noreturn]] void exitWithZeroWhenAskedOnce()
{
    std::vector<std::uint32_t> asked;
    setGestaltSource([&asked](std::uint32_t selector, std::int32_t *response) -> OSStatus {
        asked.push_back(selector);
        return systemOf(10, 5)(selector, response);
    });
    const LoadedBundle loaded;
    const bool first = loaded.newPlugIn() != nullptr;
    const std::vector<std::uint32_t> expected = {gestaltSelector("sys1"), gestaltSelector("sys2"),
                                                 gestaltSelector("sys3")};
    const bool inOrder = asked == expected;
    setGestaltSource(systemOf(10, 4));
    const auto plugIn = loaded.entry()->newPrincipalObject(u"KSHNPageSettingsPlugIn13_v100_"_qs);
    const bool second = plugIn->initWithBundle(loaded.bundle().get());
    std::_Exit((first ? 0 : 1) + (inOrder ? 0 : 2) + (second ? 0 : 4));
}

TEST_F(PlugInSystemDeathTest, System_IsAskedOnceInAProcessInTheOrderOfTheVersion)
{
    EXPECT_EXIT(exitWithZeroWhenAskedOnce(), testing::ExitedWithCode(0), "");
}

/// A refused principal object has kept no bundle: its panel finds no text.
[[noreturn]] void exitWithZeroWhenNoBundleWasKept()
{
    setGestaltSource(systemOf(10, 4));
    const LoadedBundle loaded;
    const auto plugIn = loaded.entry()->newPrincipalObject(u"KSHNPageSettingsPlugIn13_v100_"_qs);
    const bool refused = !plugIn->initWithBundle(loaded.bundle().get());
    const PanelArray *panels = plugIn->PDEPanelsForType(kPrinterModulePanelType, newCallback());
    const bool withoutTexts =
        panels != nullptr && panels->size() == 1 && panels->front()->panelName() == u"PS_PANEL_NAME";
    std::_Exit((refused ? 0 : 1) + (withoutTexts ? 0 : 2));
}

TEST_F(PlugInSystemDeathTest, Refusal_KeepsNothingOfTheBundle)
{
    EXPECT_EXIT(exitWithZeroWhenNoBundleWasKept(), testing::ExitedWithCode(0), "");
}

} // namespace
