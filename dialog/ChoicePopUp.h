// SPDX-License-Identifier: Apache-2.0
// Pop-ups whose items carry the keyword of a choice.
#pragma once

#include <QString>

class QComboBox;

namespace tapeprint::dialog
{

/// Selects the item of a choice keyword. Sends no action.
void selectChoice(QComboBox *popUp, const QString &choice);

} // namespace tapeprint::dialog
