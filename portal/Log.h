// SPDX-License-Identifier: Apache-2.0
// What the backend says to whoever reads the session's log.
#pragma once

#include <QLoggingCategory>

namespace tapeprint::portal
{

Q_DECLARE_LOGGING_CATEGORY(portalLog)

} // namespace tapeprint::portal
