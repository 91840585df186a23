// SPDX-License-Identifier: Apache-2.0
// The pages "Job" and "Layout" of the window, the amount beside Print, and saving, with real clicks and keys.
#include "Hands.h"
#include "TestPdf.h"
#include "TestPrinter.h"

#include "dialog/PreviewArea.h"
#include "dialog/PrintDialog.h"
#include "job/LaidOutDocument.h"
#include "tests/support/TextPrinting.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QSpinBox>
#include <QTest>
#include <QThread>
#include <QTimeEdit>
#include <QTimer>
#include <QToolButton>

#include <gtest/gtest.h>

#include <atomic>
#include <cmath>
#include <functional>

namespace
{

using namespace tapeprint;
using namespace tapeprint::dialog;
using hosttest::PdfPage;

constexpr int patienceMs = 20000;

/// Does something with each dialog that opens over the window, as a person would.
class OverTheWindow
{
public:
    explicit OverTheWindow(std::function<void(QWidget *)> act)
    {
        constexpr int tickMs = 100; // long enough for a dialog to settle
        QObject::connect(&mTimer, &QTimer::timeout, &mTimer, [this, act = std::move(act)] {
            QWidget *modal = QApplication::activeModalWidget();
            if (modal != nullptr && qobject_cast<PrintDialog *>(modal) == nullptr) {
                ++count;
                act(modal);
            }
        });
        mTimer.start(tickMs);
    }

    int count = 0;

private:
    QTimer mTimer;
};

/// Types a file's name into a file dialog and saves. What is typed once stays, and proposals are put away.
void nameFile(QWidget *dialog, const QString &path)
{
    auto *name = dialog->findChild<QLineEdit *>(u"fileNameEdit"_qs);
    ASSERT_NE(name, nullptr);
    if (name->text() != path) {
        name->selectAll();
        QTest::keyClicks(name, path);
    }
    if (QWidget *proposals = QApplication::activePopupWidget()) {
        proposals->close();
    }
    auto *buttons = dialog->findChild<QDialogButtonBox *>();
    ASSERT_NE(buttons, nullptr);
    QTest::mouseClick(buttons->button(QDialogButtonBox::Save), Qt::LeftButton);
}

class JobPageTest : public testing::Test
{
protected:
    /// \param isTape the sample printer that counts in millimetres, or the one for paper.
    void open(int pages, bool isTape = true, const job::JobOptions &asked = {}, bool hasQueue = true)
    {
        QList<PdfPage> all;
        for (int page = 0; page < pages; ++page) {
            all.append(PdfPage{"/MediaBox[0 0 144 36]", "0 0 72 18 re f"});
        }
        files = {hosttest::writeFile(folder, u"label.pdf"_qs, hosttest::pdf(all))};
        openFiles(isTape ? u"mm"_qs : u"plain"_qs, asked, hasQueue);
    }

    /// \param printer a sample printer; null: a queue without a description.
    void openFiles(const QString &printer, const job::JobOptions &asked = {}, bool hasQueue = true)
    {
        job::Destination destination;
        if (!printer.isNull()) {
            destination.ppdPath = QStringLiteral(TAPEPRINT_PRINTER_DIR "/tapeprint-%1.ppd").arg(printer);
            job::Problem error;
            destination.ppd = job::openPpdFile(destination.ppdPath, &error);
            ASSERT_NE(destination.ppd, nullptr) << error.sentence.toStdString();
        }
        if (hasQueue) {
            destination.queue = job::PrintQueue();
            destination.queue->name = u"Queue"_qs;
            destination.queue->limits = limits;
        }
        panels.open(std::move(destination), asked);
        dialog = std::make_unique<PrintDialog>(
            printJob, panels, PrintDialog::Setup{{}, u"label.pdf"_qs, files, {}},
            [this](const job::SettledJob &job, const job::PrintWatch &watch, job::Problem *problem) {
                settled = job;
                while (isHeld && !watch.stop) {
                    QThread::msleep(5);
                }
                if (!job.pdfPath.isEmpty()) {
                    return job::printJob(job, u"label.pdf"_qs, files, watch, problem);
                }
                return std::optional<job::PrintedJob>();
            });
        dialog->show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(dialog.get()));
        ASSERT_TRUE(
            QTest::qWaitFor([this] { return !child<PreviewArea>(u"previewArea"_qs)->isWorking(); }, patienceMs));
        QApplication::processEvents();
    }

    template <typename Widget>
    Widget *child(const QString &name)
    {
        return hosttest::child<Widget>(*dialog, name);
    }

