// SPDX-License-Identifier: Apache-2.0
// The hard bounds go with the soft ones: whoever takes the program over cannot lift them.
#include "drawing/Bounds.h"

#include "job/ConfinedBounds.h"

#include <algorithm>

#include <sys/resource.h>

namespace tapeprint::drawing
{

namespace
{

void bound(__rlimit_resource what, rlim_t most)
{
    rlimit limit{};
    getrlimit(what, &limit);
    limit.rlim_max = std::min(limit.rlim_max, most); // of "no limit", which is the largest number, too
    limit.rlim_cur = std::min(limit.rlim_cur, limit.rlim_max);
    setrlimit(what, &limit);
}

} // namespace

void takeBounds()
{
#ifndef __SANITIZE_ADDRESS__ // which takes terabytes of addresses
    bound(RLIMIT_AS, job::mostMemoryBytes);
#endif
    bound(RLIMIT_CPU, job::mostProcessorSeconds);
    bound(RLIMIT_CORE, 0);
}

} // namespace tapeprint::drawing
