// SPDX-License-Identifier: Apache-2.0
// The page of a job as it comes out of the printer: the tape itself, with its width, its length and what stays blank.
#pragma once

#include "job/JobOptions.h"
#include "job/TapeKeywords.h"

#include <QMarginsF>
#include <QRectF>
#include <QSizeF>
#include <QString>

#include <cups/ppd.h>

namespace tapeprint::job
{

/// Who decides the length of the page.
enum class PageLength {
    Paper,        ///< the paper: it is no tape, its length is fixed, or the chosen length is the paper's own
    Chosen,       ///< the tape length: the job carries a custom page size
    PaperForNear, ///< the paper, though a length a little beside it was chosen: the filters take the nearer named size
    NamedForNear, ///< another of the PPD's sizes, which the filters take for a length a little beside it
    LeftToDriver, ///< the paper, because the PPD takes no custom page size that holds the tape: the driver has the rest
};

/// All measures in points, on the standing page: width across the tape, height along it, origin at the top left.
struct TapePage {
    QString pageSize; ///< the job's value of PageSize: a name of the PPD's or Custom.WxHmm; null without a paper
    QSizeF sizePt;    ///< what the filter rasterises, with the strips that cannot be printed; empty without a paper
    QMarginsF unprintablePt; ///< strips along the edges that the printer cannot print
    double freeEndsPt = 0.0; ///< the margin kept free at both ends, counted from the tape's ends
    PageLength length = PageLength::Paper;
    bool isTape = false; ///< whether the printer prints on tape: the pages are then laid out on it by the job itself
    bool hasFixedLength = false; ///< whether the tape is one whose length nobody chooses
    bool isTwoSided = false;     ///< whether the printer prints on both sides of the paper

    bool isEmpty() const { return sizePt.isEmpty(); }
    QRectF wholeRect() const { return {QPointF(), sizePt}; }
    /// What the printer can print.
    QRectF printableRect() const { return wholeRect().marginsRemoved(unprintablePt); }
    /// Where documents are laid out: the printable width, and the length less the margin at both ends. Empty when the
    /// margins leave nothing.
    QRectF layoutRect() const;

    bool operator==(const TapePage &) const = default;
};

/// The page of a job. \param ppd may be null; its marks say which paper is loaded. \param options the job's.
TapePage tapePageOf(ppd_file_t *ppd, const JobOptions &options, const TapeKeywords &keywords);

/// Points of a length in millimetres, and back.
double pointsFromMm(double mm);
double mmFromPoints(double points);

} // namespace tapeprint::job
