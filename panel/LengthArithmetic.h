// SPDX-License-Identifier: Apache-2.0
// The arithmetic of the panel's lengths, without widgets: how a length is shown, corrected, saved and summed up. The
// roundings differ from one operation to the next on purpose; here they stand side by side.
#pragma once

#include "pagesettings/Exports.h" // RoundDouble, MiriToInch, InchToMiri

#include <QString>

#include <cstdint>

namespace lengths
{

/// The unit in which lengths are shown. The numbers are the panel's unit codes.
enum class Unit : std::int32_t { Millimetres = 0, Inches = 1 };

/// What the PPD says of one length. The limits are millimetres; those of the print tape length are in its own unit.
struct Rules {
    Unit unit = Unit::Millimetres;
    bool isInteger = false; ///< whole numbers only
    float min = 0.0F;
    float max = 0.0F;
};

/// A corrected length: what the field shows and what the slider is set to, in the shown unit.
struct Rewritten {
    QString text;
    float value = 0.0F;
};

/// Rounded up to a whole number in single precision.
std::int64_t ksCeilInteger(float value);
/// Rounded up to one decimal, after widening: 1.2F becomes 1.3, because 1.2F is a little more than 1.2. Accepted.
double ksCeildouble(float value);

// ---- How lengths are shown when a group is filled ----------------------------------------------------------------

/// Millimetres as the field shows them: rounded up in single precision, to a whole number or to one decimal.
QString shownMillimetres(float millimetres, bool isInteger);
/// Millimetres as the field shows them in inches: converted, narrowed to a float, two decimals to the nearest.
QString shownInches(double millimetres);
/// A limit, or the value a slider starts from, in millimetres: rounded up by ksCeilInteger or, unlike the field, by
/// ksCeildouble.
QString shownLimit(float millimetres, bool isInteger);
/// The keyboard step of a slider in inches: one millimetre as the rounded labels of the limits give it.
double inchIncrement(float minMm, float maxMm, const QString &minLabel, const QString &maxLabel);

// ---- What a slider writes into its field ---------------------------------------------------------------------------

/// Margin and print tape length: rounded up in millimetres.
QString slidText(float value, Unit unit, bool isInteger);
/// Tape length: in millimetres truncated to a whole number, or printed to the nearest decimal; never rounded up.
QString slidTapeLengthText(float value, Unit unit, bool isInteger);

// ---- Checks ----------------------------------------------------------------------------------------------------

/// A limit in the shown unit, as checks compare with it: `value` in single precision, `wide` in double. In inches both
/// are read from the limit printed with two decimals.
struct ShownLimit {
    float value = 0.0F;
    double wide = 0.0;
};
ShownLimit limitForCheck(float millimetres, Unit unit);

/// Where a value lies.
enum class Range { Below, Within, Above };

/// A value held within limits: where it lay, and what it became.
struct Clamped {
    Range range = Range::Within;
    float value = 0.0F;
    double wide = 0.0;
};
Clamped clampedForCheck(const QString &fieldText, const Rules &rules);

/// A checked length written back: rounded up to a whole number, one decimal, or (after noise beyond the sixth decimal
/// of the hundredths is cut off) a hundredth of an inch.
Rewritten rewritten(const Clamped &checked, const Rules &rules);
/// A checked margin written back: the same, but the noise is cut off at the ninth decimal.
Rewritten rewrittenMargin(const Clamped &checked, const Rules &rules);

/// Whether a margin leaves room: at most half of the length. Exactly half is room enough.
bool marginFits(float margin, float length);
/// The length that a margin needs: twice the margin and one dot. Rounded by the margin's integer rule, not the tape
/// length's; in inches not rounded up. \param oneDotMm millimetres; may be infinite.
Rewritten lengthForMargin(float margin, double oneDotMm, Unit unit, bool isIntegerMargin);

/// The length of one dot in millimetres, not less than the step of an entry.
/// \param resolutionKeyword a choice such as "300x600dpi"; one without "x" and "dpi" gives infinity.
double oneDotMm(const QString &resolutionKeyword, Unit unit, bool isIntegerMargin);
/// The smallest step of an entry in millimetres.
double entryStepMm(Unit unit, bool isIntegerMargin);

// ---- What is saved -----------------------------------------------------------------------------------------------

/// A paper's length as the panel shows it when it is taken over: truncated or to the nearest, never rounded up.
QString paperLengthText(double millimetres, Unit unit, bool isInteger);
/// The tape length for the job. \param shownText the text in the shown unit; \param clamp hold it within the limits.
QString savedTapeLength(const QString &shownText, const Rules &rules, bool clamp);
/// The margin for the job, from a field's text. Less than 0.1 mm above the minimum is the minimum.
QString savedMargin(const QString &shownText, const Rules &rules, bool clamp);
/// The margin for the job from the PPD's default, when there is no field.
QString savedDefaultMargin(double millimetres, const Rules &rules, bool clamp);
/// The print tape length for the job. It has no inch form and is never converted.
QString savedPrintTapeLength(const QString &shownText, const Rules &rules, bool clamp);
QString savedDefaultPrintTapeLength(double value, const Rules &rules, bool clamp);

// ---- What the summary says ---------------------------------------------------------------------------------------

/// The tape length held within its limits, in single precision. A whole number is rounded up here, though it is saved
/// truncated.
QString summaryTapeLength(const QString &shownText, const Rules &rules);
/// A PPD default before there are fields: in inches converted, else rounded up.
QString summaryDefault(float value, Unit unit, bool isInteger);

} // namespace lengths
