// SPDX-License-Identifier: Apache-2.0
// A program's document with settings that were chosen before: everything is applied once. The labels are counted in a
// PDF of them; the tape is 72 x 288 points with strips of 3 and 5 points at its sides, and 14.4 kept free at its ends.
#include "job/LaidOutDocument.h"
#include "job/LaidOutJob.h"
#include "portal/SilentPrint.h"
#include "tests/host/TestPdf.h"
#include "tests/job/TapePpd.h"
#include "tests/support/TextPrinting.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace
{

using tapeprint::job::PageSizes;
using tapeprint::job::SettledJob;

class ProgramsDocument : public testing::Test
{
protected:
    /// \return the sizes of the labels; none, and a failure, when there are none.
    PageSizes labels(std::initializer_list<tapeprint::job::JobOptions::Entry> entries, const QByteArray &document)
    {
        SettledJob job;
        job.options = jobtest::options(entries);
        job.page.pageSize = u"T"_qs;
        job.page.sizePt = {72, 288};
        job.page.unprintablePt = {3, 0, 5, 0};
        job.page.freeEndsPt = 14.4;
        job.page.isTape = true;
        job.pdfPath = folder.filePath(u"labels.pdf"_qs);
        tapeprint::job::Problem problem;
        const bool isPrinted =
            tapeprint::portal::printChosen(job, u"title"_qs, written(document), goOn, &problem).has_value();
        EXPECT_TRUE(isPrinted) << problem.sentence.toStdString();
        return tapeprint::job::pageSizesOf(job.pdfPath, &problem).value_or(PageSizes());
    }

    /// The path of a document.
    QString written(const QByteArray &document) const
    {
        QFile file(folder.filePath(u"document"_qs));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(document) == document.size());
        return file.fileName();
    }

    static QByteArray pages(int count, const QByteArray &mediaBox)
    {
        return hosttest::pdf(QList<hosttest::PdfPage>(count, {"/MediaBox[" + mediaBox + "]", "0 0 0 rg 0 0 9 9 re f"}));
    }

    /// Where the black square in the first label's lower left corner stands, in points from the label's top left.
    QRectF square() const
    {
        const std::atomic<bool> stop = false;
        tapeprint::job::Problem problem;
        tapeprint::job::PdfDocuments documents;
        documents.files = documents.pdfs = QStringList{folder.filePath(u"labels.pdf"_qs)};
        documents.sizes = {*tapeprint::job::pageSizesOf(documents.pdfs.first(), &problem)};
        return tapeprint::job::findDrawnRects(documents, stop, &problem) ? documents.drawn.at(0).at(0) : QRectF();
    }

    QTemporaryDir folder;
    std::atomic<bool> goOn = false;
};

TEST_F(ProgramsDocument, PagesLaidOutOnTheTape_ArePrintedAsTheyAreWhereTheyAre)
{
    EXPECT_EQ(labels({}, pages(3, "0 0 72 288")), PageSizes(3, QSizeF(72, 288)));
    // Not made smaller, and not moved by the strips, which are unlike.
    EXPECT_NEAR(square().left(), 0.0, 0.3);
    EXPECT_NEAR(square().width(), 9.0, 0.5);
    EXPECT_NEAR(square().bottom(), 288.0, 0.3);
}

TEST_F(ProgramsDocument, PagesRoundedByTheProgram_AreTheTapeAllTheSame)
{
    labels({}, pages(1, "0 0 71.6 288.4"));
    EXPECT_NEAR(square().width(), 9.0, 0.5);
}

TEST_F(ProgramsDocument, PagesOfAnotherSize_AreLaidOutWithinTheMargins)
{
    // 64 points are printable across the tape: pages of 128 come out at half their size.
    EXPECT_EQ(labels({}, pages(1, "0 0 128 256")), PageSizes(1, QSizeF(72, 288)));
    EXPECT_NEAR(square().left(), 3.0, 0.3);
    EXPECT_NEAR(square().width(), 4.5, 0.5);
}

TEST_F(ProgramsDocument, PagesChosen_ComeOutOnce)
{
    EXPECT_EQ(labels({{u"page-ranges"_qs, u"2-3"_qs}}, pages(5, "0 0 72 288")).size(), 2U);
    EXPECT_EQ(labels({{u"page-set"_qs, u"odd"_qs}}, pages(5, "0 0 72 288")).size(), 3U);
    EXPECT_EQ(labels({{u"number-up"_qs, u"2"_qs}}, pages(5, "0 0 72 288")).size(), 3U);
    EXPECT_EQ(labels({{u"number-up"_qs, u"2"_qs}, {u"page-ranges"_qs, u"1-2"_qs}}, pages(5, "0 0 72 288")).size(), 1U);
}

TEST_F(ProgramsDocument, WhatThePersonChoseOfTheLayout_Holds)
{
    labels({{u"print-scaling"_qs, u"fit"_qs}}, pages(1, "0 0 72 288"));
    EXPECT_NEAR(square().width(), 9.0 * 64 / 72, 0.5);
}

TEST_F(ProgramsDocument, PageThatNobodyCouldRead_IsRefusedThoughTheSettingsWereChosenInAWindow)
{
    SettledJob job;
    job.page.sizePt = {72, 288};
    job.page.isTape = true;
    job.isRoomTold = true; // of what the window knew: there was no page yet
    job.pdfPath = folder.filePath(u"labels.pdf"_qs);
    tapeprint::job::Problem problem;
    // Made to fit the tape, 3,600 by 20 points become 288 by 1.6: half a millimetre.
    const QString document = written(pages(1, "0 0 3600 20"));
    EXPECT_FALSE(tapeprint::portal::printChosen(job, {}, document, goOn, &problem).has_value());
    EXPECT_EQ(problem.kind, tapeprint::job::Problem::RefusedValue);
    EXPECT_TRUE(problem.sentence.contains(u"nobody can read"_qs)) << problem.sentence.toStdString();
    EXPECT_FALSE(QFileInfo::exists(job.pdfPath));
}

TEST_F(ProgramsDocument, DocumentThatIsNone_IsAProblemInWords)
{
    SettledJob job;
    job.page.sizePt = {72, 288};
    job.page.isTape = true;
    job.pdfPath = folder.filePath(u"labels.pdf"_qs);
    tapeprint::job::Problem problem;
    const QString document = written("%PDF-1.4 and no more");
    EXPECT_FALSE(tapeprint::portal::printChosen(job, {}, document, goOn, &problem).has_value());
    EXPECT_FALSE(problem.isNull());
    EXPECT_FALSE(QFileInfo::exists(job.pdfPath));
}

} // namespace
