// SPDX-License-Identifier: Apache-2.0
// Keeps the threads that run, so that the program's end knows of them. Strictly speaking they are not detached: after
// its function a thread gives back what it holds of libraries, and the end has to wait for that.
#include "dialog/DetachedThread.h"

#include <QCoreApplication>

#include <algorithm>
#include <atomic>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <mutex>
#include <thread>
#include <utility>
#include <vector>

#include <unistd.h>

namespace tapeprint::dialog
{

namespace
{

struct Started {
    std::thread thread;
    std::shared_ptr<const std::atomic<bool>> isDone;
};

struct Threads {
    std::mutex mutex;
    std::vector<Started> all; ///< under the lock

    /// Waits for those whose function has come back. \return whether there are others.
    bool joinDone()
    {
        const std::lock_guard lock(mutex);
        const auto firstDone =
            std::partition(all.begin(), all.end(), [](const Started &started) { return !*started.isDone; });
        std::for_each(firstDone, all.end(), [](Started &started) { started.thread.join(); });
        all.erase(firstDone, all.end());
        return !all.empty();
    }
};

/// Never taken down: threads may outlive whatever is.
Threads &threads()
{
    static auto *const only = new Threads;
    return *only;
}

/// A program must not end under a thread that is deep in its work: the objects that its libraries need would go
/// away beneath it.
void endWithoutThreads(int status, void * /*nothing*/)
{
    if (threads().joinDone()) {
        std::fflush(nullptr);
        ::_exit(status);
    }
}

/// The end does last what was registered first, and a library that is loaded registers what takes it down: this has to
/// come before all of that. So it is registered once more when the application object goes; the first time is for a
/// program that ends without.
void registerEnd()
{
    ::on_exit(endWithoutThreads, nullptr);
    qAddPostRoutine([] { ::on_exit(endWithoutThreads, nullptr); });
}

} // namespace

void startDetached(std::function<void()> work)
{
    static std::once_flag registered;
    std::call_once(registered, registerEnd);
    threads().joinDone();
    const auto isDone = std::make_shared<std::atomic<bool>>(false);
    const std::lock_guard lock(threads().mutex);
    threads().all.push_back({std::thread([work = std::move(work), isDone]() mutable {
                                 work();
                                 work = nullptr; // and what it holds
                                 *isDone = true;
                             }),
                             isDone});
}

} // namespace tapeprint::dialog
