// SPDX-License-Identifier: Apache-2.0
// A print server that goes away in the middle of a job, at each of its steps: the job prints as a whole or not at all.
#include "tests/support/ExitStatuses.h"
#include "tests/support/MeddlingServer.h"
#include "tests/system/SystemTest.h"

#include <QElapsedTimer>
#include <QProcess>
#include <QThread>
#include <QTime>

#include <algorithm>
#include <atomic>
#include <csignal>
#include <vector>

#include <cups/cups.h>

namespace
{

using systemtest::Outcome;
using systemtest::ServerJob;
using tapeprint::test::Meddling;
using tapeprint::test::MeddlingServer;
using tapeprint::test::SeenRequest;

class BrokenOff : public systemtest::SystemTest
{
protected:
    void SetUp() override
    {
        cups.configure("MultipleOperationTimeout 2"); // after which a server prints what it has of a job
        SystemTest::SetUp();
        if (HasFatalFailure() || IsSkipped()) {
            return;
        }
        ASSERT_TRUE(cups.addRecordedQueue(u"paper"_qs, u"plain"_qs).isNull());
        moreVariables = {{u"CUPS_SERVER"_qs, folder.path(u"meddling.sock"_qs)}};
    }

    MeddlingServer serverThat(MeddlingServer::Rule rule) const
    {
        return {folder.path(u"meddling.sock"_qs), cups.socket(), std::move(rule)};
    }
    /// Meddles with the one request of an operation that is the number given, from 1 on, and never again.
    static MeddlingServer::Rule once(ipp_op_t operation, int number, Meddling meddling)
    {
        return [=, seen = std::make_shared<std::atomic<int>>(0)](const SeenRequest &request) {
            return request.operation == operation && ++*seen == number ? meddling : Meddling::PassOn;
        };
    }

    Outcome printLabel() const { return tapeprint({u"-d"_qs, u"tape"_qs, u"--no-dialog"_qs, document}); }
    Outcome printOnPaper(const QStringList &files, const QStringList &options = {}) const
    {
        return tapeprint(QStringList{u"-d"_qs, u"paper"_qs, u"--no-dialog"_qs} + options + files);
    }

