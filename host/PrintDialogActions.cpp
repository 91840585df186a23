// SPDX-License-Identifier: Apache-2.0
// What the window does when the person acts: picks, Revert, Print, Cancel, and the live summary.
#include "host/OptionsPage.h"
#include "host/PanelArea.h"
#include "host/PrintDialog.h"
#include "host/Printing.h"
#include "host/SummaryView.h"
#include "host/TapePreview.h"

#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QSpinBox>
#include <QStackedWidget>

namespace tapeprint
{

void PrintDialog::connectControls()
{
    // "activated" is the person's act alone; setting a control from code sends nothing.
    connect(mPrinterPopUp, &QComboBox::activated, this, &PrintDialog::pickPrinter);
    connect(mTapePopUp, &QComboBox::activated, this,
            [this] { pickOption(OptionName::pageSize, mTapePopUp->currentData().toString()); });
    connect(mCopiesField, &QSpinBox::valueChanged, this, [this](int copies) {
        if (copies != mModel.copies()) {
            mModel.setCopies(copies);
        }
    });
    connect(mPageChooser, &QComboBox::activated, this, &PrintDialog::pickPage);
    connect(mRevertButton, &QPushButton::clicked, this, &PrintDialog::revert);
    connect(mCancelButton, &QPushButton::clicked, this, &PrintDialog::reject);
    connect(mPrintButton, &QPushButton::clicked, this, &PrintDialog::print);

    connect(&mFollowTimer, &QTimer::timeout, this, &PrintDialog::follow);
    connect(&mModel, &DialogModel::jobChanged, this, [this] { mFollowTimer.start(); });
    connect(&mModel, &DialogModel::panelResized, this, [this] {
        mPages->updateGeometry();
        mPanelArea->updateGeometry();
    });
    // Not every act in a panel sends a choice at once, but its summary changes: the summary is read again after it.
    QApplication::instance()->installEventFilter(this);
}

bool PrintDialog::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::KeyRelease:
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
    const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    const QWidget *focus = focusWidget();
    const bool isEditing =
        qobject_cast<const QLineEdit *>(focus) != nullptr || qobject_cast<const QAbstractSpinBox *>(focus) != nullptr;
    // In a field, Return ends the editing and no more: tape is not printed by accident.
    if (isReturn && isEditing) {
        event->accept();
        return;
    }
    QDialog::keyPressEvent(event);
}

void PrintDialog::pickPrinter(int index)
{
    if (index == mCurrentPrinter) {
        return;
    }
    const QStringList name = mPrinterPopUp->itemData(index).toString().split(u'/');
    QString error;
    std::optional<Destination> destination = name.value(0).isEmpty()
                                                 ? openDestination(mLine, &error)
                                                 : openDestination(name.value(0), name.value(1), &error);
    if (!destination) {
        mPrinterPopUp->setCurrentIndex(mCurrentPrinter);
        tellProblem(error);
        return;
    }
    mCurrentPrinter = index;
    // The old page goes before the panel and the PPD that it shows.
    delete mOptionsPage;
    mModel.open(std::move(*destination), mLine.options);
    showDestination();
}

void PrintDialog::pickOption(const QString &key, const QString &choice)
{
    mModel.changeOption(key, choice);
    showCurrentPanel();
}

void PrintDialog::pickPage(int index)
{
    const auto current = static_cast<std::size_t>(mCurrentPage);
    const bool isPanel = mCurrentPage >= 0 && current < mModel.panels().size();
    if (isPanel && index != mCurrentPage && !mModel.panels()[current].panel->shouldHide()) {
        mPageChooser->setCurrentIndex(mCurrentPage);
        return;
    }
    showPage(index);
}

void PrintDialog::follow()
{
    if (mClosed) {
        return;
    }
    mSummary->show(mModel.summary());
    mPreview->follow(mModel.pageFormat().paper, mModel.job());
    mPreview->setVisible(mModel.pageFormat().paper.has_value());
    selectChoice(mTapePopUp, markedChoice(mModel.ppd(), OptionName::pageSize));
    mCopiesField->setValue(mModel.copies());
    if (mOptionsPage) {
        mOptionsPage->follow();
    }
}

void PrintDialog::revert()
{
    QString error;
    if (!mModel.revert(&error)) {
        tellProblem(error);
    }
    follow();
}

void PrintDialog::print()
{
    QString error;
    if (!mModel.saveValues(&error)) {
        tellProblem(error);
        return;
    }
    // A panel that refuses has told the person why; the dialog stays as it is.
    if (!mModel.shouldPrint(&error)) {
        follow();
        return;
    }
    QApplication::setOverrideCursor(Qt::WaitCursor);
    std::optional<PrintedJob> printed = printJob(mModel, mLine, mDocuments, &error);
    QApplication::restoreOverrideCursor();
    if (!printed) {
        tellProblem(error);
        return;
    }
    mPrinted = std::move(printed);
    QMessageBox::information(this, windowTitle(), result());
    accept();
}

void PrintDialog::done(int code)
{
    if (!mClosed) {
        mClosed = true;
        QApplication::instance()->removeEventFilter(this);
        mModel.windowWillClose(code == Accepted);
    }
    QDialog::done(code);
}

void PrintDialog::tellProblem(const QString &sentence)
{
    QMessageBox::critical(this, windowTitle(), sentence);
}

} // namespace tapeprint
