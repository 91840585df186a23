// SPDX-License-Identifier: Apache-2.0
// What the built bundle's panel hands to the dialog: every option before there are controls and after, the ticket's
// codes, and the last word before the job goes out.
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

/// What is sent for an option before the panel has controls.
QString sentWithoutControls(const std::shared_ptr<RecordingCallback> &callback, const char *keyword)
{
    PanelUnderTest panel(callback);
    panel->supportedPPDOptionKeys();
    return callback->lastSent(text(keyword));
}

std::vector<QString> keys(std::initializer_list<const char *> keywords)
{
    std::vector<QString> all;
    for (const char *keyword : keywords) {
        all.push_back(text(keyword));
    }
    return all;
}

const std::vector<QString> kTenKeys =
    keys({"KsTapeLength", "KsMargin", "KsPriority", "Resolution", "KsCompress", "KsResolution", "KsTapeMaterial",
          "KsTapeColor", "KsInkColor", "KsPrintTapeLength"});

} // namespace

// ---- Which options, in which order ----------------------------------------------------------------------------------

TEST(Saving, SendsTheTenOptionsInOrder)
{
    PanelUnderTest panel(PpdText::withEveryOption());
    panel.show();
    panel.callback->sent.clear();
    QString error;
    EXPECT_TRUE(panel->saveValuesAndReturnError(&error));
    EXPECT_EQ(panel.callback->sentKeys(), kTenKeys);
    EXPECT_TRUE(error.isNull());
}

TEST(Saving, Twice_SendsTheSameAgain)
{
    PanelUnderTest panel(PpdText::withEveryOption());
    panel.show();
    panel.callback->sent.clear();
    panel->saveValuesAndReturnError(nullptr);
    const auto first = panel.callback->sent;
    panel.callback->sent.clear();
    panel->saveValuesAndReturnError(nullptr);
    EXPECT_EQ(panel.callback->sent, first);
}

TEST(Saving, WithoutSettings_SendsNothingAtAll)
{
    const auto callback = callbackFor(PpdText::withEveryOption());
    callback->hasSettings = false;
    PanelUnderTest panel(callback);
    panel.show();
    panel->saveValuesAndReturnError(nullptr);
    panel->shouldPrint();
    EXPECT_TRUE(callback->sent.empty());
}

TEST(Saving, WithoutAnyOptionInThePpd_SendsTheTapeLengthAlone)
{
    PanelUnderTest panel{PpdText()};
    panel.show();
    panel.callback->sent.clear();
    panel->saveValuesAndReturnError(nullptr);
    EXPECT_EQ(panel.callback->sentKeys(), keys({"KsTapeLength"}));
}

TEST(Saving, OptionThatThePpdLacks_IsLeftOut)
{
    for (const QString &keyword : kTenKeys) {
        PpdText ppd = PpdText::withEveryOption();
        ppd.withoutOption(keyword.toLatin1());
        PanelUnderTest panel(ppd);
        panel.show();
        panel.callback->sent.clear();
        panel->saveValuesAndReturnError(nullptr);
        std::vector<QString> expected = kTenKeys;
        if (keyword != text("KsTapeLength")) {
            std::erase(expected, keyword);
        }
        EXPECT_EQ(panel.callback->sentKeys(), expected) << keyword.toStdString();
    }
}

TEST(Saving, SendsTheKeywordOfThePpdsOwnRecord)
{
    PanelUnderTest panel(PpdText::withEveryOption());
    panel.show();
    std::vector<QString> expected;
    for (const QString &keyword : kTenKeys) {
        const QByteArray own = "Own" + keyword.toLatin1();
        ppd_option_t *option = ppdFindOption(panel.callback->ppd.get(), keyword.toLatin1().constData());
        ASSERT_NE(option, nullptr);
        qstrncpy(option->keyword, own.constData(), sizeof option->keyword);
        // Of the tape length the record is not asked.
        expected.push_back(keyword == text("KsTapeLength") ? keyword : QString::fromLatin1(own));
    }
    panel.callback->sent.clear();
    panel->saveValuesAndReturnError(nullptr);
    EXPECT_EQ(panel.callback->sentKeys(), expected);
}

