// SPDX-License-Identifier: Apache-2.0
// What a run of the program says when it is over.
#pragma once

#include "tapeprint/ExitStatus.h"

#include <QStringList>

namespace tapeprint
{

/// Lines for standard output and standard error, and the exit status.
struct RunReport {
    QStringList output;
    QStringList messages;
    int status = 0;
};

/// The report of a run that failed.
inline RunReport failedRun(const job::Problem &problem)
{
    return {{}, {problem.sentence}, exitStatus(problem.kind)};
}

} // namespace tapeprint
