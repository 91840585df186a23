// SPDX-License-Identifier: Apache-2.0
// The formatter of an edit field on any text. The lines of an input: style, greatest length, smallest and largest value
// (empty: none), separated by commas; a format; forbidden strings, separated by commas; the text before the edit; where
// the selection begins and how long it is; what is typed over it.
#include "fuzz/Application.h"
#include "fuzz/Invariants.h"

#include "controls/PDEFormatter.h"
#include "pdekit/NotificationCenter.h"
#include "pdekit/Numbers.h"
#include "pdekit/StringEncoding.h"

#include <QStringList>

#include <algorithm>

using namespace pdekit;
using fuzz::require;

namespace
{

constexpr std::uint32_t digitsStyle = 2;
constexpr std::uint32_t decimalStyle = 4;

struct Edit {
    QString before;
    PDEFormatter::Range selection;
    QString typed;

    QString after() const
    {
        QString text = before;
        return text.replace(selection.location, selection.length, typed);
    }
    PDEFormatter::Range caret() const { return {selection.location + typed.size(), 0}; }
};

void configure(PDEFormatter &formatter, const QStringList &numbers, const QStringList &forbidden)
{
    formatter.setTextStyle(static_cast<std::uint32_t>(intValue(numbers.value(0))));
    formatter.setMaxLength(static_cast<std::uint32_t>(intValue(numbers.value(1))));
    if (!numbers.value(2).isEmpty()) {
        formatter.setMinValue(intValue(numbers.value(2)));
    }
    if (!numbers.value(3).isEmpty()) {
        formatter.setMaxValue(intValue(numbers.value(3)));
    }
    for (const QString &text : forbidden) {
        formatter.addInvalidCharacter(text);
        require(formatter.isInvalidCharacter(text));
    }
}

Edit editOf(const QStringList &lines)
{
    Edit edit;
    edit.before = lines.value(3);
    const QStringList range = lines.value(4).split(u',');
    edit.selection.location = std::clamp<qsizetype>(intValue(range.value(0)), 0, edit.before.size());
    edit.selection.length =
        std::clamp<qsizetype>(intValue(range.value(1)), 0, edit.before.size() - edit.selection.location);
    edit.typed = lines.value(5);
    return edit;
}

bool holdsOnly(const QString &text, QStringView letters)
{
    return std::all_of(text.begin(), text.end(), [letters](QChar letter) { return letters.contains(letter); });
}

/// What has entered a field keeps the field's rules.
void checkAccepted(const PDEFormatter &formatter, const Edit &edit)
{
    const QString after = edit.after();
    const std::uint32_t style = formatter.textStyle();
    const std::optional<QByteArray> bytes = bytesFromString(after, systemEncoding());
    const qsizetype length = bytes ? bytes->size() : after.size();
    require(!formatter.isInvalidCharacter(edit.typed));
    require(formatter.maxLength() == 0 || length <= static_cast<qsizetype>(formatter.maxLength()));
    require(style != digitsStyle || holdsOnly(edit.typed, u"0123456789"));
    require(style != decimalStyle ||
            holdsOnly(edit.typed, edit.before.contains(u'.') ? u"0123456789" : u"0123456789."));
    const bool isFull = formatter.maxLength() == 0 || length == static_cast<qsizetype>(formatter.maxLength());
    if ((style == digitsStyle || style == decimalStyle) && isFull) {
        require(!formatter.isValidityMinValue() || intValue(after) >= formatter.minValue());
        require(!formatter.isValidityMaxValue() || intValue(after) <= formatter.maxValue());
    }
}

void checkEdit(const PDEFormatter &formatter, const Edit &edit)
{
    QObject observer;
    int notices = 0;
    NotificationCenter::defaultCenter().addObserver(
        &observer, [&notices](const Notification &) { ++notices; }, QString());
    const PDEFormatter::Range caret = edit.caret();
    QString said = QStringLiteral("unset");
    const bool accepted = formatter.isPartialStringValid(edit.after(), &caret, edit.before, edit.selection, &said);
    require(said == u"unset");
    require(notices == (accepted ? 0 : 1));
    if (edit.typed.isEmpty()) {
        require(accepted);
    } else if (accepted) {
        checkAccepted(formatter, edit);
    }
}

void checkShown(PDEFormatter &formatter, const QString &format, const QString &text)
{
    formatter.setFormatString(format);
    QVariant object;
    require(formatter.getObjectValue(&object, text, nullptr));
    require(object.toString() == formatter.stringForObjectValue(text));
    formatter.stringForObjectValue(intValue(text));
    formatter.stringForObjectValue(doubleValue(text));
    formatter.stringForObjectValue(QVariant());
    const auto dated =
        PDEFormatter::initWithCalendarDate(QDateTime::fromMSecsSinceEpoch(text.toLongLong(), Qt::UTC), QLocale::c());
    dated->setFormatString(format);
    dated->stringForObjectValue(QVariant());
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static const bool isReady = fuzz::makeApplication();
    const QStringList lines = fuzz::inputText(data, size).split(u'\n');
    if (!isReady) {
        return 0;
    }
    PDEFormatter formatter;
    configure(formatter, lines.value(0).split(u','), lines.value(2).split(u','));
    const Edit edit = editOf(lines);
    checkEdit(formatter, edit);
    checkShown(formatter, lines.value(1), edit.before.isNull() ? QStringLiteral("") : edit.before);
    return 0;
}
