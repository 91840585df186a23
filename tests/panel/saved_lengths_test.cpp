// SPDX-License-Identifier: Apache-2.0
// What each saver sends of a length when nothing has corrected the fields before: conversion, snapping, clamping,
// rounding; and the print that a failed check refuses once.
#include "TextPrinting.h"
#include "TracedPanel.h"

namespace
{

QString text(const char *latin1)
{
    return QString::fromLatin1(latin1);
}

PpdText millimetres()
{
    return PpdText::withEveryOption(); // tape 4 to 1000, margin 1 to 100, print tape 1 to 8, or 12 for cloth
}

PpdText inches()
{
    PpdText ppd = PpdText::withEveryOption();
    ppd.attribute("KsUnitType", "inch");
    return ppd;
}

PpdText integers()
{
    PpdText ppd = PpdText::withEveryOption();
    ppd.attribute("KsIsIntegerTapeLength", "True")
        .attribute("KsIsIntegerMargin", "True")
        .attribute("KsIsIntegerPrintTapeLength", "True");
    return ppd;
}

/// What one saver sends of a field's text. The paper is 100.02 mm long.
class SavedField
{
public:
    SavedField(const PpdText &ppd, const char *paper = nullptr) : mPanel(ppd)
    {
        mPanel.callback->usePaper(text("24mm"), 100.02);
        if (paper != nullptr) {
            mPanel.callback->usePaper(paper);
        }
        mPanel.show();
    }

    QString tapeLength(const char *shown) { return saved("mLengthTxFld", "KsTapeLength", shown); }
    QString margin(const char *shown) { return saved("mMarginTxFld", "KsMargin", shown); }
    QString printTapeLength(const char *shown) { return saved("mTapeLengthTxFld", "KsPrintTapeLength", shown); }
    PanelOfTheClass &panel() { return mPanel; }

private:
    QString saved(const char *field, const char *keyword, const char *shown)
    {
        mPanel.outlet<QLineEdit>(field)->setText(text(shown));
        mPanel->saveSetting_Length();
        mPanel->saveSetting_Margin();
        mPanel->saveSetting_PrintTapeLength();
        return mPanel.callback->lastSent(text(keyword));
    }

    PanelOfTheClass mPanel;
};

/// What is sent of a PPD default or a paper before there are fields.
QString savedWithoutFields(const PpdText &ppd, const char *keyword, double paperMm = 100.02)
{
    PanelOfTheClass panel(ppd);
    panel.callback->usePaper(text("24mm"), paperMm);
    panel.construct();
    panel->supportedPPDOptionKeys();
    return panel.callback->lastSent(text(keyword));
}

} // namespace

// ---- Tape length
// -------------------------------------------------------------------------------------------------------

TEST(SavedTapeLength, InMillimetres_IsToTheNearestTenth)
{
    SavedField field(millimetres());
    EXPECT_EQ(field.tapeLength("50"), text("50.0"));
    EXPECT_EQ(field.tapeLength("50.26"), text("50.3"));
    EXPECT_EQ(field.tapeLength("50.24"), text("50.2"));
}

TEST(SavedTapeLength, OfWholeMillimetres_IsTruncated)
{
    SavedField field(integers());
    EXPECT_EQ(field.tapeLength("99.9"), text("99"));
    EXPECT_EQ(field.tapeLength("99"), text("99"));
}

TEST(SavedTapeLength, InInches_IsSentInMillimetres)
{
    // 3.94 / 0.0393701 = 100.0759...
    EXPECT_EQ(SavedField(inches()).tapeLength("3.94"), text("100.1"));
    PpdText whole = inches();
    whole.attribute("KsIsIntegerTapeLength", "True");
    EXPECT_EQ(SavedField(whole).tapeLength("3.94"), text("100"));
}

TEST(SavedTapeLength, OutOfRange_IsClamped)
{
    SavedField field(millimetres());
    EXPECT_EQ(field.tapeLength("3.9"), text("4.0"));
    EXPECT_EQ(field.tapeLength("1000.1"), text("1000.0"));
    EXPECT_EQ(field.tapeLength(""), text("4.0"));
    SavedField inInches(inches());
    EXPECT_EQ(inInches.tapeLength("0.1"), text("4.0"));
    EXPECT_EQ(inInches.tapeLength("40"), text("1000.0"));
}

