// SPDX-License-Identifier: Apache-2.0
// The edit formatter: every style's characters at their edges, limits, forbidden strings, notices, display forms.
#include "controls/PDEFormatter.h"

#include "BeepCounter.h"
#include "TextPrinting.h"
#include "pdekit/NotificationCenter.h"
#include "pdekit/StringEncoding.h"

#include <QDate>
#include <QObject>
#include <QTime>

#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <vector>

namespace
{

using pdekit::Notification;

/// A formatter and what it posts.
class Formatter : public testing::Test
{
protected:
    Formatter()
    {
        pdekit::NotificationCenter::defaultCenter().addObserver(
            &mObserver, [this](const Notification &notice) { mNotices.push_back(notice); }, QString());
    }

    /// Types a text at the end of another.
    bool types(const QString &inserted, const QString &original = QStringLiteral(""))
    {
        return replaces(original, {original.size(), 0}, inserted);
    }

    /// Replaces a range of a text by another text; the caret stands behind it.
    bool replaces(const QString &original, PDEFormatter::Range range, const QString &inserted)
    {
        QString partial = original;
        partial.replace(range.location, range.length, inserted);
        const PDEFormatter::Range caret{range.location + inserted.size(), 0};
        return mFormatter.isPartialStringValid(partial, &caret, original, range, nullptr);
    }

    /// The ASCII characters that a style admits into an empty field.
    std::string admitted(std::uint32_t style)
    {
        mFormatter.setTextStyle(style);
        std::string characters;
        for (char c = 0; c >= 0 && c < 127; ++c) {
            characters += types(QString(QLatin1Char(c))) ? std::string(1, c) : std::string();
        }
        return types(QString(QChar(127))) ? characters + '\x7f' : characters;
    }

