// SPDX-License-Identifier: Apache-2.0
// The checks of the lengths: a value out of range becomes the nearest limit, and a margin that does not fit lengthens
// the tape. A check corrects and may warn; it never refuses.
#include "panel/LengthOption.h"
#include "panel/PageSettingPDE13_v100_.h"

#include "pdekit/Alert.h"
#include "pdekit/Numbers.h"

using namespace pdekit;

/// Answers whether the panel is still there.
bool PageSettingPDE13_v100_::sayWithAlert(const char *key)
{
    const std::shared_ptr<void> view = holdView();
    const QPointer<QObject> self(this);
    NSRunAlertPanel(QStringLiteral(" "), localized(QString::fromLatin1(key)), QStringLiteral("OK"));
    return self != nullptr;
}

bool PageSettingPDE13_v100_::checksAreSkipped()
{
    // Page format and print settings are objects of different kinds: until the controls are built this skips every
    // check. The comparison is kept as it is.
    const bool sameObject = static_cast<const void *>(formatSettings) == static_cast<const void *>(printSettings);
    // Without a view, or after the dialog has deleted it, there is nothing to correct and nothing to warn of.
    const bool hasFields = mLengthTxFld != nullptr && mMarginTxFld != nullptr && mTapeLengthTxFld != nullptr;
    if ((!sameObject && !set_formatSetting) || getTapeState() != 0 || !hasFields) {
        checkValues_dec = true;
        return true;
    }
    return false;
}

void PageSettingPDE13_v100_::showLength(const LengthOption &group, const lengths::Rewritten &length)
{
    if (this->*group.field != nullptr) {
        (this->*group.field)->setText(length.text);
    }
    if (this->*group.slider != nullptr) {
        (this->*group.slider)->setFloatValue(length.value);
    }
}

bool PageSettingPDE13_v100_::checkValues(bool silent)
{
    if (checksAreSkipped()) {
        return true;
    }
    const LengthOption &group = LengthOption::of(LengthOption::TapeLength);
    const lengths::Rules rules = rulesOf(group);
    if (column_dec) {
        const float maxMarginShown = lengths::limitForCheck(maxMargin(), unit()).value;
        const bool exceeds = floatValue(shownText(group)) > lengths::limitForCheck(rules.max, rules.unit).value ||
                             floatValue(shownText(LengthOption::of(LengthOption::Margin))) > maxMarginShown;
        if (!exceeds) {
            column_dec = false;
            checkValues_dec = true;
            return true;
        }
    }
    showLength(group, lengths::rewritten(lengths::clampedForCheck(shownText(group), rules), rules));
    const QPointer<QObject> self(this);
    const bool result = checkLengthByMargin(silent);
    if (self == nullptr) {
        return result;
    }
    column_dec = false;
    checkValues_dec = result;
    return result;
}

bool PageSettingPDE13_v100_::checkLengthByMargin(bool silent)
{
    const LengthOption &tapeLength = LengthOption::of(LengthOption::TapeLength);
    const LengthOption &group = LengthOption::of(LengthOption::Margin);
    const lengths::Rules rules = rulesOf(group);
    const lengths::Rewritten margin =
        lengths::rewrittenMargin(lengths::clampedForCheck(shownText(group), rules), rules);
    showLength(group, margin);

    if (lengths::marginFits(margin.value, floatValue(shownText(tapeLength)))) {
        return true;
    }
    if (!silent && !sayWithAlert("RS_Alrt_LengthByMargin")) {
        return true;
    }
    // The new length is not held against the tape length's maximum. Deliberate.
    showLength(tapeLength, lengths::lengthForMargin(margin.value, getOneDotMM(), unit(), isIntegerMarginLen()));
    return true;
}

void PageSettingPDE13_v100_::checkTapeLength()
{
    checkRange(LengthOption::of(LengthOption::TapeLength));
}

void PageSettingPDE13_v100_::checkKsPrintTapeLength()
{
    // In inches the print tape length is checked and rewritten as inches, though it is shown in its own unit.
    // Deliberate.
    checkRange(LengthOption::of(LengthOption::PrintTapeLength));
}

void PageSettingPDE13_v100_::checkRange(const LengthOption &group)
{
    if (checksAreSkipped()) {
        return;
    }
    const lengths::Rules rules = rulesOf(group);
    const lengths::Clamped checked = lengths::clampedForCheck(shownText(group), rules);
    if (checked.range != lengths::Range::Within &&
        !sayWithAlert(checked.range == lengths::Range::Below ? group.alertBelow : group.alertAbove)) {
        return;
    }
    showLength(group, lengths::rewritten(checked, rules));
    column_dec = false;
    checkValues_dec = true;
}
