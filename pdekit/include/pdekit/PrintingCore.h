// SPDX-License-Identifier: Apache-2.0
// The objects of a print job that a dialog owns and its panels read: session, settings, page format, paper, printer.
// The operations answer a status and hand their result out through a pointer. A null object or result pointer is
// answered with kPMInvalidParameter; nothing is written then.
#pragma once

#include "pdekit/Export.h"
#include "pdekit/Status.h"

#include <QByteArray>
#include <QString>
#include <QVariant>
#include <QVariantMap>

#include <cstdint>
#include <optional>
#include <set>

namespace pdekit
{

/// A paper, for these printers a tape: its PPD page size keyword and its size in points (1/72 inch).
struct Paper {
    QString ppdPaperName;  ///< null when the paper is not known to the PPD
    double widthPt = 0.0;  ///< for a tape its width
    double heightPt = 0.0; ///< for a tape its length
};

/// How pages lie on the paper. Holds the paper by value; setting another paper ends pointers to the old one.
struct PageFormat {
    std::optional<Paper> paper; ///< none when the PPD names no page size
};

/// A print queue, or a printer description without a queue.
struct Printer {
    QString name;      ///< the queue's name; empty without a queue
    QString instance;  ///< the instance of the queue; empty for the queue itself
    QString makeModel; ///< what the printer calls itself
    QString deviceUri; ///< null when the printer has none; text, because QUrl would put the scheme in small letters
};

/// One run of a print dialog: data that dialog and panels share under string keys, as property-list values.
struct PrintSession {
    QVariantMap data; ///< see PMSessionGetDataFromSession()
};

/// The settings of a job: property-list values (bool, integer, real, string, data, date, array, dictionary) under
/// string keys. A locked key keeps its value until it is unlocked.
struct PrintSettings {
    QVariantMap values;           ///< see PMPrintSettingsGetValue()
    std::set<QString> lockedKeys; ///< keys of values that may not be changed
};

using PMPrintSession = PrintSession *;   ///< the dialog's; null: none
using PMPrintSettings = PrintSettings *; ///< the dialog's; null: none
using PMPageFormat = PageFormat *;       ///< the dialog's; null: none
using PMPaper = const Paper *;           ///< the page format's; null: none

/// Keys of the settings that this library itself reads and writes.
namespace PrintSettingsKey
{
/// How many copies (integer from 1).
inline const QString copies = QStringLiteral("tapeprint.copies");
/// See PMGetFirstPage().
inline const QString firstPage = QStringLiteral("tapeprint.firstPage");
/// See PMGetLastPage().
inline const QString lastPage = QStringLiteral("tapeprint.lastPage");
/// The PPD page size keyword of the paper that pages are mapped to (string).
inline const QString mediaName = QStringLiteral("com.apple.print.PageToPaperMappingMediaName");
} // namespace PrintSettingsKey

/// The printer's device URI, copied into *uri. kPMNoSuchEntry when it has none; *uri is null then.
PDEKIT_EXPORT OSStatus PMPrinterCopyDeviceURI(const Printer *printer, QString *uri);

/// The paper of a page format, still owned by it. A format without a paper is no error: *paper is null, the status 0.
PDEKIT_EXPORT OSStatus PMGetPageFormatPaper(const PageFormat *format, PMPaper *paper);

/// The PPD page size keyword of a paper. kPMNoSuchEntry when it has none.
PDEKIT_EXPORT OSStatus PMPaperGetPPDPaperName(PMPaper paper, QString *name);

/// The height of a paper (the length of a tape) in points.
PDEKIT_EXPORT OSStatus PMPaperGetHeight(PMPaper paper, double *heightPt);

/// The width of a paper in points.
PDEKIT_EXPORT OSStatus PMPaperGetWidth(PMPaper paper, double *widthPt);

/// The value under a key. kPMKeyNotFound when there is none.
PDEKIT_EXPORT OSStatus PMPrintSettingsGetValue(const PrintSettings *settings, const QString &key, QVariant *value);

/// Puts a value under a key; an invalid QVariant removes the key. \param locked locks the key from now on.
/// kPMLocked when the key is locked already.
PDEKIT_EXPORT OSStatus PMPrintSettingsSetValue(PrintSettings *settings, const QString &key, const QVariant &value,
                                               bool locked);

/// The data of a session under a key. kPMKeyNotFound when there is none.
PDEKIT_EXPORT OSStatus PMSessionGetDataFromSession(const PrintSession *session, const QString &key, QVariant *value);

/// Puts data under a key of the session; an invalid QVariant removes it.
PDEKIT_EXPORT OSStatus PMSessionSetDataInSession(PrintSession *session, const QString &key, const QVariant &value);

/// The first page to print, counted from 1. kPMKeyNotFound when the job does not say.
PDEKIT_EXPORT OSStatus PMGetFirstPage(const PrintSettings *settings, std::uint32_t *first);
/// Sets the first page to print. \param lock locks it from now on; kPMLocked when it is locked already.
PDEKIT_EXPORT OSStatus PMSetFirstPage(PrintSettings *settings, std::uint32_t first, bool lock);
/// The last page to print, counted from 1. kPMKeyNotFound when the job does not say.
PDEKIT_EXPORT OSStatus PMGetLastPage(const PrintSettings *settings, std::uint32_t *last);
/// Sets the last page to print. \param lock locks it from now on; kPMLocked when it is locked already.
PDEKIT_EXPORT OSStatus PMSetLastPage(PrintSettings *settings, std::uint32_t last, bool lock);

/// The settings as an XML property list, copied into *data.
PDEKIT_EXPORT OSStatus PMPrintSettingsCreateDataRepresentation(const PrintSettings *settings, QByteArray *data);

} // namespace pdekit
