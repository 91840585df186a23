// SPDX-License-Identifier: Apache-2.0
// The tape preview, by the pixels that it draws: the tape green, the window blue, ink red.
#include "TestPrinter.h"

#include "dialog/PrintDialog.h"
#include "dialog/TapePreview.h"
#include "tests/support/TextPrinting.h"

#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QElapsedTimer>
#include <QPalette>
#include <QTest>

#include <gtest/gtest.h>

namespace
{

using namespace tapeprint;
using namespace tapeprint::job;
using namespace tapeprint::dialog;
using hosttest::writeFile;

constexpr QRgb tapeColour = qRgb(0, 255, 0);
constexpr QRgb windowColour = qRgb(0, 0, 255);
constexpr QRgb inkColour = qRgb(255, 0, 0);

/// A document of one page. \param content operators of its drawing.
QByteArray pdf(const QByteArray &mediaBox, const QByteArray &content)
{
    const QList<QByteArray> objects{
        "<</Type/Catalog/Pages 2 0 R>>", "<</Type/Pages/Kids[3 0 R]/Count 1>>",
        "<</Type/Page/Parent 2 0 R/Resources<<>>/MediaBox[" + mediaBox + "]/Contents 4 0 R>>",
        "<</Length " + QByteArray::number(content.size()) + ">>stream\n" + content + "\nendstream"};
    QByteArray bytes = "%PDF-1.4\n";
    QByteArray table = "0000000000 65535 f \n";
    for (qsizetype i = 0; i < objects.size(); ++i) {
        table += QByteArray::number(bytes.size()).rightJustified(10, '0') + " 00000 n \n";
        bytes += QByteArray::number(i + 1) + " 0 obj" + objects[i] + "endobj\n";
    }
    const QByteArray tableAt = QByteArray::number(bytes.size());
    return bytes + "xref\n0 5\n" + table + "trailer<</Size 5/Root 1 0 R>>\nstartxref\n" + tableAt + "\n%%EOF\n";
}

/// A variable of the environment, set back at the end.
class Environment
{
public:
    Environment(const char *name, const QByteArray &value) : mName(name), mBefore(qgetenv(name))
    {
        qputenv(name, value);
    }
    ~Environment() { qputenv(mName, mBefore); }
    Environment(const Environment &) = delete;
    Environment &operator=(const Environment &) = delete;

private:
    const char *mName;
    QByteArray mBefore;
};

class TapePreviewTest : public testing::Test
{
protected:
    void SetUp() override
    {
        QPalette colours;
        colours.setColor(QPalette::Window, QColor(windowColour));
        colours.setColor(QPalette::Base, QColor(tapeColour));
        preview.setPalette(colours);
        preview.resize(400, 120);
    }

    void showTape(double widthPt, double lengthPt, const JobOptions &job = {})
    {
        preview.follow(pdekit::Paper{u"W"_qs, widthPt, lengthPt}, job);
    }

    void showDocument(const QByteArray &bytes)
    {
        preview.setDocument(writeFile(folder, u"document.pdf"_qs, bytes));
        ASSERT_TRUE(QTest::qWaitFor([this] { return !preview.isRendering(); }, 20000));
    }

