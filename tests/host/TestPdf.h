// SPDX-License-Identifier: Apache-2.0
// PDF documents for the tests, written letter by letter so that their measures are known.
#pragma once

#include <QByteArray>
#include <QList>

namespace hosttest
{

/// A page: its boxes and whatever else stands in its dictionary, and the operators of its drawing. Operators may show
/// text in Helvetica, which is called /F.
struct PdfPage {
    QByteArray entries; ///< such as "/MediaBox[0 0 144 36]"
    QByteArray content; ///< such as "1 0 0 rg 0 0 72 36 re f"
};

/// A document of these pages. \param trailer more entries of its trailer.
QByteArray pdf(const QList<PdfPage> &pages, const QByteArray &trailer = {});

/// A document of one page. \param mediaBox its four numbers.
inline QByteArray pdf(const QByteArray &mediaBox, const QByteArray &content)
{
    return pdf(QList<PdfPage>{{"/MediaBox[" + mediaBox + "]", content}});
}

/// A document that nobody can open without the password.
QByteArray lockedPdf();

} // namespace hosttest