    void turnTo(const QString &page)
    {
        auto *chooser = child<QComboBox>(u"pageChooser"_qs);
        chooser->setFocus();
        QTest::keyClick(chooser, Qt::Key_Home);
        for (int i = 0; i < chooser->count() && chooser->currentText() != page; ++i) {
            QTest::keyClick(chooser, Qt::Key_Down);
            QApplication::processEvents();
        }
        ASSERT_EQ(chooser->currentText(), page);
    }

    void type(const QString &field, const QString &text)
    {
        auto *edit = child<QLineEdit>(field);
        edit->setFocus();
        edit->selectAll();
        if (text.isEmpty()) {
            QTest::keyClick(edit, Qt::Key_Delete);
        } else {
            QTest::keyClicks(edit, text);
        }
        QApplication::processEvents();
    }

    void pickByKeys(const QString &popUp, const QString &item)
    {
        auto *box = child<QComboBox>(popUp);
        ASSERT_GE(box->findText(item), 0) << item.toStdString();
        box->setFocus();
        QTest::keyClick(box, Qt::Key_Home);
        for (int i = 0; i < box->count() && box->currentText() != item; ++i) {
            QTest::keyClick(box, Qt::Key_Down);
        }
        ASSERT_EQ(box->currentText(), item);
        QApplication::processEvents();
    }

    void tick(const QString &box)
    {
        QTest::keyClick(child<QCheckBox>(box), Qt::Key_Space);
        QApplication::processEvents();
    }

    void clickPrint()
    {
        QTest::mouseClick(child<QPushButton>(u"print"_qs), Qt::LeftButton);
        QTest::qWait(50);
    }

    /// Opens the menu beside Print and takes the item that a key leads to.
    void pickFromSaveMenu(Qt::Key towards)
    {
        auto *save = child<QToolButton>(u"save"_qs);
        QTimer whenOpen;
        QObject::connect(&whenOpen, &QTimer::timeout, save, [&whenOpen, save, towards] {
            if (QApplication::activePopupWidget() == save->menu()) {
                whenOpen.stop();
                QTest::keyClick(save->menu(), towards);
                QTest::keyClick(save->menu(), Qt::Key_Return);
            }
        });
        whenOpen.start(20);
        QTest::mouseClick(save, Qt::LeftButton);
    }

    QStringList itemsOf(const QString &popUp)
    {
        QStringList items;
        for (int i = 0; i < child<QComboBox>(popUp)->count(); ++i) {
            items.append(child<QComboBox>(popUp)->itemText(i));
        }
        return items;
    }

    QString option(const QString &name) { return printJob.options().value(name); }
    bool saysAmount(const QString &words)
    {
        return QTest::qWaitFor([&] { return child<QLabel>(u"amount"_qs)->text() == words; }, patienceMs);
    }
    std::size_t labels() { return child<PreviewArea>(u"previewArea"_qs)->plan().labels.size(); }

    QTemporaryDir folder;
    QStringList files;
    job::Job printJob;
    Panels panels{printJob, {QStringLiteral(TAPEPRINT_BUNDLE_DIR)}};
    std::unique_ptr<PrintDialog> dialog;
    job::ServerLimits limits;               ///< of the queue
    std::optional<job::SettledJob> settled; ///< what Print did last
    std::atomic<bool> isHeld = false;       ///< whether printing lasts
};

TEST_F(JobPageTest, PrinterWithoutADescription_IsOfferedWhatWorksThereAndSaysWhyThereIsNoPreview)
{
    files = {
        hosttest::writeFile(folder, u"label.pdf"_qs, hosttest::pdf(QList<PdfPage>{{"/MediaBox[0 0 144 36]", {}}}))};
    ASSERT_NO_FATAL_FAILURE(openFiles({}));
    const auto *chooser = child<QComboBox>(u"pageChooser"_qs);
    ASSERT_EQ(chooser->count(), 1);
    EXPECT_EQ(chooser->itemText(0), u"Job"_qs);
    EXPECT_EQ(dialog->findChild<QComboBox *>(u"layoutSize"_qs), nullptr);
    EXPECT_EQ(dialog->findChild<QLineEdit *>(u"pageRanges"_qs), nullptr);
    EXPECT_EQ(dialog->findChild<QCheckBox *>(u"reverse"_qs), nullptr);
    EXPECT_NE(dialog->findChild<QSpinBox *>(u"jobPriority"_qs), nullptr);
    const auto *words = child<QLabel>(u"previewMessages"_qs);
    EXPECT_TRUE(words->isVisible());
    EXPECT_EQ(words->text(),
              u"This printer has no description: what is printed is handed to it as it is. So there is no "
              "preview, and nobody knows how many pages come out."_qs);
    EXPECT_FALSE(child<QWidget>(u"tapePreview"_qs)->isVisible());
    EXPECT_EQ(child<QLabel>(u"amount"_qs)->text(), u"Amount not known"_qs);
    EXPECT_TRUE(child<QLabel>(u"amount"_qs)->toolTip().contains(u"handed to it as it is"_qs));
    clickPrint();
    EXPECT_TRUE(settled);
}

