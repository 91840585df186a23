// SPDX-License-Identifier: Apache-2.0
// A picture as a PDF page of exactly the picture's own size, dot for dot.
#pragma once

#include "job/Problem.h"

#include <QString>

namespace tapeprint::job
{

/// Makes a PDF of a picture, which is only read. Dots that are transparent are left blank. \param path the file to
/// write. \param error takes a sentence that names the picture: about one that is broken, or that is too large to be
/// unpacked, which is seen before memory is taken for it.
bool pictureToPdf(const QString &picture, const QString &path, Problem *error);

} // namespace tapeprint::job
