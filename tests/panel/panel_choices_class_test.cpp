// SPDX-License-Identifier: Apache-2.0
// The choice options where only the panel's class can see: which items a code refreshes, the cloth bit, a pick without
// a person, and the quality that may be saved.
#include "PpdTools.h"
#include "TextPrinting.h"
#include "TracedPanel.h"

namespace
{

QString text(const char *latin1)
{
    return QString::fromLatin1(latin1);
}

struct Control {
    const char *keyword;
    const char *second; ///< the choice at index 1
    const char *name;
    bool isMatrix;
};

const std::vector<Control> kControls = {{"KsPriority", "KsPriorityQuality", "mPrintQualityRdBtn", true},
                                        {"Resolution", "300x600dpi", "mResolutionRdBtn", true},
                                        {"KsCompress", "KsCompressON", "mCompressRdBtn", true},
                                        {"KsResolution", "KsResolQ300300", "mKsResolutionPUBtn", false},
                                        {"KsTapeMaterial", "KsTapeMaterialPET", "mTapeTypePopBtn", false},
                                        {"KsTapeColor", "KsTapeColorBlue", "mTapeColorPopBtn", false},
                                        {"KsInkColor", "KsInkColorBlue", "mInkColorPopBtn", false}};

int selected(const PanelOfTheClass &panel, const Control &control)
{
    return control.isMatrix ? panel.outlet<pdekit::RadioMatrix>(control.name)->selectedRow()
                            : panel.outlet<QComboBox>(control.name)->currentIndex();
}

void selectFirst(const PanelOfTheClass &panel, const Control &control)
{
    if (control.isMatrix) {
        panel.outlet<pdekit::RadioMatrix>(control.name)->selectCellAtRow(0, 0);
    } else {
        panel.outlet<QComboBox>(control.name)->setCurrentIndex(0);
    }
}

/// A code and the options that it refreshes.
struct Overlap {
    std::int32_t item;
    QStringList refreshed;
};

void PrintTo(const Overlap &overlap, std::ostream *stream)
{
    *stream << "item 0x" << std::hex << overlap.item;
}

class EachItem : public ::testing::TestWithParam<Overlap>
{
};

const QString kMaterial = QStringLiteral("KsTapeMaterial");
const QString kColour = QStringLiteral("KsTapeColor");
const QString kInk = QStringLiteral("KsInkColor");
const QString kVendor = QStringLiteral("KsResolution");

INSTANTIATE_TEST_SUITE_P(
    ItemCodes, EachItem,
    ::testing::Values(Overlap{0x0, {}}, Overlap{0x1, {}}, Overlap{0x2, {}},
                      Overlap{0x4, {QStringLiteral("KsPriority")}}, Overlap{0x8, {QStringLiteral("Resolution")}},
                      Overlap{0x10, {QStringLiteral("KsCompress")}}, Overlap{0x20000, {kVendor, kColour, kInk}},
                      Overlap{0x50000, {kMaterial, kColour, kInk}},
                      Overlap{0x60000, {kVendor, kMaterial, kColour, kInk}},
                      Overlap{0x70000, {kVendor, kMaterial, kColour, kInk}},
                      // The print tape length's code shares a bit with material and ink.
                      Overlap{0x90000, {kMaterial, kInk}}),
    [](const auto &test) { return "Code" + QByteArray::number(test.param.item, 16).toStdString(); });

} // namespace

TEST_P(EachItem, Updated_SelectsItsGroupsFromTheStoredSelections)
{
    PanelOfTheClass panel(PpdText::withEveryOption());
    panel.show();
    for (const Control &control : kControls) {
        panel->PPDOptionKeyValueDidChange(text(control.keyword), text(control.second));
        selectFirst(panel, control);
    }
    panel->updateUIItem(GetParam().item);
    for (const Control &control : kControls) {
        EXPECT_EQ(selected(panel, control), GetParam().refreshed.contains(text(control.keyword)) ? 1 : 0)
            << control.keyword;
    }
}

