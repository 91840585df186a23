// SPDX-License-Identifier: Apache-2.0
// Five objects, written here: Qt's own writer of PDFs rounds pages to whole points, which would stretch a picture.
#include "job/PicturePdf.h"

#include "job/Conversion.h"
#include "job/PlainText.h"
#include "job/Reason.h"
#include "job/Texts.h"
#include "job/WriteFailure.h"

#include <QByteArray>
#include <QByteArrayList>
#include <QFile>
#include <QImage>
#include <QImageReader>
#include <QPainter>
#include <QSizeF>

#include <pdekit/Numbers.h>

namespace tapeprint::job
{

namespace
{

constexpr double pointsPerInch = 72.0;
constexpr double inchesPerMetre = 1000.0 / 25.4;
/// A picture that does not say its resolution is taken as one of a screen.
constexpr double usualDotsPerInch = 96.0;
/// What a picture may take in memory when it is unpacked, in MiB, and a dot of it in bytes.
constexpr int pictureMemoryMiB = 512;
constexpr qint64 bytesPerDot = 4;
constexpr int pageDecimals = 5;

bool isTooLarge(const QSize &size)
{
    return size.isValid() && bytesPerDot * size.width() * size.height() > qint64(pictureMemoryMiB) << 20;
}

QString refusal(const QString &picture, const QSize &size, const QString &reason)
{
    if (size.isValid() && size.width() > 0) {
        return Texts::tr(
                   "The picture %1 (%2 x %3 dots) cannot be unpacked (%4): make it smaller, or print it as a PDF.")
            .arg(harmless(picture), QString::number(size.width()), QString::number(size.height()), harmless(reason));
    }
    return Texts::tr("The picture %1 is damaged (%2): make it anew or name another.")
        .arg(harmless(picture), harmless(reason));
}

QSizeF pageOf(const QImage &picture)
{
    const auto points = [](int dots, int dotsPerMetre) {
        const double perInch = dotsPerMetre > 0 ? dotsPerMetre / inchesPerMetre : usualDotsPerInch;
        return dots / perInch * pointsPerInch;
    };
    return {points(picture.width(), picture.dotsPerMeterX()), points(picture.height(), picture.dotsPerMeterY())};
}

QImage onWhite(const QImage &picture)
{
    if (!picture.hasAlphaChannel()) {
        return picture;
    }
    QImage opaque(picture.size(), QImage::Format_RGB32);
    opaque.fill(Qt::white);
    QPainter(&opaque).drawImage(QRect(QPoint(), picture.size()), picture);
    return opaque;
}

/// The dots without what Qt keeps at the end of each line.
QByteArray dotsOf(const QImage &picture)
{
    const qsizetype bytesPerLine = picture.width() * static_cast<qsizetype>(picture.depth() / 8);
    QByteArray dots;
    dots.reserve(bytesPerLine * picture.height());
    for (int y = 0; y < picture.height(); ++y) {
        dots.append(reinterpret_cast<const char *>(picture.constScanLine(y)), bytesPerLine);
    }
    return dots;
}

QByteArray stream(const QByteArray &dictionary, const QByteArray &bytes)
{
    constexpr int lengthBytes = 4; // which qCompress() puts before what others understand
    const QByteArray deflated = qCompress(bytes).mid(lengthBytes);
    return "<< " + dictionary + " /Filter /FlateDecode /Length " + QByteArray::number(deflated.size()) +
           " >>\nstream\n" + deflated + "\nendstream";
}

/// A document of objects, of which the first is the catalogue.
QByteArray documentOf(const QByteArrayList &objects)
{
    constexpr int placeDigits = 10;
    QByteArray pdf = "%PDF-1.3\n";
    QByteArray places = "0000000000 65535 f \n";
    for (qsizetype i = 0; i < objects.size(); ++i) {
        places += QByteArray::number(pdf.size()).rightJustified(placeDigits, '0') + " 00000 n \n";
        pdf += QByteArray::number(i + 1) + " 0 obj\n" + objects[i] + "\nendobj\n";
    }
    const QByteArray size = QByteArray::number(objects.size() + 1);
    return pdf + "xref\n0 " + size + '\n' + places + "trailer << /Root 1 0 R /Size " + size + " >>\nstartxref\n" +
           QByteArray::number(pdf.size()) + "\n%%EOF\n";
}

QByteArray pageDocument(const QImage &picture, const QSizeF &sizePt)
{
    const bool isGrey = picture.isGrayscale();
    const QByteArray dots = dotsOf(picture.convertToFormat(isGrey ? QImage::Format_Grayscale8 : QImage::Format_RGB888));
    const QByteArray width = pdekit::fixedDecimals(sizePt.width(), pageDecimals).toLatin1();
    const QByteArray height = pdekit::fixedDecimals(sizePt.height(), pageDecimals).toLatin1();
    return documentOf(
        {"<< /Type /Catalog /Pages 2 0 R >>", "<< /Type /Pages /Kids [ 3 0 R ] /Count 1 >>",
         "<< /Type /Page /Parent 2 0 R /MediaBox [ 0 0 " + width + ' ' + height +
             " ] /Resources << /XObject << /Picture 4 0 R >> >> /Contents 5 0 R >>",
         stream("/Type /XObject /Subtype /Image /BitsPerComponent 8 /ColorSpace " +
                    QByteArray(isGrey ? "/DeviceGray" : "/DeviceRGB") + " /Width " +
                    QByteArray::number(picture.width()) + " /Height " + QByteArray::number(picture.height()),
                dots),
         stream({}, width + " 0 0 " + height + " 0 0 cm /Picture Do\n")});
}

} // namespace

bool pictureToPdf(const QString &picture, const QString &path, Problem *error)
{
    QImageReader reader(picture);
    reader.setDecideFormatFromContent(true);
    reader.setAutoTransform(true);
    if (isTooLarge(reader.size())) {
        *error = {Problem::BadDocument,
                  refusal(picture, reader.size(),
                          Texts::tr("more than %1 MiB of memory would be needed").arg(pictureMemoryMiB))};
        return false;
    }
    QImageReader::setAllocationLimit(pictureMemoryMiB); // for a format that does not tell its size beforehand
    const QImage image = reader.read();
    if (image.isNull()) {
        *error = {Problem::BadDocument, refusal(picture, reader.size(), reader.errorString())};
        return false;
    }
    QFile file(path);
    const QByteArray page = pageDocument(onWhite(image), pageOf(image));
    if (!file.open(QIODevice::WriteOnly) || file.write(page) != page.size() || !file.flush()) {
        *error = noRoomForTemporaryFiles(reasonText(whyNotWritten(file)));
        return false;
    }
    return true;
}

} // namespace tapeprint::job
