// SPDX-License-Identifier: Apache-2.0
// Plain text of any of the encodings that are met, as print filters read it: in UTF-8, without a mark of its own.
#pragma once

#include <QByteArray>
#include <QString>

namespace tapeprint::job
{

/// Whether a document begins with the mark of a text in UTF-16, whose bytes look like no text's.
bool beginsAsUtf16(const QByteArray &beginning);

/// Whether a text is what print filters read as it is. They stop, without a word, at the first byte that is no UTF-8,
/// and set a mark of byte order as a blank. Also for a file that cannot be read: who prints it says so.
bool isFilterText(const QString &document);

/// Writes a text as print filters read it. What is no Unicode is taken as Windows' Latin-1.
/// \param path a file to write. \param reason takes why it cannot be written.
bool writeFilterText(const QString &document, const QString &path, QString *reason);

} // namespace tapeprint::job
