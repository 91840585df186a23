// SPDX-License-Identifier: Apache-2.0
// Millimetres or inches: what is written, what is remembered, and the switch in the window, with real clicks and keys.
#include "TestPdf.h"
#include "TestPrinter.h"

#include "dialog/MeasureUnit.h"
#include "dialog/PrintDialog.h"
#include "dialog/TapePreview.h"
#include "tests/support/TextPrinting.h"

#include <QApplication>
#include <QLabel>
#include <QLocale>
#include <QMenu>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>
#include <QToolButton>

#include <gtest/gtest.h>

namespace
{

using namespace tapeprint;
using namespace tapeprint::dialog;

constexpr double inchPt = 72.0;

class MeasureUnitTest : public testing::Test
{
protected:
    QTemporaryDir folder;
    QString settings = folder.filePath(u"dialog.ini"_qs);
};

TEST_F(MeasureUnitTest, LengthsOfBothUnits_AreThereAndBackTheSamePoints)
{
    EXPECT_DOUBLE_EQ(inUnit(144.0, LengthUnit::Inch), 2.0);
    EXPECT_DOUBLE_EQ(inUnit(144.0, LengthUnit::Millimetre), 50.8);
    EXPECT_DOUBLE_EQ(pointsOf(2.0, LengthUnit::Inch), 144.0);
    EXPECT_DOUBLE_EQ(pointsOf(50.8, LengthUnit::Millimetre), 144.0);
    EXPECT_EQ(measureText(1.5 * inchPt, LengthUnit::Inch), u"1.50 in"_qs);
    EXPECT_EQ(measureText(1.5 * inchPt, LengthUnit::Millimetre), u"38.1 mm"_qs);
}

TEST_F(MeasureUnitTest, Thousand_IsWrittenWithoutGroupsInThePanelsDigits)
{
    const QLocale before;
    QLocale::setDefault(QLocale(QLocale::German));
    EXPECT_EQ(measureText(1000.0 / 25.4 * inchPt, LengthUnit::Millimetre), u"1000,0 mm"_qs);
    QLocale::setDefault(QLocale(QLocale::Arabic, QLocale::Egypt));
    EXPECT_EQ(measureText(1000.0 / 25.4 * inchPt, LengthUnit::Millimetre), u"1000.0 mm"_qs);
    QLocale::setDefault(before);
}

TEST_F(MeasureUnitTest, MuchTape_IsToldInMetresOrFeet)
{
    EXPECT_EQ(tapeText(35.9 * inchPt, LengthUnit::Inch), u"35.9 in"_qs);
    EXPECT_EQ(tapeText(35.96 * inchPt, LengthUnit::Inch), u"3.0 ft"_qs); // not 36.0 in
    EXPECT_EQ(tapeText(120.0 * inchPt, LengthUnit::Inch), u"10.0 ft"_qs);
    EXPECT_EQ(tapeText(10.0 * inchPt, LengthUnit::Millimetre), u"25.4 cm"_qs);
    EXPECT_EQ(tapeText(3 * 75.5 / 25.4 * inchPt, LengthUnit::Millimetre), u"22.7 cm"_qs); // 226.5 mm
    EXPECT_EQ(tapeText(100.0 * inchPt, LengthUnit::Millimetre), u"2.54 m"_qs);
}

TEST_F(MeasureUnitTest, UnitOfTheDescription_HoldsUntilThePersonChoosesOne)
{
    MeasureUnit unit(settings);
    unit.setDescribed(LengthUnit::Inch);
    EXPECT_EQ(unit.unit(), LengthUnit::Inch);
    const QSignalSpy changes(&unit, &MeasureUnit::changed);
    unit.choose(LengthUnit::Millimetre);
    unit.setDescribed(LengthUnit::Inch); // another printer that counts in inches
    EXPECT_EQ(unit.unit(), LengthUnit::Millimetre);
    EXPECT_EQ(changes.count(), 1);
}

TEST_F(MeasureUnitTest, UnitThatCannotBeKept_HoldsAndIsSaidOnce)
{
    hosttest::writeFile(folder, u"file"_qs, {});
    MeasureUnit unit(folder.filePath(u"file/dialog.ini"_qs)); // there is no folder of that name
    const QSignalSpy said(&unit, &MeasureUnit::notKept);
    unit.choose(LengthUnit::Inch);
    unit.choose(LengthUnit::Millimetre);
    unit.choose(LengthUnit::Inch);
    EXPECT_EQ(unit.unit(), LengthUnit::Inch);
    ASSERT_EQ(said.count(), 1);
    EXPECT_EQ(said[0][0].toString(), folder.filePath(u"file/dialog.ini"_qs));
    MeasureUnit kept(settings);
    const QSignalSpy nothing(&kept, &MeasureUnit::notKept);
    kept.choose(LengthUnit::Inch);
    EXPECT_EQ(nothing.count(), 0);
}

TEST_F(MeasureUnitTest, ChosenUnit_IsRememberedByTheNextWindow)
{
    MeasureUnit(settings).choose(LengthUnit::Inch);
    MeasureUnit next(settings);
    next.setDescribed(LengthUnit::Millimetre);
    EXPECT_EQ(next.unit(), LengthUnit::Inch);
}

TEST_F(MeasureUnitTest, SettingsThatCannotBeRead_CountAsNone)
{
    MeasureUnit unit(hosttest::writeFile(folder, u"dialog.ini"_qs, "[measures]\nunit=furlong\n\0\xff["));
    unit.setDescribed(LengthUnit::Inch);
    EXPECT_EQ(unit.unit(), LengthUnit::Inch);
}

class UnitInTheWindow : public testing::Test
{
protected:
    void SetUp() override
    {
        files = {hosttest::writeFile(folder, u"label.pdf"_qs, hosttest::pdf("0 0 144 36", {}))};
        qputenv("XDG_CONFIG_HOME", folder.path().toLocal8Bit());
    }

