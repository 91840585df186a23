// SPDX-License-Identifier: Apache-2.0
// Print settings and page setups of programs: what is understood of them, and what they are answered with. The printer
// is that of the job's tests: tapes of 72 points, which are 25.4 mm.
#include "job/PpdMarks.h"
#include "portal/PortalSettings.h"
#include "tests/job/TapePpd.h"
#include "tests/support/TextPrinting.h"

#include <gtest/gtest.h>

namespace
{

using jobtest::options;
using tapeprint::job::PpdFile;
using tapeprint::job::SettledJob;
using tapeprint::portal::answeredPageSetup;
using tapeprint::portal::answeredSettings;
using tapeprint::portal::AskedSettings;
using tapeprint::portal::askedSettings;
using tapeprint::portal::fitting;
using tapeprint::portal::withoutProgramsPart;

const QByteArray moreOptions = jobtest::customPages + R"PPD(*OpenUI *Length/Length: PickOne
*OrderDependency: 20 AnySetup *Length
*DefaultLength: 80.0
*Length 80.0/80: ""
*CloseUI: *Length
*OpenUI *Resolution: PickOne
*OrderDependency: 20 AnySetup *Resolution
*DefaultResolution: 300x300dpi
*Resolution 300x300dpi/300: ""
*Resolution 300x600dpi/600: ""
*CloseUI: *Resolution
*OpenUI *MediaType/Material: PickOne
*OrderDependency: 20 AnySetup *MediaType
*DefaultMediaType: Film
*MediaType Film/Film: ""
*MediaType Paper/Paper: ""
*CloseUI: *MediaType
*OpenUI *JobPin/PIN: PickOne
*OrderDependency: 20 AnySetup *JobPin
*DefaultJobPin: None
*JobPin None/None: ""
*CustomJobPin True: ""
*ParamCustomJobPin Pin/PIN: 1 passcode 4 4
*CloseUI: *JobPin
)PPD";

QVariantMap texts(std::initializer_list<std::pair<QString, QString>> entries)
{
    QVariantMap map;
    for (const auto &[key, value] : entries) {
        map.insert(key, value);
    }
    return map;
}

QStringList usual(const QVariantMap &settings, const QVariantMap &pageSetup = {})
{
    return askedSettings(settings, pageSetup).usual.lines();
}

class ProgramsSettings : public testing::Test
{
protected:
    QStringList fit(const QVariantMap &settings, const QVariantMap &pageSetup = {}) const
    {
        return fitting(askedSettings(settings, pageSetup), ppd.get()).lines();
    }

    /// A job on the queue "tape" with the tape as long as an option says, in mm.
    SettledJob job(std::initializer_list<tapeprint::job::JobOptions::Entry> entries) const
    {
        SettledJob settled;
        settled.queue = tapeprint::job::PrintQueue();
        settled.queue->name = u"tape"_qs;
        settled.options = options(entries);
        settled.page = jobtest::pageOf(jobtest::tapePpdText(moreOptions), entries);
        return settled;
    }

    PpdFile ppd = jobtest::ppdOf(jobtest::tapePpdText(moreOptions));
};

TEST_F(ProgramsSettings, UsualOnes_BecomeOptionsWithPagesCountedFromOne)
{
    EXPECT_EQ(usual(texts({{u"n-copies"_qs, u"3"_qs},
                           {u"collate"_qs, u"true"_qs},
                           {u"reverse"_qs, u"true"_qs},
                           {u"print-pages"_qs, u"ranges"_qs},
                           {u"page-ranges"_qs, u"0-2,4"_qs},
                           {u"page-set"_qs, u"even"_qs},
                           {u"number-up"_qs, u"4"_qs},
                           {u"number-up-layout"_qs, u"tbrl"_qs}})),
              (QStringList{u"copies=3"_qs, u"collate=True"_qs, u"outputorder=reverse"_qs, u"page-set=even"_qs,
                           u"number-up=4"_qs, u"number-up-layout=tbrl"_qs, u"page-ranges=1-3,5"_qs}));
}

TEST_F(ProgramsSettings, ThoseThatSayNothing_LayNothingDown)
{
    EXPECT_EQ(usual(texts({{u"n-copies"_qs, u"1"_qs},
                           {u"collate"_qs, u"false"_qs},
                           {u"number-up-layout"_qs, u"lrtb"_qs},
                           {u"reverse"_qs, u"false"_qs},
                           {u"page-set"_qs, u"all"_qs},
                           {u"number-up"_qs, u"1"_qs},
                           {u"print-pages"_qs, u"all"_qs},
                           {u"page-ranges"_qs, u"0-2"_qs}, // of an earlier print: all pages are wanted
                           {u"orientation"_qs, u"portrait"_qs}})),
              QStringList());
}

