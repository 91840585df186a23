// SPDX-License-Identifier: Apache-2.0
// The preview, by the pixels that it draws: the tape green, the window blue, ink red; and by what it says.
#include "TestPdf.h"
#include "TestPrinter.h"

#include "dialog/PreviewArea.h"
#include "dialog/PrintDialog.h"
#include "dialog/TapePreview.h"
#include "dialog/Translations.h"
#include "tests/support/TextPrinting.h"

#include <QAccessible>
#include <QApplication>
#include <QComboBox>
#include <QElapsedTimer>
#include <QLabel>
#include <QLineEdit>
#include <QPalette>
#include <QSignalSpy>
#include <QSlider>
#include <QSpinBox>
#include <QTest>
#include <QToolButton>

#include <gtest/gtest.h>

#include <ctime>

namespace
{

using namespace tapeprint;
using namespace tapeprint::job;
using namespace tapeprint::dialog;
using hosttest::pdf;
using hosttest::PdfPage;
using hosttest::writeFile;

constexpr QRgb tapeColour = qRgb(0, 255, 0);
constexpr QRgb windowColour = qRgb(0, 0, 255);
constexpr QRgb inkColour = qRgb(255, 0, 0);

/// Processor time of this thread, which other programs do not lengthen.
double threadMilliseconds()
{
    timespec now{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) * 1e3 + static_cast<double>(now.tv_nsec) / 1e6;
}

class TapePreviewTest : public testing::Test
{
protected:
    void SetUp() override
    {
        QPalette colours;
        colours.setColor(QPalette::Window, QColor(windowColour));
        area.setPalette(colours);
        area.resize(400, 260);
        area.show();
        preview = area.findChild<TapePreview *>();
        ASSERT_NE(preview, nullptr);
    }

    void showTape(double widthPt, double lengthPt, const JobOptions &options = {})
    {
        tape.sizePt = {widthPt, lengthPt};
        area.follow(tape, options, look);
        QApplication::processEvents();
    }

    void showDocument(const QByteArray &bytes)
    {
        area.setDocuments({writeFile(folder, u"document.pdf"_qs, bytes)}, {u"document.pdf"_qs});
        settle();
    }

    void settle()
    {
        ASSERT_TRUE(QTest::qWaitFor([this] { return !area.isWorking(); }, 20000));
        QApplication::processEvents();
    }

    QString words(const QString &name)
    {
        const auto *label = area.findChild<QLabel *>(name);
        return label != nullptr && label->isVisible() ? label->text() : QString();
    }

    QImage drawn() { return preview->grab().toImage().convertToFormat(QImage::Format_RGB32); }

    /// The smallest rectangle around every pixel of a colour.
    static QRect extent(const QImage &image, QRgb colour)
    {
        QRect found;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                if (image.pixel(x, y) == colour) {
                    found |= QRect(x, y, 1, 1);
                }
            }
        }
        return found;
    }
    QRect extent(QRgb colour) { return extent(drawn(), colour); }

    /// Length by width of the tape drawn.
    double shape()
    {
        const QRect found = extent(tapeColour);
        return found.isEmpty() ? 0.0 : static_cast<double>(found.width()) / found.height();
    }

    /// How many pixels of the tape's colour stand next to one another in the row through the tape's middle, piece by
    /// piece.
    QList<int> piecesInTheMiddle()
    {
        const QImage image = drawn();
        const int y = extent(image, tapeColour).center().y();
        QList<int> pieces;
        bool inPiece = false;
        for (int x = 0; x < image.width(); ++x) {
            const bool isTape = image.pixel(x, y) == tapeColour;
            if (isTape && !inPiece) {
                pieces.append(0);
            }
            if (isTape) {
                ++pieces.last();
            }
            inPiece = isTape;
        }
        return pieces;
    }

    QTemporaryDir folder;
    PreviewArea area;
    TapePreview *preview = nullptr;
    TapePage tape{u"W"_qs, {}, {}, 0.0, PageLength::Chosen, true};
    TapeLook look{QColor(tapeColour), QColor(inkColour), LengthUnit::Millimetre};
};

TEST_F(TapePreviewTest, Tape_Drawn_HasItsShapeLyingOnItsSide)
{
    showTape(36.0, 144.0);

    EXPECT_NEAR(shape(), 4.0, 0.25);
    EXPECT_EQ(preview->accessibleName(), u"Tape preview"_qs);
}

TEST_F(TapePreviewTest, Paper_Drawn_StandsAsWhitePaper)
{
    tape.isTape = false;
    showTape(144.0, 288.0);

    const QRect sheet = extent(qRgb(255, 255, 255));
    EXPECT_NEAR(static_cast<double>(sheet.height()) / sheet.width(), 2.0, 0.05);
    EXPECT_GT(sheet.height(), 150);
    EXPECT_EQ(preview->accessibleName(), u"Paper preview"_qs);
    EXPECT_EQ(preview->accessibleDescription(), u"Length 101.6 mm, width 50.8 mm"_qs);
}

