// SPDX-License-Identifier: Apache-2.0
// The window, with real clicks and keys.
#include "Hands.h"
#include "ShownWindow.h"
#include "TestPrinter.h"

#include "dialog/PreviewArea.h"
#include "dialog/PrintDialog.h"
#include "dialog/ShowCommand.h"
#include "dialog/SummaryView.h"
#include "job/DocumentSpool.h"
#include "job/Printing.h"
#include "tests/support/TextPrinting.h"

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QTest>
#include <QTextBlock>
#include <QTextLayout>
#include <QTimer>

#include <gtest/gtest.h>

#include <pdekit/Alert.h>
#include <pdekit/NotificationCenter.h>

namespace
{

using namespace tapeprint;
using namespace tapeprint::dialog;
using hosttest::takeCalls;
using job::DocumentSpool;

class PrintDialogTest : public testing::Test
{
protected:
    void SetUp() override
    {
        takeCalls();
        // A filter of CUPS's own that hands the document on as it is.
        job::Destination destination = hosttest::testDestination(folder, "*cupsFilter: \"text/plain 0 gziptoany\"\n");
        destination.outputPath = outputPath = folder.filePath(u"out.prn"_qs);
        files = {hosttest::writeFile(folder, u"label.txt"_qs, "Hello\n")};
        panels.open(std::move(destination), {});
        dialog = std::make_unique<PrintDialog>(
            printJob, panels, PrintDialog::Setup{{}, u"label.txt"_qs, files, {}},
            [this](const job::SettledJob &job, const std::atomic<bool> &stop, job::Problem *error) {
                return job::printJob(job, u"label.txt"_qs, files, stop, error);
            });
        ASSERT_TRUE(hosttest::show(*dialog));
    }

    template <typename Widget>
    Widget *child(const QString &name)
    {
        return hosttest::child<Widget>(*dialog, name);
    }

    void click(const QString &button)
    {
        QTest::mouseClick(child<QPushButton>(button), Qt::LeftButton);
        QApplication::processEvents();
    }

    /// Picks the next item of a pop-up by keyboard, as a person does.
    void pickNext(const QString &popUp)
    {
        QTest::keyClick(child<QComboBox>(popUp), Qt::Key_Down);
        QApplication::processEvents();
    }

    QStringList summary()
    {
        QStringList lines;
        const auto *view = child<SummaryView>(u"summary"_qs);
        for (int i = 0; i < view->topLevelItemCount(); ++i) {
            lines.append(view->topLevelItem(i)->text(0) + u'=' + view->topLevelItem(i)->text(1));
        }
        return lines;
    }

