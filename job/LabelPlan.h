// SPDX-License-Identifier: Apache-2.0
// Which page of which document goes where on which label. The preview, the laid-out document and the tape counted are
// three readings of this one plan.
#pragma once

#include "job/JobOptions.h"
#include "job/PageLayout.h"
#include "job/TapePage.h"

#include <QSizeF>
#include <QTransform>

#include <cstddef>
#include <vector>

namespace tapeprint::job
{

/// The sizes of a document's pages as they are read, in points.
using PageSizes = std::vector<QSizeF>;

/// One page of a document on a label.
struct PlacedPage {
    std::size_t document = 0; ///< index of the document
    int page = 0;             ///< index of its page, from 0
    QTransform place;         ///< from points of the document's page to points of the label, both from the top left
    QRectF clip;              ///< what of the label the page may cover
    QRectF part = {};         ///< what of the document's page counts, in its points

    /// How large the part is on the label, in points: made smaller, and without what is cut off.
    QSizeF printedPt() const { return place.mapRect(part).intersected(clip).size(); }
    /// Whether nobody can read it any more: it comes out less than a millimetre high or wide, and is larger itself.
    bool isUnreadable() const;
};

/// One label, or one sheet of paper: the pages on it.
using Label = std::vector<PlacedPage>;

struct LabelPlan {
    TapePage page;             ///< every label of a job is the same piece of tape
    std::vector<Label> labels; ///< in the order in which they are printed
    int copies = 1;

    /// How much comes out of the printer with all copies.
    std::size_t labelCount() const { return labels.size() * static_cast<std::size_t>(copies); }
    /// Labels, or sheets of paper: printed on both sides, two labels are one, and each document and copy begins anew.
    std::size_t sheetCount() const;
    double tapeLengthMm() const;
    /// The first page that nobody can read on the tape; null when there is none. Paper is laid out by filters.
    const PlacedPage *unreadablePage() const;
};

/// The pages that a job's options select out of all pages of its documents, from 0 and in their order: page-ranges, and
/// page-set (even, odd) unless several pages go on a sheet, where it selects sheets. \param total how many pages there
/// are.
std::vector<int> selectedPages(int total, const JobOptions &options);

/// Names of the options that select pages and sheets and order them.
const QStringList &selectionOptionNames();

/// What of a document's pages is drawn on, in points; an empty rectangle for a page that is blank or not looked at.
using DrawnRects = std::vector<QRectF>;

/// Of which documents each page is a sheet as it is, because a filter has laid it out; empty: of none. For paper alone.
using LaidOnSheets = std::vector<bool>;

/// The plan of a job: pages are selected, dealt out to sheets, and the sheets reversed when the job says so, as CUPS's
/// filters do it. \param documents the page sizes of each document, in their order. \param drawn what of the pages
/// is drawn on, for fit-length; without it pages count whole.
LabelPlan planLabels(const std::vector<PageSizes> &documents, const TapePage &page, const JobOptions &options,
                     const std::vector<DrawnRects> &drawn = {}, const LaidOnSheets &laidOn = {});

} // namespace tapeprint::job
