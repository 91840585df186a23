// SPDX-License-Identifier: Apache-2.0
// Presets in a file of the test's own, as libcups and other programs know them.
#include "TapePpd.h"

#include "job/LastSettings.h"
#include "job/PresetOptions.h"
#include "job/Presets.h"
#include "tests/support/CupsHome.h"
#include "tests/support/TextPrinting.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <array>
#include <csignal>
#include <memory>
#include <thread>

#include <cups/cups.h>
#include <cups/file.h>
#include <gtest/gtest.h>
#include <sys/resource.h>

namespace
{

using namespace tapeprint::job;
using jobtest::options;

class Presets : public testing::Test
{
protected:
    QString ownPath() const { return home.ownPath(); }
    QString otherPath() const { return home.otherPath(); }
    QByteArray written() const { return home.written(); }
    static void write(const QString &path, const QByteArray &bytes) { CupsHome::write(path, bytes); }
    QStringList names(const QString &queue)
    {
        QStringList names;
        for (const Preset &preset : presetsOf(queue, &error)) {
            names.append(preset.name);
        }
        return names;
    }

    CupsHome home;
    Problem error;
};

TEST_F(Presets, TwoWritersAtOnce_LoseNothingOfEachOther)
{
    write(ownPath(), "Dest office/kept x=y\n");
    constexpr int each = 40;
    const auto saveMany = [](const QString &queue) {
        Problem problem;
        for (int i = 0; i < each; ++i) {
            EXPECT_TRUE(savePreset(queue, u"p%1"_qs.arg(i), options({{u"A"_qs, u"1"_qs}}), &problem));
        }
    };
    std::thread other([&saveMany] { saveMany(u"second"_qs); });
    saveMany(u"first"_qs);
    other.join();
    EXPECT_EQ(names(u"first"_qs).size(), each);
    EXPECT_EQ(names(u"second"_qs).size(), each);
    EXPECT_EQ(names(u"office"_qs), QStringList{u"kept"_qs});
}

TEST_F(Presets, Saving_KeepsEveryOtherLineAsItWas)
{
    const QByteArray others = "# my printers\n"
                              "\n"
                              "Dest office/draft   print-quality=3  # fast\n"
                              "Default gone/a Option=\"two words\"\n"
                              "dest tape/my small labels x=y\n"
                              "what is this\n"
                              "Dest tape KsMargin=2.0\n";
    write(ownPath(), others);
    ASSERT_TRUE(
        savePreset(u"tape"_qs, u"red"_qs, options({{u"PageSize"_qs, u"W12"_qs}, {u"Ink"_qs, u"Red"_qs}}), &error))
        << error.sentence.toStdString();
    EXPECT_EQ(written(), others + "Dest tape/red PageSize=W12 Ink=Red\n");
}

TEST_F(Presets, SavingOver_ReplacesTheLineWhereItStands)
{
    write(ownPath(), "Default tape/Red Ink=Red KsMargin=5.0\nDest office A=1\nDest tape/red Ink=Blue\n");
    ASSERT_TRUE(savePreset(u"tape"_qs, u"red"_qs, options({{u"Ink"_qs, u"Dark"_qs}}), &error))
        << error.sentence.toStdString();
    EXPECT_EQ(written(), "Default tape/Red Ink=Dark\nDest office A=1\n");
}

TEST_F(Presets, OfAPersonWithoutAny_AreNone)
{
    EXPECT_EQ(names(u"tape"_qs), QStringList());
    EXPECT_TRUE(error.isNull()) << error.sentence.toStdString();
}

TEST_F(Presets, AreListedByNameWithThoseForEverybody)
{
    write(ownPath(), "Dest tape/red Ink=Red\nDest tape A=1\nDest other/thin B=2\nDest TAPE/Amber Ink=Amber\n");
    write(otherPath(), "Dest tape/house Ink=Black\n");
    const std::vector<Preset> presets = presetsOf(u"tape"_qs, &error);
    ASSERT_EQ(presets.size(), 3U);
    EXPECT_EQ(presets[0].name, u"Amber"_qs);
    EXPECT_EQ(presets[1].name, u"house"_qs);
    EXPECT_EQ(presets[2].name, u"red"_qs);
    EXPECT_TRUE(presets[0].isOwn);
    EXPECT_FALSE(presets[1].isOwn);
    EXPECT_EQ(presets[2].options.lines(), QStringList{u"Ink=Red"_qs});
    EXPECT_EQ(savedForQueue(u"tape"_qs, &error).lines(), QStringList{u"A=1"_qs});
}

TEST_F(Presets, ANameWithBlanksInTheFile_IsSurvivedAsCupsReadsIt)
{
    // libcups ends the name at the blank, and takes the rest for options.
    write(ownPath(), "Dest tape/my small labels Ink=Red\n");
    const std::vector<Preset> presets = presetsOf(u"tape"_qs, &error);
    ASSERT_EQ(presets.size(), 1U);
    EXPECT_EQ(presets[0].name, u"my"_qs);
    EXPECT_EQ(presets[0].options.value(u"Ink"_qs), u"Red"_qs);
    ASSERT_TRUE(deletePreset(u"tape"_qs, u"my"_qs, &error));
    EXPECT_EQ(written(), "");
}

TEST_F(Presets, Name_ThatCupsCannotKeep_IsRefusedAndABetterOneOffered)
{
    for (const QString &name :
         {u""_qs, u"two words"_qs, u"a/b"_qs, u"a\\b"_qs, u"\"a\""_qs, u"a'b"_qs, u"a#b"_qs, u"a\tb"_qs, u"a\u0007"_qs,
          u"a\u2028b"_qs, u"a\u202Eb"_qs, u"a\u00A0b"_qs, QString(128, u'a'), QString(64, QChar(0x00e4))}) {
        EXPECT_FALSE(problemWithPresetName(name).isNull()) << name.toStdString();
        error = {};
        EXPECT_FALSE(savePreset(u"tape"_qs, name, options({{u"A"_qs, u"1"_qs}}), &error)) << name.toStdString();
        EXPECT_FALSE(error.isNull());
        EXPECT_TRUE(name.isEmpty() || problemWithPresetName(suitablePresetName(name)).isNull()) << name.toStdString();
    }
    EXPECT_FALSE(QFile::exists(ownPath()));
    EXPECT_EQ(suitablePresetName(u"  Small labels / 12 mm "_qs), u"Small-labels-12-mm"_qs);
    EXPECT_EQ(suitablePresetName(u"größe"_qs), u"größe"_qs);
    EXPECT_EQ(suitablePresetName(u"///"_qs), QString());
    EXPECT_EQ(suitablePresetName(QString(64, QChar(0x00e4))),
              QString(63, QChar(0x00e4))); // two bytes each, 127 at most
    EXPECT_TRUE(problemWithPresetName(QString(127, u'a')).isNull());
    EXPECT_TRUE(problemWithPresetName(u"größe"_qs).isNull());
}

TEST_F(Presets, ValuesOfEveryKind_AreReadByCupsAsTheyWereSaved)
{
    const JobOptions saved = options({{u"Plain"_qs, u"12.5"_qs},
                                      {u"Blanks"_qs, u"two  words "_qs},
                                      {u"Quotes"_qs, u"say \"a\" or 'b'"_qs},
                                      {u"Slashes"_qs, u"a\\b\\"_qs},
                                      {u"Hash"_qs, u"a#b \\# c"_qs},
                                      {u"Braces"_qs, u"{Width=1 Height=2}"_qs},
                                      {u"Umlaut"_qs, u"größe"_qs},
                                      {u"Custom"_qs, u"Custom.10x20mm"_qs}});
    ASSERT_TRUE(savePreset(u"tape"_qs, u"odd"_qs, saved, &error)) << error.sentence.toStdString();
    // The line goes through libcups' own reader of such files and its own parser of options.
    const std::unique_ptr<cups_file_t, int (*)(cups_file_t *)> file(
        cupsFileOpen(QFile::encodeName(ownPath()).constData(), "r"), cupsFileClose);
    std::array<char, 8192> line{};
    char *value = nullptr;
    int number = 0;
    ASSERT_NE(cupsFileGetConf(file.get(), line.data(), line.size(), &value, &number), nullptr);
    const QByteArray rest(value);
    ASSERT_TRUE(rest.startsWith("tape/odd ")) << rest.toStdString();
    cups_option_t *parsed = nullptr;
    const int count = cupsParseOptions(rest.constData() + 9, 0, &parsed);
    EXPECT_EQ(count, 8);
    for (const auto &[name, text] : saved.entries()) {
        EXPECT_EQ(QString::fromUtf8(cupsGetOption(name.toUtf8().constData(), count, parsed)), text)
            << name.toStdString();
    }
    cupsFreeOptions(count, parsed);
    EXPECT_TRUE(meanTheSame(presetsOf(u"tape"_qs, &error).at(0).options, saved));
}

TEST_F(Presets, MoreThanCupsReadsOfALine_IsRefusedAndNothingWritten)
{
    write(ownPath(), "Dest tape/old A=1\n");
    JobOptions many;
    for (int i = 0; i < 1000; ++i) {
        many.set(u"Option%1"_qs.arg(i), u"Value"_qs);
    }
    EXPECT_FALSE(savePreset(u"tape"_qs, u"many"_qs, many, &error));
    EXPECT_EQ(error.sentence, u"These are more options than CUPS keeps in a preset."_qs);
    error = {};
    EXPECT_FALSE(savePreset(u"tape"_qs, u"lines"_qs, options({{u"A"_qs, u"1\nDefault evil"_qs}}), &error));
    EXPECT_EQ(error.sentence, u"An option has a value that CUPS cannot keep in a preset."_qs);
    EXPECT_EQ(written(), "Dest tape/old A=1\n");
}

TEST_F(Presets, Renaming_ChangesTheNameAlone)
{
    write(ownPath(), "Dest tape/red Ink=\"Dark \\#2\"\nDest other/red A=1\nDest tape/blue Ink=Blue\n");
    ASSERT_TRUE(renamePreset(u"tape"_qs, u"red"_qs, u"dark"_qs, &error)) << error.sentence.toStdString();
    EXPECT_EQ(written(), "Dest tape/dark Ink=\"Dark \\#2\"\nDest other/red A=1\nDest tape/blue Ink=Blue\n");
    EXPECT_FALSE(renamePreset(u"tape"_qs, u"dark"_qs, u"Blue"_qs, &error));
    EXPECT_EQ(error.sentence, u"There is a preset Blue already."_qs);
    EXPECT_FALSE(renamePreset(u"tape"_qs, u"red"_qs, u"green"_qs, &error));
    EXPECT_EQ(names(u"tape"_qs), (QStringList{u"blue"_qs, u"dark"_qs}));
    EXPECT_TRUE(renamePreset(u"tape"_qs, u"dark"_qs, u"DARK"_qs, &error)) << error.sentence.toStdString();
    EXPECT_EQ(names(u"tape"_qs), (QStringList{u"blue"_qs, u"DARK"_qs}));
}

TEST_F(Presets, OneIsTheDefaultAtMost)
{
    write(ownPath(), "Default office A=1\nDest tape/red Ink=Red\n");
    ASSERT_TRUE(makePresetDefault(u"tape"_qs, u"red"_qs, &error)) << error.sentence.toStdString();
    EXPECT_EQ(written(), "Dest office A=1\nDefault tape/red Ink=Red\n");
    EXPECT_TRUE(presetsOf(u"tape"_qs, &error).at(0).isDefault);
    ASSERT_TRUE(makePresetDefault(u"tape"_qs, {}, &error)) << error.sentence.toStdString();
    EXPECT_EQ(written(), "Dest office A=1\nDest tape/red Ink=Red\nDefault tape\n");
}

TEST_F(Presets, ALineWithoutAQueue_StaysAsItIsWhenAnotherBecomesTheDefault)
{
    write(ownPath(), "Default / A=1\nDest tape/red Ink=Red\n");
    ASSERT_TRUE(makePresetDefault(u"tape"_qs, u"red"_qs, &error)) << error.sentence.toStdString();
    EXPECT_EQ(written(), "Default / A=1\nDefault tape/red Ink=Red\n");
}

TEST_F(Presets, Deleting_AMissingOne_IsSaid)
{
    write(ownPath(), "Dest tape/red Ink=Red\n");
    write(otherPath(), "Dest tape/house Ink=Black\n");
    EXPECT_FALSE(deletePreset(u"tape"_qs, u"house"_qs, &error));
    EXPECT_EQ(error.sentence, u"tape has no preset house of yours."_qs);
    EXPECT_TRUE(deletePreset(u"tape"_qs, u"red"_qs, &error));
    EXPECT_EQ(names(u"tape"_qs), QStringList{u"house"_qs});
}

TEST_F(Presets, OnAFullDisk_StayAsTheyWereAndThatIsSaid)
{
    const QByteArray others = "Dest office/draft print-quality=3\n";
    write(ownPath(), others);
    rlimit limit{};
    ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &limit), 0);
    const rlimit none{10, limit.rlim_max};
    const auto handler = std::signal(SIGXFSZ, SIG_IGN);
    ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &none), 0);
    const bool saved = savePreset(u"tape"_qs, u"red"_qs, options({{u"Ink"_qs, u"Red"_qs}}), &error);
    setrlimit(RLIMIT_FSIZE, &limit);
    std::signal(SIGXFSZ, handler);
    EXPECT_FALSE(saved);
    EXPECT_TRUE(error.sentence.contains(u"cannot be written"_qs)) << error.sentence.toStdString();
    EXPECT_EQ(written(), others);
    EXPECT_EQ(QDir(QFileInfo(ownPath()).path()).entryList(QDir::Files),
              QStringList{u"lpoptions"_qs}); // nothing is left
}

