// SPDX-License-Identifier: Apache-2.0
// The three length groups: filling them from the PPD and the job, keeping field and slider in step, and starting the
// checks at the right moments.
#include "panel/LengthOption.h"
#include "panel/PageSettingPDE13_v100_.h"
#include "panel/PlainLabel.h"
#include "panel/SpokenLimits.h"

#include "controls/PDEFormatter.h"
#include "pdekit/CurrentEvent.h"
#include "pdekit/Numbers.h"
#include "pdekit/StringEncoding.h"
#include "ppd/PDEUtilsMethod13.h"

using namespace pdekit;

namespace
{

/// The text style of the fields: digits and one decimal point.
constexpr std::uint32_t kDecimalNumber = 4;

/// The keyboard step of a slider in millimetres.
constexpr double kMillimetreIncrement = 1.0;

/// The bit of an event type that tells a dragged event from a released one and a key from a button.
constexpr int kEventTypeBit8 = 8;

/// A default choice's keyword; empty when the PPD lacks the option.
QString defaultChoice(const ppd_option_t *option)
{
    const QString keyword = option == nullptr ? QString() : stringFromSystemEncoding(option->defchoice);
    return keyword.isNull() ? QLatin1StringView("") : keyword;
}

/// Whether the event at hand ends the editing of a field: a click elsewhere or a key.
bool isEndOfEditing(EventType type)
{
    return type == EventType::LeftMouseDown || type == EventType::KeyDown;
}

void setText(QLabel *label, const QString &text, bool enabled)
{
    PDEUtilsMethod13::setEnabledForText(enabled, label);
    if (label != nullptr) {
        label->setText(text);
    }
}

} // namespace

// ---- Filling the groups ------------------------------------------------------------------------------------------

void PageSettingPDE13_v100_::initializeUI_Length()
{
    OSStatus status = kPMNoError;
    const TapeInfo tape = currentTapeInfo(&status);
    QString initialText;
    float millimetres = 0.0F;
    if (status == kPMNoError) {
        setTapeState(tape.fixedLength);
        initialText = fixedDecimals(tape.paperLength, 6);
        millimetres = static_cast<float>(tape.paperLength);
    } else {
        initialText = defaultChoice(mTapeLength_Option);
        millimetres = floatValue(initialText);
    }
    fillLengthGroup(LengthOption::of(LengthOption::TapeLength), initialText, millimetres,
                    mTapeLength_Option != nullptr && getTapeState() == 0);
}

void PageSettingPDE13_v100_::initializeUI_Margin()
{
    const QString initialText = defaultChoice(mMargin_Option);
    fillLengthGroup(LengthOption::of(LengthOption::Margin), initialText, floatValue(initialText),
                    mMargin_Option != nullptr && getTapeState() == 0);
}

void PageSettingPDE13_v100_::initializeUI_PrintTapeLength()
{
    const QString initialText = defaultChoice(mPrintTapeLength_Option);
    fillLengthGroup(LengthOption::of(LengthOption::PrintTapeLength), initialText, floatValue(initialText),
                    mPrintTapeLength_Option != nullptr && getTapeState() == 0);
}

lengths::Rules PageSettingPDE13_v100_::rulesOf(const LengthOption &group) const
{
    return {unit(), (this->*group.isInteger)(), (this->*group.min)(), (this->*group.max)()};
}

