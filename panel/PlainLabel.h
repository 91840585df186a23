// SPDX-License-Identifier: Apache-2.0
// Labels that show a printer description's texts as they stand: no markup, and an ampersand marks no key.
#pragma once

#include <QLabel>

/// Makes a label of the interface file plain.
void makePlain(QLabel &label);

/// Shows a title in a plain label and ties it to the control, for people who hear it. A label tied by a buddy would
/// read an ampersand as the mark of a key: such a title is the control's accessible name alone. Either may be null.
void showTitle(QLabel *label, QWidget *control, const QString &title);
