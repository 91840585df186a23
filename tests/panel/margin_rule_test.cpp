// SPDX-License-Identifier: Apache-2.0
// The rule that the margin leaves room on the tape, on the built panel: half the length fits, more lengthens the tape.
#include "LengthGestures.h"
#include "TextPrinting.h"

#include <QCoreApplication>
#include <QTest>

using namespace gestures;

namespace
{

TEST(MarginRule, HalfTheLength_IsAccepted)
{
    PanelUnderTest panel(tape(oneDecimal(), 20.0));
    panel.show();
    panel.type("mMarginTxFld", "10");
    save(panel);
    EXPECT_EQ(length(panel), u"20.0");
    EXPECT_EQ(margin(panel), u"10.0");
    EXPECT_TRUE(panel.alerts.empty());
}

TEST(MarginRule, AStepMore_AlertsOnceAndLengthensTheTape)
{
    PanelUnderTest panel(tape(oneDecimal(), 20.0));
    panel.show();
    panel.type("mMarginTxFld", "10.1");
    save(panel);
    EXPECT_TRUE(alertedOnce(panel, "RS_Alrt_LengthByMargin"));
    EXPECT_EQ(length(panel), u"20.3"); // 0.1 + 10.1 + 10.1
    EXPECT_EQ(panel.slider("mLengthSlider")->floatValue(), 20.3F);
    EXPECT_EQ(panel.callback->lastSent(u"KsTapeLength"_qs), u"20.3");
    save(panel);
    EXPECT_EQ(panel.alerts.size(), 1U); // it fits now
}

TEST(MarginRule, TheOldLengthStandsWhileTheAlertIsShown)
{
    PanelUnderTest panel(tape(oneDecimal(), 20.0));
    panel.show();
    QStringList seen;
    pdekit::setAlertHandler([&](const pdekit::AlertRequest &) { seen << length(panel) << margin(panel); });
    panel.type("mMarginTxFld", "10.01");
    save(panel);
    EXPECT_EQ(seen, (QStringList{u"20.0"_qs, u"10.1"_qs}));
}

TEST(MarginRule, WholeMillimetres)
{
    PanelUnderTest panel(tape(wholeMillimetres(), 20.0));
    panel.show();
    panel.type("mMarginTxFld", "10.5");
    save(panel);
    EXPECT_TRUE(alertedOnce(panel, "RS_Alrt_LengthByMargin"));
    EXPECT_EQ(margin(panel), u"11");
    EXPECT_EQ(length(panel), u"23"); // 1 + 11 + 11
}

TEST(MarginRule, TheMarginsIntegerRuleDecides_NotTheTapeLengths)
{
    PanelUnderTest wholeTape(tape(oneDecimal().attribute("KsIsIntegerTapeLength", "True"), 20.0));
    wholeTape.show();
    wholeTape.type("mMarginTxFld", "10.1");
    save(wholeTape);
    EXPECT_EQ(length(wholeTape), u"20.3");
    EXPECT_EQ(wholeTape.callback->lastSent(u"KsTapeLength"_qs), u"20");
    PanelUnderTest wholeMargin(tape(oneDecimal().attribute("KsIsIntegerMargin", "True"), 20.0));
    wholeMargin.show();
    wholeMargin.type("mMarginTxFld", "11");
    save(wholeMargin);
    EXPECT_EQ(length(wholeMargin), u"23");
    EXPECT_EQ(wholeMargin.callback->lastSent(u"KsTapeLength"_qs), u"23.0");
}

TEST(MarginRule, InInches_AddsAHundredthAndRoundsNothingUp)
{
    PanelUnderTest panel(tape(inches(), 50.0)); // 1.97
    panel.show();
    panel.type("mMarginTxFld", "1");
    save(panel);
    EXPECT_TRUE(alertedOnce(panel, "RS_Alrt_LengthByMargin"));
    EXPECT_EQ(length(panel), u"2.01");
}

TEST(MarginRule, InInches_ALargerDotIsNotRoundedUpEither)
{
    PanelUnderTest panel(tape(withResolution("70x70dpi").attribute("KsUnitType", "inch"), 50.0));
    panel.show();
    panel.type("mMarginTxFld", "1");
    save(panel);
    EXPECT_EQ(length(panel), u"2.01"); // 2 + 0.0143
    EXPECT_FLOAT_EQ(panel.slider("mLengthSlider")->floatValue(), 2.0142859F);
}

TEST(MarginRule, TheNewLength_IsNotHeldAgainstTheMaximum_ButTheJobIs)
{
    PanelUnderTest panel(tape(withTapeLimits("4", "20"), 20.0));
    panel.show();
    panel.type("mMarginTxFld", "15");
    save(panel);
    EXPECT_EQ(length(panel), u"30.1");
    EXPECT_EQ(panel.callback->lastSent(u"KsTapeLength"_qs), u"20.0");
    EXPECT_TRUE(alertedOnce(panel, "RS_Alrt_LengthByMargin"));
}

TEST(MarginRule, ADotOfMoreThanAStep_IsAddedAndRoundedUp)
{
    PanelUnderTest panel(tape(withResolution("180x180dpi"), 20.0));
    panel.show();
    panel.type("mMarginTxFld", "10.1");
    save(panel);
    EXPECT_EQ(length(panel), u"20.4"); // 0.1411 + 20.2
}

TEST(MarginRule, TheSelectedResolutionCounts)
{
    PanelUnderTest panel(tape(oneDecimal().option("Resolution", "Resolution",
                                                  {{"300x300dpi", "Fine"}, {"180x50dpi", "Coarse"}}, "300x300dpi"),
                              20.0));
    panel.show();
    panel.pickRow("mResolutionRdBtn", 1);
    panel.type("mMarginTxFld", "10.1");
    save(panel);
    EXPECT_EQ(length(panel), u"20.8"); // 0.508 + 20.2 = 20.708
}

TEST(MarginRule, WithoutAResolution_TheStepOfAnEntryIsAdded)
{
    PanelUnderTest panel(tape(oneDecimal().withoutOption("Resolution"), 20.0));
    panel.show();
    panel.type("mMarginTxFld", "10.1");
    save(panel);
    EXPECT_EQ(length(panel), u"20.3");
}

TEST(MarginRule, OddResolutionKeywords_AddTheStepOfAnEntry)
{
    for (const char *keyword : {"300x99999999999999999999dpi", "x-5dpi", "300X600DPI"}) {
        PanelUnderTest panel(tape(withResolution(keyword), 20.0));
        panel.show();
        panel.type("mMarginTxFld", "10.1");
        save(panel);
        EXPECT_EQ(length(panel), u"20.3") << keyword;
        EXPECT_TRUE(onlyNumbersWereSent(panel)) << keyword;
    }
}

TEST(MarginRule, AnInfiniteDot_ReachesTheFieldButNeverTheJob)
{
    for (const char *keyword : {"Normal", "x0dpi", "300dpi"}) {
        PanelUnderTest panel(tape(withResolution(keyword), 20.0));
        panel.show();
        panel.type("mMarginTxFld", "10.1");
        save(panel);
        EXPECT_TRUE(alertedOnce(panel, "RS_Alrt_LengthByMargin")) << keyword;
        EXPECT_EQ(length(panel), u"inf") << keyword;
        EXPECT_EQ(panel.callback->lastSent(u"KsTapeLength"_qs), u"4.0") << keyword; // no number: zero, and held
        EXPECT_TRUE(onlyNumbersWereSent(panel)) << keyword;
        // The knob stands at its end; letting go of it brings numbers back, the margin rule lengthens again.
        const QPoint place = knob(panel, "mLengthSlider");
        press(panel, place);
        release(panel, place);
        EXPECT_EQ(length(panel), u"inf") << keyword;
        panel.type("mMarginTxFld", "2");
        save(panel);
        EXPECT_EQ(length(panel), u"4.0") << keyword;
    }
}

TEST(MarginRule, AnInfiniteDotInWholeMillimetres_IsTheLargestInteger)
{
    PanelUnderTest panel(
        tape(wholeMillimetres().option("Resolution", "Resolution", {{"Normal", "Only"}}, "Normal"), 20.0));
    panel.show();
    panel.type("mMarginTxFld", "11");
    save(panel);
    EXPECT_EQ(length(panel), u"2147483647");
    EXPECT_EQ(panel.callback->lastSent(u"KsTapeLength"_qs), u"1000");
}

TEST(MarginRule, ComparesTheMarginAsItIsRewritten)
{
    PanelUnderTest panel(tape(oneDecimal(), 20.1));
    panel.show();
    panel.type("mMarginTxFld", "10.01"); // less than 10.05, but 10.1 once it is rounded up
    save(panel);
    EXPECT_TRUE(alertedOnce(panel, "RS_Alrt_LengthByMargin"));
    EXPECT_EQ(margin(panel), u"10.1");
    EXPECT_EQ(length(panel), u"20.3");
}

} // namespace