TEST_F(TapePreviewTest, SidesOfPaper_AreCalledPages)
{
    tape.isTape = false;
    showTape(144.0, 288.0);
    const QByteArray box = "/MediaBox[0 0 144 288]";
    showDocument(pdf({{box, "0 0 36 36 re f"}, {box, "0 0 72 36 re f"}}));
    EXPECT_EQ(preview->accessibleDescription(), u"Page 1 of 2; Length 101.6 mm, width 50.8 mm"_qs);
    EXPECT_EQ(area.findChild<QToolButton *>(u"previousLabel"_qs)->accessibleName(), u"Previous page"_qs);
    EXPECT_EQ(area.findChild<QToolButton *>(u"nextLabel"_qs)->toolTip(), u"Next page"_qs);
    area.setIsTapePrinter(true); // labels that are cut already
    settle();
    showTape(144.0, 287.0);
    EXPECT_EQ(area.findChild<QToolButton *>(u"nextLabel"_qs)->toolTip(), u"Next label"_qs);
}

TEST_F(TapePreviewTest, Measures_AreWrittenAsThePersonsLanguageWritesNumbers)
{
    const QLocale before;
    QLocale::setDefault(QLocale(QLocale::German));
    showTape(36.0, 288.0); // half an inch by four inches
    QLocale::setDefault(before);

    EXPECT_EQ(preview->accessibleDescription(), u"Length 101,6 mm, width 12,7 mm"_qs);
}

TEST_F(TapePreviewTest, Measures_AreInchesWhereTheWindowSaysSo)
{
    look.unit = LengthUnit::Inch;
    showTape(36.0, 289.0);

    EXPECT_EQ(preview->accessibleDescription(), u"Length 4.01 in, width 0.50 in"_qs);
}

TEST_F(TapePreviewTest, ChangeOfTape_IsFollowed)
{
    showTape(36.0, 144.0);
    EXPECT_NEAR(shape(), 4.0, 0.25);
    showTape(72.0, 144.0);
    EXPECT_NEAR(shape(), 2.0, 0.15);
    area.follow({}, {}, look);
    EXPECT_TRUE(extent(tapeColour).isEmpty());
    EXPECT_TRUE(preview->accessibleDescription().isEmpty());
}

TEST_F(TapePreviewTest, PageWithoutASize_IsNoTape)
{
    showTape(0.0, 144.0);
    EXPECT_TRUE(extent(tapeColour).isEmpty());
    showTape(36.0, std::numeric_limits<double>::infinity());
    EXPECT_TRUE(extent(tapeColour).isEmpty());
    showTape(std::numeric_limits<double>::quiet_NaN(), 144.0);
    EXPECT_TRUE(extent(tapeColour).isEmpty());
}

TEST_F(TapePreviewTest, LandscapePage_LiesOnTheTapeAsItIsRead)
{
    showTape(36.0, 144.0);
    const QRect found = extent(tapeColour);
    showDocument(pdf("0 0 144 36", "0 0 72 36 re f")); // the left half

    const QRect ink = extent(inkColour);
    EXPECT_NEAR(ink.left(), found.left(), 2);
    EXPECT_NEAR(ink.right(), found.center().x(), 2);
    EXPECT_NEAR(ink.height(), found.height(), 3);
}

TEST_F(TapePreviewTest, PaperInWholePoints_IsMeasuredAsItsStandardSays)
{
    tape.isTape = false;
    showTape(595.0, 842.0);
    EXPECT_EQ(preview->accessibleDescription(), u"Length 297.0 mm, width 210.0 mm"_qs);
    tape.isTape = true; // no standard is about tape
    showTape(595.0, 842.0);
    EXPECT_EQ(preview->accessibleDescription(), u"Length 297.0 mm, width 209.9 mm"_qs);
}

TEST_F(TapePreviewTest, PageThatStandsLikeThePaper_LiesDownWithIt)
{
    showTape(36.0, 144.0);
    const QRect found = extent(tapeColour);
    showDocument(pdf("0 0 36 144", "0 72 36 72 re f")); // the upper half

    const QRect ink = extent(inkColour);
    EXPECT_NEAR(ink.left(), found.center().x(), 2);
    EXPECT_NEAR(ink.right(), found.right(), 2);
    EXPECT_NEAR(ink.height(), found.height(), 3);
}

TEST_F(TapePreviewTest, PageSmallerThanTheTape_KeepsItsSize)
{
    showTape(36.0, 144.0);
    const QRect found = extent(tapeColour);
    showDocument(pdf("0 0 36 18", "0 0 36 18 re f"));

    const QRect ink = extent(inkColour);
    EXPECT_NEAR(ink.width(), found.width() / 4.0, 3);
    EXPECT_NEAR(ink.height(), found.height() / 2.0, 3);
    EXPECT_NEAR(ink.center().x(), found.center().x(), 2);
    EXPECT_EQ(extent(tapeColour), found);
}

TEST_F(TapePreviewTest, PageLargerThanTheTape_IsMadeToFit)
{
    showTape(36.0, 144.0);
    const QRect found = extent(tapeColour);
    showDocument(pdf("0 0 288 144", "0 0 288 144 re f"));

    // Twice as long as wide: half of the tape.
    const QRect ink = extent(inkColour);
    EXPECT_NEAR(ink.width(), found.width() / 2.0, 3);
    EXPECT_NEAR(ink.height(), found.height(), 3);
    EXPECT_TRUE(words(u"previewMessages"_qs).isEmpty());
}

