// SPDX-License-Identifier: Apache-2.0
// Programs in a room of their own: what they see, what bounds them, and that no run outlives its end.
#include "TestPrinter.h"

#include "job/ConfinedRun.h"
#include "job/DeathWatch.h"
#include "job/PrivateFile.h"
#include "tests/support/TextPrinting.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QRandomGenerator>
#include <QTest>

#include <thread>

#include <gtest/gtest.h>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace
{

using namespace tapeprint::job;

class ConfinedProgram : public testing::Test
{
protected:
    void SetUp() override { ASSERT_TRUE(confinementProblem().isNull()) << confinementProblem().toStdString(); }

    ConfinedRun run(const QString &script, const QStringList &readable = {},
                    std::chrono::milliseconds longest = longestRun)
    {
        output.clear();
        return runConfined(
            {u"/bin/sh"_qs, {u"-c"_qs, script}, readable},
            [this](const QByteArray &bytes) {
                output += bytes;
                return takes;
            },
            &stop, longest);
    }

    /// Whether a process has a word in its command line.
    static bool isRunning(const QByteArray &word)
    {
        for (const QString &process : QDir(u"/proc"_qs).entryList({u"[0-9]*"_qs}, QDir::Dirs)) {
            QFile commandLine(QStringLiteral("/proc/%1/cmdline").arg(process));
            if (commandLine.open(QIODevice::ReadOnly) && commandLine.readAll().split('\0').contains(word)) {
                return true;
            }
        }
        return false;
    }

    QTemporaryDir folder;
    QByteArray output;
    bool takes = true;
    std::atomic<bool> stop = false;
    /// A time to sleep that nobody else sleeps.
    QByteArray unique = QByteArray("99999.") + QByteArray::number(QRandomGenerator::global()->generate());
};

TEST_F(ConfinedProgram, OutputMessagesAndExitStatus_ComeThrough)
{
    const ConfinedRun result = run(u"echo out; echo word >&2; exit 3"_qs);
    EXPECT_EQ(result.end, ConfinedRun::End::finished);
    EXPECT_EQ(result.exitCode, 3);
    EXPECT_EQ(output, "out\n");
    EXPECT_EQ(result.messages, "word\n");
}

TEST_F(ConfinedProgram, SeesTheFilesThatItIsGivenAndCannotChangeThem)
{
    const QString given = hosttest::writeFile(folder, u"given"_qs, "mine");
    const QString other = hosttest::writeFile(folder, u"other"_qs, "private");
    run(QStringLiteral("cat '%1'; echo x >> '%1' || echo refused; cat '%2' || echo hidden").arg(given, other), {given});
    EXPECT_EQ(output, "minerefused\nhidden\n");
    QFile file(given);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll(), "mine");
}

TEST_F(ConfinedProgram, SeesWhatItIsGivenOfTheOtherTemporaryFolder)
{
    const QTemporaryDir elsewhere(u"/var/tmp/tapeprint-test-XXXXXX"_qs);
    const QString given = hosttest::writeFile(elsewhere, u"given"_qs, "mine");
    hosttest::writeFile(elsewhere, u"other"_qs, "private");
    run(QStringLiteral("cat '%1'; ls '%2'; touch /var/tmp/a || echo refused").arg(given, elsewhere.path()), {given});
    EXPECT_EQ(output, "minegiven\nrefused\n");
}

TEST_F(ConfinedProgram, WithNothingToSeeInTheOtherTemporaryFolder_HasOneForBoth)
{
    run(u"echo word > /var/tmp/a && cat /tmp/a"_qs);
    EXPECT_EQ(output, "word\n");
    EXPECT_FALSE(QFileInfo::exists(u"/var/tmp/a"_qs));
}

TEST_F(ConfinedProgram, WritesIntoItsOwnTemporaryFolderAlone)
{
    run(u"touch \"$TMPDIR\"/a && echo own; for place in / /etc /usr /var /dev /dev/shm; do "
        "touch $place/tapeprint-test && echo $place; done"_qs);
    EXPECT_EQ(output, "own\n");
    EXPECT_FALSE(QFileInfo::exists(u"/tmp/a"_qs));
}

TEST_F(ConfinedProgram, SeesTheMachinesSettingsThatAreForEverybodyAlone)
{
    run(u"cat /etc/passwd | wc -c; cat /etc/shadow | wc -c"_qs); // root, who may read the second, finds nothing in it
    EXPECT_EQ(output, QByteArray::number(QFileInfo(u"/etc/passwd"_qs).size()) + "\n0\n");
}

TEST_F(ConfinedProgram, SeesNoHomeNoSessionAndNoOtherProcess)
{
    qputenv("TAPEPRINT_TEST_SECRET", "secret");
    run(u"ls -d /home/* /root /run /mnt; cat /proc/[0-9]*/environ | grep -c SECRET; ls /proc | grep -c '^[0-9]'"_qs);
    qunsetenv("TAPEPRINT_TEST_SECRET");
    const QList<QByteArray> lines = output.trimmed().split('\n');
    ASSERT_EQ(lines.size(), 2) << output.toStdString(); // ls finds nothing
    EXPECT_EQ(lines[0], "0");
    EXPECT_LT(lines[1].toInt(), 10);
}

TEST_F(ConfinedProgram, HoldsNoFileThatThisProgramHasOpen)
{
    const QString mine = hosttest::writeFile(folder, u"mine"_qs, "private");
    const int handle = open(QFile::encodeName(mine).constData(), O_RDONLY);
    ASSERT_GE(handle, 0);
    run(QStringLiteral("cat /proc/self/fd/%1 || echo hidden").arg(handle));
    close(handle);
    EXPECT_EQ(output, "hidden\n");
}

