// SPDX-License-Identifier: Apache-2.0
// The window with the Page Settings panel: a tape as long as its content, the layout that is picked, Revert, and
// printing that is cancelled or outlives its window.
#include "Hands.h"
#include "TestPdf.h"
#include "TestPrinter.h"

#include "dialog/CustomSizeSheet.h"
#include "dialog/PreviewArea.h"
#include "dialog/PrintDialog.h"
#include "job/PageLayout.h"
#include "job/SettledJob.h"
#include "tests/support/TextPrinting.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QTest>
#include <QThread>
#include <QTimer>

#include <gtest/gtest.h>

#include <cmath>

namespace
{

using namespace tapeprint;
using namespace tapeprint::dialog;
using hosttest::pdf;

// A box of 100 x 40 points: 100 points are 35.28 mm, with 2.0 mm of margin at both ends 39.28 mm, rounded up to tenths
// 39.3 mm. What is found drawn may be a dot of 300 dpi (0.085 mm) longer at each end.
const QByteArray boxOfHundredPoints = pdf("0 0 200 60", "50 10 100 40 re f");
constexpr double shortestFitMm = 39.3;
constexpr double longestFitMm = 39.5;
constexpr double untouchedMm = 100.0; ///< the tape as the printer describes it
constexpr int patienceMs = 20000;
constexpr int tickMs = 10;

/// Answers each message box as it opens, by a click on a button of it, and remembers what they said.
class Answers
{
public:
    explicit Answers(QMessageBox::StandardButton button)
    {
        QObject::connect(&mTimer, &QTimer::timeout, &mTimer, [this, button] {
            if (auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget())) {
                sentences.append(box->text());
                QAbstractButton *answer = box->button(button);
                if (answer == nullptr) { // a box that nobody expects is not to stand there for ever
                    ADD_FAILURE() << box->text().toStdString();
                    box->reject();
                    return;
                }
                QTest::mouseClick(answer, Qt::LeftButton);
            }
        });
        mTimer.start(tickMs);
    }

    QStringList sentences;

private:
    QTimer mTimer;
};

class WindowFitting : public testing::Test
{
protected:
    void open(const QByteArray &document, PrintDialog::PrintAction action = {}, const job::JobOptions &asked = {})
    {
        job::Destination destination;
        destination.ppdPath = QStringLiteral(TAPEPRINT_PRINTER_DIR "/tapeprint-mm.ppd");
        job::Problem error;
        destination.ppd = job::openPpdFile(destination.ppdPath, &error);
        ASSERT_NE(destination.ppd, nullptr) << error.sentence.toStdString();
        panels.open(std::move(destination), asked);
        const QStringList files{hosttest::writeFile(folder, u"label.pdf"_qs, document)};
        dialog = std::make_unique<PrintDialog>(printJob, panels, PrintDialog::Setup{{}, u"label"_qs, files, {}},
                                               std::move(action));
        dialog->show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(dialog.get()));
        ASSERT_TRUE(QTest::qWaitFor([this] { return plan().labels.size() == 1; }, patienceMs));
        rest();
    }

    template <typename Widget>
    Widget *child(const QString &name)
    {
        return hosttest::child<Widget>(*dialog, name);
    }

    /// Until documents are looked at and everything has followed.
    void rest()
    {
        QTest::qWait(50);
        ASSERT_TRUE(
            QTest::qWaitFor([this] { return !child<PreviewArea>(u"previewArea"_qs)->isWorking(); }, patienceMs));
        QTest::qWait(50);
    }

    void click(const QString &button)
    {
        QTest::mouseClick(child<QPushButton>(button), Qt::LeftButton);
        QApplication::processEvents();
    }

    void tick(const QString &box, bool on)
    {
        auto *checkBox = child<QCheckBox>(box);
        ASSERT_NE(checkBox->isChecked(), on);
        QTest::keyClick(checkBox, Qt::Key_Space);
        ASSERT_EQ(checkBox->isChecked(), on);
    }

    void type(const QString &field, const QString &text) { hosttest::type(child<QLineEdit>(field), text); }

    void pick(const QString &popUp, const QString &item)
    {
        auto *box = child<QComboBox>(popUp);
        hosttest::pick(box, box->findText(item));
    }

    void pickTape(const QString &tape)
    {
        auto *box = child<QComboBox>(u"tape"_qs);
        hosttest::pick(box, box->findData(tape));
    }

    const job::LabelPlan &plan() { return child<PreviewArea>(u"previewArea"_qs)->plan(); }
    double fieldMm() { return child<QLineEdit>(u"mLengthTxFld"_qs)->text().toDouble(); }
    double optionMm() { return printJob.options().value(u"KsTapeLength"_qs).toDouble(); }
    double previewMm() { return job::mmFromPoints(plan().page.sizePt.height()); }
    bool isKept() { return child<QCheckBox>(u"keepFitting"_qs)->isChecked(); }
    bool isFitted() { return fieldMm() >= shortestFitMm && fieldMm() <= longestFitMm; }

    /// Field, job and preview say the same length.
    void expectOneLength(double mm)
    {
        EXPECT_DOUBLE_EQ(fieldMm(), mm);
        EXPECT_DOUBLE_EQ(optionMm(), mm);
        EXPECT_NEAR(previewMm(), mm, 0.05);
    }

    QTemporaryDir folder;
    job::Job printJob;
    Panels panels{printJob, {QStringLiteral(TAPEPRINT_BUNDLE_DIR)}};
    std::unique_ptr<PrintDialog> dialog;
};

