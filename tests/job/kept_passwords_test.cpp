// SPDX-License-Identifier: Apache-2.0
// A password that was typed once: which connections it is good for, and when it is forgotten.
#include "job/Advice.h"
#include "job/IppQuestion.h"
#include "job/KeptPasswords.h"
#include "job/ServerConnection.h"
#include "tests/support/MeddlingServer.h"

#include <QTemporaryDir>

#include <atomic>
#include <chrono>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

#include <gtest/gtest.h>

namespace
{

using namespace tapeprint::job;
using tapeprint::test::Meddling;
using tapeprint::test::MeddlingServer;
using tapeprint::test::SeenRequest;

class KeptPasswords : public testing::Test
{
protected:
    void SetUp() override
    {
        setPasswordAsker([this](const PasswordQuestion &question, const std::function<bool()> &) {
            const std::lock_guard lock(mutex);
            questions.push_back(question.user.toStdString() + ' ' + std::to_string(question.attempt));
            std::this_thread::sleep_for(timeToType);
            if (typed.isEmpty()) {
                return std::optional<Credentials>();
            }
            QByteArray password = typed;
            return std::optional(Credentials{QStringLiteral("anna"), Secret(password)});
        });
    }
    void TearDown() override
    {
        cupsSetServer(nullptr);
        setPasswordAsker(nullptr);
    }

    /// On a connection of its own. \return whether the server answered.
    bool ask(ServerConnection::Passwords passwords = ServerConnection::Passwords::Ask)
    {
        cupsSetServer(connectTo.toUtf8().constData()); // libcups's settings are each thread's own
        const auto server = ServerConnection::open(&stop, passwords);
        const Response response = askServer(*server, ippNewRequest(IPP_OP_CUPS_GET_DEFAULT));
        return response && ippGetStatusCode(response.get()) == IPP_STATUS_OK;
    }

    /// Lets in who gives the password of now, and notes what was given.
    Meddling guard(const SeenRequest &request)
    {
        const std::lock_guard lock(seenMutex);
        if (!request.authorization.isNull()) {
            seen.push_back(request.authorization.toStdString());
        }
        return request.authorization == "anna:" + right ? answer : Meddling::Deny;
    }

