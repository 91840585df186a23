// SPDX-License-Identifier: Apache-2.0
// Panels that do wrong in every call of the protocol: printing goes on, or ends with a sentence that names the bundle.
#include "ProgramTest.h"
#include "ShownWindow.h"
#include "TestPrinter.h"

#include "dialog/Application.h"
#include "dialog/PrintDialog.h"
#include "job/Printing.h"
#include "tests/support/TextPrinting.h"

#include <QApplication>
#include <QComboBox>
#include <QElapsedTimer>
#include <QFile>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include <array>
#include <stdexcept>

#include <gtest/gtest.h>

namespace
{

using namespace tapeprint;
using namespace tapeprint::dialog;
using hosttest::options;

/// The attribute that the plug-in claims, and a filter of CUPS's own that hands the document on as it is.
const QByteArray roguePrinter = "*HostTestRogue: \"A\"\n*cupsFilter: \"text/plain 0 gziptoany\"\n";
const QStringList rogueBundles{QStringLiteral(HOST_TEST_BUNDLES "/rogue")};

class RoguePanelTest : public testing::Test
{
protected:
    void TearDown() override
    {
        for (const char *name : {"hostTestDeeds", "hostTestTold", "hostTestHelped"}) {
            qApp->setProperty(name, QVariant());
        }
    }

    static void let(const char *call, const char *deed)
    {
        qApp->setProperty("hostTestDeeds", QVariantMap{{QLatin1String(call), QLatin1String(deed)}});
    }

    void open()
    {
        job::Destination destination = hosttest::testDestination(folder, roguePrinter);
        destination.outputPath = outputPath = folder.filePath(u"out.prn"_qs);
        panels.open(std::move(destination), {});
    }

    void openWindow()
    {
        open();
        files = {hosttest::writeFile(folder, u"label.txt"_qs, "Hello\n")};
        dialog = std::make_unique<PrintDialog>(
            printJob, panels, PrintDialog::Setup{{}, u"label.txt"_qs, files, {}},
            [this](const job::SettledJob &job, const std::atomic<bool> &stop, job::Problem *error) {
                return job::printJob(job, u"label.txt"_qs, files, stop, error);
            });
        ASSERT_TRUE(hosttest::show(*dialog));
    }

    /// Presses Print, closes every message, and answers their texts. Ends when the window closes or rests.
    QStringList print()
    {
        QStringList said;
        QTimer closer;
        QObject::connect(&closer, &QTimer::timeout, dialog.get(), [&said] {
            if (auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget())) {
                said.append(box->text());
                box->accept();
            }
        });
        closer.start(10);
        dialog->findChild<QPushButton *>(u"print"_qs)->click();
        const auto isOver = [this, &said] {
            const bool isRefused = !said.isEmpty() && !QFile::exists(outputPath);
            return !dialog->isVisible() || (isRefused && QApplication::activeModalWidget() == nullptr);
        };
        EXPECT_TRUE(QTest::qWaitFor(isOver, 30000));
        return said;
    }

    QString notices() const { return dialog->findChild<QLabel *>(u"notices"_qs)->text(); }

    QTemporaryDir folder;
    QString outputPath;
    QStringList files;
    job::Job printJob;
    Panels panels{printJob, rogueBundles};
    std::unique_ptr<PrintDialog> dialog;
};

/// A call, what the panel does in it, and what becomes of printing.
struct Misdeed {
    const char *call;
    const char *deed;
    bool prints = true; ///< else it ends with a sentence
    const char *words = "";
};

void PrintTo(const Misdeed &misdeed, std::ostream *out)
{
    *out << misdeed.call << ' ' << misdeed.deed;
}

class RoguePanelCall : public RoguePanelTest, public testing::WithParamInterface<Misdeed>
{
};

