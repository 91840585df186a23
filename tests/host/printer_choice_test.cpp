// SPDX-License-Identifier: Apache-2.0
// The window and its printers: opened in threads, live, and none of it in the way of the window.
#include "FakeServer.h"

#include "dialog/PrintDialog.h"
#include "dialog/PrinterPopUp.h"
#include "tests/support/LoopWatch.h"
#include "tests/support/Noticeable.h"
#include "tests/support/TextPrinting.h"

#include <QApplication>
#include <QComboBox>
#include <QDateTime>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QSpinBox>
#include <QTest>

#include <gtest/gtest.h>

namespace
{

using namespace tapeprint;
using dialog::PrintDialog;
using hosttest::FakeServer;

class PrinterChoice : public testing::Test
{
protected:
    void SetUp() override
    {
        server->add(u"tape"_qs);
        server->add(u"other"_qs);
    }

    /// \param lastUsed the printer that a program used last.
    void make(const job::JobRequest &request = {}, const QString &lastUsed = {})
    {
        dialog::PrinterSource source = server->source();
        source.lastUsed = lastUsed;
        window = std::make_unique<PrintDialog>(printJob, panels, PrintDialog::Setup{request, u"label"_qs, {}, source},
                                               PrintDialog::PrintAction());
    }
    void open(const job::JobRequest &request = {}, const QString &lastUsed = {})
    {
        make(request, lastUsed);
        window->show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(window.get()));
    }
    void openWith(const QString &queue)
    {
        job::JobRequest request;
        request.queue = queue;
        open(request);
        ASSERT_TRUE(waitForPrinter(queue));
    }

    template <typename Widget>
    Widget *child(const char *name)
    {
        auto *widget = window->findChild<Widget *>(QString::fromLatin1(name));
        EXPECT_NE(widget, nullptr) << name;
        return widget;
    }
    QComboBox *printers() { return child<QComboBox>("printer"); }
    bool canPrint() { return child<QPushButton>("print")->isEnabled(); }
    QString notices() { return child<QLabel>("notices")->text(); }
    QString shown() { return printers()->currentData(dialog::PrinterModel::NameRole).toString(); }
    QString choice(const char *option) { return printJob.options().value(QString::fromLatin1(option)); }

    static bool waitFor(const std::function<bool()> &condition) { return QTest::qWaitFor(condition, 20000); }
    bool waitForPrinter(const QString &name)
    {
        return waitFor([&] {
            return window->isSettled() && printJob.destination().queue &&
                   printJob.destination().queue->fullName() == name;
        });
    }
    bool waitForNotice(const QString &part)
    {
        return waitFor([&] { return notices().contains(part); });
    }
    /// As a person picks from the list.
    void pick(const QString &name)
    {
        ASSERT_TRUE(waitFor([&] { return printers()->findData(name, dialog::PrinterModel::NameRole) >= 0; }));
        const int row = printers()->findData(name, dialog::PrinterModel::NameRole);
        printers()->setCurrentIndex(row);
        Q_EMIT printers()->activated(row);
    }

    QTemporaryDir folder;
    std::shared_ptr<FakeServer> server = std::make_shared<FakeServer>(folder);
    job::Job printJob;
    dialog::Panels panels{printJob, hosttest::goodBundles()};
    std::unique_ptr<PrintDialog> window;
};

TEST_F(PrinterChoice, CopiesThatTheServerDoesNotMake_CannotBeTyped)
{
    server->limit(u"tape"_qs, {20, {}});
    openWith(u"tape"_qs);
    auto *copies = child<QSpinBox>("copies");
    copies->selectAll();
    QTest::keyClicks(copies, u"21"_qs);
    copies->setValue(copies->value() + 100); // as by many steps
    EXPECT_LE(printJob.copies(), 20);
    EXPECT_EQ(copies->maximum(), 20);
    pick(u"other"_qs);
    ASSERT_TRUE(waitForPrinter(u"other"_qs));
    EXPECT_GT(copies->maximum(), 20);
}

