// SPDX-License-Identifier: Apache-2.0
// The principal class and the entry of the second bundle.
#pragma once

#include <pdekit/Bundle.h>
#include <pdekit/PlugIn.h>

#include <QObject>

/// Makes a new SecondPanel for each request for printer panels.
class SecondPlugIn : public pdekit::PlugIn
{
public:
    bool initWithBundle(pdekit::Bundle *bundle) override;
    const pdekit::PanelArray *PDEPanelsForType(const QString &type,
                                               std::shared_ptr<pdekit::PanelCallback> hostInfo) override;

private:
    std::shared_ptr<pdekit::Bundle> mBundle;
    pdekit::PanelArray mPanels;
};

/// The root object of the module.
class SecondPlugInEntry : public QObject, public pdekit::PlugInEntry
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID PDEKIT_PLUGIN_IID FILE "SecondPlugIn.json")
    Q_INTERFACES(pdekit::PlugInEntry)

public:
    std::unique_ptr<pdekit::PlugIn> newPrincipalObject(const QString &className) override;
};
