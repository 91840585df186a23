// SPDX-License-Identifier: Apache-2.0
// Values of one's own: what each kind takes, how they are written, and that CUPS reads out of them what was put in.
#include "tests/job/TapePpd.h"

#include "job/CupsOptions.h"
#include "job/CustomValues.h"
#include "job/Job.h"
#include "job/PpdMarks.h"
#include "tests/support/TextPrinting.h"

#include <gtest/gtest.h>

namespace
{

using namespace tapeprint::job;
using jobtest::ppdOf;
using jobtest::tapePpdText;

QByteArray customOption(const QByteArray &keyword, const QByteArray &parameters)
{
    return "*OpenUI *" + keyword + "/" + keyword + ": PickOne\n*OrderDependency: 20 AnySetup *" + keyword +
           "\n*Default" + keyword + ": None\n*" + keyword + " None/None: \"\"\n*CloseUI: *" + keyword + "\n*Custom" +
           keyword + " True: \"\"\n" + parameters;
}

/// An option of each kind, named as the kind is.
const QByteArray everyKind = customOption("Curve", "*ParamCustomCurve Gamma/Gamma: 1 curve 0.5 4\n") +
                             customOption("InvCurve", "*ParamCustomInvCurve Gamma/Gamma: 1 invcurve 0.5 4\n") +
                             customOption("Int", "*ParamCustomInt Count/Count: 1 int -5 100\n") +
                             customOption("Real", "*ParamCustomReal Level/Level: 1 real 0.1 1.5\n") +
                             customOption("Points", "*ParamCustomPoints Width/Width: 1 points 36 144\n") +
                             customOption("Text", "*ParamCustomText Words/Words: 1 string 2 12\n") +
                             customOption("Password", "*ParamCustomPassword Word/Word: 1 password 4 8\n") +
                             customOption("Passcode", "*ParamCustomPasscode Code/Code: 1 passcode 4 8\n") +
                             customOption("Mark", "*ParamCustomMark Words/Words: 2 string 0 20\n"
                                                  "*ParamCustomMark Gray/Gray: 1 real 0 1\n"
                                                  "*ParamCustomMark Width/Width: 3 points 10 72\n"
                                                  "*ParamCustomMark Key/Key: 4 password 0 9\n");

class CustomValues : public testing::Test
{
protected:
    CustomParameter only(const QString &key) const
    {
        const std::vector<CustomParameter> parameters = customParameters(ppd.get(), key);
        return parameters.size() == 1 ? parameters.front() : CustomParameter();
    }
    QString problem(const QString &key, const QString &value, bool inInches = false) const
    {
        return customProblem(only(key), value, inInches);
    }
    /// What libcups makes of a job's options line, as a filter reads it.
    const ppd_cparam_t *filterReads(const QByteArray &line, const char *key, const char *parameter)
    {
        CupsOptions options;
        options.parse(line);
        cupsMarkOptions(filters.get(), options.count(), options.data());
        return ppdFindCustomParam(ppdFindCustomOption(filters.get(), key), parameter);
    }

