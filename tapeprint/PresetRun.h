// SPDX-License-Identifier: Apache-2.0
// The runs that only list or delete presets: no server, no job and no panel is needed for them.
#pragma once

#include "tapeprint/CommandLine.h"
#include "tapeprint/RunReport.h"

namespace tapeprint
{

/// Does what the command line asks of the presets of its queue.
RunReport runPresets(const CommandLine &line);

} // namespace tapeprint
