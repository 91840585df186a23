// SPDX-License-Identifier: Apache-2.0
// The built bundle's lines in the dialog's summary: which there are, in which order, and what each says.
#include "PanelUnderTest.h"
#include "PpdTools.h"
#include "TextPrinting.h"

namespace
{

QString text(const char *latin1)
{
    return QString::fromLatin1(latin1);
}

std::shared_ptr<RecordingCallback> callbackFor(const PpdText &ppd)
{
    return std::make_shared<RecordingCallback>(ppd.open());
}

QStringList orderOf(const PanelUnderTest &panel)
{
    return panel->summaryInfo()->value(text("Summary Display Order")).toStringList();
}

QString valueOf(const PanelUnderTest &panel, const char *title)
{
    const QVariantMap summary = *panel->summaryInfo();
    return summary.contains(text(title)) ? summary.value(text(title)).toString() : text("(no entry)");
}

/// The dialog reports the choices of the three options whose selection nothing else sets.
void reportColours(const PanelUnderTest &panel)
{
    panel->PPDOptionKeyValueDidChange(text("KsTapeMaterial"), text("KsTapeMaterialOPP"));
    panel->PPDOptionKeyValueDidChange(text("KsTapeColor"), text("KsTapeColorWhite"));
    panel->PPDOptionKeyValueDidChange(text("KsInkColor"), text("KsInkColorBlack"));
}

PpdText withoutVendorResolution()
{
    PpdText ppd = PpdText::withEveryOption();
    ppd.withoutOption("KsResolution");
    return ppd;
}

} // namespace

// ---- Which entries, in which order ---------------------------------------------------------------------------------

TEST(Summary, OfEveryOption_ListsTheTitlesInOrder)
{
    PanelUnderTest panel(PpdText::withEveryOption());
    panel.show();
    reportColours(panel);
    EXPECT_EQ(orderOf(panel), (QStringList{text("Tape Width"), text("Tape Length"), text("Margin"), text("Print Mode"),
                                           text("Priority"), text("Print Tape Length"), text("Material"), text("Tape"),
                                           text("Ink"), text("Compression")}));
    // One value for each title, and the order itself.
    EXPECT_EQ(panel->summaryInfo()->size(), 11);
}

TEST(Summary, WithoutAVendorResolution_ListsTheResolutionBeforeTheCompression)
{
    PanelUnderTest panel(withoutVendorResolution());
    panel.show();
    EXPECT_EQ(orderOf(panel), (QStringList{text("Tape Width"), text("Tape Length"), text("Margin"), text("Priority"),
                                           text("Print Tape Length"), text("Resolution"), text("Compression")}));
}

TEST(Summary, WithAVendorResolution_HasNoResolution)
{
    PanelUnderTest panel(PpdText::withEveryOption());
    panel.show();
    EXPECT_EQ(valueOf(panel, "Print Mode"), text("Fast"));
    EXPECT_EQ(valueOf(panel, "Resolution"), text("(no entry)"));
}

TEST(Summary, OfNoOption_ListsWidthAndLengthUnderTheFixedTitles)
{
    PanelUnderTest panel{PpdText()};
    panel.show();
    EXPECT_EQ(orderOf(panel), (QStringList{text("Tape Width"), text("Tape Length")}));
}

TEST(Summary, WithoutTheDialogsObjects_ListsTheWidthAlone)
{
    const auto callback = std::make_shared<RecordingCallback>(nullptr);
    callback->hasFormat = callback->hasSettings = callback->hasSession = callback->hasPrinter = false;
    PanelUnderTest panel(callback);
    EXPECT_EQ(orderOf(panel), QStringList{text("Tape Width")});
    EXPECT_EQ(valueOf(panel, "Tape Width"), text("Unknown"));
}

TEST(Summary, BeforeTheFirstShowing_HasNoChoices)
{
    PanelUnderTest panel(PpdText::withEveryOption());
    EXPECT_EQ(orderOf(panel),
              (QStringList{text("Tape Width"), text("Tape Length"), text("Margin"), text("Print Tape Length")}));
}

TEST(Summary, BeforeTheFirstShowing_HasTheChoicesThatTheDialogReported)
{
    PanelUnderTest panel(PpdText::withEveryOption());
    reportColours(panel);
    panel->PPDOptionKeyValueDidChange(text("Resolution"), text("300x300dpi"));
    EXPECT_EQ(orderOf(panel),
              (QStringList{text("Tape Width"), text("Tape Length"), text("Margin"), text("Print Tape Length"),
                           text("Material"), text("Tape"), text("Ink"), text("Resolution")}));
}

