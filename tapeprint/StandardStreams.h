// SPDX-License-Identifier: Apache-2.0
// What whoever starts the program may have left undone: standard streams that are closed, and a limit on files.
#pragma once

namespace tapeprint
{

/// Before anything is opened. A standard stream that is closed stays unusable, but its number is taken: no document and
/// no output is opened under it, into which what is said on standard error would be written. And a reader that goes
/// away, or a file that grows beyond the limit of the system, is an error of writing, which is said as a full disk is.
void prepareStandardStreams();

} // namespace tapeprint
