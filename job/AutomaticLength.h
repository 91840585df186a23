// SPDX-License-Identifier: Apache-2.0
// The length of tape that a job's documents need: what is drawn on them, and the margin at both ends.
#pragma once

#include "job/LabelPlan.h"

#include <QString>

#include <optional>
#include <vector>

#include <cups/ppd.h>

namespace tapeprint::job
{

/// What bounds a tape's length, out of a PPD. All in millimetres.
struct LengthRules {
    double least = 0.0;
    double most = 0.0;     ///< 0: without bound
    double step = 0.1;     ///< lengths are whole multiples of it
    bool inInches = false; ///< lengths are shown in inches with two decimals
};
LengthRules lengthRulesOf(ppd_file_t *ppd, const TapeKeywords &keywords);

/// What was worked out.
struct AutomaticLength {
    double lengthMm = 0.0;
    bool isHeld = false; ///< the documents need another length, which the limits do not allow
};

/// The length that takes what is drawn on every selected page, rounded up to the step and held within the limits.
/// \return nothing when no page is drawn on.
std::optional<AutomaticLength> automaticLength(const std::vector<PageSizes> &documents,
                                               const std::vector<DrawnRects> &drawn, const TapePage &page,
                                               const JobOptions &options, const LengthRules &rules);

} // namespace tapeprint::job