TEST(Saving, OfATapeThatCannotBeAskedFor_SendsALengthAllTheSame)
{
    const auto callback = callbackFor(PpdText::withEveryOption());
    callback->hasFormat = false;
    PanelUnderTest panel(callback);
    panel->supportedPPDOptionKeys();
    EXPECT_EQ(callback->lastSent(text("KsTapeLength")), text("100.0"));
    panel.show();
    panel.type("mLengthTxFld", "75");
    callback->sent.clear();
    panel->saveValuesAndReturnError(nullptr);
    EXPECT_EQ(callback->lastSent(text("KsTapeLength")), text("75.0"));
}

// ---- Choices without controls: the mark, else the default, else the first
// --------------------------------------------

namespace
{

struct Choices {
    const char *keyword;
    const char *first;
    const char *second;
};

void PrintTo(const Choices &choices, std::ostream *stream)
{
    *stream << choices.keyword;
}

class EachSavedChoice : public ::testing::TestWithParam<Choices>
{
protected:
    /// \param defaultChoice the default; with null one that is not listed.
    static PpdText ppdWithDefault(const char *defaultChoice)
    {
        PpdText ppd = PpdText::withEveryOption();
        ppd.defaultChoice(GetParam().keyword, defaultChoice == nullptr ? "Unlisted" : defaultChoice);
        return ppd;
    }
};

INSTANTIATE_TEST_SUITE_P(Saving, EachSavedChoice,
                         ::testing::Values(Choices{"KsPriority", "KsPrioritySpeed", "KsPriorityQuality"},
                                           Choices{"Resolution", "300x300dpi", "300x600dpi"},
                                           Choices{"KsCompress", "KsCompressOFF", "KsCompressON"},
                                           Choices{"KsResolution", "KsResolS300300", "KsResolQ300300"},
                                           Choices{"KsTapeMaterial", "KsTapeMaterialOPP", "KsTapeMaterialPET"},
                                           Choices{"KsTapeColor", "KsTapeColorWhite", "KsTapeColorBlue"},
                                           Choices{"KsInkColor", "KsInkColorBlack", "KsInkColorBlue"}),
                         [](const auto &test) { return std::string(test.param.keyword); });

} // namespace

TEST_P(EachSavedChoice, WithoutAControl_IsTheMarkedOne)
{
    const auto callback = callbackFor(ppdWithDefault(GetParam().first));
    ppdMarkOption(callback->ppd.get(), GetParam().keyword, GetParam().second);
    EXPECT_EQ(sentWithoutControls(callback, GetParam().keyword), text(GetParam().second));
}

TEST_P(EachSavedChoice, WithoutAControlOrAMark_IsTheDefault)
{
    const auto callback = std::make_shared<RecordingCallback>(openUnmarked(ppdWithDefault(GetParam().second)));
    EXPECT_EQ(sentWithoutControls(callback, GetParam().keyword), text(GetParam().second));
}

TEST_P(EachSavedChoice, WithoutAControlOrAMarkOrADefault_IsTheFirst)
{
    const auto callback = std::make_shared<RecordingCallback>(openUnmarked(ppdWithDefault(nullptr)));
    EXPECT_EQ(sentWithoutControls(callback, GetParam().keyword), text(GetParam().first));
}

// ---- Choices with controls
// ---------------------------------------------------------------------------------------------

TEST(SavedChoices, AreWhatTheControlsShow)
{
    PanelUnderTest panel(PpdText::withEveryOption());
    panel.show();
    panel.matrix("mPrintQualityRdBtn")->selectCellAtRow(1, 0);
    panel.matrix("mCompressRdBtn")->selectCellAtRow(1, 0);
    panel.popUp("mKsResolutionPUBtn")->setCurrentIndex(2);
    panel.popUp("mTapeTypePopBtn")->setCurrentIndex(2);
    panel.popUp("mTapeColorPopBtn")->setCurrentIndex(1);
    panel.popUp("mInkColorPopBtn")->setCurrentIndex(2);
    panel->saveValuesAndReturnError(nullptr);
    EXPECT_EQ(panel.callback->lastSent(text("KsPriority")), text("KsPriorityQuality"));
    EXPECT_EQ(panel.callback->lastSent(text("Resolution")), text("300x300dpi"));
    EXPECT_EQ(panel.callback->lastSent(text("KsCompress")), text("KsCompressON"));
    EXPECT_EQ(panel.callback->lastSent(text("KsResolution")), text("KsResolQ300600"));
    EXPECT_EQ(panel.callback->lastSent(text("KsTapeMaterial")), text("KsTapeMaterialCloth"));
    EXPECT_EQ(panel.callback->lastSent(text("KsTapeColor")), text("KsTapeColorBlue"));
    EXPECT_EQ(panel.callback->lastSent(text("KsInkColor")), text("KsInkColorRed"));
}

