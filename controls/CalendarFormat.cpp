// SPDX-License-Identifier: Apache-2.0
// The letters of a calendar format, one row each.
#include "controls/CalendarFormat.h"

#include <cstdlib>

namespace controls
{
namespace
{

QString digits(int number, int width)
{
    return QStringLiteral("%1").arg(number, width, 10, QLatin1Char('0'));
}

QString zoneOffset(const QDateTime &date)
{
    const int seconds = date.offsetFromUtc();
    const int minutes = std::abs(seconds) / 60;
    return (seconds < 0 ? QStringLiteral("-") : QStringLiteral("+")) + digits(minutes / 60, 2) +
           digits(minutes % 60, 2);
}

/// The hour on a clock face: 1 to 12.
int clockHour(const QDateTime &date)
{
    const int hour = date.time().hour() % 12;
    return hour == 0 ? 12 : hour;
}

struct Letter {
    char16_t name;
    QString (*text)(const QDateTime &, const QLocale &);
};

using D = const QDateTime &;
using L = const QLocale &;

const Letter kLetters[] = {
    {u'a', [](D d, L l) { return l.standaloneDayName(d.date().dayOfWeek(), QLocale::ShortFormat); }},
    {u'A', [](D d, L l) { return l.standaloneDayName(d.date().dayOfWeek(), QLocale::LongFormat); }},
    {u'b', [](D d, L l) { return l.monthName(d.date().month(), QLocale::ShortFormat); }},
    {u'B', [](D d, L l) { return l.monthName(d.date().month(), QLocale::LongFormat); }},
    {u'c', [](D d, L l) { return l.toString(d, QLocale::LongFormat); }},
    {u'd', [](D d, L) { return digits(d.date().day(), 2); }},
    {u'e', [](D d, L) { return digits(d.date().day(), 1); }},
    {u'F', [](D d, L) { return digits(d.time().msec(), 3); }},
    {u'H', [](D d, L) { return digits(d.time().hour(), 2); }},
    {u'I', [](D d, L) { return digits(clockHour(d), 2); }},
    {u'j', [](D d, L) { return digits(d.date().dayOfYear(), 3); }},
    {u'm', [](D d, L) { return digits(d.date().month(), 2); }},
    {u'M', [](D d, L) { return digits(d.time().minute(), 2); }},
    {u'p', [](D d, L l) { return d.time().hour() < 12 ? l.amText() : l.pmText(); }},
    {u'S', [](D d, L) { return digits(d.time().second(), 2); }},
    {u'w', [](D d, L) { return digits(d.date().dayOfWeek() % 7, 1); }},
    {u'x', [](D d, L l) { return l.toString(d.date(), QLocale::ShortFormat); }},
    {u'X', [](D d, L l) { return l.toString(d.time(), QLocale::ShortFormat); }},
    {u'y', [](D d, L) { return digits(d.date().year() % 100, 2); }},
    {u'Y', [](D d, L) { return digits(d.date().year(), 4); }},
    {u'z', [](D d, L) { return zoneOffset(d); }},
    {u'Z', [](D d, L) { return d.timeZoneAbbreviation(); }},
    {u'%', [](D, L) { return QStringLiteral("%"); }},
};

const Letter *letterNamed(QChar name)
{
    for (const Letter &letter : kLetters) {
        if (letter.name == name) {
            return &letter;
        }
    }
    return nullptr;
}

} // namespace

QString calendarText(const QDateTime &date, const QString &format, const QLocale &locale)
{
    const QString pattern = format.isNull() ? QStringLiteral("%Y-%m-%d %H:%M:%S %z") : format;
    QString text = QLatin1String("");
    for (qsizetype i = 0; i < pattern.size(); ++i) {
        const bool starts = pattern.at(i) == QLatin1Char('%') && i + 1 < pattern.size();
        const Letter *letter = starts ? letterNamed(pattern.at(i + 1)) : nullptr;
        if (letter == nullptr) {
            text += pattern.at(i);
            continue;
        }
        text += letter->text(date, locale);
        ++i;
    }
    return text;
}

} // namespace controls
