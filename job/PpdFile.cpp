// SPDX-License-Identifier: Apache-2.0
// Opening PPD files. libcups answers null for a missing file and a broken one alike, so the file is looked at first.
#include "job/PpdFile.h"

#include "job/PlainText.h"
#include "job/Reason.h"
#include "job/Texts.h"

#include <QFile>
#include <QFileInfo>
#include <QtEndian>

#include <array>
#include <memory>
#include <utility>

#include <sys/mman.h>
#include <sys/types.h>
#include <unistd.h>

#include <cups/file.h>

namespace tapeprint::job
{

namespace
{

struct CupsFileCloser {
    void operator()(cups_file_t *file) const { cupsFileClose(file); }
};

/// Whether a compressed file ends too early: libcups then reads what there is, and says nothing. Gzip (RFC 1952) writes
/// the size of what it packed into the last four bytes, lowest first.
bool isCutOff(const QString &path)
{
    constexpr qint64 sizeBytes = 4;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly) || file.read(2) != QByteArray("\x1f\x8b") ||
        !file.seek(file.size() - sizeBytes)) {
        return false;
    }
    const auto stated = qFromLittleEndian<quint32>(file.read(sizeBytes).constData());
    const std::unique_ptr<cups_file_t, CupsFileCloser> unpacked(cupsFileOpen(QFile::encodeName(path).constData(), "r"));
    std::array<char, 65536> piece{};
    quint32 bytes = 0; // as gzip counts: beyond four gigabytes it begins anew
    for (ssize_t size = 0; unpacked && (size = cupsFileRead(unpacked.get(), piece.data(), piece.size())) > 0;) {
        bytes += static_cast<quint32>(size);
    }
    return bytes != stated;
}

/// Nothing of this size describes a printer: it is not read into memory.
constexpr qint64 mostBytes = qint64{64} << 20;

/// Parses bytes as libcups parses a file, by a file that stands in memory alone.
PpdFile parse(const QByteArray &bytes)
{
    const int memory = memfd_create("ppd", MFD_CLOEXEC);
    QFile file;
    if (memory < 0 || !file.open(memory, QIODevice::WriteOnly, QFileDevice::DontCloseHandle) ||
        file.write(bytes) != bytes.size() || !file.flush() || lseek(memory, 0, SEEK_SET) != 0) {
        if (memory >= 0) {
            ::close(memory);
        }
        return nullptr;
    }
    file.close();
    PpdFile ppd(ppdOpenFd(memory), PpdCloser{bytes}); // closes the file
    if (ppd) {
        ppdMarkDefaults(ppd.get());
    }
    return ppd;
}

} // namespace

PpdFile openPpdFile(const QString &path, Problem *error, const QString &shownAs)
{
    const QString name = harmless(shownAs.isNull() ? path : shownAs);
    const QFileInfo info(path);
    QFile file(path);
    // A description is read more than once, which no pipe stands.
    if (info.isDir() || (info.exists() && !info.isFile()) || !file.open(QIODevice::ReadOnly)) {
        const QString reason = info.isDir()                      ? Texts::tr("it is a folder")
                               : info.exists() && !info.isFile() ? Texts::tr("it is a pipe or a device")
                                                                 : file.errorString();
        *error = {Problem::BadDescription,
                  Texts::tr("The PPD file %1 cannot be read (%2): name a readable PPD file.").arg(name, reason)};
        return nullptr;
    }
    const QByteArray bytes = file.read(mostBytes + 1);
    if (bytes.size() > mostBytes) {
        *error = {Problem::BadDescription,
                  Texts::tr("The PPD file %1 is too large for one: name a PPD file.").arg(name)};
        return nullptr;
    }
    file.close();
    if (isCutOff(path)) {
        *error = {Problem::BadDescription,
                  Texts::tr("The PPD file %1 is cut off: its end is missing. Copy it anew.").arg(name)};
        return nullptr;
    }

    PpdFile ppd = parse(bytes);
    if (!ppd) {
        int line = 0;
        const ppd_status_t status = ppdLastError(&line);
        *error = {Problem::BadDescription,
                  Texts::tr("The PPD file %1 is not valid, line %2: %3. Correct the file or name another.")
                      .arg(name, QString::number(line), reasonText(QString::fromUtf8(ppdErrorString(status))))};
    }
    return ppd;
}

PpdFile freshCopy(const PpdFile &ppd)
{
    const QByteArray &source = ppd.get_deleter().source;
    return source.isEmpty() ? nullptr : parse(source);
}

} // namespace tapeprint::job
