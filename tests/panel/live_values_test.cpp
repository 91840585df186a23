// SPDX-License-Identifier: Apache-2.0
// The values that the built panel tells a dialog while a person drags or types: what saving would send, without saving.
#include "LengthGestures.h"
#include "TextPrinting.h"

#include "pdekit/PanelProtocol.h"

#include <QCoreApplication>

using namespace gestures;

namespace
{

using Values = std::vector<std::pair<QString, QString>>;

Values live(const PanelUnderTest &panel)
{
    const auto *values = dynamic_cast<const pdekit::PanelLiveValues *>(panel.panel.get());
    if (values == nullptr) {
        ADD_FAILURE() << "The panel tells no values.";
        return {};
    }
    return values->currentValues();
}

Values lengths(const char *tapeLength, const char *margin, const char *printTapeLength)
{
    return {{u"KsTapeLength"_qs, QString::fromLatin1(tapeLength)},
            {u"KsMargin"_qs, QString::fromLatin1(margin)},
            {u"KsPrintTapeLength"_qs, QString::fromLatin1(printTapeLength)}};
}

/// The last that was sent of each.
Values saved(PanelUnderTest &panel)
{
    panel.callback->sent.clear();
    save(panel);
    Values values;
    for (const QString &keyword : {u"KsTapeLength"_qs, u"KsMargin"_qs, u"KsPrintTapeLength"_qs}) {
        if (const QString value = panel.callback->lastSent(keyword); !value.isNull()) {
            values.emplace_back(keyword, value);
        }
    }
    return values;
}

TEST(LiveValues, BeforeThereAreControls_AreNone)
{
    PanelUnderTest panel(tape(oneDecimal(), 100.0));
    EXPECT_TRUE(live(panel).empty());
    panel->supportedPPDOptionKeys();
    EXPECT_TRUE(live(panel).empty());
    panel->panelView()->setParent(&panel.window);
    EXPECT_TRUE(live(panel).empty()); // nothing has been filled in
    panel->willShow();
    EXPECT_EQ(live(panel), lengths("100.0", "2.0", "3.0"));
}

TEST(LiveValues, FollowAPointerThatDrags_WithoutACheckOrAWordToTheDialog)
{
    PanelUnderTest panel(tape(oneDecimal(), 100.0));
    panel.show();
    panel.callback->sent.clear();
    const QPoint from = knob(panel, "mLengthSlider");
    press(panel, from);
    QStringList seen;
    for (const int step : {20, 40, 60}) {
        drag(panel, from + QPoint(step, 0));
        seen << live(panel).front().second;
        EXPECT_EQ(seen.back(), length(panel));
        EXPECT_EQ(live(panel), lengths(seen.back().toLatin1().constData(), "2.0", "3.0"));
    }
    EXPECT_EQ(seen.removeDuplicates(), 0);
    EXPECT_GT(seen.back().toDouble(), seen.front().toDouble());
    EXPECT_TRUE(panel.callback->sent.empty());
    EXPECT_TRUE(panel.slider("mLengthSlider")->isSliderDown());
    release(panel, from + QPoint(60, 0));
    EXPECT_TRUE(panel.alerts.empty());
    const Values now = live(panel);
    EXPECT_EQ(now.front().second, seen.back());
    EXPECT_EQ(saved(panel), now);
}

TEST(LiveValues, FollowTypedText_WithoutACheckOrAWordToTheDialog)
{
    PanelUnderTest panel(tape(oneDecimal(), 100.0));
    panel.show();
    panel.callback->sent.clear();
    panel.type("mLengthTxFld", "456.7");
    EXPECT_EQ(live(panel), lengths("456.7", "2.0", "3.0"));
    panel.type("mMarginTxFld", "7.25");
    EXPECT_EQ(live(panel), lengths("456.7", "7.3", "3.0")); // rounded up
    panel.type("mTapeLengthTxFld", "5.5");
    EXPECT_EQ(live(panel), lengths("456.7", "7.3", "5.5"));
    EXPECT_TRUE(panel.callback->sent.empty());
    EXPECT_TRUE(panel.alerts.empty());
    EXPECT_EQ(margin(panel), u"7.25"); // no control was changed
    EXPECT_EQ(saved(panel), lengths("456.7", "7.3", "5.5"));
}

TEST(LiveValues, OutOfRange_AreTheLimitsAsSavingWouldSendThem)
{
    PanelUnderTest panel(tape(oneDecimal(), 100.0));
    panel.show();
    panel.type("mLengthTxFld", "3");
    panel.type("mMarginTxFld", "0.5");
    panel.type("mTapeLengthTxFld", "99");
    panel.callback->sent.clear();
    panel.alerts.clear();
    EXPECT_EQ(live(panel), lengths("4.0", "1.0", "8.0"));
    EXPECT_TRUE(panel.alerts.empty());
    EXPECT_EQ(margin(panel), u"0.5");
    EXPECT_EQ(saved(panel), lengths("4.0", "1.0", "8.0"));
}

TEST(LiveValues, OfAMarginThatDoesNotFit_AreTheFieldsAsTheyStand)
{
    PanelUnderTest panel(tape(oneDecimal(), 20.0));
    panel.show();
    panel.type("mMarginTxFld", "15");
    EXPECT_EQ(live(panel), lengths("20.0", "15.0", "3.0"));
    EXPECT_TRUE(panel.alerts.empty());
    EXPECT_EQ(length(panel), u"20.0");
}

TEST(LiveValues, InInches_AreMillimetres)
{
    PanelUnderTest panel(tape(inches(), 100.0));
    panel.show();
    // 3.94 / 0.0393701 = 100.0759; 0.08 / 0.0393701 = 2.0320, rounded up.
    EXPECT_EQ(live(panel), lengths("100.1", "2.1", "3.0"));
    panel.type("mLengthTxFld", "2");
    EXPECT_EQ(live(panel).front().second, u"50.8"); // 50.79997
    EXPECT_EQ(saved(panel), lengths("50.8", "2.1", "3.0"));
}

TEST(LiveValues, OfWholeMillimetres_AreTruncatedOrRoundedUpAsSavingDoes)
{
    PanelUnderTest panel(tape(wholeMillimetres(), 100.0));
    panel.show();
    panel.type("mLengthTxFld", "99.9");
    panel.type("mMarginTxFld", "3.2");
    EXPECT_EQ(live(panel), lengths("99", "4", "3"));
    EXPECT_EQ(length(panel), u"99.9");
}

TEST(LiveValues, HaveWhatThePpdHas)
{
    PanelUnderTest panel(tape(oneDecimal().withoutOption("KsMargin").withoutOption("KsPrintTapeLength"), 100.0));
    panel.show();
    EXPECT_EQ(live(panel), (Values{{u"KsTapeLength"_qs, u"100.0"_qs}}));
    PanelUnderTest bare(tape(PpdText(), 100.0));
    bare.show();
    // No limits: the largest length is 0.
    EXPECT_EQ(live(bare), (Values{{u"KsTapeLength"_qs, u"0.0"_qs}}));
}

TEST(LiveValues, OfAMediumOfFixedLength_AreHeldWithinNoLimits)
{
    PanelUnderTest panel(tape(oneDecimal(), 100.0));
    panel.show();
    panel.field("mMarginTxFld")->setText(u"150"_qs);
    panel.callback->usePaper(u"DC24x80"_qs, 2.0);
    // The paper's length is taken over, though nothing has been told of it yet.
    EXPECT_EQ(live(panel), lengths("2.0", "150.0", "3.0"));
    EXPECT_EQ(length(panel), u"100.0");
    panel.dialogChanged(u"PageSize"_qs, u"DC24x80"_qs);
    EXPECT_EQ(live(panel), lengths("2.0", "150.0", "3.0"));
    EXPECT_EQ(saved(panel), lengths("2.0", "150.0", "3.0"));
}

TEST(LiveValues, OfADeletedView_AreWhatItShowed)
{
    PanelUnderTest panel(tape(oneDecimal(), 100.0));
    panel.show();
    panel.type("mLengthTxFld", "75");
    delete panel->panelView();
    EXPECT_EQ(live(panel), lengths("75.0", "2.0", "3.0"));
    EXPECT_EQ(saved(panel), lengths("75.0", "2.0", "3.0"));
}

TEST(LiveValues, WithoutSettings_AreNoneAsNothingIsSaved)
{
    auto callback = tape(oneDecimal(), 100.0);
    callback->hasSettings = false;
    PanelUnderTest panel(callback);
    panel.show();
    EXPECT_TRUE(live(panel).empty());
}

} // namespace
