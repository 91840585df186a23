// SPDX-License-Identifier: Apache-2.0
// The entry of the other generation's module.
#pragma once

#include "pdekit/PlugIn.h"

#include <QObject>

class NextGenerationEntry : public QObject, public pdekit::PlugInEntry
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID PDEKIT_PLUGIN_IID FILE "NextGeneration.json")
    Q_INTERFACES(pdekit::PlugInEntry)

public:
    std::unique_ptr<pdekit::PlugIn> newPrincipalObject(const QString &className) override;
};
