// SPDX-License-Identifier: Apache-2.0
// The seven choice options on the built bundle's panel: the first selection, colour images, a person's picks, the
// dialog's notices, and the rule by which the resolution enables the quality.
#include "PanelUnderTest.h"
#include "PpdTools.h"
#include "TextPrinting.h"

#include <QAbstractButton>
#include <QTest>

namespace
{

std::shared_ptr<RecordingCallback> callbackFor(const PpdText &ppd)
{
    return std::make_shared<RecordingCallback>(ppd.open());
}

QString text(const char *latin1)
{
    return QString::fromLatin1(latin1);
}

/// The colour in the middle of an item's image; invalid when the item has none.
QColor imageColour(const PanelUnderTest &panel, const char *popUp, int index)
{
    const QIcon icon = panel.popUp(popUp)->itemIcon(index);
    if (icon.isNull()) {
        return {};
    }
    const QImage image = icon.pixmap(16, 16).toImage();
    return image.pixelColor(image.width() / 2, image.height() / 2);
}

bool isMainly(const QColor &colour, int red, int green, int blue)
{
    const auto near = [](int a, int b) { return std::abs(a - b) < 90; };
    return colour.isValid() && near(colour.red(), red) && near(colour.green(), green) && near(colour.blue(), blue);
}

} // namespace

// ---- The vendor resolution takes its first selection from the plain resolution -------------------------------------

TEST(VendorResolution, FirstSelection_IsWhereThePlainResolutionHasItsDefault)
{
    PpdText ppd = PpdText::withEveryOption();
    ppd.defaultChoice("Resolution", "300x600dpi").defaultChoice("KsResolution", "KsResolQ300600");
    PanelUnderTest panel(ppd);
    panel.show();
    EXPECT_EQ(panel.popUp("mKsResolutionPUBtn")->currentIndex(), 1);
    EXPECT_EQ(panel.callback->lastSent(text("KsResolution")), text("KsResolQ300300"));
}

TEST(VendorResolution, WithoutAPlainResolution_KeepsTheFirstItem)
{
    PpdText ppd = PpdText::withEveryOption();
    ppd.withoutOption("Resolution").defaultChoice("KsResolution", "KsResolQ300600");
    PanelUnderTest panel(ppd);
    panel.show();
    EXPECT_EQ(panel.popUp("mKsResolutionPUBtn")->currentIndex(), 0);
}

TEST(VendorResolution, PlainDefaultBeyondItsOwnChoices_KeepsTheFirstItem)
{
    PpdText ppd = PpdText::withEveryOption();
    ppd.option("Resolution", "Resolution", {{"180x180dpi", "A"}, {"300x300dpi", "B"}, {"300x600dpi", "C"}},
               "300x600dpi");
    ppd.option("KsResolution", "Print Mode", {{"KsResolS300300", "Fast"}, {"KsResolQ300300", "Good"}},
               "KsResolQ300300");
    PanelUnderTest panel(ppd);
    panel.show();
    EXPECT_EQ(panel.popUp("mKsResolutionPUBtn")->currentIndex(), 0);
}

TEST(VendorResolution, MoreChoicesThanPlainOnes_AreNotLookedForBeyondThem)
{
    // The plain option's default is not among its choices: three places are looked at, of which two exist.
    PpdText ppd = PpdText::withEveryOption();
    ppd.defaultChoice("Resolution", "600x600dpi");
    PanelUnderTest panel(ppd);
    panel.show();
    EXPECT_EQ(panel.popUp("mKsResolutionPUBtn")->currentIndex(), 0);
}

// ---- The ticket gives the first selection of material, tape colour and ink colour -----------------------------------

