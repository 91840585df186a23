// SPDX-License-Identifier: Apache-2.0
// Presets in the window: picking one moves the panel's fields, and what is saved is what other programs find.
#include "Hands.h"
#include "TestPrinter.h"

#include "dialog/PresetNameDialog.h"
#include "dialog/PresetRow.h"
#include "dialog/PrintDialog.h"
#include "job/LastSettings.h"
#include "tests/support/CupsHome.h"
#include "tests/support/TextPrinting.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QSpinBox>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

namespace
{

using namespace tapeprint;
using namespace tapeprint::dialog;

constexpr int patienceMs = 20000;

class PresetWindow : public testing::Test
{
protected:
    void open(const QByteArray &saved, const QString &instance = {}, const job::JobOptions &asked = {})
    {
        CupsHome::write(home.ownPath(), saved);
        job::Destination destination;
        destination.ppdPath = QStringLiteral(TAPEPRINT_PRINTER_DIR "/tapeprint-mm.ppd");
        job::Problem error;
        destination.ppd = job::openPpdFile(destination.ppdPath, &error);
        ASSERT_NE(destination.ppd, nullptr) << error.sentence.toStdString();
        destination.queue = job::PrintQueue();
        destination.queue->name = u"tape"_qs;
        destination.queue->instance = instance;
        for (const job::Preset &preset : job::presetsOf(u"tape"_qs, &error)) {
            if (preset.name == instance) {
                destination.queue->options = preset.options;
            }
        }
        panels.open(std::move(destination), asked);
        const QStringList files{hosttest::writeFile(folder, u"label.txt"_qs, "Hello\n")};
        job::JobRequest request;
        request.options = asked;
        dialog =
            std::make_unique<PrintDialog>(printJob, panels, PrintDialog::Setup{request, u"label"_qs, files, {}},
                                          [](const job::SettledJob & /*job*/, const std::atomic<bool> & /*stop*/,
                                             job::Problem * /*error*/) { return std::optional(job::PrintedJob()); });
        dialog->show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(dialog.get()));
        rest();
    }
    void rest() { QTest::qWait(50); }

    template <typename Widget>
    Widget *child(const QString &name)
    {
        return hosttest::child<Widget>(*dialog, name);
    }
    void pick(const QString &popUp, const QString &item)
    {
        auto *box = child<QComboBox>(popUp);
        hosttest::pick(box, box->findText(item));
        rest();
    }
    QStringList items()
    {
        QStringList items;
        for (int i = 0; i < child<QComboBox>(u"preset"_qs)->count(); ++i) {
            items.append(child<QComboBox>(u"preset"_qs)->itemText(i));
        }
        return items;
    }
    QString shown() { return child<QComboBox>(u"preset"_qs)->currentText(); }
    QString length() { return child<QLineEdit>(u"mLengthTxFld"_qs)->text(); }
    /// Types a name into the dialog that an action opens.
    void name(const QString &action, const QString &typed)
    {
        child<QAction>(action)->trigger();
        auto *field = child<QLineEdit>(u"presetName"_qs);
        ASSERT_NE(field, nullptr);
        field->selectAll();
        QTest::keyClicks(field, typed);
        QTest::keyClick(field, Qt::Key_Return);
    }
    void answer(const QString &button)
    {
        auto *box = dialog->findChild<QMessageBox *>();
        ASSERT_NE(box, nullptr);
        for (QAbstractButton *one : box->buttons()) {
            if (one->text() == button) {
                QTest::mouseClick(one, Qt::LeftButton);
                return;
            }
        }
        FAIL() << button.toStdString();
    }

    CupsHome home;
    QTemporaryDir folder;
    job::Job printJob;
    Panels panels{printJob, {QStringLiteral(TAPEPRINT_BUNDLE_DIR)}};
    std::unique_ptr<PrintDialog> dialog;
};

const QByteArray twoPresets = "Dest tape/long PageSize=12mm KsTapeLength=80.0 KsTapeColor=KsTapeColorRed\n"
                              "Dest tape/short KsTapeLength=40.0\n";

