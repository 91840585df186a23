// SPDX-License-Identifier: Apache-2.0
// The dialog's side of the panel protocol: hands the dialog's objects to panels and takes their choices.
#pragma once

#include <functional>

#include <pdekit/PanelProtocol.h>

namespace tapeprint
{

class DialogModel;

/// What panels hold of the dialog. A panel may outlive the dialog by a moment: once detached, it answers null and takes
/// nothing.
class HostCallback final : public pdekit::PanelCallback, public pdekit::PanelViewResizing
{
public:
    explicit HostCallback(DialogModel *model) : mModel(model) {}

    /// The dialog's objects go away.
    void detach() { mModel = nullptr; }

    pdekit::PMPrintSession printSession() override;
    pdekit::PMPrintSettings printSettings() override;
    pdekit::PMPageFormat pageFormat() override;
    pdekit::Printer *PMPrinter() override;
    ppd_file_t *ppdFile() override;
    bool willChangePPDOptionKeyValue(const QString &key, const QString &choice) override;

    void panelViewDidResize() override;

private:
    DialogModel *mModel; ///< not owned
};

} // namespace tapeprint