TEST_F(JobPageTest, PictureAndTextOnPaper_AreShownAndCounted)
{
    QImage picture(200, 100, QImage::Format_RGB32);
    picture.fill(Qt::red);
    ASSERT_TRUE(picture.save(folder.filePath(u"picture.png"_qs)));
    QByteArray lines;
    for (int line = 1; line <= 50; ++line) {
        lines += QByteArray::number(line) + '\n';
    }
    files = {folder.filePath(u"picture.png"_qs), hosttest::writeFile(folder, u"lines.txt"_qs, lines)};
    ASSERT_NO_FATAL_FAILURE(openFiles(u"plain"_qs));
    // 24 by 100 mm hold 23 lines, six to an inch: 50 take three sheets.
    EXPECT_TRUE(saysAmount(u"4 sheet(s)"_qs)) << child<QLabel>(u"amount"_qs)->text().toStdString();
    EXPECT_FALSE(child<QLabel>(u"previewMessages"_qs)->isVisible());
    // The filters leave a picture alone when pages share a sheet.
    turnTo(u"Layout"_qs);
    pickByKeys(u"layoutNumber"_qs, u"4"_qs);
    EXPECT_TRUE(saysAmount(u"2 sheet(s)"_qs)) << child<QLabel>(u"amount"_qs)->text().toStdString();
    const std::vector<job::Label> &sheets = child<PreviewArea>(u"previewArea"_qs)->plan().labels;
    ASSERT_EQ(sheets.size(), 2U);
    const auto scaleOf = [](const job::Label &sheet) { return std::hypot(sheet[0].place.m11(), sheet[0].place.m12()); };
    EXPECT_GT(scaleOf(sheets[0]), 0.6);
    EXPECT_LT(scaleOf(sheets[1]), 0.6); // a quarter of the sheet has half its sides
}

TEST_F(JobPageTest, FileThatNobodyHereKnows_IsSaidToGoAsItIs)
{
    files = {hosttest::writeFile(folder, u"drawing.bin"_qs, QByteArray("\0\1\2\3 bytes", 10))};
    ASSERT_NO_FATAL_FAILURE(openFiles(u"plain"_qs));
    EXPECT_EQ(child<QLabel>(u"previewMessages"_qs)->text(),
              u"There is no preview: "_qs + files.first() +
                  u" is handed to the print server as it is, which may know what to make of it."_qs);
    EXPECT_TRUE(saysAmount(u"Amount not known"_qs));
    clickPrint();
    EXPECT_TRUE(settled);
}

TEST_F(JobPageTest, WhatIsToldOfAJob_TakesNoRoomFromThePages)
{
    open(1);
    const auto *area = child<QWidget>(u"previewArea"_qs);
    auto *row = child<QLabel>(u"jobWords"_qs);
    const QRect before = area->geometry();
    const QSize window = dialog->size();
    const int buttonsAt = child<QPushButton>(u"print"_qs)->mapTo(dialog.get(), QPoint()).y();
    isHeld = true;
    clickPrint();
    ASSERT_TRUE(QTest::qWaitFor([row] { return row->isVisible() && !row->text().isEmpty(); }, patienceMs));
    QApplication::processEvents();
    EXPECT_EQ(area->geometry(), before);
    EXPECT_EQ(dialog->size(), window);
    EXPECT_EQ(child<QPushButton>(u"print"_qs)->mapTo(dialog.get(), QPoint()).y(), buttonsAt);
    isHeld = false;
    ASSERT_TRUE(QTest::qWaitFor([this] { return child<QPushButton>(u"revert"_qs)->isVisible(); }, patienceMs));
}

