// SPDX-License-Identifier: Apache-2.0
// The dialog without a window: the same objects, the same panels, and lines of text instead of message boxes.
#pragma once

#include "tapeprint/CommandLine.h"
#include "tapeprint/RunReport.h"

namespace tapeprint
{

/// Does what the command line asks, without a window. A run that fails says one line: what is wrong and what to do.
RunReport runUnattended(const CommandLine &line);

} // namespace tapeprint
