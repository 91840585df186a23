// SPDX-License-Identifier: Apache-2.0
// The window on a real server whose queues come, stop and go: how soon it is seen, and that the window never waits for
// it.
#include "dialog/PrintDialog.h"
#include "dialog/PrinterPopUp.h"
#include "job/JobFollowing.h"
#include "tests/support/LoopWatch.h"
#include "tests/support/Noticeable.h"
#include "tests/system/Client.h"
#include "tests/system/PrivateCups.h"

#include <QComboBox>
#include <QElapsedTimer>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

#include <gtest/gtest.h>

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace
{

using namespace tapeprint;
using dialog::PrintDialog;
using systemtest::PrivateCups;

/// How long a change may take to be seen.
constexpr qint64 soonMs = 2000;

class LivePrinters : public testing::Test
{
protected:
    void SetUp() override
    {
        if (const QString reason = PrivateCups::reasonToSkip(); !reason.isNull()) {
            GTEST_SKIP() << reason.toStdString();
        }
    }

    /// Starts the server with the queue "tape".
    void startServer()
    {
        const QString problem = cups.start();
        ASSERT_TRUE(problem.isNull()) << problem.toStdString();
        succeed(cups.addPlainQueue(u"tape"_qs, u"mm"_qs));
        cups.useHere();
    }
    static void succeed(const QString &problem) { ASSERT_TRUE(problem.isNull()) << problem.toStdString(); }

    void open(const QString &queue)
    {
        job::JobRequest request;
        request.queue = queue;
        window = std::make_unique<PrintDialog>(
            printJob, panels, PrintDialog::Setup{request, u"label"_qs, {}, dialog::PrinterSource::server()},
            PrintDialog::PrintAction());
        window->show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(window.get()));
    }
    void openConnected(const QString &queue)
    {
        open(queue);
        ASSERT_TRUE(waitFor([&] { return printJob.destination().queue.has_value() && printers()->count() > 0; }));
    }

    QComboBox *printers() { return window->findChild<QComboBox *>(u"printer"_qs); }
    QString notices() { return window->findChild<QLabel *>(u"notices"_qs)->text(); }
    bool canPrint() { return window->findChild<QPushButton *>(u"print"_qs)->isEnabled(); }
    bool offers(const QString &queue) { return printers()->findData(queue, dialog::PrinterModel::NameRole) >= 0; }

    static bool waitFor(const std::function<bool()> &condition, qint64 timeoutMs = systemtest::patienceMs)
    {
        return QTest::qWaitFor(condition, static_cast<int>(timeoutMs));
    }

    PrivateCups cups;
    job::Job printJob;
    dialog::Panels panels{printJob, {QStringLiteral(TAPEPRINT_BUNDLE_DIR)}};
    std::unique_ptr<PrintDialog> window;
};

TEST_F(LivePrinters, QueueThatComesStopsAndGoes_IsSeenWithinTwoSeconds)
{
    ASSERT_NO_FATAL_FAILURE(startServer());
    ASSERT_NO_FATAL_FAILURE(openConnected(u"tape"_qs));
    ASSERT_TRUE(waitFor([&] { return offers(u"tape"_qs); }));

    succeed(cups.addPlainQueue(u"second"_qs, u"inch"_qs));
    EXPECT_TRUE(waitFor([&] { return offers(u"second"_qs); }, soonMs));

    succeed(cups.run(u"cupsdisable"_qs, {u"-r"_qs, u"out of tape"_qs, u"tape"_qs}));
    EXPECT_TRUE(waitFor([&] { return notices().contains(u"stopped: out of tape"_qs); }, soonMs))
        << notices().toStdString();
    succeed(cups.run(u"cupsenable"_qs, {u"tape"_qs}));
    EXPECT_TRUE(waitFor([&] { return notices().isEmpty(); }, soonMs)) << notices().toStdString();

    succeed(cups.run(u"cupsreject"_qs, {u"-r"_qs, u"moved"_qs, u"tape"_qs}));
    EXPECT_TRUE(waitFor([&] { return notices().contains(u"takes no jobs: moved"_qs); }, soonMs))
        << notices().toStdString();
    succeed(cups.run(u"cupsaccept"_qs, {u"tape"_qs}));

    succeed(cups.run(u"lpadmin"_qs, {u"-x"_qs, u"second"_qs}));
    EXPECT_TRUE(waitFor([&] { return !offers(u"second"_qs); }, soonMs));
    EXPECT_TRUE(canPrint());
    succeed(cups.run(u"lpadmin"_qs, {u"-x"_qs, u"tape"_qs}));
    EXPECT_TRUE(waitFor([&] { return notices().contains(u"not there any more"_qs) && !canPrint(); }, soonMs));
    succeed(cups.addPlainQueue(u"tape"_qs, u"mm"_qs));
    EXPECT_TRUE(waitFor([&] { return canPrint(); }, soonMs));
}

