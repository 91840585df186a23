// SPDX-License-Identifier: Apache-2.0
// The words of the option media: trays by either of their names, and sizes to the last decimal.
#include "job/LaidDownOptions.h"
#include "job/MediaWords.h"
#include "job/PpdMarks.h"
#include "tests/job/TapePpd.h"
#include "tests/support/TextPrinting.h"

#include <gtest/gtest.h>

namespace
{

using namespace tapeprint::job; // NOLINT(google-build-using-namespace): the test is about all of it
using jobtest::options;
using jobtest::ppdOf;
using jobtest::tapePpdText;

// libcups calls Tray1 tray-1, and Lower bottom.
const QByteArray trays("*OpenUI *InputSlot: PickOne\n*OrderDependency: 30 AnySetup *InputSlot\n"
                       "*DefaultInputSlot: Tray1\n*InputSlot Tray1/One: \"\"\n*InputSlot Lower/Two: \"\"\n"
                       "*CloseUI: *InputSlot\n");

/// What becomes of media on a printer that cuts pages of 36 x 36 to 144 x 720 points.
JobOptions laidDown(const QString &media, ppd_file_t *ppd)
{
    JobOptions job;
    layDown(options({{u"media"_qs, media}}), ppd, &job);
    return job;
}

TEST(MediaWords, SizeByItsMeasures_IsLaidDownToTheLastDecimal)
{
    for (const auto &[media, size] : {std::pair{"custom_24x50mm_24x50mm", "Custom.24x50mm"},
                                      {"custom_label_24.5x50.25mm", "Custom.24.5x50.25mm"},
                                      {"custom_label_1x2.5in", "Custom.25.4x63.5mm"},
                                      {"custom_label_25.4x50mm", "Custom.25.4x50mm"}, // S72 is 50.8 mm long
                                      {"custom_label_24x50mm,bottom", "Custom.24x50mm"},
                                      {"Custom.24x50mm", "Custom.24x50mm"},
                                      {"Custom.24x50mm,bottom", "Custom.24x50mm"},
                                      {"bottom,Custom.1x2in", "Custom.1x2in"}}) {
        const PpdFile ppd = ppdOf(tapePpdText(jobtest::customPages + trays));
        const JobOptions job = laidDown(QString::fromLatin1(media), ppd.get());
        EXPECT_EQ(job.value(u"PageSize"_qs), QString::fromLatin1(size)) << media;
    }
}

TEST(MediaWords, SizeByItsMeasures_IsTheMarkedPaper)
{
    const PpdFile ppd = ppdOf(tapePpdText());
    laidDown(u"custom_24x50mm_24x50mm"_qs, ppd.get());
    const std::optional<pdekit::Paper> paper = markedPaper(ppd.get());
    ASSERT_TRUE(paper);
    EXPECT_NEAR(paper->widthPt, 24.0 / 25.4 * 72.0, 0.001);
    EXPECT_NEAR(paper->heightPt, 50.0 / 25.4 * 72.0, 0.001);
}

TEST(MediaWords, MeasuresOfASizeThatThePrinterLists_NameThatSize)
{
    const PpdFile ppd = ppdOf(tapePpdText());
    EXPECT_EQ(laidDown(u"custom_tape_25.4x50.8mm"_qs, ppd.get()).value(u"PageSize"_qs), u"S72"_qs);
    EXPECT_EQ(laidDown(u"custom_tape_25.3x50.7mm"_qs, ppd.get()).value(u"PageSize"_qs), u"S72"_qs);
}

TEST(MediaWords, MeasuresThatThePrinterDoesNotCut_LeaveTheSizeToLibcups)
{
    const PpdFile ppd = ppdOf(tapePpdText(""));
    EXPECT_EQ(laidDown(u"custom_tape_25x50mm"_qs, ppd.get()).value(u"PageSize"_qs), u"S72"_qs);
}

TEST(MediaWords, TrayByThePrintersOwnWord_IsChosen)
{
    const PpdFile ppd = ppdOf(tapePpdText(jobtest::customPages + trays));
    const JobOptions job = laidDown(u"S72,lower"_qs, ppd.get());
    EXPECT_EQ(job.value(u"PageSize"_qs), u"S72"_qs);
    EXPECT_EQ(job.value(u"InputSlot"_qs), u"Lower"_qs);
    EXPECT_EQ(markedChoice(ppd.get(), u"InputSlot"_qs), u"Lower"_qs);
}

TEST(MediaWords, KeywordOfATray_IsTheOneThatLibcupsMakesOfIt)
{
    const PpdFile ppd = ppdOf(tapePpdText(jobtest::customPages + trays));
    markChoice(ppd.get(), u"InputSlot"_qs, u"Lower"_qs);
    markChoice(ppd.get(), u"PageSize"_qs, u"Custom.24x50mm"_qs);
    const PpdMarks before = takeMarks(ppd.get());
    EXPECT_TRUE(isKeywordOfTray(ppd.get(), u"tray-1"_qs));
    EXPECT_TRUE(isKeywordOfTray(ppd.get(), u"bottom"_qs));
    for (const QString &none : {u"foo"_qs, u"tray-2"_qs, u"S72"_qs, QString()}) {
        EXPECT_FALSE(isKeywordOfTray(ppd.get(), none)) << none.toStdString();
    }
    EXPECT_EQ(takeMarks(ppd.get()), before);
    EXPECT_FALSE(isKeywordOfTray(nullptr, u"bottom"_qs));
}

} // namespace
