// SPDX-License-Identifier: Apache-2.0
// Makes the bundle's one panel; all that the plug-in's principal class knows of it.
#pragma once

#include "pdekit/Bundle.h"
#include "pdekit/PanelProtocol.h"

#include <memory>

/// A new Page Settings panel. \return null when it could not be constructed: there is no callback.
std::shared_ptr<pdekit::Panel> newPageSettingPanel(std::shared_ptr<pdekit::PanelCallback> callback,
                                                   pdekit::Bundle *bundle);
