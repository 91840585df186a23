// SPDX-License-Identifier: Apache-2.0
// Which part of a PDF page is the page: one answer for whoever shows, measures or lays out a document.
#pragma once

#include <QRectF>
#include <QSizeF>

#include <vector>

class QPDF;
class QPDFPageObjectHelper;

namespace tapeprint::job
{

/// A page's boxes, as its document says them.
struct PageBox {
    QRectF page;           ///< in the document's units, y upwards; empty when the document names no usable box
    QRectF seen;           ///< what viewers draw of it: the crop box within the media box, likewise
    int turn = 0;          ///< clockwise, when it is shown: 0, 90, 180 or 270 degrees
    double unitPt = 1.0;   ///< points of one of the document's units
    QSizeF sizePt() const; ///< as the page is read: turned, in points; empty when the page is
};

/// The box of a page. It is the one that CUPS's pdftopdf takes: TrimBox, else CropBox, else MediaBox, whole even where
/// it reaches beyond the MediaBox. The filter muddles UserUnit (it enlarges the content, not the page); here the unit
/// counts for both.
PageBox pageBoxOf(QPDFPageObjectHelper &page);

/// The boxes of all pages. Throws what QPDF throws of a document that it cannot read.
std::vector<PageBox> pageBoxesOf(QPDF &document);

} // namespace tapeprint::job
