// SPDX-License-Identifier: Apache-2.0
// The print dialog's window: a view on a job and its panels.
//
//   PrintDialog
//     ├─ printer, tape, copies      two rows of pop-ups and a field of its own
//     ├─ PresetRow                  beside them: what is saved for the printer
//     ├─ NoticesArea                skipped bundles, options that get lost
//     ├─ page chooser, PanelArea    the panels' views and the dialog's own pages; scrolls
//     ├─ SummaryView, PreviewArea   beside it; the preview grows with the window
//     └─ Revert ... Cancel, Print
#pragma once

#include "dialog/DocumentDesk.h"
#include "dialog/GreyedOut.h"
#include "dialog/MeasureUnit.h"
#include "dialog/Panels.h"
#include "dialog/PresetRow.h"
#include "dialog/PrintRun.h"
#include "dialog/PrinterDesk.h"
#include "dialog/SaveButton.h"
#include "job/Destination.h"
#include "job/Job.h"
#include "job/KeptChoices.h"
#include "job/Printing.h"

#include <QDialog>
#include <QMessageBox>
#include <QPointer>
#include <QTimer>

#include <atomic>
#include <functional>
#include <vector>

class QCheckBox;
class QComboBox;
class QHBoxLayout;
class QLabel;
class QPushButton;
class QSpinBox;
class QStackedWidget;

namespace tapeprint::dialog
{

class AmountLabel;
class ConflictNotice;
class JobPage;
class JobRow;
class LayoutPage;
class MiddleArea;
class NoticesArea;
class OptionsPage;
class PanelArea;
class PaperMenu;
class PreviewArea;
class PrinterPopUp;
class SameWidth;
class ScrollingColumn;
class SummaryView;

class PrintDialog : public QDialog
{
    Q_OBJECT

public:
    /// What the window is opened with.
    struct Setup {
        job::JobRequest request; ///< what was asked for; laid down again when another printer is picked
        QString title;           ///< of the job
        QStringList files;       ///< the documents to show; none when there is no document yet
        PrinterSource printers;  ///< to offer
        QString heading = {};    ///< the window's title; null: that of the job, as what is printed
        /// Where another program prints, and its pages come later: what is done in place of printing when the settings
        /// are final. \param keep keeps them for the next time; called away from the window's thread when the job has
        /// been printed. Null: the window prints.
        std::function<void(const job::SettledJob &job, const std::function<bool()> &keep)> takeSettings = nullptr;
        QString acceptLabel = {}; ///< of the button that does so; empty: Print
        bool showsCommand = true; ///< whether a command could print it: not when the documents have no names
        QString aboutPages = {};  ///< a sentence about the pages that come later; null when there is none
    };
    /// What Print does when the settings are final, away from the window's thread. \param watch its stop flag becomes
    /// true when the person has changed their mind. \return what became of the job; nothing, and a sentence in *error,
    /// when it could not be done and the window stays as it is. Without a sentence it was stopped.
    using PrintAction = std::function<std::optional<job::PrintedJob>(
        const job::SettledJob &job, const job::PrintWatch &watch, job::Problem *error)>;

    /// \param job and \param panels outlive the window. With a destination opened already, the window shows it; else it
    /// opens the one of the request, away from its thread, and can be shown meanwhile. One that has printed and closed
    /// may be shown again, for another job with what stands in it.
    PrintDialog(job::Job &job, Panels &panels, Setup setup, PrintAction printAction);
    ~PrintDialog() override;

    /// Whether the first printer is open, or it is known that there is none to open by itself.
    bool isSettled() const { return !mPrinters.isOpening(); }
    /// What became of the job; nothing when nothing was printed since the window was shown.
    const std::optional<job::PrintedJob> &printed() const { return mRun.printed(); }

