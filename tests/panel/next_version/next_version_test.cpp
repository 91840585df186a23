// SPDX-License-Identifier: Apache-2.0
// A panel that was built against the version before goes on working with the next one.
#include "RecordingCallback.h"

#include <pdekit/BundleLoading.h>
#include <pdekit/Version.h>

#include <QFileInfo>
#include <QPluginLoader>

#include <gtest/gtest.h>

namespace
{

const QString bundles = QStringLiteral(TAPEPRINT_BUNDLE_DIR);

TEST(NextVersion, LoadsAPanelOfTheVersionBefore)
{
    const QPluginLoader module(bundles + u"/PageSettings.bundle/PageSettings.so"_qs);
    // What is tried is another version: its identifier is not the bundle's.
    ASSERT_NE(module.metaData().value(u"IID").toString(), QStringLiteral(PDEKIT_PLUGIN_IID));

    const auto callback = std::make_shared<RecordingCallback>(PpdText::withEveryOption().open());
    callback->usePaper("24mm");
    const pdekit::LoadedBundles loaded = pdekit::loadBundles({bundles}, callback->ppdFile());
    EXPECT_TRUE(loaded.problems.isEmpty()) << loaded.problems.join(u'\n').toStdString();
    ASSERT_EQ(loaded.bundles.size(), 1U);
    const pdekit::PanelArray *panels =
        loaded.bundles.front().principal->PDEPanelsForType(pdekit::kPrinterModulePanelType, callback);
    ASSERT_NE(panels, nullptr);
    ASSERT_EQ(panels->size(), 1U);
    ASSERT_NE(panels->front()->panelView(), nullptr);
    panels->front()->willShow();
    EXPECT_TRUE(panels->front()->saveValuesAndReturnError(nullptr));
    EXPECT_FALSE(callback->lastSent(u"KsMargin"_qs).isNull());
}

} // namespace
