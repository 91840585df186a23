// SPDX-License-Identifier: Apache-2.0
// A print server that goes wrong on purpose: it stands before a real one, or before none, sees each request's operation
// and does to it what the test says.
#pragma once

#include <QByteArray>
#include <QString>

#include <atomic>
#include <functional>
#include <mutex>
#include <thread>
#include <vector>

namespace tapeprint::test
{

/// What is done to a request.
enum class Meddling {
    PassOn,     ///< nothing: the server behind answers
    AnswerOk,   ///< an answer of success without attributes; no server is needed behind
    Deny,       ///< 401: a user and a password are wanted
    KeepSilent, ///< the request goes nowhere, and nothing is said
    LoseReply,  ///< the server behind does what it was asked for; the connection is cut before its answer is through
    HangUp,     ///< the connection is cut before the server behind hears of the request
    CutShort,   ///< the server behind gets the beginning of the request, and then both connections are cut
    CutReply,   ///< the answer is cut after so many bytes as cutRepliesAfter() says
    DripReply,  ///< the answer comes a byte at a time, with a pause after each
    LateBody,   ///< what comes after the head of the answer comes late
    OwnReply,   ///< the answer is what replyWith() says; no server is needed behind
};

/// A request as it is seen when its operation is known.
struct SeenRequest {
    int operation = 0;        ///< an IPP operation's number; 0 for a request that is none, such as OPTIONS
    QByteArray authorization; ///< "user:password" of HTTP's Basic scheme; null when none was sent
};

class MeddlingServer
{
public:
    using Rule = std::function<Meddling(const SeenRequest &request)>;

    /// \param socket where it listens: a path that does not exist yet. \param behind the socket of the real server;
    /// empty when there is none. \param rule called for each request, in threads of the server's own.
    MeddlingServer(QString socket, QString behind, Rule rule);
    ~MeddlingServer();
    MeddlingServer(const MeddlingServer &) = delete;
    MeddlingServer &operator=(const MeddlingServer &) = delete;

    /// For Meddling::CutReply.
    void cutRepliesAfter(qsizetype bytes) { mCutRepliesAfter = bytes; }
    /// An answer in pieces: called with 0, 1 and so on until it answers nothing more. In threads of the server's own.
    using Reply = std::function<QByteArray(int piece)>;
    /// For Meddling::OwnReply. To be set before the first request.
    void replyWith(Reply reply) { mReply = std::move(reply); }

    /// Cuts all connections and takes no more: nobody is there.
    void goAway();
    /// Is there again, on the same socket.
    void comeBack();

    /// The operations of all requests so far, in their order.
    std::vector<int> operations() const;

private:
    class Connection;
    void listenOn();
    void acceptAll(int listener);
    Meddling judge(const SeenRequest &request);

    QString mSocket;
    QString mBehind;
    Rule mRule;
    Reply mReply;
    std::atomic<qsizetype> mCutRepliesAfter{0};
    int mListener = -1;
    std::atomic<bool> mGone{false};
    std::thread mAcceptor;
    mutable std::mutex mMutex;
    std::vector<int> mOperations; ///< under the lock
};

} // namespace tapeprint::test
