// SPDX-License-Identifier: Apache-2.0
// The print dialog's window: a view on the dialog's objects.
//
//   PrintDialog
//     ├─ printer, tape, copies      pop-ups and a field of its own
//     ├─ notices                    skipped bundles, options that get lost
//     ├─ panel chooser
//     ├─ panel area (scrolls)       the panels' views, and the page of other options
//     ├─ SummaryView, TapePreview
//     └─ Revert, Cancel, Print
#pragma once

#include "host/CommandLine.h"
#include "host/DialogModel.h"
#include "host/DocumentSpool.h"
#include "host/Printing.h"

#include <QDialog>
#include <QPointer>
#include <QTimer>

#include <vector>

class QComboBox;
class QLabel;
class QPushButton;
class QSpinBox;
class QStackedWidget;

namespace tapeprint
{

class OptionsPage;
class PanelArea;
class SummaryView;
class TapePreview;

class PrintDialog : public QDialog
{
    Q_OBJECT

public:
    /// \param model the dialog's objects with a destination opened; \param line what was asked for;
    /// \param documents what is to be printed; \param queues the queues to offer. All outlive the window.
    PrintDialog(DialogModel &model, const CommandLine &line, const DocumentSpool &documents,
                std::vector<PrintQueue> queues);
    ~PrintDialog() override;

    /// What became of the job, in the language of the moment; null when nothing was printed.
    QString result() const { return mPrinted ? mPrinted->sentence() : QString(); }

    void done(int code) override;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void buildControls();
    QWidget *makeDestinationControls();
    QWidget *makePanelArea();
    QWidget *makeSummaryArea();
    QWidget *makeButtons();
    void connectControls();

    void fillPrinters();
    void showDestination();
    void showTapes();
    void showPages();
    void orderByTab();
    void removePages();
    void showPage(int index);
    void showCurrentPanel();

    void pickPrinter(int index);
    void pickOption(const QString &key, const QString &choice);
    void pickPage(int index);
    void follow();
    void revert();
    void print();
    void tellProblem(const QString &sentence);

    DialogModel &mModel;
    const CommandLine &mLine;
    const DocumentSpool &mDocuments;
    std::vector<PrintQueue> mQueues;
    std::optional<PrintedJob> mPrinted;
    bool mClosed = false;
    QTimer mFollowTimer; ///< gathers changes of one event into one look at the job

    QComboBox *mPrinterPopUp = nullptr;
    QComboBox *mTapePopUp = nullptr;
    QSpinBox *mCopiesField = nullptr;
    QLabel *mNotices = nullptr;
    QComboBox *mPageChooser = nullptr;
    PanelArea *mPanelArea = nullptr;
    QStackedWidget *mPages = nullptr;
    SummaryView *mSummary = nullptr;
    TapePreview *mPreview = nullptr;
    QPushButton *mRevertButton = nullptr;
    QPushButton *mCancelButton = nullptr;
    QPushButton *mPrintButton = nullptr;

    std::vector<QPointer<QWidget>> mPageWidgets; ///< one a page of the chooser, the panels' first
    QPointer<OptionsPage> mOptionsPage;
    int mCurrentPrinter = 0;
    int mCurrentPage = -1;
};

} // namespace tapeprint