    PDEFormatter mFormatter;
    QObject mObserver;
    std::vector<Notification> mNotices;
};

std::string everyAscii()
{
    std::string characters;
    for (int c = 0; c < 128; ++c) {
        characters += static_cast<char>(c);
    }
    return characters;
}

const std::string kDigits = "0123456789";
const std::string kCapitals = "ABCDEFGHIJKLMNOPQRSTUVWXYZ";
const std::string kSmalls = "abcdefghijklmnopqrstuvwxyz";

// The lists are in the order of the character codes.

TEST_F(Formatter, Style0_AdmitsAnythingAlsoOutsideAscii)
{
    EXPECT_EQ(admitted(0), everyAscii());
    EXPECT_TRUE(types(QStringLiteral("é")));
    EXPECT_TRUE(types(QStringLiteral("日本")));
    EXPECT_TRUE(mNotices.empty());
}

TEST_F(Formatter, Styles1And3And5_AdmitEveryAsciiCharacterAndNoOther)
{
    for (const std::uint32_t style : {1U, 3U, 5U}) {
        EXPECT_EQ(admitted(style), everyAscii()) << style;
        EXPECT_FALSE(types(QStringLiteral("é"))) << style;
        EXPECT_FALSE(types(QString(QChar(0x80)))) << style;
    }
}

TEST_F(Formatter, Style2_AdmitsDigits)
{
    EXPECT_EQ(admitted(2), kDigits);
}

TEST_F(Formatter, Style4_AdmitsDigitsAndThePoint)
{
    EXPECT_EQ(admitted(4), "." + kDigits);
}

TEST_F(Formatter, Style6_AdmitsDigitsLettersAndTheSpace)
{
    EXPECT_EQ(admitted(6), " " + kDigits + kCapitals + kSmalls);
}

TEST_F(Formatter, Style7_AdmitsDigitsLettersAndSevenMore)
{
    EXPECT_EQ(admitted(7), " $%+-./" + kDigits + kCapitals + kSmalls);
}

TEST_F(Formatter, Style8_AdmitsDigitsAndSixMore)
{
    EXPECT_EQ(admitted(8), "$+-./" + kDigits + ":");
}

TEST_F(Formatter, Style9_AdmitsStyle8AndTheLettersAToD)
{
    EXPECT_EQ(admitted(9), "$+-./" + kDigits + ":ABCDabcd");
}

TEST_F(Formatter, Style10_AdmitsEveryPrintableCharacter)
{
    EXPECT_EQ(admitted(10), everyAscii().substr(32, 95));
}

TEST_F(Formatter, Style11_AdmitsDigitsLettersAndItsSigns)
{
    EXPECT_EQ(admitted(11), " !\"%'()*+,-./" + kDigits + ":;<=>?" + kCapitals + "_" + kSmalls);
}

TEST_F(Formatter, StylesAbove11_AdmitEveryAsciiCharacter)
{
    for (const std::uint32_t style : {12U, 13U, std::numeric_limits<std::uint32_t>::max()}) {
        EXPECT_EQ(admitted(style), everyAscii()) << style;
        EXPECT_FALSE(types(QStringLiteral("é"))) << style;
    }
}

TEST_F(Formatter, Style4_SecondPointIsRefusedWithABeep)
{
    mFormatter.setTextStyle(4);
    const int before = tests::beeps();
    EXPECT_FALSE(types(QStringLiteral("."), QStringLiteral("12.5")));
    EXPECT_EQ(tests::beeps(), before + 1);
    ASSERT_EQ(mNotices.size(), 1U);
    EXPECT_EQ(mNotices[0].name, QStringLiteral("InvalidCharacterNotification"));
    EXPECT_EQ(mNotices[0].object, &mFormatter);
    EXPECT_TRUE(mNotices[0].text.isNull());
}

TEST_F(Formatter, Style4_FirstPointIsAccepted)
{
    mFormatter.setTextStyle(4);
    const int before = tests::beeps();
    EXPECT_TRUE(types(QStringLiteral("."), QStringLiteral("125")));
    EXPECT_TRUE(types(QStringLiteral(".")));
    EXPECT_EQ(tests::beeps(), before);
    EXPECT_TRUE(mNotices.empty());
}

TEST_F(Formatter, Style4_PointsPastedTogetherIntoATextWithoutOnePass)
{
    mFormatter.setTextStyle(4);
    EXPECT_TRUE(types(QStringLiteral("1.2.3")));
    EXPECT_TRUE(types(QStringLiteral("1.2.3"), QStringLiteral("9")));
}

TEST_F(Formatter, Style4_PointOverASelectionThatHoldsThePointIsRefused)
{
    mFormatter.setTextStyle(4);
    EXPECT_FALSE(replaces(QStringLiteral("12.5"), {0, 4}, QStringLiteral("3.5")));
    EXPECT_TRUE(replaces(QStringLiteral("12.5"), {0, 4}, QStringLiteral("35")));
}

TEST_F(Formatter, OtherStyles_DoNotCountPoints)
{
    mFormatter.setTextStyle(11);
    EXPECT_TRUE(types(QStringLiteral("."), QStringLiteral("12.5")));
}

TEST_F(Formatter, Deletion_IsNeverExamined)
{
    mFormatter.setTextStyle(2);
    mFormatter.setMinValue(1000);
    const PDEFormatter::Range caret{1, 0};
    EXPECT_TRUE(mFormatter.isPartialStringValid(QStringLiteral("ab"), &caret, QStringLiteral("abc"), {1, 1}, nullptr));
    // The caret is at the start of what was selected, whatever stands in the text.
    EXPECT_TRUE(mFormatter.isPartialStringValid(QStringLiteral("x"), &caret, QStringLiteral("xyz"), {1, 2}, nullptr));
    EXPECT_TRUE(replaces(QStringLiteral("xyz"), {0, 3}, QStringLiteral("")));
}

TEST_F(Formatter, SelectionReplacedByAShorterText_ExaminesOnlyTheNewText)
{
    mFormatter.setTextStyle(2);
    EXPECT_TRUE(replaces(QStringLiteral("abcd"), {0, 4}, QStringLiteral("12")));
    EXPECT_FALSE(replaces(QStringLiteral("1234"), {0, 4}, QStringLiteral("x")));
}

TEST_F(Formatter, MissingTextOrSelection_IsAccepted)
{
    mFormatter.setTextStyle(2);
    const PDEFormatter::Range caret{1, 0};
    EXPECT_TRUE(mFormatter.isPartialStringValid(QString(), &caret, QStringLiteral("1"), {0, 0}, nullptr));
    EXPECT_TRUE(mFormatter.isPartialStringValid(QStringLiteral(""), &caret, QStringLiteral("1"), {0, 0}, nullptr));
    EXPECT_TRUE(mFormatter.isPartialStringValid(QStringLiteral("x"), nullptr, QStringLiteral(""), {0, 0}, nullptr));
    EXPECT_FALSE(mFormatter.isPartialStringValid(QStringLiteral("x"), &caret, QStringLiteral(""), {0, 0}, nullptr));
}

TEST_F(Formatter, RangesBeyondTheText_ReadNothingBeyondIt)
{
    mFormatter.setTextStyle(2);
    const PDEFormatter::Range far{99, 0};
    EXPECT_TRUE(mFormatter.isPartialStringValid(QStringLiteral("x"), &far, QString(), {50, 0}, nullptr));
    EXPECT_FALSE(mFormatter.isPartialStringValid(QStringLiteral("x"), &far, QString(), {-5, 0}, nullptr));
}

TEST_F(Formatter, ErrorDescriptionAndText_AreNeverSet)
{
    mFormatter.setTextStyle(2);
    QString error = QStringLiteral("as it was");
    const PDEFormatter::Range caret{1, 0};
    EXPECT_FALSE(mFormatter.isPartialStringValid(QStringLiteral("x"), &caret, QString(), {0, 0}, &error));
    QVariant object;
    EXPECT_TRUE(mFormatter.getObjectValue(&object, QStringLiteral("x"), &error));
    EXPECT_EQ(error, QStringLiteral("as it was"));
}

TEST_F(Formatter, Style2_MinimumWaitsUntilTheBoundedFieldIsFull)
{
    mFormatter.setTextStyle(2);
    mFormatter.setMaxLength(3);
    mFormatter.setMinValue(100);
    EXPECT_TRUE(types(QStringLiteral("5")));
    EXPECT_TRUE(types(QStringLiteral("5"), QStringLiteral("0")));
    EXPECT_TRUE(mNotices.empty());
    EXPECT_FALSE(types(QStringLiteral("0"), QStringLiteral("05")));
    ASSERT_EQ(mNotices.size(), 1U);
    EXPECT_EQ(mNotices[0].name, QStringLiteral("FormatErrorNotification"));
    EXPECT_EQ(mNotices[0].object, &mFormatter);
    EXPECT_TRUE(types(QStringLiteral("0"), QStringLiteral("10")));
}

TEST_F(Formatter, ValueRange_IsInForceAtOnceWithoutALengthLimit)
{
    for (const std::uint32_t style : {2U, 4U}) {
        mFormatter.setTextStyle(style);
        mFormatter.setMinValue(10);
        mFormatter.setMaxValue(99);
        EXPECT_FALSE(types(QStringLiteral("9"))) << style;
        EXPECT_TRUE(types(QStringLiteral("0"), QStringLiteral("1"))) << style;
        EXPECT_TRUE(types(QStringLiteral("9"), QStringLiteral("9"))) << style;
        EXPECT_FALSE(types(QStringLiteral("0"), QStringLiteral("10"))) << style;
    }
    // The whole number of 99.9 is 99.
    EXPECT_TRUE(types(QStringLiteral("9"), QStringLiteral("99.")));
}

TEST_F(Formatter, ValueRange_DoesNotConcernOtherStyles)
{
    mFormatter.setTextStyle(6);
    mFormatter.setMinValue(10);
    mFormatter.setMaxValue(99);
    EXPECT_TRUE(types(QStringLiteral("5")));
    EXPECT_TRUE(types(QStringLiteral("500")));
}

TEST_F(Formatter, ValueRange_SettingAValuePutsItInForceAndTheSwitchTakesItOut)
{
    EXPECT_FALSE(mFormatter.isValidityMaxValue());
    EXPECT_FALSE(mFormatter.isValidityMinValue());
    mFormatter.setTextStyle(2);
    EXPECT_TRUE(types(QStringLiteral("5")));
    mFormatter.setMaxValue(4);
    EXPECT_TRUE(mFormatter.isValidityMaxValue());
    EXPECT_FALSE(mFormatter.isValidityMinValue());
    EXPECT_FALSE(types(QStringLiteral("5")));
    mFormatter.setValidityMaxValue(false);
    EXPECT_TRUE(types(QStringLiteral("5")));
    mFormatter.setMinValue(6);
    EXPECT_TRUE(mFormatter.isValidityMinValue());
    EXPECT_FALSE(types(QStringLiteral("5")));
    mFormatter.setValidityMinValue(false);
    EXPECT_TRUE(types(QStringLiteral("5")));
    EXPECT_EQ(mFormatter.maxValue(), 4);
    EXPECT_EQ(mFormatter.minValue(), 6);
}

TEST_F(Formatter, ValueRange_NumberBeyond32BitsIsHeldAtTheEnd)
{
    mFormatter.setTextStyle(2);
    mFormatter.setMaxValue(std::numeric_limits<std::int32_t>::max());
    EXPECT_TRUE(types(QStringLiteral("99999999999999999999")));
    mFormatter.setMaxValue(std::numeric_limits<std::int32_t>::max() - 1);
    EXPECT_FALSE(types(QStringLiteral("99999999999999999999")));
}

TEST_F(Formatter, Style0_MaximumLengthStillApplies)
{
    mFormatter.setMaxLength(3);
    EXPECT_TRUE(types(QStringLiteral("c"), QStringLiteral("ab")));
    EXPECT_FALSE(types(QStringLiteral("d"), QStringLiteral("abc")));
    ASSERT_EQ(mNotices.size(), 1U);
    EXPECT_EQ(mNotices[0].name, QStringLiteral("InvalidCharacterNotification"));
    EXPECT_TRUE(mNotices[0].text.isNull());
}

TEST_F(Formatter, MaximumLength_CountsBytesOfTheSystemsEncoding)
{
    mFormatter.setMaxLength(3);
    pdekit::setSystemEncoding("UTF-8");
    EXPECT_TRUE(types(QStringLiteral("é"), QStringLiteral("a"))); // 1 + 2 bytes
    EXPECT_FALSE(types(QStringLiteral("é"), QStringLiteral("ab")));
    EXPECT_TRUE(types(QStringLiteral("日"))); // 3 bytes
    // An encoding that cannot hold the text: its characters count.
    pdekit::setSystemEncoding("US-ASCII");
    EXPECT_TRUE(types(QStringLiteral("日本語")));
    EXPECT_FALSE(types(QStringLiteral("日本語文")));
    pdekit::setSystemEncoding({});
}

TEST_F(Formatter, TextOutsideMacRoman_IsRefusedWithItsLastCharacterAsTheObject)
{
    mFormatter.setTextStyle(1);
    EXPECT_FALSE(types(QStringLiteral("a日本b")));
    ASSERT_EQ(mNotices.size(), 1U);
    EXPECT_EQ(mNotices[0].name, QStringLiteral("InvalidCharacterNotification"));
    EXPECT_EQ(mNotices[0].text, QStringLiteral("b"));
    EXPECT_EQ(mNotices[0].object, nullptr);
}

TEST_F(Formatter, CharacterOfTwoUnits_IsPostedWhole)
{
    mFormatter.setTextStyle(4);
    EXPECT_FALSE(types(QStringLiteral("1\U0001F600")));
    ASSERT_EQ(mNotices.size(), 1U);
    EXPECT_EQ(mNotices[0].text, QStringLiteral("\U0001F600"));
}

TEST_F(Formatter, TextInMacRomanOutsideAscii_IsRefusedWithoutACharacter)
{
    mFormatter.setTextStyle(1);
    EXPECT_FALSE(types(QStringLiteral("é")));
    ASSERT_EQ(mNotices.size(), 1U);
    EXPECT_TRUE(mNotices[0].text.isNull());
    EXPECT_EQ(mNotices[0].object, &mFormatter);
}

TEST_F(Formatter, ForbiddenString_IsRefusedWithItsCharacterAlsoInStyle0)
{
    mFormatter.addInvalidCharacter(QStringLiteral("x"));
    EXPECT_FALSE(types(QStringLiteral("x")));
    ASSERT_EQ(mNotices.size(), 1U);
    EXPECT_EQ(mNotices[0].name, QStringLiteral("InvalidCharacterNotification"));
    EXPECT_EQ(mNotices[0].text, QStringLiteral("x"));
    EXPECT_EQ(mNotices[0].object, nullptr);
}

TEST_F(Formatter, ForbiddenCharacterPastedWithOthers_Passes)
{
    mFormatter.addInvalidCharacter(QStringLiteral("x"));
    EXPECT_TRUE(types(QStringLiteral("xy")));
    EXPECT_TRUE(types(QStringLiteral("X")));
}

TEST_F(Formatter, ForbiddenStringOfSeveralCharacters_RecordsTheLastOne)
{
    mFormatter.addInvalidCharacter(QStringLiteral("ab"));
    EXPECT_TRUE(types(QStringLiteral("a")));
    EXPECT_FALSE(types(QStringLiteral("ab")));
    ASSERT_EQ(mNotices.size(), 1U);
    EXPECT_EQ(mNotices[0].text, QStringLiteral("b"));
}

TEST_F(Formatter, ForbiddenStrings_RemovalTakesEveryEqualEntry)
{
    mFormatter.removeInvalidCharacter(QStringLiteral("x"));
    mFormatter.addInvalidCharacter(QString());
    EXPECT_FALSE(mFormatter.isInvalidCharacter(QString()));
    mFormatter.addInvalidCharacter(QStringLiteral("x"));
    mFormatter.addInvalidCharacter(QStringLiteral("y"));
    mFormatter.addInvalidCharacter(QStringLiteral("x"));
    EXPECT_TRUE(mFormatter.isInvalidCharacter(QStringLiteral("x")));
    EXPECT_FALSE(mFormatter.isInvalidCharacter(QStringLiteral("xy")));
    mFormatter.removeInvalidCharacter(QStringLiteral("x"));
    EXPECT_FALSE(mFormatter.isInvalidCharacter(QStringLiteral("x")));
    EXPECT_TRUE(mFormatter.isInvalidCharacter(QStringLiteral("y")));
}

TEST_F(Formatter, SeveralRefusalsInOneInsertion_PostOnceAndTheLastWins)
{
    mFormatter.setTextStyle(2);
    mFormatter.setMaxValue(3);
    const int before = tests::beeps();
    // "5x" begins with 5, beyond 3: the digit is out of range, the letter is invalid, and the letter comes last.
    EXPECT_FALSE(types(QStringLiteral("5x")));
    // In "4x5" the last character is a digit, and the whole number of the text is 4.
    EXPECT_FALSE(types(QStringLiteral("4x5")));
    EXPECT_EQ(tests::beeps(), before + 2);
    ASSERT_EQ(mNotices.size(), 2U);
    EXPECT_EQ(mNotices[0].name, QStringLiteral("InvalidCharacterNotification"));
    EXPECT_EQ(mNotices[1].name, QStringLiteral("FormatErrorNotification"));
}

TEST_F(Formatter, AcceptedCharacterAfterARefusedOne_DoesNotSaveTheInsertion)
{
    mFormatter.setTextStyle(2);
    EXPECT_FALSE(types(QStringLiteral("x1")));
    EXPECT_EQ(mNotices.size(), 1U);
}

TEST_F(Formatter, NotificationObject_StandsForTheFormatter)
{
    const auto object = std::make_shared<int>(7);
    mFormatter.setTextStyle(2);
    mFormatter.setNotificationObject(object);
    EXPECT_EQ(mFormatter.notificationObject(), object);
    EXPECT_FALSE(types(QStringLiteral("x")));
    ASSERT_EQ(mNotices.size(), 1U);
    EXPECT_EQ(mNotices[0].object, object.get());
}

TEST_F(Formatter, NotificationObject_IsSharedUntilItIsReplaced)
{
    auto object = std::make_shared<int>(7);
    const std::weak_ptr<int> watch = object;
    mFormatter.setNotificationObject(std::move(object));
    EXPECT_FALSE(watch.expired());
    mFormatter.setNotificationObject(nullptr);
    EXPECT_TRUE(watch.expired());
}

TEST(FormatterConstruction, Defaults_AreFormatAtAndStyle0)
{
    const PDEFormatter formatter;
    EXPECT_EQ(formatter.formatString(), QStringLiteral("%@"));
    EXPECT_EQ(formatter.textStyle(), 0U);
    EXPECT_EQ(formatter.maxLength(), 0U);
    EXPECT_EQ(formatter.maxValue(), 0);
    EXPECT_EQ(formatter.minValue(), 0);
    EXPECT_EQ(formatter.notificationObject(), nullptr);
    EXPECT_FALSE(formatter.calendarDate().has_value());
    EXPECT_FALSE(formatter.calendarLocale().has_value());
}

TEST(FormatterConstruction, Initialisers_SetWhatTheirNamesSay)
{
    EXPECT_EQ(PDEFormatter::initWithStyle(4)->textStyle(), 4U);
    EXPECT_EQ(PDEFormatter::initWithStyle(4)->formatString(), QStringLiteral("%@"));
    EXPECT_EQ(PDEFormatter::initWithFormatString(QStringLiteral("%d"))->formatString(), QStringLiteral("%d"));
    EXPECT_EQ(PDEFormatter::initWithFormatString(QStringLiteral("%d"))->textStyle(), 0U);
    EXPECT_EQ(PDEFormatter::initWithFormatString(QString())->formatString(), QStringLiteral("%@"));
    EXPECT_EQ(PDEFormatter::initWithFormatString(QStringLiteral("%d"), 2)->textStyle(), 2U);
    const auto dated = PDEFormatter::initWithCalendarDate(std::nullopt, std::nullopt);
    EXPECT_EQ(dated->textStyle(), 5U);
    EXPECT_TRUE(dated->formatString().isNull());
    dated->setFormatString(QString());
    EXPECT_EQ(dated->formatString(), QStringLiteral("%@"));
}

TEST(FormatterDisplay, PlainFormat_ShowsTheValueItself)
{
    const PDEFormatter formatter;
    EXPECT_EQ(formatter.stringForObjectValue(QStringLiteral("12abc")), QStringLiteral("12abc"));
    EXPECT_EQ(formatter.stringForObjectValue(42), QStringLiteral("42"));
    EXPECT_EQ(formatter.stringForObjectValue(12.5), QStringLiteral("12.5"));
    EXPECT_EQ(formatter.stringForObjectValue(QStringLiteral("100%d")), QStringLiteral("100%d"));
    EXPECT_EQ(formatter.stringForObjectValue(QVariant()), QStringLiteral("(null)"));
}

TEST(FormatterDisplay, NumberStylesWithoutAt_ShowTheWholeNumber)
{
    for (const std::uint32_t style : {2U, 4U}) {
        const auto formatter = PDEFormatter::initWithFormatString(QStringLiteral("%d mm"), style);
        EXPECT_EQ(formatter->stringForObjectValue(QStringLiteral("12.9")), QStringLiteral("12 mm"));
        EXPECT_EQ(formatter->stringForObjectValue(-12.9), QStringLiteral("-12 mm"));
        EXPECT_EQ(formatter->stringForObjectValue(QStringLiteral("abc")), QStringLiteral("0 mm"));
        EXPECT_EQ(formatter->stringForObjectValue(Q_INT64_C(9999999999)), QStringLiteral("2147483647 mm"));
    }
}

TEST(FormatterDisplay, MissingValue_IsNullAsTextAndZeroAsANumber)
{
    for (const QVariant &missing : {QVariant(), QVariant(QString())}) {
        EXPECT_EQ(PDEFormatter().stringForObjectValue(missing), QStringLiteral("(null)"));
        for (const std::uint32_t style : {2U, 4U}) {
            const auto formatter = PDEFormatter::initWithFormatString(QStringLiteral("%d"), style);
            EXPECT_EQ(formatter->stringForObjectValue(missing), QStringLiteral("0")) << style;
        }
    }
    EXPECT_EQ(PDEFormatter().stringForObjectValue(QStringLiteral("")), QStringLiteral(""));
}

TEST(FormatterDisplay, NumberStylesWithAt_ShowTheValueItself)
{
    const auto formatter = PDEFormatter::initWithFormatString(QStringLiteral("<%@>"), 2);
    EXPECT_EQ(formatter->stringForObjectValue(QStringLiteral("12abc")), QStringLiteral("<12abc>"));
}

TEST(FormatterDisplay, PrintfShapes_AreFilled)
{
    const auto shown = [](const QString &format) {
        return PDEFormatter::initWithFormatString(format, 2)->stringForObjectValue(42);
    };
    EXPECT_EQ(shown(QStringLiteral("%05d|%-5i|%+d|%x|%X|%o|%%")), QStringLiteral("00042|42   |+42|2a|2A|52|%"));
    EXPECT_EQ(shown(QStringLiteral("%.2f")), QStringLiteral("42.00"));
    EXPECT_EQ(shown(QStringLiteral("%n%")), QStringLiteral("%n%"));
    EXPECT_EQ(shown(QStringLiteral("")), QStringLiteral(""));
    EXPECT_EQ(PDEFormatter::initWithFormatString(QStringLiteral("%6@|%-6@|%.2@"))
                  ->stringForObjectValue(QStringLiteral("abc")),
              QStringLiteral("   abc|abc   |ab"));
}

TEST(FormatterDisplay, UnsetFormat_ShowsNothing)
{
    const auto formatter = PDEFormatter::initWithCalendarDate(std::nullopt, std::nullopt);
    EXPECT_TRUE(formatter->stringForObjectValue(QStringLiteral("1")).isNull());
}

QDateTime someDay()
{
    return {QDate(2024, 3, 5), QTime(14, 7, 9, 45), Qt::OffsetFromUTC, -(3 * 3600 + 30 * 60)};
}

TEST(FormatterDisplay, Style5_ShowsTheDateWhateverTheValue)
{
    const auto formatter = PDEFormatter::initWithCalendarDate(someDay(), std::nullopt);
    EXPECT_EQ(formatter->stringForObjectValue(QStringLiteral("1")), QStringLiteral("2024-03-05 14:07:09 -0330"));
    formatter->setFormatString(QStringLiteral("%d.%m.%y %I:%M %p %e %j %w %F %A %a %B %b %q %%"));
    // The 65th day of a leap year (31 + 29 + 5), a Tuesday.
    EXPECT_EQ(formatter->stringForObjectValue(QVariant()),
              QStringLiteral("05.03.24 02:07 PM 5 065 2 045 Tuesday Tue March Mar %q %"));
}

TEST(FormatterDisplay, HoursOfAClockFace_GoFromOneToTwelve)
{
    const auto shown = [](int hour) {
        const QDateTime time(QDate(2024, 3, 5), QTime(hour, 0), Qt::UTC);
        const auto formatter = PDEFormatter::initWithCalendarDate(time, std::nullopt);
        formatter->setFormatString(QStringLiteral("%I %p"));
        return formatter->stringForObjectValue(QVariant());
    };
    EXPECT_EQ(shown(0), QStringLiteral("12 AM"));
    EXPECT_EQ(shown(1), QStringLiteral("01 AM"));
    EXPECT_EQ(shown(11), QStringLiteral("11 AM"));
    EXPECT_EQ(shown(12), QStringLiteral("12 PM"));
    EXPECT_EQ(shown(23), QStringLiteral("11 PM"));
}

TEST(FormatterDisplay, Style5_TakesNamesFromItsLocale)
{
    const auto formatter = PDEFormatter::initWithCalendarDate(someDay(), QLocale(QLocale::German));
    formatter->setFormatString(QStringLiteral("%A, %e. %B"));
    EXPECT_EQ(formatter->stringForObjectValue(QVariant()), QStringLiteral("Dienstag, 5. März"));
    formatter->setCalendarLocale(QLocale(QLocale::French));
    EXPECT_EQ(formatter->stringForObjectValue(QVariant()), QStringLiteral("mardi, 5. mars"));
}

TEST(FormatterDisplay, Style5WithoutADate_ShowsTheValue)
{
    const auto formatter = PDEFormatter::initWithStyle(5);
    EXPECT_EQ(formatter->stringForObjectValue(QStringLiteral("x")), QStringLiteral("x"));
    formatter->setCalendarDate(someDay());
    formatter->setFormatString(QStringLiteral("%Y"));
    EXPECT_EQ(formatter->stringForObjectValue(QStringLiteral("x")), QStringLiteral("2024"));
}

TEST(FormatterReading, Style2WithNumberFormat_StoresTheWholeNumberAsText)
{
    const auto formatter = PDEFormatter::initWithFormatString(QStringLiteral("%d"), 2);
    QVariant object;
    EXPECT_TRUE(formatter->getObjectValue(&object, QStringLiteral("12abc"), nullptr));
    EXPECT_EQ(object.typeId(), QMetaType::QString);
    EXPECT_EQ(object.toString(), QStringLiteral("12"));
}

TEST(FormatterReading, MissingPointers_AnswerYesAndStoreNothing)
{
    const PDEFormatter formatter;
    QVariant object = QStringLiteral("as it was");
    EXPECT_TRUE(formatter.getObjectValue(nullptr, QStringLiteral("x"), nullptr));
    EXPECT_TRUE(formatter.getObjectValue(&object, QString(), nullptr));
    EXPECT_EQ(object.toString(), QStringLiteral("as it was"));
    EXPECT_TRUE(formatter.getObjectValue(&object, QStringLiteral(""), nullptr));
    EXPECT_EQ(object.toString(), QStringLiteral(""));
}

} // namespace
