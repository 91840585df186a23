// SPDX-License-Identifier: Apache-2.0
// Calls and events are many and short: the thread is not woken for each, but looks once in five seconds while there are
// some, and not at all while there are none.
#include "dialog/CallWatch.h"

#include <QCoreApplication>
#include <QEvent>

#include <array>
#include <cerrno>
#include <cstring>
#include <system_error>
#include <utility>

#include <unistd.h>

namespace tapeprint::dialog
{

namespace
{

/// After so long a panel is named. Calls and events take milliseconds.
constexpr std::chrono::seconds longestSilence(5);
/// So long it is given to take an event up: a toolkit beside ours may run the events, such as for a desktop's own
/// dialog of files, and the whole program may have been stopped.
constexpr std::chrono::milliseconds timeForAnEvent(500);

} // namespace

/// Gets an event when the window's thread is to show that it takes events up.
class CallWatch::Heart : public QObject
{
public:
    explicit Heart(CallWatch &watch) : mWatch(watch) {}

    bool event(QEvent * /*event*/) override
    {
        mWatch.goOn();
        return true;
    }

private:
    CallWatch &mWatch;
};

CallWatch &CallWatch::ofWindow()
{
    static CallWatch watch;
    return watch;
}

CallWatch::CallWatch() = default;

CallWatch::~CallWatch()
{
    if (!mThread.joinable()) {
        return;
    }
    {
        const std::lock_guard lock(mMutex);
        mIsOver = true;
    }
    mWaking.notify_one();
    mThread.join();
}

CallWatch::Part::Part(Work work, const QByteArray &who)
{
    CallWatch &watch = ofWindow();
    const State &now = watch.mDoing;
    if (work == Work::Event && now.since && now.work == work && now.who == who) {
        mIsWatched = false; // events within events are what most are
        return;
    }
    watch.start();
    watch.followEvents();
    ++watch.mDepth;
    mRestsBefore = watch.mRests;
    const std::lock_guard lock(watch.mMutex);
    mBefore = std::exchange(watch.mDoing, {work, who, std::nullopt});
    watch.wake();
}

CallWatch::Part::~Part()
{
    if (!mIsWatched) {
        return;
    }
    CallWatch &watch = ofWindow();
    --watch.mDepth;
    const std::lock_guard lock(watch.mMutex);
    watch.mDoing = std::move(mBefore);
    if (watch.mDoing.since && watch.mRests != mRestsBefore) {
        watch.wake();
    }
}

void CallWatch::sleep(bool isAsleep)
{
    if (isAsleep) {
        rest();
    }
    mIsAsleep = isAsleep;
    if (!isAsleep) {
        goOn();
    }
}

void CallWatch::followEvents()
{
    auto *events = QAbstractEventDispatcher::instance();
    if (events == nullptr || mEvents == events) {
        return;
    }
    mEvents = events;
    {
        const std::lock_guard lock(mMutex);
        mHeart = std::make_unique<Heart>(*this);
    }
    QObject::connect(events, &QAbstractEventDispatcher::aboutToBlock, mHeart.get(), [this] { rest(); });
    QObject::connect(events, &QAbstractEventDispatcher::awake, mHeart.get(), [this] { goOn(); });
}

/// The thread waits for events: what a person is asked has all the time there is.
void CallWatch::rest()
{
    ++mRests;
    if (mDoing.since) {
        const std::lock_guard lock(mMutex);
        mDoing.since.reset();
    }
}

/// The thread has looked for events: what it was at goes on.
void CallWatch::goOn()
{
    ++mRests;
    if (mDepth > 0) {
        const std::lock_guard lock(mMutex);
        wake();
    }
}

/// Counts from now on. Under the lock.
void CallWatch::wake()
{
    if (mIsAsleep) {
        return;
    }
    mDoing.since = Clock::now();
    if (mIsIdle) {
        mWaking.notify_one();
    }
}

void CallWatch::start()
{
    if (mThread.joinable()) {
        return;
    }
    try {
        mThread = std::thread([this] { run(); });
    } catch (const std::system_error &) { // no thread is to be had: nothing is watched
    }
}

void CallWatch::run()
{
    std::optional<Clock::time_point> asked; // for a sign of life, of what began then
    std::optional<Clock::time_point> told;
    std::unique_lock lock(mMutex);
    while (!mIsOver) {
        const auto since = mDoing.since;
        if (!since || since == told) {
            mIsIdle = true;
            mWaking.wait(lock);
            mIsIdle = false;
        } else if (const auto due = *since + longestSilence; Clock::now() < due) {
            mWaking.wait_until(lock, due);
        } else if (since != asked) {
            asked = since;
            // The application is there: what is under way can end only when the lock is given back.
            QCoreApplication::postEvent(mHeart.get(), new QEvent(QEvent::User), Qt::HighEventPriority);
            const auto answered = [&] { return mIsOver || mDoing.since != since; };
            mWaking.wait_for(lock, timeForAnEvent, answered);
        } else {
            tell();
            told = since;
        }
    }
}

void CallWatch::tell() const
{
    // Neither translated nor put together: the panel may hold whatever lock there is, that of the memory too. An event
    // in a panel's view may have led anywhere: the panel is not said to be at fault.
    const bool isCall = mDoing.work == Work::Call;
    const char *what = isCall                 ? " does not come back. End the program if it never does, and remove the "
                                                "bundle to print without it.\n"
                       : mDoing.who.isEmpty() ? "The window does not answer. End the program if it never does.\n"
                                              : ": since an event in it the window does not answer. End the program if "
                                                "it never does.\n";
    const std::array<const char *, 4> parts{program_invocation_short_name, ": ", mDoing.who.constData(), what};
    for (const char *part : parts) {
        if (write(STDERR_FILENO, part, std::strlen(part)) < 0) {
            break; // there is nobody to read it
        }
    }
}

} // namespace tapeprint::dialog
