// SPDX-License-Identifier: Apache-2.0
// The toolkit finds a font for each character and knows in which direction a line runs.
#include "job/TextPdf.h"

#include "job/Conversion.h"
#include "job/TextEncoding.h"
#include "job/WriteFailure.h"

#include <QFile>
#include <QFileInfo>
#include <QFont>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <QStringDecoder>
#include <QTextLayout>

#include <algorithm>
#include <vector>

namespace tapeprint::job
{

namespace
{

constexpr qint64 pieceBytes = 65536;
/// So much text is drawn here: it is kept in memory as a whole, and makes a thousand labels.
constexpr qint64 mostBytes = qint64(4) << 20;

constexpr int dotsPerInch = 1200; // the places of characters are rounded to these
constexpr double pointsPerInch = 72.0;
constexpr double linePt = 12.0;
constexpr double baselinePt = 9.6; // below the upper edge of a line, whatever fonts are on it
constexpr int charactersPerTab = 8;

double dots(double points)
{
    return points / pointsPerInch * dotsPerInch;
}

/// Whether the filter's table of fonts, or the usual font of fixed width, has a character. Surrogates are of scripts
/// and signs that neither has.
bool isDrawnByFilter(QChar character)
{
    const char16_t code = character.unicode();
    const bool isEuropean = code < 0x0590;
    const bool isSign = code >= 0x1E00 && code < 0x2E80;
    const bool isMark = code == 0xFEFF || code == QChar::ReplacementCharacter;
    return isEuropean || isSign || isMark;
}

/// Whether a character takes two places, as those of East Asia do, which have a square each.
bool isWide(QChar character)
{
    constexpr char16_t firstWide = 0x1100;
    return character.unicode() >= firstWide;
}

/// A text with blanks for its tabs. The toolkit's own are as far apart as the screen's dots are.
QString withoutTabs(const QString &paragraph)
{
    QString spaced;
    int places = 0;
    for (const QChar character : paragraph) {
        const int wanted = character == u'\t' ? charactersPerTab - places % charactersPerTab : 0;
        spaced += wanted > 0 ? QString(wanted, u' ') : QString(character);
        places += wanted > 0 ? wanted : isWide(character) ? 2 : 1;
    }
    return spaced;
}

/// Draws paragraph after paragraph, from page to page.
class TextPages
{
public:
    TextPages(QPdfWriter &pdf, const QSizeF &pagePt)
        : mPdf(pdf), mPainter(&pdf), mWidth(dots(pagePt.width())),
          mMostLines(std::max(1, static_cast<int>(pagePt.height() / linePt)))
    {
        mFont.setFamily(QStringLiteral("monospace"));
        mFont.setStyleHint(QFont::Monospace);
        mFont.setPointSizeF(linePt);
    }

    void draw(const QString &paragraph)
    {
        QTextLayout layout(withoutTabs(paragraph), mFont, &mPdf);
        QTextOption option;
        option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
        layout.setTextOption(option);
        layout.beginLayout();
        std::vector<QTextLine> lines;
        for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
            line.setLineWidth(mWidth);
            lines.push_back(line);
        }
        layout.endLayout();
        for (const QTextLine &line : lines) {
            nextLine();
            line.draw(&mPainter, QPointF(0, dots((mLine - 1) * linePt + baselinePt) - line.ascent() - line.y()));
        }
    }

    void nextPage() { mLine = mMostLines; }

private:
    void nextLine()
    {
        if (mLine == mMostLines) {
            mPdf.newPage();
            mLine = 0;
        }
        ++mLine;
    }

    QPdfWriter &mPdf;
    QPainter mPainter;
    QFont mFont;
    double mWidth;
    int mMostLines;
    int mLine = 0; ///< the last on its page that was drawn, from 1
};

} // namespace

bool needsOwnFonts(const QString &text)
{
    QFile file(text);
    if (!file.open(QIODevice::ReadOnly) || file.size() > mostBytes) {
        return false;
    }
    QStringDecoder decoder(QStringDecoder::Utf8);
    while (!file.atEnd()) {
        const QString piece = decoder(file.read(pieceBytes));
        if (!std::all_of(piece.begin(), piece.end(), isDrawnByFilter)) {
            return true;
        }
    }
    return false;
}

bool mayNeedOwnFonts(const QString &document)
{
    constexpr qint64 looksAtBytes = 4096;
    if (!QFileInfo(document).isFile()) {
        return true;
    }
    QFile file(document);
    if (!file.open(QIODevice::ReadOnly)) {
        return false;
    }
    const QByteArray beginning = file.read(looksAtBytes);
    return beginsAsUtf16(beginning) ||
           (!beginning.contains("%PDF-") && !beginning.contains('\0') && needsOwnFonts(document));
}

bool canDrawText()
{
    return qobject_cast<QGuiApplication *>(QCoreApplication::instance()) != nullptr &&
           !QFontDatabase::families().isEmpty();
}

bool drawTextPdf(const QString &text, const QSizeF &pagePt, const QString &path, const std::atomic<bool> &stop,
                 Problem *error)
{
    QFile file(text);
    QFile output(path);
    if (!file.open(QIODevice::ReadOnly) || !output.open(QIODevice::WriteOnly)) {
        *error = noRoomForTemporaryFiles(file.isOpen() ? output.errorString() : file.errorString());
        return false;
    }
    {
        QPdfWriter pdf(&output);
        pdf.setResolution(dotsPerInch);
        pdf.setPageSize(QPageSize(pagePt, QPageSize::Point, {}, QPageSize::ExactMatch));
        pdf.setPageMargins({});
        TextPages pages(pdf, pagePt);
        QString all = QString::fromUtf8(file.readAll());
        all.replace(QLatin1String("\r\n"), QLatin1String("\n")).replace(u'\r', u'\n');
        for (const QChar end : {u'\n', u'\f'}) { // what ends the last line or page begins no other
            all.chop(all.endsWith(end) ? 1 : 0);
        }
        bool isFirst = true;
        for (const QString &page : all.split(u'\f')) {
            if (!isFirst) {
                pages.nextPage();
            }
            isFirst = false;
            for (const QString &paragraph : page.split(u'\n')) {
                if (stop) {
                    return false;
                }
                pages.draw(paragraph);
            }
        }
    }
    if (!output.flush() || output.error() != QFile::NoError) {
        *error = noRoomForTemporaryFiles(whyNotWritten(output));
        return false;
    }
    return true;
}

} // namespace tapeprint::job
