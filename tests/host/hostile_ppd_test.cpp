// SPDX-License-Identifier: Apache-2.0
// A printer description that somebody sent: it is read, and nothing that it brings is run unless the person says so.
#include "ProgramTest.h"

#include "job/PpdFile.h"
#include "job/PpdPrograms.h"
#include "job/RootOwned.h"

#include <QDir>
#include <QFileInfo>

#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

namespace
{

using hosttest::contentsOf;
using hosttest::Outcome;
using namespace tapeprint::job;

class HostilePpd : public hosttest::Program
{
protected:
    /// A program of the test's folder. \param script after the line that names the shell.
    QString program(const QString &name, const QByteArray &script, const QByteArray &shell = "/bin/sh") const
    {
        QString path = hosttest::writeFile(folder, name, "#!" + shell + "\n" + script);
        QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner | QFile::ReadGroup |
                                        QFile::ExeGroup | QFile::ReadOther | QFile::ExeOther);
        return path;
    }
    QString ppdWith(const QByteArray &lines) const
    {
        return hosttest::writeFile(folder, u"sent.ppd"_qs, hosttest::testPpd(lines));
    }
    QStringList job(const QString &description, const QStringList &more = {}) const
    {
        return QStringList{u"--no-dialog"_qs, u"--ppd"_qs, description, u"--output"_qs, u"out.prn"_qs} + more +
               QStringList{document};
    }
    /// What a description would run of its own.
    QStringList foreign(const QByteArray &lines) const
    {
        Problem error;
        const PpdFile sent = openPpdFile(ppdWith(lines), &error);
        EXPECT_NE(sent, nullptr) << error.sentence.toStdString();
        QStringList texts;
        for (const ForeignProgram &found : foreignPrograms(sent.get())) {
            texts.append(found.keyword + u'=' + found.text);
        }
        return texts;
    }

    QString trace = folder.filePath(u"was-run"_qs);
    QString intruder = program(u"intruder"_qs, "touch '" + QFile::encodeName(trace) + "'\necho intruder\n");
};

TEST_F(HostilePpd, FilterByPath_IsRefusedByNameAndNotRun)
{
    expectFailure(testsupport::badDescription,
                  job(ppdWith("*cupsFilter: \"text/plain 0 " + intruder.toUtf8() + "\"\n")), qPrintable(intruder));
    const QString relative = QDir(cupsFilterFolder()).relativeFilePath(intruder);
    expectFailure(testsupport::badDescription,
                  job(ppdWith("*cupsFilter: \"text/plain 0 " + relative.toUtf8() + "\"\n")), qPrintable(relative));
    expectFailure(testsupport::badDescription,
                  job(ppdWith("*cupsFilter2: \"text/plain text/plain 0 " + intruder.toUtf8() + "\"\n")),
                  "cupsFilter2: text/plain");
    expectFailure(
        testsupport::badDescription,
        job(ppdWith("*cupsFilter: \"text/plain 0 -\"\n*cupsPreFilter: \"text/plain 0 " + intruder.toUtf8() + "\"\n")),
        "cupsPreFilter: text/plain");
    EXPECT_FALSE(QFileInfo::exists(trace));
    EXPECT_FALSE(QFileInfo::exists(folder.filePath(u"out.prn"_qs)));
}

TEST_F(HostilePpd, FilterByPath_IsRefusedForAQueuesJobIntoAFileAsWell)
{
    QStringList arguments = job(ppdWith("*cupsFilter: \"text/plain 0 " + intruder.toUtf8() + "\"\n"));
    expectFailure(testsupport::badDescription, arguments << u"-d"_qs << u"tape"_qs, "repeat with --trust-ppd");
    EXPECT_FALSE(QFileInfo::exists(trace));
}

TEST_F(HostilePpd, FilterThatIsLookedAtOnly_IsNoReasonToRefuse)
{
    const Outcome outcome =
        run({u"--ppd"_qs, ppdWith("*cupsFilter: \"text/plain 0 " + intruder.toUtf8() + "\"\n"), u"--show-options"_qs});
    EXPECT_EQ(outcome.status, 0) << outcome.messages.toStdString();
    EXPECT_FALSE(QFileInfo::exists(trace));
}

TEST_F(HostilePpd, CommandLine_IsRefusedAndShownWithoutItsControlCharacters)
{
    const QString sent = ppdWith("*cupsFilter: \"application/vnd.cups-postscript 0 foomatic-rip\"\n"
                                 "*FoomaticRIPCommandLine: \"cat; touch /tmp/x; echo \x1b[2J\"\n*End\n"
                                 "*FoomaticRIPPostPipe: \"| sh\"\n*End\n");
    expectFailure(testsupport::badDescription, job(sent),
                  "FoomaticRIPCommandLine: cat; touch /tmp/x; echo \\x1B[2J; FoomaticRIPPostPipe: | sh.");
    EXPECT_FALSE(run(job(sent)).messages.contains('\x1b'));
}

