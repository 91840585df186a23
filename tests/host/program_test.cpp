// SPDX-License-Identifier: Apache-2.0
// The program as it is run: what it prints, where, and its exit status. No print server and no display is there.
#include "ProgramTest.h"

#include "job/PdfPages.h"

#include <QDir>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <atomic>
#include <memory>

#include <pdekit/Version.h>

#include <sys/stat.h>

namespace
{

using hosttest::contentsOf;
using hosttest::Outcome;
using hosttest::Program;

TEST_F(Program, ShowOptions_PrintsTheJobsOptionsAndSubmitsNothing)
{
    const Outcome outcome = run({u"--ppd"_qs, ppd, u"--show-options"_qs, u"-n"_qs, u"2"_qs, u"-o"_qs,
                                 u"PageSize=W24 KsOwn=x"_qs, u"-o"_qs, u"KsMargin=5.0"_qs});
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.messages, "");
    EXPECT_EQ(outcome.output, "copies=2\nKsOwn=x\nPageSize=W24\nKsMargin=5.0\n");
}

TEST_F(Program, ShowOptions_CarriesWhatThePanelSent)
{
    // Nothing is laid down for the margin: the panel sends the PPD's default when it hands over its values.
    EXPECT_EQ(run({u"--ppd"_qs, ppd, u"--show-options"_qs}).output, "PageSize=W12\nKsMargin=2.0\n");
    bundles = folder.path();
    EXPECT_FALSE(run({u"--ppd"_qs, ppd, u"--show-options"_qs}).output.contains("KsMargin=2.0\n"));
}

TEST_F(Program, Summary_PrintsTitlesAndValues)
{
    const Outcome outcome = run({u"--ppd"_qs, ppd, u"--summary"_qs});
    EXPECT_EQ(outcome.status, 0);
    EXPECT_TRUE(outcome.output.contains("Tape: W12\nMargin: 2.0\n")) << outcome.output.toStdString();
}

TEST_F(Program, FilterRun_GivesTheFilterEveryOptionAndNamesTheOutput)
{
    const Outcome outcome =
        run({u"--no-dialog"_qs, u"--trust-ppd"_qs, u"--ppd"_qs, filterPpd, u"-n"_qs, u"2"_qs, u"-t"_qs, u"My label"_qs,
             u"-o"_qs, u"KsMargin=5.0"_qs, u"--output"_qs, u"out.prn"_qs, document});
    EXPECT_EQ(outcome.status, 0) << outcome.messages.toStdString();
    EXPECT_TRUE(outcome.output.contains("out.prn")) << outcome.output.toStdString();
    const QByteArray bytes = contentsOf(folder.filePath(u"out.prn"_qs));
    EXPECT_TRUE(bytes.startsWith("copies=2 title=My label options=")) << bytes.toStdString();
    EXPECT_TRUE(bytes.contains("KsMargin=5.0")) << bytes.toStdString();
    EXPECT_TRUE(bytes.contains("PageSize=W12")) << bytes.toStdString();
    EXPECT_TRUE(bytes.endsWith("Hello\n")) << bytes.toStdString();
}

TEST_F(Program, OfAPipe_NamesItsOutputItself)
{
    EXPECT_EQ(run({u"--no-dialog"_qs, u"--trust-ppd"_qs, u"--ppd"_qs, filterPpd}, "From a pipe\n").status, 0);
    EXPECT_TRUE(contentsOf(folder.filePath(u"tapeprint.prn"_qs)).endsWith("From a pipe\n"));
}

TEST_F(Program, OutputThatNobodyNamed_NeverReplacesAFile)
{
    hosttest::writeFile(folder, u"label.prn"_qs, "mine");
    EXPECT_EQ(run({u"--no-dialog"_qs, u"--trust-ppd"_qs, u"--ppd"_qs, filterPpd, document}).status, 0);
    EXPECT_EQ(contentsOf(folder.filePath(u"label.prn"_qs)), "mine");
    EXPECT_TRUE(contentsOf(folder.filePath(u"label-2.prn"_qs)).endsWith("Hello\n"));
}

TEST_F(Program, FailingFilter_LeavesNoOutputBehind)
{
    hosttest::writeFile(folder, u"filter"_qs, "#!/bin/sh\necho half\necho 'ERROR: no ink' >&2\nexit 3\n");
    expectFailure(
        testsupport::failedJob,
        {u"--no-dialog"_qs, u"--trust-ppd"_qs, u"--ppd"_qs, filterPpd, u"--output"_qs, u"out.prn"_qs, document},
        "no ink");
    EXPECT_FALSE(QFileInfo::exists(folder.filePath(u"out.prn"_qs)));
}

