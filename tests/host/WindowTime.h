// SPDX-License-Identifier: Apache-2.0
// How long a piece of work holds up the window's thread.
#pragma once

#include <ctime>
#include <functional>

namespace hosttest
{

/// Processor time: the machine may have other things to do.
inline double msOf(const std::function<void()> &work)
{
    const std::clock_t before = std::clock();
    work();
    return 1000.0 * static_cast<double>(std::clock() - before) / CLOCKS_PER_SEC;
}

} // namespace hosttest
