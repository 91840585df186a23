// SPDX-License-Identifier: Apache-2.0
// What every panel of the base class answers, through the built bundle: name, kind, view, lifetimes, and a dialog that
// lacks any of its objects.
#include "PanelUnderTest.h"
#include "TextPrinting.h"

#include <QTest>

using namespace pdekit;

namespace
{

TEST(PanelBase, Name_IsTheBundlesText)
{
    const PanelUnderTest panel(PpdText::withEveryOption());
    EXPECT_EQ(panel->panelName(), u"Page Settings");
}

TEST(PanelBase, Name_IsLookedUpOnce)
{
    PanelUnderTest panel(PpdText::withEveryOption());
    ASSERT_EQ(panel->panelName(), u"Page Settings");
    ASSERT_TRUE(panel.loaded.bundle()->setLanguage(u"de"_qs));
    EXPECT_EQ(panel->panelName(), u"Page Settings");
    const PanelArray *others = panel.plugIn->PDEPanelsForType(kPrinterModulePanelType, panel.callback);
    ASSERT_NE(others, nullptr);
    EXPECT_EQ(others->front()->panelName(), u"Seiteneinstellungen");
}

TEST(PanelBase, Kind_IsTheVendorsPageSettings)
{
    const PanelUnderTest panel(PpdText::withEveryOption());
    EXPECT_EQ(panel->panelKind(), u"org.tapeprint.printer.cups.pde.KSLXMVPageSettingsPDEKind");
}

TEST(PanelBase, View_IsLoadedOnce)
{
    PanelUnderTest panel(PpdText::withEveryOption());
    QWidget *view = panel->panelView();
    ASSERT_NE(view, nullptr);
    EXPECT_EQ(panel->panelView(), view);
    panel.show();
    EXPECT_EQ(panel->panelView(), view);
    EXPECT_EQ(panel.window.findChildren<QWidget *>(u"kPDEView"_qs), QList<QWidget *>{view});
}

TEST(PanelBase, ViewThatWasNeverShown_GoesWithThePanel)
{
    PanelUnderTest panel(PpdText::withEveryOption());
    const QPointer<QWidget> view = panel->panelView();
    ASSERT_NE(view, nullptr);
    panel.panel.reset();
    panel.plugIn.reset();
    EXPECT_EQ(view, nullptr);
}

TEST(PanelBase, ShouldHide_Yes_ShouldShowHelp_No)
{
    PanelUnderTest panel(PpdText::withEveryOption());
    panel.show();
    EXPECT_TRUE(panel->shouldHide());
    EXPECT_FALSE(panel->shouldShowHelp());
}

TEST(PanelBase, SaveAndRestore_AnswerYesAndSetNoError)
{
    PanelUnderTest panel(PpdText::withEveryOption());
    panel.show();
    QString error = u"untouched"_qs;
    EXPECT_TRUE(panel->saveValuesAndReturnError(&error));
    EXPECT_TRUE(panel->restoreValuesAndReturnError(&error));
    EXPECT_EQ(error, u"untouched");
    EXPECT_TRUE(panel->saveValuesAndReturnError(nullptr));
    EXPECT_TRUE(panel->restoreValuesAndReturnError(nullptr));
}

TEST(PanelBase, PrintWindowWillClose_SendsNothing)
{
    PanelUnderTest panel(PpdText::withEveryOption());
    panel.show();
    panel.callback->sent.clear();
    panel->printWindowWillClose(true);
    panel->printWindowWillClose(false);
    EXPECT_TRUE(panel.callback->sent.empty());
    EXPECT_TRUE(panel.alerts.empty());
}

// ---- Lifetimes
// --------------------------------------------------------------------------------------------------------

const char *const kKeys[] = {"PageSize",       "KsTapeLength", "KsMargin",     "KsPriority",
                             "Resolution",     "KsCompress",   "KsResolution", "KsInkColor",
                             "KsTapeMaterial", "KsTapeColor",  "Unknown"};

/// Every call a dialog may make once the panel has been seen.
void callEverything(Panel &panel)
{
    EXPECT_FALSE(panel.panelName().isEmpty());
    EXPECT_EQ(panel.panelKind(), u"org.tapeprint.printer.cups.pde.KSLXMVPageSettingsPDEKind");
    EXPECT_NE(panel.supportedPPDOptionKeys(), nullptr);
    panel.willShow();
    for (const char *key : kKeys) {
        for (const QString &choice : {u"12mm"_qs, u"KsTapeColorRed"_qs, u"300x600dpi"_qs, u""_qs, QString()}) {
            panel.PPDOptionKeyValueDidChange(QString::fromLatin1(key), choice);
        }
    }
    panel.PPDOptionKeyValueDidChange(QString(), QString());
    QString error = u"untouched"_qs;
    EXPECT_TRUE(panel.restoreValuesAndReturnError(&error));
    EXPECT_TRUE(panel.saveValuesAndReturnError(&error));
    EXPECT_EQ(error, u"untouched");
    EXPECT_TRUE(panel.summaryInfo().has_value());
    panel.shouldPrint();
    EXPECT_TRUE(panel.shouldHide());
    EXPECT_FALSE(panel.shouldShowHelp());
    panel.printWindowWillClose(true);
}

TEST(PanelLifetime, ViewDeletedByTheDialog_PanelGoesOnWithoutIt)
{
    PanelUnderTest panel(PpdText::withEveryOption());
    panel.show();
    delete panel->panelView();
    callEverything(*panel.panel);
    panel.panel.reset();
    panel.plugIn.reset();
}

TEST(PanelLifetime, ViewDeletedByTheDialog_IsLoadedAnewWhenAskedFor)
{
    PanelUnderTest panel(PpdText::withEveryOption());
    panel.show();
    delete panel->panelView();
    const QPointer<QWidget> view = panel->panelView();
    ASSERT_NE(view, nullptr);
    callEverything(*panel.panel);
    panel.panel.reset();
    panel.plugIn.reset();
    EXPECT_EQ(view, nullptr);
}

TEST(PanelLifetime, PanelReleasedFirst_ViewStaysTheDialogsAndReachesNobody)
{
    PanelUnderTest panel(PpdText::withEveryOption());
    panel.show();
    const QPointer<QWidget> view = panel->panelView();
    panel.panel.reset();
    panel.plugIn.reset();
    ASSERT_NE(view, nullptr);
    panel.callback->sent.clear();
    panel.callback->ppd.reset();

    panel.pickRow("mResolutionRdBtn", 1);
    panel.pickItem("mTapeColorPopBtn", 1);
    panel.type("mLengthTxFld", "1");
    QTest::keyClick(panel.window.windowHandle(), Qt::Key_Tab);
    panel.type("mMarginTxFld", "9999");
    QTest::keyClick(panel.window.windowHandle(), Qt::Key_Return);
    panel.slider("mLengthSlider")->setFocus();
    QTest::keyClick(panel.window.windowHandle(), Qt::Key_Right);
    panel.window.hide();
    EXPECT_TRUE(panel.callback->sent.empty());
    EXPECT_TRUE(panel.alerts.empty());
    delete view.data();
}

TEST(PanelLifetime, WindowClosedWhileAFieldIsEdited_ThenReleased)
{
    PanelUnderTest panel(PpdText::withEveryOption());
    panel.show();
    panel.type("mLengthTxFld", "50");
    panel.window.close();
    panel->printWindowWillClose(false);
    panel.panel.reset();
    panel.plugIn.reset();
    EXPECT_NE(panel.field("mLengthTxFld"), nullptr);
}

// ---- A dialog that lacks objects
// --------------------------------------------------------------------------------------

struct MissingObject {
    const char *name;
    bool hasPpd;
    bool RecordingCallback::*object;
};

std::ostream &operator<<(std::ostream &stream, const MissingObject &missing)
{
    return stream << missing.name;
}

class PanelWithout : public testing::TestWithParam<MissingObject>
{
protected:
    // A modal alert would wait for a person.
    PanelWithout()
    {
        setAlertHandler([](const AlertRequest &) {});
    }
    ~PanelWithout() override { setAlertHandler({}); }

