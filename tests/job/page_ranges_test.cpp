// SPDX-License-Identifier: Apache-2.0
// Lists of pages as people type them, and as print servers take them.
#include "job/PageRanges.h"
#include "tests/support/TextPrinting.h"

#include <gtest/gtest.h>

namespace
{

using tapeprint::job::pageRangesProblem;
using tapeprint::job::wellFormedPageRanges;

TEST(PageRanges, Blanks_AreLeftOut)
{
    EXPECT_EQ(wellFormedPageRanges(u" 1 - 3, 7 "_qs), u"1-3,7"_qs);
    EXPECT_EQ(wellFormedPageRanges(u"4-"_qs), u"4-"_qs);
}

TEST(PageRanges, AnyOrder_BecomesAscendingWithNoPageTwice)
{
    EXPECT_EQ(wellFormedPageRanges(u"7,3"_qs), u"3,7"_qs);
    EXPECT_EQ(wellFormedPageRanges(u"2-4,3-6,9"_qs), u"2-6,9"_qs);
    EXPECT_EQ(wellFormedPageRanges(u"1,2,3"_qs), u"1-3"_qs); // one after the other are a range
    EXPECT_EQ(wellFormedPageRanges(u"5-,2,8-9"_qs), u"2,5-"_qs);
}

TEST(PageRanges, NoText_IsNoList)
{
    EXPECT_TRUE(wellFormedPageRanges(u"  "_qs).isEmpty());
    EXPECT_FALSE(wellFormedPageRanges(QString()).isNull());
}

TEST(PageRanges, WhatIsNoList_IsRefused)
{
    for (const QString &text : {u"0"_qs, u"a"_qs, u"1-2-3"_qs, u"1,,2"_qs, u"3-1"_qs, u"-4"_qs, u"1;2"_qs, u"1,"_qs,
                                u"1.5"_qs, u"9999999999"_qs, u"\u0661"_qs, u"1\n;reboot"_qs}) {
        EXPECT_TRUE(wellFormedPageRanges(text).isNull()) << text.toStdString();
        EXPECT_FALSE(pageRangesProblem(text).isNull()) << text.toStdString();
    }
}

TEST(PageRanges, WhatIsNoList_IsSaidByThePartThatIsWrong)
{
    EXPECT_EQ(pageRangesProblem(u"1-4, 9 - 7"_qs), u"The pages 9-7 run backwards: write 7-9."_qs);
    EXPECT_EQ(pageRangesProblem(u"0"_qs), u"There is no page 0: pages are counted from 1."_qs);
    EXPECT_EQ(pageRangesProblem(u"3-0"_qs), u"There is no page 0: pages are counted from 1."_qs);
    EXPECT_EQ(pageRangesProblem(u"1,two"_qs), u"“two” is no list of pages: write them as 1-3,7."_qs);
    EXPECT_EQ(pageRangesProblem(u"1,,2"_qs), u"“1,,2” is no list of pages: write them as 1-3,7."_qs);
    EXPECT_LT(pageRangesProblem(QString(10000, u'x')).size(), 100);
}

TEST(PageRanges, ListsAndNoText_HaveNoProblem)
{
    for (const QString &text : {u""_qs, u" "_qs, u"1"_qs, u"4-"_qs, u"7, 1-3"_qs}) {
        EXPECT_TRUE(pageRangesProblem(text).isNull()) << text.toStdString();
    }
}

} // namespace