TEST_F(PrinterChoice, MoreCopiesThanTheServerMakesAskedForAtFirst_StayAsTheyAreAskedFor)
{
    server->limit(u"tape"_qs, {20, {}});
    job::JobRequest request;
    request.queue = u"tape"_qs;
    request.options.set(job::OptionName::copies, u"50"_qs);
    open(request);
    ASSERT_TRUE(waitForPrinter(u"tape"_qs));
    EXPECT_EQ(child<QSpinBox>("copies")->value(), 50);
    EXPECT_EQ(printJob.copies(), 50); // Print says that they are too many
    child<QSpinBox>("copies")->setValue(3);
    EXPECT_TRUE(waitFor([&] { return child<QSpinBox>("copies")->maximum() == 20; }));
}

TEST_F(PrinterChoice, WhileThePrinterIsConnected_TheWindowIsUpAndPrintIsOff)
{
    server->hold(u"tape"_qs);
    job::JobRequest request;
    request.queue = u"tape"_qs;
    open(request);
    const test::LoopWatch watch;
    EXPECT_TRUE(waitFor([&] { return printers()->count() == 2; })); // the list is live already
    QTest::qWait(100);
    EXPECT_LT(watch.longestMs(), test::noticeableMs);
    EXPECT_FALSE(window->isSettled());
    EXPECT_FALSE(canPrint());
    EXPECT_FALSE(child<QSpinBox>("copies")->isEnabled());
    EXPECT_TRUE(printers()->isEnabled());
    EXPECT_EQ(shown(), u"tape"_qs);
    EXPECT_EQ(window->windowTitle(), u"Print label – connecting…"_qs);
    server->letGo(u"tape"_qs);
    ASSERT_TRUE(waitForPrinter(u"tape"_qs));
    EXPECT_TRUE(canPrint());
    EXPECT_TRUE(child<QSpinBox>("copies")->isEnabled());
    EXPECT_EQ(window->windowTitle(), u"Print label"_qs);
    EXPECT_TRUE(child<QPushButton>("wideMargin")->isVisible()); // the panel's
}

TEST_F(PrinterChoice, WindowThatGrowsForItsPrinter_StaysOnTheScreen)
{
    server->hold(u"tape"_qs);
    job::JobRequest request;
    request.queue = u"tape"_qs;
    open(request);
    const QRect screen = window->screen()->availableGeometry();
    window->resize(window->minimumSizeHint());
    window->move(screen.bottomRight() - QPoint(window->width(), window->height()));
    server->letGo(u"tape"_qs);
    ASSERT_TRUE(waitForPrinter(u"tape"_qs));
    ASSERT_TRUE(waitFor([&] { return window->height() >= window->sizeHint().height(); }));
    const QRect frame = window->frameGeometry();
    EXPECT_TRUE(screen.contains(frame)) << frame.left() << ' ' << frame.top() << ' ' << frame.width() << ' '
                                        << frame.height();
}

TEST_F(PrinterChoice, NoDefaultAndSeveralQueues_AsksToChoose)
{
    open();
    ASSERT_TRUE(waitForNotice(u"Choose a printer"_qs));
    EXPECT_EQ(printers()->currentIndex(), -1);
    EXPECT_FALSE(canPrint());
    pick(u"other"_qs);
    ASSERT_TRUE(waitForPrinter(u"other"_qs));
    EXPECT_TRUE(canPrint());
    EXPECT_EQ(notices(), QString());
}

TEST_F(PrinterChoice, NoDefaultAndOneQueue_TakesIt)
{
    server->remove(u"other"_qs);
    open();
    EXPECT_TRUE(waitForPrinter(u"tape"_qs));
    EXPECT_TRUE(canPrint());
}

TEST_F(PrinterChoice, Default_IsOpenedWithoutBeingNamed)
{
    server->setDefault(u"other"_qs);
    open();
    EXPECT_TRUE(waitForPrinter(u"other"_qs));
    EXPECT_EQ(shown(), u"other"_qs);
}

TEST_F(PrinterChoice, PrinterThatWasUsedLast_GoesBeforeTheDefault)
{
    server->setDefault(u"other"_qs);
    open({}, u"tape"_qs);
    EXPECT_TRUE(waitForPrinter(u"tape"_qs));
    EXPECT_EQ(notices(), QString());
}

