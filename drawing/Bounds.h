// SPDX-License-Identifier: Apache-2.0
// The bounds that the confined programs set on themselves: a program in between that did it for them would be one more
// to be loaded at each start.
#pragma once

namespace tapeprint::drawing
{

/// Takes the bounds of job/ConfinedBounds.h, and none that would be wider than those that the process has. To be called
/// before anything of a document is read. They cannot be taken back.
void takeBounds();

} // namespace tapeprint::drawing