TEST_F(ProgramsSettings, NonsenseAndUnknownKeys_AreLeftOut)
{
    EXPECT_EQ(usual(texts({{u"n-copies"_qs, u"-1"_qs},
                           {u"collate"_qs, u"perhaps"_qs},
                           {u"reverse"_qs, u""_qs},
                           {u"page-set"_qs, u"prime"_qs},
                           {u"number-up"_qs, u"two"_qs},
                           {u"number-up-layout"_qs, u"lrlr"_qs},
                           {u"orientation"_qs, u"askew"_qs},
                           {u"stranger"_qs, u"value"_qs}})),
              QStringList());
    EXPECT_EQ(usual(texts({{u"n-copies"_qs, u"99999999999999999999"_qs}})), QStringList());
    EXPECT_EQ(usual(texts({{u"page-ranges"_qs, QString(100000, u'9')}})), QStringList());
}

TEST_F(ProgramsSettings, PagesThatAreNoList_AreShownToThePersonInPlaceOfAllPages)
{
    for (const auto &[asked, shown] : {std::pair{u"5-3"_qs, u"page-ranges=6-4"_qs},
                                       {u"a"_qs, u"page-ranges=a"_qs},
                                       {u"0,x,7"_qs, u"page-ranges=1,x,8"_qs},
                                       {u"2147483647"_qs, u"page-ranges=2147483647"_qs},
                                       {u"99999999999"_qs, u"page-ranges=99999999999"_qs},
                                       {u"1-\n"_qs, u"page-ranges=2-\\n"_qs}}) {
        EXPECT_EQ(usual(texts({{u"page-ranges"_qs, asked}})), QStringList{shown});
    }
}

TEST_F(ProgramsSettings, ValuesOfOtherTypes_AreLeftOut)
{
    const QVariantMap settings{{u"n-copies"_qs, 2},
                               {u"collate"_qs, true},
                               {u"printer"_qs, QStringList{u"tape"_qs}},
                               {u"page-ranges"_qs, QVariantMap{{u"a"_qs, 1}}},
                               {u"cups-Resolution"_qs, 300.0}};
    const AskedSettings asked = askedSettings(settings, {{u"Width"_qs, u"25.4"_qs}, {u"Height"_qs, 1}});
    EXPECT_EQ(asked.usual.lines(), QStringList());
    EXPECT_EQ(asked.ofPpd.lines(), QStringList());
    EXPECT_EQ(asked.printer, QString());
    EXPECT_TRUE(asked.paperMm.isEmpty());
    EXPECT_TRUE(asked.given.isEmpty());
}

TEST_F(ProgramsSettings, PrintersOwnOnes_AreTakenWhenThePrinterHasThem)
{
    EXPECT_EQ(fit(texts({{u"cups-Resolution"_qs, u"300x600dpi"_qs},
                         {u"cups-length"_qs, u"75.5"_qs}, // a number that is not listed, and the name in other letters
                         {u"cups-MediaType"_qs, u"Vinyl"_qs},
                         {u"cups-Duplex"_qs, u"None"_qs},
                         {u"cups-"_qs, u"x"_qs}})),
              (QStringList{u"Resolution=300x600dpi"_qs, u"Length=75.5"_qs}));
    EXPECT_EQ(fit(texts({{u"media-type"_qs, u"Paper"_qs}, {u"default-source"_qs, u"Tray"_qs}})),
              QStringList{u"MediaType=Paper"_qs});
    // The printer's own word goes before the general one.
    EXPECT_EQ(fit(texts({{u"resolution"_qs, u"300"_qs}, {u"cups-Resolution"_qs, u"300x600dpi"_qs}})),
              QStringList{u"Resolution=300x600dpi"_qs});
    EXPECT_EQ(fit(texts({{u"resolution"_qs, u"300"_qs}})), QStringList{u"Resolution=300x300dpi"_qs});
}

TEST_F(ProgramsSettings, WithoutADescription_NothingFits)
{
    EXPECT_EQ(fitting(askedSettings(texts({{u"cups-Resolution"_qs, u"300x600dpi"_qs},
                                           {u"paper-width"_qs, u"25.4"_qs},
                                           {u"paper-height"_qs, u"50.8"_qs}}),
                                    {}),
                      nullptr)
                  .lines(),
              QStringList());
}

