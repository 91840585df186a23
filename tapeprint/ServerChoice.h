// SPDX-License-Identifier: Apache-2.0
// -h, -U and -E: which print server is meant, for every thread of the program.
#pragma once

#include "tapeprint/CommandLine.h"

namespace tapeprint
{

/// Makes the server, the person and the encryption that a command line names libcups's own settings. To be called
/// before libcups is used and before there is a second thread.
void chooseServer(const CommandLine &line);

} // namespace tapeprint
