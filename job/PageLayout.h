// SPDX-License-Identifier: Apache-2.0
// Where a document's pages go on the page of the job: size, turn and place, as pure arithmetic.
#pragma once

#include "job/JobOptions.h"

#include <QRectF>
#include <QSizeF>
#include <QTransform>

#include <vector>

namespace tapeprint::job
{

/// How large a page becomes. The names are those of IPP's print-scaling.
enum class Scaling {
    Auto, ///< made smaller when it is larger than its place, else its own size
    Fit,  ///< as large as its place takes it whole
    Fill, ///< as small as it fills its place; what stands over is cut off
    None, ///< its own size; what stands over is cut off
};

/// How a page is turned on the standing page, counted clockwise in quarter turns.
enum class Turn {
    Automatic, ///< so that its longer side lies along the page's height, which is the tape's length
    None,
    Right,
    Half,
    Left,
};

/// Where a page stands in its place when it does not fill it.
enum class Place { Start, Middle, End };

/// In which order the pages of a sheet fill its rows and columns; by itself as one reads.
struct SheetOrder {
    bool rightToLeft = false;
    bool bottomToTop = false;
    bool columnsFirst = false; ///< a column is filled before the next is begun

    bool operator==(const SheetOrder &) const = default;
};

/// What a person chose about the layout.
struct LayoutChoices {
    Scaling scaling = Scaling::Auto;
    Turn turn = Turn::Automatic;
    Place across = Place::Middle; ///< over the width; Start is the left of the standing page
    Place along = Place::Middle;  ///< over the height; Start is the top of the standing page
    int pagesPerSheet = 1;
    SheetOrder order;
    bool fitLength = false; ///< of each page only what is drawn on counts along the height, and each has its own sheet

    bool operator==(const LayoutChoices &) const = default;
};

/// The choices that a job's options make, by the names that CUPS has for them: print-scaling (or fit-to-page),
/// orientation-requested, position, number-up, number-up-layout; and by fit-length. Values that are none of theirs
/// leave the choice as it is by itself.
LayoutChoices layoutChoicesOf(const JobOptions &options);

/// As many pages as CUPS's filters put on a sheet of paper when they are asked for so many.
int pagesPerPaper(int asked);

/// Names of the options by which filters place pages, those among them that layoutChoicesOf() reads: a job that is laid
/// out carries none of them to the filters.
const QStringList &layoutOptionNames();

/// A page's part that counts, and how it is turned: all of it, or with fitLength what is drawn on along the height.
struct PagePart {
    QRectF part; ///< in points of the document's page
    Turn turn = Turn::None;
};
PagePart partThatCounts(const QSizeF &pagePt, const QRectF &drawnPt, const LayoutChoices &choices);

/// How long a part becomes along the height of a sheet that is as long as needed. \param width the room across.
double lengthNeeded(const PagePart &part, double width, const LayoutChoices &choices);

/// Maps points of a document's page (origin top left, y down) to points of the job's page. \param area where it goes.
QTransform placePage(const QSizeF &pagePt, const QRectF &area, const LayoutChoices &choices);

/// The places of several pages on one sheet, in their order, each with a gap to the next; the rows and columns in which
/// a page of this size comes out largest. \param count at least 1.
std::vector<QRectF> placesOnSheet(int count, const QRectF &area, const QSizeF &pagePt, const LayoutChoices &choices);

} // namespace tapeprint::job
