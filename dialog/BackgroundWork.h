// SPDX-License-Identifier: Apache-2.0
// One piece of work at a time away from the window's thread: the newest counts, an older one is told to stop.
#pragma once

#include <QObject>

#include <atomic>
#include <functional>
#include <memory>

namespace tapeprint::dialog
{

class BackgroundWork : public QObject
{
    Q_OBJECT

public:
    /// What is to be done with the outcome, in the window's thread. Null: nothing.
    using Delivery = std::function<void()>;
    /// Done in a thread of its own, on values of its own. \param stop when it becomes true nobody wants the outcome.
    using Work = std::function<Delivery(const std::atomic<bool> &stop)>;

    using QObject::QObject;
    /// Tells running work to stop and does not wait for it.
    ~BackgroundWork() override;

    /// Starts work. Running work is told to stop, and its outcome is dropped.
    void start(Work work);
    /// Tells running work to stop; its outcome is delivered all the same.
    void stop();
    /// Tells running work to stop; its outcome is dropped.
    void drop();
    bool isRunning() const { return mTask != nullptr; }

private:
    struct Task;
    void finish(const Task *task, const Delivery &delivery);

    std::shared_ptr<Task> mTask; ///< null when nothing runs
};

} // namespace tapeprint::dialog
