// SPDX-License-Identifier: Apache-2.0
// Started by posix_spawn, which copies nothing of a large process; the socket is the program's standard input.
#include "job/DrawerProcess.h"

#include "job/DeathWatch.h"

#include <QByteArray>
#include <QDeadlineTimer>
#include <QStringList>

#include <algorithm>
#include <array>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstring>
#include <thread>
#include <vector>

#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

namespace tapeprint::job
{

namespace
{

using std::chrono::milliseconds;

constexpr milliseconds step(10);
/// An answer that is nearly there costs less than another process.
constexpr milliseconds patience(40);
/// A process that waits for a question ends within this when there will be none.
constexpr milliseconds farewell(100);
constexpr qint64 mostMessageBytes = 65536;

/// A process gets no signal settings of this program's, and no file beside the three.
class SpawnSettings
{
public:
    SpawnSettings(int input, int errors)
    {
        posix_spawn_file_actions_init(&files);
        posix_spawnattr_init(&attributes);
        posix_spawn_file_actions_adddup2(&files, input, STDIN_FILENO);
        posix_spawn_file_actions_addopen(&files, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
        posix_spawn_file_actions_adddup2(&files, errors, STDERR_FILENO);
        posix_spawn_file_actions_addclosefrom_np(&files, STDERR_FILENO + 1);
        sigset_t signals;
        sigemptyset(&signals);
        posix_spawnattr_setsigmask(&attributes, &signals);
        for (const int usual : {SIGPIPE, SIGINT, SIGTERM, SIGHUP, SIGCHLD}) {
            sigaddset(&signals, usual);
        }
        posix_spawnattr_setsigdefault(&attributes, &signals);
        // A group of its own: what there is of it is killed as a whole, and an interrupt at the keyboard is for others.
        posix_spawnattr_setpgroup(&attributes, 0);
        posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF | POSIX_SPAWN_SETPGROUP);
    }
    ~SpawnSettings()
    {
        posix_spawnattr_destroy(&attributes);
        posix_spawn_file_actions_destroy(&files);
    }
    SpawnSettings(const SpawnSettings &) = delete;
    SpawnSettings &operator=(const SpawnSettings &) = delete;

    posix_spawn_file_actions_t files{};
    posix_spawnattr_t attributes{};
};

/// Words as the system takes them: a null ends their list.
class Words
{
public:
    explicit Words(const QStringList &words)
    {
        std::transform(words.begin(), words.end(), std::back_inserter(mBytes),
                       [](const QString &word) { return word.toLocal8Bit(); });
        std::transform(mBytes.begin(), mBytes.end(), std::back_inserter(mPointers),
                       [](QByteArray &word) { return word.data(); });
        mPointers.push_back(nullptr);
    }
    char *const *list() const { return mPointers.data(); }

private:
    std::vector<QByteArray> mBytes;
    std::vector<char *> mPointers;
};

/// \return the process, or -1: see errno.
pid_t spawn(const ConfinedLaunch &launch, int input, int errors)
{
    const Words arguments(QStringList{launch.program} + launch.arguments);
    const Words environment(launch.environment);
    const SpawnSettings settings(input, errors);
    pid_t process = -1;
    const int failure = posix_spawn(&process, arguments.list()[0], &settings.files, &settings.attributes,
                                    arguments.list(), environment.list());
    errno = failure;
    return failure == 0 ? process : -1;
}

} // namespace

std::unique_ptr<DrawerProcess> DrawerProcess::start(const ConfinedLaunch &launch)
{
    auto messages = std::make_unique<MemoryFile>(mostMessageBytes);
    std::array<int, 2> ends{-1, -1};
    if (!messages->isOpen() || socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends.data()) != 0) {
        return nullptr;
    }
    const pid_t process = spawn(launch, ends[1], messages->handle());
    const int failure = errno;
    close(ends[1]);
    if (process < 0) {
        close(ends[0]);
        errno = failure;
        return nullptr;
    }
    return std::unique_ptr<DrawerProcess>(new DrawerProcess(process, ends[0], launch.confined, std::move(messages)));
}

