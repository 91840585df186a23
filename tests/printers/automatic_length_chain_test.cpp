// SPDX-License-Identifier: Apache-2.0
// --fit-length from document to printed tape: the label is as long as what is drawn and both margins, rounded up.
#include "tests/printers/LabelDocuments.h"
#include "tests/printers/PrintedTape.h"
#include "tests/printers/SamplePrinter.h"
#include "tests/support/ExitStatuses.h"
#include "tests/support/TextPrinting.h"

#include <QFile>
#include <QImage>

#include <gtest/gtest.h>

#include <cmath>

namespace printertest
{

namespace
{

class FitLength : public testing::Test
{
protected:
    /// The length that the job has, and the labels.
    PrintedTape fitted(const QString &printer, const QStringList &options, const QStringList &files) const
    {
        return printTape(folder, printer, options, QStringList{u"--fit-length"_qs} + files);
    }

    /// The label is that long, to a dot, and what is drawn begins and ends at the margins; the length is larger than
    /// needed by less than a step and a dot.
    static void expectFitted(const PrintedTape &printed, double lengthMm, double marginMm, double stepMm)
    {
        ASSERT_EQ(printed.outcome.status, 0) << printed.outcome.messages.toStdString();
        ASSERT_EQ(printed.labels.size(), 1U);
        const RasterPage &label = printed.labels[0];
        const double perMm = label.dotsPerInch.height() / 25.4;
        EXPECT_NEAR(label.size.height(), lengthMm * perMm, stepMm * perMm + 1.0);
        const QRect black = label.blackIn(QRect(QPoint(), label.size));
        EXPECT_NEAR(black.top(), marginMm * perMm, stepMm * perMm + 1.5);
        EXPECT_NEAR(label.size.height() - black.bottom() - 1, marginMm * perMm, stepMm * perMm + 1.5);
    }

    QString written(const QByteArray &pdf) const { return systemtest::writeFile(folder.path(u"document.pdf"_qs), pdf); }