    QTemporaryDir folder;
    QString outputPath;
    QStringList files;
    job::Job printJob;
    Panels panels{printJob, hosttest::goodBundles()};
    std::unique_ptr<PrintDialog> dialog;
};

TEST_F(PrintDialogTest, Opens_WithThePanelShownAndItsSummary)
{
    const QStringList calls = takeCalls();
    EXPECT_EQ(calls.mid(calls.indexOf(u"willShow"_qs)),
              (QStringList{u"willShow"_qs, u"save"_qs, u"changed KsMargin=2.0, tape W12"_qs, u"willShow"_qs}));
    EXPECT_TRUE(child<QPushButton>(u"wideMargin"_qs)->isVisible());
    EXPECT_EQ(summary(), (QStringList{u"Tape=W12"_qs, u"Margin=2.0"_qs}));
    EXPECT_EQ(child<QComboBox>(u"tape"_qs)->currentText(), u"12 mm"_qs);
    EXPECT_EQ(child<QComboBox>(u"pageChooser"_qs)->currentText(), u"Test Panel"_qs);
    EXPECT_TRUE(child<QPushButton>(u"print"_qs)->isDefault());
    EXPECT_FALSE(child<QLabel>(u"notices"_qs)->isVisible());
    EXPECT_EQ(dialog->windowTitle(), u"Print label.txt"_qs);
}

TEST_F(PrintDialogTest, PickInThePanel_ReachesTheJobAndTheSummary)
{
    click(u"wideMargin"_qs);
    EXPECT_EQ(printJob.options().value(u"KsMargin"_qs), u"5.0"_qs);
    EXPECT_EQ(summary(), (QStringList{u"Tape=W12"_qs, u"Margin=5.0"_qs}));
}

TEST_F(PrintDialogTest, ShowCommand_ShowsTheSettingsAsTheyStandAndCopiesThem)
{
    click(u"wideMargin"_qs);
    QString shown;
    QTimer::singleShot(0, dialog.get(), [this, &shown] {
        auto *box = dialog->findChild<ShowCommand *>();
        ASSERT_NE(box, nullptr);
        auto *field = box->findChild<QPlainTextEdit *>(u"tapeprintCommand"_qs);
        field->selectAll();
        field->copy();
        shown = QApplication::clipboard()->text();
        EXPECT_NE(shown, u"nothing"_qs);
        // No line ends behind the hyphen of an option, however narrow the field is.
        for (const int width : {120, 150, 180, 210, 240}) {
            field->setFixedWidth(width);
            QApplication::processEvents();
            const QTextBlock block = field->document()->firstBlock();
            ASSERT_GT(block.layout()->lineCount(), 1);
            for (int i = 0; i < block.layout()->lineCount(); ++i) {
                const QTextLine line = block.layout()->lineAt(i);
                const QString text = block.text().mid(line.textStart(), line.textLength()).remove(QChar(0x2060));
                EXPECT_FALSE(text.endsWith(u'-')) << width << ": " << text.toStdString();
            }
        }
        QApplication::clipboard()->setText(u"nothing"_qs);
        EXPECT_EQ(box->findChild<QPlainTextEdit *>(u"lpCommand"_qs), nullptr); // there is no queue
        QTest::mouseClick(box->findChild<QPushButton *>(u"tapeprintCopy"_qs), Qt::LeftButton);
        box->reject();
    });
    QApplication::clipboard()->setText(u"nothing"_qs);
    click(u"showCommand"_qs);
    EXPECT_EQ(shown, u"tapeprint --no-dialog --ppd "_qs + printJob.destination().ppdPath + u" --output "_qs +
                         outputPath + u" -o PageSize=W12 -o KsMargin=5.0 -t label.txt"_qs);
    EXPECT_EQ(QApplication::clipboard()->text(), shown);
}

TEST_F(PrintDialogTest, DocumentsWithoutNames_NoCommandIsOffered)
{
    EXPECT_NE(dialog->findChild<QPushButton *>(u"showCommand"_qs), nullptr);
    dialog.reset();
    PrintDialog::Setup setup{{}, u"label.txt"_qs, files, {}};
    setup.showsCommand = false;
    dialog = std::make_unique<PrintDialog>(printJob, panels, setup, nullptr);
    EXPECT_EQ(dialog->findChild<QPushButton *>(u"showCommand"_qs), nullptr);
}

TEST_F(PrintDialogTest, PickOfATape_IsToldToThePanelBeforeAndAfterItIsShownWithIt)
{
    takeCalls();
    pickNext(u"tape"_qs);
    EXPECT_EQ(takeCalls(), (QStringList{u"willShow"_qs, u"changed PageSize=W24, tape W24"_qs, u"willShow"_qs,
                                        u"changed PageSize=W24, tape W24"_qs}));
    EXPECT_EQ(printJob.options().value(u"PageSize"_qs), u"W24"_qs);
    EXPECT_EQ(summary().value(0), u"Tape=W24"_qs);
}

TEST_F(PrintDialogTest, OtherOptions_AreShownWithoutThoseOfThePanel)
{
    for (const QString &page : {u"Layout"_qs, u"Job"_qs, u"More Options"_qs}) {
        pickNext(u"pageChooser"_qs);
        EXPECT_EQ(child<QComboBox>(u"pageChooser"_qs)->currentText(), page);
    }
    EXPECT_TRUE(child<QComboBox>(u"CutMedia"_qs)->isVisible());
    EXPECT_TRUE(child<QComboBox>(u"KsMirror"_qs)->isVisible());
    EXPECT_EQ(dialog->findChild<QComboBox *>(u"KsMargin"_qs), nullptr);
    EXPECT_EQ(dialog->findChild<QComboBox *>(u"PageRegion"_qs), nullptr);
    takeCalls();
    pickNext(u"CutMedia"_qs);
    EXPECT_EQ(printJob.options().value(u"CutMedia"_qs), u"Label"_qs);
    // The panel hears of it, but is not seen and so not shown.
    EXPECT_EQ(takeCalls(), QStringList{u"changed CutMedia=Label, tape W12"_qs});
}

TEST_F(PrintDialogTest, PanelThatStays_KeepsTheChooser)
{
    qApp->setProperty("hostTestStay", true);
    pickNext(u"pageChooser"_qs);
    qApp->setProperty("hostTestStay", QVariant());
    EXPECT_EQ(child<QComboBox>(u"pageChooser"_qs)->currentText(), u"Test Panel"_qs);
    EXPECT_TRUE(child<QPushButton>(u"wideMargin"_qs)->isVisible());
}

TEST_F(PrintDialogTest, Revert_BringsEverythingBack)
{
    const QStringList before = printJob.options().lines();
    pickNext(u"tape"_qs);
    QTest::keyClick(child<QSpinBox>(u"copies"_qs), Qt::Key_Up);
    EXPECT_EQ(printJob.options().value(u"copies"_qs), u"2"_qs);
    click(u"revert"_qs);
    EXPECT_EQ(printJob.options().lines(), before);
    EXPECT_EQ(child<QComboBox>(u"tape"_qs)->currentText(), u"12 mm"_qs);
    EXPECT_EQ(child<QSpinBox>(u"copies"_qs)->value(), 1);
    EXPECT_EQ(summary().value(0), u"Tape=W12"_qs);
}

TEST_F(PrintDialogTest, Escape_CancelsAndTellsThePanel)
{
    takeCalls();
    QTest::keyClick(dialog.get(), Qt::Key_Escape);
    EXPECT_FALSE(dialog->isVisible());
    EXPECT_EQ(takeCalls(), QStringList{u"closes"_qs});
    EXPECT_FALSE(dialog->printed().has_value());
    EXPECT_FALSE(QFile::exists(outputPath));
}

TEST_F(PrintDialogTest, ReturnInAField_DoesNotPrint)
{
    auto *field = child<QLineEdit>(u"field"_qs);
    field->setFocus();
    takeCalls();
    QTest::keyClick(field, Qt::Key_Return);
    EXPECT_TRUE(dialog->isVisible());
    EXPECT_FALSE(takeCalls().contains(u"save"_qs));
}

TEST_F(PrintDialogTest, ReturnOnAPopUp_DoesNotPrintAndCtrlReturnDoes)
{
    auto *popUp = child<QComboBox>(u"tape"_qs);
    popUp->setFocus();
    takeCalls();
    QTest::keyClick(popUp, Qt::Key_Return);
    QApplication::processEvents();
    EXPECT_FALSE(takeCalls().contains(u"save"_qs));
    // The panel refuses, so that nothing is printed and the question alone is seen.
    qApp->setProperty("hostTestRefuse", true);
    pdekit::setAlertHandler([](const pdekit::AlertRequest &) {});
    QTest::keyClick(popUp, Qt::Key_Return, Qt::ControlModifier);
    QApplication::processEvents();
    pdekit::setAlertHandler({});
    qApp->setProperty("hostTestRefuse", QVariant());
    EXPECT_TRUE(takeCalls().contains(u"shouldPrint"_qs));
    EXPECT_TRUE(dialog->isVisible());
}

TEST_F(PrintDialogTest, CtrlReturnOnAButtonThatReturnPresses_Prints)
{
    auto *cancel = child<QPushButton>(u"cancel"_qs);
    cancel->setAutoDefault(true); // as all buttons are on some desktops
    cancel->setFocus();
    takeCalls();
    qApp->setProperty("hostTestRefuse", true);
    pdekit::setAlertHandler([](const pdekit::AlertRequest &) {});
    QTest::keyClick(cancel, Qt::Key_Return, Qt::ControlModifier);
    QApplication::processEvents();
    pdekit::setAlertHandler({});
    qApp->setProperty("hostTestRefuse", QVariant());
    EXPECT_TRUE(takeCalls().contains(u"shouldPrint"_qs));
    EXPECT_TRUE(dialog->isVisible());
}

TEST_F(PrintDialogTest, RefusingPanel_KeepsTheDialogOpen)
{
    qApp->setProperty("hostTestRefuse", true);
    int alerts = 0;
    pdekit::setAlertHandler([&alerts](const pdekit::AlertRequest &) { ++alerts; });
    takeCalls();
    click(u"print"_qs);
    pdekit::setAlertHandler({});
    qApp->setProperty("hostTestRefuse", QVariant());
    EXPECT_EQ(takeCalls(), (QStringList{u"save"_qs, u"shouldPrint"_qs})); // of its margin it was told at first
    EXPECT_EQ(alerts, 1);
    EXPECT_TRUE(child<QLabel>(u"notices"_qs)->text().contains(u"HostTest.bundle does not accept the settings."_qs));
    EXPECT_TRUE(dialog->isVisible());
    EXPECT_FALSE(QFile::exists(outputPath));
}

TEST_F(PrintDialogTest, Print_SavesAsksPrintsAndSaysWhereTheBytesWent)
{
    click(u"wideMargin"_qs);
    const auto *preview = dialog->findChild<PreviewArea *>();
    ASSERT_TRUE(QTest::qWaitFor([preview] { return !preview->isCounting(); })); // else it is asked once more
    takeCalls();
    QString said;
    QTimer::singleShot(0, dialog.get(), [this, &said] {
        // The box opens when the filters are through; it is looked for until then.
        auto *timer = new QTimer(dialog.get());
        QObject::connect(timer, &QTimer::timeout, dialog.get(), [timer, &said] {
            if (auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget())) {
                timer->stop();
                said = box->text();
                EXPECT_EQ(box->textFormat(), Qt::PlainText);
                box->accept();
            }
        });
        timer->start(10);
    });
    QApplication::processEvents();
    click(u"print"_qs);
    EXPECT_TRUE(dialog->isVisible()); // printed away from the window's thread
    ASSERT_TRUE(QTest::qWaitFor([&] { return !dialog->isVisible(); }, 30000));
    EXPECT_TRUE(said.contains(outputPath)) << said.toStdString();
    ASSERT_TRUE(dialog->printed().has_value());
    EXPECT_EQ(dialog->printed()->sentence(), said);
    EXPECT_EQ(takeCalls(), (QStringList{u"save"_qs, u"shouldPrint"_qs, u"closes, printed"_qs}));
    QFile output(outputPath);
    ASSERT_TRUE(output.open(QIODevice::ReadOnly));
    EXPECT_EQ(output.readAll(), "Hello\n");
    EXPECT_EQ(printJob.options().value(u"KsMargin"_qs), u"5.0"_qs);
}

