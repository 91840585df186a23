// SPDX-License-Identifier: Apache-2.0
// printf-like formatting with "%@", the same in every locale.
#pragma once

#include <QString>

#include <cstdarg>

namespace pdelog
{

/// The format with its placeholders filled as C's printf fills them in the C locale, each argument of the type that
/// printf asks for; "%@" takes a `const QString *`. What differs from C:
/// - A null text is "(null)", whatever its precision. A character that the precision would cut in two is left out.
/// - Widths, and the digits of numbers, end at 999999.
/// - A placeholder that is unknown, "%n" among them, stands as it is and takes no argument.
QString formatted(const QString &format, va_list arguments);

} // namespace pdelog
