// SPDX-License-Identifier: Apache-2.0
// Threads that nobody waits for: a document that renders for minutes, a server that says nothing.
#pragma once

#include <functional>

namespace tapeprint::dialog
{

/// Runs a function in a thread of its own; threads start them from any thread. The program may end while it still runs:
/// it then ends at once, without tearing down what the thread works on. For one whose function has come back it waits.
void startDetached(std::function<void()> work);

} // namespace tapeprint::dialog
