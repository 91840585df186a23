// SPDX-License-Identifier: Apache-2.0
// Why a file could not be written, in the system's words.
#pragma once

#include <QFileDevice>
#include <QString>

#include <cerrno>

namespace tapeprint::job
{

/// What the system says of a write that failed. Where a disk takes only the beginning of what is written, the toolkit
/// knows of no error: then there was no room.
inline QString whyNotWritten(const QFileDevice &file)
{
    return file.error() == QFileDevice::NoError ? qt_error_string(ENOSPC) : file.errorString();
}

} // namespace tapeprint::job
