// SPDX-License-Identifier: Apache-2.0
// A button without a picture says the same.
#include "dialog/ButtonIcons.h"

#include <QIcon>
#include <QPushButton>

namespace tapeprint::dialog
{

void removeButtonIcons(const QWidget &sheet)
{
    for (QPushButton *button : sheet.findChildren<QPushButton *>()) {
        button->setIcon({});
    }
}

} // namespace tapeprint::dialog
