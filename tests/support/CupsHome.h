// SPDX-License-Identifier: Apache-2.0
// A home and a machine's folder in which libcups, and who does as it does, finds a test's own saved options.
#pragma once

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QString>
#include <QTemporaryDir>

#include <utility>
#include <vector>

#include <gtest/gtest.h>
#include <unistd.h>

class CupsHome
{
public:
    CupsHome()
    {
        for (const char *name : {"HOME", "CUPS_SERVERROOT"}) {
            mBefore.emplace_back(name, qgetenv(name));
        }
        qputenv("HOME", mFolder.filePath(QStringLiteral("home")).toUtf8());
        qputenv("CUPS_SERVERROOT", mFolder.filePath(QStringLiteral("root")).toUtf8());
        QDir(mFolder.path()).mkdir(QStringLiteral("home"));
        QDir(mFolder.path()).mkdir(QStringLiteral("root"));
    }
    ~CupsHome()
    {
        for (const auto &[name, value] : mBefore) {
            value.isNull() ? qunsetenv(name) : qputenv(name, value);
        }
    }
    CupsHome(const CupsHome &) = delete;
    CupsHome &operator=(const CupsHome &) = delete;

    /// The file in which changes are made: root's are the machine's.
    QString ownPath() const { return path(getuid() == 0); }
    /// The file that is read as well.
    QString otherPath() const { return path(getuid() != 0); }

    static void write(const QString &path, const QByteArray &bytes)
    {
        QDir().mkpath(QFileInfo(path).path());
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
    }
    QByteArray written() const
    {
        QFile file(ownPath());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

private:
    QString path(bool isMachines) const
    {
        return mFolder.filePath(isMachines ? QStringLiteral("root/lpoptions") : QStringLiteral("home/.cups/lpoptions"));
    }

    QTemporaryDir mFolder;
    std::vector<std::pair<const char *, QByteArray>> mBefore;
};
