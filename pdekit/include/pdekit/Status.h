// SPDX-License-Identifier: Apache-2.0
// The status codes that operations of the printing core answer.
#pragma once

#include <cstdint>

namespace pdekit
{

/// A status of the printing system: 0 is success, every other number an error.
using OSStatus = std::int32_t;

/// Success.
inline constexpr OSStatus kPMNoError = 0;
/// An argument that the operation needs is null.
inline constexpr OSStatus kPMInvalidParameter = -50;
/// The object exists but has nothing of that kind (a page format without a paper, a printer without a URI).
inline constexpr OSStatus kPMNoSuchEntry = -30870;
/// A dictionary has no value under the key asked for.
inline constexpr OSStatus kPMKeyNotFound = -30893;
/// The value is locked and may not be changed.
inline constexpr OSStatus kPMLocked = -30890;
/// The data of a session could not be had, or is none.
inline constexpr OSStatus kPMNoSessionData = -30891;

} // namespace pdekit
