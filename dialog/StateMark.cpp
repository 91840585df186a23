// SPDX-License-Identifier: Apache-2.0
// Marks are drawn on a square of one by one, in colours that are seen on light and on dark.
#include "dialog/StateMark.h"

#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>
#include <QPen>
#include <QPixmap>

#include <algorithm>
#include <array>

namespace tapeprint::dialog
{

namespace
{

constexpr QColor green(0x2E, 0x9E, 0x4F);
constexpr QColor blue(0x3D, 0x7E, 0xD6);
constexpr QColor amber(0xF0, 0xA8, 0x1C);
constexpr QColor red(0xD0, 0x3A, 0x3A);
constexpr QColor dark(0x2A, 0x22, 0x10);
constexpr double stroke = 0.14;

QPen penOf(const QColor &colour)
{
    return {colour, stroke, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin};
}

/// A triangle with rounded corners.
void drawTriangle(QPainter &painter, const QPolygonF &corners, const QColor &colour)
{
    painter.setPen(penOf(colour));
    painter.setBrush(colour);
    painter.drawPolygon(corners);
}

void drawTick(QPainter &painter)
{
    painter.setPen(penOf(green));
    painter.setBrush(Qt::NoBrush);
    painter.drawPolyline(QPolygonF({{0.16, 0.54}, {0.40, 0.78}, {0.84, 0.24}}));
}

void drawBars(QPainter &painter)
{
    painter.setPen(Qt::NoPen);
    painter.setBrush(blue);
    for (const double left : {0.2, 0.58}) {
        painter.drawRect(QRectF(left, 0.16, 0.22, 0.68));
    }
}

void drawWarning(QPainter &painter)
{
    drawTriangle(painter, QPolygonF({{0.5, 0.15}, {0.9, 0.85}, {0.1, 0.85}}), amber);
    painter.setPen(QPen(dark, 0.1, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(QPointF(0.5, 0.38), QPointF(0.5, 0.6));
    painter.drawPoint(QPointF(0.5, 0.78));
}

void drawFailure(QPainter &painter)
{
    painter.setPen(Qt::NoPen);
    painter.setBrush(red);
    painter.drawEllipse(QRectF(0.06, 0.06, 0.88, 0.88));
    painter.setPen(penOf(Qt::white));
    painter.drawLine(QPointF(0.33, 0.33), QPointF(0.67, 0.67));
    painter.drawLine(QPointF(0.67, 0.33), QPointF(0.33, 0.67));
}

void drawNetwork(QPainter &painter)
{
    const std::array<QPointF, 3> dots{QPointF(0.5, 0.2), QPointF(0.2, 0.76), QPointF(0.8, 0.76)};
    painter.setPen(QPen(blue, 0.08));
    painter.drawLine(dots[0], dots[1]);
    painter.drawLine(dots[0], dots[2]);
    painter.setPen(Qt::NoPen);
    painter.setBrush(blue);
    for (const QPointF &dot : dots) {
        painter.drawEllipse(dot, 0.16, 0.16);
    }
}

void draw(QPainter &painter, StateMark mark)
{
    switch (mark) {
    case StateMark::Fine:
        drawTick(painter);
        break;
    case StateMark::Busy:
        drawTriangle(painter, QPolygonF({{0.24, 0.18}, {0.84, 0.5}, {0.24, 0.82}}), blue);
        break;
    case StateMark::Paused:
        drawBars(painter);
        break;
    case StateMark::Warning:
        drawWarning(painter);
        break;
    case StateMark::Network:
        drawNetwork(painter);
        break;
    case StateMark::Failure:
        drawFailure(painter);
        break;
    }
}

class MarkEngine final : public QIconEngine
{
public:
    explicit MarkEngine(StateMark mark) : mMark(mark) {}

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State /*state*/) override
    {
        constexpr double greyedOut = 0.4;
        const double side = std::min(rect.width(), rect.height());
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->setOpacity(mode == QIcon::Disabled ? greyedOut : 1.0);
        painter->translate(rect.x() + (rect.width() - side) / 2.0, rect.y() + (rect.height() - side) / 2.0);
        painter->scale(side, side);
        draw(*painter, mMark);
        painter->restore();
    }

    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override
    {
        QPixmap picture(size);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        paint(&painter, QRect({}, size), mode, state);
        return picture;
    }

    QIconEngine *clone() const override { return new MarkEngine(*this); }

private:
    StateMark mMark;
};

} // namespace

QIcon iconOf(StateMark mark)
{
    return QIcon(new MarkEngine(mark)); // which the icon owns
}

} // namespace tapeprint::dialog