TEST(Summary, SecondResolutionMarked_HasNoQuality)
{
    PanelUnderTest panel(PpdText::withEveryOption());
    panel.show();
    EXPECT_EQ(valueOf(panel, "Priority"), text("Speed"));
    ppdMarkOption(panel.callback->ppd.get(), "Resolution", "300x600dpi");
    EXPECT_EQ(valueOf(panel, "Priority"), text("(no entry)"));
    EXPECT_FALSE(orderOf(panel).contains(text("Priority")));
}

TEST(Summary, ThirdResolutionMarked_HasQualityAsTheFirstHas)
{
    PpdText ppd = PpdText::withEveryOption();
    ppd.option("Resolution", "Resolution", {{"300x300dpi", "1"}, {"300x600dpi", "2"}, {"600x600dpi", "3"}},
               "300x300dpi");
    const auto callback = callbackFor(ppd);
    PanelUnderTest panel(callback);
    panel.show();
    for (const auto &[choice, hasQuality] : std::vector<std::pair<const char *, bool>>{
             {"300x300dpi", true}, {"300x600dpi", false}, {"600x600dpi", true}}) {
        ppdMarkOption(callback->ppd.get(), "Resolution", choice);
        EXPECT_EQ(orderOf(panel).contains(text("Priority")), hasQuality) << choice;
    }
}

TEST(Summary, PrinterNotOnUsb_HasNoCompression)
{
    for (const auto &[uri, isListed] : std::vector<std::pair<const char *, bool>>{
             {"usb://a", true}, {"KSLXUSB://a", true}, {"USB://a", false}, {"ipp://a", false}, {nullptr, false}}) {
        const auto callback = callbackFor(PpdText::withEveryOption());
        callback->printer.deviceUri = QString::fromLatin1(uri);
        PanelUnderTest panel(callback);
        panel.show();
        EXPECT_EQ(orderOf(panel).contains(text("Compression")), isListed) << (uri == nullptr ? "none" : uri);
    }
}

TEST(Summary, TwoEntriesOfOneTitle_KeepBothPlacesAndTheLastValue)
{
    const auto callback = callbackFor(PpdText::withEveryOption());
    spoilOption(callback->ppd.get(), "KsPriority");
    spoilOption(callback->ppd.get(), "KsResolution");
    PanelUnderTest panel(callback);
    panel.show();
    EXPECT_EQ(orderOf(panel).mid(3, 2), (QStringList{text("Print Quality"), text("Print Quality")}));
    EXPECT_EQ(valueOf(panel, "Print Quality"), text("Speed"));
}

TEST(Summary, EmptyTitle_StandsInTheOrderAllTheSame)
{
    const auto callback = callbackFor(PpdText::withEveryOption());
    ppdFindOption(callback->ppd.get(), "KsMargin")->text[0] = '\0';
    PanelUnderTest panel(callback);
    panel.show();
    EXPECT_EQ(orderOf(panel).at(2), QString());
    EXPECT_EQ(valueOf(panel, ""), QStringLiteral(u"2.0\u00a0mm"));
}

TEST(Summary, ChangesNothing)
{
    PanelUnderTest panel(PpdText::withEveryOption());
    panel.show();
    panel.callback->sent.clear();
    panel.field("mLengthTxFld")->setText(text("5000"));
    const auto first = panel->summaryInfo();
    EXPECT_EQ(panel->summaryInfo(), first);
    EXPECT_TRUE(panel.callback->sent.empty());
    EXPECT_EQ(panel.field("mLengthTxFld")->text(), text("5000"));
}

// ---- Titles
// -----------------------------------------------------------------------------------------------------------

TEST(SummaryTitles, UnreadableInThePpd_AreTheFixedOnes)
{
    struct Title {
        const char *keyword;
        const char *fixed;
    };
    for (const Title &title : std::vector<Title>{{"KsTapeLength", "Tape Length"},
                                                 {"KsMargin", "Margin"},
                                                 {"KsPriority", "Print Quality"},
                                                 {"Resolution", "Resolution"},
                                                 {"KsCompress", "Compression"},
                                                 {"KsTapeMaterial", "Tape Material"},
                                                 {"KsTapeColor", "Tape Colour"},
                                                 {"KsInkColor", "Ink Colour"},
                                                 {"KsPrintTapeLength", "Print Tape Length"}}) {
        PpdText ppd = withoutVendorResolution();
        ppd.option(title.keyword, "Something else",
                   {{"KsTapeColorWhite", "1"}, {"KsTapeMaterialOPP", "2"}, {"KsInkColorBlack", "3"}},
                   "KsTapeColorWhite");
        const auto callback = callbackFor(ppd);
        spoilOption(callback->ppd.get(), title.keyword);
        PanelUnderTest panel(callback);
        panel.show();
        reportColours(panel);
        EXPECT_TRUE(orderOf(panel).contains(text(title.fixed))) << title.keyword;
        EXPECT_FALSE(orderOf(panel).contains(text("Something else"))) << title.keyword;
    }
}