TEST_F(PresetWindow, PickingAPreset_MovesThePanelsLengthAndTheTape)
{
    ASSERT_NO_FATAL_FAILURE(open(twoPresets));
    EXPECT_EQ(items(), (QStringList{u"Printer's Defaults"_qs, u"long"_qs, u"short"_qs}));
    EXPECT_EQ(shown(), u"Printer's Defaults"_qs);
    const QString before = length();
    ASSERT_NE(before, u"80.0"_qs);
    ASSERT_NE(before, u"40.0"_qs);
    const QString tape = printJob.options().value(u"PageSize"_qs);
    ASSERT_NE(tape, u"12mm"_qs);

    ASSERT_NO_FATAL_FAILURE(pick(u"preset"_qs, u"long"_qs));
    EXPECT_EQ(length(), u"80.0"_qs);
    EXPECT_EQ(printJob.options().value(u"PageSize"_qs), u"12mm"_qs);
    EXPECT_EQ(printJob.options().value(u"KsTapeColor"_qs), u"KsTapeColorRed"_qs);
    EXPECT_EQ(printJob.printer().instance, u"long"_qs);
    EXPECT_EQ(shown(), u"long"_qs);

    // The next one has nothing of it.
    ASSERT_NO_FATAL_FAILURE(pick(u"preset"_qs, u"short"_qs));
    EXPECT_EQ(length(), u"40.0"_qs);
    EXPECT_EQ(printJob.options().value(u"PageSize"_qs), tape);
    EXPECT_NE(printJob.options().value(u"KsTapeColor"_qs), u"KsTapeColorRed"_qs);

    ASSERT_NO_FATAL_FAILURE(pick(u"preset"_qs, u"Printer's Defaults"_qs));
    EXPECT_EQ(length(), before);
}

TEST_F(PresetWindow, AChange_IsToldApartUntilThePresetIsPickedAgain)
{
    ASSERT_NO_FATAL_FAILURE(open(twoPresets, u"short"_qs));
    EXPECT_EQ(shown(), u"short"_qs);
    child<QSpinBox>(u"copies"_qs)->setValue(3);
    rest();
    EXPECT_EQ(shown(), u"short (changed)"_qs);
    child<QSpinBox>(u"copies"_qs)->setValue(1);
    rest();
    EXPECT_EQ(shown(), u"short"_qs);
    ASSERT_NO_FATAL_FAILURE(pick(u"tape"_qs, u"12 mm"_qs));
    EXPECT_EQ(shown(), u"short (changed)"_qs);
    ASSERT_NO_FATAL_FAILURE(pick(u"preset"_qs, u"short (changed)"_qs));
    EXPECT_EQ(shown(), u"short"_qs);
    EXPECT_NE(printJob.options().value(u"PageSize"_qs), u"12mm"_qs);
}

TEST_F(PresetWindow, RevertAfterAPick_GoesBackToWhatTheDialogWasOpenedWith)
{
    ASSERT_NO_FATAL_FAILURE(
        open(twoPresets, u"short"_qs, hosttest::options({{u"KsTapeColor"_qs, u"KsTapeColorBlue"_qs}})));
    const job::JobOptions before = printJob.options();
    ASSERT_NO_FATAL_FAILURE(pick(u"preset"_qs, u"long"_qs));
    ASSERT_EQ(length(), u"80.0"_qs);
    QTest::mouseClick(child<QPushButton>(u"revert"_qs), Qt::LeftButton);
    rest();
    EXPECT_EQ(length(), u"40.0"_qs);
    EXPECT_EQ(shown(), u"short"_qs);
    EXPECT_EQ(printJob.options().lines(), before.lines());
    EXPECT_EQ(printJob.printer().instance, u"short"_qs);
}

TEST_F(PresetWindow, WhatBelongsToTheDocument_StaysWhenAPresetIsPicked)
{
    ASSERT_NO_FATAL_FAILURE(
        open(twoPresets + "Dest tape/three copies=3\n", {}, hosttest::options({{u"page-ranges"_qs, u"2-4"_qs}})));
    child<QSpinBox>(u"copies"_qs)->setValue(5);
    ASSERT_NO_FATAL_FAILURE(pick(u"preset"_qs, u"short"_qs));
    EXPECT_EQ(printJob.options().value(u"page-ranges"_qs), u"2-4"_qs);
    EXPECT_EQ(child<QSpinBox>(u"copies"_qs)->value(), 5);
    ASSERT_NO_FATAL_FAILURE(pick(u"preset"_qs, u"three"_qs));
    EXPECT_EQ(printJob.options().value(u"page-ranges"_qs), u"2-4"_qs);
    EXPECT_EQ(child<QSpinBox>(u"copies"_qs)->value(), 3);
}

TEST_F(PresetWindow, AnOptionThatIsGone_IsSaidAndKeptUntilSavedOver)
{
    ASSERT_NO_FATAL_FAILURE(open("Dest tape/old Perforator=Fine KsTapeLength=40.0\n"));
    EXPECT_FALSE(child<QWidget>(u"notices"_qs)->isVisible());
    ASSERT_NO_FATAL_FAILURE(pick(u"preset"_qs, u"old"_qs));
    EXPECT_TRUE(child<QWidget>(u"notices"_qs)->isVisible());
    EXPECT_EQ(home.written(), "Dest tape/old Perforator=Fine KsTapeLength=40.0\n");
    child<QAction>(u"presetSaveOver"_qs)->trigger();
    ASSERT_TRUE(QTest::qWaitFor([this] { return !home.written().contains("Perforator"); }, patienceMs));
    EXPECT_TRUE(home.written().startsWith("Dest tape/old ")) << home.written().toStdString();
    EXPECT_TRUE(home.written().contains("KsTapeLength=40.0"));
    rest();
    EXPECT_FALSE(child<QWidget>(u"notices"_qs)->isVisible());
    EXPECT_EQ(shown(), u"old"_qs);
}

