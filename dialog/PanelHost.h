// SPDX-License-Identifier: Apache-2.0
// The dialog's side of the panel protocol: hands the job's objects to panels and takes their choices.
#pragma once

#include <QString>

#include <utility>

#include <pdekit/PanelProtocol.h>

namespace tapeprint::job
{
class Job;
}

namespace tapeprint::dialog
{

class Panels;

/// What the panels of one bundle hold of the dialog. A panel may outlive the dialog by a moment: once detached, it
/// answers null and takes nothing.
class PanelHost final : public pdekit::PanelCallback, public pdekit::PanelViewResizing
{
public:
    /// \param bundlePath names the sender of choices.
    PanelHost(job::Job &job, Panels &panels, QString bundlePath)
        : mJob(&job), mPanels(&panels), mBundlePath(std::move(bundlePath))
    {
    }

    /// The job's objects go away.
    void detach();

    pdekit::PMPrintSession printSession() override;
    pdekit::PMPrintSettings printSettings() override;
    pdekit::PMPageFormat pageFormat() override;
    pdekit::Printer *PMPrinter() override;
    ppd_file_t *ppdFile() override;
    bool willChangePPDOptionKeyValue(const QString &key, const QString &choice) override;

    void panelViewDidResize() override;

private:
    job::Job *mJob;  ///< not owned
    Panels *mPanels; ///< not owned
    QString mBundlePath;
};

} // namespace tapeprint::dialog
