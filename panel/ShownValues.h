// SPDX-License-Identifier: Apache-2.0
// What the panel's controls show, without the controls: it outlives a view that the dialog deletes.
#pragma once

#include "panel/LengthArithmetic.h"

#include <array>

/// The values of a filled view that a person may have set.
struct ShownValues {
    /// Text of the field and value of the slider, by LengthOption::Item.
    std::array<lengths::Rewritten, 3> lengths;
    /// The selected place, by ChoiceOption::Item; -1 for none.
    std::array<int, 7> picks = {};
};
