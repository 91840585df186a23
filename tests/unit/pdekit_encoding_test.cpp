// SPDX-License-Identifier: Apache-2.0
// Text encodings: strict both ways, and the system's encoding as the locale says.
#include "TextPrinting.h"
#include "pdekit/StringEncoding.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <clocale>
#include <set>
#include <string>

using namespace pdekit;

namespace
{

TEST(StringFromUtf8, ValidBytes_AreRead)
{
    EXPECT_EQ(stringFromUtf8("Tape"), u"Tape");
    EXPECT_EQ(stringFromUtf8("\xC3\xA4\xE6\x97\xA5\xF0\x9F\x98\x80"), u"\u00E4\u65E5\U0001F600");
    EXPECT_EQ(stringFromUtf8("\xEF\xBF\xBD"), u"\uFFFD");
    EXPECT_EQ(stringFromUtf8("\xEF\xBB\xBFx"), u"\uFEFFx");
}

TEST(StringFromUtf8, EmptyAndNull_AreDifferent)
{
    EXPECT_TRUE(stringFromUtf8(nullptr).isNull());
    EXPECT_FALSE(stringFromUtf8("").isNull());
    EXPECT_TRUE(stringFromUtf8("").isEmpty());
}

class InvalidUtf8 : public testing::TestWithParam<const char *>
{
};

TEST_P(InvalidUtf8, GivesANullString)
{
    EXPECT_TRUE(stringFromUtf8(GetParam()).isNull());
}

INSTANTIATE_TEST_SUITE_P(Bytes, InvalidUtf8,
                         testing::Values("\xC3", "abc\xE6\x97", "\x80", "\xFF", "\xC0\xAF", "\xE0\x80\xAF",
                                         "\xED\xA0\x80", "\xF4\x90\x80\x80", "ok \xC3 ok",
                                         "a long run of plain letters before it \xE4"));

TEST(StringFromAscii, OtherBytes_GiveANullString)
{
    EXPECT_EQ(stringFromAscii("KsMargin"), u"KsMargin");
    EXPECT_TRUE(stringFromAscii("\xC3\xA4").isNull());
    EXPECT_TRUE(stringFromAscii(nullptr).isNull());
    EXPECT_FALSE(stringFromAscii("").isNull());
}

TEST(MacRoman, ExpressesItsCharactersAndNoOthers)
{
    // 0x8A is a with diaeresis and 0xDB the euro sign in Mac OS Roman.
    EXPECT_EQ(bytesFromString(u"\u00E4\u20AC"_qs, macRomanEncoding()), QByteArray("\x8A\xDB"));
    EXPECT_EQ(stringFromBytes("\x8A\xDB", macRomanEncoding()), u"\u00E4\u20AC");
    EXPECT_TRUE(canBeConvertedToEncoding(u"\u00E4"_qs, macRomanEncoding()));
    EXPECT_FALSE(canBeConvertedToEncoding(u"\u65E5"_qs, macRomanEncoding()));
    EXPECT_TRUE(canBeConvertedToEncoding(u""_qs, macRomanEncoding()));
}

TEST(BytesFromString, WhatWouldBeLost_IsRefused)
{
    EXPECT_EQ(bytesFromString(u"\u00E4"_qs, "US-ASCII"), std::nullopt);
    // An invisible character is a loss too.
    EXPECT_EQ(bytesFromString(u"a\u200Bb"_qs, macRomanEncoding()), std::nullopt);
    EXPECT_EQ(bytesFromString(u"a\u200Bb"_qs, "ISO-8859-1"), std::nullopt);
    // Half a surrogate pair is no text.
    EXPECT_EQ(bytesFromString(QString(QChar(0xD800)), "UTF-8"), std::nullopt);
    EXPECT_EQ(bytesFromString(QString(QChar(0xD800)), "UTF-16BE"), std::nullopt);
}

TEST(StringFromBytes, InvalidBytes_GiveANullString)
{
    EXPECT_TRUE(stringFromBytes("\x81", "Shift_JIS").isNull());
    EXPECT_TRUE(stringFromBytes("\xE4", "UTF-8").isNull());
    EXPECT_TRUE(stringFromBytes("\xE4", "US-ASCII").isNull());
    EXPECT_EQ(stringFromBytes("\x93\xFA\x96\x7B", "Shift_JIS"), u"\u65E5\u672C");
    EXPECT_FALSE(stringFromBytes("", "Shift_JIS").isNull());
    // After a failure the encoding serves again.
    EXPECT_TRUE(stringFromBytes("\x81", "Shift_JIS").isNull());
    EXPECT_EQ(stringFromBytes("a", "Shift_JIS"), u"a");
}

TEST(UnknownEncoding, ConvertsNothing)
{
    EXPECT_TRUE(stringFromBytes("a", "no such encoding").isNull());
    EXPECT_TRUE(stringFromBytes("a", StringEncoding()).isNull());
    EXPECT_EQ(bytesFromString(u"a"_qs, "no such encoding"), std::nullopt);
    EXPECT_FALSE(canBeConvertedToEncoding(u"a"_qs, StringEncoding()));
}

TEST(LongTexts, AreConvertedWhole)
{
    const QString text = u"\u65E5\U0001F600"_qs.repeated(10'000);
    for (const char *name : {"UTF-8", "UTF-7", "UTF-32", "SCSU", "GB18030"}) {
        const auto bytes = bytesFromString(text, name);
        ASSERT_TRUE(bytes.has_value()) << name;
        EXPECT_TRUE(stringFromBytes(*bytes, name) == text) << name;
    }
}

TEST(AvailableStringEncodings, UnicodeFirstAndEachOfThemWorks)
{
    const std::vector<StringEncoding> &encodings = availableStringEncodings();
    ASSERT_GT(encodings.size(), 20U);
    EXPECT_EQ(encodings[0], "UTF-8");
    EXPECT_EQ(encodings[1], "UTF-16");
    EXPECT_EQ(std::set<StringEncoding>(encodings.begin(), encodings.end()).size(), encodings.size());
    EXPECT_NE(std::find(encodings.begin(), encodings.end(), macRomanEncoding()), encodings.end());
    for (const StringEncoding &encoding : encodings) {
        // A few hold wide characters alone: the wide space stands in all of those.
        EXPECT_TRUE(canBeConvertedToEncoding(u"1"_qs, encoding) || canBeConvertedToEncoding(u"\u3000"_qs, encoding))
            << encoding.toStdString();
    }
    EXPECT_EQ(&availableStringEncodings(), &encodings);
}

TEST(SystemEncoding, FollowsTheLocale)
{
    const std::string before = std::setlocale(LC_ALL, nullptr);
    ASSERT_NE(std::setlocale(LC_ALL, "C"), nullptr);
    EXPECT_EQ(systemEncoding(), "US-ASCII");
    EXPECT_TRUE(stringFromSystemEncoding("\xC3\xA4").isNull());
    ASSERT_NE(std::setlocale(LC_ALL, "C.UTF-8"), nullptr);
    EXPECT_EQ(systemEncoding(), "UTF-8");
    EXPECT_EQ(stringFromSystemEncoding("\xC3\xA4"), u"\u00E4");
    std::setlocale(LC_ALL, before.c_str());
}

TEST(SystemEncoding, AnotherOneStandsForItUntilItIsSetBack)
{
    const StringEncoding before = systemEncoding();
    setSystemEncoding("Shift_JIS");
    EXPECT_EQ(systemEncoding(), "Shift_JIS");
    EXPECT_EQ(stringFromSystemEncoding("\x93\xFA"), u"\u65E5");
    EXPECT_TRUE(stringFromSystemEncoding(nullptr).isNull());
    setSystemEncoding(StringEncoding());
    EXPECT_EQ(systemEncoding(), before);
}

} // namespace
