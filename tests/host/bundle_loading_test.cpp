// SPDX-License-Identifier: Apache-2.0
// Finding and loading bundles, good ones and deliberately broken ones.
#include "TestPrinter.h"

#include "tests/support/TextPrinting.h"

#include <QDir>
#include <QFile>

#include <pdekit/BundleLoading.h>

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

namespace
{

using namespace tapeprint;
using namespace tapeprint::job;
using namespace pdekit;

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

/// The plug-in of the tests in a folder of one's own.
struct OwnCopy {
    explicit OwnCopy(const QTemporaryDir &folder)
        : bundle(folder.filePath(u"HostTest.bundle"_qs)), module(bundle + u"/HostTest.so"_qs)
    {
        EXPECT_TRUE(QDir().mkpath(bundle));
        EXPECT_TRUE(QFile::copy(testFolder("good") + u"/HostTest.bundle/HostTest.so"_qs, module));
    }
    QString bundle;
    QString module;
};

/// While it lives, a file or folder has other rights.
class OpenToAll
{
public:
    OpenToAll(const QString &path, mode_t mode) : mPath(path.toUtf8())
    {
        struct stat status {
        };
        EXPECT_EQ(stat(mPath.constData(), &status), 0);
        mBefore = status.st_mode & 07777U;
        EXPECT_EQ(chmod(mPath.constData(), mode), 0);
    }
    ~OpenToAll() { chmod(mPath.constData(), mBefore); }
    OpenToAll(const OpenToAll &) = delete;
    OpenToAll &operator=(const OpenToAll &) = delete;

private:
    QByteArray mPath;
    mode_t mBefore = 0;
};

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
                    SkippedCase{"later", u"HostTestLaterInterface.bundle"_qs,
                                u"later version of the panel interface"_qs},
                    SkippedCase{"lying", u"HostTestLying.bundle"_qs, u"not what its metadata says"_qs},
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

TEST(Bundles, OfANameThatIsInUse_AreSaidToBeReplaced)
{
    const QTemporaryDir folder;
    const OwnCopy own(folder);
    const LoadedBundles loaded = loadedFor({folder.path(), testFolder("good")});
    ASSERT_EQ(loaded.bundles.size(), 1U);
    EXPECT_EQ(loaded.bundles.front().path, QFileInfo(own.bundle).canonicalFilePath());
    EXPECT_EQ(loaded.problems, QStringList{u"The plug-in "_qs + own.bundle + u" is used in place of "_qs +
                                           testFolder("good") + u"/HostTest.bundle."_qs});
    // Of another printer neither is used.
    EXPECT_TRUE(loadedForAnother({folder.path(), testFolder("good")}).problems.isEmpty());
}

TEST(Bundles, ThatEverybodyMayChange_AreNotUsed)
{
    const QTemporaryDir folder;
    const OwnCopy own(folder);
    ASSERT_EQ(loadedFor({folder.path()}).bundles.size(), 1U);
    for (const QString &path : {own.module, own.bundle, folder.path()}) {
        const OpenToAll open(path, 0777);
        const LoadedBundles loaded = loadedFor({folder.path()});
        EXPECT_TRUE(loaded.bundles.empty()) << path.toStdString();
        ASSERT_EQ(loaded.problems.size(), 1);
        EXPECT_TRUE(loaded.problems.first().contains(u"everybody may write to "_qs + path + u"."_qs))
            << loaded.problems.first().toStdString();
    }
    // Where each may change their own alone, as in /tmp.
    const OpenToAll shared(folder.path(), 01777);
    EXPECT_EQ(loadedFor({folder.path()}).bundles.size(), 1U);
}

TEST(Bundles, WhoseModuleIsALinkToWhereEverybodyMayWrite_AreNotUsed)
{
    const QTemporaryDir folder;
    const QTemporaryDir elsewhere;
    const OwnCopy own(folder);
    ASSERT_TRUE(QFile::rename(own.module, elsewhere.filePath(u"code.so"_qs)));
    ASSERT_TRUE(QFile::link(elsewhere.filePath(u"code.so"_qs), own.module));
    ASSERT_EQ(loadedFor({folder.path()}).bundles.size(), 1U);
    const OpenToAll open(elsewhere.path(), 0777);
    EXPECT_TRUE(loadedFor({folder.path()}).bundles.empty());
}

TEST(Bundles, OfSomebodyElse_AreNotUsed)
{
    if (geteuid() != 0) {
        GTEST_SKIP() << "Only root can give a file to somebody else";
    }
    constexpr uid_t somebody = 12345;
    const QTemporaryDir folder;
    const OwnCopy own(folder);
    for (const QString &path : {own.module, own.bundle, folder.path()}) {
        ASSERT_EQ(chown(path.toUtf8().constData(), somebody, 0), 0);
        const LoadedBundles loaded = loadedFor({folder.path()});
        ASSERT_EQ(chown(path.toUtf8().constData(), 0, 0), 0);
        EXPECT_TRUE(loaded.bundles.empty()) << path.toStdString();
        ASSERT_EQ(loaded.problems.size(), 1);
        EXPECT_TRUE(loaded.problems.first().contains(path + u" belongs to somebody else"_qs))
            << loaded.problems.first().toStdString();
    }
}

TEST(Bundles, ThatThrowWhileTheyStart_AreNamedWithTheirReason)
{
    for (const char *place : {"in its entry", "in its constructor", "in its initialisation"}) {
        qputenv("HOST_TEST_MISBEHAVES", QByteArray("throws ") + place);
        const LoadedBundles loaded = loadedFor({testFolder("misbehaving")});
        EXPECT_TRUE(loaded.bundles.empty()) << place;
        ASSERT_EQ(loaded.problems.size(), 1) << place;
        EXPECT_TRUE(loaded.problems.first().contains(u"HostTestMisbehaving.bundle is not used: it failed while it was "
                                                     "starting: no ink, today. Printing"_qs))
            << loaded.problems.first().toStdString();
    }
    qputenv("HOST_TEST_MISBEHAVES", "throws a number in its constructor");
    const LoadedBundles loaded = loadedFor({testFolder("misbehaving")});
    qunsetenv("HOST_TEST_MISBEHAVES");
    ASSERT_EQ(loaded.problems.size(), 1);
    EXPECT_TRUE(loaded.problems.first().contains(u"it failed while it was starting. Printing"_qs))
        << loaded.problems.first().toStdString();
    // It came back: that is no reason to leave it out the next time.
    EXPECT_EQ(loadedFor({testFolder("misbehaving")}).bundles.size(), 1U);
}

TEST(BundleSearchPath, BeginsWithTheVariablesFoldersAndEndsBesideTheLibrary)
{
    const QTemporaryDir data;
    QDir(data.path()).mkpath(u"tapeprint/bundles"_qs);
    qputenv("TAPEPRINT_PLUGIN_PATH", "/one::/two");
    qputenv("XDG_DATA_HOME", data.path().toUtf8());
    const QStringList folders = bundleSearchPath();
    qunsetenv("TAPEPRINT_PLUGIN_PATH");
    qunsetenv("XDG_DATA_HOME");
    ASSERT_GE(folders.size(), 6);
    EXPECT_EQ(folders.at(0), u"/one"_qs);
    EXPECT_EQ(folders.at(1), u"/two"_qs);
    EXPECT_EQ(folders.at(2), data.filePath(u"tapeprint/bundles"_qs));
    EXPECT_EQ(folders.at(folders.size() - 3), QStringLiteral(TAPEPRINT_BIN_DIR "/../bundles"));
    EXPECT_EQ(folders.at(folders.size() - 2), QStringLiteral(TAPEPRINT_BIN_DIR "/../lib/tapeprint/bundles"));
    // The library of the build stands in lib/ of the build.
    EXPECT_TRUE(QDir::cleanPath(folders.last()).endsWith(u"/lib/tapeprint/bundles"_qs)) << folders.last().toStdString();
}

} // namespace
