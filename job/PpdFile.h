// SPDX-License-Identifier: Apache-2.0
// A parsed PPD file, held with its deleter and the bytes that it was parsed from, and the sentence that says why one
// could not be opened.
#pragma once

#include "job/Problem.h"

#include <QByteArray>
#include <QString>

#include <memory>

#include <cups/ppd.h>

namespace tapeprint::job
{

/// Closes a parsed PPD and keeps the file's bytes, so that it can be parsed anew without the file or the print server.
struct PpdCloser {
    QByteArray source; ///< as they stand in the file, packed or not; empty: not known
    void operator()(ppd_file_t *ppd) const { ppdClose(ppd); }
};
/// A parsed PPD; null when there is none.
using PpdFile = std::unique_ptr<ppd_file_t, PpdCloser>;

/// Nothing larger describes a printer: it is not read into memory.
constexpr qint64 mostPpdBytes = qint64{64} << 20;

/// Opens a PPD file, with the defaults marked. \param error takes a sentence that names the file, and the line where
/// the file is at fault. \param shownAs how the sentence names the file; null: by its path.
PpdFile openPpdFile(const QString &path, Problem *error, const QString &shownAs = QString());

/// Opens the bytes of a PPD file likewise.
PpdFile openPpd(const QByteArray &bytes, Problem *error, const QString &shownAs);

/// The same PPD as it was before anything was marked or changed in it, with the defaults marked. Null when its bytes
/// are not known or the system has no memory for it.
PpdFile freshCopy(const PpdFile &ppd);

} // namespace tapeprint::job
