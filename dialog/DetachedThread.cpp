// SPDX-License-Identifier: Apache-2.0
// Counts the threads that run, so that the program's end knows of them.
#include "dialog/DetachedThread.h"

#include <atomic>
#include <cstdio>
#include <cstdlib>
#include <thread>
#include <utility>

#include <unistd.h>

namespace tapeprint::dialog
{

namespace
{

/// How many there are. A program must not end under one that is deep in its work: the objects that Poppler and libcups
/// need would go away beneath it.
std::atomic<int> running = 0;

void endWithoutThreads(int status, void * /*nothing*/)
{
    if (running > 0) {
        std::fflush(nullptr);
        ::_exit(status);
    }
}

} // namespace

void startDetached(std::function<void()> work)
{
    [[maybe_unused]] static const int registered = ::on_exit(endWithoutThreads, nullptr);
    ++running;
    std::thread([work = std::move(work)]() mutable {
        work();
        work = nullptr; // what it held goes before it counts as ended
        --running;
    }).detach();
}

} // namespace tapeprint::dialog