TEST_F(TapePreviewTest, ColoursOfTheDocument_AreShownAsInkOfOneColour)
{
    showTape(36.0, 144.0);
    showDocument(pdf("0 0 144 36", "0 0 0 rg 0 0 72 36 re f 0 0 1 rg 72 0 72 36 re f"));

    // Blue counts 5 of 32 in its brightness, 255 of them: 39 of 255 of the tape shine through, 216 are ink.
    const QImage image = drawn();
    const QRgb mixed = image.pixel(extent(image, inkColour).right() + 40, extent(image, inkColour).center().y());
    EXPECT_NEAR(qRed(mixed), 216, 2);
    EXPECT_NEAR(qGreen(mixed), 39, 2);
    EXPECT_EQ(qBlue(mixed), 0);
}

TEST_F(TapePreviewTest, Paper_ShowsTheDocumentsColours)
{
    tape.isTape = false;
    showTape(144.0, 288.0);
    showDocument(pdf("0 0 144 288", "1 0 0 rg 0 0 144 144 re f"));

    const QRect ink = extent(inkColour);
    const QRect sheet = extent(qRgb(255, 255, 255)) | ink;
    EXPECT_NEAR(ink.height(), sheet.height() / 2.0, 2);
    EXPECT_EQ(ink.bottom(), sheet.bottom());
}

TEST_F(TapePreviewTest, FreeEnds_StayFreeAndAreMarked)
{
    // A quarter of the tape at each end.
    tape.freeEndsPt = 36.0;
    showTape(36.0, 144.0);
    const QRect found = extent(tapeColour);
    showDocument(pdf("0 0 72 36", "0 0 72 36 re f"));

    const QRect ink = extent(inkColour);
    EXPECT_NEAR(ink.left(), found.left() + found.width() / 4.0, 2);
    EXPECT_NEAR(ink.right(), found.right() - found.width() / 4.0, 2);
    // Dashes between the tape's green and the page.
    const QImage image = drawn();
    int dashes = 0;
    for (int y = found.top() + 2; y < found.bottom() - 2; ++y) {
        const QRgb dot = image.pixel(qRound(found.left() + found.width() / 4.0) - 1, y);
        dashes += dot != tapeColour && dot != inkColour ? 1 : 0;
    }
    EXPECT_GT(dashes, 5);
}

TEST_F(TapePreviewTest, StripThatCannotBePrinted_IsHatchedAndEmpty)
{
    tape.unprintablePt = {9.0, 0.0, 9.0, 0.0}; // a quarter of the width at each long edge
    showTape(36.0, 144.0);
    const QImage image = drawn();
    const QRect found = extent(image, tapeColour);
    const auto hatched = [&](int from, int to) {
        int dots = 0;
        for (int y = from; y < to; ++y) {
            for (int x = found.left() + 8; x < found.right() - 8; ++x) {
                dots += image.pixel(x, y) != tapeColour ? 1 : 0;
            }
        }
        return dots;
    };
    const int strip = found.height() / 4;
    EXPECT_GT(hatched(found.top() + 1, found.top() + strip - 2), 100);
    EXPECT_GT(hatched(found.bottom() - strip + 3, found.bottom()), 100);
    EXPECT_EQ(hatched(found.top() + strip + 2, found.bottom() - strip - 2), 0);

    showDocument(pdf("0 0 144 36", "0 0 144 36 re f"));
    EXPECT_NEAR(extent(inkColour).height(), found.height() / 2.0, 3);
}

TEST_F(TapePreviewTest, WhatIsCutOff_IsSaidAndFaintlySeen)
{
    tape.freeEndsPt = 36.0;
    const JobOptions own = hosttest::options({{u"print-scaling"_qs, u"none"_qs}});
    showTape(36.0, 144.0, own);
    const QRect found = extent(tapeColour);
    showDocument(pdf("0 0 144 36", "0 0 144 36 re f"));

    EXPECT_NEAR(extent(inkColour).width(), found.width() / 2.0, 3);
    EXPECT_EQ(words(u"previewMessages"_qs), u"Part of the page is cut off."_qs);
    EXPECT_EQ(preview->accessibleDescription(), u"Length 50.8 mm, width 12.7 mm; part of the page is cut off"_qs);
    // In the free end a quarter of the ink.
    const QRgb ghost = drawn().pixel(found.left() + found.width() / 8, found.center().y());
    EXPECT_NEAR(qRed(ghost), 64, 4);
    EXPECT_NEAR(qGreen(ghost), 191, 4);

    showTape(36.0, 144.0); // made to fit
    EXPECT_TRUE(words(u"previewMessages"_qs).isEmpty());
    EXPECT_EQ(preview->accessibleDescription(), u"Length 50.8 mm, width 12.7 mm"_qs);
}

TEST_F(TapePreviewTest, LengthThatFitsTheContent_ShowsWhatIsDrawnAlone)
{
    // A quarter of the page is drawn on, from its middle on; the tape is as long as that.
    const JobOptions fit = hosttest::options({{u"fit-length"_qs, u"true"_qs}});
    showTape(36.0, 36.0, fit);
    showDocument(pdf("0 0 144 36", "72 0 36 36 re f"));

    const QRect ink = extent(inkColour);
    EXPECT_NEAR(ink.width(), ink.height(), 3);
    EXPECT_GT(ink.height(), 60);
    EXPECT_TRUE(words(u"previewMessages"_qs).isEmpty());
}