TEST_F(JobPageTest, WhatWasToldOfAJobAtLength_LeavesThePagesTheirRoomAfterIt)
{
    open(1);
    dialog->resize(dialog->minimumSizeHint());
    QApplication::processEvents();
    const auto *area = child<QWidget>(u"previewArea"_qs);
    const QSize before = area->size();
    const int least = dialog->minimumSizeHint().height();
    isHeld = true;
    clickPrint();
    auto *words = child<QLabel>(u"jobWords"_qs);
    ASSERT_TRUE(QTest::qWaitFor([words] { return words->isVisible(); }, patienceMs));
    const int withFewWords = dialog->minimumSizeHint().height();
    words->setText(
        QString(u"The tape is jammed in the cutter. "_qs).repeated(12)); // as long as a driver's words may be
    EXPECT_TRUE(QTest::qWaitFor([words] { return words->height() > 2 * words->fontMetrics().height(); }, patienceMs))
        << words->text().toStdString() << words->width() << ' ' << dialog->height() << ' '
        << dialog->minimumSizeHint().height();
    isHeld = false;
    ASSERT_TRUE(QTest::qWaitFor([this] { return child<QPushButton>(u"revert"_qs)->isVisible(); }, patienceMs));
    QApplication::processEvents();
    EXPECT_EQ(area->size(), before);
    EXPECT_EQ(dialog->minimumSizeHint().height(), least);
    EXPECT_LE(withFewWords, least);
}

TEST_F(JobPageTest, TypedTitle_IsTheJobsAndNoneIsTheDocuments)
{
    open(1);
    turnTo(u"Job"_qs);
    EXPECT_EQ(child<QLineEdit>(u"jobTitle"_qs)->placeholderText(), u"label.pdf"_qs);
    type(u"jobTitle"_qs, u"My labels"_qs);
    EXPECT_EQ(option(u"job-name"_qs), u"My labels"_qs);
    clickPrint();
    ASSERT_TRUE(settled);
    EXPECT_EQ(settled->title(u"label.pdf"_qs), u"My labels"_qs);
    type(u"jobTitle"_qs, {});
    EXPECT_FALSE(printJob.options().contains(u"job-name"_qs));
}

TEST_F(JobPageTest, TypedPages_AreShownInThePreviewAndTheAmount)
{
    open(9);
    turnTo(u"Job"_qs);
    type(u"pageRanges"_qs, u"7, 1-3"_qs);
    EXPECT_EQ(option(u"page-ranges"_qs), u"1-3,7"_qs);
    EXPECT_EQ(child<QLineEdit>(u"pageRanges"_qs)->text(), u"7, 1-3"_qs); // as it was typed
    EXPECT_TRUE(saysAmount(u"4 label(s), 40.0 cm of tape"_qs));
    std::uint32_t last = 0;
    EXPECT_EQ(pdekit::PMGetLastPage(&printJob.settings(), &last), 0);
    EXPECT_EQ(last, 7U);
    type(u"pageRanges"_qs, {});
    EXPECT_FALSE(printJob.options().contains(u"page-ranges"_qs));
    EXPECT_NE(pdekit::PMGetLastPage(&printJob.settings(), &last), 0);
    type(u"pageRanges"_qs, u"12"_qs);
    EXPECT_TRUE(saysAmount(u"No page is chosen"_qs));
}

TEST_F(JobPageTest, PagesThatAreNoList_AreSaidAtTheFieldAndNotPrinted)
{
    open(9);
    turnTo(u"Job"_qs);
    auto *problem = child<QLabel>(u"pageRangesProblem"_qs);
    EXPECT_FALSE(problem->isVisible());
    type(u"pageRanges"_qs, u"3-1"_qs);
    EXPECT_TRUE(problem->isVisible());
    EXPECT_EQ(problem->text(), u"The pages 3-1 run backwards: write 1-3."_qs);
    turnTo(u"Page Settings"_qs);
    clickPrint();
    EXPECT_FALSE(settled);
    EXPECT_TRUE(child<QLineEdit>(u"pageRanges"_qs)->isVisible());
    EXPECT_TRUE(child<QLineEdit>(u"pageRanges"_qs)->hasFocus());
    type(u"pageRanges"_qs, u"1-3"_qs);
    EXPECT_FALSE(problem->isVisible());
    clickPrint();
    EXPECT_TRUE(settled);
}

