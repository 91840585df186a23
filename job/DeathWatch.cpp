// SPDX-License-Identifier: Apache-2.0
// The helper is a shell at the other end of a connection, whose end is this program's end. It is sent home by force: a
// short run would otherwise have to wait until the shell is ready to hear of it.
#include "job/DeathWatch.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <string>

#include <fcntl.h>
#include <spawn.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

namespace tapeprint::job
{

namespace
{

/// \return the process, or -1.
pid_t startShell(const std::string &script, const QByteArray &object, int input)
{
    posix_spawn_file_actions_t files;
    posix_spawnattr_t attributes;
    posix_spawn_file_actions_init(&files);
    posix_spawnattr_init(&attributes);
    posix_spawn_file_actions_adddup2(&files, input, STDIN_FILENO);
    // It may outlive this program by a moment, and must hold no pipe open that somebody reads to its end.
    posix_spawn_file_actions_addopen(&files, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
    posix_spawn_file_actions_addopen(&files, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
    posix_spawn_file_actions_addchdir_np(&files, "/");
    posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSID);

    std::array<std::string, 5> words{"sh", "-c", script, "sh", object.toStdString()};
    std::array<char *, 6> arguments{words[0].data(), words[1].data(), words[2].data(),
                                    words[3].data(), words[4].data(), nullptr};
    std::string path = "PATH=/usr/bin:/bin";
    std::array<char *, 2> environment{path.data(), nullptr};
    pid_t process = -1;
    const int failure = posix_spawn(&process, "/bin/sh", &files, &attributes, arguments.data(), environment.data());
    posix_spawnattr_destroy(&attributes);
    posix_spawn_file_actions_destroy(&files);
    return failure == 0 ? process : -1;
}

} // namespace

std::unique_ptr<DeathWatch> DeathWatch::removing(const QByteArray &path)
{
    return start("rm -rf -- \"$1\"", path);
}

std::unique_ptr<DeathWatch> DeathWatch::killing(pid_t group)
{
    return start("kill -KILL -- \"-$1\"", QByteArray::number(group));
}

std::unique_ptr<DeathWatch> DeathWatch::start(const char *action, const QByteArray &object)
{
    std::array<int, 2> ends{-1, -1};
    if (socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends.data()) != 0) {
        return nullptr;
    }
    const std::string script = "trap '' HUP INT TERM; read -r word; exec " + std::string(action);
    const pid_t helper = startShell(script, object, ends[0]);
    close(ends[0]);
    if (helper < 0) {
        close(ends[1]);
        return nullptr;
    }
    return std::unique_ptr<DeathWatch>(new DeathWatch(helper, ends[1]));
}

DeathWatch::~DeathWatch()
{
    kill(mHelper, SIGKILL);
    while (waitpid(mHelper, nullptr, 0) < 0 && errno == EINTR) {
    }
    close(mSocket); // not before: it would take that for the end
}

} // namespace tapeprint::job
