// SPDX-License-Identifier: Apache-2.0
// What was laid down for a job before any panel is made: the queue's defaults in the PPD, the person's saved options,
// the command line. It becomes the state that panels find.
#pragma once

#include "job/JobOptions.h"

#include <QStringList>

#include <optional>

#include <pdekit/PrintingCore.h>

#include <cups/ppd.h>

namespace tapeprint::job
{

/// Options with PageRegion, which is the same choice as PageSize, under the name PageSize. Where both are given
/// PageSize has the last word, as it has with libcups. A PPD without PageSize keeps them as they are.
JobOptions withNamedSize(const JobOptions &options, ppd_file_t *ppd);

/// Lays options down: each goes into the job; where the PPD has the option, the value becomes its default choice and is
/// marked when the PPD lists it. A value that is neither listed nor a number stays in the job alone: a panel that
/// chooses among the listed values keeps the PPD's own default. The job then names the tape (PageSize) that is marked.
/// \param ppd the dialog's own copy, changed; may be null.
void layDown(const JobOptions &options, ppd_file_t *ppd, JobOptions *job);

/// The paper that the PPD's marks stand for; std::nullopt when it marks no page size.
std::optional<pdekit::Paper> markedPaper(ppd_file_t *ppd);

/// The tape length in millimetres that is laid down: by the job, or by the PPD's own default as long as nothing chose
/// another tape than the PPD's. \param chosen what was laid down beside the PPD. \param lengthOption the option that
/// says how long a tape is; empty where there is none.
std::optional<double> laidDownLengthMm(const JobOptions &chosen, ppd_file_t *ppd, const QString &lengthOption);

/// The length in points that a panel reads back, through 72 points an inch and 0.0393701 inch a millimetre, as exactly
/// this many millimetres or the nearest above.
double heightPtFromMm(double lengthMm);

/// A sentence for each option of the job whose value the PPD neither lists nor takes as a number.
QStringList unlistedValues(ppd_file_t *ppd, const JobOptions &job);

/// The same for values that are numbers. Panels take some: \param job the options that none answers for.
QStringList unlistedNumbers(ppd_file_t *ppd, const JobOptions &job);

/// A sentence for each option that the print server would keep for itself. \param chosen what the person chose: what
/// nobody asked for needs no word.
QStringList optionsThatNeverArrive(const JobOptions &chosen);

} // namespace tapeprint::job
