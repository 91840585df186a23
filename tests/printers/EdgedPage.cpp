// SPDX-License-Identifier: Apache-2.0
// A PDF is written by hand: four objects and the table of their places.
#include "tests/printers/EdgedPage.h"

#include <array>

namespace printertest
{

namespace
{

QByteArray points(double mm)
{
    constexpr int decimals = 6;
    return QByteArray::number(mm / 25.4 * 72.0, 'f', decimals);
}

QByteArray stream(double lengthMm, const std::vector<Block> &blocks)
{
    QByteArray drawing = "0 g\n";
    for (const Block &block : blocks) {
        drawing += points(block.x) + ' ' + points(lengthMm - block.y - block.height) + ' ' + points(block.width) + ' ' +
                   points(block.height) + " re f\n";
    }
    return "<< /Length " + QByteArray::number(drawing.size()) + " >>\nstream\n" + drawing + "endstream";
}

} // namespace

QByteArray pageWith(double widthMm, double lengthMm, const std::vector<Block> &blocks)
{
    const std::array<QByteArray, 4> objects{
        "<< /Type /Catalog /Pages 2 0 R >>", "<< /Type /Pages /Kids [3 0 R] /Count 1 >>",
        "<< /Type /Page /Parent 2 0 R /Resources << >> /Contents 4 0 R /MediaBox [0 0 " + points(widthMm) + ' ' +
            points(lengthMm) + "] >>",
        stream(lengthMm, blocks)};
    QByteArray pdf = "%PDF-1.4\n";
    QByteArray places = "0000000000 65535 f \n";
    for (std::size_t i = 0; i < objects.size(); ++i) {
        places += QByteArray::number(pdf.size()).rightJustified(10, '0') + " 00000 n \n";
        pdf += QByteArray::number(static_cast<int>(i) + 1) + " 0 obj\n" + objects[i] + "\nendobj\n";
    }
    const QByteArray start = QByteArray::number(pdf.size());
    return pdf + "xref\n0 5\n" + places + "trailer\n<< /Size 5 /Root 1 0 R >>\nstartxref\n" + start + "\n%%EOF\n";
}

} // namespace printertest
