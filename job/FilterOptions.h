// SPDX-License-Identifier: Apache-2.0
// What of a job's options goes to the queue or the filters, once the job itself has laid its pages out.
#pragma once

#include "job/JobOptions.h"
#include "job/TapePage.h"

#include <QStringList>

namespace tapeprint::job
{

/// The options that the job carries. For tape: the page's own size, no option that selects or places pages, because
/// that is done, and the word that nothing is to be scaled. For paper: as they are,
/// in the form that print servers take. The title is none of them.
JobOptions filterOptions(const JobOptions &options, const TapePage &page);

/// A sentence for each option that changes nothing on this page. \param chosen what the person chose: what nobody asked
/// for needs no word.
QStringList optionsWithoutEffect(const JobOptions &chosen, const TapePage &page);

} // namespace tapeprint::job