DrawerProcess::DrawerProcess(pid_t process, int socket, bool isConfined, std::unique_ptr<MemoryFile> messages)
    : mProcess(process), mSocket(socket), mMessages(std::move(messages)),
      mWatch(isConfined ? nullptr : DeathWatch::killing(process)), mThread(gettid())
{
}

DrawerProcess::~DrawerProcess()
{
    close(mSocket);
    const QDeadlineTimer deadline(mIsIdle ? farewell : milliseconds(0));
    int status = 0;
    while (waitpid(mProcess, &status, WNOHANG) == 0) {
        if (deadline.hasExpired()) {
            kill(-mProcess, SIGKILL);
            while (waitpid(mProcess, &status, 0) < 0 && errno == EINTR) {
            }
            return;
        }
        std::this_thread::sleep_for(milliseconds(1));
    }
}

template <typename Move>
DrawerProcess::End DrawerProcess::converse(std::size_t length, short events, const std::atomic<bool> &stop,
                                           const Move &move)
{
    mIsIdle = false;
    QDeadlineTimer deadline(mLongest);
    bool isStopped = false;
    for (std::size_t done = 0; done < length;) {
        if (stop && !isStopped) {
            isStopped = true;
            deadline.setRemainingTime(patience);
        }
        if (deadline.hasExpired()) {
            return isStopped ? End::Stopped : End::Broken;
        }
        pollfd handle{mSocket, events, 0};
        if (poll(&handle, 1, static_cast<int>(step.count())) <= 0) {
            continue;
        }
        const ssize_t count = move(done);
        if (count == 0 || (count < 0 && errno != EINTR && errno != EAGAIN)) {
            return End::Broken;
        }
        done += static_cast<std::size_t>(std::max<ssize_t>(count, 0));
    }
    mIsIdle = events == POLLIN; // what was asked is to be answered
    return End::Whole;
}

DrawerProcess::End DrawerProcess::take(void *bytes, std::size_t length, const std::atomic<bool> &stop)
{
    auto *first = static_cast<char *>(bytes);
    mAnswers += mAnswers > 1 ? 0 : 1;
    return converse(length, POLLIN, stop, [this, first, length](std::size_t done) {
        return recv(mSocket, first + done, length - done, MSG_DONTWAIT);
    });
}

DrawerProcess::End DrawerProcess::say(const void *bytes, std::size_t length, const std::atomic<bool> &stop,
                                      int document)
{
    const auto *first = static_cast<const char *>(bytes);
    return converse(length, POLLOUT, stop, [this, first, length, document](std::size_t done) {
        iovec place{const_cast<char *>(first + done), length - done}; // NOLINT(*-const-cast): it is only read
        alignas(cmsghdr) std::array<char, CMSG_SPACE(sizeof document)> space{};
        msghdr message{};
        message.msg_iov = &place;
        message.msg_iovlen = 1;
        if (document >= 0 && done == 0) {
            message.msg_control = space.data();
            message.msg_controllen = space.size();
            cmsghdr *header = CMSG_FIRSTHDR(&message);
            header->cmsg_level = SOL_SOCKET;
            header->cmsg_type = SCM_RIGHTS;
            header->cmsg_len = CMSG_LEN(sizeof document);
            std::memcpy(CMSG_DATA(header), &document, sizeof document);
        }
        return sendmsg(mSocket, &message, MSG_NOSIGNAL | MSG_DONTWAIT);
    });
}

DrawerProcess::End DrawerProcess::greet(std::uint32_t word, const std::atomic<bool> &stop)
{
    if (mHasGreeted) {
        return isWaiting() ? End::Whole : End::Broken;
    }
    std::uint32_t greeting = 0;
    const End end = take(&greeting, stop);
    mHasGreeted = end == End::Whole && greeting == word;
    return end == End::Whole && !mHasGreeted ? End::Broken : end;
}

bool DrawerProcess::isWaiting() const
{
    pollfd handle{mSocket, POLLIN, 0};
    return mIsIdle && poll(&handle, 1, 0) == 0; // one that has died can be read from
}

bool DrawerProcess::isForThisThread() const
{
    return mThread == gettid() || mThread == getpid();
}

QString DrawerProcess::messages() const
{
    return QString::fromLocal8Bit(mMessages->contents().value_or(QByteArray()));
}

} // namespace tapeprint::job
