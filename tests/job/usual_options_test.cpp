// SPDX-License-Identifier: Apache-2.0
// What the options mean that any job can have, and titles that every print server takes.
#include "job/TapePage.h"
#include "job/UsualOptions.h"
#include "tests/job/TapePpd.h"
#include "tests/support/TextPrinting.h"

#include <gtest/gtest.h>

namespace
{

using namespace tapeprint::job; // NOLINT(google-build-using-namespace): the test is about all of it
using jobtest::options;

const QByteArray collateOption = "*OpenUI *Collate/Collate: Boolean\n*DefaultCollate: True\n*Collate True/On: \"\"\n"
                                 "*Collate False/Off: \"\"\n*CloseUI: *Collate\n";

TEST(Collating, EveryNameThatTheFiltersRead_Counts)
{
    EXPECT_FALSE(isCollated({}, nullptr));
    EXPECT_TRUE(isCollated(options({{u"collate"_qs, u"true"_qs}}), nullptr));
    EXPECT_TRUE(isCollated(options({{u"Collate"_qs, u"True"_qs}}), nullptr));
    EXPECT_FALSE(isCollated(options({{u"Collate"_qs, u"False"_qs}}), nullptr));
    const QString handling = u"multiple-document-handling"_qs;
    EXPECT_TRUE(isCollated(options({{handling, u"separate-documents-collated-copies"_qs}}), nullptr));
    EXPECT_FALSE(isCollated(options({{handling, u"separate-documents-uncollated-copies"_qs}}), nullptr));
    EXPECT_TRUE(isCollated(options({{u"sheet-collate"_qs, u"collated"_qs}}), nullptr));
}

TEST(BothSides, AreToldByEveryNameThatTheFiltersRead)
{
    EXPECT_FALSE(isTwoSided({}, nullptr));
    EXPECT_TRUE(isTwoSided(options({{u"sides"_qs, u"two-sided-long-edge"_qs}}), nullptr));
    EXPECT_FALSE(isTwoSided(options({{u"sides"_qs, u"one-sided"_qs}, {u"Duplex"_qs, u"DuplexTumble"_qs}}), nullptr));
    EXPECT_TRUE(isTwoSided(options({{u"EFDuplex"_qs, u"DuplexTumble"_qs}}), nullptr));
    const PpdFile ppd = jobtest::ppdOf(jobtest::tapePpdText(
        "*OpenUI *Duplex/Two-Sided: PickOne\n*DefaultDuplex: DuplexNoTumble\n*Duplex None/Off: \"\"\n"
        "*Duplex DuplexNoTumble/Long Edge: \"\"\n*CloseUI: *Duplex\n"));
    EXPECT_TRUE(isTwoSided({}, ppd.get()));
    EXPECT_FALSE(isTwoSided(options({{u"Duplex"_qs, u"None"_qs}}), ppd.get()));
    // A tape has but one side, whatever its description says.
    EXPECT_TRUE(tapePageOf(ppd.get(), {}, {}).isTwoSided);
    TapeKeywords keywords;
    keywords.lengthOption = u"Length"_qs;
    EXPECT_FALSE(tapePageOf(ppd.get(), options({{u"Length"_qs, u"100"_qs}}), keywords).isTwoSided);
}

TEST(Collating, DescriptionWithAnOptionForIt_SaysItByThatName)
{
    const PpdFile ppd = jobtest::ppdOf(jobtest::tapePpdText(collateOption));
    EXPECT_TRUE(isCollated({}, ppd.get()));
    EXPECT_EQ(collating(false, {}, ppd.get()).lines(), QStringList{u"Collate=False"_qs});
    EXPECT_EQ(collating(true, {}, nullptr).lines(), QStringList{u"collate=True"_qs});
}

TEST(Collating, OtherNamesInTheJob_AreChangedAlong)
{
    const JobOptions before = options({{u"multiple-document-handling"_qs, u"separate-documents-collated-copies"_qs}});
    EXPECT_EQ(
        collating(false, before, nullptr).lines(),
        QStringList({u"collate=False"_qs, u"multiple-document-handling=separate-documents-uncollated-copies"_qs}));
}

TEST(HoldUntil, TimeOfTheClock_IsCountedInUtc)
{
    qputenv("TZ", "XYZ-05:30"); // five and a half hours ahead, all the year
    tzset();
    EXPECT_EQ(holdUntilTime(QTime(21, 45)), u"16:15"_qs);
    EXPECT_EQ(holdUntilTime(QTime(3, 0)), u"21:30"_qs);
    EXPECT_EQ(timeOfHoldUntil(u"16:15"_qs), QTime(21, 45));
    EXPECT_EQ(timeOfHoldUntil(u"16:15:30"_qs), QTime(21, 45));
    EXPECT_FALSE(timeOfHoldUntil(u"night"_qs).has_value());
    qunsetenv("TZ");
    tzset();
}

TEST(JobTitle, ControlCharacters_AreBlanks)
{
    EXPECT_EQ(jobTitle(u"Labels\nfor\tMay\x1B[31m \x7F"_qs), u"Labels for May [31m"_qs);
    EXPECT_EQ(jobTitle(u"it's \"mine\" & <yours>"_qs), u"it's \"mine\" & <yours>"_qs);
    EXPECT_TRUE(jobTitle(u"\n\t"_qs).isEmpty());
}

TEST(JobTitle, LongerThan255Bytes_EndsWithAWholeCharacter)
{
    EXPECT_EQ(jobTitle(QString(300, u'a')), QString(255, u'a'));
    EXPECT_EQ(jobTitle(QString(200, u'\u00E4')), QString(127, u'\u00E4')); // two bytes each
    // A letter with a mark on it is one character of three bytes.
    EXPECT_EQ(jobTitle(QString(254, u'a') + u"e\u0301"_qs), QString(254, u'a'));
    // A family of eleven code units and 25 bytes that begins ten bytes before the end.
    const QString family = u"\U0001F468\u200D\U0001F469\u200D\U0001F467\u200D\U0001F466"_qs;
    EXPECT_EQ(jobTitle(QString(245, u'a') + family), QString(245, u'a'));
    EXPECT_EQ(jobTitle(QString(100000, u'\u3042')).toUtf8().size(), 255);
}

} // namespace