TEST_F(ConfinedProgram, CannotMakeWritableWhatItIsShown_NotEvenRoots)
{
    QDir(folder.path()).mkdir(u"shown"_qs);
    const QString shown = folder.filePath(u"shown"_qs);
    run(QStringLiteral("mount -o remount,bind,rw '%1' && touch '%1/a'; unshare -Urm mount -o remount,bind,rw '%1';"
                       "touch '%1/a' || echo refused")
            .arg(shown),
        {shown});
    EXPECT_EQ(output, "refused\n");
    EXPECT_TRUE(QDir(shown).isEmpty());
}

TEST_F(ConfinedProgram, ThatDoesWithoutSettings_SeesFontsAlone)
{
    ConfinedCommand command{u"/bin/sh"_qs, {u"-c"_qs, u"ls /etc; ls -d /dev; echo x > /etc/a; echo x > /a; env"_qs}};
    command.seesSettings = false;
    command.environment = {{u"HOME"_qs, u"/nowhere"_qs}};
    runConfined(
        command,
        [this](const QByteArray &bytes) {
            output += bytes;
            return true;
        },
        &stop, longestRun);
    QList<QByteArray> lines = output.trimmed().split('\n');
    ASSERT_GE(lines.size(), 2) << output.toStdString();
    EXPECT_EQ(lines.takeFirst(), "fonts");
    EXPECT_EQ(lines.takeFirst(), "ld.so.cache");
    EXPECT_FALSE(lines.contains("/dev"));
    EXPECT_TRUE(lines.contains("HOME=/nowhere"));
    EXPECT_FALSE(lines.contains("HOME=/tmp"));
}

TEST_F(ConfinedProgram, IsBounded)
{
    run(u"ulimit -v; ulimit -t; ulimit -c; df -B1 --output=size /tmp | tail -n 1"_qs);
    const QList<QByteArray> lines = output.trimmed().split('\n');
    ASSERT_EQ(lines.size(), 4) << output.toStdString();
    EXPECT_EQ(lines[0], "4194304"); // 4 GiB in KiB
    EXPECT_EQ(lines[1], "1800");
    EXPECT_EQ(lines[2], "0");
    EXPECT_EQ(lines[3].trimmed(), "2147483648");
}

TEST_F(ConfinedProgram, ThatTakesTooLong_IsEndedWithAllItsChildren)
{
    const ConfinedRun result =
        run(QStringLiteral("sleep %1 & sleep %1").arg(QString::fromLatin1(unique)), {}, std::chrono::milliseconds(300));
    EXPECT_EQ(result.end, ConfinedRun::End::tooLong);
    EXPECT_TRUE(QTest::qWaitFor([this] { return !isRunning(unique); }));
}

TEST_F(ConfinedProgram, ThatIsStopped_EndsWithinAMoment)
{
    std::thread stopper([this] {
        while (!isRunning(unique)) {
            std::this_thread::sleep_for(std::chrono::milliseconds(10));
        }
        stop = true;
    });
    const ConfinedRun result =
        run(QStringLiteral("sleep %1 & sleep %1").arg(QString::fromLatin1(unique)), {}, std::chrono::seconds(30));
    stopper.join();
    EXPECT_EQ(result.end, ConfinedRun::End::stopped);
    EXPECT_TRUE(QTest::qWaitFor([this] { return !isRunning(unique); }));
}

TEST_F(ConfinedProgram, WhoseOutputNobodyTakes_IsEnded)
{
    takes = false;
    EXPECT_EQ(run(u"yes"_qs, {}, std::chrono::seconds(30)).end, ConfinedRun::End::refused);
}

TEST_F(ConfinedProgram, ThatWritesMessagesWithoutEnd_IsRememberedByBothEnds)
{
    const ConfinedRun result = run(u"echo first >&2; head -c 3000000 /dev/zero | tr '\\0' x >&2; echo last >&2"_qs);
    EXPECT_TRUE(result.messages.startsWith("first\n"));
    EXPECT_TRUE(result.messages.endsWith("last\n"));
    EXPECT_LT(result.messages.size(), 300000);
}

TEST_F(ConfinedProgram, ThatCrashes_IsNotTakenForFinished)
{
    // The room itself answers with 128 and the signal's number.
    EXPECT_EQ(run(u"kill -SEGV $$"_qs).exitCode, 128 + 11);
}

TEST(PrivateFiles, AreThePersonsAloneAndGoWithTheirObject)
{
    QString error;
    QString path;
    {
        const auto file = PrivateFile::create(u"label.pdf"_qs, &error);
        ASSERT_NE(file, nullptr) << error.toStdString();
        ASSERT_TRUE(file->fill("bytes", &error));
        path = file->path();
        EXPECT_TRUE(path.endsWith(u"/label.pdf"_qs));
        struct stat status {
        };
        ASSERT_EQ(stat(QFile::encodeName(path).constData(), &status), 0);
        EXPECT_EQ(status.st_mode & 0777U, 0600U);
        const QString above = QFileInfo(QFileInfo(path).path()).path();
        ASSERT_EQ(stat(QFile::encodeName(above).constData(), &status), 0);
        EXPECT_EQ(status.st_mode & 0777U, 0700U);
    }
    EXPECT_FALSE(QFileInfo::exists(path));
}

TEST(DeathWatch_SentHome, DoesNothing)
{
    const QTemporaryDir folder;
    const QString path = hosttest::writeFile(folder, u"kept"_qs, "x");
    DeathWatch::removing(QFile::encodeName(path)).reset();
    EXPECT_TRUE(QFileInfo::exists(path));
}

} // namespace
