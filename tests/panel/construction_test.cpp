// SPDX-License-Identifier: Apache-2.0
// What the built bundle's panel learns when it is made, which options it announces, and what the first and later
// showings do.
#include "PanelUnderTest.h"
#include "PpdTools.h"
#include "TextPrinting.h"

#include "pdekit/NotificationCenter.h"

namespace
{

QString text(const char *latin1)
{
    return QString::fromLatin1(latin1);
}

QStringList keysOf(const PpdText &ppd)
{
    PanelUnderTest panel(ppd);
    const QStringList *keys = panel->supportedPPDOptionKeys();
    return keys == nullptr ? QStringList{text("null")} : *keys;
}

} // namespace

// ---- The options that are announced --------------------------------------------------------------------------------

TEST(SupportedKeys, OfEveryOption_AreNineInOrder)
{
    EXPECT_EQ(
        keysOf(PpdText::withEveryOption()),
        (QStringList{text("KsPriority"), text("KsMargin"), text("Resolution"), text("KsCompress"), text("KsResolution"),
                     text("KsTapeMaterial"), text("KsInkColor"), text("KsTapeColor"), text("KsPrintTapeLength")}));
}

TEST(SupportedKeys, OfNone_AreAnEmptyListNotNull)
{
    PanelUnderTest panel{PpdText()};
    ASSERT_NE(panel->supportedPPDOptionKeys(), nullptr);
    EXPECT_TRUE(panel->supportedPPDOptionKeys()->isEmpty());
}

TEST(SupportedKeys, OfATapeLengthOnly_AreEmpty)
{
    PpdText ppd;
    ppd.option("KsTapeLength", "Tape Length", {{"100.0", "100.0 mm"}}, "100.0");
    EXPECT_EQ(keysOf(ppd), QStringList());
}

TEST(SupportedKeys, OfOneOption_AreThatOption)
{
    for (const char *keyword : {"KsPriority", "KsMargin", "Resolution", "KsCompress", "KsResolution", "KsTapeMaterial",
                                "KsInkColor", "KsTapeColor", "KsPrintTapeLength"}) {
        PpdText ppd;
        ppd.option(keyword, "Zzz", {{"5", "Five"}}, "5");
        EXPECT_EQ(keysOf(ppd), QStringList{text(keyword)});
    }
}

TEST(SupportedKeys, OfAnOptionWithoutChoices_HoldThatOption)
{
    PpdText ppd;
    ppd.option("KsTapeColor", "Tape", {}, "None");
    EXPECT_EQ(keysOf(ppd), QStringList{text("KsTapeColor")});
}

TEST(SupportedKeys, AskedASecondTime_AreTheSameListAndNothingIsSent)
{
    PanelUnderTest panel(PpdText::withEveryOption());
    const QStringList *first = panel->supportedPPDOptionKeys();
    EXPECT_EQ(panel.callback->sent.size(), 10U);
    EXPECT_EQ(panel->supportedPPDOptionKeys(), first);
    EXPECT_EQ(panel.callback->sent.size(), 10U);
}

TEST(SupportedKeys, WithoutAPpd_AreEmptyAndTheTapeLengthIsSent)
{
    const auto callback = std::make_shared<RecordingCallback>(nullptr);
    callback->usePaper(text("24mm"), 100.02);
    PanelUnderTest panel(callback);
    ASSERT_NE(panel->supportedPPDOptionKeys(), nullptr);
    EXPECT_TRUE(panel->supportedPPDOptionKeys()->isEmpty());
    // Without a PPD both limits are 0.
    EXPECT_EQ(callback->sent, (std::vector<RecordingCallback::Sent>{{text("KsTapeLength"), text("0.0")}}));
}

// ---- Construction
// ----------------------------------------------------------------------------------------------------

TEST(Construction, SendsNothingAndChangesNothing)
{
    const PanelUnderTest panel(PpdText::withEveryOption());
    EXPECT_TRUE(panel.callback->sent.empty());
    EXPECT_TRUE(panel.alerts.empty());
}

TEST(Construction, WithoutTheDialogsObjects_GivesAPanelThatAnswers)
{
    const auto callback = std::make_shared<RecordingCallback>(nullptr);
    callback->hasSession = callback->hasSettings = callback->hasFormat = callback->hasPrinter = false;
    PanelUnderTest panel(callback);
    panel.show();
    EXPECT_TRUE(panel->summaryInfo().has_value());
    EXPECT_TRUE(panel->shouldPrint());
    EXPECT_TRUE(panel->saveValuesAndReturnError(nullptr));
    EXPECT_TRUE(panel->restoreValuesAndReturnError(nullptr));
    EXPECT_TRUE(callback->sent.empty());
}

TEST(Construction, WithoutACallback_GivesNoPanel)
{
    const LoadedBundle bundle;
    const auto plugIn = bundle.newPlugIn();
    EXPECT_EQ(plugIn->PDEPanelsForType(pdekit::kPrinterModulePanelType, nullptr), nullptr);
}

