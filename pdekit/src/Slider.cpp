// SPDX-License-Identifier: Apache-2.0
// The slider. The value lives in a float of its own; the toolkit's whole numbers only place the knob, and nothing is
// read back from the knob unless a person has moved it.
#include "pdekit/Slider.h"

#include "AccessibleControls.h"
#include "InterruptedPress.h"
#include "pdekit/Numbers.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QSignalBlocker>
#include <QStyle>
#include <QStyleOptionSlider>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>

namespace pdekit
{

namespace
{

/// Places of the knob: more than a slider has pixels.
constexpr int kKnobPlaces = 10000;
constexpr double kIncrementsPerPage = 10.0;
constexpr const char *kUnitProperty = "pdekitUnit";

} // namespace

Slider::Slider(QWidget *parent) : QSlider(Qt::Horizontal, parent)
{
    setRange(0, kKnobPlaces);
    setFocusPolicy(Qt::StrongFocus);
    makeControlsAccessible();
    // placeKnob() is silent: a knob that tells of a change was moved by a person (or by what reads the screen aloud).
    connect(this, &QSlider::valueChanged, this, &Slider::takeKnob);
}

Slider::~Slider() = default;

void Slider::setMinValue(double value)
{
    mMinValue = value;
    placeKnob();
}

void Slider::setMaxValue(double value)
{
    mMaxValue = value;
    placeKnob();
}

void Slider::setAltIncrementValue(double value)
{
    mAltIncrement = value;
}

void Slider::setFloatValue(float value)
{
    mValue = value;
    placeKnob();
}

QString Slider::stringValue() const
{
    return shortestText(mValue);
}

QString Slider::unit() const
{
    return property(kUnitProperty).toString();
}

void Slider::setUnit(const QString &unit)
{
    setProperty(kUnitProperty, unit); // no field: other people's panels know the size of this class
}

void Slider::takeValue(double value)
{
    moveTo(value);
}

void Slider::placeKnob()
{
    const double part = (static_cast<double>(mValue) - mMinValue) / (mMaxValue - mMinValue);
    // Equal limits and what is no number leave the knob at the left end.
    const double within = std::isnan(part) ? 0.0 : std::clamp(part, 0.0, 1.0);
    const QSignalBlocker silent(this);
    setValue(minimum() + static_cast<int>(std::lround(within * (maximum() - minimum()))));
}

void Slider::takeKnob()
{
    if (value() >= maximum()) {
        moveTo(mMaxValue); // the limit itself, without the arithmetic's last bit
        return;
    }
    const double part = static_cast<double>(value() - minimum()) / (maximum() - minimum());
    moveTo(mMinValue + part * (mMaxValue - mMinValue));
}

void Slider::moveBy(double increments)
{
    moveTo(static_cast<double>(mValue) + increments * mAltIncrement);
}

void Slider::moveTo(double value)
{
    // A plug-in may set the limits the wrong way round.
    const double lowest = std::min(mMinValue, mMaxValue);
    const double highest = std::max(mMinValue, mMaxValue);
    const auto moved = static_cast<float>(std::clamp(value, lowest, highest));
    if (!std::isfinite(moved) || moved == mValue) {
        return;
    }
    mValue = moved;
    placeKnob();
    Q_EMIT action();
}

void Slider::keyPressEvent(QKeyEvent *event)
{
    const double toTheRight = isRightToLeft() ? -1.0 : 1.0;
    switch (event->key()) {
    case Qt::Key_Left:
        moveBy(-toTheRight);
        break;
    case Qt::Key_Right:
        moveBy(toTheRight);
        break;
    case Qt::Key_Down:
        moveBy(-1.0);
        break;
    case Qt::Key_Up:
        moveBy(1.0);
        break;
    case Qt::Key_PageDown:
        moveBy(-kIncrementsPerPage);
        break;
    case Qt::Key_PageUp:
        moveBy(kIncrementsPerPage);
        break;
    case Qt::Key_Home:
        moveTo(mMinValue);
        break;
    case Qt::Key_End:
        moveTo(mMaxValue);
        break;
    default:
        event->ignore();
        return;
    }
    event->accept();
}

void Slider::wheelEvent(QWheelEvent *event)
{
    const QPoint delta = event->angleDelta();
    // A wheel tilted to the left counts as positive, but moves the knob to the left.
    const int turned = delta.y() != 0 ? delta.y() : -delta.x();
    const double notches = turned / double{QWheelEvent::DefaultDeltasPerStep};
    moveBy(event->inverted() ? -notches : notches);
    event->accept();
}

void Slider::mousePressEvent(QMouseEvent *event)
{
    QStyleOptionSlider option;
    initStyleOption(&option);
    const QPoint place = event->position().toPoint();
    const QRect knob = style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, this);
    if (event->button() == Qt::LeftButton && event->buttons() == Qt::LeftButton && !knob.contains(place)) {
        // The knob jumps under the pointer; from there the press takes hold of it as of any knob.
        const QRect groove = style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderGroove, this);
        const int left = place.x() - groove.x() - knob.width() / 2;
        setValue(QStyle::sliderValueFromPosition(minimum(), maximum(), left, groove.width() - knob.width(),
                                                 option.upsideDown));
        takeKnob();
    }
    QSlider::mousePressEvent(event);
    completePress(this, *event);
}

void Slider::mouseReleaseEvent(QMouseEvent *event)
{
    QSlider::mouseReleaseEvent(event);
    if (event->button() == Qt::LeftButton) {
        Q_EMIT action();
    }
}

} // namespace pdekit
