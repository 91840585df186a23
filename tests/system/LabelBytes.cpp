// SPDX-License-Identifier: Apache-2.0
// A strict reader: text between labels, a label that does not end, or half a row make the whole no label's bytes.
#include "tests/system/LabelBytes.h"

#include <QRegularExpression>
#include <QString>

namespace systemtest
{

std::vector<Label> labelsIn(const QByteArray &bytes)
{
    // The darkness may be set (~SD); the image is downloaded, printed, and deleted again; a cutter's command (^CN) may
    // follow.
    static const QRegularExpression label(
        QStringLiteral(R"(\G(?:~SD\d\d\n)?~DGR:CUPS\.GRF,(\d+),(\d+),\n[0-9A-Za-z,:!\n]*)"
                       R"(\^XA\n((?:[\^~][^\n]*\n)*?)\^FO0,0\^XGR:CUPS\.GRF,1,1\^FS\n\^XZ\n)"
                       R"(\^XA\n\^IDR:CUPS\.GRF\^FS\n\^XZ\n(?:\^CN\d\n)?)"));
    static const QRegularExpression quantity(QStringLiteral(R"(\^PQ(\d+))"));
    const QString text = QString::fromLatin1(bytes);
    std::vector<Label> labels;
    qsizetype at = 0;
    while (at < text.size()) {
        const QRegularExpressionMatch match = label.match(text, at);
        const int bytesPerRow = match.captured(2).toInt();
        if (!match.hasMatch() || bytesPerRow == 0 || match.captured(1).toInt() % bytesPerRow != 0) {
            return {};
        }
        const QRegularExpressionMatch copies = quantity.match(match.captured(3));
        labels.push_back(
            {bytesPerRow, match.captured(1).toInt() / bytesPerRow, copies.hasMatch() ? copies.captured(1).toInt() : 1});
        at = match.capturedEnd();
    }
    return labels;
}

} // namespace systemtest
