// SPDX-License-Identifier: Apache-2.0
// A job whose settings are final: plain values, which may go to another thread while the job they were taken from lives
// on, changes, or is closed.
#pragma once

#include "job/AutomaticLength.h"
#include "job/Job.h"
#include "job/RasterShift.h"

#include <QString>

#include <optional>

namespace tapeprint::job
{

struct SettledJob {
    std::optional<PrintQueue> queue;
    QString ppdPath;              ///< the local PPD file; empty when the PPD is the queue's
    QString outputPath;           ///< where the printer's bytes go; empty: to the queue
    bool mayReplaceOutput = true; ///< as in the destination, and so the next two
    bool trustsPpd = false;
    FileStamps documents;
    JobOptions options; ///< as the person left them; carried() says what of them leaves
    TapePage page;
    RasterShift shift;
    LengthRules lengths;

    bool isFile() const { return !outputPath.isEmpty() || !queue; }
    /// Whether the tape becomes as long as the documents need.
    bool fitsLength() const;
    /// The options that the job carries to the queue or the filters.
    JobOptions carried() const;
};

/// Takes a job's settings as they stand.
SettledJob settle(const Job &job);

} // namespace tapeprint::job
