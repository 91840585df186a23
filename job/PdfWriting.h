// SPDX-License-Identifier: Apache-2.0
// Writing a PDF so that a full disk is noticed: libqpdf does not look whether its last bytes arrived.
#pragma once

#include <QString>

#include <qpdf/QPDF.hh>

namespace tapeprint::job
{

/// Writes a document to a file; the same document gives the same bytes. Throws QPDFSystemError when the file cannot be
/// written whole, and what else libqpdf throws.
void writePdf(QPDF &pdf, const QString &path);

} // namespace tapeprint::job
