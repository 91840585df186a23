// SPDX-License-Identifier: Apache-2.0
// Printing without a print server: documents run through the filters that a PPD names, into a file.
#pragma once

#include "job/ConfinedRun.h"
#include "job/FileStamp.h"
#include "job/JobOptions.h"
#include "job/Problem.h"

#include <QString>
#include <QStringList>

#include <atomic>
#include <chrono>
#include <optional>

#include <cups/ppd.h>

namespace tapeprint::job
{

/// What is to run.
struct FilterJob {
    QString ppdPath;
    QString title;
    JobOptions options; ///< reach the filters as their options argument
    QStringList files;  ///< plain files, only read
    QString outputPath; ///< "-" for standard output
    /// Whether a file that stands at the output's path may be replaced.
    bool mayReplaceOutput = true;
    /// Whether the PPD's own programs may run.
    bool trustsPpd = false;
    /// What the person gave to be printed: the output may be none of it, and it may not change meanwhile.
    FileStamps documents = {};
    /// Looked at ten times a second; null: nobody stops the job.
    const std::atomic<bool> *stop = nullptr;
    /// For each file.
    std::chrono::milliseconds longest = longestRun;
};

/// What came out.
struct FilterOutput {
    QString path;
    qint64 bytes = 0;
};

/// Runs the filters, confined where the machine allows it. A plain file appears when all bytes are in it, and what
/// stood there before stays until then. \param error takes a sentence on failure.
std::optional<FilterOutput> runFilters(const FilterJob &job, Problem *error);

/// What the person should know of a run of a PPD's filters: that nothing confines them here, and which programs of its
/// own a trusted description runs.
QStringList filterNotices(const QString &ppdPath, ppd_file_t *ppd, bool trustsPpd);

} // namespace tapeprint::job
