// SPDX-License-Identifier: Apache-2.0
// What goes to the filters: pages are selected and ordered by the job or by the filters, never by both.
#include "job/LaidOutDocument.h"
#include "job/PreparedJob.h"
#include "job/Printing.h"

#include "tests/job/DocumentPictures.h"
#include "tests/job/PdfText.h"
#include "tests/job/TapePpd.h"
#include "tests/support/TextPrinting.h"

#include <QFile>

#include <gtest/gtest.h>

namespace
{

using namespace tapeprint::job; // NOLINT(google-build-using-namespace): the test is about all of it
using jobtest::blockPage;
using jobtest::pdfOf;

const std::atomic<bool> goOn = false;

class PreparedJobTest : public testing::Test
{
protected:
    static SettledJob job(bool isTape, std::initializer_list<JobOptions::Entry> entries)
    {
        SettledJob job;
        job.options = jobtest::options(entries);
        job.page.pageSize = u"P"_qs;
        job.page.sizePt = {200, 300};
        job.page.isTape = isTape;
        return job;
    }

    /// The widths of a document's pages, which tell them apart.
    static QList<int> widths(const QString &pdf)
    {
        Problem error;
        QList<int> widths;
        for (const QSizeF &size : pageSizesOf(pdf, &error).value_or(PageSizes())) {
            widths.append(qRound(size.width()));
        }
        EXPECT_TRUE(error.isNull()) << error.sentence.toStdString();
        return widths;
    }

    QList<QList<int>> prepared(const SettledJob &job, const QStringList &files)
    {
        Problem error;
        const std::optional<PreparedJob> ready = prepareJob(job, files, goOn, &error);
        EXPECT_TRUE(ready) << error.sentence.toStdString();
        QList<QList<int>> documents;
        carried = ready ? ready->options.lines() : QStringList();
        for (const QString &file : ready ? ready->files : QStringList()) {
            documents.append(widths(file));
        }
        return documents;
    }

    /// Pages as wide as 10 times their number.
    QString documentOf(const QString &name, int first, int last) const
    {
        std::vector<jobtest::PdfPage> pages;
        for (int page = first; page <= last; ++page) {
            pages.push_back(blockPage(10 * page, 100, {}));
        }
        return folder.write(name, pdfOf(pages));
    }

