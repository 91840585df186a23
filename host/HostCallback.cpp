// SPDX-License-Identifier: Apache-2.0
// Answers of the dialog to its panels, each from the dialog's objects as they are just now.
#include "host/HostCallback.h"

#include "host/DialogModel.h"

namespace tapeprint
{

pdekit::PMPrintSession HostCallback::printSession()
{
    return mModel == nullptr ? nullptr : &mModel->session();
}

pdekit::PMPrintSettings HostCallback::printSettings()
{
    return mModel == nullptr ? nullptr : &mModel->settings();
}

pdekit::PMPageFormat HostCallback::pageFormat()
{
    return mModel == nullptr ? nullptr : &mModel->pageFormat();
}

pdekit::Printer *HostCallback::PMPrinter()
{
    return mModel == nullptr ? nullptr : &mModel->printer();
}

ppd_file_t *HostCallback::ppdFile()
{
    return mModel == nullptr ? nullptr : mModel->ppd();
}

bool HostCallback::willChangePPDOptionKeyValue(const QString &key, const QString &choice)
{
    return mModel != nullptr && mModel->takeFromPanel(key, choice);
}

void HostCallback::panelViewDidResize()
{
    if (mModel != nullptr) {
        mModel->panelViewDidResize();
    }
}

} // namespace tapeprint
