// SPDX-License-Identifier: Apache-2.0
// What becomes of a job after it was sent: the server's word, until the last one.
#pragma once

#include "job/JobRequests.h"
#include "job/Problem.h"

#include <QString>

#include <atomic>
#include <cstddef>
#include <functional>
#include <optional>

namespace tapeprint::job
{

/// A job to be followed.
struct JobName {
    QString queue;
    int id = 0;
    bool isTape = false; ///< whether its printer prints on tape; else what it lacks is paper
};

/// What can be said of a job at a moment.
struct JobNews {
    JobName job;
    JobStatus status;
    bool isLost = false; ///< the server tells no more of it: some forget a job as soon as it is over

    /// Whether nothing more is to come by itself: it is completed, failed, cancelled, held or lost.
    bool isOver() const;
    /// Whether it waits in the queue until somebody releases it.
    bool isHeld() const { return !isLost && status.state == IPP_JSTATE_HELD; }
    /// Whether it is over and did not print as it should: it failed, or was cancelled.
    bool hasFailed() const;
    /// Whether somebody has to see to the printer before the job prints.
    bool waitsForPerson() const;
    /// How much of a job is out, in per cent; below 0 while it is being printed and nobody knows how much. A job that
    /// waits, for a person or for its turn, stays where it is.
    /// \param pieces labels or sheets of the whole job; 0 when that is not known.
    int percentOf(std::size_t pieces) const;
    /// A sentence for the person, in the language of the moment.
    QString sentence() const;

    bool operator==(const JobNews &other) const { return status == other.status && isLost == other.isLost; }
};
using JobReport = std::function<void(const JobNews &news)>;

/// Follows a job until it is over, in the calling thread. It stays as it is when this ends before. No password is asked
/// for. \param stop when it becomes true, following ends within about a second. \param report hears of each change; may
/// be null. \return the last news; nothing when it was stopped, or, with a sentence in *error, when the server
/// stopped answering.
std::optional<JobNews> followJob(const JobName &job, const std::atomic<bool> &stop, const JobReport &report,
                                 Problem *error);

/// Cancels a job that was sent, in the calling thread. The person may be asked for a password.
/// \param stop as above. \return false with a sentence in *error when the server does not do it.
bool cancelSentJob(const JobName &job, const std::atomic<bool> &stop, Problem *error);

} // namespace tapeprint::job
