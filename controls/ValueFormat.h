// SPDX-License-Identifier: Apache-2.0
// One value put into a format string, the same in every locale.
#pragma once

#include <QString>
#include <QVariant>

#include <cstdint>

namespace controls
{

/// A value as text: texts as they are, whole numbers in decimal, real numbers in the shortest form that reads back as
/// the same number, dates in ISO form, booleans "1" and "0"; a value that is missing gives "(null)".
QString valueText(const QVariant &value);

/// A value as a whole number: a text by the number it begins with, a real number truncated toward zero, both held at
/// the ends of the range; anything else gives 0.
std::int32_t valueInteger(const QVariant &value);

/// The format with the value in each of its placeholders: "%@" and "%s" its text, "%d", "%i", "%u", "%x", "%X", "%o"
/// and "%c" the whole number, "%f", "%e" and "%g" the whole number as a real one; flags, width and precision as in C.
/// Any other placeholder stands as it is. \return a null string when the format is null.
QString formattedValue(const QString &format, const QString &text, std::int32_t number);

} // namespace controls
