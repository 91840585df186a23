// SPDX-License-Identifier: Apache-2.0
// Opening PPD files. libcups answers null for a missing file and a broken one alike, so the file is looked at first.
#include "job/PpdFile.h"

#include "job/MemoryFile.h"
#include "job/PlainText.h"
#include "job/Reason.h"
#include "job/Texts.h"

#include <QFile>
#include <QFileInfo>
#include <QtEndian>

#include <array>
#include <memory>

#include <sys/types.h>

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
bool isCutOff(const QByteArray &bytes, const MemoryFile &file)
{
    constexpr qsizetype sizeBytes = 4;
    if (!bytes.startsWith("\x1f\x8b") || bytes.size() < sizeBytes) {
        return false;
    }
    const auto stated = qFromLittleEndian<quint32>(bytes.last(sizeBytes).constData());
    const std::unique_ptr<cups_file_t, CupsFileCloser> unpacked(cupsFileOpenFd(file.readingHandle(), "r"));
    std::array<char, 65536> piece{};
    quint32 size = 0; // as gzip counts: beyond four gigabytes it begins anew
    for (ssize_t read = 0; unpacked && (read = cupsFileRead(unpacked.get(), piece.data(), piece.size())) > 0;) {
        size += static_cast<quint32>(read);
    }
    return size != stated;
}

/// The bytes as a file, which is how libcups takes them; null when memory does not hold it.
std::unique_ptr<MemoryFile> fileOf(const QByteArray &bytes)
{
    auto file = std::make_unique<MemoryFile>(bytes.size());
    return file->isOpen() && file->append(bytes) ? std::move(file) : nullptr;
}

PpdFile parse(const QByteArray &bytes, const MemoryFile &file)
{
    PpdFile ppd(ppdOpenFd(file.readingHandle()), PpdCloser{bytes}); // closes the handle
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
    return openPpd(file.read(mostPpdBytes + 1), error, name);
}

PpdFile openPpd(const QByteArray &bytes, Problem *error, const QString &shownAs)
{
    const QString name = harmless(shownAs);
    if (bytes.size() > mostPpdBytes) {
        *error = {Problem::BadDescription,
                  Texts::tr("The PPD file %1 is too large for one: name a PPD file.").arg(name)};
        return nullptr;
    }
    const std::unique_ptr<MemoryFile> file = fileOf(bytes);
    if (file == nullptr) {
        *error = {
            Problem::BadDescription,
            Texts::tr("The PPD file %1 cannot be read (%2): name a readable PPD file.").arg(name, qt_error_string())};
        return nullptr;
    }
    if (isCutOff(bytes, *file)) {
        *error = {Problem::BadDescription,
                  Texts::tr("The PPD file %1 is cut off: its end is missing. Copy it anew.").arg(name)};
        return nullptr;
    }
    PpdFile ppd = parse(bytes, *file);
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
    const std::unique_ptr<MemoryFile> file = source.isEmpty() ? nullptr : fileOf(source);
    return file == nullptr ? nullptr : parse(source, *file);
}

} // namespace tapeprint::job