TEST_F(TapePreviewTest, MarginsThatLeaveNothing_AreSaid)
{
    tape.freeEndsPt = 72.0;
    showTape(36.0, 144.0);
    showDocument(pdf("0 0 144 36", "0 0 144 36 re f"));

    EXPECT_TRUE(extent(inkColour).isEmpty());
    EXPECT_EQ(words(u"previewMessages"_qs),
              u"The margins leave nothing of the tape to print on: make the tape longer or the margin smaller."_qs);
    // Next to nothing: 1.134 points are 0.4 mm, of a page that is four times as long as wide.
    tape.freeEndsPt = 72.0 - 0.567;
    showTape(36.0, 144.0);
    EXPECT_TRUE(words(u"previewMessages"_qs).startsWith(u"Page 1 would come out 0.1 mm wide and 0.4 mm long, "_qs))
        << words(u"previewMessages"_qs).toStdString();
}

TEST_F(TapePreviewTest, LongTape_HasABreakInItsMiddleAndKeepsItsEnds)
{
    showTape(36.0, 144.0);
    EXPECT_EQ(piecesInTheMiddle().size(), 1);

    showTape(36.0, 7200.0);
    const QList<int> pieces = piecesInTheMiddle();
    ASSERT_EQ(pieces.size(), 2);
    EXPECT_NEAR(pieces[0], pieces[1], 8);
    EXPECT_GE(extent(tapeColour).height(), 20);

    // The page's first tenth and its last tenth, which lie at the ends that are left of the tape.
    showDocument(pdf("0 0 7200 36", "0 0 720 36 re f 6480 0 720 36 re f"));
    const QImage image = drawn();
    const QRect ink = extent(image, inkColour);
    EXPECT_LT(ink.left(), 12);
    EXPECT_GT(ink.width(), 250);
    // The page does not cover the break, whose torn edges stand up to three pixels off the middle there.
    EXPECT_EQ(image.pixel(ink.center() + QPoint(3, 0)), windowColour);
}

TEST_F(TapePreviewTest, ShortPageInTheMiddleOfALongTape_HasAPieceOfItsOwn)
{
    showTape(36.0, 7200.0);
    showDocument(pdf("0 0 72 36", "0 0 72 36 re f"));

    const QRect found = extent(tapeColour);
    const QRect ink = extent(inkColour);
    EXPECT_GT(ink.left(), found.left() + found.width() / 5);
    EXPECT_LT(ink.right(), found.right() - found.width() / 5);
    EXPECT_NEAR(ink.width(), 2 * (ink.height() + 2), 3); // the outline covers a row at the top and one at the bottom
    // Two breaks: green, ink, green, with the window's colour between the ends and the middle.
    const QImage image = drawn();
    int changes = 0;
    for (int x = found.left() + 1; x <= found.right(); ++x) {
        const bool was = image.pixel(x - 1, found.center().y()) == windowColour;
        changes += was != (image.pixel(x, found.center().y()) == windowColour) ? 1 : 0;
    }
    EXPECT_EQ(changes, 4);
}

TEST_F(TapePreviewTest, TapeWithoutAPageInADarkWindow_HasItsOwnColour)
{
    QPalette dark;
    dark.setColor(QPalette::Window, Qt::black);
    dark.setColor(QPalette::Base, Qt::black);
    dark.setColor(QPalette::WindowText, Qt::white);
    area.setPalette(dark);
    showTape(36.0, 144.0);
    EXPECT_NEAR(shape(), 4.0, 0.1);
    EXPECT_GT(extent(qRgb(255, 255, 255)).width(), 100); // outline and measures are seen
}

TEST_F(TapePreviewTest, LabelOfSeveral_SaysWhichItIs)
{
    showTape(36.0, 144.0);
    showDocument(pdf({{"/MediaBox[0 0 144 36]", "0 0 9 9 re f"}, {"/MediaBox[0 0 144 36]", "0 0 9 9 re f"}}));
    EXPECT_EQ(preview->accessibleDescription(), u"Label 1 of 2; Length 50.8 mm, width 12.7 mm"_qs);
    EXPECT_EQ(QAccessible::queryAccessibleInterface(preview)->role(), QAccessible::Graphic);
}

TEST_F(TapePreviewTest, ClearTape_ShowsWhatIsBehindIt)
{
    look.tape = QColor(0xf4, 0xf6, 0xf8, 0x80);
    look.ink = Qt::white;
    showTape(36.0, 144.0);
    showDocument(pdf("0 0 36 36", "0 0 36 36 re f"));

    // White ink is seen on the squares, none of which is as bright.
    const QRect ink = extent(qRgb(255, 255, 255));
    EXPECT_NEAR(ink.width(), ink.height(), 3);
    EXPECT_GT(ink.width(), 40);
    EXPECT_TRUE(words(u"previewMessages"_qs).isEmpty());
}

