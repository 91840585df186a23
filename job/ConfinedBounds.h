// SPDX-License-Identifier: Apache-2.0
// The bounds of one process that works on foreign data: for whoever sets them on it, and for the programs that take
// them by themselves.
#pragma once

#include <cstdint>

namespace tapeprint::job
{

// They are there for what never ends, not to ration work: on two busy cores, 2,000 labels take all filters together 28
// seconds and none of them 100 MB of address space, an image of 200 megapixels 3 seconds.
constexpr std::uint64_t mostProcessorSeconds = 1800;
constexpr std::uint64_t mostMemoryBytes = std::uint64_t(4) << 30U; ///< of address space

} // namespace tapeprint::job
