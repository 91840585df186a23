// SPDX-License-Identifier: Apache-2.0
// The edit filter is one table of character classes and one sequence of tests that every inserted character passes.
#include "controls/PDEFormatter.h"

#include "controls/CalendarFormat.h"
#include "controls/ValueFormat.h"
#include "pdekit/NotificationCenter.h"
#include "pdekit/Numbers.h"
#include "pdekit/StringEncoding.h"
#include "ppd/PDEUtilsMethod13.h"

#include <QApplication>

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>

namespace
{

constexpr std::uint32_t kAnything = 0;
constexpr std::uint32_t kInteger = 2;
constexpr std::uint32_t kDecimal = 4;
constexpr std::uint32_t kCalendarDate = 5;

/// The characters of a text style: pairs of a first and a last character, and single ones.
struct CharacterClass {
    std::string_view ranges;
    std::string_view singles;

    constexpr bool admits(char32_t character) const
    {
        for (std::size_t i = 0; i + 1 < ranges.size(); i += 2) {
            if (character >= static_cast<unsigned char>(ranges[i]) &&
                character <= static_cast<unsigned char>(ranges[i + 1])) {
                return true;
            }
        }
        return std::any_of(singles.begin(), singles.end(),
                           [=](char single) { return character == static_cast<unsigned char>(single); });
    }
};

using namespace std::string_view_literals;
constexpr CharacterClass kAscii{"\0\x7f"sv, ""sv};
constexpr std::array<CharacterClass, 12> kClasses = {{
    kAscii,                                  // 0: anything; never asked
    kAscii,                                  // 1
    {"09"sv, ""sv},                          // 2: a whole number
    kAscii,                                  // 3
    {"09"sv, "."sv},                         // 4: a decimal number
    kAscii,                                  // 5: a calendar date
    {"09AZaz"sv, " "sv},                     // 6
    {"09AZaz"sv, " $%+-./"sv},               // 7
    {"09"sv, "$+-./:"sv},                    // 8
    {"09ADad"sv, "$+-./:"sv},                // 9
    {" ~"sv, ""sv},                          // 10: every printable character
    {"09AZaz"sv, " !\"%'()*+,-./:;<=>?_"sv}, // 11
}};

/// Styles that the table does not know admit ASCII.
const CharacterClass &classOf(std::uint32_t style)
{
    return style < kClasses.size() ? kClasses[style] : kAscii;
}

bool hasValueRange(std::uint32_t style)
{
    return style == kInteger || style == kDecimal;
}

bool isAscii(const QString &text)
{
    return std::all_of(text.begin(), text.end(), [](QChar c) { return c.unicode() < 0x80; });
}

/// Bytes in the system's encoding; its characters when that encoding cannot hold the text.
qsizetype systemLength(const QString &text)
{
    const std::optional<QByteArray> bytes = pdekit::bytesFromString(text, pdekit::systemEncoding());
    return bytes ? bytes->size() : text.size();
}

} // namespace

/// An insertion with what its tests share, found once: only the last two tests look at the single character.
struct PDEFormatter::Insertion {
    const QString &partial;
    const QString &original;
    bool isMacRoman;
    bool isForbidden;
    bool isAsciiOnly;
    bool hadPoint;
    qsizetype length;
};

struct PDEFormatter::Refusal {
    QString name;
    QString character; ///< null when the notice is not about a character
};

PDEFormatter::PDEFormatter() = default;
PDEFormatter::~PDEFormatter() = default;

std::unique_ptr<PDEFormatter> PDEFormatter::initWithStyle(std::uint32_t style)
{
    return initWithFormatString(QString(), style);
}

std::unique_ptr<PDEFormatter> PDEFormatter::initWithFormatString(const QString &formatString)
{
    return initWithFormatString(formatString, kAnything);
}

std::unique_ptr<PDEFormatter> PDEFormatter::initWithFormatString(const QString &formatString, std::uint32_t style)
{
    auto formatter = std::make_unique<PDEFormatter>();
    formatter->setFormatString(formatString);
    formatter->setTextStyle(style);
    return formatter;
}

std::unique_ptr<PDEFormatter> PDEFormatter::initWithCalendarDate(const std::optional<QDateTime> &date,
                                                                 const std::optional<QLocale> &locale)
{
    auto formatter = std::make_unique<PDEFormatter>();
    formatter->mFormatString = QString();
    formatter->mTextStyle = kCalendarDate;
    formatter->mDate = date;
    formatter->mLocale = locale;
    return formatter;
}

void PDEFormatter::setFormatString(const QString &formatString)
{
    mFormatString = formatString.isNull() ? QStringLiteral("%@") : formatString;
}

void PDEFormatter::setMaxValue(std::int32_t value)
{
    mMaxValue = value;
    mIsValidityMaxValue = true;
}

void PDEFormatter::setMinValue(std::int32_t value)
{
    mMinValue = value;
    mIsValidityMinValue = true;
}

