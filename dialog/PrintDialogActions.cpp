// SPDX-License-Identifier: Apache-2.0
// What the window does when the person acts: picks, Revert, Print, Cancel, and the live summary.
#include "dialog/ButtonIcons.h"
#include "dialog/JobPage.h"
#include "dialog/LayoutPage.h"
#include "dialog/MiddleArea.h"
#include "dialog/OptionsPage.h"
#include "dialog/PanelArea.h"
#include "dialog/PaperMenu.h"
#include "dialog/PreviewArea.h"
#include "dialog/PrintDialog.h"
#include "dialog/PrinterPopUp.h"
#include "dialog/SummaryView.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QKeyEvent>
#include <QLayout>
#include <QMessageBox>
#include <QPushButton>
#include <QResizeEvent>
#include <QScreen>
#include <QSpinBox>
#include <QStackedWidget>

#include <algorithm>
#include <utility>

namespace tapeprint::dialog
{

namespace
{

/// On some desktops Return opens a pop-up and presses a button, with Ctrl as well, before the window hears of it.
bool isPrintKeyOn(const QObject *watched, const QKeyEvent &key, const QWidget *window)
{
    const bool isPrintKey =
        (key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter) && (key.modifiers() & Qt::ControlModifier) != 0;
    const auto *control = qobject_cast<const QWidget *>(watched);
    if (!isPrintKey || control == nullptr || control->window() != window) {
        return false;
    }
    return qobject_cast<const QComboBox *>(control) != nullptr ||
           qobject_cast<const QAbstractButton *>(control) != nullptr;
}

} // namespace

void PrintDialog::connectControls()
{
    // "activated" is the person's act alone; setting a control from code sends nothing.
    connect(mPrinterPopUp, &QComboBox::activated, this, &PrintDialog::pickPrinter);
    connect(mPapers, &PaperMenu::picked, this, &PrintDialog::pickTape);
    connect(mPapers, &PaperMenu::problem, this, &PrintDialog::tellProblem);
    connect(mCopiesField, &QSpinBox::valueChanged, this, [this](int copies) {
        if (copies != mJob.copies()) {
            mJob.setCopies(copies);
        }
    });
    connect(mPageChooser, &QComboBox::activated, this, &PrintDialog::pickPage);
    connect(mRevertButton, &QPushButton::clicked, this, &PrintDialog::revert);
    connectPrinting();
    connect(mFitButton, &QPushButton::clicked, this, &PrintDialog::fitOnce);
    connect(mKeepFitting, &QCheckBox::clicked, this, [this](bool keep) {
        if (keep) {
            fitOnce();
        }
    });
    connect(&mDesk, &DocumentDesk::changed, this, &PrintDialog::takeDocuments);

    connect(mPreview, &PreviewArea::amountChanged, this, &PrintDialog::showAmount);
    connect(&mCountTimer, &QTimer::timeout, this, &PrintDialog::printCounted);
    connect(mSaveButton, &SaveButton::wanted, this, &PrintDialog::save);
    connect(&mUnit, &MeasureUnit::changed, this, [this] { mFollowTimer.start(); });
    connect(&mFollowTimer, &QTimer::timeout, this, &PrintDialog::follow);
    connect(&mJob, &job::Job::changed, this, [this] { mFollowTimer.start(); });
    connect(&mPanels, &Panels::panelResized, this, &PrintDialog::fitPanel);
    connect(&mRestTimer, &QTimer::timeout, &mPanels, &Panels::tellAreasChanged);
    // Not every act in a panel sends a choice at once, but its summary changes: the summary is read again after it.
    QApplication::instance()->installEventFilter(this);
    helpPeople();
}

bool PrintDialog::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::Resize:
        if (watched == this && size() != mGrownSize) { // it grows for its contents by itself
            mMiddle->arrange(size());
        }
        // Told when the layouts that follow from it have been made as well.
        if (watched == this || isPage(watched)) {
            mRestTimer.start();
        }
        // A page that does not fill its place was resized by its panel. Layouts would take that back before it is told.
        if (isPage(watched) && static_cast<QResizeEvent *>(event)->size() != mPages->size()) {
            mWishedSize = static_cast<QResizeEvent *>(event)->size();
        }
        break;
    case QEvent::KeyPress:
        if (isPrintKeyOn(watched, *static_cast<QKeyEvent *>(event), this)) {
            mPrintButton->click();
            return true;
        }
        [[fallthrough]];
    case QEvent::KeyRelease:
    case QEvent::InputMethod:
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseMove:
    case QEvent::Wheel:
    case QEvent::FocusOut:
        if (const auto *widget = qobject_cast<QWidget *>(watched);
            widget != nullptr && mPages->isAncestorOf(widget) && !mFollowTimer.isActive()) {
            mFollowTimer.start();
        }
        break;
    default:
        break;
    }
    return QDialog::eventFilter(watched, event);
}

void PrintDialog::keyPressEvent(QKeyEvent *event)
{
    if (event->matches(QKeySequence::HelpContents) && mHelpButton->isVisible()) {
        event->accept();
        mHelpButton->click();
        return;
    }
    const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (!isReturn) {
        QDialog::keyPressEvent(event);
        return;
    }
    event->accept();
    // Tape is not printed by accident: Return belongs to the control that has it. Buttons take it, Ctrl+Return prints.
    if ((event->modifiers() & Qt::ControlModifier) != 0) {
        mPrintButton->click();
    } else if (auto *button = qobject_cast<QPushButton *>(focusWidget()); button != nullptr) {
        button->click();
    }
}

