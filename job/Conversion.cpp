// SPDX-License-Identifier: Apache-2.0
// Telling documents apart, and the three roads to a PDF.
#include "job/Conversion.h"

#include "job/ConfinedRun.h"
#include "job/CupsfilterProgram.h"
#include "job/EpsPage.h"
#include "job/PicturePdf.h"
#include "job/PlainText.h"
#include "job/Reason.h"
#include "job/TextEncoding.h"
#include "job/TextPdf.h"
#include "job/Texts.h"
#include "job/WriteFailure.h"

#include <QByteArray>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>
#include <QRegularExpression>

#include <algorithm>

#include <pdekit/Numbers.h>

namespace tapeprint::job
{

namespace
{

constexpr qint64 looksAtBytes = 4096;
constexpr qint64 pdfHeaderWithin = 1024;

/// Whether a text is the source of something that nobody wants to see as a text: CUPS prints neither. Comments, an XML
/// declaration and the like may come first.
bool isMarkup(const QByteArray &beginning)
{
    static const QRegularExpression markup(
        QStringLiteral(R"(\A\x{FEFF}?\s*(<\?[^>]*>\s*|<!--.*?-->\s*)*(<!DOCTYPE\s+(html|svg)\b|<(html|svg)\b))"),
        QRegularExpression::CaseInsensitiveOption | QRegularExpression::DotMatchesEverythingOption);
    return markup.match(QString::fromUtf8(beginning)).hasMatch();
}

/// A PPD of one page, so that the filter sets text on exactly that page, whatever the printer's own description says.
QByteArray pageDescription(const QSizeF &sizePt, const QMarginsF &unprintablePt)
{
    const auto pair = [](double across, double along) {
        return (pdekit::fixedDecimals(across, 2) + u' ' + pdekit::fixedDecimals(along, 2)).toLatin1();
    };
    const QByteArray size = pair(sizePt.width(), sizePt.height());
    const QByteArray area =
        pair(unprintablePt.left(), unprintablePt.bottom()) + ' ' +
        pair(sizePt.width() - unprintablePt.right(), sizePt.height() - unprintablePt.top()); // from the lower left
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
*ImageableArea Page: ")PPD" +
           area + "\"\n*DefaultPaperDimension: Page\n*PaperDimension Page: \"" + size + "\"\n";
}

bool writeDescription(const QString &path, const QSizeF &sizePt, const QMarginsF &unprintablePt, Problem *error)
{
    QFile file(path);
    const QByteArray text = pageDescription(sizePt, unprintablePt);
    if (file.open(QIODevice::WriteOnly) && file.write(text) == text.size() && file.flush()) {
        return true;
    }
    *error = noRoomForTemporaryFiles(whyNotWritten(file));
    return false;
}

/// The line in which the filters say what went wrong.
QString complaintOf(const QByteArray &messages)
{
    for (const QByteArray &line : messages.split('\n')) {
        if (line.startsWith("ERROR:")) {
            return reasonText(QString::fromUtf8(line.mid(6)));
        }
    }
    return Texts::tr("they do not say why");
}

/// A document as the person knows it, and the file that is read in its place.
struct Input {
    QString name;
    QString file;
};

/// What the filters are to do.
struct Wanted {
    QString from = {};                              ///< the document's type; null: what CUPS takes it for
    QString to = QStringLiteral("application/pdf"); ///< the type to make
    QString description = {};                       ///< a PPD, or null
    QStringList options = {};                       ///< NAME=VALUE
};

/// Runs cupsfilter.
bool convertByFilters(const Input &document, const Wanted &wanted, const QString &path, const std::atomic<bool> &stop,
                      Problem *error)
{
    ConfinedCommand command;
    command.program = findCupsfilter();
    if (command.program.isEmpty()) {
        *error = cupsfilterMissing();
        return false;
    }
    const QString source = QFileInfo(document.file).absoluteFilePath();
    command.readable << source;
    if (!wanted.from.isNull()) {
        command.arguments << QStringLiteral("-i") << wanted.from;
    }
    command.arguments << QStringLiteral("-m") << wanted.to << QStringLiteral("-e");
    if (!wanted.description.isNull()) {
        command.readable << wanted.description;
        command.arguments << QStringLiteral("-p") << wanted.description;
    }
    for (const QString &option : wanted.options) {
        command.arguments << QStringLiteral("-o") << option;
    }
    command.arguments << source;

    QFile output(path);
    if (!output.open(QIODevice::WriteOnly)) {
        *error = noRoomForTemporaryFiles(whyNotWritten(output));
        return false;
    }
    const ConfinedRun run = runConfined(
        command, [&output](const QByteArray &bytes) { return output.write(bytes) == bytes.size(); }, &stop);
    if (run.end == ConfinedRun::End::stopped) {
        return false;
    }
    if (run.end == ConfinedRun::End::refused || !output.flush()) {
        *error = noRoomForTemporaryFiles(whyNotWritten(output));
        return false;
    }
    if (run.end != ConfinedRun::End::finished || run.exitCode != 0 || output.size() == 0) {
        *error = {Problem::BadDocument,
                  Texts::tr("The filters could not make pages of the document %1: %2.")
                      .arg(harmless(document.name),
                           run.reason.isEmpty() ? complaintOf(run.messages) : reasonText(run.reason))};
        return false;
    }
    return true;
}

/// The text as the filters read it, beside the PDF where it has to be written anew.
/// \return the file to print; null, and a sentence in *error, when that cannot be written.
QString asFilterText(const QString &document, const QString &path, Problem *error)
{
    if (isFilterText(document)) {
        return document;
    }
    QString copy = path + QLatin1String(".txt");
    QString reason;
    if (!writeFilterText(document, copy, &reason)) {
        *error = noRoomForTemporaryFiles(reason);
        return {};
    }
    return copy;
}

/// Sets text by CUPS's filter.
bool filterText(const Input &document, const QSizeF &pagePt, const QString &path, const std::atomic<bool> &stop,
                Problem *error)
{
    const QString description = path + QLatin1String(".ppd");
    if (!writeDescription(description, pagePt, {}, error)) {
        return false;
    }
    // The margins of the label are kept free by the layout; text begins at the very edge of its page.
    QStringList options;
    for (const char *edge : {"page-left=0", "page-right=0", "page-top=0", "page-bottom=0"}) {
        options << QString::fromLatin1(edge);
    }
    Wanted wanted;
    wanted.from = QStringLiteral("text/plain");
    wanted.description = description;
    wanted.options = options;
    const bool done = convertByFilters(document, wanted, path, stop, error);
    QFile::remove(description);
    return done;
}

bool textToPdf(const QString &document, const QSizeF &pagePt, const QString &path, const std::atomic<bool> &stop,
               Problem *error)
{
    const QString text = asFilterText(document, path, error);
    if (text.isNull()) {
        return false;
    }
    const bool isDrawnHere = canDrawText() && needsOwnFonts(text);
    const bool done = isDrawnHere ? drawTextPdf(text, pagePt, path, stop, error)
                                  : filterText({document, text}, pagePt, path, stop, error);
    if (text != document) {
        QFile::remove(text);
    }
    return done;
}

bool postScriptToPdf(const QString &document, const QString &path, const std::atomic<bool> &stop, Problem *error)
{
    Wanted wanted;
    wanted.from = QStringLiteral("application/postscript");
    QFile file(document);
    const std::optional<QRectF> box =
        file.open(QIODevice::ReadOnly) ? epsBoxOf(file.read(looksAtBytes)) : std::optional<QRectF>();
    if (!box) {
        return convertByFilters({document, document}, wanted, path, stop, error);
    }
    const QString page = path + QLatin1String(".ps");
    QString reason;
    if (!writeEpsPage(document, *box, page, &reason)) {
        *error = noRoomForTemporaryFiles(reason);
        return false;
    }
    const bool done = convertByFilters({document, page}, wanted, path, stop, error);
    QFile::remove(page);
    return done;
}

} // namespace

QString noRoomForTemporaryFiles(const QString &reason)
{
    return Texts::tr(
               "A temporary file cannot be written (%1): see that the folder for temporary files can be written to "
               "and has room.")
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
    if (beginsAsUtf16(beginning)) {
        return DocumentKind::Text;
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
    return isText && !isMarkup(beginning) ? DocumentKind::Text : DocumentKind::Unknown;
}

bool convertToPdf(const QString &document, const QSizeF &textPagePt, const QString &path, const std::atomic<bool> &stop,
                  Problem *error)
{
    switch (documentKindOf(document)) {
    case DocumentKind::Pdf:
        return QFile::copy(document, path);
    case DocumentKind::PostScript:
        return postScriptToPdf(document, path, stop, error);
    case DocumentKind::Picture:
        return pictureToPdf(document, path, error);
    case DocumentKind::Text:
        return textToPdf(document, textPagePt, path, stop, error);
    case DocumentKind::Unknown:
        break;
    }
    *error = {
        Problem::BadDocument,
        Texts::tr("The document %1 is of a kind that cannot be laid out on tape: open it in a program that shows it, "
                  "save it from there as a PDF or PNG, and print that.")
            .arg(harmless(document))};
    return false;
}

bool convertForPaper(const QString &document, const PaperSheet &sheet, const QString &path,
                     const std::atomic<bool> &stop, Problem *error)
{
    const DocumentKind kind = documentKindOf(document);
    if (kind == DocumentKind::Unknown) {
        *error = {Problem::BadDocument,
                  Texts::tr("%1 is handed to the print server as it is, which may know what to make of it.")
                      .arg(harmless(document))};
        return false;
    }
    Wanted wanted;
    wanted.description = path + QLatin1String(".ppd");
    wanted.options = sheet.options;
    if (kind == DocumentKind::Picture) {
        wanted.to = QStringLiteral("application/vnd.cups-pdf"); // the next filter lays nothing out any more
    }
    const QString file = kind == DocumentKind::Text ? asFilterText(document, path, error) : document;
    if (file.isNull() || !writeDescription(wanted.description, sheet.sizePt, sheet.unprintablePt, error)) {
        return false;
    }
    const bool done = convertByFilters({document, file}, wanted, path, stop, error);
    QFile::remove(wanted.description);
    if (file != document) {
        QFile::remove(file);
    }
    return done;
}

} // namespace tapeprint::job
