// SPDX-License-Identifier: Apache-2.0
// A view that the built panel makes later than its first showing: after the dialog deleted the one before, or because
// the dialog showed the panel before it asked for a view. It comes filled, with what a person set.
#include "LengthGestures.h"
#include "TextPrinting.h"

#include "pdekit/PanelProtocol.h"

#include <QAbstractButton>
#include <QCoreApplication>
#include <QLayout>
#include <QTest>

using namespace gestures;

namespace
{

/// The dialog deletes the view, and asks for it again.
void deleteView(PanelUnderTest &panel)
{
    delete panel->panelView();
}

void askAgain(PanelUnderTest &panel)
{
    QWidget *view = panel->panelView();
    ASSERT_NE(view, nullptr);
    panel.window.layout()->addWidget(view);
    view->show();
    QCoreApplication::processEvents();
}

void renew(PanelUnderTest &panel)
{
    deleteView(panel);
    askAgain(panel);
}

TEST(LaterView, OfAnUntouchedPanel_IsTheViewBefore)
{
    PanelUnderTest panel(tape(oneDecimal(), 100.0));
    panel.show();
    renew(panel);
    EXPECT_EQ(panel.field("mWidthTxFld")->text(), u"24 mm");
    EXPECT_EQ(length(panel), u"100.0");
    EXPECT_EQ(panel.slider("mLengthSlider")->floatValue(), 100.0F);
    EXPECT_EQ(panel.slider("mLengthSlider")->maxValue(), 1000.0);
    EXPECT_EQ(margin(panel), u"2.0");
    EXPECT_EQ(printTapeLength(panel), u"3.0");
    EXPECT_EQ(panel.label("mTapeLengthMaxStr")->text(), u"8.0");
    EXPECT_EQ(panel.itemTitles("mInkColorPopBtn").size(), 3U);
    EXPECT_EQ(panel.popUp("mKsResolutionPUBtn")->currentIndex(), 0);
    EXPECT_TRUE(panel.field("mLengthTxFld")->isEnabled());
    save(panel);
    EXPECT_EQ(panel.callback->lastSent(u"KsTapeLength"_qs), u"100.0");
    EXPECT_EQ(panel.callback->lastSent(u"KsMargin"_qs), u"2.0");
    EXPECT_EQ(panel.callback->lastSent(u"KsPrintTapeLength"_qs), u"3.0");
}

/// Sets everything that a person can set.
void setEverything(PanelUnderTest &panel)
{
    panel.type("mLengthTxFld", "75.5");
    panel.type("mMarginTxFld", "7");
    panel.pickItem("mTapeTypePopBtn", 2); // cloth: print tape lengths to 12
    panel.type("mTapeLengthTxFld", "11");
    panel.pickItem("mTapeColorPopBtn", 1);
    panel.pickItem("mInkColorPopBtn", 2);
    panel.pickItem("mKsResolutionPUBtn", 2);
    panel.pickRow("mPrintQualityRdBtn", 1);
    panel.pickRow("mResolutionRdBtn", 1); // the second quality stays selected, and counts no more
    panel.pickRow("mCompressRdBtn", 1);
    QCoreApplication::processEvents();
}

void expectEverything(const PanelUnderTest &panel)
{
    EXPECT_EQ(length(panel), u"75.5");
    EXPECT_EQ(margin(panel), u"7.0"); // rewritten by the picks' checks
    EXPECT_EQ(printTapeLength(panel), u"11");
    EXPECT_EQ(panel.popUp("mTapeTypePopBtn")->currentIndex(), 2);
    EXPECT_EQ(panel.label("mTapeLengthMaxStr")->text(), u"12.0");
    EXPECT_EQ(panel.popUp("mTapeColorPopBtn")->currentIndex(), 1);
    EXPECT_EQ(panel.popUp("mInkColorPopBtn")->currentIndex(), 2);
    EXPECT_EQ(panel.popUp("mKsResolutionPUBtn")->currentIndex(), 2);
    EXPECT_EQ(panel.matrix("mResolutionRdBtn")->selectedRow(), 1);
    EXPECT_EQ(panel.matrix("mCompressRdBtn")->selectedRow(), 1);
    EXPECT_EQ(panel.matrix("mPrintQualityRdBtn")->selectedRow(), 1);
    EXPECT_FALSE(panel.matrix("mPrintQualityRdBtn")->isEnabled());
}

void expectEverythingSent(PanelUnderTest &panel)
{
    panel.callback->sent.clear();
    save(panel);
    const std::vector<std::pair<const char *, const char *>> values = {
        {"KsTapeLength", "75.5"},           {"KsMargin", "7.0"},
        {"KsPrintTapeLength", "11.0"},      {"KsTapeMaterial", "KsTapeMaterialCloth"},
        {"KsTapeColor", "KsTapeColorBlue"}, {"KsInkColor", "KsInkColorRed"},
        {"KsResolution", "KsResolQ300600"}, {"Resolution", "300x600dpi"},
        {"KsPriority", "KsPrioritySpeed"},  {"KsCompress", "KsCompressON"},
    };
    for (const auto &[keyword, value] : values) {
        EXPECT_EQ(panel.callback->lastSent(QString::fromLatin1(keyword)), QString::fromLatin1(value)) << keyword;
    }
}

TEST(LaterView, OfAPanelInWhichEverythingWasSet_LosesNothing)
{
    PanelUnderTest panel(tape(oneDecimal(), 100.0));
    panel.show();
    setEverything(panel);
    expectEverything(panel);
    renew(panel);
    expectEverything(panel);
    expectEverythingSent(panel);
    panel->willShow();
    expectEverything(panel);
    renew(panel);
    expectEverything(panel);
    EXPECT_TRUE(panel.alerts.empty());
}

TEST(LaterView, WhileThereIsNone_WhatWasSetIsWhatIsSaved)
{
    PanelUnderTest panel(tape(oneDecimal(), 100.0));
    panel.show();
    setEverything(panel);
    deleteView(panel);
    expectEverythingSent(panel);
    panel->willShow();
    expectEverythingSent(panel);
    askAgain(panel);
    expectEverything(panel);
}

TEST(LaterView, OfAPickAgainstATicket_KeepsThePickAndItsLimit)
{
    auto callback = tape(oneDecimal(), 100.0);
    callback->useTicket(0x20, 0); // the second material
    PanelUnderTest panel(callback);
    panel.show();
    ASSERT_EQ(panel.popUp("mTapeTypePopBtn")->currentIndex(), 1);
    panel.pickItem("mTapeTypePopBtn", 2);
    renew(panel);
    EXPECT_EQ(panel.popUp("mTapeTypePopBtn")->currentIndex(), 2);
    EXPECT_EQ(panel.label("mTapeLengthMaxStr")->text(), u"12.0");
}

TEST(LaterView, WithAnEditThatWasOpen_ShowsWhatWasTyped)
{
    PanelUnderTest panel(tape(oneDecimal(), 100.0));
    panel.show();
    panel.type("mLengthTxFld", "64");
    renew(panel);
    EXPECT_EQ(length(panel), u"64");
    EXPECT_TRUE(panel.alerts.empty());
    save(panel);
    EXPECT_EQ(panel.callback->lastSent(u"KsTapeLength"_qs), u"64.0");
}

TEST(LaterView, AfterASlide_ShowsFieldAndKnobAsTheyWere)
{
    PanelUnderTest panel(tape(wholeMillimetres(), 100.0));
    panel.show();
    panel.slider("mLengthSlider")->setFloatValue(12.75F);
    Q_EMIT panel.slider("mLengthSlider")->action();
    ASSERT_EQ(length(panel), u"12");
    renew(panel);
    EXPECT_EQ(length(panel), u"12");
    EXPECT_EQ(panel.slider("mLengthSlider")->floatValue(), 12.75F);
}

TEST(LaterView, OfAPaperThatChangedMeanwhile_TakesItsLengthOver)
{
    PanelUnderTest panel(tape(oneDecimal(), 100.0));
    panel.show();
    deleteView(panel);
    panel.callback->usePaper(u"12mm"_qs, 60.0);
    panel.dialogChanged(u"PageSize"_qs, u"12mm"_qs);
    EXPECT_EQ(panel.callback->lastSent(u"KsTapeLength"_qs), u"60.0");
    askAgain(panel);
    EXPECT_EQ(length(panel), u"60.0");
    EXPECT_EQ(panel.field("mWidthTxFld")->text(), u"12 mm");
}

TEST(LaterView, OfAPaperThatChangedMeanwhile_KeepsATypedLength)
{
    PanelUnderTest panel(tape(oneDecimal(), 100.0));
    panel.show();
    panel.type("mLengthTxFld", "75");
    deleteView(panel);
    panel.callback->usePaper(u"12mm"_qs, 60.0);
    panel.dialogChanged(u"PageSize"_qs, u"12mm"_qs);
    EXPECT_EQ(panel.callback->lastSent(u"KsTapeLength"_qs), u"75.0");
    askAgain(panel);
    EXPECT_EQ(length(panel), u"75");
}

TEST(LaterView, OfAMediumOfFixedLength_IsDisabled)
{
    PanelUnderTest panel(tape(oneDecimal(), 100.0));
    panel.show();
    deleteView(panel);
    panel.callback->usePaper(u"DC24x80"_qs, 80.0);
    askAgain(panel);
    for (const char *field : {"mLengthTxFld", "mMarginTxFld", "mTapeLengthTxFld"}) {
        EXPECT_FALSE(panel.field(field)->isEnabled()) << field;
    }
}

TEST(LaterView, ChoiceThatTheDialogReportedMeanwhile_IsSelected)
{
    PanelUnderTest panel(tape(oneDecimal(), 100.0));
    panel.show();
    deleteView(panel);
    panel.dialogChanged(u"KsTapeColor"_qs, u"KsTapeColorRed"_qs);
    panel.dialogChanged(u"Resolution"_qs, u"300x600dpi"_qs);
    askAgain(panel);
    EXPECT_EQ(panel.popUp("mTapeColorPopBtn")->currentIndex(), 2);
    EXPECT_EQ(panel.matrix("mResolutionRdBtn")->selectedRow(), 1);
    EXPECT_FALSE(panel.matrix("mPrintQualityRdBtn")->isEnabled());
}

TEST(LaterView, ItsControls_WorkAsAnyViewsDo)
{
    PanelUnderTest panel(tape(oneDecimal(), 100.0));
    panel.show();
    renew(panel);
    panel.window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&panel.window));
    enterLength(panel, "3");
    EXPECT_TRUE(alertedOnce(panel, "RS_Alrt_LengthMin"));
    EXPECT_EQ(length(panel), u"4.0");
    panel.type("mMarginTxFld", "x"); // refused
    EXPECT_EQ(margin(panel), u"");
    panel.callback->sent.clear();
    panel.pickRow("mResolutionRdBtn", 1);
    EXPECT_EQ(panel.callback->sentFor(u"Resolution"_qs), std::vector<QString>{u"300x600dpi"_qs});
}

