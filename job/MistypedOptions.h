// SPDX-License-Identifier: Apache-2.0
// An option that nobody knows is handed on to the filters, which may have it. One that is spelled nearly like an option
// of the printer was meant to be that, and would do nothing in silence.
#pragma once

#include "job/JobOptions.h"

#include <QStringList>

#include <cups/ppd.h>

namespace tapeprint::job
{

/// A sentence for each option that the printer does not have and that looks like one which it has, or like an attribute
/// of IPP.
QStringList mistypedOptions(ppd_file_t *ppd, const JobOptions &chosen);

} // namespace tapeprint::job
