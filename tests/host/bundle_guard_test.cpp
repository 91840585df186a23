// SPDX-License-Identifier: Apache-2.0
// A program that ends in a bundle's code: the next start knows whose it was.
#include "ProgramTest.h"

#include <QDir>
#include <QFileInfo>

#include <pdekit/BundleLoading.h>

#include <atomic>
#include <thread>
#include <vector>

#include <sys/wait.h>
#include <unistd.h>

namespace
{

using hosttest::Outcome;
using pdekit::BundleGuard;

class Guard : public testing::Test
{
protected:
    Guard()
    {
        qputenv("XDG_STATE_HOME", state.path().toUtf8());
        QDir(folder.path()).mkpath(u"Some.bundle"_qs);
        hosttest::writeFile(folder, u"Some.bundle/Some.so"_qs, "code");
    }
    ~Guard() override { qputenv("XDG_STATE_HOME", before); }

    /// Why the bundle's code is not to be run.
    QString reason(BundleGuard::Step step = BundleGuard::Step::Loading) const
    {
        return BundleGuard(bundle, step).reasonToSkip();
    }

    /// A process that ends while the guard is up.
    void endWithin(BundleGuard::Step step = BundleGuard::Step::Loading) const
    {
        const pid_t child = fork();
        if (child == 0) {
            const BundleGuard guard(bundle, step);
            _exit(guard.reasonToSkip().isNull() ? 0 : 1);
        }
        int status = -1;
        ASSERT_EQ(waitpid(child, &status, 0), child);
        ASSERT_EQ(status, 0);
    }

    QStringList marks() const { return QDir(state.filePath(u"tapeprint/plug-ins"_qs)).entryList(QDir::Files); }

    QTemporaryDir state;
    QTemporaryDir folder;
    QString bundle = folder.filePath(u"Some.bundle"_qs);
    QByteArray before = qgetenv("XDG_STATE_HOME");
};

TEST_F(Guard, OfCodeThatComesBack_LeavesNothing)
{
    {
        const BundleGuard guard(bundle, BundleGuard::Step::Loading);
        EXPECT_TRUE(guard.reasonToSkip().isNull());
        EXPECT_EQ(marks().size(), 1);
    }
    EXPECT_TRUE(marks().isEmpty());
    EXPECT_TRUE(reason().isNull());
}

TEST_F(Guard, AfterAnEnd_LeavesTheCodeOutOnce)
{
    endWithin();
    EXPECT_TRUE(reason().contains(u"it is tried again the next time"_qs)) << reason().toStdString();
    EXPECT_TRUE(reason().isNull());
    EXPECT_TRUE(marks().isEmpty()); // it came back: all is forgotten
    endWithin();
    EXPECT_TRUE(reason().contains(u"it is tried again the next time"_qs));
}

TEST_F(Guard, AfterTwoEndsInARow_LeavesTheCodeOutUntilItChanges)
{
    endWithin();
    EXPECT_FALSE(reason().isNull());
    endWithin();
    for (int start = 0; start < 3; ++start) {
        EXPECT_TRUE(reason().contains(u"tried again when the bundle has changed"_qs)) << reason().toStdString();
    }
    hosttest::writeFile(folder, u"Some.bundle/Some.so"_qs, "mended code");
    EXPECT_TRUE(reason().isNull());
}

TEST_F(Guard, OfManyProgramsAtOnce_IsNoReasonForAny)
{
    // A lock belongs to an opening of the file: threads are to each other what programs are.
    constexpr int programs = 4;
    constexpr int starts = 1000;
    std::atomic<int> refused{0};
    std::vector<std::thread> running;
    for (int program = 0; program < programs; ++program) {
        running.emplace_back([&] {
            for (int start = 0; start < starts; ++start) {
                refused += reason().isNull() ? 0 : 1;
            }
        });
    }
    for (std::thread &program : running) {
        program.join();
    }
    EXPECT_EQ(refused, 0);
}

TEST_F(Guard, TellsStepsAndBundlesApart)
{
    endWithin(BundleGuard::Step::MakingPanels);
    EXPECT_TRUE(reason(BundleGuard::Step::Loading).isNull());
    QDir(folder.path()).mkpath(u"elsewhere/Some.bundle"_qs);
    const QString other = folder.filePath(u"elsewhere/Some.bundle"_qs);
    EXPECT_TRUE(BundleGuard(other, BundleGuard::Step::MakingPanels).reasonToSkip().isNull());
    EXPECT_FALSE(reason(BundleGuard::Step::MakingPanels).isNull());
}

TEST_F(Guard, WhileAnotherProgramRunsTheCode_IsNoReason)
{
    const BundleGuard others(bundle, BundleGuard::Step::Loading);
    EXPECT_TRUE(reason().isNull());
    EXPECT_EQ(marks().size(), 1); // still the other's
}

TEST_F(Guard, WhileAnotherProgramHasBeenInTheCodeForAMinute_LeavesItOut)
{
    const BundleGuard others(bundle, BundleGuard::Step::Loading);
    QFile mark(state.filePath(u"tapeprint/plug-ins/"_qs + marks().value(0)));
    ASSERT_TRUE(mark.open(QIODevice::ReadWrite));
    const auto beganBefore = [&mark](int seconds) {
        return mark.setFileTime(QDateTime::currentDateTime().addSecs(-seconds), QFileDevice::FileModificationTime);
    };
    ASSERT_TRUE(beganBefore(50));
    EXPECT_TRUE(reason().isNull());
    ASSERT_TRUE(beganBefore(61));
    EXPECT_TRUE(reason().contains(u"another program has been waiting for this plug-in"_qs)) << reason().toStdString();
    EXPECT_EQ(marks().size(), 1); // still the other's
    hosttest::writeFile(folder, u"Some.bundle/Some.so"_qs, "mended code");
    EXPECT_TRUE(reason().isNull());
}

TEST_F(Guard, WhereNothingCanBeWritten_IsNoReason)
{
    for (const char *place : {"/proc/nowhere", "/dev/null"}) {
        qputenv("XDG_STATE_HOME", place);
        endWithin();
        EXPECT_TRUE(reason().isNull()) << place;
    }
}

TEST_F(Guard, OfAMarkThatSaysNothing_IsNoReason)
{
    endWithin();
    const QString mark = u"tapeprint/plug-ins/"_qs + marks().value(0);
    for (const QByteArray &text :
         {QByteArray(), QByteArray("\n\n\n\n"), QByteArray("2\nrunning"), QByteArray(9999, 'x')}) {
        hosttest::writeFile(state, mark, text);
        EXPECT_TRUE(reason().isNull()) << text.left(20).toStdString();
    }
}

/// The whole program, with a bundle that ends it.
class EndedProgram : public hosttest::Program
{
protected:
    EndedProgram()
    {
        bundles = QStringLiteral(HOST_TEST_BUNDLES "/misbehaving");
        variables = {{u"XDG_STATE_HOME"_qs, folder.filePath(u"state"_qs)}, {u"HOST_TEST_MISBEHAVES"_qs, QString()}};
    }

