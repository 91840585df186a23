// SPDX-License-Identifier: Apache-2.0
// What the three length groups of the built panel show when they are filled: texts, limits, sliders, units, titles,
// and what is enabled.
#include "LengthGestures.h"
#include "TextPrinting.h"

#include <limits>

using namespace gestures;

namespace
{

TEST(LengthGroups_FirstShowing, OneDecimal_IsRoundedUp)
{
    PanelUnderTest panel(tape(oneDecimal().defaultChoice("KsMargin", "2.01"), 99.05));
    panel.show();
    EXPECT_EQ(panel.field("mLengthTxFld")->text(), u"99.1");
    EXPECT_EQ(panel.field("mMarginTxFld")->text(), u"2.1");
    EXPECT_EQ(panel.field("mTapeLengthTxFld")->text(), u"3.0");
    EXPECT_TRUE(panel.alerts.empty());
}

TEST(LengthGroups_FirstShowing, WholeMillimetres_AreRoundedUp)
{
    PanelUnderTest exact(tape(wholeMillimetres(), 100.0));
    exact.show();
    EXPECT_EQ(exact.field("mLengthTxFld")->text(), u"100");
    EXPECT_EQ(exact.field("mMarginTxFld")->text(), u"2");
    EXPECT_EQ(exact.field("mTapeLengthTxFld")->text(), u"3");
    PanelUnderTest beyond(tape(wholeMillimetres().defaultChoice("KsPrintTapeLength", "3.01"), 99.05));
    beyond.show();
    EXPECT_EQ(beyond.field("mLengthTxFld")->text(), u"100");
    EXPECT_EQ(beyond.field("mTapeLengthTxFld")->text(), u"4");
}

TEST(LengthGroups_FirstShowing, Millimetres_LabelsAndSliders)
{
    PanelUnderTest panel(tape(oneDecimal(), 100.0));
    panel.show();
    EXPECT_EQ(panel.label("mLengthUnitStr")->text(), text(panel, "RS_mm"));
    EXPECT_EQ(panel.label("mMarginUnitStr")->text(), text(panel, "RS_mm"));
    EXPECT_EQ(panel.label("mTapeLengthUnitStr")->text(), text(panel, "RS_m"));
    EXPECT_EQ(panel.label("mLengthMinStr")->text(), u"4.0");
    EXPECT_EQ(panel.label("mLengthMaxStr")->text(), u"1000.0");
    EXPECT_EQ(panel.label("mMarginMinStr")->text(), u"1.0");
    EXPECT_EQ(panel.label("mMarginMaxStr")->text(), u"100.0");
    EXPECT_EQ(panel.label("mTapeLengthMinStr")->text(), u"1.0");
    EXPECT_EQ(panel.label("mTapeLengthMaxStr")->text(), u"8.0");
    EXPECT_EQ(panel.slider("mLengthSlider")->minValue(), 4.0);
    EXPECT_EQ(panel.slider("mLengthSlider")->maxValue(), 1000.0);
    EXPECT_EQ(panel.slider("mLengthSlider")->altIncrementValue(), 1.0);
    EXPECT_EQ(panel.slider("mLengthSlider")->floatValue(), 100.0F);
    EXPECT_EQ(panel.slider("mMarginSlider")->floatValue(), 2.0F);
    EXPECT_EQ(panel.slider("mTapeLengthSlider")->floatValue(), 3.0F);
}

TEST(LengthGroups_FirstShowing, LimitsAndSliders_AreRoundedUpAfterWidening_FieldsAreNot)
{
    PanelUnderTest panel(tape(oneDecimal().attribute("KsMinMargin", "1.2").defaultChoice("KsMargin", "1.2"), 100.0));
    panel.show();
    EXPECT_EQ(panel.field("mMarginTxFld")->text(), u"1.2");
    EXPECT_EQ(panel.label("mMarginMinStr")->text(), u"1.3");
    EXPECT_EQ(panel.slider("mMarginSlider")->floatValue(), 1.3F);
    EXPECT_EQ(panel.slider("mMarginSlider")->minValue(), static_cast<double>(1.2F));
}

TEST(LengthGroups_FirstShowing, WholeMillimetres_RoundTheLabelsUp_ButNotTheSlidersRange)
{
    PanelUnderTest panel(
        tape(wholeMillimetres().attribute("KsMinTapeLength", "4.2").attribute("KsMaxTapeLength", "12.7"), 10.0));
    panel.show();
    EXPECT_EQ(panel.label("mLengthMinStr")->text(), u"5");
    EXPECT_EQ(panel.label("mLengthMaxStr")->text(), u"13");
    EXPECT_EQ(panel.slider("mLengthSlider")->minValue(), static_cast<double>(4.2F));
    EXPECT_EQ(panel.slider("mLengthSlider")->maxValue(), static_cast<double>(12.7F));
}

TEST(LengthGroups_FirstShowing, Inches)
{
    PanelUnderTest panel(tape(inches(), 100.0));
    panel.show();
    EXPECT_EQ(panel.field("mLengthTxFld")->text(), u"3.94");
    EXPECT_EQ(panel.field("mMarginTxFld")->text(), u"0.08"); // 0.0787402
    EXPECT_EQ(panel.label("mLengthUnitStr")->text(), text(panel, "RS_Inch"));
    EXPECT_EQ(panel.label("mMarginUnitStr")->text(), text(panel, "RS_Inch"));
    EXPECT_EQ(panel.label("mLengthMinStr")->text(), u"0.16");
    EXPECT_EQ(panel.label("mLengthMaxStr")->text(), u"39.37");
    EXPECT_EQ(panel.label("mMarginMinStr")->text(), u"0.04");
    EXPECT_EQ(panel.label("mMarginMaxStr")->text(), u"3.94");
    EXPECT_DOUBLE_EQ(panel.slider("mLengthSlider")->minValue(), 0.1574804);
    EXPECT_DOUBLE_EQ(panel.slider("mLengthSlider")->maxValue(), 39.3701);
    EXPECT_EQ(panel.slider("mLengthSlider")->floatValue(), 3.94F);
    EXPECT_NEAR(panel.slider("mLengthSlider")->altIncrementValue(), 0.03936746988, 1e-10); // 39.21 / 996
}

TEST(LengthGroups_FirstShowing, Inches_DoNotReachThePrintTapeLength)
{
    PanelUnderTest panel(tape(inches(), 100.0));
    panel.show();
    EXPECT_EQ(panel.field("mTapeLengthTxFld")->text(), u"3.0");
    EXPECT_EQ(panel.label("mTapeLengthUnitStr")->text(), text(panel, "RS_m"));
    EXPECT_EQ(panel.label("mTapeLengthMinStr")->text(), u"1.0");
    EXPECT_EQ(panel.label("mTapeLengthMaxStr")->text(), u"8.0");
    EXPECT_EQ(panel.slider("mTapeLengthSlider")->maxValue(), 8.0);
    EXPECT_EQ(panel.slider("mTapeLengthSlider")->altIncrementValue(), 1.0);
}

TEST(LengthGroups_FirstShowing, InchesWithoutASpan_StepByTheFactor)
{
    PanelUnderTest panel(tape(inches().attribute("KsMinTapeLength", "50").attribute("KsMaxTapeLength", "50"), 50.0));
    panel.show();
    EXPECT_EQ(panel.slider("mLengthSlider")->altIncrementValue(), 0.0393701);
}

TEST(LengthGroups_FirstShowing, UnitInOtherLetters_IsMillimetres)
{
    for (const char *unit : {"Inch", "INCH", "inches", " inch", "mm"}) {
        PanelUnderTest panel(tape(oneDecimal().attribute("KsUnitType", unit), 100.0));
        panel.show();
        EXPECT_EQ(panel.field("mLengthTxFld")->text(), u"100.0") << unit;
    }
}

TEST(LengthGroups_FirstShowing, IntegerFlagInOtherLetters_IsNone)
{
    for (const char *flag : {"true", "TRUE", "Yes", "1", "False", ""}) {
        PanelUnderTest panel(tape(oneDecimal().attribute("KsIsIntegerMargin", flag), 100.0));
        panel.show();
        EXPECT_EQ(panel.field("mMarginTxFld")->text(), u"2.0") << flag;
    }
}

TEST(LengthGroups_FirstShowing, Titles_AreThePpdsOwnTextsWithAColon)
{
    PanelUnderTest panel(tape(oneDecimal()
                                  .option("KsMargin", "Edge", {{"2.0", "2 mm"}}, "2.0")
                                  .withoutOption("KsTapeLength")
                                  .withoutOption("KsPrintTapeLength"),
                              100.0));
    panel.show();
    EXPECT_EQ(panel.label("mMarginStr")->text(), u"Edge : "); // no translation: the key itself
    EXPECT_EQ(panel.label("mLengthStr")->text(), text(panel, "RS_TapeLength"));
    EXPECT_EQ(panel.label("mTapeLengthStr")->text(), text(panel, "RS_PrintTapeLength"));
    PanelUnderTest translated(tape(oneDecimal(), 100.0));
    translated.show();
    EXPECT_EQ(translated.label("mLengthStr")->text(), text(translated, "Tape Length : "));
}

TEST(LengthGroups_FirstShowing, WithoutAPageFormat_TheDefaultChoiceIsTheLength)
{
    auto callback = tape(oneDecimal().option("KsTapeLength", "Tape Length", {{"55.55", "55.55"}}, "55.55"), 100.0);
    callback->hasFormat = false;
    PanelUnderTest panel(callback);
    panel.show();
    EXPECT_EQ(panel.field("mLengthTxFld")->text(), u"55.6");
    EXPECT_EQ(panel.slider("mLengthSlider")->floatValue(), 55.6F);
}

TEST(LengthGroups_FirstShowing, DefaultThatIsNoNumber_IsZero)
{
    PanelUnderTest panel(tape(oneDecimal().option("KsMargin", "Margin", {{"None", "None"}}, "None"), 100.0));
    panel.show();
    EXPECT_EQ(panel.field("mMarginTxFld")->text(), u"0.0");
    EXPECT_EQ(panel.callback->lastSent(u"KsMargin"_qs), u"1.0"); // the minimum
}

TEST(LengthGroups_FirstShowing, MissingPrintTapeLength_DisablesItsGroupAndSendsNothing)
{
    PanelUnderTest panel(tape(oneDecimal().withoutOption("KsPrintTapeLength"), 100.0));
    panel.show();
    EXPECT_FALSE(panel.field("mTapeLengthTxFld")->isEnabled());
    EXPECT_FALSE(panel.slider("mTapeLengthSlider")->isEnabled());
    for (const char *label : {"mTapeLengthStr", "mTapeLengthUnitStr", "mTapeLengthMinStr", "mTapeLengthMaxStr"}) {
        EXPECT_FALSE(panel.isTextEnabled(label)) << label;
    }
    EXPECT_EQ(panel.field("mTapeLengthTxFld")->text(), u"0.0");
    EXPECT_TRUE(panel.callback->sentFor(u"KsPrintTapeLength"_qs).empty());
    EXPECT_TRUE(panel.field("mLengthTxFld")->isEnabled());
}

TEST(LengthGroups_FirstShowing, MediumOfFixedLength_DisablesEveryLength)
{
    auto callback = tape(oneDecimal(), 100.0);
    callback->usePaper(u"DC24x80"_qs, 80.0);
    PanelUnderTest panel(callback);
    panel.show();
    for (const char *field : {"mLengthTxFld", "mMarginTxFld", "mTapeLengthTxFld"}) {
        EXPECT_FALSE(panel.field(field)->isEnabled()) << field;
    }
    for (const char *slider : {"mLengthSlider", "mMarginSlider", "mTapeLengthSlider"}) {
        EXPECT_FALSE(panel.slider(slider)->isEnabled()) << slider;
    }
    for (const char *label : {"mLengthStr", "mLengthUnitStr", "mLengthMinStr", "mLengthMaxStr", "mMarginStr",
                              "mMarginUnitStr", "mMarginMinStr", "mMarginMaxStr", "mTapeLengthStr",
                              "mTapeLengthUnitStr", "mTapeLengthMinStr", "mTapeLengthMaxStr"}) {
        EXPECT_FALSE(panel.isTextEnabled(label)) << label;
    }
    EXPECT_EQ(panel.field("mLengthTxFld")->text(), u"80.0");
}

TEST(LengthGroups_FirstShowing, FreeTape_EnablesEveryLength)
{
    PanelUnderTest panel(tape(oneDecimal(), 100.0));
    panel.show();
    for (const char *field : {"mLengthTxFld", "mMarginTxFld", "mTapeLengthTxFld"}) {
        EXPECT_TRUE(panel.field(field)->isEnabled()) << field;
    }
    for (const char *label : {"mLengthStr", "mLengthUnitStr", "mMarginMaxStr", "mTapeLengthUnitStr"}) {
        EXPECT_TRUE(panel.isTextEnabled(label)) << label;
    }
}

TEST(LengthGroups_FirstShowing, PaperWithoutAHeight_IsAHundredMillimetres)
{
    PanelUnderTest panel(tape(oneDecimal(), 0.0));
    panel.show();
    EXPECT_EQ(panel.field("mLengthTxFld")->text(), u"100.0");
    EXPECT_EQ(panel.slider("mLengthSlider")->floatValue(), 100.0F);
    EXPECT_EQ(panel.callback->lastSent(u"KsTapeLength"_qs), u"100.0");
}

TEST(LengthGroups_FirstShowing, PaperOfAnAbsurdHeight_SendsNumbers)
{
    for (const double lengthMm :
         {1e30, 1e306, -50.0, std::numeric_limits<double>::infinity(), std::numeric_limits<double>::quiet_NaN()}) {
        for (const PpdText &ppd : {oneDecimal(), wholeMillimetres(), inches()}) {
            PanelUnderTest panel(tape(ppd, lengthMm));
            panel.show();
            save(panel);
            for (const QString &sent : panel.callback->sentFor(u"KsTapeLength"_qs)) {
                // 4 mm are shown as 0.16 inches, and these are 4.064 mm.
                EXPECT_TRUE(sent == u"4" || sent == u"4.0" || sent == u"4.1" || sent == u"1000" || sent == u"1000.0")
                    << lengthMm << ' ' << sent.toStdString();
            }
        }
    }
}

TEST(LengthGroups_FirstShowing, TicketBeyondItsRange_LeavesTheLengthsAlone)
{
    auto callback = tape(oneDecimal(), 100.0);
    callback->useTicket(0xFF, 0xF);
    PanelUnderTest panel(callback);
    panel.show();
    EXPECT_EQ(panel.field("mLengthTxFld")->text(), u"100.0");
    EXPECT_EQ(panel.label("mTapeLengthMaxStr")->text(), u"8.0"); // no cloth
    EXPECT_TRUE(panel.field("mLengthTxFld")->isEnabled());
}

TEST(LengthGroups_FirstShowing, TicketOfCloth_ShowsTheLimitOfCloth)
{
    auto callback = tape(oneDecimal(), 100.0);
    callback->useTicket(0x30, 0);
    PanelUnderTest panel(callback);
    panel.show();
    EXPECT_EQ(panel.label("mTapeLengthMaxStr")->text(), u"12.0");
    EXPECT_EQ(panel.slider("mTapeLengthSlider")->maxValue(), 12.0);
}

TEST(LengthGroups, PickOfCloth_ShowsTheLimitOfCloth_AndAnotherMaterialTheOther)
{
    PanelUnderTest panel(tape(oneDecimal(), 100.0));
    panel.show();
    panel.pickItem("mTapeTypePopBtn", 2);
    EXPECT_EQ(panel.label("mTapeLengthMaxStr")->text(), u"12.0");
    EXPECT_EQ(panel.slider("mTapeLengthSlider")->maxValue(), 12.0);
    panel.pickItem("mTapeTypePopBtn", 1);
    EXPECT_EQ(panel.label("mTapeLengthMaxStr")->text(), u"8.0");
}

TEST(LengthGroups_FirstShowing, InchSliderOfAPaperThatIsNoWholeMillimetre_StartsFromThePaperItself)
{
    // 99.15 mm are 3.9035 inches, 99.2 would be 3.9055; 99.19 mm are 3.9051 inches, 99.1 would be 3.9016.
    for (const auto &[paper, inches_] : std::vector<std::pair<double, float>>{{99.15, 3.90F}, {99.19, 3.91F}}) {
        PanelUnderTest panel(tape(inches(), paper));
        panel.show();
        EXPECT_EQ(panel.slider("mLengthSlider")->floatValue(), inches_) << paper;
    }
}

} // namespace