namespace
{

struct Code {
    int code;
    int material; ///< the index that is selected of three; -1: none
    int colour;   ///< of nine
    int ink;      ///< of six
    const char *maxPrintTapeLength;
};

void PrintTo(const Code &code, std::ostream *stream)
{
    *stream << "code " << code.code;
}

class EachTicketCode : public ::testing::TestWithParam<Code>
{
};

// The defaults (code 0) are PET, yellow and gold. Cloth alone has the longer print tape length.
INSTANTIATE_TEST_SUITE_P(TicketSelection, EachTicketCode,
                         ::testing::Values(Code{0, 1, 3, 4, "8.0"}, Code{1, 0, 0, 0, "8.0"}, Code{2, 1, 1, 1, "8.0"},
                                           Code{3, 2, 2, 2, "12.0"}, Code{6, -1, 5, 5, "8.0"},
                                           Code{9, -1, 8, -1, "8.0"}, Code{12, -1, -1, -1, "8.0"},
                                           Code{15, -1, -1, -1, "8.0"}));

} // namespace

TEST_P(EachTicketCode, SelectsTheItemBeforeItUnchecked)
{
    PpdText ppd = withEveryColour();
    ppd.defaultChoice("KsTapeMaterial", "KsTapeMaterialPET")
        .defaultChoice("KsTapeColor", "KsTapeColorYellow")
        .defaultChoice("KsInkColor", "KsInkColorGold");
    const auto callback = callbackFor(ppd);
    callback->useTicket(GetParam().code * 16 + GetParam().code, GetParam().code);
    PanelUnderTest panel(callback);
    panel.show();
    EXPECT_EQ(panel.popUp("mTapeTypePopBtn")->currentIndex(), GetParam().material);
    EXPECT_EQ(panel.popUp("mTapeColorPopBtn")->currentIndex(), GetParam().colour);
    EXPECT_EQ(panel.popUp("mInkColorPopBtn")->currentIndex(), GetParam().ink);
    EXPECT_EQ(panel.label("mTapeLengthMaxStr")->text(), text(GetParam().maxPrintTapeLength));
}

TEST(TicketSelection, PaperWithAName_LeavesTheTicketUnread)
{
    const auto callback = callbackFor(withEveryColour());
    callback->useTicket(0x33, 3);
    callback->usePaper("24mm");
    PanelUnderTest panel(callback);
    panel.show();
    EXPECT_EQ(panel.popUp("mTapeTypePopBtn")->currentIndex(), 0);
    EXPECT_EQ(panel.popUp("mTapeColorPopBtn")->currentIndex(), 0);
    EXPECT_EQ(panel.popUp("mInkColorPopBtn")->currentIndex(), 0);
    EXPECT_EQ(panel.label("mTapeLengthMaxStr")->text(), text("8.0"));
}

TEST(TicketSelection, ClothByDefaultAlone_DoesNotSetTheClothLimit)
{
    PpdText ppd = withEveryColour();
    ppd.defaultChoice("KsTapeMaterial", "KsTapeMaterialCloth");
    PanelUnderTest panel(ppd);
    panel.show();
    EXPECT_EQ(panel.popUp("mTapeTypePopBtn")->currentIndex(), 2);
    EXPECT_EQ(panel.label("mTapeLengthMaxStr")->text(), text("8.0"));
}

// ---- Images of colours
// -----------------------------------------------------------------------------------------------

TEST(ColourImages, AreFoundByTheChoicesKeyword)
{
    PanelUnderTest panel(withEveryColour());
    panel.show();
    EXPECT_TRUE(isMainly(imageColour(panel, "mTapeColorPopBtn", 0), 255, 255, 255));
    EXPECT_TRUE(isMainly(imageColour(panel, "mTapeColorPopBtn", 2), 210, 30, 30));
    EXPECT_TRUE(isMainly(imageColour(panel, "mInkColorPopBtn", 0), 0, 0, 0));
    EXPECT_TRUE(isMainly(imageColour(panel, "mInkColorPopBtn", 2), 210, 30, 30));
    for (int i = 0; i < 9; ++i) {
        EXPECT_TRUE(imageColour(panel, "mTapeColorPopBtn", i).isValid()) << i;
    }
    for (int i = 0; i < 6; ++i) {
        EXPECT_TRUE(imageColour(panel, "mInkColorPopBtn", i).isValid()) << i;
    }
}

