// SPDX-License-Identifier: Apache-2.0
// Pages are drawn on a grid whose origin is the top left of what viewers see of a page; here they are asked for by the
// page's box.
#include "job/PdfPages.h"

#include "job/ConfinedProgram.h"
#include "job/PageBox.h"
#include "job/PageDrawer.h"
#include "job/Texts.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <cmath>

namespace tapeprint::job
{

namespace
{

constexpr double pointsPerInch = 72.0;
constexpr double mostDots = 64e6;
/// Sizes go through floats and texts: a dot that is touched by less than this is not.
constexpr double slackDots = 1e-4;

/// Three dots to one of 300 an inch: see drawnRect().
constexpr double measuredDotsPerPoint = 900.0 / pointsPerInch;
constexpr double mostMeasuredDots = 1.3e9;
constexpr double bandDots = 4e6;
constexpr double mostMeasuredDotsASide = 1e6;

bool isFile(const QString &path, QString *reason)
{
    const QFileInfo info(path);
    if (info.exists() && !info.isFile()) { // opening a pipe would wait for somebody to write
        *reason = Texts::tr("It is no plain file.");
        return false;
    }
    QFile file(path);
    const bool isReadable = file.open(QIODevice::ReadOnly);
    *reason = file.errorString();
    return isReadable;
}

bool looksLikePdf(const QString &path)
{
    constexpr qint64 headerWithin = 1024; // where readers look for it
    QFile file(path);
    return file.open(QIODevice::ReadOnly) && file.read(headerWithin).contains("%PDF-");
}

/// Where the page's top left lies from that of what is seen, as both are shown; in the document's units.
QPointF originOf(const PageBox &box)
{
    // The rectangles' y goes upwards, so that QRectF's top is the lower edge.
    const QRectF &page = box.page;
    const QRectF &seen = box.seen;
    const double left = page.left() - seen.left();
    const double right = seen.right() - page.right();
    const double lower = page.top() - seen.top();
    const double upper = seen.bottom() - page.bottom();
    switch (box.turn) {
    case 90:
        return {lower, left};
    case 180:
        return {right, lower};
    case 270:
        return {upper, right};
    default:
        return {left, upper};
    }
}

bool isAsSeen(const PageBox &box, const QSizeF &drawn)
{
    constexpr double slack = 0.01;
    const QSizeF size = box.turn % 180 == 0 ? box.seen.size() : box.seen.size().transposed();
    return std::abs(size.width() - drawn.width()) < slack && std::abs(size.height() - drawn.height()) < slack;
}

} // namespace

/// The dots that the drawer is asked for.
struct PdfPages::Document {
    /// A page on the drawer's grid.
    struct Place {
        QSizeF sizePt;        ///< of the page as it is read
        QPointF origin;       ///< of the page, in the units of the grid
        double unitPt = 1.0;  ///< points of one unit
        bool isWhole = false; ///< whether the page can be drawn
    };

    std::unique_ptr<PageDrawer> drawer;

