// SPDX-License-Identifier: Apache-2.0
// "As last time": what the person printed with last, for each queue and tape, in a settings file of this program's.
#pragma once

#include "job/JobOptions.h"
#include "job/Problem.h"

#include <QString>

#include <optional>

namespace tapeprint::job
{

/// Keeps the settings of a job that was printed. \param tape its PageSize; custom sizes count as one tape. \param
/// options as optionsForNextTime() leaves them. \return false, with a sentence, when they cannot be kept.
bool keepLastSettings(const QString &queue, const QString &tape, const JobOptions &options, Problem *error);

/// That they could not be kept, in the language of the moment.
QString lastSettingsNotKept();

/// What was last printed with on a tape of the queue, or on whichever tape was last when that one never was. Nothing
/// for a queue that was never printed on.
std::optional<JobOptions> lastSettings(const QString &queue, const QString &tape);

} // namespace tapeprint::job
