// SPDX-License-Identifier: Apache-2.0
// What has to be done when this program ends, by whatever way: also when it is killed and nothing of it runs any more.
#pragma once

#include <QByteArray>

#include <memory>

#include <sys/types.h>

namespace tapeprint::job
{

/// A helper process that waits for this one's end, and then does one thing. It is no part of the session: an interrupt
/// at the keyboard does not reach it.
class DeathWatch
{
public:
    /// Removes a file or folder with all that is in it.
    static std::unique_ptr<DeathWatch> removing(const QByteArray &path);
    /// Kills a process group.
    static std::unique_ptr<DeathWatch> killing(pid_t group);

    /// Sends the helper home: there is nothing left to be done.
    ~DeathWatch();
    DeathWatch(const DeathWatch &) = delete;
    DeathWatch &operator=(const DeathWatch &) = delete;

private:
    DeathWatch(pid_t helper, int socket) : mHelper(helper), mSocket(socket) {}
    static std::unique_ptr<DeathWatch> start(const char *action, const QByteArray &object);

    pid_t mHelper = -1;
    int mSocket = -1;
};

} // namespace tapeprint::job