TEST_F(PrinterChoice, PrinterThatWasUsedLastAndIsGone_IsNamedBesideTheOneThatIsTakenUntilThePersonPicks)
{
    server->setDefault(u"other"_qs);
    open({}, u"gone"_qs);
    ASSERT_TRUE(waitForPrinter(u"other"_qs));
    EXPECT_TRUE(notices().contains(u"gone, which was used last, is not there"_qs)) << notices().toStdString();
    EXPECT_TRUE(notices().contains(u"printer other is taken"_qs)) << notices().toStdString();
    pick(u"tape"_qs);
    ASSERT_TRUE(waitForPrinter(u"tape"_qs));
    EXPECT_EQ(notices(), QString());
}

TEST_F(PrinterChoice, PrinterThatWasUsedLastAndIsGone_IsNamedWhereTheServersOnlyOneIsTaken)
{
    server->remove(u"other"_qs);
    open({}, u"gone"_qs);
    ASSERT_TRUE(waitForPrinter(u"tape"_qs));
    EXPECT_TRUE(notices().contains(u"gone, which was used last, is not there"_qs)) << notices().toStdString();
    EXPECT_TRUE(notices().contains(u"printer tape is taken"_qs)) << notices().toStdString();
}

TEST_F(PrinterChoice, PrinterThatWasUsedLastAndIsGone_IsNamedWhereNoneIsTaken)
{
    open({}, u"gone"_qs);
    ASSERT_TRUE(waitForNotice(u"Choose a printer"_qs));
    EXPECT_TRUE(notices().contains(u"gone, which was used last, is not there"_qs)) << notices().toStdString();
    EXPECT_FALSE(canPrint());
}

TEST_F(PrinterChoice, WindowThatIsShownWithWordsOfManyLines_GrowsForItsPageAllTheSame)
{
    server->setDefault(u"other"_qs);
    job::JobRequest request;
    request.options.set(u"page-ranges"_qs, u"6-4"_qs);
    make(request, u"a printer that is gone, with a name of many words "_qs.repeated(3));
    ASSERT_TRUE(waitForPrinter(u"other"_qs));
    QTest::qWait(0); // until it has the size that it takes unseen
    window->show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(window.get()));
    EXPECT_TRUE(waitFor([&] { return window->height() >= window->sizeHint().height(); }))
        << window->height() << " of " << window->sizeHint().height();
}

TEST_F(PrinterChoice, PrinterThatWasUsedLastOnASilentServer_IsOpenedWhenItAnswersAndNoOther)
{
    server->setDefault(u"other"_qs);
    server->setSilent(true);
    open({}, u"tape"_qs);
    ASSERT_TRUE(waitForNotice(u"does not answer"_qs));
    server->setSilent(false);
    EXPECT_TRUE(waitForPrinter(u"tape"_qs));
    for (const job::JobRequest &request : server->opened()) {
        EXPECT_EQ(request.queue, u"tape"_qs);
    }
}

TEST_F(PrinterChoice, PickThatFails_IsSaidAndLeavesThePrinterBefore)
{
    openWith(u"tape"_qs);
    server->add(u"third"_qs);
    ASSERT_TRUE(waitFor([&] { return printers()->count() == 3; }));
    server->hold(u"third"_qs);
    pick(u"third"_qs);
    EXPECT_EQ(shown(), u"third"_qs);
    EXPECT_FALSE(canPrint());
    server->remove(u"third"_qs);
    server->letGo(u"third"_qs);
    ASSERT_TRUE(waitForNotice(u"no queue third"_qs));
    EXPECT_EQ(shown(), u"tape"_qs);
    EXPECT_EQ(printJob.destination().queue->name, u"tape"_qs);
    EXPECT_TRUE(canPrint());
}

TEST_F(PrinterChoice, DeclinedPasswordWithNoPrinterNamed_CanBeAskedForAgain)
{
    server->setDeclined(true);
    open();
    ASSERT_TRUE(waitForNotice(u"no password"_qs));
    auto *askAgain = child<QPushButton>("askAgain");
    ASSERT_TRUE(askAgain->isVisible());
    EXPECT_TRUE(askAgain->isEnabled());
    const std::size_t before = server->opened().size();
    askAgain->click();
    ASSERT_TRUE(waitFor([&] { return server->opened().size() > before && window->isSettled(); }));
    EXPECT_TRUE(askAgain->isVisible()); // declined once more
    server->setDeclined(false);
    server->setDefault(u"other"_qs);
    askAgain->click();
    EXPECT_TRUE(waitForPrinter(u"other"_qs));
    EXPECT_FALSE(askAgain->isVisible());
    EXPECT_EQ(notices(), QString());
}

