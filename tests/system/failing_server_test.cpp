// SPDX-License-Identifier: Apache-2.0
// A print server that fails in every way at every step of a job: finding printers, opening a description, sending,
// following. What is said, what is left on the server, how long the window is deaf, and that all is well when the
// server is.
#include "dialog/PrintDialog.h"
#include "job/JobFollowing.h"
#include "job/JobSubmission.h"
#include "job/LeftJobs.h"
#include "job/PrinterList.h"
#include "tests/support/LoopWatch.h"
#include "tests/support/MeddlingServer.h"
#include "tests/support/Noticeable.h"
#include "tests/system/Client.h"
#include "tests/system/PrivateCups.h"

#include <QLabel>
#include <QPushButton>
#include <QTest>

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <thread>

#include <cups/cups.h>

namespace
{

using namespace tapeprint;
using std::chrono::milliseconds;
using std::chrono::steady_clock;
using systemtest::PrivateCups;
using systemtest::ServerJob;
using test::Meddling;
using test::MeddlingServer;
using test::SeenRequest;

/// The number under which a request that is none of IPP's is seen: a PPD is fetched by HTTP alone.
constexpr int fetching = 0;
constexpr int anyOperation = -1;

/// An answer of a server, written as libcups writes it.
class Answer
{
public:
    Answer() : mMessage(ippNew(), ippDelete)
    {
        ippSetVersion(mMessage.get(), 2, 0);
        ippSetStatusCode(mMessage.get(), IPP_STATUS_OK);
        ippAddString(mMessage.get(), IPP_TAG_OPERATION, IPP_TAG_CHARSET, "attributes-charset", nullptr, "utf-8");
        ippAddString(mMessage.get(), IPP_TAG_OPERATION, IPP_TAG_LANGUAGE, "attributes-natural-language", nullptr, "en");
    }
    ipp_t *message() { return mMessage.get(); }
    QByteArray bytes() const
    {
        QByteArray body;
        ippSetState(mMessage.get(), IPP_STATE_IDLE);
        ippWriteIO(
            &body,
            [](void *to, ipp_uchar_t *bytes, std::size_t count) {
                static_cast<QByteArray *>(to)->append(reinterpret_cast<const char *>(bytes),
                                                      static_cast<qsizetype>(count));
                return static_cast<ssize_t>(count);
            },
            1, nullptr, mMessage.get());
        return body;
    }
    static QByteArray header(qsizetype length)
    {
        return "HTTP/1.1 200 OK\r\nContent-Type: application/ipp\r\nContent-Length: " + QByteArray::number(length) +
               "\r\n\r\n";
    }
    QByteArray withHeader() const { return header(bytes().size()) + bytes(); }

private:
    std::unique_ptr<ipp_t, decltype(&ippDelete)> mMessage;
};

/// States and types of attributes that no server has.
QByteArray wrongStates()
{
    Answer answer;
    ippAddString(answer.message(), IPP_TAG_PRINTER, IPP_TAG_NAME, "printer-name", nullptr, "tape");
    ippAddInteger(answer.message(), IPP_TAG_PRINTER, IPP_TAG_ENUM, "printer-state", 77);
    ippAddString(answer.message(), IPP_TAG_PRINTER, IPP_TAG_TEXT, "printer-type", nullptr, "many");
    ippAddInteger(answer.message(), IPP_TAG_PRINTER, IPP_TAG_INTEGER, "printer-state-reasons", -1);
    ippAddInteger(answer.message(), IPP_TAG_PRINTER, IPP_TAG_INTEGER, "printer-is-accepting-jobs", 5);
    ippAddOutOfBand(answer.message(), IPP_TAG_PRINTER, IPP_TAG_NOVALUE, "printer-info");
    ippAddSeparator(answer.message());
    ippAddInteger(answer.message(), IPP_TAG_PRINTER, IPP_TAG_INTEGER, "printer-name", 1);
    ippAddInteger(answer.message(), IPP_TAG_PRINTER, IPP_TAG_ENUM, "printer-state", -5);
    return answer.withHeader();
}

/// A value that says to be longer than the message is.
QByteArray wrongLengths()
{
    Answer answer;
    ippAddString(answer.message(), IPP_TAG_PRINTER, IPP_TAG_NAME, "printer-name", nullptr, "tape");
    QByteArray body = answer.bytes();
    const qsizetype length = body.indexOf("tape") - 2;
    body[length] = '\x7f'; // 32,516 bytes in the place of 4
    return Answer::header(body.size()) + body;
}

/// A hundred million bytes of attributes, in pieces; then nothing more.
QByteArray flood(int piece)
{
    constexpr int pieces = 100;
    static const QByteArray head = [] {
        const QByteArray whole = Answer().bytes();
        return whole.left(whole.size() - 1) + '\x04'; // no end yet; the printer's attributes begin
    }();
    static const QByteArray million = [] {
        QByteArray attributes;
        const QByteArray name = "printer-info";
        const QByteArray value(1000 - 5 - name.size(), 'x');
        for (int i = 0; i < 1000; ++i) {
            attributes += QByteArray("\x41\0", 2) + char(name.size()) + name + char(value.size() >> 8) +
                          char(value.size() & 0xff) + value;
        }
        return attributes;
    }();
    if (piece == 0) {
        return Answer::header(head.size() + pieces * million.size() + 1) + head;
    }
    return piece <= pieces ? million : piece == pieces + 1 ? QByteArray("\x03") : QByteArray();
}

/// An answer that never ends, a byte now and then.
QByteArray trickle(int piece)
{
    std::this_thread::sleep_for(milliseconds(20));
    return piece == 0 ? Answer::header(100'000'000) + "\x02" : QByteArray(1, '\0');
}

MeddlingServer::Reply once(const QByteArray &bytes)
{
    return [bytes](int piece) { return piece == 0 ? bytes : QByteArray(); };
}

class FailingServer : public testing::Test
{
protected:
    void SetUp() override
    {
        if (const QString reason = PrivateCups::reasonToSkip(); !reason.isNull()) {
            GTEST_SKIP() << reason.toStdString();
        }
        const QString problem = cups.startWithTape();
        ASSERT_TRUE(problem.isNull()) << problem.toStdString();
        qputenv("CUPS_SERVER", QFile::encodeName(socket()));
        cupsSetServer(QFile::encodeName(socket()).constData());
        server = std::make_unique<MeddlingServer>(socket(), cups.socket(), [this](const SeenRequest &request) {
            const bool isMeant = operation == anyOperation || operation == request.operation;
            return isMeant ? meddling.load() : Meddling::PassOn;
        });
    }
    void TearDown() override { cupsSetServer(nullptr); }

