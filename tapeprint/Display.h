// SPDX-License-Identifier: Apache-2.0
// Whether a window can be shown at all, and what is said when it cannot.
#pragma once

#include "job/Problem.h"

#include <QByteArray>

namespace tapeprint
{

/// Why the session has no display for a window, as far as that can be seen beforehand; a null problem when it may have
/// one.
job::Problem displayProblem();

/// What is said when the toolkit cannot start. \param showsWindow whether it connects to a display. \param asJson
/// whether it is a JSON object, for standard output.
QByteArray wordsForNoStart(bool showsWindow, bool asJson);

} // namespace tapeprint
