// SPDX-License-Identifier: Apache-2.0
// One press of Print as the window sees it, and what is said of a job.
#include "dialog/JobRow.h"
#include "dialog/PasswordQuestion.h"
#include "dialog/PrintRun.h"
#include "job/Advice.h"
#include "tests/support/TextPrinting.h"

#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QProgressBar>
#include <QTest>
#include <QThread>
#include <QTimer>

#include <thread>

#include <gtest/gtest.h>

namespace
{

using namespace tapeprint;
using dialog::PrintRun;

job::JobStatus statusOf(ipp_jstate_t state)
{
    job::JobStatus status;
    status.state = state;
    return status;
}

QString said(const job::JobStatus &status, bool isTape = true)
{
    return job::JobNews{{u"tape"_qs, 7, isTape}, status}.sentence();
}

TEST(JobNews, EveryState_HasItsSentence)
{
    EXPECT_EQ(said(statusOf(IPP_JSTATE_PENDING)), u"Job tape-7 waits for the printer."_qs);
    EXPECT_EQ(said(statusOf(IPP_JSTATE_PROCESSING)), u"Job tape-7 is being printed."_qs);
    EXPECT_EQ(said(statusOf(IPP_JSTATE_COMPLETED)), u"Job tape-7 is printed."_qs);
    EXPECT_EQ(said(statusOf(IPP_JSTATE_CANCELED)), u"Job tape-7 was cancelled."_qs);
    EXPECT_EQ(said(statusOf(IPP_JSTATE_HELD)), u"Job tape-7 is held: it waits until it is released."_qs);
    EXPECT_EQ(said(statusOf(IPP_JSTATE_ABORTED)), u"Job tape-7 has failed: the print server does not say why."_qs);
    job::JobStatus behind = statusOf(IPP_JSTATE_PENDING);
    behind.jobsBefore = 3;
    EXPECT_EQ(said(behind), u"Job tape-7 waits behind others: 3."_qs);
}

TEST(JobNews, FailedJob_SaysWhyInTheServersWords)
{
    job::JobStatus failed = statusOf(IPP_JSTATE_ABORTED);
    failed.printerMessage = u"Idle."_qs;
    failed.message =
        u"Unable to open the document..."_qs; // the job's own words come first, and one full stop is enough
    EXPECT_EQ(said(failed), u"Job tape-7 has failed: Unable to open the document."_qs);
    failed.state = IPP_JSTATE_STOPPED;
    EXPECT_EQ(said(failed),
              u"Job tape-7 has failed: Unable to open the document. It stays in the queue; cancel it with: "
              "cancel tape-7"_qs);
    const job::AdviceForTheWindow window; // whoever sits there types no command
    EXPECT_EQ(said(failed),
              u"Job tape-7 has failed: Unable to open the document. It stays in the queue: cancel it or start it again "
              "in the desktop's printer settings."_qs);
}

TEST(JobNews, PrinterThatNeedsSomebody_SaysWhatItLacksAndWhatItSays)
{
    job::JobStatus waits = statusOf(IPP_JSTATE_PROCESSING);
    waits.printerReasons = QStringList{u"media-empty-error"_qs, u"connecting-to-device-report"_qs};
    waits.printerMessage = u"load 24 mm tape"_qs;
    EXPECT_EQ(said(waits), u"Job tape-7 waits: out of tape (load 24 mm tape)."_qs);
    EXPECT_EQ(said(waits, false), u"Job tape-7 waits: out of paper (load 24 mm tape)."_qs);
    // A warning holds nothing up.
    waits.printerReasons = QStringList{u"media-low-warning"_qs};
    EXPECT_EQ(said(waits), u"Job tape-7 is being printed."_qs);
    // A printer that has stopped does, whatever its reasons.
    waits.isStopped = true;
    waits.printerReasons.clear();
    EXPECT_EQ(said(waits), u"Job tape-7 waits: load 24 mm tape."_qs);
    // The print server repeats itself when nobody said why it was paused.
    waits.printerReasons = QStringList{u"paused"_qs};
    waits.printerMessage = u"Paused"_qs;
    EXPECT_EQ(said(waits), u"Job tape-7 waits: paused."_qs);
    waits.printerMessage = u"moved"_qs;
    EXPECT_EQ(said(waits), u"Job tape-7 waits: paused (moved)."_qs);
}

TEST(JobNews, PiecesThatAreOut_TellHowMuchOfItIsPrinted)
{
    const auto percentOf = [](const job::JobStatus &status, std::size_t pieces) {
        return job::JobNews{{u"tape"_qs, 7, true}, status}.percentOf(pieces);
    };
    job::JobStatus prints = statusOf(IPP_JSTATE_PROCESSING);
    EXPECT_LT(percentOf(prints, 2000), 0); // nobody counts them, or none is out
    prints.piecesOut = 891;
    EXPECT_EQ(percentOf(prints, 2000), 44);
    EXPECT_LT(percentOf(prints, 0), 0);
    prints.printerReasons = QStringList{u"media-empty-error"_qs};
    EXPECT_EQ(percentOf(prints, 2000), 44);
    prints.piecesOut = 2001; // a banner before them
    EXPECT_EQ(percentOf(prints, 2000), 100);
}

TEST(JobNews, JobThatWaits_IsNotShownAsBusy)
{
    const auto percentOf = [](const job::JobStatus &status) {
        return job::JobNews{{u"tape"_qs, 7, true}, status}.percentOf(2000);
    };
    EXPECT_EQ(percentOf(statusOf(IPP_JSTATE_HELD)), 0);
    EXPECT_EQ(percentOf(statusOf(IPP_JSTATE_PENDING)), 0);
    job::JobStatus waits = statusOf(IPP_JSTATE_PROCESSING);
    waits.isStopped = true;
    EXPECT_EQ(percentOf(waits), 0);
}

TEST(JobRow, BarThatHasNothingToShow_IsNotShown)
{
    dialog::JobRow row;
    const auto *bar = row.findChild<QProgressBar *>();
    row.tell(u"Job tape-7 waits: out of tape."_qs, 0);
    EXPECT_TRUE(bar->isHidden());
    row.tell(u"Job tape-7 is being printed."_qs, -1);
    EXPECT_FALSE(bar->isHidden());
    EXPECT_EQ(bar->maximum(), 0); // it moves
    row.tell(u"Job tape-7 waits: out of tape."_qs, 44);
    EXPECT_FALSE(bar->isHidden());
    EXPECT_EQ(bar->value(), 44);
    EXPECT_EQ(bar->maximum(), 100);
}

/// What the server does; threads may look at it when the test is over.
struct Script {
    std::atomic<bool> mayEnd = false;
    std::atomic<bool> mayCancel = true;
    std::atomic<bool> wasLeft = false;
    ipp_jstate_t lastState = IPP_JSTATE_COMPLETED;
    int piecesOut = 0;
    job::Problem followProblem;
    job::Problem cancelProblem;
};

std::optional<job::JobNews> followBy(Script &script, const job::JobName &name, const std::atomic<bool> &stop,
                                     const job::JobReport &report, job::Problem *problem)
{
    job::JobStatus prints = statusOf(IPP_JSTATE_PROCESSING);
    prints.piecesOut = script.piecesOut;
    report({name, prints});
    while (!script.mayEnd && !stop) {
        QThread::msleep(5);
    }
    script.wasLeft = stop.load();
    *problem = script.followProblem;
    if (stop || !problem->isNull()) {
        return std::nullopt;
    }
    return job::JobNews{name, statusOf(script.lastState)};
}

class PrintRunTest : public testing::Test
{
protected:
    PrintRunTest()
    {
        PrintRun::Server server;
        server.follow = [script = script](const job::JobName &name, const std::atomic<bool> &stop,
                                          const job::JobReport &report, job::Problem *problem) {
            return followBy(*script, name, stop, report, problem);
        };
        server.cancel = [script = script](const job::JobName &, const std::atomic<bool> &stop, job::Problem *problem) {
            while (!script->mayCancel && !stop) {
                QThread::msleep(5);
            }
            *problem = script->cancelProblem;
            return problem->isNull();
        };
        run = std::make_unique<PrintRun>(server);
        QObject::connect(run.get(), &PrintRun::told,
                         [this](const QString &words, int percent) { told.emplace_back(words, percent); });
        QObject::connect(run.get(), &PrintRun::sent, [this] { events.append(u"sent"_qs); });
        QObject::connect(run.get(), &PrintRun::ended, [this] { events.append(u"ended"_qs); });
        QObject::connect(run.get(), &PrintRun::failed, [this](const job::Problem &problem) {
            isByPerson = problem.kind == job::Problem::Cancelled;
            events.append(u"failed:"_qs + problem.sentence);
        });
        QObject::connect(run.get(), &PrintRun::notCancelled,
                         [this](const job::Problem &problem) { events.append(u"not:"_qs + problem.sentence); });
    }

