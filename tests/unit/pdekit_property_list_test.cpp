// SPDX-License-Identifier: Apache-2.0
// Property lists: every type to and fro, and what is no property list is refused.
#include "TextPrinting.h"
#include "pdekit/PropertyList.h"

#include <QDateTime>
#include <QTimeZone>
#include <QVariantMap>

#include <gtest/gtest.h>

#include <clocale>
#include <limits>

using namespace pdekit;

namespace
{

QByteArray plist(const QByteArray &content)
{
    return R"(<?xml version="1.0" encoding="UTF-8"?>)"
           R"(<!DOCTYPE plist PUBLIC "-//Apple//DTD PLIST 1.0//EN" "http://www.apple.com/DTDs/PropertyList-1.0.dtd">)"
           R"(<plist version="1.0">)" +
           content + "</plist>";
}

TEST(PropertyListFromXml, EveryType_BecomesItsQtValue)
{
    const auto value = propertyListFromXml(
        plist("<dict><key>i</key><integer>-35</integer><key>r</key><real>2.5</real><key>s</key><string>\xC3\xA4&lt;"
              "</string><key>e</key><string></string><key>d</key><data>AQID</data><key>t</key><true/><key>a</key>"
              "<array><false/><integer>7</integer></array><key>w</key><date>2001-01-02T00:00:01Z</date></dict>"));
    ASSERT_TRUE(value.has_value());
    const QVariantMap map = value->toMap();
    EXPECT_EQ(map.size(), 8);
    EXPECT_EQ(map.value(u"i"_qs), QVariant(qlonglong{-35}));
    EXPECT_EQ(map.value(u"i"_qs).typeId(), QMetaType::LongLong);
    EXPECT_EQ(map.value(u"r"_qs), QVariant(2.5));
    EXPECT_EQ(map.value(u"s"_qs).toString(), u"\u00E4<");
    EXPECT_FALSE(map.value(u"e"_qs).toString().isNull());
    EXPECT_EQ(map.value(u"d"_qs), QVariant(QByteArray("\x01\x02\x03")));
    EXPECT_EQ(map.value(u"t"_qs), QVariant(true));
    EXPECT_EQ(map.value(u"t"_qs).typeId(), QMetaType::Bool);
    EXPECT_EQ(map.value(u"a"_qs), QVariant(QVariantList{false, qlonglong{7}}));
    EXPECT_EQ(map.value(u"w"_qs).toDateTime(), QDateTime(QDate(2001, 1, 2), QTime(0, 0, 1), Qt::UTC));
}

class NotAPropertyList : public testing::TestWithParam<QByteArray>
{
};

TEST_P(NotAPropertyList, IsRefused)
{
    EXPECT_FALSE(propertyListFromXml(GetParam()).has_value());
}

INSTANTIATE_TEST_SUITE_P(Bytes, NotAPropertyList,
                         testing::Values(QByteArray(), QByteArray("no list"), QByteArray("<plist>"),
                                         QByteArray("<html><body/></html>"),
                                         QByteArray("bplist00\xD0\x08\0\0\0\0\0\0\x01\x01\0\0\0\0\0\0\0\x01\0\0\0\0\0\0"
                                                    "\0\0\0\0\0\0\0\0\0\x09",
                                                    41),
                                         plist("<dict><key>a</key></plist>"), plist(""),
                                         QByteArray("<plist><dict>\0</dict></plist>", 30)));

struct WholeNumber {
    const char *text;
    qlonglong value;
};

class WholeNumbers : public testing::TestWithParam<WholeNumber>
{
};

TEST_P(WholeNumbers, AreDecimalWhateverZerosTheyBeginWith)
{
    const auto value = propertyListFromXml(plist("<integer>" + QByteArray(GetParam().text) + "</integer>"));
    ASSERT_TRUE(value.has_value());
    EXPECT_EQ(*value, QVariant(GetParam().value));
}

INSTANTIATE_TEST_SUITE_P(Texts, WholeNumbers,
                         testing::Values(WholeNumber{"035", 35}, WholeNumber{"-035", -35}, WholeNumber{"+0010", 10},
                                         WholeNumber{" 08\n", 8}, WholeNumber{"0", 0}, WholeNumber{"000", 0},
                                         WholeNumber{"-0", 0}, WholeNumber{"1000", 1000}, WholeNumber{"0x1F", 31},
                                         WholeNumber{"0<!-- -->35", 35}, WholeNumber{"&#48;35", 35},
                                         WholeNumber{"09223372036854775807", 9223372036854775807}));

TEST(PropertyListFromXml, ZerosBeforeOtherValues_Stay)
{
    const auto value =
        propertyListFromXml(plist("<dict><key>035</key><string>035</string><key>r</key><real>010.5</real></dict>"));
    ASSERT_TRUE(value.has_value());
    EXPECT_EQ(value->toMap().value(u"035"_qs), QVariant(u"035"_qs));
    EXPECT_EQ(value->toMap().value(u"r"_qs), QVariant(10.5));
}

TEST(PropertyListFromXml, EmptyElements_AreReadInBothSpellings)
{
    const auto value =
        propertyListFromXml(plist("<array><string/><string></string><dict/><dict></dict><array/><true></true><data/>"
                                  "<dict><key/><false/></dict><dict><key></key><false/></dict></array>"));
    ASSERT_TRUE(value.has_value());
    const QVariantMap underNoKey{{u""_qs, false}};
    EXPECT_EQ(*value, QVariant(QVariantList{u""_qs, u""_qs, QVariantMap(), QVariantMap(), QVariantList(), true,
                                            QByteArray(), underNoKey, underNoKey}));
}

TEST(PropertyListFromXml, TextInPieces_IsOneText)
{
    const auto value = propertyListFromXml(
        plist("<string> a&lt;<![CDATA[<b>&amp;]]><!-- no text --><?no text?>]]&gt;&#x65E5;&#26412;&quot;]]</string>"));
    ASSERT_TRUE(value.has_value());
    EXPECT_EQ(value->toString(), u" a<<b>&amp;]]>\u65E5\u672C\"]]");
}

TEST(PropertyListFromXml, ModestNesting_IsRead)
{
    const auto value =
        propertyListFromXml(plist(QByteArray("<array>").repeated(100) + QByteArray("</array>").repeated(100)));
    ASSERT_TRUE(value.has_value());
    EXPECT_EQ(value->toList().size(), 1);
}

TEST(PropertyListFromXml, LocaleWithAComma_ReadsRealsAlike)
{
    const std::string before = std::setlocale(LC_ALL, nullptr);
    if (std::setlocale(LC_ALL, "de_DE.UTF-8") == nullptr) {
        GTEST_SKIP() << "This machine lacks the locale de_DE.UTF-8";
    }
    const auto value = propertyListFromXml(plist("<real>2.5</real>"));
    const QByteArray written = propertyListToXml(2.5);
    std::setlocale(LC_ALL, before.c_str());
    ASSERT_TRUE(value.has_value());
    EXPECT_EQ(*value, QVariant(2.5));
    EXPECT_TRUE(written.contains("<real>2.5")) << written.toStdString();
}

TEST(PropertyListToXml, ComesBackAsItWas)
{
    const QVariantMap map{{u"bool"_qs, true},
                          {u"int"_qs, qlonglong{-5}},
                          {u"most"_qs, std::numeric_limits<qlonglong>::max()},
                          {u"least"_qs, std::numeric_limits<qlonglong>::min()},
                          {u"real"_qs, 0.1},
                          {u"text \u00E4 <&>"_qs, u"\u65E5\u672C <&> \U0001F600"_qs},
                          {u"data"_qs, QByteArray("\0\xFF\x80", 3)},
                          {u"date"_qs, QDateTime(QDate(2026, 2, 28), QTime(12, 30), Qt::UTC)},
                          {u"list"_qs, QVariantList{1LL, u"a"_qs, QVariantMap{{u"k"_qs, false}}}}};
    const QByteArray xml = propertyListToXml(map);
    ASSERT_FALSE(xml.isEmpty());
    const auto read = propertyListFromXml(xml);
    ASSERT_TRUE(read.has_value());
    for (auto entry = map.constBegin(); entry != map.constEnd(); ++entry) {
        EXPECT_EQ(read->toMap().value(entry.key()), entry.value()) << entry.key().toStdString();
    }
}

TEST(PropertyListToXml, WhatAListCannotHold_GivesNoBytes)
{
    EXPECT_TRUE(propertyListToXml(QVariant()).isEmpty());
    EXPECT_TRUE(propertyListToXml(QVariantMap{{u"k"_qs, QVariant()}}).isEmpty());
    EXPECT_TRUE(propertyListToXml(u"control \u0001"_qs).isEmpty());
    EXPECT_TRUE(propertyListToXml(QVariantMap{{u"key\u0000"_qs, 1}}).isEmpty());
    EXPECT_TRUE(propertyListToXml(QString(QChar(0xD800))).isEmpty());
    EXPECT_TRUE(propertyListToXml(std::numeric_limits<double>::infinity()).isEmpty());
    QVariant deep = 1;
    for (int i = 0; i < 1000; ++i) {
        deep = QVariantList{deep};
    }
    EXPECT_TRUE(propertyListToXml(deep).isEmpty());
}

TEST(PropertyListInt32, NumbersOfEveryKind)
{
    EXPECT_EQ(propertyListInt32(qlonglong{0x1F3}), 0x1F3);
    EXPECT_EQ(propertyListInt32(qlonglong{0x100000023}), 0x23);
    EXPECT_EQ(propertyListInt32(qlonglong{0xFFFFFFFF}), -1);
    EXPECT_EQ(propertyListInt32(qlonglong{-2}), -2);
    EXPECT_EQ(propertyListInt32(-2.9), -2);
    EXPECT_EQ(propertyListInt32(1e20), std::numeric_limits<std::int32_t>::max());
    EXPECT_EQ(propertyListInt32(true), 1);
    EXPECT_EQ(propertyListInt32(false), 0);
}

TEST(PropertyListInt32, AnythingElse_IsNoNumber)
{
    EXPECT_EQ(propertyListInt32(u"35"_qs), std::nullopt);
    EXPECT_EQ(propertyListInt32(QVariant()), std::nullopt);
    EXPECT_EQ(propertyListInt32(QByteArray("1")), std::nullopt);
    EXPECT_EQ(propertyListInt32(QVariantList{1}), std::nullopt);
}

} // namespace
