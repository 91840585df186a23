// SPDX-License-Identifier: Apache-2.0
// Objects, table of references and trailer.
#include "TestPdf.h"

namespace hosttest
{

QByteArray pdf(const QList<PdfPage> &pages, const QByteArray &trailer)
{
    QByteArray kids;
    QList<QByteArray> objects{"<</Type/Catalog/Pages 2 0 R>>", {}, "<</Type/Font/Subtype/Type1/BaseFont/Helvetica>>"};
    for (const PdfPage &page : pages) {
        const QByteArray number = QByteArray::number(objects.size() + 1);
        kids += number + " 0 R ";
        objects += "<</Type/Page/Parent 2 0 R/Resources<</Font<</F 3 0 R>>>>" + page.entries + "/Contents " +
                   QByteArray::number(objects.size() + 2) + " 0 R>>";
        objects += "<</Length " + QByteArray::number(page.content.size()) + ">>stream\n" + page.content + "\nendstream";
    }
    objects[1] = "<</Type/Pages/Kids[" + kids + "]/Count " + QByteArray::number(pages.size()) + ">>";

    QByteArray bytes = "%PDF-1.6\n";
    QByteArray table = "0000000000 65535 f \n";
    for (qsizetype i = 0; i < objects.size(); ++i) {
        table += QByteArray::number(bytes.size()).rightJustified(10, '0') + " 00000 n \n";
        bytes += QByteArray::number(i + 1) + " 0 obj\n" + objects[i] + "\nendobj\n";
    }
    const QByteArray tableAt = QByteArray::number(bytes.size());
    const QByteArray count = QByteArray::number(objects.size() + 1);
    return bytes + "xref\n0 " + count + "\n" + table + "trailer\n<</Size " + count + "/Root 1 0 R" + trailer +
           ">>\nstartxref\n" + tableAt + "\n%%EOF\n";
}

QByteArray lockedPdf()
{
    // No password yields these check values.
    const QByteArray values = "/O<" + QByteArray(64, '1') + ">/U<" + QByteArray(64, '2') + ">";
    return pdf({{"/MediaBox[0 0 144 36]", "0 0 144 36 re f"}}, "/Encrypt<</Filter/Standard/V 1/R 2/P -4" + values +
                                                                   ">>/ID[<" + QByteArray(32, '3') + "><" +
                                                                   QByteArray(32, '3') + ">]");
}

} // namespace hosttest