TEST_F(JobPageTest, WhatIsSaidOfPages_TakesOneLine)
{
    open(1, false);
    turnTo(u"Job"_qs);
    const auto *problem = child<QLabel>(u"pageRangesProblem"_qs);
    const QWidget *scroller = problem;
    while (qobject_cast<const QScrollArea *>(scroller) == nullptr) {
        scroller = scroller->parentWidget();
        ASSERT_NE(scroller, nullptr);
    }
    const auto *bar = qobject_cast<const QScrollArea *>(scroller)->verticalScrollBar();
    const int line = 2 * problem->fontMetrics().lineSpacing(); // with what the layout leaves around it
    dialog->resize(dialog->size() + QSize(0, line));
    QApplication::processEvents();
    ASSERT_EQ(bar->maximum(), 0);
    type(u"pageRanges"_qs, QString(100, u'a'));
    QApplication::processEvents();
    EXPECT_TRUE(problem->isVisible());
    EXPECT_EQ(bar->maximum(), 0);
}

TEST_F(JobPageTest, PagesThatWereHandedInAndAreNoList_AreSaidBeforePrintIsPressed)
{
    open(9, true, hosttest::options({{u"page-ranges"_qs, u"6-4"_qs}}));
    const QString backwards = u"The pages 6-4 run backwards: write 4-6."_qs;
    const auto *notices = child<QLabel>(u"notices"_qs);
    EXPECT_TRUE(notices->text().contains(backwards)) << notices->text().toStdString();
    turnTo(u"Job"_qs);
    EXPECT_EQ(child<QLineEdit>(u"pageRanges"_qs)->text(), u"6-4"_qs);
    auto *problem = child<QLabel>(u"pageRangesProblem"_qs);
    EXPECT_TRUE(problem->isVisible());
    EXPECT_EQ(problem->text(), backwards);
    clickPrint();
    EXPECT_FALSE(settled);
    type(u"pageRanges"_qs, u"4-6"_qs);
    EXPECT_FALSE(problem->isVisible());
    EXPECT_EQ(notices->text(), QString());
    EXPECT_EQ(option(u"page-ranges"_qs), u"4-6"_qs);
    clickPrint();
    EXPECT_TRUE(settled);
}

TEST_F(JobPageTest, OddReverseAndCollate_GoByTheNamesOfCups)
{
    open(9);
    turnTo(u"Job"_qs);
    pickByKeys(u"pageSet"_qs, u"Odd only"_qs);
    EXPECT_EQ(option(u"page-set"_qs), u"odd"_qs);
    EXPECT_EQ(labels(), 5U);
    tick(u"reverse"_qs);
    EXPECT_EQ(option(u"outputorder"_qs), u"reverse"_qs);
    EXPECT_EQ(child<PreviewArea>(u"previewArea"_qs)->plan().labels.front().front().page, 8);
    tick(u"collate"_qs);
    EXPECT_EQ(option(u"collate"_qs), u"True"_qs);
    tick(u"collate"_qs);
    EXPECT_EQ(option(u"collate"_qs), u"False"_qs);
    tick(u"reverse"_qs);
    pickByKeys(u"pageSet"_qs, u"Odd and even"_qs);
    EXPECT_FALSE(printJob.options().contains(u"page-set"_qs));
}

TEST_F(JobPageTest, PriorityHoldAndBilling_GoByTheNamesOfCups)
{
    open(1);
    turnTo(u"Job"_qs);
    auto *priority = child<QSpinBox>(u"jobPriority"_qs);
    EXPECT_EQ(priority->value(), 50);
    EXPECT_FALSE(printJob.options().contains(u"job-priority"_qs));
    priority->setFocus();
    QTest::keyClick(priority, Qt::Key_Up);
    EXPECT_EQ(option(u"job-priority"_qs), u"51"_qs);
    pickByKeys(u"holdUntil"_qs, u"At night"_qs);
    EXPECT_EQ(option(u"job-hold-until"_qs), u"night"_qs);
    EXPECT_FALSE(child<QTimeEdit>(u"holdTime"_qs)->isVisible());
    type(u"jobBilling"_qs, u"Dept. 7"_qs);
    EXPECT_EQ(option(u"job-billing"_qs), u"Dept. 7"_qs);
    pickByKeys(u"holdUntil"_qs, u"At once"_qs);
    EXPECT_FALSE(printJob.options().contains(u"job-hold-until"_qs));
}

TEST_F(JobPageTest, TimeOfPrinting_IsSentInUtcAndShownAsTheClockHasIt)
{
    qputenv("TZ", "XYZ-02");
    tzset();
    open(1, true, hosttest::options({{u"job-hold-until"_qs, u"10:30"_qs}}));
    turnTo(u"Job"_qs);
    auto *time = child<QTimeEdit>(u"holdTime"_qs);
    EXPECT_TRUE(time->isVisible());
    EXPECT_EQ(time->time(), QTime(12, 30));
    time->setFocus();
    QTest::keyClick(time, Qt::Key_Home);
    QTest::keyClick(time, Qt::Key_Up); // the hour
    EXPECT_EQ(option(u"job-hold-until"_qs), u"11:30"_qs);
    qunsetenv("TZ");
    tzset();
}