void PageSettingPDE13_v100_::fillLengthGroup(const LengthOption &group, const QString &initialText, float millimetres,
                                             bool enabled)
{
    const lengths::Rules rules = rulesOf(group);
    const bool inInches = group.hasInchForm && rules.unit == lengths::Unit::Inches;

    const QString title =
        PDEUtilsMethod13::newOptionTitle(ppd == nullptr ? nullptr : ppdFindOption(ppd, group.keyword));
    PDEUtilsMethod13::setEnabledForText(enabled, this->*group.title);
    showTitle(this->*group.title, this->*group.field,
              localized(title.isNull() ? QString::fromLatin1(group.titleKey) : title + QLatin1StringView(" : ")));

    const QString unitText = localized(!group.hasInchForm ? QStringLiteral("RS_m")
                                       : inInches         ? QStringLiteral("RS_Inch")
                                                          : QStringLiteral("RS_mm"));
    if (group.secondUnitLabel != nullptr) {
        setText(this->*group.secondUnitLabel, unitText, enabled);
    }
    setText(this->*group.unitLabel, unitText, enabled);

    if (PDETextField13_v100_ *field = this->*group.field) {
        field->setEnabled(enabled);
        if (field->formatter() == nullptr) {
            field->setFormatter(PDEFormatter::initWithStyle(kDecimalNumber));
        }
        field->setText(inInches ? lengths::shownInches(static_cast<double>(millimetres))
                                : lengths::shownMillimetres(millimetres, rules.isInteger));
    }

    const auto limitText = [&](float limit) {
        return inInches ? lengths::shownInches(static_cast<double>(limit))
                        : lengths::shownLimit(limit, rules.isInteger);
    };
    const QString minText = limitText(rules.min);
    const QString maxText = limitText(rules.max);
    if (Slider *slider = this->*group.slider) {
        const auto shown = [&](float limit) {
            return inInches ? MiriToInch(static_cast<double>(limit)) : static_cast<double>(limit);
        };
        slider->setMinValue(shown(rules.min));
        slider->setMaxValue(shown(rules.max));
        slider->setAltIncrementValue(inInches ? lengths::inchIncrement(rules.min, rules.max, minText, maxText)
                                              : kMillimetreIncrement);
        slider->setFloatValue(floatValue(inInches ? lengths::shownInches(doubleValue(initialText))
                                                  : lengths::shownLimit(millimetres, rules.isInteger)));
        slider->setEnabled(enabled);
    }
    setText(this->*group.minLabel, minText, enabled);
    setText(this->*group.maxLabel, maxText, enabled);
    sayLimits(this->*group.field, this->*group.slider, this->*group.title, {minText, maxText, unitText});
}

// ---- The person's actions -----------------------------------------------------------------------------------------

void PageSettingPDE13_v100_::changeLength(QObject *sender)
{
    slide(LengthOption::of(LengthOption::TapeLength), sender);
}

void PageSettingPDE13_v100_::changeMargin(QObject *sender)
{
    slide(LengthOption::of(LengthOption::Margin), sender);
}

void PageSettingPDE13_v100_::changeKsPrintTapeLength(QObject *sender)
{
    slide(LengthOption::of(LengthOption::PrintTapeLength), sender);
}

void PageSettingPDE13_v100_::slide(const LengthOption &group, QObject *sender)
{
    const Slider *slider = this->*group.slider;
    const float value = slider == nullptr ? 0.0F : floatValue(slider->stringValue());
    if (PDETextField13_v100_ *field = this->*group.field) {
        // In inches the print tape length too is written in the inch form here. Deliberate.
        field->setText(group.slidText(value, unit(), (this->*group.isInteger)()));
    }
    // The mouse let go, or a key: the full check, once. Nothing is checked while the person drags.
    const int type = static_cast<int>(currentEventType());
    if (sender != nullptr && (type & ~kEventTypeBit8) == static_cast<int>(EventType::LeftMouseUp)) {
        checkValues(false);
    }
}

void PageSettingPDE13_v100_::controlTextDidChange(QObject * /*field*/) {}

void PageSettingPDE13_v100_::controlTextDidEndEditing(QObject *field)
{
    // The margin has no check of its own at the end of its editing. Deliberate.
    const EventType type = currentEventType();
    if (field != nullptr && field == mLengthTxFld && isEndOfEditing(type)) {
        checkTapeLength();
        return; // no field is both, and the panel may be gone
    }
    if (field != nullptr && field == mTapeLengthTxFld && isEndOfEditing(type)) {
        checkKsPrintTapeLength();
    }
}
