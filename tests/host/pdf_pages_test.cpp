// SPDX-License-Identifier: Apache-2.0
// Pages of PDF documents: their sizes, their pictures and what is drawn on them.
#include "TestPdf.h"
#include "TestPrinter.h"

#include "job/PdfPages.h"
#include "tests/support/TextPrinting.h"

#include <QElapsedTimer>
#include <QFile>

#include <gtest/gtest.h>

#include <thread>

#include <sys/stat.h>

namespace
{

using namespace tapeprint::job;
using hosttest::pdf;
using hosttest::PdfPage;
using hosttest::writeFile;

constexpr double dot = 72.0 / 300.0;
constexpr QRgb black = qRgb(0, 0, 0);
constexpr QRgb white = qRgb(255, 255, 255);

class PdfPagesTest : public testing::Test
{
protected:
    std::unique_ptr<PdfPages> open(const QByteArray &bytes)
    {
        return PdfPages::open(writeFile(folder, u"label.pdf"_qs, bytes), &error, u"label.pdf"_qs);
    }

    /// A document of one page that has to open.
    std::unique_ptr<PdfPages> openPage(const QByteArray &entries, const QByteArray &content)
    {
        auto pages = open(pdf({PdfPage{entries, content}}));
        EXPECT_NE(pages, nullptr) << error.sentence.toStdString();
        return pages;
    }

    QSizeF sizeOf(const QByteArray &entries)
    {
        const auto pages = openPage(entries, {});
        return pages == nullptr ? QSizeF() : pages->sizePt(0);
    }

    /// What is drawn on the page holds the rectangle, and is larger by less than a dot at each side.
    void expectDrawn(const PdfPages &pages, const QRectF &expected)
    {
        const std::optional<QRectF> drawn = pages.drawnRect(0, goOn);
        ASSERT_TRUE(drawn.has_value());
        constexpr double slack = 1e-6;
        const auto expectBeyond = [](double outer, const char *side) {
            EXPECT_GT(outer, -slack) << side;
            EXPECT_LT(outer, dot) << side;
        };
        expectBeyond(expected.left() - drawn->left(), "left");
        expectBeyond(expected.top() - drawn->top(), "top");
        expectBeyond(drawn->right() - expected.right(), "right");
        expectBeyond(drawn->bottom() - expected.bottom(), "bottom");
    }

