// SPDX-License-Identifier: Apache-2.0
// One file in memory for every input of a target that opens a file by its name, as the dialog does.
#pragma once

#include "fuzz/Invariants.h"

#include <QByteArray>
#include <QString>

#include <sys/mman.h>
#include <unistd.h>

namespace fuzz
{

class MemoryFile
{
public:
    MemoryFile() : mFile(memfd_create("fuzz", MFD_CLOEXEC)) { require(mFile >= 0); }
    ~MemoryFile() { close(mFile); }
    MemoryFile(const MemoryFile &) = delete;
    MemoryFile &operator=(const MemoryFile &) = delete;

    /// Replaces what is in it. \return its path, good as long as the file lives.
    QString hold(const std::uint8_t *data, std::size_t size) const
    {
        require(ftruncate(mFile, 0) == 0);
        require(pwrite(mFile, data, size, 0) == static_cast<ssize_t>(size));
        return path();
    }
    QString path() const { return QStringLiteral("/proc/self/fd/%1").arg(mFile); }

private:
    int mFile;
};

} // namespace fuzz
