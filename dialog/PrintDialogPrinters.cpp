// SPDX-License-Identifier: Apache-2.0
// What the window does about its printer: shows which is open or being opened, takes one over when it has been opened
// in its thread, and keeps what can be kept of the person's choices.
#include "dialog/LayoutPage.h"
#include "dialog/MiddleArea.h"
#include "dialog/NoticesArea.h"
#include "dialog/OptionsPage.h"
#include "dialog/PanelArea.h"
#include "dialog/PlainText.h"
#include "dialog/PreviewArea.h"
#include "dialog/PrintDialog.h"
#include "dialog/PrinterModel.h"
#include "dialog/PrinterPopUp.h"

#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QShowEvent>
#include <QThread>
#include <QTimer>

#include <algorithm>
#include <utility>

namespace tapeprint::dialog
{

void PrintDialog::connectPrinters()
{
    mPrinterPopUp->setModel(&mPrinters.model());
    mAskAgain = new QPushButton(tr("&Ask Again"), mNotices);
    mAskAgain->setObjectName(QStringLiteral("askAgain"));
    mLoadAnew = new QPushButton(tr("&Load Anew"), mNotices);
    mLoadAnew->setObjectName(QStringLiteral("loadAnew"));
    for (QPushButton *button : {mAskAgain, mLoadAnew}) {
        button->setAutoDefault(false);
        button->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
        button->hide();
        mNotices->addNotice(button);
    }
    // A panel whose alert stands open is in the middle of a call: it is not to be released under it.
    const int usualLevel = std::max(QThread::currentThread()->loopLevel(), 1);
    mPrinters.setGate([this, usualLevel] {
        const QWidget *modal = QApplication::activeModalWidget();
        const bool isOwn = modal == nullptr || modal == this || qobject_cast<const PrintDialog *>(modal) != nullptr;
        return isOwn && QThread::currentThread()->loopLevel() <= usualLevel && !isPrinting() && !mIsFitting &&
               !mPanels.isInCall();
    });
    connect(mAskAgain, &QPushButton::clicked, &mPrinters, &PrinterDesk::askAgain);
    connect(mLoadAnew, &QPushButton::clicked, &mPrinters, &PrinterDesk::takeNewDescription);
    connect(&mPrinters, &PrinterDesk::changed, this, &PrintDialog::followPrinters);
    connect(&mPrinters, &PrinterDesk::opened, this,
            [this](const std::shared_ptr<job::Destination> &destination) { takeDestination(std::move(*destination)); });
}

void PrintDialog::pickPrinter(int index)
{
    mCountTimer.stop(); // what was pressed was for the printer before
    mPrinters.pick(mPrinterPopUp->itemData(index, PrinterModel::NameRole).toString());
    followPrinters();
}

void PrintDialog::takeDestination(job::Destination destination)
{
    if (mClosed) {
        return;
    }
    mKept.leave(mJob.openedWith(), mPanels.currentOptions(), mJob.ppd());
    job::JobOptions asked = mSetup.request.options;
    const bool isInstance = destination.queue && !destination.queue->instance.isEmpty();
    const job::JobOptions kept =
        mKept.fitting(destination.ppd.get(), isInstance ? destination.queue->options : job::JobOptions());
    for (const auto &[name, value] : kept.entries()) {
        asked.set(name, value);
    }
    // The old pages go before the panels and the PPD that they show.
    removeOwnPages();
    mGreyed.undo();
    forgetOutcome();
    mPanels.open(std::move(destination), asked);
    showDestination();
    followPrinters();
    // The layouts hear of the new pages by events.
    QTimer::singleShot(0, this, [this] {
        growToContents();
        Q_EMIT settled();
    });
}

void PrintDialog::showEvent(QShowEvent *event)
{
    if (mClosed) {
        openAgain();
    }
    QDialog::showEvent(event);
    // Some widgets know what they wish for only when they are shown.
    QTimer::singleShot(0, this, &PrintDialog::growUnlessSized);
}

void PrintDialog::paintEvent(QPaintEvent *event)
{
    QDialog::paintEvent(event);
    // Only now the window has a frame, and soon the toolkit hears where it is. It centred the window without one, so
    // that a tall one lost its title.
    constexpr int frameMs = 200;
    if (!std::exchange(mWasPainted, true)) {
        QTimer::singleShot(frameMs, this, [this] {
            growUnlessSized();
            stayOnScreen();
        });
    }
}

/// A size that somebody gave the window stays.
void PrintDialog::growUnlessSized()
{
    // Its layout may have given it more: words that are wrapped at the width that it took need lines.
    if (size() == mGrownSize.expandedTo(minimumSize())) {
        growToContents();
    } else {
        mMiddle->arrange(size()); // what is to stand in it may have changed
    }
}

void PrintDialog::growToContents()
{
    // What scrolls tells of a new size only while it is seen.
    mPanelArea->updateGeometry();
    // The toolkit by itself opens a window at no more than two thirds of the screen.
    const QSize room = screen()->availableSize() - (frameSize() - size());
    mMiddle->arrange(room);
    // A layout tells the one around it by an event of its own, and some may still wait behind whatever called this.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
    mGrownSize = (isVisible() ? size() : QSize()).expandedTo(sizeHint()).boundedTo(room); // nobody else's
    resize(mGrownSize);
    mGrownSize = size();
    stayOnScreen();
}

void PrintDialog::stayOnScreen()
{
    const QRect room = screen()->availableGeometry();
    const QRect frame = frameGeometry();
    const QPoint corner(std::max(std::min(frame.left(), room.right() + 1 - frame.width()), room.left()),
                        std::max(std::min(frame.top(), room.bottom() + 1 - frame.height()), room.top()));
    if (isVisible() && isWindow() && corner != frame.topLeft()) {
        move(corner);
    }
}

void PrintDialog::showNoDestination()
{
    constexpr QSize usualSize(640, 480);
    showWhetherTape();
    mChooserRow->hide();
    mPreview->hide();
    resize(usualSize.boundedTo(screen()->availableSize()));
}

void PrintDialog::followPrinters()
{
    if (mClosed) {
        return;
    }
    setWindowTitle(plainTitle(mPrinters.isOpening() ? tr("%1 – connecting…").arg(heading()) : heading()));
    mPrinterPopUp->setPlaceholderText(mPrinters.isOpening() ? tr("Connecting…") : tr("Choose a printer"));
    const int row = mPrinters.currentRow();
    mPrinterPopUp->setCurrentIndex(row);
    mPrinterPopUp->setToolTip(mPrinterPopUp->itemData(row, Qt::ToolTipRole).toString());
    mPrinterPopUp->setAccessibleDescription(mPrinterPopUp->itemData(row, PrinterModel::AboutRole).toString());
    const bool isUsable = mPrinters.hasOpen() && !mPrinters.isOpening();
    if (!isUsable && !mGreyed.isOn()) {
        mGreyed.greyAllBut({mPrinterPopUp, mNotices, mCancelButton, mPrintButton}, this);
    } else if (isUsable && mGreyed.isOn()) {
        mGreyed.undo();
    }
    mAskAgain->setVisible(mPrinters.wasDeclined());
    mLoadAnew->setVisible(mPrinters.hasNewDescription());
    showWhetherPrintable();
    showNotices();
    if (!isUsable && !mPrinters.isOpening()) {
        Q_EMIT settled();
    }
}

void PrintDialog::showWhetherPrintable()
{
    const bool canPrint = mPrinters.canPrint() && !isPrinting();
    mPrintButton->setEnabled(canPrint);
    mPrintButton->setToolTip(canPrint || isPrinting() ? QString()
                             : mPrinters.isOpening()  ? tr("The printer is still being connected.")
                             : mPrinters.hasOpen()    ? tr("The printer is not there any more.")
                                                      : tr("Choose a printer first."));
}

} // namespace tapeprint::dialog
