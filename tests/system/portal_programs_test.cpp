// SPDX-License-Identifier: Apache-2.0
// Programs that nobody here wrote print through the portal, the dialog is worked by real clicks and keys, and the
// labels that the printer gets are looked at.
#include "tests/system/PortalSession.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <numeric>

namespace
{

using systemtest::FilterCall;
using systemtest::Label;
using systemtest::labelsIn;
using systemtest::PanelControl;
using systemtest::panelOptionsMm;
using systemtest::tapeOptions;
using systemtest::waitUntil;
using systemtest::WindowUnderTest;
using systemtest::Words;

/// How many labels come out, with the copies that the printer itself makes.
int labelCount(const std::vector<Label> &labels)
{
    return std::accumulate(labels.begin(), labels.end(), 0,
                           [](int sum, const Label &label) { return sum + label.copies; });
}

class PrintingProgram : public systemtest::PortalSession
{
protected:
    void SetUp() override
    {
        ASSERT_NO_FATAL_FAILURE(PortalSession::SetUp());
        ASSERT_NO_FATAL_FAILURE(startSession(true));
        ASSERT_NO_FATAL_FAILURE(startPortal());
    }
    void TearDown() override
    {
        systemtest::endProcess(program);
        PortalSession::TearDown();
    }

    /// Starts a program with a document and presses its keys for printing when its window is there.
    void startViewer(const QString &file, const QString &name)
    {
        ASSERT_NO_FATAL_FAILURE(startProgram(program, file, {document}));
        WindowUnderTest viewer(display);
        QString window;
        ASSERT_TRUE(waitUntil([&] {
            window = QString::fromLatin1(display.xdotool({u"search"_qs, u"--onlyvisible"_qs, u"--name"_qs, name}))
                         .section(u'\n', 0, 0);
            display.xdotool({u"windowfocus"_qs, window});
            return !window.isEmpty() &&
                   display.xdotool({u"getwindowfocus"_qs, u"-f"_qs}).trimmed() == window.toLatin1();
        })) << "no window of "
            << file.toStdString();
    }
    /// Presses the keys until they open the dialog: a program that has just come up may not listen yet.
    void openByKeys(const QString &keys)
    {
        ASSERT_TRUE(waitUntil([&] {
            display.xdotool({u"key"_qs, keys});
            return waitUntil([this] { return bus.processOf(systemtest::backendName) != 0; }, 1000);
        }));
        ASSERT_NO_FATAL_FAILURE(openDialog(dialog));
    }
    QJsonObject nextAnswer()
    {
        waitUntil([this] {
            program.waitForReadyRead(systemtest::pollMs);
            return program.canReadLine() || program.state() == QProcess::NotRunning;
        });
        return QJsonDocument::fromJson(program.readLine()).object();
    }

