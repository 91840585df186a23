// SPDX-License-Identifier: Apache-2.0
// Linux's memfd: a file without a name.
#include "job/MemoryFile.h"

#include <QFile>

#include <fcntl.h>
#include <sys/mman.h>
#include <unistd.h>

namespace tapeprint::job
{

MemoryFile::MemoryFile(qint64 most) : mHandle(memfd_create("tapeprint", MFD_CLOEXEC | MFD_ALLOW_SEALING))
{
    // As large as it may become, and sealed against growing: no page of it takes memory before it is written.
    if (isOpen() && (ftruncate(mHandle, most) != 0 || fcntl(mHandle, F_ADD_SEALS, F_SEAL_GROW) != 0)) {
        ::close(mHandle);
        mHandle = -1;
    }
}

MemoryFile::~MemoryFile()
{
    if (isOpen()) {
        ::close(mHandle);
    }
}

bool MemoryFile::append(const QByteArray &bytes) const
{
    QFile file;
    return file.open(mHandle, QIODevice::WriteOnly | QIODevice::Unbuffered, QFileDevice::DontCloseHandle) &&
           file.write(bytes) == bytes.size();
}

qint64 MemoryFile::size() const
{
    return lseek(mHandle, 0, SEEK_CUR);
}

bool MemoryFile::end() const
{
    const qint64 written = size();
    return written >= 0 && ftruncate(mHandle, written) == 0;
}

std::optional<QByteArray> MemoryFile::contents() const
{
    QFile file;
    if (!file.open(readingHandle(), QIODevice::ReadOnly, QFileDevice::AutoCloseHandle)) {
        return std::nullopt;
    }
    QByteArray bytes = file.readAll();
    return bytes.size() == file.size() ? std::optional(std::move(bytes)) : std::nullopt;
}

int MemoryFile::readingHandle() const
{
    // Opened anew: a copy of the handle would move the place that is written at.
    const QByteArray place = "/proc/self/fd/" + QByteArray::number(mHandle);
    return end() ? ::open(place.constData(), O_RDONLY | O_CLOEXEC) : -1;
}

} // namespace tapeprint::job