TEST(SavedTapeLength, WithoutItsOption_IsSentAllTheSame)
{
    PpdText ppd = millimetres();
    ppd.withoutOption("KsTapeLength");
    EXPECT_EQ(SavedField(ppd).tapeLength("50"), text("50.0"));
}

TEST(SavedTapeLength, WithoutAField_IsThePapersAsThePanelWouldShowIt)
{
    EXPECT_EQ(savedWithoutFields(millimetres(), "KsTapeLength", 100.02), text("100.0"));
    EXPECT_EQ(savedWithoutFields(millimetres(), "KsTapeLength", 100.07), text("100.1"));
    EXPECT_EQ(savedWithoutFields(integers(), "KsTapeLength", 99.9), text("99"));
    // 100.02 mm is 3.94 inches, which are 100.0759... mm.
    EXPECT_EQ(savedWithoutFields(inches(), "KsTapeLength", 100.02), text("100.1"));
    EXPECT_EQ(savedWithoutFields(millimetres(), "KsTapeLength", 2.0), text("4.0"));
    EXPECT_EQ(savedWithoutFields(millimetres(), "KsTapeLength", 1200.0), text("1000.0"));
}

TEST(SavedTapeLength, OfAnotherPaper_RewritesTheUntouchedFieldOnce)
{
    SavedField field(millimetres());
    auto *edit = field.panel().outlet<QLineEdit>("mLengthTxFld");
    field.panel().callback->usePaper(text("24mm"), 100.02);
    ASSERT_EQ(field.tapeLength("100.0"), text("100.0"));
    field.panel().callback->usePaper(text("12mm"), 80.02);
    field.panel()->saveSetting_Length();
    EXPECT_EQ(edit->text(), text("80.0"));
    EXPECT_EQ(field.panel().callback->lastSent(text("KsTapeLength")), text("80.0"));
}

TEST(SavedTapeLength, OfAnotherPaper_IsWhatThePersonTyped)
{
    SavedField field(millimetres());
    ASSERT_EQ(field.tapeLength("100.0"), text("100.0"));
    field.panel().outlet<QLineEdit>("mLengthTxFld")->setText(text("55.5"));
    field.panel().callback->usePaper(text("12mm"), 80.02);
    field.panel()->saveSetting_Length();
    EXPECT_EQ(field.panel().outlet<QLineEdit>("mLengthTxFld")->text(), text("55.5"));
    EXPECT_EQ(field.panel().callback->lastSent(text("KsTapeLength")), text("55.5"));
    // The new paper counts as taken over: it does not replace the typed length later either.
    field.panel()->saveSetting_Length();
    EXPECT_EQ(field.panel().callback->lastSent(text("KsTapeLength")), text("55.5"));
}

TEST(SavedTapeLength, OfTheSamePaper_IsWhatTheFieldShows)
{
    SavedField field(millimetres());
    ASSERT_EQ(field.tapeLength("100.0"), text("100.0"));
    EXPECT_EQ(field.tapeLength("55.5"), text("55.5"));
    EXPECT_EQ(field.tapeLength("100.0"), text("100.0"));
}

TEST(SavedTapeLength, OfAnotherPaperInInches_RewritesTheFieldInInches)
{
    SavedField field(inches());
    ASSERT_EQ(field.tapeLength("3.94"), text("100.1"));
    // 50.8 mm are 2.0000... inches; 2.00 / 0.0393701 = 50.79997...
    field.panel().callback->usePaper(text("12mm"), 50.8);
    field.panel()->saveSetting_Length();
    EXPECT_EQ(field.panel().outlet<QLineEdit>("mLengthTxFld")->text(), text("2.00"));
    EXPECT_EQ(field.panel().callback->lastSent(text("KsTapeLength")), text("50.8"));
}

// ---- Margin
// ------------------------------------------------------------------------------------------------------------

TEST(SavedMargin, IsRoundedUp)
{
    SavedField field(millimetres());
    EXPECT_EQ(field.margin("3.21"), text("3.3"));
    EXPECT_EQ(field.margin("3.2"), text("3.2"));
    SavedField whole(integers());
    EXPECT_EQ(whole.margin("3.2"), text("4"));
    EXPECT_EQ(whole.margin("3"), text("3"));
}

