// SPDX-License-Identifier: Apache-2.0
// What a person's keys and mouse do to the three length groups of the built panel, and which check each act leads to.
#include "LengthGestures.h"
#include "TextPrinting.h"

#include <QCoreApplication>
#include <QPushButton>
#include <QTest>

using namespace gestures;

namespace
{

// ---- Sliders -------------------------------------------------------------------------------------------------------

TEST(LengthSliders, Drag_MovesTheFieldAndChecksNothing_ReleaseChecksOnce)
{
    PanelUnderTest panel(tape(oneDecimal(), 100.0));
    panel.show();
    layMarginProbe(panel);
    press(panel, knob(panel, "mLengthSlider"));
    drag(panel, endOfSlider(panel, "mLengthSlider", true));
    EXPECT_EQ(panel.field("mLengthTxFld")->text(), u"1000.0");
    EXPECT_FALSE(fullCheckRan(panel));
    drag(panel, endOfSlider(panel, "mLengthSlider", false));
    EXPECT_EQ(panel.field("mLengthTxFld")->text(), u"4.0");
    EXPECT_FALSE(fullCheckRan(panel));
    release(panel, endOfSlider(panel, "mLengthSlider", false));
    EXPECT_TRUE(fullCheckRan(panel));
    EXPECT_EQ(panel.field("mLengthTxFld")->text(), u"4.0");
    EXPECT_TRUE(panel.alerts.empty());
}

TEST(LengthSliders, PressBesideTheKnob_MovesTheFieldAndChecksNothing)
{
    PanelUnderTest panel(tape(oneDecimal(), 100.0));
    panel.show();
    layMarginProbe(panel);
    press(panel, endOfSlider(panel, "mLengthSlider", true));
    EXPECT_EQ(panel.field("mLengthTxFld")->text(), u"1000.0");
    EXPECT_FALSE(fullCheckRan(panel));
    release(panel, endOfSlider(panel, "mLengthSlider", true));
    EXPECT_TRUE(fullCheckRan(panel));
}

TEST(LengthSliders, ReleaseOfAnUnmovedKnob_ChecksToo)
{
    PanelUnderTest panel(tape(oneDecimal(), 100.0));
    panel.show();
    layMarginProbe(panel);
    const QPoint place = knob(panel, "mLengthSlider");
    press(panel, place);
    EXPECT_FALSE(fullCheckRan(panel));
    release(panel, place);
    EXPECT_TRUE(fullCheckRan(panel));
    EXPECT_EQ(panel.field("mLengthTxFld")->text(), u"100.0");
}

TEST(LengthSliders, ReleaseOfTheMarginOverHalfTheLength_AlertsOnceAndLengthensTheTape)
{
    PanelUnderTest panel(tape(oneDecimal(), 100.0));
    panel.show();
    press(panel, knob(panel, "mMarginSlider"));
    drag(panel, endOfSlider(panel, "mMarginSlider", true));
    EXPECT_EQ(panel.field("mMarginTxFld")->text(), u"100.0");
    EXPECT_TRUE(panel.alerts.empty());
    release(panel, endOfSlider(panel, "mMarginSlider", true));
    EXPECT_TRUE(alertedOnce(panel, "RS_Alrt_LengthByMargin"));
    EXPECT_EQ(panel.field("mLengthTxFld")->text(), u"200.1"); // 0.1 + 100 + 100
    EXPECT_EQ(panel.slider("mLengthSlider")->floatValue(), 200.1F);
}

TEST(LengthSliders, PrintTapeLength_DragAndRelease)
{
    PanelUnderTest panel(tape(oneDecimal(), 100.0));
    panel.show();
    layMarginProbe(panel);
    press(panel, knob(panel, "mTapeLengthSlider"));
    drag(panel, endOfSlider(panel, "mTapeLengthSlider", true));
    EXPECT_EQ(panel.field("mTapeLengthTxFld")->text(), u"8.0");
    EXPECT_FALSE(fullCheckRan(panel));
    release(panel, endOfSlider(panel, "mTapeLengthSlider", true));
    EXPECT_TRUE(fullCheckRan(panel));
}

TEST(LengthSliders, ArrowAndPageKeys_MoveByMillimetresAndCheck)
{
    PanelUnderTest panel(tape(oneDecimal(), 100.0));
    panel.show();
    const std::vector<std::pair<Qt::Key, QString>> keys = {
        {Qt::Key_Right, u"101.0"_qs}, {Qt::Key_Up, u"102.0"_qs},     {Qt::Key_Left, u"101.0"_qs},
        {Qt::Key_Down, u"100.0"_qs},  {Qt::Key_PageUp, u"110.0"_qs}, {Qt::Key_PageDown, u"100.0"_qs},
        {Qt::Key_Home, u"4.0"_qs},    {Qt::Key_End, u"1000.0"_qs},
    };
    for (const auto &[pressed, expected] : keys) {
        layMarginProbe(panel);
        key(panel, "mLengthSlider", pressed);
        EXPECT_EQ(panel.field("mLengthTxFld")->text(), expected) << pressed;
        EXPECT_TRUE(fullCheckRan(panel)) << pressed;
    }
    EXPECT_TRUE(panel.alerts.empty());
}

TEST(LengthSliders, ArrowKeyAtTheLimit_MovesNothingAndChecksNothing)
{
    PanelUnderTest panel(tape(oneDecimal(), 1000.0));
    panel.show();
    layMarginProbe(panel);
    key(panel, "mLengthSlider", Qt::Key_Right);
    EXPECT_EQ(panel.field("mLengthTxFld")->text(), u"1000.0");
    EXPECT_FALSE(fullCheckRan(panel));
}

TEST(LengthSliders, ArrowKeyInInches_StepsAboutAMillimetre)
{
    PanelUnderTest panel(tape(inches(), 100.0));
    panel.show();
    key(panel, "mLengthSlider", Qt::Key_Right);
    EXPECT_EQ(panel.field("mLengthTxFld")->text(), u"3.98"); // 3.94 + 0.0394
}

TEST(LengthSliders, Wheel_MovesTheFieldAndChecksNothing)
{
    PanelUnderTest panel(tape(oneDecimal(), 100.0));
    panel.show();
    layMarginProbe(panel);
    wheel(panel, "mLengthSlider", 3);
    EXPECT_EQ(panel.field("mLengthTxFld")->text(), u"103.0");
    wheel(panel, "mLengthSlider", -1);
    EXPECT_EQ(panel.field("mLengthTxFld")->text(), u"102.0");
    EXPECT_FALSE(fullCheckRan(panel));
}

TEST(LengthSliders, WholeMillimetres_TruncateTheTapeLengthButRoundTheMarginUp)
{
    PanelUnderTest panel(tape(wholeMillimetres()
                                  .attribute("KsMaxTapeLength", "12.7")
                                  .attribute("KsMaxMargin", "12.1")
                                  .option("KsMargin", "Margin", {{"12", "12 mm"}}, "12"),
                              12.0));
    panel.show();
    wheel(panel, "mLengthSlider", 5);
    EXPECT_EQ(panel.slider("mLengthSlider")->floatValue(), 12.7F);
    EXPECT_EQ(panel.field("mLengthTxFld")->text(), u"12");
    wheel(panel, "mMarginSlider", 5);
    EXPECT_EQ(panel.slider("mMarginSlider")->floatValue(), 12.1F);
    EXPECT_EQ(panel.field("mMarginTxFld")->text(), u"13");
}

TEST(LengthSliders, OneDecimal_IsTheNearestForTheTapeLengthButRoundedUpForTheOthers)
{
    PanelUnderTest panel(tape(oneDecimal()
                                  .attribute("KsMaxTapeLength", "12.34")
                                  .attribute("KsMaxMargin", "12.34")
                                  .attribute("KsMaxPrintTapeLengthForOther", "3.34"),
                              12.0));
    panel.show();
    wheel(panel, "mLengthSlider", 5);
    EXPECT_EQ(panel.field("mLengthTxFld")->text(), u"12.3");
    wheel(panel, "mMarginSlider", 20);
    EXPECT_EQ(panel.field("mMarginTxFld")->text(), u"12.4");
    wheel(panel, "mTapeLengthSlider", 5);
    EXPECT_EQ(panel.field("mTapeLengthTxFld")->text(), u"3.4");
}

TEST(LengthSliders, InInches_EvenThePrintTapeLengthIsWrittenWithTwoDecimals)
{
    PanelUnderTest panel(tape(inches(), 100.0));
    panel.show();
    wheel(panel, "mTapeLengthSlider", 1);
    EXPECT_EQ(panel.field("mTapeLengthTxFld")->text(), u"4.00");
    wheel(panel, "mMarginSlider", 100);
    EXPECT_EQ(panel.field("mMarginTxFld")->text(), u"3.94"); // 3.93701
}

TEST(LengthSliders, LimitsTheWrongWayRound_KeepTheKnobBetweenThem)
{
    PanelUnderTest panel(
        tape(oneDecimal().attribute("KsMinTapeLength", "10").attribute("KsMaxTapeLength", "5"), 100.0));
    panel.show();
    wheel(panel, "mLengthSlider", 1);
    EXPECT_EQ(panel.field("mLengthTxFld")->text(), u"10.0");
    wheel(panel, "mLengthSlider", -100);
    EXPECT_EQ(panel.field("mLengthTxFld")->text(), u"5.0");
}

// ---- Fields: which act leads to which check ------------------------------------------------------------------------

TEST(LengthFields, Typing_ChecksNothing)
{
    PanelUnderTest panel(tape(wholeMillimetres(), 100.0));
    panel.show();
    layMarginProbe(panel);
    panel.type("mLengthTxFld", "3");
    EXPECT_EQ(panel.field("mLengthTxFld")->text(), u"3");
    EXPECT_EQ(panel.slider("mLengthSlider")->floatValue(), 100.0F);
    EXPECT_TRUE(panel.alerts.empty());
    EXPECT_FALSE(fullCheckRan(panel));
}

TEST(LengthFields, ReturnInTheTapeLength_ChecksItAlone)
{
    PanelUnderTest panel(tape(wholeMillimetres(), 100.0));
    panel.show();
    panel.type("mTapeLengthTxFld", "3.21");
    layMarginProbe(panel);
    panel.type("mLengthTxFld", "3");
    key(panel, Qt::Key_Return);
    EXPECT_TRUE(alertedOnce(panel, "RS_Alrt_LengthMin"));
    EXPECT_EQ(panel.field("mLengthTxFld")->text(), u"4");
    EXPECT_EQ(panel.slider("mLengthSlider")->floatValue(), 4.0F);
    EXPECT_FALSE(fullCheckRan(panel));
    EXPECT_EQ(panel.field("mTapeLengthTxFld")->text(), u"3.21");
}

TEST(LengthFields, EnterOfTheNumberPad_ChecksAsReturnDoes)
{
    PanelUnderTest panel(tape(wholeMillimetres(), 100.0));
    panel.show();
    panel.type("mLengthTxFld", "1200");
    key(panel, Qt::Key_Enter);
    EXPECT_TRUE(alertedOnce(panel, "RS_Alrt_LengthMax"));
    EXPECT_EQ(panel.field("mLengthTxFld")->text(), u"1000");
}

TEST(LengthFields, TabOutOfTheTapeLength_ChecksItOnce)
{
    PanelUnderTest panel(tape(wholeMillimetres(), 100.0));
    panel.show();
    panel.type("mLengthTxFld", "3");
    key(panel, Qt::Key_Tab);
    EXPECT_FALSE(panel.field("mLengthTxFld")->hasFocus());
    EXPECT_TRUE(alertedOnce(panel, "RS_Alrt_LengthMin"));
    EXPECT_EQ(panel.field("mLengthTxFld")->text(), u"4");
}

TEST(LengthFields, ClickElsewhere_ChecksTheTapeLengthOnce)
{
    PanelUnderTest panel(tape(wholeMillimetres(), 100.0));
    panel.show();
    panel.type("mLengthTxFld", "1200");
    QCoreApplication::processEvents();
    click(panel, "mTapeLengthTxFld");
    EXPECT_TRUE(alertedOnce(panel, "RS_Alrt_LengthMax"));
    EXPECT_EQ(panel.field("mLengthTxFld")->text(), u"1000");
}

TEST(LengthFields, ReturnAndThenTab_AlertOnceForTheOneCause)
{
    PanelUnderTest panel(tape(wholeMillimetres(), 100.0));
    panel.show();
    panel.type("mLengthTxFld", "3");
    key(panel, Qt::Key_Return);
    key(panel, Qt::Key_Tab);
    EXPECT_TRUE(alertedOnce(panel, "RS_Alrt_LengthMin"));
}

TEST(LengthFields, WindowClosedByCode_ChecksNothing)
{
    PanelUnderTest panel(tape(wholeMillimetres(), 100.0));
    panel.show();
    panel.type("mLengthTxFld", "3");
    QCoreApplication::processEvents();
    panel.window.close();
    EXPECT_FALSE(panel.window.isVisible());
    EXPECT_TRUE(panel.alerts.empty());
    EXPECT_EQ(panel.field("mLengthTxFld")->text(), u"3");
}

TEST(LengthFields, WindowClosedByAMouseUp_ChecksNothing)
{
    PanelUnderTest panel(tape(wholeMillimetres(), 100.0));
    QPushButton close(QStringLiteral("Close"));
    close.setFocusPolicy(Qt::NoFocus);
    QObject::connect(&close, &QPushButton::clicked, &panel.window, &QWidget::close);
    panel.show();
    close.setParent(&panel.window);
    close.show();
    panel.type("mLengthTxFld", "3");
    QCoreApplication::processEvents();
    const QPoint place = close.mapTo(&panel.window, close.rect().center());
    press(panel, place);
    EXPECT_TRUE(panel.field("mLengthTxFld")->hasFocus());
    release(panel, place);
    EXPECT_FALSE(panel.window.isVisible());
    EXPECT_TRUE(panel.alerts.empty());
    EXPECT_EQ(panel.field("mLengthTxFld")->text(), u"3");
    close.setParent(nullptr);
}

TEST(LengthFields, FocusMovedByCode_ChecksNothing)
{
    PanelUnderTest panel(tape(wholeMillimetres(), 100.0));
    panel.show();
    panel.type("mLengthTxFld", "3");
    QCoreApplication::processEvents();
    panel.slider("mLengthSlider")->setFocus();
    EXPECT_TRUE(panel.alerts.empty());
    EXPECT_EQ(panel.field("mLengthTxFld")->text(), u"3");
}

TEST(LengthFields, EndOfEditingOfTheMargin_ChecksNothing)
{
    PanelUnderTest panel(tape(oneDecimal(), 100.0));
    panel.show();
    for (const Qt::Key pressed : {Qt::Key_Return, Qt::Key_Tab}) {
        panel.type("mMarginTxFld", "150");
        key(panel, pressed);
        EXPECT_EQ(panel.field("mMarginTxFld")->text(), u"150");
    }
    panel.type("mMarginTxFld", "150");
    click(panel, "mLengthTxFld");
    EXPECT_EQ(panel.field("mMarginTxFld")->text(), u"150");
    EXPECT_EQ(panel.field("mLengthTxFld")->text(), u"100.0");
    EXPECT_TRUE(panel.alerts.empty());
}

TEST(LengthFields, ReturnInThePrintTapeLength_ChecksItAlone)
{
    PanelUnderTest panel(tape(oneDecimal(), 100.0));
    panel.show();
    panel.type("mLengthTxFld", "3");
    layMarginProbe(panel);
    panel.type("mTapeLengthTxFld", "3.21");
    key(panel, Qt::Key_Return);
    EXPECT_EQ(panel.field("mTapeLengthTxFld")->text(), u"3.3");
    EXPECT_EQ(panel.slider("mTapeLengthSlider")->floatValue(), 3.3F);
    EXPECT_FALSE(fullCheckRan(panel));
    EXPECT_EQ(panel.field("mLengthTxFld")->text(), u"3");
    EXPECT_TRUE(panel.alerts.empty());
}

} // namespace