void PDEFormatter::addInvalidCharacter(const QString &character)
{
    if (character.isNull()) {
        return;
    }
    if (!mInvalidCaracters) {
        mInvalidCaracters.emplace();
    }
    mInvalidCaracters->push_back(character);
}

void PDEFormatter::removeInvalidCharacter(const QString &character)
{
    if (mInvalidCaracters) {
        std::erase(*mInvalidCaracters, character);
    }
}

bool PDEFormatter::isInvalidCharacter(const QString &character) const
{
    return mInvalidCaracters &&
           std::find(mInvalidCaracters->begin(), mInvalidCaracters->end(), character) != mInvalidCaracters->end();
}

QString PDEFormatter::stringForObjectValue(const QVariant &value) const
{
    if (mTextStyle == kCalendarDate && mDate) {
        return controls::calendarText(*mDate, mFormatString, mLocale.value_or(QLocale::c()));
    }
    // A format with "%@" shows the value's own text; it has no place for the whole number then.
    return controls::formattedValue(mFormatString, controls::valueText(value), controls::valueInteger(value));
}

bool PDEFormatter::getObjectValue(QVariant *object, const QString &string, QString * /*errorDescription*/) const
{
    if (object != nullptr && !string.isNull()) {
        *object = stringForObjectValue(string);
    }
    return true;
}

bool PDEFormatter::isPartialStringValid(const QString &partial, const Range *proposedSelectedRange,
                                        const QString &originalString, const Range &originalSelectedRange,
                                        QString * /*errorDescription*/) const
{
    if (partial.isEmpty() || proposedSelectedRange == nullptr) {
        return true;
    }
    const qsizetype start = std::clamp<qsizetype>(originalSelectedRange.location, 0, partial.size());
    const qsizetype caret = std::min(proposedSelectedRange->location, partial.size());
    if (caret <= start) {
        return true;
    }
    const QString inserted = partial.mid(start, caret - start);
    const Insertion insertion{partial,
                              originalString,
                              pdekit::canBeConvertedToEncoding(inserted, pdekit::macRomanEncoding()),
                              isInvalidCharacter(inserted),
                              isAscii(inserted),
                              PDEUtilsMethod13::scanString(originalString, QStringLiteral(".")),
                              systemLength(partial)};
    std::optional<Refusal> refusal;
    // A refusal does not end the walk: the notice is the one of the last character refused.
    for (const char32_t character : inserted.toUcs4()) {
        if (std::optional<Refusal> next = refusalOf(character, insertion)) {
            refusal = std::move(next);
        }
    }
    if (refusal) {
        report(*refusal);
    }
    return !refusal;
}

std::optional<PDEFormatter::Refusal> PDEFormatter::refusalOf(char32_t character, const Insertion &insertion) const
{
    if (mTextStyle != kAnything && !insertion.isMacRoman) {
        return Refusal{kInvalidCharacterNotification, QString::fromUcs4(&character, 1)};
    }
    // Deliberate: the inserted text is compared as a whole, so a forbidden character pasted with others passes.
    if (insertion.isForbidden) {
        return Refusal{kInvalidCharacterNotification, QString::fromUcs4(&character, 1)};
    }
    if (mMaxLength != 0 && std::cmp_greater(insertion.length, mMaxLength)) {
        return Refusal{kInvalidCharacterNotification, QString()};
    }
    if (mTextStyle == kAnything) {
        return std::nullopt;
    }
    if (!insertion.isAsciiOnly || !classOf(mTextStyle).admits(character)) {
        return Refusal{kInvalidCharacterNotification, QString()};
    }
    // Deliberate: the point is looked for in the text before the edit, also in the part that the edit replaces, and
    // points that come together into a text without one are not counted.
    if (mTextStyle == kDecimal && character == U'.' && insertion.hadPoint) {
        return Refusal{kInvalidCharacterNotification, QString()};
    }
    return hasValueRange(mTextStyle) ? refusalByRange(insertion) : std::nullopt;
}

std::optional<PDEFormatter::Refusal> PDEFormatter::refusalByRange(const Insertion &insertion) const
{
    // Into a field of bounded length the number is still being typed until the field is full.
    if (mMaxLength != 0 && std::cmp_not_equal(insertion.length, mMaxLength)) {
        return std::nullopt;
    }
    const std::int32_t value = pdekit::intValue(insertion.partial);
    const bool isAbove = mIsValidityMaxValue && mMaxValue < value;
    const bool isBelow = mIsValidityMinValue && mMinValue > value;
    if (isAbove || isBelow) {
        return Refusal{kFormatErrorNotification, QString()};
    }
    return std::nullopt;
}

void PDEFormatter::report(const Refusal &refusal) const
{
    const void *object = mObject != nullptr ? mObject.get() : this;
    QApplication::beep();
    pdekit::NotificationCenter::defaultCenter().postNotification(
        refusal.name, refusal.character.isNull() ? object : nullptr, refusal.character);
}
