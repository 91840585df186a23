// SPDX-License-Identifier: Apache-2.0
// Bytes go through as they are, both ways; of what the client sends just enough is read to know where a request begins,
// which operation it is and where it ends.
#include "tests/support/MeddlingServer.h"

#include <QFile>

#include <algorithm>
#include <array>
#include <chrono>
#include <memory>
#include <utility>

#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace tapeprint::test
{

namespace
{

constexpr int pollMs = 50;
/// A request is cut short in the first bytes that come after so many: in the middle of a document.
constexpr qsizetype cutAfter = 1024;
/// Shorter than what a client takes for silence.
constexpr std::chrono::milliseconds dripPause{50};
constexpr std::chrono::milliseconds latePause{500}; // longer than libcups waits between two looks

sockaddr_un addressOf(const QString &path)
{
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    QFile::encodeName(path).toStdString().copy(address.sun_path, sizeof address.sun_path - 1);
    return address;
}

int connectedTo(const QString &path)
{
    const sockaddr_un address = addressOf(path);
    const int descriptor = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    // The socket interface takes every kind of address through this one type.
    if (connect(descriptor, reinterpret_cast<const sockaddr *>(&address), sizeof address) == 0) {
        return descriptor;
    }
    close(descriptor);
    return -1;
}

bool isReadable(int descriptor)
{
    pollfd waited{descriptor, POLLIN, 0};
    return descriptor >= 0 && poll(&waited, 1, 0) > 0;
}

bool sendAll(int descriptor, const QByteArray &bytes)
{
    for (qsizetype sent = 0; sent < bytes.size();) {
        const ssize_t now =
            send(descriptor, bytes.constData() + sent, static_cast<std::size_t>(bytes.size() - sent), MSG_NOSIGNAL);
        if (now <= 0) {
            return false;
        }
        sent += now;
    }
    return true;
}

/// What is there to be read; empty at the end.
QByteArray received(int descriptor)
{
    std::array<char, 65536> bytes{};
    const ssize_t count = recv(descriptor, bytes.data(), bytes.size(), 0);
    return {bytes.data(), std::max<qsizetype>(count, 0)};
}

QByteArray fieldOf(const QByteArray &header, const QByteArray &name)
{
    for (const QByteArray &line : header.split('\n')) {
        if (line.toLower().startsWith(name.toLower() + ':')) {
            return line.mid(name.size() + 1).trimmed();
        }
    }
    return {};
}

/// Version 2.0, status "successful-ok", request 1, no attributes.
QByteArray okReply()
{
    return QByteArrayLiteral("HTTP/1.1 200 OK\r\nContent-Type: application/ipp\r\nContent-Length: 9\r\n\r\n") +
           QByteArrayLiteral("\2\0\0\0\0\0\0\1\3");
}

/// Where a request is in the bytes of a client: its header, then its body, of a length that is told or in chunks.
class RequestReader
{
public:
    void add(const QByteArray &bytes) { mBytes += bytes; }

    /// Whether a request has begun, and its operation can be told.
    bool hasBegun() const
    {
        const qsizetype body = bodyStart();
        return body >= 0 && (!hasBody() || mBytes.size() >= operationStart() + 4);
    }
    SeenRequest seen() const
    {
        SeenRequest request;
        const QByteArray basic = fieldOf(header(), "Authorization");
        if (basic.startsWith("Basic ")) {
            request.authorization = QByteArray::fromBase64(basic.mid(6));
        }
        if (hasBody()) {
            const QByteArray number = mBytes.mid(operationStart() + 2, 2); // behind the version
            request.operation = static_cast<unsigned char>(number[0]) * 256 + static_cast<unsigned char>(number[1]);
        }
        return request;
    }
    bool hasBody() const { return header().startsWith("POST"); }
    /// Takes the bytes of the request that are there. \return whether its end is among them.
    bool take(QByteArray *bytes)
    {
        const qsizetype start = mIsInBody ? 0 : bodyStart();
        if (!mIsInBody) {
            mIsInBody = true;
            mIsChunked = fieldOf(header(), "Transfer-Encoding").toLower() == "chunked";
            mLeft = mIsChunked || !hasBody() ? 0 : fieldOf(header(), "Content-Length").toLongLong();
            mEnds = !hasBody();
        }
        qsizetype end = start;
        while (end < mBytes.size() && !mEnds) {
            if (mLeft > 0) {
                const qsizetype step = std::min<qsizetype>(mLeft, mBytes.size() - end);
                end += step;
                mLeft -= step;
            } else if (!mIsChunked) {
                break;
            } else {
                const qsizetype line = mBytes.indexOf("\r\n", end);
                if (line < 0) {
                    break;
                }
                const qlonglong length = mBytes.mid(end, line - end).toLongLong(nullptr, 16);
                if (length == 0 && mBytes.size() < line + 4) {
                    break; // the empty line behind the last chunk is still to come
                }
                end = length == 0 ? line + 4 : line + 2;
                mLeft = length == 0 ? 0 : length + 2; // with the end of line behind it
                mEnds = length == 0;
            }
        }
        const bool isOver = mEnds || (!mIsChunked && mLeft == 0);
        *bytes = mBytes.left(end);
        mBytes.remove(0, end);
        mIsInBody = !isOver;
        mEnds = false;
        return isOver;
    }

private:
    QByteArray header() const { return mBytes.left(std::max<qsizetype>(bodyStart(), 0)); }
    qsizetype bodyStart() const
    {
        const qsizetype end = mBytes.indexOf("\r\n\r\n");
        return end < 0 ? end : end + 4;
    }
    qsizetype operationStart() const
    {
        const bool isChunked = fieldOf(header(), "Transfer-Encoding").toLower() == "chunked";
        const qsizetype line = mBytes.indexOf("\r\n", bodyStart());
        return isChunked ? (line < 0 ? mBytes.size() : line + 2) : bodyStart();
    }

    QByteArray mBytes;
    bool mIsInBody = false;
    bool mIsChunked = false;
    bool mEnds = false;
    qlonglong mLeft = 0; ///< of the body, or of the chunk
};

} // namespace

/// One client's connection, in a thread of its own.
class MeddlingServer::Connection
{
public:
    Connection(MeddlingServer &server, int client) : mServer(server), mClient(client) {}
    ~Connection()
    {
        close(mClient);
        close(mBehind);
    }
    Connection(const Connection &) = delete;
    Connection &operator=(const Connection &) = delete;

    void run()
    {
        while (!mServer.mGone) {
            std::array<pollfd, 2> waited{pollfd{isStalled() ? -1 : mClient, POLLIN, 0}, pollfd{mBehind, POLLIN, 0}};
            poll(waited.data(), waited.size(), pollMs);
            if (isReadable(mBehind) && !passReply()) {
                return;
            }
            if (!isStalled() && isReadable(mClient)) {
                const QByteArray bytes = received(mClient);
                mReader.add(bytes);
                if (bytes.isEmpty() || !readRequests()) {
                    return;
                }
            }
        }
    }

private:
    /// Nothing more is read of the client, so that it cannot send on for long either.
    bool isStalled() const { return mIsInRequest && mMeddling == Meddling::KeepSilent; }

    bool passReply()
    {
        const QByteArray bytes = received(mBehind);
        if (mMeddling == Meddling::LoseReply) {
            // "Go on" is no answer yet.
            const qsizetype goOn = bytes.startsWith("HTTP/1.1 100") ? bytes.indexOf("\r\n\r\n") + 4 : 0;
            return goOn > 0 && sendAll(mClient, bytes.left(goOn)) && goOn == bytes.size();
        }
        if (mMeddling == Meddling::CutReply) {
            const qsizetype left = mServer.mCutRepliesAfter - mReplied;
            mReplied += bytes.size();
            return sendAll(mClient, bytes.left(left)) && bytes.size() < left;
        }
        if (mMeddling == Meddling::DripReply) {
            return !bytes.isEmpty() && drip(bytes);
        }
        if (mMeddling == Meddling::LateBody) {
            return !bytes.isEmpty() && sendLate(bytes);
        }
        return !bytes.isEmpty() && sendAll(mClient, bytes);
    }

    bool sendLate(const QByteArray &bytes)
    {
        const QByteArray endOfHead = "\r\n\r\n";
        qsizetype sent = 0;
        for (qsizetype at = bytes.indexOf(endOfHead); at >= 0; at = bytes.indexOf(endOfHead, sent)) {
            if (!sendAll(mClient, bytes.mid(sent, at + endOfHead.size() - sent))) {
                return false;
            }
            sent = at + endOfHead.size();
            std::this_thread::sleep_for(latePause);
        }
        return sent == bytes.size() || sendAll(mClient, bytes.mid(sent));
    }

    bool drip(const QByteArray &bytes)
    {
        for (const char byte : bytes) {
            if (mServer.mGone || !sendAll(mClient, QByteArray(1, byte))) {
                return false;
            }
            std::this_thread::sleep_for(dripPause);
        }
        return true;
    }

    bool sendOwnReply()
    {
        for (int piece = 0; !mServer.mGone; ++piece) {
            const QByteArray bytes = mServer.mReply(piece);
            if (bytes.isEmpty() || !sendAll(mClient, bytes)) {
                return bytes.isEmpty();
            }
        }
        return false;
    }

    bool readRequests()
    {
        while (mIsInRequest || mReader.hasBegun()) {
            if (!mIsInRequest) {
                mIsInRequest = true;
                mPassed = 0;
                mReplied = 0;
                mMeddling = mServer.judge(mReader.seen());
            }
            if (isStalled()) {
                return true;
            }
            QByteArray bytes;
            const bool isOver = mReader.take(&bytes);
            if (!meddle(bytes, isOver)) {
                return false;
            }
            mIsInRequest = !isOver;
            if (!isOver) {
                return true;
            }
        }
        return true;
    }

    bool meddle(const QByteArray &bytes, bool isOver)
    {
        switch (mMeddling) {
        case Meddling::HangUp:
            return false;
        case Meddling::CutShort:
            mPassed += bytes.size();
            if (mPassed < cutAfter && !isOver) {
                return passOn(bytes);
            }
            passOn(bytes.left(bytes.size() / 2));
            return false;
        case Meddling::PassOn:
        case Meddling::LoseReply:
        case Meddling::CutReply:
        case Meddling::DripReply:
        case Meddling::LateBody:
            return passOn(bytes);
        case Meddling::OwnReply:
            return !isOver || sendOwnReply();
        case Meddling::Deny:
            return !isOver || sendAll(mClient, "HTTP/1.1 401 Unauthorized\r\nWWW-Authenticate: Basic realm=\"Test\"\r\n"
                                               "Content-Length: 0\r\n\r\n");
        case Meddling::AnswerOk:
            return !isOver || sendAll(mClient, okReply());
        case Meddling::KeepSilent:
            break;
        }
        return true;
    }

    bool passOn(const QByteArray &bytes)
    {
        if (mBehind < 0) {
            mBehind = connectedTo(mServer.mBehind);
        }
        return mBehind >= 0 && sendAll(mBehind, bytes);
    }

    MeddlingServer &mServer;
    int mClient;
    int mBehind = -1;
    RequestReader mReader;
    bool mIsInRequest = false;
    Meddling mMeddling = Meddling::PassOn;
    qsizetype mPassed = 0;  ///< bytes of the request
    qsizetype mReplied = 0; ///< bytes of the answer
};

MeddlingServer::MeddlingServer(QString socket, QString behind, Rule rule)
    : mSocket(std::move(socket)), mBehind(std::move(behind)), mRule(std::move(rule))
{
    listenOn();
}

MeddlingServer::~MeddlingServer()
{
    goAway();
}

void MeddlingServer::listenOn()
{
    const sockaddr_un address = addressOf(mSocket);
    mListener = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    // The socket interface takes every kind of address through this one type.
    if (bind(mListener, reinterpret_cast<const sockaddr *>(&address), sizeof address) != 0 ||
        listen(mListener, SOMAXCONN) != 0) {
        qFatal("The test cannot listen on %s.", qUtf8Printable(mSocket));
    }
    mGone = false;
    mAcceptor = std::thread([this, listener = mListener] { acceptAll(listener); });
}

void MeddlingServer::acceptAll(int listener)
{
    std::vector<std::thread> threads;
    while (!mGone) {
        pollfd waited{listener, POLLIN, 0};
        if (poll(&waited, 1, pollMs) > 0) {
            const int client = accept4(listener, nullptr, nullptr, SOCK_CLOEXEC);
            threads.emplace_back([this, client] { Connection(*this, client).run(); });
        }
    }
    for (std::thread &thread : threads) {
        thread.join();
    }
}

void MeddlingServer::goAway()
{
    if (mListener < 0) {
        return;
    }
    mGone = true;
    mAcceptor.join();
    close(mListener);
    mListener = -1;
    QFile::remove(mSocket);
}

void MeddlingServer::comeBack()
{
    listenOn();
}

std::vector<int> MeddlingServer::operations() const
{
    const std::lock_guard lock(mMutex);
    return mOperations;
}

Meddling MeddlingServer::judge(const SeenRequest &request)
{
    {
        const std::lock_guard lock(mMutex);
        mOperations.push_back(request.operation);
    }
    return mRule(request);
}

} // namespace tapeprint::test