    QImage drawn() { return preview.grab().toImage().convertToFormat(QImage::Format_RGB32); }

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
        const QRect tape = extent(tapeColour);
        return tape.isEmpty() ? 0.0 : static_cast<double>(tape.width()) / tape.height();
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
    TapePreview preview;
};

TEST_F(TapePreviewTest, Tape_Drawn_HasTheShapeOfThePaperLyingOnItsSide)
{
    showTape(36.0, 144.0);

    EXPECT_NEAR(shape(), 4.0, 0.25);
    EXPECT_EQ(preview.accessibleName(), u"Tape preview"_qs);
}

TEST_F(TapePreviewTest, Measures_AreMillimetresWithAPointInEveryLocale)
{
    const QLocale before;
    QLocale::setDefault(QLocale(QLocale::German));
    showTape(36.0, 288.0); // half an inch by four inches
    QLocale::setDefault(before);

    EXPECT_EQ(preview.accessibleDescription(), u"Length 101.6 mm, width 12.7 mm"_qs);
}

TEST_F(TapePreviewTest, TapeLengthOfTheJob_TakesThePlaceOfThePapers)
{
    showTape(36.0, 288.0, hosttest::options({{u"KsTapeLength"_qs, u"50.8"_qs}})); // two inches

    EXPECT_EQ(preview.accessibleDescription(), u"Length 50.8 mm, width 12.7 mm"_qs);
    EXPECT_NEAR(shape(), 4.0, 0.25);
}

TEST_F(TapePreviewTest, TapeLengthThatIsNoLength_LeavesThePapers)
{
    showTape(36.0, 288.0, hosttest::options({{u"KsTapeLength"_qs, u"Auto"_qs}}));

    EXPECT_EQ(preview.accessibleDescription(), u"Length 101.6 mm, width 12.7 mm"_qs);
}

TEST_F(TapePreviewTest, ChangeOfTape_IsFollowed)
{
    showTape(36.0, 144.0);
    EXPECT_NEAR(shape(), 4.0, 0.25);
    showTape(72.0, 144.0);
    EXPECT_NEAR(shape(), 2.0, 0.15);
    preview.follow(std::nullopt, {});
    EXPECT_TRUE(extent(tapeColour).isEmpty());
    EXPECT_TRUE(preview.accessibleDescription().isEmpty());
}

TEST_F(TapePreviewTest, PaperWithoutASize_IsNoTape)
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
    const QRect tape = extent(tapeColour);
    showDocument(pdf("0 0 144 36", "1 0 0 rg 0 0 72 36 re f")); // the left half

    const QRect ink = extent(inkColour);
    EXPECT_NEAR(ink.left(), tape.left(), 2);
    EXPECT_NEAR(ink.right(), tape.center().x(), 2);
    EXPECT_NEAR(ink.height(), tape.height(), 3);
}

TEST_F(TapePreviewTest, PageThatStandsLikeThePaper_LiesDownWithIt)
{
    showTape(36.0, 144.0);
    const QRect tape = extent(tapeColour);
    showDocument(pdf("0 0 36 144", "1 0 0 rg 0 72 36 72 re f")); // the upper half

    const QRect ink = extent(inkColour);
    EXPECT_NEAR(ink.left(), tape.center().x(), 2);
    EXPECT_NEAR(ink.right(), tape.right(), 2);
    EXPECT_NEAR(ink.height(), tape.height(), 3);
}

TEST_F(TapePreviewTest, PageSmallerThanTheTape_KeepsItsSize)
{
    showTape(36.0, 144.0);
    const QRect tape = extent(tapeColour);
    showDocument(pdf("0 0 36 18", "1 0 0 rg 0 0 36 18 re f"));

    const QRect ink = extent(inkColour);
    EXPECT_NEAR(ink.width(), tape.width() / 4.0, 3);
    EXPECT_NEAR(ink.height(), tape.height() / 2.0, 3);
    EXPECT_NEAR(ink.center().x(), tape.center().x(), 2);
}

TEST_F(TapePreviewTest, PageLargerThanTheTape_IsMadeToFit)
{
    showTape(36.0, 144.0);
    const QRect tape = extent(tapeColour);
    showDocument(pdf("0 0 288 144", "1 0 0 rg 0 0 288 144 re f"));

    // Twice as long as wide: half of the tape.
    const QRect ink = extent(inkColour);
    EXPECT_NEAR(ink.width(), tape.width() / 2.0, 3);
    EXPECT_NEAR(ink.height(), tape.height(), 3);
}

TEST_F(TapePreviewTest, PageOfAnotherShape_LeavesTheEndsOfTheTapeFree)
{
    showTape(36.0, 144.0);
    const QRect tape = extent(tapeColour);
    showDocument(pdf("0 0 72 36", "1 0 0 rg 0 0 72 36 re f"));

    // Half as long as the tape, and as wide: a quarter of the tape is left free at either end.
    const QRect ink = extent(inkColour);
    EXPECT_NEAR(ink.left(), tape.left() + tape.width() / 4.0, 2);
    EXPECT_NEAR(ink.right(), tape.right() - tape.width() / 4.0, 2);
    EXPECT_EQ(extent(tapeColour), tape);
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
    showDocument(pdf("0 0 7200 36", "1 0 0 rg 0 0 720 36 re f 6480 0 720 36 re f"));
    const QImage image = drawn();
    const QRect ink = extent(image, inkColour);
    EXPECT_LT(ink.left(), 12);
    EXPECT_GT(ink.width(), 250);
    // The page does not cover the break, whose torn edges stand up to three pixels off the middle there.
    EXPECT_EQ(image.pixel(ink.center() + QPoint(3, 0)), windowColour);
}