TEST_F(Program, FullDisk_IsNamed)
{
    expectFailure(
        testsupport::unwritableOutput,
        {u"--no-dialog"_qs, u"--trust-ppd"_qs, u"--ppd"_qs, filterPpd, u"--output"_qs, u"/dev/full"_qs, document},
        "No space left on device");
}

TEST_F(Program, RefusingPanel_PrintsNothingAndPassesItsWordsOn)
{
    variables.emplace_back(u"HOST_TEST_REFUSE"_qs, u"1"_qs);
    expectFailure(
        testsupport::refusedValue,
        {u"--no-dialog"_qs, u"--trust-ppd"_qs, u"--ppd"_qs, filterPpd, u"--output"_qs, u"out.prn"_qs, document},
        "The margin is too wide.");
    EXPECT_FALSE(QFileInfo::exists(folder.filePath(u"out.prn"_qs)));
}

TEST_F(Program, BrokenBundle_IsNamedAndTheJobPrinted)
{
    bundles = QStringLiteral(HOST_TEST_BUNDLES "/type");
    const Outcome outcome =
        run({u"--no-dialog"_qs, u"--trust-ppd"_qs, u"--ppd"_qs, filterPpd, u"--output"_qs, u"out.prn"_qs, document});
    EXPECT_EQ(outcome.status, 0);
    EXPECT_TRUE(outcome.messages.contains("HostTestOtherType.bundle")) << outcome.messages.toStdString();
    EXPECT_TRUE(contentsOf(folder.filePath(u"out.prn"_qs)).endsWith("Hello\n"));
}

TEST_F(Program, OptionThatThePanelReplaces_IsNamed)
{
    // The test panel sends what the PPD's default says, which holds 40 bytes: this value does not fit.
    const QString tooLong(41, u'9');
    const Outcome outcome = run({u"--ppd"_qs, ppd, u"--show-options"_qs, u"-o"_qs, u"KsMargin="_qs + tooLong});
    // It is shown what would become of it, but whoever asked for it does not get it.
    EXPECT_EQ(outcome.status, testsupport::refusedValue);
    EXPECT_TRUE(outcome.messages.contains("the job carries 2.0.")) << outcome.messages.toStdString();
    EXPECT_EQ(run({u"--adjust"_qs, u"--ppd"_qs, ppd, u"--show-options"_qs, u"-o"_qs, u"KsMargin="_qs + tooLong}).status,
              testsupport::done);
}

TEST_F(Program, ValueThatIsNotTakenAsItIs_IsRefusedBeforeAnythingIsPrinted)
{
    const QStringList job{u"--no-dialog"_qs, u"--trust-ppd"_qs, u"--ppd"_qs, filterPpd, u"--output"_qs, u"out.prn"_qs};
    const std::vector<std::pair<QString, const char *>> values{
        {u"KsMargin="_qs + QString(41, u'9'), "the job carries 2.0."},
        {u"CutMedia=Twice"_qs, "CutMedia=Twice is none of the choices"},
        {u"CutMedia=3"_qs, "CutMedia=3 is none of the choices"}, // no panel answers for it
        {u"PageSize=W99"_qs, "PageSize=W99 is none of the choices"},
        {u"PageSize=Custom.24x"_qs, "PageSize=Custom.24x is no size"},
        {u"media=Custom.twelve"_qs, "media=Custom.twelve is no size"},
        {u"media=W99"_qs, "media=W99 is none of the choices"},
        {u"number-up=many"_qs, "number-up=many is no value"},
        {u"number-up=17"_qs, "number-up=17 is no value"},
    };
    for (const auto &[value, part] : values) {
        const Outcome outcome = run(job + QStringList{u"-o"_qs, value, document});
        EXPECT_EQ(outcome.status, testsupport::refusedValue) << part;
        EXPECT_EQ(outcome.messages.count('\n'), 1) << outcome.messages.toStdString();
        EXPECT_TRUE(outcome.messages.contains(part)) << outcome.messages.toStdString();
        EXPECT_TRUE(outcome.messages.contains("--adjust")) << outcome.messages.toStdString();
        EXPECT_FALSE(QFileInfo::exists(folder.filePath(u"out.prn"_qs))) << part;
    }
    EXPECT_EQ(run(job + QStringList{u"--adjust"_qs, u"-o"_qs, u"CutMedia=Twice"_qs, document}).status,
              testsupport::done);
    EXPECT_TRUE(contentsOf(folder.filePath(u"out.prn"_qs)).contains("CutMedia=Twice"));
}