TEST(SavedChoices, PopUpWithoutASelection_SendsTheFirst)
{
    PanelUnderTest panel(PpdText::withEveryOption());
    panel.show();
    for (const char *popUp : {"mKsResolutionPUBtn", "mTapeTypePopBtn", "mTapeColorPopBtn", "mInkColorPopBtn"}) {
        panel.popUp(popUp)->setCurrentIndex(-1);
    }
    panel->saveValuesAndReturnError(nullptr);
    EXPECT_EQ(panel.callback->lastSent(text("KsResolution")), text("KsResolS300300"));
    EXPECT_EQ(panel.callback->lastSent(text("KsTapeMaterial")), text("KsTapeMaterialOPP"));
    EXPECT_EQ(panel.callback->lastSent(text("KsTapeColor")), text("KsTapeColorWhite"));
    EXPECT_EQ(panel.callback->lastSent(text("KsInkColor")), text("KsInkColorBlack"));
}

TEST(SavedChoices, IndexBeyondTheChoices_SendsTheLast)
{
    // Unreadable texts leave more items than choices.
    const auto callback = callbackFor(PpdText::withEveryOption());
    for (const char *keyword : {"KsResolution", "KsTapeMaterial", "KsTapeColor", "KsInkColor"}) {
        spoilChoice(callback->ppd.get(), keyword, 1);
        spoilChoice(callback->ppd.get(), keyword, 2);
    }
    PanelUnderTest panel(callback);
    panel.show();
    for (const char *popUp : {"mKsResolutionPUBtn", "mTapeTypePopBtn", "mTapeColorPopBtn", "mInkColorPopBtn"}) {
        panel.popUp(popUp)->setCurrentIndex(4);
        ASSERT_EQ(panel.popUp(popUp)->currentIndex(), 4) << popUp;
    }
    panel->saveValuesAndReturnError(nullptr);
    EXPECT_EQ(panel.callback->lastSent(text("KsResolution")), text("KsResolQ300600"));
    EXPECT_EQ(panel.callback->lastSent(text("KsTapeMaterial")), text("KsTapeMaterialCloth"));
    EXPECT_EQ(panel.callback->lastSent(text("KsTapeColor")), text("KsTapeColorRed"));
    EXPECT_EQ(panel.callback->lastSent(text("KsInkColor")), text("KsInkColorRed"));
}

TEST(SavedChoices, SecondResolution_SendsTheFirstQualityWhateverIsShown)
{
    PanelUnderTest panel(PpdText::withEveryOption());
    panel.show();
    panel.pickRow("mPrintQualityRdBtn", 1);
    panel->saveValuesAndReturnError(nullptr);
    EXPECT_EQ(panel.callback->lastSent(text("KsPriority")), text("KsPriorityQuality"));
    panel.pickRow("mResolutionRdBtn", 1);
    EXPECT_EQ(panel.matrix("mPrintQualityRdBtn")->selectedRow(), 1);
    panel->saveValuesAndReturnError(nullptr);
    EXPECT_EQ(panel.callback->lastSent(text("KsPriority")), text("KsPrioritySpeed"));
}

TEST(SavedChoices, SelectionThatTheTicketPutBeyondTheItems_SendsTheFirst)
{
    const auto callback = callbackFor(PpdText::withEveryOption());
    callback->useTicket(0xCC, 12);
    PanelUnderTest panel(callback);
    panel.show();
    EXPECT_EQ(panel.popUp("mTapeColorPopBtn")->currentIndex(), -1);
    EXPECT_EQ(callback->lastSent(text("KsTapeColor")), text("KsTapeColorWhite"));
}

// ---- The ticket's codes, before there are controls
// ---------------------------------------------------------------------

