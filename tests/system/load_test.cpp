// SPDX-License-Identifier: Apache-2.0
// Many jobs and many panels: nothing grows, and every job keeps its own options. A few with the other tests, as many as
// scripts/load says when it is run.
#include "dialog/PrintDialog.h"
#include "job/Printing.h"
#include "tests/system/Client.h"
#include "tests/system/PrivateCups.h"

#include <QDir>
#include <QPixmapCache>
#include <QProcess>
#include <QPushButton>
#include <QRegularExpression>
#include <QTest>

#include <gtest/gtest.h>

#include <malloc.h>

namespace
{

using namespace tapeprint;
using systemtest::FilterCall;
using systemtest::PrivateCups;

int countOf(const char *variable, int otherwise)
{
    bool isSet = false;
    const int count = qEnvironmentVariableIntValue(variable, &isSet);
    return isSet ? count : otherwise;
}

/// What the process holds.
struct Holdings {
    qint64 kilobytes = 0;
    qsizetype descriptors = 0;

    static Holdings now()
    {
        QPixmapCache::clear(); // the toolkit keeps what it painted, up to 10 MB: some 10 KB of each window
        malloc_trim(0);        // what was given back counts as given back
        QFile pages(u"/proc/self/statm"_qs);
        if (!pages.open(QIODevice::ReadOnly)) {
            return {};
        }
        return {pages.readAll().split(' ').value(1).toLongLong() * 4,
                QDir(u"/proc/self/fd"_qs).entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot).size()};
    }
};

/// That nothing has grown. \param each what one round may leave behind: the allocator's own unevenness.
void expectNoGrowth(const Holdings &before, int rounds, const char *what)
{
    const Holdings after = Holdings::now();
    std::printf("%d %s: from %lld to %lld KB, from %lld to %lld descriptors\n", rounds, what,
                static_cast<long long>(before.kilobytes), static_cast<long long>(after.kilobytes),
                static_cast<long long>(before.descriptors), static_cast<long long>(after.descriptors));
    ASSERT_GT(before.kilobytes, 0);
#ifndef __SANITIZE_ADDRESS__ // it holds back what was freed, and looks for leaks by itself
    constexpr qint64 unevenKb = 3000;
    constexpr double eachKb = 0.5;
    EXPECT_LT(static_cast<double>(after.kilobytes - before.kilobytes), unevenKb + eachKb * rounds) << what;
#endif
    EXPECT_LE(after.descriptors, before.descriptors) << what;
}

class Load : public testing::Test
{
protected:
    void startServer()
    {
        if (const QString reason = PrivateCups::reasonToSkip(); !reason.isNull()) {
            GTEST_SKIP() << reason.toStdString();
        }
        cups.configure("MaxJobs 0\nMaxClients 1000\nPreserveJobHistory Yes");
        QString problem = cups.start();
        ASSERT_TRUE(problem.isNull()) << problem.toStdString();
        problem = cups.addRecordedQueue(u"tape"_qs, u"mm"_qs);
        ASSERT_TRUE(problem.isNull()) << problem.toStdString();
        for (const auto &[name, value] : cups.clientVariables()) {
            qputenv(name.toLocal8Bit().constData(), value.toLocal8Bit());
        }
    }

    /// The words of the one run of a job's filter.
    QByteArrayList optionsOf(int id)
    {
        EXPECT_TRUE(cups.waitForEnd(id)) << id;
        const std::vector<FilterCall> calls = cups.filterCalls(id);
        EXPECT_EQ(calls.size(), 1U) << id;
        return calls.empty() ? QByteArrayList() : calls.front().options().split(' ');
    }

    /// Opens a window with an option asked for, sets the copies, prints, and waits until the window is gone. \return
    /// the job's number.
    int printedByAWindow(const QByteArray &colour, int copies)
    {
        job::Job printJob;
        dialog::Panels panels(printJob, {QStringLiteral(TAPEPRINT_BUNDLE_DIR)});
        job::JobRequest request;
        request.queue = u"tape"_qs;
        request.options.set(u"KsTapeColor"_qs, QString::fromLatin1(colour));
        std::atomic<int> id{0};
        dialog::PrintDialog window(
            printJob, panels,
            dialog::PrintDialog::Setup{request, u"label"_qs, {document}, dialog::PrinterSource::server()},
            [&](const job::SettledJob &settled, const job::PrintWatch &watch, job::Problem *error) {
                auto printed = job::printJob(settled, u"label"_qs, {document}, watch, error);
                id = printed ? printed->job.id : -1;
                return printed;
            });
        window.show();
        auto *print = window.findChild<QPushButton *>(u"print"_qs);
        EXPECT_TRUE(QTest::qWaitFor([&] { return print->isEnabled(); }, systemtest::patienceMs));
        printJob.setCopies(copies);
        print->click();
        EXPECT_TRUE(QTest::qWaitFor([&] { return id != 0 && !window.isVisible(); }, systemtest::patienceMs));
        return id;
    }

