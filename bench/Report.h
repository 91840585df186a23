// SPDX-License-Identifier: Apache-2.0
// Holds measurements against the goals and prints them.
#pragma once

#include "Measurements.h"

#include <span>

/// One line of the table: a figure, its goal, and whether it is met.
struct GoalLine {
    std::string what;
    std::string figures; ///< what the ratio is made of
    double value = 0.0;
    double goal = 0.0;
    std::string unit;
    bool isMet() const { return value <= goal; }
};

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
/// The table of goals. \return how many are missed.
int printGoals(std::span<const GoalLine> lines);
