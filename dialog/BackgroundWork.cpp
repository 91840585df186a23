// SPDX-License-Identifier: Apache-2.0
// The thread and the window share a task; whoever goes first leaves it to the other.
#include "dialog/BackgroundWork.h"

#include "dialog/DetachedThread.h"

#include <QMetaObject>

#include <mutex>
#include <utility>

namespace tapeprint::dialog
{

struct BackgroundWork::Task {
    std::atomic<bool> stop = false;
    std::mutex mutex;
    BackgroundWork *owner = nullptr; ///< null when nobody wants the outcome; under the lock

    void leave()
    {
        stop = true;
        const std::lock_guard lock(mutex);
        owner = nullptr;
    }
};

BackgroundWork::~BackgroundWork()
{
    if (mTask) {
        mTask->leave();
    }
}

void BackgroundWork::start(Work work)
{
    if (mTask) {
        mTask->leave();
    }
    mTask = std::make_shared<Task>();
    mTask->owner = this;
    startDetached([task = mTask, work = std::move(work)] {
        Delivery delivery = work(task->stop);
        const std::lock_guard lock(task->mutex);
        if (task->owner != nullptr) {
            // Queued, and dropped by the toolkit when the owner has gone by then.
            QMetaObject::invokeMethod(
                task->owner,
                [owner = task->owner, task, delivery = std::move(delivery)] { owner->finish(task.get(), delivery); },
                Qt::QueuedConnection);
        }
    });
}

void BackgroundWork::stop()
{
    if (mTask) {
        mTask->stop = true;
    }
}

void BackgroundWork::drop()
{
    if (mTask) {
        mTask->leave();
        mTask.reset();
    }
}

void BackgroundWork::finish(const Task *task, const Delivery &delivery)
{
    if (task != mTask.get()) {
        return; // newer work has been started since
    }
    mTask.reset();
    if (delivery) {
        delivery();
    }
}

} // namespace tapeprint::dialog
