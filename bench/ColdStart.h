// SPDX-License-Identifier: Apache-2.0
// The first showing in a process, which a person waits for: everything that is done once a process is in it.
#pragma once

#include "Report.h"

/// Whether the program was started to measure one cold showing; it then prints its milliseconds and should end.
bool isColdRun(const QStringList &arguments);
void runCold(const QStringList &arguments);

/// Starts this program once for each, taking turns; the median of each.
ColdTimes measureCold();
