// SPDX-License-Identifier: Apache-2.0
// The answer of a run without a window to a print server that wants a password.
#pragma once

#include "job/Credentials.h"

namespace tapeprint
{

/// Asks on the terminal of the session, wherever standard input and output go, without showing what is typed.
/// \return nothing when there is no terminal, or nothing is typed there.
std::optional<job::Credentials> askOnTerminal(const job::PasswordQuestion &question,
                                              const std::function<bool()> &isOver);

} // namespace tapeprint
