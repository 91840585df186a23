// SPDX-License-Identifier: Apache-2.0
// Written with libqpdf: Qt's own writer of PDFs rounds pages to whole points, which would stretch a picture.
#include "job/PicturePdf.h"

#include "job/Conversion.h"
#include "job/PdfWriting.h"
#include "job/PlainText.h"
#include "job/Texts.h"

#include <QByteArray>
#include <QImage>
#include <QImageReader>
#include <QPainter>
#include <QSizeF>

#include <exception>
#include <memory>

#include <pdekit/Numbers.h>

#include <qpdf/Buffer.hh>
#include <qpdf/QPDF.hh>

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

void writePage(const QImage &picture, const QSizeF &sizePt, const QString &path)
{
    const bool isGrey = picture.isGrayscale();
    QByteArray dots = dotsOf(picture.convertToFormat(isGrey ? QImage::Format_Grayscale8 : QImage::Format_RGB888));
    const std::string width = pdekit::fixedDecimals(sizePt.width(), pageDecimals).toStdString();
    const std::string height = pdekit::fixedDecimals(sizePt.height(), pageDecimals).toStdString();

    QPDF pdf;
    pdf.emptyPDF();
    QPDFObjectHandle image = QPDFObjectHandle::newStream(&pdf);
    image.replaceDict(QPDFObjectHandle::parse("<< /Type /XObject /Subtype /Image /BitsPerComponent 8 /ColorSpace " +
                                              std::string(isGrey ? "/DeviceGray" : "/DeviceRGB") + " /Width " +
                                              std::to_string(picture.width()) + " /Height " +
                                              std::to_string(picture.height()) + " >>"));
    image.replaceStreamData(
        std::make_shared<Buffer>(reinterpret_cast<unsigned char *>(dots.data()), static_cast<std::size_t>(dots.size())),
        QPDFObjectHandle::newNull(), QPDFObjectHandle::newNull());
    QPDFObjectHandle page = QPDFObjectHandle::parse("<< /Type /Page /MediaBox [ 0 0 " + width + ' ' + height +
                                                    " ] /Resources << /XObject << >> >> >>");
    page.getKey("/Resources").getKey("/XObject").replaceKey("/Picture", pdf.makeIndirectObject(image));
    page.replaceKey("/Contents", QPDFObjectHandle::newStream(&pdf, width + " 0 0 " + height + " 0 0 cm /Picture Do\n"));
    pdf.addPage(pdf.makeIndirectObject(page), true);
    writePdf(pdf, path);
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
    try {
        writePage(onWhite(image), pageOf(image), path);
    } catch (const std::exception &failure) {
        *error = noRoomForTemporaryFiles(harmless(QString::fromUtf8(failure.what()).simplified()));
        return false;
    }
    return true;
}

} // namespace tapeprint::job