    static std::shared_ptr<RecordingCallback> newCallback()
    {
        const PpdText ppd = PpdText::withEveryOption();
        auto callback = std::make_shared<RecordingCallback>(GetParam().hasPpd ? ppd.open() : nullptr);
        if (GetParam().object != nullptr) {
            (*callback).*GetParam().object = false;
        }
        return callback;
    }
};

TEST_P(PanelWithout, EveryCallIsAnswered)
{
    PanelUnderTest panel(newCallback());
    ASSERT_NE(panel.panel, nullptr);
    panel.show();
    ASSERT_NE(panel->panelView(), nullptr);
    callEverything(*panel.panel);
    panel.pickRow("mResolutionRdBtn", 0);
    panel.window.hide();
    callEverything(*panel.panel);
}

TEST_P(PanelWithout, BundleToo_EveryCallIsAnsweredAndThereIsNoView)
{
    const LoadedBundle loaded;
    const auto plugIn = loaded.entry()->newPrincipalObject(u"KSHNPageSettingsPlugIn13_v100_"_qs);
    ASSERT_TRUE(plugIn->initWithBundle(nullptr));
    const PanelArray *panels = plugIn->PDEPanelsForType(kPrinterModulePanelType, newCallback());
    ASSERT_NE(panels, nullptr);
    EXPECT_EQ(panels->front()->panelView(), nullptr);
    EXPECT_EQ(panels->front()->panelName(), u"PS_PANEL_NAME");
    callEverything(*panels->front());
}

TEST_P(PanelWithout, InterfaceFile_EveryCallIsAnsweredAndThereIsNoView)
{
    const LoadedBundle loaded;
    const auto plugIn = loaded.entry()->newPrincipalObject(u"KSHNPageSettingsPlugIn13_v100_"_qs);
    const auto empty = Bundle::bundleWithPath(u"/nonexistent/Empty.bundle"_qs);
    ASSERT_TRUE(plugIn->initWithBundle(empty.get()));
    const PanelArray *panels = plugIn->PDEPanelsForType(kPrinterModulePanelType, newCallback());
    ASSERT_NE(panels, nullptr);
    EXPECT_EQ(panels->front()->panelView(), nullptr);
    EXPECT_EQ(panels->front()->panelName(), u"PS_PANEL_NAME");
    callEverything(*panels->front());
}

INSTANTIATE_TEST_SUITE_P(Objects, PanelWithout,
                         testing::Values(MissingObject{"nothing", true, nullptr}, MissingObject{"ppd", false, nullptr},
                                         MissingObject{"session", true, &RecordingCallback::hasSession},
                                         MissingObject{"settings", true, &RecordingCallback::hasSettings},
                                         MissingObject{"format", true, &RecordingCallback::hasFormat},
                                         MissingObject{"printer", true, &RecordingCallback::hasPrinter}),
                         [](const auto &instance) { return std::string(instance.param.name); });

TEST(PanelWithNothing, EveryCallIsAnswered)
{
    auto callback = std::make_shared<RecordingCallback>(nullptr);
    callback->hasSession = callback->hasSettings = callback->hasFormat = callback->hasPrinter = false;
    PanelUnderTest panel(callback);
    panel.show();
    callEverything(*panel.panel);
    // Not even the tape length: without settings there is no job to write it to.
    EXPECT_TRUE(callback->sent.empty());
}

TEST(PanelWithoutAPpd, WritesTheTapeLengthAlone)
{
    PanelUnderTest panel(std::make_shared<RecordingCallback>(nullptr));
    panel.show();
    callEverything(*panel.panel);
    ASSERT_FALSE(panel.callback->sent.empty());
    for (const RecordingCallback::Sent &sent : panel.callback->sent) {
        EXPECT_EQ(sent.first, u"KsTapeLength");
    }
}

} // namespace
