// SPDX-License-Identifier: Apache-2.0
// A job's way from its documents to the labels, and what is said when there is none.
#include "job/LaidOutDocument.h"
#include "job/LaidOutJob.h"

#include "tests/job/DocumentPictures.h"
#include "tests/job/PdfText.h"
#include "tests/job/TapePpd.h"
#include "tests/support/TextPrinting.h"

#include <QFileInfo>

#include <gtest/gtest.h>

namespace
{

using namespace tapeprint::job; // NOLINT(google-build-using-namespace): the test is about all of it
using jobtest::block;
using jobtest::blockPage;
using jobtest::pdfOf;

const std::atomic<bool> goOn = false;

class LaidOutJob : public testing::Test
{
protected:
    /// A job on a tape of 72 x 288 points, 68 wide when its strips are left out; 14.4 stay free at each end.
    static SettledJob tapeJob(const JobOptions &options = {})
    {
        SettledJob job;
        job.options = options;
        job.page.pageSize = u"T"_qs;
        job.page.sizePt = {72, 288};
        job.page.unprintablePt = {2, 0, 2, 0};
        job.page.freeEndsPt = 14.4;
        job.page.isTape = true;
        job.lengths = {4.0, 254.0, 0.1, false}; // 720 points
        return job;
    }

    /// Lays documents out. \return the labels' path, or the sentence after "! ".
    QString laidOut(const SettledJob &job, const QStringList &files) const
    {
        Problem error;
        const std::optional<PdfDocuments> documents = collectPdfs(job, files, goOn, &error);
        const QString labels = folder.path(u"labels.pdf"_qs);
        return documents && layOutJob(job, *documents, labels, goOn, &error) ? labels : u"! "_qs + error.sentence;
    }

