// SPDX-License-Identifier: Apache-2.0
// Strangers' texts, such as a PPD's, a panel's or a document's name, shown as they stand. The toolkit takes "<b>" for
// markup, "&" for a letter's key and "[*]" for a mark of its own, each in other places.
#pragma once

#include <QString>

class QLabel;
class QWidget;

namespace tapeprint::dialog
{

/// A label with its control: no letter leads there, and a screen reader reads the text as the control's name.
/// \param buddy the control; its parent becomes the label's.
QLabel *plainLabel(const QString &text, QWidget *buddy);

/// Names a control for a screen reader by a label that stands in another widget than the control: of that one nothing
/// is heard.
void nameByFarLabel(QWidget *control, const QLabel &label);

/// A text for a tooltip, drawn as it stands.
QString plainToolTip(const QString &text);

/// A text for a window's title, drawn as it stands.
QString plainTitle(const QString &text);

} // namespace tapeprint::dialog