    QString socket() const { return folder.path(u"meddling.sock"_qs); }
    /// From now on requests of one operation are meddled with.
    void fail(int failing, Meddling how)
    {
        operation = failing;
        meddling = how;
    }
    void mend() { meddling = Meddling::PassOn; }

    /// \return the sentence of a failure; null when it went well.
    QString list()
    {
        job::Problem problem;
        return job::readPrinters(&stop, &problem) ? QString() : problem.sentence;
    }
    QString open()
    {
        job::JobRequest request;
        request.queue = u"tape"_qs;
        job::Problem problem;
        return job::openDestination(request, &problem, &stop) ? QString() : problem.sentence;
    }
    /// \param id takes the job's number.
    QString send(int *id = nullptr)
    {
        job::Submission submission;
        submission.queue.name = u"tape"_qs;
        submission.title = u"label"_qs;
        submission.files = {QStringLiteral(TAPEPRINT_SOURCE_DIR "/docs/sample/address-label.pdf")};
        job::Problem problem;
        const auto sent = job::submitJob(submission, stop, &problem);
        if (id != nullptr && sent) {
            *id = sent->id;
        }
        return sent ? QString() : problem.sentence;
    }

    /// That a step fails in words, soon, and goes well again when the server does.
    void expectProblem(const std::function<QString()> &step, const char *what)
    {
        const auto start = steady_clock::now();
        const QString sentence = step();
        EXPECT_FALSE(sentence.isEmpty()) << what;
        EXPECT_LT(steady_clock::now() - start, milliseconds(3000)) << what << ": " << sentence.toStdString();
        mend();
        EXPECT_EQ(step().toStdString(), "") << what;
    }

