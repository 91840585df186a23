// SPDX-License-Identifier: Apache-2.0
// A dialog may delete the panel's view and ask for another, or show the panel before it asks for a view: the later view
// comes filled, with what a person set in the one before.
#include "panel/ChoiceOption.h"
#include "panel/LengthOption.h"
#include "panel/PageSettingPDE13_v100_.h"

#include "pdekit/Numbers.h"

#include <tuple>
#include <utility>

using namespace pdekit;

static_assert(std::tuple_size_v<decltype(ShownValues::lengths)> == LengthOption::Count);
static_assert(std::tuple_size_v<decltype(ShownValues::picks)> == ChoiceOption::Count);

bool PageSettingPDE13_v100_::isShown(const LengthOption &group) const
{
    return this->*group.field != nullptr || mKeptValues.has_value();
}

bool PageSettingPDE13_v100_::isFilled(const LengthOption &group) const
{
    return set_formatSetting && isShown(group);
}

QString PageSettingPDE13_v100_::shownText(const LengthOption &group) const
{
    if (this->*group.field != nullptr) {
        return (this->*group.field)->text();
    }
    return mKeptValues ? mKeptValues->lengths[group.place()].text : QString();
}

void PageSettingPDE13_v100_::setShownText(const LengthOption &group, const QString &text)
{
    if (this->*group.field != nullptr) {
        (this->*group.field)->setText(text);
    } else if (mKeptValues) {
        mKeptValues->lengths[group.place()].text = text;
    }
}

void PageSettingPDE13_v100_::keepShownValues()
{
    if (!set_formatSetting) {
        return; // nothing was ever filled in
    }
    ShownValues shown;
    for (const LengthOption &group : LengthOption::all()) {
        const Slider *slider = this->*group.slider;
        shown.lengths[group.place()] = {shownText(group), slider == nullptr ? 0.0F : slider->floatValue()};
    }
    for (const ChoiceOption &option : ChoiceOption::all()) {
        shown.picks[option.place()] = selectedIndex(option);
    }
    mKeptValues = std::move(shown);
}

void PageSettingPDE13_v100_::fillLaterView()
{
    const std::optional<ShownValues> kept = std::exchange(mKeptValues, std::nullopt);
    const bool wasCloth = isCloth();
    std::array<const PDEChoice *, ChoiceOption::Count> selections = {};
    for (const ChoiceOption &option : ChoiceOption::all()) {
        selections[option.place()] = this->*option.selection;
    }

    buildControls();

    // Filling begins from the defaults and the ticket; picks and notices came after that.
    for (const ChoiceOption &option : ChoiceOption::all()) {
        this->*option.selection = selections[option.place()];
        selectStoredChoice(option);
    }
    setClothBit(wasCloth);
    initializeUI_PrintTapeLength();
    if (kept) {
        putBackShownValues(*kept);
    } else {
        // As after the first showing: the paper's length stands in the field.
        choice_PaperSize = floatValue(paperLengthText(currentTapeInfo()));
    }
    if (printSettings != nullptr) {
        enableLengthControls(getTapeState() == 0);
    }
    enabledCheck_BS();
}

void PageSettingPDE13_v100_::putBackShownValues(const ShownValues &shown)
{
    for (const LengthOption &group : LengthOption::all()) {
        showLength(group, shown.lengths[group.place()]);
    }
    for (const ChoiceOption &option : ChoiceOption::all()) {
        selectInControl(option, shown.picks[option.place()]);
    }
}
