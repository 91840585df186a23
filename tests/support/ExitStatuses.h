// SPDX-License-Identifier: Apache-2.0
// The exit statuses as the manual page gives them, written down once more by hand: scripts hold them in the same way.
#pragma once

namespace testsupport
{

enum ExitStatus {
    done = 0,
    general = 1,
    badUsage = 2,
    badDocument = 3,
    conflict = 4,
    refusedValue = 5,
    noSuchPrinter = 6,
    unreachable = 7,
    rejectedJob = 8,
    unwritableOutput = 9,
    badDescription = 10,
    failedJob = 11,
    cancelled = 12,
};

} // namespace testsupport
