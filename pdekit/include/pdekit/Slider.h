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
    explicit Slider(QWidget *parent = nullptr);
    ~Slider() override;

    double minValue() const { return mMinValue; }
    double maxValue() const { return mMaxValue; }
    void setMinValue(double value);
    void setMaxValue(double value);
    /// The step of the keyboard.
    double altIncrementValue() const { return mAltIncrement; }
    void setAltIncrementValue(double value);

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
    void setUnit(const QString &unit);

Q_SIGNALS:
    /// The person moved the knob or let go of it. Not sent for values set by code.
    void action();

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
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