TEST_F(PrintDialogTest, PanelThatAsksForAnotherSize_IsToldWhenItsViewHasComeToRestAndGetsIt)
{
    auto *button = child<QPushButton>(u"taller"_qs);
    const QWidget *view = button->parentWidget();
    ASSERT_LT(view->height(), 640);
    takeCalls();
    button->click();
    // Not while the view is being resized.
    EXPECT_EQ(takeCalls(), QStringList());
    ASSERT_TRUE(QTest::qWaitFor([&] { return qApp->property("hostTestCalls").isValid(); }));
    EXPECT_EQ(takeCalls(), QStringList{u"areas changed"_qs});
    QApplication::processEvents();
    EXPECT_GE(view->height(), 640);
    EXPECT_EQ(view->minimumHeight(), 640);
    // Told once: nothing more is waited for.
    dialog->resize(dialog->width() + 10, dialog->height());
    QTest::qWait(50);
    EXPECT_EQ(takeCalls(), QStringList());
}

TEST_F(PrintDialogTest, ResizeOfTheWindow_IsAChangeOfTheViewsAreas)
{
    auto *view = child<QPushButton>(u"taller"_qs)->parentWidget();
    int told = 0;
    QObject observer;
    pdekit::NotificationCenter::defaultCenter().addObserver(
        &observer, [&told](const pdekit::Notification &) { ++told; }, u"NSViewDidUpdateTrackingAreasNotification"_qs,
        view);
    dialog->resize(dialog->width(), dialog->height() + 40);
    ASSERT_TRUE(QTest::qWaitFor([&told] { return told > 0; }));
    QTest::qWait(50);
    EXPECT_EQ(told, 1);
}

