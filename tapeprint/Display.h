// SPDX-License-Identifier: Apache-2.0
// Whether a window can be shown at all. The toolkit ends the process, with a core dump, when it finds that it cannot;
// here that becomes one line.
#pragma once

#include "job/Problem.h"

#include <QByteArray>
#include <QStringList>

namespace tapeprint
{

/// Why the session has no display for a window, as far as that can be seen beforehand; a null problem when it may have
/// one.
job::Problem displayProblem();

/// Watches over the start of the toolkit. While it lives, whatever would end the process ends it with one line and the
/// status of a general problem, and so does a display that does not answer for ten seconds. What the toolkit remarks
/// meanwhile is passed on when the watch is over.
class ToolkitStart
{
public:
    /// \param showsWindow whether a display is to be connected to. \param asJson the one line is a JSON object on
    /// standard output.
    ToolkitStart(bool showsWindow, bool asJson);
    ~ToolkitStart();
    ToolkitStart(const ToolkitStart &) = delete;
    ToolkitStart &operator=(const ToolkitStart &) = delete;

private:
    int mStandardError = -1; ///< where it leads to; while the display is connected to, its library writes there
};

} // namespace tapeprint
