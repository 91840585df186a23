// SPDX-License-Identifier: Apache-2.0
// The functions and tables that the module of PageSettings.bundle exports under their plain names, and the records they
// fill: for the bundle itself, and for authors of other plug-ins and of dialogs.
#pragma once

#include "pdekit/LoggedObject.h"
#include "pdekit/Ppd.h"
#include "pdekit/PrintingCore.h"

#include <QString>
#include <QtCore/qglobal.h>

#include <cstddef>
#include <cstdint>

/// \file
/// The module (PageSettings.so in the bundle's directory) is loaded at run time and not linked. Take a function by its
/// name, with the type that is declared here, and call it no longer than the module stays loaded:
/// \code
/// QLibrary module("…/PageSettings.bundle/PageSettings.so");
/// auto *getTapeInfo = reinterpret_cast<decltype(&GetTapeInfo)>(module.resolve("GetTapeInfo"));
/// auto *menu = reinterpret_cast<const MenuRow *>(module.resolve("OP_MENU"));
/// \endcode
/// For all of them:
/// - The names have C linkage; the types are C++ and Qt's, so the caller is built with the same Qt and the same pdekit.
/// - Nothing is thrown, and no function keeps an argument beyond its call.
/// - A status is pdekit::kPMNoError (0) or one of the errors in pdekit/Status.h.
/// - Records are the caller's, who constructs them before the call and destroys them after it. A QString in a record
///   is a value and is released with the record: nothing has to be released by hand.
/// - Texts in bytes are NUL-terminated UTF-8, unless it says otherwise.
/// - Objects of a job are used by one thread at a time. The other functions may be called on any thread.

/// \name The tape in use

/// What a job says of the tape.
struct TapeInfo {
    /// The length of the paper in millimetres (points / 72.0 / 0.0393701); 100.0 when it cannot be found.
    double paperLength = 100.0;
    /// 1 when the paper is a page size of the PPD whose name begins with "DC", "AV" or "FL"; else 0.
    std::uint32_t fixedLength = 0;
    /// The paper's PPD name, or the ticket's; null when neither is known. A value of the record's own: it outlives the
    /// paper and the ticket it was copied from.
    QString paperName;
    std::uint32_t labelMaterial = 0; ///< position + 1 of the tape material in the ticket, 0 to 15; 0: not given
    std::uint32_t labelColor = 0;    ///< position + 1 of the tape colour in the ticket, 0 to 15; 0: not given
    std::uint32_t inkColor = 0;      ///< position + 1 of the ink colour in the ticket, 0 to 15; 0: not given
};

/// The pages to print, counted from 1; 0: not given.
struct PageRange {
    std::uint32_t firstPage = 0; ///< the first page
    std::uint32_t lastPage = 0;  ///< the last page, which is printed, too
};

/// The settings key of the vendor ticket: XML property-list data with a dictionary at its root, holding "LxPaperName2"
/// (string), "LxHNLabelType" (number: bits 4-7 material, bits 0-3 tape colour) and "LxHNInkType" (number: bits 0-3
/// ink).
inline const QString kTicketKey = QStringLiteral("org.tapeprint.print.PrintSettingsTicket.LxE5");

extern "C" {

/// Fills *info from the page format's paper; only a paper without a PPD name leads to the ticket. What stood in *info
/// is replaced, also when an error is answered.
/// \param session not used; may be null.
/// \param settings hold the ticket; may be null, then there is none.
/// \param format without a paper, *info has its defaults and the status is 0.
/// \param ppd borrowed, not changed; may be null, then no paper is of fixed length.
/// \return kPMInvalidParameter without a format or without info; else 0.
Q_DECL_EXPORT pdekit::OSStatus GetTapeInfo(pdekit::PMPrintSession session, pdekit::PMPrintSettings settings,
                                           pdekit::PMPageFormat format, ppd_file_t *ppd, TapeInfo *info);

/// Reads the ticket into *info: the paper name and the three codes, which are null and 0 where it does not give them;
/// paperLength and fixedLength are left alone.
/// \param session not used; may be null. \param settings may be null. \param info may be null.
/// \return always 0.
Q_DECL_EXPORT pdekit::OSStatus GetTapeInfo2(pdekit::PMPrintSession session, pdekit::PMPrintSettings settings,
                                            TapeInfo *info);

/// Reads a number from the session's data into *value, which is left alone when the data is no number.
/// \param session may be null, then there is no data. \param value may be null.
/// \return kPMNoSessionData when there is no data under the key; else 0.
Q_DECL_EXPORT pdekit::OSStatus GetTicketFromSession(pdekit::PMPrintSession session, const QString &key,
                                                    std::int32_t *value);

/// Reads the page range of the settings into *range and writes both pages back unlocked.
/// \return kPMInvalidParameter without settings or range, kPMKeyNotFound without a last page, kPMLocked when the last
/// page is locked (it has been read); else 0. The first page gives no error.
Q_DECL_EXPORT pdekit::OSStatus GetTapeInfo3(pdekit::PMPrintSettings settings, PageRange *range);

} // extern "C"

