// SPDX-License-Identifier: Apache-2.0
// The seven choice options on the built bundle's panel: how their controls are filled, and what is selected and enabled
// at the first showing.
#include "PanelUnderTest.h"
#include "PpdTools.h"
#include "TextPrinting.h"

#include <QTest>

namespace
{

using Titles = std::vector<QString>;

std::shared_ptr<RecordingCallback> callbackFor(const PpdText &ppd)
{
    return std::make_shared<RecordingCallback>(ppd.open());
}

/// One choice option's keyword and the names of its label and control.
struct Option {
    const char *keyword;
    const char *label;
    const char *control;
    const char *fallbackTitle;      ///< in English
    const char *interfaceFileTitle; ///< in English
};

void PrintTo(const Option &option, std::ostream *stream)
{
    *stream << option.keyword;
}

const std::array<Option, 7> kOptions = {{
    {"KsPriority", "mPrintQualityStr", "mPrintQualityRdBtn", "Print Quality:", "Print Quality:"},
    {"Resolution", "mPrintResolutionStr", "mResolutionRdBtn", "Resolution:", "Resolution:"},
    {"KsCompress", "mPrintCompressStr", "mCompressRdBtn", "Compression:", "Compression:"},
    {"KsResolution", "mPrintKsResolutionStr", "mKsResolutionPUBtn", "Print Quality:", "Print Mode:"},
    {"KsTapeMaterial", "mTapeTypeStr", "mTapeTypePopBtn", "Tape Material:", "Tape Material:"},
    {"KsTapeColor", "mTapeColorStr", "mTapeColorPopBtn", "Tape Colour:", "Tape Colour:"},
    {"KsInkColor", "mInkColorStr", "mInkColorPopBtn", "Ink Colour:", "Ink Colour:"},
}};

class EachChoiceOption : public ::testing::TestWithParam<Option>
{
};

INSTANTIATE_TEST_SUITE_P(ChoiceOptions, EachChoiceOption, ::testing::ValuesIn(kOptions),
                         [](const auto &test) { return std::string(test.param.keyword); });

} // namespace

// ---- Labels and enabled states ------------------------------------------------------------------------------------

TEST_P(EachChoiceOption, TitleThatTheCatalogueLacks_ShowsThePpdsTextWithAColon)
{
    PpdText ppd = PpdText::withEveryOption();
    ppd.option(GetParam().keyword, "Zzz", {{"A", "One"}, {"B", "Two"}}, "A");
    PanelUnderTest panel(ppd);
    panel.show();
    EXPECT_EQ(panel.label(GetParam().label)->text(), QStringLiteral("Zzz : "));
}

TEST_P(EachChoiceOption, TitleThatTheCatalogueHas_IsLocalised)
{
    PpdText ppd = PpdText::withEveryOption();
    ppd.option(GetParam().keyword, "Tape Colour", {{"A", "One"}, {"B", "Two"}}, "A");
    PanelUnderTest panel(ppd);
    panel.show();
    EXPECT_EQ(panel.label(GetParam().label)->text(), QStringLiteral("Tape Colour:"));
}

TEST_P(EachChoiceOption, UnreadableTitle_ShowsTheFixedTitle)
{
    const auto callback = callbackFor(PpdText::withEveryOption());
    spoilOption(callback->ppd.get(), GetParam().keyword);
    PanelUnderTest panel(callback);
    panel.show();
    EXPECT_EQ(panel.label(GetParam().label)->text(), QString::fromLatin1(GetParam().fallbackTitle));
}

TEST_P(EachChoiceOption, InThePpd_IsEnabledWithItsLabel)
{
    PanelUnderTest panel(PpdText::withEveryOption());
    panel.show();
    EXPECT_TRUE(panel.outlet<QWidget>(GetParam().control)->isEnabled());
    EXPECT_TRUE(panel.isTextEnabled(GetParam().label));
}