TEST_F(TapePreviewTest, InkOfTheTapesColour_IsSaidAndHasAShadow)
{
    look.tape = Qt::white;
    look.ink = Qt::white;
    showTape(36.0, 144.0);
    const QImage empty = drawn();
    showDocument(pdf("0 0 36 36", "0 0 36 36 re f"));

    EXPECT_NE(drawn(), empty);
    EXPECT_EQ(words(u"previewMessages"_qs), u"Ink of this colour is hard to see on this tape."_qs);
}

TEST_F(TapePreviewTest, Labels_ArePagedThrough)
{
    showTape(36.0, 144.0);
    EXPECT_FALSE(area.findChild<QWidget *>(u"paging"_qs)->isVisible());
    const QByteArray box = "/MediaBox[0 0 144 36]";
    showDocument(pdf({{box, "0 0 36 36 re f"}, {box, "0 0 72 36 re f"}, {box, "0 0 108 36 re f"}}));

    auto *previous = area.findChild<QToolButton *>(u"previousLabel"_qs);
    auto *next = area.findChild<QToolButton *>(u"nextLabel"_qs);
    ASSERT_TRUE(next->isVisible());
    EXPECT_EQ(previous->accessibleName(), u"Previous label"_qs);
    EXPECT_EQ(next->accessibleName(), u"Next label"_qs);
    EXPECT_EQ(words(u"labelPosition"_qs), u"1 / 3"_qs);
    EXPECT_FALSE(previous->isEnabled());
    const int first = extent(inkColour).width();

    QTest::keyClick(next, Qt::Key_Space);
    settle();
    EXPECT_EQ(words(u"labelPosition"_qs), u"2 / 3"_qs);
    EXPECT_NEAR(extent(inkColour).width(), 2 * first, 3);
    QTest::mouseClick(next, Qt::LeftButton);
    settle();
    EXPECT_EQ(words(u"labelPosition"_qs), u"3 / 3"_qs);
    EXPECT_NEAR(extent(inkColour).width(), 3 * first, 4);
    EXPECT_FALSE(next->isEnabled());
    QTest::mouseClick(previous, Qt::LeftButton);
    EXPECT_EQ(area.label(), 1U);

    // Fewer labels than the one that is shown: the last of them.
    showTape(36.0, 144.0, hosttest::options({{u"page-ranges"_qs, u"3"_qs}}));
    settle();
    EXPECT_EQ(area.label(), 0U);
    EXPECT_FALSE(next->isVisible());
    EXPECT_NEAR(extent(inkColour).width(), 3 * first, 4);
}

TEST_F(TapePreviewTest, TapeUsed_CountsLabelsAndCopies)
{
    const Translations translations; // English has plural forms, too
    const double cm = 72.0 / 2.54;
    showTape(36.0, 6.2 * cm);
    EXPECT_TRUE(words(u"tapeUsed"_qs).isEmpty());
    const PdfPage page{"/MediaBox[0 0 144 36]", {}};
    showDocument(pdf({page, page, page}));
    EXPECT_EQ(words(u"tapeUsed"_qs), u"3 labels, 18.6 cm of tape"_qs);

    showTape(36.0, 6.2 * cm, hosttest::options({{u"copies"_qs, u"20"_qs}}));
    EXPECT_EQ(words(u"tapeUsed"_qs), u"60 labels, 3.72 m of tape"_qs);
    showTape(36.0, 6.2 * cm, hosttest::options({{u"page-ranges"_qs, u"2"_qs}}));
    EXPECT_EQ(words(u"tapeUsed"_qs), u"1 label, 6.2 cm of tape"_qs);
    showTape(36.0, 99.95 * cm, hosttest::options({{u"page-ranges"_qs, u"2"_qs}}));
    EXPECT_EQ(words(u"tapeUsed"_qs), u"1 label, 1.00 m of tape"_qs);
    look.unit = LengthUnit::Inch;
    showTape(36.0, 6.2 * cm); // 18.6 cm are 7.32 in
    EXPECT_EQ(words(u"tapeUsed"_qs), u"3 labels, 7.3 in of tape"_qs);
    tape.isTape = false;
    showTape(288.0, 288.0, hosttest::options({{u"copies"_qs, u"2"_qs}, {u"page-ranges"_qs, u"1-2"_qs}}));
    EXPECT_EQ(words(u"tapeUsed"_qs), u"4 sheets"_qs);
}

TEST_F(TapePreviewTest, DocumentsThatCannotBeShown_AreSaidInWordsOnAnEmptyTape)
{
    preview->setFixedHeight(120); // or the words below would make the drawing lower
    showTape(36.0, 144.0);
    const QImage empty = drawn();
    const auto expectSaid = [&](const QByteArray &bytes, const QString &sentence) {
        showDocument(bytes);
        EXPECT_EQ(words(u"previewMessages"_qs), u"There is no preview: "_qs + sentence);
        EXPECT_TRUE(words(u"tapeUsed"_qs).isEmpty());
        EXPECT_EQ(drawn(), empty);
    };
    expectSaid("%PDF-1.4\nno document\n", u"document.pdf is broken: no page of it can be read."_qs);
    expectSaid("Hello\n", u"document.pdf is no PDF document."_qs);
    expectSaid(pdf(QList<PdfPage>()), u"document.pdf has no page."_qs);
    expectSaid(hosttest::lockedPdf(),
               u"document.pdf is protected by a password: save it without one, and print that."_qs);
}