/// The window of a printer that no panel belongs to.
class PlainDialog : public PrintDialogTest
{
protected:
    void SetUp() override
    {
        PrintDialogTest::SetUp();
        dialog.reset();
        const QString path =
            hosttest::writeFile(folder, u"plain.ppd"_qs, hosttest::testPpd().replace("KsMargin", "Margin"));
        job::Problem error;
        job::Destination destination;
        destination.ppd = job::openPpdFile(path, &error);
        panels.open(std::move(destination), {});
        dialog = std::make_unique<PrintDialog>(printJob, panels, PrintDialog::Setup{{}, u"label.txt"_qs, files, {}},
                                               PrintDialog::PrintAction());
        ASSERT_TRUE(hosttest::show(*dialog));
    }

    /// The text of a control's label.
    QString labelOf(const QString &name)
    {
        const auto *control = child<QWidget>(name);
        for (const QLabel *label : dialog->findChildren<QLabel *>()) {
            if (label->buddy() == control) {
                return label->text();
            }
        }
        return {};
    }
};

TEST_F(PlainDialog, ShowsThePrintersOptionsFirst)
{
    EXPECT_TRUE(child<QComboBox>(u"CutMedia"_qs)->isVisible());
    EXPECT_TRUE(child<QComboBox>(u"Margin"_qs)->isVisible());
    EXPECT_EQ(child<QComboBox>(u"pageChooser"_qs)->currentText(), u"Printer Options"_qs);
    EXPECT_FALSE(child<QWidget>(u"summary"_qs)->isVisible()); // of panels: there is none
    EXPECT_FALSE(child<QLabel>(u"notices"_qs)->isVisible());
    EXPECT_EQ(dialog->findChild<QPushButton *>(u"wideMargin"_qs), nullptr);
}

