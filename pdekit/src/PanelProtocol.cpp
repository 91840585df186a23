// SPDX-License-Identifier: Apache-2.0
// The destructors of the protocol's classes. They stand here so that their type information exists once in the process:
// a dynamic_cast between a dialog and a bundle relies on it.
#include "pdekit/PanelProtocol.h"
#include "pdekit/PlugIn.h"

namespace pdekit
{

PanelCallback::~PanelCallback() = default;
PanelViewResizing::~PanelViewResizing() = default;
Panel::~Panel() = default;
PanelLiveValues::~PanelLiveValues() = default;
PanelHelp::~PanelHelp() = default;
PlugIn::~PlugIn() = default;
PlugInEntry::~PlugInEntry() = default;

} // namespace pdekit
