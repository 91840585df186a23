// SPDX-License-Identifier: Apache-2.0
// The level of the panel interface that the print system implements, asked for by selector.
#pragma once

#include "pdekit/Export.h"
#include "pdekit/Status.h"

#include <cstdint>
#include <functional>

namespace pdekit
{

/// A selector: four characters as one number, the first in the highest byte.
constexpr std::uint32_t gestaltSelector(const char (&code)[5])
{
    std::uint32_t selector = 0;
    for (int i = 0; i < 4; ++i) {
        selector = (selector << 8U) | static_cast<unsigned char>(code[i]);
    }
    return selector;
}

inline constexpr std::uint32_t gestaltSystemVersionMajor = gestaltSelector("sys1");  ///< 10
inline constexpr std::uint32_t gestaltSystemVersionMinor = gestaltSelector("sys2");  ///< 6
inline constexpr std::uint32_t gestaltSystemVersionBugFix = gestaltSelector("sys3"); ///< 0

/// Asks for a number of the system by selector; the panel interface of this print system is 10.6.0.
/// \return 0, or an error for an unknown selector; *response is left alone then.
PDEKIT_EXPORT OSStatus Gestalt(std::uint32_t selector, std::int32_t *response);

/// Answers as Gestalt() does.
using GestaltSource = std::function<OSStatus(std::uint32_t selector, std::int32_t *response)>;
/// For tests: another source answers Gestalt until it is set back with an empty function.
PDEKIT_EXPORT void setGestaltSource(GestaltSource source);

} // namespace pdekit
