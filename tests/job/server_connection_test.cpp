// SPDX-License-Identifier: Apache-2.0
// The connection to the print server when the server is silent, goes away, or wants a password.
#include "job/Advice.h"
#include "job/IppQuestion.h"
#include "job/JobRequests.h"
#include "job/Printers.h"
#include "job/ServerConnection.h"
#include "tests/support/MeddlingServer.h"

#include <QFile>
#include <QTemporaryDir>

#include <algorithm>
#include <array>
#include <cerrno>
#include <chrono>
#include <memory>
#include <optional>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <gtest/gtest.h>

namespace
{

using namespace tapeprint::job;
using std::chrono::milliseconds;
using std::chrono::steady_clock;
using tapeprint::test::Meddling;
using tapeprint::test::MeddlingServer;
using tapeprint::test::SeenRequest;

class ServerConnectionTest : public testing::Test
{
protected:
    void SetUp() override { cupsSetServer(socket.toUtf8().constData()); }
    void TearDown() override
    {
        cupsSetServer(nullptr);
        ippSetPort(631);
        setPasswordAsker(nullptr);
        ServerConnection::setPatience({});
    }

    /// \return whether the server answered a request.
    static bool ask(const ServerConnection &server)
    {
        ipp_t *response = cupsDoRequest(server.http(), ippNewRequest(IPP_OP_CUPS_GET_DEFAULT), "/");
        const bool answered = response != nullptr && cupsLastError() == IPP_STATUS_OK;
        ippDelete(response);
        return answered;
    }

    /// Answers with a user's passwords, one after the other, and notes the questions.
    void answerWith(const std::vector<QByteArray> &passwords)
    {
        setPasswordAsker([this, passwords](const PasswordQuestion &question, const std::function<bool()> &) {
            questions.push_back(question.user.toStdString() + ' ' + std::to_string(question.attempt));
            const auto at = questions.size() - 1;
            QByteArray password = at < passwords.size() ? passwords[at] : QByteArray();
            return at < passwords.size() ? std::optional(Credentials{QStringLiteral("anna"), Secret(password)})
                                         : std::nullopt;
        });
    }

    static Meddling letAnnaIn(const SeenRequest &request)
    {
        return request.authorization == "anna:right" ? Meddling::AnswerOk : Meddling::Deny;
    }

