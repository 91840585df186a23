// SPDX-License-Identifier: Apache-2.0
// The formatter of an edit field: which insertions may enter the field, and how a value is shown in it.
#pragma once

#include <QDateTime>
#include <QLocale>
#include <QString>
#include <QVariant>

#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

/// Decides, insertion by insertion, whether text may enter a field: by the character class of its text style, a
/// greatest length in bytes, a smallest and a largest whole number, and a list of forbidden strings. A refused
/// insertion sounds the beep and posts a notice through the default notification centre; the field keeps what it has.
///
/// Text styles: 0 anything; 1, 3, 5 and every style above 11 ASCII; 2 digits; 4 digits and one "."; 6 to 11 the classes
/// of the table in the source. Style 5 shows the calendar date.
class PDEFormatter
{
public:
    /// A range of UTF-16 units of a text: a selection, or a caret when its length is 0.
    struct Range {
        qsizetype location = 0;
        qsizetype length = 0;
    };

    /// Posted when a character or the length was refused, and when the value is out of range. The object of the notice
    /// is the notification object, or the formatter when there is none; where the notice is about a character, that
    /// character, as the notice's text, stands in for the object, which is null then.
    static inline const QString kInvalidCharacterNotification = QStringLiteral("InvalidCharacterNotification");
    static inline const QString kFormatErrorNotification = QStringLiteral("FormatErrorNotification");

    /// Format "%@", style 0.
    PDEFormatter();
    ~PDEFormatter();
    PDEFormatter(const PDEFormatter &) = delete;
    PDEFormatter &operator=(const PDEFormatter &) = delete;

    /// Format "%@", the given style.
    static std::unique_ptr<PDEFormatter> initWithStyle(std::uint32_t style);
    /// Style 0. \param formatString null means "%@".
    static std::unique_ptr<PDEFormatter> initWithFormatString(const QString &formatString);
    static std::unique_ptr<PDEFormatter> initWithFormatString(const QString &formatString, std::uint32_t style);
    /// Style 5. The format string stays unset (null).
    static std::unique_ptr<PDEFormatter> initWithCalendarDate(const std::optional<QDateTime> &date,
                                                              const std::optional<QLocale> &locale);

    QString formatString() const { return mFormatString; }
    /// \param formatString null means "%@".
    void setFormatString(const QString &formatString);

    std::optional<QDateTime> calendarDate() const { return mDate; }
    void setCalendarDate(const std::optional<QDateTime> &date) { mDate = date; }
    std::optional<QLocale> calendarLocale() const { return mLocale; }
    void setCalendarLocale(const std::optional<QLocale> &locale) { mLocale = locale; }

    /// The object that notices are posted about; shared with the formatter while it is set. Null for none.
    std::shared_ptr<const void> notificationObject() const { return mObject; }
    void setNotificationObject(std::shared_ptr<const void> object) { mObject = std::move(object); }

    std::uint32_t textStyle() const { return mTextStyle; }
    void setTextStyle(std::uint32_t style) { mTextStyle = style; }

    /// The greatest length of the whole text, in bytes of the system's encoding; 0 means no limit.
    std::uint32_t maxLength() const { return mMaxLength; }
    void setMaxLength(std::uint32_t length) { mMaxLength = length; }

    /// The largest and the smallest whole number of the text. Setting one also puts it in force.
    std::int32_t maxValue() const { return mMaxValue; }
    void setMaxValue(std::int32_t value);
    std::int32_t minValue() const { return mMinValue; }
    void setMinValue(std::int32_t value);
    bool isValidityMaxValue() const { return mIsValidityMaxValue; }
    void setValidityMaxValue(bool inForce) { mIsValidityMaxValue = inForce; }
    bool isValidityMinValue() const { return mIsValidityMinValue; }
    void setValidityMinValue(bool inForce) { mIsValidityMinValue = inForce; }

    /// Forbids a string; a null string is left out, a string given twice stands twice.
    void addInvalidCharacter(const QString &character);
    /// Allows a string again: every entry equal to it goes.
    void removeInvalidCharacter(const QString &character);
    /// Whether a string, as a whole, is forbidden.
    bool isInvalidCharacter(const QString &character) const;

    /// A value as the field shows it.
    QString stringForObjectValue(const QVariant &value) const;

    /// Stores in *object what stringForObjectValue makes of the text. Never fails and never sets the error description.
    /// \return true, also when object is null or the text is null, and nothing is stored then.
    bool getObjectValue(QVariant *object, const QString &string, QString *errorDescription) const;

    /// Whether a field may take a proposed text. Only insertions are examined.
    /// \param partial the proposed whole text; \param proposedSelectedRange the caret after the edit, null when it is
    /// not known; \param originalString the text before the edit; \param originalSelectedRange the selection that the
    /// edit replaces; \param errorDescription never set. \return false when the edit is refused; the beep has sounded
    /// and the notice has been posted then.
    bool isPartialStringValid(const QString &partial, const Range *proposedSelectedRange, const QString &originalString,
                              const Range &originalSelectedRange, QString *errorDescription) const;

private:
    struct Insertion;
    struct Refusal;

    std::optional<Refusal> refusalOf(char32_t character, const Insertion &insertion) const;
    std::optional<Refusal> refusalByRange(const Insertion &insertion) const;
    void report(const Refusal &refusal) const;

    QString mFormatString = QStringLiteral("%@");
    std::uint32_t mTextStyle = 0;
    std::uint32_t mMaxLength = 0;
    bool mIsValidityMaxValue = false;
    bool mIsValidityMinValue = false;
    std::int32_t mMaxValue = 0;
    std::int32_t mMinValue = 0;
    std::shared_ptr<const void> mObject;
    std::optional<std::vector<QString>> mInvalidCaracters; ///< made on first use; the name is kept as it is
    std::optional<QDateTime> mDate;
    std::optional<QLocale> mLocale;
};