TEST_F(PresetWindow, SavingRenamingAndDeleting_AreFoundInTheFile)
{
    ASSERT_NO_FATAL_FAILURE(open("Dest office A=1\n"));
    auto *field = child<QLineEdit>(u"mLengthTxFld"_qs);
    field->setFocus();
    field->selectAll();
    QTest::keyClicks(field, u"55"_qs);
    ASSERT_NO_FATAL_FAILURE(name(u"presetSaveAs"_qs, u"mine"_qs));
    ASSERT_TRUE(QTest::qWaitFor([this] { return shown() == u"mine"_qs; }, patienceMs)) << shown().toStdString();
    EXPECT_TRUE(home.written().startsWith("Dest office A=1\nDest tape/mine ")) << home.written().toStdString();
    EXPECT_TRUE(home.written().contains("KsTapeLength=55.0")) << home.written().toStdString();
    rest();
    EXPECT_EQ(shown(), u"mine"_qs);

    ASSERT_NO_FATAL_FAILURE(name(u"presetRename"_qs, u"yours"_qs));
    ASSERT_TRUE(QTest::qWaitFor([this] { return shown() == u"yours"_qs; }, patienceMs)) << shown().toStdString();
    EXPECT_TRUE(home.written().contains("Dest tape/yours ") && !home.written().contains("mine"));

    child<QAction>(u"presetMakeDefault"_qs)->trigger();
    ASSERT_TRUE(QTest::qWaitFor([this] { return home.written().contains("Default tape/yours "); }, patienceMs));
    rest();
    EXPECT_FALSE(child<QAction>(u"presetMakeDefault"_qs)->isEnabled());

    child<QAction>(u"presetDelete"_qs)->trigger();
    answer(u"Cancel"_qs);
    rest();
    EXPECT_TRUE(home.written().contains("tape/yours"));
    child<QAction>(u"presetDelete"_qs)->trigger();
    answer(u"Delete"_qs);
    ASSERT_TRUE(QTest::qWaitFor([this] { return home.written() == "Dest office A=1\n"; }, patienceMs));
    rest();
    EXPECT_EQ(items(), QStringList{u"Printer's Defaults (changed)"_qs});
    EXPECT_FALSE(child<QAction>(u"presetDelete"_qs)->isEnabled());
    EXPECT_EQ(length(), u"55.0"_qs); // the job keeps what it was
}

TEST_F(PresetWindow, APresetThatAnotherProgramDeleted_IsSaidAndNothingChanges)
{
    ASSERT_NO_FATAL_FAILURE(open(twoPresets));
    const QString before = length();
    CupsHome::write(home.ownPath(), "Dest tape/short KsTapeLength=40.0\n");
    QString said;
    QTimer::singleShot(0, dialog.get(), [&said] {
        if (auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget())) {
            said = box->text();
            box->accept();
        }
    });
    ASSERT_NO_FATAL_FAILURE(pick(u"preset"_qs, u"long"_qs));
    EXPECT_EQ(said, u"There is no preset long any more."_qs);
    EXPECT_EQ(length(), before);
    EXPECT_EQ(items(), (QStringList{u"Printer's Defaults"_qs, u"short"_qs}));
    EXPECT_EQ(shown(), u"Printer's Defaults"_qs);
}

TEST_F(PresetWindow, AFileThatCannotBeWritten_IsSaidAndTheJobStays)
{
    ASSERT_NO_FATAL_FAILURE(open(twoPresets, u"short"_qs));
    ASSERT_TRUE(QFile::remove(home.ownPath()));
    QDir().mkpath(home.ownPath()); // a folder in its place
    QString said;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, dialog.get(), [&said] {
        if (auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget())) {
            said = box->text();
            box->accept();
        }
    });
    timer.start(10);
    child<QAction>(u"presetSaveOver"_qs)->trigger();
    ASSERT_TRUE(QTest::qWaitFor([&said] { return !said.isEmpty(); }, patienceMs));
    EXPECT_TRUE(said.contains(u"cannot be read"_qs)) << said.toStdString();
    EXPECT_EQ(shown(), u"short"_qs);
    EXPECT_EQ(length(), u"40.0"_qs);
}