    QTemporaryDir folder;
    QString socket = folder.filePath(QStringLiteral("server.sock"));
    std::atomic<bool> stop{false};
    std::vector<std::string> questions;
    std::string me = cupsUser();
};

TEST_F(ServerConnectionTest, SilentServer_IsLeftWithinASecondAfterAStop)
{
    const MeddlingServer silent(socket, {}, [](const SeenRequest &) { return Meddling::KeepSilent; });
    const auto server = ServerConnection::open(&stop);
    ASSERT_TRUE(server->isOpen());
    std::thread person([this] {
        std::this_thread::sleep_for(milliseconds(300));
        stop = true;
    });
    const auto start = steady_clock::now();
    EXPECT_FALSE(ask(*server));
    // A second of libcups's own for a first word of the server is waited through by itself.
    EXPECT_LT(steady_clock::now() - start, milliseconds(300 + 1000 + 700));
    person.join();
    EXPECT_TRUE(server->isStopped());
    EXPECT_TRUE(server->problem().isNull()); // the person knows
}

TEST_F(ServerConnectionTest, SilentServer_IsSaidOnceAndLeftWhenPatienceEnds)
{
    std::vector<std::string> told;
    ServerConnection::setPatience({milliseconds(600), milliseconds(1500),
                                   [&told](const QString &server) { told.push_back(server.toStdString()); }});
    const MeddlingServer silent(socket, {}, [](const SeenRequest &) { return Meddling::KeepSilent; });
    const auto server = ServerConnection::open(&stop);
    const auto start = steady_clock::now();
    EXPECT_FALSE(ask(*server));
    EXPECT_GT(steady_clock::now() - start, milliseconds(1400));
    EXPECT_LT(steady_clock::now() - start, milliseconds(6000));
    EXPECT_TRUE(server->isUnreachable());
    EXPECT_EQ(told, std::vector<std::string>{socket.toStdString()});
}

TEST_F(ServerConnectionTest, SilentServerAskedForAQueuesAddress_IsLeftWhenPatienceEnds)
{
    ServerConnection::setPatience({milliseconds(500), milliseconds(1000), {}});
    const MeddlingServer silent(socket, {}, [](const SeenRequest &) { return Meddling::KeepSilent; });
    const auto server = ServerConnection::open(&stop);
    const auto start = steady_clock::now();
    EXPECT_FALSE(addressOf(*server, QStringLiteral("tape")));
    EXPECT_LT(steady_clock::now() - start, milliseconds(6000));
    EXPECT_TRUE(server->isUnreachable());
}

TEST_F(ServerConnectionTest, ServerThatAnswersAfterTheWordAboutItsSilence_IsHeard)
{
    int told = 0;
    ServerConnection::setPatience({milliseconds(600), milliseconds(60000), [&told](const QString &) { ++told; }});
    const MeddlingServer slow(socket, {}, [](const SeenRequest &) {
        std::this_thread::sleep_for(milliseconds(1800));
        return Meddling::AnswerOk;
    });
    const auto server = ServerConnection::open(&stop);
    EXPECT_TRUE(ask(*server));
    EXPECT_EQ(told, 1);
    EXPECT_FALSE(server->isUnreachable());
}

TEST_F(ServerConnectionTest, SilentServer_GetsNoMoreThanTheTimeAllowed)
{
    const MeddlingServer silent(socket, {}, [](const SeenRequest &) { return Meddling::KeepSilent; });
    const auto server = ServerConnection::open(&stop);
    stop = true;
    server->allowOnly(milliseconds(1500));
    EXPECT_FALSE(server->isStopped()); // what was begun is put in order all the same
    const auto start = steady_clock::now();
    EXPECT_FALSE(ask(*server));
    EXPECT_GT(steady_clock::now() - start, milliseconds(1400));
    EXPECT_LT(steady_clock::now() - start, milliseconds(3000));
}

TEST_F(ServerConnectionTest, ServerThatSaysAByteNowAndThen_IsLeftAfterAStopAndAfterTheTimeAllowed)
{
    MeddlingServer slow(socket, {}, [](const SeenRequest &) { return Meddling::OwnReply; });
    slow.replyWith([](int) {
        std::this_thread::sleep_for(milliseconds(50)); // never as long as libcups waits before it asks
        return QByteArray("a");
    });
    const auto server = ServerConnection::open(&stop);
    std::thread person([this] {
        std::this_thread::sleep_for(milliseconds(300));
        stop = true;
    });
    auto start = steady_clock::now();
    EXPECT_FALSE(ask(*server));
    EXPECT_LT(steady_clock::now() - start, milliseconds(2000));
    EXPECT_TRUE(server->problem().isNull()); // the person knows
    person.join();

    server->allowOnly(milliseconds(1000));
    EXPECT_TRUE(server->reconnect());
    start = steady_clock::now();
    EXPECT_FALSE(ask(*server));
    EXPECT_LT(steady_clock::now() - start, milliseconds(3000));
}

TEST_F(ServerConnectionTest, JobThatIsOverOrForgotten_CountsAsCancelled)
{
    const std::vector<std::pair<ipp_status_t, bool>> answers{{IPP_STATUS_OK, true},
                                                             {IPP_STATUS_ERROR_NOT_POSSIBLE, true},
                                                             {IPP_STATUS_ERROR_NOT_FOUND, true},
                                                             {IPP_STATUS_ERROR_NOT_AUTHORIZED, false},
                                                             {IPP_STATUS_ERROR_INTERNAL, false}};
    for (const auto &[status, isCancelled] : answers) {
        // The shortest answer there is: a version, a status, a number and the end.
        const std::array<char, 9> bytes{2, 0, static_cast<char>(status >> 8), static_cast<char>(status & 0xFF), 0, 0, 0,
                                        1, 3};
        const QByteArray answer(bytes.data(), bytes.size());
        MeddlingServer answering(socket, {}, [](const SeenRequest &) { return Meddling::OwnReply; });
        answering.replyWith([&answer](int piece) {
            return piece == 0 ? "HTTP/1.1 200 OK\r\nContent-Type: application/ipp\r\nContent-Length: 9\r\n\r\n" + answer
                              : QByteArray();
        });
        const auto server = ServerConnection::open(&stop);
        EXPECT_EQ(cancelJob(*server, 1), isCancelled) << ippErrorString(status);
    }
}

TEST_F(ServerConnectionTest, NoServer_IsSaidAtOnce)
{
    const auto start = steady_clock::now();
    const auto server = ServerConnection::open(&stop);
    EXPECT_FALSE(server->isOpen());
    EXPECT_TRUE(server->problem().contains(u"server.sock does not answer")) << server->problem().toStdString();
    EXPECT_LT(steady_clock::now() - start, milliseconds(1000));
}

/// A server that takes no more callers: as many wait on its socket as it lets wait.
class FullServer
{
public:
    explicit FullServer(const QString &path) : mDoor(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0))
    {
        sockaddr_un address{};
        address.sun_family = AF_UNIX;
        const QByteArray name = QFile::encodeName(path);
        std::copy_n(name.constData(), name.size(), static_cast<char *>(address.sun_path));
        // The socket interface takes every kind of address through this one type.
        auto *any = reinterpret_cast<sockaddr *>(&address);
        mIsFull = bind(mDoor, any, sizeof address) == 0 && listen(mDoor, 0) == 0;
        int status = 0;
        while (mIsFull && status == 0) {
            mWaiting.push_back(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0));
            status = connect(mWaiting.back(), any, sizeof address);
        }
        mIsFull = mIsFull && errno == EAGAIN;
    }
    ~FullServer()
    {
        for (const int caller : mWaiting) {
            close(caller);
        }
        close(mDoor);
    }
    FullServer(const FullServer &) = delete;
    FullServer &operator=(const FullServer &) = delete;

    bool isFull() const { return mIsFull; }