TEST_F(WindowFitting, FitLength_MakesTheTapeAsLongAsTheContentAndBothMargins)
{
    ASSERT_NO_FATAL_FAILURE(open(boxOfHundredPoints));
    expectOneLength(untouchedMm);
    Answers answers(QMessageBox::Ok);
    click(u"fitLength"_qs);
    ASSERT_TRUE(QTest::qWaitFor([this] { return fieldMm() != untouchedMm; }, patienceMs));
    rest();
    EXPECT_GE(fieldMm(), shortestFitMm);
    EXPECT_LE(fieldMm(), longestFitMm);
    expectOneLength(fieldMm());
    EXPECT_FALSE(isKept());
    EXPECT_EQ(answers.sentences, QStringList());
}

TEST_F(WindowFitting, FitLength_OverATypedLength_AsksAndKeepsItWhenRefused)
{
    ASSERT_NO_FATAL_FAILURE(open(boxOfHundredPoints));
    type(u"mLengthTxFld"_qs, u"70"_qs);
    Answers answers(QMessageBox::No);
    click(u"fitLength"_qs);
    ASSERT_TRUE(QTest::qWaitFor([&] { return !answers.sentences.isEmpty(); }, patienceMs));
    rest();
    ASSERT_EQ(answers.sentences.size(), 1);
    EXPECT_TRUE(answers.sentences[0].contains(u"70.0 mm"_qs)) << answers.sentences[0].toStdString();
    expectOneLength(70.0);
    EXPECT_FALSE(job::layoutChoicesOf(printJob.options()).fitLength);

    // The refusal holds for what the panel does next, too, and for this once alone.
    pick(u"mTapeTypePopBtn"_qs, child<QComboBox>(u"mTapeTypePopBtn"_qs)->itemText(1));
    pick(u"pageChooser"_qs, u"Layout"_qs);
    pick(u"pageChooser"_qs, u"Page Settings"_qs);
    expectOneLength(70.0);
    click(u"fitLength"_qs);
    ASSERT_TRUE(QTest::qWaitFor([&] { return answers.sentences.size() == 2; }, patienceMs));
    rest();
    expectOneLength(70.0);
}

TEST_F(WindowFitting, FitLength_OverATypedLength_ReplacesItWhenAccepted)
{
    ASSERT_NO_FATAL_FAILURE(open(boxOfHundredPoints));
    type(u"mLengthTxFld"_qs, u"70"_qs);
    Answers answers(QMessageBox::Yes);
    click(u"fitLength"_qs);
    ASSERT_TRUE(QTest::qWaitFor([this] { return isFitted(); }, patienceMs)) << fieldMm();
    rest();
    EXPECT_EQ(answers.sentences.size(), 1) << answers.sentences.join(u'\n').toStdString();
    EXPECT_TRUE(isFitted()) << fieldMm();
    expectOneLength(fieldMm());
}

TEST_F(WindowFitting, FitLength_OnABlankPage_SaysSoAndChangesNothing)
{
    ASSERT_NO_FATAL_FAILURE(open(pdf("0 0 200 60", "")));
    Answers answers(QMessageBox::Ok);
    click(u"fitLength"_qs);
    ASSERT_TRUE(QTest::qWaitFor([&] { return !answers.sentences.isEmpty(); }, patienceMs));
    rest();
    EXPECT_EQ(answers.sentences, QStringList{u"Nothing is drawn on the document: the tape keeps its length."_qs});
    expectOneLength(untouchedMm);
}

