// SPDX-License-Identifier: Apache-2.0
// What a print server says it takes, and a job that asks for more: it is refused before anything is sent.
#include "job/PreparedJob.h"
#include "job/ServerLimits.h"
#include "tests/job/DocumentPictures.h"
#include "tests/job/PdfText.h"
#include "tests/job/TapePpd.h"
#include "tests/support/TextPrinting.h"

#include <array>
#include <memory>

#include <gtest/gtest.h>

namespace
{

using namespace tapeprint::job; // NOLINT(google-build-using-namespace): the test is about all of it
using jobtest::options;

struct AnswerDeleter {
    void operator()(ipp_t *answer) const { ippDelete(answer); }
};

class ServerLimitsTest : public testing::Test
{
protected:
    std::unique_ptr<ipp_t, AnswerDeleter> answer{ippNew()};
    const ServerLimits few{20, {1, 2, 4}};
};

TEST_F(ServerLimitsTest, AnswerOfAServer_TellsTheMostCopiesAndTheNumbersOfPages)
{
    ippAddRange(answer.get(), IPP_TAG_PRINTER, "copies-supported", 1, 500);
    constexpr std::array numbers{16, 1, 2, 4};
    ippAddIntegers(answer.get(), IPP_TAG_PRINTER, IPP_TAG_INTEGER, "number-up-supported",
                   static_cast<int>(numbers.size()), numbers.data());
    const ServerLimits limits = limitsIn(answer.get());
    EXPECT_EQ(limits.mostCopies, 500);
    EXPECT_EQ(limits.pagesASheet, (std::vector<int>{1, 2, 4, 16}));
}

TEST_F(ServerLimitsTest, OtherWaysToWriteThem_AreReadToo)
{
    ippAddInteger(answer.get(), IPP_TAG_PRINTER, IPP_TAG_INTEGER, "copies-supported", 7);
    ippAddRange(answer.get(), IPP_TAG_PRINTER, "number-up-supported", 1, 4);
    const ServerLimits limits = limitsIn(answer.get());
    EXPECT_EQ(limits.mostCopies, 7);
    EXPECT_EQ(limits.pagesASheet, (std::vector<int>{1, 2, 3, 4}));
}

TEST_F(ServerLimitsTest, ServerThatSaysNothingOrNonsense_IsTakenToHaveNoLimits)
{
    const JobOptions much = options({{u"copies"_qs, u"10000"_qs}, {u"number-up"_qs, u"3"_qs}});
    EXPECT_FALSE(beyondLimits(limitsIn(nullptr), much));
    EXPECT_FALSE(beyondLimits(limitsIn(answer.get()), much));
    ippAddInteger(answer.get(), IPP_TAG_PRINTER, IPP_TAG_INTEGER, "copies-supported", -1);
    ippAddString(answer.get(), IPP_TAG_PRINTER, IPP_TAG_KEYWORD, "number-up-supported", nullptr, "many");
    EXPECT_FALSE(beyondLimits(limitsIn(answer.get()), much));
}

TEST_F(ServerLimitsTest, MoreThanTheServerTakes_IsSaidWithTheLimit)
{
    EXPECT_FALSE(beyondLimits(few, options({{u"copies"_qs, u"20"_qs}, {u"number-up"_qs, u"4"_qs}})));
    EXPECT_FALSE(beyondLimits(few, options({})));
    EXPECT_EQ(beyondLimits(few, options({{u"copies"_qs, u"21"_qs}})),
              u"The print server makes 20 copies of a job at most, and not 21: ask for fewer."_qs);
    EXPECT_EQ(beyondLimits(few, options({{u"number-up"_qs, u"3"_qs}})),
              u"The print server does not put 3 pages on a sheet (number-up): choose one of 1, 2, 4."_qs);
}

class LimitedJob : public ServerLimitsTest
{
protected:
    /// The kind of problem that a job of one document has; General when it has none.
    Problem::Kind problemOf(SettledJob job, bool isTape, std::initializer_list<JobOptions::Entry> asked)
    {
        job.page.pageSize = u"P"_qs;
        job.page.sizePt = {200, 300};
        job.page.isTape = isTape;
        job.options = options(asked);
        Problem error{Problem::General, {}};
        const bool isReady = prepareJob(job, {document}, goOn, &error).has_value();
        EXPECT_EQ(isReady, error.isNull()) << error.sentence.toStdString();
        return isReady ? Problem::General : error.kind;
    }
    SettledJob queued() const
    {
        SettledJob job;
        job.queue.emplace();
        job.queue->limits = few;
        return job;
    }

    const std::atomic<bool> goOn = false;
    jobtest::Folder folder;
    QString document = folder.write(u"a.pdf"_qs, jobtest::pdfOf({jobtest::blockPage(200, 300, {})}));
};

TEST_F(LimitedJob, CopiesBeyondTheServers_AreRefusedOnTapeAndPaper)
{
    for (const bool isTape : {true, false}) {
        EXPECT_EQ(problemOf(queued(), isTape, {{u"copies"_qs, u"21"_qs}}), Problem::RefusedValue) << isTape;
        EXPECT_EQ(problemOf(queued(), isTape, {{u"copies"_qs, u"20"_qs}}), Problem::General) << isTape;
    }
}

TEST_F(LimitedJob, PagesOnASheetBeyondTheServers_AreRefusedOnPaperAndLaidOutOnTape)
{
    EXPECT_EQ(problemOf(queued(), false, {{u"number-up"_qs, u"3"_qs}}), Problem::RefusedValue);
    EXPECT_EQ(problemOf(queued(), true, {{u"number-up"_qs, u"3"_qs}}), Problem::General);
}

TEST_F(LimitedJob, JobThatGoesToAFile_HasNoLimitsOfTheServer)
{
    SettledJob toFile = queued();
    toFile.outputPath = u"out.prn"_qs;
    EXPECT_EQ(problemOf(toFile, false, {{u"copies"_qs, u"21"_qs}, {u"number-up"_qs, u"3"_qs}}), Problem::General);
    SettledJob toPdf = queued();
    toPdf.pdfPath = u"out.pdf"_qs;
    EXPECT_EQ(problemOf(toPdf, false, {{u"copies"_qs, u"21"_qs}, {u"number-up"_qs, u"3"_qs}}), Problem::General);
}

} // namespace