TEST_F(TapePreviewTest, ArrowsOfAMirroredWindow_PointTheWayTheyLead)
{
    const auto *previous = area.findChild<QToolButton *>(u"previousLabel"_qs);
    const auto *next = area.findChild<QToolButton *>(u"nextLabel"_qs);
    EXPECT_EQ(previous->arrowType(), Qt::LeftArrow);
    EXPECT_EQ(next->arrowType(), Qt::RightArrow);
    area.setLayoutDirection(Qt::RightToLeft);
    EXPECT_EQ(previous->arrowType(), Qt::RightArrow);
    EXPECT_EQ(next->arrowType(), Qt::LeftArrow);
}

TEST_F(TapePreviewTest, PageWithNothingOnIt_IsSaid)
{
    showTape(36.0, 144.0);
    // A dot that no pixel of the preview is coloured by, and then nothing.
    showDocument(pdf({{"/MediaBox[0 0 1440 360]", "720 180 0.05 0.05 re f"}, {"/MediaBox[0 0 144 36]", {}}}));
    EXPECT_TRUE(words(u"previewMessages"_qs).isEmpty());
    QTest::mouseClick(area.findChild<QToolButton *>(u"nextLabel"_qs), Qt::LeftButton);
    settle();
    EXPECT_EQ(words(u"previewMessages"_qs), u"Nothing is drawn on this page."_qs);
}

TEST_F(TapePreviewTest, NextDocumentThatCannotBeRead_TakesTheEarlierPageAway)
{
    showTape(36.0, 144.0);
    showDocument(pdf("0 0 144 36", "0 0 144 36 re f"));
    EXPECT_FALSE(extent(inkColour).isEmpty());
    area.setDocuments({folder.path()});
    settle();

    EXPECT_TRUE(extent(inkColour).isEmpty());
}

TEST_F(TapePreviewTest, SharperPicture_IsAskedForOnlyWhenTheScaleGrows)
{
    showTape(36.0, 144.0);
    showDocument(pdf("0 0 144 36", "0 0 72 36 re f"));
    const QRect ink = extent(inkColour);
    const QSignalSpy settled(&area, &PreviewArea::settled);
    showTape(36.0, 288.0); // longer, and so drawn smaller: the picture there is put into its place at once
    EXPECT_FALSE(area.isWorking());
    EXPECT_EQ(settled.count(), 0);
    EXPECT_NEAR(extent(inkColour).width(), ink.width() / 2.0, 2);
    showTape(12.0, 24.0, hosttest::options({{u"print-scaling"_qs, u"none"_qs}})); // drawn larger
    EXPECT_FALSE(extent(inkColour).isEmpty()); // the picture there is, as good as it is
    EXPECT_TRUE(QTest::qWaitFor([&settled] { return settled.count() > 0; }, 20000)); // a sharper one came
}

TEST_F(TapePreviewTest, ManyPages_TakeTheWindowsThreadNoTime)
{
    const PdfPage page{"/MediaBox[0 0 144 36]", "0 0 72 36 re f"};
    const QString path = writeFile(folder, u"many.pdf"_qs, pdf(QList<PdfPage>(2000, page)));
    showTape(36.0, 144.0);
    const double before = threadMilliseconds();
    area.setDocuments({path});
    settle();
    showTape(36.0, 145.0);
    QTest::mouseClick(area.findChild<QToolButton *>(u"nextLabel"_qs), Qt::LeftButton);
    const double taken = threadMilliseconds() - before;

    EXPECT_EQ(words(u"labelPosition"_qs), u"2 / 2000"_qs);
    EXPECT_LT(taken, 100.0);
}

TEST_F(TapePreviewTest, DocumentThatTakesLong_DoesNotHoldTheWindow)
{
    // Hundreds of thousands of thick curves: many seconds of work.
    QByteArray content = "1 J 1 j 300 w\n";
    for (int i = 0; i < 200000; ++i) {
        content += "0 0 m 4000 500 0 1000 2000 500 c 0 1000 4000 0 100 100 c S\n";
    }
    auto other = std::make_unique<PreviewArea>();
    other->resize(400, 260);
    other->show();
    other->follow({u"W"_qs, {36.0, 144.0}, {}, 0.0, PageLength::Chosen, true}, {}, look);
    other->setDocuments({writeFile(folder, u"slow.pdf"_qs, pdf("0 0 4000 1000", content))});
    ASSERT_TRUE(QTest::qWaitFor([&other] { return !other->plan().labels.empty(); }, 20000));
    ASSERT_TRUE(other->isWorking());
    QElapsedTimer clock;
    clock.start();
    other.reset();
    EXPECT_LT(clock.elapsed(), 1000);
}