TEST_P(EachChoiceOption, NotInThePpd_StaysAsTheInterfaceFileMadeIt)
{
    PpdText ppd = PpdText::withEveryOption();
    ppd.withoutOption(GetParam().keyword);
    PanelUnderTest panel(ppd);
    panel.show();
    EXPECT_EQ(panel.label(GetParam().label)->text(), QString::fromLatin1(GetParam().interfaceFileTitle));
    // The quality follows the resolution even so; the compression's label follows the connection.
    const QByteArray keyword = GetParam().keyword;
    EXPECT_EQ(panel.outlet<QWidget>(GetParam().control)->isEnabled(), keyword == "KsPriority");
    EXPECT_EQ(panel.isTextEnabled(GetParam().label), keyword == "KsPriority" || keyword == "KsCompress");
}

TEST_P(EachChoiceOption, WithoutChoices_IsTitledAndSendsNothing)
{
    PpdText ppd = PpdText::withEveryOption();
    ppd.option(GetParam().keyword, "Zzz", {}, "A");
    PanelUnderTest panel(ppd);
    panel.show();
    EXPECT_EQ(panel.label(GetParam().label)->text(), QStringLiteral("Zzz : "));
    EXPECT_TRUE(panel.callback->sentFor(QString::fromLatin1(GetParam().keyword)).empty());
    EXPECT_TRUE(panel->saveValuesAndReturnError(nullptr));
    EXPECT_TRUE(panel->restoreValuesAndReturnError(nullptr));
    EXPECT_TRUE(panel.callback->sentFor(QString::fromLatin1(GetParam().keyword)).empty());
}

TEST_P(EachChoiceOption, ChoiceThatThePanelHasNoFallbackFor_IsShownUnderItsOwnText)
{
    PpdText ppd = PpdText::withEveryOption();
    ppd.option(GetParam().keyword, "Zzz", {{"Strange", "Never Heard Of"}, {"B", "300 x 600 dpi"}}, "Strange");
    PanelUnderTest panel(ppd);
    panel.show();
    // The second text stands in the catalogue.
    const Titles expected = {QStringLiteral("Never Heard Of"), QStringLiteral(u"300 \u00d7 600 dpi")};
    if (auto *matrix = panel.window.findChild<pdekit::RadioMatrix *>(QString::fromLatin1(GetParam().control))) {
        const QStringList titles = matrix->titles();
        EXPECT_EQ(Titles(titles.begin(), titles.end()), expected);
    } else {
        EXPECT_EQ(panel.itemTitles(GetParam().control), expected);
    }
}

// ---- Compression: enabled by the connection and the resolution, not by its own option -------------------------------

namespace
{

struct Connection {
    const char *uri; ///< null: the printer has none
    bool isUsb;
};

void PrintTo(const Connection &connection, std::ostream *stream)
{
    *stream << (connection.uri == nullptr ? "no URI" : connection.uri);
}

const std::array<Connection, 9> kConnections = {{{"usb://Test/Tape", true},
                                                 {"KSLXUSB://Test/Tape", true},
                                                 {"USB://Test/Tape", false},
                                                 {"kslxusb://Test/Tape", false},
                                                 {"socket://192.0.2.1", false},
                                                 {"usbx://Test/Tape", false},
                                                 {"usb", false},
                                                 {"", false},
                                                 {nullptr, false}}};

class EachConnection : public ::testing::TestWithParam<Connection>
{
protected:
    static std::shared_ptr<RecordingCallback> connected(const PpdText &ppd)
    {
        auto callback = callbackFor(ppd);
        callback->printer.deviceUri = QString::fromLatin1(GetParam().uri);
        return callback;
    }
};

INSTANTIATE_TEST_SUITE_P(ChoiceOptions, EachConnection, ::testing::ValuesIn(kConnections));

} // namespace