    ~PrintRunTest() override { script->mayEnd = script->mayCancel = true; }

    static std::optional<job::PrintedJob> inQueue() { return job::PrintedJob{u"tape"_qs, {7, u"pending"_qs}, {}}; }

    /// Prints and waits until the server has the job.
    void send()
    {
        run->start([](const job::PrintWatch &, job::Problem *) { return inQueue(); }, true);
        ASSERT_TRUE(QTest::qWaitFor([this] { return run->phase() == PrintRun::Phase::Following; }));
    }

    bool hasTold(const QString &words) const
    {
        return std::any_of(told.begin(), told.end(), [&](const auto &entry) { return entry.first == words; });
    }

    std::shared_ptr<Script> script = std::make_shared<Script>();
    QStringList events;
    bool isByPerson = false; ///< whether what failed was the person's wish
    std::vector<std::pair<QString, int>> told;
    std::unique_ptr<PrintRun> run;
};

TEST_F(PrintRunTest, JobThatIsPrinted_IsFollowedToItsEnd)
{
    send();
    EXPECT_TRUE(QTest::qWaitFor([this] { return hasTold(u"Job tape-7 is being printed."_qs); }));
    EXPECT_EQ(events, QStringList{u"sent"_qs});
    script->mayEnd = true;
    ASSERT_TRUE(QTest::qWaitFor([this] { return events.size() == 2; }));
    EXPECT_EQ(events.last(), u"ended"_qs);
    EXPECT_EQ(run->printed()->job.state, u"completed"_qs);
    EXPECT_EQ(run->phase(), PrintRun::Phase::Idle);
}

TEST_F(PrintRunTest, LongJob_TellsHowMuchIsPrinted)
{
    script->piecesOut = 500;
    run->start([](const job::PrintWatch &, job::Problem *) { return inQueue(); }, true, 2000);
    const std::pair<QString, int> aQuarter(u"Job tape-7 is being printed."_qs, 25);
    EXPECT_TRUE(QTest::qWaitFor([&] { return std::find(told.begin(), told.end(), aQuarter) != told.end(); }));
}

TEST_F(PrintRunTest, JobThatFails_IsNotPrinted)
{
    script->lastState = IPP_JSTATE_ABORTED;
    script->mayEnd = true;
    run->start([](const job::PrintWatch &, job::Problem *) { return inQueue(); }, true);
    ASSERT_TRUE(QTest::qWaitFor([this] { return events.size() == 2; }));
    EXPECT_EQ(events.last(), u"failed:Job tape-7 has failed: the print server does not say why."_qs);
    EXPECT_FALSE(run->printed());
}

TEST_F(PrintRunTest, Sending_TellsHowMuchAndStopsOnCancel)
{
    run->start(
        [](const job::PrintWatch &watch, job::Problem *problem) -> std::optional<job::PrintedJob> {
            watch.report({30, 120});
            while (!watch.stop) {
                QThread::msleep(5);
            }
            *problem = {job::Problem::Cancelled, QString()};
            return std::nullopt;
        },
        true);
    ASSERT_TRUE(QTest::qWaitFor([this] { return told.size() == 2; }));
    EXPECT_EQ(told[1], std::pair(u"Sending…"_qs, 25));
    run->cancel();
    ASSERT_TRUE(QTest::qWaitFor([this] { return !events.empty(); }));
    EXPECT_EQ(events, QStringList{u"failed:"_qs});
}

TEST_F(PrintRunTest, CancelOfASentJob_IsTheServers)
{
    send();
    run->cancel();
    ASSERT_TRUE(QTest::qWaitFor([this] { return events.size() == 2; }));
    EXPECT_EQ(events.last(), u"failed:Job tape-7 was cancelled."_qs);
    EXPECT_TRUE(isByPerson);
    EXPECT_FALSE(run->printed());
}

TEST_F(PrintRunTest, CancelWhoseEndIsHeardOfFirst_IsThePersonsAllTheSame)
{
    script->lastState = IPP_JSTATE_CANCELED;
    script->mayCancel = false;
    send();
    run->cancel();
    script->mayEnd = true;
    ASSERT_TRUE(QTest::qWaitFor([this] { return events.size() == 2; }));
    EXPECT_EQ(events.last(), u"failed:Job tape-7 was cancelled."_qs);
    EXPECT_TRUE(isByPerson);
}

TEST_F(PrintRunTest, JobThatSomebodyElseCancels_IsNotThePersons)
{
    script->lastState = IPP_JSTATE_CANCELED;
    script->mayEnd = true;
    run->start([](const job::PrintWatch &, job::Problem *) { return inQueue(); }, true);
    ASSERT_TRUE(QTest::qWaitFor([this] { return events.size() == 2; }));
    EXPECT_EQ(events.last(), u"failed:Job tape-7 was cancelled."_qs);
    EXPECT_FALSE(isByPerson);
}

TEST_F(PrintRunTest, HeldJob_CanBeCancelledWhenThatIsKnown)
{
    script->lastState = IPP_JSTATE_HELD;
    script->mayEnd = true;
    run->start([](const job::PrintWatch &, job::Problem *) { return inQueue(); }, true);
    ASSERT_TRUE(QTest::qWaitFor([this] { return events.size() == 2; }));
    EXPECT_EQ(events.last(), u"ended"_qs);
    EXPECT_EQ(run->printed()->job.state, u"pending-held"_qs);
    run->cancel();
    ASSERT_TRUE(QTest::qWaitFor([this] { return events.size() == 3; }));
    EXPECT_EQ(events.last(), u"failed:Job tape-7 was cancelled."_qs);
    EXPECT_EQ(run->phase(), PrintRun::Phase::Idle);
    EXPECT_FALSE(run->printed());
}

TEST_F(PrintRunTest, HeldJobThatTheServerDoesNotCancel_IsToldOfAgain)
{
    script->lastState = IPP_JSTATE_HELD;
    script->mayEnd = true;
    script->cancelProblem = u"No."_qs;
    run->start([](const job::PrintWatch &, job::Problem *) { return inQueue(); }, true);
    ASSERT_TRUE(QTest::qWaitFor([this] { return events.size() == 2; }));
    run->cancel();
    EXPECT_EQ(told.back().first, u"Cancelling…"_qs);
    EXPECT_TRUE(run->isCancelling());
    ASSERT_TRUE(QTest::qWaitFor([this] { return events.size() == 3; }));
    EXPECT_EQ(events.last(), u"not:No."_qs);
    EXPECT_EQ(told.back().first, u"Job tape-7 is held: it waits until it is released."_qs);
    run->leave();
    ASSERT_TRUE(run->printed());
}

TEST_F(PrintRunTest, CancelThatTheServerRefuses_IsSaidAndTheJobFollowedOn)
{
    script->cancelProblem = u"No."_qs;
    send();
    run->cancel();
    ASSERT_TRUE(QTest::qWaitFor([this] { return events.size() == 2; }));
    EXPECT_EQ(events.last(), u"not:No."_qs);
    EXPECT_EQ(run->phase(), PrintRun::Phase::Following);
    script->mayEnd = true;
    ASSERT_TRUE(QTest::qWaitFor([this] { return events.size() == 3; }));
    EXPECT_EQ(events.last(), u"ended"_qs);
}

TEST_F(PrintRunTest, JobThatIsLeft_GoesOn)
{
    send();
    run->leave();
    ASSERT_TRUE(QTest::qWaitFor([this] { return script->wasLeft.load(); }));
    QTest::qWait(50);
    EXPECT_EQ(events, QStringList{u"sent"_qs});
    ASSERT_TRUE(run->printed());
    EXPECT_EQ(run->printed()->job.id, 7);
}

TEST_F(PrintRunTest, ServerThatGoesAwayMeanwhile_IsSaid)
{
    script->followProblem = {job::Problem::Unreachable, u"Gone."_qs};
    script->mayEnd = true;
    run->start([](const job::PrintWatch &, job::Problem *) { return inQueue(); }, true);
    ASSERT_TRUE(QTest::qWaitFor([this] { return events.size() == 2; }));
    EXPECT_EQ(events.last(), u"failed:Gone."_qs);
}

/// A thread of a server that wants a password.
class Asking
{
public:
    explicit Asking(int attempt = 1)
        : mThread([this, attempt] {
              const auto answer =
                  job::passwordAsker()({u"office"_qs, u"me"_qs, attempt}, [this] { return isOver.load(); });
              given = answer ? answer->user + u'/' + QString::fromUtf8(answer->password.text()) : u"none"_qs;
              isAnswered = true;
          })
    {
    }
    ~Asking() { mThread.join(); }
    Asking(const Asking &) = delete;
    Asking &operator=(const Asking &) = delete;