    jobtest::Folder folder;
    QString document =
        folder.write(u"a.pdf"_qs, pdfOf({blockPage(40, 100, block(0, 0, 40, 100)),
                                         blockPage(40, 100, block(0, 0, 40, 50)), blockPage(40, 100, {})}));
};

TEST_F(LaidOutJob, SeveralDocuments_BecomeOneOfLabels)
{
    Problem error;
    const QString labels = laidOut(tapeJob(), {document, document});
    const std::optional<PageSizes> sizes = pageSizesOf(labels, &error);
    ASSERT_TRUE(sizes) << labels.toStdString();
    EXPECT_EQ(*sizes, PageSizes(6, QSizeF(72, 288)));
}

TEST_F(LaidOutJob, NoChosenPage_IsSaid)
{
    EXPECT_EQ(laidOut(tapeJob(jobtest::options({{u"page-ranges"_qs, u"4-"_qs}})), {document}),
              u"! None of the document's pages is chosen: change the page range."_qs);
}

TEST_F(LaidOutJob, MarginsThatLeaveNothing_AreSaid)
{
    SettledJob job = tapeJob();
    job.page.freeEndsPt = 144;
    EXPECT_EQ(laidOut(job, {document}),
              u"! The margins leave nothing of the tape to print on: make the tape longer or the margin smaller."_qs);
    EXPECT_FALSE(QFileInfo::exists(folder.path(u"labels.pdf"_qs)));
}

TEST_F(LaidOutJob, MarginsThatLeaveTooLittleToRead_AreSaid)
{
    SettledJob job = tapeJob();
    job.page.freeEndsPt = 144 - 0.5 * pointsFromMm(0.5);
    // 40 by 100 points become half a millimetre long, and two fifths of that wide.
    EXPECT_EQ(laidOut(job, {document}),
              u"! Page 1 would come out 0.2 mm wide and 0.5 mm long, which nobody can read: choose a longer tape, a "
              "smaller margin or fewer pages on a label."_qs);
    EXPECT_FALSE(QFileInfo::exists(folder.path(u"labels.pdf"_qs)));
    // Cut off, no more of it is to be seen.
    job.options.set(u"print-scaling"_qs, u"none"_qs);
    EXPECT_TRUE(laidOut(job, {document}).contains(u"14.1 mm wide and 0.5 mm long"_qs)); // 40 points
    // Who sits at a window has read it there.
    job.isRoomTold = true;
    EXPECT_TRUE(laidOut(job, {document}).endsWith(u"labels.pdf"_qs)) << laidOut(job, {document}).toStdString();
}

TEST_F(LaidOutJob, DocumentMadeForSoLittle_IsPrinted)
{
    const QString line = folder.write(u"line.pdf"_qs, pdfOf({blockPage(60, 1, block(0, 0, 60, 1))}));
    SettledJob job = tapeJob(jobtest::options({{u"orientation-requested"_qs, u"3"_qs}}));
    job.page.freeEndsPt = 144 - 0.5 * pointsFromMm(0.5); // 1.4 points
    EXPECT_TRUE(laidOut(job, {line}).endsWith(u"labels.pdf"_qs)) << laidOut(job, {line}).toStdString();
}

TEST_F(LaidOutJob, SecondDocumentThatCannotBeUsed_IsNamed)
{
    const QString broken = folder.write(u"broken.pdf"_qs, "%PDF-1.4\nno more\n");
    EXPECT_TRUE(laidOut(tapeJob(), {document, broken}).startsWith(u"! The document "_qs + broken + u" is damaged"_qs));
}

TEST_F(LaidOutJob, ConvertedDocument_IsNamedAsThePersonNamedIt)
{
    const QString text = folder.write(u"noise.ps"_qs, "%!PS\nnonsense\n");
    EXPECT_TRUE(laidOut(tapeJob(), {text}).contains(text)) << laidOut(tapeJob(), {text}).toStdString();
}

TEST_F(LaidOutJob, PageWithoutASize_IsSaid)
{
    const QString nothing =
        folder.write(u"nothing.pdf"_qs, pdfOf({blockPage(40, 100, {}), {"/MediaBox [0 0 0 100]", {}}}));
    EXPECT_EQ(laidOut(tapeJob(), {nothing}),
              u"! Page 2 of the document "_qs + nothing + u" has no size: leave it out or make it anew."_qs);
    // What is left out does not matter.
    EXPECT_TRUE(laidOut(tapeJob(jobtest::options({{u"page-ranges"_qs, u"1"_qs}})), {nothing}).endsWith(u"labels.pdf"));
}

TEST_F(LaidOutJob, FitLength_MeasuresEveryPage)
{
    Problem error;
    const SettledJob job = tapeJob(jobtest::options({{u"fit-length"_qs, u"true"_qs}}));
    const std::optional<PdfDocuments> documents = collectPdfs(job, {document}, goOn, &error);
    ASSERT_TRUE(documents) << error.sentence.toStdString();
    ASSERT_EQ(documents->drawn.size(), 1U);
    ASSERT_EQ(documents->drawn[0].size(), 3U);
    EXPECT_NEAR(documents->drawn[0][0].height(), 100, 0.3);
    EXPECT_NEAR(documents->drawn[0][1].top(), 50, 0.3);
    EXPECT_TRUE(documents->drawn[0][2].isEmpty());
    const std::optional<AutomaticLength> length = automaticLength(job, *documents);
    ASSERT_TRUE(length);
    // 128.8 points = 45.438 mm, and what the measurement may add.
    EXPECT_NEAR(length->lengthMm, 45.5, 0.1 + 1e-6);
}

TEST_F(LaidOutJob, WithoutFitLength_NothingIsMeasured)
{
    Problem error;
    EXPECT_TRUE(collectPdfs(tapeJob(), {document}, goOn, &error)->drawn.empty());
}

TEST_F(LaidOutJob, TextPage_LiesAndIsWhatIsLaidOutOn)
{
    EXPECT_EQ(textPageOf(tapeJob()), QSizeF(288 - 28.8, 68));
    SettledJob shortTape = tapeJob();
    shortTape.page.sizePt = {72, 60}; // wider than long: lines run across
    EXPECT_EQ(textPageOf(shortTape), QSizeF(68, 60 - 28.8));
}

TEST_F(LaidOutJob, TextPageWithFitLength_IsAsLongAsTheTapeMayBecome)
{
    EXPECT_EQ(textPageOf(tapeJob(jobtest::options({{u"fit-length"_qs, u"true"_qs}}))), QSizeF(720 - 28.8, 68));
}

TEST_F(LaidOutJob, Notice_IsAboutALengthThatIsNotTheChosenOne)
{
    TapePage page = tapeJob().page; // 101.6 mm
    EXPECT_TRUE(lengthNotice(page).isNull());
    page.length = PageLength::Chosen;
    EXPECT_TRUE(lengthNotice(page).isNull());
    page.length = PageLength::LeftToDriver;
    EXPECT_TRUE(lengthNotice(page).contains(u"the page stays 101.6 mm long, and the length is left to the driver"));
    page.length = PageLength::PaperForNear;
    EXPECT_TRUE(lengthNotice(page).endsWith(u"the tape's own into that: 101.6 mm."));
    page.length = PageLength::NamedForNear;
    EXPECT_TRUE(lengthNotice(page).endsWith(u"another paper into that: 101.6 mm."));
}

TEST_F(LaidOutJob, Stopped_EndsWithoutASentence)
{
    const std::atomic<bool> stop = true;
    Problem error;
    PdfDocuments documents{{document}, {document}, {}, {}, {}};
    EXPECT_FALSE(findDrawnRects(documents, stop, &error));
    EXPECT_TRUE(error.isNull()) << error.sentence.toStdString();
}

} // namespace
