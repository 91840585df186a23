// SPDX-License-Identifier: Apache-2.0
// Reasons given by strangers, put into sentences of the program's own. Print servers, filters and the system end theirs
// with a full stop, or with none; a sentence ends with one.
#pragma once

#include <QString>

namespace tapeprint::job
{

/// A reason as it stands within a sentence: harmless, in one line, without blanks and marks at its end.
QString reasonText(const QString &reason);

} // namespace tapeprint::job