    /// That a job which was said to be lost printed nothing, and that one which was said to be sent prints once.
    void expectWholeOrNothing(const QString &sentence, int id, const std::string &what)
    {
        const std::vector<ServerJob> jobs = cups.jobs();
        if (sentence.isNull()) {
            EXPECT_EQ(cups.waitForEnd(id).value_or(ServerJob()).state, IPP_JSTATE_COMPLETED) << what;
            EXPECT_EQ(cups.filterCalls(id).size(), 1U) << what;
            return;
        }
        if (!jobs.empty() && jobs.back().id > lastJob) {
            lastJob = jobs.back().id;
            EXPECT_EQ(jobs.back().state, IPP_JSTATE_CANCELED) << what << ": " << sentence.toStdString();
            EXPECT_TRUE(cups.filterCalls(lastJob).empty()) << what;
        }
    }

    systemtest::PrivateFolder folder;
    PrivateCups cups;
    std::atomic<int> operation{anyOperation};
    std::atomic<Meddling> meddling{Meddling::PassOn};
    std::atomic<bool> stop{false};
    int lastJob = 0;
    std::unique_ptr<MeddlingServer> server;
};

TEST_F(FailingServer, CutAtAnyByteOfItsAnswers_FindsNoPrintersAndOpensNothingInWords)
{
    for (const int bytes : {0, 1, 5, 16, 17, 60, 150, 200, 230, 300}) {
        server->cutRepliesAfter(bytes);
        fail(IPP_OP_CUPS_GET_PRINTERS, Meddling::CutReply);
        expectProblem([this] { return list(); }, "finding");
    }
    for (const int bytes : {0, 1, 40, 200, 300, 1000, 5000}) {
        server->cutRepliesAfter(bytes);
        fail(fetching, Meddling::CutReply);
        expectProblem([this] { return open(); }, "opening");
    }
}

TEST_F(FailingServer, CutAtAnyByteOfItsAnswersToAJob_PrintsItWholeOrNotAtAll)
{
    for (const ipp_op_t step : {IPP_OP_CREATE_JOB, IPP_OP_SEND_DOCUMENT}) {
        for (const int bytes : {0, 1, 17, 60, 200, 260, 330}) {
            server->cutRepliesAfter(bytes);
            // Once: what puts things in order gets through.
            fail(step, Meddling::CutReply);
            int id = 0;
            const QString sentence = send(&id);
            mend();
            expectWholeOrNothing(sentence, id, std::to_string(step) + " cut after " + std::to_string(bytes));
            lastJob = cups.jobs().empty() ? 0 : cups.jobs().back().id;
        }
    }
    EXPECT_EQ(send().toStdString(), "");
}

TEST_F(FailingServer, ThatSaysHowTheJobIs_IsAskedNothingMore)
{
    int id = 0;
    EXPECT_EQ(send(&id).toStdString(), "");
    EXPECT_GT(id, 0);
    // Its answer to the document tells the job's state.
    EXPECT_EQ(server->operations().back(), IPP_OP_SEND_DOCUMENT);
}

TEST_F(FailingServer, ThatFallsSilentWhenItHasTheJob_IsNotWaitedFor)
{
    fail(IPP_OP_GET_JOB_ATTRIBUTES, Meddling::KeepSilent);
    const auto start = steady_clock::now();
    EXPECT_EQ(send().toStdString(), "");
    EXPECT_LT(steady_clock::now() - start, milliseconds(3000));
}

TEST_F(FailingServer, AnswersOfWrongLengthsAndStates_AreRefusedOrReadHarmlessly)
{
    server->replyWith(once(wrongLengths()));
    fail(IPP_OP_CUPS_GET_PRINTERS, Meddling::OwnReply);
    expectProblem([this] { return list(); }, "lengths");

    server->replyWith(once(wrongStates()));
    fail(IPP_OP_CUPS_GET_PRINTERS, Meddling::OwnReply);
    job::Problem problem;
    const std::optional<job::PrinterList> printers = job::readPrinters(&stop, &problem);
    ASSERT_TRUE(printers) << problem.sentence.toStdString();
    ASSERT_FALSE(printers->empty());
    EXPECT_EQ(printers->front().name, u"tape"_qs);
    EXPECT_EQ(printers->front().state, job::PrinterState::Unknown);

    // A job in a state that there is none of is followed on until somebody stops it.
    server->replyWith(once([] {
        Answer answer;
        ippAddInteger(answer.message(), IPP_TAG_JOB, IPP_TAG_ENUM, "job-state", 0);
        return answer.withHeader();
    }()));
    fail(IPP_OP_GET_JOB_ATTRIBUTES, Meddling::OwnReply);
    std::thread person([this] {
        std::this_thread::sleep_for(milliseconds(700));
        stop = true;
    });
    EXPECT_FALSE(job::followJob({u"tape"_qs, 1, true}, stop, nullptr, &problem));
    person.join();
}

TEST_F(FailingServer, HundredMegabytesOfAttributes_AreReadOrRefusedInTime)
{
    server->replyWith(flood);
    fail(IPP_OP_CUPS_GET_PRINTERS, Meddling::OwnReply);
    const auto start = steady_clock::now();
    const QString sentence = list();
    const auto took = std::chrono::duration_cast<milliseconds>(steady_clock::now() - start);
    std::printf("100 MB of attributes: %lld ms, \"%s\"\n", static_cast<long long>(took.count()), qPrintable(sentence));
    EXPECT_LT(took, milliseconds(20000));
    mend();
    EXPECT_EQ(list().toStdString(), "");
}

TEST_F(FailingServer, ThatTrickles_IsLeftAfterAStopAtEveryStep)
{
    server->replyWith(trickle);
    for (const int step :
         {int(IPP_OP_CUPS_GET_PRINTERS), fetching, int(IPP_OP_CREATE_JOB), int(IPP_OP_SEND_DOCUMENT)}) {
        fail(step, Meddling::OwnReply);
        stop = false;
        std::thread person([this] {
            std::this_thread::sleep_for(milliseconds(500));
            stop = true;
            std::this_thread::sleep_for(milliseconds(100));
            mend(); // what puts things in order gets through
        });
        const auto start = steady_clock::now();
        const QString sentence = step == IPP_OP_CUPS_GET_PRINTERS ? list() : step == fetching ? open() : send();
        EXPECT_LT(steady_clock::now() - start, milliseconds(3500)) << step;
        EXPECT_EQ(sentence.toStdString(), "") << step; // the person knows
        person.join();
    }
    stop = false;
    for (const ServerJob &job : cups.jobs()) {
        EXPECT_EQ(job.state, IPP_JSTATE_CANCELED) << job.id;
        EXPECT_TRUE(cups.filterCalls(job.id).empty()) << job.id;
    }
    EXPECT_EQ(send().toStdString(), "");
}

TEST_F(FailingServer, ThatIsGoneForLong_HasTheJobTakenBackBeforeTheNextIsSent)
{
    fail(IPP_OP_SEND_DOCUMENT, Meddling::KeepSilent);
    std::thread end([this] {
        EXPECT_TRUE(systemtest::waitUntil([this] {
            const std::vector<int> seen = server->operations();
            return std::find(seen.begin(), seen.end(), IPP_OP_SEND_DOCUMENT) != seen.end();
        }));
        server->goAway();
    });
    const QString sentence = send();
    end.join();
    EXPECT_TRUE(sentence.contains(u"Job 1 may be left half sent"_qs)) << sentence.toStdString();
    ASSERT_EQ(cups.jobs().size(), 1U);
    EXPECT_LT(cups.jobs()[0].state, IPP_JSTATE_STOPPED); // the server waits for its document

    server->comeBack();
    mend();
    EXPECT_EQ(send().toStdString(), "");
    EXPECT_TRUE(cups.waitForEnd(2).has_value());
    EXPECT_EQ(cups.filterCalls(2).size(), 1U);
    ASSERT_TRUE(cups.waitForEnd(1).has_value());
    EXPECT_EQ(cups.jobs()[0].state, IPP_JSTATE_CANCELED);
}

TEST_F(FailingServer, ThatWasKilled_HasNoJobCancelledThatGotTheNumberOfOneThatWasLeft)
{
    const QString document = QStringLiteral(TAPEPRINT_SOURCE_DIR "/docs/sample/address-label.pdf");
    const QStringList held{u"-d"_qs, u"tape"_qs, u"-H"_qs, u"indefinite"_qs, u"-t"_qs};
    ASSERT_EQ(
        systemtest::runClient({u"/usr/bin/lp"_qs, held + QStringList{u"label"_qs, document}, cups.clientVariables()})
            .status,
        0);
    ASSERT_EQ(
        systemtest::runClient({u"/usr/bin/lp"_qs, held + QStringList{u"another"_qs, document}, cups.clientVariables()})
            .status,
        0);
    job::rememberLeftJob({u"tape"_qs, u"label"_qs, 1, 1}); // which has its document
    job::rememberLeftJob({u"tape"_qs, u"label"_qs, 2, 3}); // which is called otherwise
    EXPECT_EQ(send().toStdString(), "");
    for (const ServerJob &job : cups.jobs()) {
        EXPECT_TRUE(job.id == 3 || job.state == IPP_JSTATE_HELD) << job.id << ": " << job.state;
    }
    EXPECT_EQ(cups.jobs().size(), 3U);
}

/// The ways of failing under which a window is opened.
struct WindowFault {
    const char *name;
    int operation;
    Meddling how;
    MeddlingServer::Reply reply;
};

TEST_F(FailingServer, WindowUnderEveryFault_IsNeverDeafAndPrintsWhenTheServerIsWell)
{
    const WindowFault faults[] = {
        {"hangs up", anyOperation, Meddling::HangUp, {}},
        {"is silent", anyOperation, Meddling::KeepSilent, {}},
        {"asks for a password for ever", anyOperation, Meddling::Deny, {}},
        {"drips", anyOperation, Meddling::DripReply, {}},
        {"trickles the list", IPP_OP_CUPS_GET_PRINTERS, Meddling::OwnReply, trickle},
        {"floods the list", IPP_OP_CUPS_GET_PRINTERS, Meddling::OwnReply, flood},
        {"floods the printer", IPP_OP_GET_PRINTER_ATTRIBUTES, Meddling::OwnReply, flood},
        {"lies about lengths", IPP_OP_GET_PRINTER_ATTRIBUTES, Meddling::OwnReply, once(wrongLengths())},
        {"lies about states", IPP_OP_CUPS_GET_PRINTERS, Meddling::OwnReply, once(wrongStates())},
        {"sends half a description", fetching, Meddling::CutReply, {}},
    };
    server->cutRepliesAfter(2000);
    for (const WindowFault &fault : faults) {
        if (fault.reply) {
            server->replyWith(fault.reply);
        }
        fail(fault.operation, fault.how);
        job::Job printJob;
        dialog::Panels panels(printJob, {QStringLiteral(TAPEPRINT_BUNDLE_DIR)});
        job::JobRequest request;
        request.queue = u"tape"_qs;
        auto window = std::make_unique<dialog::PrintDialog>(
            printJob, panels, dialog::PrintDialog::Setup{request, u"label"_qs, {}, dialog::PrinterSource::server()},
            dialog::PrintDialog::PrintAction());
        window->show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(window.get()));
        auto watch = std::make_unique<test::LoopWatch>();
        QTest::qWait(1200);
        const qint64 failingMs = watch->longestMs();
        EXPECT_LT(failingMs, test::noticeableMs) << fault.name;
        const QString said = window->findChild<QLabel *>(u"notices"_qs)->text();
        watch.reset();
        mend();
        if (fault.how == Meddling::KeepSilent || fault.reply || fault.how == Meddling::DripReply) {
            // What was begun on the bad server would last; the person closes the window, which waits for nobody.
            const test::LoopWatch closing;
            window.reset();
            EXPECT_LT(closing.longestMs(), test::noticeableMs) << fault.name;
        } else {
            // A question that was declined, or answered wrongly, does not come again by itself.
            if (auto *again = window->findChild<QPushButton *>(u"askAgain"_qs); again->isVisible()) {
                again->click();
            }
            EXPECT_TRUE(QTest::qWaitFor([&] { return window->findChild<QPushButton *>(u"print"_qs)->isEnabled(); },
                                        systemtest::patienceMs))
                << fault.name << ": " << window->findChild<QLabel *>(u"notices"_qs)->text().toStdString();
        }
        std::printf("server that %s: longest gap %lld ms; \"%s\"\n", fault.name, static_cast<long long>(failingMs),
                    qPrintable(said));
    }
    EXPECT_EQ(send().toStdString(), "");
}

} // namespace
