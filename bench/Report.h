// SPDX-License-Identifier: Apache-2.0
// Holds measurements of the panel against the goals.
#pragma once

#include "Goals.h"
#include "Measurements.h"

#include <span>

/// Milliseconds from a program's start of the panel and of the floor, each in a process of its own.
struct ColdTimes {
    double panel = 0.0;
    double floor = 0.0;
};

/// All goals. \param choices, pageSizes measurements of growing sizes, each ten times the one before.
std::vector<GoalLine> holdAgainstGoals(std::span<const Measurement> choices, std::span<const Measurement> pageSizes,
                                       const ColdTimes &cold);
/// The figures that goals are worked out from.
void printFigures(std::span<const Measurement> measurements);
