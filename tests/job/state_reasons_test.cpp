// SPDX-License-Identifier: Apache-2.0
// The reasons that printers give, in words.
#include "job/StateReasons.h"

#include <gtest/gtest.h>

namespace
{

using namespace tapeprint::job;

struct Case {
    const char *keyword;
    ReasonWeight weight;
    const char *onTape;
    const char *onPaper;
};

TEST(StateReasons, Keywords_AreReadWithTheirWeightAndSaidInWords)
{
    const Case cases[]{
        {"media-empty-error", ReasonWeight::Error, "out of tape", "out of paper"},
        {"media-empty", ReasonWeight::Error, "out of tape", "out of paper"},
        {"media-needed-report", ReasonWeight::Report, "other tape is needed", "other paper is needed"},
        {"cover-open-warning", ReasonWeight::Warning, "the cover is open", "the cover is open"},
        {"door-open", ReasonWeight::Error, "a door is open", "a door is open"},
        {"marker-supply-low-warning", ReasonWeight::Warning, "little ink is left", "little ink is left"},
        {"marker-supply-low", ReasonWeight::Warning, "little ink is left", "little ink is left"},
        {"marker-supply-empty", ReasonWeight::Error, "out of ink", "out of ink"},
        {"paused", ReasonWeight::Error, "paused", "paused"},
        {"offline-report", ReasonWeight::Report, "switched off or not connected", "switched off or not connected"},
        {"connecting-to-device", ReasonWeight::Report, "being connected", "being connected"},
        {"cups-waiting-for-job-completed", ReasonWeight::Report, "the printer is at work", "the printer is at work"},
        {"cups-remote-processing", ReasonWeight::Report, "cups remote processing", "cups remote processing"},
        {"timed-out", ReasonWeight::Error, "it does not answer", "it does not answer"},
        {"shutdown", ReasonWeight::Error, "switched off or not connected", "switched off or not connected"},
        {"spool-area-full-warning", ReasonWeight::Warning, "the print server's disk is full",
         "the print server's disk is full"},
    };
    for (const Case &each : cases) {
        const StateReason reason = StateReason::parse(QString::fromLatin1(each.keyword));
        EXPECT_EQ(reason.weight, each.weight) << each.keyword;
        EXPECT_EQ(reason.words(true), QString::fromLatin1(each.onTape)) << each.keyword;
        EXPECT_EQ(reason.words(false), QString::fromLatin1(each.onPaper)) << each.keyword;
    }
}

TEST(StateReasons, KeywordThatADriverInvented_IsShownHarmlessly)
{
    EXPECT_EQ(StateReason::parse(u"com.example-blade-worn-warning"_qs).words(true), u"com.example blade worn"_qs);
    EXPECT_EQ(StateReason::parse(u"\u202Egnorw\x1B[2J"_qs).words(true), u"\\u202Egnorw\\x1B[2J"_qs);
}

TEST(StateReasons, None_IsNoReasonAndTheHeaviestComesFirst)
{
    EXPECT_TRUE(stateReasons({u"none"_qs}).empty());
    const std::vector<StateReason> reasons =
        stateReasons({u"connecting-to-device"_qs, u"toner-low-warning"_qs, u"media-jam"_qs, u"cover-open-error"_qs});
    ASSERT_EQ(reasons.size(), 4U);
    EXPECT_EQ(reasons[0].keyword, u"media-jam"_qs);
    EXPECT_EQ(reasons[1].keyword, u"cover-open"_qs);
    EXPECT_EQ(reasons[2].keyword, u"toner-low"_qs);
    EXPECT_EQ(reasons[3].keyword, u"connecting-to-device"_qs);
}

} // namespace
