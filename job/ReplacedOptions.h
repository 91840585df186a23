// SPDX-License-Identifier: Apache-2.0
// What a person laid down and the job carries with another value: said, never lost in silence.
#pragma once

#include "job/JobOptions.h"

#include <QStringList>

namespace tapeprint::job
{

/// A sentence for each option that was laid down and that the job carries with another value. Numbers that say the
/// same, such as 62 and 62.0, are one value.
QStringList replacedOptions(const JobOptions &laidDown, const JobOptions &job);

} // namespace tapeprint::job
