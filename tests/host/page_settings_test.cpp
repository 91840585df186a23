// SPDX-License-Identifier: Apache-2.0
// The Page Settings panel in the dialog: which printers get it, what is said of values that it cannot show, and what
// stays of typed lengths when the tape or its material changes.
#include "Hands.h"
#include "ShownWindow.h"
#include "TestPrinter.h"

#include "dialog/PrintDialog.h"
#include "job/PpdMarks.h"
#include "tests/support/TextPrinting.h"

#include <QApplication>
#include <QComboBox>
#include <QHelpEvent>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QTest>
#include <QToolTip>

#include <gtest/gtest.h>

namespace
{

using namespace tapeprint;
using namespace tapeprint::dialog;
using hosttest::options;

const QStringList realBundles{QStringLiteral(TAPEPRINT_BUNDLE_DIR)};

/// Three resolutions, of which the panel shows two.
const QByteArray threeResolutions = R"PPD(*OpenUI *Resolution/Resolution: PickOne
*OrderDependency: 20 AnySetup *Resolution
*DefaultResolution: 300x300dpi
*Resolution 300x300dpi/300 dpi: ""
*Resolution 300x600dpi/300 x 600 dpi: ""
*Resolution 600x600dpi/600 dpi: ""
*CloseUI: *Resolution
*KsMinTapeLength: "4"
*KsMaxTapeLength: "1000"
*KsMinMargin: "1"
*KsMaxMargin: "20"
)PPD";

job::Destination samplePrinter(const QString &name)
{
    job::Destination destination;
    destination.ppdPath = QStringLiteral(TAPEPRINT_PRINTER_DIR "/tapeprint-%1.ppd").arg(name);
    job::Problem error;
    destination.ppd = job::openPpdFile(destination.ppdPath, &error);
    EXPECT_NE(destination.ppd, nullptr) << error.sentence.toStdString();
    return destination;
}

class PageSettings : public testing::Test
{
protected:
    void open(job::Destination destination, const job::JobOptions &asked = {})
    {
        dialog.reset();
        panels.open(std::move(destination), asked);
        dialog = std::make_unique<PrintDialog>(job, panels, PrintDialog::Setup{{}, u"label"_qs, {}, {}},
                                               PrintDialog::PrintAction());
        ASSERT_TRUE(hosttest::show(*dialog));
    }

    template <typename Widget>
    Widget *child(const QString &name)
    {
        return hosttest::child<Widget>(*dialog, name);
    }

    QString notices() { return child<QLabel>(u"notices"_qs)->text(); }

    /// Types into a field of the panel and leaves the focus there.
    void type(const QString &field, const QString &text) { hosttest::type(child<QLineEdit>(field), text); }

    void pick(const QString &popUp, const QString &item)
    {
        auto *box = child<QComboBox>(popUp);
        hosttest::pick(box, box->findText(item));
    }

    void pickTape(const QString &tape)
    {
        auto *box = child<QComboBox>(u"tape"_qs);
        hosttest::pick(box, box->findData(tape));
    }

    QTemporaryDir folder;
    job::Job job;
    Panels panels{job, realBundles};
    std::unique_ptr<PrintDialog> dialog;
};

TEST_F(PageSettings, BelongsToThePrintersWithItsKeywords)
{
    for (const QString &name : {u"mm"_qs, u"inch"_qs, u"mv"_qs}) {
        panels.open(samplePrinter(name), {});
        EXPECT_EQ(panels.entries().size(), 1U) << name.toStdString();
    }
    // Tapes, a resolution and a cutter make no printer the panel's.
    panels.open(samplePrinter(u"plain"_qs), {});
    EXPECT_TRUE(panels.entries().empty());
    EXPECT_TRUE(panels.notices().isEmpty());
}

