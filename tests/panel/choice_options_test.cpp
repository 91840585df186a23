// SPDX-License-Identifier: Apache-2.0
// The seven choice options on the built bundle's panel: what they show, what a pick does, and what enables what.
#include "PanelUnderTest.h"
#include "TextPrinting.h"

#include <QTest>

TEST(ChoiceOptions, FirstShowing_ShowsThePpdsChoicesWithItsDefaultsSelected)
{
    PanelUnderTest panel(PpdText::withEveryOption());
    panel.show();
    EXPECT_EQ(panel.matrix("mPrintQualityRdBtn")->titles(), (QStringList{QStringLiteral("Speed"), QStringLiteral("Quality")}));
    EXPECT_EQ(panel.matrix("mResolutionRdBtn")->selectedRow(), 0);
    EXPECT_EQ(panel.itemTitles("mTapeTypePopBtn"),
              (std::vector<QString>{QStringLiteral("OPP"), QStringLiteral("PET"), QStringLiteral("Cloth")}));
    EXPECT_EQ(panel.popUp("mTapeTypePopBtn")->currentIndex(), 0);
}

TEST(ChoiceOptions, PickOfATapeColour_SendsItsKeyword)
{
    PanelUnderTest panel(PpdText::withEveryOption());
    panel.show();
    panel.pickItem("mTapeColorPopBtn", 2);
    EXPECT_EQ(panel.callback->lastSent(QStringLiteral("KsTapeColor")), QStringLiteral("KsTapeColorRed"));
    EXPECT_EQ(panel.popUp("mTapeColorPopBtn")->currentIndex(), 2);
}

TEST(ChoiceOptions, SecondResolution_DisablesQuality_FirstEnablesItAgain)
{
    PanelUnderTest panel(PpdText::withEveryOption());
    panel.show();
    panel.pickRow("mResolutionRdBtn", 1);
    EXPECT_FALSE(panel.matrix("mPrintQualityRdBtn")->isEnabled());
    panel.pickRow("mResolutionRdBtn", 0);
    EXPECT_TRUE(panel.matrix("mPrintQualityRdBtn")->isEnabled());
}

TEST(Lengths, OutOfRange_AlertsOnceAndShowsMinimum)
{
    PanelUnderTest panel(PpdText::withEveryOption());
    panel.show();
    panel.type("mLengthTxFld", "3");
    QTest::keyClick(panel.window.windowHandle(), Qt::Key_Return);
    ASSERT_EQ(panel.alerts.size(), 1U);
    EXPECT_EQ(panel.field("mLengthTxFld")->text(), QStringLiteral("4.0"));
}
