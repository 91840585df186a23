// SPDX-License-Identifier: Apache-2.0
// The dump of print settings: where it goes, that it is whole or not there, and that what it cannot write is left
// alone.
#include "TextPrinting.h"
#include "log/SettingsFile.h"
#include "pagesettings/Exports.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStringList>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <csignal>

#include <fcntl.h>
#include <sys/resource.h>
#include <unistd.h>

namespace
{

const QByteArray kOlder = "an older dump";

/// A folder of the test's own, with one path in it.
class SettingsFile : public testing::Test
{
protected:
    SettingsFile() { EXPECT_EQ(pdekit::PMSetFirstPage(&settings, 7, false), pdekit::kPMNoError); }

    QString path() const { return folder.filePath(QStringLiteral("dump.plist")); }
    QStringList entries() const
    {
        return QDir(folder.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden);
    }
    QByteArray content() const
    {
        QFile file(path());
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll();
    }
    void writeOlder() const
    {
        QFile file(path());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_EQ(file.write(kOlder), kOlder.size());
    }
    QByteArray representation() const
    {
        QByteArray data;
        EXPECT_EQ(pdekit::PMPrintSettingsCreateDataRepresentation(&settings, &data), pdekit::kPMNoError);
        EXPECT_FALSE(data.isEmpty());
        return data;
    }

    QTemporaryDir folder;
    pdekit::PrintSettings settings;
};

TEST_F(SettingsFile, Path_IsInTheRootDirectoryWithTheNameInIt)
{
    EXPECT_EQ(pdelog::settingsPath(QStringLiteral("save")), QStringLiteral("/KsPDE_save.plist"));
    EXPECT_EQ(pdelog::settingsPath(QStringLiteral("日本")), QStringLiteral("/KsPDE_日本.plist"));
}

TEST_F(SettingsFile, Settings_AreWrittenAsTheirRepresentationAndNothingBeside)
{
    pdelog::writeSettings(settings, path());
    EXPECT_EQ(content(), representation());
    EXPECT_EQ(entries(), QStringList(QStringLiteral("dump.plist")));
}

TEST_F(SettingsFile, OlderFile_IsReplacedInOneStep)
{
    writeOlder();
    // Who reads the older file goes on reading it.
    QFile reader(path());
    ASSERT_TRUE(reader.open(QIODevice::ReadOnly));
    pdelog::writeSettings(settings, path());
    EXPECT_EQ(reader.readAll(), kOlder);
    EXPECT_EQ(content(), representation());
}

TEST_F(SettingsFile, WriteThatFailsHalfWay_LeavesTheOlderFileAndNothingBeside)
{
    writeOlder();
    settings.values.insert(QStringLiteral("long"), QString(100'000, QLatin1Char('x')));
    // No file may grow beyond 4 KiB.
    rlimit before = {};
    ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &before), 0);
    const rlimit small = {4096, before.rlim_max};
    auto *const handler = std::signal(SIGXFSZ, SIG_IGN);
    ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &small), 0);
    pdelog::writeSettings(settings, path());
    ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &before), 0);
    std::signal(SIGXFSZ, handler);
    EXPECT_EQ(content(), kOlder);
    EXPECT_EQ(entries(), QStringList(QStringLiteral("dump.plist")));
}

TEST_F(SettingsFile, SettingsThatAreNoPropertyList_WriteNothing)
{
    settings.values.insert(QStringLiteral("nothing"), QVariant());
    pdelog::writeSettings(settings, path());
    EXPECT_EQ(entries(), QStringList());
    writeOlder();
    pdelog::writeSettings(settings, path());
    EXPECT_EQ(content(), kOlder);
}

TEST_F(SettingsFile, FolderThatIsNotThere_IsNotMade)
{
    pdelog::writeSettings(settings, folder.filePath(QStringLiteral("absent/dump.plist")));
    EXPECT_EQ(entries(), QStringList());
}

TEST_F(SettingsFile, PathOfAFolder_LeavesTheFolderAndNothingBeside)
{
    ASSERT_TRUE(QDir().mkdir(path()));
    pdelog::writeSettings(settings, path());
    EXPECT_TRUE(QFileInfo(path()).isDir());
    EXPECT_EQ(entries(), QStringList(QStringLiteral("dump.plist")));
}