    /// That nothing is printed, and why is said in one line.
    void expectNothing(const Outcome &outcome, const char *part) const
    {
        EXPECT_EQ(outcome.status, testsupport::unreachable) << outcome.messages.toStdString();
        EXPECT_EQ(outcome.output, "");
        EXPECT_TRUE(outcome.messages.contains(part)) << outcome.messages.toStdString();
        EXPECT_EQ(outcome.messages.count('\n'), 1) << outcome.messages.toStdString();
        for (const ServerJob &job : cups.jobs()) {
            EXPECT_EQ(job.state, IPP_JSTATE_CANCELED) << job.id;
            EXPECT_TRUE(cups.filterCalls(job.id).empty()) << job.id;
        }
    }
};

TEST_F(BrokenOff, NumberOfTheJobLost_TheEmptyJobIsCancelled)
{
    const auto server = serverThat(once(IPP_OP_CREATE_JOB, 1, Meddling::LoseReply));
    expectNothing(printLabel(), "has stopped answering");
    EXPECT_EQ(cups.jobs().size(), 1U);
}

TEST_F(BrokenOff, RequestForAJobLost_ThereIsNoJob)
{
    const auto server = serverThat(once(IPP_OP_CREATE_JOB, 1, Meddling::HangUp));
    expectNothing(printLabel(), "has stopped answering");
    EXPECT_TRUE(cups.jobs().empty());
}

TEST_F(BrokenOff, DocumentCutShort_TheJobIsCancelled)
{
    const auto server = serverThat(once(IPP_OP_SEND_DOCUMENT, 1, Meddling::CutShort));
    expectNothing(printLabel(), "has stopped answering");
    EXPECT_EQ(cups.jobs().size(), 1U);
}

TEST_F(BrokenOff, BodiesOfAnswersThatComeLate_AreWaitedFor)
{
    const auto server = serverThat(
        [](const SeenRequest &request) { return request.operation == 0 ? Meddling::PassOn : Meddling::LateBody; });
    EXPECT_EQ(filterCallsOf(printLabel()).size(), 1U);
    EXPECT_EQ(cups.jobs().size(), 1U);
}

TEST_F(BrokenOff, LastAnswerLost_TheJobIsPrintedAndSaidToBe)
{
    const auto server = serverThat(once(IPP_OP_SEND_DOCUMENT, 1, Meddling::LoseReply));
    EXPECT_EQ(filterCallsOf(printLabel()).size(), 1U);
}

TEST_F(BrokenOff, ServerGoneForTwoSeconds_TheJobIsCancelledWhenItIsBack)
{
    auto rule = [cut = QElapsedTimer()](const SeenRequest &request) mutable {
        if (request.operation == IPP_OP_SEND_DOCUMENT) {
            cut.start();
            return Meddling::CutShort;
        }
        return cut.isValid() && cut.elapsed() < 2000 ? Meddling::HangUp : Meddling::PassOn;
    };
    const auto server = serverThat(rule);
    expectNothing(printLabel(), "has stopped answering");
    EXPECT_EQ(cups.jobs().size(), 1U);
}

TEST_F(BrokenOff, SecondDocumentCutShortAndServerGone_TheFirstIsNeverPrintedAndTheJobIsNamed)
{
    auto rule = [documents = 0](const SeenRequest &request) mutable {
        documents += request.operation == IPP_OP_SEND_DOCUMENT ? 1 : 0;
        return documents < 2                               ? Meddling::PassOn
               : request.operation == IPP_OP_SEND_DOCUMENT ? Meddling::CutShort
                                                           : Meddling::HangUp;
    };
    const auto server = serverThat(rule);
    const Outcome outcome = printOnPaper({document, documentOf(2)});
    EXPECT_EQ(outcome.status, testsupport::unreachable);
    EXPECT_TRUE(outcome.messages.contains("Job 1 may be left half sent on the server; cancel it with: cancel paper-1"))
        << outcome.messages.toStdString();
    // The server's time for a job's next document is over long since.
    ASSERT_EQ(cups.jobs().size(), 1U);
    EXPECT_EQ(cups.jobs()[0].state, IPP_JSTATE_HELD);
    EXPECT_TRUE(cups.filterCalls(1).empty());
}

TEST_F(BrokenOff, ProgramKilledAtAnyStep_PrintsNothingByHalvesAndTheNextJobWell)
{
    std::atomic<int> step{0};
    std::atomic<pid_t> program{0};
    const auto server = serverThat([&](const SeenRequest &request) {
        if (request.operation != step) {
            return Meddling::PassOn;
        }
        step = -1;
        kill(program, SIGKILL);
        // Of a document the server has the beginning then.
        return request.operation == IPP_OP_SEND_DOCUMENT ? Meddling::CutShort : Meddling::PassOn;
    });
    const QStringList onTape{u"-d"_qs, u"tape"_qs, u"--no-dialog"_qs, document};
    const QStringList onPaper{u"-d"_qs, u"paper"_qs, u"--no-dialog"_qs, document, documentOf(2)};
    const std::vector<ipp_op_t> steps{IPP_OP_GET_PRINTER_ATTRIBUTES, IPP_OP_CREATE_JOB, IPP_OP_SEND_DOCUMENT};
    // A job of several documents is held, set free when all of them are there, and looked at then.
    const std::vector<ipp_op_t> stepsOfSeveral{
        IPP_OP_GET_PRINTER_ATTRIBUTES, IPP_OP_CREATE_JOB,  IPP_OP_HOLD_JOB,
        IPP_OP_SEND_DOCUMENT,          IPP_OP_RELEASE_JOB, IPP_OP_GET_JOB_ATTRIBUTES};
    for (const QStringList &job : {onTape, onPaper}) {
        for (const ipp_op_t killing : job == onTape ? steps : stepsOfSeveral) {
            QProcess process;
            process.setProcessEnvironment(systemtest::clientEnvironment(variables()));
            process.setWorkingDirectory(workFolder);
            step = -1;
            process.start(QStringLiteral(TAPEPRINT_BIN_DIR "/tapeprint"), job);
            ASSERT_TRUE(process.waitForStarted());
            program = static_cast<pid_t>(process.processId());
            step = killing;
            ASSERT_TRUE(process.waitForFinished(systemtest::patienceMs));
            EXPECT_EQ(process.exitStatus(), QProcess::CrashExit) << killing;
        }
    }
    QThread::sleep(4); // the server's time for a job's next document is over then
    const std::vector<ServerJob> left = cups.jobs();
    EXPECT_GE(left.size(), 5U);
    for (const ServerJob &job : left) {
        const std::size_t documents = job.queue == u"paper" ? 2 : 1;
        const std::size_t printed = cups.filterCalls(job.id).size();
        EXPECT_TRUE(printed == 0 || printed == documents) << job.id << " printed " << printed << " of " << documents;
        EXPECT_NE(job.state, IPP_JSTATE_PROCESSING) << job.id;
    }
    EXPECT_EQ(filterCallsOf(printLabel()).size(), 1U);
}

// What a queue can do is the longest answer of a server.
TEST_F(BrokenOff, OneDocument_IsSentWithoutAskingWhatTheQueueCanDo)
{
    const auto server = serverThat([](const SeenRequest & /*request*/) { return Meddling::PassOn; });
    EXPECT_EQ(filterCallsOf(printLabel()).size(), 1U);
    const std::vector<int> seen = server.operations();
    // Opening the queue ends with its PPD, which is no IPP request.
    constexpr int ppd = 0;
    const auto sending = std::find(seen.rbegin(), seen.rend(), ppd).base();
    EXPECT_EQ(std::vector<int>(sending, seen.end()),
              (std::vector<int>{IPP_OP_GET_PRINTER_ATTRIBUTES, IPP_OP_CREATE_JOB, IPP_OP_SEND_DOCUMENT}));
}

TEST_F(BrokenOff, SeveralDocuments_ArePrintedWhenTheLastIsIn)
{
    const auto server = serverThat([](const SeenRequest &) { return Meddling::PassOn; });
    EXPECT_EQ(filterCallsOf(printOnPaper({document, documentOf(2)})).size(), 2U);
}

TEST_F(BrokenOff, SeveralDocumentsThatThePersonHolds_StayHeldAsAsked)
{
    const auto server = serverThat([](const SeenRequest &) { return Meddling::PassOn; });
    // Which of the two holds depends on when this is run.
    const int hour = QTime::currentTime().hour();
    const QByteArray until = hour >= 6 && hour < 18 ? "night" : "day-time";
    const Outcome held =
        printOnPaper({document, documentOf(2)}, {u"-o"_qs, u"job-hold-until="_qs + QString::fromLatin1(until)});
    EXPECT_EQ(held.output, "Job paper-1 is pending-held.\n") << held.messages.toStdString();
    EXPECT_EQ(cups.jobs().at(0).state, IPP_JSTATE_HELD);
    EXPECT_EQ(cups.attributeOfJob(1, "job-hold-until"), until);
}

} // namespace
