// SPDX-License-Identifier: Apache-2.0
// What the backend says to whoever reads the session's log.
#pragma once

#include "job/Printing.h"

#include <QLoggingCategory>

#include <optional>

namespace tapeprint::portal
{

Q_DECLARE_LOGGING_CATEGORY(portalLog)

/// Says it when the settings of a job that was printed will not be there the next time.
void logWhatIsNotKept(const std::optional<job::PrintedJob> &printed);

} // namespace tapeprint::portal
