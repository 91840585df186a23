// SPDX-License-Identifier: Apache-2.0
// The tape width on the built bundle's panel: which text it shows, what counts as the 15 mm tape, and how it follows a
// change of paper in the dialog.
#include "LengthGestures.h"
#include "TextPrinting.h"

#include "pdekit/NotificationCenter.h"

#include <QCoreApplication>

using namespace gestures;

namespace
{

constexpr double kPt = 72.0 * 0.0393701;

std::vector<PpdText::PageSize> sizes(const std::vector<std::pair<QByteArray, QByteArray>> &names)
{
    std::vector<PpdText::PageSize> result;
    result.reserve(names.size());
    for (const auto &[keyword, text] : names) {
        result.push_back({keyword, text, 60.0, 100.0 * kPt});
    }
    return result;
}

std::shared_ptr<RecordingCallback> on(const char *paper, const PpdText &ppd = PpdText::withEveryOption())
{
    auto callback = std::make_shared<RecordingCallback>(ppd.open());
    callback->usePaper(QString::fromLatin1(paper), 100.0);
    return callback;
}

/// The dialog takes another paper: page format and settings follow, then the panel is told.
void changePaper(PanelUnderTest &panel, const char *keyword, double lengthMm = 100.0)
{
    const QString name = QString::fromLatin1(keyword);
    panel.callback->usePaper(name, lengthMm);
    panel.callback->settings.values.insert(pdekit::PrintSettingsKey::mediaName, name);
    panel->PPDOptionKeyValueDidChange(QStringLiteral("PageSize"), name);
}

QString width(const PanelUnderTest &panel)
{
    return panel.field("mWidthTxFld")->text();
}

/// 12 metres on the 15 mm tape, 8 on others.
QString printLimit(const PanelUnderTest &panel)
{
    return panel.label("mTapeLengthMaxStr")->text();
}

TEST(TapeWidth, ShowsTheTextOfThePaper_ReadOnly)
{
    PanelUnderTest panel(on("12mm"));
    panel.show();
    EXPECT_EQ(panel.label("mWidthStr")->text(), text(panel, "RS_TapeWidth"));
    EXPECT_EQ(width(panel), u"12 mm");
    EXPECT_TRUE(panel.field("mWidthTxFld")->isReadOnly());
    EXPECT_EQ(printLimit(panel), u"8.0");
}

TEST(TapeWidth, PaperThatThePpdLacks_IsUnknown)
{
    for (const char *paper : {"18mm", "24MM", "24mm ", ""}) {
        PanelUnderTest panel(on(paper));
        panel.show();
        EXPECT_EQ(width(panel), text(panel, "RS_TapeWidthNot")) << paper;
        EXPECT_EQ(printLimit(panel), u"8.0") << paper;
    }
}

TEST(TapeWidth, WithoutAPaperName_IsUnknown)
{
    auto callback = on("24mm");
    callback->usePaper(QString(), 100.0);
    PanelUnderTest panel(callback);
    panel.show();
    EXPECT_EQ(width(panel), text(panel, "RS_TapeWidthNot"));
}

TEST(TapeWidth, WithoutPageSizes_IsUnknown)
{
    PanelUnderTest panel(on("24mm", PpdText::withEveryOption().pageSizes({}, "")));
    panel.show();
    EXPECT_EQ(width(panel), text(panel, "RS_TapeWidthNot"));
}

TEST(TapeWidth, WithoutAPageFormat_IsUnknown)
{
    auto callback = on("24mm");
    callback->hasFormat = false;
    PanelUnderTest panel(callback);
    panel.show();
    EXPECT_EQ(width(panel), text(panel, "RS_TapeWidthNot"));
}

TEST(TapeWidth, PageSizesInAnotherOrderThanTheChoices_ShowTheChoiceAtTheirPlace)
{
    PpdText ppd = PpdText::withEveryOption().pageSizes({}, "");
    // The records are made in the order in which a size is first named.
    for (const char *size : {"12mm", "24mm"}) {
        ppd.line(QByteArray("*PaperDimension ") + size + ": \"60 283\"");
        ppd.line(QByteArray("*ImageableArea ") + size + ": \"0 0 60 283\"");
    }
    ppd.line("*OpenUI *PageSize/Tape: PickOne\n*DefaultPageSize: 24mm\n*PageSize 24mm/24 mm: \"\"\n"
             "*PageSize 12mm/12 mm: \"\"\n*CloseUI: *PageSize");
    auto callback = on("24mm", ppd);
    ASSERT_STREQ(callback->ppd->sizes[0].name, "12mm");
    PanelUnderTest panel(callback);
    panel.show();
    EXPECT_EQ(width(panel), u"12 mm"); // 24mm is the second size: the second choice's text
}

TEST(FifteenMmTape, IsKnownByItsShownText)
{
    PanelUnderTest panel(on("15mm"));
    panel.show();
    EXPECT_EQ(width(panel), u"15 mm");
    EXPECT_EQ(printLimit(panel), u"12.0");
}

TEST(FifteenMmTape, UnderAnotherKeyword_IsKnownByItsShownText)
{
    PanelUnderTest panel(
        on("Narrow", PpdText::withEveryOption().pageSizes(sizes({{"Wide", "24 mm"}, {"Narrow", "15 mm"}}), "Wide")));
    panel.show();
    EXPECT_EQ(printLimit(panel), u"12.0");
}

TEST(FifteenMmTape, WithoutTheSpaceInItsText_IsNone_EvenAfterAChangeToItsKeyword)
{
    PanelUnderTest panel(
        on("24mm", PpdText::withEveryOption().pageSizes(sizes({{"24mm", "24 mm"}, {"15mm", "15mm"}}), "24mm")));
    panel.show();
    changePaper(panel, "15mm");
    EXPECT_EQ(width(panel), u"15mm");
    EXPECT_EQ(printLimit(panel), u"8.0");
}

TEST(FifteenMmTape, InEveryLanguage_IsTheSameTape)
{
    for (const char *language : {"de", "fr", "es", "it", "nl", "pt", "ja", "ko", "zh_CN"}) {
        PanelUnderTest panel(on("15mm"));
        ASSERT_TRUE(panel.loaded.bundle()->setLanguage(QString::fromLatin1(language))) << language;
        panel.show();
        EXPECT_EQ(width(panel), u"15 mm") << language;
        EXPECT_EQ(printLimit(panel), u"12.0") << language;
    }
}

TEST(PaperChange, ByTheDialogsNotice_ChangesWidthAndLimitsAtOnce)
{
    PanelUnderTest panel(on("24mm"));
    panel.show();
    EXPECT_EQ(printLimit(panel), u"8.0");
    changePaper(panel, "15mm");
    EXPECT_EQ(width(panel), u"15 mm");
    EXPECT_EQ(printLimit(panel), u"12.0");
    EXPECT_EQ(panel.slider("mTapeLengthSlider")->maxValue(), 12.0);
    changePaper(panel, "12mm");
    EXPECT_EQ(width(panel), u"12 mm");
    EXPECT_EQ(printLimit(panel), u"8.0");
    EXPECT_TRUE(panel.alerts.empty());
}

TEST(PaperChange, PostedByAnother_IsFollowedToo)
{
    PanelUnderTest panel(on("24mm"));
    panel.show();
    panel.callback->usePaper(u"15mm"_qs, 100.0);
    pdekit::NotificationCenter::defaultCenter().postNotification(
        QStringLiteral("PMPrintDestinationPaperDidChangeNotification"), &panel.window);
    EXPECT_EQ(width(panel), u"15 mm");
    EXPECT_EQ(printLimit(panel), u"12.0");
}

TEST(PaperChange, WithoutAMappedName_FollowsTheShownText)
{
    PanelUnderTest panel(on("24mm"));
    panel.show();
    ASSERT_FALSE(panel.callback->settings.values.contains(pdekit::PrintSettingsKey::mediaName));
    panel.callback->usePaper(u"15mm"_qs, 100.0);
    panel->PPDOptionKeyValueDidChange(u"PageSize"_qs, u"15mm"_qs);
    EXPECT_EQ(printLimit(panel), u"12.0");
    panel.callback->usePaper(u"24mm"_qs, 100.0);
    panel->PPDOptionKeyValueDidChange(u"PageSize"_qs, u"24mm"_qs);
    EXPECT_EQ(printLimit(panel), u"8.0");
}

TEST(PaperChange, AMappedNameOf15mm_DoesNotOutweighTheShownText)
{
    PanelUnderTest panel(on("24mm"));
    panel.show();
    panel.callback->settings.values.insert(pdekit::PrintSettingsKey::mediaName, u"15mm"_qs);
    panel->PPDOptionKeyValueDidChange(u"PageSize"_qs, u"15mm"_qs);
    EXPECT_EQ(width(panel), u"24 mm"); // the page format's paper
    EXPECT_EQ(printLimit(panel), u"8.0");
}

TEST(PaperChange, WithoutAChoice_IsNoChange)
{
    PanelUnderTest panel(on("24mm"));
    panel.show();
    panel.callback->usePaper(u"15mm"_qs, 100.0);
    panel->PPDOptionKeyValueDidChange(u"PageSize"_qs, QString());
    EXPECT_EQ(width(panel), u"24 mm");
    panel->PPDOptionKeyValueDidChange(u"PageRegion"_qs, u"15mm"_qs);
    EXPECT_EQ(width(panel), u"24 mm");
}

TEST(PaperChange, BeforeTheViewIsLoaded_IsHarmless)
{
    PanelUnderTest panel(on("24mm"));
    changePaper(panel, "15mm");
    panel.show();
    EXPECT_EQ(width(panel), u"15 mm");
    EXPECT_EQ(printLimit(panel), u"12.0");
}

TEST(PaperChange, AfterThePanelHasGone_ReachesNobody)
{
    auto callback = on("24mm");
    {
        PanelUnderTest panel(callback);
        panel.show();
    }
    const std::size_t sent = callback->sent.size();
    pdekit::NotificationCenter::defaultCenter().postNotification(
        QStringLiteral("PMPrintDestinationPaperDidChangeNotification"), callback.get());
    EXPECT_EQ(callback->sent.size(), sent);
}

TEST(PaperChange, ToAMediumOfFixedLength_DisablesLengthAndMarginWhenThePanelIsShownAgain)
{
    PanelUnderTest panel(on("24mm"));
    panel.show();
    changePaper(panel, "DC24x80", 80.0);
    panel->willShow();
    EXPECT_EQ(width(panel), u"Label 24 x 80");
    EXPECT_FALSE(panel.field("mLengthTxFld")->isEnabled());
    EXPECT_FALSE(panel.slider("mLengthSlider")->isEnabled());
    EXPECT_FALSE(panel.field("mMarginTxFld")->isEnabled());
    EXPECT_FALSE(panel.isTextEnabled("mLengthUnitStr"));
    EXPECT_EQ(panel.field("mLengthTxFld")->text(), u"80.0"); // nothing was typed: the paper's length is taken over
    EXPECT_EQ(panel.callback->lastSent(u"KsTapeLength"_qs), u"80.0");
    changePaper(panel, "24mm", 100.0);
    panel->willShow();
    EXPECT_TRUE(panel.field("mLengthTxFld")->isEnabled());
    EXPECT_TRUE(panel.field("mMarginTxFld")->isEnabled());
    EXPECT_TRUE(panel.isTextEnabled("mLengthUnitStr"));
    EXPECT_EQ(panel.callback->lastSent(u"KsTapeLength"_qs), u"100.0");
}

TEST(PaperChange, KeepsALengthThatThePersonTyped)
{
    PanelUnderTest panel(on("24mm"));
    panel.show();
    panel.type("mLengthTxFld", "55.5");
    key(panel, Qt::Key_Return);
    changePaper(panel, "12mm", 200.0);
    panel->willShow();
    EXPECT_EQ(panel.field("mLengthTxFld")->text(), u"55.5");
    EXPECT_EQ(panel.callback->lastSent(u"KsTapeLength"_qs), u"55.5");
}

TEST(PaperChange, FillsThePrintTapeLengthAnewFromItsDefault)
{
    PanelUnderTest panel(on("15mm"));
    panel.show();
    panel.type("mTapeLengthTxFld", "11");
    key(panel, Qt::Key_Return);
    EXPECT_TRUE(panel.alerts.empty());
    changePaper(panel, "24mm");
    EXPECT_EQ(panel.field("mTapeLengthTxFld")->text(), u"3.0");
    EXPECT_EQ(panel.slider("mTapeLengthSlider")->floatValue(), 3.0F);
    panel->willShow();
    EXPECT_EQ(panel.callback->lastSent(u"KsPrintTapeLength"_qs), u"3.0");
}

TEST(FifteenMmTape, AnUnknownWidth_IsNone)
{
    PanelUnderTest panel(on("15mm"));
    panel.show();
    ASSERT_EQ(printLimit(panel), u"12.0");
    panel.type("mTapeLengthTxFld", "11");
    // Shown again on a paper that the PPD lacks, without a notice before.
    panel.callback->usePaper(u"Unheard"_qs, 100.0);
    panel->willShow();
    EXPECT_EQ(width(panel), text(panel, "RS_TapeWidthNot"));
    EXPECT_EQ(panel.callback->lastSent(u"KsPrintTapeLength"_qs), u"8.0");
    // The mapped name alone says 15 mm: the width that is shown outweighs it.
    changePaper(panel, "15mm");
    panel.callback->usePaper(u"Unheard"_qs, 100.0);
    panel->PPDOptionKeyValueDidChange(u"PageSize"_qs, u"15mm"_qs);
    EXPECT_EQ(printLimit(panel), u"8.0");
}

TEST(PaperChange, ByTheDialogsNotice_IsPostedAboutThePanelItself)
{
    PanelUnderTest panel(on("24mm"));
    PanelUnderTest other(on("24mm"));
    const QObject *self = dynamic_cast<QObject *>(panel.panel.get());
    ASSERT_NE(self, nullptr);
    QObject observer;
    std::vector<const void *> senders;
    int fromThePanel = 0;
    const QString notice = u"PMPrintDestinationPaperDidChangeNotification"_qs;
    pdekit::NotificationCenter &center = pdekit::NotificationCenter::defaultCenter();
    center.addObserver(
        &observer, [&](const pdekit::Notification &posted) { senders.push_back(posted.object); }, notice);
    center.addObserver(
        &observer, [&](const pdekit::Notification &) { ++fromThePanel; }, notice, self);
    panel->PPDOptionKeyValueDidChange(u"PageSize"_qs, u"12mm"_qs);
    EXPECT_EQ(senders, std::vector<const void *>{self});
    other->PPDOptionKeyValueDidChange(u"PageSize"_qs, u"12mm"_qs);
    EXPECT_EQ(senders.size(), 2U);
    EXPECT_EQ(fromThePanel, 1);
}

} // namespace
