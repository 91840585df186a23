// SPDX-License-Identifier: Apache-2.0
// Look-ups in a PPD, choice arrays, titles, and the text colour of controls.
#include "MemoryOption.h"
#include "PpdText.h"
#include "TextPrinting.h"

#include "pdekit/StringEncoding.h"
#include "ppd/PDEUtilsMethod13.h"

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPalette>
#include <QPushButton>

#include <gtest/gtest.h>

#include <utility>

namespace
{

class PDEUtils : public testing::Test
{
protected:
    ~PDEUtils() override { pdekit::setSystemEncoding({}); }
};

TEST_F(PDEUtils, RunningOn105OrLater_IsAlwaysTrue)
{
    EXPECT_TRUE(PDEUtilsMethod13::runningOn105OrLater());
}

TEST_F(PDEUtils, AttributeValue_IsFoundWhateverItsSpecifier)
{
    const OpenPpd ppd = PpdText().line("*KsUnitType Roll: \"inch\"").attribute("KsMinMargin", "1.0").open();
    EXPECT_EQ(PDEUtilsMethod13::ppdAttrValStr(ppd.get(), "KsUnitType"), u"inch");
    EXPECT_EQ(PDEUtilsMethod13::ppdAttrValStr(ppd.get(), "KsMinMargin"), u"1.0");
}

TEST_F(PDEUtils, RepeatedAttribute_TheFirstCounts)
{
    // The values are out of the order of the alphabet, so that no sorting gives the same; with and without specifiers.
    const OpenPpd ppd = PpdText()
                            .line("*KsUnitType: \"m\"")
                            .line("*KsUnitType: \"a\"")
                            .line("*KsUnitType: \"z\"")
                            .line("*KsMaxMargin Second: \"2\"")
                            .line("*KsMaxMargin Second: \"1\"")
                            .open();
    EXPECT_EQ(PDEUtilsMethod13::ppdAttrValStr(ppd.get(), "KsUnitType"), u"m");
    EXPECT_EQ(PDEUtilsMethod13::ppdAttrValStr(ppd.get(), "KsMaxMargin"), u"2");
}

TEST_F(PDEUtils, AttributeValue_IsReadInTheSystemsEncoding)
{
    const OpenPpd ppd = PpdText().attribute("KsText", "\xC3\xA4").open();
    pdekit::setSystemEncoding("UTF-8");
    EXPECT_EQ(PDEUtilsMethod13::ppdAttrValStr(ppd.get(), "KsText"), u"\u00E4");
    pdekit::setSystemEncoding("ISO-8859-1");
    EXPECT_EQ(PDEUtilsMethod13::ppdAttrValStr(ppd.get(), "KsText"), u"\u00C3\u00A4");
    pdekit::setSystemEncoding("US-ASCII");
    EXPECT_TRUE(PDEUtilsMethod13::ppdAttrValStr(ppd.get(), "KsText").isNull());
}

TEST_F(PDEUtils, AttributeValue_OfAnAbsentAttribute_IsNil)
{
    const OpenPpd ppd = PpdText().open();
    EXPECT_TRUE(PDEUtilsMethod13::ppdAttrValStr(ppd.get(), "KsNone").isNull());
    EXPECT_TRUE(PDEUtilsMethod13::ppdAttrValStr(ppd.get(), nullptr).isNull());
    EXPECT_TRUE(PDEUtilsMethod13::ppdAttrValStr(nullptr, "KsNone").isNull());
}

TEST_F(PDEUtils, AttributeValue_OfAnAttributeWithoutAValue_IsNil)
{
    const OpenPpd ppd = PpdText().attribute("KsText", "text").open();
    ppd_attr_t *attribute = ppdFindAttr(ppd.get(), "KsText", nullptr);
    ASSERT_NE(attribute, nullptr);
    char *value = std::exchange(attribute->value, nullptr);
    EXPECT_TRUE(PDEUtilsMethod13::ppdAttrValStr(ppd.get(), "KsText").isNull());
    EXPECT_FALSE(PDEUtilsMethod13::isSupportedItem(ppd.get(), "KsText"));
    EXPECT_EQ(PDEUtilsMethod13::originItem(ppd.get(), "KsText"), QPointF(0.0, 0.0));
    attribute->value = value;
}

TEST_F(PDEUtils, OptionText_IsReadInTheSystemsEncoding_NilWithoutTheOption)
{
    const OpenPpd ppd = PpdText().option("KsMargin", "Margin", {{"2.0", "2.0 mm"}}, "2.0").open();
    EXPECT_EQ(PDEUtilsMethod13::ppdOptionTextStr(ppd.get(), "KsMargin"), u"Margin");
    putText(ppdFindOption(ppd.get(), "KsMargin")->text, "R\xE4nder");
    pdekit::setSystemEncoding("ISO-8859-1");
    EXPECT_EQ(PDEUtilsMethod13::ppdOptionTextStr(ppd.get(), "KsMargin"), u"R\u00E4nder");
    pdekit::setSystemEncoding("UTF-8");
    EXPECT_TRUE(PDEUtilsMethod13::ppdOptionTextStr(ppd.get(), "KsMargin").isNull());
    EXPECT_TRUE(PDEUtilsMethod13::ppdOptionTextStr(ppd.get(), "KsNone").isNull());
    EXPECT_TRUE(PDEUtilsMethod13::ppdOptionTextStr(ppd.get(), nullptr).isNull());
    EXPECT_TRUE(PDEUtilsMethod13::ppdOptionTextStr(nullptr, "KsMargin").isNull());
}

TEST_F(PDEUtils, IsSupportedItem_IsTrueForFalseAndForNothingElse)
{
    const OpenPpd ppd = PpdText()
                            .attribute("KsFalse", "False")
                            .attribute("KsTrue", "True")
                            .attribute("KsSmall", "false")
                            .attribute("KsLonger", "Falsely")
                            .attribute("KsEmpty", "")
                            .open();
    EXPECT_TRUE(PDEUtilsMethod13::isSupportedItem(ppd.get(), "KsFalse"));
    EXPECT_FALSE(PDEUtilsMethod13::isSupportedItem(ppd.get(), "KsTrue"));
    EXPECT_FALSE(PDEUtilsMethod13::isSupportedItem(ppd.get(), "KsSmall"));
    EXPECT_FALSE(PDEUtilsMethod13::isSupportedItem(ppd.get(), "KsLonger"));
    EXPECT_FALSE(PDEUtilsMethod13::isSupportedItem(ppd.get(), "KsEmpty"));
    EXPECT_FALSE(PDEUtilsMethod13::isSupportedItem(ppd.get(), "KsNone"));
    EXPECT_FALSE(PDEUtilsMethod13::isSupportedItem(nullptr, "KsFalse"));
}

TEST_F(PDEUtils, OriginItem_ReadsAPoint)
{
    const OpenPpd ppd = PpdText()
                            .attribute("KsPoint", "{12.5, -3}")
                            .attribute("KsTight", "{1,2}")
                            .attribute("KsEmpty", "")
                            .attribute("KsWord", "left")
                            .open();
    EXPECT_EQ(PDEUtilsMethod13::originItem(ppd.get(), "KsPoint"), QPointF(12.5, -3.0));
    EXPECT_EQ(PDEUtilsMethod13::originItem(ppd.get(), "KsTight"), QPointF(1.0, 2.0));
    EXPECT_EQ(PDEUtilsMethod13::originItem(ppd.get(), "KsEmpty"), QPointF(0.0, 0.0));
    EXPECT_EQ(PDEUtilsMethod13::originItem(ppd.get(), "KsWord"), QPointF(0.0, 0.0));
    EXPECT_EQ(PDEUtilsMethod13::originItem(ppd.get(), "KsNone"), QPointF(0.0, 0.0));
    EXPECT_EQ(PDEUtilsMethod13::originItem(nullptr, "KsPoint"), QPointF(0.0, 0.0));
}

TEST_F(PDEUtils, OriginItem_ReadsASingleNumberAsItsX)
{
    const OpenPpd ppd = PpdText()
                            .attribute("KsNumber", "5")
                            .attribute("KsBraced", "{-2.5}")
                            .attribute("KsOpen", "{3")
                            .attribute("KsNoX", "{,4}")
                            .attribute("KsNoY", "{3,}")
                            .attribute("KsPlain", "3, 4")
                            .open();
    EXPECT_EQ(PDEUtilsMethod13::originItem(ppd.get(), "KsNumber"), QPointF(5.0, 0.0));
    EXPECT_EQ(PDEUtilsMethod13::originItem(ppd.get(), "KsBraced"), QPointF(-2.5, 0.0));
    EXPECT_EQ(PDEUtilsMethod13::originItem(ppd.get(), "KsOpen"), QPointF(3.0, 0.0));
    EXPECT_EQ(PDEUtilsMethod13::originItem(ppd.get(), "KsNoX"), QPointF(0.0, 4.0));
    EXPECT_EQ(PDEUtilsMethod13::originItem(ppd.get(), "KsNoY"), QPointF(3.0, 0.0));
    EXPECT_EQ(PDEUtilsMethod13::originItem(ppd.get(), "KsPlain"), QPointF(3.0, 4.0));
}

TEST_F(PDEUtils, ArrayFromOption_HoldsOneRecordAChoiceInTheOptionsOrder)
{
    const MemoryOption memory("B", {{"C", "3"}, {"A", "1"}, {"B", "2"}});
    const auto choices = PDEUtilsMethod13::arrayFromPPDOption(&memory.option);
    ASSERT_NE(choices, nullptr);
    ASSERT_EQ(choices->size(), 3U);
    for (std::size_t i = 0; i < 3; ++i) {
        EXPECT_EQ((*choices)[i].choice(), &memory.choices[i]);
    }
}

TEST_F(PDEUtils, ArrayFromOption_WithoutChoices_IsEmpty_WithoutAnOption_Nil)
{
    const MemoryOption memory("A", {});
    const auto choices = PDEUtilsMethod13::arrayFromPPDOption(&memory.option);
    ASSERT_NE(choices, nullptr);
    EXPECT_TRUE(choices->empty());
    EXPECT_EQ(PDEUtilsMethod13::arrayFromPPDOption(nullptr), nullptr);
}

TEST_F(PDEUtils, FindChoice_WithAKeyword_IsTheFirstThatHasIt)
{
    const MemoryOption memory("A", {{"A", "1"}, {"B", "2"}, {"B", "3"}});
    const auto choices = PDEUtilsMethod13::arrayFromPPDOption(&memory.option);
    EXPECT_EQ(PDEUtilsMethod13::findChoiceForString(u"B"_qs, choices.get()), &(*choices)[1]);
    EXPECT_EQ(PDEUtilsMethod13::findChoiceForString(u"b"_qs, choices.get()), nullptr);
    EXPECT_EQ(PDEUtilsMethod13::findChoiceForString(u"C"_qs, choices.get()), nullptr);
}

TEST_F(PDEUtils, FindChoice_WithoutAKeyword_IsThePpdsDefault)
{
    const MemoryOption memory("B", {{"A", "1"}, {"B", "2"}});
    const auto choices = PDEUtilsMethod13::arrayFromPPDOption(&memory.option);
    EXPECT_EQ(PDEUtilsMethod13::findChoiceForString(QString(), choices.get()), &(*choices)[1]);
    const MemoryOption without("Z", {{"A", "1"}, {"B", "2"}});
    const auto others = PDEUtilsMethod13::arrayFromPPDOption(&without.option);
    EXPECT_EQ(PDEUtilsMethod13::findChoiceForString(QString(), others.get()), nullptr);
}

TEST_F(PDEUtils, FindChoice_WithAnEmptyKeyword_FindsNoChoiceWhoseKeywordIsUnreadable)
{
    const MemoryOption memory("A", {{"\xE4", "1"}, {"A", "2"}});
    const auto choices = PDEUtilsMethod13::arrayFromPPDOption(&memory.option);
    EXPECT_EQ(PDEUtilsMethod13::findChoiceForString(u""_qs, choices.get()), nullptr);
}

TEST_F(PDEUtils, FindChoice_WithoutAnArray_IsNil)
{
    EXPECT_EQ(PDEUtilsMethod13::findChoiceForString(u"A"_qs, nullptr), nullptr);
    EXPECT_EQ(PDEUtilsMethod13::findChoiceForString(QString(), nullptr), nullptr);
}

TEST_F(PDEUtils, NewTitles_AreReadAsUtf8)
{
    MemoryOption memory("A", {{"A", "Rot \xE2\x82\xAC"}, {"B", "\xFF"}});
    putText(memory.option.text, "Gr\xC3\xB6\xC3\x9F"
                                "e");
    pdekit::setSystemEncoding("ISO-8859-1");
    EXPECT_EQ(PDEUtilsMethod13::newOptionTitle(&memory.option), u"Gr\u00F6\u00DFe");
    EXPECT_EQ(PDEUtilsMethod13::newChoiceTitle(&memory.choices[0]), u"Rot \u20AC");
    EXPECT_TRUE(PDEUtilsMethod13::newChoiceTitle(&memory.choices[1]).isNull());
    EXPECT_TRUE(PDEUtilsMethod13::newOptionTitle(nullptr).isNull());
    EXPECT_TRUE(PDEUtilsMethod13::newChoiceTitle(nullptr).isNull());
}

/// Sets the application's colours of a role for the lifetime of a test.
class TextColours
{
public:
    explicit TextColours(QPalette::ColorRole role) : mBefore(QApplication::palette())
    {
        QPalette colours = mBefore;
        colours.setColor(QPalette::Active, role, Qt::blue);
        colours.setColor(QPalette::Inactive, role, Qt::blue);
        colours.setColor(QPalette::Disabled, role, Qt::red);
        QApplication::setPalette(colours);
    }
    ~TextColours() { QApplication::setPalette(mBefore); }
    TextColours(const TextColours &) = delete;
    TextColours &operator=(const TextColours &) = delete;

private:
    QPalette mBefore;
};

TEST_F(PDEUtils, SetEnabledForText_GivesALabelTheNormalOrTheDisabledColour)
{
    const TextColours colours(QPalette::WindowText);
    QLabel label;
    PDEUtilsMethod13::setEnabledForText(false, &label);
    EXPECT_EQ(label.palette().color(QPalette::Active, QPalette::WindowText), QColor(Qt::red));
    EXPECT_EQ(label.palette().color(QPalette::Inactive, QPalette::WindowText), QColor(Qt::red));
    PDEUtilsMethod13::setEnabledForText(true, &label);
    EXPECT_EQ(label.palette().color(QPalette::Active, QPalette::WindowText), QColor(Qt::blue));
    EXPECT_TRUE(label.isEnabled());
}

TEST_F(PDEUtils, SetEnabledForText_GivesATextFieldTheNormalOrTheDisabledColour)
{
    const TextColours colours(QPalette::Text);
    QLineEdit field;
    PDEUtilsMethod13::setEnabledForText(false, &field);
    EXPECT_EQ(field.palette().color(QPalette::Active, QPalette::Text), QColor(Qt::red));
    EXPECT_TRUE(field.isEnabled());
    PDEUtilsMethod13::setEnabledForText(true, &field);
    EXPECT_EQ(field.palette().color(QPalette::Active, QPalette::Text), QColor(Qt::blue));
}

TEST_F(PDEUtils, SetEnabledForText_LeavesControlsWithoutATextColourAlone)
{
    QPushButton button;
    const QPalette before = button.palette();
    PDEUtilsMethod13::setEnabledForText(false, &button);
    EXPECT_EQ(button.palette(), before);
    EXPECT_TRUE(button.isEnabled());
    PDEUtilsMethod13::setEnabledForText(true, nullptr);
}

} // namespace
