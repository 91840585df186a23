// SPDX-License-Identifier: Apache-2.0
// CUPS's own options for laying out change the print as they say, and once: the program applies them, no filter does so
// again.
#include "tests/printers/LabelDocuments.h"
#include "tests/printers/PrintedTape.h"
#include "tests/printers/SamplePrinter.h"
#include "tests/support/TextPrinting.h"

#include <gtest/gtest.h>

#include <cmath>

namespace printertest
{

namespace
{

// On the printer that prints up to the edges, with a dot that is a hundredth of an inch and less; 180 dots an inch.
constexpr double dotsPerMm = 180 / 25.4;

class LayoutOption : public testing::Test
{
protected:
    /// Prints on 24 mm of tape, 60 mm long, with 5 mm free at each end: 24 x 50 mm are laid out on.
    std::vector<RasterPage> printed(const std::vector<ShapedPage> &pages, const QStringList &options,
                                    const QStringList &more = {}) const
    {
        const QString document = systemtest::writeFile(folder.path(u"document.pdf"_qs), pdfWith(pages));
        const PrintedTape tape =
            printTape(folder, u"hn"_qs,
                      QStringList{u"KsTapeLength=60"_qs, u"KsMargin=5"_qs, u"Resolution=180x180dpi"_qs} + options,
                      more + QStringList{document});
        EXPECT_EQ(tape.outcome.status, 0) << tape.outcome.messages.toStdString();
        return tape.labels;
    }

    /// The black of a label is this rectangle, in millimetres, to a dot at each side.
    static void expectBlack(const RasterPage &label, const Block &mm)
    {
        const QRect black = label.blackIn(QRect(QPoint(), label.size));
        EXPECT_NEAR(black.left(), mm.x * dotsPerMm, 1.01);
        EXPECT_NEAR(black.top(), mm.y * dotsPerMm, 1.01);
        EXPECT_NEAR(black.right() + 1, (mm.x + mm.width) * dotsPerMm, 1.01);
        EXPECT_NEAR(black.bottom() + 1, (mm.y + mm.height) * dotsPerMm, 1.01);
    }

    systemtest::PrivateFolder folder;
    /// All black.
    const ShapedPage small{12, 20, {{0, 0, 12, 20}}};
    const ShapedPage large{48, 200, {{0, 0, 48, 200}}};
    /// With a block of 2 x 4 mm at its top left.
    const ShapedPage marked{12, 20, {{0, 0, 2, 4}}};
};

TEST_F(LayoutOption, PrintScaling_AutoFitFillAndNone)
{
    expectBlack(printed({small}, {}).at(0), {6, 20, 12, 20});
    expectBlack(printed({small}, {u"print-scaling=auto"_qs}).at(0), {6, 20, 12, 20});
    // Twice as large it is as wide as the tape.
    expectBlack(printed({small}, {u"print-scaling=fit"_qs}).at(0), {0, 10, 24, 40});
    // Two and a half times: as long as there is room, and wider than the tape.
    expectBlack(printed({small}, {u"print-scaling=fill"_qs}).at(0), {0, 5, 24, 50});
    expectBlack(printed({large}, {u"print-scaling=auto"_qs}).at(0), {6, 5, 12, 50});
    expectBlack(printed({large}, {u"print-scaling=none"_qs}).at(0), {0, 5, 24, 50});
}

TEST_F(LayoutOption, OrientationRequested_TurnsByQuarters)
{
    expectBlack(printed({marked}, {u"orientation-requested=3"_qs}).at(0), {6, 20, 2, 4});
    // The page of 20 x 12 stands at 2, 24.
    expectBlack(printed({marked}, {u"orientation-requested=4"_qs}).at(0), {2, 34, 4, 2});
    expectBlack(printed({marked}, {u"orientation-requested=5"_qs}).at(0), {18, 24, 4, 2});
    expectBlack(printed({marked}, {u"orientation-requested=6"_qs}).at(0), {16, 36, 2, 4});
}

TEST_F(LayoutOption, Position_PutsTheMarkWhereItSays)
{
    expectBlack(printed({marked}, {u"position=top-left"_qs}).at(0), {0, 5, 2, 4});
    expectBlack(printed({marked}, {u"position=bottom-right"_qs}).at(0), {12, 35, 2, 4});
    expectBlack(printed({marked}, {u"position=left"_qs}).at(0), {0, 20, 2, 4});
}

TEST_F(LayoutOption, NumberUp_PutsTwoPagesOnOneLabelOnce)
{
    // Places of (50 mm less a gap of 3 points) / 2 = 24.47 mm; each page stands in the middle of its own.
    const std::vector<RasterPage> labels = printed({small, marked, small}, {u"number-up=2"_qs});
    ASSERT_EQ(labels.size(), 2U);
    const double place = (50 - 3 / 72.0 * 25.4) / 2;
    const double first = 5 + (place - 20) / 2;
    const double second = first + place + 3 / 72.0 * 25.4;
    expectBlack(labels[1], {6, first, 12, 20});
    const int half = labels[0].size.height() / 2;
    const QRect lower = labels[0].blackIn(QRect(0, half, labels[0].size.width(), half));
    EXPECT_NEAR(lower.top(), second * dotsPerMm, 1.01);
    EXPECT_NEAR(lower.height(), 4 * dotsPerMm, 2.01);
}

TEST_F(LayoutOption, PagesAndCopies_AddUp)
{
    const std::vector<ShapedPage> pages{
        {12, 20, {{0, 0, 1, 20}}}, {12, 20, {{0, 0, 2, 20}}}, {12, 20, {{0, 0, 3, 20}}}};
    const auto widths = [](const std::vector<RasterPage> &labels) {
        std::vector<long> mm;
        for (const RasterPage &label : labels) {
            mm.push_back(std::lround(label.blackIn(QRect(QPoint(), label.size)).width() / dotsPerMm));
        }
        return mm;
    };
    EXPECT_EQ(widths(printed(pages, {}, {u"-P"_qs, u"2-"_qs})), std::vector<long>({2, 3}));
    EXPECT_EQ(widths(printed(pages, {u"page-ranges=3,1"_qs})), std::vector<long>({1, 3}));
    EXPECT_EQ(widths(printed(pages, {u"page-set=odd"_qs, u"outputorder=reverse"_qs})), std::vector<long>({3, 1}));
}

TEST_F(LayoutOption, PageRanges_OnAnOrdinaryPrinter_AreTheFilters)
{
    const QString document =
        systemtest::writeFile(folder.path(u"document.pdf"_qs),
                              pdfWith({{24, 100, {{2, 2, 2, 9}}}, {24, 100, {{2, 2, 5, 9}}}, {24, 100, {}}}));
    const PrintedTape plain = printTape(folder, u"plain"_qs, {u"page-ranges=2"_qs}, {document});
    ASSERT_EQ(plain.labels.size(), 1U) << plain.outcome.messages.toStdString();
    const QRect black = plain.labels[0].blackIn(QRect(QPoint(), plain.labels[0].size));
    EXPECT_NEAR(black.width(), 5 * dotsPerMm, 2.0);
}

} // namespace

} // namespace printertest
