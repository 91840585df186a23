// SPDX-License-Identifier: Apache-2.0
// Makes the other generation's principal object: the header's class under its other name.
#include "NextGenerationEntry.h"

#include "plugin/KSHNPageSettingsPlugIn13_v100_.h"

std::unique_ptr<pdekit::PlugIn> NextGenerationEntry::newPrincipalObject(const QString &className)
{
    if (className != QLatin1StringView("KSHNPageSettingsPlugIn14_v101_")) {
        return nullptr;
    }
    return std::make_unique<KSHNPageSettingsPlugIn14_v101_>();
}
