// SPDX-License-Identifier: Apache-2.0
// Objects, their places, and nothing that would be worked out by a library under test.
#include "tests/job/PdfText.h"

namespace jobtest
{

namespace
{

QByteArray number(double value)
{
    constexpr int decimals = 6;
    return QByteArray::number(value, 'f', decimals);
}

QByteArray reference(qsizetype object)
{
    return QByteArray::number(object) + " 0 R";
}

} // namespace

QByteArray streamObject(const QByteArray &entries, const QByteArray &bytes)
{
    return "<< " + entries + " /Length " + QByteArray::number(bytes.size()) + " >>\nstream\n" + bytes + "\nendstream";
}

QByteArray block(double x, double y, double width, double height)
{
    return "0 g " + number(x) + ' ' + number(y) + ' ' + number(width) + ' ' + number(height) + " re f\n";
}

PdfPage blockPage(double width, double height, const QByteArray &drawing, const QByteArray &entries)
{
    return {"/MediaBox [0 0 " + number(width) + ' ' + number(height) + "] /Resources << >> " + entries, drawing};
}

QByteArray pdfOf(const std::vector<PdfPage> &pages, const QByteArrayList &objects, const QByteArray &catalog)
{
    constexpr qsizetype firstFree = 3; // after catalogue and page tree
    const qsizetype firstPage = firstFree + objects.size();
    QByteArrayList all{"<< /Type /Catalog /Pages 2 0 R " + catalog + " >>", {}};
    all += objects;
    QByteArray kids;
    for (const PdfPage &page : pages) {
        const qsizetype at = firstPage + 2 * (&page - pages.data());
        kids += reference(at) + ' ';
        all << "<< /Type /Page /Parent 2 0 R /Contents " + reference(at + 1) + ' ' + page.entries + " >>"
            << streamObject({}, page.drawing);
    }
    all[1] = "<< /Type /Pages /Kids [" + kids + "] /Count " + QByteArray::number(pages.size()) + " >>";

    QByteArray pdf = "%PDF-1.6\n";
    QByteArray places = "0000000000 65535 f \n";
    for (qsizetype i = 0; i < all.size(); ++i) {
        places += QByteArray::number(pdf.size()).rightJustified(10, '0') + " 00000 n \n";
        pdf += QByteArray::number(i + 1) + " 0 obj\n" + all[i] + "\nendobj\n";
    }
    const QByteArray count = QByteArray::number(all.size() + 1);
    return pdf + "xref\n0 " + count + '\n' + places + "trailer\n<< /Size " + count + " /Root 1 0 R >>\nstartxref\n" +
           QByteArray::number(pdf.lastIndexOf("endobj\n") + 7) + "\n%%EOF\n";
}

} // namespace jobtest
