// SPDX-License-Identifier: Apache-2.0
// What a laid-out job tells the filters: its page, and nothing that they would do a second time.
#include "job/FilterOptions.h"

#include "job/LabelPlan.h"
#include "job/PageLayout.h"
#include "tests/job/TapePpd.h"
#include "tests/support/TextPrinting.h"

#include <gtest/gtest.h>

namespace
{

using namespace tapeprint::job; // NOLINT(google-build-using-namespace): the test is about all of it
using jobtest::options;

TapePage tape()
{
    TapePage page;
    page.pageSize = u"Custom.24x80mm"_qs;
    page.sizePt = {68, 227};
    page.isTape = true;
    return page;
}

TEST(FilterOptions_Tape, PageSizeAndNoScaling_AreWhatTheFiltersGet)
{
    EXPECT_EQ(filterOptions(options({{u"PageSize"_qs, u"24mm"_qs}, {u"KsTapeLength"_qs, u"80.0"_qs}}), tape()).lines(),
              QStringList({u"PageSize=Custom.24x80mm"_qs, u"KsTapeLength=80.0"_qs, u"print-scaling=none"_qs}));
}

TEST(FilterOptions_Tape, WhatSelectsAndPlacesPages_StaysBehind)
{
    // The names are CUPS's, written down here so that none is forgotten there.
    const JobOptions all = options({{u"page-ranges"_qs, u"1-2"_qs},
                                    {u"page-set"_qs, u"even"_qs},
                                    {u"outputorder"_qs, u"reverse"_qs},
                                    {u"OutputOrder"_qs, u"Reverse"_qs},
                                    {u"print-scaling"_qs, u"fill"_qs},
                                    {u"fit-to-page"_qs, u"true"_qs},
                                    {u"fitplot"_qs, u"true"_qs},
                                    {u"scaling"_qs, u"50"_qs},
                                    {u"natural-scaling"_qs, u"50"_qs},
                                    {u"ppi"_qs, u"100"_qs},
                                    {u"orientation-requested"_qs, u"4"_qs},
                                    {u"landscape"_qs, u"true"_qs},
                                    {u"position"_qs, u"top"_qs},
                                    {u"number-up"_qs, u"4"_qs},
                                    {u"number-up-layout"_qs, u"tblr"_qs},
                                    {u"page-border"_qs, u"single"_qs},
                                    {u"fit-length"_qs, u"true"_qs},
                                    {u"media"_qs, u"24mm"_qs},
                                    {u"PageRegion"_qs, u"24mm"_qs},
                                    {u"page-left"_qs, u"10"_qs},
                                    {u"page-right"_qs, u"10"_qs},
                                    {u"page-top"_qs, u"10"_qs},
                                    {u"page-bottom"_qs, u"10"_qs},
                                    {u"nopdfAutorotate"_qs, u"true"_qs},
                                    {u"pdfAutorotate"_qs, u"true"_qs},
                                    {u"copies"_qs, u"3"_qs}});
    EXPECT_EQ(filterOptions(all, tape()).lines(),
              QStringList({u"copies=3"_qs, u"PageSize=Custom.24x80mm"_qs, u"print-scaling=none"_qs}));
}

TEST(FilterOptions_Tape, EveryOptionThatTheLayoutReads_StaysBehind)
{
    for (const QString &name : layoutOptionNames() + selectionOptionNames()) {
        const JobOptions carried = filterOptions(options({{name, u"1"_qs}}), tape());
        EXPECT_EQ(carried.value(name), name == u"print-scaling" ? u"none"_qs : QString()) << name.toStdString();
    }
}

TEST(FilterOptions_Paper, EverythingButFitLength_GoesToTheFilters)
{
    TapePage paper = tape();
    paper.isTape = false;
    const JobOptions asked = options({{u"page-ranges"_qs, u"1-2"_qs},
                                      {u"number-up"_qs, u"4"_qs},
                                      {u"media"_qs, u"A4"_qs},
                                      {u"PageSize"_qs, u"A4"_qs},
                                      {u"fit-length"_qs, u"true"_qs},
                                      {u"scaling"_qs, u"50"_qs}});
    EXPECT_EQ(filterOptions(asked, paper).lines(), QStringList({u"page-ranges=1-2"_qs, u"number-up=4"_qs,
                                                                u"media=A4"_qs, u"PageSize=A4"_qs, u"scaling=50"_qs}));
    EXPECT_EQ(filterOptions({}, paper), JobOptions());
}

TEST(FilterOptions_Paper, WhatServersAndFiltersRefuse_IsPutAsTheyTakeIt)
{
    TapePage paper = tape();
    paper.isTape = false;
    EXPECT_EQ(filterOptions(options({{u"page-ranges"_qs, u"7, 1-3"_qs}}), paper).lines(),
              QStringList{u"page-ranges=1-3,7"_qs});
    EXPECT_EQ(filterOptions(options({{u"orientation-requested"_qs, u"0"_qs}}), paper), JobOptions());
    EXPECT_EQ(filterOptions(options({{u"orientation-requested"_qs, u"4"_qs}}), paper).lines(),
              QStringList{u"orientation-requested=4"_qs});
}

TEST(FilterOptions_Effect, OptionsThatTapeIgnores_AreSaidOnce)
{
    const JobOptions chosen =
        options({{u"scaling"_qs, u"50"_qs}, {u"page-border"_qs, u"none"_qs}, {u"number-up-layout"_qs, u"tblr"_qs}});
    EXPECT_EQ(optionsWithoutEffect(chosen, tape()),
              QStringList{u"Option scaling changes nothing on tape: say how pages lie on it by print-scaling, "
                          "orientation-requested, position and number-up."_qs});
    TapePage paper = tape();
    paper.isTape = false;
    EXPECT_TRUE(optionsWithoutEffect(chosen, paper).isEmpty());
    EXPECT_EQ(optionsWithoutEffect(options({{u"number-up"_qs, u"5"_qs}}), paper),
              QStringList{u"number-up=5 is none of the numbers that the print system knows: each page has a sheet of "
                          "its own."_qs});
}

} // namespace