TEST(SavedMargin, LessThanATenthAboveTheMinimum_IsTheMinimum)
{
    PpdText ppd = millimetres();
    ppd.attribute("KsMinMargin", "2.0");
    SavedField field(ppd);
    EXPECT_EQ(field.margin("2.05"), text("2.0"));
    EXPECT_EQ(field.margin("2.09"), text("2.0"));
    EXPECT_EQ(field.margin("2.11"), text("2.2"));
    ppd.attribute("KsIsIntegerMargin", "True");
    SavedField whole(ppd);
    EXPECT_EQ(whole.margin("2.05"), text("2"));
    EXPECT_EQ(whole.margin("2.11"), text("3"));
}

TEST(SavedMargin, OutOfRange_IsClamped)
{
    SavedField field(millimetres());
    EXPECT_EQ(field.margin("0.2"), text("1.0"));
    EXPECT_EQ(field.margin("100.4"), text("100.0"));
}

TEST(SavedMargin, InInches_IsSentInMillimetres)
{
    // 0.2 / 0.0393701 = 5.0799...
    EXPECT_EQ(SavedField(inches()).margin("0.20"), text("5.1"));
}

TEST(SavedMargin, WithoutAField_IsTheDefaultAsThePanelWouldShowIt)
{
    const auto withDefault = [](PpdText ppd, const QByteArray &margin) {
        ppd.option("KsMargin", "Margin", {{margin, margin}}, margin);
        return savedWithoutFields(ppd, "KsMargin");
    };
    EXPECT_EQ(withDefault(millimetres(), "3.21"), text("3.3"));
    EXPECT_EQ(withDefault(integers(), "3.2"), text("4"));
    EXPECT_EQ(withDefault(millimetres(), "0.5"), text("1.0"));
    EXPECT_EQ(withDefault(millimetres(), "250"), text("100.0"));
    // 2 mm are shown as 0.08 inches: 0.08 / 0.0393701 = 2.0320...
    EXPECT_EQ(withDefault(inches(), "2.0"), text("2.1"));
    EXPECT_EQ(withDefault(millimetres(), "None"), text("1.0"));
}

// ---- Print tape length
// -------------------------------------------------------------------------------------------------

TEST(SavedPrintTapeLength, IsRoundedUpAndNeverConverted)
{
    EXPECT_EQ(SavedField(millimetres()).printTapeLength("3.21"), text("3.3"));
    EXPECT_EQ(SavedField(integers()).printTapeLength("3.2"), text("4"));
    EXPECT_EQ(SavedField(inches()).printTapeLength("3.2"), text("3.2"));
}

TEST(SavedPrintTapeLength, OutOfRange_IsClampedToTheTapesMaximum)
{
    SavedField field(millimetres());
    EXPECT_EQ(field.printTapeLength("0.5"), text("1.0"));
    EXPECT_EQ(field.printTapeLength("15"), text("8.0"));
    field.panel().outlet<QComboBox>("mTapeTypePopBtn")->setCurrentIndex(2);
    field.panel()->changeKsTapeType(nullptr);
    EXPECT_EQ(field.printTapeLength("15"), text("12.0"));
    SavedField of15mm(millimetres(), "15mm");
    EXPECT_EQ(of15mm.printTapeLength("15"), text("12.0"));
}

TEST(SavedPrintTapeLength, WithoutAField_IsTheDefaultRoundedUp)
{
    const auto withDefault = [](PpdText ppd, const QByteArray &length) {
        ppd.option("KsPrintTapeLength", "Length", {{length, length}}, length);
        return savedWithoutFields(ppd, "KsPrintTapeLength");
    };
    EXPECT_EQ(withDefault(millimetres(), "3.21"), text("3.3"));
    EXPECT_EQ(withDefault(integers(), "3.2"), text("4"));
    EXPECT_EQ(withDefault(inches(), "3.0"), text("3.0"));
    EXPECT_EQ(withDefault(millimetres(), "99"), text("8.0"));
}

// ---- A paper of a fixed length
// ------------------------------------------------------------------------------------------

