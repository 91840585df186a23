// SPDX-License-Identifier: Apache-2.0
// How much a job prints with all copies, in words, and whether that is more than people usually mean.
#pragma once

#include "dialog/MeasureUnit.h"

#include <QString>

#include <cstddef>

namespace tapeprint::dialog
{

struct Amount {
    bool isTape = false;
    std::size_t pieces = 0; ///< labels, or sheets of paper
    double tapePt = 0.0;    ///< length of all labels

    bool operator==(const Amount &) const = default;
};

/// The pieces as texts count them: as many as an int holds.
int countOf(const Amount &amount);

/// Such as "3 labels, 18.6 cm of tape" or "4 sheets".
QString amountText(const Amount &amount, LengthUnit unit);

/// Whether an amount is asked about before it is printed: a mistaken range or a stray length is seen too late at the
/// printer.
bool isUnusual(const Amount &amount);

} // namespace tapeprint::dialog
