// SPDX-License-Identifier: Apache-2.0
// What a script can tell a run's end by: one table from the kinds of problems to exit statuses.
#pragma once

#include "job/Problem.h"

#include <QString>

namespace tapeprint
{

/// The status of a run that ended with a problem of a kind: never 0, and each kind has its own.
int exitStatus(job::Problem::Kind kind);

/// The name of a kind as JSON says it, such as "bad-document".
QString kindName(job::Problem::Kind kind);

/// The statuses as lines for --help, 0 among them.
QString exitStatusHelp();

} // namespace tapeprint
