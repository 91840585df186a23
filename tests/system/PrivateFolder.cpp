// SPDX-License-Identifier: Apache-2.0
// Folders are made below /tmp and not in the build: a clone may lie where the print server's user cannot go.
#include "tests/system/PrivateFolder.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QThread>

#include <csignal>

#include <sys/prctl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace systemtest
{

namespace
{

constexpr int politeMs = 5000;

} // namespace

bool waitUntil(const std::function<bool()> &condition, int timeoutMs)
{
    QElapsedTimer time;
    time.start();
    while (!condition()) {
        if (time.hasExpired(timeoutMs)) {
            return condition();
        }
        QThread::msleep(pollMs);
    }
    return true;
}

void dieWithTest(QProcess &process)
{
    const pid_t test = getpid();
    process.setChildProcessModifier([test] {
        prctl(PR_SET_PDEATHSIG, SIGKILL);
        // The test may have ended before the line above.
        if (getppid() != test) {
            _exit(1);
        }
    });
}

void endProcess(QProcess &process)
{
    if (process.state() == QProcess::NotRunning) {
        return;
    }
    process.terminate();
    if (!process.waitForFinished(politeMs)) {
        process.kill();
        process.waitForFinished();
    }
}

QByteArray contentsOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QString writeFile(const QString &path, const QByteArray &contents, unsigned mode)
{
    QFile file(path);
    const bool written = file.open(QIODevice::WriteOnly) && file.write(contents) == contents.size() && file.flush() &&
                         chmod(QFile::encodeName(path).constData(), mode) == 0;
    return written ? path : QString();
}

PrivateFolder::PrivateFolder() : mFolder(QStringLiteral("/tmp/tapeprint-XXXXXX"))
{
    chmod(QFile::encodeName(mFolder.path()).constData(), 0755);
}

QString PrivateFolder::makeFolder(const QString &name, unsigned mode) const
{
    QDir(path()).mkpath(name);
    chmod(QFile::encodeName(path(name)).constData(), mode);
    return path(name);
}

} // namespace systemtest