namespace
{

struct Ticket {
    int code;
    const char *material;
    const char *colour;
    const char *ink;
};

void PrintTo(const Ticket &ticket, std::ostream *stream)
{
    *stream << "code " << ticket.code;
}

class EachTicket : public ::testing::TestWithParam<Ticket>
{
};

// Code 0 gives the marked choices: PET, pink and gold.
INSTANTIATE_TEST_SUITE_P(
    SavedTicket, EachTicket,
    ::testing::Values(Ticket{0, "KsTapeMaterialPET", "KsTapeColorPink", "KsInkColorGold"},
                      Ticket{1, "KsTapeMaterialOPP", "KsTapeColorWhite", "KsInkColorBlack"},
                      Ticket{2, "KsTapeMaterialPET", "KsTapeColorBlue", "KsInkColorBlue"},
                      Ticket{3, "KsTapeMaterialCloth", "KsTapeColorRed", "KsInkColorRed"},
                      Ticket{4, "KsTapeMaterialCloth", "KsTapeColorYellow", "KsInkColorWhite"},
                      Ticket{5, "KsTapeMaterialCloth", "KsTapeColorPink", "KsInkColorGold"},
                      Ticket{6, "KsTapeMaterialCloth", "KsTapeColorClear", "KsInkColorSilver"},
                      Ticket{7, "KsTapeMaterialCloth", "KsTapeColorPastelBlue", "KsInkColorSilver"},
                      Ticket{8, "KsTapeMaterialCloth", "KsTapeColorPastelRed", "KsInkColorSilver"},
                      Ticket{9, "KsTapeMaterialCloth", "KsTapeColorDeepBlue", "KsInkColorSilver"},
                      Ticket{12, "KsTapeMaterialCloth", "KsTapeColorDeepBlue", "KsInkColorSilver"},
                      Ticket{15, "KsTapeMaterialCloth", "KsTapeColorDeepBlue", "KsInkColorSilver"}));

std::shared_ptr<RecordingCallback> withTicket(const PpdText &ppd, int code)
{
    auto callback = callbackFor(ppd);
    callback->useTicket(code * 16 + code, code);
    ppdMarkOption(callback->ppd.get(), "KsTapeMaterial", "KsTapeMaterialPET");
    ppdMarkOption(callback->ppd.get(), "KsTapeColor", "KsTapeColorPink");
    ppdMarkOption(callback->ppd.get(), "KsInkColor", "KsInkColorGold");
    return callback;
}

} // namespace

TEST_P(EachTicket, GivesTheChoicesWhileThereAreNoControls)
{
    const auto callback = withTicket(withEveryColour(), GetParam().code);
    PanelUnderTest panel(callback);
    panel->supportedPPDOptionKeys();
    EXPECT_EQ(callback->lastSent(text("KsTapeMaterial")), text(GetParam().material));
    EXPECT_EQ(callback->lastSent(text("KsTapeColor")), text(GetParam().colour));
    EXPECT_EQ(callback->lastSent(text("KsInkColor")), text(GetParam().ink));
}

TEST_P(EachTicket, OfChoicesThatThePpdLacks_GivesTheDefaultsNotTheMarks)
{
    PpdText ppd = withEveryColour();
    ppd.option("KsTapeMaterial", "Material", {{"Paper", "Paper"}, {"Foil", "Foil"}, {"KsTapeMaterialPET", "PET"}},
               "Foil");
    ppd.option("KsTapeColor", "Tape", {{"Grey", "Grey"}, {"Brown", "Brown"}, {"KsTapeColorPink", "Pink"}}, "Brown");
    ppd.option("KsInkColor", "Ink", {{"Green", "Green"}, {"Violet", "Violet"}, {"KsInkColorGold", "Gold"}}, "Violet");
    const auto callback = withTicket(ppd, GetParam().code);
    PanelUnderTest panel(callback);
    panel->supportedPPDOptionKeys();
    const auto orDefault = [](const char *choice, const char *listed, const char *defaultChoice) {
        return text(qstrcmp(choice, listed) == 0 ? listed : defaultChoice);
    };
    EXPECT_EQ(callback->lastSent(text("KsTapeMaterial")), orDefault(GetParam().material, "KsTapeMaterialPET", "Foil"));
    EXPECT_EQ(callback->lastSent(text("KsTapeColor")), orDefault(GetParam().colour, "KsTapeColorPink", "Brown"));
    EXPECT_EQ(callback->lastSent(text("KsInkColor")), orDefault(GetParam().ink, "KsInkColorGold", "Violet"));
}

