// SPDX-License-Identifier: Apache-2.0
// Two generations of the bundle, and a stranger's bundle, in one dialog: they work side by side, and none calls, frees
// or changes what is another's.
#include "PanelUnderTest.h"
#include "TextPrinting.h"

#include <QCheckBox>
#include <QPluginLoader>
#include <QTest>

using namespace pdekit;

namespace
{

/// What a person sees of the choices and lengths of a panel.
std::vector<QString> shown(const PanelUnderTest &panel)
{
    std::vector<QString> texts;
    for (const char *field : {"mWidthTxFld", "mLengthTxFld", "mMarginTxFld", "mTapeLengthTxFld"}) {
        texts.push_back(panel.field(field)->text());
    }
    for (const char *matrix : {"mPrintQualityRdBtn", "mResolutionRdBtn", "mCompressRdBtn"}) {
        texts.push_back(QString::number(panel.matrix(matrix)->selectedRow()));
    }
    for (const char *popUp : {"mKsResolutionPUBtn", "mTapeTypePopBtn", "mTapeColorPopBtn", "mInkColorPopBtn"}) {
        texts.push_back(panel.popUp(popUp)->currentText());
    }
    return texts;
}

class Generations : public testing::Test
{
protected:
    Generations()
    {
        now.show();
        next.show();
        forgetSent();
    }
    void forgetSent()
    {
        now.callback->sent.clear();
        next.callback->sent.clear();
    }
    static void activate(PanelUnderTest &panel)
    {
        panel.window.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&panel.window));
    }
    static void release(PanelUnderTest &panel)
    {
        panel.panel.reset();
        panel.plugIn.reset();
    }
    /// Picks, a length, a notice, a save, and what the dialog got of them.
    static void expectWorking(PanelUnderTest &panel)
    {
        activate(panel);
        panel.callback->sent.clear();
        panel.pickItem("mTapeColorPopBtn", 2);
        EXPECT_EQ(panel.callback->lastSent(u"KsTapeColor"_qs), u"KsTapeColorRed");
        panel.type("mLengthTxFld", "55");
        QTest::keyClick(panel.window.windowHandle(), Qt::Key_Return);
        panel.callback->usePaper("12mm");
        panel.dialogChanged(u"PageSize"_qs, u"12mm"_qs);
        EXPECT_EQ(panel.field("mWidthTxFld")->text(), u"12 mm");
        EXPECT_TRUE(panel->saveValuesAndReturnError(nullptr));
        EXPECT_TRUE(panel->shouldPrint());
    }

    PanelUnderTest now{PpdText::withEveryOption()};
    PanelUnderTest next{std::make_shared<RecordingCallback>(PpdText::withEveryOption().open()),
                        QStringLiteral(NEXT_BUNDLE)};
};

TEST_F(Generations, EachHasItsOwnClasses)
{
    EXPECT_NE(now.loaded.modulePath(), next.loaded.modulePath());
    EXPECT_STREQ(dynamic_cast<QObject *>(now.panel.get())->metaObject()->className(), "PageSettingPDE13_v100_");
    EXPECT_STREQ(dynamic_cast<QObject *>(next.panel.get())->metaObject()->className(), "PageSettingPDE14_v101_");
    EXPECT_STREQ(now.field("mLengthTxFld")->metaObject()->className(), "PDETextField13_v100_");
    EXPECT_STREQ(next.field("mLengthTxFld")->metaObject()->className(), "PDETextField14_v101_");
    EXPECT_EQ(now.loaded.entry()->newPrincipalObject(u"KSHNPageSettingsPlugIn14_v101_"_qs), nullptr);
    EXPECT_EQ(next.loaded.entry()->newPrincipalObject(u"KSHNPageSettingsPlugIn13_v100_"_qs), nullptr);
    for (const char *name : {"GetTapeInfo", "OP_MENU", "RoundDouble", "_PDELog"}) {
        ASSERT_NE(next.loaded.symbol(name), nullptr) << name;
        EXPECT_NE(now.loaded.symbol(name), next.loaded.symbol(name)) << name;
    }
}

TEST_F(Generations, BothShowTheSame)
{
    EXPECT_EQ(shown(now), shown(next));
    EXPECT_EQ(now->panelName(), next->panelName());
}