TEST_F(WindowFitting, KeepFitting_FollowsAChangeOfTheMarginUntilALengthIsTyped)
{
    ASSERT_NO_FATAL_FAILURE(open(boxOfHundredPoints));
    Answers answers(QMessageBox::Ok);
    tick(u"keepFitting"_qs, true);
    ASSERT_TRUE(QTest::qWaitFor([this] { return isFitted(); }, patienceMs)) << fieldMm();
    rest();
    const double fittedMm = fieldMm();

    type(u"mMarginTxFld"_qs, u"5"_qs); // 3 mm more at both ends
    rest();
    EXPECT_NEAR(fieldMm(), fittedMm + 6.0, 0.11);
    expectOneLength(fieldMm());
    EXPECT_EQ(child<QLineEdit>(u"mMarginTxFld"_qs)->text().toDouble(), 5.0);
    EXPECT_TRUE(isKept());

    type(u"mLengthTxFld"_qs, u"70"_qs);
    rest();
    EXPECT_FALSE(isKept());
    EXPECT_EQ(fieldMm(), 70.0);
    EXPECT_NEAR(previewMm(), 70.0, 0.05);
    EXPECT_EQ(panels.currentOptions().value(u"KsTapeLength"_qs).toDouble(), 70.0);
    EXPECT_FALSE(job::layoutChoicesOf(printJob.options()).fitLength);
    EXPECT_EQ(answers.sentences, QStringList());
}

TEST_F(WindowFitting, KeepFitting_FollowsAnotherTape)
{
    ASSERT_NO_FATAL_FAILURE(open(boxOfHundredPoints));
    Answers answers(QMessageBox::Ok);
    tick(u"keepFitting"_qs, true);
    ASSERT_TRUE(QTest::qWaitFor([this] { return isFitted(); }, patienceMs)) << fieldMm();
    rest();
    // The page is 60 points across, of which 12 mm of tape print 11 mm (31.18 points): 100 points become 51.97 points
    // or 18.33 mm, with the margins 22.33 mm; the dots of 0.085 mm shrink with the page.
    pickTape(u"12mm"_qs);
    rest();
    EXPECT_TRUE(isKept());
    EXPECT_GE(fieldMm(), 22.4);
    EXPECT_LE(fieldMm(), 22.5);
    expectOneLength(fieldMm());
    pickTape(u"24mm"_qs);
    rest();
    EXPECT_TRUE(isKept());
    EXPECT_TRUE(isFitted()) << fieldMm();
    EXPECT_EQ(answers.sentences, QStringList());
}

TEST_F(WindowFitting, KeepFitting_OverATypedLength_LetsAMarginOfTwoDigitsBeTyped)
{
    ASSERT_NO_FATAL_FAILURE(open(boxOfHundredPoints));
    type(u"mLengthTxFld"_qs, u"70"_qs);
    Answers answers(QMessageBox::Yes);
    tick(u"keepFitting"_qs, true);
    ASSERT_TRUE(QTest::qWaitFor([this] { return isFitted(); }, patienceMs)) << fieldMm();
    rest();
    const double fittedMm = fieldMm();

    const QPointer<QLineEdit> margin = child<QLineEdit>(u"mMarginTxFld"_qs);
    margin->setFocus();
    margin->selectAll();
    for (const QChar digit : u"12"_qs) { // the tape follows each of them
        QTest::keyClick(margin.data(), digit.toLatin1());
        rest();
        ASSERT_NE(margin, nullptr) << "the field went while it was typed in";
    }
    EXPECT_EQ(margin->text().toDouble(), 12.0);
    EXPECT_NEAR(fieldMm(), fittedMm + 20.0, 0.11); // 10 mm more at both ends
    EXPECT_NEAR(previewMm(), fieldMm(), 0.05);
    EXPECT_TRUE(isKept());
    EXPECT_EQ(answers.sentences.size(), 1) << answers.sentences.join(u'\n').toStdString();
}

