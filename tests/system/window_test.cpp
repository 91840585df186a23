// SPDX-License-Identifier: Apache-2.0
// The main job through the real window, on a display of the test's own, by real keys and clicks.
#include "tests/support/ExitStatuses.h"
#include "tests/support/MeddlingServer.h"
#include "tests/system/WindowTest.h"

#include <QElapsedTimer>
#include <QImage>
#include <QThread>

#include <algorithm>
#include <array>
#include <atomic>

#include <cups/cups.h>

namespace
{

using systemtest::FilterCall;
using systemtest::labelsIn;
using systemtest::Outcome;
using systemtest::PanelControl;
using systemtest::panelOptionsMm;
using systemtest::tapeOptions;

class WindowJob : public systemtest::WindowTest
{
protected:
    void open(const QStringList &arguments = {})
    {
        const QString problem = dialog.open({QStringLiteral(TAPEPRINT_BIN_DIR "/tapeprint"),
                                             QStringList{u"-d"_qs, u"tape"_qs} + arguments + QStringList{document},
                                             variables(), workFolder});
        ASSERT_TRUE(problem.isNull()) << problem.toStdString();
    }

    /// Clicks on Print and waits for the job; the window closes when it is printed.
    std::vector<FilterCall> print()
    {
        dialog.clickPrint();
        return filterCallsOf(dialog.waitForEnd());
    }
};

TEST_F(WindowJob, PicksAndATypedLength_ReachTheFilter)
{
    ASSERT_NO_FATAL_FAILURE(open());
    dialog.goTo(PanelControl::tapeColour);
    ASSERT_TRUE(dialog.pickFromPopUp(2, 9)); // red, the third of nine
    dialog.goTo(PanelControl::resolution);
    dialog.press({u"Down"_qs});
    dialog.goTo(PanelControl::tapeLength);
    dialog.type(u"75.5"_qs);
    dialog.press({u"Tab"_qs});

    const QString picture = QStringLiteral(TAPEPRINT_SCREENSHOT_DIR "/page-settings.png");
    ASSERT_TRUE(display.takePicture(dialog.window(), picture));
    EXPECT_EQ(QImage(picture).size(), dialog.geometry(dialog.window()).size());

    const std::vector<FilterCall> calls = print();
    ASSERT_EQ(calls.size(), 1U);
    // The second resolution prints with the first quality alone.
    EXPECT_EQ(tapeOptions(calls[0]),
              panelOptionsMm({"KsTapeColor=KsTapeColorRed", "Resolution=300x600dpi", "KsPriority=KsPrioritySpeed",
                              "KsTapeLength=75.5", "PageSize=Custom.24x75.5mm"}));
    const auto labels = labelsIn(cups.printedBy(u"tape"_qs));
    ASSERT_EQ(labels.size(), 1U);
    // 75.5 mm at 600 dpi are 1783.5 rows, at 300 dpi they would be 891.7.
    EXPECT_NEAR(labels[0].rows, 1783, 1);
}

TEST_F(WindowJob, UntouchedWindow_SendsWhatAJobWithoutAWindowSends)
{
    ASSERT_NO_FATAL_FAILURE(open({u"-o"_qs, u"KsInkColor=KsInkColorGold"_qs}));
    const std::vector<FilterCall> calls = print();
    ASSERT_EQ(calls.size(), 1U);
    EXPECT_EQ(tapeOptions(calls[0]), panelOptionsMm({"KsInkColor=KsInkColorGold"}));
}

TEST_F(WindowJob, HomeThatCannotBeWritten_PrintsAndSaysThatNothingIsKept)
{
    // A file stands where the folder of settings would be: no rights help, not even root's.
    moreVariables = {{u"XDG_CONFIG_HOME"_qs, u"/dev/null"_qs}};
    ASSERT_NO_FATAL_FAILURE(open());
    dialog.clickPrint();
    const Outcome outcome = dialog.waitForEnd();
    EXPECT_EQ(filterCallsOf(outcome).size(), 1U);
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.messages, "tapeprint: The settings cannot be kept for the next time: "
                                "/dev/null/tapeprint/last-settings.ini cannot be written.\n");
}

