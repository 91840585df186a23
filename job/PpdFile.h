// SPDX-License-Identifier: Apache-2.0
// A parsed PPD file, held with its deleter, and the sentence that says why one could not be opened.
#pragma once

#include "job/Problem.h"

#include <QString>

#include <memory>

#include <cups/ppd.h>

namespace tapeprint::job
{

struct PpdCloser {
    void operator()(ppd_file_t *ppd) const { ppdClose(ppd); }
};
/// A parsed PPD; null when there is none.
using PpdFile = std::unique_ptr<ppd_file_t, PpdCloser>;

/// Opens a PPD file, with the defaults marked. \param error takes a sentence that names the file, and the line where
/// the file is at fault. \param shownAs how the sentence names the file; null: by its path.
PpdFile openPpdFile(const QString &path, Problem *error, const QString &shownAs = QString());

} // namespace tapeprint::job
