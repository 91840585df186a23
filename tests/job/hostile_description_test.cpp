// SPDX-License-Identifier: Apache-2.0
// Descriptions and values that have bitten other programs: each class by its name.
#include "tests/job/TapePpd.h"

#include "job/CustomSizes.h"
#include "job/CustomValues.h"
#include "job/LabelPlan.h"
#include "job/LaidDownOptions.h"
#include "job/OptionGroups.h"
#include "job/PpdMarks.h"
#include "job/RefusedValues.h"
#include "tests/support/TextPrinting.h"

#include <QFile>
#include <QSet>
#include <QTemporaryDir>

#include <cmath>

#include <gtest/gtest.h>

namespace
{

using namespace tapeprint::job;
using jobtest::options;
using jobtest::ppdOf;
using jobtest::tapeKeywords;
using jobtest::tapePpdText;

QByteArray cutWith(const QByteArray &parameters)
{
    return "*OpenUI *Cut/Cutter: PickOne\n*OrderDependency: 20 AnySetup *Cut\n*DefaultCut: A\n*Cut A/Off: \"\"\n"
           "*Cut B/On: \"\"\n*CloseUI: *Cut\n*CustomCut True: \"\"\n" +
           parameters;
}

/// A description that libcups may refuse as a whole, in words.
PpdFile openIfItCanBe(const QByteArray &text)
{
    const QTemporaryDir folder;
    QFile file(folder.filePath(u"hostile.ppd"_qs));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(text) == text.size());
    file.close();
    Problem error;
    PpdFile ppd = openPpdFile(file.fileName(), &error);
    EXPECT_EQ(ppd == nullptr, !error.isNull()) << error.sentence.toStdString();
    return ppd;
}

/// Why values are refused that no panel answers for.
QStringList refused(ppd_file_t *ppd, const JobOptions &asked)
{
    return refusedValues(ppd, asked, [](const QString &, const QString &) { return false; });
}

TEST(HostileDescription, CustomParametersOfWrongOrRepeatedTypes_CanBeWrittenAndReadOrAreNone)
{
    int opened = 0;
    for (const char *lines : {"*ParamCustomCut Words/Words: 1 nothing 0 1\n", "*ParamCustomCut Words/Words: 1\n",
                              "*ParamCustomCut Words: \n",
                              "*ParamCustomCut Words/Words: 1 string 0 20\n*ParamCustomCut Words/Again: 1 int 1 9\n",
                              "*ParamCustomCut Words/Words: 1 string 0 20\n*ParamCustomCut By/By: 1 points 9 72\n",
                              "*ParamCustomCut Words/Words: 1 string 0 20\n*ParamCustomCut By/By: 2 nothing 9 72\n",
                              "*ParamCustomCut Words/Words: 99999999999999999999 int 99999999999 -99999999999\n"}) {
        const PpdFile ppd = openIfItCanBe(tapePpdText(cutWith(lines)));
        if (!ppd) {
            continue;
        }
        ++opened;
        const std::vector<CustomParameter> parameters = customParameters(ppd.get(), u"Cut"_qs);
        QSet<QString> names;
        QStringList values;
        for (const CustomParameter &parameter : parameters) {
            names.insert(parameter.name);
            values.append(parameter.isText() ? u"a b"_qs : u"9"_qs);
            EXPECT_LE(parameter.least, parameter.most) << lines;
        }
        EXPECT_EQ(static_cast<std::size_t>(names.size()), parameters.size()) << lines;
        if (!parameters.empty()) {
            EXPECT_EQ(customValuesIn(parameters, customValue(parameters, values)), values) << lines;
        }
        EXPECT_FALSE(offeredOption(ppd.get(), u"Cut"_qs).choices.empty()) << lines;
    }
    EXPECT_GE(opened, 2); // the others libcups refuses
}

TEST(HostileDescription, MeasuresBeyondEveryNumber_GiveAPageOfFiniteMeasuresOrNone)
{
    for (const char *measures : {"1e999 1e999", "99999999999999999999999999999999999999999999 5", "nan inf", "-72 -288",
                                 "72", "", "0 0", "1e38 1e38"}) {
        QByteArray text = tapePpdText("");
        text.replace("*PaperDimension T72/Tape: \"72 288\"",
                     QByteArray("*PaperDimension T72/Tape: \"") + measures + '"');
        text.replace("*ImageableArea T72/Tape: \"3 0 69 288\"",
                     QByteArray("*ImageableArea T72/Tape: \"") + measures + ' ' + measures + '"');
        const PpdFile ppd = openIfItCanBe(text);
        if (!ppd) {
            continue;
        }
        const TapePage page = tapePageOf(ppd.get(), {}, tapeKeywords());
        EXPECT_TRUE(page.isEmpty() || (std::isfinite(page.sizePt.width()) && std::isfinite(page.sizePt.height())))
            << measures;
        EXPECT_TRUE(page.isEmpty() || std::isfinite(page.layoutRect().width())) << measures;
        const LabelPlan plan = planLabels({PageSizes{QSizeF(72.0, 144.0)}}, page, {});
        EXPECT_TRUE(std::isfinite(plan.tapeLengthMm())) << measures;
    }
}