private:
    int mDoor;
    bool mIsFull = false;
    std::vector<int> mWaiting;
};

TEST_F(ServerConnectionTest, ServerThatTakesNoEncryptedConnection_IsLeftSoon)
{
    const MeddlingServer plain(socket, {}, [](const SeenRequest &) { return Meddling::AnswerOk; });
    cupsSetEncryption(HTTP_ENCRYPTION_REQUIRED);
    const auto start = steady_clock::now();
    const auto server = ServerConnection::open(&stop);
    cupsSetEncryption(HTTP_ENCRYPTION_IF_REQUESTED);
    EXPECT_FALSE(server->isOpen());
    EXPECT_LT(steady_clock::now() - start, milliseconds(5000));
}

TEST_F(ServerConnectionTest, ServerWithAFullQueueOfCallers_IsCalledAgainUntilItHasRoom)
{
    auto full = std::make_unique<FullServer>(socket);
    ASSERT_TRUE(full->isFull());
    std::optional<MeddlingServer> free;
    std::thread rush([&] {
        std::this_thread::sleep_for(milliseconds(700));
        full.reset();
        QFile::remove(socket);
        free.emplace(socket, QString(), [](const SeenRequest &) { return Meddling::AnswerOk; });
    });
    const auto server = ServerConnection::open(&stop);
    EXPECT_TRUE(server->isOpen());
    EXPECT_TRUE(ask(*server));
    rush.join();
}

TEST_F(ServerConnectionTest, ServerWhoseQueueStaysFull_IsLeftWhenPatienceEndsOrAtAStop)
{
    ServerConnection::setPatience({milliseconds(300), milliseconds(900), nullptr});
    const FullServer full(socket);
    ASSERT_TRUE(full.isFull());
    const auto start = steady_clock::now();
    const auto server = ServerConnection::open(&stop);
    EXPECT_GT(steady_clock::now() - start, milliseconds(800));
    EXPECT_LT(steady_clock::now() - start, milliseconds(3000));
    EXPECT_FALSE(server->isOpen());
    EXPECT_TRUE(server->isUnreachable());
    EXPECT_FALSE(ask(*server));
    ServerConnection::setPatience({});
    std::thread person([this] {
        std::this_thread::sleep_for(milliseconds(300));
        stop = true;
    });
    const auto second = steady_clock::now();
    EXPECT_FALSE(ServerConnection::open(&stop)->isOpen());
    EXPECT_LT(steady_clock::now() - second, milliseconds(2000));
    person.join();
}

