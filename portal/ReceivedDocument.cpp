// SPDX-License-Identifier: Apache-2.0
// The descriptor is looked at a few times a second while nothing comes, so that the end of the call is noticed.
#include "portal/ReceivedDocument.h"

#include "job/Conversion.h"
#include "portal/PortalTexts.h"

#include <QFileInfo>
#include <QStorageInfo>

#include <cerrno>
#include <vector>

#include <fcntl.h>
#include <poll.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tapeprint::portal
{

namespace
{

job::Problem unreadable(const QString &reason)
{
    // The class by its whole name: lupdate finds no other for this text.
    return {job::Problem::BadDocument,
            tapeprint::portal::PortalTexts::tr(
                "The program's document cannot be read (%1): print it once more, or save it as a PDF and "
                "print that.")
                .arg(reason)};
}

constexpr std::size_t pieceBytes = 1 << 20;
constexpr int lookMs = 100;
/// The room that is left is asked for after each so many bytes.
constexpr qint64 roomStep = qint64{16} << 20;

bool canDeliver(int descriptor, job::Problem *problem)
{
    struct stat status {
    };
    if (descriptor < 0 || fstat(descriptor, &status) != 0) {
        *problem = unreadable(qt_error_string(descriptor < 0 ? EBADF : errno));
        return false;
    }
    // Devices such as /dev/zero have no end, folders no beginning.
    if (!S_ISREG(status.st_mode) && !S_ISFIFO(status.st_mode) && !S_ISSOCK(status.st_mode)) {
        *problem = unreadable(PortalTexts::tr("it is no file"));
        return false;
    }
    return true;
}

/// A program that has written its document and hands over the descriptor that it wrote by stands at the document's end.
void rewindFromEnd(int descriptor)
{
    struct stat status {
    };
    const bool isFile = fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode);
    if (isFile && lseek(descriptor, 0, SEEK_CUR) >= status.st_size) {
        lseek(descriptor, 0, SEEK_SET); // where that cannot be, reading will tell
    }
}

/// Waits until something can be read. \return false when nobody wants it any more.
bool waitForMore(int descriptor, const std::atomic<bool> &stop)
{
    pollfd looked{descriptor, POLLIN, 0};
    while (!stop) {
        if (poll(&looked, 1, lookMs) != 0) { // what is wrong with it, reading will tell
            return true;
        }
    }
    return false;
}

/// Reads once. \return how many bytes came, 0 at the end, -1 with errno on failure.
ssize_t readPiece(int descriptor, std::vector<char> &piece)
{
    ssize_t count = -1;
    do {
        count = read(descriptor, piece.data(), piece.size());
    } while (count < 0 && errno == EINTR);
    return count;
}

bool hasRoom(const QString &path, qint64 bytes, const ReceiveLimits &limits)
{
    return bytes % roomStep >= static_cast<qint64>(pieceBytes) ||
           QStorageInfo(QFileInfo(path).path()).bytesAvailable() > limits.keptFree;
}

bool fillFrom(int descriptor, job::PrivateFile &file, const ReceiveLimits &limits, const std::atomic<bool> &stop,
              job::Problem *problem)
{
    std::vector<char> piece(pieceBytes);
    qint64 bytes = 0;
    while (waitForMore(descriptor, stop)) {
        const ssize_t count = readPiece(descriptor, piece);
        if (count < 0 && (errno == EAGAIN || errno == EWOULDBLOCK)) {
            continue;
        }
        if (count < 0) {
            *problem = unreadable(qt_error_string(errno));
            return false;
        }
        if (count == 0) {
            if (bytes == 0) {
                *problem = unreadable(PortalTexts::tr("it is empty"));
            }
            return bytes > 0;
        }
        bytes += count;
        QString reason = PortalTexts::tr("it is too large");
        const bool isKept = bytes <= limits.most && hasRoom(file.path(), bytes, limits) &&
                            file.fill(QByteArray::fromRawData(piece.data(), count), &reason);
        if (!isKept) {
            *problem = bytes > limits.most ? unreadable(reason) : job::noRoomForTemporaryFiles(reason);
            return false;
        }
    }
    return false;
}

} // namespace

std::shared_ptr<job::PrivateFile> receiveDocument(int descriptor, const ReceiveLimits &limits,
                                                  const std::atomic<bool> &stop, job::Problem *problem)
{
    if (!canDeliver(descriptor, problem)) {
        return nullptr;
    }
    QString reason;
    // Without an ending: what it is, its first bytes say.
    std::shared_ptr<job::PrivateFile> file = job::PrivateFile::create(QStringLiteral("document"), &reason);
    if (!file) {
        *problem = job::noRoomForTemporaryFiles(reason);
        return nullptr;
    }
    rewindFromEnd(descriptor);
    return fillFrom(descriptor, *file, limits, stop, problem) ? file : nullptr;
}

void ReceivedDocument::receive(const QDBusUnixFileDescriptor &descriptor)
{
    // The copy keeps the descriptor open until the thread is done with it.
    mReading.start([this, descriptor](const std::atomic<bool> &stop) -> dialog::BackgroundWork::Delivery {
        job::Problem problem;
        std::shared_ptr<job::PrivateFile> file =
            receiveDocument(descriptor.fileDescriptor(), ReceiveLimits(), stop, &problem);
        return [this, file = std::move(file), problem] {
            mFile = file;
            if (mFile) {
                Q_EMIT arrived();
            } else {
                Q_EMIT failed(problem);
            }
        };
    });
}

} // namespace tapeprint::portal
