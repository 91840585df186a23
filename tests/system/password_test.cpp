// SPDX-License-Identifier: Apache-2.0
// A print server that wants a password, and a person at a terminal, or none.
#include "tests/support/ExitStatuses.h"
#include "tests/support/MeddlingServer.h"
#include "tests/system/SystemTest.h"
#include "tests/system/WindowTest.h"

#include <QThread>

#include <cups/cups.h>
#include <poll.h>
#include <pty.h>
#include <sys/wait.h>
#include <unistd.h>

namespace
{

using systemtest::Outcome;
using tapeprint::test::Meddling;
using tapeprint::test::MeddlingServer;
using tapeprint::test::SeenRequest;

class PasswordTest : public systemtest::SystemTest
{
protected:
    void SetUp() override
    {
        SystemTest::SetUp();
        moreVariables = {{u"CUPS_SERVER"_qs, folder.path(u"meddling.sock"_qs)}};
    }

    /// Guards everything, or the making of jobs alone.
    MeddlingServer guardedServer(bool guardsAll = false) const
    {
        return {folder.path(u"meddling.sock"_qs), cups.socket(), [guardsAll](const SeenRequest &request) {
                    return (!guardsAll && request.operation != IPP_OP_CREATE_JOB) ||
                                   request.authorization == "anna:right"
                               ? Meddling::PassOn
                               : Meddling::Deny;
                }};
    }