TEST_F(PageSettings, ResolutionAlone_IsNoneOfItsKeywords)
{
    const QByteArray text = hosttest::testPpd(threeResolutions).replace("*KsM", "*M");
    job::Destination destination;
    job::Problem error;
    destination.ppd = job::openPpdFile(hosttest::writeFile(folder, u"other.ppd"_qs, text), &error);
    panels.open(std::move(destination), options({{u"Resolution"_qs, u"600x600dpi"_qs}}));
    EXPECT_TRUE(panels.entries().empty());
    job::Problem ignored;
    ASSERT_TRUE(panels.settle(&ignored));
    EXPECT_EQ(job.options().lines(), (QStringList{u"Resolution=600x600dpi"_qs, u"PageSize=W12"_qs}));
}

TEST_F(PageSettings, ResolutionThatItCannotShow_IsSaidUntilAnotherIsPicked)
{
    const QString sentence = u"The panel \"Page Settings\" does not offer Resolution=600x600dpi, which the printer "
                             "has: the job carries Resolution=300x300dpi."_qs;
    ASSERT_NO_FATAL_FAILURE(
        open(hosttest::testDestination(folder, threeResolutions), options({{u"Resolution"_qs, u"600x600dpi"_qs}})));
    EXPECT_EQ(job.options().value(u"Resolution"_qs), u"300x300dpi"_qs);
    EXPECT_EQ(notices(), sentence);
    job.takeChoice(u"Resolution"_qs, u"300x600dpi"_qs);
    QApplication::processEvents();
    EXPECT_EQ(notices(), QString());
}

TEST_F(PageSettings, SavedResolutionThatItCannotShow_IsSaidToo)
{
    job::Destination destination = hosttest::testDestination(folder, threeResolutions);
    destination.queue = job::PrintQueue();
    destination.queue->name = u"tape"_qs;
    destination.queue->options = options({{u"Resolution"_qs, u"600x600dpi"_qs}});
    ASSERT_NO_FATAL_FAILURE(open(std::move(destination)));
    EXPECT_TRUE(notices().contains(u"does not offer Resolution=600x600dpi"_qs)) << notices().toStdString();
}

TEST_F(PageSettings, NumberOutOfRange_IsSaidToBeHeldWithinTheLimits)
{
    ASSERT_NO_FATAL_FAILURE(
        open(hosttest::testDestination(folder, threeResolutions), options({{u"KsMargin"_qs, u"30"_qs}})));
    // The limit is the PPD's largest margin.
    EXPECT_TRUE(
        notices().contains(u"holds KsMargin within its limits and steps: instead of 30 the job carries 20.0."_qs))
        << notices().toStdString();
}

