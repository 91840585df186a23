// SPDX-License-Identifier: Apache-2.0
// Decodes a document by its byte order mark or its declaration, and writes it anew as it is read. libplist looks at
// neither, takes every document for UTF-8, and numbers that begin with 0 for octal ones.
#include "PlainXml.h"

#include "pdekit/StringEncoding.h"

#include <QRegularExpression>
#include <QXmlStreamReader>

#include <algorithm>
#include <array>
#include <string_view>

namespace pdekit
{

namespace
{

using namespace std::string_view_literals;

/// Of a tag; those of property lists have a dozen letters. The XML reader takes minutes over a tag of 100,000
/// attributes.
constexpr qsizetype kLongestTag = 1024;

/// What a document begins with in an encoding that a declaration cannot be read in.
struct Beginning {
    std::string_view bytes;
    const char *encoding;
    bool isByteOrderMark;
};
constexpr std::array kBeginnings = {
    Beginning{"\0\0\xFE\xFF"sv, "UTF-32BE", true}, // before UTF-16, whose mark is the half of it
    Beginning{"\xFF\xFE\0\0"sv, "UTF-32LE", true}, Beginning{"\xFE\xFF"sv, "UTF-16BE", true},
    Beginning{"\xFF\xFE"sv, "UTF-16LE", true},     Beginning{"\xEF\xBB\xBF"sv, "UTF-8", true},
    Beginning{"\0\0\0<"sv, "UTF-32BE", false},     Beginning{"<\0\0\0"sv, "UTF-32LE", false},
    Beginning{"\0<"sv, "UTF-16BE", false},         Beginning{"<\0"sv, "UTF-16LE", false},
};

/// The encoding that an XML declaration names; UTF-8 without one.
StringEncoding declaredEncoding(const QByteArray &xml)
{
    constexpr qsizetype kLongestDeclaration = 1024;
    static const QRegularExpression declaration(
        QStringLiteral(R"(^<\?xml\s[^>]*\bencoding\s*=\s*["']([A-Za-z][A-Za-z0-9._-]*)["'])"));
    const QRegularExpressionMatch match = declaration.match(QString::fromLatin1(xml.left(kLongestDeclaration)));
    return match.hasMatch() ? match.captured(1).toLatin1() : StringEncoding("UTF-8");
}

/// The document as text, without a byte order mark; a mark goes before what the declaration says. A null string when
/// the bytes are not valid in the encoding, or the encoding is unknown.
QString decoded(const QByteArray &xml)
{
    const auto *const found = std::find_if(kBeginnings.begin(), kBeginnings.end(), [&xml](const Beginning &beginning) {
        return xml.startsWith(QByteArrayView(beginning.bytes.data(), qsizetype(beginning.bytes.size())));
    });
    if (found == kBeginnings.end()) {
        return stringFromBytes(xml, declaredEncoding(xml));
    }
    const auto mark = found->isByteOrderMark ? static_cast<qsizetype>(found->bytes.size()) : 0;
    return stringFromBytes(QByteArrayView(xml).sliced(mark), found->encoding);
}

/// Where a tag ends, past its ">". A ">" between quotes is none. \return -1 when it has no end within its due length,
/// or has a "[", which opens a document's own declarations.
qsizetype endOfTag(QStringView text, qsizetype from)
{
    QChar quote;
    for (qsizetype at = from; at < std::min(text.size(), from + kLongestTag); ++at) {
        const QChar c = text[at];
        if (!quote.isNull()) {
            quote = c == quote ? QChar() : quote;
        } else if (c == u'"' || c == u'\'') {
            quote = c;
        } else if (c == u'>') {
            return at + 1;
        } else if (c == u'[') {
            return -1;
        }
    }
    return -1;
}

/// Whether every tag is of due length and no document type declares entities, attributes or the like.
bool hasModestMarkup(QStringView text)
{
    struct Span {
        QStringView begin;
        QStringView end;
    };
    static constexpr std::array kSpans = {Span{u"<!--", u"-->"}, Span{u"<![CDATA[", u"]]>"}, Span{u"<?", u"?>"}};
    for (qsizetype at = text.indexOf(u'<'); at >= 0; at = text.indexOf(u'<', at)) {
        const QStringView rest = text.sliced(at);
        const auto *const span = std::find_if(kSpans.begin(), kSpans.end(),
                                              [rest](const Span &known) { return rest.startsWith(known.begin); });
        if (span == kSpans.end()) {
            at = endOfTag(text, at);
        } else {
            at = text.indexOf(span->end, at + span->begin.size());
        }
        if (at < 0) {
            return false;
        }
    }
    return true;
}

/// A whole number without the zeros before it. Anything else, hexadecimal numbers among it, stays as it is.
QString decimal(const QString &text)
{
    // Nothing is given back once it has matched: a text of a million zeros is read once.
    static const QRegularExpression number(QStringLiteral("^\\s*+([-+]?)(0*+)([0-9]*+)\\s*+$"));
    const QRegularExpressionMatch match = number.match(text);
    const bool isZero = match.capturedLength(3) == 0;
    if (!match.hasMatch() || (isZero && match.capturedLength(2) == 0)) {
        return text;
    }
    return match.captured(1) + (isZero ? QStringLiteral("0") : match.captured(3));
}

/// A text as the content of an element. libplist moves all that follows for every "&lt;" that it resolves, and takes
/// minutes over a million of them; what stands in a CDATA section it only copies.
QString escaped(const QString &text)
{
    if (!text.contains(u'<') && !text.contains(u'&')) {
        return text;
    }
    QString content = text;
    content.replace(QLatin1StringView("]]>"), QLatin1StringView("]]]]><![CDATA[>"));
    return QLatin1StringView("<![CDATA[") + content + QLatin1StringView("]]>");
}

/// The document as the reader tells it, token by token.
class Rewriting
{
public:
    /// \return false when the document is refused.
    bool take(QXmlStreamReader &reader)
    {
        switch (reader.readNext()) {
        case QXmlStreamReader::StartElement:
            writeText();
            mOut += '<' + reader.name().toUtf8() + '>';
            mIsLeaf = true;
            return ++mDepth <= kMaximumDepth;
        case QXmlStreamReader::EndElement:
            if (mIsLeaf && reader.name() == u"integer") {
                mText = decimal(mText);
            }
            writeText();
            mOut += "</" + reader.name().toUtf8() + '>';
            mIsLeaf = false;
            --mDepth;
            return true;
        case QXmlStreamReader::Characters:
            mText += reader.text();
            return true;
        case QXmlStreamReader::EntityReference:
        case QXmlStreamReader::Invalid:
            return false;
        default:
            return true;
        }
    }

    const QByteArray &out() const { return mOut; }

private:
    void writeText()
    {
        mOut += escaped(mText).toUtf8();
        mText.clear();
    }

    QByteArray mOut;
    QString mText;
    int mDepth = 0;
    bool mIsLeaf = false; ///< the element has held nothing but text up to here
};

} // namespace

std::optional<QByteArray> plainXml(const QByteArray &xml)
{
    const QString text = decoded(xml);
    if (!hasModestMarkup(text)) {
        return std::nullopt;
    }
    QXmlStreamReader reader(text);
    reader.setNamespaceProcessing(false);
    Rewriting rewriting;
    while (!reader.atEnd()) {
        if (!rewriting.take(reader)) {
            return std::nullopt;
        }
    }
    return reader.hasError() ? std::nullopt : std::optional(rewriting.out());
}

} // namespace pdekit
