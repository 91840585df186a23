// SPDX-License-Identifier: Apache-2.0
// The checks of the lengths on the built panel: what they correct, when they warn, and when they look at nothing.
#include "LengthGestures.h"
#include "TextPrinting.h"

#include <QCoreApplication>
#include <QTest>

using namespace gestures;

namespace
{

// ---- Tape length ---------------------------------------------------------------------------------------------------

TEST(TapeLengthField, BelowMinimum_AlertsOnceAndShowsMinimum)
{
    PanelUnderTest panel(tape(wholeMillimetres(), 100.0));
    panel.show();
    enterLength(panel, "3");
    EXPECT_TRUE(alertedOnce(panel, "RS_Alrt_LengthMin"));
    EXPECT_EQ(length(panel), u"4");
    EXPECT_EQ(panel.slider("mLengthSlider")->floatValue(), 4.0F);
}

TEST(TapeLengthField, AboveMaximum_AlertsOnceAndShowsMaximum)
{
    PanelUnderTest panel(tape(wholeMillimetres(), 100.0));
    panel.show();
    enterLength(panel, "1200");
    EXPECT_TRUE(alertedOnce(panel, "RS_Alrt_LengthMax"));
    EXPECT_EQ(length(panel), u"1000");
    EXPECT_EQ(panel.slider("mLengthSlider")->floatValue(), 1000.0F);
}

TEST(TapeLengthField, AtItsLimits_IsAcceptedInSilence)
{
    PanelUnderTest panel(tape(wholeMillimetres(), 100.0));
    panel.show();
    enterLength(panel, "4");
    EXPECT_EQ(length(panel), u"4");
    enterLength(panel, "1000");
    EXPECT_EQ(length(panel), u"1000");
    EXPECT_TRUE(panel.alerts.empty());
}

TEST(TapeLengthField, JustOutsideItsLimits_Alerts)
{
    PanelUnderTest panel(tape(oneDecimal(), 100.0));
    panel.show();
    enterLength(panel, "3.9");
    EXPECT_TRUE(alertedOnce(panel, "RS_Alrt_LengthMin"));
    panel.alerts.clear();
    enterLength(panel, "1000.1");
    EXPECT_TRUE(alertedOnce(panel, "RS_Alrt_LengthMax"));
}

TEST(TapeLengthField, BetweenTwoSteps_IsRoundedUpInSilence)
{
    PanelUnderTest panel(tape(oneDecimal(), 100.0));
    panel.show();
    enterLength(panel, "50.01");
    EXPECT_EQ(length(panel), u"50.1");
    EXPECT_EQ(panel.slider("mLengthSlider")->floatValue(), 50.1F);
    PanelUnderTest whole(tape(wholeMillimetres(), 100.0));
    whole.show();
    enterLength(whole, "50.01");
    EXPECT_EQ(length(whole), u"51");
    EXPECT_TRUE(panel.alerts.empty());
    EXPECT_TRUE(whole.alerts.empty());
}

TEST(TapeLengthField, TheMarginRule_IsNotAppliedAtTheEndOfItsEditing)
{
    PanelUnderTest panel(tape(oneDecimal(), 100.0));
    panel.show();
    panel.type("mMarginTxFld", "10");
    enterLength(panel, "5");
    EXPECT_EQ(length(panel), u"5.0");
    EXPECT_EQ(margin(panel), u"10");
    EXPECT_TRUE(panel.alerts.empty());
}

TEST(TapeLengthField, TextThatIsNoNumber_CountsAsZero)
{
    PanelUnderTest panel(tape(oneDecimal(), 100.0));
    panel.show();
    enterLength(panel, ".");
    EXPECT_TRUE(alertedOnce(panel, "RS_Alrt_LengthMin"));
    EXPECT_EQ(length(panel), u"4.0");
    panel.alerts.clear();
    enterLength(panel, "");
    EXPECT_TRUE(alertedOnce(panel, "RS_Alrt_LengthMin"));
    EXPECT_EQ(length(panel), u"4.0");
}

TEST(TapeLengthField, TheAlert_IsShownBeforeTheFieldIsCorrected)
{
    PanelUnderTest panel(tape(wholeMillimetres(), 100.0));
    panel.show();
    QString seen;
    pdekit::setAlertHandler([&](const pdekit::AlertRequest &) { seen = length(panel); });
    enterLength(panel, "3");
    EXPECT_EQ(seen, u"3");
    EXPECT_EQ(length(panel), u"4");
}

TEST(TapeLengthField, InInches_IsRoundedUpToAHundredth)
{
    PanelUnderTest panel(tape(inches(), 100.0));
    panel.show();
    enterLength(panel, "1.231");
    EXPECT_EQ(length(panel), u"1.24");
    enterLength(panel, "1.23");
    EXPECT_EQ(length(panel), u"1.23");
    EXPECT_EQ(panel.slider("mLengthSlider")->floatValue(), 1.23F);
    EXPECT_TRUE(panel.alerts.empty());
}

TEST(TapeLengthField, InInches_IsHeldAgainstLimitsInHundredths)
{
    PanelUnderTest panel(tape(inches(), 100.0));
    panel.show();
    enterLength(panel, "0.159"); // more than 4 mm are, less than they show
    EXPECT_TRUE(alertedOnce(panel, "RS_Alrt_LengthMin"));
    EXPECT_EQ(length(panel), u"0.16");
    panel.alerts.clear();
    enterLength(panel, "0.16");
    enterLength(panel, "39.37");
    EXPECT_TRUE(panel.alerts.empty());
    enterLength(panel, "39.38");
    EXPECT_TRUE(alertedOnce(panel, "RS_Alrt_LengthMax"));
    EXPECT_EQ(length(panel), u"39.37");
}

TEST(TapeLengthField, InInches_NoiseBeyondTheSixthDecimalIsCutOff_OfAMarginBeyondTheNinth)
{
    PanelUnderTest panel(tape(inches(), 100.0));
    panel.show();
    enterLength(panel, "3.2300000001");
    EXPECT_EQ(length(panel), u"3.23");
    panel.type("mMarginTxFld", "1.2300000001");
    save(panel);
    EXPECT_EQ(margin(panel), u"1.24");
    EXPECT_EQ(length(panel), u"3.23");
}

// ---- Print tape length ---------------------------------------------------------------------------------------------

TEST(PrintTapeLengthField, OutOfRange_AlertsOnceAndShowsTheLimit)
{
    PanelUnderTest panel(tape(oneDecimal(), 100.0));
    panel.show();
    enterPrintTapeLength(panel, "0.9");
    EXPECT_TRUE(alertedOnce(panel, "RS_Alrt_TapeLengthMin"));
    EXPECT_EQ(panel.field("mTapeLengthTxFld")->text(), u"1.0");
    panel.alerts.clear();
    enterPrintTapeLength(panel, "8.1");
    EXPECT_TRUE(alertedOnce(panel, "RS_Alrt_TapeLengthMax"));
    EXPECT_EQ(panel.field("mTapeLengthTxFld")->text(), u"8.0");
    EXPECT_EQ(panel.slider("mTapeLengthSlider")->floatValue(), 8.0F);
}

TEST(PrintTapeLengthField, AtItsLimits_IsAcceptedInSilence)
{
    PanelUnderTest panel(tape(wholeMillimetres(), 100.0));
    panel.show();
    enterPrintTapeLength(panel, "1");
    EXPECT_EQ(panel.field("mTapeLengthTxFld")->text(), u"1");
    enterPrintTapeLength(panel, "8");
    EXPECT_EQ(panel.field("mTapeLengthTxFld")->text(), u"8");
    enterPrintTapeLength(panel, "7.1");
    EXPECT_EQ(panel.field("mTapeLengthTxFld")->text(), u"8");
    EXPECT_TRUE(panel.alerts.empty());
}

TEST(PrintTapeLengthField, OnCloth_IsHeldAgainstTheLimitOfCloth)
{
    PanelUnderTest panel(tape(oneDecimal(), 100.0));
    panel.show();
    panel.pickItem("mTapeTypePopBtn", 2);
    enterPrintTapeLength(panel, "12");
    EXPECT_TRUE(panel.alerts.empty());
    enterPrintTapeLength(panel, "12.1");
    EXPECT_TRUE(alertedOnce(panel, "RS_Alrt_TapeLengthMax"));
    EXPECT_EQ(panel.field("mTapeLengthTxFld")->text(), u"12.0");
}

TEST(PrintTapeLengthField, InInches_IsCheckedAndRewrittenInInches)
{
    PanelUnderTest panel(tape(inches(), 100.0));
    panel.show();
    enterPrintTapeLength(panel, "3"); // more than 8 / 25.4
    EXPECT_TRUE(alertedOnce(panel, "RS_Alrt_TapeLengthMax"));
    EXPECT_EQ(panel.field("mTapeLengthTxFld")->text(), u"0.31");
    panel.alerts.clear();
    enterPrintTapeLength(panel, "0.03");
    EXPECT_TRUE(alertedOnce(panel, "RS_Alrt_TapeLengthMin"));
    EXPECT_EQ(panel.field("mTapeLengthTxFld")->text(), u"0.04");
    panel.alerts.clear();
    enterPrintTapeLength(panel, "0.231");
    EXPECT_EQ(panel.field("mTapeLengthTxFld")->text(), u"0.24");
    EXPECT_TRUE(panel.alerts.empty());
}

// ---- The full check ------------------------------------------------------------------------------------------------

TEST(FullCheck, LengthOutOfRange_IsCorrectedInSilence_WhenSaving)
{
    PanelUnderTest panel(tape(wholeMillimetres(), 100.0));
    panel.show();
    panel.type("mLengthTxFld", "3");
    save(panel);
    EXPECT_EQ(length(panel), u"4");
    panel.type("mLengthTxFld", "1200");
    save(panel);
    EXPECT_EQ(length(panel), u"1000");
    EXPECT_EQ(panel.callback->lastSent(u"KsTapeLength"_qs), u"1000");
    EXPECT_TRUE(panel.alerts.empty());
}

TEST(FullCheck, LengthOutOfRange_IsCorrectedInSilence_WhenPrinting)
{
    PanelUnderTest panel(tape(wholeMillimetres(), 100.0));
    panel.show();
    panel.type("mLengthTxFld", "1200");
    QCoreApplication::processEvents();
    EXPECT_TRUE(panel->shouldPrint());
    EXPECT_EQ(length(panel), u"1000");
    EXPECT_TRUE(panel.alerts.empty());
}

TEST(FullCheck, LengthOutOfRange_IsCorrectedInSilence_WhenAChoiceIsPicked)
{
    PanelUnderTest panel(tape(wholeMillimetres(), 100.0));
    panel.show();
    panel.type("mLengthTxFld", "3");
    QCoreApplication::processEvents();
    // By a key, and the focus by code: no click ends the field's editing.
    key(panel, "mTapeColorPopBtn", Qt::Key_Down);
    EXPECT_EQ(length(panel), u"4");
    EXPECT_TRUE(panel.alerts.empty());
}

TEST(FullCheck, LengthOutOfRange_IsCorrectedInSilence_WhenASliderIsReleased)
{
    PanelUnderTest panel(tape(wholeMillimetres(), 100.0));
    panel.show();
    panel.type("mLengthTxFld", "3");
    QCoreApplication::processEvents();
    panel.field("mMarginTxFld")->setFocus(); // no event: no check of its own
    const QPoint place = knob(panel, "mMarginSlider");
    press(panel, place);
    release(panel, place);
    EXPECT_EQ(length(panel), u"4");
    EXPECT_TRUE(panel.alerts.empty());
}

TEST(FullCheck, ClickOnASliderOutOfAWrongLength_AlertsOnceForIt)
{
    PanelUnderTest panel(tape(wholeMillimetres(), 100.0));
    panel.show();
    panel.type("mLengthTxFld", "3");
    QCoreApplication::processEvents();
    const QPoint place = knob(panel, "mMarginSlider");
    press(panel, place);
    EXPECT_TRUE(alertedOnce(panel, "RS_Alrt_LengthMin"));
    release(panel, place);
    EXPECT_TRUE(alertedOnce(panel, "RS_Alrt_LengthMin"));
}

TEST(FullCheck, ThePrintTapeLength_IsNotChecked)
{
    PanelUnderTest panel(tape(oneDecimal(), 100.0));
    panel.show();
    panel.type("mTapeLengthTxFld", "99");
    save(panel);
    EXPECT_EQ(panel.field("mTapeLengthTxFld")->text(), u"99");
    EXPECT_EQ(panel.callback->lastSent(u"KsPrintTapeLength"_qs), u"8.0"); // held for the job all the same
    EXPECT_TRUE(panel.alerts.empty());
}

TEST(FullCheck, MarginOutOfRange_IsCorrectedInSilence)
{
    PanelUnderTest panel(tape(oneDecimal(), 1000.0));
    panel.show();
    panel.type("mMarginTxFld", "0.5");
    save(panel);
    EXPECT_EQ(margin(panel), u"1.0");
    panel.type("mMarginTxFld", "100.1");
    save(panel);
    EXPECT_EQ(margin(panel), u"100.0");
    EXPECT_EQ(panel.slider("mMarginSlider")->floatValue(), 100.0F);
    panel.type("mMarginTxFld", "3.01");
    save(panel);
    EXPECT_EQ(margin(panel), u"3.1");
    EXPECT_TRUE(panel.alerts.empty());
}

TEST(FullCheck, MarginInInches_IsRoundedUpAndHeldAgainstLimitsInHundredths)
{
    PanelUnderTest panel(tape(inches(), 1000.0));
    panel.show();
    panel.type("mMarginTxFld", "0.039"); // 1 mm is 0.0393701, shown as 0.04
    save(panel);
    EXPECT_EQ(margin(panel), u"0.04");
    panel.type("mMarginTxFld", "4");
    save(panel);
    EXPECT_EQ(margin(panel), u"3.94");
    panel.type("mMarginTxFld", "1.231");
    save(panel);
    EXPECT_EQ(margin(panel), u"1.24");
    EXPECT_TRUE(panel.alerts.empty());
}

// ---- When nothing is checked ---------------------------------------------------------------------------------------

TEST(SkippedChecks, MediumOfFixedLength_IsLeftAlone)
{
    auto callback = tape(oneDecimal(), 100.0);
    callback->usePaper(u"DC24x80"_qs, 80.0);
    PanelUnderTest panel(callback);
    panel.show();
    panel.field("mMarginTxFld")->setText(u"150"_qs);
    panel.field("mTapeLengthTxFld")->setText(u"99"_qs);
    save(panel);
    EXPECT_TRUE(panel->shouldPrint());
    EXPECT_EQ(margin(panel), u"150");
    EXPECT_EQ(length(panel), u"80.0");
    EXPECT_EQ(panel.field("mTapeLengthTxFld")->text(), u"99");
    EXPECT_EQ(panel.callback->lastSent(u"KsMargin"_qs), u"150.0"); // and nothing is held
    EXPECT_EQ(panel.callback->lastSent(u"KsPrintTapeLength"_qs), u"99.0");
    EXPECT_TRUE(panel.alerts.empty());
}

TEST(SkippedChecks, BeforeTheFirstShowing_NothingIsChecked)
{
    PanelUnderTest panel(tape(oneDecimal(), 100.0));
    panel->panelView()->setParent(&panel.window);
    panel.field("mMarginTxFld")->setText(u"150"_qs);
    save(panel);
    EXPECT_TRUE(panel->shouldPrint());
    EXPECT_EQ(margin(panel), u"150");
    EXPECT_TRUE(panel.alerts.empty());
}

TEST(SkippedChecks, WithoutFormatAndSettings_TheyAreTheSameObjectAndChecksRun)
{
    auto callback = tape(oneDecimal(), 100.0);
    callback->hasFormat = false;
    callback->hasSettings = false;
    PanelUnderTest panel(callback);
    panel->panelView()->setParent(&panel.window);
    panel.field("mLengthTxFld")->setText(u"900"_qs);
    panel.field("mMarginTxFld")->setText(u"150"_qs);
    save(panel);
    EXPECT_EQ(margin(panel), u"100.0");
}

TEST(SkippedChecks, ACheckThatCorrected_NeverRefusesThePrint)
{
    PanelUnderTest panel(tape(oneDecimal(), 20.0));
    panel.show();
    panel.type("mMarginTxFld", "15");
    QCoreApplication::processEvents();
    EXPECT_TRUE(panel->shouldPrint());
    EXPECT_TRUE(alertedOnce(panel, "RS_Alrt_LengthByMargin"));
    EXPECT_TRUE(panel->shouldPrint());
    EXPECT_EQ(panel.alerts.size(), 1U);
}

} // namespace
