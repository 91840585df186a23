// SPDX-License-Identifier: Apache-2.0
// --wait: a run without a window that ends when its job does.
#pragma once

#include "job/Printing.h"
#include "job/Problem.h"

namespace tapeprint
{

/// Waits for a job's end, and says on standard error meanwhile what a person has to see to. A job whose bytes are in a
/// file is at its end. \param printed its state becomes the last one. \param isTape whether its printer prints on tape.
/// \param problem takes a sentence when the job has failed or was cancelled, or the server does not tell.
bool waitForJob(job::PrintedJob &printed, bool isTape, job::Problem *problem);

} // namespace tapeprint