    QTemporaryDir folder;
    Problem error;
    std::atomic<bool> goOn = false;
    std::atomic<bool> stop = true;
};

TEST_F(PdfPagesTest, Pages_AreCountedAndHaveTheirOwnSizes)
{
    const auto pages = open(pdf({{"/MediaBox[0 0 144 36]", {}}, {"/MediaBox[10 20 60 220]", {}}}));
    ASSERT_NE(pages, nullptr) << error.sentence.toStdString();
    EXPECT_EQ(pages->count(), 2);
    EXPECT_EQ(pages->sizePt(0), QSizeF(144, 36));
    EXPECT_EQ(pages->sizePt(1), QSizeF(50, 200));
    EXPECT_TRUE(pages->sizePt(2).isEmpty());
    EXPECT_TRUE(pages->sizePt(-1).isEmpty());
}

TEST_F(PdfPagesTest, SizeOfAPage_IsThatOfItsInnermostBoxTurnedAsItIsRead)
{
    EXPECT_EQ(sizeOf("/MediaBox[0 0 200 300]/CropBox[20 30 180 180]"), QSizeF(160, 150));
    EXPECT_EQ(sizeOf("/MediaBox[0 0 200 300]/CropBox[20 30 180 180]/TrimBox[40 60 140 120]"), QSizeF(100, 60));
    EXPECT_EQ(sizeOf("/MediaBox[0 0 200 300]/Rotate 90"), QSizeF(300, 200));
    EXPECT_EQ(sizeOf("/MediaBox[0 0 200 300]/Rotate -180"), QSizeF(200, 300));
    EXPECT_EQ(sizeOf("/MediaBox[200 300 0 0]"), QSizeF(200, 300));
    EXPECT_EQ(sizeOf("/MediaBox[0 0 100 150]/UserUnit 2"), QSizeF(200, 300));
    EXPECT_EQ(sizeOf("/MediaBox[0 0 36 28346.4]"), QSizeF(36, 28346.4)); // ten metres
    EXPECT_TRUE(sizeOf("/MediaBox[0 0 0 0]").isEmpty());
}

TEST_F(PdfPagesTest, Picture_ShowsThePageFromItsTopLeft)
{
    // Black in the upper left quarter.
    const auto pages = openPage("/MediaBox[0 0 40 20]", "0 10 20 10 re f");
    const RenderedPage rendered = pages->render(0, 2.0, goOn);
    EXPECT_EQ(rendered.image.size(), QSize(80, 40));
    EXPECT_EQ(rendered.rectPt, QRectF(0, 0, 40, 20));
    EXPECT_EQ(rendered.image.pixel(0, 0), black);
    EXPECT_EQ(rendered.image.pixel(39, 19), black);
    EXPECT_EQ(rendered.image.pixel(40, 19), white);
    EXPECT_EQ(rendered.image.pixel(39, 20), white);
}

TEST_F(PdfPagesTest, Picture_OfEveryTurnShowsTheInnermostBoxAsItIsRead)
{
    // The box is 20 wide and 10 high; its upper left quarter, 10 by 5, is black, and all around it.
    const QByteArray boxes = "/MediaBox[0 0 100 100]/CropBox[10 10 90 90]/TrimBox[30 50 50 60]";
    const QByteArray content = "0 0 100 100 re f 1 g 30 50 20 10 re f 0 g 30 55 10 5 re f";
    const struct {
        const char *turn;
        QPoint corner; ///< of the black quarter: 0 is the left or the top
    } cases[] = {{"0", {0, 0}}, {"90", {1, 0}}, {"180", {1, 1}}, {"270", {0, 1}}};
    for (const auto &each : cases) {
        SCOPED_TRACE(each.turn);
        const auto pages = openPage(boxes + "/Rotate " + each.turn, content);
        const RenderedPage rendered = pages->render(0, 1.0, goOn);
        ASSERT_EQ(rendered.image.size(), pages->sizePt(0).toSize());
        const int halfWidth = rendered.image.width() / 2;
        const int halfHeight = rendered.image.height() / 2;
        const QRect quarter(each.corner.x() * halfWidth, each.corner.y() * halfHeight, halfWidth, halfHeight);
        for (int y = 0; y < rendered.image.height(); ++y) {
            for (int x = 0; x < rendered.image.width(); ++x) {
                ASSERT_EQ(rendered.image.pixel(x, y), quarter.contains(x, y) ? black : white) << x << ", " << y;
            }
        }
    }
}

TEST_F(PdfPagesTest, PictureOfAPart_IsThatPartWidenedToDots)
{
    // A black column from 11 to 12 points.
    const auto pages = openPage("/MediaBox[0 0 40 20]", "11 0 1 20 re f");
    const RenderedPage rendered = pages->render(0, 1.0, goOn, QRectF(10.5, 4.25, 3, 2));
    EXPECT_EQ(rendered.rectPt, QRectF(10, 4, 4, 3));
    ASSERT_EQ(rendered.image.size(), QSize(4, 3));
    for (int x = 0; x < 4; ++x) {
        EXPECT_EQ(rendered.image.pixel(x, 1), x == 1 ? black : white) << x;
    }
}

TEST_F(PdfPagesTest, PictureOfABoxBetweenDots_SaysWhereItsDotsLie)
{
    // The trimmed page begins a quarter of a dot right of the dot that it begins in.
    const auto pages = openPage("/MediaBox[0 0 40 20]/TrimBox[10.25 0 30 20]", {});
    const RenderedPage rendered = pages->render(0, 1.0, goOn);
    EXPECT_EQ(rendered.rectPt, QRectF(-0.25, 0, 20, 20));
    EXPECT_EQ(rendered.image.size(), QSize(20, 20));
}

TEST_F(PdfPagesTest, PictureOfAnEnlargedUnit_IsThatLarge)
{
    const auto pages = openPage("/MediaBox[0 0 20 10]/UserUnit 2", "0 0 10 10 re f");
    const RenderedPage rendered = pages->render(0, 1.0, goOn);
    EXPECT_EQ(rendered.image.size(), QSize(40, 20));
    EXPECT_EQ(rendered.image.pixel(19, 10), black);
    EXPECT_EQ(rendered.image.pixel(20, 10), white);
}

TEST_F(PdfPagesTest, PictureLargerThanMemoryShouldHold_IsNone)
{
    const auto pages = openPage("/MediaBox[0 0 8000 8001]", {});
    EXPECT_TRUE(pages->render(0, 1.0, goOn).image.isNull());
    EXPECT_FALSE(pages->render(0, 1.0, goOn, QRectF(0, 0, 100, 100)).image.isNull());
    EXPECT_TRUE(pages->render(0, 0.0, goOn).image.isNull());
    EXPECT_TRUE(pages->render(0, std::numeric_limits<double>::infinity(), goOn).image.isNull());
    EXPECT_TRUE(pages->render(1, 1.0, goOn).image.isNull());
}

TEST_F(PdfPagesTest, WhatIsStopped_HasNoAnswer)
{
    const auto pages = openPage("/MediaBox[0 0 40 20]", "0 0 40 20 re f");
    EXPECT_TRUE(pages->render(0, 1.0, stop).image.isNull());
    EXPECT_FALSE(pages->drawnRect(0, stop).has_value());
}

TEST_F(PdfPagesTest, StopWhileADocumentIsDrawn_EndsItSoon)
{
    // Half a million boxes, each over the whole of a large picture: minutes of work.
    QByteArray content;
    for (int i = 0; i < 500000; ++i) {
        content += "0 0 4000 4000 re f\n";
    }
    const auto pages = openPage("/MediaBox[0 0 4000 4000]", content);
    std::atomic<bool> later = false;
    std::thread stopping([&later] {
        std::this_thread::sleep_for(std::chrono::milliseconds(50));
        later = true;
    });
    QElapsedTimer clock;
    clock.start();
    EXPECT_TRUE(pages->render(0, 1.0, later).image.isNull());
    stopping.join();
    EXPECT_LT(clock.elapsed(), 5000);
}

TEST_F(PdfPagesTest, DrawnRect_OfABox)
{
    expectDrawn(*openPage("/MediaBox[0 0 300 70]", "20.1 30.2 100.3 10.4 re f"), {20.1, 29.4, 100.3, 10.4});
    expectDrawn(*openPage("/MediaBox[0 0 300 70]", "1 0 0 rg 0 0 300 70 re f"), {0, 0, 300, 70});
}

TEST_F(PdfPagesTest, DrawnRect_OfALineCountsItsWidth)
{
    // Half of two points to each side.
    expectDrawn(*openPage("/MediaBox[0 0 300 70]", "2 w 50 10.5 m 50 20.25 l S"), {49, 49.75, 2, 9.75});
}

TEST_F(PdfPagesTest, DrawnRect_OfFaintInkCountsIt)
{
    expectDrawn(*openPage("/MediaBox[0 0 300 70]", "0.99 g 100 20 30 10 re f"), {100, 40, 30, 10});
}

TEST_F(PdfPagesTest, DrawnRect_OfLettersHoldsThem)
{
    // An "I" of Helvetica is 7 to 8 hundredths of its size left of its 0.278 wide box, and 0.716 to 0.729 high; the
    // fonts that stand for it agree to a hundredth or two.
    const auto pages = openPage("/MediaBox[0 0 300 70]", "BT /F 40 Tf 100 20 Td (I) Tj ET");
    const std::optional<QRectF> drawn = pages->drawnRect(0, goOn);
    ASSERT_TRUE(drawn.has_value());
    EXPECT_NEAR(drawn->left(), 100 + 0.085 * 40, 1.5);
    EXPECT_NEAR(drawn->bottom(), 50, 0.5);
    EXPECT_NEAR(drawn->top(), 50 - 0.72 * 40, 1.0);
}

TEST_F(PdfPagesTest, DrawnRect_IsCutByThePage)
{
    expectDrawn(*openPage("/MediaBox[0 0 300 70]", "-50 10 100 20 re f"), {0, 40, 50, 20});
}

TEST_F(PdfPagesTest, DrawnRect_FollowsBoxAndTurn)
{
    // The box begins at (30, 50); what is drawn stands 2 from its left and 3 from its lower edge, 5 wide and 4 high.
    // Turned clockwise, its lower edge is at the left and its left one at the top.
    expectDrawn(*openPage("/MediaBox[0 0 100 100]/TrimBox[30 50 50 60]/Rotate 90", "32 53 5 4 re f"), {3, 2, 4, 5});
}

TEST_F(PdfPagesTest, DrawnRect_OfABlankPageIsNone)
{
    EXPECT_FALSE(openPage("/MediaBox[0 0 300 70]", {})->drawnRect(0, goOn).has_value());
    EXPECT_FALSE(openPage("/MediaBox[0 0 300 70]", "1 g 0 0 300 70 re f")->drawnRect(0, goOn).has_value());
    EXPECT_FALSE(openPage("/MediaBox[0 0 0 0]", "0 0 300 70 re f")->drawnRect(0, goOn).has_value());
}

TEST_F(PdfPagesTest, DrawnRect_OfTenMetresIsAsExact)
{
    expectDrawn(*openPage("/MediaBox[0 0 68 28346.4]", "10 20 5 28000 re f"), {10, 326.4, 5, 28000});
}

TEST_F(PdfPagesTest, DocumentsThatCannotBeShown_AreSaidInWords)
{
    EXPECT_EQ(open("Hello\n"), nullptr);
    EXPECT_EQ(error.sentence, u"label.pdf is no PDF document."_qs);
    EXPECT_EQ(open("%PDF-1.4\nno document\n"), nullptr);
    EXPECT_EQ(error.sentence, u"label.pdf is broken: no page of it can be read."_qs);
    EXPECT_EQ(open(pdf(QList<PdfPage>())), nullptr);
    EXPECT_EQ(error.sentence, u"label.pdf has no page."_qs);
    EXPECT_EQ(open(hosttest::lockedPdf()), nullptr);
    EXPECT_EQ(error.sentence, u"label.pdf is protected by a password: save it without one, and print that."_qs);
}

TEST_F(PdfPagesTest, FilesThatCannotBeRead_AreNotWaitedFor)
{
    const QString pipe = folder.filePath(u"pipe"_qs);
    ASSERT_EQ(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    EXPECT_EQ(PdfPages::open(pipe, &error), nullptr);
    EXPECT_EQ(error.sentence, pipe + u" cannot be read: It is no plain file."_qs);
    const QString missing = folder.filePath(u"missing.pdf"_qs);
    EXPECT_EQ(PdfPages::open(missing, &error), nullptr);
    EXPECT_TRUE(error.sentence.startsWith(missing + u" cannot be read: "_qs)) << error.sentence.toStdString();
}

} // namespace
