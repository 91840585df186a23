// SPDX-License-Identifier: Apache-2.0
// Values that a job cannot carry as they were asked for, found before anything is printed: whoever asked from a script
// wants that label or none.
#pragma once

#include "job/JobOptions.h"

#include <QStringList>

#include <functional>

#include <cups/ppd.h>

namespace tapeprint::job
{

/// Whether a panel answers for a value of an option, and says itself what it makes of it.
using AnswersFor = std::function<bool(const QString &key, const QString &value)>;

/// A sentence for each value that neither the printer nor CUPS takes: none of the choices that the PPD lists, no size
/// that can be read or that the printer has, no number where CUPS reads one. \param ppd may be null. \param asked what
/// was asked for.
QStringList refusedValues(ppd_file_t *ppd, const JobOptions &asked, const AnswersFor &isPanels);

/// A sentence for each own value and each size of one's own that is beyond what the printer takes, wherever it comes
/// from. Those of options that take none are unlistedValues(). \param ppd may be null.
QStringList ownValuesNotTaken(ppd_file_t *ppd, const JobOptions &options);

} // namespace tapeprint::job
