// SPDX-License-Identifier: Apache-2.0
// The window when another program prints: it asks for the settings alone, and the program's pages come later.
#include "dialog/AmountLabel.h"
#include "dialog/PreviewArea.h"
#include "dialog/PrintDialog.h"
#include "dialog/SaveButton.h"

#include <QPushButton>

namespace tapeprint::dialog
{

QString PrintDialog::heading() const
{
    return mSetup.heading.isNull() ? tr("Print %1").arg(mSetup.title) : mSetup.heading;
}

void PrintDialog::askForSettings()
{
    if (!mSetup.acceptLabel.isEmpty()) {
        mPrintButton->setText(mSetup.acceptLabel);
    }
    // Without a document there is nothing to save or to count.
    mSaveButton->hide();
    mAmount->hide();
    mPreview->awaitProgram(mSetup.aboutPages);
}

} // namespace tapeprint::dialog