TEST_F(PlainDialog, SaysPaper)
{
    EXPECT_EQ(labelOf(u"tape"_qs), u"P&aper:"_qs);
    EXPECT_EQ(child<QWidget>(u"tapePreview"_qs)->accessibleName(), u"Paper preview"_qs);
}

TEST_F(PlainDialog, JobCarriesThePaperAndWhatIsPicked)
{
    EXPECT_EQ(printJob.options().lines(), QStringList{u"PageSize=W12"_qs});
    pickNext(u"Margin"_qs);
    EXPECT_EQ(printJob.options().lines(), (QStringList{u"PageSize=W12"_qs, u"Margin=5.0"_qs}));
    pickNext(u"tape"_qs);
    EXPECT_EQ(printJob.options().lines(), (QStringList{u"PageSize=W24"_qs, u"Margin=5.0"_qs}));
}

TEST_F(PrintDialogTest, WithAPanel_SaysTape)
{
    EXPECT_TRUE(child<QComboBox>(u"pageChooser"_qs)->isVisible());
    EXPECT_EQ(child<QWidget>(u"tapePreview"_qs)->accessibleName(), u"Tape preview"_qs);
}

TEST_F(PrintDialogTest, EitherOfWindowAndPanels_MayGoFirst)
{
    takeCalls();
    dialog.reset();
    panels.open(hosttest::testDestination(folder), {});
    EXPECT_EQ(takeCalls().value(0), u"released"_qs);

    PrintDialog second(printJob, panels, {{}, u"label.txt"_qs, files, {}}, {});
    second.show();
    panels.open(hosttest::testDestination(folder), {});
    EXPECT_EQ(second.findChildren<QPushButton *>(u"wideMargin"_qs).size(), 0);
}

} // namespace
