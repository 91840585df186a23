// SPDX-License-Identifier: Apache-2.0
// The dialog with its window, from a command line to the person's answer.
#pragma once

#include "tapeprint/CommandLine.h"
#include "tapeprint/RunReport.h"

namespace tapeprint
{

/// Shows the dialog and does what the person decides. What keeps the window from opening is reported as by a run
/// without a window.
RunReport runWindow(const CommandLine &line);

} // namespace tapeprint
