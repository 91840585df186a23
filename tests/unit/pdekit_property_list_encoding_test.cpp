// SPDX-License-Identifier: Apache-2.0
// Property lists in other encodings than UTF-8, by their byte order mark or their declaration.
#include "TextPrinting.h"
#include "pdekit/PropertyList.h"
#include "pdekit/StringEncoding.h"

#include <gtest/gtest.h>

using namespace pdekit;

namespace
{

/// A property list of this one text.
QString listOf(const QString &text, const QString &declaration)
{
    return declaration + u"<plist version=\"1.0\"><string>"_qs + text + u"</string></plist>"_qs;
}

QString declaring(const QString &encoding)
{
    return u"<?xml version=\"1.0\" encoding=\"%1\"?>\n"_qs.arg(encoding);
}

QByteArray bytes(const QString &text, const char *encoding)
{
    const auto converted = bytesFromString(text, encoding);
    EXPECT_TRUE(converted.has_value());
    return converted.value_or(QByteArray());
}

/// The text that a property list holds; null when it is refused.
QString textIn(const QByteArray &xml)
{
    const auto value = propertyListFromXml(xml);
    return value ? value->toString() : QString();
}

const QString kText = QStringLiteral("B\u00E4nd 24 \u65E5\u672C \U0001F600");
const QString kWestern = QStringLiteral("B\u00E4nd \u00DF\u00FF");
const QByteArray kUtf8Mark = "\xEF\xBB\xBF";
const QByteArray kBigEndianMark = "\xFE\xFF";
const QByteArray kLittleEndianMark = "\xFF\xFE";

TEST(PropertyListEncoding, Utf8_WithAByteOrderMark_IsRead)
{
    EXPECT_EQ(textIn(kUtf8Mark + listOf(kText, declaring(u"UTF-8"_qs)).toUtf8()), kText);
    EXPECT_EQ(textIn(kUtf8Mark + listOf(kText, QString()).toUtf8()), kText);
}

TEST(PropertyListEncoding, Utf8_IsWhatADocumentWithoutADeclarationIsIn)
{
    EXPECT_EQ(textIn(listOf(kText, QString()).toUtf8()), kText);
    EXPECT_EQ(textIn(listOf(kText, u"<?xml version='1.0'?>"_qs).toUtf8()), kText);
    EXPECT_EQ(textIn(listOf(kText, u"<?xml version='1.0' encoding = 'utf-8' standalone='yes' ?>"_qs).toUtf8()), kText);
}

TEST(PropertyListEncoding, Utf16_InBothByteOrders_IsReadByItsMark)
{
    for (const QString &declaration : {QString(), declaring(u"UTF-16"_qs)}) {
        const QString list = listOf(kText, declaration);
        EXPECT_EQ(textIn(kBigEndianMark + bytes(list, "UTF-16BE")), kText) << declaration.toStdString();
        EXPECT_EQ(textIn(kLittleEndianMark + bytes(list, "UTF-16LE")), kText) << declaration.toStdString();
    }
}

TEST(PropertyListEncoding, Utf16_WithoutAMark_IsReadByItsFirstCharacter)
{
    EXPECT_EQ(textIn(bytes(listOf(kText, declaring(u"UTF-16BE"_qs)), "UTF-16BE")), kText);
    EXPECT_EQ(textIn(bytes(listOf(kText, declaring(u"UTF-16LE"_qs)), "UTF-16LE")), kText);
}

TEST(PropertyListEncoding, Utf32_IsNotTakenForUtf16)
{
    const QString list = listOf(kText, declaring(u"UTF-32"_qs));
    EXPECT_EQ(textIn(QByteArray("\0\0\xFE\xFF", 4) + bytes(list, "UTF-32BE")), kText);
    EXPECT_EQ(textIn(QByteArray("\xFF\xFE\0\0", 4) + bytes(list, "UTF-32LE")), kText);
    EXPECT_EQ(textIn(bytes(list, "UTF-32BE")), kText);
    EXPECT_EQ(textIn(bytes(list, "UTF-32LE")), kText);
}

TEST(PropertyListEncoding, Latin1_IsReadByItsDeclaration)
{
    for (const QString &name : {u"ISO-8859-1"_qs, u"iso-8859-1"_qs, u"latin1"_qs}) {
        EXPECT_EQ(textIn(listOf(kWestern, declaring(name)).toLatin1()), kWestern) << name.toStdString();
    }
}

TEST(PropertyListEncoding, OtherDeclaredEncodings_AreRead)
{
    EXPECT_EQ(textIn(bytes(listOf(u"\u65E5\u672C"_qs, declaring(u"Shift_JIS"_qs)), "Shift_JIS")), u"\u65E5\u672C");
    // The euro sign is 0x80 in one and 0xA4 in the other.
    EXPECT_EQ(textIn(listOf(u"#"_qs, declaring(u"windows-1252"_qs)).toLatin1().replace('#', '\x80')), u"\u20AC");
    EXPECT_EQ(textIn(listOf(u"#"_qs, declaring(u"ISO-8859-15"_qs)).toLatin1().replace('#', '\xA4')), u"\u20AC");
}

TEST(PropertyListEncoding, Mark_GoesBeforeTheDeclaration)
{
    EXPECT_EQ(textIn(kUtf8Mark + listOf(kText, declaring(u"ISO-8859-1"_qs)).toUtf8()), kText);
    EXPECT_EQ(textIn(kLittleEndianMark + bytes(listOf(kText, declaring(u"UTF-8"_qs)), "UTF-16LE")), kText);
}

TEST(PropertyListEncoding, WordsOfADeclarationInTheText_AreNoDeclaration)
{
    EXPECT_EQ(textIn(u"<plist><string a=\"1\">encoding=\"ISO-8859-1\" \u00E4</string></plist>"_qs.toUtf8()),
              u"encoding=\"ISO-8859-1\" \u00E4");
}

class WrongEncoding : public testing::TestWithParam<QByteArray>
{
};

TEST_P(WrongEncoding, IsRefused)
{
    EXPECT_FALSE(propertyListFromXml(GetParam()).has_value());
}

INSTANTIATE_TEST_SUITE_P(Bytes, WrongEncoding,
                         testing::Values(listOf(kWestern, declaring(u"UTF-8"_qs)).toLatin1(),
                                         listOf(kWestern, QString()).toLatin1(),
                                         listOf(kWestern, declaring(u"US-ASCII"_qs)).toLatin1(),
                                         listOf(u"a"_qs, declaring(u"no-such-encoding"_qs)).toLatin1(),
                                         listOf(u"a"_qs, declaring(u"UTF-16"_qs)).toLatin1(),
                                         listOf(u"a"_qs, declaring(u"not a name"_qs)).toLatin1(),
                                         // Half a character at the end, and half a pair.
                                         kBigEndianMark + bytes(listOf(u"a"_qs, QString()), "UTF-16BE") + '\0',
                                         kBigEndianMark +
                                             bytes(listOf(u"#"_qs, QString()), "UTF-16BE").replace("\0#", "\xD8\0"),
                                         QByteArray("\xFF\xFE<\0p\0", 6)));

} // namespace