TEST_F(Presets, WhereNothingCanBeWritten_ThatIsSaid)
{
    qputenv("CUPS_SERVERROOT", "/proc/self/nowhere");
    qputenv("HOME", "/proc/self/nowhere");
    EXPECT_FALSE(savePreset(u"tape"_qs, u"red"_qs, options({{u"Ink"_qs, u"Red"_qs}}), &error));
    EXPECT_TRUE(error.sentence.contains(u"/proc/self/nowhere"_qs) && error.sentence.contains(u"cannot be written"_qs))
        << error.sentence.toStdString();
}

TEST_F(Presets, AFileThatCannotBeRead_IsNotWrittenOver)
{
    QDir().mkpath(ownPath()); // a folder in the file's place
    EXPECT_FALSE(savePreset(u"tape"_qs, u"red"_qs, options({{u"Ink"_qs, u"Red"_qs}}), &error));
    EXPECT_TRUE(error.sentence.contains(u"cannot be read (it is no file)"_qs)) << error.sentence.toStdString();
    EXPECT_TRUE(QFileInfo(ownPath()).isDir());
}

TEST(PresetOptions, LeaveOutWhatBelongsToTheOneDocument)
{
    const JobOptions job = options({{u"PageSize"_qs, u"W12"_qs},
                                    {u"copies"_qs, u"3"_qs},
                                    {u"page-ranges"_qs, u"2-4"_qs},
                                    {u"page-set"_qs, u"odd"_qs},
                                    {u"job-hold-until"_qs, u"night"_qs},
                                    {u"job-password"_qs, u"1234"_qs},
                                    {u"fit-length"_qs, u"false"_qs},
                                    {u"number-up"_qs, u"2"_qs}});
    EXPECT_EQ(optionsForPreset(job, nullptr).lines(),
              (QStringList{u"PageSize=W12"_qs, u"copies=3"_qs, u"number-up=2"_qs}));
    EXPECT_EQ(optionsForNextTime(job, nullptr).lines(), (QStringList{u"PageSize=W12"_qs, u"number-up=2"_qs}));
    EXPECT_EQ(optionsOfDocument(job).lines(),
              (QStringList{u"copies=3"_qs, u"page-ranges=2-4"_qs, u"page-set=odd"_qs, u"job-hold-until=night"_qs}));
    EXPECT_EQ(optionsForPreset(options({{u"copies"_qs, u"1"_qs}}), nullptr).lines(), QStringList());
}