TEST_F(WindowJob, ChangeOfTape_ChangesWhatIsSent)
{
    ASSERT_NO_FATAL_FAILURE(open());
    // The tapes are chosen by their first letters.
    dialog.press({u"alt+t"_qs});
    dialog.type(u"Die"_qs);
    const std::vector<FilterCall> calls = print();
    ASSERT_EQ(calls.size(), 1U);
    EXPECT_EQ(tapeOptions(calls[0]), panelOptionsMm({"PageSize=DC24x80", "KsTapeLength=80.0"}));
    const auto labels = labelsIn(cups.printedBy(u"tape"_qs));
    ASSERT_EQ(labels.size(), 1U);
    EXPECT_NEAR(labels[0].rows, 945, 1); // 80 mm at 300 dpi are 944.9 rows
}

TEST_F(WindowJob, CopiesAndAllLengthsTyped_ReachTheFilter)
{
    ASSERT_NO_FATAL_FAILURE(open());
    dialog.press({u"alt+c"_qs, u"ctrl+a"_qs});
    dialog.type(u"2"_qs);
    dialog.goTo(PanelControl::margin);
    dialog.type(u"12.3"_qs);
    // A pick of the material fills the print tape length anew, by its own maximum, and keeps what was typed.
    dialog.goTo(PanelControl::printTapeLength);
    dialog.type(u"4.5"_qs);
    dialog.goTo(PanelControl::tapeMaterial);
    dialog.press({u"Down"_qs});
    dialog.goTo(PanelControl::inkColour);
    dialog.press({u"End"_qs});
    const std::vector<FilterCall> calls = print();
    ASSERT_EQ(calls.size(), 1U);
    EXPECT_EQ(tapeOptions(calls[0]),
              panelOptionsMm({"KsMargin=12.3", "KsPrintTapeLength=4.5", "KsTapeMaterial=KsTapeMaterialPET",
                              "KsInkColor=KsInkColorSilver"}));
    int copies = 0;
    for (const systemtest::Label &label : labelsIn(cups.printedBy(u"tape"_qs))) {
        copies += label.copies;
    }
    EXPECT_EQ(copies, 2);
}

TEST_F(WindowJob, ChangeOfTape_ChangesTheLimits)
{
    ASSERT_NO_FATAL_FAILURE(open());
    // On the 15 mm tape 12 m may be printed, on any other 8 m: 11 m are accepted there without a word.
    dialog.press({u"alt+t"_qs});
    dialog.type(u"15"_qs);
    dialog.goTo(PanelControl::printTapeLength);
    dialog.type(u"11"_qs);
    dialog.press({u"Tab"_qs});
    const std::vector<FilterCall> calls = print();
    ASSERT_EQ(calls.size(), 1U);
    EXPECT_EQ(tapeOptions(calls[0]), panelOptionsMm({"PageSize=15mm", "KsPrintTapeLength=11.0"}));
    const auto labels = labelsIn(cups.printedBy(u"tape"_qs));
    ASSERT_EQ(labels.size(), 1U);
    EXPECT_EQ(labels[0].bytesPerRow, 21); // 14 mm at 300 dpi are 165.4 dots
}

TEST_F(WindowJob, SliderMovedByKeys_SendsWhatItsFieldShows)
{
    ASSERT_NO_FATAL_FAILURE(open());
    dialog.goTo(PanelControl::tapeLengthSlider);
    dialog.press({u"Right"_qs, u"Right"_qs, u"Right"_qs}); // a millimetre each
    const std::vector<FilterCall> calls = print();
    ASSERT_EQ(calls.size(), 1U);
    EXPECT_EQ(tapeOptions(calls[0]), panelOptionsMm({"KsTapeLength=103.0", "PageSize=Custom.24x103mm"}));
}

