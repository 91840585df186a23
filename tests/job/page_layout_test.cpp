// SPDX-License-Identifier: Apache-2.0
// Where a document's page goes: every scaling, turn and place, and several pages on one sheet.
#include "job/PageLayout.h"
#include "tests/job/TapePpd.h"
#include "tests/support/TextPrinting.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <limits>

namespace
{

using namespace tapeprint::job; // NOLINT(google-build-using-namespace): the test is about all of it
using jobtest::options;

constexpr double slack = 1e-9;

void expectRect(const QRectF &rect, const QRectF &expected)
{
    EXPECT_NEAR(rect.left(), expected.left(), slack);
    EXPECT_NEAR(rect.top(), expected.top(), slack);
    EXPECT_NEAR(rect.width(), expected.width(), slack);
    EXPECT_NEAR(rect.height(), expected.height(), slack);
}

LayoutChoices choices(Scaling scaling, Turn turn = Turn::None, Place across = Place::Middle,
                      Place along = Place::Middle)
{
    LayoutChoices chosen;
    chosen.scaling = scaling;
    chosen.turn = turn;
    chosen.across = across;
    chosen.along = along;
    return chosen;
}

/// Where the page as a whole goes.
QRectF placed(const QSizeF &page, const QRectF &area, const LayoutChoices &chosen)
{
    return placePage(page, area, chosen).mapRect(QRectF(QPointF(), page));
}

const QRectF area(10, 20, 60, 200);

TEST(PageLayout_Scaling, Auto_LeavesASmallPageAndShrinksALargeOne)
{
    expectRect(placed({30, 50}, area, choices(Scaling::Auto)), {25, 95, 30, 50});
    // 120 x 200 into 60 x 200: half.
    expectRect(placed({120, 200}, area, choices(Scaling::Auto)), {10, 70, 60, 100});
    // 60 x 400: half as well, for its height.
    expectRect(placed({60, 400}, area, choices(Scaling::Auto)), {25, 20, 30, 200});
}

TEST(PageLayout_Scaling, Auto_LeavesAPageThatIsLargerByLessThanAFloatsRounding)
{
    expectRect(placed({60.04, 200.04}, area, choices(Scaling::Auto)), {9.98, 19.98, 60.04, 200.04});
    EXPECT_NEAR(placed({60.06, 100}, area, choices(Scaling::Auto)).width(), 60, slack);
}

TEST(PageLayout_Scaling, Fit_EnlargesUntilOneSideIsFull)
{
    expectRect(placed({30, 50}, area, choices(Scaling::Fit)), {10, 70, 60, 100});
    expectRect(placed({10, 100}, area, choices(Scaling::Fit)), {30, 20, 20, 200});
    expectRect(placed({120, 200}, area, choices(Scaling::Fit)), {10, 70, 60, 100});
}

TEST(PageLayout_Scaling, Fill_CoversThePlaceAndStandsOver)
{
    // 30 x 50 has to become four times as large to be 200 high.
    expectRect(placed({30, 50}, area, choices(Scaling::Fill)), {-20, 20, 120, 200});
    expectRect(placed({120, 800}, area, choices(Scaling::Fill)), {10, -80, 60, 400});
}

TEST(PageLayout_Scaling, None_KeepsTheSizeOfALargePage)
{
    expectRect(placed({120, 400}, area, choices(Scaling::None)), {-20, -80, 120, 400});
}

TEST(PageLayout_Turn, LandscapePage_LiesAsItIsReadWhenTheTapeLies)
{
    // The page's left edge is at the bottom of the standing page, its top at the left: turned to the right by a
    // quarter, as the tape lies in front of the person, it is read from left to right.
    const QTransform place = placePage({100, 50}, area, choices(Scaling::Auto, Turn::Automatic));
    EXPECT_EQ(place.map(QPointF(0, 0)), QPointF(15, 170));
    EXPECT_EQ(place.map(QPointF(100, 0)), QPointF(15, 70));
    EXPECT_EQ(place.map(QPointF(0, 50)), QPointF(65, 170));
}

TEST(PageLayout_Turn, Automatic_LeavesAStandingAndASquarePage)
{
    EXPECT_EQ(placePage({50, 100}, area, choices(Scaling::Auto, Turn::Automatic)), QTransform(1, 0, 0, 1, 15, 70));
    EXPECT_EQ(placePage({50, 50}, area, choices(Scaling::Auto, Turn::Automatic)), QTransform(1, 0, 0, 1, 15, 95));
}

TEST(PageLayout_Turn, QuarterTurns_HaveExactMatrices)
{
    const QSizeF page(30, 50);
    EXPECT_EQ(placePage(page, {0, 0, 50, 50}, choices(Scaling::None, Turn::Right)), QTransform(0, 1, -1, 0, 50, 10));
    EXPECT_EQ(placePage(page, {0, 0, 30, 50}, choices(Scaling::None, Turn::Half)), QTransform(-1, 0, 0, -1, 30, 50));
    EXPECT_EQ(placePage(page, {0, 0, 50, 30}, choices(Scaling::None, Turn::Left)), QTransform(0, -1, 1, 0, 0, 30));
    const QTransform scaled = placePage(page, {0, 0, 5, 3}, choices(Scaling::Fit, Turn::Right));
    EXPECT_EQ(scaled.m11(), 0.0);
    EXPECT_EQ(scaled.m22(), 0.0);
}

TEST(PageLayout_All, EveryScalingTurnAndPlace_IsTheRulesResult)
{
    const QSizeF page(40, 90);
    const std::array places{Place::Start, Place::Middle, Place::End};
    const std::array turns{Turn::None, Turn::Right, Turn::Half, Turn::Left, Turn::Automatic};
    // Where the page's top left corner goes, as a share of the placed rectangle.
    const std::array<QPointF, 5> corners{QPointF(0, 0), QPointF(1, 0), QPointF(1, 1), QPointF(0, 1), QPointF(0, 0)};
    for (std::size_t turn = 0; turn < turns.size(); ++turn) {
        const bool lies = turn == 1 || turn == 3;
        const QSizeF turned = lies ? QSizeF(90, 40) : page;
        // Into 60 x 200: 60 / 90 when it lies, 60 / 40 = 1.5 (and 200 / 90 = 2.2) when it stands.
        const std::array<double, 4> scales{lies ? 60.0 / 90 : 1.0, lies ? 60.0 / 90 : 1.5,
                                           lies ? 200.0 / 40 : 200.0 / 90, 1.0};
        for (std::size_t scaling = 0; scaling < scales.size(); ++scaling) {
            for (std::size_t across = 0; across < places.size(); ++across) {
                for (std::size_t along = 0; along < places.size(); ++along) {
                    SCOPED_TRACE(testing::Message() << turn << scaling << across << along);
                    const QSizeF size = turned * scales.at(scaling);
                    const QRectF expected(QPointF(10 + (60 - size.width()) * static_cast<double>(across) / 2,
                                                  20 + (200 - size.height()) * static_cast<double>(along) / 2),
                                          size);
                    const LayoutChoices chosen =
                        choices(static_cast<Scaling>(scaling), turns.at(turn), places.at(across), places.at(along));
                    expectRect(placed(page, area, chosen), expected);
                    const QPointF corner = placePage(page, area, chosen).map(QPointF(0, 0));
                    EXPECT_NEAR(corner.x(), expected.left() + corners.at(turn).x() * size.width(), slack);
                    EXPECT_NEAR(corner.y(), expected.top() + corners.at(turn).y() * size.height(), slack);
                }
            }
        }
    }
}

TEST(PageLayout_Odd, PagesOfNothingAndOfTenMetres_GiveFiniteMatrices)
{
    EXPECT_EQ(placePage({0, 0}, area, {}), QTransform());
    EXPECT_EQ(placePage({0, 100}, area, {}), QTransform());
    EXPECT_EQ(placePage({30, 50}, {}, {}), QTransform());
    // 10 m are 28346.46 points: as wide as the tape's 60, it is 60 long and stands in the middle.
    const QSizeF large(28346.46, 28346.46);
    expectRect(placed(large, area, choices(Scaling::Auto)), {10, 90, 60, 60});
    expectRect(placed({1e-6, 1e-6}, area, choices(Scaling::Fit)), {10, 90, 60, 60});
}

TEST(PageLayout_Sheet, TwoStandingPagesOnTape_StandBelowEachOtherWithAGap)
{
    const std::vector<QRectF> places = placesOnSheet(2, area, {60, 100}, choices(Scaling::Auto));
    ASSERT_EQ(places.size(), 2U);
    expectRect(places[0], {10, 20, 60, 98.5});
    expectRect(places[1], {10, 121.5, 60, 98.5});
}

TEST(PageLayout_Sheet, LyingPages_AreCountedAsTheyAreTurned)
{
    // 100 x 60 is turned to 60 x 100; unturned it would be largest in one column as well, but at 0.6.
    const std::vector<QRectF> places = placesOnSheet(4, {0, 0, 123, 203}, {100, 60}, choices({}, Turn::Automatic));
    ASSERT_EQ(places.size(), 4U);
    // Turned against the clock, what is read as the left end lies at the bottom, and the next line to the right.
    expectRect(places[0], {0, 103, 60, 100});
    expectRect(places[1], {0, 0, 60, 100});
    expectRect(places[2], {63, 103, 60, 100});
    expectRect(places[3], {63, 0, 60, 100});
}

TEST(PageLayout_Sheet, TurnedPages_AreInTheOrderInWhichTheyAreRead)
{
    const QRectF four(0, 0, 123, 203);
    // With the clock, the left end is at the top and the next line to the left.
    const std::vector<QRectF> right = placesOnSheet(4, four, {100, 60}, choices({}, Turn::Right));
    expectRect(right[0], {63, 0, 60, 100});
    expectRect(right[1], {63, 103, 60, 100});
    expectRect(right[2], {0, 0, 60, 100});
    const std::vector<QRectF> half = placesOnSheet(4, four, {60, 100}, choices({}, Turn::Half));
    expectRect(half[0], {63, 103, 60, 100});
    expectRect(half[1], {0, 103, 60, 100});
    expectRect(half[3], {0, 0, 60, 100});
}

TEST(PageLayout_Sheet, OneToSixteenPages_AreInReadingOrderApartAndInside)
{
    for (int count = 1; count <= 16; ++count) {
        const std::vector<QRectF> places = placesOnSheet(count, area, {40, 60}, {});
        ASSERT_EQ(places.size(), static_cast<std::size_t>(count));
        for (std::size_t i = 0; i < places.size(); ++i) {
            EXPECT_GT(places[i].width(), 0.0);
            EXPECT_GT(places[i].height(), 0.0);
            EXPECT_TRUE(area.adjusted(-slack, -slack, slack, slack).contains(places[i])) << count << ' ' << i;
            for (std::size_t next = i + 1; next < places.size(); ++next) {
                const bool isRight = places[next].left() >= places[i].right() + 3 - slack;
                const bool isBelow = places[next].top() >= places[i].bottom() + 3 - slack;
                EXPECT_TRUE(isBelow || (isRight && std::abs(places[next].top() - places[i].top()) < slack))
                    << count << ": " << i << " and " << next;
            }
        }
    }
}

TEST(PageLayout_Sheet, TooSmallForItsGaps_HasPlacesInWhichNothingIsDrawn)
{
    for (const QRectF &place : placesOnSheet(16, {0, 0, 2, 2}, {40, 60}, {})) {
        EXPECT_TRUE(place.isEmpty());
    }
}

TEST(PageLayout_Part, WithFitLength_IsWhatIsDrawnAlongTheTapeAlone)
{
    LayoutChoices chosen;
    chosen.fitLength = true;
    const PagePart standing = partThatCounts({60, 200}, {10, 20, 30, 40}, chosen);
    EXPECT_EQ(standing.part, QRectF(0, 20, 60, 40));
    EXPECT_EQ(standing.turn, Turn::None);
    const PagePart lying = partThatCounts({200, 60}, {10, 20, 30, 40}, chosen);
    EXPECT_EQ(lying.part, QRectF(10, 0, 30, 60));
    EXPECT_EQ(lying.turn, Turn::Left);
    EXPECT_EQ(partThatCounts({60, 200}, {}, chosen).part, QRectF(0, 0, 60, 200));
    chosen.fitLength = false;
    EXPECT_EQ(partThatCounts({60, 200}, {10, 20, 30, 40}, chosen).part, QRectF(0, 0, 60, 200));
}

TEST(PageLayout_Length, Needed_FollowsTheScalingAcross)
{
    const PagePart part{{0, 20, 30, 40}, Turn::None};
    EXPECT_DOUBLE_EQ(lengthNeeded(part, 60, choices(Scaling::Auto)), 40);
    EXPECT_DOUBLE_EQ(lengthNeeded(part, 60, choices(Scaling::None)), 40);
    EXPECT_DOUBLE_EQ(lengthNeeded(part, 60, choices(Scaling::Fit)), 80);
    EXPECT_DOUBLE_EQ(lengthNeeded(part, 15, choices(Scaling::Auto)), 20);
    EXPECT_DOUBLE_EQ(lengthNeeded(part, 15, choices(Scaling::None)), 40);
    EXPECT_DOUBLE_EQ(lengthNeeded({{0, 20, 30, 40}, Turn::Left}, 60, choices(Scaling::Auto)), 30);
    EXPECT_EQ(lengthNeeded({{}, Turn::None}, 60, {}), 0.0);
    EXPECT_EQ(lengthNeeded(part, 0, {}), 0.0);
}

TEST(LayoutChoices_Options, CupsNames_AreRead)
{
    const LayoutChoices chosen = layoutChoicesOf(options({{u"print-scaling"_qs, u"fill"_qs},
                                                          {u"orientation-requested"_qs, u"5"_qs},
                                                          {u"position"_qs, u"bottom-left"_qs},
                                                          {u"number-up"_qs, u"4"_qs}}));
    EXPECT_EQ(chosen.scaling, Scaling::Fill);
    EXPECT_EQ(chosen.turn, Turn::Right);
    EXPECT_EQ(chosen.across, Place::Start);
    EXPECT_EQ(chosen.along, Place::End);
    EXPECT_EQ(chosen.pagesPerSheet, 4);
}

TEST(LayoutChoices_Options, Nothing_IsAutomaticInTheMiddle)
{
    EXPECT_EQ(layoutChoicesOf({}), LayoutChoices());
    EXPECT_EQ(layoutChoicesOf(options({{u"print-scaling"_qs, u"huge"_qs},
                                       {u"orientation-requested"_qs, u"9"_qs},
                                       {u"position"_qs, u"above"_qs},
                                       {u"number-up"_qs, u"-3"_qs}})),
              LayoutChoices());
}

TEST(LayoutChoices_Options, OlderNames_MeanTheSame)
{
    EXPECT_EQ(layoutChoicesOf(options({{u"fit-to-page"_qs, u"True"_qs}})).scaling, Scaling::Fit);
    EXPECT_EQ(layoutChoicesOf(options({{u"fitplot"_qs, u"yes"_qs}})).scaling, Scaling::Fit);
    EXPECT_EQ(layoutChoicesOf(options({{u"fit-to-page"_qs, u"false"_qs}})).scaling, Scaling::Auto);
    EXPECT_EQ(layoutChoicesOf(options({{u"landscape"_qs, u"true"_qs}})).turn, Turn::Left);
    // The newer name has the last word.
    EXPECT_EQ(layoutChoicesOf(options({{u"fit-to-page"_qs, u"true"_qs}, {u"print-scaling"_qs, u"none"_qs}})).scaling,
              Scaling::None);
}

TEST(LayoutChoices_Options, EveryOrientation_IsIppsTurn)
{
    const std::array turns{Turn::None, Turn::Left, Turn::Right, Turn::Half};
    for (int orientation = 3; orientation <= 6; ++orientation) {
        EXPECT_EQ(layoutChoicesOf(options({{u"orientation-requested"_qs, QString::number(orientation)}})).turn,
                  turns.at(static_cast<std::size_t>(orientation - 3)));
    }
}

TEST(LayoutChoices_Options, FitLength_HasOnePageToALabel)
{
    const LayoutChoices chosen = layoutChoicesOf(options({{u"fit-length"_qs, u"true"_qs}, {u"number-up"_qs, u"4"_qs}}));
    EXPECT_TRUE(chosen.fitLength);
    EXPECT_EQ(chosen.pagesPerSheet, 1);
}

TEST(LayoutChoices_Options, ManyPages_AreHeldAtSixteen)
{
    EXPECT_EQ(layoutChoicesOf(options({{u"number-up"_qs, u"99999999999"_qs}})).pagesPerSheet, 16);
}

// As many as make rows and columns on the paper; with any other number the filters would print a page a sheet.
TEST(PageLayout_Paper, PagesASheet_AreThoseThatTheFiltersKnow)
{
    const std::array<int, 17> expected{1, 1, 2, 3, 4, 1, 6, 1, 8, 9, 10, 1, 12, 1, 1, 15, 16};
    for (std::size_t asked = 0; asked < expected.size(); ++asked) {
        EXPECT_EQ(pagesPerPaper(static_cast<int>(asked)), expected[asked]) << asked;
    }
    EXPECT_EQ(pagesPerPaper(17), 1);
}

} // namespace
