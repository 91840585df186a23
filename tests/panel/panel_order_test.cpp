// SPDX-License-Identifier: Apache-2.0
// The exact order in which the panel's operations run for each act of the dialog and of a person, which no dialog sees.
#include "TracedPanel.h"

#include "TextPrinting.h"

#include "pdekit/NotificationCenter.h"

#include <QAbstractButton>

namespace
{

Trace words(std::initializer_list<const char *> all)
{
    Trace trace;
    for (const char *each : all) {
        trace.push_back(QString::fromLatin1(each));
    }
    return trace;
}

Trace operator+(Trace first, const Trace &second)
{
    first.insert(first.end(), second.begin(), second.end());
    return first;
}

/// A trace without what the dialog was told.
Trace withoutTells(Trace trace)
{
    std::erase_if(trace, [](const QString &each) { return each.startsWith(QLatin1StringView("tell ")); });
    return trace;
}

const Trace kTenSavers =
    words({"save Length", "save Margin", "save Quality", "save Resolution", "save Compress", "save KsResolution",
           "save TapeType", "save TapeColor", "save InkColor", "save PrintTapeLength"});

const Trace kElevenBuilders =
    words({"build Width", "build Length", "build Margin", "build Quality", "build Resolution", "build Compress",
           "build KsResolution", "build TapeType", "build TapeColor", "build InkColor", "build PrintTapeLength"});

/// The codes of the ten items, in the order in which they are refreshed.
const std::vector<const char *> kItems = {"1", "2", "4", "8", "10", "20000", "50000", "60000", "70000", "90000"};

Trace refreshed(const char *item)
{
    return Trace{QStringLiteral("update ") + QString::fromLatin1(item)} +
           words({"save Length", "build Width", "save PrintTapeLength"});
}

Trace tenRefreshed()
{
    Trace trace;
    for (const char *item : kItems) {
        trace = trace + refreshed(item);
    }
    return trace;
}

Trace tenMarked()
{
    Trace trace;
    for (const char *item : kItems) {
        trace.push_back(QStringLiteral("marked ") + QString::fromLatin1(item));
    }
    return trace;
}

} // namespace

TEST(Order, OfConstruction_RunsNoneOfTheOperations)
{
    PanelOfTheClass panel(PpdText::withEveryOption());
    panel.construct();
    EXPECT_EQ(panel.trace, Trace());
}

TEST(Order, OfTheFirstQuestionForKeys_RunsTheTenSaversOnce)
{
    PanelOfTheClass panel(PpdText::withEveryOption());
    panel.construct();
    panel->supportedPPDOptionKeys();
    EXPECT_EQ(withoutTells(panel.trace), kTenSavers);
}

TEST(Order, OfTheFirstQuestionForKeysWithoutAnyOption_RunsTheTenSaversAllTheSame)
{
    PanelOfTheClass panel{PpdText()};
    panel.construct();
    panel->supportedPPDOptionKeys();
    EXPECT_EQ(withoutTells(panel.trace), kTenSavers);
}

TEST(Order, OfTheSecondQuestionForKeys_RunsNothing)
{
    PanelOfTheClass panel(PpdText::withEveryOption());
    panel.construct();
    panel->supportedPPDOptionKeys();
    panel.forget();
    panel->supportedPPDOptionKeys();
    EXPECT_EQ(panel.trace, Trace());
}

TEST(Order, OfTheFirstShowing_BuildsThenSavesThenRefreshes)
{
    PanelOfTheClass panel(PpdText::withEveryOption());
    panel.construct();
    panel->panelView();
    panel.forget();
    panel->willShow();
    EXPECT_EQ(withoutTells(panel.trace), words({"titles"}) + kElevenBuilders + kTenSavers + tenRefreshed());
}

TEST(Order, OfTheSecondShowing_RefreshesOnly)
{
    PanelOfTheClass panel(PpdText::withEveryOption());
    panel.show();
    panel->willShow();
    EXPECT_EQ(withoutTells(panel.trace), words({"titles"}) + tenRefreshed());
}

TEST(Order, OfTheItemsRefresh_IsTenItemsEachOnce)
{
    PanelOfTheClass panel(PpdText::withEveryOption());
    panel.show();
    panel->setPDEItems();
    EXPECT_EQ(withoutTells(panel.trace), tenRefreshed());
}

