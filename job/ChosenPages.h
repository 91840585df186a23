// SPDX-License-Identifier: Apache-2.0
// A document of pages of other documents, each as it is.
#pragma once

#include "job/LabelPlan.h"
#include "job/PdfWorker.h"
#include "job/Problem.h"

#include <QString>
#include <QStringList>

#include <atomic>
#include <vector>

namespace tapeprint::job
{

/// The pages that a job's options select out of its documents, in their order; pages are numbered through.
std::vector<ChosenPage> chosenPages(const std::vector<PageSizes> &documents, const JobOptions &options);

/// Writes pages as a PDF. Nothing is rasterised or placed anew. \param pdfs the documents, only read.
/// \param path a file to write. \param stop when it becomes true, writing ends and the answer is false with a null
/// sentence. \param error takes a sentence that names the document that is at fault.
bool writeChosenPages(const std::vector<ChosenPage> &pages, const QStringList &pdfs, const QString &path,
                      const std::atomic<bool> &stop, Problem *error);

} // namespace tapeprint::job
