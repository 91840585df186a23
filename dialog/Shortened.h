// SPDX-License-Identifier: Apache-2.0
// Texts that are too long for their place. What stands in brackets at the end, such as "(changed)", is what a person
// looks for: half of it says nothing.
#pragma once

#include <QString>

class QFontMetrics;

namespace tapeprint::dialog
{

/// The text as it fits a width. A remark in brackets at its end stays whole as long as there is room for it.
QString shortened(const QString &text, const QFontMetrics &metrics, int width);

} // namespace tapeprint::dialog
