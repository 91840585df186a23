// SPDX-License-Identifier: Apache-2.0
// Printing without a print server: documents run through the filters that a PPD names, into a file.
#pragma once

#include "job/JobOptions.h"

#include <QString>
#include <QStringList>

#include <optional>

namespace tapeprint::job
{

/// What is to run.
struct FilterJob {
    QString ppdPath;
    QString title;
    JobOptions options; ///< reach the filters as their options argument
    QStringList files;
    QString outputPath;
};

/// What came out.
struct FilterOutput {
    QString path;
    qint64 bytes = 0;
};

/// Runs the filters. An output file that could not be completed is removed. \param error takes a sentence on failure.
std::optional<FilterOutput> runFilters(const FilterJob &job, QString *error);

} // namespace tapeprint::job
