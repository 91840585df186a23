// SPDX-License-Identifier: Apache-2.0
// Ends a connection from outside. libcups asks whether to wait on only when nothing comes: on a server that says a byte
// now and then it would never ask, and no change of mind would be heard.
#pragma once

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <mutex>
#include <optional>
#include <thread>

#include <cups/http.h>
#include <sys/socket.h>

namespace tapeprint::job
{

/// Watches in a thread of its own, as long as it lives: less long than the connection.
class LineCutter
{
public:
    using Clock = std::chrono::steady_clock;

    /// \param connection is open; from the cut on, whatever is read or written on it fails. \param stop when it becomes
    /// true the connection is cut; null: never. \param end when it is cut in any case; none: never.
    LineCutter(http_t *connection, const std::atomic<bool> *stop, std::optional<Clock::time_point> end);
    ~LineCutter();
    LineCutter(const LineCutter &) = delete;
    LineCutter &operator=(const LineCutter &) = delete;

private:
    void watch();
    bool isTime() const;
    void cut() const;

    http_t *mConnection;
    sockaddr_storage mServer{}; ///< who is at the other end
    const std::atomic<bool> *mStop;
    std::optional<Clock::time_point> mEnd;
    std::mutex mMutex;
    std::condition_variable mWaking;
    bool mIsDone = false; ///< under the lock
    std::thread mThread;
};

} // namespace tapeprint::job
