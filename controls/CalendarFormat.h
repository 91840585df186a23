// SPDX-License-Identifier: Apache-2.0
// Dates by calendar format ("%d.%m.%Y"): what the formatter's date style shows.
#pragma once

#include <QDateTime>
#include <QLocale>
#include <QString>

namespace controls
{

/// A date as text. \param format the calendar format: "%Y", "%m", "%d", "%H", "%M", "%S" and their kin; a null format
/// is "%Y-%m-%d %H:%M:%S %z". A letter that means nothing stands as it is. \param locale gives the names of days and
/// months and the forms of "%c", "%x" and "%X"; numbers are plain digits in every locale.
QString calendarText(const QDateTime &date, const QString &format, const QLocale &locale);

} // namespace controls
