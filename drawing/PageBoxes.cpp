// SPDX-License-Identifier: Apache-2.0
// The page's boxes are read with QPDF: Poppler tells the size that it draws and no box.
#include "drawing/PageBoxes.h"

#include <algorithm>
#include <cmath>

#include <qpdf/QPDF.hh>
#include <qpdf/QPDFPageDocumentHelper.hh>
#include <qpdf/QPDFPageObjectHelper.hh>

namespace tapeprint::drawing
{

namespace
{

using Rect = job::DrawerPage::Rect;

constexpr double quarterTurn = 90.0;
constexpr int fullTurn = 360;

bool isEmpty(const Rect &rect)
{
    return !(rect.width > 0.0 && rect.height > 0.0);
}

Rect rectOf(QPDFObjectHandle box)
{
    if (!box.isRectangle()) {
        return {};
    }
    const QPDFObjectHandle::Rectangle corners = box.getArrayAsRectangle();
    const Rect rect{std::min(corners.llx, corners.urx), std::min(corners.lly, corners.ury),
                    std::abs(corners.urx - corners.llx), std::abs(corners.ury - corners.lly)};
    return std::isfinite(rect.width) && std::isfinite(rect.height) && !isEmpty(rect) ? rect : Rect();
}

Rect intersected(const Rect &one, const Rect &other)
{
    const double x = std::max(one.x, other.x);
    const double y = std::max(one.y, other.y);
    const Rect rect{x, y, std::min(one.x + one.width, other.x + other.width) - x,
                    std::min(one.y + one.height, other.y + other.height) - y};
    return isEmpty(rect) ? Rect() : rect;
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

job::DrawerPage pageBoxOf(QPDFPageObjectHelper &page)
{
    job::DrawerPage box;
    const Rect media = rectOf(page.getAttribute("/MediaBox", false));
    const Rect crop = rectOf(page.getAttribute("/CropBox", false));
    const Rect trim = rectOf(page.getAttribute("/TrimBox", false));
    box.seen = isEmpty(crop) ? media : intersected(crop, media);
    box.page = !isEmpty(trim) ? trim : !isEmpty(crop) ? crop : media;
    box.turn = turnOf(page.getAttribute("/Rotate", false));
    box.unitPt = unitOf(page.getObjectHandle().getKey("/UserUnit"));
    box.hasBox = 1;
    return box;
}

std::vector<job::DrawerPage> pageBoxesOf(QPDF &document)
{
    std::vector<job::DrawerPage> boxes;
    for (QPDFPageObjectHelper &page : QPDFPageDocumentHelper(document).getAllPages()) {
        boxes.push_back(pageBoxOf(page));
    }
    return boxes;
}

} // namespace tapeprint::drawing