TEST(ColourImages, MissingImage_LeavesTheItemWithItsTitle)
{
    PpdText ppd = PpdText::withEveryOption();
    ppd.option("KsTapeColor", "Tape", {{"KsTapeColorTartan", "Tartan"}, {"KsTapeColorRed", "Red"}}, "KsTapeColorRed");
    PanelUnderTest panel(ppd);
    panel.show();
    EXPECT_EQ(panel.popUp("mTapeColorPopBtn")->itemText(0), text("Tartan"));
    EXPECT_FALSE(imageColour(panel, "mTapeColorPopBtn", 0).isValid());
    EXPECT_TRUE(imageColour(panel, "mTapeColorPopBtn", 1).isValid());
}

TEST(ColourImages, TitleThatStandsTwice_GivesTheImageToTheFirstItem)
{
    PpdText ppd = PpdText::withEveryOption();
    ppd.option("KsInkColor", "Ink", {{"KsInkColorTartan", "Same"}, {"KsInkColorRed", "Same"}}, "KsInkColorRed");
    PanelUnderTest panel(ppd);
    panel.show();
    EXPECT_TRUE(isMainly(imageColour(panel, "mInkColorPopBtn", 0), 210, 30, 30));
    EXPECT_FALSE(imageColour(panel, "mInkColorPopBtn", 1).isValid());
}

TEST(ColourImages, UnreadableChoice_GetsTheFallbackTitleWithoutItsImage)
{
    PpdText ppd = PpdText::withEveryOption();
    ppd.option("KsInkColor", "Ink", {{"KsInkColorRed", "Red"}}, "KsInkColorRed");
    const auto callback = callbackFor(ppd);
    spoilChoice(callback->ppd.get(), "KsInkColor", 0);
    PanelUnderTest panel(callback);
    panel.show();
    ASSERT_EQ(panel.popUp("mInkColorPopBtn")->count(), 6);
    for (int i = 0; i < 6; ++i) {
        EXPECT_FALSE(imageColour(panel, "mInkColorPopBtn", i).isValid()) << i;
    }
}

TEST(ColourImages, BelongToTapeAndInkColourOnly)
{
    PpdText ppd = PpdText::withEveryOption();
    ppd.option("KsTapeMaterial", "Material", {{"KsTapeColorRed", "Red"}}, "KsTapeColorRed");
    PanelUnderTest panel(ppd);
    panel.show();
    EXPECT_FALSE(imageColour(panel, "mTapeTypePopBtn", 0).isValid());
}

// ---- A person's pick
// -------------------------------------------------------------------------------------------------

namespace
{

struct Pick {
    const char *keyword;
    const char *control;
    bool isMatrix;
    const char *choice; ///< at index 1
};

void PrintTo(const Pick &pick, std::ostream *stream)
{
    *stream << pick.keyword;
}

class EachPick : public ::testing::TestWithParam<Pick>
{
protected:
    static void pickSecond(PanelUnderTest &panel)
    {
        if (GetParam().isMatrix) {
            panel.pickRow(GetParam().control, 1);
        } else {
            panel.pickItem(GetParam().control, 1);
        }
    }
    static int selected(const PanelUnderTest &panel)
    {
        return GetParam().isMatrix ? panel.matrix(GetParam().control)->selectedRow()
                                   : panel.popUp(GetParam().control)->currentIndex();
    }
};

INSTANTIATE_TEST_SUITE_P(Picks, EachPick,
                         ::testing::Values(Pick{"KsPriority", "mPrintQualityRdBtn", true, "KsPriorityQuality"},
                                           Pick{"Resolution", "mResolutionRdBtn", true, "300x600dpi"},
                                           Pick{"KsCompress", "mCompressRdBtn", true, "KsCompressON"},
                                           Pick{"KsResolution", "mKsResolutionPUBtn", false, "KsResolQ300300"},
                                           Pick{"KsTapeMaterial", "mTapeTypePopBtn", false, "KsTapeMaterialPET"},
                                           Pick{"KsTapeColor", "mTapeColorPopBtn", false, "KsTapeColorBlue"},
                                           Pick{"KsInkColor", "mInkColorPopBtn", false, "KsInkColorBlue"}),
                         [](const auto &test) { return std::string(test.param.keyword); });

} // namespace