TEST_F(Generations, PicksInOne_StayInItAndGoToItsDialogAlone)
{
    const std::vector<QString> before = shown(now);
    activate(next);
    next.pickItem("mTapeColorPopBtn", 1);
    next.pickRow("mResolutionRdBtn", 1);
    next.type("mMarginTxFld", "7");
    QTest::keyClick(next.window.windowHandle(), Qt::Key_Return);
    EXPECT_EQ(shown(now), before);
    EXPECT_NE(shown(next), before);
    EXPECT_TRUE(now.callback->sent.empty());
    EXPECT_EQ(next.callback->lastSent(u"KsTapeColor"_qs), u"KsTapeColorBlue");

    forgetSent();
    const std::vector<QString> after = shown(next);
    activate(now);
    now.pickItem("mInkColorPopBtn", 2);
    EXPECT_EQ(shown(next), after);
    EXPECT_TRUE(next.callback->sent.empty());
    EXPECT_EQ(now.callback->lastSent(u"KsInkColor"_qs), u"KsInkColorRed");
}

TEST_F(Generations, NewPaperInOneDialog_LeavesTheOtherPanelWithItsOwnPaper)
{
    // The notice of a new paper reaches every panel of the process; each reads its own dialog's paper again.
    const std::vector<QString> before = shown(now);
    next.callback->usePaper("12mm");
    next->PPDOptionKeyValueDidChange(u"PageSize"_qs, u"12mm"_qs);
    EXPECT_EQ(next.field("mWidthTxFld")->text(), u"12 mm");
    EXPECT_EQ(now.field("mWidthTxFld")->text(), u"24 mm");
    EXPECT_EQ(shown(now), before);
    EXPECT_TRUE(now.callback->sent.empty());
}

TEST_F(Generations, FirstReleasedFirst_SecondGoesOn)
{
    release(now);
    expectWorking(next);
    release(next);
}

TEST_F(Generations, SecondReleasedFirst_FirstGoesOn)
{
    release(next);
    expectWorking(now);
    release(now);
}

TEST_F(Generations, SecondReleased_HearsNoMoreOfPapers)
{
    release(next);
    forgetSent();
    const QString width = next.field("mWidthTxFld")->text();
    next.callback->usePaper("15mm");
    now.callback->usePaper("12mm");
    now->PPDOptionKeyValueDidChange(u"PageSize"_qs, u"12mm"_qs);
    EXPECT_EQ(now.field("mWidthTxFld")->text(), u"12 mm");
    EXPECT_EQ(next.field("mWidthTxFld")->text(), width);
    EXPECT_TRUE(next.callback->sent.empty());
}

#ifdef SECOND_BUNDLE
TEST_F(Generations, StrangersBundle_WorksBesideBoth)
{
    const PpdText text =
        PpdText::withEveryOption().option("AutoCut", "Cut", {{"False", "Off"}, {"True", "On"}}, "False");
    const auto callback = std::make_shared<RecordingCallback>(text.open());
    const LoadedBundle stranger(QStringLiteral(SECOND_BUNDLE));
    auto plugIn = stranger.newPlugIn();
    ASSERT_NE(plugIn, nullptr);
    // The same dialog serves it as served the first.
    const PanelArray *panels = plugIn->PDEPanelsForType(kPrinterModulePanelType, callback);
    ASSERT_NE(panels, nullptr);
    ASSERT_EQ(panels->size(), 1U);
    std::shared_ptr<Panel> panel = panels->front();
    EXPECT_NE(panel->panelKind(), now->panelKind());
    EXPECT_EQ(*panel->supportedPPDOptionKeys(), QStringList{u"AutoCut"_qs});
    auto *view = panel->panelView();
    ASSERT_NE(view, nullptr);
    view->setParent(&now.window);
    panel->willShow();
    auto *checkBox = view->findChild<QCheckBox *>();
    ASSERT_NE(checkBox, nullptr);

    const std::vector<QString> before = shown(now);
    checkBox->click();
    EXPECT_EQ(callback->sent, (std::vector<RecordingCallback::Sent>{{u"AutoCut"_qs, u"True"_qs}}));
    EXPECT_EQ(shown(now), before);
    EXPECT_TRUE(now.callback->sent.empty());
    EXPECT_TRUE(next.callback->sent.empty());

    // A change that is none of its own leaves it as it is; and it may go first.
    panel->PPDOptionKeyValueDidChange(u"PageSize"_qs, u"12mm"_qs);
    EXPECT_TRUE(checkBox->isChecked());
    panel.reset();
    plugIn.reset();
    EXPECT_EQ(shown(now), before);
    expectWorking(now);
}
#endif

} // namespace
