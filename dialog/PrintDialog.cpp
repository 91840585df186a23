// SPDX-License-Identifier: Apache-2.0
// The window's printers and pages. Values live in the dialog's objects; the controls only show them.
#include "dialog/PrintDialog.h"

#include "dialog/GatheredAlerts.h"
#include "dialog/JobPage.h"
#include "dialog/LayoutPage.h"
#include "dialog/NoticesArea.h"
#include "dialog/OptionsPage.h"
#include "dialog/PanelArea.h"
#include "dialog/PaperMenu.h"
#include "dialog/PlainText.h"
#include "dialog/PreviewArea.h"
#include "dialog/SummaryView.h"
#include "dialog/TabOrder.h"
#include "dialog/TapeLook.h"
#include "job/PageDrawer.h"
#include "job/PageRanges.h"
#include "job/PlainText.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QScreen>
#include <QSpinBox>
#include <QStackedWidget>
#include <QTimer>
#include <QVBoxLayout>

#include <algorithm>

#include <pdekit/Alert.h>

namespace tapeprint::dialog
{

PrintDialog::PrintDialog(job::Job &job, Panels &panels, Setup setup, PrintAction printAction)
    : mJob(job), mPanels(panels), mSetup(std::move(setup)), mPrintAction(std::move(printAction)), mDesk(mSetup.files),
      mPrinters(mSetup.printers, mSetup.request)
{
    setWindowTitle(plainTitle(heading()));
    setSizeGripEnabled(true);
    mFollowTimer.setSingleShot(true);
    mFollowTimer.setInterval(0);
    mRestTimer.setSingleShot(true);
    mRestTimer.setInterval(0);
    mCountTimer.setSingleShot(true);
    // The printer is opened, in a thread, while the controls are made: for the first of them, the toolkit reads all
    // fonts. The process that draws pages starts beside both.
    mPrinters.start(mJob.destination());
    if (!mSetup.files.isEmpty()) {
        job::PageDrawer::prepare();
    }
    buildControls();
    if (mSetup.showsCommand) {
        addCommandButton();
    }
    connect(&mUnit, &MeasureUnit::notKept, this, [this](const QString &path) {
        say(QMessageBox::Warning,
            tr("The unit holds for this window alone: %1 cannot be written.").arg(job::harmless(path)));
    });
    addHelpButton();
    if (mSetup.takeSettings) {
        askForSettings();
    }
    connectControls();
    connectPrinters();
    if (mPrinters.hasOpen()) {
        showDestination();
    } else {
        showNoDestination();
    }
    followPrinters();
    if (mPrinters.hasOpen()) {
        growToContents();
    }
}

PrintDialog::~PrintDialog() = default;

void PrintDialog::showDestination()
{
    mPrinters.setIsTape(!mPanels.entries().empty());
    mUnit.setDescribed(describedUnit(mJob.ppd(), mJob.tape()));
    showWhetherTape();
    mPapers->fill();
    makePages();
    settlePanels();
    showPages(0);
    mJob.rememberAsOpened();
    mKeepFitting->setChecked(job::layoutChoicesOf(mJob.options()).fitLength); // asked for beforehand
    showPresets();
    follow();
}

void PrintDialog::showNotices()
{
    QStringList own;
    if (!mRefusal.isEmpty()) {
        own.append(mRefusal);
    }
    if (!mOutcome.isEmpty()) {
        own.append(mOutcome);
    }
    // One that is being typed goes into no job, and is told of at its field.
    if (const QString problem = job::pageRangesProblem(mJob.options().value(job::OptionName::pageRanges));
        !problem.isNull()) {
        own.append(problem);
    }
    own += mPrinters.notices() + mPresetRow->notices() + mJob.notices() + mPanels.notices() + mAlerts;
    mNotices->setSentences(own.join(u'\n'));
}

void PrintDialog::showWhetherTape()
{
    // A printer that a panel serves is loaded with tape.
    const bool isTape = !mPanels.entries().empty();
    mTapeLabel->setText(isTape ? tr("&Tape:") : tr("P&aper:"));
    alignLabels();
    mPreview->setIsTapePrinter(isTape);
    mSummary->parentWidget()->setVisible(isTape);             // it is the panels' summary
    mFitControls->setVisible(isTape && !mSetup.takeSettings); // without a document there is nothing to fit to
    mSaveButton->setHasPrinterData(mJob.ppd() != nullptr);
}

void PrintDialog::makePages()
{
    removePages();
    const auto addPage = [this](QWidget *widget, const QString &name, std::optional<std::size_t> panel) {
        mPages->addWidget(widget);
        mPageList.push_back({widget, panel});
        mPageChooser->addItem(name);
    };
    for (std::size_t i = 0; i < mPanels.entries().size(); ++i) {
        const PanelEntry &entry = mPanels.entries()[i];
        addPage(entry.view != nullptr ? entry.view.data() : makeWordsForNoView(), entry.name, i);
    }
    // Without a description nobody lays pages out.
    if (mJob.ppd() != nullptr) {
        mLayoutPage = new LayoutPage(mJob, mPages);
        connect(mLayoutPage, &LayoutPage::picked, this, &PrintDialog::pickOption);
    }
    mJobPage = new JobPage(mJob, mSetup.title, mPages);
    connect(mJobPage, &JobPage::picked, this, &PrintDialog::pickOption);
    connect(mJobPage, &JobPage::dropped, &mJob, &job::Job::dropOption);
    mOptionsPage = new OptionsPage(mJob, mPanels, mUnit, mPages);
    connect(mOptionsPage, &OptionsPage::picked, this, &PrintDialog::pickOption);
    // The last rows are shown, and then count, a little later.
    const auto growSoon = [this] {
        constexpr int shownMs = 50;
        QTimer::singleShot(shownMs, this, &PrintDialog::growUnlessSized);
    };
    connect(mOptionsPage, &OptionsPage::completed, this, growSoon);
    if (mOptionsPage->isWhole()) {
        growSoon();
    }
    // What a printer has of its own comes first: its panels, or where there are none, its options.
    const bool hasPanels = !mPanels.entries().empty();
    if (!hasPanels && !mOptionsPage->isEmpty()) {
        addPage(mOptionsPage, tr("Printer Options"), std::nullopt);
    }
    if (mLayoutPage) {
        addPage(mLayoutPage, tr("Layout"), std::nullopt);
    }
    addPage(mJobPage, tr("Job"), std::nullopt);
    if (hasPanels && !mOptionsPage->isEmpty()) {
        addPage(mOptionsPage, tr("More Options"), std::nullopt);
    }
    if (mOptionsPage->isEmpty()) {
        delete mOptionsPage;
    }
    mChooserRow->setVisible(mPageList.size() > 1);
}

QWidget *PrintDialog::makeWordsForNoView()
{
    return new QLabel(tr("This panel has no view."));
}

/// A panel may have deleted its view while it was seen: the page stays, and says so.
void PrintDialog::replaceLostView()
{
    if (const Page *page = currentPage(); page != nullptr && page->widget == nullptr) {
        QWidget *words = makeWordsForNoView();
        mPageList[static_cast<std::size_t>(mCurrentPage)].widget = words;
        mPages->setCurrentIndex(mPages->addWidget(words));
    }
}

void PrintDialog::showPages(int first)
{
    orderTabsByLayout(*this, mPages);
    assignKeys();
    turnToPage(std::clamp(first, 0, static_cast<int>(mPageList.size()) - 1));
    mPanelArea->updateGeometry();
}

void PrintDialog::settlePanels()
{
    // What a panel makes of the values laid down is known before the person looks at them. An alert has no window to
    // stand over yet; a panel that cannot hand over its values says so when it is to print.
    const GatheredAlerts alerts;
    job::Problem error;
    mPanels.settle(&error);
    mAlerts = alerts.lines();
    mAlertsSeen = pdekit::alertsRun();
    mRefusal.clear();
}

/// The dialog's own pages show the panels' PPD, and go before it.
void PrintDialog::removeOwnPages()
{
    for (const Page &page : mPageList) {
        if (!page.panel) {
            delete page.widget.data();
        }
    }
}

void PrintDialog::removePages()
{
    // A released panel took its view along or left it behind; either is fine.
    for (const Page &page : mPageList) {
        delete page.widget.data();
    }
    mPageList.clear();
    mPageChooser->clear();
    mCurrentPage = -1;
}

void PrintDialog::turnToPage(int index)
{
    mCurrentPage = index;
    mPageChooser->setCurrentIndex(index);
    if (const Page *page = currentPage(); page != nullptr && page->widget != nullptr) {
        mPages->setCurrentWidget(page->widget);
        showCurrentPanel();
    }
    replaceLostView();
    showWhetherHelp();
}

const PrintDialog::Page *PrintDialog::currentPage() const
{
    const auto at = static_cast<std::size_t>(mCurrentPage);
    return mCurrentPage >= 0 && at < mPageList.size() ? &mPageList[at] : nullptr;
}

void PrintDialog::showCurrentPanel()
{
    if (const Page *page = currentPage(); page != nullptr && page->panel) {
        mPanels.show(*page->panel);
    }
}

} // namespace tapeprint::dialog
