// SPDX-License-Identifier: Apache-2.0
// The letters that lead to a window's controls with the Alt key. Ten languages, and texts that come and go with the
// printer, cannot be kept apart by hand: two controls of one letter would both be hard to reach.
#pragma once

#include <QList>
#include <QString>

class QWidget;

namespace tapeprint::dialog
{

/// Gives every label with a buddy and every button whose text has a mark ("&") a letter of its own. A text keeps the
/// letter that it wishes for as long as no other has it; else it takes one that is free: of its own text, or behind it
/// in brackets, as is usual where texts have no Latin letters. A text without a mark gets none.
///
/// To be called again when controls came or changed their texts; the wishes are remembered.
/// \param foreign widgets whose texts are left as they are, with all that is in them: a panel's view. Their letters are
/// taken by nobody else.
void assignMnemonics(const QWidget &window, const QList<const QWidget *> &foreign);

/// A text as it is read: without marks, and without a letter in brackets at its end.
QString withoutMnemonic(const QString &text);

} // namespace tapeprint::dialog