TEST(PresetOptions, AreTheSame_InWhateverOrderAndSpelling)
{
    const JobOptions job = options({{u"A"_qs, u"62"_qs}, {u"B"_qs, u"Red"_qs}});
    EXPECT_TRUE(meanTheSame(job, options({{u"B"_qs, u"red"_qs}, {u"A"_qs, u"62.0"_qs}})));
    EXPECT_FALSE(meanTheSame(job, options({{u"B"_qs, u"Red"_qs}, {u"A"_qs, u"62.5"_qs}})));
    EXPECT_FALSE(meanTheSame(job, options({{u"A"_qs, u"62"_qs}})));
    EXPECT_FALSE(meanTheSame(options({{u"A"_qs, u"62"_qs}}), job));
    EXPECT_FALSE(meanTheSame(job, options({{u"A"_qs, u"62"_qs}, {u"C"_qs, u"Red"_qs}})));
}

TEST(PresetOptions, ThatAreGone_AreSaidAndLeftOutWhenSavedOver)
{
    const PpdFile ppd = jobtest::ppdOf(jobtest::tapePpdText());
    const JobOptions preset = options({{u"PageSize"_qs, u"S72"_qs},
                                       {u"Perforator"_qs, u"Fine"_qs},
                                       {u"number-up"_qs, u"2"_qs},
                                       {u"fit-to-page"_qs, u"true"_qs}});
    EXPECT_EQ(
        optionsThatAreGone(preset, ppd.get()),
        QStringList{u"The preset's option Perforator=Fine is none of this printer's any more. The preset keeps it "
                    "until you save over it."_qs});
    EXPECT_EQ(withoutGone(preset, ppd.get()).lines(),
              (QStringList{u"PageSize=S72"_qs, u"number-up=2"_qs, u"fit-to-page=true"_qs}));
    // Of a queue without a description nothing is known.
    EXPECT_EQ(optionsThatAreGone(preset, nullptr), QStringList());
}

