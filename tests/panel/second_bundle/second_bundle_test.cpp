// SPDX-License-Identifier: Apache-2.0
// The second bundle, loaded as a dialog loads it: metadata first, then the module, then a panel that sends its choice.
#include "TextPrinting.h"

#include <pdekit/Bundle.h>
#include <pdekit/PlugIn.h>

#include <QCheckBox>
#include <QJsonArray>
#include <QJsonObject>
#include <QPluginLoader>
#include <QTest>

#include <gtest/gtest.h>

using namespace pdekit;

namespace
{

/// Takes every choice and keeps a list of them.
class RecordingCallback : public PanelCallback
{
public:
    PMPrintSession printSession() override { return nullptr; }
    PMPrintSettings printSettings() override { return nullptr; }
    PMPageFormat pageFormat() override { return nullptr; }
    Printer *PMPrinter() override { return nullptr; }
    ppd_file_t *ppdFile() override { return nullptr; }
    bool willChangePPDOptionKeyValue(const QString &key, const QString &choice) override
    {
        choices.append(key + QLatin1Char('=') + choice);
        return true;
    }

    QStringList choices;
};

class SecondBundleTest : public testing::Test
{
protected:
    void SetUp() override
    {
        auto *entry = qobject_cast<PlugInEntry *>(loader.instance());
        ASSERT_NE(entry, nullptr) << loader.errorString().toStdString();
        plugIn = entry->newPrincipalObject(QStringLiteral("SecondPlugIn"));
        ASSERT_NE(plugIn, nullptr);
        EXPECT_EQ(entry->newPrincipalObject(QStringLiteral("FirstPlugIn")), nullptr);
        ASSERT_TRUE(plugIn->initWithBundle(bundle.get()));
    }

    QPluginLoader loader{QStringLiteral(SECOND_BUNDLE "/SecondPanel.so")};
    std::shared_ptr<Bundle> bundle = Bundle::bundleWithPath(QStringLiteral(SECOND_BUNDLE));
    std::shared_ptr<RecordingCallback> callback = std::make_shared<RecordingCallback>();
    std::unique_ptr<PlugIn> plugIn;
};

TEST_F(SecondBundleTest, Metadata_NamesPrincipalClassAndPanelTypes)
{
    const QJsonObject all = loader.metaData();
    EXPECT_EQ(all.value(QLatin1String("IID")).toString(), QStringLiteral(PDEKIT_PLUGIN_IID));
    const QJsonObject metadata = all.value(QLatin1String("MetaData")).toObject();
    EXPECT_EQ(metadata.value(QLatin1String("PrincipalClass")).toString(), QStringLiteral("SecondPlugIn"));
    EXPECT_EQ(metadata.value(QLatin1String("PanelTypes")).toArray(), QJsonArray{kPrinterModulePanelType});
}

TEST_F(SecondBundleTest, OtherPanelTypes_HaveNoPanels)
{
    const PanelArray *panels = plugIn->PDEPanelsForType(QStringLiteral("another type"), callback);
    ASSERT_NE(panels, nullptr);
    EXPECT_TRUE(panels->empty());
}

TEST_F(SecondBundleTest, CheckBox_SendsOneChoiceForEachClick)
{
    const PanelArray *panels = plugIn->PDEPanelsForType(kPrinterModulePanelType, callback);
    ASSERT_NE(panels, nullptr);
    ASSERT_EQ(panels->size(), 1U);
    QWidget *view = panels->front()->panelView();
    ASSERT_NE(view, nullptr);
    panels->front()->willShow();
    view->show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(view));
    auto *checkBox = view->findChild<QCheckBox *>();
    ASSERT_NE(checkBox, nullptr);
    EXPECT_TRUE(callback->choices.isEmpty());
    QTest::mouseClick(view->windowHandle(), Qt::LeftButton, Qt::NoModifier,
                      checkBox->mapTo(view, QPoint(8, checkBox->height() / 2)));
    QTest::mouseClick(view->windowHandle(), Qt::LeftButton, Qt::NoModifier,
                      checkBox->mapTo(view, QPoint(8, checkBox->height() / 2)));
    EXPECT_EQ(callback->choices, (QStringList{QStringLiteral("AutoCut=True"), QStringLiteral("AutoCut=False")}));
}

TEST_F(SecondBundleTest, View_MayGoBeforeThePanel)
{
    const PanelArray *panels = plugIn->PDEPanelsForType(kPrinterModulePanelType, callback);
    ASSERT_NE(panels, nullptr);
    const std::shared_ptr<Panel> panel = panels->front();
    delete panel->panelView();
    EXPECT_EQ(panel->summaryInfo(), std::nullopt);
    panel->PPDOptionKeyValueDidChange(QStringLiteral("AutoCut"), QStringLiteral("True"));
    EXPECT_NE(panel->panelView(), nullptr);
}

} // namespace
