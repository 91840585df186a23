// SPDX-License-Identifier: Apache-2.0
// Sending a job to a print queue, so that it prints as a whole or not at all.
#pragma once

#include "job/JobOptions.h"
#include "job/Printers.h"
#include "job/Problem.h"

#include <QString>
#include <QStringList>

#include <atomic>
#include <functional>
#include <optional>
#include <utility>

namespace tapeprint::job
{

/// A job that the print server took.
struct SubmittedJob {
    int id = 0;
    QString state; ///< as IPP names it, such as "pending" or "processing"; "sent" when the server does not say
};

/// What is to be sent.
struct Submission {
    PrintQueue queue;
    QString title;
    JobOptions options;
    QStringList files;
};

/// How much of a job is on its way.
struct SendProgress {
    qint64 bytes = 0; ///< of all documents together
    qint64 ofBytes = 0;
};
/// Called in the thread that sends, after each piece.
using SendReport = std::function<void(const SendProgress &progress)>;

/// What those who print look at, and whom they tell how it is coming on.
struct PrintWatch {
    // A stop flag alone will do for either side.
    PrintWatch(const std::atomic<bool> &stopFlag, SendReport sendReport = nullptr) // NOLINT(*-explicit-*)
        : stop(stopFlag), report(std::move(sendReport))
    {
    }
    operator const std::atomic<bool> &() const { return stop; } // NOLINT(*-explicit-*)

    const std::atomic<bool> &stop; ///< when it becomes true, the person has changed their mind
    SendReport report;             ///< may be null
};

/// Sends documents as one job, in the calling thread. A job that does not get all its documents is cancelled, also when
/// the server goes away and is back soon; where that cannot be had it never prints, and the problem tells its number.
/// \param watch when its stop flag becomes true, sending ends within about a second, and nothing is printed.
/// \param error takes a sentence when the server does not take the job; none when it was stopped.
std::optional<SubmittedJob> submitJob(const Submission &submission, const PrintWatch &watch, Problem *error);

} // namespace tapeprint::job