    PpdFile ppd = ppdOf(tapePpdText(everyKind));
    PpdFile filters = ppdOf(tapePpdText(everyKind));
};

TEST_F(CustomValues, EachKindWithItsLimits)
{
    const auto expect = [this](const QString &key, CustomKind kind, double least, double most) {
        const CustomParameter found = only(key);
        EXPECT_EQ(static_cast<int>(found.kind), static_cast<int>(kind)) << key.toStdString();
        EXPECT_NEAR(found.least, least, 1e-6) << key.toStdString();
        EXPECT_NEAR(found.most, most, 1e-6) << key.toStdString();
    };
    expect(u"Curve"_qs, CustomKind::Curve, 0.5, 4);
    expect(u"InvCurve"_qs, CustomKind::InverseCurve, 0.5, 4);
    expect(u"Int"_qs, CustomKind::Integer, -5, 100);
    expect(u"Real"_qs, CustomKind::Real, 0.1, 1.5);
    expect(u"Points"_qs, CustomKind::Length, 36, 144);
    expect(u"Text"_qs, CustomKind::Text, 2, 12);
    expect(u"Password"_qs, CustomKind::Password, 4, 8);
    expect(u"Passcode"_qs, CustomKind::Passcode, 4, 8);
    EXPECT_EQ(customParameters(ppd.get(), u"Mark"_qs).size(), 4U);
    EXPECT_TRUE(customParameters(ppd.get(), u"PageSize"_qs).empty());
    EXPECT_TRUE(customParameters(ppd.get(), u"Nothing"_qs).empty());
    EXPECT_TRUE(customParameters(nullptr, u"Int"_qs).empty());
}

TEST_F(CustomValues, Numbers_AreTakenWithinTheirLimits)
{
    EXPECT_EQ(problem(u"Int"_qs, u"-5"_qs), QString());
    EXPECT_EQ(problem(u"Int"_qs, u"100"_qs), QString());
    const QString whole = u"Give a whole number from -5 to 100."_qs;
    for (const QString &refused : {u"101"_qs, u"-6"_qs, u"1.5"_qs, u"inf"_qs, u"nan"_qs, u"two"_qs, u""_qs}) {
        EXPECT_EQ(problem(u"Int"_qs, refused), whole) << refused.toStdString();
    }
    EXPECT_EQ(problem(u"Real"_qs, u"0.1"_qs), QString()); // though the limit is kept as a float
    EXPECT_EQ(problem(u"Real"_qs, u"1.6"_qs), u"Give a number from 0.1 to 1.5."_qs);
    EXPECT_EQ(problem(u"Curve"_qs, u"4.1"_qs), u"Give a number from 0.5 to 4."_qs);
    EXPECT_EQ(problem(u"InvCurve"_qs, u"0.4"_qs), u"Give a number from 0.5 to 4."_qs);
}

TEST_F(CustomValues, Lengths_AreTakenWithAnyUnitAndRefusedInThePersons)
{
    // 36 to 144 points are 12.7 to 50.8 mm.
    for (const QString &taken :
         {u"36"_qs, u"12.7mm"_qs, u"50.8mm"_qs, u"2in"_qs, u"2.5cm"_qs, u"0.05m"_qs, u"0.1ft"_qs}) {
        EXPECT_EQ(problem(u"Points"_qs, taken), QString()) << taken.toStdString();
    }
    EXPECT_EQ(problem(u"Points"_qs, u"50.9mm"_qs), u"Give a length from 12.7 to 50.8 mm."_qs);
    EXPECT_EQ(problem(u"Points"_qs, u"0.49in"_qs, true), u"Give a length from 0.5 to 2 in."_qs);
    EXPECT_EQ(problem(u"Points"_qs, u"mm"_qs), u"Give a length from 12.7 to 50.8 mm."_qs);
}

TEST(CustomLimits, OfALengthInMillimetres_AreTidyWhereTheyAreTaken)
{
    // 11.33 pt are 3.997 mm, 102.06 pt are 36.005 mm; 11.35 pt are 4.004 mm, and 4.0 mm would be refused.
    CustomParameter width{u"Width"_qs, u"Width"_qs, CustomKind::Length, 11.33, 102.06};
    EXPECT_EQ(customLimits(width, false), u"Give a length from 4 to 36 mm."_qs);
    width.least = 11.35;
    EXPECT_EQ(customLimits(width, false), u"Give a length from 4.004 to 36 mm."_qs);
    EXPECT_TRUE(customProblem(width, u"36mm"_qs, false).isNull());
}

TEST_F(CustomValues, Texts_AreTakenByTheirLength)
{
    EXPECT_EQ(problem(u"Text"_qs, u"ab"_qs), QString());
    EXPECT_EQ(problem(u"Text"_qs, u"a"_qs), u"Give 2 to 12 characters."_qs);
    EXPECT_EQ(problem(u"Text"_qs, u"abcdefghijklm"_qs), u"Give 2 to 12 characters."_qs);
    EXPECT_EQ(problem(u"Text"_qs, u"a\nb"_qs), u"Leave out single braces and characters that cannot be seen."_qs);
    EXPECT_EQ(problem(u"Text"_qs, u"a}{b"_qs), u"Leave out single braces and characters that cannot be seen."_qs);
    EXPECT_EQ(problem(u"Text"_qs, u"a{b}"_qs), QString());
    EXPECT_EQ(problem(u"Passcode"_qs, u"0123"_qs), QString());
    EXPECT_EQ(problem(u"Passcode"_qs, u"012"_qs), u"Give 4 to 8 digits."_qs);
    EXPECT_EQ(problem(u"Passcode"_qs, u"012a"_qs), u"Give 4 to 8 digits."_qs);
    EXPECT_EQ(problem(u"Password"_qs, u"0a b"_qs), QString());
    EXPECT_EQ(problem(u"Password"_qs, u"abc"_qs), u"Give 4 to 8 characters."_qs);
}

TEST_F(CustomValues, OneParameter_IsWrittenAfterThePoint)
{
    EXPECT_EQ(customValue({only(u"Int"_qs)}, {u"7"_qs}), u"Custom.7"_qs);
    EXPECT_EQ(customValuesIn({only(u"Int"_qs)}, u"Custom.7"_qs), QStringList{u"7"_qs});
}

TEST_F(CustomValues, SeveralParameters_AreWrittenInBracesAndReadBack)
{
    const std::vector<CustomParameter> parameters = customParameters(ppd.get(), u"Mark"_qs);
    const QString value = customValue(parameters, {u"it's"_qs, u"0.5"_qs, u"4.4mm"_qs, u"a b"_qs});
    EXPECT_EQ(value, u"{Words=\"it's\" Gray=0.5 Width=4.4mm Key='a b'}"_qs);
    EXPECT_TRUE(isCustomValue(value));
    EXPECT_EQ(customValuesIn(parameters, u"{Gray=0.25 Words='a b'}"_qs),
              (QStringList{u"a b"_qs, u"0.25"_qs, QString(), QString()}));
}

TEST_F(CustomValues, FilterReadsWhatWasEntered)
{
    // As the print server writes a job's options: blanks, quotes and backslashes of a value are escaped.
    EXPECT_EQ(filterReads("Int=Custom.42", "Int", "Count")->current.custom_int, 42);
    EXPECT_FLOAT_EQ(filterReads("Points=Custom.25.4mm", "Points", "Width")->current.custom_points, 72.0F);
    EXPECT_FLOAT_EQ(filterReads("Real=Custom.0.75", "Real", "Level")->current.custom_real, 0.75F);
    const QString value =
        customValue(customParameters(ppd.get(), u"Mark"_qs), {u"it's \"so\""_qs, u"0.5"_qs, u"0.5in"_qs, u"a b"_qs});
    QByteArray escaped;
    for (const char byte : value.toUtf8()) {
        escaped += QByteArrayView(" \\\"'").contains(byte) ? QByteArray("\\") + byte : QByteArray(1, byte);
    }
    const QByteArray line = "Mark=" + escaped;
    EXPECT_STREQ(filterReads(line, "Mark", "Words")->current.custom_string, "it's \"so\"");
    EXPECT_FLOAT_EQ(filterReads(line, "Mark", "Gray")->current.custom_real, 0.5F);
    EXPECT_FLOAT_EQ(filterReads(line, "Mark", "Width")->current.custom_points, 36.0F);
    EXPECT_STREQ(filterReads(line, "Mark", "Key")->current.custom_password, "a b");
    EXPECT_NE(ppdIsMarked(filters.get(), "Mark", "Custom"), 0);
}

TEST_F(CustomValues, Secrets_AreShownInAsterisksWhateverTheirLength)
{
    EXPECT_EQ(withoutSecret(ppd.get(), u"Passcode"_qs, u"Custom.1234"_qs), u"Custom.***"_qs);
    EXPECT_EQ(withoutSecret(ppd.get(), u"Text"_qs, u"Custom.word"_qs), u"Custom.word"_qs);
    EXPECT_EQ(withoutSecret(nullptr, u"Passcode"_qs, u"Custom.1234"_qs), u"Custom.1234"_qs);
    const JobOptions shown =
        withoutSecrets(ppd.get(), jobtest::options({{u"Int"_qs, u"Custom.7"_qs},
                                                    {u"Password"_qs, u"Custom.secret"_qs},
                                                    {u"Mark"_qs, u"{Words='a' Gray=1 Width=12 Key='secret'}"_qs}}));
    EXPECT_EQ(shown.lines(), (QStringList{u"Int=Custom.7"_qs, u"Password=Custom.***"_qs,
                                          u"Mark={Words='a' Gray=1 Width=12 Key='***'}"_qs}));
}

TEST_F(CustomValues, Marks_KeepThemWithTheirParameters)
{
    ASSERT_TRUE(markChoice(ppd.get(), u"Int"_qs, u"Custom.42"_qs));
    ASSERT_TRUE(markChoice(ppd.get(), u"Points"_qs, u"Custom.1in"_qs));
    ASSERT_TRUE(markChoice(ppd.get(), u"Mark"_qs, u"{Words='a b' Gray=0.5 Width=20 Key='k'}"_qs));
    const PpdMarks marks = takeMarks(ppd.get());
    ASSERT_TRUE(markChoice(ppd.get(), u"Int"_qs, u"Custom.7"_qs));
    ASSERT_TRUE(markChoice(ppd.get(), u"Points"_qs, u"None"_qs));
    ASSERT_TRUE(markChoice(ppd.get(), u"Mark"_qs, u"{Words='c' Gray=1 Width=30 Key=''}"_qs));
    putMarks(ppd.get(), marks);
    EXPECT_EQ(markedValue(ppd.get(), u"Int"_qs), u"Custom.42"_qs);
    EXPECT_EQ(markedValue(ppd.get(), u"Points"_qs), u"Custom.72"_qs);
    EXPECT_EQ(markedValue(ppd.get(), u"Mark"_qs), u"{Words='a b' Gray=0.5 Width=20 Key='k'}"_qs);
    EXPECT_EQ(markedValue(ppd.get(), u"Real"_qs), u"None"_qs);
}

TEST(PpdMarks, CustomPageSize_IsPutBackWithItsMeasures)
{
    const PpdFile ppd = ppdOf(tapePpdText());
    ASSERT_TRUE(markChoice(ppd.get(), u"PageSize"_qs, u"Custom.1x2in"_qs));
    const PpdMarks marks = takeMarks(ppd.get());
    ASSERT_TRUE(markChoice(ppd.get(), u"PageSize"_qs, u"Custom.50x60"_qs));
    ASSERT_TRUE(markChoice(ppd.get(), u"PageSize"_qs, u"T72"_qs));
    putMarks(ppd.get(), marks);
    EXPECT_EQ(markedValue(ppd.get(), u"PageSize"_qs), u"Custom.72x144"_qs);
    const ppd_size_t *size = ppdPageSize(ppd.get(), nullptr);
    ASSERT_NE(size, nullptr);
    EXPECT_FLOAT_EQ(size->width, 72.0F);
    EXPECT_FLOAT_EQ(size->length, 144.0F);
}

TEST(PpdMarks, PutBack_TakesAwayAMarkThatWasNotThere)
{
    const PpdFile ppd = ppdOf(tapePpdText("*OpenUI *Cut/Cut: PickOne\n*OrderDependency: 20 AnySetup *Cut\n"
                                          "*Cut A/A: \"\"\n*Cut B/B: \"\"\n*CloseUI: *Cut\n"));
    const PpdMarks marks = takeMarks(ppd.get());
    ASSERT_EQ(markedValue(ppd.get(), u"Cut"_qs), QString());
    ASSERT_TRUE(markChoice(ppd.get(), u"Cut"_qs, u"B"_qs));
    putMarks(ppd.get(), marks);
    EXPECT_EQ(markedValue(ppd.get(), u"Cut"_qs), QString());
    EXPECT_EQ(ppdFindMarkedChoice(ppd.get(), "Cut"), nullptr);
}

TEST(PpdMarks, OptionThatTakesSeveral_KeepsEachOfThem)
{
    const PpdFile ppd = ppdOf(tapePpdText("*OpenUI *Add/Add: PickMany\n*OrderDependency: 20 AnySetup *Add\n"
                                          "*DefaultAdd: A\n*Add A/A: \"\"\n*Add B/B: \"\"\n*Add C/C: \"\"\n"
                                          "*CloseUI: *Add\n"));
    EXPECT_TRUE(markChoice(ppd.get(), u"Add"_qs, u"C,B"_qs));
    EXPECT_EQ(markedValue(ppd.get(), u"Add"_qs), u"B,C"_qs); // in the description's order
    const PpdMarks marks = takeMarks(ppd.get());
    EXPECT_TRUE(markChoice(ppd.get(), u"Add"_qs, u"A"_qs));
    EXPECT_EQ(markedValue(ppd.get(), u"Add"_qs), u"A"_qs);
    EXPECT_FALSE(markChoice(ppd.get(), u"Add"_qs, u"A,D"_qs));
    EXPECT_EQ(markedValue(ppd.get(), u"Add"_qs), u"A"_qs);
    putMarks(ppd.get(), marks);
    EXPECT_EQ(markedValue(ppd.get(), u"Add"_qs), u"B,C"_qs);
}

TEST(JobWithCustomValues, ChangeWithoutAnOptionOrAValue_IsNone)
{
    Destination destination;
    destination.ppd = ppdOf(tapePpdText(everyKind + jobtest::customPages));
    Job job;
    job.open(std::move(destination), jobtest::options({{u"Int"_qs, u"Custom.42"_qs}}));
    const JobOptions before = job.options();
    job.changeOption(u"Int"_qs, {});
    job.changeOption({}, u"Custom.7"_qs);
    EXPECT_TRUE(job.options() == before);
    EXPECT_EQ(markedValue(job.ppd(), u"Int"_qs), u"Custom.42"_qs);
}

TEST(JobWithCustomValues, SavedOnesThatThePrinterDoesNotTake_AreSaidAndSecretsAreNot)
{
    Destination destination;
    destination.ppd = ppdOf(tapePpdText(everyKind + jobtest::customPages));
    destination.queue = PrintQueue();
    destination.queue->options = jobtest::options({{u"Int"_qs, u"Custom.101"_qs},
                                                   {u"Real"_qs, u"Custom.0.5"_qs},
                                                   {u"Passcode"_qs, u"Custom.123"_qs},
                                                   {u"PageSize"_qs, u"Custom.145x100"_qs}});
    Job job;
    job.open(std::move(destination), {});
    EXPECT_EQ(job.notices(),
              (QStringList{u"Int=Custom.101: Give a whole number from -5 to 100."_qs,
                           u"Passcode=Custom.***: Give 4 to 8 digits."_qs,
                           u"PageSize=Custom.145x100 is smaller or larger than the printer can take."_qs}));
    job.changeOption(u"Int"_qs, u"Custom.100"_qs);
    job.changeOption(u"Passcode"_qs, u"Custom.1234"_qs);
    job.changeOption(u"PageSize"_qs, u"Custom.144x100"_qs);
    EXPECT_EQ(job.notices(), QStringList());
}

TEST(JobWithCustomValues, RevertsToThem)
{
    Destination destination;
    destination.ppd = ppdOf(tapePpdText(everyKind + jobtest::customPages));
    Job job;
    job.open(std::move(destination),
             jobtest::options({{u"Int"_qs, u"Custom.42"_qs}, {u"PageSize"_qs, u"Custom.30x40mm"_qs}}));
    job.changeOption(u"Int"_qs, u"Custom.7"_qs);
    job.changeOption(u"PageSize"_qs, u"T72"_qs);
    job.changeOption(u"Real"_qs, u"Custom.0.5"_qs);
    job.revert();
    EXPECT_EQ(job.options().value(u"Int"_qs), u"Custom.42"_qs);
    EXPECT_EQ(markedValue(job.ppd(), u"Int"_qs), u"Custom.42"_qs);
    EXPECT_EQ(markedValue(job.ppd(), u"Real"_qs), u"None"_qs);
    EXPECT_EQ(job.options().value(u"PageSize"_qs), u"Custom.30x40mm"_qs);
    EXPECT_EQ(job.page().pageSize, u"Custom.30x40mm"_qs);
    EXPECT_NEAR(mmFromPoints(job.page().sizePt.width()), 30.0, 0.001);
    EXPECT_NEAR(mmFromPoints(job.page().sizePt.height()), 40.0, 0.001);
}

} // namespace