TEST_F(PrinterChoice, DeclinedPasswordForAPickedPrinter_IsAskedForAgainForThatOne)
{
    openWith(u"tape"_qs);
    server->setDeclined(true);
    pick(u"other"_qs);
    ASSERT_TRUE(waitForNotice(u"no password"_qs));
    EXPECT_TRUE(canPrint()); // on the printer before
    server->setDeclined(false);
    auto *askAgain = child<QPushButton>("askAgain");
    ASSERT_TRUE(askAgain->isVisible());
    askAgain->click();
    EXPECT_TRUE(waitForPrinter(u"other"_qs));
    EXPECT_FALSE(askAgain->isVisible());
}

TEST_F(PrinterChoice, WrongPasswords_AreAskedForAgainWhenThatIsWishedAndNotBefore)
{
    server->setDeclined(true, job::Problem::RejectedJob);
    server->setDefault(u"other"_qs);
    open();
    ASSERT_TRUE(waitForNotice(u"no password"_qs));
    const int readings = server->readings();
    ASSERT_TRUE(waitFor([&] { return server->readings() > readings + 10; }));
    EXPECT_EQ(server->opened().size(), 1U);
    server->setDeclined(false);
    auto *askAgain = child<QPushButton>("askAgain");
    ASSERT_TRUE(askAgain->isVisible());
    askAgain->click();
    EXPECT_TRUE(waitForPrinter(u"other"_qs));
}

TEST_F(PrinterChoice, NewestPick_Wins)
{
    openWith(u"tape"_qs);
    server->add(u"third"_qs);
    server->hold(u"other"_qs);
    pick(u"other"_qs);
    pick(u"third"_qs);
    ASSERT_TRUE(waitForPrinter(u"third"_qs));
    server->letGo(u"other"_qs);
    QTest::qWait(100);
    EXPECT_EQ(printJob.destination().queue->name, u"third"_qs);
    EXPECT_EQ(shown(), u"third"_qs);
}

TEST_F(PrinterChoice, OpenPrinterPickedAgain_EndsTheOpeningOfTheOther)
{
    openWith(u"tape"_qs);
    server->hold(u"other"_qs);
    pick(u"other"_qs);
    EXPECT_FALSE(canPrint());
    pick(u"tape"_qs);
    EXPECT_TRUE(canPrint());
    server->letGo(u"other"_qs);
    QTest::qWait(100);
    EXPECT_EQ(printJob.destination().queue->name, u"tape"_qs);
}

TEST_F(PrinterChoice, WhatThePersonChose_IsKeptOnAnotherPrinter)
{
    openWith(u"tape"_qs);
    child<QSpinBox>("copies")->setValue(3);
    printJob.changeOption(u"page-ranges"_qs, u"2-4"_qs);
    printJob.changeOption(u"CutMedia"_qs, u"Label"_qs);
    printJob.changeOption(u"PageSize"_qs, u"W24"_qs);
    child<QPushButton>("wideMargin")->click(); // the panel sends KsMargin=5.0
    ASSERT_EQ(choice("KsMargin"), u"5.0"_qs);
    pick(u"other"_qs);
    ASSERT_TRUE(waitForPrinter(u"other"_qs));
    EXPECT_EQ(printJob.copies(), 3);
    EXPECT_EQ(child<QSpinBox>("copies")->value(), 3);
    EXPECT_EQ(choice("page-ranges"), u"2-4"_qs);
    EXPECT_EQ(choice("CutMedia"), u"Label"_qs);
    EXPECT_EQ(choice("PageSize"), u"W24"_qs);
    EXPECT_EQ(choice("KsMargin"), u"5.0"_qs);
}

