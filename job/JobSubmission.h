// SPDX-License-Identifier: Apache-2.0
// Sending a job to a print queue.
#pragma once

#include "job/JobOptions.h"
#include "job/Printers.h"
#include "job/Problem.h"

#include <QString>
#include <QStringList>

#include <optional>

namespace tapeprint::job
{

/// A job that the print server took.
struct SubmittedJob {
    int id = 0;
    QString state; ///< as IPP names it, such as "pending" or "processing"; "sent" when the server does not say
};

/// Sends documents as one job. A job that cannot be completed is cancelled.
/// \param error takes a sentence when the server does not take it.
std::optional<SubmittedJob> submitJob(const PrintQueue &queue, const QString &title, const JobOptions &options,
                                      const QStringList &files, Problem *error);

} // namespace tapeprint::job
