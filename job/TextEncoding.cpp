// SPDX-License-Identifier: Apache-2.0
// Text is read piece by piece: it may be longer than memory.
#include "job/TextEncoding.h"

#include "job/WriteFailure.h"

#include <QFile>
#include <QStringDecoder>

#include <algorithm>
#include <array>
#include <cstddef>
#include <optional>

namespace tapeprint::job
{

namespace
{

constexpr qint64 pieceBytes = 65536;
const QByteArray utf8Mark = QByteArrayLiteral("\xef\xbb\xbf");

/// What Windows has where Latin-1 has nothing to print, from 0x80 on.
constexpr char16_t windowsFirst = 0x80;
constexpr std::array<char16_t, 32> windowsCharacters{0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                                     0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
                                                     0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                                     0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

QString windowsText(const QByteArray &bytes)
{
    QString text = QString::fromLatin1(bytes);
    std::for_each(text.begin(), text.end(), [](QChar &character) {
        const auto place = static_cast<std::size_t>(character.unicode() - windowsFirst);
        if (character.unicode() >= windowsFirst && place < windowsCharacters.size()) {
            character = QChar(windowsCharacters.at(place));
        }
    });
    return text;
}

/// Whether a file is UTF-8 from where it stands to its end.
bool isUtf8(QFile &file)
{
    QStringDecoder decoder(QStringDecoder::Utf8);
    while (!file.atEnd() && !decoder.hasError()) {
        const QString decoded = decoder(file.read(pieceBytes));
    }
    // The last character may have been cut.
    const QString last = decoder(QByteArrayLiteral("\n"));
    return !decoder.hasError();
}

} // namespace

bool beginsAsUtf16(const QByteArray &beginning)
{
    return beginning.startsWith("\xff\xfe") || beginning.startsWith("\xfe\xff");
}

bool isFilterText(const QString &document)
{
    QFile file(document);
    return !file.open(QIODevice::ReadOnly) || (file.peek(utf8Mark.size()) != utf8Mark && isUtf8(file));
}

bool writeFilterText(const QString &document, const QString &path, QString *reason)
{
    QFile file(document);
    QFile copy(path);
    if (!file.open(QIODevice::ReadOnly)) {
        *reason = file.errorString();
        return false;
    }
    std::optional<QStringDecoder> unicode;
    if (beginsAsUtf16(file.peek(2))) {
        unicode.emplace(QStringDecoder::Utf16); // which reads the mark
    } else if (isUtf8(file)) {
        unicode.emplace(QStringDecoder::Utf8);
    }
    bool isWritten = file.seek(0) && copy.open(QIODevice::WriteOnly);
    while (isWritten && !file.atEnd()) {
        const QByteArray bytes = file.read(pieceBytes);
        const QString text = unicode ? QString((*unicode)(bytes)) : windowsText(bytes);
        const QByteArray piece = text.toUtf8();
        isWritten = copy.write(piece) == piece.size();
    }
    isWritten = isWritten && copy.flush();
    if (!isWritten) {
        *reason = whyNotWritten(copy);
    }
    return isWritten;
}

} // namespace tapeprint::job