TEST_P(EachConnection, EnablesTheCompressionOverUsbOnly)
{
    PanelUnderTest panel(connected(PpdText::withEveryOption()));
    panel.show();
    EXPECT_EQ(panel.matrix("mCompressRdBtn")->isEnabled(), GetParam().isUsb);
    EXPECT_EQ(panel.isTextEnabled("mPrintCompressStr"), GetParam().isUsb);
}

TEST_P(EachConnection, WithoutAResolutionInThePpd_NeverEnablesTheCompression)
{
    PpdText ppd = PpdText::withEveryOption();
    ppd.withoutOption("Resolution");
    PanelUnderTest panel(connected(ppd));
    panel.show();
    EXPECT_FALSE(panel.matrix("mCompressRdBtn")->isEnabled());
    EXPECT_FALSE(panel.isTextEnabled("mPrintCompressStr"));
}

TEST_P(EachConnection, WithoutACompressionInThePpd_ColoursItsLabelAlone)
{
    PpdText ppd = PpdText::withEveryOption();
    ppd.withoutOption("KsCompress");
    PanelUnderTest panel(connected(ppd));
    panel.show();
    EXPECT_FALSE(panel.matrix("mCompressRdBtn")->isEnabled());
    EXPECT_EQ(panel.isTextEnabled("mPrintCompressStr"), GetParam().isUsb);
}

TEST(ChoiceOptions, WithoutAPrinter_CompressionIsDisabled)
{
    const auto callback = callbackFor(PpdText::withEveryOption());
    callback->hasPrinter = false;
    PanelUnderTest panel(callback);
    panel.show();
    EXPECT_FALSE(panel.matrix("mCompressRdBtn")->isEnabled());
}

// ---- Titles of choices ---------------------------------------------------------------------------------------------

TEST(ChoiceOptions, FirstShowing_ShowsThePpdsChoicesWithItsDefaultsSelected)
{
    PpdText ppd = PpdText::withEveryOption();
    ppd.defaultChoice("KsPriority", "KsPriorityQuality")
        .defaultChoice("KsCompress", "KsCompressON")
        .defaultChoice("KsTapeMaterial", "KsTapeMaterialCloth")
        .defaultChoice("KsTapeColor", "KsTapeColorBlue")
        .defaultChoice("KsInkColor", "KsInkColorRed");
    PanelUnderTest panel(ppd);
    panel.show();
    EXPECT_EQ(panel.matrix("mPrintQualityRdBtn")->titles(),
              (QStringList{QStringLiteral("Speed"), QStringLiteral("Quality")}));
    EXPECT_EQ(panel.matrix("mPrintQualityRdBtn")->selectedRow(), 1);
    EXPECT_EQ(panel.matrix("mResolutionRdBtn")->selectedRow(), 0);
    EXPECT_EQ(panel.matrix("mCompressRdBtn")->selectedRow(), 1);
    EXPECT_EQ(panel.itemTitles("mTapeTypePopBtn"),
              (Titles{QStringLiteral("OPP"), QStringLiteral("PET"), QStringLiteral("Cloth")}));
    EXPECT_EQ(panel.popUp("mTapeTypePopBtn")->currentIndex(), 2);
    EXPECT_EQ(panel.popUp("mTapeColorPopBtn")->currentIndex(), 1);
    EXPECT_EQ(panel.popUp("mInkColorPopBtn")->currentIndex(), 2);
}

