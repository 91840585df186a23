// SPDX-License-Identifier: Apache-2.0
// Numbers to text and back: the longest decimal number counts, ranges hold, and the locale has no say.
#include "TextPrinting.h"
#include "pdekit/Numbers.h"

#include <gtest/gtest.h>

#include <clocale>
#include <cmath>
#include <limits>

using namespace pdekit;

namespace
{

struct RealCase {
    QString text;
    double expected;
};

class DoubleValue : public testing::TestWithParam<RealCase>
{
};

TEST_P(DoubleValue, ReadsTheLongestDecimalNumber)
{
    EXPECT_EQ(doubleValue(GetParam().text), GetParam().expected);
}

constexpr double kLargest = std::numeric_limits<double>::max();

INSTANTIATE_TEST_SUITE_P(
    Texts, DoubleValue,
    testing::Values(RealCase{QString(), 0.0}, RealCase{u""_qs, 0.0}, RealCase{u"12.5"_qs, 12.5},
                    RealCase{u" \t\n12.5 mm"_qs, 12.5}, RealCase{u"+3"_qs, 3.0}, RealCase{u"-0.25"_qs, -0.25},
                    RealCase{u".5"_qs, 0.5}, RealCase{u"5."_qs, 5.0}, RealCase{u"."_qs, 0.0}, RealCase{u"-"_qs, 0.0},
                    RealCase{u"+-1"_qs, 0.0}, RealCase{u"1.2.3"_qs, 1.2}, RealCase{u"12,5"_qs, 12.0},
                    RealCase{u"1e3"_qs, 1000.0}, RealCase{u"1E-2x"_qs, 0.01}, RealCase{u"7e"_qs, 7.0},
                    RealCase{u"7e+"_qs, 7.0}, RealCase{u"inf"_qs, 0.0}, RealCase{u"-infinity"_qs, 0.0},
                    RealCase{u"nan"_qs, 0.0}, RealCase{u"0x10"_qs, 0.0}, RealCase{u"abc1"_qs, 0.0},
                    RealCase{u"\u0661"_qs, 0.0}, RealCase{u"1e999"_qs, kLargest}, RealCase{u"-1e999"_qs, -kLargest},
                    RealCase{u"1e99999999999999999999"_qs, kLargest}, RealCase{u"1e-999"_qs, 0.0},
                    RealCase{u"1e-99999999999999999999"_qs, 0.0}, RealCase{u"0e999"_qs, 0.0},
                    RealCase{u"0.000001e400"_qs, kLargest}, RealCase{u"1000000e-400"_qs, 0.0}));

TEST(FloatValue, RoundsTheDecimalNumberOnceToFloat)
{
    // The exact number lies a little above the middle of 1 and the next float, 1 + 2^-23. Rounded to double first it
    // becomes that middle, and the second rounding would go down to the even 1.
    EXPECT_EQ(floatValue(u"1.00000005960464477540"), 1.0F + std::ldexp(1.0F, -23));
}

TEST(FloatValue, BeyondTheRange_IsHeldAtTheLargestFiniteFloat)
{
    EXPECT_EQ(floatValue(u"1e39"), std::numeric_limits<float>::max());
    EXPECT_EQ(floatValue(u"-1e39"), -std::numeric_limits<float>::max());
    EXPECT_EQ(floatValue(u"1e-60"), 0.0F);
}

TEST(FloatValue, LocaleWithAComma_ChangesNothing)
{
    const std::string before = std::setlocale(LC_ALL, nullptr);
    if (std::setlocale(LC_ALL, "de_DE.UTF-8") == nullptr) {
        GTEST_SKIP() << "This machine lacks the locale de_DE.UTF-8";
    }
    EXPECT_EQ(floatValue(u"12.5"), 12.5F);
    EXPECT_EQ(fixedDecimals(12.5, 1), u"12.5");
    EXPECT_EQ(shortestText(12.5F), u"12.5");
    std::setlocale(LC_ALL, before.c_str());
}

TEST(IntValue, ReadsSignAndDigits)
{
    EXPECT_EQ(intValue(u"  -12abc"), -12);
    EXPECT_EQ(intValue(u"+7"), 7);
    EXPECT_EQ(intValue(u"050"), 50);
    EXPECT_EQ(intValue(u"12.9"), 12);
    EXPECT_EQ(intValue(u"x1"), 0);
    EXPECT_EQ(intValue(u""), 0);
    EXPECT_EQ(intValue(u"- 1"), 0);
}

TEST(IntValue, BeyondTheRange_IsHeldAtItsEnds)
{
    EXPECT_EQ(intValue(u"2147483647"), 2147483647);
    EXPECT_EQ(intValue(u"2147483648"), 2147483647);
    EXPECT_EQ(intValue(u"-2147483648"), std::numeric_limits<std::int32_t>::min());
    EXPECT_EQ(intValue(u"-99999999999999999999999999"), std::numeric_limits<std::int32_t>::min());
}

TEST(FixedDecimals, ExactHalvesGoToTheEvenDigit)
{
    EXPECT_EQ(fixedDecimals(0.25, 1), u"0.2");
    EXPECT_EQ(fixedDecimals(0.75, 1), u"0.8");
    EXPECT_EQ(fixedDecimals(0.125, 2), u"0.12");
    EXPECT_EQ(fixedDecimals(2.5, 0), u"2");
}

TEST(FixedDecimals, FormatsAsCDoes)
{
    EXPECT_EQ(fixedDecimals(100.0, 6), u"100.000000");
    EXPECT_EQ(fixedDecimals(-0.04, 1), u"-0.0");
    EXPECT_EQ(fixedDecimals(3.93701, 2), u"3.94");
    // 10^22 is the largest power of ten that double holds exactly.
    EXPECT_EQ(fixedDecimals(1e22, 1), u"10000000000000000000000.0");
    EXPECT_EQ(fixedDecimals(-kLargest, 3).size(), 1 + 309 + 4);
}

TEST(WholeNumber, IsTruncatedAndHeldInTheRange)
{
    EXPECT_EQ(wholeNumber(12.99), u"12");
    EXPECT_EQ(wholeNumber(-12.99), u"-12");
    EXPECT_EQ(wholeNumber(1e10), u"2147483647");
    EXPECT_EQ(wholeNumber(-1e10), u"-2147483648");
    EXPECT_EQ(wholeNumber(std::numeric_limits<double>::infinity()), u"2147483647");
    EXPECT_EQ(wholeNumber(std::numeric_limits<double>::quiet_NaN()), u"0");
}

TEST(TruncatedInt, HoldsTheEndsExactly)
{
    EXPECT_EQ(truncatedInt32(2147483647.9), 2147483647);
    EXPECT_EQ(truncatedInt32(-2147483648.9), std::numeric_limits<std::int32_t>::min());
    EXPECT_EQ(truncatedInt64(9223372036854775808.0), std::numeric_limits<std::int64_t>::max());
    EXPECT_EQ(truncatedInt64(-1e300), std::numeric_limits<std::int64_t>::min());
    EXPECT_EQ(truncatedInt64(4294967296.5), 4294967296);
    EXPECT_EQ(truncatedInt64(std::numeric_limits<double>::quiet_NaN()), 0);
}

TEST(ShortestText, ReadsBackAsTheSameFloat)
{
    EXPECT_EQ(shortestText(0.1F), u"0.1");
    EXPECT_EQ(shortestText(100.0F), u"100");
    const float values[] = {1.0F / 3.0F, 3.93701F, -12.7F, std::numeric_limits<float>::max(), 1e-40F};
    for (const float value : values) {
        EXPECT_EQ(floatValue(shortestText(value)), value);
    }
}

} // namespace