TEST_F(PresetWindow, WhatWasPrinted_IsOfferedAsLastTimeWithTheFirstCopiesAndPages)
{
    ASSERT_NO_FATAL_FAILURE(open("Dest tape/short KsTapeLength=40.0\n", u"short"_qs));
    EXPECT_FALSE(items().contains(u"As Last Time"_qs));
    child<QSpinBox>(u"copies"_qs)->setValue(7);
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, dialog.get(), [] {
        if (auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget())) {
            box->accept();
        }
    });
    timer.start(10);
    QTest::mouseClick(child<QPushButton>(u"print"_qs), Qt::LeftButton);
    ASSERT_TRUE(QTest::qWaitFor([this] { return dialog->printed().has_value(); }, patienceMs));
    timer.stop();
    dialog.reset();

    ASSERT_NO_FATAL_FAILURE(open("", {}, hosttest::options({{u"copies"_qs, u"2"_qs}})));
    ASSERT_NE(length(), u"40.0"_qs);
    child<QSpinBox>(u"copies"_qs)->setValue(4);
    ASSERT_NO_FATAL_FAILURE(pick(u"preset"_qs, u"As Last Time"_qs));
    EXPECT_EQ(length(), u"40.0"_qs);
    EXPECT_EQ(child<QSpinBox>(u"copies"_qs)->value(), 2);
    EXPECT_EQ(shown(), u"As Last Time"_qs);
}

TEST_F(PresetWindow, WithoutAQueue_IsGreyedAndSaysWhy)
{
    panels.open(hosttest::testDestination(folder), {});
    dialog = std::make_unique<PrintDialog>(printJob, panels, PrintDialog::Setup{{}, u"label"_qs, {}, {}},
                                           PrintDialog::PrintAction());
    auto *row = dialog->findChild<PresetRow *>();
    ASSERT_NE(row, nullptr);
    EXPECT_FALSE(row->isEnabled());
    EXPECT_EQ(row->toolTip(), u"Presets are kept for a print queue, and here is none."_qs);
}

TEST(PresetName, OfferedInThePlaceOfABadOne_CanBeTaken)
{
    PresetNameDialog dialog(u"Save"_qs, {}, {u"red"_qs}, PresetNameDialog::TakenNames::Replace, nullptr);
    auto *field = dialog.findChild<QLineEdit *>(u"presetName"_qs);
    auto *offer = dialog.findChild<QPushButton *>(u"presetNameOffer"_qs);
    auto *remark = dialog.findChild<QLabel *>(u"presetNameRemark"_qs);
    dialog.show();
    QTest::keyClicks(field, u"Small labels/12 mm"_qs);
    EXPECT_EQ(remark->text(), u"CUPS cannot keep a preset whose name has blanks, slashes, quotes or one of # < >."_qs);
    EXPECT_EQ(offer->text(), u"Take \"Small-labels-12-mm\""_qs);
    QTest::mouseClick(offer, Qt::LeftButton);
    EXPECT_EQ(dialog.name(), u"Small-labels-12-mm"_qs);
    EXPECT_FALSE(offer->isVisible());
    field->setText(u"RED"_qs);
    EXPECT_EQ(remark->text(), u"The preset RED will be replaced."_qs);
    QTest::keyClick(field, Qt::Key_Return);
    EXPECT_EQ(dialog.result(), QDialog::Accepted);
}

TEST(PresetName, ReturnOnABadOne_TakesTheOneOfferedAndReturnOnThatSavesIt)
{
    PresetNameDialog dialog(u"Save"_qs, {}, {}, PresetNameDialog::TakenNames::Replace, nullptr);
    auto *field = dialog.findChild<QLineEdit *>(u"presetName"_qs);
    dialog.show();
    QTest::keyClicks(field, u"Small labels"_qs);
    QTest::keyClick(field, Qt::Key_Return);
    EXPECT_EQ(dialog.name(), u"Small-labels"_qs);
    EXPECT_TRUE(dialog.isVisible()); // the person has not seen that name yet
    QTest::keyClick(field, Qt::Key_Return);
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_EQ(dialog.result(), QDialog::Accepted);
}

TEST(PresetName, OfAnother_IsNotTakenByARename)
{
    PresetNameDialog dialog(u"Rename"_qs, u"blue"_qs, {u"red"_qs}, PresetNameDialog::TakenNames::Refuse, nullptr);
    auto *field = dialog.findChild<QLineEdit *>(u"presetName"_qs);
    dialog.show();
    field->setText(u"Red"_qs);
    QTest::keyClick(field, Qt::Key_Return);
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_EQ(dialog.findChild<QLabel *>(u"presetNameRemark"_qs)->text(), u"There is a preset Red already."_qs);
}

} // namespace
