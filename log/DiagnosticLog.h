// SPDX-License-Identifier: Apache-2.0
// Diagnostic functions for developers' builds: exported under their plain names, called by nothing that ships.
#pragma once

#include <QtCore/qglobal.h>

#include <cups/ppd.h>

#include <cstdint>

class QObject;

namespace pdekit
{
struct PrintSettings;
}

// Formats are UTF-8 with the placeholders of printf, in every locale with "." as the decimal point, and "%@", whose
// argument is a `const QString *`; a null pointer under "%@" or "%s" gives "(null)". Nothing switches these functions
// on or off but the level argument of those that have one: they work at level 0 and below.
extern "C" {
// These four names begin with an underscore and a capital, which C++ reserves; they are given and kept as they are.
// NOLINTBEGIN(bugprone-reserved-identifier)

/// One line to the system log (Qt's message log, category "pde"): the tag, "self(" and the object's description when
/// there is one, and the caller's text. The description is the object's class name and address. The tags are "BEGIN",
/// "END" and "LOG". \param object may be null.
Q_DECL_EXPORT void _PDEProlog(const QObject *object, const char *format, ...);
Q_DECL_EXPORT void _PDEEpilog(const QObject *object, const char *format, ...);
Q_DECL_EXPORT void _PDELog(const QObject *object, const char *format, ...);

/// The record of a PPD option and its first choice, a line a field, to the system log. An option that the PPD does not
/// define gives the first line alone.
Q_DECL_EXPORT void _PDELog_ppd_option_t(ppd_file_t *ppd, const char *ppdOptionName);

/// The settings as a property list into the file "/KsPDE_<name>.plist". Does not say whether it could write.
/// \param name UTF-8.
Q_DECL_EXPORT void _PDELog_PMPrintSettings_WriteToFile(const pdekit::PrintSettings *settings, const char *name);
// NOLINTEND(bugprone-reserved-identifier)

/// "DEBUG: ", the text and a newline to standard error.
Q_DECL_EXPORT void debugLog(std::int32_t level, const char *format, ...);
/// The text and a newline to a file descriptor.
Q_DECL_EXPORT void debugLogFd(std::int32_t level, int fd, const char *format, ...);

/// Bytes in hexadecimal to standard error, 16 a group. Deliberate: each group begins with "DEBUG:", none ends with a
/// newline, and after a last full group an empty one follows.
Q_DECL_EXPORT void memoryCheck(std::int32_t level, const unsigned char *bytes, std::int32_t length);
/// Bytes in hexadecimal to a file descriptor, 16 a line.
Q_DECL_EXPORT void memoryCheckFd(std::int32_t level, int fd, const unsigned char *bytes, std::int32_t length);
}
