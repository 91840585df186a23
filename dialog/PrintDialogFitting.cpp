// SPDX-License-Identifier: Apache-2.0
// What the window does about the length of the tape: fitting it once, keeping it fitted, and never over a length that a
// person typed without asking.
#include "dialog/ButtonIcons.h"
#include "dialog/PreviewArea.h"
#include "dialog/PrintDialog.h"

#include <QApplication>
#include <QCheckBox>
#include <QMessageBox>
#include <QScopedValueRollback>

#include <cmath>

#include <pdekit/Numbers.h>

namespace tapeprint::dialog
{

namespace
{

/// Lengths go through a panel's field, which keeps hundredths of an inch.
constexpr double sameLengthMm = 0.13;

bool isSameLength(double leftMm, double rightMm)
{
    return std::abs(leftMm - rightMm) < sameLengthMm;
}

} // namespace

void PrintDialog::takeDocuments()
{
    mPreview->setProblem(mDesk.problem());
    if (!mDesk.documents()) {
        mFitWanted = false;
        mPreview->setDocuments({}, {});
        return;
    }
    mPreview->setDocuments(mDesk.documents()->pdfs, mDesk.documents()->files, mDesk.documents()->laidOn);
    fitTape();
}

void PrintDialog::fitOnce()
{
    mFitWanted = true;
    mFittedLengthMm = 0.0;
    if (!job::layoutChoicesOf(mJob.options()).fitLength) {
        mJob.changeOption(job::OptionName::fitLength, QStringLiteral("true")); // the documents are looked at now
        return;
    }
    fitTape();
}

void PrintDialog::fitTape()
{
    const std::optional<job::PdfDocuments> &documents = mDesk.documents();
    const job::SettledJob current = currentJob();
    // While an alert of a panel stands over the window, a call of that panel is under way: it is not to be made anew.
    const QWidget *modal = QApplication::activeModalWidget();
    if (mIsFitting || mPanels.isInCall() || !current.fitsLength() || !documents || documents->drawn.empty() ||
        (modal != nullptr && modal != this)) {
        return;
    }
    // A question that has just been answered is no modal window any more, but its answer has not been heard yet.
    const QScopedValueRollback fitting(mIsFitting, true);
    const double shownMm = pdekit::doubleValue(current.options.value(mJob.tape().lengthOption));
    // A length that the person sets afterwards is theirs: fitting ends, and pages count whole again.
    if (!mFitWanted && mFittedLengthMm > 0.0 && !isSameLength(shownMm, mFittedLengthMm)) {
        mKeepFitting->setChecked(false);
        mFittedLengthMm = 0.0;
        mJob.changeOption(job::OptionName::fitLength, QStringLiteral("false"));
        return;
    }
    if (!mFitWanted && !mKeepFitting->isChecked()) {
        return;
    }
    const bool wasAsked = std::exchange(mFitWanted, false);
    const std::optional<job::AutomaticLength> length = job::automaticLength(current, *documents);
    if (!length) {
        if (wasAsked) {
            say(QMessageBox::Information, tr("Nothing is drawn on the document: the tape keeps its length."));
        }
        return;
    }
    if (!isSameLength(shownMm, length->lengthMm)) {
        applyLength(*length);
    }
    mFittedLengthMm = length->lengthMm;
    if (wasAsked && length->isHeld) {
        say(QMessageBox::Information, tr("The document needs more tape than the printer takes: it is made smaller."));
    }
}

void PrintDialog::applyLength(const job::AutomaticLength &length)
{
    const std::optional<pdekit::Paper> before = mJob.pageFormat().paper;
    mJob.changePaperLength(length.lengthMm);
    mPanels.showAll();
    const double followedMm = pdekit::doubleValue(mPanels.currentOptions().value(mJob.tape().lengthOption));
    if (isSameLength(followedMm, length.lengthMm)) {
        return;
    }
    if (mayReplaceTypedLength(followedMm)) {
        remakePanels();
    } else {
        mJob.pageFormat().paper = before;
    }
}

bool PrintDialog::mayReplaceTypedLength(double lengthMm)
{
    // The panel keeps a length that was typed. Kept fitted, the person has said beforehand that it may go.
    if (mKeepFitting->isChecked() && mFittedLengthMm > 0.0) {
        return true;
    }
    QMessageBox question(QMessageBox::Question, windowTitle(),
                         tr("The tape length was set to %1 by hand. Replace it by the length that fits?")
                             .arg(mUnit.measureText(job::pointsFromMm(lengthMm))),
                         QMessageBox::Yes | QMessageBox::No, this);
    removeButtonIcons(question);
    const bool replace = question.exec() == QMessageBox::Yes;
    if (!replace) {
        mKeepFitting->setChecked(false);
        mJob.changeOption(job::OptionName::fitLength, QStringLiteral("false"));
    }
    return replace;
}

} // namespace tapeprint::dialog
