// SPDX-License-Identifier: Apache-2.0
// Which pages are printed, in which order, and on which label.
#include "job/LabelPlan.h"
#include "tests/job/TapePpd.h"
#include "tests/support/ProcessorTime.h"
#include "tests/support/TextPrinting.h"

#include <gtest/gtest.h>

namespace
{

using namespace tapeprint::job; // NOLINT(google-build-using-namespace): the test is about all of it
using jobtest::options;
using Pages = std::vector<int>;

Pages selected(int total, const QString &ranges)
{
    return selectedPages(total, options({{u"page-ranges"_qs, ranges}}));
}

TEST(PageSelection, Ranges_AreInTheDocumentsOrder)
{
    EXPECT_EQ(selected(9, u"7,3"_qs), Pages({2, 6}));
    EXPECT_EQ(selected(9, u"1-3,7"_qs), Pages({0, 1, 2, 6}));
    EXPECT_EQ(selected(9, u"2-4,3-5"_qs), Pages({1, 2, 3, 4}));
    EXPECT_EQ(selected(3, u""_qs), Pages({0, 1, 2}));
}

TEST(PageSelection, OpenRanges_GoToTheDocumentsEnds)
{
    EXPECT_EQ(selected(5, u"4-"_qs), Pages({3, 4}));
    EXPECT_EQ(selected(5, u"-2"_qs), Pages({0, 1}));
    EXPECT_EQ(selected(5, u"1, 4-"_qs), Pages({0, 3, 4}));
}

TEST(PageSelection, BeyondTheEnd_IsNothing)
{
    EXPECT_EQ(selected(5, u"6"_qs), Pages());
    EXPECT_EQ(selected(5, u"6-"_qs), Pages());
    EXPECT_EQ(selected(5, u"4-99999999999"_qs), Pages({3, 4}));
    EXPECT_EQ(selected(0, u"1-"_qs), Pages());
}

TEST(PageSelection, EvenAndOdd_CountFromOne)
{
    EXPECT_EQ(selectedPages(5, options({{u"page-set"_qs, u"even"_qs}})), Pages({1, 3}));
    EXPECT_EQ(selectedPages(5, options({{u"page-set"_qs, u"odd"_qs}})), Pages({0, 2, 4}));
    EXPECT_EQ(selectedPages(5, options({{u"page-set"_qs, u"all"_qs}})), Pages({0, 1, 2, 3, 4}));
    EXPECT_EQ(selectedPages(9, options({{u"page-set"_qs, u"odd"_qs}, {u"page-ranges"_qs, u"2-5"_qs}})), Pages({2, 4}));
}

/// A tape of 72 x 288 points (101.6 mm), all of it printable.
TapePage tape()
{
    TapePage page;
    page.pageSize = u"T"_qs;
    page.sizePt = {72, 288};
    page.isTape = true;
    return page;
}

PageSizes pages(int count, const QSizeF &size = {72, 288})
{
    return PageSizes(static_cast<std::size_t>(count), size);
}

/// Documents and pages of the labels, as "0.2" for the third page of the first; labels apart by blanks.
QString told(const LabelPlan &plan)
{
    QStringList labels;
    for (const Label &label : plan.labels) {
        QStringList members;
        for (const PlacedPage &page : label) {
            members << QStringLiteral("%1.%2").arg(QString::number(page.document), QString::number(page.page));
        }
        labels << members.join(u'+');
    }
    return labels.join(u' ');
}

TEST(LabelPlan_Documents, SeveralDocuments_AreNumberedThrough)
{
    EXPECT_EQ(told(planLabels({pages(2), pages(3)}, tape(), {})), u"0.0 0.1 1.0 1.1 1.2"_qs);
    EXPECT_EQ(told(planLabels({pages(2), pages(3)}, tape(), options({{u"page-ranges"_qs, u"2-3,5"_qs}}))),
              u"0.1 1.0 1.2"_qs);
}

TEST(LabelPlan_Documents, NoDocumentOrNoPage_IsNoLabel)
{
    EXPECT_TRUE(planLabels({}, tape(), {}).labels.empty());
    EXPECT_TRUE(planLabels({{}, {}}, tape(), {}).labels.empty());
}

TEST(LabelPlan_Sheets, LastSheetThatIsNotFull_KeepsThePlacesOfAFullOne)
{
    const LabelPlan plan = planLabels({pages(3, {72, 142.5})}, tape(), options({{u"number-up"_qs, u"2"_qs}}));
    ASSERT_EQ(told(plan), u"0.0+0.1 0.2"_qs);
    EXPECT_EQ(plan.labels[0][0].clip, QRectF(0, 0, 72, 142.5));
    EXPECT_EQ(plan.labels[0][1].clip, QRectF(0, 145.5, 72, 142.5));
    EXPECT_EQ(plan.labels[1][0].clip, QRectF(0, 0, 72, 142.5));
    EXPECT_EQ(plan.labels[0][1].place, QTransform(1, 0, 0, 1, 0, 145.5));
}

TEST(LabelPlan_Sheets, MorePagesThanThereIsRoomFor_CannotBeRead)
{
    TapePage narrow = tape();
    narrow.sizePt = {10, 288}; // 3.5 mm
    const std::vector<PageSizes> documents{pages(16, {10, 142.5})};
    const auto on = [](int pagesPerSheet) { return options({{u"number-up"_qs, QString::number(pagesPerSheet)}}); };
    // Four below each other are (288 - 9) / 4 long and 4.9 points wide, sixteen in pairs (288 - 21) / 8 long and 2.3
    // wide, which are 0.8 mm.
    EXPECT_EQ(planLabels(documents, narrow, on(4)).unreadablePage(), nullptr);
    const LabelPlan plan = planLabels(documents, narrow, on(16));
    ASSERT_NE(plan.unreadablePage(), nullptr);
    EXPECT_NEAR(mmFromPoints(plan.unreadablePage()->printedPt().width()), 0.8, 0.05);
    narrow.isTape = false;
    EXPECT_EQ(planLabels(documents, narrow, on(16)).unreadablePage(), nullptr);
}

TEST(LabelPlan_Order, Reverse_BringsTheLastFirst)
{
    EXPECT_EQ(told(planLabels({pages(2), pages(1)}, tape(), options({{u"outputorder"_qs, u"reverse"_qs}}))),
              u"1.0 0.1 0.0"_qs);
    EXPECT_EQ(told(planLabels({pages(2)}, tape(), options({{u"OutputOrder"_qs, u"Reverse"_qs}}))), u"0.1 0.0"_qs);
    EXPECT_EQ(told(planLabels({pages(2)}, tape(),
                              options({{u"outputorder"_qs, u"normal"_qs}, {u"OutputOrder"_qs, u"Reverse"_qs}}))),
              u"0.0 0.1"_qs);
}

TEST(LabelPlan_Sheets, RangesMeanPagesAndSetsAndOrderMeanSheets)
{
    const auto plan = [](std::initializer_list<JobOptions::Entry> more) {
        JobOptions all = options({{u"number-up"_qs, u"2"_qs}});
        for (const auto &[name, value] : more) {
            all.set(name, value);
        }
        return told(planLabels({pages(6)}, tape(), all));
    };
    EXPECT_EQ(plan({{u"page-ranges"_qs, u"2-4"_qs}}), u"0.1+0.2 0.3"_qs);
    EXPECT_EQ(plan({{u"page-set"_qs, u"even"_qs}}), u"0.2+0.3"_qs);
    EXPECT_EQ(plan({{u"page-set"_qs, u"odd"_qs}, {u"outputorder"_qs, u"reverse"_qs}}), u"0.4+0.5 0.0+0.1"_qs);
}

TEST(LabelPlan_Sheets, SheetsOfPaper_HoldPagesOfOneDocument)
{
    TapePage paper = tape();
    paper.isTape = false;
    const JobOptions twoUp = options({{u"number-up"_qs, u"2"_qs}});
    EXPECT_EQ(told(planLabels({pages(3), pages(2)}, paper, twoUp)), u"0.0+0.1 0.2 1.0+1.1"_qs);
    EXPECT_EQ(told(planLabels({pages(3), pages(2)}, tape(), twoUp)), u"0.0+0.1 0.2+1.0 1.1"_qs);
    // Five pages a sheet are more than the filters know how to place.
    EXPECT_EQ(told(planLabels({pages(2)}, paper, options({{u"number-up"_qs, u"5"_qs}}))), u"0.0 0.1"_qs);
}

TEST(LabelPlan_Sheets, TwoPagesOnPaper_StandOnASheetThatLiesTurnedAgainstTheClock)
{
    TapePage paper;
    paper.sizePt = {600, 800};
    // Lying, the sheet has two places of 398.5 x 600 points, 3 points apart.
    const LabelPlan plan = planLabels({pages(2, {398.5, 600})}, paper, options({{u"number-up"_qs, u"2"_qs}}));
    ASSERT_EQ(told(plan), u"0.0+0.1"_qs);
    EXPECT_EQ(plan.labels[0][0].clip, QRectF(0, 401.5, 600, 398.5)); // read from below upwards
    EXPECT_EQ(plan.labels[0][1].clip, QRectF(0, 0, 600, 398.5));
    EXPECT_EQ(plan.labels[0][0].place.map(QPointF(0, 0)), QPointF(0, 800));
    EXPECT_EQ(plan.labels[0][0].place.map(QPointF(398.5, 0)), QPointF(0, 401.5));
    EXPECT_EQ(plan.labels[0][0].place.map(QPointF(0, 600)), QPointF(600, 800));
    // Four stand upright.
    const LabelPlan four = planLabels({pages(4, {298.5, 398.5})}, paper, options({{u"number-up"_qs, u"4"_qs}}));
    EXPECT_EQ(four.labels[0][1].clip, QRectF(301.5, 0, 298.5, 398.5));
    EXPECT_EQ(four.labels[0][0].place.map(QPointF(0, 0)), QPointF(0, 0));
}

/// Where a sheet's pages stand, and where the top left corner of the first goes.
struct LaidPages {
    std::vector<QRectF> clips;
    QPointF corner;
};

LaidPages laidOnPaper(int count, const QSizeF &size, const QString &orientation)
{
    TapePage paper;
    paper.sizePt = {600, 800};
    const LabelPlan plan =
        planLabels({pages(count, size)}, paper,
                   options({{u"number-up"_qs, QString::number(count)}, {u"orientation-requested"_qs, orientation}}));
    LaidPages laid;
    for (const PlacedPage &page : plan.labels.at(0)) {
        laid.clips.push_back(page.clip);
    }
    laid.corner = plan.labels[0][0].place.map(QPointF(0, 0));
    return laid;
}

// The expected places are those of CUPS's own filters on a page of 600 x 800 points.
TEST(LabelPlan_Sheets, OrientationOfTwoPagesOnPaper_TurnsTheirSheet)
{
    const QSizeF page(398.5, 600);
    const QRectF upper(0, 0, 600, 398.5);
    const QRectF lower(0, 401.5, 600, 398.5);
    const LaidPages upright = laidOnPaper(2, page, u"3"_qs);
    EXPECT_EQ(upright.clips, std::vector({lower, upper}));
    EXPECT_EQ(upright.corner, QPointF(0, 800));
    // A sheet that lies by itself stands when it is to lie; its pages are turned against the clock to fill it.
    const LaidPages lying = laidOnPaper(2, page, u"4"_qs);
    EXPECT_EQ(lying.clips, std::vector({upper, lower}));
    EXPECT_EQ(lying.corner, QPointF(0, 398.5));
    const LaidPages lyingTheOtherWay = laidOnPaper(2, page, u"5"_qs);
    EXPECT_EQ(lyingTheOtherWay.clips, std::vector({lower, upper}));
    EXPECT_EQ(lyingTheOtherWay.corner, QPointF(600, 401.5));
    const LaidPages overhead = laidOnPaper(2, page, u"6"_qs);
    EXPECT_EQ(overhead.clips, std::vector({upper, lower}));
    EXPECT_EQ(overhead.corner, QPointF(600, 0));
}

TEST(LabelPlan_Sheets, OrientationOfFourPagesOnPaper_TurnsTheirSheet)
{
    const QRectF topLeft(0, 0, 298.5, 398.5);
    const QRectF topRight(301.5, 0, 298.5, 398.5);
    const QRectF bottomLeft(0, 401.5, 298.5, 398.5);
    const QRectF bottomRight(301.5, 401.5, 298.5, 398.5);
    const LaidPages lying = laidOnPaper(4, {298.5, 398.5}, u"4"_qs);
    EXPECT_EQ(lying.clips, std::vector({bottomLeft, topLeft, bottomRight, topRight}));
    EXPECT_EQ(lying.corner, QPointF(298.5, 800)); // on its head
    const LaidPages overhead = laidOnPaper(4, {298.5, 398.5}, u"6"_qs);
    EXPECT_EQ(overhead.clips, std::vector({bottomRight, bottomLeft, topRight, topLeft}));
    EXPECT_EQ(overhead.corner, QPointF(600, 800));
    // Pages that lie are turned one by one, and keep the sheet's order.
    const LaidPages wide = laidOnPaper(4, {398.5, 298.5}, u"3"_qs);
    EXPECT_EQ(wide.clips, std::vector({topLeft, topRight, bottomLeft, bottomRight}));
    EXPECT_EQ(wide.corner, QPointF(0, 398.5));
}

TEST(LabelPlan_Sheets, BothSidesOfPaper_CountOnceForEachDocumentAndCopy)
{
    TapePage paper = tape();
    paper.isTape = false;
    const JobOptions twoCopies = options({{u"copies"_qs, u"2"_qs}});
    EXPECT_EQ(planLabels({pages(5), pages(2)}, paper, twoCopies).sheetCount(), 14U);
    paper.isTwoSided = true;
    EXPECT_EQ(planLabels({pages(5), pages(2)}, paper, twoCopies).sheetCount(), 8U); // 3 and 1, twice
    EXPECT_EQ(planLabels({pages(5)}, paper, options({{u"number-up"_qs, u"2"_qs}})).sheetCount(), 2U);
    EXPECT_EQ(planLabels({}, paper, {}).sheetCount(), 0U);
}

TEST(LabelPlan_Sheets, NumberUpLayout_SaysWhereTheFirstPageStands)
{
    // Two pages on a tape that is four times as long as wide stand one above the other.
    const auto firstTop = [](const QString &order) {
        return planLabels({pages(2, {72, 142.5})}, tape(),
                          options({{u"number-up"_qs, u"2"_qs}, {u"number-up-layout"_qs, order}}))
            .labels.at(0)
            .at(0)
            .clip.top();
    };
    EXPECT_EQ(firstTop(u"lrtb"_qs), 0.0);
    EXPECT_EQ(firstTop(u"lrbt"_qs), 145.5);
    EXPECT_EQ(firstTop(u"btrl"_qs), 145.5);
    EXPECT_EQ(firstTop(u"no-such-order"_qs), 0.0);
    // Four pages of the area's own shape stand in two rows of two.
    const LabelPlan plan =
        planLabels({pages(4)}, tape(), options({{u"number-up"_qs, u"4"_qs}, {u"number-up-layout"_qs, u"tbrl"_qs}}));
    const Label &sheet = plan.labels.at(0);
    EXPECT_EQ(sheet.at(0).clip.topLeft(), QPointF(37.5, 0));
    EXPECT_EQ(sheet.at(1).clip.topLeft(), QPointF(37.5, 145.5));
    EXPECT_EQ(sheet.at(2).clip.topLeft(), QPointF(0, 0));
}

TEST(LabelPlan_Copies, CountForLabelsAndTape)
{
    const LabelPlan plan = planLabels({pages(3)}, tape(), options({{u"copies"_qs, u"4"_qs}}));
    EXPECT_EQ(plan.labels.size(), 3U);
    EXPECT_EQ(plan.labelCount(), 12U);
    EXPECT_NEAR(plan.tapeLengthMm(), 12 * 101.6, 1e-9);
    EXPECT_EQ(planLabels({pages(1)}, tape(), options({{u"copies"_qs, u"-2"_qs}})).copies, 1);
}

TEST(LabelPlan_Place, Page_IsPutIntoThePlaceLessTheMargins)
{
    TapePage page = tape();
    page.unprintablePt = {3, 0, 3, 0};
    page.freeEndsPt = 14;
    // 66 x 260 are left; 33 x 130 stand in their middle.
    const LabelPlan plan = planLabels({{{33, 130}}}, page, {});
    ASSERT_EQ(plan.labels.size(), 1U);
    EXPECT_EQ(plan.labels[0][0].clip, QRectF(3, 14, 66, 260));
    EXPECT_EQ(plan.labels[0][0].place, QTransform(1, 0, 0, 1, 19.5, 79));
}

TEST(LabelPlan_FitLength, DrawnPart_IsWhatIsPlaced)
{
    TapePage page = tape();
    page.freeEndsPt = 10;
    // Of 72 x 500 points the rows from 300 to 400 are drawn on; 288 less 20 are left: the part stands at 94.
    const LabelPlan plan =
        planLabels({{{72, 500}}}, page, options({{u"fit-length"_qs, u"true"_qs}}), {{{20, 300, 10, 100}}});
    EXPECT_EQ(plan.labels[0][0].place, QTransform(1, 0, 0, 1, 0, -300 + 94));
    const LabelPlan lying =
        planLabels({{{500, 72}}}, page, options({{u"fit-length"_qs, u"true"_qs}}), {{{300, 20, 100, 10}}});
    // Turned against the clock: the part's right end is at the top.
    EXPECT_EQ(lying.labels[0][0].place.map(QPointF(400, 0)), QPointF(0, 94));
    EXPECT_EQ(lying.labels[0][0].place.map(QPointF(300, 72)), QPointF(72, 194));
}

TEST(LabelPlan_FitLength, BlankPage_CountsWhole)
{
    const LabelPlan plan = planLabels({{{72, 100}}}, tape(), options({{u"fit-length"_qs, u"true"_qs}}), {{QRectF()}});
    EXPECT_EQ(plan.labels[0][0].place, QTransform(1, 0, 0, 1, 0, 94));
}

TEST(LabelPlan_Odd, PageOfNothing_DoesNotTakeTheOthersAlong)
{
    const LabelPlan plan = planLabels({{{0, 0}, {72, 142.5}}}, tape(), options({{u"number-up"_qs, u"2"_qs}}));
    ASSERT_EQ(told(plan), u"0.0+0.1"_qs);
    EXPECT_NE(plan.labels[0][0].clip, plan.labels[0][1].clip);
}

TEST(LabelPlan_Speed, TwoThousandPages_TakeMilliseconds)
{
    QStringList ranges;
    for (int page = 1; page <= 2000; ++page) {
        ranges << QString::number(page);
    }
    LabelPlan plan;
    EXPECT_LT(tapeprint::test::processorMsOf([&] {
                  plan = planLabels({pages(2000)}, tape(),
                                    options({{u"page-ranges"_qs, ranges.join(u',')}, {u"number-up"_qs, u"2"_qs}}));
              }),
              500); // of an unoptimised build
    EXPECT_EQ(plan.labels.size(), 1000U);
}

} // namespace