void PrintDialog::pickTape(const QString &tape)
{
    // Another tape brings a length along that nobody typed: it is fitted like the one before.
    if (mKeepFitting->isChecked()) {
        mFittedLengthMm = 0.0;
    }
    mPanels.changePaper(tape);
}

void PrintDialog::pickOption(const QString &key, const QString &choice)
{
    mJob.changeOption(key, choice);
    showCurrentPanel();
}

void PrintDialog::pickPage(int index)
{
    const Page *page = currentPage();
    if (page != nullptr && page->panel && index != mCurrentPage && !mPanels.mayHide(*page->panel)) {
        mPageChooser->setCurrentIndex(mCurrentPage);
        return;
    }
    turnToPage(index);
}

void PrintDialog::follow()
{
    if (mClosed || !mPrinters.hasOpen()) {
        return;
    }
    replaceLostView();
    mSummary->showSummary(mPanels.summary());
    followInThePreview();
    followInThePresets();
    mPapers->follow();
    followCopies();
    if (mLayoutPage) {
        mLayoutPage->follow();
    }
    if (mJobPage) {
        mJobPage->follow();
    }
    if (mOptionsPage) {
        mOptionsPage->follow();
    }
    showNotices(); // panels were asked for much by now
    followConflicts();
}

/// More than the server makes cannot be typed. More that was asked for at first stays, and is said when it is printed.
void PrintDialog::followCopies()
{
    const job::Destination &to = mJob.destination();
    const int limit = to.isFile() ? 0 : to.queue->limits.mostCopies;
    mCopiesField->setMaximum(std::max(limit > 0 ? limit : mostCopies, mJob.copies()));
    mCopiesField->setValue(mJob.copies());
}

void PrintDialog::followInThePreview()
{
    const job::SettledJob current = currentJob();
    if (mDesk.follow(current)) {
        mPreview->expectDocuments();
    }
    TapeLook look = tapeLookOf(mJob.ppd(), current.options, mJob.tape());
    look.unit = mUnit.unit();
    mPreview->follow(current.page, current.options, look);
    mPreview->setNoPreview(whyNoPreview(current.page));
    mPreview->show();
    fitTape();
}

QString PrintDialog::whyNoPreview(const job::TapePage &page) const
{
    if (mJob.ppd() == nullptr) {
        return tr("This printer has no description: what is printed is handed to it as it is. So there is no preview, "
                  "and nobody knows how many pages come out.");
    }
    return page.isEmpty() ? tr("There is no preview: the printer's description names no paper.") : QString();
}

job::SettledJob PrintDialog::currentJob() const
{
    // What a person is dragging or typing this moment counts, though the panel has not sent it yet.
    job::SettledJob current = job::settle(mJob);
    current.options = mPanels.currentOptions();
    current.page = job::tapePageOf(mJob.ppd(), current.options, mJob.tape());
    return current;
}

void PrintDialog::revert()
{
    if (mPanels.isInCall()) {
        return;
    }
    job::Problem error;
    if (!mPanels.revert(&error)) {
        tellProblem(error.sentence);
    }
    // A length that was typed stands in the panel's field alone: only a panel made anew shows the first values.
    remakePanels();
    mKeepFitting->setChecked(false);
    mPresetRow->revert(presetNotices());
    follow();
}

void PrintDialog::remakePanels()
{
    const int shown = mCurrentPage;
    removeOwnPages();
    mPanels.remake();
    makePages();
    showPages(shown);
}

void PrintDialog::done(int code)
{
    if (!mClosed) {
        mClosed = true;
        QApplication::instance()->removeEventFilter(this);
        mPanels.windowWillClose(code == Accepted);
    }
    QDialog::done(code);
}

void PrintDialog::tellProblem(const QString &sentence)
{
    say(QMessageBox::Critical, sentence);
}

void PrintDialog::say(QMessageBox::Icon icon, const QString &sentence)
{
    // Sentences hold names of strangers.
    QMessageBox box(icon, windowTitle(), {}, QMessageBox::Ok, this);
    box.setTextFormat(Qt::PlainText);
    box.setText(sentence);
    removeButtonIcons(box);
    box.exec();
}

bool PrintDialog::isPage(const QObject *object) const
{
    return std::any_of(mPageList.begin(), mPageList.end(),
                       [object](const Page &page) { return page.widget == object; });
}

void PrintDialog::fitPanel()
{
    const QSize wished = std::exchange(mWishedSize, {});
    if (const Page *page = currentPage(); wished.isValid() && page != nullptr && page->widget != nullptr) {
        page->widget->setMinimumSize(wished);
    }
    mPages->updateGeometry();
    mPanelArea->updateGeometry();
    // Each layout up to the window's has to look again now: by itself it would do so at the next event.
    for (const QWidget *widget = mPanelArea; widget != this;) {
        widget = widget->parentWidget();
        widget->layout()->invalidate();
        widget->layout()->activate();
    }
    resize(size().expandedTo(sizeHint()).boundedTo(screen()->availableSize()));
}

} // namespace tapeprint::dialog
