// SPDX-License-Identifier: Apache-2.0
// How a plug-in bundle presents itself to a dialog: the module's entry makes the principal object that the bundle's
// metadata names, and the principal object makes panels.
#pragma once

#include "pdekit/Export.h"
#include "pdekit/PanelProtocol.h"
#include "pdekit/Version.h"

#include <QString>
#include <QtPlugin>

#include <memory>

namespace pdekit
{

class Bundle;

/// The panel type of printer panels: panels that a printer's own plug-in adds to the print dialog.
inline const QString kPrinterModulePanelType = QStringLiteral("BDB091F4-E57F-11D3-B5CC-0050E4603277");

/// The principal object of a plug-in bundle. A dialog makes one for each bundle it uses and keeps it while it uses the
/// bundle's panels.
class PDEKIT_EXPORT PlugIn
{
public:
    PlugIn() = default;
    PlugIn(const PlugIn &) = delete;
    PlugIn &operator=(const PlugIn &) = delete;
    virtual ~PlugIn();

    /// Called once, first. \param bundle the plug-in's own bundle; the dialog keeps it alive longer than this object.
    /// \return false when the plug-in cannot serve on this system; it is not used then.
    virtual bool initWithBundle(Bundle *bundle) = 0;

    /// The panels of a type. \param type the panel type, such as kPrinterModulePanelType; \param hostInfo the dialog's
    /// callback object, shared with the panels.
    /// \return the panels, an empty array when the plug-in has none of the type, null when it should have one and could
    /// not make it. The array stays the plug-in's.
    virtual const PanelArray *PDEPanelsForType(const QString &type, std::shared_ptr<PanelCallback> hostInfo) = 0;
};

/// The module's entry: the root object of the Qt plug-in in a bundle. It holds no state of a dialog.
class PDEKIT_EXPORT PlugInEntry
{
public:
    PlugInEntry() = default;
    PlugInEntry(const PlugInEntry &) = delete;
    PlugInEntry &operator=(const PlugInEntry &) = delete;
    virtual ~PlugInEntry();

    /// A new principal object. \param className the class that the metadata names under "PrincipalClass".
    /// \return null when the module has no such class.
    virtual std::unique_ptr<PlugIn> newPrincipalObject(const QString &className) = 0;
};

} // namespace pdekit

Q_DECLARE_INTERFACE(pdekit::PlugInEntry, PDEKIT_PLUGIN_IID)

/// \file
/// A dialog reads the metadata (the JSON file named in Q_PLUGIN_METADATA) before it loads any code:
/// - "PrincipalClass": string, the name for PlugInEntry::newPrincipalObject().
/// - "PanelTypes": array of strings, the panel types that the plug-in serves, such as kPrinterModulePanelType.
/// - "PPDKeywords": array of strings. The plug-in belongs to a printer whose PPD has one of them, as an option or as an
///   attribute. Without it only to printers whose PPD names the bundle (APDialogExtension).
/// - "Tape": what the options and attributes of its printers mean to a dialog that prints on tape; a dialog may ignore
///   it. See LoadedBundle::metadata.
