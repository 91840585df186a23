// SPDX-License-Identifier: Apache-2.0
// The toolkit puts pictures on the buttons that it words itself, "OK" and "Cancel", and on no other: beside a button
// of the dialog's own one looks as if it were something else.
#pragma once

class QWidget;

namespace tapeprint::dialog
{

/// Takes the pictures off all buttons of a sheet or a message.
void removeButtonIcons(const QWidget &sheet);

} // namespace tapeprint::dialog