TEST_F(PageSettings, AlertAboutValuesLaidDown_IsANoticeBeforeThereIsAWindow)
{
    // 20 mm of tape cannot hold 15 mm of margin at both ends.
    ASSERT_NO_FATAL_FAILURE(open(hosttest::testDestination(folder, threeResolutions),
                                 options({{u"KsTapeLength"_qs, u"20"_qs}, {u"KsMargin"_qs, u"15"_qs}})));
    EXPECT_TRUE(notices().contains(u"The tape is made longer to fit both margins."_qs)) << notices().toStdString();
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

TEST_F(PageSettings, WhatItShowsAsLaidDown_NeedsNoWord)
{
    ASSERT_NO_FATAL_FAILURE(
        open(samplePrinter(u"mm"_qs), options({{u"Resolution"_qs, u"300x600dpi"_qs}, {u"KsMargin"_qs, u"5"_qs}})));
    EXPECT_EQ(notices(), QString());
    EXPECT_FALSE(child<QLabel>(u"notices"_qs)->isVisible());
}

TEST_F(PageSettings, TypedPrintTapeLength_SurvivesAChangeOfMaterial)
{
    ASSERT_NO_FATAL_FAILURE(open(samplePrinter(u"mm"_qs)));
    type(u"mTapeLengthTxFld"_qs, u"4.5"_qs);
    pick(u"mTapeTypePopBtn"_qs, child<QComboBox>(u"mTapeTypePopBtn"_qs)->itemText(1));
    EXPECT_EQ(child<QLineEdit>(u"mTapeLengthTxFld"_qs)->text(), u"4.5"_qs);
    EXPECT_EQ(job.options().value(u"KsPrintTapeLength"_qs), u"4.5"_qs);
}

TEST_F(PageSettings, TypedPrintTapeLength_SurvivesAChangeOfTape)
{
    ASSERT_NO_FATAL_FAILURE(open(samplePrinter(u"mm"_qs)));
    type(u"mTapeLengthTxFld"_qs, u"4.5"_qs);
    pickTape(u"15mm"_qs);
    EXPECT_EQ(child<QLineEdit>(u"mTapeLengthTxFld"_qs)->text(), u"4.5"_qs);
    EXPECT_EQ(job.options().value(u"KsPrintTapeLength"_qs), u"4.5"_qs);
}

TEST_F(PageSettings, TypedPrintTapeLength_IsHeldWithinTheNewTapesLimits)
{
    // 12 m on the 15 mm tape, 8 m on any other.
    ASSERT_NO_FATAL_FAILURE(open(samplePrinter(u"mm"_qs), options({{u"PageSize"_qs, u"15mm"_qs}})));
    type(u"mTapeLengthTxFld"_qs, u"11"_qs);
    pickTape(u"24mm"_qs);
    EXPECT_EQ(child<QLineEdit>(u"mTapeLengthTxFld"_qs)->text(), u"8.0"_qs);
    EXPECT_EQ(job.options().value(u"KsPrintTapeLength"_qs), u"8.0"_qs);
}

TEST_F(PageSettings, PrintTapeLength_IsShownInTheStateOfTheNewTape)
{
    ASSERT_NO_FATAL_FAILURE(open(samplePrinter(u"mm"_qs)));
    EXPECT_TRUE(child<QLineEdit>(u"mTapeLengthTxFld"_qs)->isEnabled());
    pickTape(u"DC24x80"_qs); // a tape of fixed length
    EXPECT_FALSE(child<QLineEdit>(u"mTapeLengthTxFld"_qs)->isEnabled());
    EXPECT_FALSE(child<QLineEdit>(u"mLengthTxFld"_qs)->isEnabled());
    pickTape(u"24mm"_qs);
    EXPECT_TRUE(child<QLineEdit>(u"mTapeLengthTxFld"_qs)->isEnabled());
    EXPECT_TRUE(child<QLineEdit>(u"mLengthTxFld"_qs)->isEnabled());
}

TEST_F(PageSettings, RevertToTheTapeOpenedWith_ShowsItsState)
{
    ASSERT_NO_FATAL_FAILURE(open(samplePrinter(u"mm"_qs)));
    pickTape(u"DC24x80"_qs);
    job::Problem error;
    ASSERT_TRUE(panels.revert(&error));
    EXPECT_TRUE(child<QLineEdit>(u"mTapeLengthTxFld"_qs)->isEnabled());
}

TEST_F(PageSettings, ControlThatGoesOff_NamesTheOneThatWasChanged)
{
    ASSERT_NO_FATAL_FAILURE(open(samplePrinter(u"mm"_qs)));
    const auto button = [this](const QString &matrix, qsizetype row) {
        return child<QWidget>(matrix)->findChildren<QRadioButton *>().value(row);
    };
    const auto reasonOf = [](QWidget *control) {
        QHelpEvent help(QEvent::ToolTip, {5, 5}, control->mapToGlobal(QPoint(5, 5)));
        QApplication::sendEvent(control, &help);
        return QToolTip::text();
    };
    QTest::mouseClick(button(u"mResolutionRdBtn"_qs, 1), Qt::LeftButton);
    QWidget *speed = button(u"mPrintQualityRdBtn"_qs, 0);
    ASSERT_FALSE(speed->isEnabled());
    EXPECT_TRUE(reasonOf(speed).contains(u"“Print Quality” does not go with what is set for “Resolution”."_qs))
        << QToolTip::text().toStdString();
    // This was off from the start.
    EXPECT_TRUE(reasonOf(button(u"mCompressRdBtn"_qs, 0)).contains(u"“Compression” is switched off by “Page Settings”"))
        << QToolTip::text().toStdString();
    // Back at the first, it is on again.
    QTest::mouseClick(button(u"mResolutionRdBtn"_qs, 0), Qt::LeftButton);
    EXPECT_TRUE(speed->isEnabled());
}

} // namespace
