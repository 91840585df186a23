// SPDX-License-Identifier: Apache-2.0
// The tape length is the page: what is chosen comes out, to a dot, at each resolution and without a print server, and
// the margin is blank at both ends.
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

int dots(double mm, int dotsPerInch)
{
    return static_cast<int>(std::lround(mm / 25.4 * dotsPerInch));
}

struct Resolution {
    const char *printer;
    int across;
    int along;
};

TEST(TapeLength_WithoutServer, ThirtyFiftyAndAHundred_AreAsLongAtEachResolution)
{
    const systemtest::PrivateFolder folder;
    // All black: what stays blank are the margins.
    const QString document =
        systemtest::writeFile(folder.path(u"black.pdf"_qs), pdfWith({{24, 200, {{0, 0, 24, 200}}}}));
    for (const Resolution &tested :
         {Resolution{"mm", 300, 300}, {"mm", 300, 600}, {"hn", 180, 180}, {"hn", 300, 300}, {"mv", 300, 300}}) {
        for (const int length : {30, 50, 100}) {
            SCOPED_TRACE(testing::Message() << tested.printer << ' ' << tested.along << ' ' << length);
            const PrintedTape printed =
                printTape(folder, QString::fromLatin1(tested.printer),
                          {QStringLiteral("KsTapeLength=%1").arg(length), u"KsMargin=3"_qs, u"print-scaling=fill"_qs,
                           QStringLiteral("Resolution=%1x%2dpi").arg(tested.across).arg(tested.along)},
                          {document});
            ASSERT_EQ(printed.labels.size(), 1U) << printed.outcome.messages.toStdString();
            const RasterPage &label = printed.labels[0];
            EXPECT_EQ(label.dotsPerInch, QSize(tested.across, tested.along));
            EXPECT_EQ(label.size.height(), dots(length, tested.along));
            // A dot that is touched is black; so a margin may lose one, and never more.
            const QRect black = label.blackIn(QRect(QPoint(), label.size));
            const double margin = 3 / 25.4 * tested.along;
            EXPECT_GE(black.top(), std::floor(margin));
            EXPECT_LE(black.top(), std::ceil(margin));
            const double end = (length - 3) / 25.4 * tested.along;
            EXPECT_GE(black.bottom() + 1, std::floor(end));
            EXPECT_LE(black.bottom() + 1, std::ceil(end));
        }
    }
}

TEST(TapeLength_WithoutServer, Inches_AreAsLongAsThePanelShows)
{
    const systemtest::PrivateFolder folder;
    const QString document = systemtest::writeFile(folder.path(u"black.pdf"_qs), pdfWith({{24, 20, {{0, 0, 24, 20}}}}));
    // The panel keeps hundredths of an inch: 30 mm become 1.18 in (30.0 mm), 50 mm 1.97 in (50.0 mm).
    for (const int along : {360, 180}) {
        for (const int length : {30, 50}) {
            const PrintedTape printed = printTape(
                folder, u"inch"_qs,
                {QStringLiteral("KsTapeLength=%1").arg(length), QStringLiteral("Resolution=%1x360dpi").arg(along)},
                {document});
            ASSERT_EQ(printed.labels.size(), 1U) << printed.outcome.messages.toStdString();
            EXPECT_EQ(printed.labels[0].size.height(), dots(length, 360));
        }
    }
}

TEST(TapeLength_WithoutServer, LeftToTheDriver_IsThePapersAndIsSaid)
{
    const systemtest::PrivateFolder folder;
    const QString document = systemtest::writeFile(folder.path(u"a.pdf"_qs), pdfWith({{10, 20, {{1, 1, 5, 5}}}}));
    const PrintedTape printed = printTape(folder, u"fixed"_qs, {u"KsTapeLength=60"_qs}, {document});
    ASSERT_EQ(printed.labels.size(), 1U);
    EXPECT_EQ(printed.labels[0].size.height(), dots(100, printed.labels[0].dotsPerInch.height()));
    EXPECT_TRUE(printed.outcome.messages.contains("the page stays 100.0 mm long, and the length is left to the driver"))
        << printed.outcome.messages.toStdString();
}

TEST(TapeLength_WithoutServer, NearANamedLength_IsTheNamedOneAndIsSaid)
{
    const systemtest::PrivateFolder folder;
    const QString document = systemtest::writeFile(folder.path(u"a.pdf"_qs), pdfWith({{10, 20, {{1, 1, 5, 5}}}}));
    const PrintedTape tape = printTape(folder, u"mm"_qs, {u"KsTapeLength=99.5"_qs}, {document});
    ASSERT_EQ(tape.labels.size(), 1U);
    EXPECT_EQ(tape.labels[0].size.height(), dots(100, 300));
    EXPECT_TRUE(tape.outcome.messages.contains("100.0 mm")) << tape.outcome.messages.toStdString();
    const PrintedTape label = printTape(folder, u"mm"_qs, {u"PageSize=12mm"_qs, u"KsTapeLength=44.8"_qs}, {document});
    ASSERT_EQ(label.labels.size(), 1U);
    EXPECT_EQ(label.labels[0].size.height(), dots(45, 300));
    EXPECT_TRUE(label.outcome.messages.contains("45.0 mm")) << label.outcome.messages.toStdString();
}

} // namespace

} // namespace printertest