TEST(Order, OfRestoring_ReadsTheMarksOfTenItemsThenRefreshesThem)
{
    PanelOfTheClass panel(PpdText::withEveryOption());
    panel.show();
    EXPECT_TRUE(panel->restoreValuesAndReturnError(nullptr));
    EXPECT_EQ(withoutTells(panel.trace), tenMarked() + tenRefreshed());
}

TEST(Order, OfSaving_ChecksThenRunsTheTenSavers)
{
    PanelOfTheClass panel(PpdText::withEveryOption());
    panel.show();
    EXPECT_TRUE(panel->saveValuesAndReturnError(nullptr));
    EXPECT_EQ(withoutTells(panel.trace), words({"check"}) + kTenSavers);
}

TEST(Order, OfPrinting_SavesFourThenChecks)
{
    PanelOfTheClass panel(PpdText::withEveryOption());
    panel.show();
    EXPECT_TRUE(panel->shouldPrint());
    EXPECT_EQ(panel.trace,
              words({"save Length", "tell KsTapeLength", "save InkColor", "tell KsInkColor", "save TapeColor",
                     "tell KsTapeColor", "save TapeType", "tell KsTapeMaterial", "check"}));
}

TEST(Order, OfPrintingWithoutMarks_TellsTheDefaultsBetweenSavingAndChecking)
{
    PanelOfTheClass panel(PpdText::withEveryOption());
    panel.show();
    for (const char *keyword : {"KsPriority", "Resolution", "KsResolution", "KsCompress"}) {
        ppd_option_t *option = ppdFindOption(panel.callback->ppd.get(), keyword);
        cupsArrayRemove(panel.callback->ppd->marked, ppdFindMarkedChoice(panel.callback->ppd.get(), keyword));
        ASSERT_EQ(ppdFindMarkedChoice(panel.callback->ppd.get(), option->keyword), nullptr);
    }
    EXPECT_TRUE(panel->shouldPrint());
    EXPECT_EQ(panel.trace,
              words({"save Length", "tell KsTapeLength", "save InkColor", "tell KsInkColor", "save TapeColor",
                     "tell KsTapeColor", "save TapeType", "tell KsTapeMaterial", "tell KsPriority", "tell Resolution",
                     "tell KsResolution", "tell KsCompress", "check"}));
}

// ---- A person's pick
// ---------------------------------------------------------------------------------------------------

namespace
{

struct Pick {
    const char *keyword;
    const char *control;
    const char *item;
};

void PrintTo(const Pick &pick, std::ostream *stream)
{
    *stream << pick.keyword;
}

class EachPickOrder : public ::testing::TestWithParam<Pick>
{
protected:
    static void pickSecond(const PanelOfTheClass &panel)
    {
        auto *control = panel.outlet<QWidget>(GetParam().control);
        if (auto *matrix = qobject_cast<pdekit::RadioMatrix *>(control)) {
            matrix->cellAtRow(1, 0)->click();
        } else if (auto *popUp = qobject_cast<QComboBox *>(control)) {
            popUp->setCurrentIndex(1);
            Q_EMIT popUp->activated(1);
        }
    }
    /// Calls the handler of the option's control from code: without a sender.
    static void callHandler(const PanelOfTheClass &panel)
    {
        using Handler = void (PageSettingPDE13_v100_::*)(QObject *);
        const std::map<QByteArray, Handler> handlers = {{"KsPriority", &PageSettingPDE13_v100_::changeQuality},
                                                        {"Resolution", &PageSettingPDE13_v100_::changeResolution},
                                                        {"KsCompress", &PageSettingPDE13_v100_::changeCompress},
                                                        {"KsResolution", &PageSettingPDE13_v100_::changeKsResolution},
                                                        {"KsTapeMaterial", &PageSettingPDE13_v100_::changeKsTapeType},
                                                        {"KsTapeColor", &PageSettingPDE13_v100_::changeKsTapeColor},
                                                        {"KsInkColor", &PageSettingPDE13_v100_::changeKsInkColor}};
        (panel.panel.get()->*handlers.at(GetParam().keyword))(nullptr);
    }
    static Trace expected(bool withCheck)
    {
        const QString item = QString::fromLatin1(GetParam().item);
        Trace trace = {QStringLiteral("tell ") + QString::fromLatin1(GetParam().keyword),
                       QStringLiteral("marked ") + item, QStringLiteral("update ") + item};
        trace = trace + words({"save Length", "tell KsTapeLength", "build Width", "save PrintTapeLength",
                               "tell KsPrintTapeLength"});
        if (withCheck) {
            trace.push_back(QStringLiteral("check"));
        }
        if (qstrcmp(GetParam().keyword, "KsTapeMaterial") == 0) {
            trace.push_back(QStringLiteral("build PrintTapeLength"));
        }
        return trace;
    }
};

INSTANTIATE_TEST_SUITE_P(
    Order, EachPickOrder,
    ::testing::Values(Pick{"KsPriority", "mPrintQualityRdBtn", "4"}, Pick{"Resolution", "mResolutionRdBtn", "8"},
                      Pick{"KsCompress", "mCompressRdBtn", "10"}, Pick{"KsResolution", "mKsResolutionPUBtn", "20000"},
                      Pick{"KsTapeMaterial", "mTapeTypePopBtn", "50000"},
                      Pick{"KsTapeColor", "mTapeColorPopBtn", "60000"}, Pick{"KsInkColor", "mInkColorPopBtn", "70000"}),
    [](const auto &test) { return std::string(test.param.keyword); });

} // namespace

