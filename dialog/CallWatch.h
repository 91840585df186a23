// SPDX-License-Identifier: Apache-2.0
// Names a panel that keeps the window's thread to itself while it does: on standard error, from a thread of its own,
// for the program's own can say nothing meanwhile.
#pragma once

#include <QAbstractEventDispatcher>
#include <QByteArray>
#include <QObject>
#include <QPointer>

#include <chrono>
#include <condition_variable>
#include <memory>
#include <mutex>
#include <optional>
#include <thread>

namespace tapeprint::dialog
{

/// All but the thread of its own happens in the window's.
class CallWatch
{
public:
    static CallWatch &ofWindow();
    CallWatch();
    CallWatch(const CallWatch &) = delete;
    CallWatch &operator=(const CallWatch &) = delete;
    ~CallWatch();

    /// What the window's thread is at: a call of a panel, which is to come back, or an event, which is to be over.
    enum class Work { Call, Event };

    /// The thread is at it for as long as this lives. Within one there may be others: the innermost counts, and what a
    /// person is asked meanwhile does not.
    class Part
    {
    public:
        /// \param who the panel as sentences name it, in the encoding of the terminal; null for an event that is in no
        /// panel's view.
        Part(Work work, const QByteArray &who);
        ~Part();
        Part(const Part &) = delete;
        Part &operator=(const Part &) = delete;

    private:
        friend class CallWatch;
        struct State {
            Work work = Work::Event;
            QByteArray who;
            std::optional<std::chrono::steady_clock::time_point> since; ///< none while nothing is waited for
        };

        State mBefore;
        unsigned mRestsBefore = 0;
        bool mIsWatched = true;
    };

    /// Whether nothing is watched, for another tells of these calls.
    void sleep(bool isAsleep);

private:
    using Clock = std::chrono::steady_clock;
    class Heart;

    void start();
    void followEvents();
    void rest();
    void goOn();
    void wake();
    void run();
    void tell() const;

    std::mutex mMutex;    ///< for what both threads use
    Part::State mDoing;   ///< under the lock, but that the window's thread, which alone changes it, may read it
    bool mIsIdle = false; ///< under the lock
    bool mIsOver = false; ///< under the lock
    unsigned mRests = 0;  ///< how often the thread has shown that it looks for events
    int mDepth = 0;       ///< of parts within parts
    bool mIsAsleep = false;
    QPointer<QAbstractEventDispatcher> mEvents; ///< those that are followed
    std::unique_ptr<Heart> mHeart;
    std::condition_variable mWaking;
    std::thread mThread;
};

} // namespace tapeprint::dialog
