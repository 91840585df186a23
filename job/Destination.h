// SPDX-License-Identifier: Apache-2.0
// Where a job goes, and what a front end asks for before there is one.
#pragma once

#include "job/FileStamp.h"
#include "job/JobOptions.h"
#include "job/PpdFile.h"
#include "job/Printers.h"
#include "job/Problem.h"

#include <QByteArray>
#include <QString>

#include <atomic>
#include <optional>

namespace tapeprint::job
{

/// What a front end asks for: a destination, and what is laid down for the job.
struct JobRequest {
    QString queue;      ///< empty: the default printer, or none with a PPD file
    QString instance;   ///< a saved set of options of that queue; empty for the queue itself
    JobOptions options; ///< laid down by name, in the order given
    QString title;      ///< empty: the document's name
    QString ppdPath;    ///< a PPD file that takes the place of the queue's, or the name of a sample printer's
    QString outputPath; ///< a file for the printer's bytes instead of a queue; "-" for standard output
    QString pdfPath;    ///< a file for the job as a PDF instead of printing; "-" for standard output
    /// Whether a file that stands at the output's path may be replaced: the person named it.
    bool mayReplaceOutput = true;
    /// Whether the PPD file's own programs may run: the person was shown them, and says so.
    bool trustsPpd = false;
    /// Whether the job is only looked at: no output is made, and no program run.
    bool onlyShows = false;
    FileStamps documents; ///< what is to be printed, which nothing may write to

    /// QUEUE or QUEUE/INSTANCE; empty when no queue is named.
    QString fullQueueName() const { return QueueName{queue, instance}.text(); }
};

/// A queue, or with a PPD file alone that PPD's filters and a file for the printer's bytes.
struct Destination {
    std::optional<PrintQueue> queue;
    QString ppdPath;              ///< the local PPD file; empty when the PPD is the queue's
    QString outputPath;           ///< where the printer's bytes go; empty: to the queue
    QString pdfPath;              ///< where the job is saved as a PDF; empty: it is printed
    bool mayReplaceOutput = true; ///< as in the request, and so the next
    bool trustsPpd = false;
    FileStamps documents; ///< the PPD file stands among them
    QByteArray ppdDigest; ///< tells whether the queue's PPD is still the same; empty when the PPD is not the queue's
    PpdFile ppd;          ///< null when the queue has none

    /// Whether the job goes through the PPD's filters into a file.
    bool isFile() const { return !outputPath.isEmpty() || !queue; }
    /// The name for the person.
    QString title() const;
};

/// Opens the queue and the PPD that a request names. \param error takes a sentence on failure; none when it was
/// stopped. \param stop when it becomes true, nobody wants the destination any more; null: nobody stops it.
std::optional<Destination> openDestination(const JobRequest &request, Problem *error,
                                           const std::atomic<bool> *stop = nullptr);

} // namespace tapeprint::job