TEST_F(WindowJob, LengthBelowTheMinimum_OneAlertAndTheNearestValueIsSent)
{
    // The shortest margin: two of the usual ones would leave nothing of the shortest tape.
    ASSERT_NO_FATAL_FAILURE(open({u"-o"_qs, u"KsMargin=1.0"_qs}));
    dialog.goTo(PanelControl::tapeLength);
    dialog.type(u"3"_qs);
    dialog.press({u"Return"_qs});
    const QString alert = dialog.waitForFurtherWindow();
    ASSERT_FALSE(alert.isNull()) << "no alert";
    dialog.press({u"Return"_qs});
    ASSERT_TRUE(dialog.waitForGone(alert));
    EXPECT_EQ(dialog.windows(), QStringList{dialog.window()}); // no second one
    const std::vector<FilterCall> calls = print();
    ASSERT_EQ(calls.size(), 1U);
    EXPECT_EQ(tapeOptions(calls[0]), panelOptionsMm({"KsTapeLength=4.0", "KsMargin=1.0", "PageSize=Custom.24x4mm"}));
}

TEST_F(WindowJob, GermanSession_SendsPoints)
{
    moreVariables = {{u"LC_ALL"_qs, u"de_DE.UTF-8"_qs}, {u"LANG"_qs, u"de_DE.UTF-8"_qs}, {u"LANGUAGE"_qs, u"de"_qs}};
    ASSERT_NO_FATAL_FAILURE(open());
    dialog.goTo(PanelControl::tapeLength);
    dialog.type(u"75,5"_qs);
    dialog.goTo(PanelControl::margin);
    dialog.type(u"3,3"_qs);
    const std::vector<FilterCall> calls = print();
    ASSERT_EQ(calls.size(), 1U);
    EXPECT_EQ(tapeOptions(calls[0]),
              panelOptionsMm({"KsTapeLength=75.5", "KsMargin=3.3", "PageSize=Custom.24x75.5mm"}));
}

TEST_F(WindowJob, BrokenBundleThatThePpdNames_TheDialogStillPrints)
{
    const QString bundle = folder.makeFolder(u"bundles/Broken.bundle"_qs);
    systemtest::writeFile(bundle + u"/Broken.so"_qs, "This is no code.\n");
    moreVariables = {{u"TAPEPRINT_PLUGIN_PATH"_qs, folder.path(u"bundles"_qs)}};
    ASSERT_NO_FATAL_FAILURE(open({u"--ppd"_qs, ppdThatNames(u"Broken.bundle"_qs)}));
    const std::vector<FilterCall> calls = print();
    ASSERT_EQ(calls.size(), 1U);
    EXPECT_EQ(tapeOptions(calls[0]), panelOptionsMm());
}

TEST_F(WindowJob, DocumentThatChanged_IsSaidAndNotPrinted)
{
    document = systemtest::writeFile(workFolder + u"/label.pdf"_qs, systemtest::contentsOf(document));
    ASSERT_NO_FATAL_FAILURE(open());
    systemtest::writeFile(document, "%PDF-1.4\nAnother document.\n");
    dialog.clickPrint();
    const QString sentence = dialog.waitForFurtherWindow();
    ASSERT_FALSE(sentence.isNull()) << "no word about the document";
    dialog.press({u"Return"_qs});
    ASSERT_TRUE(dialog.waitForGone(sentence));
    EXPECT_EQ(dialog.windows(), QStringList{dialog.window()}); // the window stays
    dialog.press({u"Escape"_qs});
    EXPECT_EQ(dialog.waitForEnd().output, "");
    EXPECT_TRUE(cups.jobs().empty());
}

