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

/// The bundles of some folders for the test printer. \param more lines added to its PPD.
LoadedBundles loadedFor(const QStringList &folders, const QByteArray &more = {})
{
    const QTemporaryDir folder;
    return loadBundles(folders, hosttest::testDestination(folder, more).ppd.get());
}

/// A printer with nothing that a bundle of the tests claims.
LoadedBundles loadedForAnother(const QStringList &folders, const QByteArray &more = {})
{
    const QTemporaryDir folder;
    const QString path =
        hosttest::writeFile(folder, u"other.ppd"_qs, hosttest::testPpd(more).replace("KsMargin", "Margin"));
    Problem error;
    return loadBundles(folders, openPpdFile(path, &error).get());
}

QByteArray extension(const QString &value)
{
    return "*APDialogExtension: \"" + value.toUtf8() + "\"\n";
}

QStringList namesOf(const LoadedBundles &loaded)
{
    QStringList names;
    for (const LoadedBundle &bundle : loaded.bundles) {
        names.append(bundle.path.section(u'/', -1));
    }
    return names;
}

/// Whether a module's code is in this process.
bool isMapped(const char *module)
{
    QFile maps(u"/proc/self/maps"_qs);
    EXPECT_TRUE(maps.open(QIODevice::ReadOnly));
    return maps.readAll().contains(module);
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

TEST_P(SkippedBundle, OfAPrinterThatItClaims_IsNamedWithTheReason)
{
    const LoadedBundles loaded = loadedFor({testFolder(GetParam().folder)});
    EXPECT_TRUE(loaded.bundles.empty());
    ASSERT_EQ(loaded.problems.size(), 1);
    EXPECT_TRUE(loaded.problems.first().contains(GetParam().bundle)) << loaded.problems.first().toStdString();
    EXPECT_TRUE(loaded.problems.first().contains(GetParam().reason)) << loaded.problems.first().toStdString();
}

TEST_P(SkippedBundle, OfAnotherPrinter_IsNoConcern)
{
    const LoadedBundles loaded = loadedForAnother({testFolder(GetParam().folder)});
    EXPECT_TRUE(loaded.bundles.empty());
    EXPECT_TRUE(loaded.problems.isEmpty()) << loaded.problems.join(u'\n').toStdString();
}

INSTANTIATE_TEST_SUITE_P(
    Table, SkippedBundle,
    testing::Values(SkippedCase{"interface", u"HostTestOtherInterface.bundle"_qs, u"PlugInEntry/99.0"_qs},
                    SkippedCase{"type", u"HostTestOtherType.bundle"_qs, u"does not serve printer panels"_qs},
                    SkippedCase{"class", u"HostTestNoClass.bundle"_qs, u"no principal class NobodyKnowsMe"_qs}));

TEST(Bundles, ThatClaimAnOptionOfThePrinter_AreLoaded)
{
    const LoadedBundles loaded = loadedFor(hosttest::goodBundles());
    EXPECT_TRUE(loaded.problems.isEmpty()) << loaded.problems.join(u'\n').toStdString();
    ASSERT_EQ(namesOf(loaded), QStringList{u"HostTest.bundle"_qs});
    EXPECT_NE(loaded.bundles.front().principal, nullptr);
}

TEST(Bundles, ThatClaimAnAttributeOfThePrinter_AreLoaded)
{
    EXPECT_TRUE(loadedForAnother(hosttest::goodBundles()).bundles.empty());
    EXPECT_EQ(namesOf(loadedForAnother(hosttest::goodBundles(), "*HostTestFamily: \"A\"\n")),
              QStringList{u"HostTest.bundle"_qs});
}

TEST(Bundles, ThatClaimNothing_AreNeitherLoadedNorNamed)
{
    const LoadedBundles loaded = loadedFor({testFolder("unclaiming")});
    EXPECT_TRUE(loaded.bundles.empty());
    EXPECT_TRUE(loaded.problems.isEmpty()) << loaded.problems.join(u'\n').toStdString();
    EXPECT_FALSE(isMapped("HostTestStranger.so"));
}

TEST(Bundles, WithoutAPpd_AreNotLoaded)
{
    const LoadedBundles loaded = loadBundles({hosttest::goodBundles().first(), testFolder("type")}, nullptr);
    EXPECT_TRUE(loaded.bundles.empty());
    EXPECT_TRUE(loaded.problems.isEmpty());
}

TEST(Bundles, ThatThePpdNames_AreLoadedWhereverTheSearchPathHoldsThem)
{
    const QStringList named{u"HostTestNamed.bundle"_qs};
    for (const QString &value : {u"HostTestNamed.bundle"_qs, u"/Library/Printers/X/HostTestNamed.bundle"_qs,
                                 u"/nowhere/../HostTestNamed.bundle/"_qs, u" ../../HostTestNamed.bundle "_qs}) {
        const LoadedBundles loaded = loadedFor({testFolder("unclaiming")}, extension(value));
        EXPECT_EQ(namesOf(loaded), named) << value.toStdString();
        EXPECT_TRUE(loaded.problems.isEmpty()) << loaded.problems.join(u'\n').toStdString();
    }
    // Each of several counts, beside those that claim the printer, and once.
    const QByteArray several = extension(u"/a/HostTestNamed.bundle"_qs) + extension(u"HostTest.bundle"_qs) +
                               extension(u"/b/HostTestNamed.bundle"_qs);
    EXPECT_EQ(namesOf(loadedForAnother({testFolder("good"), testFolder("unclaiming")}, several)),
              (QStringList{u"HostTest.bundle"_qs} + named));
    EXPECT_FALSE(isMapped("HostTestStranger.so"));
}

TEST(Bundles, ThatThePpdNamesByAPathInsideTheSearchPath_AreLoadedFromThere)
{
    const QTemporaryDir folder;
    const QTemporaryDir elsewhere;
    ASSERT_TRUE(QDir(folder.path()).mkpath(u"maker/Deep.bundle"_qs));
    ASSERT_TRUE(QFile::copy(testFolder("unclaiming") + u"/HostTestNamed.bundle/HostTestNamed.so"_qs,
                            folder.filePath(u"maker/Deep.bundle/Deep.so"_qs)));
    const QString deep = folder.filePath(u"maker/Deep.bundle"_qs);
    EXPECT_EQ(namesOf(loadedFor({folder.path()}, extension(deep))), QStringList{u"Deep.bundle"_qs});
    EXPECT_TRUE(loadedFor({folder.path()}).bundles.empty());

    // The same place spelled through another folder, or reached by a link that leads out, is none inside.
    EXPECT_TRUE(loadedFor({elsewhere.path()}, extension(deep)).bundles.empty());
    EXPECT_TRUE(loadedFor({elsewhere.path()}, extension(elsewhere.path() + u"/../"_qs +
                                                        QFileInfo(folder.path()).fileName() + u"/maker/Deep.bundle"_qs))
                    .bundles.empty());
    ASSERT_TRUE(QFile::link(folder.filePath(u"maker"_qs), elsewhere.filePath(u"maker"_qs)));
    const LoadedBundles linked = loadedFor({elsewhere.path()}, extension(elsewhere.filePath(u"maker/Deep.bundle"_qs)));
    EXPECT_TRUE(linked.bundles.empty());
    ASSERT_EQ(linked.problems.size(), 1);
    EXPECT_TRUE(linked.problems.first().contains(u"Deep.bundle, which is not installed"_qs))
        << linked.problems.first().toStdString();
}

TEST(Bundles, ThatThePpdNamesAndNobodyHas_AreSaidOnce)
{
    const LoadedBundles loaded =
        loadedFor({testFolder("unclaiming")}, extension(u"/a/None.bundle"_qs) + extension(u"/b/None.bundle"_qs));
    EXPECT_TRUE(loaded.bundles.empty());
    ASSERT_EQ(loaded.problems.size(), 1);
    EXPECT_TRUE(loaded.problems.first().contains(u"None.bundle, which is not installed"_qs))
        << loaded.problems.first().toStdString();
}

TEST(Bundles, NamesThatAreNone_AreNoConcern)
{
    // A line of a PPD holds 255 characters, a value as many lines as there are.
    const QString longName = (QString(99, u'x') + u'\n').repeated(100) + u".bundle"_qs;
    for (const QString &value : {u""_qs, u".."_qs, u"/"_qs, u".bundle"_qs, u"/a/.bundle"_qs, u"*"_qs, u"Host*"_qs,
                                 u"/Library/Printers/X/Other.plugin"_qs, longName}) {
        const LoadedBundles loaded = loadedFor({testFolder("unclaiming")}, extension(value));
        EXPECT_TRUE(loaded.bundles.empty()) << value.left(40).toStdString();
        EXPECT_TRUE(loaded.problems.isEmpty()) << loaded.problems.join(u'\n').toStdString();
    }
    // A name is compared, never a pattern, and quotes belong to it.
    for (const QString &value : {u"HostTest*.bundle"_qs, u"'HostTestNamed.bundle"_qs}) {
        EXPECT_TRUE(loadedFor({testFolder("unclaiming")}, extension(value)).bundles.empty()) << value.toStdString();
    }
}

TEST(Bundles, WhoseCodeIsNoModuleOrIsMissing_AreNamedForAPrinterThatNamesThem)
{
    const QTemporaryDir folder;
    QDir(folder.path()).mkpath(u"Text.bundle"_qs);
    QDir(folder.path()).mkpath(u"Empty.bundle"_qs);
    hosttest::writeFile(folder, u"Text.bundle/Text.so"_qs, "this is no module\n");
    const LoadedBundles loaded =
        loadedFor({folder.path(), testFolder("good")}, extension(u"Text.bundle"_qs) + extension(u"Empty.bundle"_qs));
    EXPECT_EQ(loaded.bundles.size(), 1U);
    ASSERT_EQ(loaded.problems.size(), 2);
    EXPECT_TRUE(loaded.problems.at(0).contains(u"Empty.bundle"_qs));
    EXPECT_TRUE(loaded.problems.at(0).contains(u"no file Empty.so"_qs)) << loaded.problems.at(0).toStdString();
    EXPECT_TRUE(loaded.problems.at(1).contains(u"Text.bundle"_qs));
    EXPECT_TRUE(loaded.problems.at(1).contains(u"no plug-in"_qs)) << loaded.problems.at(1).toStdString();
    // What they would claim is unknown: printers that do not ask for them are not told.
    EXPECT_TRUE(loadedFor({folder.path()}).problems.isEmpty());
}

TEST(Bundles, FoundTwice_AreUsedOnce)
{
    const QTemporaryDir folder;
    ASSERT_TRUE(QFile::link(testFolder("good"), folder.filePath(u"again"_qs)));
    const LoadedBundles loaded = loadedFor({testFolder("good"), testFolder("good"), folder.filePath(u"again"_qs)},
                                           extension(testFolder("good") + u"/HostTest.bundle"_qs));
    EXPECT_EQ(loaded.bundles.size(), 1U);
    EXPECT_TRUE(loaded.problems.isEmpty());
}

TEST(Bundles, BrokenOnes_DoNotHideAGoodOneOfTheSameName)
{
    const QTemporaryDir folder;
    QDir(folder.path()).mkpath(u"HostTest.bundle"_qs);
    const LoadedBundles loaded = loadedFor({folder.path(), testFolder("good")}, extension(u"HostTest.bundle"_qs));
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
