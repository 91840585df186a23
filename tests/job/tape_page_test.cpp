// SPDX-License-Identifier: Apache-2.0
// The page that comes out: which size the job asks for, what stays blank, and who decides the length.
#include "tests/job/TapePpd.h"
#include "tests/support/TextPrinting.h"

#include <gtest/gtest.h>

namespace
{

using jobtest::customPages;
using jobtest::pageOf;
using jobtest::tapePpdText;
using tapeprint::job::PageLength;
using tapeprint::job::TapePage;
using Entries = std::initializer_list<tapeprint::job::JobOptions::Entry>;

// One point is 25.4 / 72 mm.
constexpr double mmOfPoint = 25.4 / 72.0;

TapePage tapeOf(const char *lengthMm, const char *margin = "0")
{
    return pageOf(tapePpdText(),
                  {{u"Length"_qs, QString::fromLatin1(lengthMm)}, {u"Margin"_qs, QString::fromLatin1(margin)}});
}

void expectSize(const TapePage &page, double width, double height)
{
    EXPECT_NEAR(page.sizePt.width(), width, 1e-9);
    EXPECT_NEAR(page.sizePt.height(), height, 1e-9);
}

TEST(TapePage_Paper, WithoutALengthOption_IsThePaperAndNoTape)
{
    const TapePage page = pageOf(tapePpdText(), {});
    EXPECT_EQ(page.pageSize, u"T72"_qs);
    expectSize(page, 72, 288);
    EXPECT_EQ(page.unprintablePt, QMarginsF(3, 0, 3, 0));
    EXPECT_EQ(page.length, PageLength::Paper);
    EXPECT_FALSE(page.isTape);
    EXPECT_EQ(page.freeEndsPt, 0.0);
}

TEST(TapePage_Paper, WithoutKeywords_IsNoTapeThoughTheJobHasALength)
{
    const tapeprint::job::PpdFile ppd = jobtest::ppdOf(tapePpdText());
    const TapePage page = tapePageOf(ppd.get(), jobtest::options({{u"Length"_qs, u"50.8"_qs}}), {});
    EXPECT_FALSE(page.isTape);
    EXPECT_EQ(page.pageSize, u"T72"_qs);
}

TEST(TapePage_Paper, MarkedPaper_IsTaken)
{
    const TapePage page = pageOf(tapePpdText(), {{u"PageSize"_qs, u"DC72"_qs}});
    EXPECT_EQ(page.pageSize, u"DC72"_qs);
    expectSize(page, 72, 216);
    EXPECT_EQ(page.unprintablePt, QMarginsF(3, 4, 5, 6));
    EXPECT_EQ(page.printableRect(), QRectF(3, 4, 64, 206));
}

TEST(TapePage_Length, Free_IsACustomPageOfThatLength)
{
    // 80 mm of a tape that is 25.4 mm wide.
    const TapePage page = tapeOf("80");
    EXPECT_EQ(page.pageSize, u"Custom.25.4x80mm"_qs);
    expectSize(page, 72, 80 / mmOfPoint);
    EXPECT_EQ(page.length, PageLength::Chosen);
    EXPECT_TRUE(page.isTape);
}

TEST(TapePage_Length, Free_HasTheStripsOfCustomPages)
{
    EXPECT_EQ(tapeOf("80").unprintablePt, QMarginsF(2, 1, 4, 5));
}

TEST(TapePage_Length, Fraction_IsWrittenShortAndKeptToTheThousandth)
{
    EXPECT_EQ(tapeOf("80.50").pageSize, u"Custom.25.4x80.5mm"_qs);
    // The page is what the name says, so that document and description agree.
    const TapePage page = tapeOf("80.12345");
    EXPECT_EQ(page.pageSize, u"Custom.25.4x80.123mm"_qs);
    expectSize(page, 72, 80.123 / mmOfPoint);
}

TEST(TapePage_Length, PapersOwn_StaysThePaper)
{
    // 288 points are 101.6 mm; panels round to tenths, and a hundredth of a millimetre beside is the paper as well.
    for (const char *length : {"101.6", "101.61", "101.59"}) {
        const TapePage page = tapeOf(length);
        EXPECT_EQ(page.pageSize, u"T72"_qs) << length;
        EXPECT_EQ(page.length, PageLength::Paper) << length;
        expectSize(page, 72, 288);
        EXPECT_TRUE(page.isTape);
    }
}

TEST(TapePage_Length, FixedLengthPaper_IsThePaperWhateverLengthTheJobHas)
{
    const TapePage page = pageOf(tapePpdText(), {{u"PageSize"_qs, u"DC72"_qs}, {u"Length"_qs, u"40"_qs}});
    EXPECT_EQ(page.pageSize, u"DC72"_qs);
    expectSize(page, 72, 216);
    EXPECT_EQ(page.length, PageLength::Paper);
    EXPECT_TRUE(page.isTape);
    EXPECT_TRUE(page.hasFixedLength);
    EXPECT_FALSE(tapeOf("40").hasFixedLength);
}

TEST(TapePage_Length, AtTheLimits_IsTaken)
{
    // 36 and 720 points.
    const TapePage shortest = tapeOf("12.7");
    EXPECT_EQ(shortest.pageSize, u"Custom.25.4x12.7mm"_qs);
    expectSize(shortest, 72, 36);
    const TapePage longest = tapeOf("254");
    EXPECT_EQ(longest.pageSize, u"Custom.25.4x254mm"_qs);
    expectSize(longest, 72, 720);
}

TEST(TapePage_Length, BeyondTheLimits_IsLeftToTheDriver)
{
    for (const char *length : {"12.69", "254.01", "1000", "1e12", "1e300", "1e-3"}) {
        const TapePage page = tapeOf(length);
        EXPECT_EQ(page.length, PageLength::LeftToDriver) << length;
        EXPECT_EQ(page.pageSize, u"T72"_qs) << length;
        expectSize(page, 72, 288);
        EXPECT_TRUE(page.isTape) << length;
    }
}

TEST(TapePage_Length, WithoutCustomPages_IsLeftToTheDriver)
{
    const TapePage page = pageOf(tapePpdText({}), {{u"Length"_qs, u"80"_qs}});
    EXPECT_EQ(page.length, PageLength::LeftToDriver);
    EXPECT_EQ(page.pageSize, u"T72"_qs);
    expectSize(page, 72, 288);
}

TEST(TapePage_Length, PaperTooWideForCustomPages_IsLeftToTheDriver)
{
    QByteArray narrow = customPages;
    narrow.replace("Width: 1 points 36 144", "Width: 1 points 36 71");
    EXPECT_EQ(pageOf(tapePpdText(narrow), {{u"Length"_qs, u"80"_qs}}).length, PageLength::LeftToDriver);
}

TEST(TapePage_Length, NoNumberOrNone_IsNoTape)
{
    for (const char *length : {"", "0", "-5", "inf", "-inf", "nan", "long"}) {
        EXPECT_FALSE(tapeOf(length).isTape) << length;
        EXPECT_EQ(tapeOf(length).pageSize, u"T72"_qs) << length;
    }
}

// The rasteriser takes a named size within a hundredth, less a ten-thousandth, in both directions: of 101.6 mm that is
// 1.0058 mm, of 50.8 mm 0.5029 mm.
TEST(TapePage_NearNamed, BesideThePaper_BecomesThePaper)
{
    for (const char *length : {"100.6", "102.6"}) {
        const TapePage page = tapeOf(length);
        EXPECT_EQ(page.length, PageLength::PaperForNear) << length;
        EXPECT_EQ(page.pageSize, u"T72"_qs) << length;
        expectSize(page, 72, 288);
        EXPECT_EQ(page.unprintablePt, QMarginsF(3, 0, 3, 0));
    }
}

TEST(TapePage_NearNamed, JustFarEnough_IsChosen)
{
    for (const char *length : {"100.59", "102.61"}) {
        EXPECT_EQ(tapeOf(length).length, PageLength::Chosen) << length;
        EXPECT_EQ(tapeOf(length).pageSize, QStringLiteral("Custom.25.4x%1mm").arg(QLatin1String(length)));
    }
}

TEST(TapePage_NearNamed, BesideAnotherPaper_BecomesThatPapersSizeAndIsNotTheChosenLength)
{
    const TapePage page = tapeOf("50.4");
    EXPECT_EQ(page.length, PageLength::NamedForNear);
    EXPECT_EQ(page.pageSize, u"Custom.25.4x50.8mm"_qs);
    expectSize(page, 72, 144);
    EXPECT_EQ(page.unprintablePt, QMarginsF(0, 0, 0, 0));
}

TEST(TapePage_NearNamed, OfAnotherPaperExactly_IsChosenWithThatPapersStrips)
{
    const TapePage page = tapeOf("50.8");
    EXPECT_EQ(page.length, PageLength::Chosen);
    EXPECT_EQ(page.pageSize, u"Custom.25.4x50.8mm"_qs);
    EXPECT_EQ(page.unprintablePt, QMarginsF(0, 0, 0, 0));
}

/// The description with one more size.
QByteArray withSize(const QByteArray &dimension, const QByteArray &area)
{
    QByteArray text = tapePpdText();
    for (const char *keyword : {"*PageSize", "*PageRegion"}) {
        const QByteArray line = QByteArray(keyword) + " S72/Short tape: \"\"\n";
        text.replace(line, line + keyword + " More/More: \"\"\n");
    }
    return text + "*ImageableArea More/More: \"" + area + "\"\n*PaperDimension More/More: \"" + dimension + "\"\n";
}

TEST(TapePage_NearNamed, PrintableAreaOfAPaper_IsAskedForAPercentWider)
{
    // 72 x 360 points with strips of 20 at the ends: 72 x 320 are printable. 320 points are 112.889 mm.
    const QByteArray ppd = withSize("72 360", "0 20 72 340");
    const TapePage page = pageOf(ppd, {{u"Length"_qs, u"113"_qs}});
    EXPECT_EQ(page.length, PageLength::Chosen);
    // 25.4 mm and 1.01 percent, to the thousandth.
    EXPECT_EQ(page.pageSize, u"Custom.25.657x113mm"_qs);
    expectSize(page, 25.657 / mmOfPoint, 113 / mmOfPoint);
    // What is printed on stays the tape: 2 points from the left, 4 from the tape's right.
    EXPECT_NEAR(page.printableRect().left(), 2, 1e-9);
    EXPECT_NEAR(page.printableRect().right(), 68, 1e-9);
    EXPECT_EQ(pageOf(ppd, {{u"Length"_qs, u"116"_qs}}).pageSize, u"Custom.25.4x116mm"_qs);
}

TEST(TapePage_NearNamed, PaperThatLiesAcross_IsAskedForAPercentWider)
{
    // 108 x 72 points lie as 72 x 108 stand: 108 points are 38.1 mm.
    const QByteArray ppd = withSize("108 72", "0 0 108 72");
    EXPECT_EQ(pageOf(ppd, {{u"Length"_qs, u"38.1"_qs}}).pageSize, u"Custom.25.657x38.1mm"_qs);
    EXPECT_EQ(pageOf(ppd, {{u"Length"_qs, u"38.4"_qs}}).pageSize, u"Custom.25.657x38.4mm"_qs);
    EXPECT_EQ(pageOf(ppd, {{u"Length"_qs, u"38.5"_qs}}).pageSize, u"Custom.25.4x38.5mm"_qs);
}

TEST(TapePage_NearNamed, PaperThatLiesAcrossAndNoWiderPage_IsLeftToTheDriver)
{
    QByteArray ppd = withSize("108 72", "0 0 108 72");
    ppd.replace("Width: 1 points 36 144", "Width: 1 points 36 72");
    EXPECT_EQ(pageOf(ppd, {{u"Length"_qs, u"38.1"_qs}}).length, PageLength::LeftToDriver);
}

TEST(TapePage_NearNamed, PaperOfTheSameSizeAsAnother_IsItself)
{
    const QByteArray ppd = withSize("72 288", "0 0 72 288");
    for (const char *paper : {"T72", "More"}) {
        const TapePage page = pageOf(ppd, {{u"PageSize"_qs, QLatin1String(paper)}, {u"Length"_qs, u"101"_qs}});
        EXPECT_EQ(page.length, PageLength::PaperForNear) << paper;
        EXPECT_EQ(page.pageSize, QLatin1String(paper));
    }
}

TEST(TapePage_Margin, IsFreeAtBothEndsCountedFromTheTapesEnds)
{
    // 5.08 mm are 14.4 points; the strips at top (1) and bottom (5) lie within.
    const TapePage page = tapeOf("127", "5.08"); // 360 points
    EXPECT_NEAR(page.freeEndsPt, 14.4, 1e-9);
    EXPECT_NEAR(page.layoutRect().top(), 14.4, 1e-9);
    EXPECT_NEAR(page.layoutRect().bottom(), 360 - 14.4, 1e-9);
    EXPECT_NEAR(page.layoutRect().left(), 2, 1e-9);
    EXPECT_NEAR(page.layoutRect().right(), 68, 1e-9);
}

TEST(TapePage_Margin, SmallerThanTheStrip_LeavesTheStripFree)
{
    const TapePage page = tapeOf("127", "0.7055"); // 2 points: more than the top's 1, less than the bottom's 5
    EXPECT_NEAR(page.layoutRect().top(), 2, 1e-3);
    EXPECT_NEAR(page.layoutRect().bottom(), 355, 1e-9);
}

TEST(TapePage_Margin, ThatLeavesNothing_LeavesNoPlaceToLayOut)
{
    EXPECT_TRUE(tapeOf("127", "63.5").layoutRect().isEmpty());
    EXPECT_TRUE(tapeOf("127", "99").layoutRect().isEmpty());
    EXPECT_FALSE(tapeOf("127", "63").layoutRect().isEmpty());
    EXPECT_TRUE(tapeOf("127", "1e300").layoutRect().isEmpty());
}

TEST(TapePage_Margin, NegativeOrNoNumber_IsNone)
{
    for (const char *margin : {"-3", "nan", "inf", "wide", ""}) {
        EXPECT_EQ(tapeOf("127", margin).freeEndsPt, 0.0) << margin;
    }
}

TEST(TapePage_Margin, IsKeptOnThePaperToo)
{
    EXPECT_NEAR(tapeOf("101.6", "2.54").freeEndsPt, 7.2, 1e-9);
}

TEST(TapePage_Custom, CustomPaperMarked_GivesTheWidth)
{
    const TapePage page = pageOf(tapePpdText(), {{u"PageSize"_qs, u"Custom.100x200"_qs}, {u"Length"_qs, u"127"_qs}});
    // 100 points are 35.278 mm to the thousandth.
    EXPECT_EQ(page.pageSize, u"Custom.35.278x127mm"_qs);
    expectSize(page, 35.278 / mmOfPoint, 360);
}

TEST(TapePage_Custom, CustomPaperWithoutALength_IsItself)
{
    const TapePage page = pageOf(tapePpdText(), {{u"PageSize"_qs, u"Custom.100x200"_qs}});
    EXPECT_EQ(page.pageSize, u"Custom.100x200"_qs);
    expectSize(page, 100, 200);
    EXPECT_FALSE(page.isTape);
}

TEST(TapePage_Nothing, WithoutDescriptionOrSizes_IsEmpty)
{
    EXPECT_TRUE(tapePageOf(nullptr, jobtest::options({{u"Length"_qs, u"80"_qs}}), jobtest::tapeKeywords()).isEmpty());
    QByteArray bare = tapePpdText();
    bare = bare.left(bare.indexOf("*OpenUI"));
    const TapePage page = pageOf(bare, {{u"Length"_qs, u"80"_qs}});
    EXPECT_TRUE(page.isEmpty());
    EXPECT_FALSE(page.isTape);
    EXPECT_TRUE(page.layoutRect().isEmpty());
}

TEST(TapePage_Units, PointsAndMillimetres_AreThoseOfTheTrueInch)
{
    EXPECT_DOUBLE_EQ(tapeprint::job::pointsFromMm(25.4), 72.0);
    EXPECT_DOUBLE_EQ(tapeprint::job::mmFromPoints(36.0), 12.7);
}

} // namespace