TEST(PresetOptions, NeverHoldAPasswordThatWasTyped)
{
    const PpdFile ppd = jobtest::ppdOf(jobtest::tapePpdText("*OpenUI *Lock/Lock: PickOne\n"
                                                            "*OrderDependency: 20 AnySetup *Lock\n"
                                                            "*DefaultLock: None\n"
                                                            "*Lock None/None: \"\"\n"
                                                            "*CloseUI: *Lock\n"
                                                            "*CustomLock True: \"\"\n"
                                                            "*ParamCustomLock Code: 1 password 1 8\n"));
    EXPECT_EQ(optionsForPreset(options({{u"Lock"_qs, u"Custom.secret"_qs}, {u"A"_qs, u"1"_qs}}), ppd.get()).lines(),
              QStringList{u"A=1"_qs});
    EXPECT_EQ(optionsForNextTime(options({{u"Lock"_qs, u"{Code=secret}"_qs}}), ppd.get()).lines(), QStringList());
    EXPECT_EQ(optionsForPreset(options({{u"Lock"_qs, u"None"_qs}}), ppd.get()).lines(), QStringList{u"Lock=None"_qs});
}

/// Settings of the last time, in a folder of the test's own.
class LastSettings : public testing::Test
{
protected:
    void SetUp() override { qputenv("XDG_CONFIG_HOME", folder.path().toUtf8()); }
    void TearDown() override { qputenv("XDG_CONFIG_HOME", before); }