    /// \param printer one of the sample printers.
    void open(const QString &printer)
    {
        job::Destination destination;
        destination.ppdPath = QStringLiteral(TAPEPRINT_PRINTER_DIR "/") + printer;
        job::Problem error;
        destination.ppd = job::openPpdFile(destination.ppdPath, &error);
        ASSERT_NE(destination.ppd, nullptr) << error.sentence.toStdString();
        panels.open(std::move(destination), {});
        dialog = std::make_unique<PrintDialog>(job, panels, PrintDialog::Setup{{}, u"label"_qs, files, {}},
                                               PrintDialog::PrintAction());
        dialog->show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(dialog.get()));
        QApplication::processEvents();
        button = dialog->findChild<QToolButton *>(u"measureUnit"_qs);
        ASSERT_NE(button, nullptr);
    }

    /// Of the sample printers' tape, 101.6 mm long where they count in inches and 100 mm where they do not.
    QString measures() { return dialog->findChild<TapePreview *>()->accessibleDescription(); }
    bool saysTapeUsed(const QString &words)
    {
        return QTest::qWaitFor([&] { return dialog->findChild<QLabel *>(u"tapeUsed"_qs)->text() == words; }, 20000);
    }

    QTemporaryDir folder;
    QStringList files;
    job::Job job;
    Panels panels{job, {QStringLiteral(TAPEPRINT_BUNDLE_DIR)}};
    std::unique_ptr<PrintDialog> dialog;
    QToolButton *button = nullptr;
};

TEST_F(UnitInTheWindow, PrinterThatCountsInInches_IsMeasuredInInches)
{
    open(u"tapeprint-inch.ppd"_qs);
    EXPECT_EQ(button->text(), u"in"_qs);
    EXPECT_TRUE(measures().startsWith(u"Length 4.00 in, width "_qs)) << measures().toStdString();
    EXPECT_TRUE(saysTapeUsed(u"1 label(s), 4.0 in of tape"_qs));
}

TEST_F(UnitInTheWindow, SwitchedByKeys_EveryMeasureFollowsAndTheNextWindowToo)
{
    open(u"tapeprint-mm.ppd"_qs);
    EXPECT_EQ(button->text(), u"mm"_qs);
    EXPECT_TRUE(measures().startsWith(u"Length 100.0 mm, width "_qs)) << measures().toStdString();
    button->setFocus();
    QTimer whenOpen;
    QObject::connect(&whenOpen, &QTimer::timeout, button, [this, &whenOpen] {
        if (QApplication::activePopupWidget() == button->menu()) {
            whenOpen.stop();
            QTest::keyClick(button->menu(), Qt::Key_Down);
            QTest::keyClick(button->menu(), Qt::Key_Down);
            QTest::keyClick(button->menu(), Qt::Key_Return);
        }
    });
    whenOpen.start(20);
    QTest::keyClick(button, Qt::Key_Space);
    QApplication::processEvents();
    EXPECT_EQ(button->text(), u"in"_qs);
    EXPECT_TRUE(measures().startsWith(u"Length 3.94 in, width "_qs)) << measures().toStdString();
    EXPECT_TRUE(saysTapeUsed(u"1 label(s), 3.9 in of tape"_qs));
    dialog.reset();
    open(u"tapeprint-mm.ppd"_qs);
    EXPECT_EQ(button->text(), u"in"_qs);
}

} // namespace
