// SPDX-License-Identifier: Apache-2.0
// The arithmetic of lengths on any text. The lines of an input: flags (i inches, w whole numbers, c clamp), the least
// and the largest length, the text of a field, a resolution.
#include "fuzz/Invariants.h"

#include "panel/LengthArithmetic.h"
#include "pdekit/Numbers.h"

#include <QStringList>

#include <algorithm>
#include <cmath>

using namespace pdekit;
using fuzz::isDecimalNumber;
using fuzz::require;

namespace
{

/// Lengths beyond these are no tapes. What is shown of them may overflow; what is saved may not.
constexpr float kLargestShown = 1e30F;
constexpr double kLargestSaved = 1e6;
constexpr float kLargestTape = 1e4F;

struct Input {
    lengths::Rules rules;
    bool clamp = false;
    QString text;
    QString resolution;
};

Input parsed(const QString &text)
{
    const QStringList lines = text.split(u'\n');
    const QString &flags = lines.at(0);
    Input input;
    input.rules.unit = flags.contains(u'i') ? lengths::Unit::Inches : lengths::Unit::Millimetres;
    input.rules.isInteger = flags.contains(u'w');
    input.rules.min = floatValue(lines.value(1));
    input.rules.max = floatValue(lines.value(2));
    input.clamp = flags.contains(u'c');
    input.text = lines.value(3);
    input.resolution = lines.value(4);
    return input;
}

void checkNumbers(const QString &text)
{
    const double number = doubleValue(text);
    const float single = floatValue(text);
    require(std::isfinite(number) && std::isfinite(single));
    require(isDecimalNumber(fixedDecimals(number, 6)));
    require(floatValue(shortestText(single)) == single);
    // Without a fraction and an exponent the two readers see the same digits.
    if (!text.contains(u'.') && !text.contains(u'e', Qt::CaseInsensitive)) {
        require(intValue(text) == truncatedInt32(number));
    }
}

void checkSaved(const QString &saved, const Input &input)
{
    require(isDecimalNumber(saved));
    const qsizetype point = saved.indexOf(u'.');
    require(input.rules.isInteger ? point < 0 : point == saved.size() - 2);
    const auto min = static_cast<double>(input.rules.min);
    const auto max = static_cast<double>(input.rules.max);
    if (input.clamp && -kLargestSaved < min && min <= max && max < kLargestSaved) {
        // Rounding, up or down, moves a length by less than one; the sum here may be rounded, too.
        const double number = doubleValue(saved);
        require(number >= min - 1.0 && number <= max + 1.0);
    }
}

void checkEverySaved(const Input &input)
{
    const double number = doubleValue(input.text);
    checkSaved(lengths::savedTapeLength(input.text, input.rules, input.clamp), input);
    checkSaved(lengths::savedMargin(input.text, input.rules, input.clamp), input);
    checkSaved(lengths::savedPrintTapeLength(input.text, input.rules, input.clamp), input);
    checkSaved(lengths::savedDefaultMargin(number, input.rules, input.clamp), input);
    checkSaved(lengths::savedDefaultPrintTapeLength(number, input.rules, input.clamp), input);
}

void checkRewritten(const lengths::Rewritten &length)
{
    if (std::abs(length.value) < kLargestTape) {
        require(isDecimalNumber(length.text));
        require(floatValue(length.text) == length.value);
    }
}

/// What a margin asks for is enough for it.
void checkRoomForMargin(float margin, const Input &input)
{
    if (margin < 0.0F || margin >= kLargestTape) {
        return;
    }
    const double dot = lengths::oneDotMm(input.resolution, input.rules.unit, input.rules.isInteger);
    require(dot > 0.0);
    require(lengths::marginFits(margin,
                                lengths::lengthForMargin(margin, dot, input.rules.unit, input.rules.isInteger).value));
}

void checkChecks(const Input &input)
{
    const lengths::Clamped checked = lengths::clampedForCheck(input.text, input.rules);
    const float min = lengths::limitForCheck(input.rules.min, input.rules.unit).value;
    const float max = lengths::limitForCheck(input.rules.max, input.rules.unit).value;
    switch (checked.range) {
    case lengths::Range::Below:
        require(checked.value == min);
        break;
    case lengths::Range::Above:
        require(checked.value == max);
        break;
    case lengths::Range::Within:
        require(min <= checked.value && checked.value <= max);
        break;
    }
    checkRewritten(lengths::rewritten(checked, input.rules));
    checkRewritten(lengths::rewrittenMargin(checked, input.rules));
    checkRoomForMargin(checked.value, input);
}

void checkShown(const Input &input)
{
    const float length = floatValue(input.text);
    const bool isInteger = input.rules.isInteger;
    const float largest = std::max({std::abs(length), std::abs(input.rules.min), std::abs(input.rules.max)});
    const QString minLabel = lengths::shownLimit(input.rules.min, isInteger);
    const QString maxLabel = lengths::shownLimit(input.rules.max, isInteger);
    const double step = lengths::inchIncrement(input.rules.min, input.rules.max, minLabel, maxLabel);
    const QStringList shown = {
        lengths::shownMillimetres(length, isInteger),
        lengths::shownInches(static_cast<double>(length)),
        minLabel,
        maxLabel,
        lengths::slidText(length, input.rules.unit, isInteger),
        lengths::slidTapeLengthText(length, input.rules.unit, isInteger),
        lengths::paperLengthText(doubleValue(input.text), input.rules.unit, isInteger),
        lengths::summaryTapeLength(input.text, input.rules),
        lengths::summaryDefault(length, input.rules.unit, isInteger),
    };
    if (largest < kLargestShown && std::abs(doubleValue(input.text)) < static_cast<double>(kLargestShown)) {
        require(std::isfinite(step));
        for (const QString &text : shown) {
            require(isDecimalNumber(text));
        }
    }
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const Input input = parsed(fuzz::inputText(data, size));
    checkNumbers(input.text);
    checkEverySaved(input);
    checkChecks(input);
    checkShown(input);
    RoundDouble(doubleValue(input.text));
    return 0;
}
