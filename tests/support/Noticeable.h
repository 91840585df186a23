// SPDX-License-Identifier: Apache-2.0
// How long a window's thread may be held up before a person notices.
#pragma once

namespace tapeprint::test
{

/// A tenth of a second. The sanitizers make everything several times slower, and are not what a person waits for.
#ifdef __SANITIZE_ADDRESS__
constexpr int noticeableMs = 500;
#else
constexpr int noticeableMs = 100;
#endif

} // namespace tapeprint::test