/// A PPD that takes custom sizes: the tape length is the page's.
constexpr const char *customSizes = R"PPD(*VariablePaperSize: True
*MaxMediaWidth: "102"
*MaxMediaHeight: "3000"
*NonUIOrderDependency: 10 AnySetup *CustomPageSize
*CustomPageSize True: ""
*ParamCustomPageSize Width: 1 points 11 102
*ParamCustomPageSize Height: 2 points 11 3000
*ParamCustomPageSize WidthOffset: 3 points 0 0
*ParamCustomPageSize HeightOffset: 4 points 0 0
*ParamCustomPageSize Orientation: 5 int 0 1
*HWMargins: 0 0 0 0
*OpenUI *KsTapeLength/Length: PickOne
*DefaultKsTapeLength: 100
*KsTapeLength 100/100 mm: ""
*KsTapeLength 50/50 mm: ""
*CloseUI: *KsTapeLength
*OpenUI *KsInkColor/Ink: PickOne
*DefaultKsInkColor: Red
*KsInkColor Red/Red: ""
*KsInkColor Blue/Blue: ""
*CloseUI: *KsInkColor
)PPD";

class PreviewInTheDialog : public testing::Test
{
protected:
    void SetUp() override
    {
        panels.open(hosttest::testDestination(folder, customSizes), {});
        TapeKeywords keywords;
        keywords.lengthOption = u"KsTapeLength"_qs;
        keywords.marginOption = u"KsMargin"_qs;
        keywords.inkColorOption = u"KsInkColor"_qs;
        keywords.colors = {{u"Red"_qs, QColor(inkColour)}};
        job.setTape(keywords);
        const QByteArray label = pdf("0 0 100 30", "0 0 50 30 re f");
        dialog = std::make_unique<PrintDialog>(
            job, panels, PrintDialog::Setup{{}, u"label.pdf"_qs, {writeFile(folder, u"label.pdf"_qs, label)}, {}},
            nullptr);
        dialog->show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(dialog.get()));
        preview = dialog->findChild<TapePreview *>();
        ASSERT_NE(preview, nullptr);
        const auto *area = dialog->findChild<PreviewArea *>();
        ASSERT_TRUE(QTest::qWaitFor([area] { return !area->isWorking(); }, 20000));
        QApplication::processEvents();
    }

    QString said() { return preview->accessibleDescription(); }

    QTemporaryDir folder;
    Job job;
    Panels panels{job, hosttest::goodBundles()};
    std::unique_ptr<PrintDialog> dialog;
    TapePreview *preview = nullptr;
};

TEST_F(PreviewInTheDialog, PickedTapeAndLengthSentByAPanel_AreShown)
{
    EXPECT_EQ(said(), u"Length 101.6 mm, width 12.7 mm"_qs);
    QTest::keyClick(dialog->findChild<QComboBox *>(u"tape"_qs), Qt::Key_Down); // W24, one inch by two
    QApplication::processEvents();
    EXPECT_EQ(said(), u"Length 50.8 mm, width 25.4 mm"_qs);

    job.takeChoice(u"KsTapeLength"_qs, u"120"_qs);
    QApplication::processEvents();
    EXPECT_EQ(said(), u"Length 120.0 mm, width 25.4 mm"_qs);
}

TEST_F(PreviewInTheDialog, SliderThatIsDragged_IsFollowedWhileTheButtonIsDown)
{
    auto *slider = dialog->findChild<QSlider *>(u"length"_qs);
    ASSERT_NE(slider, nullptr);
    const int middle = slider->height() / 2;
    QTest::mousePress(slider, Qt::LeftButton, {}, QPoint(5, middle));
    QStringList seen;
    for (const int x : {slider->width() / 4, slider->width() / 2}) {
        QMouseEvent move(QEvent::MouseMove, QPointF(x, middle), slider->mapToGlobal(QPointF(x, middle)), Qt::NoButton,
                         Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(slider, &move);
        QApplication::processEvents();
        ASSERT_TRUE(slider->isSliderDown());
        ASSERT_GT(slider->value(), 20);
        EXPECT_EQ(said(), u"Length %1.0 mm, width 12.7 mm"_qs.arg(slider->value()));
        seen.append(said());
    }
    EXPECT_NE(seen[0], seen[1]);
    EXPECT_FALSE(job.options().contains(u"KsTapeLength"_qs)); // nothing was sent
    QTest::mouseRelease(slider, Qt::LeftButton, {}, QPoint(slider->width() / 2, middle));
}

TEST_F(PreviewInTheDialog, KeyOnTheSlider_IsFollowed)
{
    auto *slider = dialog->findChild<QSlider *>(u"length"_qs);
    slider->setValue(49);
    QTest::keyPress(slider, Qt::Key_Right);
    QApplication::processEvents();
    EXPECT_EQ(said(), u"Length 50.0 mm, width 12.7 mm"_qs);
    QTest::keyRelease(slider, Qt::Key_Right);
}

TEST_F(PreviewInTheDialog, Copies_AreInTheTapeUsed)
{
    const Translations translations;
    const auto *used = dialog->findChild<QLabel *>(u"tapeUsed"_qs);
    job.takeChoice(u"KsTapeLength"_qs, u"30"_qs);
    QApplication::processEvents();
    // Text is set anew for another length, which takes its time.
    EXPECT_TRUE(QTest::qWaitFor([&used] { return used->text() == u"1 label, 3.0 cm of tape"_qs; }, 20000))
        << used->text().toStdString();
    QTest::keyClick(dialog->findChild<QSpinBox *>(u"copies"_qs), Qt::Key_Up);
    EXPECT_TRUE(QTest::qWaitFor([&used] { return used->text() == u"2 labels, 6.0 cm of tape"_qs; }, 20000))
        << used->text().toStdString();
}

TEST_F(PreviewInTheDialog, OptionsOfTheTape_StandOnNoPageOfTheDialogs)
{
    // The panel announces the margin alone; the length is the tape's all the same.
    EXPECT_EQ(dialog->findChild<QComboBox *>(u"KsTapeLength"_qs), nullptr);
    EXPECT_NE(dialog->findChild<QComboBox *>(u"KsInkColor"_qs), nullptr);
}

TEST_F(PreviewInTheDialog, ColourOfTheMarkedInk_IsShown)
{
    job.takeChoice(u"KsTapeLength"_qs, u"50"_qs);
    QApplication::processEvents();
    QImage image = preview->grab().toImage();
    const auto has = [&image](QRgb colour) {
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                if (image.pixel(x, y) == colour) {
                    return true;
                }
            }
        }
        return false;
    };
    EXPECT_TRUE(has(inkColour));
    job.takeChoice(u"KsInkColor"_qs, u"Blue"_qs); // of which nobody says what it looks like
    QApplication::processEvents();
    image = preview->grab().toImage();
    EXPECT_FALSE(has(inkColour));
}

