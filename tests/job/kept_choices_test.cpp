// SPDX-License-Identifier: Apache-2.0
// What is kept when a person turns from one printer to another.
#include "TapePpd.h"

#include "job/KeptChoices.h"

#include <gtest/gtest.h>

namespace
{

using namespace tapeprint::job;
using jobtest::options;
using jobtest::ppdOf;
using jobtest::tapePpdText;

/// An option with the choices None and Label.
const QByteArray cutting = "*OpenUI *CutMedia/Cut: PickOne\n"
                           "*DefaultCutMedia: None\n"
                           "*CutMedia None/No: \"\"\n"
                           "*CutMedia Label/Yes: \"\"\n"
                           "*CloseUI: *CutMedia\n";
/// An option of the same name with the choices None and Job.
const QByteArray otherCutting = QByteArray(cutting).replace("Label", "Job");
/// A length, whose values are numbers.
const QByteArray length = "*OpenUI *Length/Length: PickOne\n"
                          "*DefaultLength: 100.0\n"
                          "*Length 100.0/100: \"\"\n"
                          "*CloseUI: *Length\n";

/// The PPD with its papers under other names: T72 becomes Roll, S72 stays, DC72 keeps its name and is another size.
QByteArray otherPapers()
{
    return tapePpdText().replace("T72", "Roll").replace("216", "218");
}

QStringList kept(const QByteArray &from, std::initializer_list<JobOptions::Entry> opened,
                 std::initializer_list<JobOptions::Entry> left, const QByteArray &to,
                 std::initializer_list<JobOptions::Entry> saved = {})
{
    KeptChoices choices;
    const PpdFile first = ppdOf(from);
    choices.leave(options(opened), options(left), first.get());
    const PpdFile second = ppdOf(to);
    return choices.fitting(second.get(), options(saved)).lines();
}

TEST(KeptChoices, WhatNobodyChanged_StaysBehind)
{
    EXPECT_EQ(kept(tapePpdText(cutting), {{u"CutMedia"_qs, u"Label"_qs}, {u"copies"_qs, u"2"_qs}},
                   {{u"CutMedia"_qs, u"Label"_qs}, {u"copies"_qs, u"2"_qs}}, tapePpdText(cutting)),
              QStringList());
}

TEST(KeptChoices, CopiesAndPages_AreKeptByEveryPrinter)
{
    KeptChoices choices;
    choices.leave({}, options({{u"copies"_qs, u"3"_qs}, {u"page-ranges"_qs, u"2-4"_qs}}), nullptr);
    EXPECT_EQ(choices.fitting(nullptr, {}).lines(), (QStringList{u"copies=3"_qs, u"page-ranges=2-4"_qs}));
}

TEST(KeptChoices, Choice_IsKeptWhereThePpdListsIt)
{
    EXPECT_EQ(kept(tapePpdText(cutting), {}, {{u"CutMedia"_qs, u"Label"_qs}}, tapePpdText(cutting)),
              QStringList{u"CutMedia=Label"_qs});
    EXPECT_EQ(kept(tapePpdText(cutting), {}, {{u"CutMedia"_qs, u"Label"_qs}}, tapePpdText(otherCutting)),
              QStringList());
    EXPECT_EQ(kept(tapePpdText(cutting), {}, {{u"CutMedia"_qs, u"Label"_qs}}, tapePpdText("")), QStringList());
}

TEST(KeptChoices, Number_IsKeptWhereThePpdHasTheOption)
{
    EXPECT_EQ(kept(tapePpdText(length), {}, {{u"Length"_qs, u"75.5"_qs}}, tapePpdText(length)),
              QStringList{u"Length=75.5"_qs});
    EXPECT_EQ(kept(tapePpdText(length), {}, {{u"Length"_qs, u"75.5"_qs}}, tapePpdText("")), QStringList());
}

TEST(KeptChoices, NumberThatWasAChoice_IsKeptWhereItIsOneAgain)
{
    const QByteArray speeds = "*OpenUI *Speed/Speed: PickOne\n*DefaultSpeed: 2\n*Speed 2/Slow: \"\"\n"
                              "*Speed 6/Fast: \"\"\n*CloseUI: *Speed\n";
    const QByteArray slower = QByteArray(speeds).replace("6/Fast", "4/Fast");
    EXPECT_EQ(kept(tapePpdText(speeds), {}, {{u"Speed"_qs, u"6"_qs}}, tapePpdText(speeds)), QStringList{u"Speed=6"_qs});
    EXPECT_EQ(kept(tapePpdText(speeds), {}, {{u"Speed"_qs, u"6"_qs}}, tapePpdText(slower)), QStringList());
}

TEST(KeptChoices, OwnValue_IsKeptWithinTheLimitsOfThePrinter)
{
    const QByteArray shift = "*OpenUI *Shift/Shift: PickOne\n*DefaultShift: None\n*Shift None/None: \"\"\n"
                             "*CloseUI: *Shift\n*CustomShift True: \"\"\n"
                             "*ParamCustomShift By/By: 1 int 0 100\n";
    const QByteArray both = shift + "*ParamCustomShift Along/Along: 2 points 0 72\n";
    const QByteArray less = QByteArray(shift).replace("0 100", "0 20");
    EXPECT_EQ(kept(tapePpdText(shift), {}, {{u"Shift"_qs, u"Custom.50"_qs}}, tapePpdText(shift)),
              QStringList{u"Shift=Custom.50"_qs});
    EXPECT_EQ(kept(tapePpdText(shift), {}, {{u"Shift"_qs, u"Custom.50"_qs}}, tapePpdText(less)), QStringList());
    EXPECT_EQ(kept(tapePpdText(shift), {}, {{u"Shift"_qs, u"Custom.20"_qs}}, tapePpdText(less)),
              QStringList{u"Shift=Custom.20"_qs});
    EXPECT_EQ(kept(tapePpdText(both), {}, {{u"Shift"_qs, u"{By=50 Along=10mm}"_qs}}, tapePpdText(both)),
              QStringList{u"Shift={By=50 Along=10mm}"_qs});
    // A value of two parameters is none of one, and the other way round.
    EXPECT_EQ(kept(tapePpdText(shift), {}, {{u"Shift"_qs, u"Custom.50"_qs}}, tapePpdText(both)), QStringList());
}

TEST(KeptChoices, Paper_IsKeptByItsSizeWhateverItsName)
{
    EXPECT_EQ(kept(tapePpdText(), {}, {{u"PageSize"_qs, u"T72"_qs}}, otherPapers()), QStringList{u"PageSize=Roll"_qs});
    EXPECT_EQ(kept(tapePpdText(), {}, {{u"PageSize"_qs, u"S72"_qs}}, otherPapers()), QStringList{u"PageSize=S72"_qs});
    // Of the same name, and of another size: 216 points against 218.
    EXPECT_EQ(kept(tapePpdText(), {}, {{u"PageSize"_qs, u"DC72"_qs}}, otherPapers()), QStringList());
}

TEST(KeptChoices, SizeThatThePersonMadeUp_IsKeptWithinThePrintersLimits)
{
    // 2 inches by 5 fit into 144 x 720 points, 3 inches by 5 do not.
    EXPECT_EQ(kept(tapePpdText(), {}, {{u"PageSize"_qs, u"Custom.144x360"_qs}}, tapePpdText()),
              QStringList{u"PageSize=Custom.144x360"_qs});
    EXPECT_EQ(kept(tapePpdText(), {}, {{u"PageSize"_qs, u"Custom.216x360"_qs}}, tapePpdText()), QStringList());
    EXPECT_EQ(kept(tapePpdText(), {}, {{u"PageSize"_qs, u"Custom.144x360"_qs}}, tapePpdText("")), QStringList());
}

TEST(KeptChoices, InstanceThatThePersonTurnsTo_HasTheLastWord)
{
    EXPECT_EQ(kept(tapePpdText(cutting), {}, {{u"CutMedia"_qs, u"Label"_qs}, {u"copies"_qs, u"3"_qs}},
                   tapePpdText(cutting), {{u"CutMedia"_qs, u"None"_qs}}),
              QStringList{u"copies=3"_qs});
}

TEST(KeptChoices, WhatOnePrinterCannotHave_IsThereAgainOnTheNext)
{
    KeptChoices choices;
    const PpdFile cutter = ppdOf(tapePpdText(cutting));
    choices.leave({}, options({{u"CutMedia"_qs, u"Label"_qs}}), cutter.get());
    const PpdFile plain = ppdOf(tapePpdText(""));
    choices.leave({}, options({{u"copies"_qs, u"2"_qs}}), plain.get());
    EXPECT_EQ(choices.fitting(cutter.get(), {}).lines(), (QStringList{u"copies=2"_qs, u"CutMedia=Label"_qs}));
}

} // namespace