TEST_F(WindowJob, FilterThatFails_IsSaidAndTheWindowStaysToPrintAgain)
{
    const QString works = folder.path(u"works"_qs);
    ASSERT_TRUE(cups.addScriptedQueue(u"moody"_qs, u"mm"_qs,
                                      "cat >/dev/null; [ -e " + works.toUtf8() + " ] || exit 1; echo tape\n")
                    .isNull());
    ASSERT_NO_FATAL_FAILURE(open({u"-d"_qs, u"moody"_qs}));
    dialog.clickPrint();
    const QString sentence = dialog.waitForFurtherWindow();
    ASSERT_FALSE(sentence.isNull()) << "no word about the job";
    dialog.press({u"Return"_qs});
    ASSERT_TRUE(dialog.waitForGone(sentence));
    EXPECT_EQ(dialog.windows(), QStringList{dialog.window()});
    systemtest::writeFile(works, "");
    dialog.clickPrint();
    const Outcome outcome = dialog.waitForEnd();
    EXPECT_EQ(outcome.status, 0) << outcome.messages.toStdString();
    EXPECT_EQ(outcome.output, "Job moody-2 is completed.\n");
}

TEST_F(WindowJob, PausedQueue_TheWindowSaysSoAndCanBeClosedWithoutEndingTheJob)
{
    systemtest::runClient({u"/usr/sbin/cupsdisable"_qs, {u"-r"_qs, u"cleaning the knife"_qs, u"tape"_qs}, variables()});
    ASSERT_NO_FATAL_FAILURE(open());
    dialog.clickPrint();
    ASSERT_TRUE(systemtest::waitUntil([this] { return cups.jobs().size() == 1; }));
    // It stays longer than for a job that waits behind others.
    QThread::sleep(6);
    EXPECT_TRUE(display.takePicture(dialog.window(), QStringLiteral(TAPEPRINT_SCREENSHOT_DIR "/job-waits.png")));
    EXPECT_EQ(dialog.windows(), QStringList{dialog.window()});
    dialog.press({u"Escape"_qs});
    EXPECT_EQ(dialog.waitForEnd().output, "Job tape-1 is pending.\n");
    EXPECT_EQ(cups.jobs().at(0).state, IPP_JSTATE_PENDING);
}

TEST_F(WindowJob, HeldJob_CanBeCancelledAsLongAsItIsShown)
{
    ASSERT_NO_FATAL_FAILURE(open({u"-H"_qs, u"hold"_qs}));
    dialog.clickPrint();
    ASSERT_TRUE(systemtest::waitUntil([this] {
        const auto jobs = cups.jobs();
        return jobs.size() == 1 && jobs[0].state == IPP_JSTATE_HELD;
    }));
    QThread::sleep(1);                       // by then the window has heard of it
    dialog.press({u"Tab"_qs, u"Return"_qs}); // from Close to Cancel Job
    ASSERT_TRUE(systemtest::waitUntil([this] { return cups.jobs().at(0).state == IPP_JSTATE_CANCELED; }));
    QThread::sleep(6); // longer than a held job is shown
    EXPECT_EQ(dialog.windows(), QStringList{dialog.window()});
    dialog.press({u"Escape"_qs});
    EXPECT_EQ(dialog.waitForEnd().status, testsupport::cancelled);
}

TEST_F(WindowJob, JobThatWaitsBehindOthers_LetsTheWindowGo)
{
    ASSERT_TRUE(cups.addScriptedQueue(u"busy"_qs, u"mm"_qs, "cat >/dev/null; sleep 30; echo tape\n").isNull());
    for (int i = 0; i < 2; ++i) {
        systemtest::runClient({u"/usr/bin/lp"_qs, {u"-d"_qs, u"busy"_qs, document}, variables()});
    }
    const QString problem = dialog.open(
        {QStringLiteral(TAPEPRINT_BIN_DIR "/tapeprint"), {u"-d"_qs, u"busy"_qs, document}, variables(), workFolder});
    ASSERT_TRUE(problem.isNull()) << problem.toStdString();
    dialog.clickPrint();
    EXPECT_EQ(dialog.waitForEnd().output, "Job busy-3 is pending.\n");
}