    Outcome start(const QString &way)
    {
        variables.back().second = way;
        return run({u"--ppd"_qs, ppd, u"--show-options"_qs});
    }
};

TEST_F(EndedProgram, NamesTheBundleAtTheNextStartAndPrintsWithoutIt)
{
    const QString way = u"ends in its constructor"_qs;
    EXPECT_EQ(start(way).status, 3);
    const Outcome next = start(way);
    EXPECT_EQ(next.status, 0);
    EXPECT_TRUE(next.output.contains("PageSize=W12"));
    EXPECT_TRUE(
        next.messages.contains("HostTestMisbehaving.bundle is not used: the program ended while this plug-in was "
                               "starting"))
        << next.messages.toStdString();
    EXPECT_EQ(start(way).status, 3); // tried again
    EXPECT_TRUE(start(way).messages.contains("when the bundle has changed"));
    EXPECT_TRUE(start(way).messages.contains("when the bundle has changed"));
}

TEST_F(EndedProgram, WhileItsPanelsWereMade_IsNamedToo)
{
    const QString way = u"ends making panels"_qs;
    EXPECT_EQ(start(way).status, 3);
    const Outcome next = start(way);
    EXPECT_EQ(next.status, 0);
    EXPECT_TRUE(next.messages.contains("HostTestMisbehaving.bundle is not used")) << next.messages.toStdString();
}

TEST_F(EndedProgram, WhileItWaitedForABundle_NamesItMeanwhileAndAtTheNextStart)
{
    const QString way = u"hangs in its constructor"_qs;
    variables.back().second = way;
    QProcess program;
    Program::start(program, programPath(), {u"--ppd"_qs, ppd, u"--show-options"_qs});
    ASSERT_TRUE(program.waitForStarted());
    program.setReadChannel(QProcess::StandardError);
    ASSERT_TRUE(program.waitForReadyRead(60000));
    const QByteArray said = program.readAllStandardError();
    EXPECT_TRUE(said.startsWith("tapeprint: waiting for the plug-in " + bundles.toUtf8())) << said.toStdString();
    EXPECT_TRUE(said.contains("HostTestMisbehaving.bundle, which does not come back")) << said.toStdString();
    EXPECT_EQ(program.state(), QProcess::Running);
    program.kill();
    ASSERT_TRUE(program.waitForFinished());
    const Outcome next = start(way);
    EXPECT_EQ(next.status, 0);
    EXPECT_TRUE(next.messages.contains("HostTestMisbehaving.bundle is not used")) << next.messages.toStdString();
}

TEST_F(EndedProgram, WhoseBundleIsMended_UsesItAgain)
{
    EXPECT_EQ(start(u"ends in its entry"_qs).status, 3);
    EXPECT_TRUE(start({}).messages.contains("HostTestMisbehaving.bundle"));
    EXPECT_EQ(start({}).messages, "");
}

} // namespace
