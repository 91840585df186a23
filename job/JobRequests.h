// SPDX-License-Identifier: Apache-2.0
// What is asked of the print server about one job: that there is one, how it is, that it may print, that it may not.
#pragma once

#include "job/CupsOptions.h"
#include "job/IppQuestion.h"
#include "job/JobOptions.h"
#include "job/ServerConnection.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <memory>
#include <optional>
#include <vector>

#include <cups/cups.h>

namespace tapeprint::job
{

/// Whether a response says that the request was carried out. libcups's last error does not: where the connection broke
/// it may still be that of the request before. \param response null when there was none.
bool isAccepted(ipp_t *response);

/// The state of a job that a response tells, as IPP names it, such as "pending"; null when it tells none.
QString stateIn(ipp_t *response);

/// A job as the server knows it.
struct JobStatus {
    ipp_jstate_t state = IPP_JSTATE_PENDING;
    QStringList reasons;        ///< job-state-reasons, as IPP's keywords
    QString message;            ///< what the printer or a filter said of it last, in its own words
    int documents = 0;          ///< how many have come
    int jobsBefore = 0;         ///< how many others the queue prints first
    int piecesOut = 0;          ///< labels or sheets that have come out; 0 also where nobody counts them
    bool isStopped = false;     ///< whether the printer has stopped; the job waits for it
    QStringList printerReasons; ///< printer-state-reasons, as IPP's keywords
    QString printerMessage;     ///< of the printer, in its driver's or administrator's words

    /// The state as IPP names it, such as "pending" or "processing".
    QString stateName() const;
    /// Whether all its documents are there.
    bool isWhole(int documentsSent) const;

    bool operator==(const JobStatus &other) const = default;
};

/// Where the server takes a queue's jobs.
struct QueueAddress {
    QByteArray uri;
    QByteArray resource; ///< the URI's path, which requests are posted to
};

/// The address of a queue; nothing when the server does not give one. A queue that is known from the network alone is
/// made on the server first. The server is not asked what the queue can do, as cupsCopyDestInfo does: that answer takes
/// longer than all others of a job together.
std::optional<QueueAddress> addressOf(const ServerConnection &server, const QString &queue);

/// Makes a job without documents. \return its number; nothing when the server makes none.
std::optional<int> createJob(const ServerConnection &server, const QueueAddress &address, const QString &title,
                             const CupsOptions &options);

/// Begins to send a document, whose bytes are then written. \param name what it is called on the server. \return
/// HTTP_STATUS_CONTINUE when the server waits for them.
http_status_t startDocument(const ServerConnection &server, const QueueAddress &address, int jobId, const QString &name,
                            bool isLast);

/// Until when a queue holds a job that does not say so itself, as IPP's job-hold-until says it; nothing when the queue
/// cannot hold a job for good.
std::optional<QString> usualHold(const ServerConnection &server, const QString &queue);

/// The server's word about a job and its queue's printer. \return nothing when it gives none.
std::optional<JobStatus> readJob(const ServerConnection &server, const QString &queue, int jobId);

/// Holds a job, or lets it go on. \param until when, as IPP's job-hold-until says it; "no-hold" for now.
bool holdJob(const ServerConnection &server, int jobId, const QString &until);

/// Gives a job options whose values stand in braces. Those of a new job are made collections on the way, which no
/// filter ever sees; as names they arrive as they are. \return whether the server took them all.
bool addBracedOptions(const ServerConnection &server, int jobId, const JobOptions &options);

/// The person's own jobs of a title on a queue that are not over and have fewer documents than so many; nothing when
/// the server does not say.
std::optional<std::vector<int>> unfinishedJobs(const ServerConnection &server, const QString &queue,
                                               const QString &title, int documents);

/// Whether the job is gone for certain: cancelled, or over already.
bool cancelJob(const ServerConnection &server, int jobId);

} // namespace tapeprint::job
