// SPDX-License-Identifier: Apache-2.0
// The lengths where only the panel's class can see: actions without a sender, silent checks, the current paper's name,
// and the dot of a resolution that cannot be selected.
#include "TextPrinting.h"
#include "TracedPanel.h"

#include "pdekit/Alert.h"
#include "pdekit/CurrentEvent.h"

#include <QCoreApplication>
#include <QKeyEvent>

#include <algorithm>
#include <functional>
#include <limits>

namespace
{

/// Does something while a key press is the application's current event.
class DuringAKeyPress : public QObject
{
public:
    explicit DuringAKeyPress(std::function<void()> act) : mAct(std::move(act))
    {
        QKeyEvent press(QEvent::KeyPress, Qt::Key_Right, Qt::NoModifier);
        QCoreApplication::sendEvent(this, &press);
    }
    bool event(QEvent *event) override
    {
        if (event->type() == QEvent::KeyPress) {
            EXPECT_EQ(pdekit::currentEventType(), pdekit::EventType::KeyDown);
            mAct();
        }
        return true;
    }

private:
    std::function<void()> mAct;
};

/// Counts alerts while it lives.
class AlertCounter
{
public:
    AlertCounter()
    {
        pdekit::setAlertHandler([this](const pdekit::AlertRequest &) { ++count; });
    }
    ~AlertCounter() { pdekit::setAlertHandler({}); }
    AlertCounter(const AlertCounter &) = delete;
    AlertCounter &operator=(const AlertCounter &) = delete;

