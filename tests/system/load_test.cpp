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
        malloc_trim(0); // what was given back counts as given back
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
    // The toolkit keeps what it painted, up to 10 MB: some 10 KB of each window, and the names of these pictures beyond
    // a clearing. Nothing else is to grow.
    Load() { QPixmapCache::setCacheLimit(0); }
    ~Load() override { QPixmapCache::setCacheLimit(pictureLimit); }

    void startServer()
    {
        if (const QString reason = PrivateCups::reasonToSkip(); !reason.isNull()) {
            GTEST_SKIP() << reason.toStdString();
        }
        cups.configure("MaxJobs 0\nMaxClients 1000\nPreserveJobHistory Yes");
        const QString problem = cups.startWithTape();
        ASSERT_TRUE(problem.isNull()) << problem.toStdString();
    }

    /// The words of the one run of a job's filter.
    QByteArrayList optionsOf(int id)
    {
        EXPECT_TRUE(cups.waitForEnd(id)) << id;
        const std::vector<FilterCall> calls = cups.filterCalls(id);
        EXPECT_EQ(calls.size(), 1U) << id;
        return calls.empty() ? QByteArrayList() : calls.front().options().split(' ');
    }

    /// A window on the queue, with what it stands on.
    class Window
    {
    public:
        Window(const QString &document, const QString &colour)
            : mWindow(
                  mJob, mPanels,
                  dialog::PrintDialog::Setup{request(colour), u"label"_qs, {document}, dialog::PrinterSource::server()},
                  [this, document](const job::SettledJob &settled, const job::PrintWatch &watch, job::Problem *error) {
                      auto printed = job::printJob(settled, u"label"_qs, {document}, watch, error);
                      mId = printed ? printed->job.id : -1;
                      return printed;
                  })
        {
        }

        /// Is shown, has options set as a person sets them, prints, and is closed. \return the job's number.
        int print(const std::function<void(job::Job &)> &set)
        {
            mId = 0;
            mWindow.show();
            auto *print = mWindow.findChild<QPushButton *>(u"print"_qs);
            EXPECT_TRUE(QTest::qWaitFor([&] { return print->isEnabled(); }, systemtest::patienceMs));
            set(mJob);
            print->click();
            EXPECT_TRUE(QTest::qWaitFor([&] { return mId != 0 && !mWindow.isVisible(); }, systemtest::patienceMs));
            return mId;
        }

    private:
        static job::JobRequest request(const QString &colour)
        {
            job::JobRequest request;
            request.queue = u"tape"_qs;
            request.options.set(u"KsTapeColor"_qs, colour);
            return request;
        }

        std::atomic<int> mId{0};
        job::Job mJob;
        dialog::Panels mPanels{mJob, {QStringLiteral(TAPEPRINT_BUNDLE_DIR)}};
        dialog::PrintDialog mWindow;
    };

    /// That a job was printed with an option and a number of copies.
    void expectPrinted(int id, const QString &option, const QString &choice, int copies)
    {
        ASSERT_TRUE(optionsOf(id).contains((option + u'=' + choice).toLatin1())) << id;
        EXPECT_EQ(cups.filterCalls(id).front().copies().toInt(), copies) << id;
    }

    const int pictureLimit = QPixmapCache::cacheLimit();
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

/// Of the jobs in a row: each has other options than the one before.
QString colourOf(int job)
{
    return job % 2 == 0 ? u"KsTapeColorRed"_qs : u"KsTapeColorWhite"_qs;
}

int copiesOf(int job)
{
    return job % 3 + 1;
}

constexpr int warmUp = 5;

TEST_F(Load, JobsInARowThroughOneWindow_HaveEachTheirOwnOptionsAndLeaveNothing)
{
    ASSERT_NO_FATAL_FAILURE(startServer());
    if (IsSkipped()) {
        return;
    }
    const int count = countOf("TAPEPRINT_LOAD_IN_A_ROW", 15);
    const auto cutOf = [](int job) { return job % 2 == 0 ? u"None"_qs : u"Label"_qs; };
    Window window(document, colourOf(0));
    Holdings before;
    for (int job = 0; job < warmUp + count; ++job) {
        if (job == warmUp) {
            before = Holdings::now();
        }
        const int id = window.print([job, cutOf](job::Job &shown) {
            shown.changeOption(u"CutMedia"_qs, cutOf(job));
            shown.setCopies(copiesOf(job));
        });
        ASSERT_NO_FATAL_FAILURE(expectPrinted(id, u"CutMedia"_qs, cutOf(job), copiesOf(job)));
    }
    QTest::qWait(500); // threads that are told to end
    expectNoGrowth(before, count, "jobs in a row through one window");
}

TEST_F(Load, WindowsInARow_PrintEachTheirOwnOptionsAndLeaveNothing)
{
    ASSERT_NO_FATAL_FAILURE(startServer());
    if (IsSkipped()) {
        return;
    }
    const int count = countOf("TAPEPRINT_LOAD_IN_A_ROW", 15);
    Holdings before;
    for (int job = 0; job < warmUp + count; ++job) {
        if (job == warmUp) {
            before = Holdings::now();
        }
        const int id =
            Window(document, colourOf(job)).print([job](job::Job &shown) { shown.setCopies(copiesOf(job)); });
        ASSERT_NO_FATAL_FAILURE(expectPrinted(id, u"KsTapeColor"_qs, colourOf(job), copiesOf(job)));
    }
    QTest::qWait(500); // threads that are told to end
    expectNoGrowth(before, count, "windows in a row");
}

TEST_F(Load, PanelsOpenedAgainAndAgain_TakeNothing)
{
    const int count = countOf("TAPEPRINT_LOAD_OPENINGS", 300);
    constexpr int first = 50;
    job::Job printJob;
    dialog::Panels panels(printJob, {QStringLiteral(TAPEPRINT_BUNDLE_DIR)});
    Holdings before;
    for (int opening = 0; opening < first + count; ++opening) {
        if (opening == first) {
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