TEST_P(RoguePanelCall, EndsInPrintOrInASentenceThatNamesTheBundle)
{
    let(GetParam().call, GetParam().deed);
    openWindow();
    const QStringList said = print();
    const QString all = said.join(u'\n') + u'\n' + notices();
    EXPECT_EQ(QFile::exists(outputPath), GetParam().prints) << all.toStdString();
    if (!GetParam().prints) {
        ASSERT_EQ(said.size(), 1) << all.toStdString();
        EXPECT_TRUE(said.first().contains(u"HostTestRogue.bundle"_qs)) << said.first().toStdString();
    }
    if (*GetParam().words != '\0') {
        EXPECT_TRUE(all.contains(QLatin1String(GetParam().words))) << all.toStdString();
        EXPECT_TRUE(all.contains(u"HostTestRogue.bundle"_qs)) << all.toStdString();
    }
    EXPECT_FALSE(all.contains(u": ."_qs)) << all.toStdString();
}

INSTANTIATE_TEST_SUITE_P(
    Table, RoguePanelCall,
    testing::Values(
        Misdeed{"PDEPanelsForType", "throw", true, "failed: no ink left."},
        Misdeed{"PDEPanelsForType", "null", true, "could not make its panel"},
        Misdeed{"panelName", "throw", true, "failed: no ink left."}, Misdeed{"panelName", "null"},
        Misdeed{"panelKind", "throw", true, "failed: no ink left."}, Misdeed{"panelKind", "null"},
        Misdeed{"supportedPPDOptionKeys", "throw", true, "failed: no ink left."},
        Misdeed{"supportedPPDOptionKeys", "null"}, Misdeed{"panelView", "throw", true, "failed: no ink left."},
        Misdeed{"panelView", "null", true, "has no view"}, Misdeed{"willShow", "throw", true, "failed: no ink left."},
        Misdeed{"willShow", "throwNumber", true, "failed."}, Misdeed{"willShow", "reenter"},
        Misdeed{"willShow", "deleteView"}, Misdeed{"willShow", "block", true, "kept the window waiting for 2 s"},
        Misdeed{"shouldPrint", "throw", false, "failed: no ink left."},
        Misdeed{"shouldPrint", "refuse", false, "does not accept the settings."}, Misdeed{"shouldPrint", "reenter"},
        Misdeed{"shouldPrint", "deleteView"}, Misdeed{"shouldShowHelp", "throw", true, "failed: no ink left."},
        Misdeed{"saveValuesAndReturnError", "throw", false, "could not hand over its values."},
        Misdeed{"saveValuesAndReturnError", "refuse", false, "could not hand over its values."},
        Misdeed{"saveValuesAndReturnError", "reenter"},
        Misdeed{"saveValuesAndReturnError", "junk", true, "which was left out: Two Words=x."},
        Misdeed{"saveValuesAndReturnError", "unknown", true, "Perfume=Rose"},
        Misdeed{"saveValuesAndReturnError", "endless"}, Misdeed{"summaryInfo", "null"},
        Misdeed{"summaryInfo", "throw", true, "failed: no ink left."}, Misdeed{"summaryInfo", "reenter"},
        Misdeed{"summaryInfo", "deleteView"}, Misdeed{"currentValues", "throw", true, "failed: no ink left."},
        Misdeed{"currentValues", "deleteView"}, Misdeed{"printWindowWillClose", "throw"},
        Misdeed{"printWindowWillClose", "deleteView"}));

/// The calls that are not on the way to the job.
class RoguePanelAside : public RoguePanelTest, public testing::WithParamInterface<const char *>
{
protected:
    void makeAllCalls()
    {
        const bool isFirst = printJob.options().value(u"KsMargin"_qs) != u"5.0";
        printJob.changeOption(u"KsMargin"_qs, isFirst ? u"5.0"_qs : u"4.0"_qs);
        panels.mayHide(0);
        panels.showHelp(0);
        job::Problem problem;
        panels.revert(&problem);
    }
};

