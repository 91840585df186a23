// SPDX-License-Identifier: Apache-2.0
// How long a window is deaf: what a person notices as a freeze.
#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

#include <algorithm>

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
        QObject::connect(&mTicks, &QTimer::timeout,
                         [this] { mLongestMs = std::max(mLongestMs, mSinceTick.restart()); });
        mTicks.start(tickMs);
    }
    /// The longest time for which the loop did nothing for others.
    qint64 longestMs() const { return std::max(mLongestMs, mSinceTick.elapsed()); }

private:
    QTimer mTicks;
    QElapsedTimer mSinceTick;
    qint64 mLongestMs = 0;
};

} // namespace tapeprint::test
