// SPDX-License-Identifier: Apache-2.0
// What was laid down before the panels are made: defaults, marks, the job, the tape and its length.
#include "TestPrinter.h"

#include "job/IppAttributeNames.h"
#include "job/LaidDownOptions.h"
#include "job/PpdMarks.h"
#include "tests/support/TextPrinting.h"

#include <gtest/gtest.h>

namespace
{

using namespace tapeprint;
using namespace tapeprint::job;
using hosttest::options;

const QByteArray lengthOption = "*OpenUI *KsTapeLength/Length: PickOne\n*OrderDependency: 20 AnySetup *KsTapeLength\n"
                                "*DefaultKsTapeLength: 80.0\n*KsTapeLength 80.0/80: \"\"\n*CloseUI: *KsTapeLength\n";
const QByteArray customSize = "*CustomPageSize True: \"\"\n*ParamCustomPageSize Width: 1 points 10 100\n"
                              "*ParamCustomPageSize Height: 2 points 10 3000\n"
                              "*ParamCustomPageSize WidthOffset: 3 points 0 0\n"
                              "*ParamCustomPageSize HeightOffset: 4 points 0 0\n"
                              "*ParamCustomPageSize Orientation: 5 int 0 0\n*VariablePaperSize: True\n"
                              "*MaxMediaWidth: \"100\"\n*MaxMediaHeight: \"3000\"\n";

QByteArray defaultOf(const Destination &printer, const QString &key)
{
    return findOption(printer.ppd.get(), key)->defchoice;
}

TEST(LayDown, OfAListedValue_MarksItAndMakesItTheDefault)
{
    const QTemporaryDir folder;
    const Destination printer = hosttest::testDestination(folder);
    JobOptions job;
    layDown(options({{u"KsMargin"_qs, u"5.0"_qs}}), printer.ppd.get(), &job);
    EXPECT_EQ(markedChoice(printer.ppd.get(), u"KsMargin"_qs), u"5.0"_qs);
    EXPECT_EQ(defaultOf(printer, u"KsMargin"_qs), "5.0");
    EXPECT_EQ(job.lines(), (QStringList{u"KsMargin=5.0"_qs, u"PageSize=W12"_qs}));
}

TEST(LayDown, OfAnUnlistedWord_KeepsItInTheJobAndLeavesMarkAndDefault)
{
    const QTemporaryDir folder;
    const Destination printer = hosttest::testDestination(folder);
    JobOptions job;
    layDown(options({{u"CutMedia"_qs, u"Twice"_qs}, {u"KsMargin"_qs, u"3.3"_qs}, {u"KsUnknown"_qs, u"x"_qs}}),
            printer.ppd.get(), &job);
    EXPECT_EQ(markedChoice(printer.ppd.get(), u"CutMedia"_qs), u"None"_qs);
    // A panel would otherwise find no default at all and take the first choice.
    EXPECT_EQ(defaultOf(printer, u"CutMedia"_qs), "None");
    EXPECT_EQ(job.value(u"CutMedia"_qs), u"Twice"_qs);
    EXPECT_EQ(unlistedValues(printer.ppd.get(), job),
              QStringList{u"CutMedia=Twice is none of the choices that the printer's PPD lists."_qs});
}

TEST(LayDown, OfAnUnlistedNumber_KeepsItInTheJobAndAsDefaultAndLeavesTheMark)
{
    const QTemporaryDir folder;
    const Destination printer = hosttest::testDestination(folder);
    JobOptions job;
    layDown(options({{u"KsMargin"_qs, u"3.3"_qs}, {u"KsUnknown"_qs, u"a b"_qs}}), printer.ppd.get(), &job);
    EXPECT_EQ(markedChoice(printer.ppd.get(), u"KsMargin"_qs), u"2.0"_qs);
    EXPECT_EQ(defaultOf(printer, u"KsMargin"_qs), "3.3");
    EXPECT_EQ(job.lines(), (QStringList{u"KsMargin=3.3"_qs, u"KsUnknown=a b"_qs, u"PageSize=W12"_qs}));
}

TEST(LayDown, InOtherLetters_IsSpelledAsThePpdSpellsIt)
{
    const QTemporaryDir folder;
    const Destination printer = hosttest::testDestination(folder);
    JobOptions job;
    layDown(options({{u"pagesize"_qs, u"w24"_qs}, {u"KsMirror"_qs, u"true"_qs}}), printer.ppd.get(), &job);
    EXPECT_EQ(job.lines(), (QStringList{u"PageSize=W24"_qs, u"KsMirror=True"_qs}));
}

TEST(LayDown, OfMedia_ChoosesTheTape)
{
    const QTemporaryDir folder;
    const Destination printer = hosttest::testDestination(folder);
    JobOptions job;
    layDown(options({{u"media"_qs, u"W24"_qs}}), printer.ppd.get(), &job);
    EXPECT_EQ(job.lines(), (QStringList{u"media=W24"_qs, u"PageSize=W24"_qs}));
    EXPECT_EQ(defaultOf(printer, u"PageSize"_qs), "W24");
}

TEST(NamedSize, PageRegionStandsForThePageSizeWhereNoneIsGiven)
{
    const QTemporaryDir folder;
    const Destination printer = hosttest::testDestination(folder);
    ppd_file_t *ppd = printer.ppd.get();
    EXPECT_EQ(withNamedSize(options({{u"a"_qs, u"1"_qs}, {u"pageregion"_qs, u"W24"_qs}}), ppd).lines(),
              (QStringList{u"a=1"_qs, u"PageSize=W24"_qs}));
    EXPECT_EQ(withNamedSize(options({{u"PageRegion"_qs, u"W24"_qs}, {u"PageSize"_qs, u"W12"_qs}}), ppd).lines(),
              QStringList{u"PageSize=W12"_qs});
    EXPECT_EQ(withNamedSize(options({{u"PageRegion"_qs, u"W24"_qs}}), nullptr).lines(),
              QStringList{u"PageRegion=W24"_qs});
}

TEST(LayDown, OfACustomTape_StaysVerbatimAndGivesThePaperItsSize)
{
    const QTemporaryDir folder;
    const Destination printer = hosttest::testDestination(folder, customSize);
    JobOptions job;
    layDown(options({{u"PageSize"_qs, u"Custom.1x4in"_qs}}), printer.ppd.get(), &job);
    EXPECT_EQ(job.lines(), QStringList{u"PageSize=Custom.1x4in"_qs});
    const std::optional<pdekit::Paper> paper = markedPaper(printer.ppd.get());
    ASSERT_TRUE(paper.has_value());
    EXPECT_EQ(paper->ppdPaperName, u"Custom"_qs);
    EXPECT_DOUBLE_EQ(paper->widthPt, 72.0);
    EXPECT_DOUBLE_EQ(paper->heightPt, 288.0);
}

TEST(LayDown, WithoutAPpd_KeepsTheJobAsItIs)
{
    JobOptions job;
    layDown(options({{u"KsMargin"_qs, u"3.3"_qs}}), nullptr, &job);
    EXPECT_EQ(job.lines(), QStringList{u"KsMargin=3.3"_qs});
    EXPECT_FALSE(markedPaper(nullptr).has_value());
}

TEST(LaidDownLength, OfTheJob_ComesBeforeThePpds)
{
    const QTemporaryDir folder;
    const Destination printer = hosttest::testDestination(folder, lengthOption);
    ppd_file_t *ppd = printer.ppd.get();
    const QString length = u"KsTapeLength"_qs;
    EXPECT_EQ(laidDownLengthMm(options({{length, u"62.5"_qs}}), ppd, QString()), std::nullopt);
    EXPECT_EQ(laidDownLengthMm(options({{u"KsTapeLength"_qs, u"62.5"_qs}}), ppd, length), 62.5);
    EXPECT_EQ(laidDownLengthMm({}, ppd, length), 80.0);
    // Another tape brings its own length, but a length given beside it counts.
    EXPECT_EQ(laidDownLengthMm(options({{u"PageSize"_qs, u"W24"_qs}}), ppd, length), std::nullopt);
    EXPECT_EQ(laidDownLengthMm(options({{u"PageSize"_qs, u"W24"_qs}, {u"KsTapeLength"_qs, u"9"_qs}}), ppd, length),
              9.0);
    EXPECT_EQ(laidDownLengthMm(options({{u"KsTapeLength"_qs, u"long"_qs}}), ppd, length), std::nullopt);
    EXPECT_EQ(laidDownLengthMm(options({{u"KsTapeLength"_qs, u"-5"_qs}}), ppd, length), std::nullopt);
    EXPECT_EQ(laidDownLengthMm({}, nullptr, length), std::nullopt);
}

TEST(HeightFromMm, IsNeverReadBackAsLess)
{
    // A panel that shows whole millimetres truncates what it reads back.
    for (int tenths = 1; tenths <= 20000; ++tenths) {
        const double lengthMm = tenths / 10.0;
        const double readBack = heightPtFromMm(lengthMm) / 72.0 / 0.0393701;
        ASSERT_GE(readBack, lengthMm);
        ASSERT_LT(readBack, lengthMm * (1 + 1e-14));
    }
}

TEST(IppAttributes, InOtherLetters_AreNamedAsOptionsThatNeverArrive)
{
    const QStringList sentences = optionsThatNeverArrive(options({{u"Sides"_qs, u"x"_qs}, {u"sides"_qs, u"y"_qs}}));
    ASSERT_EQ(sentences.size(), 1);
    EXPECT_TRUE(sentences.at(0).contains(u"Option Sides "_qs)) << sentences.at(0).toStdString();
    EXPECT_TRUE(isIppJobAttribute(u"media"_qs));
    EXPECT_FALSE(isIppJobAttribute(u"Media"_qs));
    EXPECT_TRUE(ippJobAttributeInOtherLetters(u"media"_qs).isNull());
    EXPECT_TRUE(ippJobAttributeInOtherLetters(u"KsMargin"_qs).isNull());
}

} // namespace