    QProcess program;
    WindowUnderTest dialog{display};
};

TEST_F(PrintingProgram, Evince_LengthAndColourOfTheDialogReachFilterAndRaster)
{
    document = documentOf(3);
    ASSERT_NO_FATAL_FAILURE(startViewer(u"evince"_qs, u"pages-3"_qs));
    ASSERT_NO_FATAL_FAILURE(openByKeys(u"ctrl+p"_qs));
    dialog.goTo(PanelControl::tapeLength);
    dialog.type(u"75"_qs);
    dialog.goTo(PanelControl::tapeColour);
    ASSERT_TRUE(dialog.pickFromPopUp(5, 9)); // Clear
    dialog.press({u"alt+c"_qs});
    dialog.type(u"2"_qs);
    EXPECT_TRUE(display.takePicture(u"root"_qs, QStringLiteral(TAPEPRINT_SCREENSHOT_DIR "/portal-evince.png")));
    dialog.clickPrint();
    const std::vector<FilterCall> calls = printedJob();
    ASSERT_EQ(calls.size(), 1U);
    EXPECT_EQ(tapeOptions(calls[0]),
              panelOptionsMm({"KsTapeLength=75.0", "KsTapeColor=KsTapeColorClear", "PageSize=Custom.24x75mm"}));
    const std::vector<Label> labels = labelsIn(cups.printedBy(u"tape"_qs));
    EXPECT_EQ(calls[0].title(), "pages-3"); // the document's name, not "Print", which GTK calls every job
    EXPECT_EQ(labelCount(labels), 6);       // three pages twice: neither once nor, by both sides, four times
    for (const Label &label : labels) {
        EXPECT_EQ(label.rows, 886);       // 75 mm at 300 dots an inch
        EXPECT_EQ(label.bytesPerRow, 34); // 24 mm less a millimetre of strips
    }
}

TEST_F(PrintingProgram, Libportal_IsToldTheTapesSizeAndItsSettingsAreAppliedOnce)
{
    ASSERT_NO_FATAL_FAILURE(startProgram(program,
                                         QStringLiteral(TAPEPRINT_SOURCE_DIR "/tests/system/print_by_libportal.py"),
                                         {documentOf(5), u"By libportal"_qs, u"1"_qs, u"n-copies=2"_qs,
                                          u"number-up=2"_qs, u"cups-KsTapeLength=60.0"_qs, u"cups-Unknown=1"_qs}));
    ASSERT_NO_FATAL_FAILURE(openDialog(dialog));
    EXPECT_EQ(dialog.title(), "By libportal");
    dialog.goTo(PanelControl::inkColour);
    ASSERT_TRUE(dialog.pickFromPopUp(4, 6)); // Gold
    dialog.clickPrint();
    const QJsonObject prepared = nextAnswer()[u"prepared"_qs].toObject();
    const QJsonObject settings = prepared[u"settings"_qs].toObject();
    const QJsonObject setup = prepared[u"page-setup"_qs].toObject();
    EXPECT_NEAR(setup[u"Width"_qs].toDouble(), 24.0, 0.01);
    EXPECT_NEAR(setup[u"Height"_qs].toDouble(), 60.0, 0.01);
    EXPECT_EQ(setup[u"Orientation"_qs].toString(), u"portrait"_qs);
    EXPECT_NEAR(setup[u"MarginTop"_qs].toDouble(), 2.0, 0.01);
    EXPECT_NEAR(setup[u"MarginLeft"_qs].toDouble(), 0.5, 0.01);
    EXPECT_EQ(settings[u"n-copies"_qs].toString(), u"1"_qs);
    EXPECT_EQ(settings[u"number-up"_qs].toString(), u"1"_qs);
    EXPECT_EQ(settings[u"printer"_qs].toString(), u"tape"_qs);
    EXPECT_EQ(settings[u"cups-KsTapeLength"_qs].toString(), u"60.0"_qs);
    EXPECT_FALSE(settings.contains(u"cups-Unknown"_qs));
    EXPECT_EQ(nextAnswer()[u"printed"_qs].toBool(), true);
    const std::vector<FilterCall> calls = printedJob();
    ASSERT_EQ(calls.size(), 1U);
    const Words words = tapeOptions(calls[0]);
    EXPECT_EQ(std::count(words.begin(), words.end(), "KsTapeLength=60.0"), 1);
    EXPECT_EQ(std::count(words.begin(), words.end(), "KsInkColor=KsInkColorGold"), 1);
    EXPECT_EQ(calls[0].title(), "By libportal");
    const std::vector<Label> labels = labelsIn(cups.printedBy(u"tape"_qs));
    EXPECT_EQ(labelCount(labels), 6); // five pages are three labels, twice
    ASSERT_FALSE(labels.empty());
    EXPECT_EQ(labels[0].rows, 709); // 60 mm
}

/// What joins a document with the sources that it was made from: here the document is its own source.
QByteArray sourcesOf(const QString &document)
{
    return "SyncTeX Version:1\nInput:1:" + document.toUtf8() +
           "\nOutput:pdf\nMagnification:1000\nUnit:1\nX Offset:0\nY Offset:0\nContent:\n!100\n{1\n"
           "[1,1:0,40000000:40000000,40000000,0\n(1,1:0,20000000:40000000,20000000,0\nx1,1:10000000,10000000\n)\n]\n"
           "}1\nPostamble:\nCount:4\n";
}

TEST_F(PrintingProgram, Qpdfview_OpensTheDialogByTheOneCommandThatItCanBeGiven)
{
    // It prints by CUPS alone; the program that it hands documents to is its editor of sources.
    document = systemtest::writeFile(workFolder + u"/label.pdf"_qs, systemtest::contentsOf(document));
    systemtest::writeFile(workFolder + u"/label.synctex"_qs, sourcesOf(document));
    const QString settings = folder.makeFolder(u"settings/qpdfview"_qs);
    systemtest::writeFile(settings + u"/qpdfview.conf"_qs, "[documentView]\nsourceEditor=" TAPEPRINT_BIN_DIR
                                                           "/tapeprint -d tape -o KsTapeLength=60 %1\n");
    moreOfSession = {{u"XDG_CONFIG_HOME"_qs, folder.path(u"settings"_qs)}};
    ASSERT_NO_FATAL_FAILURE(startViewer(u"qpdfview"_qs, u"qpdfview"_qs));
    WindowUnderTest viewer(display);
    ASSERT_TRUE(viewer.adopt(program.processId()).isNull());
    const QSize size = viewer.geometry(viewer.window()).size();
    // The first entry of the page's menu. The page may not be drawn yet when the window comes up.
    QString window;
    ASSERT_TRUE(waitUntil([&] {
        display.xdotool({u"mousemove"_qs, u"--window"_qs, viewer.window(), QString::number(size.width() / 2),
                         QString::number(size.height() / 2), u"click"_qs, u"3"_qs});
        if (!waitUntil([&] { return viewer.windows().size() > 1; }, 500)) {
            return false;
        }
        viewer.press({u"Down"_qs, u"Return"_qs});
        // Long enough for a slow machine: pressed once more, two dialogs would come.
        return waitUntil(
            [&] {
                window = QString::fromLatin1(
                    display.xdotool({u"search"_qs, u"--onlyvisible"_qs, u"--name"_qs, u"^Print label.pdf"_qs}));
                return !window.isEmpty();
            },
            10000);
    }));
    const qint64 process = display.xdotool({u"getwindowpid"_qs, window.section(u'\n', 0, 0)}).trimmed().toLongLong();
    ASSERT_TRUE(dialog.adopt(process).isNull());
    dialog.clickPrint();
    const std::vector<FilterCall> calls = printedJob();
    ASSERT_EQ(calls.size(), 1U);
    EXPECT_EQ(tapeOptions(calls[0]), panelOptionsMm({"KsTapeLength=60.0", "PageSize=Custom.24x60mm"}));
}

TEST_F(PrintingProgram, TokenUsedTwice_TheSecondTimeTheDialogIsShown)
{
    ASSERT_NO_FATAL_FAILURE(startProgram(program,
                                         QStringLiteral(TAPEPRINT_SOURCE_DIR "/tests/system/print_by_libportal.py"),
                                         {document, u"Twice"_qs, u"2"_qs}));
    ASSERT_NO_FATAL_FAILURE(openDialog(dialog));
    dialog.clickPrint();
    EXPECT_TRUE(nextAnswer().contains(u"prepared"_qs));
    EXPECT_EQ(nextAnswer()[u"printed"_qs].toBool(), true);
    WindowUnderTest second(display);
    ASSERT_NO_FATAL_FAILURE(openDialog(second, {dialog.window()}));
    second.press({u"Escape"_qs});
    EXPECT_FALSE(nextAnswer()[u"printed"_qs].toBool());
    EXPECT_EQ(cups.jobs().size(), 1U);
}

TEST_F(PrintingProgram, ThatDies_TakesItsDialogAlong)
{
    ASSERT_NO_FATAL_FAILURE(startProgram(program,
                                         QStringLiteral(TAPEPRINT_SOURCE_DIR "/tests/system/print_by_libportal.py"),
                                         {document, u"Mortal"_qs, u"1"_qs}));
    ASSERT_NO_FATAL_FAILURE(openDialog(dialog));
    program.kill();
    EXPECT_TRUE(waitUntil([this] { return dialog.windows().isEmpty(); }));
    EXPECT_NE(bus.processOf(systemtest::backendName), 0); // for the next program
    EXPECT_TRUE(cups.jobs().empty());
}

TEST_F(PrintingProgram, JobThatFailsAfterTheAnswer_IsToldToThePerson)
{
    ASSERT_TRUE(cups.addScriptedQueue(u"broken"_qs, u"mm"_qs, "cat >/dev/null; exit 1\n").isNull());
    ASSERT_NO_FATAL_FAILURE(startProgram(program,
                                         QStringLiteral(TAPEPRINT_SOURCE_DIR "/tests/system/print_by_libportal.py"),
                                         {document, u"Broken"_qs, u"1"_qs, u"printer=broken"_qs}));
    ASSERT_NO_FATAL_FAILURE(openDialog(dialog));
    dialog.clickPrint();
    EXPECT_TRUE(nextAnswer().contains(u"prepared"_qs));
    EXPECT_EQ(nextAnswer()[u"printed"_qs].toBool(), true); // the server has it
    WindowUnderTest sentence(display);
    ASSERT_NO_FATAL_FAILURE(openDialog(sentence, {dialog.window()}));
    EXPECT_EQ(sentence.title(), "Broken");
    EXPECT_EQ(cups.jobs().at(0).queue, u"broken"_qs);
    EXPECT_TRUE(backendSays("is not printed"));
}

} // namespace
