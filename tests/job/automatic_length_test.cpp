// SPDX-License-Identifier: Apache-2.0
// The tape that documents need: what is drawn on them, the margins, the step and the limits.
#include "job/AutomaticLength.h"
#include "tests/job/TapePpd.h"
#include "tests/support/TextPrinting.h"

#include <gtest/gtest.h>

namespace
{

using namespace tapeprint::job; // NOLINT(google-build-using-namespace): the test is about all of it
using jobtest::options;

/// 72 points wide, of which 68 can be printed; 7.2 points (2.54 mm) stay free at each end.
TapePage tape()
{
    TapePage page;
    page.sizePt = {72, 288};
    page.unprintablePt = {2, 0, 2, 0};
    page.freeEndsPt = 7.2;
    page.isTape = true;
    return page;
}

constexpr LengthRules tenths{4.0, 1000.0, 0.1, false};

double lengthOf(const std::vector<PageSizes> &sizes, const std::vector<DrawnRects> &drawn,
                const JobOptions &chosen = {}, const LengthRules &rules = tenths)
{
    const std::optional<AutomaticLength> length = automaticLength(sizes, drawn, tape(), chosen, rules);
    return length ? length->lengthMm : -1.0;
}

constexpr double slack = 1e-6;

// A hundred points and twice 7.2 are 114.4 points, which are 40.358 mm.
TEST(AutomaticLength_Extent, StandingPage_IsTheHeightOfWhatIsDrawn)
{
    EXPECT_NEAR(lengthOf({{{60, 200}}}, {{{10, 20, 40, 100}}}), 40.4, slack);
}

TEST(AutomaticLength_Extent, LyingPage_IsTheWidthOfWhatIsDrawn)
{
    // 150 + 14.4 = 164.4 points = 57.997 mm.
    EXPECT_NEAR(lengthOf({{{200, 60}}}, {{{30, 10, 150, 5}}}), 58.0, slack);
}

TEST(AutomaticLength_Extent, PageTurnedByHand_GoesByTheTurn)
{
    // The standing page lies across: its width, 40 points, runs along: 54.4 points = 19.191 mm. It is 200 points wide
    // across 68, so 0.34 of it: 13.6 + 14.4 = 28 points = 9.878 mm.
    EXPECT_NEAR(lengthOf({{{60, 200}}}, {{{10, 20, 40, 100}}},
                         options({{u"orientation-requested"_qs, u"4"_qs}, {u"print-scaling"_qs, u"none"_qs}})),
                19.2, slack);
    EXPECT_NEAR(lengthOf({{{60, 200}}}, {{{10, 20, 40, 100}}}, options({{u"orientation-requested"_qs, u"4"_qs}})), 9.9,
                slack);
}

TEST(AutomaticLength_Extent, PageWiderThanTheTape_IsMadeSmaller)
{
    // 136 across 68: half of 200 is 100.
    EXPECT_NEAR(lengthOf({{{136, 300}}}, {{{0, 0, 136, 200}}}), 40.4, slack);
    // Not scaled: 214.4 points = 75.636 mm.
    EXPECT_NEAR(lengthOf({{{136, 300}}}, {{{0, 0, 136, 200}}}, options({{u"print-scaling"_qs, u"none"_qs}})), 75.7,
                slack);
}

TEST(AutomaticLength_Extent, FitAcross_EnlargesANarrowPage)
{
    EXPECT_NEAR(lengthOf({{{34, 100}}}, {{{0, 10, 20, 50}}}, options({{u"print-scaling"_qs, u"fit"_qs}})), 40.4, slack);
}

TEST(AutomaticLength_Pages, LongestOfTheSelectedPages_Decides)
{
    const std::vector<PageSizes> sizes{{{60, 200}, {60, 300}}, {{60, 400}}};
    const std::vector<DrawnRects> drawn{{{0, 0, 60, 50}, {0, 0, 60, 100}}, {{0, 0, 60, 240}}};
    // 254.4 points = 89.747 mm; 64.4 points = 22.719 mm.
    EXPECT_NEAR(lengthOf(sizes, drawn), 89.8, slack);
    EXPECT_NEAR(lengthOf(sizes, drawn, options({{u"page-ranges"_qs, u"1-2"_qs}})), 40.4, slack);
    EXPECT_NEAR(lengthOf(sizes, drawn, options({{u"page-ranges"_qs, u"1"_qs}})), 22.8, slack);
}

TEST(AutomaticLength_Pages, SeveralToASheet_HaveALabelEach)
{
    EXPECT_NEAR(
        lengthOf({{{60, 200}, {60, 200}}}, {{{0, 0, 60, 100}, {0, 0, 60, 50}}}, options({{u"number-up"_qs, u"2"_qs}})),
        40.4, slack);
}

TEST(AutomaticLength_Pages, BlankPages_DoNotCount)
{
    EXPECT_NEAR(lengthOf({{{60, 900}, {60, 200}}}, {{{}, {0, 0, 60, 100}}}), 40.4, slack);
    EXPECT_EQ(lengthOf({{{60, 900}}}, {{{}}}), -1.0);
    EXPECT_EQ(lengthOf({{{60, 900}, {60, 200}}}, {{{}, {0, 0, 60, 100}}}, options({{u"page-ranges"_qs, u"1"_qs}})),
              -1.0);
}

TEST(AutomaticLength_Step, WholeMillimetres_AreRoundedUp)
{
    EXPECT_NEAR(lengthOf({{{60, 200}}}, {{{0, 0, 60, 100}}}, {}, {4.0, 1000.0, 1.0, false}), 41.0, slack);
}

TEST(AutomaticLength_Step, LengthThatIsAStep_StaysIt)
{
    // 57.6 + 14.4 = 72 points = 25.4 mm = 1 inch, which panels save as 25.4.
    EXPECT_NEAR(lengthOf({{{60, 200}}}, {{{0, 0, 60, 57.6}}}), 25.4, slack);
    EXPECT_NEAR(lengthOf({{{60, 200}}}, {{{0, 0, 60, 57.6}}}, {}, {4.0, 1000.0, 0.1, true}), 25.4, slack);
}

TEST(AutomaticLength_Step, HundredthsOfAnInch_AreRoundedUpSoThatTheTenthsSavedAreEnough)
{
    // 40.358 mm are 1.5889 inches. 1.59 inches are 40.386 mm, which are saved as 40.4: enough.
    EXPECT_NEAR(lengthOf({{{60, 200}}}, {{{0, 0, 60, 100}}}, {}, {4.0, 1000.0, 0.1, true}), 1.59 * 25.4, slack);
    // 41.02 mm (101.8772 points of content) are 1.61496 inches. 1.62 inches are 41.148 mm, saved as 41.1: enough.
    // 41.12 mm are 1.6189 inches; 1.62 inches would be saved as 41.1: too short. 1.63 inches it is.
    const double points = 41.12 / 25.4 * 72 - 14.4;
    EXPECT_NEAR(lengthOf({{{60, 200}}}, {{{0, 0, 60, points}}}, {}, {4.0, 1000.0, 0.1, true}), 1.63 * 25.4, slack);
}

TEST(AutomaticLength_Limits, ShortContent_GetsTheShortestTape)
{
    const std::optional<AutomaticLength> length =
        automaticLength({{{60, 200}}}, {{{0, 0, 60, 10}}}, tape(), {}, {30.0, 1000.0, 0.1, false});
    ASSERT_TRUE(length);
    EXPECT_EQ(length->lengthMm, 30.0);
    EXPECT_FALSE(length->isHeld);
}

TEST(AutomaticLength_Limits, LongContent_IsHeldAtTheLongestTapeAndSaid)
{
    const std::optional<AutomaticLength> length =
        automaticLength({{{60, 9000}}}, {{{0, 0, 60, 8000}}}, tape(), {}, {30.0, 100.0, 0.1, false});
    ASSERT_TRUE(length);
    EXPECT_EQ(length->lengthMm, 100.0);
    EXPECT_TRUE(length->isHeld);
}

TEST(AutomaticLength_Limits, WithoutALongestTape_NothingIsHeld)
{
    const std::optional<AutomaticLength> length =
        automaticLength({{{60, 9000}}}, {{{0, 0, 60, 8000}}}, tape(), {}, {0.0, 0.0, 1.0, false});
    ASSERT_TRUE(length);
    EXPECT_EQ(length->lengthMm, 2828.0); // 8014.4 points = 2827.302 mm
    EXPECT_FALSE(length->isHeld);
}

TEST(AutomaticLength_Ends, StripThatIsLargerThanTheMargin_IsWhatCounts)
{
    TapePage page = tape();
    page.unprintablePt = {2, 21.6, 2, 0};
    // 100 + 21.6 + 7.2 = 128.8 points = 45.438 mm.
    const std::optional<AutomaticLength> length = automaticLength({{{60, 200}}}, {{{0, 0, 60, 100}}}, page, {}, tenths);
    ASSERT_TRUE(length);
    EXPECT_NEAR(length->lengthMm, 45.5, slack);
}

TEST(LengthRules_Ppd, Attributes_AreRead)
{
    const PpdFile ppd =
        jobtest::ppdOf(jobtest::tapePpdText("*Least: \"12.5\"\n*Most: \"300\"\n*Whole: \"True\"\n*Unit: \"inch\"\n"));
    const LengthRules rules = lengthRulesOf(ppd.get(), jobtest::tapeKeywords());
    EXPECT_EQ(rules.least, 12.5);
    EXPECT_EQ(rules.most, 300.0);
    EXPECT_EQ(rules.step, 1.0);
    EXPECT_TRUE(rules.inInches);
}

TEST(LengthRules_Ppd, MissingAttributes_LeaveTenthsWithoutBounds)
{
    const PpdFile ppd = jobtest::ppdOf(jobtest::tapePpdText());
    for (ppd_file_t *description : {ppd.get(), static_cast<ppd_file_t *>(nullptr)}) {
        const LengthRules rules = lengthRulesOf(description, jobtest::tapeKeywords());
        EXPECT_EQ(rules.least, 0.0);
        EXPECT_EQ(rules.most, 0.0);
        EXPECT_EQ(rules.step, 0.1);
        EXPECT_FALSE(rules.inInches);
    }
}

} // namespace
