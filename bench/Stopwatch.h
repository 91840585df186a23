// SPDX-License-Identifier: Apache-2.0
// Takes times so that what else runs on the machine disturbs them least: many short takes, of which the shortest
// counts.
#pragma once

#include <algorithm>
#include <chrono>
#include <limits>

using Seconds = std::chrono::duration<double>;

/// How long a call takes.
template <typename Call>
Seconds timeOf(Call &&call)
{
    const auto start = std::chrono::steady_clock::now();
    call();
    return std::chrono::steady_clock::now() - start;
}

/// The shortest of several takes.
class Shortest
{
public:
    void take(Seconds time) { mTime = std::min(mTime, time); }
    double milliseconds() const { return mTime.count() * 1e3; }

private:
    Seconds mTime = Seconds(std::numeric_limits<double>::infinity());
};

/// Repeats a round of takes for a while. Takes that are compared stand in one round, so that a slow moment meets all.
template <typename Round>
void repeat(Seconds atLeast, int leastRounds, Round &&round)
{
    const auto start = std::chrono::steady_clock::now();
    for (int i = 0; i < leastRounds || std::chrono::steady_clock::now() - start < atLeast; ++i) {
        round();
    }
}