TEST_P(EachPick, SendsTheChoiceAndStaysSelected)
{
    PanelUnderTest panel(PpdText::withEveryOption());
    panel.show();
    panel.callback->sent.clear();
    pickSecond(panel);
    EXPECT_EQ(panel.callback->sentFor(text(GetParam().keyword)), (std::vector<QString>{text(GetParam().choice)}));
    EXPECT_EQ(selected(panel), 1);
    ASSERT_TRUE(panel->saveValuesAndReturnError(nullptr));
    EXPECT_EQ(panel.callback->lastSent(text(GetParam().keyword)), text(GetParam().choice));
}

TEST_P(EachPick, CorrectsATapeLengthInSilence)
{
    PanelUnderTest panel(PpdText::withEveryOption());
    panel.show();
    // Leaving a field by a click would be a check of its own, with an alert.
    panel.popUp("mInkColorPopBtn")->setFocus();
    panel.field("mLengthTxFld")->setText(text("1200.0"));
    pickSecond(panel);
    EXPECT_EQ(panel.field("mLengthTxFld")->text(), text("1000.0"));
    EXPECT_TRUE(panel.alerts.empty());
}

TEST_P(EachPick, OfAChoiceThatThePpdLacks_SendsNothing)
{
    PpdText ppd = PpdText::withEveryOption();
    ppd.option(GetParam().keyword, "Zzz", {{"Only", "Only"}}, "Only");
    const auto callback = callbackFor(ppd);
    // An unreadable text gives a pop-up more items than choices; a radio matrix has two rows anyway.
    spoilChoice(callback->ppd.get(), GetParam().keyword, 0);
    PanelUnderTest panel(callback);
    panel.show();
    panel.callback->sent.clear();
    if (GetParam().isMatrix) {
        QAbstractButton *cell = panel.matrix(GetParam().control)->cellAtRow(1, 0);
        const QPoint place = cell->mapTo(&panel.window, QPoint(8, cell->height() / 2));
        QTest::mouseClick(panel.window.windowHandle(), Qt::LeftButton, Qt::NoModifier, place);
    } else {
        panel.popUp(GetParam().control)->setFocus();
        QTest::keyClick(panel.window.windowHandle(), Qt::Key_Down);
    }
    EXPECT_TRUE(panel.callback->sentFor(text(GetParam().keyword)).empty());
    // A pick all the same: the tape length is handed over again.
    EXPECT_FALSE(panel.callback->sentFor(text("KsTapeLength")).empty());
}

TEST(Picks, OfCloth_RaisesThePrintTapeLengthsMaximum_OfAnother_LowersIt)
{
    PanelUnderTest panel(PpdText::withEveryOption());
    panel.show();
    EXPECT_EQ(panel.label("mTapeLengthMaxStr")->text(), text("8.0"));
    panel.pickItem("mTapeTypePopBtn", 2);
    EXPECT_EQ(panel.label("mTapeLengthMaxStr")->text(), text("12.0"));
    EXPECT_DOUBLE_EQ(panel.slider("mTapeLengthSlider")->maxValue(), 12.0);
    panel.pickItem("mTapeTypePopBtn", 0);
    EXPECT_EQ(panel.label("mTapeLengthMaxStr")->text(), text("8.0"));
}

TEST(Picks, OfTheThirdColourOrInk_LeaveThePrintTapeLengthsMaximum)
{
    PanelUnderTest panel(PpdText::withEveryOption());
    panel.show();
    panel.pickItem("mTapeColorPopBtn", 2);
    panel.pickItem("mInkColorPopBtn", 2);
    panel.pickItem("mKsResolutionPUBtn", 2);
    EXPECT_EQ(panel.label("mTapeLengthMaxStr")->text(), text("8.0"));
}