TEST_F(JobPageTest, WithoutAQueue_WhatIsTheServersIsNotOffered)
{
    open(1, true, {}, false);
    EXPECT_EQ(dialog->findChild<QWidget *>(u"jobPriority"_qs), nullptr);
    EXPECT_EQ(dialog->findChild<QWidget *>(u"holdUntil"_qs), nullptr);
    EXPECT_NE(dialog->findChild<QWidget *>(u"collate"_qs), nullptr);
}

TEST_F(JobPageTest, WhatWasAskedFor_IsShown)
{
    open(9, true,
         hosttest::options({{u"job-name"_qs, u"T"_qs},
                            {u"page-ranges"_qs, u"2-"_qs},
                            {u"page-set"_qs, u"even"_qs},
                            {u"OutputOrder"_qs, u"Reverse"_qs},
                            {u"multiple-document-handling"_qs, u"separate-documents-collated-copies"_qs},
                            {u"job-priority"_qs, u"80"_qs},
                            {u"job-hold-until"_qs, u"weekend"_qs},
                            {u"job-billing"_qs, u"B"_qs}}));
    EXPECT_EQ(child<QLineEdit>(u"jobTitle"_qs)->text(), u"T"_qs);
    EXPECT_EQ(child<QLineEdit>(u"pageRanges"_qs)->text(), u"2-"_qs);
    EXPECT_EQ(child<QComboBox>(u"pageSet"_qs)->currentText(), u"Even only"_qs);
    EXPECT_TRUE(child<QCheckBox>(u"reverse"_qs)->isChecked());
    EXPECT_TRUE(child<QCheckBox>(u"collate"_qs)->isChecked());
    EXPECT_EQ(child<QSpinBox>(u"jobPriority"_qs)->value(), 80);
    EXPECT_EQ(child<QComboBox>(u"holdUntil"_qs)->currentText(), u"At the weekend"_qs);
    EXPECT_EQ(child<QLineEdit>(u"jobBilling"_qs)->text(), u"B"_qs);
}

TEST_F(JobPageTest, Revert_BringsThePageBack)
{
    open(9);
    const QStringList before = printJob.options().lines();
    turnTo(u"Job"_qs);
    type(u"pageRanges"_qs, u"2-3"_qs);
    type(u"jobTitle"_qs, u"Other"_qs);
    tick(u"reverse"_qs);
    QTest::mouseClick(child<QPushButton>(u"revert"_qs), Qt::LeftButton);
    QApplication::processEvents();
    EXPECT_EQ(printJob.options().lines(), before);
    EXPECT_TRUE(child<QLineEdit>(u"pageRanges"_qs)->text().isEmpty());
    EXPECT_TRUE(child<QLineEdit>(u"jobTitle"_qs)->text().isEmpty());
    EXPECT_FALSE(child<QCheckBox>(u"reverse"_qs)->isChecked());
    EXPECT_EQ(labels(), 9U);
}

TEST_F(JobPageTest, LayoutOfTape_HasPlacesAndSeveralPagesALabel)
{
    open(4);
    turnTo(u"Layout"_qs);
    EXPECT_NE(dialog->findChild<QComboBox *>(u"layoutAlong"_qs), nullptr);
    EXPECT_EQ(dialog->findChild<QComboBox *>(u"layoutBorder"_qs), nullptr);
    EXPECT_FALSE(child<QComboBox>(u"layoutOrder"_qs)->isEnabled());
    pickByKeys(u"layoutNumber"_qs, u"2"_qs);
    EXPECT_EQ(option(u"number-up"_qs), u"2"_qs);
    EXPECT_EQ(labels(), 2U);
    // Pages that lie along the tape are read from its left end, which is the far end of the standing label.
    const job::Label &label = child<PreviewArea>(u"previewArea"_qs)->plan().labels.front();
    EXPECT_GT(label.at(0).clip.top(), label.at(1).clip.top());
    pickByKeys(u"layoutOrder"_qs, u"Right to left, then down"_qs);
    EXPECT_EQ(option(u"number-up-layout"_qs), u"rltb"_qs);
    const job::Label &other = child<PreviewArea>(u"previewArea"_qs)->plan().labels.front();
    EXPECT_LT(other.at(0).clip.top(), other.at(1).clip.top());
}