    /// Escape: the window closes, or, while a job is laid out and sent, that ends and the window stays. A job that the
    /// server has goes on.
    void reject() override;
    void done(int code) override;

Q_SIGNALS:
    /// isSettled() has become true.
    void settled();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    /// One page of the chooser: a panel's view, or the dialog's own options.
    struct Page {
        QPointer<QWidget> widget;
        std::optional<std::size_t> panel; ///< index of its panel; none for the dialog's own page
    };

    void buildControls();
    QWidget *makeDestinationRows();
    QWidget *makePagesArea();
    ScrollingColumn *makeResultArea();
    QWidget *makeSummary(QWidget *parent);
    QWidget *makeFitControls(QWidget *parent);
    QWidget *makeButtons();
    void connectControls();
    void addCommandButton();
    QString heading() const;
    void askForSettings();
    void showCommand();
    void addHelpButton();
    void showWhetherHelp();

    void connectPrinters();
    void takeDestination(job::Destination destination);
    void followPrinters();
    void showNoDestination();
    void growToContents();
    void growUnlessSized();
    void stayOnScreen();
    void showWhetherPrintable();
    bool isPrinting() const { return mRun.phase() != PrintRun::Phase::Idle; }
    void showDestination();
    void makePages();
    static QWidget *makeWordsForNoView();
    void replaceLostView();
    void showPages(int first);
    void assignKeys();
    void settlePanels();
    void removeOwnPages();
    void removePages();
    void turnToPage(int index);
    const Page *currentPage() const;
    void showCurrentPanel();

    void pickPrinter(int index);
    void pickTape(const QString &tape);
    void pickOption(const QString &key, const QString &choice);
    void pickPage(int index);
    void follow();
    /// Copies that can be asked for where no server has a limit of its own.
    static constexpr int mostCopies = 9999;
    void followCopies();
    void followInThePreview();
    QString whyNoPreview(const job::TapePage &page) const;
    void makeConflictNotice();
    void followConflicts();
    void resolveConflicts();
    /// \return whether there are conflicts and the person is being asked what to do about them.
    /// \param again what is done then, when it is not given up.
    bool asksAboutConflicts(const std::function<void()> &again);
    void revert();
    void remakePanels();
    bool isReadyToPrint();
    bool isAcceptedByPanels();
    bool isAmountAgreed();
    void showAmount();
    void printCounted();
    void save(SaveButton::Kind kind, const QString &path);
    PresetRow *makePresetRow();
    void showPresets();
    QStringList presetNotices() const;
    void pickPreset(const PresetRow::Settings &settings);
    void followInThePresets();
    std::optional<job::JobOptions> optionsToSave();
    std::function<bool()> keepingForNextTime() const;
    void connectPrinting();
    void print();
    void cancel();
    void leaveJob();
    void openAgain();
    void showPrinting();
    void tellJob(const QString &words, int percent);
    void failPrinting(const job::Problem &problem);
    void endPrinting();
    void forgetOutcome();

    job::SettledJob currentJob() const;
    void takeDocuments();
    void fitOnce();
    void fitTape();
    void applyLength(const job::AutomaticLength &length);
    bool mayReplaceTypedLength(double lengthMm);
    void tellProblem(const QString &sentence);
    void say(QMessageBox::Icon icon, const QString &sentence);
    void showNotices();
    void showWhetherTape();
    void alignLabels();
    void fitPanel();
    bool isPage(const QObject *object) const;
    bool isInPanel(const QWidget &widget) const;
    void helpPeople();
    QString whyGrey(const QWidget &off, const QWidget *changed) const;
    QString whyGreyInThePages(const QWidget &off, const QWidget *changed) const;

