// SPDX-License-Identifier: Apache-2.0
// No data lost: documents stay, an output is whole or not there, and nothing is left behind however the program ends.
#include "ProgramTest.h"

#include "job/FileStamp.h"
#include "job/OutputFile.h"
#include "tapeprint/StandardStreams.h"

#include <QDir>
#include <QDirIterator>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QRandomGenerator>
#include <QTest>
#include <QThread>

#include <csignal>
#include <thread>

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace
{

using hosttest::contentsOf;
using hosttest::Outcome;
using namespace tapeprint::job;

class Output : public hosttest::Program
{
protected:
    void SetUp() override
    {
        QDir(folder.path()).mkdir(u"tmp"_qs);
        variables.emplace_back(u"TMPDIR"_qs, temporary);
    }

    QStringList job(const QString &output, const QString &file) const
    {
        return {u"--no-dialog"_qs, u"--trust-ppd"_qs, u"--ppd"_qs, filterPpd, u"--output"_qs, output, file};
    }
    void writeFilter(const QByteArray &script) const
    {
        hosttest::writeFile(folder, u"filter"_qs, "#!/bin/sh\n" + script);
    }
    QString path(const QString &name) const { return folder.filePath(name); }
    void makePipe(const QString &name) const { ASSERT_EQ(mkfifo(QFile::encodeName(path(name)).constData(), 0600), 0); }
    /// Everything in the folder, hidden files as well.
    QStringList everything() const
    {
        QStringList names;
        QDirIterator entries(folder.path(), QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                             QDirIterator::Subdirectories);
        while (entries.hasNext()) {
            names.append(entries.next());
        }
        names.sort();
        return names;
    }
    static mode_t modeOf(const QString &path)
    {
        struct stat status {
        };
        return lstat(QFile::encodeName(path).constData(), &status) == 0 ? status.st_mode & 07777U : 0;
    }
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

    QString temporary = folder.filePath(u"tmp"_qs);
};

TEST_F(Output, ThatIsTheDocument_IsRefusedUnderEveryNameOfIt)
{
    ASSERT_TRUE(QFile::link(u"label.txt"_qs, path(u"link.txt"_qs)));
    ASSERT_EQ(link(QFile::encodeName(document).constData(), QFile::encodeName(path(u"hard.txt"_qs)).constData()), 0);
    for (const char *name : {"label.txt", "link.txt", "hard.txt", "./tmp/../label.txt"}) {
        expectFailure(testsupport::unwritableOutput, job(QString::fromLatin1(name), document), "only read");
        expectFailure(testsupport::unwritableOutput, job(QString::fromLatin1(name), path(u"link.txt"_qs)), "only read");
    }
    expectFailure(testsupport::unwritableOutput, job(document, u"/etc/hostname"_qs) << document,
                  "only read"); // not the first of two
    expectFailure(testsupport::unwritableOutput, job(filterPpd, document), "only read");
    EXPECT_EQ(contentsOf(document), "Hello\n");
    EXPECT_TRUE(contentsOf(filterPpd).endsWith("filter\"\n"));
}

TEST_F(Output, ThatIsStandardInput_IsRefused)
{
    QProcess program;
    program.setStandardInputFile(document);
    start(program, programPath(),
          {u"--no-dialog"_qs, u"--trust-ppd"_qs, u"--ppd"_qs, filterPpd, u"--output"_qs, document});
    ASSERT_TRUE(program.waitForFinished());
    EXPECT_EQ(program.exitCode(), testsupport::unwritableOutput);
    EXPECT_EQ(contentsOf(document), "Hello\n");
}

TEST_F(Output, ThatStandardOutputAppendsToTheDocument_IsRefused)
{
    QProcess program;
    program.setStandardOutputFile(document, QIODevice::Append);
    start(program, programPath(), job(u"-"_qs, document));
    ASSERT_TRUE(program.waitForFinished());
    EXPECT_EQ(program.exitCode(), testsupport::unwritableOutput);
    EXPECT_EQ(contentsOf(document), "Hello\n");
}

TEST_F(Output, OfAFailingJob_KeepsWhatStoodThere)
{
    const QString out = hosttest::writeFile(folder, u"out.prn"_qs, "mine");
    writeFilter("echo half\necho 'ERROR: no ink' >&2\nexit 3\n");
    const QStringList before = everything();
    expectFailure(testsupport::failedJob, job(out, document), "no ink");
    EXPECT_EQ(contentsOf(out), "mine");
    EXPECT_EQ(everything(), before);
}

TEST_F(Output, ThatReplacesAFile_KeepsItsPermissionsAndTheLinkToIt)
{
    hosttest::writeFile(folder, u"real.prn"_qs, "mine");
    ASSERT_EQ(chmod(QFile::encodeName(path(u"real.prn"_qs)).constData(), 0604), 0);
    ASSERT_TRUE(QFile::link(u"real.prn"_qs, path(u"out.prn"_qs)));
    EXPECT_EQ(run(job(u"out.prn"_qs, document)).status, 0);
    EXPECT_TRUE(QFileInfo(path(u"out.prn"_qs)).isSymLink());
    EXPECT_TRUE(contentsOf(path(u"real.prn"_qs)).endsWith("Hello\n"));
    EXPECT_EQ(modeOf(path(u"real.prn"_qs)), 0604U);
}

TEST_F(Output, ThroughALinkToNothing_AppearsWhereTheLinkLeads)
{
    ASSERT_TRUE(QFile::link(u"tmp/new.prn"_qs, path(u"out.prn"_qs)));
    EXPECT_EQ(run(job(u"out.prn"_qs, document)).status, 0);
    EXPECT_TRUE(QFileInfo(path(u"out.prn"_qs)).isSymLink());
    EXPECT_TRUE(contentsOf(path(u"tmp/new.prn"_qs)).endsWith("Hello\n"));
}

TEST_F(Output, AndDocumentThroughALinkedFolderAndBack_AreWhereTheSystemFindsThem)
{
    // "far" leads to tmp/deep, so that what is above it is tmp and not the folder in which the link stands.
    QDir(folder.path()).mkpath(u"tmp/deep"_qs);
    ASSERT_TRUE(QFile::link(u"tmp/deep"_qs, path(u"far"_qs)));
    ASSERT_TRUE(QFile::rename(document, path(u"tmp/label.txt"_qs)));
    const Outcome outcome = run(job(u"far/../out.prn"_qs, u"far/../label.txt"_qs));
    EXPECT_EQ(outcome.status, 0) << outcome.messages.toStdString();
    EXPECT_TRUE(contentsOf(path(u"tmp/out.prn"_qs)).endsWith("Hello\n"));
    EXPECT_FALSE(QFileInfo::exists(path(u"out.prn"_qs)));
}

TEST_F(Output, ThatIsNew_HasThePermissionsOfNewFiles)
{
    const mode_t mask = umask(027);
    EXPECT_EQ(run(job(u"out.prn"_qs, document)).status, 0);
    umask(mask);
    EXPECT_EQ(modeOf(path(u"out.prn"_qs)), 0640U);
}

TEST_F(Output, OfARunThatIsEnded_IsNotThereAndNothingElseIs)
{
    const QString out = hosttest::writeFile(folder, u"out.prn"_qs, "mine");
    for (const QString &programs : {qEnvironmentVariable("PATH"), folder.path()}) { // with bubblewrap and without
        variables.emplace_back(u"PATH"_qs, programs);
        for (const int signal : {SIGINT, SIGTERM, SIGHUP, SIGKILL}) {
            const QByteArray unique = "88888." + QByteArray::number(QRandomGenerator::global()->generate());
            writeFilter("echo half\n/usr/bin/sleep " + unique + " &\n/usr/bin/sleep " + unique + "\n");
            const QStringList before = everything();
            QProcess program;
            start(program, programPath(),
                  {u"--no-dialog"_qs, u"--trust-ppd"_qs, u"--ppd"_qs, filterPpd, u"--output"_qs, out});
            program.write("Hello\n");
            program.closeWriteChannel();
            ASSERT_TRUE(QTest::qWaitFor([&] { return isRunning(unique); }, 30000));
            const QStringList privateFolders = QDir(temporary).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
            ASSERT_EQ(privateFolders.size(), 1);
            EXPECT_EQ(modeOf(temporary + u'/' + privateFolders.first()), 0700U);
            EXPECT_EQ(modeOf(temporary + u'/' + privateFolders.first() + u"/1/stdin"_qs), 0600U);

            kill(static_cast<pid_t>(program.processId()), signal);
            ASSERT_TRUE(program.waitForFinished());
            EXPECT_EQ(program.exitStatus(), QProcess::CrashExit);
            EXPECT_EQ(contentsOf(out), "mine");
            EXPECT_TRUE(QTest::qWaitFor([&] { return everything() == before; }))
                << everything().join(u'\n').toStdString();
            EXPECT_TRUE(QTest::qWaitFor([&] { return !isRunning(unique); })) << signal;
        }
    }
}

TEST_F(Output, OnAFullDisk_IsSaidAndKeepsWhatStoodThere)
{
    // A disk of 64 KiB, in a name space of the test's own, where everybody may mount one.
    writeFilter("head -c 200000 /dev/zero\n");
    const QString script = hosttest::writeFile(
        folder, u"small-disk"_qs,
        "mount -t tmpfs -o size=64k small \"$1\" || exit 9\nprintf mine >\"$1/out.prn\"\nshift\n\"$@\"\n"
        "status=$?\ncat out/out.prn\nls -A out\nexit $status\n");
    QDir(folder.path()).mkdir(u"out"_qs);
    QProcess shell;
    start(shell, u"/usr/bin/unshare"_qs,
          QStringList{u"-rm"_qs, u"/bin/sh"_qs, script, path(u"out"_qs), programPath()} +
              job(u"out/out.prn"_qs, document));
    ASSERT_TRUE(shell.waitForFinished());
    EXPECT_EQ(shell.exitCode(), testsupport::unwritableOutput);
    EXPECT_EQ(shell.readAllStandardOutput(), "mineout.prn\n");
    EXPECT_TRUE(shell.readAllStandardError().contains("No space left on device"));
}

TEST_F(Output, BeyondTheLimitOfFiles_IsSaidAndNothingIsLeft)
{
    writeFilter("head -c 200000 /dev/zero\n");
    const QStringList before = everything();
    QProcess shell;
    start(shell, u"/bin/sh"_qs,
          QStringList{u"-c"_qs, u"ulimit -f 100; exec \"$@\""_qs, u"sh"_qs, programPath()} + // of 512 bytes each
              job(u"out.prn"_qs, document));
    ASSERT_TRUE(shell.waitForFinished());
    ASSERT_EQ(shell.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(shell.exitCode(), testsupport::unwritableOutput);
    const QByteArray said = shell.readAllStandardError();
    EXPECT_TRUE(said.contains("File too large")) << said.toStdString();
    EXPECT_EQ(said.count('\n'), 1) << said.toStdString();
    EXPECT_EQ(everything(), before);
}

TEST(StandardStreams, ThatAreClosed_HaveTheirNumbersTakenAndStayUnusable)
{
    const pid_t child = fork();
    if (child == 0) {
        for (const int stream : {0, 1, 2}) {
            close(stream);
        }
        tapeprint::prepareStandardStreams();
        char byte = 'a';
        const bool areTaken = open("/dev/null", O_RDWR | O_CLOEXEC) > STDERR_FILENO;
        const bool areUnusable = read(STDIN_FILENO, &byte, 1) < 0 && write(STDOUT_FILENO, &byte, 1) < 0 &&
                                 write(STDERR_FILENO, &byte, 1) < 0;
        _exit(areTaken && areUnusable ? 0 : 1);
    }
    int status = -1;
    ASSERT_EQ(waitpid(child, &status, 0), child);
    EXPECT_EQ(status, 0);
}

TEST_F(Output, OfADash_IsThePrintersBytesAlone)
{
    writeFilter("printf 'bytes\\000'\n");
    const Outcome said = run(job(u"-"_qs, document));
    EXPECT_EQ(said.status, 0);
    EXPECT_EQ(said.output, QByteArray("bytes\0", 6));
    EXPECT_TRUE(said.messages.contains("standard output (6 bytes)")) << said.messages.toStdString();
    const Outcome device = run(job(u"/dev/stdout"_qs, document) << u"-s"_qs);
    EXPECT_EQ(device.output, QByteArray("bytes\0", 6));
    EXPECT_FALSE(device.messages.contains("bytes)"));
    EXPECT_FALSE(QFileInfo::exists(path(u"-"_qs)));
}

TEST_F(Output, ThatIsAPipe_GetsTheBytesAndStaysAPipe)
{
    makePipe(u"pipe"_qs);
    QByteArray got;
    std::thread reader([&] { got = contentsOf(path(u"pipe"_qs)); });
    EXPECT_EQ(run(job(u"pipe"_qs, document)).status, 0);
    reader.join();
    EXPECT_TRUE(got.endsWith("Hello\n")) << got.toStdString();
    EXPECT_TRUE(S_ISFIFO(FileStamp::ofPath(path(u"pipe"_qs))->mode));
}

TEST_F(Output, ThatIsASocket_IsRefusedAtOnce)
{
    ASSERT_EQ(mknod(QFile::encodeName(path(u"socket"_qs)).constData(), S_IFSOCK | 0600, 0), 0);
    // The system says of it what it says of a pipe that nobody reads from.
    expectFailure(testsupport::unwritableOutput, job(u"socket"_qs, document), "socket");
}

TEST_F(Output, ThatIsAPipeWithoutAReader_IsWaitedForUntilAStop)
{
    makePipe(u"pipe"_qs);
    std::atomic<bool> stop{false};
    std::thread person([&stop] {
        std::this_thread::sleep_for(std::chrono::milliseconds(300));
        stop = true;
    });
    QElapsedTimer waited;
    waited.start();
    Problem problem;
    EXPECT_EQ(OutputFile::open({path(u"pipe"_qs), true, {}, &stop}, &problem), nullptr);
    EXPECT_GE(waited.elapsed(), 300);
    EXPECT_LT(waited.elapsed(), 3000);
    person.join();
}

TEST_F(Output, WhoseReaderGoesAway_IsSaid)
{
    writeFilter("head -c 3000000 /dev/zero\n");
    makePipe(u"pipe"_qs);
    std::thread reader([&] {
        QFile pipe(path(u"pipe"_qs));
        if (pipe.open(QIODevice::ReadOnly | QIODevice::Unbuffered)) {
            pipe.read(10);
        }
    });
    expectFailure(testsupport::unwritableOutput, job(u"pipe"_qs, document), "Broken pipe");
    reader.join();
}

TEST_F(Output, DocumentFromAPipe_IsReadOnceToItsEnd)
{
    makePipe(u"pipe.txt"_qs);
    const QByteArray text = QByteArray(200000, 'x') + "\nend\n";
    bool wroteAll = false;
    std::thread writer([&] {
        QFile pipe(path(u"pipe.txt"_qs));
        wroteAll = pipe.open(QIODevice::WriteOnly | QIODevice::Unbuffered) && pipe.write(text) == text.size();
    });
    const Outcome outcome = run(job(u"out.prn"_qs, path(u"pipe.txt"_qs)));
    writer.join();
    EXPECT_EQ(outcome.status, 0) << outcome.messages.toStdString();
    EXPECT_TRUE(wroteAll);
    EXPECT_TRUE(contentsOf(path(u"out.prn"_qs)).contains("title=pipe.txt"));
    EXPECT_TRUE(contentsOf(path(u"out.prn"_qs)).endsWith(text.right(1000)));
}

TEST_F(Output, OfADocumentThatChangesMeanwhile_IsNotMade)
{
    const QByteArray unique = "0." + QByteArray::number(QRandomGenerator::global()->generate() | 1U);
    writeFilter("echo half\nsleep " + unique + "\nsleep 1\n");
    QProcess program;
    start(program, programPath(), job(u"out.prn"_qs, document));
    ASSERT_TRUE(QTest::qWaitFor([&] { return isRunning(unique) || program.state() == QProcess::NotRunning; }, 30000));
    hosttest::writeFile(folder, u"label.txt"_qs, "Something else\n");
    ASSERT_TRUE(program.waitForFinished());
    EXPECT_EQ(program.exitCode(), testsupport::badDocument);
    EXPECT_TRUE(program.readAllStandardError().contains("has changed since it was opened"));
    EXPECT_FALSE(QFileInfo::exists(path(u"out.prn"_qs)));
}

TEST_F(Output, OfADocumentThatIsGone_IsRefused)
{
    const FileStamps files{*FileStamp::ofPath(document)};
    Problem error;
    EXPECT_TRUE(areUnchanged(files, &error));
    ASSERT_TRUE(QFile::remove(document));
    EXPECT_FALSE(areUnchanged(files, &error));
    EXPECT_TRUE(error.sentence.contains(u"label.txt is gone"_qs)) << error.sentence.toStdString();
}

TEST_F(Output, ThatNobodyNamed_TakesNoFilesPlace)
{
    Problem error;
    const OutputTarget target{path(u"out.prn"_qs), false};
    auto output = OutputFile::open(target, &error);
    ASSERT_NE(output, nullptr) << error.sentence.toStdString();
    ASSERT_TRUE(output->write("bytes", &error));
    EXPECT_FALSE(QFileInfo::exists(target.path));
    // It came into being while the filters ran.
    hosttest::writeFile(folder, u"out.prn"_qs, "mine");
    EXPECT_FALSE(output->commit(&error));
    output.reset();
    EXPECT_EQ(contentsOf(target.path), "mine");
    EXPECT_EQ(OutputFile::open(target, &error), nullptr);
}

} // namespace
