// SPDX-License-Identifier: Apache-2.0
// What a plug-in's metadata says of tapes, well written and badly.
#include "job/TapeKeywords.h"
#include "tests/support/TextPrinting.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <gtest/gtest.h>

namespace
{

using tapeprint::job::TapeKeywords;

TapeKeywords keywordsOf(const QByteArray &json)
{
    return TapeKeywords::fromMetadata(QJsonDocument::fromJson(json).object());
}

TEST(TapeKeywords_Metadata, EveryName_IsRead)
{
    const TapeKeywords keywords = keywordsOf(R"({"Tape": {
        "LengthOption": "a", "MarginOption": "b", "MinimumLengthAttribute": "c", "MaximumLengthAttribute": "d",
        "WholeLengthAttribute": "e", "UnitAttribute": "f", "TapeColorOption": "g", "InkColorOption": "h",
        "FixedLengthPapers": ["DC", "AV"], "Colors": {"Red": "#ff0000", "Sea": "#0080ff"}}})");
    EXPECT_EQ(keywords.lengthOption, u"a"_qs);
    EXPECT_EQ(keywords.marginOption, u"b"_qs);
    EXPECT_EQ(keywords.minimumLengthAttribute, u"c"_qs);
    EXPECT_EQ(keywords.maximumLengthAttribute, u"d"_qs);
    EXPECT_EQ(keywords.wholeLengthAttribute, u"e"_qs);
    EXPECT_EQ(keywords.unitAttribute, u"f"_qs);
    EXPECT_EQ(keywords.tapeColorOption, u"g"_qs);
    EXPECT_EQ(keywords.inkColorOption, u"h"_qs);
    EXPECT_EQ(keywords.fixedLengthPapers, QStringList({u"DC"_qs, u"AV"_qs}));
    EXPECT_EQ(keywords.colors.value(u"Red"_qs), QColor(255, 0, 0));
    EXPECT_EQ(keywords.colors.value(u"Sea"_qs), QColor(0, 128, 255));
    EXPECT_FALSE(keywords.isEmpty());
}

TEST(TapeKeywords_Metadata, OtherTypes_AreAsIfTheyWereMissing)
{
    const TapeKeywords keywords = keywordsOf(R"({"Tape": {
        "LengthOption": 7, "MarginOption": ["b"], "UnitAttribute": {}, "FixedLengthPapers": "DC",
        "Colors": ["#ff0000"]}})");
    EXPECT_TRUE(keywords.isEmpty());
    EXPECT_EQ(keywords.marginOption, QString());
    EXPECT_EQ(keywords.unitAttribute, QString());
    EXPECT_TRUE(keywords.fixedLengthPapers.isEmpty());
    EXPECT_TRUE(keywords.colors.isEmpty());
}

TEST(TapeKeywords_Metadata, OddMembers_AreLeftOut)
{
    const TapeKeywords keywords = keywordsOf(R"({"Tape": {"LengthOption": "a",
        "FixedLengthPapers": ["DC", "", 3, null, ["AV"]], "Colors": {"Red": "#ff0000", "Odd": "no colour", "Two": 2}}})");
    // An empty beginning would make every paper one of fixed length.
    EXPECT_EQ(keywords.fixedLengthPapers, QStringList(u"DC"_qs));
    EXPECT_EQ(keywords.colors.keys(), QStringList(u"Red"_qs));
}

TEST(TapeKeywords_Metadata, WithoutATape_IsEmpty)
{
    EXPECT_TRUE(keywordsOf("{}").isEmpty());
    EXPECT_TRUE(keywordsOf(R"({"Tape": []})").isEmpty());
    EXPECT_TRUE(keywordsOf(R"({"Tape": "24 mm"})").isEmpty());
    EXPECT_TRUE(keywordsOf(R"({"LengthOption": "a"})").isEmpty());
}

} // namespace
