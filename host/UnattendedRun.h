// SPDX-License-Identifier: Apache-2.0
// The dialog without a window: the same objects, the same panels, and lines of text instead of message boxes.
#pragma once

#include "host/CommandLine.h"

#include <QStringList>

namespace tapeprint
{

/// What a run says: lines for standard output and standard error, and the exit status.
struct RunReport {
    QStringList output;
    QStringList messages;
    int status = 0;
};

/// Does what the command line asks, without a window. A run that fails says one line: what is wrong and what to do.
RunReport runUnattended(const CommandLine &line);

} // namespace tapeprint
