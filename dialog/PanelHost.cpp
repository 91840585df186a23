// SPDX-License-Identifier: Apache-2.0
// Answers of the dialog to its panels, each from the job's objects as they are just now.
#include "dialog/PanelHost.h"

#include "dialog/Panels.h"
#include "job/Job.h"

namespace tapeprint::dialog
{

void PanelHost::detach()
{
    mJob = nullptr;
    mPanels = nullptr;
}

pdekit::PMPrintSession PanelHost::printSession()
{
    return mJob == nullptr ? nullptr : &mJob->session();
}

pdekit::PMPrintSettings PanelHost::printSettings()
{
    return mJob == nullptr ? nullptr : &mJob->settings();
}

pdekit::PMPageFormat PanelHost::pageFormat()
{
    return mJob == nullptr ? nullptr : &mJob->pageFormat();
}

pdekit::Printer *PanelHost::PMPrinter()
{
    return mJob == nullptr ? nullptr : &mJob->printer();
}

ppd_file_t *PanelHost::ppdFile()
{
    return mJob == nullptr ? nullptr : mJob->ppd();
}

bool PanelHost::willChangePPDOptionKeyValue(const QString &key, const QString &choice)
{
    return mPanels != nullptr && mPanels->takeChoice(key, choice, mBundlePath);
}

void PanelHost::panelViewDidResize()
{
    if (mPanels != nullptr) {
        mPanels->panelViewDidResize();
    }
}

} // namespace tapeprint::dialog