    int count = 0;
};

bool checked(const PanelOfTheClass &panel)
{
    return std::count(panel.trace.begin(), panel.trace.end(), QStringLiteral("check")) > 0;
}

TEST(LengthActions, WithoutASender_WriteTheFieldAndNeverCheck)
{
    PanelOfTheClass panel(PpdText::withEveryOption());
    panel.show();
    panel.outlet<pdekit::Slider>("mLengthSlider")->setFloatValue(55.5F);
    panel.outlet<pdekit::Slider>("mMarginSlider")->setFloatValue(5.5F);
    panel.outlet<pdekit::Slider>("mTapeLengthSlider")->setFloatValue(4.5F);
    const DuringAKeyPress press([&] {
        panel->changeLength(nullptr);
        panel->changeMargin(nullptr);
        panel->changeKsPrintTapeLength(nullptr);
    });
    EXPECT_EQ(panel.outlet<QLineEdit>("mLengthTxFld")->text(), u"55.5");
    EXPECT_EQ(panel.outlet<QLineEdit>("mMarginTxFld")->text(), u"5.5");
    EXPECT_EQ(panel.outlet<QLineEdit>("mTapeLengthTxFld")->text(), u"4.5");
    EXPECT_FALSE(checked(panel));
}

TEST(LengthActions, WithASenderDuringAKeyPress_Check_AndWithoutAnEventDoNot)
{
    PanelOfTheClass panel(PpdText::withEveryOption());
    panel.show();
    auto *slider = panel.outlet<pdekit::Slider>("mLengthSlider");
    QCoreApplication::processEvents();
    panel->changeLength(slider);
    EXPECT_FALSE(checked(panel));
    const DuringAKeyPress press([&] { panel->changeLength(slider); });
    EXPECT_TRUE(checked(panel));
}

TEST(LengthChecks, InSilence_LengthenTheTapeWithoutAnAlert)
{
    PanelOfTheClass panel(PpdText::withEveryOption());
    panel.show();
    const AlertCounter alerts;
    panel.outlet<QLineEdit>("mLengthTxFld")->setText(u"20"_qs);
    panel.outlet<QLineEdit>("mMarginTxFld")->setText(u"10.1"_qs);
    EXPECT_TRUE(panel->checkLengthByMargin(true));
    EXPECT_EQ(panel.outlet<QLineEdit>("mLengthTxFld")->text(), u"20.3");
    panel.outlet<QLineEdit>("mLengthTxFld")->setText(u"20"_qs);
    EXPECT_TRUE(panel->checkValues(true));
    EXPECT_EQ(panel.outlet<QLineEdit>("mLengthTxFld")->text(), u"20.3");
    EXPECT_EQ(alerts.count, 0);
    panel.outlet<QLineEdit>("mLengthTxFld")->setText(u"20"_qs);
    EXPECT_TRUE(panel->checkLengthByMargin(false));
    EXPECT_EQ(alerts.count, 1);
}

TEST(LengthChecks, WithoutAView_CorrectNothingAndWarnOfNothing)
{
    PanelOfTheClass panel(PpdText::withEveryOption());
    panel.construct();
    const AlertCounter alerts;
    panel->initUI();
    EXPECT_TRUE(panel->checkValues(false));
    panel->checkTapeLength();
    panel->checkKsPrintTapeLength();
    panel->changeLength(nullptr);
    EXPECT_EQ(alerts.count, 0);
}

TEST(PaperName, TheFirstTime_IsThePageFormatsName_LaterTheMappedOne)
{
    PanelOfTheClass panel(PpdText::withEveryOption());
    panel.callback->settings.values.insert(pdekit::PrintSettingsKey::mediaName, u"15mm"_qs);
    panel.callback->hasFormat = false;
    panel.construct();
    // Construction found no paper, so that this is a first time again.
    panel.callback->hasFormat = true;
    EXPECT_EQ(panel->readPageSetup(), u"24mm");
    EXPECT_EQ(panel->readPageSetup(), u"15mm");
}

TEST(PaperName, WithoutAMappedName_IsNullLater_AndTheNextMappedNameIsFound)
{
    PanelOfTheClass panel(PpdText::withEveryOption());
    panel.construct();
    EXPECT_TRUE(panel->readPageSetup().isNull());
    EXPECT_TRUE(panel->readPageSetup().isNull());
    panel.callback->settings.values.insert(pdekit::PrintSettingsKey::mediaName, u"12mm"_qs);
    EXPECT_EQ(panel->readPageSetup(), u"12mm");
}

TEST(OneDot, OfADisabledResolution_IsThatOfTheFirst)
{
    PanelOfTheClass panel(PpdText::withEveryOption().option(
        "Resolution", "Resolution", {{"180x180dpi", "Coarse"}, {"180x50dpi", "Coarser"}}, "180x50dpi"));
    panel.show();
    EXPECT_EQ(panel->getOneDotMM(), 25.4 / 50.0);
    panel.outlet<pdekit::RadioMatrix>("mResolutionRdBtn")->setEnabled(false);
    EXPECT_EQ(panel->getOneDotMM(), 25.4 / 180.0);
}

TEST(LengthChecks, OfOneField_AreSkippedOnAMediumOfFixedLength)
{
    PanelOfTheClass panel(PpdText::withEveryOption());
    panel.callback->usePaper("DC24x80");
    panel.show();
    panel.outlet<QLineEdit>("mLengthTxFld")->setText(u"3.21"_qs);
    panel.outlet<QLineEdit>("mTapeLengthTxFld")->setText(u"99.21"_qs);
    panel->checkTapeLength();
    panel->checkKsPrintTapeLength();
    EXPECT_EQ(panel.outlet<QLineEdit>("mLengthTxFld")->text(), u"3.21");
    EXPECT_EQ(panel.outlet<QLineEdit>("mTapeLengthTxFld")->text(), u"99.21");
    EXPECT_TRUE(panel.alerts.empty());
    // The same texts on a free tape.
    panel->setTapeState(0);
    panel->checkTapeLength();
    panel->checkKsPrintTapeLength();
    EXPECT_EQ(panel.outlet<QLineEdit>("mLengthTxFld")->text(), u"4.0");
    EXPECT_EQ(panel.outlet<QLineEdit>("mTapeLengthTxFld")->text(), u"8.0");
    EXPECT_EQ(panel.alerts.size(), 2U);
}

TEST(OneDot, OfAResolutionInADisabledView_IsThatOfTheSelected)
{
    PanelOfTheClass panel(PpdText::withEveryOption().option(
        "Resolution", "Resolution", {{"180x180dpi", "Coarse"}, {"180x50dpi", "Coarser"}}, "180x50dpi"));
    panel.show();
    panel->panelView()->setEnabled(false);
    EXPECT_EQ(panel->getOneDotMM(), 25.4 / 50.0);
}

TEST(OneDot, WithoutTheOption_IsTheStepOfAnEntry)
{
    PanelOfTheClass panel(PpdText::withEveryOption().withoutOption("Resolution"));
    panel.show();
    EXPECT_EQ(panel->getOneDotMM(), 0.1);
}

TEST(LengthGroups, AreEnabledWithTheirOptionOnAFreeTapeAlone)
{
    PanelOfTheClass panel(PpdText::withEveryOption());
    panel.show();
    const auto isEnabled = [](PanelOfTheClass &shown, const char *field) {
        shown->initializeUI_Margin();
        shown->initializeUI_PrintTapeLength();
        return shown.outlet<QLineEdit>(field)->isEnabled();
    };
    for (const char *field : {"mMarginTxFld", "mTapeLengthTxFld"}) {
        panel->setTapeState(0);
        EXPECT_TRUE(isEnabled(panel, field)) << field;
        panel->setTapeState(1);
        EXPECT_FALSE(isEnabled(panel, field)) << field;
    }
    PanelOfTheClass bare(PpdText::withEveryOption().withoutOption("KsMargin").withoutOption("KsPrintTapeLength"));
    bare.show();
    EXPECT_FALSE(isEnabled(bare, "mMarginTxFld"));
    EXPECT_FALSE(isEnabled(bare, "mTapeLengthTxFld"));
}

TEST(Rules, OfAPanelWithoutAPpd_AreTheDefaults)
{
    PanelOfTheClass panel(OpenPpd{});
    panel.construct();
    EXPECT_EQ(panel->getPDEUnit(), 0);
    EXPECT_FALSE(panel->isIntegerTapeLen());
    EXPECT_FALSE(panel->isIntegerMarginLen());
    EXPECT_FALSE(panel->isIntegerPrintTapeLen());
    EXPECT_EQ(panel->minTapeLen(), 0.0F);
    EXPECT_EQ(panel->maxTapeLen(), 0.0F);
    EXPECT_EQ(panel->getMaxPrintTapeLen(), 0.0F);
}

TEST(Rules, AUnitThatThePpdDoesNotGive_StaysAsItWas)
{
    PanelOfTheClass panel(PpdText::withEveryOption());
    panel.construct();
    panel->setPDEUnit(1);
    panel->loadUnit();
    EXPECT_EQ(panel->getPDEUnit(), 1);
    PanelOfTheClass other(PpdText::withEveryOption().attribute("KsUnitType", "mm"));
    other.construct();
    other->setPDEUnit(1);
    other->loadUnit();
    EXPECT_EQ(other->getPDEUnit(), 0);
}

TEST(Rules, AHugeLimit_IsTheLargestFloat)
{
    PanelOfTheClass panel(PpdText::withEveryOption().attribute("KsMaxTapeLength", "1e400"));
    panel.construct();
    EXPECT_EQ(panel->maxTapeLen(), std::numeric_limits<float>::max());
}

} // namespace
