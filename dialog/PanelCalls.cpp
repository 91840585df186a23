// SPDX-License-Identifier: Apache-2.0
// A throw ends the one call; a panel that keeps the thread to itself is named afterwards.
#include "dialog/PanelCalls.h"

#include "job/PlainText.h"
#include "job/Reason.h"
#include "job/Texts.h"

#include <QAbstractEventDispatcher>
#include <QElapsedTimer>
#include <QScopeGuard>

#include <algorithm>
#include <exception>

namespace tapeprint::dialog
{

namespace
{

/// Calls of panels within calls of panels: alerts over alerts are a few, a panel that calls itself by way of the dialog
/// knows no end.
constexpr int mostCallsWithin = 12;
/// A person takes a window for dead by then.
constexpr qint64 longestSilenceMs = 2000;
constexpr qint64 msPerSecond = 1000;
/// A panel that fails otherwise each time is not listed for ever.
constexpr qsizetype mostSentences = 20;

/// How long a thread went without looking for events. What a person is asked meanwhile does not count.
class Silence
{
public:
    Silence()
    {
        mSince.start();
        if (auto *events = QAbstractEventDispatcher::instance()) {
            mWatch = QObject::connect(events, &QAbstractEventDispatcher::aboutToBlock, [this] { endOne(); });
        }
    }
    Silence(const Silence &) = delete;
    Silence &operator=(const Silence &) = delete;
    ~Silence() { QObject::disconnect(mWatch); }

    qint64 longestMs()
    {
        endOne();
        return mLongestMs;
    }

private:
    void endOne() { mLongestMs = std::max(mLongestMs, mSince.restart()); }

    QElapsedTimer mSince;
    qint64 mLongestMs = 0;
    QMetaObject::Connection mWatch;
};

} // namespace

bool PanelCalls::make(const QString &who, const std::function<void()> &call)
{
    if (mDepth >= mostCallsWithin) {
        tell(job::Texts::tr("%1 calls itself without end, and was not asked again.").arg(who));
        return false;
    }
    ++mDepth;
    const auto leave = qScopeGuard([this] { --mDepth; });
    Silence silence;
    bool isDone = false;
    try {
        call();
        isDone = true;
    } catch (const std::exception &thrown) {
        const QString reason = job::reasonText(QString::fromLocal8Bit(thrown.what()));
        tell(job::Texts::tr("%1 failed: %2.").arg(who, reason));
    } catch (...) {
        tell(job::Texts::tr("%1 failed.").arg(who));
    }
    if (const qint64 ms = silence.longestMs(); mDepth == 1 && ms >= longestSilenceMs) {
        tell(job::Texts::tr("%1 kept the window waiting for %2 s.").arg(who).arg(ms / msPerSecond));
    }
    return isDone;
}

void PanelCalls::tell(const QString &sentence)
{
    if (!mSentences.contains(sentence) && mSentences.size() < mostSentences) {
        mSentences.append(sentence);
    }
}

} // namespace tapeprint::dialog
