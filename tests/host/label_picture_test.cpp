// SPDX-License-Identifier: Apache-2.0
// Labels drawn as they come out of the printer, dot by dot.
#include "TestPdf.h"
#include "TestPrinter.h"

#include "dialog/LabelPicture.h"
#include "tests/support/TextPrinting.h"

#include <gtest/gtest.h>

namespace
{

using namespace tapeprint::job;
using namespace tapeprint::dialog;
using hosttest::pdf;
using hosttest::writeFile;

class LabelPictureTest : public testing::Test
{
protected:
    void planPage(const QByteArray &document, const JobOptions &options = {})
    {
        Problem error;
        pages = PdfPages::open(writeFile(folder, u"label.pdf"_qs, document), &error);
        ASSERT_NE(pages, nullptr) << error.sentence.toStdString();
        plan = planLabels({{pages->sizePt(0)}}, tape, options);
    }

    QImage render(const QSizeF &dotsPerPoint, const QRectF &part = {})
    {
        return renderLabel(plan, 0, renderedAt(dotsPerPoint, {pages.get()}), dotsPerPoint, part);
    }

    /// The smallest rectangle around every dot that is more black than white.
    static QRect ink(const QImage &image)
    {
        QRect found;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                if (qGray(image.pixel(x, y)) < 128) {
                    found |= QRect(x, y, 1, 1);
                }
            }
        }
        return found;
    }

    QTemporaryDir folder;
    TapePage tape{u"W"_qs, {36.0, 144.0}, {}, 0.0, PageLength::Chosen, true};
    std::unique_ptr<PdfPages> pages;
    LabelPlan plan;
};

TEST_F(LabelPictureTest, StandingPage_IsDrawnWhereItLies)
{
    planPage(pdf("0 0 36 144", "9 100 18 24 re f")); // 20 points below the upper edge
    const QImage image = render({2.0, 2.0});
    EXPECT_EQ(image.size(), QSize(72, 288));
    EXPECT_EQ(ink(image), QRect(18, 40, 36, 48));
}

TEST_F(LabelPictureTest, LyingPage_IsTurnedAgainstTheClock)
{
    planPage(pdf("0 0 144 36", "0 24 48 12 re f")); // the upper left corner comes to the lower left
    EXPECT_EQ(ink(render({2.0, 2.0})), QRect(0, 192, 24, 96));
}

TEST_F(LabelPictureTest, PageMadeSmaller_LiesBetweenTheFreeEnds)
{
    // 124 points are left for 248: half the size, in the middle of the width.
    tape.freeEndsPt = 10.0;
    planPage(pdf("0 0 36 248", "0 0 36 248 re f"));
    EXPECT_EQ(ink(render({2.0, 2.0})), QRect(18, 20, 36, 248));
}

TEST_F(LabelPictureTest, WhatStandsOver_IsCutOff)
{
    tape.freeEndsPt = 10.0;
    planPage(pdf("0 0 40 200", "0 0 40 200 re f"), hosttest::options({{u"print-scaling"_qs, u"none"_qs}}));
    EXPECT_EQ(ink(render({2.0, 2.0})), QRect(0, 20, 72, 248));
    EXPECT_TRUE(isCutOff(plan.labels[0][0], QRectF({}, pages->sizePt(0))));
}

TEST_F(LabelPictureTest, PartOfTheLabel_BeginsAtItsDots)
{
    tape.unprintablePt = {6.0, 0.0, 3.0, 0.0};
    planPage(pdf("0 0 27 144", "0 44 27 100 re f"));
    const QImage image = render({2.0, 2.0}, tape.printableRect());
    EXPECT_EQ(image.size(), QSize(54, 288));
    EXPECT_EQ(ink(image), QRect(0, 0, 54, 200));
    EXPECT_FALSE(isCutOff(plan.labels[0][0], QRectF({}, pages->sizePt(0))));
}

TEST_F(LabelPictureTest, DotsThatAreNoSquares_AreCountedAcrossAndAlong)
{
    planPage(pdf("0 0 36 144", "9 100 18 24 re f"));
    const QImage image = render({2.5, 5.0});
    EXPECT_EQ(image.size(), QSize(90, 720));
    EXPECT_EQ(ink(image).top(), 100);
    EXPECT_EQ(ink(image).bottom(), 219);
}

TEST_F(LabelPictureTest, HalfADot_IsNone)
{
    tape.sizePt = {36.25, 144.3};
    planPage(pdf("0 0 36 144", {}));
    EXPECT_EQ(render({2.0, 2.0}).size(), QSize(72, 289)); // 72.5 and 288.6
}

TEST_F(LabelPictureTest, DocumentThatIsNotThere_LeavesTheLabelWhite)
{
    planPage(pdf("0 0 36 144", "0 0 36 144 re f"));
    EXPECT_TRUE(ink(renderLabel(plan, 0, renderedAt({2.0, 2.0}, {}), {2.0, 2.0})).isEmpty());
    EXPECT_TRUE(ink(renderLabel(plan, 7, renderedAt({2.0, 2.0}, {pages.get()}), {2.0, 2.0})).isEmpty());
}

TEST_F(LabelPictureTest, InkLayer_IsAsDenseAsThePictureIsDark)
{
    QImage picture(3, 1, QImage::Format_RGB32);
    picture.setPixel(0, 0, qRgb(0, 0, 0));
    picture.setPixel(1, 0, qRgb(155, 155, 155));
    picture.setPixel(2, 0, qRgb(255, 255, 255));
    const QImage layer = inkLayer(picture, Qt::red);
    EXPECT_EQ(layer.pixel(0, 0), qRgba(255, 0, 0, 255));
    EXPECT_EQ(layer.pixel(1, 0), qRgba(255, 0, 0, 100));
    EXPECT_EQ(qAlpha(layer.pixel(2, 0)), 0);
}

} // namespace
