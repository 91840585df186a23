// SPDX-License-Identifier: Apache-2.0
// Plain text in scripts that CUPS's filter for text has no fonts for: it draws a box in place of each character of
// Chinese, Japanese, Korean, Arabic, Thai and many others, and calls the job done.
#pragma once

#include "job/Problem.h"

#include <QSizeF>
#include <QString>

#include <atomic>

namespace tapeprint::job
{

/// Whether a text has characters for which the filter has boxes alone. \param text as the filters read texts.
bool needsOwnFonts(const QString &text);

/// The same of any document, asked before the toolkit is there: whether it had better know fonts. Also for a pipe, of
/// which nobody knows what will come.
bool mayNeedOwnFonts(const QString &document);

/// Whether a text can be drawn here: it takes a program that knows fonts.
bool canDrawText();

/// Sets a text as CUPS's filter does, ten characters and six lines an inch, from the very edge of its page on.
/// \param text the file, as the filters read texts. \param pagePt the page as it is read. \param path the file to
/// write. \param stop when it becomes true, the answer is false with a null sentence.
bool drawTextPdf(const QString &text, const QSizeF &pagePt, const QString &path, const std::atomic<bool> &stop,
                 Problem *error);

} // namespace tapeprint::job
