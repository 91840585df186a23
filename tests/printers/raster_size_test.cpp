// SPDX-License-Identifier: Apache-2.0
// The raster of a page is the page to a dot, at every resolution of every sample printer.
//
// The rasteriser is Ghostscript (gstoraster). It takes the page's size from the PDF page that pdftopdf hands on, which
// has the size that libcups reads from the job's PageSize, in points of single precision. A size of the PPD that is
// within 1 % of it in both directions takes its place. Of the size, in each direction, the two margins are taken away
// (ImageableArea of a listed size, HWMargins of a custom page), and what is left is * dpi / 72 dots, to the nearest.
#include "tests/printers/EdgedPage.h"
#include "tests/printers/FilterChain.h"
#include "tests/printers/SamplePrinter.h"

#include <gtest/gtest.h>

#include <array>
#include <ostream>
#include <utility>

namespace printertest
{

namespace
{

std::string nameOf(const testing::TestParamInfo<SamplePrinter> &info)
{
    return parameterName(info.param);
}

/// One page of this size and resolution.
void expectRaster(const std::vector<RasterPage> &pages, QSize dots, QSize dotsPerInch)
{
    ASSERT_EQ(pages.size(), 1U);
    EXPECT_EQ(pages[0].dotsPerInch, dotsPerInch);
    EXPECT_EQ(pages[0].size.width(), dots.width());
    EXPECT_EQ(pages[0].size.height(), dots.height());
}

class CustomPage : public testing::TestWithParam<SamplePrinter>
{
};

TEST_P(CustomPage, WithinTheTapesLimits_BecomesARasterOfItsTrueSize)
{
    // The four corners of the limits, lengths that are wider than long, and fractions of a millimetre.
    constexpr std::array<std::pair<double, double>, 10> sizesMm{
        {{4, 4}, {36, 4}, {4, 1000}, {36, 1000}, {24, 30}, {24, 50}, {24, 99}, {36, 20}, {12, 77.7}, {18, 456.7}}};
    for (const auto &[width, length] : sizesMm) {
        SCOPED_TRACE(testing::Message() << width << " x " << length << " mm");
        const QStringList options = customPage(width, length) + GetParam().options;
        expectRaster(rasterOf(GetParam().name, options, pageWith(width, length)),
                     expectedDots(GetParam(), width, length), GetParam().dotsPerInch);
    }
}

INSTANTIATE_TEST_SUITE_P(SamplePrinter, CustomPage, testing::ValuesIn(customPagePrinters()), nameOf);

class ListedPage : public testing::TestWithParam<SamplePrinter>
{
};

TEST_P(ListedPage, BecomesARasterOfTheSizeThatItsNameSays)
{
    for (const ListedPaper &paper : listedPapers()) {
        SCOPED_TRACE(paper.keyword.toStdString());
        const QStringList options = QStringList{u"PageSize="_qs + paper.keyword} + GetParam().options;
        expectRaster(rasterOf(GetParam().name, options, pageWith(paper.widthMm, paper.lengthMm)),
                     expectedDots(GetParam(), paper.widthMm, paper.lengthMm), GetParam().dotsPerInch);
    }
}

INSTANTIATE_TEST_SUITE_P(SamplePrinter, ListedPage, testing::ValuesIn(printersAtTheirFinest()), nameOf);

TEST(RasterSize, WorkedOutByHand)
{
    // 24 mm are 283.46 dots at 300 dpi, 30 mm are 354.33; the strips of half a millimetre take 11.81 of the width.
    expectRaster(rasterOf(u"hn"_qs, customPage(24, 30) << u"Resolution=300x300dpi"_qs, pageWith(24, 30)),
                 QSize(283, 354), QSize(300, 300));
    expectRaster(rasterOf(u"mm"_qs, customPage(24, 30), pageWith(24, 30)), QSize(272, 354), QSize(300, 300));
    // 36 mm are 850.39 dots at 600 dpi, 1 m is 23622.05; 23 mm are 162.99 dots at 180 dpi, 30 mm are 425.20 at 360.
    expectRaster(rasterOf(u"hn"_qs, customPage(36, 1000) << u"Resolution=600x600dpi"_qs, pageWith(36, 1000)),
                 QSize(850, 23622), QSize(600, 600));
    expectRaster(rasterOf(u"inch"_qs, customPage(24, 30), pageWith(24, 30)), QSize(163, 425), QSize(180, 360));
}

TEST(RasterSize, LengthOtherThanTheListedOne_IsNotTakenForIt)
{
    // A millimetre beside the listed 100 mm is one per cent and so another page: 99 mm are 1169.3 rows, 101 mm 1192.9.
    EXPECT_EQ(rasterOf(u"mv"_qs, customPage(24, 99), pageWith(24, 99)).at(0).size.height(), 1169);
    EXPECT_EQ(rasterOf(u"mv"_qs, customPage(24, 101), pageWith(24, 101)).at(0).size.height(), 1193);
}

TEST(RasterSize, LengthWithinOnePerCentOfAListedOne_IsReachedOnAPageJustWider)
{
    // Ghostscript takes 24 x 99.5 mm for the listed 24 x 100 mm, 1181.1 rows, whatever the job says. No listed size is
    // within 1 % of 24.25 mm: 99.5 mm are 1175.2 rows, and 24.25 mm less the strips are 274.6 dots.
    expectRaster(rasterOf(u"mm"_qs, customPage(24, 99.5), pageWith(24, 99.5)), QSize(272, 1181), QSize(300, 300));
    expectRaster(rasterOf(u"mm"_qs, customPage(24.25, 99.5), pageWith(24.25, 99.5)), QSize(275, 1175), QSize(300, 300));
}

TEST(RasterSize, DescriptionWithoutCustomPages_KeepsItsListedSize)
{
    // 24 mm less the strips are 271.7 dots, 100 mm are 1181.1.
    expectRaster(rasterOf(u"fixed"_qs, customPage(24, 30), pageWith(24, 30)), QSize(272, 1181), QSize(300, 300));
}

} // namespace

} // namespace printertest
