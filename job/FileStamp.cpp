// SPDX-License-Identifier: Apache-2.0
// Files are told apart by device and number, which hard links and other spellings of a path share.
#include "job/FileStamp.h"

#include "job/PlainText.h"
#include "job/Texts.h"

#include <QFile>
#include <QFileInfo>

namespace tapeprint::job
{

namespace
{

FileStamp stampFrom(const struct stat &status, const QString &path)
{
    return {path, status.st_dev, status.st_ino, status.st_mode, status.st_size, status.st_mtim};
}

} // namespace

std::optional<FileStamp> FileStamp::ofPath(const QString &path)
{
    struct stat status {
    };
    return stat(QFile::encodeName(path).constData(), &status) == 0 ? std::optional(stampFrom(status, path))
                                                                   : std::nullopt;
}

std::optional<FileStamp> FileStamp::ofDescriptor(int descriptor, const QString &shownAs)
{
    struct stat status {
    };
    return fstat(descriptor, &status) == 0 ? std::optional(stampFrom(status, shownAs)) : std::nullopt;
}

bool FileStamp::isSameFile(const FileStamp &other) const
{
    return !S_ISCHR(mode) && device == other.device && number == other.number;
}

bool FileStamp::isUnchanged(const FileStamp &later) const
{
    return device == later.device && number == later.number && size == later.size &&
           changedAt.tv_sec == later.changedAt.tv_sec && changedAt.tv_nsec == later.changedAt.tv_nsec;
}

QString placeOf(const QString &path)
{
    const QFileInfo info(path);
    const QString folder = QFileInfo(info.path()).canonicalFilePath();
    if (folder.isEmpty()) {
        return path;
    }
    return folder == u"/" ? folder + info.fileName() : folder + u'/' + info.fileName();
}

bool areUnchanged(const FileStamps &files, Problem *error)
{
    for (const FileStamp &file : files) {
        // What comes through a pipe was read to its end at once, and its name says nothing more.
        if (!file.isPlainFile() || file.path.isNull()) {
            continue;
        }
        const std::optional<FileStamp> now = FileStamp::ofPath(file.path);
        if (!now) {
            *error = {Problem::BadDocument,
                      Texts::tr("The document %1 is gone: nothing was printed. Put it back, or open another.")
                          .arg(harmless(file.path))};
            return false;
        }
        if (!file.isUnchanged(*now)) {
            *error = {Problem::BadDocument,
                      Texts::tr("The document %1 has changed since it was opened: nothing was printed. Open it again.")
                          .arg(harmless(file.path))};
            return false;
        }
    }
    return true;
}

} // namespace tapeprint::job