TEST_F(WindowFitting, FitLength_AfterALengthTypedOverAFittedOne_AsksAgain)
{
    ASSERT_NO_FATAL_FAILURE(open(boxOfHundredPoints));
    Answers answers(QMessageBox::Yes);
    click(u"fitLength"_qs);
    ASSERT_TRUE(QTest::qWaitFor([this] { return isFitted(); }, patienceMs)) << fieldMm();
    rest();
    type(u"mLengthTxFld"_qs, u"70"_qs);
    rest();
    EXPECT_EQ(fieldMm(), 70.0);
    EXPECT_NEAR(previewMm(), 70.0, 0.05);
    EXPECT_FALSE(job::layoutChoicesOf(printJob.options()).fitLength);
    EXPECT_EQ(answers.sentences, QStringList());
    click(u"fitLength"_qs);
    ASSERT_TRUE(QTest::qWaitFor([this] { return isFitted(); }, patienceMs)) << fieldMm();
    rest();
    EXPECT_EQ(answers.sentences.size(), 1) << answers.sentences.join(u'\n').toStdString();
    expectOneLength(fieldMm());
}

TEST_F(WindowFitting, Layout_PicksReachThePlanAndTheFiltersHaveNothingLeftToDo)
{
    // Wider than the 24 mm tape.
    ASSERT_NO_FATAL_FAILURE(open(pdf("0 0 200 90", "50 10 100 40 re f")));
    pick(u"pageChooser"_qs, u"Layout"_qs);
    EXPECT_TRUE(child<QComboBox>(u"layoutSize"_qs)->isVisible());
    pick(u"layoutSize"_qs, u"Original size"_qs);
    pick(u"layoutTurn"_qs, u"Along the tape"_qs);
    pick(u"layoutAlong"_qs, u"Left"_qs);
    rest();
    EXPECT_EQ(child<QComboBox>(u"layoutSize"_qs)->currentText(), u"Original size"_qs);
    EXPECT_EQ(child<QComboBox>(u"layoutAlong"_qs)->currentText(), u"Left"_qs);
    EXPECT_EQ(child<QComboBox>(u"layoutAcross"_qs)->currentText(), u"Middle"_qs);

    // The left end of the tape lying is the lower end of the page standing: 283.46 points less 2.0 mm (5.67 points).
    ASSERT_EQ(plan().labels.size(), 1U);
    const QRectF place = plan().labels[0].at(0).place.mapRect(QRectF(0.0, 0.0, 200.0, 90.0));
    EXPECT_NEAR(place.height(), 200.0, 0.01);
    EXPECT_NEAR(place.width(), 90.0, 0.01);
    EXPECT_NEAR(place.bottom(), 277.80, 0.05);
    EXPECT_NEAR(place.center().x(), 68.03 / 2.0, 0.05);

    // Filters are told to leave the size alone, and nothing else about the layout.
    EXPECT_TRUE(printJob.options().contains(u"position"_qs));
    EXPECT_TRUE(printJob.options().contains(u"orientation-requested"_qs));
    const job::JobOptions carried = job::settle(printJob).carried();
    EXPECT_EQ(carried.value(u"print-scaling"_qs), u"none"_qs);
    for (const QString &name : job::layoutOptionNames() + QStringList{job::OptionName::fitLength}) {
        if (name != u"print-scaling"_qs) {
            EXPECT_FALSE(carried.contains(name)) << name.toStdString();
        }
    }
}

TEST_F(WindowFitting, Revert_BringsATypedLengthBack)
{
    ASSERT_NO_FATAL_FAILURE(open(boxOfHundredPoints));
    const QStringList before = printJob.options().lines();
    type(u"mLengthTxFld"_qs, u"70"_qs);
    rest();
    ASSERT_NEAR(previewMm(), 70.0, 0.05);
    click(u"revert"_qs);
    rest();
    expectOneLength(untouchedMm);
    EXPECT_EQ(printJob.options().lines(), before);
}

TEST_F(WindowFitting, SizeOfOnesOwn_BeginsWithTheLengthThatIsSet)
{
    ASSERT_NO_FATAL_FAILURE(open(boxOfHundredPoints));
    type(u"mLengthTxFld"_qs, u"70"_qs);
    QTest::keyClick(child<QLineEdit>(u"mLengthTxFld"_qs), Qt::Key_Return);
    rest();
    pick(u"tape"_qs, u"Custom…"_qs);
    EXPECT_EQ(child<QLineEdit>(u"customSize/Height"_qs)->text(), u"70"_qs);
    dialog->findChild<CustomSizeSheet *>()->reject();
}