TEST(Picks, OfAMaterial_EnableAndDisableNothing)
{
    PanelUnderTest panel(PpdText::withEveryOption());
    panel.show();
    for (const int index : {2, 1, 0}) {
        panel.pickItem("mTapeTypePopBtn", index);
        EXPECT_TRUE(panel.popUp("mTapeColorPopBtn")->isEnabled());
        EXPECT_TRUE(panel.popUp("mInkColorPopBtn")->isEnabled());
        EXPECT_TRUE(panel.matrix("mPrintQualityRdBtn")->isEnabled());
    }
}

// A colour's code shares a bit with the vendor resolution's, a material's does not.
TEST(Picks, OfATapeOrInkColour_FollowTheVendorResolutionsMark)
{
    for (const char *popUp : {"mTapeColorPopBtn", "mInkColorPopBtn"}) {
        PanelUnderTest panel(PpdText::withEveryOption());
        panel.show();
        ppdMarkOption(panel.callback->ppd.get(), "KsResolution", "KsResolQ300600");
        panel.pickItem(popUp, 1);
        EXPECT_EQ(panel.popUp("mKsResolutionPUBtn")->currentIndex(), 2) << popUp;
    }
}

TEST(Picks, OfAMaterial_DoNotFollowTheVendorResolutionsMark)
{
    PanelUnderTest panel(PpdText::withEveryOption());
    panel.show();
    ppdMarkOption(panel.callback->ppd.get(), "KsResolution", "KsResolQ300600");
    panel.pickItem("mTapeTypePopBtn", 1);
    EXPECT_EQ(panel.popUp("mKsResolutionPUBtn")->currentIndex(), 0);
}

TEST(Picks, OfATapeColour_SelectMaterialAndInkAsTheDialogReportedThem)
{
    PanelUnderTest panel(PpdText::withEveryOption());
    panel.show();
    panel->PPDOptionKeyValueDidChange(text("KsTapeMaterial"), text("KsTapeMaterialPET"));
    panel->PPDOptionKeyValueDidChange(text("KsInkColor"), text("KsInkColorRed"));
    EXPECT_EQ(panel.popUp("mTapeTypePopBtn")->currentIndex(), 0);
    EXPECT_EQ(panel.popUp("mInkColorPopBtn")->currentIndex(), 0);
    panel.pickItem("mTapeColorPopBtn", 1);
    EXPECT_EQ(panel.popUp("mTapeTypePopBtn")->currentIndex(), 1);
    EXPECT_EQ(panel.popUp("mInkColorPopBtn")->currentIndex(), 2);
    EXPECT_EQ(panel.popUp("mTapeColorPopBtn")->currentIndex(), 1);
}

TEST(Picks, OfATapeColour_LeaveMaterialAndInkAloneThatTheDialogNeverReported)
{
    PanelUnderTest panel(PpdText::withEveryOption());
    panel.show();
    panel.popUp("mTapeTypePopBtn")->setCurrentIndex(2);
    panel.popUp("mInkColorPopBtn")->setCurrentIndex(1);
    panel.pickItem("mTapeColorPopBtn", 1);
    EXPECT_EQ(panel.popUp("mTapeTypePopBtn")->currentIndex(), 2);
    EXPECT_EQ(panel.popUp("mInkColorPopBtn")->currentIndex(), 1);
}

// ---- The resolution enables the quality
// ------------------------------------------------------------------------------

TEST(QualityRule, SecondResolution_DisablesQuality_FirstEnablesItAgain)
{
    PanelUnderTest panel(PpdText::withEveryOption());
    panel.show();
    panel.pickRow("mResolutionRdBtn", 1);
    EXPECT_FALSE(panel.matrix("mPrintQualityRdBtn")->isEnabled());
    EXPECT_FALSE(panel.isTextEnabled("mPrintQualityStr"));
    panel.pickRow("mResolutionRdBtn", 0);
    EXPECT_TRUE(panel.matrix("mPrintQualityRdBtn")->isEnabled());
    EXPECT_TRUE(panel.isTextEnabled("mPrintQualityStr"));
}

