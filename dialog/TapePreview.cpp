// SPDX-License-Identifier: Apache-2.0
// Drawing the label: at scale as long as that leaves something to see, with breaks where tape is longer than the room.
#include "dialog/TapePreview.h"

#include "job/CustomSizes.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cmath>

namespace tapeprint::dialog
{

namespace
{

// Pixels, all of them.
constexpr int edge = 6;           ///< around the drawing
constexpr int tick = 4;           ///< half the length of the lines that end a measure
constexpr int measureGap = 8;     ///< between the tape and the line of a measure
constexpr int textGap = 6;        ///< between that line and its text
constexpr int corner = 4;         ///< radius
constexpr int thinnest = 16;      ///< a tape that would be thinner than this is broken
constexpr int brokenWidth = 30;   ///< width of a broken tape
constexpr int breakGap = 10;      ///< between two pieces
constexpr int breakDepth = 3;     ///< how far the torn edge swings to either side
constexpr int breakTeeth = 4;     ///< swings over the tape's width
constexpr int beforeContent = 8;  ///< to each side of what is printed, in a piece of its own
constexpr int leastEndPiece = 28; ///< beside such a piece
constexpr int tapeHeight = 90;
constexpr int leastHeight = 60;
constexpr int paperHeight = 190;
constexpr int usualWidth = 280;
constexpr int leastWidth = 180;
constexpr int checker = 5; ///< side of a square

constexpr double ghostOpacity = 0.25; ///< of what is cut off

QPainterPath outlineOf(const QRectF &strip, bool isRounded)
{
    QPainterPath path;
    path.addRoundedRect(strip, isRounded ? corner : 0, isRounded ? corner : 0);
    return path;
}

/// The strip between two edges, each of which is torn when the label goes on beyond it.
QPainterPath tornPiece(const QRectF &piece, bool isTornLeft, bool isTornRight)
{
    QPolygonF area;
    const auto swing = [](int i) { return i % 2 == 0 ? breakDepth : -breakDepth; };
    const auto y = [&piece](int i) { return piece.top() - 1 + (piece.height() + 2) * i / breakTeeth; };
    for (int i = 0; i <= breakTeeth; ++i) {
        area << QPointF(isTornLeft ? piece.left() + swing(i) : piece.left() - 1, y(i));
    }
    for (int i = breakTeeth; i >= 0; --i) {
        area << QPointF(isTornRight ? piece.right() + swing(i) : piece.right() + 1, y(i));
    }
    QPainterPath path;
    path.addPolygon(area);
    path.closeSubpath();
    return path;
}

/// A line that is seen on tape of any colour.
QColor lineOn(const QColor &tape)
{
    constexpr int bright = 128;
    return qGray(tape.rgb()) < bright && tape.alpha() == 255 ? QColor(235, 235, 235) : QColor(90, 90, 90);
}

/// For people who hear the window. The toolkit asks once for each widget that somebody listens to.
QAccessibleInterface *makeInterface(const QString & /*className*/, QObject *object)
{
    auto *preview = qobject_cast<TapePreview *>(object);
    return preview == nullptr ? nullptr : new QAccessibleWidget(preview, QAccessible::Graphic);
}

void tellThatItIsAPicture()
{
    static const bool isDone = [] {
        QAccessible::installFactory(makeInterface);
        return true;
    }();
    Q_UNUSED(isDone)
}

} // namespace

TapePreview::TapePreview(QWidget *parent) : QWidget(parent)
{
    tellThatItIsAPicture();
    setObjectName(QStringLiteral("tapePreview"));
    setAccessibleName(tr("Tape preview"));
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

QSize TapePreview::sizeHint() const
{
    return {usualWidth, (isPaper() ? paperHeight : tapeHeight) + 2 * fontMetrics().height()};
}

QSize TapePreview::minimumSizeHint() const
{
    return {leastWidth, leastHeight + 2 * fontMetrics().height()};
}

void TapePreview::showLabel(ShownLabel label)
{
    const bool wasPaper = isPaper();
    mShown = std::move(label);
    const QSizeF drawn = drawnSizePt();
    if (!std::isfinite(drawn.width()) || !std::isfinite(drawn.height())) {
        mShown = {};
    }
    const bool isEmpty = mShown.page.isEmpty();
    const QSizeF told = mShown.page.isTape ? drawn : job::standardSize(drawn);
    mLengthText = isEmpty ? QString() : measureText(told.width(), mShown.look.unit);
    mWidthText = isEmpty ? QString() : measureText(told.height(), mShown.look.unit);
    nameIt();
    if (const QString words = describe(); words != accessibleDescription()) {
        setAccessibleDescription(words);
        setToolTip(words);
    }
    if (wasPaper != isPaper()) {
        updateGeometry();
    }
    update();
}

void TapePreview::setIsTapePrinter(bool isTapePrinter)
{
    mIsTapePrinter = isTapePrinter;
    nameIt();
}

void TapePreview::nameIt()
{
    setAccessibleName(isPaper() && !mIsTapePrinter ? tr("Paper preview") : tr("Tape preview"));
}

bool TapePreview::isPaper() const
{
    return !mShown.page.isEmpty() && !mShown.page.isTape;
}

QString TapePreview::describe() const
{
    if (mShown.page.isEmpty()) {
        return {};
    }
    const bool lies = mShown.page.isTape;
    QString measures = tr("Length %1, width %2").arg(lies ? mLengthText : mWidthText, lies ? mWidthText : mLengthText);
    if (!mShown.position.isEmpty()) {
        measures.prepend(mShown.position + QStringLiteral("; "));
    }
    return mShown.isCutOff ? tr("%1; part of the page is cut off", "length and width").arg(measures) : measures;
}

QSizeF TapePreview::drawnSizePt() const
{
    return mShown.page.isTape ? mShown.page.sizePt.transposed() : mShown.page.sizePt;
}

QRectF TapePreview::room() const
{
    const QFontMetrics metrics = fontMetrics();
    const int right = measureGap + textGap + metrics.horizontalAdvance(mWidthText) + edge;
    const int bottom = measureGap + tick + metrics.height() + edge;
    return QRectF(rect()).adjusted(edge, edge, -right, -bottom);
}

double TapePreview::scale() const
{
    const QSizeF area = room().size();
    const QSizeF drawn = drawnSizePt();
    if (drawn.isEmpty() || area.width() < 1.0 || area.height() < 1.0) {
        return 0.0;
    }
    const double whole = std::min(area.width() / drawn.width(), area.height() / drawn.height());
    const bool isTooThin = whole * drawn.height() < thinnest && whole * drawn.width() >= area.width() * 0.999;
    return isTooThin && mShown.page.isTape ? std::min<double>(brokenWidth, area.height()) / drawn.height() : whole;
}

double TapePreview::dotsPerPoint() const
{
    return scale() * devicePixelRatioF();
}

QTransform TapePreview::fromLabel() const
{
    // Tape is seen as it comes out to the left: what is the top of the standing page lies at the right.
    const double size = scale();
    return mShown.page.isTape ? QTransform(0, size, -size, 0, mShown.page.sizePt.height() * size, 0)
                              : QTransform::fromScale(size, size);
}

std::vector<TapePreview::Stretch> TapePreview::stretches(double width, double length) const
{
    if (length <= width + 0.5) {
        return {{0.0, length, 0.0}};
    }
    const double half = (width - breakGap) / 2.0;
    const double start = fromLabel().mapRect(mShown.contentPt).left() - beforeContent;
    if (mShown.contentPt.isEmpty() || start < half / 2.0) {
        return {{0.0, half, 0.0}, {length - half, length, width - half}};
    }
    // What is printed begins in the part that would be left out: it gets a piece between the two ends, whole if it can.
    const double content = fromLabel().mapRect(mShown.contentPt).width() + 2.0 * beforeContent;
    const double end = std::max<double>(leastEndPiece, (width - content) / 2.0 - breakGap);
    const double middle = width - 2.0 * (end + breakGap);
    const double from = std::clamp(start, end, length - end - middle);
    return {{0.0, end, 0.0}, {from, from + middle, end + breakGap}, {length - end, length, width - end}};
}

void TapePreview::paintEvent(QPaintEvent * /*event*/)
{
    const double size = scale();
    if (!(size > 0.0)) {
        return;
    }
    const QRectF area = room();
    const QSizeF whole = drawnSizePt() * size;
    QRectF strip({}, whole.boundedTo(area.size()).expandedTo({1.0, 1.0}));
    // At the top, so that it stays where it is when words come below.
    strip.moveLeft(area.center().x() - strip.width() / 2.0);
    strip.moveTop(area.top());
    strip.moveTopLeft(QPointF(std::round(strip.left()), std::round(strip.top())));

    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QPainterPath outline = outlineOf(strip, mShown.page.isTape);
    const std::vector<Stretch> pieces = stretches(strip.width(), whole.width());
    for (std::size_t i = 0; i < pieces.size(); ++i) {
        const Stretch &piece = pieces[i];
        const QRectF place(strip.left() + piece.at, strip.top(), piece.to - piece.from, strip.height());
        const QPainterPath shape =
            pieces.size() == 1 ? outline : outline.intersected(tornPiece(place, i > 0, i + 1 < pieces.size()));
        drawStretch(painter, shape, fromLabel() * QTransform::fromTranslate(place.left() - piece.from, place.top()));
    }
    drawMeasures(painter, strip);
}

void TapePreview::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    Q_EMIT scaleChanged();
}

void TapePreview::drawStretch(QPainter &painter, const QPainterPath &outline, const QTransform &fromLabel)
{
    drawBase(painter, outline);
    const QRectF on = outline.boundingRect().adjusted(-edge, -edge, edge, edge);
    if (mShown.isCutOff) {
        painter.save();
        painter.setOpacity(ghostOpacity);
        drawInk(painter, fromLabel, on, false);
        painter.restore();
        // What the ghost covers of the place where pages are printed is drawn anew below.
        painter.save();
        painter.setClipPath(outline);
        QPainterPath printed;
        for (const job::PlacedPage &page : mShown.label) {
            printed.addRect(fromLabel.mapRect(page.clip));
        }
        drawBase(painter, outline.intersected(printed));
        painter.restore();
    }
    painter.save();
    painter.setClipPath(outline);
    drawInk(painter, fromLabel, on, true);
    drawLimits(painter, fromLabel);
    painter.restore();
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawPath(outline);
}

void TapePreview::drawBase(QPainter &painter, const QPainterPath &outline) const
{
    if (mShown.look.isClear()) {
        // What lies behind clear tape is darker under light ink, so that the print is seen.
        constexpr int bright = 128;
        const bool isLightInk = qGray(mShown.look.ink.rgb()) >= bright;
        painter.save();
        painter.setClipPath(outline, Qt::IntersectClip);
        const QRectF box = outline.boundingRect();
        painter.fillRect(box, isLightInk ? QColor(110, 110, 110) : QColor(250, 250, 250));
        const QColor other = isLightInk ? QColor(135, 135, 135) : QColor(222, 222, 222);
        for (int row = 0; row * checker < box.height(); ++row) {
            for (int column = row % 2; column * checker < box.width(); column += 2) {
                painter.fillRect(QRectF(box.left() + column * checker, box.top() + row * checker, checker, checker),
                                 other);
            }
        }
        painter.restore();
        return;
    }
    painter.fillPath(outline, mShown.page.isTape ? mShown.look.tape : QColor(Qt::white));
}

QImage TapePreview::inkOf(const QTransform &fromLabel, const QRectF &on, bool isClipped) const
{
    const double ratio = devicePixelRatioF();
    QImage picture((on.size() * ratio).toSize(), QImage::Format_RGB32);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    painter.setTransform(fromLabel * QTransform::fromTranslate(-on.left(), -on.top()) *
                         QTransform::fromScale(ratio, ratio));
    drawPages(painter, mShown.label, mPictures, isClipped);
    painter.end();
    return picture;
}

void TapePreview::drawInk(QPainter &painter, const QTransform &fromLabel, const QRectF &on, bool isClipped) const
{
    if (!mPictures || mShown.label.empty()) {
        return;
    }
    const QRectF dots(on.toAlignedRect());
    QImage picture = inkOf(fromLabel, dots, isClipped);
    if (!mShown.page.isTape) { // paper is printed in whatever colours the printer has
        picture.setDevicePixelRatio(devicePixelRatioF());
        painter.setCompositionMode(QPainter::CompositionMode_Multiply);
        painter.drawImage(dots.topLeft(), picture);
        painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
        return;
    }
    QImage layer = inkLayer(picture, mShown.look.ink);
    layer.setDevicePixelRatio(devicePixelRatioF());
    if (mShown.look.isFaint()) {
        // White on white is what comes out. A shadow shows where it is.
        QImage shadow = inkLayer(picture, lineOn(mShown.look.tape));
        shadow.setDevicePixelRatio(devicePixelRatioF());
        painter.drawImage(dots.topLeft() + QPointF(1, 1), shadow);
    }
    painter.drawImage(dots.topLeft(), layer);
}

void TapePreview::drawLimits(QPainter &painter, const QTransform &fromLabel) const
{
    const QColor line = lineOn(mShown.look.tape);
    QPainterPath strips;
    strips.addRect(fromLabel.mapRect(mShown.page.wholeRect()));
    QPainterPath printable;
    printable.addRect(fromLabel.mapRect(mShown.page.printableRect()));
    QColor dimmed = line;
    dimmed.setAlphaF(0.45F);
    painter.fillPath(strips.subtracted(printable), QBrush(dimmed, Qt::BDiagPattern));
    if (mShown.page.freeEndsPt > 0.0 && mShown.page.freeEndsPt * 2.0 < mShown.page.sizePt.height()) {
        painter.setPen(QPen(line, 1.0, Qt::DashLine));
        for (const double along : {mShown.page.freeEndsPt, mShown.page.sizePt.height() - mShown.page.freeEndsPt}) {
            painter.drawLine(fromLabel.map(QLineF(0, along, mShown.page.sizePt.width(), along)));
        }
    }
}

void TapePreview::drawMeasures(QPainter &painter, const QRectF &strip) const
{
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.setLayoutDirection(Qt::LeftToRight); // the drawing is never mirrored, and neither are "24 mm" beside it
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
