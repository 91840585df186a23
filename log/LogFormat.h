// SPDX-License-Identifier: Apache-2.0
// printf-like formatting with "%@", the same in every locale.
#pragma once

#include <QString>

#include <cstdarg>

namespace pdelog
{

/// The format with its placeholders filled from the arguments, each of the type that printf asks for; "%@" takes a
/// `const QString *`. A placeholder that is unknown, "%n" among them, stands as it is and takes no argument.
QString formatted(const QString &format, va_list arguments);

} // namespace pdelog
