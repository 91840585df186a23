// SPDX-License-Identifier: Apache-2.0
// A job as it goes to the queue or the filters: for tape one document of labels, for paper its documents, which the
// filters lay out. Pages are selected and ordered once: what is done here is not asked of the filters, and the reverse.
#pragma once

#include "job/PrivateFile.h"
#include "job/Problem.h"
#include "job/SettledJob.h"

#include <QString>
#include <QStringList>

#include <atomic>
#include <memory>
#include <optional>
#include <vector>

namespace tapeprint::job
{

/// Files that had to be made go with this object.
struct PreparedJob {
    QStringList files;
    JobOptions options;
    std::vector<std::unique_ptr<PrivateFile>> made;
};

/// Prepares a job. Copies are the filters' in any case. On paper the filters count sheets where page-ranges means pages
/// when several of them go on a sheet, and they count each document's pages by themselves, where a person sees them
/// numbered through: then the documents become their chosen pages here.
/// \param files the documents, only read. \param stop when it becomes true, the answer is nothing. \param error says
/// why on failure.
std::optional<PreparedJob> prepareJob(const SettledJob &job, const QStringList &files, const std::atomic<bool> &stop,
                                      Problem *error);

} // namespace tapeprint::job
