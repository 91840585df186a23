// SPDX-License-Identifier: Apache-2.0
// Where the printer's bytes are written without a queue: a file that appears whole or not at all, or a pipe or device.
#pragma once

#include "job/FileStamp.h"
#include "job/Problem.h"

#include <QByteArray>
#include <QString>

#include <atomic>
#include <memory>

namespace tapeprint::job
{

/// What the bytes are written to.
struct OutputTarget {
    QString path;                            ///< "-" is standard output
    bool mayReplace = true;                  ///< whether a file that stands there may be replaced
    FileStamps onlyRead = {};                ///< documents and descriptions: never written to, under whatever name
    const std::atomic<bool> *stop = nullptr; ///< looked at while a pipe is waited for
};

/// Whether a path stands for standard output: "-" and the names that the system gives it.
bool isStandardOutput(const QString &path);
/// How messages name an output.
QString outputName(const QString &path);

/// Whether the bytes may be written to a path at all. \param error takes a sentence when it leads to a file that is
/// only read.
bool mayWriteTo(const OutputTarget &target, Problem *error);

/// An output being written. Without commit() nothing has happened to a plain file, however this program ends. Pipes and
/// devices get the bytes as they come; whoever writes to a pipe ignores SIGPIPE.
class OutputFile
{
public:
    /// \param error takes a sentence on failure, here and below.
    static std::unique_ptr<OutputFile> open(const OutputTarget &target, Problem *error);
    virtual ~OutputFile() = default;
    OutputFile(const OutputFile &) = delete;
    OutputFile &operator=(const OutputFile &) = delete;

    virtual bool write(const QByteArray &bytes, Problem *error) = 0;
    /// Lets the file appear under its name, in one step, with the permissions of the file that it replaces.
    virtual bool commit(Problem *error) = 0;
    /// So many bytes were written.
    qint64 bytes() const { return mBytes; }

protected:
    OutputFile() = default;
    void count(qint64 bytes) { mBytes += bytes; }

private:
    qint64 mBytes = 0;
};

} // namespace tapeprint::job
