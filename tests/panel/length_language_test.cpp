// SPDX-License-Identifier: Apache-2.0
// Lengths in a session of a language whose decimal point is a comma: the point stays the decimal point.
#include "LengthGestures.h"
#include "TextPrinting.h"

#include <QLocale>
#include <QTest>

#include <clocale>
#include <string>

using namespace gestures;

namespace
{

/// A session of a language whose decimal point is a comma.
class GermanSession
{
public:
    GermanSession() : mBefore(std::setlocale(LC_ALL, nullptr))
    {
        QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
        // Not every machine has it; the toolkit's own locale is German in any case.
        std::setlocale(LC_ALL, "de_DE.UTF-8");
    }
    ~GermanSession()
    {
        std::setlocale(LC_ALL, mBefore.c_str());
        QLocale::setDefault(QLocale::c());
    }
    GermanSession(const GermanSession &) = delete;
    GermanSession &operator=(const GermanSession &) = delete;

private:
    std::string mBefore;
};

TEST(LengthsInAGermanSession, ThePointStaysTheDecimalPoint)
{
    const GermanSession german;
    ASSERT_EQ(QLocale().decimalPoint(), u",");
    PanelUnderTest panel(tape(oneDecimal().attribute("KsMaxTapeLength", "1234.5"), 99.05));
    panel.loaded.bundle()->setLanguage(u"de"_qs);
    panel.show();
    EXPECT_EQ(panel.field("mLengthTxFld")->text(), u"99.1");
    EXPECT_EQ(panel.label("mLengthMaxStr")->text(), u"1234.5");
    panel.type("mLengthTxFld", "12.5");
    key(panel, Qt::Key_Return);
    EXPECT_EQ(panel.field("mLengthTxFld")->text(), u"12.5");
    EXPECT_EQ(panel.slider("mLengthSlider")->floatValue(), 12.5F);
    save(panel);
    EXPECT_EQ(panel.callback->lastSent(u"KsTapeLength"_qs), u"12.5");
    EXPECT_EQ(panel.callback->lastSent(u"KsMargin"_qs), u"2.0");
    EXPECT_EQ(panel.callback->lastSent(u"KsPrintTapeLength"_qs), u"3.0");
    EXPECT_TRUE(panel.alerts.empty());
}

TEST(LengthsInAGermanSession, AComma_IsRefused)
{
    const GermanSession german;
    PanelUnderTest panel(tape(oneDecimal(), 100.0));
    panel.show();
    panel.type("mLengthTxFld", "12,5");
    EXPECT_EQ(panel.field("mLengthTxFld")->text(), u"125");
}

TEST(LengthsInAGermanSession, InchesHavePoints)
{
    const GermanSession german;
    PanelUnderTest panel(tape(inches(), 100.0));
    panel.show();
    EXPECT_EQ(panel.field("mLengthTxFld")->text(), u"3.94");
    EXPECT_EQ(panel.label("mLengthMinStr")->text(), u"0.16");
    wheel(panel, "mLengthSlider", 1);
    EXPECT_EQ(panel.field("mLengthTxFld")->text(), u"3.98");
}

} // namespace
