// SPDX-License-Identifier: Apache-2.0
// The confined programs' end of the conversation: who asks is at standard input, and hands documents over as open
// files.
#pragma once

#include <cstddef>

namespace tapeprint::drawing
{

/// \return false: nobody listens any more, here and below.
bool say(const void *bytes, std::size_t length);
template <typename Word>
bool say(const Word &word)
{
    return say(&word, sizeof word);
}

/// Waits for so many bytes. \param handle takes that of a file that came along.
bool listen(void *bytes, std::size_t length, int *handle = nullptr);
template <typename Word>
bool listen(Word *word, int *handle = nullptr)
{
    return listen(word, sizeof *word, handle);
}

/// A document's bytes, all of them.
struct Bytes {
    const char *bytes = nullptr;
    std::size_t length = 0;
};

/// The bytes of a document that was handed over; none when it is empty or cannot be read. Its handle is closed before
/// any of them is looked at: who holds one could open the file anew, for writing, past the room's walls.
Bytes take(int handle);
/// Gives up what take() gave.
void drop(const Bytes &document);

} // namespace tapeprint::drawing