TEST_F(WindowFitting, Revert_BringsTheLengthBackFromBeforeItWasFitted)
{
    ASSERT_NO_FATAL_FAILURE(open(boxOfHundredPoints));
    tick(u"keepFitting"_qs, true);
    ASSERT_TRUE(QTest::qWaitFor([this] { return isFitted(); }, patienceMs)) << fieldMm();
    rest();
    click(u"revert"_qs);
    rest();
    expectOneLength(untouchedMm);
    EXPECT_FALSE(isKept());
    EXPECT_FALSE(job::layoutChoicesOf(printJob.options()).fitLength);
}

TEST_F(WindowFitting, Print_Cancelled_StaysOpenAndMayBePrintedAgain)
{
    std::atomic<int> calls = 0;
    ASSERT_NO_FATAL_FAILURE(
        open(boxOfHundredPoints, [&calls](const job::SettledJob &, const std::atomic<bool> &stop, job::Problem *) {
            if (calls.fetch_add(1) > 0) {
                return std::optional(job::PrintedJob{{}, {}, {u"out.prn"_qs, 5}});
            }
            while (!stop) {
                QThread::msleep(1);
            }
            return std::optional<job::PrintedJob>();
        }));
    Answers answers(QMessageBox::Ok);
    int ticks = 0;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, &timer, [&ticks] { ++ticks; });
    timer.start(tickMs);
    click(u"print"_qs);
    QTest::qWait(300);
    EXPECT_GE(ticks, 5); // the window answers
    EXPECT_EQ(calls, 1);
    EXPECT_FALSE(child<QPushButton>(u"print"_qs)->isEnabled());
    EXPECT_FALSE(child<QPushButton>(u"revert"_qs)->isEnabled());
    EXPECT_FALSE(child<QLineEdit>(u"mLengthTxFld"_qs)->isEnabled());

    click(u"cancel"_qs);
    ASSERT_TRUE(QTest::qWaitFor([this] { return child<QPushButton>(u"print"_qs)->isEnabled(); }, patienceMs));
    EXPECT_TRUE(dialog->isVisible());
    EXPECT_TRUE(child<QPushButton>(u"revert"_qs)->isEnabled());
    EXPECT_TRUE(child<QPushButton>(u"fitLength"_qs)->isEnabled());
    EXPECT_TRUE(child<QLineEdit>(u"mLengthTxFld"_qs)->isEnabled());
    EXPECT_FALSE(dialog->printed().has_value());
    EXPECT_EQ(answers.sentences, QStringList());

    click(u"print"_qs);
    ASSERT_TRUE(QTest::qWaitFor([this] { return !dialog->isVisible(); }, patienceMs));
    ASSERT_TRUE(dialog->printed().has_value());
    EXPECT_EQ(dialog->printed()->output.bytes, 5);
    EXPECT_EQ(answers.sentences, QStringList{dialog->printed()->sentence()});
}

TEST_F(WindowFitting, ClosingTheDialog_WhileItPrints_WaitsForNothingAndTellsTheActionToStop)
{
    struct Shared {
        std::atomic<bool> isRunning = false;
        std::atomic<bool> mayEnd = false;
        std::atomic<bool> wasStopped = false;
        std::atomic<bool> hasEnded = false;
    };
    const auto shared = std::make_shared<Shared>();
    ASSERT_NO_FATAL_FAILURE(
        open(boxOfHundredPoints, [shared](const job::SettledJob &job, const std::atomic<bool> &stop, job::Problem *) {
            shared->isRunning = true;
            while (!shared->mayEnd) {
                QThread::msleep(1);
            }
            // The job is the action's own: it is whole when the window has gone.
            shared->wasStopped = stop && !job.carried().lines().isEmpty();
            shared->hasEnded = true;
            return std::optional<job::PrintedJob>();
        }));
    click(u"print"_qs);
    ASSERT_TRUE(QTest::qWaitFor([&] { return shared->isRunning.load(); }, patienceMs));
    QElapsedTimer clock;
    clock.start();
    dialog.reset();
    EXPECT_LT(clock.elapsed(), 200);
    EXPECT_FALSE(shared->hasEnded);
    shared->mayEnd = true;
    ASSERT_TRUE(QTest::qWaitFor([&] { return shared->hasEnded.load(); }, patienceMs));
    EXPECT_TRUE(shared->wasStopped);
    QTest::qWait(50); // an outcome that were delivered all the same would meet a window that has gone
}

} // namespace
