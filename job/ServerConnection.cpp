// SPDX-License-Identifier: Apache-2.0
// libcups waits in steps of a fifth of a second and asks after each whether to wait on: that is where a stop and a
// silence are noticed; LineCutter is for servers that never let it wait so long.
#include "job/ServerConnection.h"

#include "job/Advice.h"
#include "job/PlainText.h"
#include "job/Reason.h"
#include "job/Texts.h"

#include <algorithm>
#include <cerrno>
#include <thread>
#include <utility>

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace tapeprint::job
{

namespace
{

using std::chrono::milliseconds;

constexpr milliseconds tick{200};
constexpr milliseconds connectPatience{5000};
/// One attempt to connect, which nothing interrupts.
constexpr milliseconds connectAttempt{800};
/// Until the next attempt when too many others are being connected.
constexpr milliseconds whileOthersAreServed{50};
constexpr int mostQuestions = 3;
/// Which needs no word.
constexpr int usualPort = 631;

/// The innermost connection of the thread: connections may be nested.
thread_local ServerConnection *current = nullptr; // NOLINT(*-avoid-non-const-global-variables): one a thread

ServerConnection::Patience &patience()
{
    static ServerConnection::Patience ofAll;
    return ofAll;
}

/// As CUPS_SERVER takes it: with its port where that is not the usual one.
QString serverName()
{
    QString name = QString::fromUtf8(cupsServer());
    if (!name.startsWith(u'/') && ippPort() != usualPort) {
        const bool isBare = name.contains(u':') && !name.startsWith(u'['); // an IPv6 address
        name = (isBare ? QStringLiteral("[%1]:%2") : QStringLiteral("%1:%2")).arg(name).arg(ippPort());
    }
    return harmless(name);
}

/// Whether there is somebody at the other end: libcups may take a local socket on which too many others wait to be let
/// in for one that is connected.
bool isConnected(int descriptor)
{
    sockaddr_storage other{};
    socklen_t size = sizeof other;
    // The socket interface takes every kind of address through this one type.
    return getpeername(descriptor, reinterpret_cast<sockaddr *>(&other), &size) == 0;
}

bool isEncryptionAsked()
{
    return cupsEncryption() == HTTP_ENCRYPTION_REQUIRED;
}

/// Whether a local server is there and has only too many callers for now. libcups has one word for every failure to
/// connect; one that has room and is not reached takes no encrypted connections where these are asked for.
bool isCrowded()
{
    const QByteArray path(cupsServer());
    sockaddr_un address{};
    if (!path.startsWith('/') || static_cast<std::size_t>(path.size()) >= sizeof address.sun_path) {
        return false;
    }
    address.sun_family = AF_UNIX;
    std::copy_n(path.constData(), path.size(), static_cast<char *>(address.sun_path));
    const int probe = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
    const bool hasRoom = connect(probe, reinterpret_cast<const sockaddr *>(&address), sizeof address) == 0;
    const bool hasNone = !hasRoom && errno == EAGAIN;
    close(probe);
    return hasNone || (hasRoom && !isEncryptionAsked());
}

} // namespace

void ServerConnection::setPatience(Patience patienceOfAll)
{
    patience() = std::move(patienceOfAll);
}

ServerConnection::ServerConnection(const std::atomic<bool> *stop, Passwords passwords)
    : mStop(stop), mPasswords(passwords), mThreadsUser(cupsUser()), mOuter(std::exchange(current, this))
{
    // libcups's own way is to ask on the terminal and to wait there for good.
    cupsSetPasswordCB2([](const char * /*prompt*/, http_t *http, const char * /*method*/, const char * /*resource*/,
                          void * /*data*/) { return current != nullptr ? current->answerPassword(http) : nullptr; },
                       nullptr);
    mPlace.server = QStringLiteral("%1 %2").arg(QString::fromUtf8(cupsServer())).arg(ippPort());
    mPlace.user = mOuter != nullptr ? mOuter->mPlace.user : QString::fromUtf8(mThreadsUser);
}

ServerConnection::~ServerConnection()
{
    mCutter.reset();
    if (mHttp != nullptr && httpGetStatus(mHttp) == HTTP_STATUS_FORBIDDEN) {
        hearRefusal();
    }
    httpClose(mHttp);
    cupsSetUser(mThreadsUser.constData());
    current = mOuter;
}

std::unique_ptr<ServerConnection> ServerConnection::open(const std::atomic<bool> *stop, Passwords passwords)
{
    std::unique_ptr<ServerConnection> server(new ServerConnection(stop, passwords));
    // Without a time to connect in it only prepares to: from the first byte on, the waiting is ours.
    server->mHttp = httpConnect2(cupsServer(), ippPort(), nullptr, AF_UNSPEC, cupsEncryption(), 1, 0, nullptr);
    if (server->mHttp != nullptr) {
        httpSetTimeout(
            server->mHttp, std::chrono::duration<double>(tick).count(),
            [](http_t * /*http*/, void *data) { return static_cast<ServerConnection *>(data)->mayWaitOn() ? 1 : 0; },
            server.get());
        server->reconnect();
    }
    return server;
}

bool ServerConnection::isOpen() const
{
    return mHasLine && httpGetFd(mHttp) >= 0;
}

bool ServerConnection::reconnect()
{
    mIsSilent = false;
    mHasLine = false;
    const Clock::time_point start = Clock::now();
    milliseconds patienceNow = connectPatience;
    while (mHttp != nullptr && !isOver() && Clock::now() - start < patienceNow) {
        const Clock::time_point attempt = Clock::now();
        const bool isReached = connectAgain();
        mHasLine = isReached && isConnected(httpGetFd(mHttp));
        if (mHasLine) {
            mHasBeenOpen = true;
            watchLine();
            return true;
        }
        if (isReached || isCrowded()) {
            patienceNow = patience().longest;
            std::this_thread::sleep_for(whileOthersAreServed);
        } else if (Clock::now() - attempt < connectAttempt / 2) {
            break; // refused, which another attempt does not change
        }
    }
    return false;
}

bool ServerConnection::connectAgain() const
{
    return httpReconnect2(mHttp, static_cast<int>(connectAttempt.count()), nullptr) == 0;
}

void ServerConnection::allowOnly(milliseconds time)
{
    mEnd = Clock::now() + time;
    mStop = nullptr;
    mPasswords = Passwords::GoWithout;
    mIsSilent = false;
    watchLine();
}

void ServerConnection::watchLine()
{
    mCutter.reset();
    if (isOpen() && (mStop != nullptr || mEnd)) {
        mCutter = std::make_unique<LineCutter>(mHttp, mStop, mEnd);
    }
}

bool ServerConnection::isStopped() const
{
    return mStop != nullptr && *mStop;
}

bool ServerConnection::isOver() const
{
    return isStopped() || (mEnd && Clock::now() >= *mEnd);
}

bool ServerConnection::mayWaitOn()
{
    const Clock::time_point now = Clock::now();
    if (now - std::exchange(mLastTick, now) > 2 * tick) {
        mSilentSince = now - tick; // something was sent or came since
    }
    mIsSilent = mIsSilent || now - mSilentSince >= patience().longest;
    if (!mIsSilent && !isOver() && patience().tell && now - mSilentSince >= patience().beforeWord &&
        !std::exchange(mIsToldOf, true)) {
        patience().tell(serverName());
    }
    return !mIsSilent && !isOver();
}

bool ServerConnection::isUnreachable() const
{
    return mIsSilent || !isOpen() || httpError(mHttp) != 0;
}

void ServerConnection::hearRefusal() const
{
    // A look that nobody asked for may be refused to somebody who may print.
    if (mPasswords == Passwords::Ask) {
        forgetPassword(std::exchange(mKeptAs, 0));
    }
}

const char *ServerConnection::answerPassword(const http_t *http)
{
    forgetPassword(std::exchange(mKeptAs, 0)); // the server has asked again
    mWasDeclined = false;
    std::optional<KeptPassword> answer;
    if (http == mHttp && !isOver()) { // and nobody else's connection
        mPlace.isEncrypted = httpIsEncrypted(mHttp) != 0;
        answer = keptPassword(mPlace);
        const PasswordAsker ask = mPasswords == Passwords::Ask ? passwordAsker() : nullptr;
        if (!answer && ask && mQuestions < mostQuestions) {
            const auto isOverNow = [this] { return isOver(); };
            answer = keptOrAsked(mPlace, isOverNow, [this, &ask, &isOverNow] {
                ++mQuestions;
                return ask({serverName(), QString::fromUtf8(cupsUser()), mQuestions}, isOverNow);
            });
            mWasDeclined = !answer && !isOver() && isAtTheWindow();
        }
    }
    mWasRefused = !answer;
    mPassword = answer ? std::move(answer->credentials.password) : Secret();
    if (!answer) {
        return nullptr;
    }
    mKeptAs = answer->number;
    cupsSetUser(answer->credentials.user.toUtf8().constData());
    return mPassword.text();
}

QString ServerConnection::problem() const
{
    if (isStopped()) {
        return {};
    }
    if (mWasRefused) {
        return Texts::tr("The print server %1 wants a user's name and password, and was given none that it accepts.")
            .arg(serverName());
    }
    if (isUnreachable()) {
        return mHasBeenOpen ? Texts::tr("The print server %1 has stopped answering: try again when it is back.")
                                  .arg(serverName())
                            : noAnswer();
    }
    return reasonText(mWords.isNull() ? QString::fromUtf8(cupsLastErrorString()) : mWords);
}

QString ServerConnection::noAnswer()
{
    return advice(Texts::tr("The print server %1 does not answer. It is asked again until it does."),
                  isEncryptionAsked()
                      ? QStringLiteral("The print server %1 does not answer, or takes no encrypted connection: leave "
                                       "out -E, or name another in CUPS_SERVER.")
                      : QStringLiteral("The print server %1 does not answer: start it, name another in CUPS_SERVER, or "
                                       "print without one with --ppd FILE."))
        .arg(serverName());
}

} // namespace tapeprint::job
