// SPDX-License-Identifier: Apache-2.0
// Which part of a PDF page is the page: one answer for whoever shows, measures or lays out a document.
#pragma once

#include "job/DrawerWords.h"

#include <QRectF>
#include <QSizeF>

#include <cmath>

namespace tapeprint::job
{

/// A page's boxes, as its document says them. Which of them is the page says drawing/PageBoxes.h.
struct PageBox {
    QRectF page;         ///< in the document's units, y upwards; empty when the document names no usable box
    QRectF seen;         ///< what viewers draw of it: the crop box within the media box, likewise
    int turn = 0;        ///< clockwise, when it is shown: 0, 90, 180 or 270 degrees
    double unitPt = 1.0; ///< points of one of the document's units

    /// As the page is read: turned, in points; empty when the page is, or when no number tells it.
    QSizeF sizePt() const
    {
        const QSizeF size = page.size() * unitPt;
        const bool isSize = !page.isEmpty() && std::isfinite(size.width()) && std::isfinite(size.height());
        const bool lies = turn % 180 != 0;
        return !isSize ? QSizeF() : lies ? size.transposed() : size;
    }
};

/// What a program that reads documents says of a page.
inline PageBox boxOf(const DrawerPage &page)
{
    const auto rectOf = [](const DrawerPage::Rect &rect) { return QRectF(rect.x, rect.y, rect.width, rect.height); };
    return {rectOf(page.page), rectOf(page.seen), page.turn, page.unitPt};
}

} // namespace tapeprint::job