TEST_P(EachItem, Updated_LeavesControlsAloneThatHaveNoStoredSelection)
{
    PanelOfTheClass panel(PpdText::withEveryOption());
    panel.show();
    for (const Control &control : kControls) {
        panel->PPDOptionKeyValueDidChange(text(control.keyword), text("NoSuchChoice"));
    }
    // The third item is what no default would select.
    for (const char *popUp : {"mKsResolutionPUBtn", "mTapeTypePopBtn", "mTapeColorPopBtn", "mInkColorPopBtn"}) {
        panel.outlet<QComboBox>(popUp)->setCurrentIndex(2);
    }
    panel.outlet<pdekit::RadioMatrix>("mCompressRdBtn")->selectCellAtRow(1, 0);
    panel->updateUIItem(GetParam().item);
    for (const char *popUp : {"mKsResolutionPUBtn", "mTapeTypePopBtn", "mTapeColorPopBtn", "mInkColorPopBtn"}) {
        EXPECT_EQ(panel.outlet<QComboBox>(popUp)->currentIndex(), 2) << popUp;
    }
    EXPECT_EQ(panel.outlet<pdekit::RadioMatrix>("mCompressRdBtn")->selectedRow(), 1);
}

namespace
{

class EachMarkedItem : public ::testing::TestWithParam<Overlap>
{
};

// Material, tape colour and ink colour are never read from the marks.
INSTANTIATE_TEST_SUITE_P(
    ItemCodes, EachMarkedItem,
    ::testing::Values(Overlap{0x1, {}}, Overlap{0x2, {}}, Overlap{0x4, {QStringLiteral("KsPriority")}},
                      Overlap{0x8, {QStringLiteral("Resolution")}}, Overlap{0x10, {QStringLiteral("KsCompress")}},
                      Overlap{0x20000, {kVendor}}, Overlap{0x50000, {}}, Overlap{0x60000, {kVendor}},
                      Overlap{0x70000, {kVendor}}, Overlap{0x90000, {}}),
    [](const auto &test) { return "Code" + QByteArray::number(test.param.item, 16).toStdString(); });

TEST(ChoiceTitles, OfOptionsThatThePpdLacks_AreTheInterfacesInWords)
{
    PanelOfTheClass panel(PpdText::withEveryOption().withoutOption("KsPriority").withoutOption("Resolution"));
    panel.show();
    EXPECT_EQ(panel.outlet<pdekit::RadioMatrix>("mPrintQualityRdBtn")->titles(),
              (QStringList{u"Speed"_qs, u"Quality"_qs}));
    EXPECT_EQ(panel.outlet<pdekit::RadioMatrix>("mResolutionRdBtn")->titles(),
              (QStringList{u"300 × 300 dpi"_qs, u"300 × 600 dpi"_qs}));
}

} // namespace

TEST_P(EachMarkedItem, Marked_TakesItsSelectionsFromThePpdsMarks)
{
    PanelOfTheClass panel(PpdText::withEveryOption());
    panel.show();
    for (const Control &control : kControls) {
        panel->PPDOptionKeyValueDidChange(text(control.keyword), text("NoSuchChoice"));
        selectFirst(panel, control);
        ppdMarkOption(panel.callback->ppd.get(), control.keyword, control.second);
    }
    panel->updateMarkedSelections(GetParam().item);
    panel->updateUIItem(0x7001C);
    for (const Control &control : kControls) {
        EXPECT_EQ(selected(panel, control), GetParam().refreshed.contains(text(control.keyword)) ? 1 : 0)
            << control.keyword;
    }
}

TEST(MarkedSelections, WithoutAMark_AreTheDefaults)
{
    PpdText ppd = PpdText::withEveryOption();
    ppd.defaultChoice("KsPriority", "KsPriorityQuality");
    PanelOfTheClass panel(openUnmarked(ppd));
    panel.construct();
    panel->updateMarkedSelections(0x4);
    EXPECT_EQ(panel->summaryInfo()->value(text("Priority")).toString(), text("Quality"));
}

TEST(MarkedSelections, WithoutAMarkOrADefault_AreNone)
{
    PpdText ppd = PpdText::withEveryOption();
    ppd.defaultChoice("KsPriority", "Unlisted");
    PanelOfTheClass panel(openUnmarked(ppd));
    panel.construct();
    panel->PPDOptionKeyValueDidChange(text("KsPriority"), text("KsPriorityQuality"));
    panel->updateMarkedSelections(0x4);
    EXPECT_FALSE(panel->summaryInfo()->contains(text("Priority")));
}

// ---- The cloth bit
// -----------------------------------------------------------------------------------------------------

