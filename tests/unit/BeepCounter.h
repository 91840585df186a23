// SPDX-License-Identifier: Apache-2.0
// Counts the system beeps of a test program: its own QApplication::beep stands before the toolkit's.
#pragma once

namespace tests
{

/// The beeps since the program began.
int beeps();

} // namespace tests
