// SPDX-License-Identifier: Apache-2.0
// A job whose settings are final: plain values, which may go to another thread while the job they were taken from lives
// on, changes, or is closed.
#pragma once

#include "job/AutomaticLength.h"
#include "job/Job.h"
#include "job/RasterShift.h"

#include <QByteArray>
#include <QString>

#include <optional>

namespace tapeprint::job
{

struct SettledJob {
    std::optional<PrintQueue> queue;
    QString ppdPath;              ///< the local PPD file; empty when the PPD is the queue's
    QString outputPath;           ///< where the printer's bytes go; empty: to the queue
    QString pdfPath;              ///< where the job is saved as a PDF in place of being printed; empty: it is printed
    bool mayReplaceOutput = true; ///< as in the destination, and so the next two
    bool trustsPpd = false;
    QByteArray queuePpd; ///< the queue's own PPD as it came; empty with a PPD file, or without a PPD
    FileStamps documents;
    JobOptions options; ///< as the person left them; carried() says what of them leaves
    TapePage page;
    RasterShift shift;
    bool isReversedByPpd = false; ///< the filters print the last page first unless they are told not to
    LengthRules lengths;
    bool isRoomTold = false; ///< whoever prints knows of a page that comes out too small to be read, and wants it

    bool isFile() const { return !outputPath.isEmpty() || !queue; }
    /// Whether the tape becomes as long as the documents need.
    bool fitsLength() const;
    /// The job's title: the one among its options, or else the one given, as a print server takes it.
    QString title(const QString &otherwise) const;
    /// The options that the job carries to the queue or the filters.
    JobOptions carried() const;
};

/// Takes a job's settings as they stand.
SettledJob settle(const Job &job);

} // namespace tapeprint::job
