// SPDX-License-Identifier: Apache-2.0
// Written out and not dropped: who is shown a command or a name sees all that is in it.
#include "job/PlainText.h"

#include <QChar>

namespace tapeprint::job
{

namespace
{

bool changesWhatFollows(char16_t unit)
{
    return unit == 0x061C || unit == 0x200E || unit == 0x200F || (unit >= 0x2028 && unit <= 0x202E) ||
           (unit >= 0x2066 && unit <= 0x2069) || unit == 0xFEFF;
}

/// How a code unit is written out; null for one that stays.
QString writtenOut(char16_t unit)
{
    if (unit == u'\n') {
        return QStringLiteral("\\n");
    }
    if (unit == u'\t') {
        return QStringLiteral("\\t");
    }
    if (unit < 0x20 || (unit >= 0x7F && unit < 0xA0)) {
        return QStringLiteral("\\x%1").arg(QString::number(unit, 16).toUpper(), 2, u'0');
    }
    if (changesWhatFollows(unit) || QChar::isSurrogate(unit)) {
        return QStringLiteral("\\u%1").arg(QString::number(unit, 16).toUpper(), 4, u'0');
    }
    return {};
}

} // namespace

QString harmless(const QString &text)
{
    QString plain;
    plain.reserve(text.size());
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar unit = text.at(i);
        if (unit.isHighSurrogate() && i + 1 < text.size() && text.at(i + 1).isLowSurrogate()) {
            plain += unit;
            plain += text.at(++i);
            continue;
        }
        const QString written = writtenOut(unit.unicode());
        if (written.isNull()) {
            plain += unit;
        } else {
            plain += written;
        }
    }
    return plain;
}

} // namespace tapeprint::job