    systemtest::PrivateFolder folder;
};

TEST_F(FitLength, StandingPage_IsAsLongAsItsBlocks)
{
    // From 10 to 47.3 mm: 37.3 + 4.
    expectFitted(
        fitted(u"mm"_qs, {u"KsMargin=2"_qs}, {written(pdfWith({{20, 120, {{2, 10, 5, 8}, {9, 30, 3, 17.3}}}}))}), 41.3,
        2, 0.1);
}

TEST_F(FitLength, LyingPage_GoesByItsWidth)
{
    // From 20 to 81 mm: 61 + 10. Whole millimetres.
    expectFitted(
        fitted(u"mv"_qs, {u"KsMargin=5"_qs}, {written(pdfWith({{100, 20, {{20, 2, 30, 8}, {60, 9, 21, 3}}}}))}), 71, 5,
        1.0);
}

TEST_F(FitLength, WhereNameSpacesAreForbidden_IsMeasuredAllTheSame)
{
    const QByteArray path = qgetenv("PATH");
    const QString refusing = systemtest::writeFile(
        folder.path(u"bwrap"_qs), "#!/bin/sh\necho 'bwrap: No permissions to create new namespace' >&2\nexit 1\n");
    ASSERT_TRUE(QFile::setPermissions(refusing, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
    qputenv("PATH", folder.path(u"."_qs).toLocal8Bit() + ':' + path);
    const PrintedTape printed =
        fitted(u"mm"_qs, {u"KsMargin=2"_qs}, {written(pdfWith({{46, 200, {{0, 40, 46, 60}}}}))});
    qputenv("PATH", path);
    EXPECT_TRUE(printed.outcome.messages.contains("No permissions")) << printed.outcome.messages.toStdString();
    expectFitted(printed, 34, 2, 0.1);
}

TEST_F(FitLength, LargePage_IsMadeAsNarrowAsTheTape)
{
    // 46 mm on the 23 that can be printed: half of 60 is 30, and 4.
    expectFitted(fitted(u"mm"_qs, {u"KsMargin=2"_qs}, {written(pdfWith({{46, 200, {{0, 40, 46, 60}}}}))}), 34, 2, 0.1);
}

TEST_F(FitLength, Picture_IsAsLongAsItsInk)
{
    QImage image(400, 100, QImage::Format_Grayscale8);
    image.fill(Qt::white);
    for (int y = 20; y < 80; ++y) {
        for (int x = 50; x < 286; ++x) {
            image.setPixel(x, y, 0);
        }
    }
    // 200 dots an inch: 236 are 29.97 mm.
    image.setDotsPerMeterX(7874);
    image.setDotsPerMeterY(7874);
    const QString path = folder.path(u"picture.png"_qs);
    ASSERT_TRUE(image.save(path));
    expectFitted(fitted(u"mm"_qs, {u"KsMargin=3"_qs}, {path}), 36, 3, 0.1);
}

TEST_F(FitLength, Inches_AreRoundedUpToHundredths)
{
    // 40 + 5.08 mm = 1.7748 in: 1.78 in = 45.212 mm, saved as 45.2.
    const PrintedTape printed =
        fitted(u"inch"_qs, {u"KsMargin=2.54"_qs}, {written(pdfWith({{10, 60, {{1, 5, 8, 40}}}}))});
    expectFitted(printed, 45.2, 2.54, 0.254);
}

TEST_F(FitLength, SeveralPages_AreAllAsLongAsTheLongest)
{
    const PrintedTape printed =
        fitted(u"mm"_qs, {u"KsMargin=2"_qs},
               {written(pdfWith({{20, 120, {{2, 10, 5, 8}}}, {20, 120, {{2, 10, 5, 30}}}, {20, 120, {}}}))});
    ASSERT_EQ(printed.labels.size(), 3U) << printed.outcome.messages.toStdString();
    for (const RasterPage &label : printed.labels) {
        EXPECT_NEAR(label.size.height(), 34 / 25.4 * 300, 2.2); // and what measuring may add, rounded up
    }
}

TEST_F(FitLength, PageInWhichNothingIsDrawn_SaysSoAndChangesNothing)
{
    const PrintedTape printed = fitted(u"mm"_qs, {u"KsMargin=2"_qs}, {written(pdfWith({{20, 120, {}}}))});
    EXPECT_EQ(printed.outcome.status, 0);
    EXPECT_TRUE(printed.outcome.messages.contains("Nothing is drawn on the document: the tape keeps its length."))
        << printed.outcome.messages.toStdString();
    ASSERT_EQ(printed.labels.size(), 1U);
    EXPECT_EQ(printed.labels[0].size.height(), 1181); // 100 mm
}

TEST_F(FitLength, LongerThanTheLongestTape_IsHeldAndSaid)
{
    // The longest is a metre; so short a page at the panel's shortest, 4 mm, is not held.
    const PrintedTape printed =
        fitted(u"mm"_qs, {u"KsMargin=2"_qs}, {written(pdfWith({{20, 1500, {{2, 10, 5, 1400}}}}))});
    ASSERT_EQ(printed.labels.size(), 1U) << printed.outcome.messages.toStdString();
    EXPECT_EQ(printed.labels[0].size.height(), 11811);
    EXPECT_TRUE(printed.outcome.messages.contains("needs more tape than the printer takes"))
        << printed.outcome.messages.toStdString();
}

TEST_F(FitLength, LengthThatWasAskedFor_IsNotOverwritten)
{
    const PrintedTape printed =
        fitted(u"mm"_qs, {u"KsTapeLength=60"_qs}, {written(pdfWith({{20, 120, {{2, 10, 5, 8}}}}))});
    EXPECT_EQ(printed.outcome.status, testsupport::badUsage);
    EXPECT_TRUE(printed.outcome.messages.contains("--fit-length and -o KsTapeLength"))
        << printed.outcome.messages.toStdString();
}

TEST_F(FitLength, FixedLengthPaper_IsNotMadeLonger)
{
    const PrintedTape printed =
        fitted(u"mm"_qs, {u"PageSize=DC24x80"_qs}, {written(pdfWith({{20, 30, {{2, 10, 5, 8}}}}))});
    ASSERT_EQ(printed.labels.size(), 1U) << printed.outcome.messages.toStdString();
    EXPECT_EQ(printed.labels[0].size.height(), 945); // 80 mm
    EXPECT_TRUE(printed.outcome.messages.contains("The length of DC24x80 is fixed"))
        << printed.outcome.messages.toStdString();
}

} // namespace

} // namespace printertest
