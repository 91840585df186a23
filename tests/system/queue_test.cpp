// SPDX-License-Identifier: Apache-2.0
// lp's letters on a real queue: default printer, instances, copies, title, pages, several files, standard input.
#include "tests/support/ExitStatuses.h"
#include "tests/system/SystemTest.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>

namespace
{

using systemtest::FilterCall;
using systemtest::Label;
using systemtest::labelsIn;
using systemtest::Outcome;
using systemtest::panelOptionsMm;
using systemtest::SystemTest;
using systemtest::tapeOptions;

class QueueJob : public SystemTest
{
protected:
    void run(const QString &program, const QStringList &arguments) const
    {
        const Outcome outcome = systemtest::runClient({program, arguments, variables()});
        ASSERT_EQ(outcome.status, 0) << outcome.messages.toStdString();
    }
};

TEST_F(QueueJob, DefaultPrinter_TakesAJobThatNamesNone)
{
    ASSERT_TRUE(cups.addRecordedQueue(u"other"_qs, u"plain"_qs).isNull());
    run(u"/usr/sbin/lpadmin"_qs, {u"-d"_qs, u"tape"_qs});
    const Outcome outcome = tapeprint({u"--no-dialog"_qs, document});
    EXPECT_TRUE(outcome.output.startsWith("Job tape-1 is ")) << outcome.output.toStdString();
    const std::vector<FilterCall> calls = filterCallsOf(outcome);
    ASSERT_EQ(calls.size(), 1U);
    EXPECT_EQ(tapeOptions(calls[0]), panelOptionsMm());
}

TEST_F(QueueJob, Instance_BringsItsSavedOptionsAndTheCommandLineHasTheLastWord)
{
    run(u"/usr/bin/lpoptions"_qs, {u"-p"_qs, u"tape/red"_qs, u"-o"_qs, u"KsTapeColor=KsTapeColorRed"_qs, u"-o"_qs,
                                   u"KsTapeLength=45.5"_qs, u"-o"_qs, u"PageSize=12mm"_qs});
    const std::vector<FilterCall> saved =
        filterCallsOf(tapeprint({u"-d"_qs, u"tape/red"_qs, u"--no-dialog"_qs, document}));
    ASSERT_EQ(saved.size(), 1U);
    EXPECT_EQ(tapeOptions(saved[0]),
              panelOptionsMm({"KsTapeColor=KsTapeColorRed", "KsTapeLength=45.5", "PageSize=Custom.12x45.5mm"}));
    // 12 mm of tape with a blank half millimetre at each edge are 129.9 dots, in 17 bytes.
    const std::vector<Label> labels = labelsIn(cups.printedBy(u"tape"_qs));
    ASSERT_EQ(labels.size(), 1U);
    EXPECT_EQ(labels[0].bytesPerRow, 17);

    const std::vector<FilterCall> overruled = filterCallsOf(tapeprint(
        {u"-d"_qs, u"tape/red"_qs, u"-o"_qs, u"KsTapeColor=KsTapeColorPink"_qs, u"--no-dialog"_qs, document}));
    ASSERT_EQ(overruled.size(), 1U);
    EXPECT_EQ(tapeOptions(overruled[0]),
              panelOptionsMm({"KsTapeColor=KsTapeColorPink", "KsTapeLength=45.5", "PageSize=Custom.12x45.5mm"}));

    // The queue itself is as it was.
    const std::vector<FilterCall> plain = printed({document});
    ASSERT_EQ(plain.size(), 1U);
    EXPECT_EQ(tapeOptions(plain[0]), panelOptionsMm());
}

TEST_F(QueueJob, QueueDefaults_BecomeThePanelsFirstSelections)
{
    run(u"/usr/sbin/lpadmin"_qs, {u"-p"_qs, u"tape"_qs, u"-o"_qs, u"KsTapeColor=KsTapeColorYellow"_qs, u"-o"_qs,
                                  u"KsTapeMaterial=KsTapeMaterialCloth"_qs});
    const std::vector<FilterCall> calls = printed({document});
    ASSERT_EQ(calls.size(), 1U);
    EXPECT_EQ(tapeOptions(calls[0]),
              panelOptionsMm({"KsTapeColor=KsTapeColorYellow", "KsTapeMaterial=KsTapeMaterialCloth"}));
}

TEST_F(QueueJob, WhatTheServerTellsOfAQueue_IsNoOptionOfAJob)
{
    const Outcome outcome = tapeprint({u"-d"_qs, u"tape"_qs, u"--show-options"_qs});
    EXPECT_EQ(outcome.status, 0) << outcome.messages.toStdString();
    EXPECT_TRUE(outcome.output.contains("KsTapeLength=")) << outcome.output.toStdString();
    for (const char *told : {"printer-", "marker-", "device-uri", "queued-job-count", "auth-info"}) {
        EXPECT_FALSE(outcome.output.contains(told)) << outcome.output.toStdString();
    }
}

TEST_F(QueueJob, CopiesAndTitle_AreTheFiltersOwnArguments)
{
    const std::vector<FilterCall> calls = printed({u"-n"_qs, u"3"_qs, u"-t"_qs, u"Büro \"A\" 'B'"_qs, document});
    ASSERT_EQ(calls.size(), 1U);
    EXPECT_EQ(calls[0].title(), QByteArray("Büro \"A\" 'B'"));
    EXPECT_EQ(tapeOptions(calls[0]), panelOptionsMm());
    ASSERT_EQ(cups.jobs().size(), 1U);
    EXPECT_EQ(cups.jobs()[0].title, u"Büro \"A\" 'B'"_qs);
    // Either the printer is told to print the label three times, or it is sent three labels.
    int copies = 0;
    for (const Label &label : labelsIn(cups.printedBy(u"tape"_qs))) {
        copies += label.copies;
    }
    EXPECT_EQ(copies, 3);
}

TEST_F(QueueJob, PriorityBillingAndTimeOfPrinting_AreTheServersOwn)
{
    const Outcome outcome =
        tapeprint({u"-d"_qs, u"tape"_qs, u"--no-dialog"_qs, u"-q"_qs, u"80"_qs, u"-o"_qs, u"job-billing=\"Büro 7\""_qs,
                   u"-o"_qs, u"job-name=\"From a preset\""_qs, u"-H"_qs, u"indefinite"_qs, document});
    EXPECT_EQ(outcome.output, "Job tape-1 is pending-held.\n") << outcome.messages.toStdString();
    EXPECT_EQ(cups.attributeOfJob(1, "job-priority"), "80");
    EXPECT_EQ(cups.attributeOfJob(1, "job-billing"), QByteArray("Büro 7"));
    EXPECT_EQ(cups.attributeOfJob(1, "job-hold-until"), "indefinite");
    EXPECT_EQ(cups.jobs().at(0).title, u"From a preset"_qs);
}

TEST_F(QueueJob, Pages_AreTheOnlyOnesPrinted)
{
    const std::vector<FilterCall> calls = printed({u"-P"_qs, u"2-3,5"_qs, documentOf(6)});
    ASSERT_EQ(calls.size(), 1U);
    // They are chosen before the filters get the document, and not a second time by them.
    EXPECT_FALSE(calls[0].options().contains("page-ranges")) << calls[0].options().toStdString();
    EXPECT_EQ(labelsIn(cups.printedBy(u"tape"_qs)).size(), 3U);
}

TEST_F(QueueJob, SeveralFiles_AreOneJobInTheirOrder)
{
    const std::vector<FilterCall> calls = printed({u"-t"_qs, u"Both"_qs, documentOf(2), document});
    // They are laid out together, as one document of labels.
    ASSERT_EQ(calls.size(), 1U);
    EXPECT_EQ(tapeOptions(calls[0]), panelOptionsMm());
    EXPECT_EQ(calls[0].title(), "Both");
    ASSERT_EQ(cups.jobs().size(), 1U);
    EXPECT_EQ(labelsIn(cups.printedBy(u"tape"_qs)).size(), 3U);
}

TEST_F(QueueJob, StandardInput_IsPrintedWhenNoFileIsNamed)
{
    const std::vector<FilterCall> calls = printed({u"-"_qs}, systemtest::contentsOf(document));
    ASSERT_EQ(calls.size(), 1U);
    EXPECT_EQ(calls[0].title(), "(stdin)");
    EXPECT_EQ(tapeOptions(calls[0]), panelOptionsMm());
    EXPECT_EQ(labelsIn(cups.printedBy(u"tape"_qs)).size(), 1U);
}

TEST_F(QueueJob, Check_TellsAQueueThatTakesNoJobsFromOneThatDoes)
{
    const QStringList check{u"--check"_qs, u"-d"_qs, u"tape"_qs, document};
    EXPECT_EQ(tapeprint(check).status, testsupport::done);
    run(u"/usr/sbin/cupsreject"_qs, {u"tape"_qs});
    const Outcome outcome = tapeprint(check);
    EXPECT_EQ(outcome.status, testsupport::rejectedJob);
    EXPECT_TRUE(outcome.messages.contains("takes no jobs")) << outcome.messages.toStdString();
    EXPECT_TRUE(cups.jobs().empty());
}

class LimitedServer : public QueueJob
{
protected:
    void SetUp() override
    {
        cups.configure("MaxCopies 20");
        QueueJob::SetUp();
    }
};

// cupsd puts 1, 2, 4, 6, 9 or 16 pages on a sheet.
TEST_F(LimitedServer, MoreThanItTakes_IsRefusedByTheCheckAndBeforeAnythingIsSent)
{
    ASSERT_TRUE(cups.addRecordedQueue(u"paper"_qs, u"plain"_qs).isNull());
    const auto expectRefusal = [this](const QStringList &arguments, const char *limit) {
        for (const QStringList &way : {QStringList{u"--check"_qs}, QStringList{u"--no-dialog"_qs},
                                       QStringList{u"--no-dialog"_qs, u"--adjust"_qs}}) {
            const Outcome outcome = tapeprint(way + arguments + QStringList{document});
            EXPECT_EQ(outcome.status, testsupport::refusedValue) << outcome.output.toStdString();
            EXPECT_TRUE(outcome.messages.contains(limit)) << outcome.messages.toStdString();
        }
    };
    expectRefusal({u"-d"_qs, u"tape"_qs, u"-n"_qs, u"21"_qs}, "20 copies of a job at most");
    expectRefusal({u"-d"_qs, u"paper"_qs, u"-n"_qs, u"21"_qs}, "20 copies of a job at most");
    expectRefusal({u"-d"_qs, u"paper"_qs, u"-o"_qs, u"number-up=3"_qs}, "one of 1, 2, 4, 6, 9, 16");
    EXPECT_TRUE(cups.jobs().empty());

    // Labels are laid out by the program, and what goes to a file is the program's alone.
    const auto expectDone = [this](const QStringList &arguments) {
        const Outcome outcome = tapeprint(arguments + QStringList{document});
        EXPECT_EQ(outcome.status, testsupport::done) << outcome.messages.toStdString();
    };
    expectDone({u"--check"_qs, u"-d"_qs, u"tape"_qs, u"-n"_qs, u"20"_qs, u"-o"_qs, u"number-up=3"_qs});
    expectDone({u"--check"_qs, u"-d"_qs, u"tape"_qs, u"-n"_qs, u"21"_qs, u"--pdf"_qs, u"labels.pdf"_qs});
    expectDone({u"--no-dialog"_qs, u"-d"_qs, u"tape"_qs, u"-n"_qs, u"20"_qs});
}

TEST_F(QueueJob, ServerOfTheLetterH_IsTheOneThatIsUsed)
{
    moreVariables = {{u"CUPS_SERVER"_qs, folder.path(u"nobody.sock"_qs)}};
    EXPECT_EQ(tapeprint({u"-d"_qs, u"tape"_qs, u"--no-dialog"_qs, document}).status, testsupport::unreachable);
    EXPECT_EQ(
        tapeprint({u"-h"_qs, cups.socket(), u"-U"_qs, u"mary"_qs, u"-d"_qs, u"tape"_qs, u"--no-dialog"_qs, document})
            .status,
        testsupport::done);
    ASSERT_EQ(cups.jobs().size(), 1U);
    EXPECT_EQ(cups.attributeOfJob(cups.jobs()[0].id, "job-originating-user-name"), "mary");
}

TEST_F(QueueJob, CompletionOfQueues_NamesThem)
{
    EXPECT_TRUE(tapeprint({u"--complete"_qs, u"queues"_qs}).output.contains("tape\t"));
    EXPECT_TRUE(tapeprint({u"--complete"_qs, u"choices:KsTapeColor"_qs, u"-d"_qs, u"tape"_qs})
                    .output.contains("KsTapeColorYellow\t"));
}

TEST_F(QueueJob, CompletionOfQueues_NamesTheirInstances)
{
    run(u"/usr/bin/lpoptions"_qs, {u"-p"_qs, u"tape/red"_qs, u"-o"_qs, u"KsTapeColor=KsTapeColorRed"_qs});
    const QByteArray queues = tapeprint({u"--complete"_qs, u"queues"_qs}).output;
    EXPECT_TRUE(queues.startsWith("tape\t") || queues.contains("\ntape\t")) << queues.toStdString();
    EXPECT_TRUE(queues.startsWith("tape/red\t") || queues.contains("\ntape/red\t")) << queues.toStdString();
}

TEST_F(QueueJob, Json_NamesTheJobAndWhatItCarries)
{
    const Outcome outcome = tapeprint({u"--json"_qs, u"-d"_qs, u"tape"_qs, u"--no-dialog"_qs, u"--wait"_qs, u"-o"_qs,
                                       u"KsTapeLength=45.5"_qs, u"-o"_qs, u"job-billing=0042"_qs, document});
    EXPECT_EQ(outcome.messages, "");
    const QJsonObject object = QJsonDocument::fromJson(outcome.output).object();
    EXPECT_EQ(object[u"status"].toInt(-1), testsupport::done) << outcome.output.toStdString();
    EXPECT_EQ(object[u"job"][u"queue"].toString(), u"tape"_qs);
    EXPECT_EQ(object[u"job"][u"id"].toInt(), 1);
    EXPECT_EQ(object[u"job"][u"state"].toString(), u"completed"_qs);
    EXPECT_EQ(object[u"options"][u"KsTapeLength"].toDouble(), 45.5) << outcome.output.toStdString();
    EXPECT_EQ(object[u"options"][u"job-billing"].toString(), u"0042"_qs); // a text, and not 42
    ASSERT_EQ(cups.jobs().size(), 1U);
}

TEST_F(QueueJob, Check_OfAPrinterThatIsNotThere_SaysSo)
{
    const Outcome outcome = tapeprint({u"--check"_qs, u"-d"_qs, u"nobody"_qs, document});
    EXPECT_EQ(outcome.status, testsupport::noSuchPrinter);
    EXPECT_TRUE(outcome.messages.contains("nobody")) << outcome.messages.toStdString();
}

TEST_F(QueueJob, Class_HasTheDescriptionOfItsFirstQueue)
{
    ASSERT_TRUE(cups.run(u"lpadmin"_qs, {u"-p"_qs, u"tape"_qs, u"-c"_qs, u"all"_qs}).isNull());
    const Outcome outcome = tapeprint({u"-d"_qs, u"all"_qs, u"--show-options"_qs});
    EXPECT_EQ(outcome.status, 0) << outcome.messages.toStdString();
    EXPECT_TRUE(outcome.output.contains("KsTapeLength=100.0")) << outcome.output.toStdString();
}

TEST_F(QueueJob, PpdOfTheQueue_LeavesNoTemporaryFile)
{
    const QString temporary = folder.makeFolder(u"temporary"_qs, 0700);
    const QString session = folder.makeFolder(u"session"_qs, 0700);
    moreVariables = {{u"TMPDIR"_qs, temporary}, {u"XDG_RUNTIME_DIR"_qs, session}};
    const Outcome outcome = tapeprint({u"-d"_qs, u"tape"_qs, u"--show-options"_qs});
    EXPECT_EQ(outcome.status, 0) << outcome.messages.toStdString();
    EXPECT_TRUE(outcome.output.contains("PageSize=24mm\n")) << outcome.output.toStdString();
    EXPECT_EQ(QDir(temporary).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot),
              QStringList());
}