TEST_F(ProgramsSettings, PaperOfASizeThatThePrinterHas_IsTaken)
{
    // S72 is 25.4 x 50.8 mm. What the settings say goes before the page setup.
    EXPECT_EQ(fit(texts({{u"paper-width"_qs, u"25.4"_qs}, {u"paper-height"_qs, u"50.7"_qs}}),
                  {{u"Width"_qs, 25.4}, {u"Height"_qs, 101.6}}),
              QStringList{u"PageSize=S72"_qs});
    EXPECT_EQ(fit({}, {{u"Width"_qs, 25.4}, {u"Height"_qs, 101.6}}), QStringList{u"PageSize=T72"_qs});
    EXPECT_EQ(fit({}, {{u"Width"_qs, 210.0}, {u"Height"_qs, 297.0}}), QStringList());
    EXPECT_EQ(fit({}, {{u"Width"_qs, qQNaN()}, {u"Height"_qs, qInf()}}), QStringList());
    EXPECT_EQ(fit({}, {{u"Width"_qs, -25.4}, {u"Height"_qs, 50.8}}), QStringList());
}

TEST_F(ProgramsSettings, PageSetupWithoutASize_IsNoReasonToFail)
{
    EXPECT_TRUE(askedSettings({}, {{u"Orientation"_qs, u"landscape"_qs}}).paperMm.isEmpty());
    EXPECT_EQ(usual({}, {{u"Orientation"_qs, u"landscape"_qs}}), QStringList{u"orientation-requested=4"_qs});
    EXPECT_EQ(usual({}, {{u"Orientation"_qs, u"reverse_landscape"_qs}}), QStringList{u"orientation-requested=5"_qs});
}

TEST_F(ProgramsSettings, Answer_TellsTheProgramThatThereIsNothingToDoTwice)
{
    const QVariantMap given = texts({{u"n-copies"_qs, u"3"_qs},
                                     {u"scale"_qs, u"50"_qs},
                                     {u"cups-Other"_qs, u"of another printer"_qs},
                                     {u"printer"_qs, u"office"_qs}});
    const SettledJob settled = job({{u"copies"_qs, u"2"_qs},
                                    {u"page-ranges"_qs, u"1-2"_qs},
                                    {u"number-up"_qs, u"2"_qs},
                                    {u"outputorder"_qs, u"reverse"_qs},
                                    {u"page-set"_qs, u"odd"_qs},
                                    {u"Collate"_qs, u"True"_qs},
                                    {u"PageSize"_qs, u"S72"_qs},
                                    {u"Resolution"_qs, u"300x600dpi"_qs},
                                    {u"MediaType"_qs, u"Paper"_qs},
                                    {u"job-hold-until"_qs, u"indefinite"_qs}});
    EXPECT_EQ(answeredSettings(askedSettings(given, {}), settled, ppd.get()),
              texts({{u"n-copies"_qs, u"1"_qs},
                     {u"collate"_qs, u"false"_qs},
                     {u"reverse"_qs, u"false"_qs},
                     {u"page-set"_qs, u"all"_qs},
                     {u"number-up"_qs, u"1"_qs},
                     {u"number-up-layout"_qs, u"lrtb"_qs},
                     {u"print-pages"_qs, u"all"_qs},
                     {u"scale"_qs, u"50"_qs}, // the program's own to apply
                     {u"printer"_qs, u"tape"_qs},
                     {u"orientation"_qs, u"portrait"_qs},
                     {u"paper-format"_qs, u"custom-tape_25.4x50.8mm"_qs},
                     {u"paper-width"_qs, u"25.4"_qs},
                     {u"paper-height"_qs, u"50.8"_qs},
                     {u"cups-PageSize"_qs, u"S72"_qs},
                     {u"cups-Resolution"_qs, u"300x600dpi"_qs},
                     {u"resolution"_qs, u"300"_qs},
                     {u"cups-MediaType"_qs, u"Paper"_qs},
                     {u"media-type"_qs, u"Paper"_qs}}));
}

TEST_F(ProgramsSettings, AnswerThatComesBack_LaysTheSameDown)
{
    const SettledJob settled =
        job({{u"PageSize"_qs, u"T72"_qs}, {u"Length"_qs, u"75.5"_qs}, {u"Resolution"_qs, u"300x600dpi"_qs}});
    const QVariantMap answer = answeredSettings({}, settled, ppd.get());
    EXPECT_EQ(answer[u"printer"_qs], u"tape"_qs);
    EXPECT_EQ(fit(answer, answeredPageSetup(settled)),
              (QStringList{u"PageSize=T72"_qs, u"Resolution=300x600dpi"_qs, u"Length=75.5"_qs}));
    EXPECT_EQ(usual(answer), QStringList());
}

