// SPDX-License-Identifier: Apache-2.0
// What is offered of a description's options: its groups and order, without what others show or what is no choice.
#include "tests/job/TapePpd.h"

#include "job/OptionGroups.h"
#include "job/PpdTexts.h"
#include "tests/support/ProcessorTime.h"
#include "tests/support/TextPrinting.h"

#include <clocale>
#include <thread>

#include <gtest/gtest.h>

namespace
{

using namespace tapeprint::job;
using jobtest::ppdOf;
using jobtest::tapePpdText;

const QSet<QString> papers{u"PageSize"_qs, u"PageRegion"_qs};

QByteArray option(const QByteArray &keyword, const QByteArray &choices, const QByteArray &kind = "PickOne")
{
    const QByteArray name = keyword.left(keyword.indexOf('/') < 0 ? keyword.size() : keyword.indexOf('/'));
    QByteArray text = "*OpenUI *" + keyword + ": " + kind + "\n*OrderDependency: 20 AnySetup *" + name + "\n";
    const QList<QByteArray> each = choices.split(' ');
    text += "*Default" + name + ": " + each.first().left(each.first().indexOf('/')) + "\n";
    for (const QByteArray &choice : each) {
        text += "*" + name + " " + QByteArray(choice).replace('_', ' ') + ": \"\"\n";
    }
    return text + "*CloseUI: *" + name + "\n";
}

QByteArray group(const QByteArray &name, const QByteArray &options)
{
    return "*OpenGroup: " + name + "\n" + options + "*CloseGroup: " + name.left(name.indexOf('/')) + "\n";
}

/// Everything that is offered, a line an option: "Group | option: choice, choice".
QStringList offered(const QByteArray &lines, const QSet<QString> &elsewhere = papers)
{
    const PpdFile ppd = ppdOf(tapePpdText(lines));
    QStringList result;
    for (const OptionGroup &found : optionGroups(ppd.get(), elsewhere)) {
        for (const OfferedOption &each : found.options) {
            QStringList choices;
            for (const OfferedChoice &choice : each.choices) {
                choices.append(choice.text);
            }
            result.append(found.text + u" | "_qs + each.text + u": "_qs + choices.join(u", "_qs));
        }
    }
    return result;
}

TEST(OptionGroups, OfPrinterCommandsWithoutATitle_GetOneThatSaysSomething)
{
    const QByteArray commands = QByteArray(option("JCLEcono/Toner saving", "Off On"))
                                    .replace("*OpenUI", "*JCLOpenUI")
                                    .replace("*CloseUI", "*JCLCloseUI")
                                    .replace("AnySetup", "JCLSetup");
    EXPECT_EQ(offered(commands), QStringList{u"Printer Commands | Toner saving: Off, On"_qs});
    EXPECT_EQ(offered(group("JCL/Language of the Printer", commands)),
              QStringList{u"Language of the Printer | Toner saving: Off, On"_qs});
}

TEST(OptionGroups, StandInTheDescriptionsOrderUnderItsTexts)
{
    EXPECT_EQ(
        offered(group("Zone/Last first", option("Speed/Print speed", "Slow/Slowly Fast/Fast")) +
                option("Alone/On its own", "A/One B/Two") +
                group("Area/Then this", option("Cut/Cutter", "Off/No On/Yes") + option("Bell/Bell", "On/On Off/Off"))),
        (QStringList{u"General | On its own: One, Two"_qs, u"Last first | Print speed: Slowly, Fast"_qs,
                     u"Then this | Cutter: No, Yes"_qs, u"Then this | Bell: On, Off"_qs}));
}

TEST(OptionGroups, LeaveOutWhatOthersShowAndWhatIsNoChoice)
{
    EXPECT_EQ(offered(option("Mine/Mine", "A/A B/B") + option("Theirs/Theirs", "A/A B/B") + option("Only/Only", "A/A"),
                      papers + QSet<QString>{u"THEIRS"_qs}),
              QStringList{u"General | Mine: A, B"_qs});
}

TEST(OptionGroups, OneChoiceAndAnOwnValue_IsAChoice)
{
    EXPECT_EQ(
        offered(option("Pin/Pin", "None/None") + "*CustomPin True: \"\"\n*ParamCustomPin Code/Code: 1 passcode 4 4\n"),
        QStringList{u"General | Pin: None"_qs});
}

TEST(OptionGroups, CustomWithoutAnythingBehindIt_IsAChoiceLikeOthers)
{
    EXPECT_EQ(offered(option("Tone/Tone", "Plain/Plain Custom/As_set")),
              QStringList{u"General | Tone: Plain, As set"_qs});
}

TEST(OptionGroups, SameWording_IsToldApartByTheKeyword)
{
    EXPECT_EQ(offered(option("Dark1/Darkness", "A/Light B/light C/Dark") + option("Dark2/darkness", "A/A B/B")),
              (QStringList{u"General | Darkness (Dark1): Light (A), light (B), Dark"_qs,
                           u"General | darkness (Dark2): A, B"_qs}));
    // What a panel shows confuses nobody here.
    EXPECT_EQ(offered(option("Dark1/Darkness", "A/A B/B") + option("Dark2/Darkness", "A/A B/B"),
                      papers + QSet<QString>{u"Dark2"_qs}),
              QStringList{u"General | Darkness: A, B"_qs});
}

TEST(OptionGroups, WhatIsInstalled_IsSetApart)
{
    const PpdFile ppd =
        ppdOf(tapePpdText(group("InstallableOptions/Installed", option("Cutter/Cutter", "No/No Yes/Yes")) +
                          option("Cut/Cut", "No/No Yes/Yes")));
    const std::vector<OptionGroup> groups = optionGroups(ppd.get(), papers);
    ASSERT_EQ(groups.size(), 2U);
    EXPECT_FALSE(groups[0].isInstalled);
    EXPECT_EQ(groups[0].options.front().keyword, u"Cut"_qs);
    EXPECT_TRUE(groups[1].isInstalled);
    EXPECT_EQ(groups[1].options.front().keyword, u"Cutter"_qs);
}

TEST(OptionGroups, PickMany_TakesSeveral)
{
    const PpdFile ppd =
        ppdOf(tapePpdText(option("Extras/Extras", "A/A B/B", "PickMany") + option("One/One", "A/A B/B")));
    const std::vector<OptionGroup> groups = optionGroups(ppd.get(), papers);
    ASSERT_EQ(groups.size(), 1U);
    ASSERT_EQ(groups[0].options.size(), 2U);
    EXPECT_TRUE(groups[0].options[0].takesSeveral);
    EXPECT_FALSE(groups[0].options[1].takesSeveral);
}

TEST(OptionGroups, NoDescription_HasNone)
{
    EXPECT_TRUE(optionGroups(nullptr, {}).empty());
}

TEST(OptionGroups, TenThousandChoicesOfOneWording_AreToldApartInNoTime)
{
    QByteArray choices;
    for (int i = 0; i < 10000; ++i) {
        choices += (i == 0 ? "C" : " C") + QByteArray::number(i) + "/Same";
    }
    const PpdFile ppd = ppdOf(tapePpdText(option("Many/Many", choices)));
    std::vector<OptionGroup> groups;
    EXPECT_LT(tapeprint::test::processorMsOf([&] { groups = optionGroups(ppd.get(), papers); }),
              1000); // comparing each with each would take minutes
    ASSERT_EQ(groups.size(), 1U);
    ASSERT_EQ(groups[0].options[0].choices.size(), 10000U);
    EXPECT_EQ(groups[0].options[0].choices[9999].text, u"Same (C9999)"_qs);
}

TEST(PpdTexts, WrongEncoding_IsReadAsLatin1AndACutCharacterLeftOut)
{
    EXPECT_EQ(ppdText("Gr\xC3\xB6\xC3\x9F"
                      "e"),
              u"Größe"_qs);
    EXPECT_EQ(ppdText("Gr\xF6\xDF"
                      "e"),
              u"Größe"_qs);
    const QByteArray longText(77, 'x');
    EXPECT_EQ(ppdText(longText + "\xC3\xB6\xE6"), QString::fromUtf8(longText) + u'ö'); // 80 bytes, one of three
    EXPECT_EQ(ppdText(longText + " \xE6\xBC"), QString::fromUtf8(longText));           // two of three
    EXPECT_EQ(ppdText("Gro\xDF"), u"Groß"_qs);
    EXPECT_EQ(ppdText(nullptr), QString());
}

TEST(PpdTexts, ControlCharactersAndTurnsOfDirection_AreWrittenOut)
{
    EXPECT_EQ(ppdText("a\x1B[2J"), u"a\\x1B[2J"_qs);
    EXPECT_EQ(ppdText("Off\xE2\x80\xAEnO"), u"Off\\u202EnO"_qs);
}

TEST(PpdTexts, DeclaredAsUtf8ButLatin1_IsShownAllTheSame)
{
    QByteArray text = tapePpdText(option("Cut/Schneiden f\xFCr alle", "A/Gro\xDF B/B"));
    text.replace("*LanguageEncoding: ISOLatin1", "*LanguageEncoding: UTF-8");
    const PpdFile ppd = ppdOf(text);
    const std::vector<OptionGroup> groups = optionGroups(ppd.get(), papers);
    ASSERT_EQ(groups.size(), 1U);
    EXPECT_EQ(groups[0].options[0].text, u"Schneiden für alle"_qs);
    EXPECT_EQ(groups[0].options[0].choices[0].text, u"Groß"_qs);
}

const QByteArray translated = group("Finish/Finishing", option("Cut/Cut tape", "No/Never Yes/Always") +
                                                            "*CustomCut True: \"\"\n"
                                                            "*ParamCustomCut Every/Labels: 1 int 1 9\n") +
                              "*cupsLanguages: \"de pt_BR fr\"\n"
                              "*de.Translation Finish/Weiterverarbeitung: \"\"\n"
                              "*de.Translation Cut/Band schneiden: \"\"\n"
                              "*de.Cut Yes/Immer: \"\"\n"
                              "*de.ParamCustomCut Every/Etiketten: \"\"\n"
                              "*pt_BR.Translation Cut/Cortar fita: \"\"\n"
                              "*fr.Translation Cut/Couper: \"\"\n";

/// What is offered of it. \param environment libcups looks at that once a thread.
OptionGroup cutGroup(const QByteArray &environment, const QStringList &languages)
{
    OptionGroup found;
    std::thread reading([&] {
        const QByteArray before = qgetenv("LC_ALL");
        const QByteArray localeBefore(setlocale(LC_MESSAGES, nullptr));
        qputenv("LC_ALL", environment);
        setlocale(LC_MESSAGES, "C"); // then the environment counts, whatever is installed
        const PpdFile ppd = ppdOf(tapePpdText(translated));
        setlocale(LC_MESSAGES, localeBefore.constData());
        if (before.isNull()) {
            qunsetenv("LC_ALL");
        } else {
            qputenv("LC_ALL", before);
        }
        translateTexts(ppd.get(), languages);
        std::vector<OptionGroup> groups = optionGroups(ppd.get(), papers);
        if (groups.size() == 1) {
            found = groups.front();
        }
    });
    reading.join();
    return found;
}

TEST(PpdTexts, Translation_TakesThePlaceOfTheTextsThatItHas)
{
    const OptionGroup german = cutGroup("de_AT.UTF-8", {u"de-AT"_qs, u"fr"_qs});
    EXPECT_EQ(german.text, u"Weiterverarbeitung"_qs);
    EXPECT_EQ(german.options.at(0).text, u"Band schneiden"_qs);
    EXPECT_EQ(german.options.at(0).choices.at(0).text, u"Never"_qs);
    EXPECT_EQ(german.options.at(0).choices.at(1).text, u"Immer"_qs);
    EXPECT_EQ(german.options.at(0).customValues.at(0).text, u"Etiketten"_qs);
}

TEST(PpdTexts, LanguageWithACountry_IsFoundForThatCountryAlone)
{
    EXPECT_EQ(cutGroup("pt_BR.UTF-8", {u"pt-BR"_qs}).options.at(0).text, u"Cortar fita"_qs);
    EXPECT_EQ(cutGroup("pt_BR.UTF-8", {u"pt-PT"_qs}).options.at(0).text, u"Cut tape"_qs);
}

TEST(PpdTexts, LanguageThatIsMissing_IsPassedOverUpToEnglish)
{
    EXPECT_EQ(cutGroup("fr_FR.UTF-8", {u"ko"_qs, u"fr"_qs}).options.at(0).text, u"Couper"_qs);
    EXPECT_EQ(cutGroup("fr_FR.UTF-8", {u"en-GB"_qs, u"fr"_qs}).options.at(0).text, u"Cut tape"_qs);
    EXPECT_EQ(cutGroup("fr_FR.UTF-8", {}).options.at(0).text, u"Cut tape"_qs);
}

} // namespace