TEST(HostileDescription, LimitsOfOwnSizesBeyondEveryNumber_AreNone)
{
    for (const char *limits : {"points 1 1e999", "points nan nan", "points 144 36", "points -99999 -1", "int x y"}) {
        const PpdFile ppd =
            openIfItCanBe(tapePpdText(QByteArray("*VariablePaperSize: True\n*HWMargins: 1e999 nan -1 2\n"
                                                 "*CustomPageSize True: \"\"\n*ParamCustomPageSize Width: 1 ") +
                                      limits + "\n*ParamCustomPageSize Height: 2 " + limits + '\n'));
        for (const CustomParameter &parameter :
             ppd ? customSizeParameters(ppd.get()) : std::vector<CustomParameter>()) {
            EXPECT_TRUE(std::isfinite(parameter.least) && std::isfinite(parameter.most)) << limits;
            EXPECT_LE(parameter.least, parameter.most) << limits;
            EXPECT_GT(parameter.most, 0.0) << limits;
        }
    }
}

TEST(HostileValue, CustomWithoutAValue_IsRefused)
{
    const PpdFile ppd = ppdOf(tapePpdText(jobtest::customPages + cutWith("*ParamCustomCut N/N: 1 int 1 9\n")));
    for (const QString &value : {u"Custom"_qs, u"Custom."_qs, u"custom"_qs}) {
        EXPECT_EQ(refused(ppd.get(), options({{u"Cut"_qs, value}})).size(), 1) << value.toStdString();
        EXPECT_EQ(refused(ppd.get(), options({{u"PageSize"_qs, value}})).size(), 1) << value.toStdString();
        EXPECT_EQ(refused(ppd.get(), options({{u"media"_qs, value}})).size(), 1) << value.toStdString();
    }
    EXPECT_EQ(refused(ppd.get(), options({{u"Cut"_qs, u"Custom.5"_qs}})), QStringList());
}

TEST(HostileValue, SizeOutOfRangeOrNegative_IsRefused)
{
    // From 36 x 36 to 144 x 720 points.
    const PpdFile ppd = ppdOf(tapePpdText());
    for (const QString &value :
         {u"Custom.35x100"_qs, u"Custom.145x100"_qs, u"Custom.72x721"_qs, u"Custom.-72x100"_qs, u"Custom.72x-100"_qs,
          u"Custom.1e9x1e9"_qs, u"Custom.99999999999999999999x72"_qs, u"Custom.nanxinf"_qs, u"Custom.0x0"_qs}) {
        EXPECT_EQ(refused(ppd.get(), options({{u"PageSize"_qs, value}})).size(), 1) << value.toStdString();
    }
    EXPECT_EQ(refused(ppd.get(), options({{u"PageSize"_qs, u"Custom.144x720"_qs}})), QStringList());
}

TEST(HostileValue, MediaAgainstThePageSize_GivesWayToIt)
{
    const PpdFile ppd = ppdOf(tapePpdText());
    JobOptions job;
    layDown(options({{u"media"_qs, u"DC72"_qs}, {u"PageSize"_qs, u"S72"_qs}}), ppd.get(), &job);
    EXPECT_EQ(markedChoice(ppd.get(), u"PageSize"_qs), u"S72"_qs);
    EXPECT_EQ(job.value(u"PageSize"_qs), u"S72"_qs);
    EXPECT_EQ(tapePageOf(ppd.get(), job, tapeKeywords()).pageSize, u"S72"_qs);
}

TEST(HostileDescription, WhiteSpaceAroundKeywords_IsNoPartOfThem)
{
    const PpdFile ppd =
        ppdOf(tapePpdText("*OpenUI  *Cut/Cutter :  PickOne  \n*OrderDependency:  20  AnySetup  *Cut  \n"
                          "*DefaultCut:  A  \n*Cut  A/Off:  \"\"\n*Cut\tB/On:\t\"\"\n*CloseUI:  *Cut\n"));
    const OfferedOption cut = offeredOption(ppd.get(), u"Cut"_qs);
    ASSERT_EQ(cut.choices.size(), 2U);
    EXPECT_EQ(cut.choices[0].keyword, u"A"_qs);
    EXPECT_EQ(cut.choices[1].keyword, u"B"_qs);
    EXPECT_EQ(markedChoice(ppd.get(), u"Cut"_qs), u"A"_qs);
}

} // namespace