TEST_F(WindowJob, HeldJobThatNobodyCancels_LetsTheWindowGo)
{
    ASSERT_NO_FATAL_FAILURE(open({u"-H"_qs, u"hold"_qs}));
    dialog.clickPrint();
    EXPECT_EQ(dialog.waitForEnd().output, "Job tape-1 is pending-held.\n");
    EXPECT_EQ(cups.jobs().at(0).state, IPP_JSTATE_HELD);
}

TEST_F(WindowJob, CancelWhileTheServerIsSilentInTheMiddle_CancelsTheJobAndTheWindowPrintsAgain)
{
    using tapeprint::test::Meddling;
    std::atomic<int> documents = 0;
    const tapeprint::test::MeddlingServer server(
        folder.path(u"meddling.sock"_qs), cups.socket(), [&documents](const tapeprint::test::SeenRequest &request) {
            return request.operation == IPP_OP_SEND_DOCUMENT && ++documents == 1 ? Meddling::KeepSilent
                                                                                 : Meddling::PassOn;
        });
    moreVariables = {{u"CUPS_SERVER"_qs, folder.path(u"meddling.sock"_qs)}};
    ASSERT_NO_FATAL_FAILURE(open());
    dialog.clickPrint();
    ASSERT_TRUE(systemtest::waitUntil([&documents] { return documents == 1; }));
    QElapsedTimer sinceCancel;
    sinceCancel.start();
    dialog.press({u"Escape"_qs});
    ASSERT_TRUE(cups.waitForEnd(1).has_value());
    EXPECT_LT(sinceCancel.elapsed(), 5000); // well before a silent server is given up
    EXPECT_EQ(cups.jobs().at(0).state, IPP_JSTATE_CANCELED);
    EXPECT_EQ(dialog.windows(), QStringList{dialog.window()}); // without a word: the person wanted it
    dialog.clickPrint();
    EXPECT_EQ(dialog.waitForEnd().output, "Job tape-2 is completed.\n");
    EXPECT_TRUE(cups.filterCalls(1).empty());
}

TEST_F(WindowJob, ServerThatGoesAwayInTheMiddle_IsSaidAndPrintSendsTheSameSettingsWhenItIsBack)
{
    using tapeprint::test::Meddling;
    std::atomic<bool> isSending = false;
    tapeprint::test::MeddlingServer server(
        folder.path(u"meddling.sock"_qs), cups.socket(), [&isSending](const tapeprint::test::SeenRequest &request) {
            const bool isFirst = request.operation == IPP_OP_SEND_DOCUMENT && !isSending.exchange(true);
            return isFirst ? Meddling::KeepSilent : Meddling::PassOn;
        });
    moreVariables = {{u"CUPS_SERVER"_qs, folder.path(u"meddling.sock"_qs)}};
    ASSERT_NO_FATAL_FAILURE(open());
    dialog.goTo(PanelControl::tapeLength);
    dialog.type(u"75.5"_qs);
    dialog.clickPrint();
    ASSERT_TRUE(systemtest::waitUntil([&isSending] { return isSending.load(); }));
    server.goAway();
    const QString alert = dialog.waitForFurtherWindow();
    ASSERT_FALSE(alert.isNull()) << "nothing is said";
    EXPECT_TRUE(cups.filterCalls(1).empty());
    server.comeBack();
    dialog.press({u"Return"_qs});
    ASSERT_TRUE(dialog.waitForGone(alert));
    dialog.clickPrint();
    const std::vector<FilterCall> calls = filterCallsOf(dialog.waitForEnd());
    ASSERT_EQ(calls.size(), 1U);
    EXPECT_EQ(tapeOptions(calls[0]), panelOptionsMm({"KsTapeLength=75.5", "PageSize=Custom.24x75.5mm"}));
    const std::vector<systemtest::ServerJob> jobs = cups.jobs();
    ASSERT_EQ(jobs.size(), 2U);
    EXPECT_EQ(jobs[0].state, IPP_JSTATE_CANCELED); // it was half sent
    EXPECT_EQ(jobs[1].state, IPP_JSTATE_COMPLETED);
}

