// SPDX-License-Identifier: Apache-2.0
// Which file a name stands for, and in what state it is: names may be links, and files change while a window is open.
#pragma once

#include "job/Problem.h"

#include <QString>

#include <optional>
#include <vector>

#include <sys/stat.h>

namespace tapeprint::job
{

struct FileStamp {
    QString path; ///< as the person named it
    dev_t device = 0;
    ino_t number = 0;
    mode_t mode = 0;
    off_t size = 0;
    timespec changedAt{};

    /// The file that a path leads to, through links; std::nullopt when there is none.
    static std::optional<FileStamp> ofPath(const QString &path);
    /// The file behind a descriptor.
    static std::optional<FileStamp> ofDescriptor(int descriptor, const QString &shownAs);

    bool isPlainFile() const { return S_ISREG(mode); }
    /// Whether both are one file, whatever their names. Devices such as a terminal are read and written at once.
    bool isSameFile(const FileStamp &other) const;
    /// Whether the file is the same and nobody has written to it in between.
    bool isUnchanged(const FileStamp &later) const;
};

/// An absolute path in which the folders are real ones, without links and ".."; the last step stays as it is, because
/// filters look at a document's ending. As given when there is no such folder.
QString placeOf(const QString &path);

/// Files that are only read.
using FileStamps = std::vector<FileStamp>;

/// Whether the files are still what they were. \param error takes a sentence about the first that is not.
bool areUnchanged(const FileStamps &files, Problem *error);

} // namespace tapeprint::job