TEST_F(TapePreviewTest, ShortPageOnALongTape_IsShownBeforeTheBreak)
{
    showTape(36.0, 7200.0);
    showDocument(pdf("0 0 72 36", "1 0 0 rg 0 0 72 36 re f"));

    const QRect tape = extent(tapeColour);
    const QRect ink = extent(inkColour);
    EXPECT_GT(ink.left(), tape.left());
    EXPECT_LT(ink.right(), tape.center().x());
    EXPECT_NEAR(ink.width(), 2 * (ink.height() + 2), 3); // the outline covers a row at the top and one at the bottom
}

TEST_F(TapePreviewTest, BrokenDocument_LeavesTheTapeEmpty)
{
    showTape(36.0, 144.0);
    const QImage empty = drawn();
    showDocument("%PDF-1.4\nno document\n");

    EXPECT_EQ(drawn(), empty);
}

TEST_F(TapePreviewTest, ProgramThatIsMissing_LeavesTheTapeEmpty)
{
    const Environment path("PATH", QFile::encodeName(folder.path()));
    showTape(36.0, 144.0);
    const QImage empty = drawn();
    showDocument(pdf("0 0 144 36", "1 0 0 rg 0 0 144 36 re f"));

    EXPECT_EQ(drawn(), empty);
}

TEST_F(TapePreviewTest, NextDocumentThatCannotBeRendered_TakesTheEarlierPageAway)
{
    showTape(36.0, 144.0);
    showDocument(pdf("0 0 144 36", "1 0 0 rg 0 0 144 36 re f"));
    EXPECT_FALSE(extent(inkColour).isEmpty());
    preview.setDocument(folder.path());

    EXPECT_TRUE(extent(inkColour).isEmpty());
}

TEST_F(TapePreviewTest, ProgramThatNeverEnds_EndsWithThePreview)
{
    // It writes its process number, and becomes a program that sleeps for a minute.
    const QString program = writeFile(folder, u"pdftoppm"_qs, "#!/bin/sh\necho $$ > \"$0.pid\"\nexec sleep 60\n");
    QFile::setPermissions(program, QFile::ReadOwner | QFile::ExeOwner);
    const Environment path("PATH", QFile::encodeName(folder.path()) + ':' + qgetenv("PATH"));
    auto other = std::make_unique<TapePreview>();
    other->setDocument(writeFile(folder, u"document.pdf"_qs, pdf("0 0 144 36", "")));
    QFile number(program + u".pid"_qs);
    ASSERT_TRUE(QTest::qWaitFor([&number] { return number.size() > 1; }, 5000));
    ASSERT_TRUE(number.open(QIODevice::ReadOnly));
    const QString process = u"/proc/"_qs + QString::fromLatin1(number.readAll().trimmed());
    ASSERT_TRUE(QDir(process).exists());

    QElapsedTimer clock;
    clock.start();
    other.reset();
    EXPECT_FALSE(QDir(process).exists());
    EXPECT_LT(clock.elapsed(), 5000);
}

TEST(TapePreviewInTheDialog, PickedTapeAndLengthSentByAPanel_AreShown)
{
    const QTemporaryDir folder;
    Job job;
    Panels panels(job, hosttest::goodBundles());
    panels.open(hosttest::testDestination(folder), {});
    PrintDialog dialog(job, panels, {{}, u"label.txt"_qs, {writeFile(folder, u"label.txt"_qs, "Hello\n")}, {}}, {});
    dialog.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&dialog));
    const auto *preview = dialog.findChild<TapePreview *>();
    ASSERT_NE(preview, nullptr);
    ASSERT_TRUE(preview->isVisible());
    EXPECT_EQ(preview->accessibleDescription(), u"Length 101.6 mm, width 12.7 mm"_qs);

    QTest::keyClick(dialog.findChild<QComboBox *>(u"tape"_qs), Qt::Key_Down); // W24, one inch by two
    QApplication::processEvents();
    EXPECT_EQ(preview->accessibleDescription(), u"Length 50.8 mm, width 25.4 mm"_qs);

    job.takeChoice(u"KsTapeLength"_qs, u"120"_qs);
    QApplication::processEvents();
    EXPECT_EQ(preview->accessibleDescription(), u"Length 120.0 mm, width 25.4 mm"_qs);
}

} // namespace