TEST_F(WindowJob, FileThatIsMissing_IsSaidInAWindowWhereNobodyReadsStandardError)
{
    // As a desktop starts the program: without a terminal.
    const QString problem = dialog.openUnconnected(
        {u"/usr/bin/setsid"_qs,
         {QStringLiteral(TAPEPRINT_BIN_DIR "/tapeprint"), u"-d"_qs, u"tape"_qs, workFolder + u"/missing.pdf"_qs},
         variables(),
         workFolder});
    ASSERT_TRUE(problem.isNull()) << problem.toStdString();
    EXPECT_EQ(dialog.title(), "Tape Print");
    dialog.press({u"Return"_qs});
    const Outcome outcome = dialog.waitForEnd();
    EXPECT_EQ(outcome.status, testsupport::badDocument);
    EXPECT_TRUE(outcome.messages.contains("missing.pdf")) << outcome.messages.toStdString();
}

TEST_F(WindowJob, Cancel_PrintsNothing)
{
    ASSERT_NO_FATAL_FAILURE(open());
    dialog.goTo(PanelControl::tapeLength);
    dialog.type(u"75"_qs);
    dialog.press({u"Escape"_qs});
    const Outcome outcome = dialog.waitForEnd();
    EXPECT_EQ(outcome.status, testsupport::cancelled) << outcome.messages.toStdString();
    EXPECT_EQ(outcome.output, "");
    EXPECT_TRUE(cups.jobs().empty());
}

TEST_F(WindowJob, NoDefaultPrinter_OneIsChosenInTheWindowAndPrinted)
{
    ASSERT_TRUE(cups.addPlainQueue(u"zone"_qs, u"inch"_qs).isNull());
    const QString problem =
        dialog.open({QStringLiteral(TAPEPRINT_BIN_DIR "/tapeprint"), {document}, variables(), workFolder});
    ASSERT_TRUE(problem.isNull()) << problem.toStdString();
    const int emptyWidth = dialog.geometry(dialog.window()).width();
    dialog.press({u"alt+r"_qs, u"Down"_qs}); // "tape" comes before "zone"
    ASSERT_TRUE(systemtest::waitUntil([&] { return dialog.geometry(dialog.window()).width() > emptyWidth; }));
    const std::vector<FilterCall> calls = print();
    ASSERT_EQ(calls.size(), 1U);
    EXPECT_EQ(tapeOptions(calls[0]), panelOptionsMm());
}

TEST_F(WindowJob, ServerThatNeverAnswers_TheWindowIsThereAndCancelEndsIt)
{
    const QString socket = folder.path(u"silent.sock"_qs);
    const tapeprint::test::MeddlingServer silent(socket, {}, [](const tapeprint::test::SeenRequest & /*request*/) {
        return tapeprint::test::Meddling::KeepSilent;
    });
    moreVariables = {{u"CUPS_SERVER"_qs, socket}};
    QElapsedTimer timer;
    timer.start();
    const QString problem = dialog.openUnconnected(
        {QStringLiteral(TAPEPRINT_BIN_DIR "/tapeprint"), {u"-d"_qs, u"tape"_qs, document}, variables(), workFolder});
    ASSERT_TRUE(problem.isNull()) << problem.toStdString();
    EXPECT_LT(timer.elapsed(), 5000); // with the start of the program; the server is given 10 s
    EXPECT_TRUE(dialog.title().contains("\u2026")) << dialog.title().toStdString();
    timer.restart();
    dialog.press({u"Escape"_qs});
    EXPECT_EQ(dialog.waitForEnd().status, testsupport::cancelled);
    EXPECT_LT(timer.elapsed(), 3000);
}