TEST_F(Program, ResolutionThatThePanelCannotShow_IsSaidAndTheRestDone)
{
    bundles = QStringLiteral(TAPEPRINT_BUNDLE_DIR);
    const QString three =
        hosttest::writeFile(folder, u"three.ppd"_qs,
                            hosttest::testPpd("*OpenUI *Resolution/Resolution: PickOne\n*DefaultResolution: A\n"
                                              "*Resolution A/A: \"\"\n*Resolution B/B: \"\"\n"
                                              "*Resolution C/C: \"\"\n*CloseUI: *Resolution\n"
                                              "*KsMaxTapeLength: \"500\"\n*KsMaxMargin: \"20\"\n"));
    const Outcome outcome = run({u"--ppd"_qs, three, u"--show-options"_qs, u"-o"_qs, u"Resolution=C"_qs});
    EXPECT_EQ(outcome.status, testsupport::refusedValue);
    EXPECT_TRUE(outcome.output.contains("Resolution=A\n")) << outcome.output.toStdString();
    EXPECT_EQ(outcome.messages, "tapeprint: The panel \"Page Settings\" does not offer Resolution=C, which the printer "
                                "has: the job carries Resolution=A.\n");
}

TEST_F(Program, BadInput_IsOneLineAndTheStatusOfItsKind)
{
    const QString broken = hosttest::writeFile(folder, u"broken.ppd"_qs, "*PPD-Adobe: \"4.3\"\nbroken\n");
    const QString empty = hosttest::writeFile(folder, u"empty.txt"_qs, {});
    expectFailure(testsupport::badDescription, {u"--no-dialog"_qs, u"--ppd"_qs, broken, document},
                  "broken.ppd is not valid, line 2");
    expectFailure(testsupport::badDescription,
                  {u"--no-dialog"_qs, u"--ppd"_qs, folder.filePath(u"none.ppd"_qs), document},
                  "none.ppd cannot be read");
    expectFailure(testsupport::badDocument, {u"--no-dialog"_qs, u"--ppd"_qs, ppd, folder.filePath(u"none.pdf"_qs)},
                  "none.pdf cannot be read");
    expectFailure(testsupport::badDocument, {u"--no-dialog"_qs, u"--ppd"_qs, ppd, empty}, "is empty");
    expectFailure(testsupport::badDocument, {u"--no-dialog"_qs, u"--ppd"_qs, ppd}, "Standard input is empty");
    expectFailure(testsupport::unreachable, {u"--no-dialog"_qs, u"-d"_qs, u"tape"_qs, document}, "does not answer");
    expectFailure(testsupport::unreachable, {u"--no-dialog"_qs, document}, "does not answer");
    expectFailure(testsupport::badUsage, {u"-o"_qs, u"a={b=c}"_qs, u"--ppd"_qs, ppd, u"--show-options"_qs}, "braces");
    expectFailure(testsupport::badUsage, {u"--unknown"_qs}, "--unknown is no option");
}

TEST_F(Program, Check_SaysWhetherItWouldPrintAndPrintsNothing)
{
    const QStringList check{u"--check"_qs, u"--trust-ppd"_qs, u"--ppd"_qs, filterPpd, u"--output"_qs};
    const Outcome good = run(check + QStringList{u"out.prn"_qs, document});
    EXPECT_EQ(good.status, testsupport::done) << good.messages.toStdString();
    EXPECT_TRUE(good.output.contains("nothing was printed")) << good.output.toStdString();
    EXPECT_FALSE(QFileInfo::exists(folder.filePath(u"out.prn"_qs)));
    expectFailure(testsupport::refusedValue, check + QStringList{u"out.prn"_qs, u"-oCutMedia=Twice"_qs, document},
                  "none of the choices");
    expectFailure(testsupport::unwritableOutput, check + QStringList{document, document}, "only read");
    expectFailure(testsupport::badDescription, {u"--check"_qs, u"--ppd"_qs, filterPpd, document}, "--trust-ppd");
    expectFailure(testsupport::unreachable, {u"--check"_qs, u"-d"_qs, u"tape"_qs, document}, "does not answer");
    expectFailure(testsupport::badDocument, check + QStringList{u"out.prn"_qs, u"none.pdf"_qs}, "cannot be read");
}

TEST_F(Program, PdfThatIsBrokenOrLocked_IsNotSentToPaperEither)
{
    const QString broken = hosttest::writeFile(folder, u"broken.pdf"_qs, "%PDF-1.4\nand no more\n");
    for (const QString &mode : {u"--check"_qs, u"--no-dialog"_qs}) {
        expectFailure(testsupport::badDocument, {mode, u"--trust-ppd"_qs, u"--ppd"_qs, filterPpd, document, broken},
                      "broken.pdf is damaged");
    }
}

