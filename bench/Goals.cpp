// SPDX-License-Identifier: Apache-2.0
// One line a goal.
#include "Goals.h"

#include <cstdio>

int printGoals(std::span<const GoalLine> lines)
{
    int missed = 0;
    for (const GoalLine &line : lines) {
        missed += line.isMet() ? 0 : 1;
        std::printf("%-4s %9.3f %-5s (goal %8.3f)  %s%s%s\n", line.isMet() ? "ok" : "MISS", line.value,
                    line.unit.c_str(), line.goal, line.what.c_str(), line.figures.empty() ? "" : ": ",
                    line.figures.c_str());
    }
    std::printf("%d of %zu goals missed\n", missed, lines.size());
    return missed;
}