    QByteArray before = qgetenv("XDG_CONFIG_HOME");
    QTemporaryDir folder;
    Problem error;
};

TEST_F(LastSettings, AreKeptForEachTapeOfAQueue)
{
    EXPECT_FALSE(lastSettings(u"tape"_qs, u"W12"_qs).has_value());
    ASSERT_TRUE(keepLastSettings(u"tape"_qs, u"W12"_qs,
                                 options({{u"PageSize"_qs, u"W12"_qs}, {u"A"_qs, u"a, \"b\"=ü"_qs}}), &error));
    ASSERT_TRUE(keepLastSettings(u"tape"_qs, u"W24"_qs, options({{u"PageSize"_qs, u"W24"_qs}}), &error));
    EXPECT_EQ(lastSettings(u"tape"_qs, u"W12"_qs).value().lines(),
              (QStringList{u"PageSize=W12"_qs, u"A=a, \"b\"=ü"_qs}));
    EXPECT_EQ(lastSettings(u"tape"_qs, u"W24"_qs).value().lines(), QStringList{u"PageSize=W24"_qs});
    // A tape that was never printed on begins with the one that was last.
    EXPECT_EQ(lastSettings(u"tape"_qs, u"W36"_qs).value().lines(), QStringList{u"PageSize=W24"_qs});
    EXPECT_FALSE(lastSettings(u"other"_qs, u"W12"_qs).has_value());
}

TEST_F(LastSettings, WithoutAName_AreNone)
{
    ASSERT_TRUE(
        keepLastSettings(u"tape"_qs, u"W12"_qs, options({{u"PageSize"_qs, u"W12"_qs}, {u"A"_qs, u"1"_qs}}), &error));
    QFile file(folder.filePath(u"tapeprint/last-settings.ini"_qs));
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    const QByteArray damaged = file.readAll().replace("A=1", "=1");
    ASSERT_TRUE(file.resize(0) && file.seek(0));
    ASSERT_EQ(file.write(damaged), damaged.size());
    file.close();
    EXPECT_EQ(lastSettings(u"tape"_qs, u"W12"_qs).value().lines(), QStringList{u"PageSize=W12"_qs});
}

TEST_F(LastSettings, OfCustomSizes_AreThoseOfOneTape)
{
    const JobOptions longLabel = options({{u"PageSize"_qs, u"Custom.12x80mm"_qs}});
    ASSERT_TRUE(keepLastSettings(u"tape"_qs, u"Custom.12x80mm"_qs, longLabel, &error));
    ASSERT_TRUE(keepLastSettings(u"tape"_qs, u"W12"_qs, options({{u"PageSize"_qs, u"W12"_qs}}), &error));
    EXPECT_EQ(lastSettings(u"tape"_qs, u"Custom.30x40mm"_qs).value(), longLabel);
}

TEST_F(LastSettings, ThatCannotBeWritten_AreSaid)
{
    qputenv("XDG_CONFIG_HOME", "/proc/self/nowhere");
    EXPECT_FALSE(keepLastSettings(u"tape"_qs, u"W12"_qs, options({{u"A"_qs, u"1"_qs}}), &error));
    EXPECT_TRUE(error.sentence.contains(u"/proc/self/nowhere"_qs)) << error.sentence.toStdString();
}

} // namespace