TEST_P(RoguePanelAside, ThatThrowsRunsTheEventsOrDeletesItsView_LetsPrintingGoOn)
{
    openWindow();
    let(GetParam(), "throw");
    makeAllCalls();
    ASSERT_EQ(panels.notices().size(), 1) << panels.notices().join(u'\n').toStdString();
    EXPECT_TRUE(panels.notices().first().endsWith(u"HostTestRogue.bundle failed: no ink left."_qs))
        << panels.notices().first().toStdString();
    for (const char *deed : {"reenter", "deleteView"}) {
        let(GetParam(), deed);
        makeAllCalls();
        EXPECT_EQ(panels.notices().size(), 1) << deed << panels.notices().join(u'\n').toStdString();
    }
    const auto *words = dialog->findChild<QLabel *>(u"rogueWords"_qs);
    EXPECT_EQ(words, nullptr) << "the call was not made";
    print();
    EXPECT_TRUE(QFile::exists(outputPath));
}

INSTANTIATE_TEST_SUITE_P(Table, RoguePanelAside,
                         testing::Values("shouldHide", "showHelp", "PPDOptionKeyValueDidChange",
                                         "restoreValuesAndReturnError"));

TEST_F(RoguePanelTest, NullAmongThePanels_IsLeftOutAndSaid)
{
    let("PDEPanelsForType", "nullEntry");
    open();
    ASSERT_EQ(panels.notices().size(), 1);
    EXPECT_TRUE(panels.notices().first().contains(u"HostTestRogue.bundle could not make its panel"_qs));
    ASSERT_EQ(panels.entries().size(), 1U);
    EXPECT_EQ(panels.entries().front().name, u"Rogue Panel"_qs);
}

TEST_F(RoguePanelTest, PanelWithoutAName_IsCalledAsItsBundle)
{
    let("panelName", "null");
    openWindow();
    EXPECT_EQ(dialog->findChild<QComboBox *>(u"pageChooser"_qs)->itemText(0), u"HostTestRogue"_qs);
}

TEST_F(RoguePanelTest, ChoiceSentBackAsItWasTold_IsToldOnce)
{
    let("PPDOptionKeyValueDidChange", "same");
    open();
    printJob.changeOption(u"KsMargin"_qs, u"5.0"_qs);
    EXPECT_EQ(qApp->property("hostTestTold").toInt(), 1);
    printJob.changeOption(u"KsMargin"_qs, u"5.0"_qs);
    EXPECT_EQ(qApp->property("hostTestTold").toInt(), 1);
    printJob.changeOption(u"KsMargin"_qs, u"2.0"_qs);
    EXPECT_EQ(qApp->property("hostTestTold").toInt(), 2);
    EXPECT_TRUE(panels.notices().isEmpty()) << panels.notices().join(u'\n').toStdString();
}

TEST_F(RoguePanelTest, EndlessChanges_EndAndAreSaid)
{
    let("PPDOptionKeyValueDidChange", "endless");
    open();
    printJob.changeOption(u"CutMedia"_qs, u"Label"_qs);
    ASSERT_EQ(panels.notices().size(), 1) << panels.notices().join(u'\n').toStdString();
    EXPECT_TRUE(panels.notices().first().contains(u"KsMargin without end"_qs));
    EXPECT_TRUE(panels.notices().first().contains(u"HostTestRogue.bundle"_qs));
}

TEST_F(RoguePanelTest, ChangeWithEachLookAtTheSummary_LeavesTheWindowUsable)
{
    openWindow();
    let("summaryInfo", "endless");
    printJob.changeOption(u"CutMedia"_qs, u"Label"_qs);
    QElapsedTimer timer;
    timer.start();
    while (timer.elapsed() < 200) {
        QApplication::processEvents();
    }
    let("summaryInfo", "none");
    print();
    EXPECT_TRUE(QFile::exists(outputPath));
}

