// SPDX-License-Identifier: Apache-2.0
// How long a piece of work holds up the window's thread, and how long it may.
#pragma once

#include <ctime>
#include <functional>

namespace hosttest
{

/// A tenth of a second. The sanitizers make everything several times slower, and are not what a person waits for.
#ifdef __SANITIZE_ADDRESS__
constexpr double longestMs = 500.0;
#else
constexpr double longestMs = 100.0;
#endif

/// Processor time: the machine may have other things to do.
inline double msOf(const std::function<void()> &work)
{
    const std::clock_t before = std::clock();
    work();
    return 1000.0 * static_cast<double>(std::clock() - before) / CLOCKS_PER_SEC;
}

} // namespace hosttest
