// SPDX-License-Identifier: Apache-2.0
// The bundle's principal class: answers the dialog's request for printer panels with the one Page Settings panel.
#pragma once

#include "pdekit/Bundle.h"
#include "pdekit/PlugIn.h"

#include <memory>
#include <vector>

class KSHNPageSettingsPlugIn13_v100_ : public pdekit::PlugIn
{
public:
    KSHNPageSettingsPlugIn13_v100_();
    ~KSHNPageSettingsPlugIn13_v100_() override;

    /// False, and nothing kept, on a print system older than 10.5.
    bool initWithBundle(pdekit::Bundle *bundle) override;
    /// An empty array for a type that is not served; null when the panel of the served type could not be made.
    const pdekit::PanelArray *PDEPanelsForType(const QString &type,
                                               std::shared_ptr<pdekit::PanelCallback> hostInfo) override;

    /// Whether the panel interface is of level 10.5 or later. Asked of the system once in a process.
    static bool runningOnLeopardOrLater();

private:
    pdekit::Bundle *pluginBundle = nullptr; ///< the dialog's
    std::unique_ptr<pdekit::PanelArray> pdes;
    /// Arrays that a later request replaced. They are not released then: a dialog may still hold their panels by
    /// plain pointers. Deliberate.
    std::vector<std::unique_ptr<pdekit::PanelArray>> mReplacedPdes;
};