TEST_F(LivePrinters, Class_IsAmongThePrintersAndIsOpened)
{
    ASSERT_NO_FATAL_FAILURE(startServer());
    ASSERT_NO_FATAL_FAILURE(openConnected(u"tape"_qs));
    succeed(cups.run(u"lpadmin"_qs, {u"-p"_qs, u"tape"_qs, u"-c"_qs, u"all"_qs}));
    ASSERT_TRUE(waitFor([&] { return offers(u"all"_qs); }, soonMs));
    const int row = printers()->findData(u"all"_qs, dialog::PrinterModel::NameRole);
    EXPECT_TRUE(printers()->itemData(row, Qt::ToolTipRole).toString().contains(u"A class"_qs));
    succeed(cups.run(u"cupsaccept"_qs, {u"all"_qs}));
    succeed(cups.run(u"cupsenable"_qs, {u"all"_qs}));
    printers()->setCurrentIndex(row);
    Q_EMIT printers()->activated(row);
    ASSERT_TRUE(waitFor([&] { return printJob.destination().queue->name == u"all"_qs && canPrint(); }));
    EXPECT_FALSE(panels.entries().empty()); // by the description of its first queue
    succeed(cups.run(u"cupsreject"_qs, {u"-r"_qs, u"moved"_qs, u"all"_qs}));
    EXPECT_TRUE(waitFor([&] { return notices().contains(u"takes no jobs: moved"_qs); }, soonMs))
        << notices().toStdString();
}

TEST_F(LivePrinters, LabelsThatAreOut_AreCountedWhileAJobIsFollowed)
{
    ASSERT_NO_FATAL_FAILURE(startServer());
    succeed(cups.addScriptedQueue(u"counting"_qs, u"mm"_qs,
                                  "cat >/dev/null; echo 'PAGE: 1 2' >&2; echo 'PAGE: 2 1' >&2; sleep 1; echo tape\n"));
    const QString document = QStringLiteral(TAPEPRINT_SOURCE_DIR "/docs/sample/address-label.pdf");
    ASSERT_EQ(
        systemtest::runClient({u"/usr/bin/lp"_qs, {u"-d"_qs, u"counting"_qs, document}, cups.clientVariables()}).status,
        0);
    const std::atomic<bool> neverStopped{false};
    job::Problem problem;
    bool isHalfSeen = false;
    job::followJob(
        {u"counting"_qs, 1, true}, neverStopped,
        [&isHalfSeen](const job::JobNews &news) { isHalfSeen = isHalfSeen || news.percentOf(6) == 50; }, &problem);
    EXPECT_TRUE(isHalfSeen); // two and one of six
}

TEST_F(LivePrinters, DescriptionThatChangesOnTheServer_IsSaidAndLoaded)
{
    ASSERT_NO_FATAL_FAILURE(startServer());
    ASSERT_NO_FATAL_FAILURE(openConnected(u"tape"_qs));
    ASSERT_FALSE(panels.entries().empty());
    // The plain description, which no panel belongs to, takes the place of the other.
    QTest::qWait(1100); // the server counts in whole seconds
    succeed(cups.addPlainQueue(u"tape"_qs, u"plain"_qs));
    ASSERT_TRUE(waitFor([&] { return notices().contains(u"description of the printer tape has changed"_qs); }));
    ASSERT_FALSE(panels.entries().empty()); // the job stays as it is until then
    window->findChild<QPushButton *>(u"loadAnew"_qs)->click();
    EXPECT_TRUE(waitFor([&] { return panels.entries().empty() && notices().isEmpty(); }));
}

