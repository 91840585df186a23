// SPDX-License-Identifier: Apache-2.0
// A PDF page that has the size of the job's page goes through the filters as it is: not scaled, not turned, not
// shifted.
//
// Ghostscript puts the page's lower edge at its length in whole points, so content lies up to half a point too low or
// too high: (whole points - points) * dpi / 72 dots lower, and rows beyond the raster are lost.
#include "tests/printers/EdgedPage.h"
#include "tests/printers/FilterChain.h"
#include "tests/printers/SamplePrinter.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <ostream>

namespace printertest
{

namespace
{

struct Case {
    double widthMm;
    double lengthMm;
    SamplePrinter printer;
};

void PrintTo(const Case &tested, std::ostream *stream)
{
    *stream << parameterName(tested.printer) << ", " << tested.widthMm << " x " << tested.lengthMm << " mm";
}

std::vector<Case> cases()
{
    std::vector<Case> all;
    for (const SamplePrinter &printer : customPagePrinters()) {
        // Longer than wide, and wider than long; the last comes out too high, the others too low.
        for (const auto &[width, length] : {std::pair{24.0, 63.0}, {36.0, 21.0}, {24.0, 22.0}}) {
            all.push_back({width, length, printer});
        }
    }
    return all;
}

class PageOfTheJobsSize : public testing::TestWithParam<Case>
{
};

/// How much lower than meant the page comes out, in dots.
double loweredBy(double lengthMm, int dotsPerInch)
{
    const double points = lengthMm / 25.4 * 72.0;
    return (std::round(points) - points) * dotsPerInch / 72.0;
}

TEST_P(PageOfTheJobsSize, IsNeitherScaledNorTurnedNorShifted)
{
    const auto &[width, length, printer] = GetParam();
    // One block in each corner, no two alike, clear of the strip and of what the shift can lose.
    const std::array<Block, 4> blocks{
        {{1, 1, 2, 3}, {width - 5, 1, 4, 2}, {1, length - 6, 3, 5}, {width - 7, length - 3, 6, 2}}};
    const auto pages = rasterOf(printer.name, customPage(width, length) + printer.options,
                                pageWith(width, length, {blocks.begin(), blocks.end()}));
    ASSERT_EQ(pages.size(), 1U);
    const RasterPage &page = pages[0];
    const double across = printer.dotsPerInch.width() / 25.4;
    const double along = printer.dotsPerInch.height() / 25.4;
    for (std::size_t i = 0; i < blocks.size(); ++i) {
        const Block &block = blocks.at(i);
        const QSize quarter(page.size.width() / 2, page.size.height() / 2);
        const QPoint corner((i % 2 == 0) ? 0 : quarter.width(), (i < 2) ? 0 : quarter.height());
        const QRect black = page.blackIn(QRect(corner, quarter + QSize(1, 1)));
        const double lowered = loweredBy(length, printer.dotsPerInch.height());
        // Each dot that the block touches is black.
        EXPECT_NEAR(black.left(), std::floor((block.x - printer.stripMm) * across), 1) << "block " << i;
        EXPECT_NEAR(black.right() + 1, std::ceil((block.x + block.width - printer.stripMm) * across), 1)
            << "block " << i;
        EXPECT_NEAR(black.top(), std::floor(block.y * along + lowered), 1) << "block " << i;
        EXPECT_NEAR(black.bottom() + 1, std::ceil((block.y + block.height) * along + lowered), 1) << "block " << i;
    }
}

std::string nameOf(const testing::TestParamInfo<Case> &tested)
{
    return parameterName(tested.param.printer) + "_" + std::to_string(std::lround(tested.param.widthMm)) + "x" +
           std::to_string(std::lround(tested.param.lengthMm)) + "mm";
}

INSTANTIATE_TEST_SUITE_P(SamplePrinters, PageOfTheJobsSize, testing::ValuesIn(cases()), nameOf);

TEST(PageOfAnotherSize, WhoseShapeIsAnother_IsTurned)
{
    // What a page of its own size has to be spared: 24 x 25 mm is upright, 24 x 21 mm is not, and so it is turned,
    // though nothing may be scaled. Its block at the top left comes out at the right, or at the bottom.
    const auto pages =
        rasterOf(u"hn"_qs, customPage(24, 21) << u"Resolution=300x300dpi"_qs, pageWith(24, 25, {{3, 3, 4, 2}}));
    ASSERT_EQ(pages.size(), 1U);
    const QRect black = pages[0].blackIn(QRect(QPoint(), pages[0].size));
    EXPECT_LT(black.width(), black.height());
}

} // namespace

} // namespace printertest
