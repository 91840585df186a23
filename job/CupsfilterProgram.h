// SPDX-License-Identifier: Apache-2.0
// CUPS's program that runs chains of filters without a print server.
#pragma once

#include <QString>

namespace tapeprint::job
{

/// The path of cupsfilter; empty when it is not installed.
QString findCupsfilter();

/// The sentence about a missing cupsfilter.
QString cupsfilterMissing();

} // namespace tapeprint::job