TEST(SummaryTitles, AreThePpdsOwn_Localised)
{
    PpdText ppd = PpdText::withEveryOption();
    // The catalogue's entry for this key is another text.
    ppd.option("KsMargin", "300 x 300 dpi", {{"2.0", "2"}}, "2.0");
    PanelUnderTest panel(ppd);
    EXPECT_TRUE(orderOf(panel).contains(QStringLiteral(u"300 \u00d7 300 dpi")));
}

TEST(SummaryTitles, OfEachOption_AreThePpdsOwn)
{
    for (const char *keyword : {"KsTapeLength", "KsMargin", "KsResolution", "KsPriority", "KsPrintTapeLength",
                                "KsTapeMaterial", "KsTapeColor", "KsInkColor", "Resolution", "KsCompress"}) {
        PpdText ppd = qstrcmp(keyword, "Resolution") == 0 ? withoutVendorResolution() : PpdText::withEveryOption();
        ppd.option(keyword, "My own words",
                   {{"KsTapeColorWhite", "1"}, {"KsTapeMaterialOPP", "2"}, {"KsInkColorBlack", "3"}},
                   "KsTapeColorWhite");
        PanelUnderTest panel(ppd);
        panel.show();
        reportColours(panel);
        EXPECT_EQ(orderOf(panel).count(text("My own words")), 1) << keyword;
        EXPECT_FALSE(valueOf(panel, "My own words").isEmpty()) << keyword;
    }
}

// ---- Choices: the PPD's text, the fixed text, or the selection's own
// -----------------------------------------------------

namespace
{

struct Choice {
    const char *keyword;
    int count;                   ///< of the choices with a fixed text
    std::vector<QString> values; ///< the fixed texts in English
    bool isMV = false;
};

void PrintTo(const Choice &choice, std::ostream *stream)
{
    *stream << choice.keyword << (choice.isMV ? " of MV" : "");
}

class EachSummaryChoice : public ::testing::TestWithParam<Choice>
{
protected:
    /// A PPD whose option has twelve choices C0 to C11 with one text, under the title "Zzz".
    static PpdText ppd(const QByteArray &choiceText)
    {
        PpdText text = PpdText::withEveryOption();
        if (qstrcmp(GetParam().keyword, "Resolution") == 0) {
            text.withoutOption("KsResolution");
        }
        std::vector<PpdText::Choice> choices;
        choices.reserve(12);
        for (int i = 0; i < 12; ++i) {
            choices.emplace_back("C" + QByteArray::number(i), choiceText);
        }
        text.option(GetParam().keyword, "Zzz", choices, "C0");
        if (GetParam().isMV) {
            text.attribute("KsTapeType", "MV");
        }
        return text;
    }
    /// The value when a choice is marked; the panel's selection is the choice "C11".
    static QString value(const std::shared_ptr<RecordingCallback> &callback, const QByteArray &marked)
    {
        PanelUnderTest panel(callback);
        panel->PPDOptionKeyValueDidChange(text(GetParam().keyword), text("C11"));
        if (!marked.isNull()) {
            ppdMarkOption(callback->ppd.get(), GetParam().keyword, marked.constData());
        }
        return valueOf(panel, "Zzz");
    }
};

const QString k300x300 = QStringLiteral(u"300 \u00d7 300 dpi");
const QString k300x600 = QStringLiteral(u"300 \u00d7 600 dpi");

INSTANTIATE_TEST_SUITE_P(
    SummaryValues, EachSummaryChoice,
    ::testing::Values(
        Choice{"KsResolution",
               3,
               {QStringLiteral(u"Speed (300\u00d7300 dpi)"), QStringLiteral(u"Quality (300\u00d7300 dpi)"),
                QStringLiteral(u"Quality (300\u00d7600 dpi)")}},
        Choice{"KsPriority", 2, {QStringLiteral("Speed"), QStringLiteral("Quality")}},
        Choice{"KsTapeMaterial",
               3,
               {QStringLiteral("Film (OPP)"), QStringLiteral("Polyester (PET)"), QStringLiteral("Cloth")}},
        Choice{"KsTapeColor",
               9,
               {QStringLiteral("White"), QStringLiteral("Blue"), QStringLiteral("Red"), QStringLiteral("Yellow"),
                QStringLiteral("Pink"), QStringLiteral("Clear"), QStringLiteral("Pastel Blue"),
                QStringLiteral("Pastel Red"), QStringLiteral("Deep Blue")}},
        Choice{"KsInkColor",
               6,
               {QStringLiteral("Black"), QStringLiteral("Blue"), QStringLiteral("Red"), QStringLiteral("White"),
                QStringLiteral("Gold"), QStringLiteral("Silver")}},
        Choice{"Resolution",
               3,
               {QStringLiteral(u"180 \u00d7 360 dpi"), QStringLiteral(u"360 \u00d7 360 dpi"),
                QStringLiteral(u"360 \u00d7 720 dpi")}},
        Choice{"Resolution", 2, {k300x300, k300x600}, true},
        Choice{"KsCompress", 2, {QStringLiteral("Off"), QStringLiteral("On")}}),
    [](const auto &test) { return std::string(test.param.keyword) + (test.param.isMV ? "OfMV" : ""); });

} // namespace

