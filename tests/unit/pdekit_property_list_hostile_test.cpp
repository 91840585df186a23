// SPDX-License-Identifier: Apache-2.0
// Property lists that mean harm: they are answered in little time and memory, and lead to no file.
#include "ProcessorTime.h"
#include "TextPrinting.h"
#include "pdekit/PropertyList.h"

#include <QTemporaryFile>

#include <gtest/gtest.h>

#include <utility>

#include <sys/resource.h>

using namespace pdekit;

namespace
{

QByteArray plist(const QByteArray &content, const QByteArray &declarations = QByteArray())
{
    const QByteArray type = declarations.isEmpty() ? QByteArray() : "<!DOCTYPE plist [" + declarations + "]>\n";
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n" + type + "<plist version=\"1.0\">" + content + "</plist>";
}

/// Reads a property list of a few megabytes at the most, and holds the time and the memory that it takes.
std::optional<QVariant> readInBounds(const QByteArray &xml)
{
    rusage before = {};
    rusage after = {};
    getrusage(RUSAGE_SELF, &before);
    std::optional<QVariant> value;
    const double tookMs = tapeprint::test::processorMsOf([&] { value = propertyListFromXml(xml); });
    getrusage(RUSAGE_SELF, &after);
    EXPECT_LT(tookMs, 10'000) << "milliseconds";
    EXPECT_LT(after.ru_maxrss - before.ru_maxrss, 1'000'000) << "kilobytes";
    return value;
}

TEST(HostilePropertyList, ZeroToEightBytes_AreRefused)
{
    const QByteArray beginnings[] = {"<plist/>",
                                     "<?xml ve",
                                     "<!DOCTYP",
                                     "<!--  --",
                                     "bplist00",
                                     "        ",
                                     QByteArray(8, '\0'),
                                     QByteArray(8, '<'),
                                     QByteArray(8, '\xFF'),
                                     QByteArray("\xFF\xFE\0\0<\0\0\0", 8),
                                     QByteArray("\0\0\xFE\xFF\0\0\0<", 8),
                                     QByteArray("\xFF\xFE<\0p\0>\0", 8),
                                     QByteArray("\xFE\xFF\0<\0p\0>", 8),
                                     "\xEF\xBB\xBF<a/>"};
    for (const QByteArray &beginning : beginnings) {
        for (qsizetype size = 0; size <= beginning.size(); ++size) {
            EXPECT_FALSE(propertyListFromXml(beginning.left(size)).has_value())
                << beginning.left(size).toHex().toStdString();
        }
    }
}

TEST(HostilePropertyList, Blanks_AreRefused)
{
    for (const qsizetype size : {1, 8, 9, 100, 5'000'000}) {
        EXPECT_FALSE(readInBounds(QByteArray(size, ' ')).has_value()) << size;
        EXPECT_FALSE(readInBounds(QByteArray(size, '\n')).has_value()) << size;
    }
    EXPECT_FALSE(propertyListFromXml(plist("   \n")).has_value());
}

TEST(HostilePropertyList, NestingOf100000_IsRefused)
{
    const int depth = 100'000;
    for (const auto &[open, close] : {std::pair<QByteArray, QByteArray>{"<array>", "</array>"},
                                      {"<dict><key>a</key>", "</dict>"},
                                      {"<other>", "</other>"}}) {
        EXPECT_FALSE(readInBounds(plist(open.repeated(depth) + close.repeated(depth))).has_value());
        // Cut off in the middle, and without its end.
        EXPECT_FALSE(readInBounds(plist(open.repeated(depth))).has_value());
        EXPECT_FALSE(readInBounds("<plist>" + open.repeated(depth)).has_value());
    }
    // Closing tags that are none do not hide the depth.
    EXPECT_FALSE(readInBounds(plist(QByteArray("<array><!--</array>-->").repeated(depth) +
                                    QByteArray("</array>").repeated(depth)))
                     .has_value());
    EXPECT_FALSE(readInBounds(plist(QByteArray("<array><![CDATA[</array>]]>").repeated(depth) +
                                    QByteArray("</array>").repeated(depth)))
                     .has_value());
}

TEST(HostilePropertyList, BillionLaughs_AreRefused)
{
    QByteArray declarations = "<!ENTITY a0 'ha'>";
    for (int i = 1; i < 30; ++i) {
        declarations +=
            "<!ENTITY a" + QByteArray::number(i) + " '" + ("&a" + QByteArray::number(i - 1) + ";").repeated(10) + "'>";
    }
    EXPECT_FALSE(readInBounds(plist("<string>&a29;</string>", declarations)).has_value());
    EXPECT_FALSE(readInBounds(plist("<string a=\"&a29;\"/>", declarations)).has_value());
}

TEST(HostilePropertyList, OneLongEntityManyTimes_IsRefused)
{
    // 400 MB of text from 0.3 MB.
    const QByteArray declaration = "<!ENTITY a '" + QByteArray(4000, 'x') + "'>";
    EXPECT_FALSE(
        readInBounds(plist("<string>" + QByteArray("&a;").repeated(100'000) + "</string>", declaration)).has_value());
}

TEST(HostilePropertyList, EntityOfAFile_IsRefusedAndNeverRead)
{
    QTemporaryFile secret;
    ASSERT_TRUE(secret.open());
    ASSERT_EQ(secret.write("secret"), 6);
    ASSERT_TRUE(secret.flush());
    const QByteArray address = "SYSTEM \"file://" + secret.fileName().toUtf8() + "\"";
    EXPECT_FALSE(propertyListFromXml(plist("<string>&a;</string>", "<!ENTITY a " + address + ">")).has_value());
    EXPECT_FALSE(propertyListFromXml(plist("<string>b</string>", "<!ENTITY % a " + address + "> %a;")).has_value());
    EXPECT_FALSE(
        propertyListFromXml("<!DOCTYPE plist " + address + "><plist><string>&a;</string></plist>").has_value());
}

TEST(HostilePropertyList, EntityThatNobodyDeclares_IsRefused)
{
    EXPECT_FALSE(propertyListFromXml(plist("<string>&a;</string>")).has_value());
    // A document type that is not read might declare it.
    EXPECT_FALSE(
        propertyListFromXml(R"(<!DOCTYPE plist PUBLIC "-//A//B" "c.dtd"><plist><string>a&b;c</string></plist>)")
            .has_value());
}

TEST(HostilePropertyList, DeclarationsOfItsOwn_AreRefused)
{
    EXPECT_FALSE(propertyListFromXml(plist("<true/>", "<!ENTITY unused 'a'>")).has_value());
    QByteArray attributes;
    for (int i = 0; i < 50'000; ++i) {
        attributes += "<!ATTLIST true a" + QByteArray::number(i) + " CDATA '1'>";
    }
    EXPECT_FALSE(readInBounds(plist("<true/>", attributes)).has_value());
    // A bracket between quotes opens nothing.
    EXPECT_TRUE(propertyListFromXml("<!DOCTYPE plist SYSTEM \"a[b>c\"><plist><true/></plist>").has_value());
}

TEST(HostilePropertyList, TagOf100000Attributes_IsRefused)
{
    QByteArray attributes;
    for (int i = 0; i < 100'000; ++i) {
        attributes += " a" + QByteArray::number(i) + "='1'";
    }
    EXPECT_FALSE(readInBounds(plist("<true" + attributes + "/>")).has_value());
    EXPECT_FALSE(readInBounds(plist("<true" + QByteArray(5'000'000, ' ') + "/>")).has_value());
    EXPECT_FALSE(readInBounds(plist("<" + QByteArray(5'000'000, 'a') + "/>")).has_value());
}

TEST(HostilePropertyList, LongTextsOfAllKinds_AreReadInTime)
{
    const qsizetype size = 5'000'000;
    const auto comment = readInBounds(plist("<!--" + QByteArray(size, '<') + "--><true/>"));
    EXPECT_EQ(comment, QVariant(true));
    const auto text = readInBounds(plist("<string>" + QByteArray(size, 'x') + "</string>"));
    ASSERT_TRUE(text.has_value());
    EXPECT_EQ(text->toString().size(), size);
    const auto marked = readInBounds(plist("<string><![CDATA[" + QByteArray(size, '<') + "]]></string>"));
    ASSERT_TRUE(marked.has_value());
    EXPECT_EQ(marked->toString().size(), size);
    const auto escaped = readInBounds(plist("<string>" + QByteArray("&lt;").repeated(size / 5) + "</string>"));
    ASSERT_TRUE(escaped.has_value());
    EXPECT_EQ(escaped->toString(), QString(size / 5, QLatin1Char('<')));
    const auto zeros = readInBounds(plist("<integer>" + QByteArray(size, '0') + "7</integer>"));
    EXPECT_EQ(zeros, QVariant(qlonglong{7}));
    EXPECT_FALSE(readInBounds(plist("<integer>" + QByteArray(size, '0') + "7</wrong>")).has_value());
}

TEST(HostilePropertyList, ManyEntries_AreReadInTime)
{
    const int count = 100'000;
    QByteArray entries;
    for (int i = 0; i < count; ++i) {
        entries += "<key>" + QByteArray::number(i) + "</key><true/>";
    }
    const auto dictionary = readInBounds(plist("<dict>" + entries + "</dict>"));
    ASSERT_TRUE(dictionary.has_value());
    EXPECT_EQ(dictionary->toMap().size(), count);
    const auto list = readInBounds(plist("<array>" + QByteArray("<true/>").repeated(count) + "</array>"));
    ASSERT_TRUE(list.has_value());
    EXPECT_EQ(list->toList().size(), count);
}

} // namespace