TEST_F(ServerConnectionTest, ServerThatComesBack_TakesTheSameConnectionAnew)
{
    MeddlingServer around(socket, {}, [](const SeenRequest &) { return Meddling::AnswerOk; });
    const auto server = ServerConnection::open(&stop);
    EXPECT_TRUE(ask(*server));
    around.goAway();
    EXPECT_FALSE(ask(*server));
    EXPECT_FALSE(server->reconnect());
    EXPECT_TRUE(server->isUnreachable());
    around.comeBack();
    EXPECT_TRUE(server->reconnect());
    EXPECT_TRUE(ask(*server));
}

/// An answer of success whose body comes later than libcups waits between two looks.
QByteArray lateAnswer(int piece)
{
    if (piece == 1) {
        std::this_thread::sleep_for(milliseconds(500));
    }
    const QByteArray body("9\r\n\2\0\0\0\0\0\0\1\3\r\n0\r\n\r\n", 19);
    return piece == 0   ? "HTTP/1.1 200 OK\r\nContent-Type: application/ipp\r\nTransfer-Encoding: chunked\r\n\r\n"
           : piece == 1 ? body
                        : QByteArray();
}

TEST_F(ServerConnectionTest, LateBodyOfAnAnswer_IsWaitedForAfterAPassword)
{
    MeddlingServer guarded(socket, {}, [](const SeenRequest &request) {
        if (request.authorization == "anna:right") {
            return Meddling::OwnReply;
        }
        std::this_thread::sleep_for(milliseconds(1200)); // longer than libcups waits for a refusal when it has asked
        return Meddling::Deny;
    });
    guarded.replyWith(lateAnswer);
    answerWith({"right"});
    const auto server = ServerConnection::open(&stop);
    const Response answer = askServer(*server, ippNewRequest(IPP_OP_CUPS_GET_DEFAULT));
    ASSERT_NE(answer, nullptr) << server->problem().toStdString();
    EXPECT_EQ(ippGetStatusCode(answer.get()), IPP_STATUS_OK);
    EXPECT_EQ(questions.size(), 1U);
}

TEST_F(ServerConnectionTest, ServerThatWantsAPasswordForEver_IsLeft)
{
    const MeddlingServer guarded(socket, {}, [](const SeenRequest &) { return Meddling::Deny; });
    answerWith({"a", "b", "c", "d", "e", "f", "g"});
    const auto server = ServerConnection::open(&stop);
    EXPECT_EQ(askServer(*server, ippNewRequest(IPP_OP_CUPS_GET_DEFAULT)), nullptr);
    EXPECT_TRUE(server->wasRefused());
    EXPECT_EQ(questions.size(), 3U);
}

TEST_F(ServerConnectionTest, QueueOfAServerThatIsSilentAfterAWord_IsLookedForNoLongerThanPatienceLasts)
{
    ServerConnection::setPatience({milliseconds(300), milliseconds(700), nullptr});
    for (const QString &name : {QStringLiteral("tape"), QString()}) {
        const MeddlingServer silent(socket, {}, [](const SeenRequest &request) {
            return request.operation == 0 ? Meddling::Deny : Meddling::KeepSilent; // which is a word
        });
        const auto server = ServerConnection::open(&stop);
        const auto start = steady_clock::now();
        Problem problem;
        EXPECT_FALSE(findQueue(*server, {name, {}}, &problem));
        EXPECT_LT(steady_clock::now() - start, milliseconds(4000)) << name.toStdString();
        EXPECT_EQ(problem.kind, Problem::Unreachable) << name.toStdString();
        EXPECT_TRUE(problem.sentence.contains(u"server.sock does not answer")) << problem.sentence.toStdString();
    }
}

TEST_F(ServerConnectionTest, PortThatIsNotTheUsualOne_IsNamed)
{
    for (const auto &[given, named] : {std::pair("paper.example:7010", u"paper.example:7010 does not answer"),
                                       std::pair("paper.example", u"paper.example does not answer"),
                                       std::pair("paper.example:631", u"paper.example does not answer"),
                                       std::pair("[fd00::7]:7010", u"[fd00::7]:7010 does not answer")}) {
        ippSetPort(631);
        cupsSetServer(given);
        EXPECT_TRUE(ServerConnection::noAnswer().contains(named)) << ServerConnection::noAnswer().toStdString();
    }
}

