// SPDX-License-Identifier: Apache-2.0
// What a run of the program says when it is over, and saying it.
#pragma once

#include "tapeprint/ExitStatus.h"

#include <QJsonObject>
#include <QStringList>

#include <optional>

namespace tapeprint
{

/// Lines for standard output and standard error, and the exit status.
struct RunReport {
    QStringList output;
    QStringList messages;
    int status = 0;
    /// Why the status is not 0; the messages may say more.
    std::optional<job::Problem> problem = {};
    /// What --json says beside status and messages: see JsonReport.h.
    QJsonObject data = {};
};

/// The report of a run that failed.
inline RunReport failedRun(const job::Problem &problem)
{
    return {{}, {problem.sentence}, exitStatus(problem.kind), problem, {}};
}

/// Writes a report to standard output and standard error. \param asJson all of it as one JSON object on standard
/// output. \return the status to end with: standard output that cannot be written is a problem, too.
int writeReport(const RunReport &run, bool asJson);

} // namespace tapeprint
