// SPDX-License-Identifier: Apache-2.0
// Print settings as programs and the portal write them, and a job's options: from one to the other and back.
//
// What is done by whom, so that nothing is done twice:
//   copies, collate, reverse, pages, odd and even, pages a sheet    by us, on the program's document; the program is
//                                                                   told that there is nothing to do
//   the paper, its margins, how it is turned                        by the program, which lays its pages out on it
//   scale, "current page", "selection"                              by the program, which alone knows what they mean:
//                                                                   what it asked with comes back to it
#pragma once

#include "job/JobOptions.h"
#include "job/SettledJob.h"

#include <QSizeF>
#include <QString>
#include <QVariantMap>

#include <cups/ppd.h>

namespace tapeprint::portal
{

/// What a program asks with. Keys that nobody knows and values that make no sense are left out, with a word in the log.
struct AskedSettings {
    QString printer;         ///< the queue that the program used last; empty when it does not say
    job::JobOptions usual;   ///< what any printer takes
    job::JobOptions ofPpd;   ///< what has to fit the printer
    QSizeF paperMm;          ///< empty when it does not say
    QString documentName;    ///< of what is printed; empty when it does not say
    QVariantMap given;       ///< the settings with texts for values, as they came
    bool printsPart = false; ///< the program prints its current page or what is selected in it
};

AskedSettings askedSettings(const QVariantMap &settings, const QVariantMap &pageSetup);

/// What of it a printer's description has: choices that it lists, numbers of options that it knows, a paper of that
/// size. \param ppd may be null.
job::JobOptions fitting(const AskedSettings &asked, ppd_file_t *ppd);

/// The settings of the answer. \param options the person's; \param ppd the printer's, may be null.
QVariantMap answeredSettings(const AskedSettings &asked, const job::SettledJob &job, ppd_file_t *ppd);

/// The page setup of the answer: the paper as it is, in millimetres. Without a paper, as far as is known.
QVariantMap answeredPageSetup(const job::SettledJob &job);

/// The job as it waits for the program's pages: what the program has been told to do is not in it.
job::SettledJob withoutProgramsPart(job::SettledJob job);

} // namespace tapeprint::portal