TEST(ClothBit, OfATicketThatSaysNothing_IsLeftAsItWas)
{
    PanelOfTheClass panel(PpdText::withEveryOption());
    panel.callback->useTicket(0x30, 0);
    panel.show();
    EXPECT_EQ(panel->imageModeFlag() & 16U, 16U);
    panel.callback->useTicket(0x00, 0);
    panel->initializeUI_TapeType();
    EXPECT_EQ(panel->imageModeFlag() & 16U, 16U);
    EXPECT_EQ(panel.outlet<QComboBox>("mTapeTypePopBtn")->currentIndex(), 0);
}

TEST(ClothBit, OfATicketWithAnotherMaterial_IsCleared)
{
    for (const int material : {1, 2, 4, 12, 15}) {
        PanelOfTheClass panel(PpdText::withEveryOption());
        panel.callback->useTicket(0x30, 0);
        panel.show();
        panel.callback->useTicket(material * 16, 0);
        panel->initializeUI_TapeType();
        EXPECT_EQ(panel->imageModeFlag(), 0U) << material;
    }
}

TEST(ClothBit, LeavesThe15mmBitAlone)
{
    PanelOfTheClass panel(PpdText::withEveryOption());
    panel.callback->usePaper("15mm");
    panel.show();
    EXPECT_EQ(panel->imageModeFlag(), 1U);
    panel.outlet<QComboBox>("mTapeTypePopBtn")->setCurrentIndex(2);
    panel->changeKsTapeType(nullptr);
    EXPECT_EQ(panel->imageModeFlag(), 17U);
    panel.outlet<QComboBox>("mTapeTypePopBtn")->setCurrentIndex(1);
    panel->changeKsTapeType(nullptr);
    EXPECT_EQ(panel->imageModeFlag(), 1U);
}

// ---- The resolution's row and the quality
// ------------------------------------------------------------------------------

TEST(QualityRule, ThirdResolutionRow_ChangesNothing)
{
    PanelOfTheClass panel(PpdText::withEveryOption());
    panel.show();
    auto *resolution = panel.outlet<pdekit::RadioMatrix>("mResolutionRdBtn");
    auto *quality = panel.outlet<pdekit::RadioMatrix>("mPrintQualityRdBtn");
    resolution->setTitles({text("a"), text("b"), text("c")});
    for (const bool enabled : {true, false}) {
        resolution->selectCellAtRow(2, 0);
        quality->setEnabled(enabled);
        panel->enabledCheck_BS();
        EXPECT_EQ(quality->isEnabled(), enabled);
    }
}

TEST(QualityRule, AlreadyAsItShouldBe_LeavesTheLabelsColour)
{
    PanelOfTheClass panel(PpdText::withEveryOption());
    panel.show();
    auto *label = panel.outlet<QLabel>("mPrintQualityStr");
    QPalette odd;
    odd.setColor(QPalette::WindowText, Qt::magenta);
    label->setPalette(odd);
    panel->enabledCheck_BS();
    EXPECT_EQ(label->palette().color(QPalette::WindowText), QColor(Qt::magenta));
    panel.outlet<pdekit::RadioMatrix>("mResolutionRdBtn")->selectCellAtRow(1, 0);
    panel->enabledCheck_BS();
    EXPECT_NE(label->palette().color(QPalette::WindowText), QColor(Qt::magenta));
}

TEST(SavedQuality, IsTheRowAtTheFirstResolutionAndTheFirstElsewhere)
{
    PanelOfTheClass panel(PpdText::withEveryOption());
    panel.show();
    auto *resolution = panel.outlet<pdekit::RadioMatrix>("mResolutionRdBtn");
    auto *quality = panel.outlet<pdekit::RadioMatrix>("mPrintQualityRdBtn");
    quality->selectCellAtRow(1, 0);
    EXPECT_EQ(panel->indexForSaveQuality(quality), 1);
    EXPECT_EQ(panel->indexForSaveQuality(nullptr), 0);
    EXPECT_EQ(panel->indexForSaveQuality(panel.outlet<QComboBox>("mTapeTypePopBtn")), 0);
    resolution->setTitles({text("a"), text("b"), text("c")});
    EXPECT_EQ(panel->indexForSaveQuality(quality), 1);
    for (const int row : {1, 2}) {
        resolution->selectCellAtRow(row, 0);
        EXPECT_EQ(panel->indexForSaveQuality(quality), 0) << row;
    }
    delete resolution;
    EXPECT_EQ(panel->indexForSaveQuality(quality), 1);
}

