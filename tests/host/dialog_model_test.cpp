// SPDX-License-Identifier: Apache-2.0
// The dialog's objects and what they and a panel say to each other, with a panel that writes every call down.
#include "TestPrinter.h"

#include "host/PpdMarks.h"
#include "tests/support/TextPrinting.h"

#include <QCoreApplication>

#include <gtest/gtest.h>

#include <pdekit/Alert.h>

namespace
{

using namespace tapeprint;
using hosttest::options;
using hosttest::takeCalls;

class DialogModelTest : public testing::Test
{
protected:
    void SetUp() override { takeCalls(); }

    void open(const JobOptions &laidDown = {}) { model.open(hosttest::testDestination(folder), laidDown); }

    QString mediaName()
    {
        QVariant name;
        pdekit::PMPrintSettingsGetValue(&model.settings(), pdekit::PrintSettingsKey::mediaName, &name);
        return name.toString();
    }

    QTemporaryDir folder;
    DialogModel model{hosttest::goodBundles()};
};

TEST_F(DialogModelTest, Open_AsksThePanelInTheProtocolsOrder)
{
    open();
    EXPECT_EQ(takeCalls(), (QStringList{u"made, margin 2.0"_qs, u"panelName"_qs, u"panelKind"_qs,
                                        u"supportedPPDOptionKeys"_qs, u"panelView"_qs}));
    EXPECT_TRUE(model.notices().isEmpty());
    ASSERT_EQ(model.panels().size(), 1U);
    EXPECT_EQ(model.panels().front().name, u"Test Panel"_qs);
    EXPECT_NE(model.panels().front().view, nullptr);
    EXPECT_TRUE(model.isPanelOption(u"KsMargin"_qs));
    EXPECT_FALSE(model.isPanelOption(u"CutMedia"_qs));
}

TEST_F(DialogModelTest, Open_LaysDownBeforeThePanelIsMade)
{
    open(options({{u"KsMargin"_qs, u"3.3"_qs}, {u"PageSize"_qs, u"W24"_qs}, {u"KsTapeLength"_qs, u"100"_qs}}));
    EXPECT_EQ(takeCalls().value(0), u"made, margin 3.3"_qs);
    EXPECT_EQ(mediaName(), u"W24"_qs);
    ASSERT_TRUE(model.pageFormat().paper.has_value());
    EXPECT_EQ(model.pageFormat().paper->ppdPaperName, u"W24"_qs);
    EXPECT_DOUBLE_EQ(model.pageFormat().paper->widthPt, 72.0);
    // 100 mm x 0.0393701 inch/mm x 72 points/inch
    EXPECT_NEAR(model.pageFormat().paper->heightPt, 283.46472, 1e-9);
}

TEST_F(DialogModelTest, SavedOptionsOfTheQueue_GiveWayToTheCommandLine)
{
    Destination destination = hosttest::testDestination(folder);
    destination.queue = PrintQueue();
    destination.queue->name = u"tape"_qs;
    destination.queue->deviceUri = u"usb://Test/Tape"_qs;
    destination.queue->options = options({{u"KsMargin"_qs, u"5.0"_qs}, {u"CutMedia"_qs, u"Label"_qs}});
    model.open(std::move(destination), options({{u"KsMargin"_qs, u"2.0"_qs}}));
    EXPECT_EQ(model.job().lines(), (QStringList{u"KsMargin=2.0"_qs, u"CutMedia=Label"_qs, u"PageSize=W12"_qs}));
    EXPECT_EQ(model.printer().deviceUri, u"usb://Test/Tape"_qs);
    EXPECT_EQ(model.printer().name, u"tape"_qs);
}

TEST_F(DialogModelTest, Pages_StandInTheSettingsAsTheirOutermostNumbers)
{
    open(options({{u"page-ranges"_qs, u"3-4,7-12"_qs}}));
    std::uint32_t page = 0;
    EXPECT_EQ(pdekit::PMGetFirstPage(&model.settings(), &page), pdekit::kPMNoError);
    EXPECT_EQ(page, 3U);
    EXPECT_EQ(pdekit::PMGetLastPage(&model.settings(), &page), pdekit::kPMNoError);
    EXPECT_EQ(page, 12U);
    open(options({{u"page-ranges"_qs, u"3-"_qs}}));
    EXPECT_EQ(pdekit::PMGetLastPage(&model.settings(), &page), pdekit::kPMKeyNotFound);
}

TEST_F(DialogModelTest, PanelsChoice_IsMarkedWhenListedAndRecordedInAnyCase)
{
    open();
    EXPECT_TRUE(model.takeFromPanel(u"KsMargin"_qs, u"5.0"_qs));
    EXPECT_EQ(markedChoice(model.ppd(), u"KsMargin"_qs), u"5.0"_qs);
    EXPECT_EQ(model.job().value(u"KsMargin"_qs), u"5.0"_qs);
    EXPECT_TRUE(model.takeFromPanel(u"KsMargin"_qs, u"4.4"_qs));
    EXPECT_EQ(markedChoice(model.ppd(), u"KsMargin"_qs), u"5.0"_qs);
    EXPECT_EQ(model.job().value(u"KsMargin"_qs), u"4.4"_qs);
    EXPECT_TRUE(model.takeFromPanel(u"KsTapeLength"_qs, u"62.0"_qs));
    EXPECT_EQ(model.job().value(u"KsTapeLength"_qs), u"62.0"_qs);
}

TEST_F(DialogModelTest, PanelsChoice_IsToldToEveryPanelTheSenderIncluded)
{
    open();
    takeCalls();
    model.takeFromPanel(u"KsMargin"_qs, u"5.0"_qs);
    EXPECT_EQ(takeCalls(), QStringList{u"changed KsMargin=5.0, tape W12"_qs});
}

TEST_F(DialogModelTest, PanelsChoice_WithoutKeywordOrValueOrInBraces_IsRefused)
{
    open();
    const QStringList before = model.job().lines();
    EXPECT_FALSE(model.takeFromPanel(QString(), u"5.0"_qs));
    EXPECT_FALSE(model.takeFromPanel(u""_qs, u"5.0"_qs));
    EXPECT_FALSE(model.takeFromPanel(u"KsMargin"_qs, u""_qs));
    EXPECT_FALSE(model.takeFromPanel(u"KsMargin"_qs, u"{a=1}"_qs));
    EXPECT_EQ(model.job().lines(), before);
}

TEST_F(DialogModelTest, ChangeOfTheTape_IsInTheObjectsBeforeThePanelHearsOfIt)
{
    open(options({{u"KsTapeLength"_qs, u"100"_qs}}));
    takeCalls();
    model.changeOption(u"PageSize"_qs, u"W24"_qs);
    EXPECT_EQ(takeCalls(), QStringList{u"changed PageSize=W24, tape W24"_qs});
    EXPECT_EQ(model.job().value(u"PageSize"_qs), u"W24"_qs);
    // The new tape brings its own length.
    EXPECT_DOUBLE_EQ(model.pageFormat().paper->heightPt, 144.0);
}

TEST_F(DialogModelTest, ChangeOfAnotherOption_IsMarkedRecordedAndTold)
{
    open();
    takeCalls();
    model.changeOption(u"CutMedia"_qs, u"Label"_qs);
    EXPECT_EQ(takeCalls(), QStringList{u"changed CutMedia=Label, tape W12"_qs});
    EXPECT_EQ(markedChoice(model.ppd(), u"CutMedia"_qs), u"Label"_qs);
    EXPECT_EQ(model.job().value(u"CutMedia"_qs), u"Label"_qs);
}

TEST_F(DialogModelTest, Revert_BringsJobMarksAndTapeBackAndTellsThePanelOfEachChange)
{
    open();
    model.showAllPanels();
    const QStringList before = model.job().lines();
    model.changeOption(u"PageSize"_qs, u"W24"_qs);
    model.changeOption(u"CutMedia"_qs, u"Label"_qs);
    takeCalls();
    QString error;
    EXPECT_TRUE(model.revert(&error));
    EXPECT_EQ(takeCalls(), (QStringList{u"changed PageSize=W12, tape W12"_qs, u"changed CutMedia=None, tape W12"_qs,
                                        u"restore"_qs}));
    EXPECT_EQ(model.job().lines(), before);
    EXPECT_EQ(markedChoice(model.ppd(), u"PageSize"_qs), u"W12"_qs);
    EXPECT_EQ(markedChoice(model.ppd(), u"CutMedia"_qs), u"None"_qs);
    EXPECT_DOUBLE_EQ(model.pageFormat().paper->heightPt, 288.0);
    EXPECT_EQ(mediaName(), u"W12"_qs);
}

TEST_F(DialogModelTest, Summary_StandsInThePanelsOrderWithoutEmptyTitles)
{
    open();
    const std::vector<PanelSummary> summary = model.summary();
    ASSERT_EQ(summary.size(), 1U);
    const std::vector<std::pair<QString, QString>> expected{{u"Tape"_qs, u"W12"_qs}, {u"Margin"_qs, u"2.0"_qs}};
    EXPECT_EQ(summary.front().lines, expected);
}

TEST_F(DialogModelTest, FailureToSave_NamesThePanelAndItsReason)
{
    open();
    qApp->setProperty("hostTestFailSaving", true);
    QString error;
    EXPECT_FALSE(model.saveValues(&error));
    qApp->setProperty("hostTestFailSaving", QVariant());
    EXPECT_TRUE(error.contains(u"Test Panel"_qs) && error.contains(u"no margin"_qs)) << error.toStdString();
    EXPECT_TRUE(model.saveValues(&error));
}

TEST_F(DialogModelTest, Refusal_NamesThePanel)
{
    open();
    qApp->setProperty("hostTestRefuse", true);
    pdekit::setAlertHandler([](const pdekit::AlertRequest &) {});
    QString refusedBy;
    EXPECT_FALSE(model.shouldPrint(&refusedBy));
    pdekit::setAlertHandler({});
    qApp->setProperty("hostTestRefuse", QVariant());
    EXPECT_EQ(refusedBy, u"Test Panel"_qs);
    EXPECT_TRUE(model.shouldPrint(&refusedBy));
}

TEST_F(DialogModelTest, AnotherDestination_ReleasesTheOldPanelWhileItsObjectsStand)
{
    open();
    takeCalls();
    open(options({{u"KsMargin"_qs, u"5.0"_qs}}));
    const QStringList calls = takeCalls();
    EXPECT_EQ(calls.value(0), u"released"_qs);
    EXPECT_EQ(calls.value(1), u"made, margin 5.0"_qs);
}

TEST_F(DialogModelTest, WithoutAPpd_StillMakesThePanelAndRecordsItsChoices)
{
    Destination destination;
    destination.queue = PrintQueue();
    destination.queue->name = u"raw"_qs;
    model.open(std::move(destination), {});
    EXPECT_EQ(model.ppd(), nullptr);
    EXPECT_FALSE(model.pageFormat().paper.has_value());
    EXPECT_TRUE(model.takeFromPanel(u"KsMargin"_qs, u"1"_qs));
    EXPECT_EQ(model.job().lines(), QStringList{u"KsMargin=1"_qs});
}

TEST_F(DialogModelTest, BrokenBundles_AreNoticesAndThePanelIsThere)
{
    DialogModel mixed({QStringLiteral(HOST_TEST_BUNDLES "/type"), hosttest::goodBundles().first()});
    mixed.open(hosttest::testDestination(folder), {});
    EXPECT_EQ(mixed.panels().size(), 1U);
    ASSERT_EQ(mixed.notices().size(), 1);
    EXPECT_TRUE(mixed.notices().first().contains(u"HostTestOtherType.bundle"_qs));
}

} // namespace
