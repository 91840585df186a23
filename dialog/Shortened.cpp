// SPDX-License-Identifier: Apache-2.0
// Brackets of both kinds: those of full width have no blank before them.
#include "dialog/Shortened.h"

#include <QFontMetrics>

#include <algorithm>

namespace tapeprint::dialog
{

QString shortened(const QString &text, const QFontMetrics &metrics, int width)
{
    constexpr QChar wideBracket(0xff08);
    constexpr int leastLetters = 4; // of what stands before
    const qsizetype bracket = std::max(text.lastIndexOf(QLatin1String(" (")), text.lastIndexOf(wideBracket));
    const QString remark = bracket < 0 ? QString() : text.mid(bracket);
    const int left = width - metrics.horizontalAdvance(remark);
    if (remark.isEmpty() || metrics.horizontalAdvance(text) <= width ||
        left < leastLetters * metrics.averageCharWidth()) {
        return metrics.elidedText(text, Qt::ElideMiddle, width);
    }
    return metrics.elidedText(text.left(bracket), Qt::ElideRight, left) + remark;
}

} // namespace tapeprint::dialog