    QTemporaryDir folder;
    QString socket = folder.filePath(QStringLiteral("server.sock"));
    QString connectTo = socket;
    std::atomic<bool> stop{false};
    std::mutex mutex;
    std::vector<std::string> questions;
    QByteArray typed = "right";
    std::chrono::milliseconds timeToType{0};
    std::mutex seenMutex;
    std::vector<std::string> seen;
    QByteArray right = "right";
    Meddling answer = Meddling::AnswerOk;
    std::string me = cupsUser();
};

TEST_F(KeptPasswords, OneThatWasTyped_IsGoodForFurtherConnectionsAlsoForThoseThatAskNobody)
{
    const PasswordKeeping keeping;
    const MeddlingServer guarded(socket, {}, [this](const SeenRequest &request) { return guard(request); });
    EXPECT_TRUE(ask());
    EXPECT_TRUE(ask());
    EXPECT_TRUE(ask(ServerConnection::Passwords::GoWithout));
    EXPECT_EQ(questions, std::vector<std::string>{me + " 1"});
}

TEST_F(KeptPasswords, WithTheLastWindow_AllAreForgotten)
{
    const MeddlingServer guarded(socket, {}, [this](const SeenRequest &request) { return guard(request); });
    {
        const PasswordKeeping outer;
        {
            const PasswordKeeping inner;
            EXPECT_TRUE(ask());
        }
        EXPECT_TRUE(ask()); // the outer one lives
        EXPECT_EQ(questions.size(), 1U);
    }
    const PasswordKeeping another;
    EXPECT_FALSE(ask(ServerConnection::Passwords::GoWithout));
    EXPECT_TRUE(ask());
    EXPECT_EQ(questions.size(), 2U);
}

TEST_F(KeptPasswords, AnotherServerOrAnotherUser_GetsNone)
{
    const PasswordKeeping keeping;
    const MeddlingServer guarded(socket, {}, [this](const SeenRequest &request) { return guard(request); });
    EXPECT_TRUE(ask());
    cupsSetUser("bert");
    EXPECT_FALSE(ask(ServerConnection::Passwords::GoWithout)); // not by anna's
    cupsSetUser(me.c_str());
    const QString otherSocket = folder.filePath(QStringLiteral("other.sock"));
    seen.clear();
    const MeddlingServer other(otherSocket, {}, [this](const SeenRequest &request) { return guard(request); });
    connectTo = otherSocket;
    EXPECT_FALSE(ask(ServerConnection::Passwords::GoWithout));
    EXPECT_TRUE(seen.empty()) << seen.front();
    connectTo = socket;
    EXPECT_TRUE(ask(ServerConnection::Passwords::GoWithout)); // which still knows
}

TEST_F(KeptPasswords, OneThatIsRefusedLater_IsForgottenAndAskedForWithoutBlame)
{
    const PasswordKeeping keeping;
    const MeddlingServer guarded(socket, {}, [this](const SeenRequest &request) { return guard(request); });
    EXPECT_TRUE(ask());
    right = "new"; // somebody has changed it
    EXPECT_FALSE(ask(ServerConnection::Passwords::GoWithout));
    seen.clear();
    EXPECT_FALSE(ask(ServerConnection::Passwords::GoWithout));
    EXPECT_TRUE(seen.empty()); // it is not sent a second time
    typed = "new";
    EXPECT_TRUE(ask());
    EXPECT_EQ(questions, (std::vector<std::string>{me + " 1", me + " 1"}));
    EXPECT_TRUE(ask(ServerConnection::Passwords::GoWithout));
}

TEST_F(KeptPasswords, OneThatWasWrongToTheEnd_IsNotKept)
{
    const PasswordKeeping keeping;
    typed = "wrong";
    const MeddlingServer guarded(socket, {}, [this](const SeenRequest &request) { return guard(request); });
    cupsSetServer(socket.toUtf8().constData());
    const auto server = ServerConnection::open(&stop);
    EXPECT_EQ(askServer(*server, ippNewRequest(IPP_OP_CUPS_GET_DEFAULT)), nullptr);
    EXPECT_TRUE(server->wasRefused());
    EXPECT_EQ(questions.size(), 3U);
    seen.clear();
    EXPECT_FALSE(ask(ServerConnection::Passwords::GoWithout));
    EXPECT_TRUE(seen.empty());
}

/// A server that says in HTTP, or in IPP, that the person may not do this.
class RefusingServer : public KeptPasswords, public testing::WithParamInterface<QByteArray>
{
};

INSTANTIATE_TEST_SUITE_P(Both, RefusingServer,
                         testing::Values(QByteArray("HTTP/1.1 403 Forbidden\r\nContent-Length: 0\r\n\r\n"),
                                         QByteArray("HTTP/1.1 200 OK\r\nContent-Type: application/ipp\r\n"
                                                    "Content-Length: 9\r\n\r\n") +
                                             QByteArray::fromHex("020004010000000103"))); // client-error-forbidden

TEST_P(RefusingServer, WhoMayNotDoThis_IsAskedWhoElseMayAtTheNextTry)
{
    const PasswordKeeping keeping;
    MeddlingServer guarded(socket, {}, [this](const SeenRequest &request) { return guard(request); });
    guarded.replyWith([](int piece) { return piece == 0 ? GetParam() : QByteArray(); });
    EXPECT_TRUE(ask());
    answer = Meddling::OwnReply;
    EXPECT_FALSE(ask(ServerConnection::Passwords::GoWithout)); // the list may be closed to who may print
    EXPECT_FALSE(ask());
    EXPECT_EQ(questions.size(), 1U);
    answer = Meddling::AnswerOk;
    EXPECT_TRUE(ask());
    EXPECT_EQ(questions.size(), 2U);
}

TEST_F(KeptPasswords, TwoThatNeedOneAtOnce_AskOnce)
{
    const PasswordKeeping keeping;
    timeToType = std::chrono::milliseconds(500);
    const MeddlingServer guarded(socket, {}, [this](const SeenRequest &request) { return guard(request); });
    bool isOtherAnswered = false;
    std::thread other([this, &isOtherAnswered] { isOtherAnswered = ask(); });
    EXPECT_TRUE(ask());
    other.join();
    EXPECT_TRUE(isOtherAnswered);
    EXPECT_EQ(questions.size(), 1U);
}

TEST_F(KeptPasswords, TwoThatNeedOneAtOnce_AreDeclinedAtOnce)
{
    const PasswordKeeping keeping;
    const AdviceForTheWindow window;
    timeToType = std::chrono::milliseconds(500);
    typed.clear();
    const MeddlingServer guarded(socket, {}, [this](const SeenRequest &request) { return guard(request); });
    std::thread other([this] { EXPECT_FALSE(ask()); });
    EXPECT_FALSE(ask());
    other.join();
    EXPECT_EQ(questions.size(), 1U);
    EXPECT_FALSE(ask()); // the next one is a question of its own
    EXPECT_EQ(questions.size(), 2U);
}

TEST_F(KeptPasswords, WhoWaitsForAnothersAnswer_IsLeftAtAStop)
{
    const PasswordKeeping keeping;
    timeToType = std::chrono::seconds(3);
    const MeddlingServer guarded(socket, {}, [this](const SeenRequest &request) { return guard(request); });
    std::thread first([this] { ask(); });
    while (mutex.try_lock()) { // until the person is typing
        mutex.unlock();
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
    std::atomic<bool> secondStop{false};
    const auto start = std::chrono::steady_clock::now();
    std::thread person([&secondStop] {
        std::this_thread::sleep_for(std::chrono::milliseconds(300));
        secondStop = true;
    });
    cupsSetServer(socket.toUtf8().constData());
    const auto second = ServerConnection::open(&secondStop);
    EXPECT_EQ(askServer(*second, ippNewRequest(IPP_OP_CUPS_GET_DEFAULT)), nullptr);
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::milliseconds(1500));
    EXPECT_FALSE(second->wasDeclined());
    person.join();
    first.join();
}

} // namespace
