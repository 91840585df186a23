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

/// A page that takes longer is drawn by no printer either.
constexpr std::chrono::seconds longestAnswer(60);
constexpr milliseconds step(10);
/// An answer that is nearly there costs less than another process.
constexpr milliseconds patience(40);
/// A process that waits for a question ends within this when there will be none.
constexpr milliseconds farewell(100);
constexpr qint64 mostMessageBytes = 65536;

std::atomic<int> livingProcesses = 0;

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
      mWatch(isConfined ? nullptr : DeathWatch::killing(process))
{
    ++livingProcesses;
}

DrawerProcess::~DrawerProcess()
{
    --livingProcesses;
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

DrawerProcess::End DrawerProcess::take(void *bytes, std::size_t length, const std::atomic<bool> &stop)
{
    mIsIdle = false;
    QDeadlineTimer deadline(longestAnswer);
    bool isStopped = false;
    auto *next = static_cast<char *>(bytes);
    while (length > 0) {
        if (stop && !isStopped) {
            isStopped = true;
            deadline.setRemainingTime(patience);
        }
        if (deadline.hasExpired()) {
            return isStopped ? End::Stopped : End::Broken;
        }
        pollfd handle{mSocket, POLLIN, 0};
        if (poll(&handle, 1, static_cast<int>(step.count())) <= 0) {
            continue;
        }
        const ssize_t count = recv(mSocket, next, length, MSG_DONTWAIT);
        if (count == 0 || (count < 0 && errno != EINTR && errno != EAGAIN)) {
            return End::Broken;
        }
        const auto taken = static_cast<std::size_t>(std::max<ssize_t>(count, 0));
        next += taken;
        length -= taken;
    }
    mIsIdle = true;
    return End::Whole;
}

DrawerProcess::End DrawerProcess::greet(const std::atomic<bool> &stop)
{
    std::uint32_t greeting = 0;
    const End end = take(&greeting, stop);
    return end == End::Whole && greeting != drawerGreeting ? End::Broken : end;
}

bool DrawerProcess::ask(const DrawerQuestion &question, int document) const
{
    DrawerQuestion asked = question;
    iovec place{&asked, sizeof asked};
    alignas(cmsghdr) std::array<char, CMSG_SPACE(sizeof document)> space{};
    msghdr message{};
    message.msg_iov = &place;
    message.msg_iovlen = 1;
    if (document >= 0) {
        message.msg_control = space.data();
        message.msg_controllen = space.size();
        cmsghdr *header = CMSG_FIRSTHDR(&message);
        header->cmsg_level = SOL_SOCKET;
        header->cmsg_type = SCM_RIGHTS;
        header->cmsg_len = CMSG_LEN(sizeof document);
        std::memcpy(CMSG_DATA(header), &document, sizeof document);
    }
    return sendmsg(mSocket, &message, MSG_NOSIGNAL | MSG_DONTWAIT) == static_cast<ssize_t>(sizeof asked);
}

int DrawerProcess::living()
{
    return livingProcesses;
}

QString DrawerProcess::messages() const
{
    return QString::fromLocal8Bit(mMessages->contents().value_or(QByteArray()));
}

} // namespace tapeprint::job
