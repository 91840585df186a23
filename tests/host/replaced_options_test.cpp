// SPDX-License-Identifier: Apache-2.0
// Which options count as replaced, and that what is said of each is true.
#include "TestPrinter.h"

#include "job/ReplacedOptions.h"
#include "tests/support/TextPrinting.h"

#include <gtest/gtest.h>

namespace
{

using namespace tapeprint::job;
using hosttest::options;

TEST(ReplacedOptions, AreThoseThatTheJobCarriesWithAnotherValue)
{
    const JobOptions laidDown = options({{u"KsMargin"_qs, u"2"_qs},
                                         {u"cutmedia"_qs, u"label"_qs},
                                         {u"KsMirror"_qs, u"True"_qs},
                                         {u"KsOwn"_qs, u"x"_qs},
                                         {u"KsLeft"_qs, u"1"_qs}});
    const JobOptions job = options({{u"KsMargin"_qs, u"2.0"_qs},
                                    {u"CutMedia"_qs, u"Label"_qs},
                                    {u"KsMirror"_qs, u"False"_qs},
                                    {u"KsOwn"_qs, u"x"_qs}});
    // 2 and 2.0 are one number, and letters' case is the PPD's; what the job does not carry nobody has replaced.
    const std::vector<ReplacedOption> replaced = replacedOptions(laidDown, job);
    ASSERT_EQ(replaced.size(), 1U);
    EXPECT_EQ(replaced.front().laidDown, JobOptions::Entry(u"KsMirror"_qs, u"True"_qs));
    EXPECT_EQ(replaced.front().carried, JobOptions::Entry(u"KsMirror"_qs, u"False"_qs));
}

TEST(ReplacedOptions, ByLessThanATenth_AreRounded)
{
    const auto isRounding = [](const QString &asked, const QString &carried) {
        return ReplacedOption{{u"KsMargin"_qs, asked}, {u"KsMargin"_qs, carried}}.isRounding();
    };
    EXPECT_TRUE(isRounding(u"2.54"_qs, u"2.6"_qs));
    EXPECT_TRUE(isRounding(u"2.6"_qs, u"2.54"_qs));
    EXPECT_FALSE(isRounding(u"2.4"_qs, u"2.54"_qs));
    EXPECT_FALSE(isRounding(u"None"_qs, u"2.54"_qs));
}

TEST(ReplacedOptions, SentenceSaysWhetherThePrinterHasTheValue)
{
    const QTemporaryDir folder;
    const Destination printer = hosttest::testDestination(folder);
    const auto sentence = [&printer](const QString &name, const QString &value, const QString &carried) {
        return ReplacedOption{{name, value}, {name, carried}}.sentence(printer.ppd.get(), u"P"_qs);
    };
    EXPECT_EQ(
        sentence(u"CutMedia"_qs, u"Label"_qs, u"None"_qs),
        u"The panel \"P\" does not offer CutMedia=Label, which the printer has: the job carries CutMedia=None."_qs);
    // A listed number is a choice of the printer's as any other.
    EXPECT_EQ(sentence(u"KsMargin"_qs, u"5.0"_qs, u"4.0"_qs),
              u"The panel \"P\" does not offer KsMargin=5.0, which the printer has: the job carries KsMargin=4.0."_qs);
    EXPECT_EQ(sentence(u"KsMargin"_qs, u"30"_qs, u"20.0"_qs),
              u"The panel \"P\" holds KsMargin within its limits and steps: instead of 30 the job carries 20.0."_qs);
    EXPECT_EQ(sentence(u"CutMedia"_qs, u"Twice"_qs, u"None"_qs),
              u"CutMedia=Twice is none of the choices that the printer's PPD lists: the job carries CutMedia=None."_qs);
    // Numbers end at infinity: that is a word.
    EXPECT_EQ(sentence(u"KsMargin"_qs, u"inf"_qs, u"20.0"_qs),
              u"KsMargin=inf is none of the choices that the printer's PPD lists: the job carries KsMargin=20.0."_qs);
}

} // namespace
