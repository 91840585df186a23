// SPDX-License-Identifier: Apache-2.0
// Whether a window can be shown at all. Asked before the toolkit starts, which ends the process when it cannot connect.
#pragma once

namespace tapeprint
{

/// Whether the session has a display that answers.
bool hasDisplay();

} // namespace tapeprint
