// SPDX-License-Identifier: Apache-2.0
// The three lengths in the built bundle's summary: from the tape and the PPD before the first showing, from the fields
// after it.
#include "PanelUnderTest.h"
#include "TextPrinting.h"

namespace
{

PpdText ppdWith(std::initializer_list<const char *> flags)
{
    PpdText ppd = PpdText::withEveryOption();
    for (const char *flag : flags) {
        ppd.attribute(flag, qstrcmp(flag, "KsUnitType") == 0 ? "inch" : "True");
    }
    return ppd;
}

QString valueOf(const PanelUnderTest &panel, const char *title)
{
    // A no-break space stands before the unit.
    return panel->summaryInfo()->value(QString::fromLatin1(title)).toString().replace(QChar(0xa0), QLatin1Char(' '));
}

QString lengthBefore(const PpdText &ppd, double paperMm)
{
    PanelUnderTest panel(ppd);
    panel.callback->usePaper(QStringLiteral("24mm"), paperMm);
    return valueOf(panel, "Tape Length");
}

QString lengthAfter(const PpdText &ppd, const char *shown, const char *paper = "24mm")
{
    PanelUnderTest panel(ppd);
    panel.callback->usePaper(paper);
    panel.show();
    panel.field("mLengthTxFld")->setText(QString::fromLatin1(shown));
    return valueOf(panel, "Tape Length");
}

QString defaultBefore(PpdText ppd, const char *keyword, const char *title, const QByteArray &number)
{
    ppd.option(keyword, title, {{number, number}}, number);
    const PanelUnderTest panel(ppd);
    return valueOf(panel, title);
}

} // namespace

TEST(SummaryTapeLength, BeforeTheFields_IsThePapersWithinTheLimits)
{
    EXPECT_EQ(lengthBefore(ppdWith({}), 100.02), QStringLiteral("100.0 mm"));
    EXPECT_EQ(lengthBefore(ppdWith({}), 2.0), QStringLiteral("4.0 mm"));
    EXPECT_EQ(lengthBefore(ppdWith({}), 1200.0), QStringLiteral("1000.0 mm"));
    EXPECT_EQ(lengthBefore(ppdWith({"KsIsIntegerTapeLength"}), 99.9), QStringLiteral("99 mm"));
}

TEST(SummaryTapeLength, BeforeTheFieldsInInches_IsWithinTheLimitsAsTheyAreShown)
{
    // 4 mm are 0.157... inches, shown as 0.16; 1000 mm are 39.37.
    EXPECT_EQ(lengthBefore(ppdWith({"KsUnitType"}), 100.02), QStringLiteral("3.94 in"));
    EXPECT_EQ(lengthBefore(ppdWith({"KsUnitType"}), 2.0), QStringLiteral("0.16 in"));
    EXPECT_EQ(lengthBefore(ppdWith({"KsUnitType"}), 1200.0), QStringLiteral("39.37 in"));
}

TEST(SummaryTapeLength, AfterTheFields_IsTheFieldsWithinTheLimits)
{
    EXPECT_EQ(lengthAfter(ppdWith({}), "55.5"), QStringLiteral("55.5 mm"));
    EXPECT_EQ(lengthAfter(ppdWith({}), "3"), QStringLiteral("4.0 mm"));
    EXPECT_EQ(lengthAfter(ppdWith({}), "5000"), QStringLiteral("1000.0 mm"));
    EXPECT_EQ(lengthAfter(ppdWith({"KsUnitType"}), "3.94"), QStringLiteral("3.94 in"));
    EXPECT_EQ(lengthAfter(ppdWith({"KsUnitType"}), "0.05"), QStringLiteral("0.16 in"));
}

TEST(SummaryTapeLength, OfWholeMillimetres_IsRoundedUpThoughItIsSavedTruncated)
{
    EXPECT_EQ(lengthAfter(ppdWith({"KsIsIntegerTapeLength"}), "99.2"), QStringLiteral("100 mm"));
}

TEST(SummaryTapeLength, OfAFixedLengthPaper_IsTheTextAsItStands)
{
    EXPECT_EQ(lengthAfter(ppdWith({}), "5000", "DC24x80"), QStringLiteral("5000 mm"));
    EXPECT_EQ(lengthAfter(ppdWith({"KsUnitType"}), "3.94", "DC24x80"), QStringLiteral("3.94 in"));
    EXPECT_EQ(lengthAfter(ppdWith({"KsUnitType"}), "0.050", "DC24x80"), QStringLiteral("0.050 in"));
}

TEST(SummaryMargin, BeforeTheFields_IsTheDefaultRoundedUpAndNotClamped)
{
    EXPECT_EQ(defaultBefore(ppdWith({}), "KsMargin", "Margin", "3.25"), QStringLiteral("3.3 mm"));
    EXPECT_EQ(defaultBefore(ppdWith({"KsIsIntegerMargin"}), "KsMargin", "Margin", "3.25"), QStringLiteral("4 mm"));
    EXPECT_EQ(defaultBefore(ppdWith({}), "KsMargin", "Margin", "500"), QStringLiteral("500.0 mm"));
    // 2 mm are 0.0787... inches.
    EXPECT_EQ(defaultBefore(ppdWith({"KsUnitType"}), "KsMargin", "Margin", "2"), QStringLiteral("0.08 in"));
}

TEST(SummaryPrintTapeLength, BeforeTheFields_FollowsTheMarginsIntegerRule)
{
    const auto before = [](const PpdText &ppd) {
        return defaultBefore(ppd, "KsPrintTapeLength", "Print Tape Length", "3.25");
    };
    EXPECT_EQ(before(ppdWith({})), QStringLiteral("3.3 m"));
    EXPECT_EQ(before(ppdWith({"KsIsIntegerMargin"})), QStringLiteral("4 m"));
    EXPECT_EQ(before(ppdWith({"KsIsIntegerPrintTapeLength"})), QStringLiteral("3.3 m"));
    EXPECT_EQ(before(ppdWith({"KsUnitType"})), QStringLiteral("3.3 m"));
}

TEST(SummaryFields, OfMarginAndPrintTapeLength_StandAsTheyAre)
{
    PanelUnderTest panel(ppdWith({}));
    panel.show();
    panel.field("mMarginTxFld")->setText(QStringLiteral("500"));
    panel.field("mTapeLengthTxFld")->setText(QStringLiteral("0.123"));
    EXPECT_EQ(valueOf(panel, "Margin"), QStringLiteral("500 mm"));
    EXPECT_EQ(valueOf(panel, "Print Tape Length"), QStringLiteral("0.123 m"));
}
