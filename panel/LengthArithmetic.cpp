// SPDX-License-Identifier: Apache-2.0
// The arithmetic of the panel's lengths. Widths and orders of operations are stated with each operation: keep them.
#include "panel/LengthArithmetic.h"

#include "pdekit/Numbers.h"

#include <algorithm>
#include <cmath>
#include <limits>

using namespace pdekit;

namespace
{

/// Inches per millimetre, in both directions.
constexpr double kInchPerMm = 0.0393701;

/// Millimetres per inch, for dots alone.
constexpr double kMmPerInchOfDots = 25.4;

float narrowed(double value)
{
    return static_cast<float>(value);
}

/// Rounded up to a tenth: the ceiling in single precision, the division in double.
double ceilTenthSingle(float value)
{
    return static_cast<double>(std::ceil(value * 10.0F)) / 10.0;
}

/// Rounded up to a tenth in double precision throughout.
double ceilTenthDouble(double value)
{
    return std::ceil(value * 10.0) / 10.0;
}

/// Rounded up to a hundredth, after cutting off what lies beyond one part in `noise` of a hundredth.
double ceilHundredth(double value, double noise)
{
    return std::ceil(std::floor(value * 100.0 * noise) / noise) / 100.0;
}

QString ceilText(float value, bool isInteger)
{
    return isInteger ? wholeNumber(std::ceil(value)) : fixedDecimals(ceilTenthSingle(value), 1);
}

double clampedMm(double value, const lengths::Rules &rules)
{
    if (static_cast<double>(rules.min) > value) {
        return static_cast<double>(rules.min);
    }
    return value > static_cast<double>(rules.max) ? static_cast<double>(rules.max) : value;
}

/// One decimal for the job. A value so large that a conversion or a rounding overflowed is held at the largest number:
/// nothing but decimal numbers goes into a job.
QString sentTenths(double value)
{
    constexpr double kLargest = std::numeric_limits<double>::max();
    return fixedDecimals(std::clamp(value, -kLargest, kLargest), 1);
}

QString ceilTextDouble(double value, bool isInteger)
{
    return isInteger ? wholeNumber(std::ceil(value)) : sentTenths(ceilTenthDouble(value));
}

lengths::Rewritten rewrittenWithNoise(const lengths::Clamped &checked, const lengths::Rules &rules, double inchNoise)
{
    if (rules.unit == lengths::Unit::Inches) {
        const float inches = narrowed(ceilHundredth(checked.wide, inchNoise));
        return {fixedDecimals(static_cast<double>(inches), 2), inches};
    }
    if (rules.isInteger) {
        const float whole = std::ceil(checked.value);
        return {wholeNumber(static_cast<double>(whole)), whole};
    }
    const float tenths = narrowed(ceilTenthSingle(checked.value));
    return {fixedDecimals(static_cast<double>(tenths), 1), tenths};
}

/// What is sent of a margin in millimetres.
QString savedMarginMm(double millimetres, const lengths::Rules &rules, bool clamp)
{
    // A tenth of a millimetre of tolerance above the minimum, whether or not the value is clamped. Deliberate.
    double value = millimetres < static_cast<double>(rules.min) + 0.1 ? static_cast<double>(rules.min) : millimetres;
    if (clamp) {
        value = clampedMm(value, rules);
    }
    return ceilTextDouble(value, rules.isInteger);
}

} // namespace

std::int64_t RoundDouble(double value)
{
    const double whole = std::trunc(value);
    const double fraction = value - whole;
    if (fraction >= 0.5) {
        return truncatedInt64(whole + 1.0);
    }
    if (fraction <= -0.5) {
        return truncatedInt64(whole - 1.0);
    }
    return truncatedInt64(whole);
}

double MiriToInch(double millimetres)
{
    return millimetres * kInchPerMm;
}

double InchToMiri(double inches)
{
    return inches / kInchPerMm;
}