TEST_F(ServerConnectionTest, WrongPassword_IsAskedForAgainAndTheRightOneHolds)
{
    const MeddlingServer guarded(socket, {}, letAnnaIn);
    answerWith({"wrong", "right"});
    const auto server = ServerConnection::open(&stop);
    EXPECT_TRUE(ask(*server));
    EXPECT_EQ(questions, (std::vector<std::string>{me + " 1", "anna 2"}));
    EXPECT_TRUE(ask(*server));
    EXPECT_TRUE(server->reconnect());
    EXPECT_TRUE(ask(*server));
    EXPECT_EQ(questions.size(), 2U); // who this is is known on this connection
}

TEST_F(ServerConnectionTest, PasswordGiven_IsForgottenWithTheConnection)
{
    const MeddlingServer guarded(socket, {}, letAnnaIn);
    answerWith({"right"});
    EXPECT_TRUE(ask(*ServerConnection::open(&stop)));
    EXPECT_EQ(cupsUser(), me);
    EXPECT_FALSE(ask(*ServerConnection::open(&stop)));
    EXPECT_EQ(questions, (std::vector<std::string>{me + " 1", me + " 1"}));
}

TEST_F(ServerConnectionTest, ServerThatAsksForEver_IsAnsweredThreeTimes)
{
    const MeddlingServer never(socket, {}, [](const SeenRequest &) { return Meddling::Deny; });
    answerWith({"a", "b", "c", "d", "e"});
    const auto server = ServerConnection::open(&stop);
    EXPECT_FALSE(ask(*server));
    EXPECT_EQ(questions, (std::vector<std::string>{me + " 1", "anna 2", "anna 3"}));
    EXPECT_TRUE(server->problem().contains(u"user's name and password")) << server->problem().toStdString();
}

TEST_F(ServerConnectionTest, PersonWhoDeclines_IsAskedOnce)
{
    const MeddlingServer guarded(socket, {}, letAnnaIn);
    answerWith({});
    const auto server = ServerConnection::open(&stop);
    EXPECT_FALSE(ask(*server));
    EXPECT_EQ(questions.size(), 1U);
    EXPECT_TRUE(server->problem().contains(u"user's name and password")) << server->problem().toStdString();
    EXPECT_FALSE(server->wasDeclined()); // on a terminal that is all that is said of it
}

TEST_F(ServerConnectionTest, PersonWhoDeclinesAtAWindow_HasAnsweredAndSomebodyWhoIsWrongHasNot)
{
    const AdviceForTheWindow window;
    const MeddlingServer guarded(socket, {}, letAnnaIn);
    answerWith({});
    const auto server = ServerConnection::open(&stop);
    EXPECT_FALSE(ask(*server));
    EXPECT_TRUE(server->wasDeclined());
    questions.clear();
    answerWith({"wrong", "wrong", "wrong"});
    const auto second = ServerConnection::open(&stop);
    EXPECT_FALSE(ask(*second));
    EXPECT_TRUE(second->wasRefused());
    EXPECT_FALSE(second->wasDeclined());
    EXPECT_EQ(serverProblem(*second).kind, Problem::RejectedJob); // it does answer
}

TEST_F(ServerConnectionTest, NobodyToAsk_IsSaidAtOnce)
{
    const MeddlingServer guarded(socket, {}, letAnnaIn);
    const auto silent = ServerConnection::open(&stop);
    EXPECT_FALSE(ask(*silent));
    EXPECT_TRUE(silent->problem().contains(u"user's name and password")) << silent->problem().toStdString();
    answerWith({"right"});
    const auto quiet = ServerConnection::open(&stop, ServerConnection::Passwords::GoWithout);
    EXPECT_FALSE(ask(*quiet));
    EXPECT_TRUE(questions.empty());
}

TEST(Secret, TakesTheBytesAwayFromTheirOwner)
{
    QByteArray bytes("right");
    const Secret secret(bytes);
    EXPECT_STREQ(secret.text(), "right");
    EXPECT_TRUE(bytes.isEmpty());
    EXPECT_STREQ(Secret().text(), "");
}

} // namespace