/// The real panel on a sample printer.
class PreviewOfPageSettings : public testing::Test
{
protected:
    void SetUp() override
    {
        Problem error;
        Destination destination;
        destination.ppdPath = QStringLiteral(TAPEPRINT_PRINTER_DIR "/tapeprint-mm.ppd");
        destination.ppd = openPpdFile(destination.ppdPath, &error);
        ASSERT_NE(destination.ppd, nullptr) << error.sentence.toStdString();
        panels.open(std::move(destination), {});
        const QByteArray label = pdf("0 0 100 30", "0 0 50 30 re f");
        dialog = std::make_unique<PrintDialog>(
            job, panels, PrintDialog::Setup{{}, u"label.pdf"_qs, {writeFile(folder, u"label.pdf"_qs, label)}, {}},
            nullptr);
        dialog->show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(dialog.get()));
        QApplication::processEvents();
        preview = dialog->findChild<TapePreview *>();
        ASSERT_NE(preview, nullptr);
        before = job.options().value(u"KsTapeLength"_qs);
    }

    QString said() { return preview->accessibleDescription(); }

    QTemporaryDir folder;
    Job job;
    Panels panels{job, {QStringLiteral(TAPEPRINT_BUNDLE_DIR)}};
    std::unique_ptr<PrintDialog> dialog;
    TapePreview *preview = nullptr;
    QString before; ///< the tape length that the job has
};

TEST_F(PreviewOfPageSettings, Opens_WithTheTapeOfThePanel)
{
    EXPECT_EQ(said(), u"Length 100.0 mm, width 24.0 mm"_qs);
    EXPECT_EQ(preview->accessibleName(), u"Tape preview"_qs);
    EXPECT_EQ(dialog->findChild<QComboBox *>(u"KsTapeLength"_qs), nullptr);
}

TEST_F(PreviewOfPageSettings, LengthThatIsTyped_IsFollowedKeyByKey)
{
    auto *field = dialog->findChild<QLineEdit *>(u"mLengthTxFld"_qs);
    ASSERT_NE(field, nullptr);
    field->setFocus();
    field->selectAll();
    for (const auto &[key, length] : {std::pair{'4', u"4.0"_qs}, {'5', u"45.0"_qs}, {'6', u"456.0"_qs}}) {
        QTest::keyClick(field, key);
        QApplication::processEvents();
        EXPECT_EQ(said(), u"Length %1 mm, width 24.0 mm"_qs.arg(length));
    }
    EXPECT_EQ(job.options().value(u"KsTapeLength"_qs), before); // nothing was sent
}

TEST_F(PreviewOfPageSettings, SliderThatIsDragged_IsFollowedWhileTheButtonIsDown)
{
    auto *slider = dialog->findChild<QAbstractSlider *>(u"mLengthSlider"_qs);
    auto *field = dialog->findChild<QLineEdit *>(u"mLengthTxFld"_qs);
    ASSERT_NE(slider, nullptr);
    const int middle = slider->height() / 2;
    const auto moveTo = [&](int x) {
        QMouseEvent move(QEvent::MouseMove, QPointF(x, middle), slider->mapToGlobal(QPointF(x, middle)), Qt::NoButton,
                         Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(slider, &move);
        QApplication::processEvents();
    };
    QTest::mousePress(slider, Qt::LeftButton, {}, QPoint(slider->width() / 2, middle));
    moveTo(slider->width() / 2 + 4);
    const QString first = said();
    EXPECT_EQ(first, u"Length %1 mm, width 24.0 mm"_qs.arg(field->text()));
    moveTo(slider->width() / 2 + 14);
    EXPECT_EQ(said(), u"Length %1 mm, width 24.0 mm"_qs.arg(field->text()));
    EXPECT_NE(said(), first);
    QTest::mouseRelease(slider, Qt::LeftButton, {}, QPoint(slider->width() / 2 + 14, middle));
}

} // namespace
