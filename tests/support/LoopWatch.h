// SPDX-License-Identifier: Apache-2.0
// How long a window is deaf by its own doing: what a person notices as a freeze.
#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

#include <algorithm>
#include <fstream>

namespace tapeprint::test
{

/// Measures from its making on, in the thread of the event loop.
class LoopWatch
{
public:
    LoopWatch()
    {
        constexpr int tickMs = 2;
        mSinceTick.start();
        QObject::connect(&mTicks, &QTimer::timeout, [this] { tick(); });
        mTicks.start(tickMs);
    }
    /// The longest time for which the loop did nothing for others. What the thread waited for a processor that other
    /// programs held is not counted; what it waited for anything else is.
    qint64 longestMs() const { return std::max(mLongestMs, gapMs(mSinceTick.elapsed())); }

private:
    void tick()
    {
        mLongestMs = std::max(mLongestMs, gapMs(mSinceTick.restart()));
        mQueuedMsAtTick = queuedMs();
    }
    qint64 gapMs(qint64 elapsedMs) const { return std::max<qint64>(elapsedMs - (queuedMs() - mQueuedMsAtTick), 0); }

    /// How long this thread has been ready to run and has not run: the second number of the kernel's schedstat, in
    /// nanoseconds. Zero where the kernel does not count it.
    static qint64 queuedMs()
    {
        constexpr qint64 nsPerMs = 1'000'000;
        std::ifstream statistics("/proc/thread-self/schedstat");
        qint64 runNs = 0;
        qint64 queuedNs = 0;
        statistics >> runNs >> queuedNs;
        return queuedNs / nsPerMs;
    }

    QTimer mTicks;
    QElapsedTimer mSinceTick;
    qint64 mQueuedMsAtTick = queuedMs();
    qint64 mLongestMs = 0;
};

} // namespace tapeprint::test
