// SPDX-License-Identifier: Apache-2.0
// What a length group says to people who hear it: the eye sees that the unit and the limits beside a control are its
// own.
#pragma once

#include <QLabel>
#include <QString>

#include <pdekit/Slider.h>

/// The texts that stand around a field and its slider.
struct SpokenLimits {
    QString min;
    QString max;
    QString unit;
};

/// Names a slider by its group's title, and tells of the limits and the unit of both controls. Any may be null.
void sayLimits(QWidget *field, pdekit::Slider *slider, const QLabel *title, const SpokenLimits &limits);