/// A file name that no other run uses.
QByteArray uniqueName()
{
    return "unit_log_" + QByteArray::number(qlonglong(::getpid()));
}

QStringList dumpsInRoot()
{
    return QDir(QStringLiteral("/")).entryList({QStringLiteral("KsPDE_*")}, QDir::AllEntries | QDir::Hidden);
}

/// Without the rights of the superuser while it lives: the root directory cannot be written then.
class Unprivileged
{
public:
    Unprivileged() : mBefore(::geteuid())
    {
        if (mBefore == 0) {
            constexpr uid_t kNobody = 65534;
            EXPECT_EQ(::seteuid(kNobody), 0);
        }
    }
    ~Unprivileged() { EXPECT_EQ(::seteuid(mBefore), 0); }
    Unprivileged(const Unprivileged &) = delete;
    Unprivileged &operator=(const Unprivileged &) = delete;

private:
    uid_t mBefore;
};

/// The exported function, which writes to the root directory. The current folder is one that everybody may write to.
class SettingsToFile : public SettingsFile
{
protected:
    SettingsToFile() : mBefore(QDir::currentPath())
    {
        EXPECT_TRUE(QFile::setPermissions(folder.path(), QFileDevice::Permissions(0x7777)));
        EXPECT_TRUE(QDir::setCurrent(folder.path()));
    }
    ~SettingsToFile() override { QDir::setCurrent(mBefore); }
    SettingsToFile(const SettingsToFile &) = delete;
    SettingsToFile &operator=(const SettingsToFile &) = delete;

private:
    QString mBefore;
};

TEST_F(SettingsToFile, MissingArguments_WriteNothing)
{
    const QStringList before = dumpsInRoot();
    _PDELog_PMPrintSettings_WriteToFile(nullptr, uniqueName().constData());
    _PDELog_PMPrintSettings_WriteToFile(&settings, nullptr);
    EXPECT_EQ(dumpsInRoot(), before);
    EXPECT_EQ(entries(), QStringList());
}

TEST_F(SettingsToFile, Settings_LandInTheRootDirectory)
{
    if (::access("/", W_OK) != 0) {
        GTEST_SKIP() << "This user may not write to the root directory; SettingsFile tests the path and the writing";
    }
    const QString path = pdelog::settingsPath(QString::fromLatin1(uniqueName()));
    _PDELog_PMPrintSettings_WriteToFile(&settings, uniqueName().constData());
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll(), representation());
    EXPECT_TRUE(file.remove());
    EXPECT_EQ(entries(), QStringList());
}

TEST_F(SettingsToFile, RootDirectoryThatCannotBeWritten_GetsNothingAndNoOtherFolderInstead)
{
    const QStringList before = dumpsInRoot();
    const QStringList temporary = QDir::temp().entryList({QStringLiteral("KsPDE_*")}, QDir::AllEntries | QDir::Hidden);
    static QStringList lines;
    lines.clear();
    {
        const Unprivileged unprivileged;
        ASSERT_NE(::faccessat(AT_FDCWD, "/", W_OK, AT_EACCESS), 0) << "everybody may write to the root directory";
        const QtMessageHandler handler = qInstallMessageHandler(
            [](QtMsgType, const QMessageLogContext &, const QString &line) { lines.append(line); });
        _PDELog_PMPrintSettings_WriteToFile(&settings, uniqueName().constData());
        qInstallMessageHandler(handler);
    }
    EXPECT_EQ(dumpsInRoot(), before);
    EXPECT_EQ(entries(), QStringList());
    EXPECT_EQ(QDir::temp().entryList({QStringLiteral("KsPDE_*")}, QDir::AllEntries | QDir::Hidden), temporary);
    EXPECT_EQ(lines, QStringList());
}

TEST_F(SettingsToFile, NameInAFolderThatIsNotThere_MakesNeitherFolderNorFile)
{
    const QStringList before = dumpsInRoot();
    _PDELog_PMPrintSettings_WriteToFile(&settings, "no_such_directory/x");
    EXPECT_EQ(dumpsInRoot(), before);
    EXPECT_EQ(entries(), QStringList());
}

} // namespace