TEST(QualityRule, WithoutAPriorityInThePpd_HoldsAllTheSame)
{
    PpdText ppd = PpdText::withEveryOption();
    ppd.withoutOption("KsPriority");
    PanelUnderTest panel(ppd);
    panel.show();
    EXPECT_TRUE(panel.matrix("mPrintQualityRdBtn")->isEnabled());
    panel.pickRow("mResolutionRdBtn", 1);
    EXPECT_FALSE(panel.matrix("mPrintQualityRdBtn")->isEnabled());
    panel.pickRow("mResolutionRdBtn", 0);
    EXPECT_TRUE(panel.matrix("mPrintQualityRdBtn")->isEnabled());
    EXPECT_TRUE(panel.isTextEnabled("mPrintQualityStr"));
}

TEST(QualityRule, SecondResolutionByDefault_DisablesQualityAtTheFirstShowing)
{
    PpdText ppd = PpdText::withEveryOption();
    ppd.defaultChoice("Resolution", "300x600dpi");
    PanelUnderTest panel(ppd);
    panel.show();
    EXPECT_FALSE(panel.matrix("mPrintQualityRdBtn")->isEnabled());
}

// ---- The dialog's notices
// --------------------------------------------------------------------------------------------

TEST_P(EachPick, AsANotice_MovesTheControlAtTheNextShowingAndSendsNothingItself)
{
    PanelUnderTest panel(PpdText::withEveryOption());
    panel.show();
    panel.callback->sent.clear();
    const int before = selected(panel);
    panel->PPDOptionKeyValueDidChange(text(GetParam().keyword), text(GetParam().choice));
    EXPECT_EQ(selected(panel), before);
    EXPECT_TRUE(panel.callback->sent.empty());
    panel->willShow();
    EXPECT_EQ(selected(panel), 1);
}

TEST_P(EachPick, AsANoticeOfAnUnknownChoice_LeavesTheControl)
{
    PanelUnderTest panel(PpdText::withEveryOption());
    panel.show();
    panel.dialogChanged(text(GetParam().keyword), text(GetParam().choice));
    panel.dialogChanged(text(GetParam().keyword), text("NoSuchChoice"));
    EXPECT_EQ(selected(panel), 1);
}

TEST_P(EachPick, AsANoticeWithoutAChoice_KeepsTheSelection)
{
    PanelUnderTest panel(PpdText::withEveryOption());
    panel.show();
    panel->PPDOptionKeyValueDidChange(text(GetParam().keyword), text(GetParam().choice));
    panel->PPDOptionKeyValueDidChange(text(GetParam().keyword), QString());
    panel->willShow();
    EXPECT_EQ(selected(panel), 1);
}

TEST(Notices, WithoutAKeyOrOfAnUnknownKey_AreIgnored)
{
    PanelUnderTest panel(PpdText::withEveryOption());
    panel.show();
    panel.callback->sent.clear();
    const auto before = panel->summaryInfo();
    panel->PPDOptionKeyValueDidChange(QString(), text("KsTapeColorRed"));
    panel->PPDOptionKeyValueDidChange(text("KsUnheardOf"), text("KsTapeColorRed"));
    panel->PPDOptionKeyValueDidChange(text("kstapecolor"), text("KsTapeColorRed"));
    EXPECT_EQ(panel->summaryInfo(), before);
    EXPECT_TRUE(panel.callback->sent.empty());
}

TEST(Notices, OfATapeColourThatThePpdLacks_EndItsSelection)
{
    PanelUnderTest panel(PpdText::withEveryOption());
    panel.show();
    const auto colour = [&panel] { return panel->summaryInfo()->value(text("Tape")).toString(); };
    EXPECT_TRUE(colour().isNull());
    panel.dialogChanged(text("KsTapeColor"), text("KsTapeColorBlue"));
    EXPECT_FALSE(colour().isNull());
    panel.dialogChanged(text("KsTapeColor"), text("kstapecolorblue"));
    EXPECT_TRUE(colour().isNull());
}