TEST_F(QueueJob, LabelsOnTheirWayToAQueue_StandInNoFolder)
{
    const QString temporary = folder.makeFolder(u"temporary"_qs, 0700);
    moreVariables = {{u"TMPDIR"_qs, temporary}};
    const QDateTime before = QFileInfo(temporary).lastModified();
    const Outcome outcome = tapeprint({u"-d"_qs, u"tape"_qs, u"--no-dialog"_qs, document});
    EXPECT_EQ(outcome.status, 0) << outcome.messages.toStdString();
    ASSERT_EQ(cups.jobs().size(), 1U);
    // What comes and goes in a folder changes its time.
    EXPECT_EQ(QFileInfo(temporary).lastModified(), before);
}

TEST_F(QueueJob, WithoutAFolderForTemporaryFiles_SaysWhichAndPrintsNothing)
{
    const QString none = folder.path(u"none"_qs);
    moreVariables = {{u"TMPDIR"_qs, none}};
    const Outcome outcome = tapeprint({u"-d"_qs, u"tape"_qs, u"--no-dialog"_qs, document});
    EXPECT_NE(outcome.status, 0);
    EXPECT_TRUE(outcome.messages.contains(QFile::encodeName(none))) << outcome.messages.toStdString();
    EXPECT_TRUE(cups.jobs().empty());
}

TEST_F(QueueJob, DescriptionThatBringsAFilter_PrintsOnTheQueueButNotIntoAFile)
{
    // On the queue the server's own description and filters print; here the sent one's would.
    QByteArray text = systemtest::contentsOf(QStringLiteral(TAPEPRINT_PRINTER_DIR "/tapeprint-mm.ppd"));
    text.replace("50 rastertolabel", "50 /tmp/no-such-filter");
    const QString sent = systemtest::writeFile(workFolder + u"/sent.ppd"_qs, text);
    EXPECT_EQ(printed({u"--ppd"_qs, sent, document}).size(), 1U);
    const Outcome outcome = tapeprint(
        {u"-d"_qs, u"tape"_qs, u"--no-dialog"_qs, u"--ppd"_qs, sent, u"--output"_qs, u"out.prn"_qs, document});
    EXPECT_EQ(outcome.status, testsupport::badDescription);
    EXPECT_TRUE(outcome.messages.contains("50 /tmp/no-such-filter")) << outcome.messages.toStdString();
    EXPECT_FALSE(QFileInfo::exists(workFolder + u"/out.prn"_qs));
}

} // namespace