TEST_F(HostilePpd, ThatIsTrusted_RunsItsFilterAndSaysWhichOne)
{
    const Outcome outcome =
        run(job(ppdWith("*cupsFilter: \"text/plain 0 " + intruder.toUtf8() + "\"\n"), {u"--trust-ppd"_qs}));
    EXPECT_EQ(outcome.status, 0) << outcome.messages.toStdString();
    EXPECT_TRUE(outcome.messages.contains(intruder.toUtf8())) << outcome.messages.toStdString();
    EXPECT_EQ(contentsOf(folder.filePath(u"out.prn"_qs)), "intruder\n");
    // It ran confined: its file is nowhere.
    EXPECT_FALSE(QFileInfo::exists(trace));
}

TEST_F(HostilePpd, ThatIsTrusted_HasItsCommandLineRunConfined)
{
    const QString sent = ppdWith("*cupsFilter: \"application/vnd.cups-postscript 0 foomatic-rip\"\n"
                                 "*FoomaticRIPCommandLine: \"cat >/dev/null; touch '" +
                                 QFile::encodeName(trace) + "'; echo from the command line\"\n*End\n");
    const Outcome outcome = run(job(sent, {u"--trust-ppd"_qs}));
    EXPECT_EQ(outcome.status, 0) << outcome.messages.toStdString();
    EXPECT_TRUE(contentsOf(folder.filePath(u"out.prn"_qs)).contains("from the command line"));
    EXPECT_FALSE(QFileInfo::exists(trace));
}

TEST_F(HostilePpd, ThatIsTrusted_ReachesNeitherHomeNorNetwork)
{
    const QString secret = hosttest::writeFile(folder, u"secret"_qs, "the person's");
    const int server = socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t size = sizeof address;
    // The socket interface takes every kind of address through this one type.
    ASSERT_EQ(bind(server, reinterpret_cast<sockaddr *>(&address), size), 0);
    ASSERT_EQ(listen(server, 5), 0);
    ASSERT_EQ(getsockname(server, reinterpret_cast<sockaddr *>(&address), &size), 0);
    const QByteArray port = QByteArray::number(ntohs(address.sin_port));
    const QString filter =
        program(u"spy"_qs,
                "cat '" + QFile::encodeName(secret) + "' || echo no file\n" + "(exec 3<>/dev/tcp/127.0.0.1/" + port +
                    ") 2>/dev/null && echo connected || echo no network\n",
                "/bin/bash");
    const QString sent = ppdWith("*cupsFilter: \"text/plain 0 " + filter.toUtf8() + "\"\n");
    const Outcome outcome = run(job(sent, {u"--trust-ppd"_qs}));
    EXPECT_EQ(outcome.status, 0) << outcome.messages.toStdString();
    EXPECT_EQ(contentsOf(folder.filePath(u"out.prn"_qs)), "no file\nno network\n");
    close(server);
}

TEST_F(HostilePpd, WithoutBubblewrap_ConfinementIsSaidToBeMissingAndTheJobPrinted)
{
    variables.emplace_back(u"PATH"_qs, folder.path());
    const Outcome outcome = run(job(filterPpd, {u"--trust-ppd"_qs}));
    EXPECT_EQ(outcome.status, 0) << outcome.messages.toStdString();
    EXPECT_TRUE(outcome.messages.contains("without confinement, because bubblewrap is missing"))
        << outcome.messages.toStdString();
    EXPECT_TRUE(contentsOf(folder.filePath(u"out.prn"_qs)).endsWith("Hello\n"));
}

TEST_F(HostilePpd, WhereTheRoomWorks_NothingIsTriedBeforehand)
{
    const QString log = folder.filePath(u"calls"_qs);
    program(u"bwrap"_qs, "echo \"$*\" >>" + QFile::encodeName(log) + "\nexec /usr/bin/bwrap \"$@\"\n");
    variables.emplace_back(u"PATH"_qs, folder.path());
    const Outcome outcome = run(job(filterPpd, {u"--trust-ppd"_qs}));
    EXPECT_EQ(outcome.status, 0) << outcome.messages.toStdString();
    EXPECT_FALSE(outcome.messages.contains("without confinement")) << outcome.messages.toStdString();
    const QByteArray calls = contentsOf(log);
    EXPECT_TRUE(calls.contains("/cupsfilter")) << calls.toStdString();
    EXPECT_FALSE(calls.contains("/usr/bin/true")) << calls.toStdString();
}

TEST_F(HostilePpd, FilterThatFailsInTheRoom_IsNotRunWithoutOne)
{
    const QString filter =
        program(u"failing"_qs, "touch '" + QFile::encodeName(trace) + "'\necho 'bwrap: No permissions' >&2\nexit 1\n");
    const QString sent = ppdWith("*cupsFilter: \"text/plain 0 " + filter.toUtf8() + "\"\n");
    const Outcome outcome = run(job(sent, {u"--trust-ppd"_qs}));
    EXPECT_EQ(outcome.status, testsupport::failedJob);
    EXPECT_FALSE(QFileInfo::exists(trace)) << outcome.messages.toStdString();
}