TEST(Panel, WithoutItsControls_RunsEveryHandlerInSafety)
{
    PanelOfTheClass panel(PpdText::withEveryOption());
    panel.show();
    delete panel->panelView();
    panel->changeQuality(nullptr);
    panel->changeResolution(nullptr);
    panel->changeCompress(nullptr);
    panel->changeKsResolution(nullptr);
    panel->changeKsTapeType(nullptr);
    panel->changeKsTapeColor(nullptr);
    panel->changeKsInkColor(nullptr);
    EXPECT_TRUE(panel->shouldPrint());
    EXPECT_TRUE(panel->saveValuesAndReturnError(nullptr));
    EXPECT_EQ(panel.callback->lastSent(text("KsTapeColor")), text("KsTapeColorWhite"));
}

TEST(ClothBit, FollowsThePickedPlace_NotWhatTheControlShowsAfterwards)
{
    PanelOfTheClass panel(PpdText::withEveryOption());
    panel.show();
    // A dialog that reports a material once: the pick is shown as that again.
    panel->PPDOptionKeyValueDidChange(text("KsTapeMaterial"), text("KsTapeMaterialOPP"));
    auto *material = panel.outlet<QComboBox>("mTapeTypePopBtn");
    material->setCurrentIndex(2);
    panel->changeKsTapeType(nullptr);
    EXPECT_EQ(material->currentIndex(), 0);
    EXPECT_EQ(panel->imageModeFlag(), 16U);
    panel->PPDOptionKeyValueDidChange(text("KsTapeMaterial"), text("KsTapeMaterialCloth"));
    material->setCurrentIndex(0);
    panel->changeKsTapeType(nullptr);
    EXPECT_EQ(material->currentIndex(), 2);
    EXPECT_EQ(panel->imageModeFlag(), 0U);
}

TEST(Picks, OfNoItem_SendNothing)
{
    PanelOfTheClass panel(PpdText::withEveryOption());
    panel.show();
    for (const char *popUp : {"mKsResolutionPUBtn", "mTapeTypePopBtn", "mTapeColorPopBtn", "mInkColorPopBtn"}) {
        panel.outlet<QComboBox>(popUp)->setCurrentIndex(-1);
    }
    panel->changeKsResolution(nullptr);
    panel->changeKsTapeColor(nullptr);
    panel->changeKsInkColor(nullptr);
    panel->changeKsTapeType(nullptr);
    for (const char *keyword : {"KsResolution", "KsTapeMaterial", "KsTapeColor", "KsInkColor"}) {
        EXPECT_TRUE(panel.callback->sentFor(text(keyword)).empty()) << keyword;
    }
    EXPECT_EQ(panel->imageModeFlag(), 0U);
    // Nothing is told, so nothing is read back from the marks either.
    EXPECT_EQ(std::count_if(panel.trace.begin(), panel.trace.end(),
                            [](const QString &step) { return step.startsWith(QLatin1StringView("marked")); }),
              0);
}

TEST(FirstSelection, OfADefaultWithoutARow_IsWhatTheControlShows)
{
    PpdText ppd = PpdText::withEveryOption();
    ppd.withoutOption("KsResolution")
        .option("Resolution", "Resolution",
                {{"300x300dpi", "Coarse"}, {"300x600dpi", "Fine"}, {"600x600dpi", "Finest"}}, "600x600dpi")
        .attribute("KsTapeType", "MV");
    PanelOfTheClass panel(ppd);
    panel.show();
    ASSERT_EQ(panel.outlet<pdekit::RadioMatrix>("mResolutionRdBtn")->selectedRow(), 0);
    // The summary of a third resolution of this family shows the panel's own selection.
    ppdMarkOption(panel.callback->ppd.get(), "Resolution", "600x600dpi");
    EXPECT_EQ(panel->summaryInfo()->value(text("Resolution")).toString(), text("Coarse"));
}

TEST(SummaryIndex, IsAlwaysNought)
{
    PpdText ppd = PpdText::withEveryOption();
    ppd.attribute("KsOrigin", "{-5, 3}");
    PanelOfTheClass panel(ppd);
    panel.construct();
    EXPECT_EQ(panel->indexForSummary("KsOrigin"), 0);
    EXPECT_EQ(panel->indexForSummary("KsMinMargin"), 0);
    EXPECT_EQ(panel->indexForSummary("NoSuchKeyword"), 0);
}
