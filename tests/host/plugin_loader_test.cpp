// SPDX-License-Identifier: Apache-2.0
// Finding and loading bundles, good ones and deliberately broken ones.
#include "TestPrinter.h"

#include "dialog/PluginLoader.h"
#include "tests/support/TextPrinting.h"

#include <QDir>
#include <QFile>

#include <gtest/gtest.h>

namespace
{

using namespace tapeprint;
using namespace tapeprint::job;
using namespace tapeprint::dialog;

QString testFolder(const char *name)
{
    return QStringLiteral(HOST_TEST_BUNDLES "/") + QLatin1String(name);
}

/// A folder that is skipped: what its message says.
struct SkippedCase {
    const char *folder;
    QString bundle;
    QString reason;
};

class SkippedBundle : public testing::TestWithParam<SkippedCase>
{
};

TEST_P(SkippedBundle, IsNamedWithTheReason)
{
    const LoadedBundles loaded = loadBundles({testFolder(GetParam().folder)});
    EXPECT_TRUE(loaded.bundles.empty());
    ASSERT_EQ(loaded.problems.size(), 1);
    EXPECT_TRUE(loaded.problems.first().contains(GetParam().bundle)) << loaded.problems.first().toStdString();
    EXPECT_TRUE(loaded.problems.first().contains(GetParam().reason)) << loaded.problems.first().toStdString();
}

INSTANTIATE_TEST_SUITE_P(
    Table, SkippedBundle,
    testing::Values(SkippedCase{"interface", u"HostTestOtherInterface.bundle"_qs, u"PlugInEntry/99.0"_qs},
                    SkippedCase{"type", u"HostTestOtherType.bundle"_qs, u"does not serve printer panels"_qs},
                    SkippedCase{"class", u"HostTestNoClass.bundle"_qs, u"no principal class NobodyKnowsMe"_qs}));

TEST(Bundles, ThatServePrinterPanels_AreLoaded)
{
    const LoadedBundles loaded = loadBundles(hosttest::goodBundles());
    EXPECT_TRUE(loaded.problems.isEmpty()) << loaded.problems.join(u'\n').toStdString();
    ASSERT_EQ(loaded.bundles.size(), 1U);
    EXPECT_TRUE(loaded.bundles.front().path.endsWith(u"HostTest.bundle"_qs));
    EXPECT_NE(loaded.bundles.front().principal, nullptr);
}

TEST(Bundles, WhoseCodeIsNoModuleOrIsMissing_AreNamedAndTheOthersLoaded)
{
    const QTemporaryDir folder;
    QDir(folder.path()).mkpath(u"Text.bundle"_qs);
    QDir(folder.path()).mkpath(u"Empty.bundle"_qs);
    hosttest::writeFile(folder, u"Text.bundle/Text.so"_qs, "this is no module\n");
    const LoadedBundles loaded = loadBundles({folder.path(), testFolder("good")});
    EXPECT_EQ(loaded.bundles.size(), 1U);
    ASSERT_EQ(loaded.problems.size(), 2);
    EXPECT_TRUE(loaded.problems.at(0).contains(u"Empty.bundle"_qs));
    EXPECT_TRUE(loaded.problems.at(0).contains(u"no file Empty.so"_qs)) << loaded.problems.at(0).toStdString();
    EXPECT_TRUE(loaded.problems.at(1).contains(u"Text.bundle"_qs));
    EXPECT_TRUE(loaded.problems.at(1).contains(u"no plug-in"_qs)) << loaded.problems.at(1).toStdString();
}

TEST(Bundles, FoundTwice_AreUsedOnce)
{
    const QTemporaryDir folder;
    ASSERT_TRUE(QFile::link(testFolder("good"), folder.filePath(u"again"_qs)));
    const LoadedBundles loaded = loadBundles({testFolder("good"), testFolder("good"), folder.filePath(u"again"_qs)});
    EXPECT_EQ(loaded.bundles.size(), 1U);
    EXPECT_TRUE(loaded.problems.isEmpty());
}

TEST(Bundles, BrokenOnes_DoNotHideAGoodOneOfTheSameName)
{
    const QTemporaryDir folder;
    QDir(folder.path()).mkpath(u"HostTest.bundle"_qs);
    const LoadedBundles loaded = loadBundles({folder.path(), testFolder("good")});
    EXPECT_EQ(loaded.problems.size(), 1);
    ASSERT_EQ(loaded.bundles.size(), 1U);
    EXPECT_TRUE(loaded.bundles.front().path.startsWith(testFolder("good")));
}

TEST(BundleSearchPath, BeginsWithTheVariablesFoldersAndEndsBesideTheProgram)
{
    const QTemporaryDir data;
    QDir(data.path()).mkpath(u"tapeprint/bundles"_qs);
    qputenv("TAPEPRINT_PLUGIN_PATH", "/one::/two");
    qputenv("XDG_DATA_HOME", data.path().toUtf8());
    const QStringList folders = bundleSearchPath();
    qunsetenv("TAPEPRINT_PLUGIN_PATH");
    qunsetenv("XDG_DATA_HOME");
    ASSERT_GE(folders.size(), 5);
    EXPECT_EQ(folders.at(0), u"/one"_qs);
    EXPECT_EQ(folders.at(1), u"/two"_qs);
    EXPECT_EQ(folders.at(2), data.filePath(u"tapeprint/bundles"_qs));
    EXPECT_TRUE(folders.at(folders.size() - 2).endsWith(u"/../bundles"_qs));
    EXPECT_TRUE(folders.last().endsWith(u"/../lib/tapeprint/bundles"_qs));
}

} // namespace
