// SPDX-License-Identifier: Apache-2.0
// The table of the three length groups: their option, controls, rules and texts. The algorithms over it are written
// once, in length_controls.cpp and validation.cpp.
#pragma once

#include "panel/PageSettingPDE13_v100_.h"

#include <span>

/// One length group: a title, a field, a slider, a unit and the labels of two limits.
struct LengthOption {
    using Panel = PageSettingPDE13_v100_;

    const char *keyword;
    ppd_option_t *Panel::*option;
    QPointer<QLabel> Panel::*title;
    QPointer<PDETextField13_v100_> Panel::*field;
    QPointer<pdekit::Slider> Panel::*slider;
    QPointer<QLabel> Panel::*unitLabel;
    QPointer<QLabel> Panel::*secondUnitLabel; ///< gets the unit's text first; null for none
    QPointer<QLabel> Panel::*minLabel;
    QPointer<QLabel> Panel::*maxLabel;
    const char *titleKey; ///< when the PPD has no title

    bool (Panel::*isInteger)() const;
    float (Panel::*min)() const;
    float (Panel::*max)() const;
    /// The group is shown in inches too. The print tape length always shows its own unit; the checks do not know that.
    bool hasInchForm;
    /// What the slider writes into the field.
    QString (*slidText)(float value, lengths::Unit unit, bool isInteger);

    const char *alertBelow; ///< null: no check of its own
    const char *alertAbove;

    enum Item { TapeLength, Margin, PrintTapeLength, Count };
    static const LengthOption &of(Item item);
    static std::span<const LengthOption, Count> all();
    /// The place of this group in the table.
    std::size_t place() const { return static_cast<std::size_t>(this - all().data()); }
};
