// SPDX-License-Identifier: Apache-2.0
// The descriptions of sample printers that come with the program, found by name: where they stand depends on how it was
// installed.
#pragma once

#include <QString>

namespace tapeprint::job
{

/// The file that a person means by the name of a description: the file of that name if there is one, else the sample
/// printer's of that name, with or without ".ppd". \return what was asked for when there is neither.
QString descriptionFile(const QString &asked);

} // namespace tapeprint::job
