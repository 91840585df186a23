// SPDX-License-Identifier: Apache-2.0
// Documents that go to filters as they are, looked at beforehand: filters make nothing of a broken one, and say so only
// in the print server's log.
#pragma once

#include "job/Problem.h"

#include <QStringList>

namespace tapeprint::job
{

/// Whether each document that says that it is a PDF is one: whole, with pages, and not locked with a password. Of
/// documents of other kinds nothing is said. \param error takes a sentence about the first that is not.
bool areWhole(const QStringList &files, Problem *error);

} // namespace tapeprint::job
