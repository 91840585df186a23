// SPDX-License-Identifier: Apache-2.0
// Pop-ups that hold the choices of a PPD option.
#pragma once

#include <QString>

#include <cups/ppd.h>

class QComboBox;

namespace tapeprint::dialog
{

/// Fills a pop-up with the choices of a PPD option: their texts, and their keywords as data. The choice "Custom" needs
/// values that a pop-up cannot give and stands there only while it is marked.
void fillWithChoices(QComboBox *popUp, const ppd_option_t &option);

/// Selects the item of a choice keyword. Sends no action.
void selectChoice(QComboBox *popUp, const QString &choice);

} // namespace tapeprint::dialog
