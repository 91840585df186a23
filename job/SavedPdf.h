// SPDX-License-Identifier: Apache-2.0
// A job saved as a PDF in place of being printed.
#pragma once

#include "job/FilterRun.h"
#include "job/Problem.h"
#include "job/SettledJob.h"

#include <QString>
#include <QStringList>

#include <atomic>
#include <optional>

namespace tapeprint::job
{

/// Writes the job's PDF to its pdfPath: for tape the labels as they are laid out, for paper the chosen pages in their
/// order. Copies are the printer's and are not repeated. The file appears whole or not at all. \param files the
/// documents, only read. \param stop when it becomes true, nothing is written. \param error takes a sentence on
/// failure.
std::optional<FilterOutput> saveAsPdf(const SettledJob &job, const QStringList &files, const std::atomic<bool> &stop,
                                      Problem *error);

} // namespace tapeprint::job
