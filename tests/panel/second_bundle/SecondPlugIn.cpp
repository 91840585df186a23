// SPDX-License-Identifier: Apache-2.0
// The second bundle's way into a dialog.
#include "SecondPlugIn.h"

#include "SecondPanel.h"

#include <utility>

bool SecondPlugIn::initWithBundle(pdekit::Bundle *bundle)
{
    if (bundle == nullptr) {
        return false;
    }
    mBundle = bundle->shared_from_this();
    return true;
}

const pdekit::PanelArray *SecondPlugIn::PDEPanelsForType(const QString &type,
                                                         std::shared_ptr<pdekit::PanelCallback> hostInfo)
{
    mPanels.clear();
    if (type == pdekit::kPrinterModulePanelType) {
        if (!mBundle || !hostInfo) {
            return nullptr;
        }
        mPanels.push_back(std::make_shared<SecondPanel>(std::move(hostInfo), mBundle));
    }
    return &mPanels;
}

std::unique_ptr<pdekit::PlugIn> SecondPlugInEntry::newPrincipalObject(const QString &className)
{
    if (className != QLatin1String("SecondPlugIn")) {
        return nullptr;
    }
    return std::make_unique<SecondPlugIn>();
}