    jobtest::Folder folder;
    QString four = documentOf(u"a.pdf"_qs, 1, 4);
    QString five = documentOf(u"b.pdf"_qs, 5, 6);
    QStringList carried;
};

TEST_F(PreparedJobTest, PaperWithOneDocument_LeavesSelectionToTheFilters)
{
    EXPECT_EQ(prepared(job(false, {{u"page-ranges"_qs, u"3,1"_qs}, {u"page-set"_qs, u"odd"_qs}}), {four}),
              (QList<QList<int>>{{10, 20, 30, 40}}));
    // In the form that a print server takes.
    EXPECT_EQ(carried, QStringList({u"page-ranges=1,3"_qs, u"page-set=odd"_qs}));
}

TEST_F(PreparedJobTest, PaperWithSeveralPagesASheet_HasItsPagesChosenBeforeTheFilters)
{
    EXPECT_EQ(
        prepared(job(false, {{u"page-ranges"_qs, u"2-4"_qs}, {u"number-up"_qs, u"2"_qs}, {u"copies"_qs, u"2"_qs}}),
                 {four}),
        (QList<QList<int>>{{20, 30, 40}}));
    EXPECT_EQ(carried, QStringList({u"number-up=2"_qs, u"copies=2"_qs}));
}

TEST_F(PreparedJobTest, PaperWithSeveralDocuments_HasItsPagesNumberedThrough)
{
    EXPECT_EQ(prepared(job(false, {{u"page-ranges"_qs, u"4-5"_qs}}), {four, five}), (QList<QList<int>>{{40}, {50}}));
    EXPECT_EQ(prepared(job(false, {{u"page-ranges"_qs, u"5-"_qs}, {u"page-set"_qs, u"even"_qs}}), {four, five}),
              (QList<QList<int>>{{60}}));
    EXPECT_EQ(carried, QStringList());
}

TEST_F(PreparedJobTest, PaperInReverse_HasItsDocumentsReversedAndTheFiltersReverseThePages)
{
    EXPECT_EQ(prepared(job(false, {{u"outputorder"_qs, u"reverse"_qs}}), {four, five}),
              (QList<QList<int>>{{50, 60}, {10, 20, 30, 40}}));
    EXPECT_EQ(carried, QStringList{u"outputorder=reverse"_qs});
}

TEST_F(PreparedJobTest, NoPageOfPaperChosen_IsSaid)
{
    Problem error;
    EXPECT_FALSE(
        prepareJob(job(false, {{u"page-ranges"_qs, u"9"_qs}, {u"number-up"_qs, u"2"_qs}}), {four}, goOn, &error));
    EXPECT_EQ(error.sentence, u"None of the document's pages is chosen: change the page range."_qs);
}

TEST_F(PreparedJobTest, NoPageOfPaperChosenByTheFilters_IsSaidAsWell)
{
    const QString one = documentOf(u"one.pdf"_qs, 1, 1);
    for (const auto &[file, options] :
         {std::pair{four, jobtest::options({{u"page-ranges"_qs, u"5-9"_qs}})},
          std::pair{four, jobtest::options({{u"page-ranges"_qs, u"3"_qs}, {u"page-set"_qs, u"even"_qs}})},
          std::pair{one, jobtest::options({{u"page-set"_qs, u"even"_qs}})},
          std::pair{four, jobtest::options({{u"page-set"_qs, u"even"_qs}, {u"number-up"_qs, u"4"_qs}})}}) {
        SettledJob paper = job(false, {});
        paper.options = options;
        Problem error;
        EXPECT_FALSE(prepareJob(paper, {file}, goOn, &error)) << options.lines().join(u' ').toStdString();
        EXPECT_EQ(error.sentence, u"None of the document's pages is chosen: change the page range."_qs);
    }
    // The second sheet has the third and the fourth page.
    EXPECT_EQ(prepared(job(false, {{u"page-set"_qs, u"even"_qs}, {u"number-up"_qs, u"2"_qs}}), {four}).size(), 1);
    EXPECT_EQ(prepared(job(false, {{u"page-ranges"_qs, u"4-9"_qs}}), {four}).size(), 1);
}

TEST_F(PreparedJobTest, TextOnPaper_GoesToTheFiltersInAnEncodingThatTheyReadToItsEnd)
{
    const auto printed = [](const SettledJob &paper, const QString &file) {
        Problem error;
        const std::optional<PreparedJob> ready = prepareJob(paper, {file}, goOn, &error);
        QFile text(ready ? ready->files.value(0) : QString());
        EXPECT_TRUE(text.open(QIODevice::ReadOnly)) << error.sentence.toStdString();
        return text.readAll();
    };
    SettledJob paper = job(false, {});
    paper.queuePpd = "*PPD-Adobe: \"4.3\"\n";
    const QByteArray latin1 = "Gr\xfc\xdf"
                              "e f\xfcr 5 \x80\n";
    const QByteArray utf8 = u"Grüße für 5 €\n"_qs.toUtf8();
    const QString file = folder.write(u"latin1.txt"_qs, latin1);
    EXPECT_EQ(printed(paper, file), utf8);
    EXPECT_EQ(printed(paper, folder.write(u"cut.txt"_qs, "Gr\xc3\xbc\xc3")), u"GrÃ¼Ã"_qs.toUtf8());
    EXPECT_EQ(printed(paper, folder.write(u"utf8.txt"_qs, utf8)), utf8);
    EXPECT_EQ(printed(paper, folder.write(u"marked.txt"_qs, "\xef\xbb\xbf" + utf8)), utf8);
    // Nobody knows what a printer without a description makes of them.
    EXPECT_EQ(printed(job(false, {}), file), latin1);
    paper.options.set(u"raw"_qs, u"true"_qs);
    EXPECT_EQ(printed(paper, file), latin1);
}

TEST_F(PreparedJobTest, Tape_IsOneDocumentOfLabelsAndCopiesAreLeftToTheFilters)
{
    const QList<QList<int>> labels = prepared(job(true, {{u"page-ranges"_qs, u"2-5"_qs},
                                                         {u"outputorder"_qs, u"reverse"_qs},
                                                         {u"copies"_qs, u"3"_qs},
                                                         {u"collate"_qs, u"True"_qs}}),
                                              {four, five});
    EXPECT_EQ(labels, (QList<QList<int>>{{200, 200, 200, 200}}));
    EXPECT_EQ(carried, QStringList({u"copies=3"_qs, u"collate=True"_qs, u"PageSize=P"_qs, u"print-scaling=none"_qs}));
}

TEST_F(PreparedJobTest, TapeOfADescriptionThatReverses_IsKeptInItsOrder)
{
    SettledJob reversed = job(true, {});
    reversed.isReversedByPpd = true;
    prepared(reversed, {four});
    EXPECT_TRUE(carried.contains(u"outputorder=normal"_qs)) << carried.join(u' ').toStdString();
}

TEST_F(PreparedJobTest, SavedAsPdf_PaperIsItsChosenPagesInTheirOrder)
{
    SettledJob saved =
        job(false, {{u"page-ranges"_qs, u"3-5"_qs}, {u"outputorder"_qs, u"reverse"_qs}, {u"copies"_qs, u"2"_qs}});
    saved.pdfPath = folder.path(u"saved.pdf"_qs);
    Problem error;
    const std::optional<PrintedJob> printed = printJob(saved, u"t"_qs, {four, five}, goOn, &error);
    ASSERT_TRUE(printed) << error.sentence.toStdString();
    EXPECT_EQ(widths(saved.pdfPath), QList<int>({50, 40, 30}));
    EXPECT_EQ(printed->output.bytes, QFile(saved.pdfPath).size());
    EXPECT_EQ(printed->sentence(), u"The PDF is in %1 (%2 bytes)."_qs.arg(saved.pdfPath).arg(printed->output.bytes));
}

TEST_F(PreparedJobTest, SavedAsPdf_TapeIsItsLabels)
{
    SettledJob saved = job(true, {{u"number-up"_qs, u"2"_qs}});
    saved.pdfPath = folder.path(u"saved.pdf"_qs);
    Problem error;
    ASSERT_TRUE(printJob(saved, u"t"_qs, {four}, goOn, &error)) << error.sentence.toStdString();
    EXPECT_EQ(widths(saved.pdfPath), QList<int>({200, 200}));
}

TEST_F(PreparedJobTest, SavedAsPdf_NeverReplacesTheDocumentOrWhatMayNotBeReplaced)
{
    SettledJob saved = job(true, {});
    saved.pdfPath = four;
    saved.documents = {*FileStamp::ofPath(four)};
    Problem error;
    EXPECT_FALSE(printJob(saved, u"t"_qs, {four}, goOn, &error));
    EXPECT_EQ(widths(four), QList<int>({10, 20, 30, 40}));
    saved.pdfPath = five;
    saved.mayReplaceOutput = false;
    EXPECT_FALSE(printJob(saved, u"t"_qs, {four}, goOn, &error));
    EXPECT_EQ(widths(five), QList<int>({50, 60}));
}

TEST_F(PreparedJobTest, Title_IsTheJobsOwnOrTheDocumentsAndNoOption)
{
    const SettledJob named = job(false, {{u"job-name"_qs, u"My\nlabels"_qs}});
    EXPECT_EQ(named.title(u"a.pdf"_qs), u"My labels"_qs);
    EXPECT_EQ(named.carried(), JobOptions());
    EXPECT_EQ(job(false, {}).title(u"a\tb.pdf"_qs), u"a b.pdf"_qs);
}

} // namespace
