// SPDX-License-Identifier: Apache-2.0
// A file that stands in memory alone, for libraries that fill or read nothing but files.
#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace tapeprint::job
{

/// Goes with this object, and with the program in any case. Nobody else can open it.
class MemoryFile
{
public:
    /// \param most bytes that it takes; what goes beyond them is refused. Without room for a file isOpen() is false,
    /// and errno says why.
    explicit MemoryFile(qint64 most);
    ~MemoryFile();
    MemoryFile(const MemoryFile &) = delete;
    MemoryFile &operator=(const MemoryFile &) = delete;

    bool isOpen() const { return mHandle >= 0; }
    /// For writing, one piece after the other. Stays this object's.
    int handle() const { return mHandle; }
    /// Writes bytes after those that are there. \return whether they were all taken.
    bool append(const QByteArray &bytes) const;
    /// How many bytes were written.
    qint64 size() const;
    /// All that was written; nothing when it cannot be read.
    std::optional<QByteArray> contents() const;
    /// A handle of the caller's own, to read from the beginning what was written so far; -1 when the system has none.
    /// Nothing is to be written after it was asked for.
    int readingHandle() const;

private:
    /// The file ends where writing did.
    bool end() const;

    int mHandle;
};

} // namespace tapeprint::job
