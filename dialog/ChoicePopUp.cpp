// SPDX-License-Identifier: Apache-2.0
// An item is found by its keyword, whatever its text.
#include "dialog/ChoicePopUp.h"

#include <QComboBox>

namespace tapeprint::dialog
{

void selectChoice(QComboBox *popUp, const QString &choice)
{
    const int index = popUp->findData(choice);
    if (index != popUp->currentIndex()) {
        popUp->setCurrentIndex(index);
    }
}

} // namespace tapeprint::dialog
