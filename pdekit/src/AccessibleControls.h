// SPDX-License-Identifier: Apache-2.0
// What is heard of a slider: its real value and limits, where the toolkit would tell of the places of the knob. And of
// a radio matrix: that it is one group.
#pragma once

namespace pdekit
{

/// From now on the controls are read aloud so. Once for all of them.
void makeControlsAccessible();

} // namespace pdekit
