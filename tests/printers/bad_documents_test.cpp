// SPDX-License-Identifier: Apache-2.0
// Documents and settings of which no label can be made, and those that only look like it: said in words, or printed,
// and never a crash.
#include "tests/printers/LabelDocuments.h"
#include "tests/printers/PrintedTape.h"
#include "tests/printers/SamplePrinter.h"
#include "tests/support/ExitStatuses.h"
#include "tests/support/TextPrinting.h"

#include <QElapsedTimer>
#include <QImage>

#include <gtest/gtest.h>

namespace printertest
{

namespace
{

class BadDocument : public testing::Test
{
protected:
    QString written(const QString &name, const QByteArray &bytes) const
    {
        return systemtest::writeFile(folder.path(name), bytes);
    }

    /// Nothing is printed, and one line says why.
    void expectRefused(const QStringList &options, const QString &file, const char *part, const QStringList &more = {},
                       testsupport::ExitStatus status = testsupport::badDocument) const
    {
        const PrintedTape printed = printTape(folder, u"mm"_qs, options, more + QStringList{file});
        EXPECT_EQ(printed.outcome.status, status) << part;
        EXPECT_EQ(printed.outcome.output, "");
        EXPECT_TRUE(printed.outcome.messages.startsWith("tapeprint: ")) << printed.outcome.messages.toStdString();
        EXPECT_EQ(printed.outcome.messages.count('\n'), 1) << printed.outcome.messages.toStdString();
        EXPECT_TRUE(printed.outcome.messages.contains(part)) << printed.outcome.messages.toStdString();
    }

    systemtest::PrivateFolder folder;
    QString good = written(u"good.pdf"_qs, pdfWith({{10, 20, {{1, 1, 5, 5}}}}));
};

TEST_F(BadDocument, WithoutAPage_IsNamed)
{
    expectRefused({}, written(u"empty.pdf"_qs, pdfWith({})), "empty.pdf has no page");
    expectRefused({}, written(u"empty.pdf"_qs, pdfWith({})), "empty.pdf has no page", {u"--fit-length"_qs});
}

TEST_F(BadDocument, Broken_IsNamed)
{
    expectRefused({}, written(u"broken.pdf"_qs, "%PDF-1.4\nand no more\n"), "broken.pdf is damaged");
}

TEST_F(BadDocument, PageWithoutASize_IsNamed)
{
    expectRefused({}, written(u"nothing.pdf"_qs, pdfWith({{10, 20, {{1, 1, 5, 5}}}, {0, 0, {}}})),
                  "Page 2 of the document");
}

TEST_F(BadDocument, NoSuchPage_IsSaid)
{
    expectRefused({}, good, "None of the document's pages is chosen", {u"-P"_qs, u"7"_qs}, testsupport::refusedValue);
}

TEST_F(BadDocument, MarginsThatLeaveNothing_AreSaid)
{
    // The panel holds the margin within its own limits; on 12 mm of tape two margins of 6 leave nothing.
    expectRefused({u"KsTapeLength=12"_qs, u"KsMargin=6"_qs}, good, "leave nothing of the tape", {},
                  testsupport::refusedValue);
}

TEST_F(BadDocument, Unknown_IsNamed)
{
    expectRefused({},
                  written(u"program.bin"_qs, QByteArray("\x7f"
                                                        "ELF\0\0",
                                                        6)),
                  "program.bin is of a kind that cannot be laid out on tape");
}

TEST_F(BadDocument, PictureOf200Megapixels_IsRefusedWithinSeconds)
{
    const QString path = folder.path(u"huge.png"_qs);
    QImage picture(20000, 10000, QImage::Format_Mono);
    picture.fill(1);
    ASSERT_TRUE(picture.save(path));
    QElapsedTimer timer;
    timer.start();
    expectRefused({}, path, "20000 x 10000 dots");
    EXPECT_LT(timer.elapsed(), 10000); // tenths of a second on an idle machine
}

TEST_F(BadDocument, PageOfTenMetres_IsMadeSmaller)
{
    const PrintedTape printed = printTape(folder, u"mm"_qs, {u"KsTapeLength=50"_qs, u"KsMargin=5"_qs},
                                          {written(u"large.pdf"_qs, pdfWith({{5000, 10000, {{0, 0, 5000, 10000}}}}))});
    ASSERT_EQ(printed.labels.size(), 1U) << printed.outcome.messages.toStdString();
    const QRect black = printed.labels[0].blackIn(QRect(QPoint(), printed.labels[0].size));
    EXPECT_NEAR(black.height(), 40 / 25.4 * 300, 2.0);
    EXPECT_NEAR(black.width(), 20 / 25.4 * 300, 2.0);
}

TEST_F(BadDocument, PageThatNobodyCouldRead_IsPrintedAndSaidWhenThatIsAskedFor)
{
    // 3,600 by 20 points come out 40 mm long and two tenths of a millimetre wide.
    const QString line = written(u"line.pdf"_qs, pdfWith({{3600, 20, {{0, 0, 3600, 20}}}}));
    const QStringList tape{u"KsTapeLength=50"_qs, u"KsMargin=5"_qs};
    expectRefused(tape, line, "nobody can read", {}, testsupport::refusedValue);
    expectRefused(tape, line, "--adjust prints it all the same", {u"--check"_qs}, testsupport::refusedValue);
    const PrintedTape printed = printTape(folder, u"mm"_qs, tape, {u"--adjust"_qs, line});
    ASSERT_EQ(printed.labels.size(), 1U) << printed.outcome.messages.toStdString();
    EXPECT_TRUE(printed.outcome.messages.contains("nobody can read")) << printed.outcome.messages.toStdString();
    EXPECT_FALSE(printed.outcome.messages.contains("--adjust")) << printed.outcome.messages.toStdString();
}

TEST_F(BadDocument, LengthsBeyondTheLimits_AreHeldByThePanelAndSaidWhenThatIsAskedFor)
{
    const PrintedTape printed = printTape(folder, u"mm"_qs, {u"KsTapeLength=5000"_qs}, {u"--adjust"_qs, good});
    ASSERT_EQ(printed.labels.size(), 1U) << printed.outcome.messages.toStdString();
    EXPECT_EQ(printed.labels[0].size.height(), 11811); // a metre
    EXPECT_TRUE(printed.outcome.messages.contains("instead of 5000 the job carries 1000.0"))
        << printed.outcome.messages.toStdString();
}

TEST_F(BadDocument, TwoThousandPages_AreLaidOutInSeconds)
{
    // As far as the filters alone: of the 2,000 pages one is printed.
    const std::vector<ShapedPage> pages(2000, {20, 40, {{2, 2, 5, 5}}});
    const QString document = written(u"many.pdf"_qs, pdfWith(pages));
    QElapsedTimer timer;
    timer.start();
    const PrintedTape printed = printTape(folder, u"mm"_qs, {}, {u"-P"_qs, u"2000"_qs, document});
    EXPECT_EQ(printed.labels.size(), 1U) << printed.outcome.messages.toStdString();
    EXPECT_LT(timer.elapsed(), 20000);
}

} // namespace

} // namespace printertest
