// SPDX-License-Identifier: Apache-2.0
// From a settled job to printed bytes: a queue, or the PPD's filters and a file.
#pragma once

#include "job/FilterRun.h"
#include "job/JobSubmission.h"
#include "job/Problem.h"
#include "job/SettledJob.h"

#include <QString>
#include <QStringList>

#include <atomic>
#include <optional>

namespace tapeprint::job
{

/// What became of a job: it is in a queue, or its bytes are in a file.
struct PrintedJob {
    QString queue; ///< null when the bytes are in a file
    SubmittedJob job;
    FilterOutput output;
    bool isPdf = false; ///< the file is the job as a PDF, not the printer's bytes
    bool isKept = true; ///< a window's settings are there the next time; without a window nothing is kept

    /// A sentence about it, in the language of the moment.
    QString sentence() const;
};

/// Whether documents could be printed, without printing them: for tape they are laid out on labels and thrown away.
/// \param error takes a sentence when they could not.
bool isPrintable(const SettledJob &job, const QStringList &files, const std::atomic<bool> &stop, Problem *error);

/// Prints documents, away from a window's thread if one is there, to the job's destination: for tape laid out on
/// labels, for paper as they are, because the filters lay those out; or saves
/// them as a PDF. \param title the job's title where its options have none; \param files the
/// documents, only read. \param watch when its stop flag becomes true, printing ends with nothing printed; its report
/// hears of what is sent to a queue. \return what became of the job; std::nullopt, and a sentence in *error, on
/// failure.
std::optional<PrintedJob> printJob(const SettledJob &job, const QString &title, const QStringList &files,
                                   const PrintWatch &watch, Problem *error);

} // namespace tapeprint::job