TEST(SavedTicket, OnceThereAreControls_IsNotAskedAgain)
{
    const auto callback = callbackFor(withEveryColour());
    PanelUnderTest panel(callback);
    panel.show();
    callback->useTicket(0x22, 2);
    panel->saveValuesAndReturnError(nullptr);
    EXPECT_EQ(callback->lastSent(text("KsTapeMaterial")), text("KsTapeMaterialOPP"));
    EXPECT_EQ(callback->lastSent(text("KsTapeColor")), text("KsTapeColorWhite"));
    EXPECT_EQ(callback->lastSent(text("KsInkColor")), text("KsInkColorBlack"));
}

// ---- The last word before the job goes out
// -----------------------------------------------------------------------------

TEST(ShouldPrint, SendsLengthInkTapeAndMaterialAgain)
{
    PanelUnderTest panel(PpdText::withEveryOption());
    panel.show();
    panel.callback->sent.clear();
    EXPECT_TRUE(panel->shouldPrint());
    EXPECT_EQ(panel.callback->sentKeys(), keys({"KsTapeLength", "KsInkColor", "KsTapeColor", "KsTapeMaterial"}));
}

TEST(ShouldPrint, WithoutMarks_SendsTheDefaultsOfTheOtherFour)
{
    PpdText ppd = PpdText::withEveryOption();
    ppd.defaultChoice("KsPriority", "KsPriorityQuality")
        .defaultChoice("Resolution", "300x600dpi")
        .defaultChoice("KsCompress", "KsCompressON");
    const auto callback = std::make_shared<RecordingCallback>(openUnmarked(ppd));
    PanelUnderTest panel(callback);
    EXPECT_TRUE(panel->shouldPrint());
    EXPECT_EQ(callback->sentKeys(), keys({"KsTapeLength", "KsInkColor", "KsTapeColor", "KsTapeMaterial", "KsPriority",
                                          "Resolution", "KsResolution", "KsCompress"}));
    EXPECT_EQ(callback->lastSent(text("KsPriority")), text("KsPriorityQuality"));
    EXPECT_EQ(callback->lastSent(text("Resolution")), text("300x600dpi"));
    EXPECT_EQ(callback->lastSent(text("KsResolution")), text("KsResolQ300300"));
    EXPECT_EQ(callback->lastSent(text("KsCompress")), text("KsCompressON"));
}

TEST(ShouldPrint, WithOneMarkMissing_SendsThatDefaultAlone)
{
    const auto callback = std::make_shared<RecordingCallback>(openUnmarked(PpdText::withEveryOption()));
    ppdMarkOption(callback->ppd.get(), "KsPriority", "KsPriorityQuality");
    ppdMarkOption(callback->ppd.get(), "Resolution", "300x600dpi");
    ppdMarkOption(callback->ppd.get(), "KsCompress", "KsCompressON");
    PanelUnderTest panel(callback);
    EXPECT_TRUE(panel->shouldPrint());
    EXPECT_EQ(callback->sentKeys(),
              keys({"KsTapeLength", "KsInkColor", "KsTapeColor", "KsTapeMaterial", "KsResolution"}));
}

TEST(ShouldPrint, WithoutTheOptions_SendsTheTapeLengthAndAgrees)
{
    const auto callback = callbackFor(PpdText());
    PanelUnderTest panel(callback);
    EXPECT_TRUE(panel->shouldPrint());
    EXPECT_EQ(callback->sentKeys(), keys({"KsTapeLength"}));
}

TEST(ShouldPrint, ChecksTheLengthsAfterItHasSaved)
{
    PanelUnderTest panel(PpdText::withEveryOption());
    panel.show();
    panel.field("mLengthTxFld")->setText(text("20.0"));
    panel.field("mMarginTxFld")->setText(text("20.0"));
    panel.callback->sent.clear();
    EXPECT_TRUE(panel->shouldPrint());
    ASSERT_EQ(panel.alerts.size(), 1U);
    // 0.1 (a dot is shorter than the step) + 20.0 + 20.0.
    EXPECT_EQ(panel.field("mLengthTxFld")->text(), text("40.1"));
    EXPECT_EQ(panel.callback->lastSent(text("KsTapeLength")), text("20.0"));
}