TEST_F(PrinterChoice, PpdAndOutputThatWereAskedFor_GoWithTheirPrinterAlone)
{
    job::JobRequest request;
    request.queue = u"tape"_qs;
    request.ppdPath = u"/asked.ppd"_qs;
    request.outputPath = u"/asked.prn"_qs;
    open(request);
    ASSERT_TRUE(waitForPrinter(u"tape"_qs));
    EXPECT_TRUE(printJob.destination().isFile());
    pick(u"other"_qs);
    ASSERT_TRUE(waitForPrinter(u"other"_qs));
    EXPECT_FALSE(printJob.destination().isFile()); // to the queue, with the queue's own PPD
    EXPECT_EQ(printJob.destination().ppdPath, QString());
    pick(u"tape"_qs);
    ASSERT_TRUE(waitForPrinter(u"tape"_qs));
    EXPECT_EQ(printJob.destination().ppdPath, u"/asked.ppd"_qs);
    EXPECT_EQ(printJob.destination().outputPath, u"/asked.prn"_qs);
}

TEST_F(PrinterChoice, PrinterThatStopsWithAReason_IsSaidUntilItGoesOn)
{
    openWith(u"tape"_qs);
    server->change(u"tape"_qs, [](job::Printer &printer) {
        printer.state = job::PrinterState::Stopped;
        printer.reasons = job::stateReasons({u"paused"_qs});
        printer.stateMessage = u"out of tape"_qs;
    });
    ASSERT_TRUE(waitForNotice(u"The printer tape is stopped: out of tape."_qs));
    EXPECT_TRUE(printers()->toolTip().contains(u"Stopped: out of tape"_qs));
    EXPECT_TRUE(canPrint()); // a job waits
    server->change(u"tape"_qs, [](job::Printer &printer) {
        printer.state = job::PrinterState::Idle;
        printer.reasons.clear();
    });
    EXPECT_TRUE(waitFor([&] { return notices().isEmpty(); }));
}

TEST_F(PrinterChoice, PrinterThatVanishes_IsSaidAndWorksAgainWhenItIsBack)
{
    openWith(u"tape"_qs);
    printJob.changeOption(u"CutMedia"_qs, u"Label"_qs);
    ASSERT_TRUE(waitFor([&] { return printers()->count() == 2; }));
    server->remove(u"tape"_qs);
    ASSERT_TRUE(waitForNotice(u"The printer tape is not there any more."_qs));
    EXPECT_FALSE(canPrint());
    EXPECT_FALSE(child<QPushButton>("print")->toolTip().isEmpty()); // says why
    EXPECT_EQ(shown(), u"tape"_qs);
    EXPECT_EQ(choice("CutMedia"), u"Label"_qs);
    server->add(u"tape"_qs);
    ASSERT_TRUE(waitFor([&] { return canPrint(); }));
    EXPECT_EQ(choice("CutMedia"), u"Label"_qs);
    EXPECT_EQ(notices(), QString());
}

TEST_F(PrinterChoice, NewDescription_IsSaidAndLoadedWithTheChoicesKept)
{
    openWith(u"tape"_qs);
    printJob.changeOption(u"CutMedia"_qs, u"Label"_qs);
    auto *loadAnew = child<QPushButton>("loadAnew");
    EXPECT_FALSE(loadAnew->isVisible());
    server->describe(u"tape"_qs, "*TestMark: \"new\"\n");
    ASSERT_TRUE(waitForNotice(u"The description of the printer tape has changed"_qs));
    ASSERT_TRUE(loadAnew->isVisible());
    const auto isNew = [this] { return ppdFindAttr(printJob.ppd(), "TestMark", nullptr) != nullptr; };
    EXPECT_FALSE(isNew());
    loadAnew->click();
    ASSERT_TRUE(waitFor(isNew));
    EXPECT_FALSE(loadAnew->isVisible());
    EXPECT_EQ(notices(), QString());
    EXPECT_EQ(choice("CutMedia"), u"Label"_qs);
    EXPECT_TRUE(canPrint());
}

TEST_F(PrinterChoice, NewDescriptionThatCannotBeReadAtFirst_IsSaidWhenItCan)
{
    openWith(u"tape"_qs);
    const std::size_t before = server->opened().size();
    server->setFails(true);
    server->describe(u"tape"_qs, "*TestMark: \"new\"\n");
    ASSERT_TRUE(waitFor([&] { return server->opened().size() > before; }));
    server->setFails(false); // nothing on the server's list changes by it
    EXPECT_TRUE(waitForNotice(u"The description of the printer tape has changed"_qs));
}