namespace
{

/// The titles of a control that was filled from a PPD with the choices A, B (and C) of which some are unreadable.
Titles titlesWithUnreadable(const char *keyword, const char *control, int count, const std::vector<int> &unreadable)
{
    const std::vector<PpdText::Choice> all = {{"A", "Aa"}, {"B", "Bb"}, {"C", "Cc"}};
    PpdText ppd = PpdText::withEveryOption();
    ppd.option(keyword, "Zzz", {all.begin(), all.begin() + count}, "A");
    const auto callback = callbackFor(ppd);
    for (const int index : unreadable) {
        spoilChoice(callback->ppd.get(), keyword, index);
    }
    PanelUnderTest panel(callback);
    panel.show();
    if (auto *matrix = panel.window.findChild<pdekit::RadioMatrix *>(QString::fromLatin1(control))) {
        const QStringList titles = matrix->titles();
        return {titles.begin(), titles.end()};
    }
    return panel.itemTitles(control);
}

const QString kA = QStringLiteral("Aa");
const QString kB = QStringLiteral("Bb");
const QString kC = QStringLiteral("Cc");

/// An option's fixed titles in English, for texts that cannot be read.
struct Fallbacks {
    const char *keyword;
    const char *control;
    Titles titles;
};

void PrintTo(const Fallbacks &fallbacks, std::ostream *stream)
{
    *stream << fallbacks.keyword;
}

class EachRadioMatrix : public ::testing::TestWithParam<Fallbacks>
{
protected:
    static Titles titles(const std::vector<int> &unreadable)
    {
        return titlesWithUnreadable(GetParam().keyword, GetParam().control, 2, unreadable);
    }
    static QString fallback(std::size_t row) { return GetParam().titles[row]; }
};

INSTANTIATE_TEST_SUITE_P(
    ChoiceOptions, EachRadioMatrix,
    ::testing::Values(
        Fallbacks{"KsPriority", "mPrintQualityRdBtn", {QStringLiteral("Speed"), QStringLiteral("Quality")}},
        Fallbacks{"Resolution",
                  "mResolutionRdBtn",
                  {QStringLiteral(u"300 \u00d7 300 dpi"), QStringLiteral(u"300 \u00d7 600 dpi")}},
        Fallbacks{"KsCompress", "mCompressRdBtn", {QStringLiteral("Off"), QStringLiteral("On")}}),
    [](const auto &test) { return std::string(test.param.keyword); });

class EachPopUp : public ::testing::TestWithParam<Fallbacks>
{
protected:
    static Titles titles(const std::vector<int> &unreadable)
    {
        return titlesWithUnreadable(GetParam().keyword, GetParam().control, 3, unreadable);
    }
    /// The fixed titles, some of them replaced, and others after them.
    static Titles fallbacks(const std::map<std::size_t, QString> &replaced, const Titles &after = {})
    {
        Titles all = GetParam().titles;
        for (const auto &[index, title] : replaced) {
            all[index] = title;
        }
        all.insert(all.end(), after.begin(), after.end());
        return all;
    }
};

INSTANTIATE_TEST_SUITE_P(
    ChoiceOptions, EachPopUp,
    ::testing::Values(
        Fallbacks{"KsResolution",
                  "mKsResolutionPUBtn",
                  {QStringLiteral(u"Speed (300\u00d7300 dpi)"), QStringLiteral(u"Quality (300\u00d7300 dpi)"),
                   QStringLiteral(u"Quality (300\u00d7600 dpi)")}},
        Fallbacks{"KsTapeMaterial",
                  "mTapeTypePopBtn",
                  {QStringLiteral("Film (OPP)"), QStringLiteral("Polyester (PET)"), QStringLiteral("Cloth")}},
        Fallbacks{"KsTapeColor",
                  "mTapeColorPopBtn",
                  {QStringLiteral("White"), QStringLiteral("Blue"), QStringLiteral("Red"), QStringLiteral("Yellow"),
                   QStringLiteral("Pink"), QStringLiteral("Clear"), QStringLiteral("Pastel Blue"),
                   QStringLiteral("Pastel Red"), QStringLiteral("Deep Blue")}},
        Fallbacks{"KsInkColor",
                  "mInkColorPopBtn",
                  {QStringLiteral("Black"), QStringLiteral("Blue"), QStringLiteral("Red"), QStringLiteral("White"),
                   QStringLiteral("Gold"), QStringLiteral("Silver")}}),
    [](const auto &test) { return std::string(test.param.keyword); });

} // namespace

