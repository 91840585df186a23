// SPDX-License-Identifier: Apache-2.0
// Whether a queue would take a job, asked without sending one.
#pragma once

#include "job/Printers.h"
#include "job/Problem.h"

namespace tapeprint::job
{

/// Whether a queue takes jobs at all; a stopped one does, and keeps them. \param error takes a sentence when it does
/// not.
bool takesJobs(const PrintQueue &queue, Problem *error);

} // namespace tapeprint::job