TEST_F(ProgramsSettings, CurrentPageAndSelection_StayTheProgramsToPrint)
{
    for (const QString &part : {u"current"_qs, u"selection"_qs}) {
        const AskedSettings asked = askedSettings(texts({{u"print-pages"_qs, part}, {u"page-ranges"_qs, u"0"_qs}}), {});
        EXPECT_TRUE(asked.printsPart);
        EXPECT_EQ(asked.usual.lines(), QStringList());
        EXPECT_EQ(answeredSettings(asked, job({}), ppd.get())[u"print-pages"_qs], part);
    }
}

TEST_F(ProgramsSettings, PasswordsOfThePrinter_AreToldToNoProgram)
{
    const QVariantMap answer = answeredSettings({}, job({{u"JobPin"_qs, u"Custom.1234"_qs}}), ppd.get());
    EXPECT_FALSE(answer.contains(u"cups-JobPin"_qs));
}

TEST_F(ProgramsSettings, PageSetupOfTheAnswer_IsTheTapeAsItIsWithItsMargins)
{
    // 68.03 points are 24 mm, 425.2 points 150 mm; strips of 2, 1, 4 and 5 points, and 14.4 kept free at the ends.
    SettledJob settled = job({});
    settled.page.sizePt = {68.0315, 425.1969};
    settled.page.unprintablePt = {2.0, 1.0, 4.0, 5.0};
    settled.page.freeEndsPt = 14.4;
    const auto number = [](const QVariantMap &setup, const QString &key) { return setup[key].toDouble(); };
    const QVariantMap setup = answeredPageSetup(settled);
    EXPECT_NEAR(number(setup, u"Width"_qs), 24.0, 0.001);
    EXPECT_NEAR(number(setup, u"Height"_qs), 150.0, 0.001);
    EXPECT_NEAR(number(setup, u"MarginLeft"_qs), 2.0 / 72 * 25.4, 0.001);
    EXPECT_NEAR(number(setup, u"MarginRight"_qs), 4.0 / 72 * 25.4, 0.001);
    EXPECT_NEAR(number(setup, u"MarginTop"_qs), 14.4 / 72 * 25.4, 0.001);
    EXPECT_NEAR(number(setup, u"MarginBottom"_qs), 14.4 / 72 * 25.4, 0.001);
    EXPECT_EQ(setup[u"Orientation"_qs], u"portrait"_qs);
    EXPECT_EQ(setup[u"Name"_qs], u"tape_24.0x150.0mm"_qs);

    settled.options = options({{u"orientation-requested"_qs, u"4"_qs}});
    const QVariantMap lying = answeredPageSetup(settled);
    EXPECT_EQ(lying[u"Orientation"_qs], u"landscape"_qs);
    EXPECT_NEAR(number(lying, u"Width"_qs), 24.0, 0.001);                 // the paper itself stands
    EXPECT_NEAR(number(lying, u"MarginLeft"_qs), 2.0 / 72 * 25.4, 0.001); // and so do its margins
    EXPECT_NEAR(number(lying, u"MarginTop"_qs), 14.4 / 72 * 25.4, 0.001);
    // What the program has turned is not turned again.
    EXPECT_EQ(withoutProgramsPart(settled).options.lines(), QStringList());
}

TEST_F(ProgramsSettings, TurnThatThePersonChose_IsToldAndAskedForAgain)
{
    SettledJob settled = job({});
    settled.page.isTape = true;
    EXPECT_EQ(answeredPageSetup(settled)[u"Orientation"_qs], u"portrait"_qs);
    EXPECT_EQ(usual(answeredSettings({}, settled, nullptr), answeredPageSetup(settled)), QStringList());
    settled.options = options({{u"orientation-requested"_qs, u"4"_qs}});
    EXPECT_EQ(answeredSettings({}, settled, nullptr)[u"orientation"_qs], u"landscape"_qs);
    EXPECT_EQ(usual(answeredSettings({}, settled, nullptr), answeredPageSetup(settled)),
              QStringList{u"orientation-requested=4"_qs});
}

TEST_F(ProgramsSettings, PrinterWithoutAPaper_AnswersWhatIsKnown)
{
    SettledJob settled;
    EXPECT_EQ(answeredPageSetup(settled), (QVariantMap{{u"Orientation"_qs, u"portrait"_qs}}));
    const QVariantMap answer = answeredSettings({}, settled, nullptr);
    EXPECT_FALSE(answer.contains(u"paper-width"_qs));
    EXPECT_FALSE(answer.contains(u"printer"_qs));
}

} // namespace
