// SPDX-License-Identifier: Apache-2.0
// Goals, and the table that tells which of them are met.
#pragma once

#include <span>
#include <string>

/// One line of the table: a figure, its goal, and whether it is met.
struct GoalLine {
    std::string what;
    std::string figures; ///< what the ratio is made of
    double value = 0.0;
    double goal = 0.0;
    std::string unit;
    bool isMet() const { return value <= goal; }
};

/// The table of goals. \return how many are missed.
int printGoals(std::span<const GoalLine> lines);