/// What a panel does in an event, and what is said of it while it does.
struct Hang {
    const char *deeds;
    const char *begin;
    const char *end;
};

class RogueWindow : public systemtest::WindowTest
{
protected:
    void SetUp() override
    {
        WindowTest::SetUp();
        if (HasFatalFailure() || IsSkipped()) {
            return;
        }
        ASSERT_TRUE(cups.addRecordedQueue(u"rogue"_qs, u"mm"_qs, "*HostTestRogue: \"A\"\n").isNull());
    }

    /// Starts a window whose panel does as it is told.
    void begin(QProcess &program, const char *deeds) const
    {
        QProcessEnvironment environment = systemtest::clientEnvironment(variables());
        environment.insert(u"DISPLAY"_qs, display.name());
        environment.insert(u"TAPEPRINT_PLUGIN_PATH"_qs, QStringLiteral(ROGUE_BUNDLES));
        environment.insert(u"HOST_TEST_DEEDS"_qs, QLatin1String(deeds));
        program.setProcessEnvironment(environment);
        program.setWorkingDirectory(workFolder);
        program.start(QStringLiteral(TAPEPRINT_BIN_DIR "/tapeprint"), {u"-d"_qs, u"rogue"_qs, document});
    }
};

TEST_F(RogueWindow, PanelWhoseEventDoesNotEnd_IsNamedMeanwhileWhereItIsKnown)
{
    constexpr auto panel = "tapeprint: The panel \"Rogue Panel\" of /";
    constexpr auto inItsView = "/HostTestRogue.bundle: since an event in it the window does not answer. End the "
                               "program if it never does.\n";
    constexpr auto nobody = "tapeprint: The window does not answer. End the program if it never does.\n";
    const std::array hangs{Hang{"click=hang", panel, inItsView}, Hang{"paint=hang", panel, inItsView},
                           Hang{"timer=hang", panel, inItsView},
                           Hang{"summaryInfo=ask,timer=hang", panel, inItsView}, // while it asks
                           Hang{"stray=hang", nobody, nobody}};
    std::array<QProcess, hangs.size()> programs; // all at once: each is waited for
    QElapsedTimer time;
    time.start();
    QProcess asking;
    begin(asking, "summaryInfo=ask"); // for longer than it takes to be named
    for (size_t index = 0; index < hangs.size(); ++index) {
        begin(programs[index], hangs[index].deeds);
    }
    for (size_t index = 0; index < hangs.size(); ++index) {
        QProcess &program = programs[index];
        program.setReadChannel(QProcess::StandardError);
        QByteArray words;
        while (!words.endsWith("\n") && program.waitForReadyRead(systemtest::patienceMs)) {
            words += program.readAllStandardError();
        }
        EXPECT_TRUE(words.startsWith(hangs[index].begin)) << hangs[index].deeds << ": " << words.toStdString();
        EXPECT_TRUE(words.endsWith(hangs[index].end)) << hangs[index].deeds << ": " << words.toStdString();
        EXPECT_EQ(program.state(), QProcess::Running) << hangs[index].deeds;
        program.kill();
        EXPECT_TRUE(program.waitForFinished(systemtest::patienceMs));
    }
    asking.setReadChannel(QProcess::StandardError);
    EXPECT_FALSE(asking.waitForReadyRead(static_cast<int>(std::max<qint64>(7000 - time.elapsed(), 0))))
        << asking.readAllStandardError().toStdString();
    EXPECT_EQ(asking.state(), QProcess::Running);
    asking.kill();
    EXPECT_TRUE(asking.waitForFinished(systemtest::patienceMs));
}

} // namespace
