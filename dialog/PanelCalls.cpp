// SPDX-License-Identifier: Apache-2.0
// A throw ends the one call; a panel that keeps the thread to itself is named afterwards.
#include "dialog/PanelCalls.h"

#include "dialog/CallWatch.h"
#include "job/PlainText.h"
#include "job/Reason.h"
#include "job/Texts.h"

#include <QAbstractEventDispatcher>
#include <QElapsedTimer>
#include <QScopeGuard>

#include <algorithm>
#include <array>
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

/// Who is in a call, kept where a handler of signals can read it, and watched.
class InCall
{
public:
    explicit InCall(const QByteArray &who) : mBefore(text()), mPart(CallWatch::Work::Call, who)
    {
        const QByteArray bytes = who.left(static_cast<qsizetype>(text().size()) - 1);
        text().fill('\0');
        std::copy(bytes.begin(), bytes.end(), text().begin());
    }
    InCall(const InCall &) = delete;
    InCall &operator=(const InCall &) = delete;
    ~InCall() { text() = mBefore; }

    static std::array<char, 512> &text()
    {
        static std::array<char, 512> who{};
        return who;
    }

private:
    std::array<char, 512> mBefore;
    CallWatch::Part mPart;
};

/// How long a thread went without looking for events. What a person is asked meanwhile does not count.
class Silence
{
public:
    Silence()
    {
        mSince.start();
        if (auto *events = QAbstractEventDispatcher::instance()) {
            mBlocking = QObject::connect(events, &QAbstractEventDispatcher::aboutToBlock, [this] { endOne(); });
            mAwaking = QObject::connect(events, &QAbstractEventDispatcher::awake, [this] {
                mSince.restart(); // what went by since was waiting
            });
        }
    }
    Silence(const Silence &) = delete;
    Silence &operator=(const Silence &) = delete;
    ~Silence()
    {
        QObject::disconnect(mBlocking);
        QObject::disconnect(mAwaking);
    }

    qint64 longestMs()
    {
        endOne();
        return mLongestMs;
    }

private:
    void endOne() { mLongestMs = std::max(mLongestMs, mSince.restart()); }

    QElapsedTimer mSince;
    qint64 mLongestMs = 0;
    QMetaObject::Connection mBlocking;
    QMetaObject::Connection mAwaking;
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
    const InCall inCall(who.toLocal8Bit());
    Silence silence;
    bool isDone = false;
    try {
        call();
        isDone = true;
    } catch (const std::exception &thrown) {
        tellThrown(who, QString::fromLocal8Bit(thrown.what()));
    } catch (...) {
        tellThrown(who, QString());
    }
    if (const qint64 ms = silence.longestMs(); mDepth == 1 && ms >= longestSilenceMs) {
        tell(job::Texts::tr("%1 kept the window waiting for %2 s.").arg(who).arg(ms / msPerSecond));
    }
    return isDone;
}

const char *PanelCalls::whoIsInCall()
{
    return InCall::text().data();
}

void PanelCalls::tellThrown(const QString &who, const QString &reason)
{
    const QString text = job::reasonText(reason);
    tell(text.isEmpty() ? job::Texts::tr("%1 failed.").arg(who) : job::Texts::tr("%1 failed: %2.").arg(who, text));
}

void PanelCalls::tell(const QString &sentence)
{
    if (!mSentences.contains(sentence) && mSentences.size() < mostSentences) {
        mSentences.append(sentence);
    }
}

} // namespace tapeprint::dialog
