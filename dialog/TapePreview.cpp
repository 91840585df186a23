// SPDX-License-Identifier: Apache-2.0
// Drawing the tape: at scale as long as that leaves something to see, with a break in its middle otherwise.
#include "dialog/TapePreview.h"

#include "job/LaidDownOptions.h"

#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cmath>

#include <pdekit/Numbers.h>

namespace tapeprint::dialog
{

namespace
{

constexpr double pointsPerInch = 72.0;
constexpr double mmPerInch = 25.4;
constexpr double pointsPerMetre = pointsPerInch / mmPerInch * 1000.0;

// Pixels, all of them.
constexpr int edge = 6;         ///< around the drawing
constexpr int tick = 4;         ///< half the length of the lines that end a measure
constexpr int measureGap = 8;   ///< between the tape and the line of a measure
constexpr int textGap = 6;      ///< between that line and its text
constexpr int corner = 4;       ///< radius
constexpr int thinnest = 16;    ///< a tape that would be thinner than this is broken
constexpr int brokenWidth = 30; ///< width of a broken tape
constexpr int breakGap = 10;    ///< between the two pieces
constexpr int breakDepth = 3;   ///< how far the torn edge swings to either side
constexpr int breakTeeth = 4;   ///< swings over the tape's width
constexpr int leastHeight = 90;
constexpr int usualWidth = 280;
constexpr int leastWidth = 180;

QString millimetres(double lengthPt)
{
    return pdekit::fixedDecimals(lengthPt / pointsPerInch * mmPerInch, 1) + QStringLiteral(" mm");
}

bool isLandscape(const QSizeF &size)
{
    return size.width() > size.height();
}

/// The scale at which a tape is drawn in a room, in pixels a point; a tape that is then longer than the room is drawn
/// with a break.
double scaleFor(const QSizeF &tapePt, const QSizeF &room)
{
    const double whole = std::min(room.width() / tapePt.width(), room.height() / tapePt.height());
    if (whole * tapePt.height() >= thinnest || whole * tapePt.width() < room.width()) {
        return whole;
    }
    return std::min<double>(brokenWidth, room.height()) / tapePt.height();
}

QPainterPath roundedPath(const QRectF &strip)
{
    QPainterPath path;
    path.addRoundedRect(strip, corner, corner);
    return path;
}

/// The area on one side of a torn edge. \param x the edge's middle; \param outerX the far side of the area.
QPainterPath besideTornEdge(const QRectF &strip, double x, double outerX)
{
    QPolygonF area{{outerX, strip.top() - 1}};
    for (int i = 0; i <= breakTeeth; ++i) {
        const double swing = i % 2 == 0 ? breakDepth : -breakDepth;
        area << QPointF(x + swing, strip.top() - 1 + (strip.height() + 2) * i / breakTeeth);
    }
    area << QPointF(outerX, strip.bottom() + 1);
    QPainterPath path;
    path.addPolygon(area);
    path.closeSubpath();
    return path;
}

} // namespace

TapePreview::TapePreview(QWidget *parent) : QWidget(parent)
{
    setObjectName(QStringLiteral("tapePreview"));
    setAccessibleName(tr("Tape preview"));
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    connect(&mRenderer, &PageRenderer::rendered, this, &TapePreview::showPage);
}

QSize TapePreview::sizeHint() const
{
    return {usualWidth, leastHeight + 2 * fontMetrics().height()};
}

QSize TapePreview::minimumSizeHint() const
{
    return {leastWidth, sizeHint().height()};
}

void TapePreview::follow(const std::optional<pdekit::Paper> &paper, const job::JobOptions &job)
{
    QSizeF tape;
    if (paper) {
        const double lengthMm = pdekit::doubleValue(job.value(job::OptionName::tapeLength));
        tape = {lengthMm > 0.0 ? job::heightPtFromMm(lengthMm) : paper->heightPt, paper->widthPt};
    }
    if (!(tape.width() > 0.0 && tape.height() > 0.0 && std::isfinite(tape.width()) && std::isfinite(tape.height()))) {
        tape = {};
    }
    if (tape == mTapePt) {
        return;
    }
    mTapePt = tape;
    mLengthText = tape.isEmpty() ? QString() : millimetres(tape.width());
    mWidthText = tape.isEmpty() ? QString() : millimetres(tape.height());
    setAccessibleDescription(tape.isEmpty() ? QString() : tr("Length %1, width %2").arg(mLengthText, mWidthText));
    setToolTip(accessibleDescription());
    layPage();
}

void TapePreview::showPage(const QImage &page)
{
    mRendered = page;
    layPage();
}

void TapePreview::layPage()
{
    // The paper stands on its narrow side and the tape is drawn lying. A page that stands like the paper lies down with
    // it; another one is drawn as it is read, which is how it lies after the filters turn it to fit the paper.
    const bool liesDown = isLandscape(mRendered.size()) == isLandscape(mTapePt.transposed());
    mPage = liesDown ? mRendered.transformed(QTransform().rotate(90)) : mRendered;
    // The picture says at which resolution it was rendered.
    const double pixelsPerMetre = std::max(1, mRendered.dotsPerMeterX());
    mPagePt = QSizeF(mPage.size()) / pixelsPerMetre * pointsPerMetre;
    mScaled = {};
    update();
}

QRectF TapePreview::room() const
{
    const QFontMetrics metrics = fontMetrics();
    const int right = measureGap + textGap + metrics.horizontalAdvance(mWidthText) + edge;
    const int bottom = measureGap + tick + metrics.height() + edge;
    return QRectF(rect()).adjusted(edge, edge, -right, -bottom);
}

void TapePreview::paintEvent(QPaintEvent * /*event*/)
{
    const QRectF area = room();
    if (mTapePt.isEmpty() || area.width() < 1.0 || area.height() < 1.0) {
        return;
    }
    const double scale = scaleFor(mTapePt, area.size());
    const QSizeF whole = mTapePt * scale;
    QRectF strip({}, whole.boundedTo(area.size()).expandedTo({1.0, 1.0}));
    strip.moveCenter(area.center());

    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    if (whole.width() > strip.width() + 0.5) {
        drawBroken(painter, strip, scale);
    } else {
        drawPiece(painter, roundedPath(strip), placeOfPage(strip, scale));
    }
    drawMeasures(painter, strip);
}

void TapePreview::drawBroken(QPainter &painter, const QRectF &strip, double scale)
{
    const double length = mTapePt.width() * scale;
    const QPainterPath outline = roundedPath(strip);
    const double middle = strip.center().x();
    const QRectF first(strip.topLeft(), QPointF(middle - breakGap / 2.0, strip.bottom()));
    QRectF page = placeOfPage({strip.topLeft(), QSizeF(length, strip.height())}, scale);
    QRectF pageAtEnd = page.translated(strip.width() - length, 0);
    // A page that would vanish in the break is shown before it.
    if (page.left() > first.center().x()) {
        page.moveLeft(std::max(first.left(), first.center().x() - page.width() / 2));
        pageAtEnd = {};
    }
    drawPiece(painter, outline.intersected(besideTornEdge(strip, first.right(), strip.left() - 1)), page);
    drawPiece(painter, outline.intersected(besideTornEdge(strip, middle + breakGap / 2.0, strip.right() + 1)),
              pageAtEnd);
}

QRectF TapePreview::placeOfPage(const QRectF &tape, double scale) const
{
    // As the filters do it: a page that is larger than the tape is made smaller, a smaller one keeps its size.
    QSizeF size = mPagePt * scale;
    if (size.width() > tape.width() || size.height() > tape.height()) {
        size.scale(tape.size(), Qt::KeepAspectRatio);
    }
    QRectF place({}, size);
    place.moveCenter(tape.center());
    return place;
}

void TapePreview::drawPiece(QPainter &painter, const QPainterPath &piece, const QRectF &page)
{
    painter.fillPath(piece, palette().color(QPalette::Base));
    if (!mPage.isNull() && !page.isEmpty()) {
        const QSize pixels = (page.size() * devicePixelRatioF()).toSize().expandedTo({1, 1});
        // Made smaller beforehand, because a painter skips lines; made larger only where it is seen.
        const bool isSmaller = pixels.width() < mPage.width();
        if (isSmaller && mScaled.size() != pixels) {
            mScaled = mPage.scaled(pixels, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        }
        painter.save();
        painter.setClipPath(piece);
        painter.drawImage(page, isSmaller ? mScaled : mPage);
        painter.restore();
    }
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawPath(piece);
}

void TapePreview::drawMeasures(QPainter &painter, const QRectF &strip) const
{
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.setPen(palette().color(QPalette::WindowText));
    const auto line = [&painter](const QPointF &from, const QPointF &to, const QPointF &end) {
        painter.drawLine(from, to);
        painter.drawLine(from - end, from + end);
        painter.drawLine(to - end, to + end);
    };
    const double below = strip.bottom() + measureGap;
    line({strip.left(), below}, {strip.right(), below}, {0, tick});
    const double beside = strip.right() + measureGap;
    line({beside, strip.top()}, {beside, strip.bottom()}, {tick, 0});

    const QFontMetrics metrics = fontMetrics();
    // A short tape is narrower than its text, which then stays within the widget.
    QRectF lengthPlace(0, below + tick, metrics.horizontalAdvance(mLengthText) + 2, metrics.height());
    lengthPlace.moveLeft(
        std::clamp(strip.center().x() - lengthPlace.width() / 2, 0.0, std::max(0.0, width() - lengthPlace.width())));
    painter.drawText(lengthPlace, Qt::AlignCenter, mLengthText);
    const QRectF widthPlace(beside + textGap, strip.center().y() - metrics.height() / 2.0,
                            metrics.horizontalAdvance(mWidthText) + 2, metrics.height());
    painter.drawText(widthPlace, Qt::AlignVCenter | Qt::AlignLeft, mWidthText);
}

} // namespace tapeprint::dialog