TEST_P(EachSummaryChoice, MarkedChoiceWithinTheTable_ShowsThePpdsTextLocalised)
{
    for (int i = 0; i < GetParam().count; ++i) {
        const auto callback = callbackFor(ppd("300 x 300 dpi"));
        EXPECT_EQ(value(callback, "C" + QByteArray::number(i)), k300x300) << i;
    }
}

TEST_P(EachSummaryChoice, UnreadableText_ShowsTheFixedText)
{
    for (int i = 0; i < GetParam().count; ++i) {
        const auto callback = callbackFor(ppd("300 x 300 dpi"));
        spoilChoice(callback->ppd.get(), GetParam().keyword, i);
        EXPECT_EQ(value(callback, "C" + QByteArray::number(i)), GetParam().values[static_cast<std::size_t>(i)]) << i;
    }
}

TEST_P(EachSummaryChoice, MarkedChoiceBeyondTheTable_ShowsTheSelectionsTextAsItIs)
{
    for (const int i : {GetParam().count, 10}) {
        const auto callback = callbackFor(ppd("300 x 300 dpi"));
        EXPECT_EQ(value(callback, "C" + QByteArray::number(i)), text("300 x 300 dpi")) << i;
    }
}

TEST_P(EachSummaryChoice, NothingMarked_ShowsTheSelectionsTextAsItIs)
{
    const auto callback = std::make_shared<RecordingCallback>(openUnmarked(ppd("300 x 300 dpi")));
    EXPECT_EQ(value(callback, {}), text("300 x 300 dpi"));
}

// ---- Tape width
// --------------------------------------------------------------------------------------------------------

TEST(SummaryWidth, IsThePapersTextInThePpd)
{
    PanelUnderTest panel(PpdText::withEveryOption());
    EXPECT_EQ(valueOf(panel, "Tape Width"), text("24 mm"));
    panel.callback->usePaper("12mm");
    EXPECT_EQ(valueOf(panel, "Tape Width"), text("12 mm"));
}

TEST(SummaryWidth, OfAPaperThatThePpdLacks_IsUnknown)
{
    PanelUnderTest panel(PpdText::withEveryOption());
    panel.callback->usePaper(text("24MM"), 100.0);
    EXPECT_EQ(valueOf(panel, "Tape Width"), text("Unknown"));
}

TEST(SummaryWidth, OfAnUnreadableText_IsUnknown)
{
    const auto callback = callbackFor(PpdText::withEveryOption());
    spoilChoice(callback->ppd.get(), "PageSize", 0);
    PanelUnderTest panel(callback);
    EXPECT_EQ(valueOf(panel, "Tape Width"), text("Unknown"));
}

TEST(SummaryWidth, WithoutAPageFormat_IsUnknownAndThereIsNoLength)
{
    PanelUnderTest panel(PpdText::withEveryOption());
    panel.callback->hasFormat = false;
    EXPECT_EQ(valueOf(panel, "Tape Width"), text("Unknown"));
    EXPECT_EQ(valueOf(panel, "Tape Length"), text("(no entry)"));
}

TEST(SummaryWidth, WithoutAPaper_IsUnknownAndTheLengthIsAHundred)
{
    PanelUnderTest panel(PpdText::withEveryOption());
    panel.callback->format.paper.reset();
    EXPECT_EQ(valueOf(panel, "Tape Width"), text("Unknown"));
    EXPECT_EQ(valueOf(panel, "Tape Length"), QStringLiteral(u"100.0\u00a0mm"));
}
