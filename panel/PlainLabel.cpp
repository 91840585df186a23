// SPDX-License-Identifier: Apache-2.0
// Plain labels.
#include "panel/PlainLabel.h"

void makePlain(QLabel &label)
{
    label.setTextFormat(Qt::PlainText);
    if (label.buddy() != nullptr) {
        showTitle(&label, label.buddy(), label.text());
    }
}

void showTitle(QLabel *label, QWidget *control, const QString &title)
{
    if (label != nullptr) {
        // First the buddy: the text is never read as a key, not even for a moment.
        label->setBuddy(title.contains(QLatin1Char('&')) ? nullptr : control);
        label->setText(title);
    }
    if (control != nullptr) {
        control->setAccessibleName(title);
    }
}