    job::Job &mJob;
    Panels &mPanels;
    Setup mSetup;
    PrintAction mPrintAction;
    PrintRun mRun;
    QTimer mLeaveTimer; ///< when it ends, a job that only waits its turn keeps the window open no longer
    DocumentDesk mDesk;
    MeasureUnit mUnit; ///< of every length that the dialog itself shows or takes
    bool mClosed = false;
    bool mFitWanted = false;      ///< the person asked for the length, and the documents are still being looked at
    bool mIsFitting = false;      ///< the length is being fitted; a question about it may stand open
    double mFittedLengthMm = 0.0; ///< the length that was worked out last; 0 when none was
    QTimer mFollowTimer;          ///< gathers changes of one event into one look at the job
    QTimer mCountTimer;           ///< runs while what was pressed waits for the pages to be counted
    bool mIsSaving = false;       ///< what runs makes a file
    bool mIsCountedOut = false;   ///< it does not wait any longer
    QTimer mRestTimer;            ///< a change of the views' areas has come to rest when nothing else waits to be done

    PrinterDesk mPrinters;
    job::KeptChoices mKept;
    GreyedOut mGreyed; ///< while no printer is open

    PrinterPopUp *mPrinterPopUp = nullptr;
    QPushButton *mAskAgain = nullptr; ///< among the notices, when a password was declined
    QPushButton *mLoadAnew = nullptr; ///< among the notices, when the printer's PPD has changed
    PresetRow *mPresetRow = nullptr;
    MiddleArea *mMiddle = nullptr;
    SameWidth *mRightColumn = nullptr; ///< what stands right in the rows is as wide as what stands right below them
    QComboBox *mTapePopUp = nullptr;
    PaperMenu *mPapers = nullptr; ///< what the tape's pop-up offers
    QSpinBox *mCopiesField = nullptr;
    QLabel *mPrinterLabel = nullptr;
    QLabel *mTapeLabel = nullptr;
    QLabel *mChooserLabel = nullptr;
    NoticesArea *mNotices = nullptr;
    ConflictNotice *mConflicts = nullptr;
    bool mConflictsAreSeen = false; ///< the person said to print all the same
    QWidget *mChooserRow = nullptr; ///< hidden while there is one page alone
    QComboBox *mPageChooser = nullptr;
    PanelArea *mPanelArea = nullptr;
    QStackedWidget *mPages = nullptr;
    SummaryView *mSummary = nullptr;
    PreviewArea *mPreview = nullptr;
    QWidget *mFitControls = nullptr; ///< for tape alone
    QPushButton *mFitButton = nullptr;
    QCheckBox *mKeepFitting = nullptr;
    QHBoxLayout *mPrinterPlace = nullptr;     ///< the printer's pop-up, and what stands right beside it
    QHBoxLayout *mPresetPlace = nullptr;      ///< right of the printer, for what goes with the whole of a queue
    QHBoxLayout *mMoreButtonsPlace = nullptr; ///< lower left, from Revert on
    QHBoxLayout *mAmountPlace = nullptr;      ///< before Cancel, for what is said beside Print; it gives way first
    AmountLabel *mAmount = nullptr;
    SaveButton *mSaveButton = nullptr;
    QWidget *mIdleRow = nullptr; ///< the buttons beside Cancel and Print; mJobRow stands there while it prints
    JobRow *mJobRow = nullptr;
    QPushButton *mHelpButton = nullptr; ///< there while a panel that has help is in front
    QPushButton *mRevertButton = nullptr;
    QPushButton *mCancelButton = nullptr;
    QPushButton *mPrintButton = nullptr;

    bool mWasPainted = false;
    QSize mGrownSize;    ///< that the window took for its contents; invalid before it did
    QSize mWishedSize;   ///< that a panel gave its view and waits to be fitted; invalid when there is none
    QStringList mAlerts; ///< what panels said of the values that were laid down
    QString mRefusal;    ///< that a panel refused the last time Print was pressed; empty when none did
    QString mOutcome;    ///< what became of the last job, where the person wanted it so; empty else
    int mAlertsSeen = 0; ///< how many alerts had been run by then
    std::vector<Page> mPageList;
    QPointer<OptionsPage> mOptionsPage;
    QPointer<LayoutPage> mLayoutPage;
    QPointer<JobPage> mJobPage;
    int mCurrentPage = -1;
};

} // namespace tapeprint::dialog