TEST_F(RoguePanelTest, UnlistedAndUnknownChoices_AreInTheJobAndSaid)
{
    open();
    let("willShow", "unlisted");
    panels.showAll();
    EXPECT_EQ(printJob.options().value(u"CutMedia"_qs), u"Sideways"_qs);
    EXPECT_EQ(printJob.notices(),
              QStringList{u"CutMedia=Sideways is none of the choices that the printer's PPD lists."_qs});
    let("willShow", "unknown");
    panels.showAll();
    EXPECT_EQ(printJob.options().value(u"Perfume"_qs), u"Rose"_qs);
    ASSERT_EQ(panels.notices().size(), 1);
    EXPECT_TRUE(panels.notices().first().endsWith(
        u"HostTestRogue.bundle sends Perfume=Rose, which the printer's description does not know."_qs))
        << panels.notices().first().toStdString();
}

TEST_F(RoguePanelTest, ViewThatIsDeletedWhileItIsSeen_IsReplacedByWords)
{
    openWindow();
    delete dialog->findChild<QLabel *>(u"rogueWords"_qs)->parentWidget();
    let("summaryInfo", "none");
    printJob.changeOption(u"CutMedia"_qs, u"Label"_qs); // whatever has the window look again
    QApplication::processEvents();
    const auto labels = dialog->findChildren<QLabel *>();
    EXPECT_TRUE(std::any_of(labels.begin(), labels.end(), [](const QLabel *label) {
        return label->isVisible() && label->text() == u"This panel has no view."_qs;
    }));
}

TEST_F(RoguePanelTest, ViewThatGrows_EnlargesTheWindow)
{
    openWindow();
    const QSize before = dialog->size();
    let("willShow", "resize");
    panels.show(0);
    let("willShow", "none");
    QApplication::processEvents();
    const auto *words = dialog->findChild<QLabel *>(u"rogueWords"_qs);
    // As much larger as the screen allows of the 500 pixels.
    EXPECT_GT(dialog->height(), before.height());
    EXPECT_GE(words->visibleRegion().boundingRect().height(), 400) << dialog->height();
}

TEST_F(RoguePanelTest, ThrowOutOfItsView_IsSaidAndAnyOtherThrownOn)
{
    openWindow();
    auto *words = dialog->findChild<QLabel *>(u"rogueWords"_qs);
    const auto fail = []() -> bool { throw std::runtime_error("no ink left"); };
    EXPECT_TRUE(Application::deliver(words, fail));
    ASSERT_EQ(panels.notices().size(), 1);
    EXPECT_TRUE(panels.notices().first().endsWith(u"HostTestRogue.bundle failed: no ink left."_qs))
        << panels.notices().first().toStdString();
    EXPECT_THROW(Application::deliver(dialog->findChild<QPushButton *>(u"print"_qs), fail), std::runtime_error);
    EXPECT_TRUE(Application::deliver(words, [] { return true; }));
    EXPECT_EQ(panels.notices().size(), 1);
}

TEST_F(RoguePanelTest, HelpButton_IsThereForAPanelWithHelpAloneAndLeadsToIt)
{
    openWindow();
    auto *help = dialog->findChild<QPushButton *>(u"help"_qs);
    ASSERT_NE(help, nullptr);
    EXPECT_FALSE(help->isVisible());
    let("shouldShowHelp", "help");
    auto *chooser = dialog->findChild<QComboBox *>(u"pageChooser"_qs);
    QTest::keyClick(chooser, Qt::Key_Down);
    EXPECT_FALSE(help->isVisible());
    QTest::keyClick(chooser, Qt::Key_Up);
    EXPECT_TRUE(help->isVisible());
    QTest::mouseClick(help, Qt::LeftButton);
    EXPECT_EQ(qApp->property("hostTestHelped").toInt(), 1);
    QTest::keyClick(chooser, Qt::Key_F1);
    EXPECT_EQ(qApp->property("hostTestHelped").toInt(), 2);
}

TEST_F(RoguePanelTest, RestoringThatFailsWithoutAReason_NamesTheBundleInAWholeSentence)
{
    openWindow();
    let("restoreValuesAndReturnError", "refuse");
    job::Problem problem;
    EXPECT_FALSE(panels.revert(&problem));
    EXPECT_TRUE(problem.sentence.endsWith(u"HostTestRogue.bundle could not restore its values."_qs))
        << problem.sentence.toStdString();
}