    std::atomic<bool> isOver = false;
    std::atomic<bool> isAnswered = false;
    QString given;

private:
    std::thread mThread;
};

dialog::PasswordDialog *openQuestion()
{
    dialog::PasswordDialog *question = nullptr;
    EXPECT_TRUE(QTest::qWaitFor([&question] {
        question = qobject_cast<dialog::PasswordDialog *>(QApplication::activeModalWidget());
        return question != nullptr;
    }));
    return question;
}

TEST(PasswordDesk, WhatIsTyped_ReachesTheThreadAndStaysNowhere)
{
    const dialog::PasswordDesk desk;
    Asking thread;
    QPointer<dialog::PasswordDialog> question = openQuestion();
    ASSERT_NE(question, nullptr);
    auto *password = question->findChild<QLineEdit *>(u"password"_qs);
    EXPECT_EQ(password->echoMode(), QLineEdit::Password);
    EXPECT_TRUE(QTest::qWaitFor([password] { return password->hasFocus(); }));
    EXPECT_EQ(question->findChild<QLineEdit *>(u"user"_qs)->text(), u"me"_qs);
    QTest::keyClicks(password, u"right"_qs);
    QTest::keyClick(password, Qt::Key_Return);
    ASSERT_TRUE(QTest::qWaitFor([&thread] { return thread.isAnswered.load(); }));
    EXPECT_EQ(thread.given, u"me/right"_qs);
    EXPECT_TRUE(QTest::qWaitFor([&question] { return question.isNull(); }));
}

TEST(PasswordDesk, QuestionThatComesBeforeTheWindow_StandsOverIt)
{
    const dialog::PasswordDesk desk;
    Asking thread;
    QDialog window;
    QTimer::singleShot(300, &window, &QDialog::show);
    const dialog::PasswordDialog *question = openQuestion();
    ASSERT_NE(question, nullptr);
    EXPECT_EQ(question->parentWidget(), &window);
    thread.isOver = true;
}

TEST(PasswordDesk, QuestionWhoseWindowGoes_IsAskedOverTheOneThatIsLeft)
{
    const dialog::PasswordDesk desk;
    QDialog window;
    window.show();
    auto *alert = new QDialog(&window);
    alert->open();
    ASSERT_TRUE(QTest::qWaitFor([alert] { return QApplication::activeWindow() == alert; }));
    Asking thread;
    ASSERT_TRUE(QTest::qWaitFor([alert] { return alert->findChild<dialog::PasswordDialog *>() != nullptr; }));
    delete alert;
    dialog::PasswordDialog *question = openQuestion();
    ASSERT_NE(question, nullptr);
    EXPECT_EQ(question->parentWidget(), &window);
    QTest::keyClick(question, Qt::Key_Escape);
    EXPECT_TRUE(QTest::qWaitFor([&thread] { return thread.isAnswered.load(); }));
    thread.isOver = true; // or it would be waited for
}

TEST(PasswordDesk, PersonWhoDeclines_GivesNone)
{
    const dialog::PasswordDesk desk;
    Asking thread(2);
    dialog::PasswordDialog *question = openQuestion();
    ASSERT_NE(question, nullptr);
    EXPECT_TRUE(question->findChild<QLabel *>()->text().startsWith(u"That was not accepted."));
    QTest::keyClick(question, Qt::Key_Escape);
    ASSERT_TRUE(QTest::qWaitFor([&thread] { return thread.isAnswered.load(); }));
    EXPECT_EQ(thread.given, u"none"_qs);
}

TEST(PasswordDesk, QuestionThatNobodyWaitsFor_Closes)
{
    const dialog::PasswordDesk desk;
    Asking thread;
    const QPointer<dialog::PasswordDialog> question = openQuestion();
    ASSERT_NE(question, nullptr);
    thread.isOver = true;
    EXPECT_TRUE(QTest::qWaitFor([&question] { return question.isNull(); }));
    EXPECT_TRUE(QTest::qWaitFor([&thread] { return thread.isAnswered.load(); }));
    EXPECT_EQ(thread.given, u"none"_qs);
}

} // namespace
