// SPDX-License-Identifier: Apache-2.0
// Whether a file is the machine's: nobody but root could have put it there or changed it.
#pragma once

#include <QString>

namespace tapeprint::job
{

/// Whether a file, every folder above it, and every link on the way belong to root and can be written by nobody else.
bool onlyRootChanges(const QString &path);

} // namespace tapeprint::job
