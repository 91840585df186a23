// SPDX-License-Identifier: Apache-2.0
// PDFs are read by the program that lays labels out, so that tape and paper refuse the same documents in the same
// words.
#include "job/DocumentCheck.h"

#include "job/Conversion.h"
#include "job/LaidOutDocument.h"

#include <algorithm>

namespace tapeprint::job
{

bool areWhole(const QStringList &files, Problem *error)
{
    return std::all_of(files.begin(), files.end(), [error](const QString &file) {
        return documentKindOf(file) != DocumentKind::Pdf || pageSizesOf(file, error).has_value();
    });
}

} // namespace tapeprint::job
