// SPDX-License-Identifier: Apache-2.0
// A job and what it and a panel say to each other, with a panel that writes every call down.
#include "TestPrinter.h"

#include "job/PpdMarks.h"
#include "tests/support/TextPrinting.h"

#include <QCoreApplication>

#include <gtest/gtest.h>

#include <pdekit/Alert.h>

namespace
{

using namespace tapeprint;
using namespace tapeprint::job;
using dialog::Panels;
using dialog::PanelSummary;
using hosttest::options;
using hosttest::takeCalls;

class PanelsTest : public testing::Test
{
protected:
    void SetUp() override { takeCalls(); }

    void open(const JobOptions &laidDown = {}) { panels.open(hosttest::testDestination(folder), laidDown); }

    QString mediaName()
    {
        QVariant name;
        pdekit::PMPrintSettingsGetValue(&job.settings(), pdekit::PrintSettingsKey::mediaName, &name);
        return name.toString();
    }

    QTemporaryDir folder;
    Job job;
    Panels panels{job, hosttest::goodBundles()};
};

TEST_F(PanelsTest, Open_AsksThePanelInTheProtocolsOrder)
{
    open();
    EXPECT_EQ(takeCalls(), (QStringList{u"made, margin 2.0"_qs, u"panelName"_qs, u"panelKind"_qs,
                                        u"supportedPPDOptionKeys"_qs, u"panelView"_qs}));
    EXPECT_TRUE(job.notices().isEmpty());
    EXPECT_TRUE(panels.notices().isEmpty());
    ASSERT_EQ(panels.entries().size(), 1U);
    EXPECT_EQ(panels.entries().front().name, u"Test Panel"_qs);
    EXPECT_NE(panels.entries().front().view, nullptr);
    EXPECT_TRUE(panels.announced(u"KsMargin"_qs));
    EXPECT_FALSE(panels.announced(u"CutMedia"_qs));
}

TEST_F(PanelsTest, Open_LaysDownBeforeThePanelIsMade)
{
    open(options({{u"KsMargin"_qs, u"3.3"_qs}, {u"PageSize"_qs, u"W24"_qs}, {u"KsTapeLength"_qs, u"100"_qs}}));
    EXPECT_EQ(takeCalls().value(0), u"made, margin 3.3"_qs);
    EXPECT_EQ(mediaName(), u"W24"_qs);
    ASSERT_TRUE(job.pageFormat().paper.has_value());
    EXPECT_EQ(job.pageFormat().paper->ppdPaperName, u"W24"_qs);
    EXPECT_DOUBLE_EQ(job.pageFormat().paper->widthPt, 72.0);
    // The plug-in of the tests says nothing of tapes.
    EXPECT_DOUBLE_EQ(job.pageFormat().paper->heightPt, 144.0);
    TapeKeywords tape;
    tape.lengthOption = u"KsTapeLength"_qs;
    job.setTape(tape);
    // 100 mm x 0.0393701 inch/mm x 72 points/inch
    EXPECT_NEAR(job.pageFormat().paper->heightPt, 283.46472, 1e-9);
}

TEST_F(PanelsTest, SavedOptionsOfTheQueue_GiveWayToTheCommandLine)
{
    Destination destination = hosttest::testDestination(folder);
    destination.queue = PrintQueue();
    destination.queue->name = u"tape"_qs;
    destination.queue->deviceUri = u"usb://Test/Tape"_qs;
    destination.queue->options = options({{u"KsMargin"_qs, u"5.0"_qs}, {u"CutMedia"_qs, u"Label"_qs}});
    panels.open(std::move(destination), options({{u"KsMargin"_qs, u"2.0"_qs}}));
    EXPECT_EQ(job.options().lines(), (QStringList{u"KsMargin=2.0"_qs, u"CutMedia=Label"_qs, u"PageSize=W12"_qs}));
    EXPECT_EQ(job.printer().deviceUri, u"usb://Test/Tape"_qs);
    EXPECT_EQ(job.printer().name, u"tape"_qs);
}

TEST_F(PanelsTest, SavedNumberThatThePpdDoesNotList_IsSaidUnlessAPanelAnswersForItsOption)
{
    Destination destination = hosttest::testDestination(folder);
    destination.queue = PrintQueue();
    destination.queue->options = options({{u"KsMargin"_qs, u"3.0"_qs}, {u"CutMedia"_qs, u"7"_qs}});
    panels.open(std::move(destination), {});
    EXPECT_EQ(panels.notices(), QStringList{u"CutMedia=7 is none of the choices that the printer's PPD lists."_qs});
}

TEST_F(PanelsTest, PageRegion_ChoosesTheTapeAndCountsMoreThanASavedSize)
{
    Destination destination = hosttest::testDestination(folder);
    destination.queue = PrintQueue();
    destination.queue->options = options({{u"PageSize"_qs, u"W12"_qs}});
    panels.open(std::move(destination), options({{u"PageRegion"_qs, u"W24"_qs}}));
    EXPECT_EQ(job.options().lines(), QStringList{u"PageSize=W24"_qs});
    EXPECT_EQ(mediaName(), u"W24"_qs);
    EXPECT_DOUBLE_EQ(job.pageFormat().paper->heightPt, 144.0);
    // The tape that the PPD's own length would be laid on was not chosen.
    EXPECT_EQ(markedChoice(job.ppd(), u"PageSize"_qs), u"W24"_qs);
}

TEST_F(PanelsTest, MediaAskedFor_CountsMoreThanASavedSize)
{
    Destination destination = hosttest::testDestination(folder);
    destination.queue = PrintQueue();
    destination.queue->options = options({{u"PageSize"_qs, u"W12"_qs}});
    panels.open(std::move(destination), options({{u"media"_qs, u"W24"_qs}}));
    EXPECT_EQ(job.options().lines(), (QStringList{u"media=W24"_qs, u"PageSize=W24"_qs}));
}

TEST_F(PanelsTest, OptionThatNeverArrives_IsSaidToWhoSetsItAlone)
{
    const QByteArray media = "*OpenUI *Media/Media: PickOne\n*DefaultMedia: A\n*Media A/A: \"\"\n*Media B/B: \"\"\n"
                             "*CloseUI: *Media\n";
    panels.open(hosttest::testDestination(folder, media), {});
    EXPECT_EQ(job.notices(), QStringList());
    job.changeOption(u"Media"_qs, u"B"_qs);
    ASSERT_EQ(job.notices().size(), 1);
    EXPECT_TRUE(job.notices().first().contains(u"Option Media "_qs)) << job.notices().first().toStdString();
    job.revert();
    EXPECT_EQ(job.notices(), QStringList());
    panels.open(hosttest::testDestination(folder, media), options({{u"Media"_qs, u"A"_qs}}));
    EXPECT_EQ(job.notices().size(), 1);
}

TEST_F(PanelsTest, Pages_StandInTheSettingsAsTheirOutermostNumbers)
{
    open(options({{u"page-ranges"_qs, u"3-4,7-12"_qs}}));
    std::uint32_t page = 0;
    EXPECT_EQ(pdekit::PMGetFirstPage(&job.settings(), &page), pdekit::kPMNoError);
    EXPECT_EQ(page, 3U);
    EXPECT_EQ(pdekit::PMGetLastPage(&job.settings(), &page), pdekit::kPMNoError);
    EXPECT_EQ(page, 12U);
    open(options({{u"page-ranges"_qs, u"3-"_qs}}));
    EXPECT_EQ(pdekit::PMGetLastPage(&job.settings(), &page), pdekit::kPMKeyNotFound);
}

TEST_F(PanelsTest, PanelsChoice_IsMarkedWhenListedAndRecordedInAnyCase)
{
    open();
    EXPECT_TRUE(job.takeChoice(u"KsMargin"_qs, u"5.0"_qs));
    EXPECT_EQ(markedChoice(job.ppd(), u"KsMargin"_qs), u"5.0"_qs);
    EXPECT_EQ(job.options().value(u"KsMargin"_qs), u"5.0"_qs);
    EXPECT_TRUE(job.takeChoice(u"KsMargin"_qs, u"4.4"_qs));
    EXPECT_EQ(markedChoice(job.ppd(), u"KsMargin"_qs), u"5.0"_qs);
    EXPECT_EQ(job.options().value(u"KsMargin"_qs), u"4.4"_qs);
    EXPECT_TRUE(job.takeChoice(u"KsTapeLength"_qs, u"62.0"_qs));
    EXPECT_EQ(job.options().value(u"KsTapeLength"_qs), u"62.0"_qs);
}

TEST_F(PanelsTest, NumberThatAPanelSends_BecomesTheDefaultUntilRevert)
{
    const auto defaultOf = [this](const QString &key) { return QByteArray(findOption(job.ppd(), key)->defchoice); };
    open();
    job.takeChoice(u"KsMargin"_qs, u"4.4"_qs);
    EXPECT_EQ(defaultOf(u"KsMargin"_qs), "4.4");
    // A word is a choice, and the PPD's default stays what it is.
    job.takeChoice(u"CutMedia"_qs, u"Label"_qs);
    EXPECT_EQ(defaultOf(u"CutMedia"_qs), "None");
    job.revert();
    EXPECT_EQ(defaultOf(u"KsMargin"_qs), "2.0");
}

TEST_F(PanelsTest, PanelsChoice_IsToldToEveryPanelTheSenderIncluded)
{
    open();
    takeCalls();
    job.takeChoice(u"KsMargin"_qs, u"5.0"_qs);
    EXPECT_EQ(takeCalls(), QStringList{u"changed KsMargin=5.0, tape W12"_qs});
    // Sent again it is no change.
    job.takeChoice(u"KsMargin"_qs, u"5.0"_qs);
    EXPECT_EQ(takeCalls(), QStringList());
}

TEST_F(PanelsTest, PanelsChoice_WithoutKeywordOrValueOrInBraces_IsRefused)
{
    open();
    const QStringList before = job.options().lines();
    EXPECT_FALSE(job.takeChoice(QString(), u"5.0"_qs));
    EXPECT_FALSE(job.takeChoice(u""_qs, u"5.0"_qs));
    EXPECT_FALSE(job.takeChoice(u"KsMargin"_qs, u""_qs));
    EXPECT_FALSE(job.takeChoice(u"KsMargin"_qs, u"{a=1}"_qs));
    EXPECT_EQ(job.options().lines(), before);
}

TEST_F(PanelsTest, ChangeOfTheTape_IsInTheObjectsBeforeThePanelHearsOfIt)
{
    open(options({{u"KsTapeLength"_qs, u"100"_qs}}));
    takeCalls();
    job.changeOption(u"PageSize"_qs, u"W24"_qs);
    EXPECT_EQ(takeCalls(), QStringList{u"changed PageSize=W24, tape W24"_qs});
    EXPECT_EQ(job.options().value(u"PageSize"_qs), u"W24"_qs);
    // The new tape brings its own length.
    EXPECT_DOUBLE_EQ(job.pageFormat().paper->heightPt, 144.0);
}

TEST_F(PanelsTest, ChangeOfThePaper_IsToldAgainWhenThePanelHasBeenShownWithIt)
{
    open();
    takeCalls();
    panels.changePaper(u"W24"_qs);
    EXPECT_EQ(takeCalls(), (QStringList{u"willShow"_qs, u"changed PageSize=W24, tape W24"_qs, u"willShow"_qs,
                                        u"changed PageSize=W24, tape W24"_qs}));
}

TEST_F(PanelsTest, Settling_ShowsSavesAndNotesWhatThePanelReplaced)
{
    // The panel sends the PPD's default, which holds 40 bytes: this value does not fit.
    const QString tooLong(41, u'9');
    open(options({{u"KsMargin"_qs, tooLong}, {u"CutMedia"_qs, u"Label"_qs}}));
    takeCalls();
    EXPECT_TRUE(panels.notices().isEmpty());
    Problem error;
    EXPECT_TRUE(panels.settle(&error));
    EXPECT_EQ(takeCalls(), (QStringList{u"willShow"_qs, u"save"_qs, u"changed KsMargin=2.0, tape W12"_qs}));
    EXPECT_EQ(panels.notices(), QStringList{u"The panel \"Test Panel\" holds KsMargin within its limits and steps: "
                                            "instead of "_qs +
                                            tooLong + u" the job carries 2.0."_qs});
    // What the person picks since is no replacement.
    job.takeChoice(u"KsMargin"_qs, u"5.0"_qs);
    EXPECT_TRUE(panels.notices().isEmpty());
}

TEST_F(PanelsTest, ChangeOfAnotherOption_IsMarkedRecordedAndTold)
{
    open();
    takeCalls();
    job.changeOption(u"CutMedia"_qs, u"Label"_qs);
    EXPECT_EQ(takeCalls(), QStringList{u"changed CutMedia=Label, tape W12"_qs});
    EXPECT_EQ(markedChoice(job.ppd(), u"CutMedia"_qs), u"Label"_qs);
    EXPECT_EQ(job.options().value(u"CutMedia"_qs), u"Label"_qs);
}

TEST_F(PanelsTest, Revert_BringsJobMarksAndTapeBackAndTellsThePanelOfEachChange)
{
    open();
    Problem error;
    ASSERT_TRUE(panels.settle(&error));
    job.rememberAsOpened();
    const QStringList before = job.options().lines();
    job.changeOption(u"PageSize"_qs, u"W24"_qs);
    job.changeOption(u"CutMedia"_qs, u"Label"_qs);
    takeCalls();
    EXPECT_TRUE(panels.revert(&error));
    EXPECT_EQ(takeCalls(), (QStringList{u"changed PageSize=W12, tape W12"_qs, u"changed CutMedia=None, tape W12"_qs,
                                        u"restore"_qs, u"changed PageSize=W12, tape W12"_qs}));
    EXPECT_EQ(job.options().lines(), before);
    EXPECT_EQ(markedChoice(job.ppd(), u"PageSize"_qs), u"W12"_qs);
    EXPECT_EQ(markedChoice(job.ppd(), u"CutMedia"_qs), u"None"_qs);
    EXPECT_DOUBLE_EQ(job.pageFormat().paper->heightPt, 288.0);
    EXPECT_EQ(mediaName(), u"W12"_qs);
}

TEST_F(PanelsTest, Revert_UnmarksWhatWasNotMarkedWhenOpened)
{
    // The PPD names no default that it lists: nothing is marked until the person picks.
    panels.open(hosttest::testDestination(folder, "*OpenUI *Coating/Coating: PickOne\n"
                                                  "*OrderDependency: 20 AnySetup *Coating\n"
                                                  "*DefaultCoating: Unknown\n"
                                                  "*Coating Matte/Matte: \"\"\n"
                                                  "*Coating Gloss/Gloss: \"\"\n"
                                                  "*CloseUI: *Coating\n"),
                {});
    ASSERT_TRUE(markedChoice(job.ppd(), u"Coating"_qs).isNull());
    job.changeOption(u"Coating"_qs, u"Gloss"_qs);
    ASSERT_EQ(markedChoice(job.ppd(), u"Coating"_qs), u"Gloss"_qs);
    Problem error;
    EXPECT_TRUE(panels.revert(&error));
    EXPECT_TRUE(markedChoice(job.ppd(), u"Coating"_qs).isNull());
    EXPECT_FALSE(job.options().contains(u"Coating"_qs));
    EXPECT_EQ(markedChoice(job.ppd(), u"KsMargin"_qs), u"2.0"_qs); // what was marked is marked again
}

TEST_F(PanelsTest, RevertOfACustomSize_BringsItsMeasuresBack)
{
    panels.open(hosttest::testDestination(folder, "*VariablePaperSize: True\n"
                                                  "*MaxMediaWidth: \"100\"\n"
                                                  "*MaxMediaHeight: \"900\"\n"
                                                  "*HWMargins: 0 0 0 0\n"
                                                  "*CustomPageSize True: \"\"\n"
                                                  "*ParamCustomPageSize Width: 1 points 10 100\n"
                                                  "*ParamCustomPageSize Height: 2 points 10 900\n"),
                options({{u"PageSize"_qs, u"Custom.40x500"_qs}}));
    ASSERT_TRUE(job.pageFormat().paper.has_value());
    ASSERT_DOUBLE_EQ(job.pageFormat().paper->heightPt, 500.0);
    job.changeOption(u"PageSize"_qs, u"Custom.60x700"_qs);
    ASSERT_DOUBLE_EQ(job.pageFormat().paper->heightPt, 700.0);
    Problem error;
    EXPECT_TRUE(panels.revert(&error));
    EXPECT_DOUBLE_EQ(job.pageFormat().paper->heightPt, 500.0);
    const ppd_size_t *size = ppdPageSize(job.ppd(), nullptr);
    ASSERT_NE(size, nullptr);
    EXPECT_FLOAT_EQ(size->width, 40.0F);
    EXPECT_FLOAT_EQ(size->length, 500.0F);
}

/// A queue with the tests' PPD.
Destination queueDestination(const QTemporaryDir &folder, const QByteArray &more = {})
{
    Destination destination = hosttest::testDestination(folder, more);
    destination.queue = PrintQueue();
    destination.queue->name = u"tape"_qs;
    return destination;
}

TEST_F(PanelsTest, Reopening_LeavesNothingOfWhatWasLaidDownBefore)
{
    panels.open(queueDestination(folder), {});
    panels.reopen(u"wide"_qs, options({{u"KsMargin"_qs, u"5.0"_qs}, {u"CutMedia"_qs, u"Label"_qs}}), {});
    EXPECT_EQ(takeCalls().filter(u"made"_qs), (QStringList{u"made, margin 2.0"_qs, u"made, margin 5.0"_qs}));
    EXPECT_EQ(job.printer().instance, u"wide"_qs);
    EXPECT_EQ(job.options().lines(), (QStringList{u"KsMargin=5.0"_qs, u"CutMedia=Label"_qs, u"PageSize=W12"_qs}));

    panels.reopen(u"large"_qs, options({{u"PageSize"_qs, u"W24"_qs}}), {});
    EXPECT_EQ(takeCalls().filter(u"made"_qs), QStringList{u"made, margin 2.0"_qs});
    EXPECT_EQ(job.options().lines(), QStringList{u"PageSize=W24"_qs});
    EXPECT_EQ(markedChoice(job.ppd(), u"CutMedia"_qs), u"None"_qs);
    EXPECT_EQ(job.printer().instance, u"large"_qs);
    EXPECT_EQ(mediaName(), u"W24"_qs);
}

TEST_F(PanelsTest, ReopeningWithoutTheFile_StillFindsThePpd)
{
    Destination destination = queueDestination(folder);
    ASSERT_TRUE(QFile::remove(destination.ppdPath));
    panels.open(std::move(destination), {});
    job.changeOption(u"CutMedia"_qs, u"Label"_qs);
    panels.reopen({}, {}, {});
    EXPECT_EQ(markedChoice(job.ppd(), u"CutMedia"_qs), u"None"_qs);
}

TEST_F(PanelsTest, RevertAfterReopening_GoesBackToWhatTheDialogWasOpenedWith)
{
    panels.open(queueDestination(folder), options({{u"KsMargin"_qs, u"5.0"_qs}}));
    const QStringList before = job.options().lines();
    panels.reopen(u"large"_qs, options({{u"PageSize"_qs, u"W24"_qs}, {u"CutMedia"_qs, u"Label"_qs}}), {});
    Problem error;
    EXPECT_TRUE(panels.revert(&error));
    takeCalls();
    panels.remake();
    EXPECT_EQ(takeCalls().filter(u"made"_qs), QStringList{u"made, margin 5.0"_qs});
    EXPECT_EQ(job.options().lines(), before);
    EXPECT_EQ(job.laidDown().lines(), QStringList{u"KsMargin=5.0"_qs});
    EXPECT_EQ(job.printer().instance, QString());
    EXPECT_EQ(markedChoice(job.ppd(), u"CutMedia"_qs), u"None"_qs);
    EXPECT_EQ(mediaName(), u"W12"_qs);
}

TEST_F(PanelsTest, Summary_StandsInThePanelsOrderWithoutEmptyTitles)
{
    open();
    const std::vector<PanelSummary> summary = panels.summary();
    ASSERT_EQ(summary.size(), 1U);
    const std::vector<std::pair<QString, QString>> expected{{u"Tape"_qs, u"W12"_qs}, {u"Margin"_qs, u"2.0"_qs}};
    EXPECT_EQ(summary.front().lines, expected);
}

TEST_F(PanelsTest, FailureToSave_NamesThePanelAndItsReason)
{
    open();
    qApp->setProperty("hostTestFailSaving", true);
    Problem error;
    EXPECT_FALSE(panels.saveValues(&error));
    qApp->setProperty("hostTestFailSaving", QVariant());
    EXPECT_TRUE(error.sentence.contains(u"Test Panel"_qs) && error.sentence.contains(u"no margin"_qs))
        << error.sentence.toStdString();
    EXPECT_TRUE(panels.saveValues(&error));
}

TEST_F(PanelsTest, Refusal_NamesThePanel)
{
    open();
    qApp->setProperty("hostTestRefuse", true);
    pdekit::setAlertHandler([](const pdekit::AlertRequest &) {});
    QString refusedBy;
    EXPECT_FALSE(panels.shouldPrint(&refusedBy));
    pdekit::setAlertHandler({});
    qApp->setProperty("hostTestRefuse", QVariant());
    EXPECT_EQ(refusedBy, u"The panel \"Test Panel\" of "_qs + hosttest::goodBundles().first() + u"/HostTest.bundle"_qs);
    EXPECT_TRUE(panels.shouldPrint(&refusedBy));
}

TEST_F(PanelsTest, AnotherDestination_ReleasesTheOldPanelWhileItsObjectsStand)
{
    open();
    takeCalls();
    open(options({{u"KsMargin"_qs, u"5.0"_qs}}));
    const QStringList calls = takeCalls();
    EXPECT_EQ(calls.value(0), u"released"_qs);
    EXPECT_EQ(calls.value(1), u"made, margin 5.0"_qs);
}

TEST_F(PanelsTest, WithoutAPpd_ThereIsNoPanelAndTheJobTakesChoices)
{
    Destination destination;
    destination.queue = PrintQueue();
    destination.queue->name = u"raw"_qs;
    panels.open(std::move(destination), {});
    EXPECT_EQ(job.ppd(), nullptr);
    EXPECT_TRUE(panels.entries().empty());
    EXPECT_TRUE(panels.notices().isEmpty());
    EXPECT_FALSE(job.pageFormat().paper.has_value());
    EXPECT_TRUE(job.takeChoice(u"KsMargin"_qs, u"1"_qs));
    EXPECT_EQ(job.options().lines(), QStringList{u"KsMargin=1"_qs});
}

TEST_F(PanelsTest, BrokenBundles_AreNoticesAndThePanelIsThere)
{
    Panels mixed(job, {QStringLiteral(HOST_TEST_BUNDLES "/type"), hosttest::goodBundles().first()});
    mixed.open(hosttest::testDestination(folder), {});
    EXPECT_EQ(mixed.entries().size(), 1U);
    ASSERT_EQ(mixed.notices().size(), 1);
    EXPECT_TRUE(mixed.notices().first().contains(u"HostTestOtherType.bundle"_qs));
}

} // namespace
