// SPDX-License-Identifier: Apache-2.0
// Where the printer's bytes go when there is no queue and nobody named a file.
#pragma once

#include "job/Destination.h"

#include <QString>

namespace tapeprint
{

/// A name for an output that nobody named: after the document, in the current folder, or in the temporary one when that
/// cannot be written to; never the name of a file that is there.
QString freeOutputPath(const QString &documentTitle);

/// Gives a request for a PPD file alone an output when it names none: one that never takes the place of a file.
void nameOutput(job::JobRequest &request, const QString &documentTitle);

} // namespace tapeprint