TEST_F(PrinterChoice, PasswordDeclinedForALookAtAChangedDescription_IsAskedForAgainWhenThatIsWishedAndNotBefore)
{
    openWith(u"tape"_qs);
    const std::size_t before = server->opened().size();
    server->setDeclined(true);
    server->describe(u"tape"_qs, "*TestMark: \"new\"\n");
    ASSERT_TRUE(waitFor([&] { return server->opened().size() > before; }));
    const int readings = server->readings();
    ASSERT_TRUE(waitFor([&] { return server->readings() > readings + 10; })); // each of which could look again
    EXPECT_EQ(server->opened().size(), before + 1);
    EXPECT_TRUE(canPrint());
    EXPECT_TRUE(notices().contains(u"its description was not looked at. Ask again"_qs)) << notices().toStdString();
    server->setDeclined(false);
    auto *askAgain = child<QPushButton>("askAgain");
    ASSERT_TRUE(askAgain->isVisible());
    askAgain->click();
    ASSERT_TRUE(waitForNotice(u"The description of the printer tape has changed"_qs));
    EXPECT_FALSE(notices().contains(u"not looked at"_qs)) << notices().toStdString();
    EXPECT_FALSE(askAgain->isVisible());
    EXPECT_TRUE(child<QPushButton>("loadAnew")->isVisible());
}

TEST_F(PrinterChoice, DescriptionThatChangesTwiceInASecond_IsSaid)
{
    const auto now = static_cast<int>(QDateTime::currentSecsSinceEpoch());
    server->change(u"tape"_qs, [now](job::Printer &printer) { printer.configuredAt = now; });
    openWith(u"tape"_qs);
    server->describeInTheSameSecond(u"tape"_qs, "*TestMark: \"new\"\n");
    EXPECT_TRUE(waitForNotice(u"The description of the printer tape has changed"_qs));
}

TEST_F(PrinterChoice, SettingsOfTheQueueThatLeaveItsDescriptionAlone_AreNotSpokenOf)
{
    openWith(u"tape"_qs);
    const std::size_t before = server->opened().size();
    server->describe(u"tape"_qs, {}); // the same again, at another time
    ASSERT_TRUE(waitFor([&] { return server->opened().size() > before; }));
    QTest::qWait(100);
    EXPECT_EQ(notices(), QString());
}

TEST_F(PrinterChoice, WhileABoxStandsOpen_NoPrinterIsHandedOver)
{
    openWith(u"tape"_qs);
    QMessageBox box(window.get()); // as an alert of a panel that is in the middle of a call
    box.setModal(true);
    box.open();
    pick(u"other"_qs);
    ASSERT_TRUE(waitFor([&] { return server->opened().size() == 2; }));
    QTest::qWait(200);
    EXPECT_EQ(printJob.destination().queue->name, u"tape"_qs);
    box.close();
    EXPECT_TRUE(waitForPrinter(u"other"_qs));
}

TEST_F(PrinterChoice, SilentServer_IsSaidAndItsPrinterOpensWhenItIsBack)
{
    server->setSilent(true);
    job::JobRequest request;
    request.queue = u"tape"_qs;
    open(request);
    ASSERT_TRUE(waitForNotice(u"The print server does not answer."_qs));
    EXPECT_FALSE(canPrint());
    server->setSilent(false);
    ASSERT_TRUE(waitForPrinter(u"tape"_qs));
    EXPECT_TRUE(canPrint());
    // The printer may have been opened before the list was read anew, which takes the sentence away.
    EXPECT_TRUE(waitFor([&] { return notices().isEmpty(); }));
    server->setSilent(true);
    ASSERT_TRUE(waitForNotice(u"The print server does not answer."_qs));
    EXPECT_EQ(printers()->count(), 2); // as it was last
}

TEST_F(PrinterChoice, ServerThatTakesItsTime_IsAskedOnceAtATime)
{
    std::atomic<int> running = 0;
    std::atomic<int> most = 0;
    dialog::PrinterSource source = server->source(1);
    source.list = [&](const std::atomic<bool> &, job::Problem *) {
        most = std::max(most.load(), ++running);
        QThread::msleep(30);
        --running;
        return std::optional(job::PrinterList());
    };
    window = std::make_unique<PrintDialog>(printJob, panels, PrintDialog::Setup{{}, u"label"_qs, {}, source},
                                           PrintDialog::PrintAction());
    QTest::qWait(300);
    window.reset();
    EXPECT_TRUE(waitFor([&] { return running == 0; }));
    EXPECT_EQ(most, 1);
}