class RogueProgram : public hosttest::Program
{
protected:
    void SetUp() override
    {
        Program::SetUp();
        bundles = rogueBundles.first();
        rogueFile = hosttest::writeFile(folder, u"rogue.ppd"_qs, hosttest::testPpd(roguePrinter));
    }

    /// Starts the program, whose panel does as it is told.
    void begin(QProcess &program, const char *deeds, const QString &output = u"out.prn"_qs)
    {
        variables.emplace_back(u"HOST_TEST_DEEDS"_qs, QLatin1String(deeds));
        start(program, programPath(), {u"--no-dialog"_qs, u"--ppd"_qs, rogueFile, u"--output"_qs, output, document});
    }

    /// What the program writes on standard error while its panel does as it is told.
    QByteArray wordsAfter(const char *deeds)
    {
        QProcess program;
        begin(program, deeds);
        EXPECT_TRUE(program.waitForFinished(30000));
        crashed = program.exitStatus() == QProcess::CrashExit;
        return program.readAllStandardError();
    }

    QString rogueFile;
    bool crashed = false;
};

TEST_F(RogueProgram, PanelThatCrashes_IsNamed)
{
    const QByteArray words = wordsAfter("saveValuesAndReturnError=crash");
    EXPECT_TRUE(crashed);
    EXPECT_TRUE(words.contains("HostTestRogue.bundle has crashed")) << words.toStdString();
}

TEST_F(RogueProgram, PanelThatUsesTheStackUp_IsNamed)
{
    const QByteArray words = wordsAfter("willShow=recurse");
    EXPECT_TRUE(crashed);
    EXPECT_TRUE(words.contains("HostTestRogue.bundle has crashed")) << words.toStdString();
}

TEST_F(RogueProgram, PanelThatDoesNotComeBack_IsNamedMeanwhile)
{
    const std::array calls{"willShow=hang", "saveValuesAndReturnError=hang", "summaryInfo=hang",
                           "printWindowWillClose=hang"};
    std::array<QProcess, calls.size()> programs; // all at once: each is waited for
    for (size_t index = 0; index < calls.size(); ++index) {
        begin(programs[index], calls[index], QStringLiteral("out%1.prn").arg(index));
    }
    for (size_t index = 0; index < calls.size(); ++index) {
        QProcess &program = programs[index];
        program.setReadChannel(QProcess::StandardError);
        QByteArray words;
        while (!words.endsWith("without it.\n") && program.waitForReadyRead(30000)) {
            words += program.readAllStandardError();
        }
        EXPECT_TRUE(words.startsWith("tapeprint: The panel \"Rogue Panel\" of "))
            << calls[index] << ": " << words.toStdString();
        EXPECT_TRUE(words.contains("HostTestRogue.bundle does not come back. End the program if it never does, "))
            << calls[index] << ": " << words.toStdString();
        EXPECT_EQ(program.state(), QProcess::Running) << calls[index];
        program.kill();
        EXPECT_TRUE(program.waitForFinished(30000));
    }
}

TEST_F(RogueProgram, PanelThatAsks_HasAllTheTimeThereIs)
{
    const QByteArray words = wordsAfter("shouldPrint=ask");
    EXPECT_EQ(words, "");
    EXPECT_FALSE(crashed);
    EXPECT_TRUE(QFile::exists(folder.filePath(u"out.prn"_qs)));
}

TEST_F(RogueProgram, PanelThatThrows_IsNamedAndTheJobPrinted)
{
    const QByteArray words = wordsAfter("summaryInfo=throw,willShow=throw");
    EXPECT_FALSE(crashed);
    EXPECT_TRUE(words.contains("HostTestRogue.bundle failed: no ink left.")) << words.toStdString();
    EXPECT_TRUE(QFile::exists(folder.filePath(u"out.prn"_qs)));
}

} // namespace
