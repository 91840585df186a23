// SPDX-License-Identifier: Apache-2.0
// Print, and what the window shows until the printer's last word.
#include "dialog/JobRow.h"
#include "dialog/NoticesArea.h"
#include "dialog/PreviewArea.h"
#include "dialog/PrintDialog.h"
#include "dialog/SaveButton.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QStackedWidget>

namespace tapeprint::dialog
{

namespace
{

/// So long the window stays when nobody has to do anything and the job only waits its turn.
constexpr int leaveAfterMs = 5000;

} // namespace

void PrintDialog::connectPrinting()
{
    connect(mPrintButton, &QPushButton::clicked, this, &PrintDialog::print);
    connect(mCancelButton, &QPushButton::clicked, this, &PrintDialog::cancel);
    connect(mJobRow->closeButton(), &QPushButton::clicked, this, &PrintDialog::leaveJob);
    connect(&mRun, &PrintRun::told, this, &PrintDialog::tellJob);
    connect(&mRun, &PrintRun::sent, this, &PrintDialog::showPrinting);
    connect(&mRun, &PrintRun::failed, this, &PrintDialog::failPrinting);
    connect(&mRun, &PrintRun::ended, this, &PrintDialog::endPrinting);
    connect(&mRun, &PrintRun::notCancelled, this, [this](const job::Problem &problem) {
        mCancelButton->setEnabled(true);
        if (problem.kind != job::Problem::Cancelled) {
            tellProblem(problem.sentence);
        }
    });
    mLeaveTimer.setSingleShot(true);
    mLeaveTimer.setInterval(leaveAfterMs);
    connect(&mLeaveTimer, &QTimer::timeout, this, &PrintDialog::leaveJob);
}

void PrintDialog::print()
{
    if (!mPrinters.canPrint() || mPanels.isInCall() || !isReadyToPrint() || !isAmountAgreed() ||
        asksAboutConflicts([this] { print(); })) {
        return;
    }
    mIsSaving = false;
    forgetOutcome();
    const job::SettledJob settled = job::settle(mJob);
    if (mSetup.takeSettings) {
        mSetup.takeSettings(settled, keepingForNextTime());
        accept();
        return;
    }
    const std::optional<Amount> amount = mPreview->amount();
    mRun.start(
        [action = mPrintAction, keep = keepingForNextTime(), settled](const job::PrintWatch &watch,
                                                                      job::Problem *problem) {
            std::optional<job::PrintedJob> printed = action(settled, watch, problem);
            if (printed) {
                printed->isKept = keep();
            }
            return printed;
        },
        settled.page.isTape, amount ? amount->pieces : 0);
    showPrinting();
}

void PrintDialog::showPrinting()
{
    const bool isPrinting = this->isPrinting();
    const bool isSent = mRun.phase() == PrintRun::Phase::Following;
    // What is being printed is not to be changed under the person's hands.
    for (QWidget *widget : findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly)) {
        if (widget != mCancelButton->parentWidget() && widget != mNotices && !widget->isWindow()) {
            widget->setEnabled(!isPrinting);
        }
    }
    for (QPushButton *button : mNotices->findChildren<QPushButton *>()) { // what the notices say stays readable
        button->setEnabled(!isPrinting);
    }
    mRevertButton->setEnabled(!isPrinting);
    mSaveButton->setEnabled(!isPrinting);
    showWhetherPrintable();
    mCancelButton->setEnabled(true);
    mCancelButton->setText(isSent ? tr("Cancel Job") : tr("Cancel"));
    mJobRow->setCanClose(isSent);
    (isPrinting ? mIdleRow : mJobRow)->hide(); // first, so that both are never there at once
    (isPrinting ? static_cast<QWidget *>(mJobRow) : mIdleRow)->show();
    if (isPrinting) {
        (isSent ? mJobRow->closeButton() : mCancelButton)->setFocus();
    } else {
        mLeaveTimer.stop();
        mPrintButton->setFocus();
    }
}

void PrintDialog::tellJob(const QString &words, int percent)
{
    mJobRow->tell(words, percent);
    const std::optional<job::JobNews> &news = mRun.news();
    const bool waitsItsTurn = news && !news->waitsForPerson() && (news->isHeld() || news->status.jobsBefore > 0);
    if (!waitsItsTurn || mRun.isCancelling()) {
        mLeaveTimer.stop();
    } else if (!mLeaveTimer.isActive()) {
        mLeaveTimer.start();
    }
}

void PrintDialog::failPrinting(const job::Problem &problem)
{
    showPrinting();
    if (problem.kind == job::Problem::Cancelled) { // which nobody has to be told twice
        mOutcome = problem.sentence;
        showNotices();
    } else if (!problem.isNull()) {
        tellProblem(problem.sentence);
    }
}

void PrintDialog::forgetOutcome()
{
    if (!mOutcome.isEmpty()) {
        mOutcome.clear();
        showNotices();
    }
}

void PrintDialog::endPrinting()
{
    const std::optional<job::JobNews> &news = mRun.news();
    if (!news) { // there is a file, whose name the person wants to know
        showPrinting();
        say(QMessageBox::Information, printed()->sentence());
        if (mIsSaving) { // a file is no print: the window stays
            return;
        }
    } else if (news->isHeld()) {
        return; // which is to be read; the window leaves it in a while
    }
    accept();
}

void PrintDialog::cancel()
{
    if (mRun.phase() == PrintRun::Phase::Idle) {
        reject();
        return;
    }
    mCancelButton->setEnabled(false);
    mRun.cancel();
}

void PrintDialog::leaveJob()
{
    mRun.leave();
    accept();
}

void PrintDialog::openAgain()
{
    mClosed = false;
    mRun.forget();
    QApplication::instance()->installEventFilter(this);
    showPrinting();
    showCurrentPanel();
}

void PrintDialog::reject()
{
    switch (mRun.phase()) {
    case PrintRun::Phase::Sending:
        cancel();
        break;
    case PrintRun::Phase::Following:
        leaveJob();
        break;
    case PrintRun::Phase::Idle:
        printed() ? accept() : QDialog::reject();
        break;
    }
}

} // namespace tapeprint::dialog
