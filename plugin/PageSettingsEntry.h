// SPDX-License-Identifier: Apache-2.0
// The module's entry, which the plug-in loader finds: makes the principal object by its class name.
#pragma once

#include "pdekit/PlugIn.h"

#include <QObject>

class PageSettingsEntry : public QObject, public pdekit::PlugInEntry
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID PDEKIT_PLUGIN_IID FILE "PageSettings.json")
    Q_INTERFACES(pdekit::PlugInEntry)

public:
    std::unique_ptr<pdekit::PlugIn> newPrincipalObject(const QString &className) override;
};
