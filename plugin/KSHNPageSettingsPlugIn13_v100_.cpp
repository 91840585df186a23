// SPDX-License-Identifier: Apache-2.0
// The bundle's principal class.
#include "plugin/KSHNPageSettingsPlugIn13_v100_.h"

#include "panel/PanelFactory.h"
#include "pdekit/SystemVersion.h"

using namespace pdekit;

namespace
{

bool isLeopardOrLater()
{
    // A question that the system does not answer leaves 10.4: too old. The bug-fix number is asked for, not used.
    std::int32_t major = 10;
    std::int32_t minor = 4;
    std::int32_t bugFix = 0;
    Gestalt(gestaltSystemVersionMajor, &major);
    Gestalt(gestaltSystemVersionMinor, &minor);
    Gestalt(gestaltSystemVersionBugFix, &bugFix);
    return major > 10 || (major == 10 && minor > 4);
}

} // namespace

KSHNPageSettingsPlugIn13_v100_::KSHNPageSettingsPlugIn13_v100_() = default;

KSHNPageSettingsPlugIn13_v100_::~KSHNPageSettingsPlugIn13_v100_() = default;

bool KSHNPageSettingsPlugIn13_v100_::runningOnLeopardOrLater()
{
    static const bool answer = isLeopardOrLater();
    return answer;
}

bool KSHNPageSettingsPlugIn13_v100_::initWithBundle(Bundle *bundle)
{
    if (!runningOnLeopardOrLater()) {
        return false;
    }
    pluginBundle = bundle;
    return true;
}

const PanelArray *KSHNPageSettingsPlugIn13_v100_::PDEPanelsForType(const QString &type,
                                                                   std::shared_ptr<PanelCallback> hostInfo)
{
    if (pdes != nullptr) {
        mReplacedPdes.push_back(std::move(pdes));
    }
    pdes = std::make_unique<PanelArray>();
    if (type == kPrinterModulePanelType) {
        if (auto panel = newPageSettingPanel(std::move(hostInfo), pluginBundle)) {
            pdes->push_back(std::move(panel));
        }
        // Only for the served type is "none" null; for any other it is an empty array. Deliberate.
        if (pdes->empty()) {
            pdes.reset();
        }
    }
    return pdes.get();
}
