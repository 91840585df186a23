// SPDX-License-Identifier: Apache-2.0
// Words that need no translation: two numbers and a unit.
#include "panel/SpokenLimits.h"

void sayLimits(QWidget *field, pdekit::Slider *slider, const QLabel *title, const SpokenLimits &limits)
{
    const QString range = QStringLiteral("%1 – %2 %3").arg(limits.min, limits.max, limits.unit.trimmed());
    if (field != nullptr) {
        field->setAccessibleDescription(range);
    }
    if (slider != nullptr) {
        slider->setUnit(limits.unit.trimmed()); // on the screen a blank keeps it off the field
        slider->setAccessibleDescription(range);
        if (title != nullptr) {
            slider->setAccessibleName(title->text());
        }
    }
}
