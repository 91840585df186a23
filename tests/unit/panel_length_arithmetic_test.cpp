// SPDX-License-Identifier: Apache-2.0
// The arithmetic of lengths at the edges of every rounding and limit: just below, at and just above. The differences
// from one operation to the next are deliberate; here they stand side by side.
#include "TextPrinting.h"
#include "panel/LengthArithmetic.h"
#include "pdekit/Numbers.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

using namespace lengths;

namespace
{

constexpr Unit kMm = Unit::Millimetres;
constexpr Unit kInches = Unit::Inches;
constexpr float kInf = std::numeric_limits<float>::infinity();
constexpr float kNan = std::numeric_limits<float>::quiet_NaN();
constexpr float kHuge = std::numeric_limits<float>::max();

float above(float value)
{
    return std::nextafter(value, kInf);
}

float below(float value)
{
    return std::nextafter(value, -kInf);
}

/// k tenths, or k hundredths, as a person types them.
QString tenths(int k)
{
    return QStringLiteral("%1.%2").arg(k / 10).arg(k % 10);
}

QString hundredths(int k)
{
    return QStringLiteral("%1.%2").arg(k / 100).arg(k % 100, 2, 10, QLatin1Char('0'));
}

/// A text as a check writes it back.
Rewritten checked(const QString &text, const Rules &rules)
{
    return rewritten(clampedForCheck(text, rules), rules);
}

Rewritten checkedMargin(const QString &text, const Rules &rules)
{
    return rewrittenMargin(clampedForCheck(text, rules), rules);
}

// ---- Exported conversions and roundings ----------------------------------------------------------------------------

TEST(RoundDouble, Halves_GoAwayFromZero)
{
    EXPECT_EQ(RoundDouble(2.5), 3);
    EXPECT_EQ(RoundDouble(-2.5), -3);
    EXPECT_EQ(RoundDouble(0.5), 1);
    EXPECT_EQ(RoundDouble(-0.5), -1);
}

TEST(RoundDouble, BelowAHalf_GoesTowardZero)
{
    EXPECT_EQ(RoundDouble(2.49), 2);
    EXPECT_EQ(RoundDouble(-2.49), -2);
    EXPECT_EQ(RoundDouble(0.4999), 0);
    EXPECT_EQ(RoundDouble(-0.4999), 0);
    // Adding a half and truncating would give 1.
    EXPECT_EQ(RoundDouble(std::nextafter(0.5, 0.0)), 0);
}

TEST(RoundDouble, WholeNumbersAndLargeFractions_StayExact)
{
    EXPECT_EQ(RoundDouble(0.0), 0);
    EXPECT_EQ(RoundDouble(-7.0), -7);
    EXPECT_EQ(RoundDouble(2251799813685248.5), 2251799813685249);
    EXPECT_EQ(RoundDouble(4503599627370497.0), 4503599627370497);
}

TEST(RoundDouble, BeyondSixtyFourBits_IsHeldAtTheirEnds)
{
    EXPECT_EQ(RoundDouble(1e300), std::numeric_limits<std::int64_t>::max());
    EXPECT_EQ(RoundDouble(-1e300), std::numeric_limits<std::int64_t>::min());
    EXPECT_EQ(RoundDouble(std::numeric_limits<double>::infinity()), std::numeric_limits<std::int64_t>::max());
    EXPECT_EQ(RoundDouble(std::numeric_limits<double>::quiet_NaN()), 0);
}

TEST(Conversions, UseTheOneFactorInBothDirections)
{
    EXPECT_DOUBLE_EQ(MiriToInch(100.0), 3.93701);
    EXPECT_DOUBLE_EQ(InchToMiri(3.93701), 100.0);
    // 1 / 0.0393701, not 25.4.
    EXPECT_NEAR(InchToMiri(1.0), 25.3999863, 1e-7);
    EXPECT_EQ(MiriToInch(0.0), 0.0);
    EXPECT_DOUBLE_EQ(MiriToInch(-10.0), -0.393701);
}

TEST(KsCeilInteger, RoundsUpToTheNextWholeNumber)
{
    EXPECT_EQ(ksCeilInteger(2.0F), 2);
    EXPECT_EQ(ksCeilInteger(2.01F), 3);
    EXPECT_EQ(ksCeilInteger(below(2.0F)), 2);
    EXPECT_EQ(ksCeilInteger(above(2.0F)), 3);
    EXPECT_EQ(ksCeilInteger(0.0F), 0);
    EXPECT_EQ(ksCeilInteger(-2.5F), -2);
    EXPECT_EQ(ksCeilInteger(-0.5F), 0);
}

TEST(KsCeilInteger, WhatFitsNoInteger_IsHeldAtItsEnds)
{
    EXPECT_EQ(ksCeilInteger(kHuge), std::numeric_limits<std::int64_t>::max());
    EXPECT_EQ(ksCeilInteger(kInf), std::numeric_limits<std::int64_t>::max());
    EXPECT_EQ(ksCeilInteger(-kInf), std::numeric_limits<std::int64_t>::min());
    EXPECT_EQ(ksCeilInteger(kNan), 0);
}

TEST(KsCeildouble, RoundsUpToATenthAfterWidening)
{
    EXPECT_EQ(ksCeildouble(1.21F), 1.3);
    EXPECT_EQ(ksCeildouble(1.2F), 1.3); // 1.2000000476837158
    EXPECT_EQ(ksCeildouble(2.3F), 2.3); // 2.2999999523162842
    EXPECT_EQ(ksCeildouble(1.5F), 1.5); // exact
    EXPECT_EQ(ksCeildouble(above(1.5F)), 1.6);
    EXPECT_EQ(ksCeildouble(below(1.5F)), 1.5);
    EXPECT_EQ(ksCeildouble(-1.25F), -1.2);
    EXPECT_EQ(ksCeildouble(kInf), std::numeric_limits<double>::infinity());
}

// ---- What is shown when a group is filled --------------------------------------------------------------------------

TEST(ShownMillimetres, WholeNumbers_AreRoundedUp)
{
    EXPECT_EQ(shownMillimetres(100.0F, true), u"100");
    EXPECT_EQ(shownMillimetres(below(100.0F), true), u"100");
    EXPECT_EQ(shownMillimetres(above(100.0F), true), u"101");
    EXPECT_EQ(shownMillimetres(99.05F, true), u"100");
    EXPECT_EQ(shownMillimetres(-0.5F, true), u"0");
}

TEST(ShownMillimetres, OneDecimal_IsRoundedUpInSinglePrecision)
{
    EXPECT_EQ(shownMillimetres(100.0F, false), u"100.0");
    EXPECT_EQ(shownMillimetres(99.05F, false), u"99.1");
    EXPECT_EQ(shownMillimetres(below(100.0F), false), u"100.0");
    EXPECT_EQ(shownMillimetres(above(100.0F), false), u"100.1");
    // 1.2F times ten is exactly 12 in single precision: the limit's label differs, see below.
    EXPECT_EQ(shownMillimetres(1.2F, false), u"1.2");
}

TEST(ShownMillimetres, WhatIsNoOrdinaryNumber_StaysWithinThirtyTwoBits)
{
    EXPECT_EQ(shownMillimetres(1e20F, true), u"2147483647");
    EXPECT_EQ(shownMillimetres(-1e20F, true), u"-2147483648");
    EXPECT_EQ(shownMillimetres(kInf, true), u"2147483647");
    EXPECT_EQ(shownMillimetres(kNan, true), u"0");
    EXPECT_EQ(shownMillimetres(kInf, false), u"inf");
}

TEST(ShownInches, AreTwoDecimalsToTheNearest)
{
    EXPECT_EQ(shownInches(100.0), u"3.94"); // 3.93701
    EXPECT_EQ(shownInches(1000.0), u"39.37");
    EXPECT_EQ(shownInches(4.0), u"0.16");    // 0.1574804
    EXPECT_EQ(shownInches(0.126), u"0.00");  // 0.0049606
    EXPECT_EQ(shownInches(0.1271), u"0.01"); // 0.0050039
    EXPECT_EQ(shownInches(0.0), u"0.00");
    EXPECT_EQ(shownInches(-100.0), u"-3.94");
}

TEST(ShownLimit, RoundsUpAfterWidening_UnlikeTheField)
{
    EXPECT_EQ(shownLimit(1.2F, false), u"1.3");
    EXPECT_EQ(shownLimit(1.5F, false), u"1.5");
    EXPECT_EQ(shownLimit(1000.0F, false), u"1000.0");
    EXPECT_EQ(shownLimit(1000.0F, true), u"1000");
    EXPECT_EQ(shownLimit(2.01F, true), u"3");
    EXPECT_EQ(shownLimit(kHuge, true), u"2147483647");
}

TEST(InchIncrement, IsOneMillimetreAsTheRoundedLabelsGiveIt)
{
    // 39.21 inches for 996 millimetres.
    EXPECT_NEAR(inchIncrement(4.0F, 1000.0F, u"0.16"_qs, u"39.37"_qs), 0.03936746988, 1e-10);
    // 0.1 mm more, and the same label: no step. Deliberate.
    EXPECT_EQ(inchIncrement(4.0F, 4.1F, u"0.16"_qs, u"0.16"_qs), 0.0);
}

TEST(InchIncrement, WithoutASpan_IsTheFactorItself)
{
    EXPECT_EQ(inchIncrement(4.0F, 4.0F, u"0.16"_qs, u"0.16"_qs), 0.0393701);
    EXPECT_EQ(inchIncrement(10.0F, 4.0F, u"0.39"_qs, u"0.16"_qs), 0.0393701);
}

// ---- What a slider writes ------------------------------------------------------------------------------------------

TEST(SlidText, MarginAndPrintTapeLength_AreRoundedUp)
{
    EXPECT_EQ(slidText(12.1F, kMm, true), u"13");
    EXPECT_EQ(slidText(12.0F, kMm, true), u"12");
    EXPECT_EQ(slidText(above(12.0F), kMm, true), u"13");
    EXPECT_EQ(slidText(12.34F, kMm, false), u"12.4");
    EXPECT_EQ(slidText(12.3F, kMm, false), u"12.3");
}

TEST(SlidTapeLengthText, IsTruncatedOrToTheNearest)
{
    EXPECT_EQ(slidTapeLengthText(12.7F, kMm, true), u"12");
    EXPECT_EQ(slidTapeLengthText(below(13.0F), kMm, true), u"12");
    EXPECT_EQ(slidTapeLengthText(13.0F, kMm, true), u"13");
    EXPECT_EQ(slidTapeLengthText(-0.5F, kMm, true), u"0");
    EXPECT_EQ(slidTapeLengthText(12.34F, kMm, false), u"12.3");
    EXPECT_EQ(slidTapeLengthText(12.36F, kMm, false), u"12.4");
    EXPECT_EQ(slidTapeLengthText(12.25F, kMm, false), u"12.2"); // a half goes to the even digit
    EXPECT_EQ(slidTapeLengthText(above(12.25F), kMm, false), u"12.3");
}

TEST(SlidTexts, InInches_AreTwoDecimalsToTheNearest_WhateverTheIntegerRule)
{
    for (const bool isInteger : {false, true}) {
        EXPECT_EQ(slidText(1.234F, kInches, isInteger), u"1.23");
        EXPECT_EQ(slidText(1.236F, kInches, isInteger), u"1.24");
        EXPECT_EQ(slidTapeLengthText(1.234F, kInches, isInteger), u"1.23");
        EXPECT_EQ(slidTapeLengthText(1.236F, kInches, isInteger), u"1.24");
    }
}

// ---- Limits and clamps
// -----------------------------------------------------------------------------------------------

TEST(LimitForCheck, Millimetres_AreTakenAsTheyCome)
{
    EXPECT_EQ(limitForCheck(4.05F, kMm).value, 4.05F);
    EXPECT_EQ(limitForCheck(4.05F, kMm).wide, static_cast<double>(4.05F));
}

TEST(LimitForCheck, Inches_AreRoundedToHundredths)
{
    EXPECT_EQ(limitForCheck(4.0F, kInches).value, 0.16F);
    EXPECT_EQ(limitForCheck(4.0F, kInches).wide, 0.16);
    EXPECT_EQ(limitForCheck(1000.0F, kInches).value, 39.37F);
    EXPECT_EQ(limitForCheck(0.0F, kInches).value, 0.0F);
    EXPECT_TRUE(std::isfinite(limitForCheck(kHuge, kInches).value));
}

TEST(ClampedForCheck, Millimetres_AtAndAroundTheLimits)
{
    const Rules rules{kMm, false, 4.0F, 1000.0F};
    EXPECT_EQ(clampedForCheck(u"3.9"_qs, rules).range, Range::Below);
    EXPECT_EQ(clampedForCheck(u"3.9"_qs, rules).value, 4.0F);
    EXPECT_EQ(clampedForCheck(u"3.9999997"_qs, rules).range, Range::Below);  // 3.99999976 in single precision
    EXPECT_EQ(clampedForCheck(u"3.9999999"_qs, rules).range, Range::Within); // 4 in single precision
    EXPECT_EQ(clampedForCheck(u"4"_qs, rules).range, Range::Within);
    EXPECT_EQ(clampedForCheck(u"4.1"_qs, rules).value, 4.1F);
    EXPECT_EQ(clampedForCheck(u"4.1"_qs, rules).wide, 4.1);
    EXPECT_EQ(clampedForCheck(u"1000"_qs, rules).range, Range::Within);
    EXPECT_EQ(clampedForCheck(u"1000.1"_qs, rules).range, Range::Above);
    EXPECT_EQ(clampedForCheck(u"1000.1"_qs, rules).value, 1000.0F);
}

TEST(ClampedForCheck, Inches_AreHeldAgainstTheRoundedLimits)
{
    const Rules rules{kInches, false, 4.0F, 1000.0F};
    EXPECT_EQ(clampedForCheck(u"0.15"_qs, rules).range, Range::Below);
    EXPECT_EQ(clampedForCheck(u"0.159"_qs, rules).range, Range::Below); // above 0.1574804, below 0.16
    EXPECT_EQ(clampedForCheck(u"0.159"_qs, rules).wide, 0.16);
    EXPECT_EQ(clampedForCheck(u"0.16"_qs, rules).range, Range::Within);
    EXPECT_EQ(clampedForCheck(u"39.37"_qs, rules).range, Range::Within);
    EXPECT_EQ(clampedForCheck(u"39.38"_qs, rules).range, Range::Above);
    EXPECT_EQ(clampedForCheck(u"39.38"_qs, rules).wide, 39.37);
}

TEST(ClampedForCheck, TextThatIsNoNumber_CountsAsZero)
{
    const Rules rules{kMm, false, 4.0F, 1000.0F};
    for (const char *text : {"", ".", "abc", "inf", "nan", "-inf", " ", "+"}) {
        const Clamped clamped = clampedForCheck(QString::fromLatin1(text), rules);
        EXPECT_EQ(clamped.range, Range::Below) << text;
        EXPECT_EQ(clamped.value, 4.0F) << text;
    }
    EXPECT_EQ(clampedForCheck(u"12abc"_qs, rules).value, 12.0F);
    EXPECT_EQ(clampedForCheck(QString(400, u'9'), rules).range, Range::Above);
    EXPECT_EQ(clampedForCheck(u'-' + QString(400, u'9'), rules).range, Range::Below);
}

TEST(ClampedForCheck, LimitsTheWrongWayRound_AreNotPutRight)
{
    const Rules rules{kMm, false, 10.0F, 5.0F};
    EXPECT_EQ(clampedForCheck(u"7"_qs, rules).value, 10.0F); // the minimum is asked first
    EXPECT_EQ(clampedForCheck(u"10"_qs, rules).value, 5.0F); // not below the minimum, but above the maximum
    EXPECT_EQ(clampedForCheck(u"12"_qs, rules).range, Range::Above);
    EXPECT_EQ(clampedForCheck(u"3"_qs, rules).range, Range::Below);
}

TEST(ClampedForCheck, AMissingMaximum_IsZero)
{
    const Rules rules{kMm, false, 4.0F, 0.0F};
    EXPECT_EQ(clampedForCheck(u"5"_qs, rules).value, 0.0F);
    EXPECT_EQ(clampedForCheck(u"3"_qs, rules).value, 4.0F);
}

// ---- Rewrites
// --------------------------------------------------------------------------------------------------------

TEST(Rewrites, WholeMillimetres_AreRoundedUp)
{
    const Rules rules{kMm, true, 4.0F, 1000.0F};
    EXPECT_EQ(checked(u"4"_qs, rules).text, u"4");
    EXPECT_EQ(checked(u"4.1"_qs, rules).text, u"5");
    EXPECT_EQ(checked(u"4.1"_qs, rules).value, 5.0F);
    EXPECT_EQ(checked(u"4.999"_qs, rules).text, u"5");
    EXPECT_EQ(checkedMargin(u"4.1"_qs, rules).text, u"5");
    EXPECT_EQ(checked(u"1000"_qs, rules).text, u"1000");
}

TEST(Rewrites, WholeMillimetres_OfALimitThatIsNone_MayPassIt)
{
    EXPECT_EQ(checked(u"20"_qs, {kMm, true, 4.0F, 10.5F}).text, u"11");
    EXPECT_EQ(checked(u"1"_qs, {kMm, true, 4.5F, 10.5F}).text, u"5");
}

TEST(Rewrites, OneDecimal_IsRoundedUp)
{
    const Rules rules{kMm, false, 1.0F, 1000.0F};
    EXPECT_EQ(checked(u"4.05"_qs, rules).text, u"4.1");
    EXPECT_EQ(checked(u"4.01"_qs, rules).text, u"4.1");
    EXPECT_EQ(checked(u"10.1"_qs, rules).text, u"10.1");
    EXPECT_EQ(checked(u"10.1"_qs, rules).value, 10.1F);
    EXPECT_EQ(checkedMargin(u"10.11"_qs, rules).text, u"10.2");
}

TEST(Rewrites, Inches_AreRoundedUpToAHundredth)
{
    const Rules rules{kInches, false, 4.0F, 1000.0F};
    EXPECT_EQ(checked(u"1.231"_qs, rules).text, u"1.24");
    EXPECT_EQ(checked(u"1.231"_qs, rules).value, 1.24F);
    EXPECT_EQ(checked(u"1.23"_qs, rules).text, u"1.23");
    EXPECT_EQ(checked(u"0.15"_qs, rules).text, u"0.16");
    EXPECT_EQ(checked(u"99"_qs, rules).text, u"39.37");
    EXPECT_EQ(checked(u"0.15"_qs, {kInches, true, 4.0F, 1000.0F}).text, u"0.16"); // no integer rule in inches
}

TEST(Rewrites, EveryTypedHundredthOfAnInch_StaysAsItIs)
{
    const Rules rules{kInches, false, 0.0F, 10000.0F};
    for (int k = 0; k <= 10000; ++k) {
        ASSERT_EQ(checked(hundredths(k), rules).text, hundredths(k));
        ASSERT_EQ(checkedMargin(hundredths(k), rules).text, hundredths(k));
    }
}

TEST(Rewrites, EveryTypedTenthOfAMillimetre_StaysAsItIs)
{
    const Rules rules{kMm, false, 0.0F, 10000.0F};
    for (int k = 0; k <= 20000; ++k) {
        ASSERT_EQ(checked(tenths(k), rules).text, tenths(k));
        ASSERT_EQ(checked(tenths(k), rules).value, pdekit::floatValue(tenths(k)));
        ASSERT_EQ(checkedMargin(tenths(k), rules).text, tenths(k));
    }
}

TEST(Rewrites, OfALength_CutNoiseOffBeyondTheSixthDecimalOfHundredths)
{
    const Rules rules{kInches, false, 0.0F, 1000.0F};
    EXPECT_EQ(checked(u"1.2300000001"_qs, rules).text, u"1.23");
    EXPECT_EQ(checked(u"1.2300000099"_qs, rules).text, u"1.23"); // 123.00000099 hundredths
    EXPECT_EQ(checked(u"1.2300000101"_qs, rules).text, u"1.24"); // 123.00000101
}

TEST(Rewrites, OfAMargin_CutNoiseOffBeyondTheNinthDecimalOfHundredths)
{
    const Rules rules{kInches, false, 0.0F, 1000.0F};
    EXPECT_EQ(checkedMargin(u"1.2300000001"_qs, rules).text, u"1.24"); // a length of this stays 1.23
    EXPECT_EQ(checkedMargin(u"1.2300000000099"_qs, rules).text, u"1.23");
    EXPECT_EQ(checkedMargin(u"1.2300000000101"_qs, rules).text, u"1.24");
}

TEST(Rewrites, HugeWholeNumbers_AreHeldAtThirtyTwoBits)
{
    const Rules rules{kMm, true, 0.0F, 1e20F};
    EXPECT_EQ(checked(QString(40, u'9'), rules).text, u"2147483647");
    EXPECT_EQ(checked(QString(40, u'9'), rules).value, 1e20F);
    EXPECT_EQ(checked(u"0"_qs, {kMm, true, -1e20F, -1e19F}).text, u"-2147483648");
}

// ---- The margin rule
// -------------------------------------------------------------------------------------------------

TEST(MarginFits, HalfTheLength_FitsForEveryTenth_AndAStepMoreDoesNot)
{
    const Rules rules{kMm, false, 0.0F, 10000.0F};
    for (int k = 1; k <= 10000; ++k) {
        const float length = pdekit::floatValue(checked(tenths(2 * k), rules).text);
        ASSERT_TRUE(marginFits(checkedMargin(tenths(k), rules).value, length)) << k;
        ASSERT_FALSE(marginFits(checkedMargin(tenths(k + 1), rules).value, length)) << k;
        ASSERT_FALSE(marginFits(checkedMargin(tenths(k), rules).value, pdekit::floatValue(tenths(2 * k - 1)))) << k;
    }
}

TEST(MarginFits, HalfTheLength_FitsForEveryHundredthOfAnInch_AndAStepMoreDoesNot)
{
    const Rules rules{kInches, false, 0.0F, 10000.0F};
    for (int k = 1; k <= 10000; ++k) {
        const float length = pdekit::floatValue(checked(hundredths(2 * k), rules).text);
        ASSERT_TRUE(marginFits(checkedMargin(hundredths(k), rules).value, length)) << k;
        ASSERT_FALSE(marginFits(checkedMargin(hundredths(k + 1), rules).value, length)) << k;
    }
}

TEST(MarginFits, ZeroFitsZero_AndTheLeastMoreDoesNot)
{
    EXPECT_TRUE(marginFits(0.0F, 0.0F));
    EXPECT_FALSE(marginFits(above(0.0F), 0.0F));
    EXPECT_FALSE(marginFits(above(10.0F), 20.0F));
    EXPECT_TRUE(marginFits(below(10.0F), 20.0F));
}

TEST(LengthForMargin, IsTwiceTheMarginAndADot)
{
    // 0.1 + 10.1 + 10.1
    EXPECT_EQ(lengthForMargin(10.1F, 0.1, kMm, false).text, u"20.3");
    EXPECT_EQ(lengthForMargin(10.1F, 0.1, kMm, false).value, 20.3F);
    EXPECT_EQ(lengthForMargin(10.0F, 0.1, kMm, false).text, u"20.1");
    // 0.1411 + 20.2, rounded up
    EXPECT_EQ(lengthForMargin(10.1F, 25.4 / 180.0, kMm, false).text, u"20.4");
}

TEST(LengthForMargin, WithAStepOfATenth_IsOneStepMoreForEveryTenth)
{
    for (int k = 1; k <= 10000; ++k) {
        ASSERT_EQ(lengthForMargin(pdekit::floatValue(tenths(k)), 0.1, kMm, false).text, tenths(2 * k + 1));
    }
}

TEST(LengthForMargin, TheMarginsIntegerRule_RoundsTheLengthUp)
{
    EXPECT_EQ(lengthForMargin(11.0F, 1.0, kMm, true).text, u"23");
    EXPECT_EQ(lengthForMargin(10.5F, 0.1, kMm, true).text, u"22"); // 21.1
    EXPECT_EQ(lengthForMargin(10.5F, 0.1, kMm, true).value, 22.0F);
}

TEST(LengthForMargin, Inches_AreNotRoundedUp)
{
    // 0.254 mm are 0.0100000054 inches.
    EXPECT_EQ(lengthForMargin(2.0F, 0.254, kInches, false).text, u"4.01");
    // 0.014 inches more than 2: the field shows the nearest hundredth, the slider keeps the rest.
    const Rewritten length = lengthForMargin(1.0F, InchToMiri(0.014), kInches, false);
    EXPECT_EQ(length.text, u"2.01");
    EXPECT_FLOAT_EQ(length.value, 2.014F);
    EXPECT_EQ(lengthForMargin(1.0F, InchToMiri(0.016), kInches, true).text, u"2.02");
}

TEST(LengthForMargin, AnInfiniteDot_GivesAnInfiniteLength)
{
    const double infinite = std::numeric_limits<double>::infinity();
    EXPECT_EQ(lengthForMargin(10.1F, infinite, kMm, false).text, u"inf");
    EXPECT_EQ(lengthForMargin(10.1F, infinite, kMm, true).text, u"2147483647");
    EXPECT_EQ(lengthForMargin(1.0F, infinite, kInches, false).text, u"inf");
    EXPECT_EQ(lengthForMargin(1.0F, infinite, kInches, false).value, kInf);
}

TEST(OneDotMm, IsNotLessThanTheStepOfAnEntry)
{
    EXPECT_EQ(oneDotMm(u"300x300dpi"_qs, kMm, false), 0.1); // 0.0847
    EXPECT_EQ(oneDotMm(u"300x300dpi"_qs, kMm, true), 1.0);
    EXPECT_EQ(oneDotMm(u"180x180dpi"_qs, kMm, false), 25.4 / 180.0);
    EXPECT_EQ(oneDotMm(u"180x180dpi"_qs, kMm, true), 1.0);
    EXPECT_EQ(oneDotMm(u"180x253dpi"_qs, kMm, false), 25.4 / 253.0); // 0.1004
    EXPECT_EQ(oneDotMm(u"180x255dpi"_qs, kMm, false), 0.1);          // 0.0996
    EXPECT_EQ(oneDotMm(u"25x25dpi"_qs, kMm, true), 25.4 / 25.0);     // 1.016
    EXPECT_EQ(oneDotMm(u"26x26dpi"_qs, kMm, true), 1.0);             // 0.977
}

TEST(OneDotMm, TheSecondNumberCounts)
{
    EXPECT_EQ(oneDotMm(u"360x180dpi"_qs, kMm, false), 25.4 / 180.0);
    EXPECT_EQ(oneDotMm(u"180x360dpi"_qs, kMm, false), 0.1);
}

TEST(OneDotMm, InInches_IsAtLeastAHundredthOfAnInch)
{
    EXPECT_EQ(oneDotMm(u"100x100dpi"_qs, kInches, false), 25.4 / 100.0); // 0.0100000054 inches
    EXPECT_DOUBLE_EQ(oneDotMm(u"101x101dpi"_qs, kInches, false), 0.01 / 0.0393701);
    EXPECT_DOUBLE_EQ(oneDotMm(u"300x300dpi"_qs, kInches, true), 0.01 / 0.0393701); // the integer rule is for mm
}

TEST(OneDotMm, AKeywordWithoutADotCount_GivesInfinity)
{
    const double infinite = std::numeric_limits<double>::infinity();
    for (const char *keyword : {"Normal", "300dpi", "300x300", "x0dpi", "300x0dpi", "xx72dpi", "300xdpi", ""}) {
        EXPECT_EQ(oneDotMm(QString::fromLatin1(keyword), kMm, false), infinite) << keyword;
        EXPECT_EQ(oneDotMm(QString::fromLatin1(keyword), kMm, true), infinite) << keyword;
        EXPECT_EQ(oneDotMm(QString::fromLatin1(keyword), kInches, false), infinite) << keyword;
    }
    EXPECT_EQ(oneDotMm(QString(), kMm, false), infinite);
}

TEST(OneDotMm, OddKeywords_AreReadByTheRule)
{
    EXPECT_EQ(oneDotMm(u"180X180DPI"_qs, kMm, false), 25.4 / 180.0);
    EXPECT_EQ(oneDotMm(u"box72dpi"_qs, kMm, false), 25.4 / 72.0);
    EXPECT_EQ(oneDotMm(u"dpix100"_qs, kMm, false), 25.4 / 100.0);
    // Twenty digits are held at the largest signed number: a dot far below the step.
    EXPECT_EQ(oneDotMm(u"300x99999999999999999999dpi"_qs, kMm, false), 0.1);
    // Minus five, taken as an unsigned number, is 4294967291.
    EXPECT_EQ(oneDotMm(u"x-5dpi"_qs, kMm, false), 0.1);
    EXPECT_DOUBLE_EQ(oneDotMm(u"x-5dpi"_qs, kInches, false), 0.01 / 0.0393701);
}

TEST(EntryStep, IsTheSmallestStepOfTheUnit)
{
    EXPECT_EQ(entryStepMm(kMm, false), 0.1);
    EXPECT_EQ(entryStepMm(kMm, true), 1.0);
    EXPECT_NEAR(entryStepMm(kInches, false), 0.253999863, 1e-9);
    EXPECT_NEAR(entryStepMm(kInches, true), 0.253999863, 1e-9);
}

// ---- What is saved
// ---------------------------------------------------------------------------------------------------

TEST(PaperLengthText, IsTruncatedOrToTheNearest_NeverRoundedUp)
{
    EXPECT_EQ(paperLengthText(99.96, kMm, true), u"99");
    EXPECT_EQ(paperLengthText(99.96, kMm, false), u"100.0");
    EXPECT_EQ(paperLengthText(99.94, kMm, false), u"99.9");
    EXPECT_EQ(paperLengthText(99.04, kMm, false), u"99.0"); // a field that is filled shows 99.1
    EXPECT_EQ(paperLengthText(100.0, kInches, true), u"3.94");
    EXPECT_EQ(paperLengthText(1e300, kMm, true), u"2147483647");
}

TEST(SavedTapeLength, WholeNumbers_AreTruncated)
{
    const Rules rules{kMm, true, 4.0F, 1000.0F};
    EXPECT_EQ(savedTapeLength(u"99.9"_qs, rules, true), u"99");
    EXPECT_EQ(savedTapeLength(u"99"_qs, rules, true), u"99");
    EXPECT_EQ(savedTapeLength(u"100"_qs, rules, true), u"100");
    EXPECT_EQ(savedTapeLength(u"3.9"_qs, rules, true), u"4");
    EXPECT_EQ(savedTapeLength(u"3.9"_qs, rules, false), u"3");
}

TEST(SavedTapeLength, OneDecimal_IsTheNearest)
{
    const Rules rules{kMm, false, 4.0F, 1000.0F};
    EXPECT_EQ(savedTapeLength(u"99.96"_qs, rules, true), u"100.0");
    EXPECT_EQ(savedTapeLength(u"99.94"_qs, rules, true), u"99.9");
    EXPECT_EQ(savedTapeLength(u"3.9"_qs, rules, true), u"4.0");
    EXPECT_EQ(savedTapeLength(u"4"_qs, rules, true), u"4.0");
    EXPECT_EQ(savedTapeLength(u"1000"_qs, rules, true), u"1000.0");
    EXPECT_EQ(savedTapeLength(u"1000.1"_qs, rules, true), u"1000.0");
    EXPECT_EQ(savedTapeLength(u"1000.1"_qs, rules, false), u"1000.1");
}

TEST(SavedTapeLength, Inches_AreSavedAsMillimetres)
{
    // 3.94 / 0.0393701 = 100.0759
    EXPECT_EQ(savedTapeLength(u"3.94"_qs, {kInches, false, 4.0F, 1000.0F}, true), u"100.1");
    EXPECT_EQ(savedTapeLength(u"3.94"_qs, {kInches, true, 4.0F, 1000.0F}, true), u"100");
    // 39.37 / 0.0393701 = 999.9975, within the limit; 39.38 is not.
    EXPECT_EQ(savedTapeLength(u"39.38"_qs, {kInches, false, 4.0F, 1000.0F}, true), u"1000.0");
}

TEST(SavedLengths, WhatIsNoNumber_CountsAsZero)
{
    const Rules rules{kMm, false, 4.0F, 1000.0F};
    for (const char *text : {"", ".", "inf", "nan", "abc"}) {
        EXPECT_EQ(savedTapeLength(QString::fromLatin1(text), rules, true), u"4.0") << text;
        EXPECT_EQ(savedTapeLength(QString::fromLatin1(text), rules, false), u"0.0") << text;
        EXPECT_EQ(savedMargin(QString::fromLatin1(text), rules, false), u"4.0") << text; // the minimum in any case
        EXPECT_EQ(savedPrintTapeLength(QString::fromLatin1(text), rules, false), u"0.0") << text;
    }
}

TEST(SavedLengths, NumbersBeyondEveryRange_AreSavedAsNumbers)
{
    const QString beyond(400, u'9');
    for (const Unit unit : {kMm, kInches}) {
        for (const bool clamp : {false, true}) {
            const Rules rules{unit, false, 4.0F, kHuge};
            for (const QString &sent : {savedTapeLength(beyond, rules, clamp), savedMargin(beyond, rules, clamp),
                                        savedPrintTapeLength(beyond, rules, clamp)}) {
                EXPECT_TRUE(sent.endsWith(u".0")) << sent.toStdString();
                EXPECT_GE(sent.size(), 39 + 2) << sent.toStdString(); // the largest float has 39 digits
                for (const QChar c : sent.first(sent.size() - 2)) {
                    EXPECT_TRUE(c.isDigit()) << sent.toStdString();
                }
            }
            EXPECT_EQ(savedTapeLength(beyond, {unit, true, 4.0F, kHuge}, clamp), u"2147483647");
            EXPECT_EQ(savedMargin(beyond, {unit, true, 4.0F, kHuge}, clamp), u"2147483647");
        }
    }
}

TEST(SavedMargin, LessThanATenthAboveTheMinimum_IsTheMinimum)
{
    const Rules rules{kMm, false, 2.0F, 100.0F};
    EXPECT_EQ(savedMargin(u"2.05"_qs, rules, true), u"2.0");
    EXPECT_EQ(savedMargin(u"2.0999"_qs, rules, true), u"2.0");
    EXPECT_EQ(savedMargin(u"2.1"_qs, rules, true), u"2.1");
    EXPECT_EQ(savedMargin(u"1.5"_qs, rules, true), u"2.0");
    EXPECT_EQ(savedMargin(u"2.05"_qs, {kMm, true, 2.0F, 100.0F}, true), u"2");
    // Whether or not it is held within the limits.
    EXPECT_EQ(savedMargin(u"2.05"_qs, rules, false), u"2.0");
    EXPECT_EQ(savedMargin(u"0"_qs, rules, false), u"2.0");
}

TEST(SavedMargin, IsRoundedUp)
{
    EXPECT_EQ(savedMargin(u"3.2"_qs, {kMm, true, 1.0F, 100.0F}, true), u"4");
    EXPECT_EQ(savedMargin(u"3"_qs, {kMm, true, 1.0F, 100.0F}, true), u"3");
    EXPECT_EQ(savedMargin(u"3.21"_qs, {kMm, false, 1.0F, 100.0F}, true), u"3.3");
    EXPECT_EQ(savedMargin(u"3.2"_qs, {kMm, false, 1.0F, 100.0F}, true), u"3.2");
    EXPECT_EQ(savedMargin(u"150"_qs, {kMm, false, 1.0F, 100.0F}, true), u"100.0");
    EXPECT_EQ(savedMargin(u"150"_qs, {kMm, false, 1.0F, 100.0F}, false), u"150.0");
    // 0.1 / 0.0393701 = 2.53999863
    EXPECT_EQ(savedMargin(u"0.1"_qs, {kInches, false, 1.0F, 100.0F}, true), u"2.6");
}

TEST(SavedMargin, ALimitThatIsNoExactFloat_IsItselfRoundedUp)
{
    // 10.1F is 10.1000003815: widened, then rounded up.
    EXPECT_EQ(savedMargin(u"11"_qs, {kMm, false, 1.0F, 10.1F}, true), u"10.2");
    // 2.3F is 2.2999999523.
    EXPECT_EQ(savedMargin(u"11"_qs, {kMm, false, 1.0F, 2.3F}, true), u"2.3");
    EXPECT_EQ(savedMargin(u"1.0"_qs, {kMm, false, 1.1F, 100.0F}, true), u"1.2");
}

TEST(SavedMargin, FromTheDefault_IsRoundedAsThePanelWouldShowIt)
{
    EXPECT_EQ(savedDefaultMargin(2.31, {kMm, false, 1.0F, 100.0F}, true), u"2.4");
    EXPECT_EQ(savedDefaultMargin(2.31, {kMm, true, 1.0F, 100.0F}, true), u"3");
    // 2 mm are shown as 0.08 inches; these are 2.03 mm, rounded up.
    EXPECT_EQ(savedDefaultMargin(2.0, {kInches, false, 1.0F, 100.0F}, true), u"2.1");
}

TEST(SavedMargin, FromTheDefault_IsRoundedThenSnappedThenRoundedAgain)
{
    // 2.05F is 2.0499999523; what is less than 2.1499999523 becomes that, and is sent rounded up.
    const Rules rules{kMm, false, 2.05F, 100.0F};
    EXPECT_EQ(savedDefaultMargin(2.0, rules, true), u"2.1");
    EXPECT_EQ(savedDefaultMargin(2.0, rules, false), u"2.1");
    // 2.11 is 2.2 before it is snapped: too much to become the minimum.
    EXPECT_EQ(savedDefaultMargin(2.11, rules, true), u"2.2");
    // And 1.2 whole millimetres are 2, more than a tenth above a minimum of 1.5.
    EXPECT_EQ(savedDefaultMargin(1.2, {kMm, true, 1.5F, 100.0F}, true), u"2");
    EXPECT_EQ(savedDefaultMargin(2.2, {kMm, true, 2.15F, 100.0F}, true), u"3");
}

TEST(SavedLengths, LimitsTheWrongWayRound_TheMinimumComesFirst)
{
    const Rules rules{kMm, false, 10.0F, 5.0F};
    EXPECT_EQ(savedTapeLength(u"7"_qs, rules, true), u"10.0");
    EXPECT_EQ(savedTapeLength(u"3"_qs, rules, true), u"10.0");
    EXPECT_EQ(savedTapeLength(u"12"_qs, rules, true), u"5.0");
    EXPECT_EQ(savedPrintTapeLength(u"7"_qs, rules, true), u"10.0");
    EXPECT_EQ(savedPrintTapeLength(u"12"_qs, rules, true), u"5.0");
    EXPECT_EQ(savedDefaultPrintTapeLength(7.0, rules, true), u"10.0");
    EXPECT_EQ(summaryTapeLength(u"7"_qs, rules), u"10.0");
    EXPECT_EQ(summaryTapeLength(u"12"_qs, rules), u"5.0");
    // A margin has been snapped to the minimum by then, and that is more than the maximum.
    EXPECT_EQ(savedMargin(u"7"_qs, rules, true), u"5.0");
}

TEST(SavedPrintTapeLength, IsNeverConverted_AndRoundedUp)
{
    EXPECT_EQ(savedPrintTapeLength(u"3.21"_qs, {kInches, false, 1.0F, 8.0F}, true), u"3.3");
    EXPECT_EQ(savedPrintTapeLength(u"3.21"_qs, {kMm, true, 1.0F, 8.0F}, true), u"4");
    EXPECT_EQ(savedPrintTapeLength(u"9"_qs, {kMm, false, 1.0F, 8.0F}, true), u"8.0");
    EXPECT_EQ(savedPrintTapeLength(u"9"_qs, {kMm, false, 1.0F, 8.0F}, false), u"9.0");
    EXPECT_EQ(savedPrintTapeLength(u"0.5"_qs, {kMm, false, 1.0F, 8.0F}, true), u"1.0");
    EXPECT_EQ(savedDefaultPrintTapeLength(3.21, {kInches, false, 1.0F, 8.0F}, true), u"3.3");
    EXPECT_EQ(savedDefaultPrintTapeLength(3.21, {kMm, true, 1.0F, 8.0F}, true), u"4");
}

// ---- What the summary says
// -------------------------------------------------------------------------------------------

TEST(SummaryTapeLength, RoundsUpWhereSavingTruncates)
{
    EXPECT_EQ(summaryTapeLength(u"99.2"_qs, {kMm, true, 4.0F, 1000.0F}), u"100");
    EXPECT_EQ(savedTapeLength(u"99.2"_qs, {kMm, true, 4.0F, 1000.0F}, true), u"99");
    EXPECT_EQ(summaryTapeLength(u"99.21"_qs, {kMm, false, 4.0F, 1000.0F}), u"99.3");
    EXPECT_EQ(savedTapeLength(u"99.21"_qs, {kMm, false, 4.0F, 1000.0F}, true), u"99.2");
}

TEST(SummaryTapeLength, IsHeldWithinTheLimits)
{
    EXPECT_EQ(summaryTapeLength(u"3.9"_qs, {kMm, false, 4.0F, 1000.0F}), u"4.0");
    EXPECT_EQ(summaryTapeLength(u"1000.1"_qs, {kMm, false, 4.0F, 1000.0F}), u"1000.0");
    EXPECT_EQ(summaryTapeLength(u"0.15"_qs, {kInches, false, 4.0F, 1000.0F}), u"0.16");
    EXPECT_EQ(summaryTapeLength(u"39.38"_qs, {kInches, false, 4.0F, 1000.0F}), u"39.37");
    EXPECT_EQ(summaryTapeLength(u"3.94"_qs, {kInches, true, 4.0F, 1000.0F}), u"3.94");
    EXPECT_EQ(summaryTapeLength(u"inf"_qs, {kMm, false, 4.0F, 1000.0F}), u"4.0");
}

TEST(SummaryDefault, IsRoundedUpInMillimetres_AndToTheNearestInInches)
{
    EXPECT_EQ(summaryDefault(2.31F, kMm, false), u"2.4");
    EXPECT_EQ(summaryDefault(2.31F, kMm, true), u"3");
    EXPECT_EQ(summaryDefault(2.0F, kInches, false), u"0.08"); // 0.0787
    EXPECT_EQ(summaryDefault(2.2F, kInches, true), u"0.09");  // 0.0866
}

} // namespace
