// SPDX-License-Identifier: Apache-2.0
// The texts of a PPD, for people: in their language where the PPD has it, and always text that can be shown.
#pragma once

#include <QString>
#include <QStringList>

#include <cups/ppd.h>

namespace tapeprint::job
{

/// A text out of a PPD's record, harmless and on one line. Bytes that are no UTF-8, as when the PPD declares a wrong
/// encoding, are read as Latin-1; a character that the record's end cut through is left out. \param bytes may be null.
QString ppdText(const char *bytes);

/// The text of an option, its keyword when it has none.
QString optionText(const ppd_option_t &option);
/// The text of a choice, its keyword when it has none.
QString choiceText(const ppd_choice_t &choice);

/// Puts the PPD's own translations in the place of its texts: of groups, options, choices and custom parameters.
/// ppdLocalize does the same, but searches for each text among all of them: ten thousand take it a second. Of the
/// languages libcups keeps the environment's alone. \param ppd the dialog's own copy, changed; may be null.
/// \param languages as QLocale::uiLanguages names them, the preferred first; a language that the PPD lacks is passed
/// over, up to English, which the texts themselves are in.
void translateTexts(ppd_file_t *ppd, const QStringList &languages);

} // namespace tapeprint::job
