// SPDX-License-Identifier: Apache-2.0
// A slider that holds real values exactly as they were set.
#pragma once

#include "pdekit/Export.h"

#include <QSlider>
#include <QString>

namespace pdekit
{

/// A horizontal slider over real numbers. The value that was set is the value that is read, even outside the limits;
/// only the knob is kept within them. In an interface file: class "pdekit::Slider".
///
/// Arrow keys and the wheel move by the alternate increment, page keys by ten of it, Home and End go to the limits; a
/// value that a person makes is always within the limits. A screen reader hears the real value, its limits and its
/// unit.
class PDEKIT_EXPORT Slider : public QSlider
{
    Q_OBJECT

public:
    /// A slider from 0 to 1 at 0. \param parent becomes its owner; may be null.
    explicit Slider(QWidget *parent = nullptr);
    ~Slider() override;

    /// The lower limit, in the value's unit.
    double minValue() const { return mMinValue; }
    /// The upper limit, in the value's unit.
    double maxValue() const { return mMaxValue; }
    /// Sets the lower limit. Places the knob and leaves the value as it is.
    void setMinValue(double value);
    /// Sets the upper limit. Places the knob and leaves the value as it is.
    void setMaxValue(double value);
    /// The step of the keyboard.
    double altIncrementValue() const { return mAltIncrement; }
    /// Sets the step of the keyboard, in the value's unit.
    void setAltIncrementValue(double value);

    /// The value as it was set or made by a person.
    float floatValue() const { return mValue; }
    /// Sets the value. Sends no action.
    void setFloatValue(float value);
    /// The value as text: the shortest that reads back as the same float.
    QString stringValue() const;
    /// A person sets the value otherwise than by the knob, such as through a screen reader. Within the limits; sends
    /// the action.
    void takeValue(double value);

    /// The unit of the value in the person's language, for people who hear it; empty at first.
    QString unit() const;
    /// Sets the unit, such as "mm". Null and empty: none is heard.
    void setUnit(const QString &unit);

Q_SIGNALS:
    /// The person moved the knob or let go of it. Not sent for values set by code.
    void action();

protected:
    /// Arrow keys, page keys, Home and End.
    void keyPressEvent(QKeyEvent *event) override;
    /// Moves by the alternate increment.
    void wheelEvent(QWheelEvent *event) override;
    /// The knob comes to the pointer.
    void mousePressEvent(QMouseEvent *event) override;
    /// Sends the action once more: a panel may wait for the end of a drag.
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    void placeKnob();
    void takeKnob();
    void moveBy(double increments);
    void moveTo(double value);

    double mMinValue = 0.0;
    double mMaxValue = 1.0;
    double mAltIncrement = 1.0;
    float mValue = 0.0F;
};

} // namespace pdekit
