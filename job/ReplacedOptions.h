// SPDX-License-Identifier: Apache-2.0
// What a person laid down and the job carries with another value, because a panel put it there: said, never lost in
// silence.
#pragma once

#include "job/JobOptions.h"

#include <vector>

#include <cups/ppd.h>

namespace tapeprint::job
{

/// An option as it was laid down, and as the job carries it.
struct ReplacedOption {
    JobOptions::Entry laidDown;
    JobOptions::Entry carried;

    /// Whether the job carries the same as nearly as a panel's steps allow: lengths that differ by less than a tenth of
    /// a millimetre, which is the finest step there is.
    bool isRounding() const;
    /// Why the job carries another value, and which. \param ppd tells what the printer has, may be null; \param panel
    /// the name of the panel that sent the other value.
    QString sentence(ppd_file_t *ppd, const QString &panel) const;
};

/// The options that were laid down and that the job carries with another value. Numbers that say the same, such as 62
/// and 62.0, are one value.
std::vector<ReplacedOption> replacedOptions(const JobOptions &laidDown, const JobOptions &job);

} // namespace tapeprint::job
