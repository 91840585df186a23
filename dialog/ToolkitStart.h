// SPDX-License-Identifier: Apache-2.0
// The toolkit ends the process, with a core dump, when it finds that it cannot start; here that becomes one line.
#pragma once

#include <QByteArray>

namespace tapeprint::dialog
{

/// Watches over the start of the toolkit. While it lives, whatever would end the process ends it with its last words
/// and status 1, and so does a display that does not answer for ten seconds. What the toolkit remarks meanwhile is
/// passed on when the watch is over. There is one at a time, before any thread.
class ToolkitStart
{
public:
    /// \param lastWords one line, with its end. \param descriptor where they are written to.
    /// \param showsWindow whether a display is to be connected to.
    ToolkitStart(const QByteArray &lastWords, int descriptor, bool showsWindow);
    ~ToolkitStart();
    ToolkitStart(const ToolkitStart &) = delete;
    ToolkitStart &operator=(const ToolkitStart &) = delete;

private:
    QByteArray mTemporary;   ///< the folder for temporary files, while another is named; empty while none is
    int mStandardError = -1; ///< where it leads to; while the display is connected to, its library writes there
};

} // namespace tapeprint::dialog