TEST_F(JobPageTest, PagesOnASheetOfPaper_AreAsManyAsTheServerTakes)
{
    limits.pagesASheet = {1, 2, 4, 9};
    open(4, false);
    EXPECT_EQ(itemsOf(u"layoutNumber"_qs), (QStringList{u"1"_qs, u"2"_qs, u"4"_qs, u"9"_qs}));
}

TEST_F(JobPageTest, PagesOnALabel_AreNoMatterOfTheServer)
{
    limits.pagesASheet = {1, 2, 4, 9};
    open(4);
    EXPECT_TRUE(itemsOf(u"layoutNumber"_qs).contains(u"3"_qs));
}

TEST_F(JobPageTest, LayoutOfPaper_HasWhatTheFiltersHonour)
{
    open(4, false);
    turnTo(u"Layout"_qs);
    EXPECT_EQ(dialog->findChild<QComboBox *>(u"layoutAlong"_qs), nullptr);
    pickByKeys(u"layoutSize"_qs, u"Original size"_qs);
    EXPECT_EQ(option(u"print-scaling"_qs), u"none"_qs);
    pickByKeys(u"layoutTurn"_qs, u"Turned to the left"_qs);
    EXPECT_EQ(option(u"orientation-requested"_qs), u"4"_qs);
    pickByKeys(u"layoutTurn"_qs, u"As it fits best"_qs);
    pickByKeys(u"layoutNumber"_qs, u"4"_qs);
    pickByKeys(u"layoutBorder"_qs, u"Single line"_qs);
    EXPECT_EQ(option(u"page-border"_qs), u"single"_qs);
    EXPECT_TRUE(saysAmount(u"1 sheet(s)"_qs));
    clickPrint();
    ASSERT_TRUE(settled);
    const QStringList carried = settled->carried().lines();
    EXPECT_TRUE(carried.contains(u"print-scaling=none"_qs));
    EXPECT_TRUE(carried.contains(u"number-up=4"_qs));
    EXPECT_FALSE(carried.join(u' ').contains(u"orientation-requested"_qs)) << carried.join(u' ').toStdString();
}

TEST_F(JobPageTest, AmountBesidePrint_FollowsCopiesAndUnit)
{
    open(3); // of the sample printer's 100 mm
    EXPECT_TRUE(saysAmount(u"3 label(s), 30.0 cm of tape"_qs));
    QTest::keyClick(child<QSpinBox>(u"copies"_qs), Qt::Key_Up);
    EXPECT_TRUE(saysAmount(u"6 label(s), 60.0 cm of tape"_qs));
}

TEST_F(JobPageTest, UnusualAmount_IsAskedAboutOnce)
{
    open(101);
    QString question;
    QString button;
    const auto answer = [&](bool yes) {
        return [&, yes](QWidget *modal) {
            auto *box = qobject_cast<QMessageBox *>(modal);
            ASSERT_NE(box, nullptr);
            question = box->text();
            auto *print = box->findChild<QPushButton *>(u"printUnusual"_qs);
            button = print->text();
            QTest::mouseClick(yes ? print : box->button(QMessageBox::Cancel), Qt::LeftButton);
        };
    };
    {
        const OverTheWindow no(answer(false));
        clickPrint();
        EXPECT_EQ(no.count, 1);
        EXPECT_FALSE(settled);
        EXPECT_EQ(question, u"This is an unusual amount: 101 label(s), 10.10 m of tape."_qs);
        EXPECT_EQ(button, u"Print 101 Label(s)"_qs);
    }
    {
        const OverTheWindow yes(answer(true));
        clickPrint();
        EXPECT_EQ(yes.count, 1);
        EXPECT_TRUE(settled);
    }
    const OverTheWindow again(answer(true));
    clickPrint();
    EXPECT_EQ(again.count, 0); // the same amount
    QTest::keyClick(child<QSpinBox>(u"copies"_qs), Qt::Key_Up);
    ASSERT_TRUE(saysAmount(u"202 label(s), 20.20 m of tape"_qs));
    clickPrint();
    EXPECT_EQ(again.count, 1); // another one
}

TEST_F(JobPageTest, UsualAmount_IsNotAskedAbout)
{
    open(90); // 9 m
    const OverTheWindow question([](QWidget *modal) { modal->close(); });
    clickPrint();
    EXPECT_EQ(question.count, 0);
    EXPECT_TRUE(settled);
}

