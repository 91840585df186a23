// SPDX-License-Identifier: Apache-2.0
// A temporary folder that the print server's own user can pass, and processes that never outlive their test.
#pragma once

#include <QByteArray>
#include <QProcess>
#include <QString>
#include <QTemporaryDir>

#include <functional>

namespace systemtest
{

/// How long a step may take that is quick on a quiet machine. Waiting polls, so only failures take this long.
constexpr int patienceMs = 60000;
constexpr int pollMs = 20;

/// Asks until the answer is yes or the patience is at its end. \return the last answer.
bool waitUntil(const std::function<bool()> &condition, int timeoutMs = patienceMs);

/// Lets the kernel end the process when the test program ends, however that comes.
void dieWithTest(QProcess &process);
/// Ends a process: politely, then at once. Returns when it is gone.
void endProcess(QProcess &process);

QByteArray contentsOf(const QString &path);
/// \param mode permissions as chmod takes them. \return the file's path, null when it cannot be written.
QString writeFile(const QString &path, const QByteArray &contents, unsigned mode = 0644);

/// A new folder, removed in the end.
class PrivateFolder
{
public:
    PrivateFolder();

    bool isValid() const { return mFolder.isValid(); }
    QString path(const QString &name = {}) const { return name.isEmpty() ? mFolder.path() : mFolder.filePath(name); }
    /// Makes a folder inside. \return its path.
    QString makeFolder(const QString &name, unsigned mode = 0755) const;

private:
    QTemporaryDir mFolder;
};

} // namespace systemtest
