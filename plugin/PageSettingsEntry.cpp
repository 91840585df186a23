// SPDX-License-Identifier: Apache-2.0
// The module's entry.
#include "plugin/PageSettingsEntry.h"

#include "plugin/KSHNPageSettingsPlugIn13_v100_.h"

std::unique_ptr<pdekit::PlugIn> PageSettingsEntry::newPrincipalObject(const QString &className)
{
    if (className != QLatin1StringView("KSHNPageSettingsPlugIn13_v100_")) {
        return nullptr;
    }
    return std::make_unique<KSHNPageSettingsPlugIn13_v100_>();
}