namespace lengths
{

std::int64_t ksCeilInteger(float value)
{
    return truncatedInt64(static_cast<double>(std::ceil(value)));
}

double ksCeildouble(float value)
{
    return ceilTenthDouble(static_cast<double>(value));
}

QString shownMillimetres(float millimetres, bool isInteger)
{
    return ceilText(millimetres, isInteger);
}

QString shownInches(double millimetres)
{
    return fixedDecimals(static_cast<double>(narrowed(MiriToInch(millimetres))), 2);
}

QString shownLimit(float millimetres, bool isInteger)
{
    return isInteger ? wholeNumber(static_cast<double>(ksCeilInteger(millimetres)))
                     : fixedDecimals(ksCeildouble(millimetres), 1);
}

double inchIncrement(float minMm, float maxMm, const QString &minLabel, const QString &maxLabel)
{
    const float span = maxMm - minMm;
    if (!(span > 0.0F)) {
        return kInchPerMm;
    }
    return (doubleValue(maxLabel) - doubleValue(minLabel)) / static_cast<double>(span);
}

QString slidText(float value, Unit unit, bool isInteger)
{
    return unit == Unit::Inches ? fixedDecimals(static_cast<double>(value), 2) : ceilText(value, isInteger);
}

QString slidTapeLengthText(float value, Unit unit, bool isInteger)
{
    if (unit == Unit::Inches) {
        return fixedDecimals(static_cast<double>(value), 2);
    }
    return isInteger ? wholeNumber(static_cast<double>(value)) : fixedDecimals(static_cast<double>(value), 1);
}

ShownLimit limitForCheck(float millimetres, Unit unit)
{
    if (unit != Unit::Inches) {
        return {millimetres, static_cast<double>(millimetres)};
    }
    const QString printed = fixedDecimals(MiriToInch(static_cast<double>(millimetres)), 2);
    return {floatValue(printed), doubleValue(printed)};
}

Clamped clampedForCheck(const QString &fieldText, const Rules &rules)
{
    const ShownLimit min = limitForCheck(rules.min, rules.unit);
    const ShownLimit max = limitForCheck(rules.max, rules.unit);
    const float value = floatValue(fieldText);
    if (value < min.value) {
        return {Range::Below, min.value, min.wide};
    }
    if (value > max.value) {
        return {Range::Above, max.value, max.wide};
    }
    return {Range::Within, value, doubleValue(fieldText)};
}

Rewritten rewritten(const Clamped &checked, const Rules &rules)
{
    return rewrittenWithNoise(checked, rules, 1'000'000.0);
}

Rewritten rewrittenMargin(const Clamped &checked, const Rules &rules)
{
    return rewrittenWithNoise(checked, rules, 1'000'000'000.0);
}

bool marginFits(float margin, float length)
{
    return static_cast<double>(margin) <= static_cast<double>(length) * 0.5;
}

Rewritten lengthForMargin(float margin, double oneDotMm, Unit unit, bool isIntegerMargin)
{
    if (unit == Unit::Inches) {
        const float inches = narrowed(MiriToInch(oneDotMm) + static_cast<double>(margin) + static_cast<double>(margin));
        return {fixedDecimals(static_cast<double>(inches), 2), inches};
    }
    const double marginMm = ceilTenthSingle(margin);
    const float length = narrowed(oneDotMm + marginMm + marginMm);
    const float rounded = isIntegerMargin ? std::ceil(length) : narrowed(ceilTenthSingle(length));
    return {isIntegerMargin ? wholeNumber(static_cast<double>(rounded))
                            : fixedDecimals(static_cast<double>(rounded), 1),
            rounded};
}

double entryStepMm(Unit unit, bool isIntegerMargin)
{
    if (unit == Unit::Inches) {
        return InchToMiri(0.01);
    }
    return isIntegerMargin ? 1.0 : 0.1;
}

double oneDotMm(const QString &resolutionKeyword, Unit unit, bool isIntegerMargin)
{
    std::uint32_t dotsPerInch = 0;
    const qsizetype cross = resolutionKeyword.indexOf(QLatin1Char('x'), 0, Qt::CaseInsensitive);
    if (cross >= 0 && resolutionKeyword.contains(QLatin1StringView("dpi"), Qt::CaseInsensitive)) {
        // Read as a signed number and then taken as an unsigned one. Deliberate.
        dotsPerInch = static_cast<std::uint32_t>(intValue(QStringView(resolutionKeyword).sliced(cross + 1)));
    }
    const double dot = dotsPerInch == 0 ? std::numeric_limits<double>::infinity()
                                        : kMmPerInchOfDots / static_cast<double>(dotsPerInch);
    if (unit == Unit::Inches) {
        return MiriToInch(dot) < 0.01 ? entryStepMm(unit, isIntegerMargin) : dot;
    }
    return std::max(entryStepMm(unit, isIntegerMargin), dot);
}

QString paperLengthText(double millimetres, Unit unit, bool isInteger)
{
    if (unit == Unit::Inches) {
        return shownInches(millimetres);
    }
    return isInteger ? wholeNumber(millimetres) : fixedDecimals(millimetres, 1);
}

QString savedTapeLength(const QString &shownText, const Rules &rules, bool clamp)
{
    const double shown = doubleValue(shownText);
    const double value = rules.unit == Unit::Inches ? InchToMiri(shown) : shown;
    const double inRange = clamp ? clampedMm(value, rules) : value;
    return rules.isInteger ? wholeNumber(inRange) : sentTenths(inRange);
}

QString savedMargin(const QString &shownText, const Rules &rules, bool clamp)
{
    const double shown = doubleValue(shownText);
    return savedMarginMm(rules.unit == Unit::Inches ? InchToMiri(shown) : shown, rules, clamp);
}

QString savedDefaultMargin(double millimetres, const Rules &rules, bool clamp)
{
    if (rules.unit == Unit::Inches) {
        return savedMargin(shownInches(millimetres), rules, clamp);
    }
    return savedMarginMm(doubleValue(ceilTextDouble(millimetres, rules.isInteger)), rules, clamp);
}

QString savedPrintTapeLength(const QString &shownText, const Rules &rules, bool clamp)
{
    const double value = doubleValue(shownText);
    return ceilTextDouble(clamp ? clampedMm(value, rules) : value, rules.isInteger);
}

QString savedDefaultPrintTapeLength(double value, const Rules &rules, bool clamp)
{
    return savedPrintTapeLength(ceilTextDouble(value, rules.isInteger), rules, clamp);
}

QString summaryTapeLength(const QString &shownText, const Rules &rules)
{
    const ShownLimit min = limitForCheck(rules.min, rules.unit);
    const ShownLimit max = limitForCheck(rules.max, rules.unit);
    float value = floatValue(shownText);
    if (value < min.value) {
        value = min.value;
    } else if (value > max.value) {
        value = max.value;
    }
    return rules.unit == Unit::Inches ? fixedDecimals(static_cast<double>(value), 2) : ceilText(value, rules.isInteger);
}

QString summaryDefault(float value, Unit unit, bool isInteger)
{
    // Unlike a paper's length, a default is not narrowed before it is printed.
    return unit == Unit::Inches ? fixedDecimals(MiriToInch(static_cast<double>(value)), 2) : ceilText(value, isInteger);
}

} // namespace lengths
