// SPDX-License-Identifier: Apache-2.0
// How much a piece of work takes of a processor: what a test can hold on a machine that has other things to do.
#pragma once

#include <ctime>
#include <functional>

namespace tapeprint::test
{

/// The milliseconds of processor time of all threads of this process while the work is done.
inline double processorMsOf(const std::function<void()> &work)
{
    const std::clock_t before = std::clock();
    work();
    return 1000.0 * static_cast<double>(std::clock() - before) / CLOCKS_PER_SEC;
}

} // namespace tapeprint::test