TEST_F(PrinterChoice, ManyPrinters_AreSearchedByWhatTheyAreCalledAndWhereTheyStand)
{
    for (int i = 0; i < 20; ++i) {
        server->add(QStringLiteral("printer-%1").arg(i));
    }
    server->change(u"printer-7"_qs, [](job::Printer &printer) { printer.location = u"Hall"_qs; });
    openWith(u"tape"_qs);
    ASSERT_TRUE(waitFor([&] { return printers()->count() == 22; }));
    QTest::keyClick(printers(), Qt::Key_Space);
    auto *line = child<QLineEdit>("printerSearch");
    auto *found = child<QListView>("foundPrinters");
    ASSERT_TRUE(line->isVisible());
    EXPECT_EQ(found->model()->rowCount(), 22);
    QTest::keyClicks(line, u"hALL"_qs);
    ASSERT_EQ(found->model()->rowCount(), 1);
    QTest::keyClick(line, Qt::Key_Return);
    EXPECT_FALSE(line->isVisible());
    EXPECT_TRUE(waitForPrinter(u"printer-7"_qs));
    EXPECT_EQ(shown(), u"printer-7"_qs);
}

TEST_F(PrinterChoice, ReturnAfterASearch_TakesWhatWasTypedAndNotWhatHappensToBeCurrent)
{
    for (int i = 0; i < 20; ++i) {
        server->add(QStringLiteral("printer-%1").arg(19 - i));
    }
    server->change(u"printer-18"_qs, [](job::Printer &printer) { printer.location = u"beside other"_qs; });
    openWith(u"printer-15"_qs);
    ASSERT_TRUE(waitFor([&] { return printers()->count() == 22; }));
    const auto choose = [&](const QString &typed) {
        QTest::keyClick(printers(), Qt::Key_Space);
        auto *line = child<QLineEdit>("printerSearch");
        QTest::keyClicks(line, typed);
        QTest::keyClick(line, Qt::Key_Return);
    };
    choose(u"printer-1"_qs); // and the open printer's name begins so, too
    EXPECT_TRUE(waitForPrinter(u"printer-1"_qs)) << shown().toStdString();
    choose(u"oTHER"_qs); // and one stands beside it
    EXPECT_TRUE(waitForPrinter(u"other"_qs)) << shown().toStdString();
    choose(u"beside"_qs);
    EXPECT_TRUE(waitForPrinter(u"printer-18"_qs)) << shown().toStdString();
    QTest::keyClick(printers(), Qt::Key_Space);
    auto *line = child<QLineEdit>("printerSearch");
    QTest::keyClicks(line, u"tape"_qs);
    line->clear();
    EXPECT_EQ(child<QListView>("foundPrinters")->currentIndex().data(dialog::PrinterModel::NameRole).toString(),
              u"printer-18"_qs);
    QTest::keyClick(line, Qt::Key_Return);
}

TEST_F(PrinterChoice, SearchLine_PassesTheArrowsToTheList)
{
    for (int i = 0; i < 20; ++i) {
        server->add(QStringLiteral("printer-%1").arg(i));
    }
    openWith(u"tape"_qs);
    ASSERT_TRUE(waitFor([&] { return printers()->count() == 22; }));
    QTest::keyClick(printers(), Qt::Key_Space);
    auto *line = child<QLineEdit>("printerSearch");
    QTest::keyClick(line, Qt::Key_Down); // from "tape" to "other"
    QTest::keyClick(line, Qt::Key_Return);
    EXPECT_TRUE(waitForPrinter(u"other"_qs));
}

TEST_F(PrinterChoice, FewPrinters_OpenTheUsualList)
{
    openWith(u"tape"_qs);
    ASSERT_TRUE(waitFor([&] { return printers()->count() == 2; }));
    QTest::keyClick(printers(), Qt::Key_Space);
    EXPECT_EQ(window->findChild<QLineEdit *>(u"printerSearch"_qs), nullptr);
    EXPECT_TRUE(printers()->view()->isVisible());
}

} // namespace