TEST_F(LivePrinters, FiveHundredQueues_AreThereAtOnceAndNeverInTheWay)
{
    cups.configureManyQueues(500);
    ASSERT_NO_FATAL_FAILURE(startServer());
    QElapsedTimer timer;
    timer.start();
    ASSERT_NO_FATAL_FAILURE(open(QString())); // there is no default: the list alone
    const test::LoopWatch watch;
    ASSERT_TRUE(waitFor([&] { return printers()->count() == 501; }));
    const qint64 listedMs = timer.elapsed();
    QTest::qWait(1500); // another reading
    RecordProperty("listedMs", static_cast<int>(listedMs));
    RecordProperty("longestGapMs", static_cast<int>(watch.longestMs()));
    std::printf("501 queues: listed after %lld ms, longest gap %lld ms\n", static_cast<long long>(listedMs),
                static_cast<long long>(watch.longestMs()));
    EXPECT_LT(listedMs, soonMs);
    EXPECT_LT(watch.longestMs(), test::noticeableMs);

    // One of them is found by its name and opened, and the window answers all the while.
    succeed(cups.run(u"lpadmin"_qs,
                     {u"-p"_qs, u"many-49"_qs, u"-P"_qs, QStringLiteral(TAPEPRINT_PRINTER_DIR "/tapeprint-inch.ppd")}));
    const test::LoopWatch choosing;
    for (const QString &name : {u"tape"_qs, u"many-49"_qs}) { // ten more begin as the second does
        QTest::keyClick(printers(), Qt::Key_Space);
        auto *line = window->findChild<QLineEdit *>(u"printerSearch"_qs);
        ASSERT_NE(line, nullptr);
        QTest::keyClicks(line, name);
        QTest::keyClick(line, Qt::Key_Return);
        EXPECT_TRUE(waitFor([&] {
            return canPrint() && printJob.destination().queue && printJob.destination().queue->name == name;
        })) << name.toStdString();
        EXPECT_FALSE(panels.entries().empty());
    }
    std::printf("one of 501 chosen: longest gap %lld ms\n", static_cast<long long>(choosing.longestMs()));
    EXPECT_LT(choosing.longestMs(), test::noticeableMs);
}

TEST_F(LivePrinters, ServerThatAcceptsAndNeverAnswers_LeavesTheWindowAlone)
{
    const QTemporaryDir folder;
    const QByteArray path = folder.filePath(u"silent.sock"_qs).toLocal8Bit();
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    path.toStdString().copy(address.sun_path, sizeof address.sun_path - 1);
    const int server = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    // The socket interface takes every kind of address through this one type.
    ASSERT_EQ(bind(server, reinterpret_cast<const sockaddr *>(&address), sizeof address), 0);
    ASSERT_EQ(listen(server, 5), 0);
    qputenv("CUPS_SERVER", path);

    QElapsedTimer timer;
    timer.start();
    ASSERT_NO_FATAL_FAILURE(open(u"tape"_qs));
    const qint64 shownMs = timer.elapsed();
    const test::LoopWatch watch;
    QTest::qWait(2500);
    std::printf("silent server: window after %lld ms, longest gap %lld ms\n", static_cast<long long>(shownMs),
                static_cast<long long>(watch.longestMs()));
    EXPECT_LT(shownMs, soonMs);
    EXPECT_LT(watch.longestMs(), test::noticeableMs);
    EXPECT_FALSE(canPrint());
    EXPECT_EQ(window->windowTitle(), u"Print label – connecting…"_qs);
    const test::LoopWatch closing;
    window.reset(); // waits for nobody
    EXPECT_LT(closing.longestMs(), test::noticeableMs);
    close(server);
}

} // namespace
