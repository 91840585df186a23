// SPDX-License-Identifier: Apache-2.0
// The text helpers: lengths in bytes, search and deletion.
#include "TextPrinting.h"

#include "pdekit/StringEncoding.h"
#include "ppd/PDEUtilsMethod13.h"

#include <gtest/gtest.h>

namespace
{

/// Another system encoding for one test.
class PDEUtilsString : public testing::Test
{
protected:
    ~PDEUtilsString() override { pdekit::setSystemEncoding({}); }
};

TEST_F(PDEUtilsString, Length_IsThatOfTheSystemsEncoding)
{
    pdekit::setSystemEncoding("UTF-8");
    EXPECT_EQ(PDEUtilsMethod13::stringLengthConvertedToEncoding(u"\u00E4\u20AC1"_qs), 2U + 3U + 1U);
    pdekit::setSystemEncoding("ISO-8859-1");
    EXPECT_EQ(PDEUtilsMethod13::stringLengthConvertedToEncoding(u"\u00E4bc"_qs), 3U);
}

TEST_F(PDEUtilsString, Length_OfNilAndOfNothing_IsZero)
{
    EXPECT_EQ(PDEUtilsMethod13::stringLengthConvertedToEncoding(QString()), 0U);
    EXPECT_EQ(PDEUtilsMethod13::stringLengthConvertedToEncoding(u""_qs), 0U);
}

TEST_F(PDEUtilsString, Length_OfWhatTheSystemsEncodingCannotHold_IsThatOfTheFirstEncodingThatCan)
{
    // UTF-8 stands first among the encodings and holds everything: three bytes for each of the two.
    pdekit::setSystemEncoding("ISO-8859-1");
    EXPECT_EQ(PDEUtilsMethod13::stringLengthConvertedToEncoding(u"\u65E5\u672C"_qs), 6U);
    pdekit::setSystemEncoding("US-ASCII");
    EXPECT_EQ(PDEUtilsMethod13::stringLengthConvertedToEncoding(u"\u00E4"_qs), 2U);
}

TEST_F(PDEUtilsString, ScanString_FindsATextLetterForLetter)
{
    EXPECT_TRUE(PDEUtilsMethod13::scanString(u"12.50"_qs, u"."_qs));
    EXPECT_TRUE(PDEUtilsMethod13::scanString(u"12.50"_qs, u"12.50"_qs));
    EXPECT_FALSE(PDEUtilsMethod13::scanString(u"Tape"_qs, u"tape"_qs));
    EXPECT_FALSE(PDEUtilsMethod13::scanString(u"12"_qs, u"12.5"_qs));
    // One letter with its mark is not the letter and the mark.
    EXPECT_FALSE(PDEUtilsMethod13::scanString(u"\u00E9"_qs, u"e\u0301"_qs));
}

TEST_F(PDEUtilsString, ScanString_Nothing_OccursInNothing)
{
    EXPECT_FALSE(PDEUtilsMethod13::scanString(u"12"_qs, u""_qs));
    EXPECT_FALSE(PDEUtilsMethod13::scanString(u"12"_qs, QString()));
    EXPECT_FALSE(PDEUtilsMethod13::scanString(u""_qs, u""_qs));
    EXPECT_FALSE(PDEUtilsMethod13::scanString(QString(), u"1"_qs));
}

TEST_F(PDEUtilsString, DeleteString_RemovesTheFirstOccurrenceOnly)
{
    const QString text = u"1.2.3"_qs;
    EXPECT_EQ(PDEUtilsMethod13::deleteString(text, u"."_qs), u"12.3");
    EXPECT_EQ(text, u"1.2.3");
    EXPECT_EQ(PDEUtilsMethod13::deleteString(u"abcabc"_qs, u"bc"_qs), u"aabc");
}

TEST_F(PDEUtilsString, DeleteString_OfTheWhole_LeavesAnEmptyTextThatIsNotNil)
{
    const QString left = PDEUtilsMethod13::deleteString(u"mm"_qs, u"mm"_qs);
    EXPECT_FALSE(left.isNull());
    EXPECT_TRUE(left.isEmpty());
}

TEST_F(PDEUtilsString, DeleteString_OfWhatDoesNotOccur_IsNil)
{
    EXPECT_TRUE(PDEUtilsMethod13::deleteString(u"12"_qs, u"."_qs).isNull());
    EXPECT_TRUE(PDEUtilsMethod13::deleteString(u"12"_qs, u""_qs).isNull());
    EXPECT_TRUE(PDEUtilsMethod13::deleteString(u"Mm"_qs, u"mm"_qs).isNull());
    EXPECT_TRUE(PDEUtilsMethod13::deleteString(QString(), u"."_qs).isNull());
}

} // namespace