    PrivateCups cups;
    QString document = QStringLiteral(TAPEPRINT_SOURCE_DIR "/docs/sample/address-label.pdf");
};

TEST_F(Load, JobsAtOnceByTheCommandLine_EachHasItsOwnOptions)
{
    ASSERT_NO_FATAL_FAILURE(startServer());
    if (IsSkipped()) {
        return;
    }
    const int count = countOf("TAPEPRINT_LOAD_AT_ONCE", 10);
    const auto lengthOf = [](int job) { return QByteArray::number(50 + job) + ".0"; };
    std::vector<std::unique_ptr<QProcess>> programs;
    for (int job = 0; job < count; ++job) {
        auto &program = programs.emplace_back(std::make_unique<QProcess>());
        program->setProcessEnvironment(systemtest::clientEnvironment(cups.clientVariables()));
        program->start(QStringLiteral(TAPEPRINT_BIN_DIR "/tapeprint"),
                       {u"-d"_qs, u"tape"_qs, u"--no-dialog"_qs, u"-o"_qs,
                        u"KsTapeLength="_qs + QString::fromLatin1(lengthOf(job)), document});
    }
    static const QRegularExpression number(u"tape-(\\d+) is"_qs);
    for (int job = 0; job < count; ++job) {
        QProcess &program = *programs[static_cast<std::size_t>(job)];
        ASSERT_TRUE(program.waitForFinished(systemtest::patienceMs * 10));
        ASSERT_EQ(program.exitCode(), 0) << program.readAllStandardError().toStdString();
        const int id = number.match(QString::fromUtf8(program.readAllStandardOutput())).captured(1).toInt();
        EXPECT_TRUE(optionsOf(id).contains("KsTapeLength=" + lengthOf(job))) << job << " as " << id;
    }
}

TEST_F(Load, WindowsInARow_PrintEachTheirOwnOptionsAndLeaveNothing)
{
    ASSERT_NO_FATAL_FAILURE(startServer());
    if (IsSkipped()) {
        return;
    }
    const int count = countOf("TAPEPRINT_LOAD_IN_A_ROW", 15);
    constexpr int warmUp = 5;
    Holdings before;
    for (int job = 0; job < warmUp + count; ++job) {
        if (job == warmUp) {
            before = Holdings::now();
        }
        const QByteArray colour = job % 2 == 0 ? "KsTapeColorRed" : "KsTapeColorWhite";
        const int copies = job % 3 + 1;
        const int id = printedByAWindow(colour, copies);
        EXPECT_TRUE(optionsOf(id).contains("KsTapeColor=" + colour)) << job << " as " << id;
        EXPECT_EQ(cups.filterCalls(id).front().copies().toInt(), copies) << job;
    }
    QTest::qWait(500); // threads that are told to end
    expectNoGrowth(before, count, "windows in a row");
}

TEST_F(Load, PanelsOpenedAgainAndAgain_TakeNothing)
{
    const int count = countOf("TAPEPRINT_LOAD_OPENINGS", 300);
    constexpr int warmUp = 50;
    job::Job printJob;
    dialog::Panels panels(printJob, {QStringLiteral(TAPEPRINT_BUNDLE_DIR)});
    Holdings before;
    for (int opening = 0; opening < warmUp + count; ++opening) {
        if (opening == warmUp) {
            before = Holdings::now();
        }
        job::Problem error;
        job::Destination destination;
        destination.ppd = job::openPpdFile(QStringLiteral(TAPEPRINT_PRINTER_DIR "/tapeprint-mm.ppd"), &error);
        panels.open(std::move(destination), {});
        ASSERT_EQ(panels.entries().size(), 1U);
        ASSERT_NE(panels.entries().front().view, nullptr);
        panels.showAll();
        ASSERT_TRUE(panels.settle(&error)) << error.sentence.toStdString();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    expectNoGrowth(before, count, "openings of a panel");
}

} // namespace
