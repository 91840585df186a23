// SPDX-License-Identifier: Apache-2.0
// Which input event the application is handling just now.
#pragma once

#include "pdekit/Export.h"

namespace pdekit
{

/// Types of input events that a panel may ask about. Numbers of the panel interface, not of Qt.
enum class EventType : int {
    None = 0,
    LeftMouseDown = 1,
    LeftMouseUp = 2,
    LeftMouseDragged = 6,
    KeyDown = 10,
};

/// The input event being handled, from its arrival until the event loop turns to something else; None when there is
/// none, or when it is of another kind. The library watches the application's events by itself.
PDEKIT_EXPORT EventType currentEventType();

} // namespace pdekit
