// SPDX-License-Identifier: Apache-2.0
// The command line, from tables of arguments.
#include "tapeprint/CommandLine.h"

#include "tests/support/TextPrinting.h"

#include <gtest/gtest.h>

namespace
{

using tapeprint::CommandLine;
using tapeprint::parseCommandLine;

struct OptionsCase {
    QStringList arguments;
    QStringList lines; ///< the job's options
};

class CommandLineOptions : public testing::TestWithParam<OptionsCase>
{
};

TEST_P(CommandLineOptions, AreLaidDownInTheOrderGiven)
{
    tapeprint::job::Problem error;
    const std::optional<CommandLine> line = parseCommandLine(GetParam().arguments, &error);
    ASSERT_TRUE(line.has_value()) << error.sentence.toStdString();
    EXPECT_EQ(line->request.options.lines(), GetParam().lines);
}

INSTANTIATE_TEST_SUITE_P(
    Table, CommandLineOptions,
    testing::Values(OptionsCase{{}, {}}, OptionsCase{{u"-o"_qs, u"KsMargin=2.5"_qs}, {u"KsMargin=2.5"_qs}},
                    OptionsCase{{u"-oKsMargin=2.5"_qs}, {u"KsMargin=2.5"_qs}},
                    OptionsCase{{u"-o"_qs, u"B=2"_qs, u"-o"_qs, u"A=1"_qs}, {u"B=2"_qs, u"A=1"_qs}},
                    OptionsCase{{u"-o"_qs, u"A=1 B=2"_qs}, {u"A=1"_qs, u"B=2"_qs}},
                    OptionsCase{{u"-o"_qs, u"A=1"_qs, u"-o"_qs, u"A=2"_qs}, {u"A=2"_qs}},
                    OptionsCase{{u"-o"_qs, u"KsMirror"_qs}, {u"KsMirror=true"_qs}},
                    OptionsCase{{u"-o"_qs, u"noKsMirror"_qs}, {u"KsMirror=false"_qs}},
                    OptionsCase{{u"-o"_qs, u"A='two words'"_qs}, {u"A=two words"_qs}},
                    OptionsCase{{u"-n"_qs, u"3"_qs}, {u"copies=3"_qs}},
                    OptionsCase{{u"-n03"_qs, u"-P"_qs, u"1-4,7,9-"_qs}, {u"copies=3"_qs, u"page-ranges=1-4,7,9-"_qs}},
                    OptionsCase{{u"-q"_qs, u"100"_qs}, {u"job-priority=100"_qs}},
                    OptionsCase{{u"-Hhold"_qs}, {u"job-hold-until=indefinite"_qs}},
                    OptionsCase{{u"-H"_qs, u"immediate"_qs}, {u"job-hold-until=no-hold"_qs}},
                    OptionsCase{{u"-H"_qs, u"23:59"_qs}, {u"job-hold-until=23:59"_qs}},
                    OptionsCase{{u"-H"_qs, u"third-shift"_qs}, {u"job-hold-until=third-shift"_qs}},
                    // Letters without a value stand together, and the last of them may take one, as with lp.
                    OptionsCase{{u"-scn3"_qs, u"-oA=1 B=2"_qs}, {u"copies=3"_qs, u"A=1"_qs, u"B=2"_qs}},
                    OptionsCase{{u"-sn"_qs, u"3"_qs}, {u"copies=3"_qs}}));

struct ErrorCase {
    QStringList arguments;
    QString part; ///< what the sentence names
};

class CommandLineErrors : public testing::TestWithParam<ErrorCase>
{
};

TEST_P(CommandLineErrors, SayWhatIsWrong)
{
    tapeprint::job::Problem error;
    EXPECT_FALSE(parseCommandLine(GetParam().arguments, &error).has_value());
    EXPECT_TRUE(error.sentence.contains(GetParam().part)) << error.sentence.toStdString();
    EXPECT_FALSE(error.sentence.contains(u'\n'));
}

INSTANTIATE_TEST_SUITE_P(
    Table, CommandLineErrors,
    testing::Values(ErrorCase{{u"-d"_qs}, u"-d needs a value"_qs}, ErrorCase{{u"-d"_qs, u""_qs}, u"-d needs"_qs},
                    ErrorCase{{u"-d"_qs, u"/inst"_qs}, u"-d needs"_qs}, ErrorCase{{u"-n"_qs, u"0"_qs}, u"\"0\""_qs},
                    ErrorCase{{u"-n"_qs, u"two"_qs}, u"\"two\""_qs}, ErrorCase{{u"-n"_qs, u"2.5"_qs}, u"\"2.5\""_qs},
                    ErrorCase{{u"-P"_qs, u"0-2"_qs}, u"\"0-2\""_qs}, ErrorCase{{u"-P"_qs, u"1,,2"_qs}, u"\"1,,2\""_qs},
                    ErrorCase{{u"-P"_qs, u"9-3"_qs}, u"\"9-3\""_qs}, ErrorCase{{u"-P"_qs, u"9-3"_qs}, u"write 3-9"_qs},
                    ErrorCase{{u"-P"_qs, u""_qs}, u"is no list of pages"_qs},
                    ErrorCase{{u"-o"_qs, u""_qs}, u"NAME=VALUE"_qs}, ErrorCase{{u"--ppd="_qs}, u"--ppd needs"_qs},
                    ErrorCase{{u"--ppdx"_qs, u"a"_qs}, u"--ppdx"_qs}, ErrorCase{{u"-Z"_qs}, u"-Z is no option"_qs},
                    ErrorCase{{u"--no-such"_qs}, u"--no-such"_qs}, ErrorCase{{u"-sZ"_qs}, u"-Z is no option"_qs},
                    ErrorCase{{u"--help=x"_qs}, u"--help=x"_qs}, ErrorCase{{u"-q"_qs, u"0"_qs}, u"from 1 to 100"_qs},
                    ErrorCase{{u"-q101"_qs}, u"\"101\""_qs}, ErrorCase{{u"-H"_qs, u"24:00"_qs}, u"\"24:00\""_qs},
                    ErrorCase{{u"-H"_qs, u""_qs}, u"\"\""_qs},
                    ErrorCase{{u"-H"_qs, u"resume"_qs}, u"use lp -i QUEUE-NUMBER -H resume"_qs},
                    ErrorCase{{u"-i"_qs, u"tape-7"_qs}, u"use lp -i"_qs},
                    ErrorCase{{u"-sm"_qs}, u"-m asks for a mail"_qs}, ErrorCase{{u"-h"_qs, u""_qs}, u"-h HOST"_qs},
                    ErrorCase{{u"-U"_qs}, u"-U needs a value"_qs},
                    ErrorCase{{u"--trust-ppd"_qs}, u"--trust-ppd goes with --ppd"_qs}));

TEST(CommandLineQueue, WithInstance_IsCutAtTheFirstSlash)
{
    tapeprint::job::Problem error;
    const auto line = parseCommandLine({u"-dtape/fine"_qs}, &error);
    ASSERT_TRUE(line.has_value());
    EXPECT_EQ(line->request.queue, u"tape"_qs);
    EXPECT_EQ(line->request.instance, u"fine"_qs);
}

TEST(CommandLineFiles, AfterTwoDashes_MayLookLikeOptions)
{
    tapeprint::job::Problem error;
    const auto line = parseCommandLine({u"a.pdf"_qs, u"-"_qs, u"--"_qs, u"-n"_qs, u"-"_qs}, &error);
    ASSERT_TRUE(line.has_value());
    EXPECT_EQ(line->files, (QStringList{u"a.pdf"_qs, u"-n"_qs, u"-"_qs}));
}

TEST(CommandLineFlags, OfTheDialog_AreTaken)
{
    tapeprint::job::Problem error;
    const auto line = parseCommandLine({u"--no-dialog"_qs, u"--show-options"_qs, u"--summary"_qs, u"-s"_qs, u"-c"_qs,
                                        u"--ppd=a.ppd"_qs, u"--output"_qs, u"b.prn"_qs, u"-t"_qs, u"-n"_qs},
                                       &error);
    ASSERT_TRUE(line.has_value()) << error.sentence.toStdString();
    EXPECT_TRUE(line->noDialog && line->showOptions && line->summary && line->silent);
    EXPECT_FALSE(line->help || line->version);
    EXPECT_EQ(line->request.ppdPath, u"a.ppd"_qs);
    EXPECT_EQ(line->request.outputPath, u"b.prn"_qs);
    EXPECT_FALSE(line->request.trustsPpd);
    EXPECT_TRUE(line->request.onlyShows);
    // As with lp, a letter's value may begin with a dash.
    EXPECT_EQ(line->request.title, u"-n"_qs);
}

TEST(CommandLineOutput, MayBeADashWhichIsNoDocument)
{
    tapeprint::job::Problem error;
    const auto line =
        parseCommandLine({u"--ppd"_qs, u"a.ppd"_qs, u"--trust-ppd"_qs, u"--output"_qs, u"-"_qs, u"a.pdf"_qs}, &error);
    ASSERT_TRUE(line.has_value()) << error.sentence.toStdString();
    EXPECT_EQ(line->request.outputPath, u"-"_qs);
    EXPECT_EQ(line->files, QStringList{u"a.pdf"_qs});
    EXPECT_TRUE(line->request.trustsPpd);
    EXPECT_FALSE(line->request.onlyShows);
}

TEST(CommandLineServer, IsTheOneOfTheLetters)
{
    tapeprint::job::Problem error;
    const auto line = parseCommandLine({u"-Eh"_qs, u"printers:8631"_qs, u"-Umary"_qs}, &error);
    ASSERT_TRUE(line.has_value()) << error.sentence.toStdString();
    EXPECT_EQ(line->server, u"printers:8631"_qs);
    EXPECT_EQ(line->user, u"mary"_qs);
    EXPECT_TRUE(line->encrypts);
}

TEST(CommandLinePresets, AreNoJobs)
{
    tapeprint::job::Problem error;
    const auto saving = parseCommandLine({u"-d"_qs, u"tape"_qs, u"--save-preset"_qs, u"red"_qs}, &error);
    ASSERT_TRUE(saving.has_value()) << error.sentence.toStdString();
    EXPECT_EQ(saving->savePreset, u"red"_qs);
    EXPECT_FALSE(saving->submits());
    EXPECT_FALSE(saving->readsDocuments());
    EXPECT_FALSE(saving->onlyManagesPresets());
    const auto listing = parseCommandLine({u"-d"_qs, u"tape"_qs, u"--list-presets"_qs}, &error);
    ASSERT_TRUE(listing.has_value());
    EXPECT_TRUE(listing->onlyManagesPresets());
    EXPECT_FALSE(listing->submits());
}

TEST(CommandLinePresets, NeedAQueueAndANameThatCupsCanKeep)
{
    tapeprint::job::Problem error;
    EXPECT_FALSE(parseCommandLine({u"--list-presets"_qs}, &error).has_value());
    EXPECT_TRUE(error.sentence.contains(u"go with -d"_qs)) << error.sentence.toStdString();
    EXPECT_FALSE(parseCommandLine({u"--delete-preset"_qs, u"red"_qs}, &error).has_value());
    EXPECT_FALSE(parseCommandLine({u"-d"_qs, u"tape"_qs, u"--save-preset"_qs, u"two words"_qs}, &error).has_value());
    EXPECT_EQ(error.kind, tapeprint::job::Problem::BadUsage);
    EXPECT_TRUE(error.sentence.contains(u"blanks"_qs)) << error.sentence.toStdString();
}

} // namespace