    /// Runs the program at a terminal where a person types a line after each ": ". \return what the terminal shows.
    QByteArray printAtTerminal(std::vector<QByteArray> lines, int *status) const
    {
        const QByteArray program = TAPEPRINT_BIN_DIR "/tapeprint";
        const QByteArray documentName = QFile::encodeName(document);
        const QStringList environment = systemtest::clientEnvironment(variables()).toStringList();
        int terminal = -1;
        const pid_t child = forkpty(&terminal, nullptr, nullptr, nullptr);
        if (child == 0) {
            clearenv();
            for (const QString &entry : environment) {
                putenv(strdup(entry.toUtf8().constData()));
            }
            execl(program.constData(), program.constData(), "-d", "tape", "--no-dialog", documentName.constData(),
                  nullptr);
            _exit(127);
        }
        QByteArray shown;
        std::array<char, 1024> bytes{};
        std::size_t next = 0;
        qsizetype read = 0;
        pollfd waited{terminal, POLLIN, 0};
        for (ssize_t count = 0; poll(&waited, 1, systemtest::patienceMs) > 0 &&
                                (count = ::read(terminal, bytes.data(), bytes.size())) > 0;) {
            shown.append(bytes.data(), count);
            if (shown.mid(read).endsWith(": ") && next < lines.size()) {
                read = shown.size();
                const QByteArray line = lines[next++] + '\n';
                EXPECT_EQ(::write(terminal, line.constData(), static_cast<std::size_t>(line.size())), line.size());
            }
        }
        close(terminal); // which ends a program that waits there
        int ended = 0;
        waitpid(child, &ended, 0);
        *status = WIFEXITED(ended) ? WEXITSTATUS(ended) : -1;
        return shown;
    }
};

TEST_F(PasswordTest, NoTerminal_IsSaidAndNothingIsPrinted)
{
    const auto server = guardedServer();
    const Outcome outcome = tapeprint({u"-d"_qs, u"tape"_qs, u"--no-dialog"_qs, document});
    EXPECT_EQ(outcome.status, testsupport::rejectedJob);
    EXPECT_TRUE(outcome.messages.contains("wants a user's name and password")) << outcome.messages.toStdString();
    EXPECT_TRUE(cups.jobs().empty());
}

TEST_F(PasswordTest, Terminal_AsksAgainAndShowsNoPassword)
{
    const auto server = guardedServer();
    int status = -1;
    const QByteArray shown = printAtTerminal({"anna", "wrong", "", "right"}, &status);
    EXPECT_EQ(status, 0) << shown.toStdString();
    EXPECT_TRUE(shown.contains("That was not accepted.")) << shown.toStdString();
    EXPECT_TRUE(shown.contains("User [anna]: ")) << shown.toStdString(); // as given the first time
    EXPECT_FALSE(shown.contains("wrong")) << shown.toStdString();
    EXPECT_FALSE(shown.contains("right")) << shown.toStdString();
    EXPECT_TRUE(shown.contains("Job tape-1 is ")) << shown.toStdString();
    EXPECT_TRUE(cups.waitForEnd(1).has_value());
}

TEST_F(PasswordTest, TerminalOfAServerThatGuardsEverything_AsksOnce)
{
    const auto server = guardedServer(true);
    int status = -1;
    const QByteArray shown = printAtTerminal({"anna", "right"}, &status);
    EXPECT_EQ(status, 0) << shown.toStdString();
    EXPECT_EQ(shown.count("Password: "), 1) << shown.toStdString();
    EXPECT_TRUE(cups.waitForEnd(1).has_value());
}

TEST_F(PasswordTest, TerminalWhereNothingIsTyped_EndsInWords)
{
    const auto server = guardedServer();
    int status = -1;
    const QByteArray shown = printAtTerminal({"anna", ""}, &status);
    EXPECT_EQ(status, testsupport::rejectedJob) << shown.toStdString();
    EXPECT_TRUE(shown.contains("wants a user's name and password")) << shown.toStdString();
    EXPECT_TRUE(cups.jobs().empty());
}

/// Somebody at a window who is asked.
class AskedAtAWindow : public systemtest::WindowTest
{
protected:
    /// Waits for the question and answers it. \return the question's window; null when none comes.
    QString answer(const QString &user, const QString &password)
    {
        const QString question = dialog.waitForFurtherWindow();
        dialog.press({u"alt+u"_qs, u"ctrl+a"_qs});
        dialog.type(user);
        dialog.press({u"Tab"_qs});
        dialog.type(password);
        dialog.press({u"Return"_qs});
        return question;
    }
};

/// A server that itself wants a password, and the window.
class WindowPassword : public AskedAtAWindow
{
protected:
    void SetUp() override
    {
        cups.requirePassword("anna", "right");
        WindowTest::SetUp();
        if (HasFatalFailure() || IsSkipped()) {
            return;
        }
        moreVariables = {{u"CUPS_SERVER"_qs, cups.guardedServer()}};
        const QString problem = dialog.open({QStringLiteral(TAPEPRINT_BIN_DIR "/tapeprint"),
                                             {u"-d"_qs, u"tape"_qs, document},
                                             variables(),
                                             workFolder});
        ASSERT_TRUE(problem.isNull()) << problem.toStdString();
    }
};

TEST_F(WindowPassword, WrongAndThenRight_PrintsInThePersonsName)
{
    dialog.clickPrint();
    const QString first = answer(u"anna"_qs, u"wrong"_qs);
    ASSERT_FALSE(first.isNull());
    ASSERT_TRUE(dialog.waitForGone(first));
    ASSERT_FALSE(answer(u"anna"_qs, u"right"_qs).isNull());
    const Outcome outcome = dialog.waitForEnd();
    EXPECT_EQ(outcome.status, 0) << outcome.messages.toStdString();
    ASSERT_TRUE(cups.waitForEnd(1).has_value());
    EXPECT_EQ(cups.attributeOfJob(1, "job-originating-user-name"), "anna");
}

TEST_F(WindowPassword, NoAnswer_PrintsNothingAndAsksForNoMore)
{
    dialog.clickPrint();
    const QString question = dialog.waitForFurtherWindow();
    ASSERT_FALSE(question.isNull());
    dialog.press({u"Escape"_qs});
    ASSERT_TRUE(dialog.waitForGone(question));
    QThread::sleep(1);
    EXPECT_EQ(dialog.windows(), QStringList{dialog.window()}); // it is said in passing
    EXPECT_TRUE(cups.jobs().empty());
    dialog.clickPrint(); // the window is of use as before
    ASSERT_FALSE(answer(u"anna"_qs, u"right"_qs).isNull());
    EXPECT_EQ(dialog.waitForEnd().status, 0);
}

/// A server that wants a password for whatever it is asked.
class GuardedWindow : public AskedAtAWindow
{
protected:
    std::unique_ptr<MeddlingServer> guardAll() const
    {
        return std::make_unique<MeddlingServer>(
            folder.path(u"meddling.sock"_qs), cups.socket(), [](const SeenRequest &request) {
                return request.authorization == "anna:right" ? Meddling::PassOn : Meddling::Deny;
            });
    }
};

TEST_F(GuardedWindow, AsksOnceToOpenToPrintAndToFollow)
{
    const auto server = guardAll();
    moreVariables = {{u"CUPS_SERVER"_qs, folder.path(u"meddling.sock"_qs)}};
    const QString problem = dialog.openUnconnected(
        {QStringLiteral(TAPEPRINT_BIN_DIR "/tapeprint"), {u"-d"_qs, u"tape"_qs, document}, variables(), workFolder});
    ASSERT_TRUE(problem.isNull()) << problem.toStdString();
    const QString question = answer(u"anna"_qs, u"right"_qs);
    ASSERT_FALSE(question.isNull());
    ASSERT_TRUE(dialog.waitForGone(question));
    ASSERT_TRUE(dialog.isConnected());
    dialog.clickPrint();
    const Outcome outcome = dialog.waitForEnd(); // it closes when the job that it follows is printed
    EXPECT_EQ(outcome.status, 0) << outcome.messages.toStdString();
    ASSERT_TRUE(cups.waitForEnd(1).has_value());
    EXPECT_EQ(cups.attributeOfJob(1, "job-originating-user-name"), "anna");
}

TEST_F(GuardedWindow, WithNoPrinterNamed_CanBeAskedAgain)
{
    ASSERT_TRUE(cups.run(u"lpadmin"_qs, {u"-d"_qs, u"tape"_qs}).isNull());
    const auto server = guardAll();
    moreVariables = {{u"CUPS_SERVER"_qs, folder.path(u"meddling.sock"_qs)}};
    const QString problem =
        dialog.openUnconnected({QStringLiteral(TAPEPRINT_BIN_DIR "/tapeprint"), {document}, variables(), workFolder});
    ASSERT_TRUE(problem.isNull()) << problem.toStdString();
    const QString question = dialog.waitForFurtherWindow();
    ASSERT_FALSE(question.isNull());
    dialog.press({u"Escape"_qs});
    ASSERT_TRUE(dialog.waitForGone(question));
    dialog.press({u"alt+a"_qs}); // Ask Again
    const QString again = answer(u"anna"_qs, u"right"_qs);
    ASSERT_FALSE(again.isNull());
    ASSERT_TRUE(dialog.waitForGone(again));
    ASSERT_TRUE(dialog.isConnected());
    dialog.clickPrint();
    EXPECT_EQ(dialog.waitForEnd().status, 0);
}

TEST_F(GuardedWindow, WhoseFirstQuestionIsDeclined_AsksNoMoreUntilThePrinterIsChosenAgain)
{
    const auto server = guardAll();
    moreVariables = {{u"CUPS_SERVER"_qs, folder.path(u"meddling.sock"_qs)}};
    const QString problem = dialog.openUnconnected(
        {QStringLiteral(TAPEPRINT_BIN_DIR "/tapeprint"), {u"-d"_qs, u"tape"_qs, document}, variables(), workFolder});
    ASSERT_TRUE(problem.isNull()) << problem.toStdString();
    const QString question = dialog.waitForFurtherWindow();
    ASSERT_FALSE(question.isNull());
    dialog.press({u"Escape"_qs});
    ASSERT_TRUE(dialog.waitForGone(question));
    QThread::sleep(4);
    EXPECT_EQ(dialog.windows(), QStringList{dialog.window()});
    // Whoever chooses the printer once more is asked once more.
    dialog.press({u"alt+r"_qs, u"Down"_qs});
    const QString again = answer(u"anna"_qs, u"right"_qs);
    ASSERT_FALSE(again.isNull());
    ASSERT_TRUE(dialog.waitForGone(again));
    EXPECT_TRUE(dialog.isConnected());
    dialog.press({u"Escape"_qs});
    EXPECT_EQ(dialog.waitForEnd().status, testsupport::cancelled);
}

} // namespace
