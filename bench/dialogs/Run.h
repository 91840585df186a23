// SPDX-License-Identifier: Apache-2.0
// One run of a program, with what the operating system says it took.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include <sys/types.h>

namespace bench
{

struct Cost {
    double cpuSeconds = 0.0; ///< of the program and of those children that it waited for
    double memoryMb = 0.0;   ///< resident at its peak
    int status = 0;          ///< as waitpid gives it
};

/// A program and what it is run with. Its output is dropped.
struct Program {
    std::string name; ///< in the table
    std::vector<std::string> command;
};

using Variables = std::vector<std::pair<std::string, std::string>>;

/// Starts a program with variables beside those of this one. \return its process.
pid_t startProgram(const Program &program, const Variables &variables);
/// What the living processes took that a program has started, and those that these have: the sum of their processor
/// time, and the peak of the largest.
Cost costOfStarted(pid_t process);
/// Waits for a program's end.
Cost waitForProgram(pid_t process);

} // namespace bench