TEST_P(EachPickOrder, OfAPersonsPick_TellsMarksRefreshesAndChecks)
{
    PanelOfTheClass panel(PpdText::withEveryOption());
    panel.show();
    pickSecond(panel);
    EXPECT_EQ(panel.trace, expected(true));
}

TEST_P(EachPickOrder, OfACallFromCode_ChecksNothing)
{
    PanelOfTheClass panel(PpdText::withEveryOption());
    panel.show();
    callHandler(panel);
    EXPECT_EQ(panel.trace, expected(false));
}

TEST_P(EachPickOrder, OfTheDialogsNotice_RunsNothing)
{
    PanelOfTheClass panel(PpdText::withEveryOption());
    panel.show();
    panel->PPDOptionKeyValueDidChange(QString::fromLatin1(GetParam().keyword), QStringLiteral("300x600dpi"));
    EXPECT_EQ(panel.trace, Trace());
}

// ---- A change of paper
// -------------------------------------------------------------------------------------------------

TEST(Order, OfTheDialogsNoticeOfAPaper_BuildsWidthAndPrintTapeLength)
{
    PanelOfTheClass panel(PpdText::withEveryOption());
    panel.show();
    panel->PPDOptionKeyValueDidChange(QStringLiteral("PageSize"), QStringLiteral("12mm"));
    EXPECT_EQ(panel.trace, words({"build Width", "build PrintTapeLength"}));
}

TEST(Order, OfAPaperNotificationByAnyone_BuildsWidthAndPrintTapeLength)
{
    PanelOfTheClass panel(PpdText::withEveryOption());
    panel.show();
    pdekit::NotificationCenter::defaultCenter().postNotification(
        QStringLiteral("PMPrintDestinationPaperDidChangeNotification"), nullptr);
    EXPECT_EQ(panel.trace, words({"build Width", "build PrintTapeLength"}));
    panel.forget();
    QObject somebody;
    pdekit::NotificationCenter::defaultCenter().postNotification(
        QStringLiteral("PMPrintDestinationPaperDidChangeNotification"), &somebody);
    EXPECT_EQ(panel.trace, words({"build Width", "build PrintTapeLength"}));
}

TEST(Order, OfAPaperNoticeWithoutAChoiceOrOfAnotherKey_RunsNothing)
{
    PanelOfTheClass panel(PpdText::withEveryOption());
    panel.show();
    panel->PPDOptionKeyValueDidChange(QStringLiteral("PageSize"), QString());
    panel->PPDOptionKeyValueDidChange(QStringLiteral("PageRegion"), QStringLiteral("12mm"));
    panel->PPDOptionKeyValueDidChange(QStringLiteral("KsMargin"), QStringLiteral("5.0"));
    EXPECT_EQ(panel.trace, Trace());
}