TEST_P(EachRadioMatrix, UnreadableFirstChoice_KeepsItsFallbackAndTheSecondItsOwnText)
{
    EXPECT_EQ(titles({0}), (Titles{fallback(0), kB}));
}

TEST_P(EachRadioMatrix, UnreadableSecondChoice_GivesBothRowsTheirFallbacks)
{
    EXPECT_EQ(titles({1}), (Titles{fallback(0), fallback(1)}));
}

TEST_P(EachRadioMatrix, EveryChoiceUnreadable_GivesBothRowsTheirFallbacks)
{
    EXPECT_EQ(titles({0, 1}), (Titles{fallback(0), fallback(1)}));
}

TEST_P(EachPopUp, UnreadableFirstChoice_IsFollowedByTheOthersInTheFallbacksPlaces)
{
    EXPECT_EQ(titles({0}), fallbacks({{1, kB}, {2, kC}}));
}

TEST_P(EachPopUp, UnreadableSecondChoice_PushesTheFirstBehindTheFallbacks)
{
    EXPECT_EQ(titles({1}), fallbacks({{2, kC}}, {kA}));
}

TEST_P(EachPopUp, UnreadableLastChoice_PushesTheOthersBehindTheFallbacks)
{
    EXPECT_EQ(titles({2}), fallbacks({}, {kA, kB}));
}

TEST_P(EachPopUp, EveryChoiceUnreadable_InsertsTheFallbacksEachTime)
{
    Titles thrice = fallbacks({}, fallbacks({}, GetParam().titles));
    EXPECT_EQ(titles({0, 1, 2}), thrice);
}

TEST(ChoiceOptions, ThirdResolution_HasNoRowAndItsTitleIsDropped)
{
    PpdText ppd = PpdText::withEveryOption();
    ppd.option("Resolution", "Resolution", {{"180x180dpi", "Low"}, {"300x300dpi", "Middle"}, {"300x600dpi", "High"}},
               "180x180dpi");
    PanelUnderTest panel(ppd);
    panel.show();
    EXPECT_EQ(panel.matrix("mResolutionRdBtn")->titles(),
              (QStringList{QStringLiteral("Low"), QStringLiteral("Middle")}));
}

TEST(ChoiceOptions, DefaultResolutionWithoutARow_LeavesTheFirstRowSelected)
{
    PpdText ppd = PpdText::withEveryOption();
    ppd.option("Resolution", "Resolution", {{"180x180dpi", "Low"}, {"300x300dpi", "Middle"}, {"300x600dpi", "High"}},
               "300x600dpi");
    PanelUnderTest panel(ppd);
    panel.show();
    EXPECT_EQ(panel.matrix("mResolutionRdBtn")->selectedRow(), 0);
    EXPECT_EQ(panel.callback->lastSent(QStringLiteral("Resolution")), QStringLiteral("180x180dpi"));
}

TEST(ChoiceOptions, TenThousandChoices_AreAllThereToPick)
{
    std::vector<PpdText::Choice> choices;
    choices.reserve(10'000);
    for (int i = 0; i < 10'000; ++i) {
        choices.emplace_back("C" + QByteArray::number(i), "Colour " + QByteArray::number(i));
    }
    PpdText ppd = PpdText::withEveryOption();
    ppd.option("KsTapeColor", "Tape", choices, "C9999");
    PanelUnderTest panel(ppd);
    panel.show();
    EXPECT_EQ(panel.popUp("mTapeColorPopBtn")->count(), 10'000);
    EXPECT_EQ(panel.popUp("mTapeColorPopBtn")->currentText(), QStringLiteral("Colour 9999"));
    EXPECT_EQ(panel.callback->lastSent(QStringLiteral("KsTapeColor")), QStringLiteral("C9999"));
}
