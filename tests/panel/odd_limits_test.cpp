// SPDX-License-Identifier: Apache-2.0
// Limits of a PPD that are missing, the wrong way round, huge, negative or no numbers, on the built panel.
#include "LengthGestures.h"
#include "TextPrinting.h"

#include <QTest>

using namespace gestures;

namespace
{

TEST(OddLimits, AMissingMaximum_IsZero)
{
    PanelUnderTest panel(tape(oneDecimal().withoutAttribute("KsMaxTapeLength"), 100.0));
    panel.show();
    EXPECT_EQ(panel.label("mLengthMaxStr")->text(), u"0.0");
    enterLength(panel, "5");
    EXPECT_TRUE(alertedOnce(panel, "RS_Alrt_LengthMax"));
    EXPECT_EQ(length(panel), u"0.0");
    panel.alerts.clear();
    enterLength(panel, "3");
    EXPECT_TRUE(alertedOnce(panel, "RS_Alrt_LengthMin"));
    EXPECT_EQ(length(panel), u"4.0");
}

TEST(OddLimits, EmptyAndTextLimits_AreZero)
{
    for (const char *limit : {"", "inf", "nan", "-inf", "many", "mm 5"}) {
        PanelUnderTest panel(tape(withTapeLimits(limit, limit), 100.0));
        panel.show();
        EXPECT_EQ(panel.label("mLengthMinStr")->text(), u"0.0") << limit;
        EXPECT_EQ(panel.label("mLengthMaxStr")->text(), u"0.0") << limit;
        enterLength(panel, "5");
        EXPECT_TRUE(alertedOnce(panel, "RS_Alrt_LengthMax")) << limit;
        EXPECT_EQ(length(panel), u"0.0") << limit;
        EXPECT_TRUE(onlyNumbersWereSent(panel)) << limit;
    }
}

TEST(OddLimits, ANumberWithAUnit_IsTheNumber)
{
    PanelUnderTest panel(tape(withTapeLimits(" 5mm", "1e2 mm"), 50.0));
    panel.show();
    enterLength(panel, "4.9");
    EXPECT_EQ(length(panel), u"5.0");
    enterLength(panel, "101");
    EXPECT_EQ(length(panel), u"100.0");
}

TEST(OddLimits, TheWrongWayRound_AreTakenAsTheyCome)
{
    PanelUnderTest panel(tape(withTapeLimits("10", "5"), 7.0));
    panel.show();
    enterLength(panel, "7");
    EXPECT_TRUE(alertedOnce(panel, "RS_Alrt_LengthMin"));
    EXPECT_EQ(length(panel), u"10.0");
    panel.alerts.clear();
    enterLength(panel, "12");
    EXPECT_TRUE(alertedOnce(panel, "RS_Alrt_LengthMax"));
    EXPECT_EQ(length(panel), u"5.0");
}

TEST(OddLimits, Negative_AreTakenAsTheyCome)
{
    PanelUnderTest panel(tape(withTapeLimits("-5", "-1.5"), 0.0));
    panel.show();
    enterLength(panel, "0");
    EXPECT_TRUE(alertedOnce(panel, "RS_Alrt_LengthMax"));
    EXPECT_EQ(length(panel), u"-1.5");
    EXPECT_EQ(panel.callback->lastSent(u"KsTapeLength"_qs), u"-1.5");
    EXPECT_TRUE(onlyNumbersWereSent(panel));
}

TEST(OddLimits, Huge_NeverSendAnythingButNumbers)
{
    const QByteArray typed(60, '9');
    for (const char *limit : {"1e30", "1e38", "1e39", "1e400"}) {
        for (const PpdText &ppd : {oneDecimal(), wholeMillimetres(), inches()}) {
            PpdText huge = ppd;
            huge.attribute("KsMaxTapeLength", limit)
                .attribute("KsMaxMargin", limit)
                .attribute("KsMaxPrintTapeLengthForOther", limit);
            PanelUnderTest panel(tape(huge, 100.0));
            panel.show();
            for (const char *field : {"mLengthTxFld", "mMarginTxFld", "mTapeLengthTxFld"}) {
                panel.type(field, typed.constData());
                key(panel, Qt::Key_Return);
                save(panel);
            }
            for (const char *slider : {"mLengthSlider", "mMarginSlider", "mTapeLengthSlider"}) {
                key(panel, slider, Qt::Key_End);
                key(panel, slider, Qt::Key_Home);
            }
            save(panel);
            EXPECT_TRUE(onlyNumbersWereSent(panel)) << limit;
            EXPECT_FALSE(panel.callback->sentFor(u"KsTapeLength"_qs).empty());
        }
    }
}

TEST(OddLimits, HugeTextsKeptByAMediumOfFixedLength_AreSentAsNumbers)
{
    const QByteArray typed(400, '9');
    for (const PpdText &ppd : {oneDecimal(), inches()}) {
        PanelUnderTest panel(tape(ppd, 100.0));
        panel.show();
        for (const char *field : {"mLengthTxFld", "mMarginTxFld", "mTapeLengthTxFld"}) {
            panel.field(field)->setText(QString::fromLatin1(typed));
        }
        panel.callback->usePaper(u"DC24x80"_qs, 80.0);
        save(panel);
        EXPECT_TRUE(panel->shouldPrint());
        EXPECT_TRUE(onlyNumbersWereSent(panel));
        EXPECT_GT(panel.callback->lastSent(u"KsMargin"_qs).size(), 3);
    }
}

} // namespace
