// SPDX-License-Identifier: Apache-2.0
// From a command line to a destination, and from a finished dialog to a printed job: the two ends that the window and
// the run without a window share.
#pragma once

#include "host/CommandLine.h"
#include "host/DialogModel.h"
#include "host/DocumentSpool.h"
#include "host/FilterRun.h"
#include "host/JobSubmission.h"

#include <QString>

#include <optional>

namespace tapeprint
{

/// The queue and the PPD that a command line names. \param error takes a sentence on failure.
std::optional<Destination> openDestination(const CommandLine &line, QString *error);

/// The same for a queue that the person picked in the dialog.
std::optional<Destination> openDestination(const QString &queue, const QString &instance, QString *error);

/// What became of a job: it is in a queue, or its bytes are in a file.
struct PrintedJob {
    QString queue; ///< null when the bytes are in a file
    SubmittedJob job;
    FilterOutput output;

    /// A sentence about it, in the language of the moment.
    QString sentence() const;
};

/// Prints: to the queue, or through the PPD's filters into a file when there is no queue or --output names one.
/// \return what became of the job; std::nullopt, and a sentence in *error, on failure.
std::optional<PrintedJob> printJob(const DialogModel &model, const CommandLine &line, const DocumentSpool &documents,
                                   QString *error);

} // namespace tapeprint
