// SPDX-License-Identifier: Apache-2.0
// Which options of a job are worth keeping for the next one: not what belongs to the one document, and never a secret.
#pragma once

#include "job/JobOptions.h"

#include <cups/ppd.h>

namespace tapeprint::job
{

/// What a preset holds of a job: also its copies, when there are several. \param ppd tells which options take a
/// password; may be null.
JobOptions optionsForPreset(const JobOptions &options, ppd_file_t *ppd);

/// What is kept as the settings of the last time: copies are back at their first value the next time.
JobOptions optionsForNextTime(const JobOptions &options, ppd_file_t *ppd);

/// What belongs to the document that is open, and stays when other settings are chosen for it. Copies belong to it.
JobOptions optionsOfDocument(const JobOptions &options);

/// Whether two sets of options mean the same job, in whatever order they stand. Numbers that say the same, such as 62
/// and 62.0, are one value.
bool meanTheSame(const JobOptions &left, const JobOptions &right);

} // namespace tapeprint::job
