// SPDX-License-Identifier: Apache-2.0
// Telling documents apart, and the three roads to a PDF.
#include "job/Conversion.h"

#include "job/ConfinedRun.h"
#include "job/CupsfilterProgram.h"
#include "job/PlainText.h"
#include "job/Texts.h"

#include <QByteArray>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>
#include <QPageLayout>
#include <QPainter>
#include <QPdfWriter>

#include <algorithm>

#include <pdekit/Numbers.h>

namespace tapeprint::job
{

namespace
{

constexpr qint64 looksAtBytes = 4096;
constexpr qint64 pdfHeaderWithin = 1024;
constexpr double pointsPerInch = 72.0;
constexpr double inchesPerMetre = 39.3700787;
/// A picture that does not say its resolution is taken as one of a screen.
constexpr double usualDotsPerInch = 96.0;
/// What a picture may take in memory when it is unpacked, in MiB.
constexpr int pictureMemoryMiB = 512;

/// A PPD of one page, so that the filter sets text on exactly that page, whatever the printer's own description says.
QByteArray pageDescription(const QSizeF &sizePt)
{
    const QByteArray size =
        (pdekit::fixedDecimals(sizePt.width(), 2) + u' ' + pdekit::fixedDecimals(sizePt.height(), 2)).toLatin1();
    return R"PPD(*PPD-Adobe: "4.3"
*FormatVersion: "4.3"
*FileVersion: "1.0"
*LanguageVersion: English
*LanguageEncoding: ISOLatin1
*PCFileName: "TEXTPAGE.PPD"
*Product: "(Text page)"
*Manufacturer: "TapePrint"
*ModelName: "Text page"
*ShortNickName: "Text page"
*NickName: "Text page"
*PSVersion: "(3010.000) 0"
*LanguageLevel: "3"
*ColorDevice: True
*DefaultColorSpace: RGB
*FileSystem: False
*OpenUI *PageSize: PickOne
*OrderDependency: 10 AnySetup *PageSize
*DefaultPageSize: Page
*PageSize Page/Page: ""
*CloseUI: *PageSize
*OpenUI *PageRegion: PickOne
*OrderDependency: 10 AnySetup *PageRegion
*DefaultPageRegion: Page
*PageRegion Page/Page: ""
*CloseUI: *PageRegion
*DefaultImageableArea: Page
*ImageableArea Page: "0 0 )PPD" +
           size + "\"\n*DefaultPaperDimension: Page\n*PaperDimension Page: \"" + size + "\"\n";
}

bool writeDescription(const QString &path, const QSizeF &sizePt, QString *error)
{
    QFile file(path);
    const QByteArray text = pageDescription(sizePt);
    if (file.open(QIODevice::WriteOnly) && file.write(text) == text.size() && file.flush()) {
        return true;
    }
    *error = noRoomForTemporaryFiles(file.errorString());
    return false;
}

/// The line in which the filters say what went wrong.
QString complaintOf(const QByteArray &messages)
{
    for (const QByteArray &line : messages.split('\n')) {
        if (line.startsWith("ERROR:")) {
            return harmless(QString::fromUtf8(line.mid(6)).simplified());
        }
    }
    return Texts::tr("they do not say why");
}

/// Runs cupsfilter from a document type to PDF. \param description a PPD, or null.
bool convertByFilters(const QString &document, const QString &type, const QString &description,
                      const QStringList &options, const QString &path, const std::atomic<bool> &stop, QString *error)
{
    ConfinedCommand command;
    command.program = findCupsfilter();
    if (command.program.isEmpty()) {
        *error = cupsfilterMissing();
        return false;
    }
    const QString source = QFileInfo(document).absoluteFilePath();
    command.readable << source;
    command.arguments << QStringLiteral("-i") << type << QStringLiteral("-m") << QStringLiteral("application/pdf")
                      << QStringLiteral("-e");
    if (!description.isNull()) {
        command.readable << description;
        command.arguments << QStringLiteral("-p") << description;
    }
    for (const QString &option : options) {
        command.arguments << QStringLiteral("-o") << option;
    }
    command.arguments << source;

    QFile output(path);
    if (!output.open(QIODevice::WriteOnly)) {
        *error = noRoomForTemporaryFiles(output.errorString());
        return false;
    }
    const ConfinedRun run = runConfined(
        command, [&output](const QByteArray &bytes) { return output.write(bytes) == bytes.size(); }, &stop);
    if (run.end == ConfinedRun::End::stopped) {
        return false;
    }
    if (run.end == ConfinedRun::End::refused || !output.flush()) {
        *error = noRoomForTemporaryFiles(output.errorString());
        return false;
    }
    if (run.end != ConfinedRun::End::finished || run.exitCode != 0 || output.size() == 0) {
        *error = Texts::tr("The filters could not make pages of the document %1: %2.")
                     .arg(harmless(document), run.reason.isEmpty() ? complaintOf(run.messages) : run.reason);
        return false;
    }
    return true;
}

bool textToPdf(const QString &document, const QSizeF &pagePt, const QString &path, const std::atomic<bool> &stop,
               QString *error)
{
    const QString description = path + QLatin1String(".ppd");
    if (!writeDescription(description, pagePt, error)) {
        return false;
    }
    // The margins of the label are kept free by the layout; text begins at the very edge of its page.
    QStringList options;
    for (const char *edge : {"page-left=0", "page-right=0", "page-top=0", "page-bottom=0"}) {
        options << QString::fromLatin1(edge);
    }
    const bool done = convertByFilters(document, QStringLiteral("text/plain"), description, options, path, stop, error);
    QFile::remove(description);
    return done;
}

bool pictureToPdf(const QString &document, const QString &path, QString *error)
{
    QImageReader reader(document);
    reader.setDecideFormatFromContent(true);
    reader.setAutoTransform(true);
    QImageReader::setAllocationLimit(pictureMemoryMiB);
    const QImage picture = reader.read();
    if (picture.isNull()) {
        const QSize size = reader.size();
        *error = size.isValid() && size.width() > 0
                     ? Texts::tr("The picture %1 (%2 x %3 dots) cannot be unpacked (%4): make it smaller, or print it "
                                 "as a PDF.")
                           .arg(harmless(document), QString::number(size.width()), QString::number(size.height()),
                                reader.errorString())
                     : Texts::tr("The picture %1 is damaged (%2): make it anew or name another.")
                           .arg(harmless(document), reader.errorString());
        return false;
    }
    // Qt says 96 dots an inch, rounded to the metre, for a picture that says nothing.
    const auto dotsPerInch = [](int dotsPerMetre) {
        return dotsPerMetre > 0 ? dotsPerMetre / inchesPerMetre : usualDotsPerInch;
    };
    const QSizeF pagePt(picture.width() / dotsPerInch(picture.dotsPerMeterX()) * pointsPerInch,
                        picture.height() / dotsPerInch(picture.dotsPerMeterY()) * pointsPerInch);
    QPdfWriter writer(path);
    writer.setPageLayout(QPageLayout(QPageSize(pagePt, QPageSize::Point, QString(), QPageSize::ExactMatch),
                                     QPageLayout::Portrait, QMarginsF()));
    QPainter painter;
    if (!painter.begin(&writer)) {
        *error = noRoomForTemporaryFiles(path);
        return false;
    }
    painter.setRenderHint(QPainter::LosslessImageRendering); // a bar code is not to be smeared
    painter.drawImage(QRectF(0, 0, writer.width(), writer.height()), picture);
    return painter.end();
}

} // namespace

QString noRoomForTemporaryFiles(const QString &reason)
{
    return Texts::tr("A temporary file cannot be written (%1): make room in the folder for temporary files.")
        .arg(reason);
}

DocumentKind documentKindOf(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return DocumentKind::Unknown;
    }
    const QByteArray beginning = file.read(looksAtBytes);
    file.close();
    if (beginning.left(pdfHeaderWithin).contains("%PDF-")) {
        return DocumentKind::Pdf;
    }
    // Some drivers put a printer language's own command before the PostScript.
    if (beginning.startsWith("%!") || beginning.startsWith("\x04%!") || beginning.startsWith("\x1b%-12345X")) {
        return DocumentKind::PostScript;
    }
    QImageReader reader(path);
    reader.setDecideFormatFromContent(true);
    if (reader.canRead()) {
        return DocumentKind::Picture;
    }
    const bool isText = !beginning.isEmpty() && std::none_of(beginning.begin(), beginning.end(), [](char byte) {
        const auto code = static_cast<unsigned char>(byte);
        return code < 0x20 && byte != '\n' && byte != '\r' && byte != '\t' && byte != '\f' && byte != '\b' &&
               byte != '\x1b';
    });
    return isText ? DocumentKind::Text : DocumentKind::Unknown;
}

bool convertToPdf(const QString &document, const QSizeF &textPagePt, const QString &path, const std::atomic<bool> &stop,
                  QString *error)
{
    switch (documentKindOf(document)) {
    case DocumentKind::Pdf:
        return QFile::copy(document, path);
    case DocumentKind::PostScript:
        return convertByFilters(document, QStringLiteral("application/postscript"), {}, {}, path, stop, error);
    case DocumentKind::Picture:
        return pictureToPdf(document, path, error);
    case DocumentKind::Text:
        return textToPdf(document, textPagePt, path, stop, error);
    case DocumentKind::Unknown:
        break;
    }
    *error =
        Texts::tr("The document %1 is none that can be laid out on tape: print a PDF, a PostScript file, a picture "
                  "or plain text.")
            .arg(harmless(document));
    return false;
}

} // namespace tapeprint::job