TEST_F(JobPageTest, SaveAsPdf_WritesTheLabelsAndTheWindowStays)
{
    open(3);
    const QString path = folder.filePath(u"saved.pdf"_qs);
    QString said;
    const OverTheWindow person([&](QWidget *modal) {
        if (auto *chooser = qobject_cast<QFileDialog *>(modal)) {
            nameFile(chooser, path);
        } else if (auto *box = qobject_cast<QMessageBox *>(modal)) {
            said = box->text();
            QTest::keyClick(box, Qt::Key_Return);
        }
    });
    pickFromSaveMenu(Qt::Key_Down);
    ASSERT_TRUE(QTest::qWaitFor([&] { return !said.isNull(); }, patienceMs));
    EXPECT_TRUE(said.startsWith(u"The PDF is in %1 ("_qs.arg(path))) << said.toStdString();
    job::Problem error;
    const std::optional<job::PageSizes> sizes = job::pageSizesOf(path, &error);
    ASSERT_TRUE(sizes) << error.sentence.toStdString();
    EXPECT_EQ(sizes->size(), 3U);
    EXPECT_NEAR(job::mmFromPoints(sizes->front().height()), 100.0, 0.05);
    EXPECT_TRUE(dialog->isVisible());
}

TEST_F(JobPageTest, SaveAsPdf_ProposesANameThatNoFileHas)
{
    open(1);
    const QString saved = folder.filePath(u"saved/"_qs);
    ASSERT_TRUE(QDir().mkpath(saved));
    QStringList proposed;
    const OverTheWindow person([&](QWidget *modal) {
        if (auto *chooser = qobject_cast<QFileDialog *>(modal)) {
            const QString proposal = QFileInfo(chooser->selectedFiles().value(0)).fileName();
            if (proposed.isEmpty()) {
                proposed.append(proposal);
            }
            // The chooser may come up again before it has taken the name: it is told once more.
            if (!QFileInfo::exists(saved + proposed.first())) {
                nameFile(chooser, saved + proposed.first());
            } else {
                proposed.append(proposal);
                chooser->reject();
            }
        } else {
            QTest::keyClick(modal, Qt::Key_Return);
        }
    });
    pickFromSaveMenu(Qt::Key_Down);
    ASSERT_EQ(proposed.size(), 1);
    ASSERT_TRUE(QTest::qWaitFor([&] { return QFileInfo::exists(saved + proposed.first()); }, patienceMs));
    constexpr int toldMs = 500; // where it is, which is answered with Return
    QTest::qWait(toldMs);
    pickFromSaveMenu(Qt::Key_Down);
    ASSERT_TRUE(QTest::qWaitFor([&] { return proposed.size() == 2; }, patienceMs));
    EXPECT_EQ(proposed.last(), proposed.first().chopped(4) + u"-2.pdf"_qs);
}

TEST_F(JobPageTest, PrinterData_GoToTheFileNamedAndNotToTheQueue)
{
    open(1);
    const OverTheWindow person([&](QWidget *modal) { nameFile(modal, folder.filePath(u"out.prn"_qs)); });
    pickFromSaveMenu(Qt::Key_Up);
    ASSERT_TRUE(QTest::qWaitFor([this] { return settled.has_value(); }, patienceMs));
    EXPECT_EQ(settled->outputPath, folder.filePath(u"out.prn"_qs));
    EXPECT_TRUE(settled->isFile());
}

TEST_F(JobPageTest, TextSetAnew_LeavesWordsAndPreviewUntilItIsThere)
{
    open(1);
    auto *preview = child<PreviewArea>(u"previewArea"_qs);
    auto *used = child<QLabel>(u"tapeUsed"_qs);
    ASSERT_EQ(used->text(), u"1 label(s), 10.0 cm of tape"_qs);
    const QString other = hosttest::writeFile(
        folder, u"other.pdf"_qs,
        hosttest::pdf(QList<PdfPage>{{"/MediaBox[0 0 144 36]", {}}, {"/MediaBox[0 0 144 36]", {}}}));
    preview->setDocuments({other}, {u"other.pdf"_qs});
    EXPECT_TRUE(preview->isCounting());
    EXPECT_EQ(used->text(), u"1 label(s), 10.0 cm of tape"_qs); // of the earlier one
    EXPECT_FALSE(used->isVisible());                            // the amount is told once, beside Print
    EXPECT_EQ(preview->plan().labels.size(), 1U);
    ASSERT_TRUE(QTest::qWaitFor([&] { return used->text() == u"2 label(s), 20.0 cm of tape"_qs; }, patienceMs));
    EXPECT_FALSE(preview->isCounting());
}

} // namespace
