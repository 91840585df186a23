// SPDX-License-Identifier: Apache-2.0
// What is left of a text that is too long, by what a person reads of it.
#include "dialog/Shortened.h"

#include "tests/support/TextPrinting.h"

#include <QFont>
#include <QFontMetrics>

#include <gtest/gtest.h>

namespace
{

using tapeprint::dialog::shortened;

class ShortenedText : public testing::Test
{
protected:
    int widthOf(const QString &text) const { return metrics.horizontalAdvance(text); }

    QFontMetrics metrics{QFont()};
};

TEST_F(ShortenedText, RemarkAtTheEnd_StaysWhole)
{
    for (const QString &remark : {u" (changed)"_qs, u"（変更あり）"_qs}) {
        const QString text = u"The printer's own defaults"_qs + remark;
        EXPECT_EQ(shortened(text, metrics, widthOf(text)), text);
        const int width = widthOf(u"The printe…"_qs + remark);
        const QString cut = shortened(text, metrics, width);
        EXPECT_TRUE(cut.startsWith(u"The"_qs) && cut.endsWith(u"…"_qs + remark)) << cut.toStdString();
        EXPECT_LE(widthOf(cut), width);
    }
}

TEST_F(ShortenedText, RemarkThatLeavesNoRoom_IsShortenedAsTheRest)
{
    const QString text = u"tape (the label printer beside the window)"_qs;
    const int width = widthOf(u"tape (the label prin"_qs);
    const QString cut = shortened(text, metrics, width);
    EXPECT_TRUE(cut.startsWith(u"tape ("_qs) && cut.endsWith(u"window)"_qs)) << cut.toStdString();
    EXPECT_LE(widthOf(cut), width);
}

TEST_F(ShortenedText, WithoutARemark_KeepsItsBeginningAndItsEnd)
{
    const QString cut = shortened(u"A name of many letters"_qs, metrics, widthOf(u"A name letters"_qs));
    EXPECT_TRUE(cut.startsWith(u"A "_qs) && cut.endsWith(u"ers"_qs)) << cut.toStdString();
}

} // namespace