/// \name Menu tables

/// One row of a menu table. Others read the tables by this order of fields.
// NOLINTNEXTLINE(clang-analyzer-optin.performance.Padding): the order is part of what is exported
struct MenuRow {
    std::int32_t identifier; ///< what a row is looked for by
    const char *key;         ///< the key of the row's text, ASCII; the table's, never to be freed
    std::int32_t flag;       ///< 0 on a row that can be found
};

extern "C" {

extern Q_DECL_EXPORT const MenuRow OP_MENU[3];   ///< identifiers 1 to 3
extern Q_DECL_EXPORT const MenuRow QUAL_MENU[3]; ///< identifiers 101 to 103

/// The number of whole rows in a table. \param table is not looked at; \param size the table's size in bytes.
Q_DECL_EXPORT std::uint32_t Get_MenuCount(const MenuRow *table, std::size_t size);

/// The key of the first row with that identifier and the flag 0; it stays the table's. \param size the table's size in
/// bytes. \return null when the table is null, has no whole row, or has no such row.
Q_DECL_EXPORT const char *Get_MenuKeyStr(std::int32_t identifier, const MenuRow *table, std::size_t size);

} // extern "C"

/// \name Lengths

extern "C" {

/// Rounds half away from zero; held at the ends of 64 bits, and 0 for what is not a number.
Q_DECL_EXPORT std::int64_t RoundDouble(double value);
/// Millimetres to inches: times 0.0393701.
Q_DECL_EXPORT double MiriToInch(double millimetres);
/// Inches to millimetres: divided by the same 0.0393701, not times 25.4.
Q_DECL_EXPORT double InchToMiri(double inches);

} // extern "C"

/// \name Diagnostics
// For developers' builds: called by nothing that ships. None reports whether it could write. Nothing switches them on
// or off but the level argument of those that have one: they work at level 0 and below.
//
// Formats are UTF-8 with the placeholders of C's printf, in every locale with "." as the decimal point, and "%@", whose
// argument is a `const QString *`; a null pointer under "%@" or "%s" gives "(null)". "%s" is UTF-8 and is measured in
// bytes; a character that its precision would cut in two is left out. "%n" is no placeholder.

extern "C" {
// The first five names begin with an underscore and a capital, which C++ reserves; they are given and kept as they are.
// NOLINTBEGIN(bugprone-reserved-identifier)

/// One line to the system log (Qt's message log, category "pde"): the tag, "self(" and the object's description and ")"
/// when there is an object, and the caller's text. The tag is "BEGIN".
/// \param object a pointer to an object of any class, or nullptr; see pdekit::LoggedObject for its description.
/// \param format must not be null.
Q_DECL_EXPORT void _PDEProlog(pdekit::LoggedObject object, const char *format, ...);
/// The same with the tag "END".
Q_DECL_EXPORT void _PDEEpilog(pdekit::LoggedObject object, const char *format, ...);
/// The same with the tag "LOG".
Q_DECL_EXPORT void _PDELog(pdekit::LoggedObject object, const char *format, ...);

/// The record of a PPD option and its first choice, a line a field, to the system log. An option that the PPD does not
/// define gives the first line alone. \param ppd may be null, and \param ppdOptionName may be null: a line says so.
Q_DECL_EXPORT void _PDELog_ppd_option_t(ppd_file_t *ppd, const char *ppdOptionName);

/// The settings as an XML property list into the file "/KsPDE_<name>.plist", whole or not at all; a file that was there
/// is replaced. \param settings may be null, and \param name may be null: nothing is written then.
Q_DECL_EXPORT void _PDELog_PMPrintSettings_WriteToFile(const pdekit::PrintSettings *settings, const char *name);
// NOLINTEND(bugprone-reserved-identifier)

/// "DEBUG: ", the text and a newline to standard error.
Q_DECL_EXPORT void debugLog(std::int32_t level, const char *format, ...);
/// The text and a newline to a file descriptor.
Q_DECL_EXPORT void debugLogFd(std::int32_t level, int fd, const char *format, ...);

/// Bytes in hexadecimal to standard error, 16 a group. Deliberate: each group begins with "DEBUG:", none ends with a
/// newline, and after a last full group an empty one follows. \param bytes may be null, then nothing is written.
/// \param length in bytes; 0 and less write nothing.
Q_DECL_EXPORT void memoryCheck(std::int32_t level, const unsigned char *bytes, std::int32_t length);
/// Bytes in hexadecimal to a file descriptor, 16 a line. The arguments are memoryCheck's.
Q_DECL_EXPORT void memoryCheckFd(std::int32_t level, int fd, const unsigned char *bytes, std::int32_t length);

} // extern "C"