    Place placeOf(int page) const;
};

PdfPages::Document::Place PdfPages::Document::placeOf(int page) const
{
    Place place;
    const QSizeF drawn = drawer->size(page);
    if (drawn.isEmpty()) {
        return place;
    }
    const std::optional<PageBox> box = drawer->box(page);
    if (box && box->page.isEmpty()) {
        return place; // the drawer would make a sheet of paper of it
    }
    if (box && isAsSeen(*box, drawn)) {
        place = {box->sizePt(), originOf(*box), box->unitPt};
    } else {
        place.sizePt = drawn;
    }
    place.isWhole =
        !place.sizePt.isEmpty() && std::isfinite(place.sizePt.width()) && std::isfinite(place.sizePt.height());
    return place;
}

PdfPages::PdfPages(std::unique_ptr<Document> document) : mDocument(std::move(document)) {}

PdfPages::~PdfPages() = default;

std::unique_ptr<PdfPages> PdfPages::open(const QString &path, Problem *error, const QString &shownAs)
{
    const QString name = shownAs.isNull() ? path : shownAs;
    QString reason;
    if (!isFile(path, &reason)) {
        *error = {Problem::BadDocument, Texts::tr("%1 cannot be read: %2").arg(name, reason)};
        return nullptr;
    }
    auto document = std::make_unique<Document>();
    document->drawer = PageDrawer::open(path, &reason);
    if (!reason.isNull()) {
        *error = partMissing(reason);
        return nullptr;
    }
    if (document->drawer == nullptr) {
        *error = {Problem::BadDocument, looksLikePdf(path)
                                            ? Texts::tr("%1 is broken: no page of it can be read.").arg(name)
                                            : Texts::tr("%1 is no PDF document.").arg(name)};
        return nullptr;
    }
    if (document->drawer->isLocked()) {
        *error = {Problem::BadDocument,
                  Texts::tr("%1 is protected by a password: save it without one, and print that.").arg(name)};
        return nullptr;
    }
    if (document->drawer->count() < 1) {
        *error = {Problem::BadDocument, Texts::tr("%1 has no page.").arg(name)};
        return nullptr;
    }
    return std::unique_ptr<PdfPages>(new PdfPages(std::move(document)));
}

int PdfPages::count() const
{
    return mDocument->drawer->count();
}

QSizeF PdfPages::sizePt(int page) const
{
    const Document::Place place = mDocument->placeOf(page);
    return place.isWhole ? place.sizePt : QSizeF();
}

RenderedPage PdfPages::render(int page, double dotsPerPoint, const std::atomic<bool> &stop, const QRectF &partPt) const
{
    const Document::Place place = mDocument->placeOf(page);
    const QRectF whole({}, place.sizePt);
    const QRectF part = partPt.isEmpty() ? whole : partPt.intersected(whole);
    const double dotsPerUnit = dotsPerPoint * place.unitPt;
    if (!place.isWhole || part.isEmpty() || !(dotsPerPoint > 0.0) || !std::isfinite(dotsPerPoint)) {
        return {};
    }
    // The part on the grid, in dots.
    const QPointF origin = place.origin * dotsPerUnit;
    const QRectF exact(origin + part.topLeft() * dotsPerPoint, part.size() * dotsPerPoint);
    const QPointF from(std::floor(exact.left() + slackDots), std::floor(exact.top() + slackDots));
    const QPointF to(std::ceil(exact.right() - slackDots), std::ceil(exact.bottom() - slackDots));
    const QRectF dots(from, QPointF(std::max(to.x(), from.x() + 1.0), std::max(to.y(), from.y() + 1.0)));
    constexpr double mostOnGrid = 1e9;
    if (dots.width() * dots.height() > mostDots ||
        std::max({std::abs(from.x()), std::abs(from.y()), std::abs(to.x()), std::abs(to.y())}) > mostOnGrid) {
        return {};
    }
    const QImage image = mDocument->drawer->draw(page, {dots.toRect(), dotsPerUnit, true}, stop);
    return {image, QRectF((dots.topLeft() - origin) / dotsPerPoint, dots.size() / dotsPerPoint)};
}

std::optional<QRectF> PdfPages::drawnRect(int page, const std::atomic<bool> &stop) const
{
    const Document::Place place = mDocument->placeOf(page);
    if (!place.isWhole) {
        return std::nullopt;
    }
    // Without anti-aliasing a dot that is touched is drawn, however little; but the drawer moves edges of lines and
    // boxes by up to half a dot, and letters by up to a whole one. So each side is moved out by a dot, and dots are a
    // third of those that the answer is promised in: two thirds at the most by touching and moving, one by this.
    const double area = place.sizePt.width() * place.sizePt.height();
    const double dotsPerPoint =
        std::min({measuredDotsPerPoint, std::sqrt(mostMeasuredDots / area),
                  mostMeasuredDotsASide / std::max(place.sizePt.width(), place.sizePt.height())});
    const double dotsPerUnit = dotsPerPoint * place.unitPt;
    const QPointF origin = place.origin * dotsPerUnit;
    const int left = static_cast<int>(std::floor(origin.x() + slackDots));
    const int top = static_cast<int>(std::floor(origin.y() + slackDots));
    const int width = static_cast<int>(std::ceil(origin.x() + place.sizePt.width() * dotsPerPoint - slackDots)) - left;
    const int height = static_cast<int>(std::ceil(origin.y() + place.sizePt.height() * dotsPerPoint - slackDots)) - top;
    if (width < 1 || height < 1) {
        return std::nullopt;
    }
    const int rows = std::clamp(static_cast<int>(bandDots / width), 1, height);
    QRect ink;
    for (int row = 0; row < height; row += rows) {
        const QRect band(left, top + row, width, std::min(rows, height - row));
        const std::optional<QRect> drawn = mDocument->drawer->drawnOn(page, {band, dotsPerUnit, false}, stop);
        if (!drawn) {
            return std::nullopt;
        }
        ink |= *drawn;
    }
    if (ink.isEmpty()) {
        return std::nullopt;
    }
    const QRectF around = QRectF(ink).adjusted(-1.0, -1.0, 1.0, 1.0).translated(-origin);
    return QRectF(around.topLeft() / dotsPerPoint, around.size() / dotsPerPoint).intersected(QRectF({}, place.sizePt));
}

} // namespace tapeprint::job
