// SPDX-License-Identifier: Apache-2.0
// What a print server refuses whatever the printer is: more copies than it makes, numbers of pages that it puts on no
// sheet. It tells them with all else that it is asked about a queue.
#pragma once

#include "job/JobOptions.h"

#include <QString>

#include <optional>
#include <vector>

#include <cups/ipp.h>

namespace tapeprint::job
{

/// What a server takes in a job for one of its queues.
struct ServerLimits {
    int mostCopies = 0;           ///< 0: it does not say
    std::vector<int> pagesASheet; ///< rising; empty: it does not say

    bool takesPagesASheet(int number) const;
};

/// The limits in a server's answer about a queue.
ServerLimits limitsIn(ipp_t *response);

/// Why a server would refuse a job for options that it applies itself; nothing when it takes them. \param carried the
/// options as they are sent.
std::optional<QString> beyondLimits(const ServerLimits &limits, const JobOptions &carried);

} // namespace tapeprint::job
