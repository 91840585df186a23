// SPDX-License-Identifier: Apache-2.0
// The document that a plan stands for: a PDF whose every page is one label, so that no filter has anything left to
// place.
#pragma once

#include "job/LabelPlan.h"

#include <QString>
#include <QStringList>

#include <atomic>
#include <optional>

namespace tapeprint::job
{

/// The sizes of a PDF's pages as they are read. \param error takes a sentence about one that is broken, wants a
/// password, or has no page. \param shownAs how the sentence names it; null: by its path.
std::optional<PageSizes> pageSizesOf(const QString &pdf, QString *error, const QString &shownAs = QString());

/// How a rasteriser of the filters moves a page's content, to be undone by the layout.
struct RasterShift {
    double downPt = 0.0; ///< how far too low the content comes out
};

/// The shift of a printer. Ghostscript's raster device counts rows from a page height in whole points: what it draws on
/// a page of another height comes out lower or higher by the difference. Printers that take no CUPS raster have none.
RasterShift rasterShiftOf(const ppd_file_t *ppd, const TapePage &page);

/// Writes the labels of a plan as a PDF. The pages keep what they are made of: text stays text, nothing is rasterised.
/// \param pdfs the documents of the plan, in its order; only read. \param path a file to write.
/// \param stop when it becomes true, writing ends and the answer is false with a null sentence.
/// \param error takes a sentence that names the document that is at fault.
bool writeLaidOut(const LabelPlan &plan, const QStringList &pdfs, RasterShift shift, const QString &path,
                  const std::atomic<bool> &stop, QString *error);

} // namespace tapeprint::job
