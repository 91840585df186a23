// SPDX-License-Identifier: Apache-2.0
// Names a panel whose call does not come back while it does not: on standard error, from a thread of its own, for the
// program's own can say nothing meanwhile.
#pragma once

#include <QByteArray>

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <optional>
#include <thread>

namespace tapeprint::dialog
{

class CallWatch
{
public:
    CallWatch() = default;
    CallWatch(const CallWatch &) = delete;
    CallWatch &operator=(const CallWatch &) = delete;
    ~CallWatch();

    /// A call begins, or one goes on that another was made from within.
    /// \param who the panel as sentences name it, in the encoding of the terminal.
    void begin(const QByteArray &who);
    /// The call is over, or waits for events: what a person is asked has all the time there is.
    void rest();
    /// The call has got an event.
    void goOn();
    /// Whether nothing is watched, for another tells of these calls.
    void sleep(bool isAsleep);

private:
    using Clock = std::chrono::steady_clock;

    void start();
    void run();
    void tell() const;
    void countFromNow();

    std::mutex mMutex; // for all below but the thread
    std::condition_variable mWaking;
    QByteArray mWho;
    std::optional<Clock::time_point> mSince; ///< of the silence; none while nothing is waited for
    bool mIsAsleep = false;
    bool mIsIdle = false;
    bool mIsOver = false;
    std::thread mThread;
};

} // namespace tapeprint::dialog
