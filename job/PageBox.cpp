// SPDX-License-Identifier: Apache-2.0
// The page's boxes are read with QPDF: Poppler's interface for Qt tells the size that it draws and no box.
#include "job/PageBox.h"

#include <qpdf/QPDF.hh>
#include <qpdf/QPDFPageDocumentHelper.hh>
#include <qpdf/QPDFPageObjectHelper.hh>

#include <cmath>

namespace tapeprint::job
{

namespace
{

constexpr double quarterTurn = 90.0;
constexpr int fullTurn = 360;

QRectF rectOf(QPDFObjectHandle box)
{
    if (!box.isRectangle()) {
        return {};
    }
    const QPDFObjectHandle::Rectangle corners = box.getArrayAsRectangle();
    const QRectF rect = QRectF(QPointF(corners.llx, corners.lly), QPointF(corners.urx, corners.ury)).normalized();
    return std::isfinite(rect.width()) && std::isfinite(rect.height()) && !rect.isEmpty() ? rect : QRectF();
}

int turnOf(QPDFObjectHandle rotate)
{
    if (!rotate.isNumber()) {
        return 0;
    }
    const double quarters = rotate.getNumericValue() / quarterTurn;
    const bool isWhole = std::abs(quarters) < fullTurn && quarters == std::floor(quarters);
    const int turn = isWhole ? static_cast<int>(quarters * quarterTurn) % fullTurn : 0;
    return turn < 0 ? turn + fullTurn : turn;
}

double unitOf(QPDFObjectHandle unit)
{
    const double points = unit.isNumber() ? unit.getNumericValue() : 1.0;
    return points > 0.0 && std::isfinite(points) ? points : 1.0;
}

} // namespace

QSizeF PageBox::sizePt() const
{
    const QSizeF size = page.size() * unitPt;
    const bool lies = turn % 180 != 0;
    return page.isEmpty() ? QSizeF() : lies ? size.transposed() : size;
}

PageBox pageBoxOf(QPDFPageObjectHelper &page)
{
    PageBox box;
    const QRectF media = rectOf(page.getAttribute("/MediaBox", false));
    const QRectF crop = rectOf(page.getAttribute("/CropBox", false));
    const QRectF trim = rectOf(page.getAttribute("/TrimBox", false));
    box.seen = crop.isEmpty() ? media : crop.intersected(media);
    box.page = !trim.isEmpty() ? trim : !crop.isEmpty() ? crop : media;
    box.turn = turnOf(page.getAttribute("/Rotate", false));
    box.unitPt = unitOf(page.getObjectHandle().getKey("/UserUnit"));
    return box;
}

std::vector<PageBox> pageBoxesOf(QPDF &document)
{
    std::vector<PageBox> boxes;
    for (QPDFPageObjectHelper &page : QPDFPageDocumentHelper(document).getAllPages()) {
        boxes.push_back(pageBoxOf(page));
    }
    return boxes;
}

} // namespace tapeprint::job
