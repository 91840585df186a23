// SPDX-License-Identifier: Apache-2.0
// One category for all of the backend, so that one rule can silence or open it.
#include "portal/Log.h"

namespace tapeprint::portal
{

Q_LOGGING_CATEGORY(portalLog, "tapeprint.portal", QtInfoMsg)

} // namespace tapeprint::portal
