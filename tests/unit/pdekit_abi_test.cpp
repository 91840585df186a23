// SPDX-License-Identifier: Apache-2.0
// What a panel or a dialog that was built before has compiled into it: which function of a class stands where, and
// where a record's fields stand. Whatever fails here breaks them: it takes another major version.
#include <pdekit/Alert.h>
#include <pdekit/BundleLoading.h>
#include <pdekit/NotificationCenter.h>
#include <pdekit/PanelProtocol.h>
#include <pdekit/PlugIn.h>
#include <pdekit/PrintingCore.h>
#include <pdekit/RadioMatrix.h>
#include <pdekit/Slider.h>

#include <cstddef>
#include <cstring>

#include <gtest/gtest.h>

namespace
{

using namespace pdekit;

/// Where a virtual function stands among those of its class, by the platform's C++ ABI: the pointer to it is one more
/// than its place in bytes. The destructor has the first two places.
template <typename Function>
std::ptrdiff_t placeOf(Function function)
{
    static_assert(sizeof function == 2 * sizeof(std::ptrdiff_t));
    std::ptrdiff_t pointer = 0;
    std::memcpy(&pointer, &function, sizeof pointer);
    return (pointer - 1) / static_cast<std::ptrdiff_t>(sizeof(void *));
}

/// Where a field stands in its record, in bytes.
template <typename Record, typename Field>
std::size_t placeOfField(Field Record::*field)
{
    const Record record{};
    return static_cast<std::size_t>(reinterpret_cast<const char *>(&(record.*field)) -
                                    reinterpret_cast<const char *>(&record));
}

TEST(Abi, FunctionsOfAPanel_StandWhereTheyStood)
{
    EXPECT_EQ(placeOf(&Panel::panelView), 2);
    EXPECT_EQ(placeOf(&Panel::panelName), 3);
    EXPECT_EQ(placeOf(&Panel::panelKind), 4);
    EXPECT_EQ(placeOf(&Panel::supportedPPDOptionKeys), 5);
    EXPECT_EQ(placeOf(&Panel::willShow), 6);
    EXPECT_EQ(placeOf(&Panel::shouldHide), 7);
    EXPECT_EQ(placeOf(&Panel::shouldPrint), 8);
    EXPECT_EQ(placeOf(&Panel::shouldShowHelp), 9);
    EXPECT_EQ(placeOf(&Panel::PPDOptionKeyValueDidChange), 10);
    EXPECT_EQ(placeOf(&Panel::restoreValuesAndReturnError), 11);
    EXPECT_EQ(placeOf(&Panel::saveValuesAndReturnError), 12);
    EXPECT_EQ(placeOf(&Panel::summaryInfo), 13);
    EXPECT_EQ(placeOf(&Panel::printWindowWillClose), 14);
    EXPECT_EQ(placeOf(&PanelLiveValues::currentValues), 2);
    EXPECT_EQ(placeOf(&PanelHelp::showHelp), 2);
}

TEST(Abi, FunctionsOfADialog_StandWhereTheyStood)
{
    EXPECT_EQ(placeOf(&PanelCallback::printSession), 2);
    EXPECT_EQ(placeOf(&PanelCallback::printSettings), 3);
    EXPECT_EQ(placeOf(&PanelCallback::pageFormat), 4);
    EXPECT_EQ(placeOf(&PanelCallback::PMPrinter), 5);
    EXPECT_EQ(placeOf(&PanelCallback::ppdFile), 6);
    EXPECT_EQ(placeOf(&PanelCallback::willChangePPDOptionKeyValue), 7);
    EXPECT_EQ(placeOf(&PanelViewResizing::panelViewDidResize), 2);
}

TEST(Abi, FunctionsOfAPlugIn_StandWhereTheyStood)
{
    EXPECT_EQ(placeOf(&PlugInEntry::newPrincipalObject), 2);
    EXPECT_EQ(placeOf(&PlugIn::initWithBundle), 2);
    EXPECT_EQ(placeOf(&PlugIn::PDEPanelsForType), 3);
}

TEST(Abi, Records_AreLaidOutAsTheyWere)
{
    constexpr std::size_t text = 3 * sizeof(void *); // a QString is three pointers
    constexpr std::size_t map = sizeof(void *);
    static_assert(sizeof(QString) == text && sizeof(QVariantMap) == map);

    EXPECT_EQ(placeOfField(&Paper::widthPt), text);
    EXPECT_EQ(placeOfField(&Paper::heightPt), text + 8);
    EXPECT_EQ(sizeof(Paper), text + 16);
    EXPECT_EQ(sizeof(PageFormat), sizeof(Paper) + 8); // whether there is one stands behind it
    EXPECT_EQ(placeOfField(&Printer::instance), text);
    EXPECT_EQ(placeOfField(&Printer::makeModel), 2 * text);
    EXPECT_EQ(placeOfField(&Printer::deviceUri), 3 * text);
    EXPECT_EQ(sizeof(Printer), 4 * text);
    EXPECT_EQ(sizeof(PrintSession), map);
    EXPECT_EQ(placeOfField(&PrintSettings::lockedKeys), map);
    EXPECT_EQ(sizeof(PrintSettings), map + sizeof(std::set<QString>));
    EXPECT_EQ(placeOfField(&Notification::object), text);
    EXPECT_EQ(placeOfField(&Notification::text), text + sizeof(void *));
    EXPECT_EQ(sizeof(Notification), 2 * text + sizeof(void *));
    EXPECT_EQ(placeOfField(&AlertRequest::text), text);
    EXPECT_EQ(placeOfField(&AlertRequest::defaultButton), 2 * text);
    EXPECT_EQ(sizeof(AlertRequest), 3 * text);
    EXPECT_EQ(sizeof(NamedBundle), 2 * text);
    EXPECT_EQ(sizeof(LoadedBundle), text + sizeof(QJsonObject) + 3 * sizeof(void *));
    EXPECT_EQ(placeOfField(&LoadedBundles::problems), sizeof(std::vector<LoadedBundle>));
}

TEST(Abi, Controls_AreAsLargeAsTheyWere)
{
    EXPECT_EQ(sizeof(Slider), sizeof(QSlider) + 3 * sizeof(double) + 8); // the value, and what fills its word
    EXPECT_EQ(sizeof(RadioMatrix), sizeof(QWidget) + sizeof(void *) + sizeof(std::vector<void *>));
    EXPECT_EQ(sizeof(BundleGuard), 8 + 2 * sizeof(QString) + sizeof(void *)); // a number, and what fills its word
}

} // namespace
