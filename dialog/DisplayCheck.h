// SPDX-License-Identifier: Apache-2.0
// Whether a window can be shown at all: the toolkit ends the process, with a core dump, when it finds that it cannot.
#pragma once

namespace tapeprint::dialog
{

enum class DisplayState {
    There,
    None,   ///< the session names none, or one that nobody sees
    Silent, ///< the one that it names does not take a connection
};

/// As far as it can be seen before the toolkit is started.
DisplayState checkDisplay();

} // namespace tapeprint::dialog