TEST(Panel, HasNoHelpAndLetsTheDialogTurnAway)
{
    PanelUnderTest panel(PpdText::withEveryOption());
    panel.show();
    panel.callback->sent.clear();
    EXPECT_FALSE(panel->shouldShowHelp());
    EXPECT_TRUE(panel->shouldHide());
    panel->printWindowWillClose(true);
    panel->printWindowWillClose(false);
    EXPECT_TRUE(panel.callback->sent.empty());
}

TEST(Panel, Released_HearsOfNoPaperAnyMore)
{
    PanelUnderTest panel(PpdText::withEveryOption());
    panel.show();
    const auto post = [] {
        pdekit::NotificationCenter::defaultCenter().postNotification(
            QStringLiteral("PMPrintDestinationPaperDidChangeNotification"), nullptr);
    };
    // The width field shows whether the notice arrived.
    QLineEdit *width = panel.field("mWidthTxFld");
    width->setText(text("untouched"));
    post();
    EXPECT_EQ(width->text(), text("24 mm"));

    QWidget *view = panel->panelView();
    panel.plugIn.reset();
    panel.panel.reset();
    width->setText(text("untouched"));
    post();
    EXPECT_EQ(width->text(), text("untouched"));
    EXPECT_EQ(view->parentWidget(), &panel.window);
}

// ---- First and later showings
// ------------------------------------------------------------------------------------------

TEST(Showing, FirstTime_WritesTheTenSettingsThenRefreshesTenItems)
{
    PanelUnderTest panel(PpdText::withEveryOption());
    panel->supportedPPDOptionKeys();
    panel->panelView();
    panel.callback->sent.clear();
    panel->willShow();
    std::vector<QString> expected = {text("KsTapeLength"),     text("KsMargin"),    text("KsPriority"),
                                     text("Resolution"),       text("KsCompress"),  text("KsResolution"),
                                     text("KsTapeMaterial"),   text("KsTapeColor"), text("KsInkColor"),
                                     text("KsPrintTapeLength")};
    // Each refreshed item sends both tape lengths anew.
    for (int item = 0; item < 10; ++item) {
        expected.push_back(text("KsTapeLength"));
        expected.push_back(text("KsPrintTapeLength"));
    }
    EXPECT_EQ(panel.callback->sentKeys(), expected);
}

TEST(Showing, SecondTime_RefreshesWithoutBuildingOrWritingTheSettingsAgain)
{
    PanelUnderTest panel(PpdText::withEveryOption());
    panel.show();
    panel.callback->sent.clear();
    panel.label("mTapeColorStr")->setText(text("left alone"));
    panel.matrix("mPrintQualityRdBtn")->setTitleOfCell(text("left alone"), 0, 0);
    panel.field("mMarginTxFld")->setText(text("7.0"));
    panel->willShow();
    std::vector<QString> expected;
    for (int item = 0; item < 10; ++item) {
        expected.push_back(text("KsTapeLength"));
        expected.push_back(text("KsPrintTapeLength"));
    }
    EXPECT_EQ(panel.callback->sentKeys(), expected);
    EXPECT_EQ(panel.label("mTapeColorStr")->text(), text("left alone"));
    EXPECT_EQ(panel.matrix("mPrintQualityRdBtn")->titles().front(), text("left alone"));
    EXPECT_EQ(panel.field("mMarginTxFld")->text(), text("7.0"));
}

TEST(Restoring, FollowsTheMarksOfTheFirstFourOptionsOnly)
{
    PanelUnderTest panel(PpdText::withEveryOption());
    panel.show();
    ppd_file_t *ppd = panel.callback->ppd.get();
    ppdMarkOption(ppd, "KsPriority", "KsPriorityQuality");
    ppdMarkOption(ppd, "Resolution", "300x600dpi");
    ppdMarkOption(ppd, "KsCompress", "KsCompressON");
    ppdMarkOption(ppd, "KsResolution", "KsResolQ300600");
    ppdMarkOption(ppd, "KsTapeMaterial", "KsTapeMaterialPET");
    ppdMarkOption(ppd, "KsTapeColor", "KsTapeColorRed");
    ppdMarkOption(ppd, "KsInkColor", "KsInkColorRed");
    QString error;
    EXPECT_TRUE(panel->restoreValuesAndReturnError(&error));
    EXPECT_TRUE(error.isNull());
    EXPECT_EQ(panel.matrix("mPrintQualityRdBtn")->selectedRow(), 1);
    EXPECT_EQ(panel.matrix("mResolutionRdBtn")->selectedRow(), 1);
    EXPECT_EQ(panel.matrix("mCompressRdBtn")->selectedRow(), 1);
    EXPECT_EQ(panel.popUp("mKsResolutionPUBtn")->currentIndex(), 2);
    EXPECT_EQ(panel.popUp("mTapeTypePopBtn")->currentIndex(), 0);
    EXPECT_EQ(panel.popUp("mTapeColorPopBtn")->currentIndex(), 0);
    EXPECT_EQ(panel.popUp("mInkColorPopBtn")->currentIndex(), 0);
}