TEST_F(Program, NamedPipe_IsReadOnceToItsEnd)
{
    const QString pipe = folder.filePath(u"pipe"_qs);
    ASSERT_EQ(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    // The writer ends well: nobody opened the pipe only to look at it.
    QProcess writer;
    writer.start(u"sh"_qs, {u"-c"_qs, u"printf 'Through a pipe\\n' > \"$0\" && echo whole"_qs, pipe});
    const Outcome outcome =
        run({u"--no-dialog"_qs, u"--trust-ppd"_qs, u"--ppd"_qs, filterPpd, u"--output"_qs, u"out.prn"_qs, pipe});
    EXPECT_EQ(outcome.status, testsupport::done) << outcome.messages.toStdString();
    ASSERT_TRUE(writer.waitForFinished());
    EXPECT_EQ(writer.readAllStandardOutput(), "whole\n");
    EXPECT_TRUE(contentsOf(folder.filePath(u"out.prn"_qs)).endsWith("Through a pipe\n"));
}

TEST_F(Program, JapaneseText_HasItsCharactersWithoutAWindowAsWell)
{
    // One low stroke a character, in a line that runs along the tape; a box in its place would be about nine points
    // high.
    const QByteArray text = u"一一\n"_qs.toUtf8();
    const QString file = hosttest::writeFile(folder, u"japanese.txt"_qs, text);
    const QString pdf = folder.filePath(u"out.pdf"_qs);
    const std::atomic<bool> goOn = false;
    for (const QStringList &documents : {QStringList{file}, QStringList()}) {
        const Outcome outcome =
            run(QStringList{u"--no-dialog"_qs, u"--ppd"_qs, ppd, u"--pdf"_qs, pdf} + documents, text);
        ASSERT_EQ(outcome.status, testsupport::done) << outcome.messages.toStdString();
        tapeprint::job::Problem error;
        const std::unique_ptr<tapeprint::job::PdfPages> pages = tapeprint::job::PdfPages::open(pdf, &error);
        ASSERT_TRUE(pages) << error.sentence.toStdString();
        const QSizeF ink = pages->drawnRect(0, goOn).value_or(QRectF()).size();
        EXPECT_LT(std::min(ink.width(), ink.height()), 4);
        EXPECT_GT(std::max(ink.width(), ink.height()), 10);
        QFile::remove(pdf);
    }
}

TEST_F(Program, SeveralFiles_ArePrintedInTheirOrder)
{
    const QString second = hosttest::writeFile(folder, u"second.txt"_qs, "World\n");
    EXPECT_EQ(run({u"--no-dialog"_qs, u"--trust-ppd"_qs, u"--ppd"_qs, filterPpd, u"--output"_qs, u"out.prn"_qs,
                   document, second})
                  .status,
              testsupport::done);
    const QByteArray bytes = contentsOf(folder.filePath(u"out.prn"_qs));
    EXPECT_GE(bytes.indexOf("Hello\n"), 0) << bytes.toStdString();
    EXPECT_GT(bytes.indexOf("World\n"), bytes.indexOf("Hello\n")) << bytes.toStdString();
}

TEST_F(Program, Json_IsOneObjectWithNumbersAsNumbers)
{
    const Outcome outcome = run({u"--json"_qs, u"--no-dialog"_qs, u"--trust-ppd"_qs, u"--ppd"_qs, filterPpd, u"-n2"_qs,
                                 u"-oKsMargin=5.0"_qs, u"--output"_qs, u"out.prn"_qs, document});
    EXPECT_EQ(outcome.status, testsupport::done);
    EXPECT_EQ(outcome.messages, "");
    const QJsonObject object = QJsonDocument::fromJson(outcome.output).object();
    EXPECT_EQ(object[u"status"].toInt(-1), 0);
    EXPECT_EQ(object[u"kind"].toString(), u"done"_qs);
    EXPECT_EQ(object[u"printer"][u"ppd"].toString(), filterPpd);
    EXPECT_EQ(object[u"options"][u"copies"].toInt(), 2);
    EXPECT_EQ(object[u"options"][u"KsMargin"].toDouble(), 5.0);
    EXPECT_EQ(object[u"options"][u"PageSize"].toString(), u"W12"_qs);
    EXPECT_EQ(object[u"summary"][0][u"lines"][0][u"title"].toString(), u"Tape"_qs);
    EXPECT_EQ(object[u"job"][u"output"].toString(), u"out.prn"_qs);
    EXPECT_EQ(object[u"job"][u"bytes"].toInteger(), contentsOf(folder.filePath(u"out.prn"_qs)).size());
    EXPECT_TRUE(object[u"warnings"].isArray());
}

TEST_F(Program, Json_HoldsProblemsWithTheSameStatus)
{
    const std::vector<std::pair<QStringList, testsupport::ExitStatus>> runs{
        {{u"--json"_qs, u"--no-such"_qs}, testsupport::badUsage},
        {{u"--json"_qs, u"--check"_qs, u"--ppd"_qs, ppd, u"none.pdf"_qs}, testsupport::badDocument},
        {{u"--json"_qs, u"--ppd"_qs, ppd, u"--show-options"_qs, u"-oCutMedia=Twice"_qs}, testsupport::refusedValue},
    };
    for (const auto &[arguments, status] : runs) {
        const Outcome outcome = run(arguments);
        EXPECT_EQ(outcome.status, status);
        EXPECT_EQ(outcome.messages, "");
        const QJsonObject object = QJsonDocument::fromJson(outcome.output).object();
        EXPECT_EQ(object[u"status"].toInt(), status);
        EXPECT_FALSE(object[u"message"].toString().isEmpty());
    }
}

TEST_F(Program, Json_HoldsHelpAndVersion)
{
    for (const QString &name : {u"help"_qs, u"version"_qs}) {
        const QByteArray text = run({u"--"_qs + name}).output.trimmed();
        const Outcome outcome = run({u"--"_qs + name, u"--json"_qs});
        EXPECT_EQ(outcome.status, testsupport::done);
        EXPECT_EQ(outcome.messages, "");
        const QJsonObject object = QJsonDocument::fromJson(outcome.output).object();
        EXPECT_EQ(object[u"status"].toInt(-1), 0) << outcome.output.toStdString();
        EXPECT_EQ(object[u"kind"].toString(), u"done"_qs);
        const QByteArray said = object[name].toString().toUtf8();
        EXPECT_FALSE(said.isEmpty());
        EXPECT_EQ(name == u"version" ? "tapeprint " + said : said, text);
    }
}

TEST_F(Program, HelpAndVersion_NeedNothing)
{
    const Outcome help = run({u"--help"_qs});
    EXPECT_EQ(help.status, 0);
    EXPECT_TRUE(help.output.startsWith("Usage: tapeprint "));
    const Outcome version = run({u"--version"_qs});
    EXPECT_EQ(version.status, 0);
    EXPECT_EQ(version.output, "tapeprint " PDEKIT_VERSION "\n"); // program and library have one
}

/// The program in a place of its own, with a sample printer's description beside it.
class InstalledProgram : public Program
{
protected:
    InstalledProgram()
    {
        for (const QString &place : {u"bin"_qs, u"lib"_qs, u"share/ppd/tapeprint"_qs}) {
            QDir(prefix.path()).mkpath(place);
        }
        QFile::copy(QStringLiteral(TAPEPRINT_BIN_DIR "/tapeprint"), prefix.filePath(u"bin/tapeprint"_qs));
        const QString library = u"lib/libpdekit.so.1"_qs;
        QFile::link(QStringLiteral(TAPEPRINT_BIN_DIR "/../") + library, prefix.filePath(library));
        hosttest::writeFile(prefix, u"share/ppd/tapeprint/sample.ppd"_qs, hosttest::testPpd());
    }

    QByteArray optionsOf(const QString &description) const
    {
        QProcess program;
        start(program, prefix.filePath(u"bin/tapeprint"_qs), {u"--ppd"_qs, description, u"--show-options"_qs});
        EXPECT_TRUE(program.waitForFinished(60000));
        return program.readAllStandardOutput() + program.readAllStandardError();
    }

    QTemporaryDir prefix;
};

TEST_F(InstalledProgram, FindsItsSamplePrintersByName)
{
    EXPECT_EQ(optionsOf(u"sample"_qs), "PageSize=W12\nKsMargin=2.0\n");
    EXPECT_EQ(optionsOf(u"sample.ppd"_qs), "PageSize=W12\nKsMargin=2.0\n");
}

TEST_F(InstalledProgram, TakesAFileOfThatNameFirst)
{
    hosttest::writeFile(folder, u"sample"_qs, "no description");
    EXPECT_TRUE(optionsOf(u"sample"_qs).startsWith("tapeprint: "));
}

TEST_F(InstalledProgram, TakesAPathForAPath)
{
    EXPECT_TRUE(optionsOf(u"./sample"_qs).startsWith("tapeprint: "));
    EXPECT_TRUE(optionsOf(u"../tapeprint/sample"_qs).startsWith("tapeprint: "));
}

} // namespace
