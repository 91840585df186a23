// SPDX-License-Identifier: Apache-2.0
// Asking the server again and again, and putting its keywords and messages into sentences.
#include "job/JobFollowing.h"

#include "job/Advice.h"
#include "job/PlainText.h"
#include "job/ServerConnection.h"
#include "job/StateReasons.h"
#include "job/Texts.h"

#include <QStringList>

#include <algorithm>
#include <chrono>
#include <memory>
#include <thread>

namespace tapeprint::job
{

namespace
{

using std::chrono::milliseconds;
using std::chrono::steady_clock;

constexpr milliseconds stopIsSeenWithin{100};
/// Most labels are out within the first time; a printer that waits for a person is not asked so often.
constexpr milliseconds firstTime{10000};
constexpr milliseconds firstInterval{250};
constexpr milliseconds laterInterval{1000};
/// A server that is started anew is back by then.
constexpr milliseconds patienceWithServer{15000};

void sleepUnless(const std::atomic<bool> &stop, milliseconds time)
{
    const auto end = steady_clock::now() + time;
    while (!stop && steady_clock::now() < end) {
        std::this_thread::sleep_for(stopIsSeenWithin);
    }
}

QString nameOf(const JobName &job)
{
    return QStringLiteral("%1-%2").arg(harmless(job.queue), QString::number(job.id));
}

/// Messages of strangers end as they like; the sentence brings its own full stop.
QString withoutStop(QString text)
{
    while (text.endsWith(u'.') || text.endsWith(u' ')) {
        text.chop(1);
    }
    return text;
}

/// What the printer says that somebody has to see to: its reasons in words, and its own words behind them.
QString printerSays(const JobNews &news)
{
    QStringList words;
    for (const StateReason &reason : stateReasons(news.status.printerReasons)) {
        if (reason.weight != ReasonWeight::Report) {
            words.append(reason.words(news.job.isTape));
        }
    }
    const QString reasons = words.join(QStringLiteral(", "));
    const QString message = withoutStop(news.status.printerMessage);
    // Which CUPS writes when whoever paused the printer gives no reason.
    const bool onlyRepeats = message.compare(QLatin1String("paused"), Qt::CaseInsensitive) == 0;
    if (reasons.isEmpty() || message.isEmpty() || onlyRepeats) {
        return reasons.isEmpty() ? message : reasons;
    }
    return Texts::tr("%1 (%2)").arg(reasons, message);
}

/// What is known of why a job came to nothing.
QString whyItFailed(const JobNews &news)
{
    const QString &message = news.status.message.isEmpty() ? news.status.printerMessage : news.status.message;
    return message.isEmpty() ? Texts::tr("the print server does not say why") : withoutStop(message);
}

} // namespace

bool JobNews::isOver() const
{
    return isLost || isHeld() || status.state >= IPP_JSTATE_STOPPED;
}

bool JobNews::hasFailed() const
{
    return isOver() && !isLost && !isHeld() && status.state != IPP_JSTATE_COMPLETED;
}

bool JobNews::waitsForPerson() const
{
    const std::vector<StateReason> reasons = stateReasons(status.printerReasons);
    return !isOver() && (status.isStopped || (!reasons.empty() && reasons.front().weight == ReasonWeight::Error));
}

int JobNews::percentOf(std::size_t pieces) const
{
    if (status.piecesOut <= 0 || pieces == 0) {
        return status.state == IPP_JSTATE_PROCESSING && !waitsForPerson() ? -1 : 0;
    }
    constexpr std::size_t whole = 100;
    return static_cast<int>(std::min(whole, whole * static_cast<std::size_t>(status.piecesOut) / pieces));
}

QString JobNews::sentence() const
{
    const QString name = nameOf(job);
    if (isLost) {
        return Texts::tr("The print server tells no more of job %1.").arg(name);
    }
    switch (status.state) {
    case IPP_JSTATE_ABORTED:
        return Texts::tr("Job %1 has failed: %2.").arg(name, whyItFailed(*this));
    case IPP_JSTATE_STOPPED:
        return advice(Texts::tr("Job %1 has failed: %2. It stays in the queue: cancel it or start it again in the "
                                "desktop's printer settings."),
                      QStringLiteral("Job %1 has failed: %2. It stays in the queue; cancel it with: cancel %1"))
            .arg(name, whyItFailed(*this));
    case IPP_JSTATE_CANCELED:
        return Texts::tr("Job %1 was cancelled.").arg(name);
    case IPP_JSTATE_COMPLETED:
        return Texts::tr("Job %1 is printed.").arg(name);
    case IPP_JSTATE_HELD:
        return Texts::tr("Job %1 is held: it waits until it is released.").arg(name);
    default:
        break;
    }
    if (waitsForPerson()) {
        return Texts::tr("Job %1 waits: %2.").arg(name, printerSays(*this));
    }
    if (status.state == IPP_JSTATE_PROCESSING) {
        return Texts::tr("Job %1 is being printed.").arg(name);
    }
    return status.jobsBefore > 0 ? Texts::tr("Job %1 waits behind others: %2.").arg(name).arg(status.jobsBefore)
                                 : Texts::tr("Job %1 waits for the printer.").arg(name);
}

std::optional<JobNews> followJob(const JobName &job, const std::atomic<bool> &stop, const JobReport &report,
                                 Problem *error)
{
    const auto server = ServerConnection::open(&stop, ServerConnection::Passwords::GoWithout);
    const auto start = steady_clock::now();
    auto lastHeard = start;
    std::optional<JobNews> last;
    while (!stop) {
        const std::optional<JobStatus> status = readJob(*server, job.queue, job.id);
        const auto now = steady_clock::now();
        if (status || !server->isUnreachable()) {
            const JobNews news{job, status.value_or(JobStatus()), !status};
            if (report && last != news) {
                report(news);
            }
            last = news;
            lastHeard = now;
            if (news.isOver()) {
                return last;
            }
        } else if (now - lastHeard > patienceWithServer) {
            *error = {Problem::Unreachable,
                      server->problem() + u' ' + Texts::tr("What became of job %1 is not known.").arg(nameOf(job))};
            return std::nullopt;
        } else {
            server->reconnect();
        }
        sleepUnless(stop, now - start < firstTime ? firstInterval : laterInterval);
    }
    return std::nullopt;
}

bool cancelSentJob(const JobName &job, const std::atomic<bool> &stop, Problem *error)
{
    const auto server = ServerConnection::open(&stop);
    if (server->isOpen() && cancelJob(*server, job.id)) {
        return true;
    }
    *error = {server->wasDeclined()     ? Problem::Cancelled
              : server->isUnreachable() ? Problem::Unreachable
                                        : Problem::RejectedJob,
              Texts::tr("Job %1 cannot be cancelled (%2).").arg(nameOf(job), server->problem())};
    return false;
}

} // namespace tapeprint::job
