// SPDX-License-Identifier: Apache-2.0
// The document that a plan stands for: a PDF whose every page is one label, so that no filter has anything left to
// place.
#pragma once

#include "job/LabelPlan.h"
#include "job/Problem.h"
#include "job/RasterShift.h"

#include <QString>
#include <QStringList>

#include <atomic>
#include <optional>

namespace tapeprint::job
{

/// The sizes of a PDF's pages as they are read. \param error takes a sentence about one that is broken, wants a
/// password, or has no page. \param shownAs how the sentence names it; null: by its path.
std::optional<PageSizes> pageSizesOf(const QString &pdf, Problem *error, const QString &shownAs = QString());

/// Writes the labels of a plan as a PDF. The pages keep what they are made of: text stays text, nothing is rasterised.
/// \param pdfs the documents of the plan, in its order; only read. \param path a file to write.
/// \param stop when it becomes true, writing ends and the answer is false with a null sentence.
/// \param error takes a sentence that names the document that is at fault.
bool writeLaidOut(const LabelPlan &plan, const QStringList &pdfs, RasterShift shift, const QString &path,
                  const std::atomic<bool> &stop, Problem *error);

} // namespace tapeprint::job
