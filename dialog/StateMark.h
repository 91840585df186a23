// SPDX-License-Identifier: Apache-2.0
// Small marks of how something stands, drawn by this program. The desktop's own are picture files: to read the first of
// them, the toolkit loads every kind of picture that it knows, which costs more than the rest of the first painting.
#pragma once

#include <QIcon>

namespace tapeprint::dialog
{

/// Each mark has a shape of its own: nobody has to tell colours apart.
enum class StateMark {
    Fine,    ///< a tick
    Busy,    ///< a triangle that points forward
    Paused,  ///< two bars
    Warning, ///< a triangle with an exclamation mark
    Failure, ///< a disc with a cross
    Network  ///< three dots and the lines between them
};

/// A mark as an icon of any size.
QIcon iconOf(StateMark mark);

} // namespace tapeprint::dialog