TEST(LaterView, AfterAShowingWithoutAView_ComesFilled)
{
    PanelUnderTest panel(tape(oneDecimal(), 60.0));
    panel->supportedPPDOptionKeys();
    panel->willShow();
    EXPECT_EQ(panel.callback->lastSent(u"KsTapeLength"_qs), u"60.0");
    EXPECT_TRUE(panel->summaryInfo()->value(u"Tape Length"_qs).toString().startsWith(u"60.0"));
    panel->PPDOptionKeyValueDidChange(u"KsInkColor"_qs, u"KsInkColorRed"_qs);
    panel->panelView()->setParent(&panel.window);
    EXPECT_EQ(length(panel), u"60.0");
    EXPECT_EQ(margin(panel), u"2.0");
    EXPECT_EQ(printTapeLength(panel), u"3.0");
    EXPECT_EQ(panel.itemTitles("mTapeColorPopBtn").size(), 3U);
    EXPECT_EQ(panel.popUp("mInkColorPopBtn")->currentIndex(), 2);
    // The paper before is the one that the field shows: another one is taken over.
    panel.callback->usePaper(u"12mm"_qs, 40.0);
    panel.dialogChanged(u"PageSize"_qs, u"12mm"_qs);
    EXPECT_EQ(length(panel), u"40.0");
}

} // namespace
