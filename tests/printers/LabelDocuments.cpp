// SPDX-License-Identifier: Apache-2.0
// Every page is lopsided: turned or mirrored it would be another.
#include "tests/printers/LabelDocuments.h"

#include <QImage>

namespace printertest
{

namespace
{

QByteArray points(double mm)
{
    constexpr int decimals = 6;
    return QByteArray::number(mm / 25.4 * 72.0, 'f', decimals);
}

QByteArray drawingOf(const ShapedPage &page)
{
    QByteArray drawing = "0 g\n";
    for (const Block &block : page.blocks) {
        drawing += points(block.x) + ' ' + points(page.heightMm - block.y - block.height) + ' ' + points(block.width) +
                   ' ' + points(block.height) + " re f\n";
    }
    return drawing;
}

/// An L and a dot, in the proportions of the page.
std::vector<Block> lopsided(double width, double height)
{
    return {{width * 0.1, height * 0.1, width * 0.15, height * 0.7},
            {width * 0.1, height * 0.7, width * 0.7, height * 0.1},
            {width * 0.8, height * 0.2, width * 0.1, height * 0.15}};
}

QString picture(const systemtest::PrivateFolder &folder)
{
    // 30 x 15 mm at 200 dots an inch.
    QImage image(236, 118, QImage::Format_Mono);
    image.setColorTable({qRgb(255, 255, 255), qRgb(0, 0, 0)});
    image.fill(0);
    for (int y = 10; y < 90; ++y) {
        for (int x = 10; x < 200; ++x) {
            image.setPixel(x, y, (x < 60 || y > 70 || (x - y) % 40 < 12) ? 1 : 0);
        }
    }
    image.setDotsPerMeterX(7874);
    image.setDotsPerMeterY(7874);
    const QString path = folder.path(u"picture.png"_qs);
    image.save(path);
    return path;
}

} // namespace

QByteArray pdfWith(const std::vector<ShapedPage> &pages)
{
    QByteArrayList objects{"<< /Type /Catalog /Pages 2 0 R >>", {}};
    QByteArray kids;
    for (const ShapedPage &page : pages) {
        const QByteArray drawing = drawingOf(page);
        const QByteArray at = QByteArray::number(objects.size() + 1);
        const QByteArray content = QByteArray::number(objects.size() + 2);
        kids += at + " 0 R ";
        objects << "<< /Type /Page /Parent 2 0 R /Resources << >> /Rotate " + QByteArray::number(page.rotate) +
                       " /Contents " + content + " 0 R /MediaBox [0 0 " + points(page.widthMm) + ' ' +
                       points(page.heightMm) + "] >>"
                << "<< /Length " + QByteArray::number(drawing.size()) + " >>\nstream\n" + drawing + "endstream";
    }
    objects[1] = "<< /Type /Pages /Kids [" + kids + "] /Count " + QByteArray::number(pages.size()) + " >>";
    QByteArray pdf = "%PDF-1.4\n";
    QByteArray places = "0000000000 65535 f \n";
    for (qsizetype i = 0; i < objects.size(); ++i) {
        places += QByteArray::number(pdf.size()).rightJustified(10, '0') + " 00000 n \n";
        pdf += QByteArray::number(i + 1) + " 0 obj\n" + objects[i] + "\nendobj\n";
    }
    const QByteArray start = QByteArray::number(pdf.size());
    const QByteArray count = QByteArray::number(objects.size() + 1);
    return pdf + "xref\n0 " + count + '\n' + places + "trailer\n<< /Size " + count + " /Root 1 0 R >>\nstartxref\n" +
           start + "\n%%EOF\n";
}

QStringList labelDocuments(const systemtest::PrivateFolder &folder)
{
    const std::vector<ShapedPage> pages{{18, 40, lopsided(18, 40)},
                                        {44, 14, lopsided(44, 14)},
                                        {105, 148, lopsided(105, 148)},
                                        {160, 50, lopsided(160, 50)},
                                        {20, 30, lopsided(20, 30), 90}};
    const QString postScript = folder.path(u"drawing.ps"_qs);
    systemtest::writeFile(postScript, "%!PS-Adobe-3.0\n<< /PageSize [100 45] >> setpagedevice\n"
                                      "10 5 40 20 rectfill 60 30 30 10 rectfill showpage\n"
                                      "<< /PageSize [45 120] >> setpagedevice\n"
                                      "5 5 newpath moveto 40 5 lineto 5 100 lineto closepath fill showpage\n");
    return {systemtest::writeFile(folder.path(u"shapes.pdf"_qs), pdfWith(pages)), picture(folder), postScript,
            systemtest::writeFile(folder.path(u"words.txt"_qs), "Tape 24 mm\n")};
}

} // namespace printertest
