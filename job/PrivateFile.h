// SPDX-License-Identifier: Apache-2.0
// Temporary files that nobody but the person can read, and that go when the program does, by whatever way.
#pragma once

#include <QByteArray>
#include <QFile>
#include <QString>

#include <memory>

namespace tapeprint::job
{

/// The folder for temporary files, as TMPDIR names it, whether it is there or not. (QDir::tempPath() answers "/" where
/// it is not.)
QString temporaryFolder();

/// A file in a folder of this process alone (mode 0700; the file's is 0600), below the folder for temporary files.
/// Removed with this object; with the program in any case, also when that is killed.
class PrivateFile
{
public:
    /// \param name the file's name without folders, which filters may see and look at for its ending.
    /// \param error takes what the system says, for a sentence of the caller's.
    static std::unique_ptr<PrivateFile> create(const QString &name, QString *error);
    /// The same without a name, for what this program alone reads: nothing of it can be left behind, so no helper
    /// process has to be started that sees to that. Where files without names cannot be had, it is one with the name
    /// given.
    static std::unique_ptr<PrivateFile> createUnnamed(const QString &otherwise, QString *error);
    ~PrivateFile();
    PrivateFile(const PrivateFile &) = delete;
    PrivateFile &operator=(const PrivateFile &) = delete;

    /// Absolute. That of a file without a name leads to it in this process alone.
    QString path() const { return mPath; }
    /// Open for writing.
    QFile &file() { return mFile; }
    /// Writes everything that is to be in the file. \return false, and what the system says, when it does not fit.
    bool fill(const QByteArray &bytes, QString *error);

private:
    explicit PrivateFile(const QString &path) : mPath(path), mFile(path) {}

    QString mPath;
    QFile mFile;
    bool mHasName = true;
};

} // namespace tapeprint::job
