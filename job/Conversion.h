// SPDX-License-Identifier: Apache-2.0
// Documents that are no PDF become one, by CUPS's own filters where it has some: text and PostScript. A picture becomes
// a page of the picture's own size, which CUPS's filter for pictures would lose.
#pragma once

#include "job/Problem.h"

#include <QMarginsF>
#include <QSizeF>
#include <QString>
#include <QStringList>

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

/// The sheet of paper that CUPS's filters lay a document on which is no PDF.
struct PaperSheet {
    QSizeF sizePt;
    QMarginsF unprintablePt;
    QStringList options; ///< those of the job that the filters read, NAME=VALUE

    bool operator==(const PaperSheet &) const = default;
};

/// Makes a PDF of a document in the way in which a print server's filters do it for a printer of paper, as far as
/// CUPS's own filters go: text is set on the sheet and laid out later, as the pages of a PDF are; a picture is laid on
/// it for good. For being shown and counted: what is printed is made by the server. Parameters as above.
bool convertForPaper(const QString &document, const PaperSheet &sheet, const QString &path,
                     const std::atomic<bool> &stop, Problem *error);

/// Whether a document's PDF depends on the page that text is set on.
inline bool dependsOnTextPage(DocumentKind kind)
{
    return kind == DocumentKind::Text;
}

} // namespace tapeprint::job
