// SPDX-License-Identifier: Apache-2.0
// One category for all of the backend, so that one rule can silence or open it.
#include "portal/Log.h"

#include "job/LastSettings.h"
#include "job/PlainText.h"

namespace tapeprint::portal
{

Q_LOGGING_CATEGORY(portalLog, "tapeprint.portal", QtInfoMsg)

void logWhatIsNotKept(const std::optional<job::PrintedJob> &printed)
{
    if (printed && !printed->isKept) {
        qCWarning(portalLog) << job::harmless(job::lastSettingsNotKept());
    }
}

} // namespace tapeprint::portal