TEST_F(HostilePpd, WhereNameSpacesAreForbidden_TheReasonIsPassedOnAndTheJobPrinted)
{
    program(u"bwrap"_qs, "echo 'bwrap: No permissions to create new namespace' >&2\nexit 1\n");
    variables.emplace_back(u"PATH"_qs, folder.path());
    const Outcome outcome = run(job(filterPpd, {u"--trust-ppd"_qs}));
    EXPECT_EQ(outcome.status, 0) << outcome.messages.toStdString();
    EXPECT_TRUE(outcome.messages.contains("bwrap: No permissions to create new namespace"))
        << outcome.messages.toStdString();
    EXPECT_TRUE(contentsOf(folder.filePath(u"out.prn"_qs)).endsWith("Hello\n"));
}

TEST_F(HostilePpd, FiltersOfCups_AreNotItsOwn)
{
    EXPECT_EQ(foreign("*cupsFilter: \"application/vnd.cups-raster 50 rastertolabel\"\n"), QStringList());
    EXPECT_EQ(foreign("*cupsFilter: \"text/plain 0 -\"\n"), QStringList());
    EXPECT_EQ(foreign("*cupsFilter2: \"application/vnd.cups-raster printer/x 0 maxsize(1000) rastertolabel\"\n"),
              QStringList());
}

TEST_F(HostilePpd, WhatIsNoPlainNameOfCupsFolder_IsItsOwn)
{
    for (const char *line :
         {"text/plain 0 /usr/lib/cups/filter/rastertolabel", "text/plain 0 ../filter/rastertolabel",
          "text/plain 0 rastertolabel x", "text/plain 0 no-such-filter", "text/plain 0 ..", "text/plain 0 .",
          "text/plain rastertolabel", "rastertolabel", "text/plain 0 maxsize(1x) rastertolabel",
          // An interpreter of command lines, and shell scripts which expand numbers of the description.
          "application/vnd.cups-postscript 0 foomatic-rip", "application/vnd.cups-brf 0 brftoembosser",
          "application/vnd.cups-brf 0 -", "image/vnd.cups-ubrl 0 -"}) {
        EXPECT_EQ(foreign(QByteArray("*cupsFilter: \"") + line + "\"\n"),
                  QStringList(u"cupsFilter="_qs + QString::fromLatin1(line)));
    }
    EXPECT_EQ(foreign("*FoomaticRIPOption KsMargin: enum CmdLine A\n*foomaticripcommandline: \"x\"\n").size(), 2);
}

TEST_F(HostilePpd, FilterThatOthersCouldHaveChanged_IsNotCups)
{
    EXPECT_TRUE(isOwnFilter(u"rastertolabel"_qs));
    program(u"rastertolabel"_qs, "");
    QFile::setPermissions(folder.path(), QFile::permissions(folder.path()) | QFile::WriteOther);
    EXPECT_FALSE(isOwnFilter(u"rastertolabel"_qs, folder.path()));
}

TEST(RootsFiles, AreRootsByEveryStepOfTheirPath)
{
    const QTemporaryDir folder;
    EXPECT_TRUE(onlyRootChanges(u"/usr/bin/env"_qs));
    EXPECT_TRUE(onlyRootChanges(u"/bin/sh"_qs)); // through links of the system
    EXPECT_FALSE(onlyRootChanges(u"usr/bin/env"_qs));
    EXPECT_FALSE(onlyRootChanges(u"/usr/bin/no-such-file"_qs));
    // A link from a folder of everybody to a file of root: the link may be another by the time that it is used.
    const QString link = folder.filePath(u"env"_qs);
    ASSERT_TRUE(QFile::link(u"/usr/bin/env"_qs, link));
    EXPECT_FALSE(onlyRootChanges(link));
    EXPECT_FALSE(onlyRootChanges(folder.path() + u"/../../usr/bin/env"_qs));
    EXPECT_FALSE(onlyRootChanges(u"/tmp"_qs));
}

TEST(SystemDescriptions, AreThoseOfTheMachinesFoldersAlone)
{
    const QTemporaryDir folder;
    const QString system = u"/usr/share/ppd/cupsfilters/"_qs;
    const QStringList names = QDir(system).entryList({u"*.ppd"_qs}, QDir::Files);
    ASSERT_FALSE(names.isEmpty());
    EXPECT_TRUE(isSystemDescription(system + names.first()));
    EXPECT_FALSE(isSystemDescription(hosttest::writeFile(folder, u"a.ppd"_qs, hosttest::testPpd())));
    EXPECT_FALSE(isSystemDescription(u"/usr/share/doc"_qs));
    EXPECT_FALSE(isSystemDescription(u"/usr/share/ppd/../../bin/env"_qs));
}

} // namespace
