// SPDX-License-Identifier: Apache-2.0
// Documents that are no PDF become one, by CUPS's own filters where it has some: text and PostScript. A picture becomes
// a page of the picture's own size, which CUPS's filter for pictures would lose.
#pragma once

#include "job/Problem.h"

#include <QSizeF>
#include <QString>

#include <atomic>
#include <optional>

namespace tapeprint::job
{

enum class DocumentKind { Pdf, PostScript, Picture, Text, Unknown };

/// What a document is, by its first bytes; names say nothing. Unknown also for a file that cannot be read.
DocumentKind documentKindOf(const QString &path);

/// The sentence about a folder for temporary files that takes no more. \param reason as the system says it.
QString noRoomForTemporaryFiles(const QString &reason);

/// Makes a PDF of a document, beside others in a private folder. The document is only read.
/// \param textPagePt the page that text is set on, as it is read: lines run along its width.
/// \param path the file to write. \param stop when it becomes true, the conversion ends and the answer is false with a
/// null sentence. \param error takes a sentence that names the document. \return whether the file is there.
bool convertToPdf(const QString &document, const QSizeF &textPagePt, const QString &path, const std::atomic<bool> &stop,
                  Problem *error);

/// Whether a document's PDF depends on the page that text is set on.
inline bool dependsOnTextPage(DocumentKind kind)
{
    return kind == DocumentKind::Text;
}

} // namespace tapeprint::job
