// SPDX-License-Identifier: Apache-2.0
// What the window does before anything is printed or saved, and the job that goes into a file. The window stays: a file
// is no print.
#include "dialog/AmountLabel.h"
#include "dialog/JobPage.h"
#include "dialog/OptionsPage.h"
#include "dialog/PlainText.h"
#include "dialog/PreviewArea.h"
#include "dialog/PrintDialog.h"

#include <QComboBox>
#include <QPushButton>
#include <QScopedValueRollback>

#include <algorithm>
#include <utility>

#include <pdekit/Alert.h>

namespace tapeprint::dialog
{

namespace
{

/// A document that is read for longer than this is printed without its amount being known.
constexpr int longestCountingMs = 10000;

} // namespace

bool PrintDialog::isReadyToPrint()
{
    const auto isJobPage = [this](const Page &page) { return page.widget == mJobPage; };
    if (mJobPage && !mJobPage->isReady()) {
        const auto found = std::find_if(mPageList.begin(), mPageList.end(), isJobPage);
        pickPage(static_cast<int>(found - mPageList.begin()));
        mJobPage->isReady(); // shown now, its field takes the focus
        return false;
    }
    if (mOptionsPage) {
        mOptionsPage->commit();
    }
    job::Problem error;
    if (!mPanels.saveValues(&error)) {
        tellProblem(error.sentence);
        return false;
    }
    return isAcceptedByPanels();
}

bool PrintDialog::isAcceptedByPanels()
{
    QString panel;
    const bool isAccepted = mPanels.shouldPrint(&panel);
    const int seenBefore = std::exchange(mAlertsSeen, pdekit::alertsRun());
    mRefusal = isAccepted ? QString() : tr("%1 does not accept the settings. Nothing was printed.").arg(panel);
    if (!isAccepted) {
        follow();
        // Mostly a panel has said why, in an alert when the value was typed or just now.
        if (seenBefore == mAlertsSeen) {
            tellProblem(mRefusal);
        }
    }
    return isAccepted;
}

bool PrintDialog::isAmountAgreed()
{
    // What was pressed before the pages are counted is done when they are.
    if (mPreview->isCounting() && !mIsCountedOut) {
        mCountTimer.start(longestCountingMs);
        return false;
    }
    return mAmount->isAgreed();
}

void PrintDialog::showAmount()
{
    mAmount->showAmount(mPreview->amount(), mPreview->isCounting(), mUnit.unit());
    mAmount->setToolTip(plainToolTip(mPreview->whyNone()));
    if (mCountTimer.isActive() && !mPreview->isCounting()) {
        mCountTimer.start(0);
    }
}

void PrintDialog::printCounted()
{
    if (mClosed) {
        return;
    }
    const QScopedValueRollback countedOut(mIsCountedOut, true);
    print();
}

void PrintDialog::save(SaveButton::Kind kind, const QString &path)
{
    // A PDF is for no printer, whatever goes together there.
    if (mPanels.isInCall() || !isReadyToPrint() ||
        (kind != SaveButton::Kind::Pdf && asksAboutConflicts([this, kind, path] { save(kind, path); }))) {
        return;
    }
    job::SettledJob job = job::settle(mJob);
    job.mayReplaceOutput = true; // the person was asked
    (kind == SaveButton::Kind::Pdf ? job.pdfPath : job.outputPath) = path;
    if (kind == SaveButton::Kind::PrinterData) {
        job.pdfPath.clear();
    }
    mIsSaving = true;
    forgetOutcome();
    mRun.start([action = mPrintAction, job](const job::PrintWatch &watch,
                                            job::Problem *problem) { return action(job, watch, problem); },
               job.page.isTape);
    showPrinting();
}

} // namespace tapeprint::dialog