TEST(FixedLength, ClampsNothing)
{
    SavedField field(millimetres(), "DC24x80");
    EXPECT_EQ(field.tapeLength("5000"), text("5000.0"));
    EXPECT_EQ(field.tapeLength("1"), text("1.0"));
    EXPECT_EQ(field.margin("500"), text("500.0"));
    EXPECT_EQ(field.printTapeLength("50"), text("50.0"));
    EXPECT_EQ(field.printTapeLength("0.5"), text("0.5"));
}

TEST(FixedLength, SnapsTheMarginToItsMinimumAllTheSame)
{
    SavedField field(millimetres(), "DC24x80");
    EXPECT_EQ(field.margin("0.5"), text("1.0"));
    EXPECT_EQ(field.margin("1.05"), text("1.0"));
}

TEST(FixedLength, DisablesLengthAndMargin_AFreeLengthEnablesThem)
{
    SavedField field(millimetres());
    const auto expectEnabled = [&field](bool enabled) {
        field.panel()->saveSetting_Length();
        for (const char *name : {"mLengthTxFld", "mLengthSlider", "mMarginTxFld", "mMarginSlider"}) {
            EXPECT_EQ(field.panel().outlet<QWidget>(name)->isEnabled(), enabled) << name;
        }
        const QColor disabled = QPalette().color(QPalette::Disabled, QPalette::WindowText);
        for (const char *name : {"mLengthStr", "mLengthMinStr", "mLengthMaxStr", "mLengthUnitStr", "mMarginStr",
                                 "mMarginMinStr", "mMarginMaxStr", "mMarginUnitStr"}) {
            const QColor shown =
                field.panel().outlet<QLabel>(name)->palette().color(QPalette::Active, QPalette::WindowText);
            EXPECT_EQ(shown != disabled, enabled) << name;
        }
        EXPECT_TRUE(field.panel().outlet<QWidget>("mTapeLengthTxFld")->isEnabled());
    };
    expectEnabled(true);
    field.panel().callback->usePaper("DC24x80");
    expectEnabled(false);
    field.panel().callback->usePaper("12mm");
    expectEnabled(true);
}

// ---- The print that a failed check refuses once
// -------------------------------------------------------------------------

namespace
{

// No check of this generation fails, so the flag of the last check is set from here.
template <typename Tag, typename Tag::Type Member>
struct Opened {
    friend typename Tag::Type memberOf(Tag /*tag*/) { return Member; }
};
struct LastCheck {
    using Type = bool PageSettingPDE13_v100_::*;
    friend Type memberOf(LastCheck);
};
template struct Opened<LastCheck, &PageSettingPDE13_v100_::checkValues_dec>;

} // namespace

TEST(ShouldPrint, AfterAFailedCheck_RefusesOnceInSilenceAndThenChecksAgain)
{
    PanelOfTheClass panel(millimetres());
    panel.show();
    panel.panel.get()->*memberOf(LastCheck()) = false;
    EXPECT_FALSE(panel->shouldPrint());
    EXPECT_EQ(panel.callback->sentKeys(), (std::vector<QString>{text("KsTapeLength"), text("KsInkColor"),
                                                                text("KsTapeColor"), text("KsTapeMaterial")}));
    EXPECT_EQ(std::count(panel.trace.begin(), panel.trace.end(), text("check")), 0);
    EXPECT_TRUE(panel->shouldPrint());
    EXPECT_EQ(std::count(panel.trace.begin(), panel.trace.end(), text("check")), 1);
}

TEST(ShouldPrint, AnswersWhatTheCheckSays)
{
    class Refusing : public TracedPanel
    {
    public:
        using TracedPanel::TracedPanel;
        bool checkValues(bool silent) override
        {
            TracedPanel::checkValues(silent);
            return false;
        }
    };
    PanelOfTheClass panel(millimetres());
    panel.panel = std::make_unique<Refusing>(&panel.trace);
    panel.show();
    EXPECT_FALSE(panel->shouldPrint());
    EXPECT_EQ(std::count(panel.trace.begin(), panel.trace.end(), text("check")), 1);
    EXPECT_FALSE(panel->shouldPrint());
    EXPECT_EQ(std::count(panel.trace.begin(), panel.trace.end(), text("check")), 2);
}
