// SPDX-License-Identifier: Apache-2.0
// Names of IPP job attributes, which the print server keeps for itself when a PPD keyword or an option is spelled like
// one of them in other letters.
#pragma once

#include <QString>
#include <QStringList>

namespace tapeprint::job
{

/// Whether a text is the name of an IPP job attribute, letter for letter.
bool isIppJobAttribute(const QString &name);

/// The IPP job attribute that a text spells in other letters, such as "media" for "Media"; null when it spells none.
QString ippJobAttributeInOtherLetters(const QString &name);

/// All that this program knows.
QStringList ippJobAttributes();

} // namespace tapeprint::job
