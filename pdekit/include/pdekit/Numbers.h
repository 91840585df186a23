// SPDX-License-Identifier: Apache-2.0
// Numbers to text and back, the same in every locale: "." is the decimal point.
#pragma once

#include "pdekit/Export.h"

#include <QString>
#include <QStringView>

#include <cstdint>

namespace pdekit
{

/// The number a text begins with: leading white space, then the longest decimal number, else 0.0. "inf" and "nan" are
/// text. A number beyond the range of double is held at its largest finite value.
PDEKIT_EXPORT double doubleValue(QStringView text);
/// The same in single precision: the decimal number rounded once, to float; held at the largest finite float.
PDEKIT_EXPORT float floatValue(QStringView text);
/// The whole number a text begins with: leading white space, a sign, digits; else 0. Held at the ends of the range.
PDEKIT_EXPORT std::int32_t intValue(QStringView text);

/// A number with a fixed number of decimals, as C's "%.1f" gives it in the C locale; exact halves go to the even digit.
/// "%f" is six decimals.
PDEKIT_EXPORT QString fixedDecimals(double value, int decimals);
/// A real number as a 32-bit integer: truncated toward zero, held at the ends of the range; not a number gives 0.
PDEKIT_EXPORT std::int32_t truncatedInt32(double value);
/// The same in 64 bits.
PDEKIT_EXPORT std::int64_t truncatedInt64(double value);
/// truncatedInt32 as text, as C's "%d" gives it.
PDEKIT_EXPORT QString wholeNumber(double value);
/// The shortest text that reads back as exactly this float.
PDEKIT_EXPORT QString shortestText(float value);

} // namespace pdekit
