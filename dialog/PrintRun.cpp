// SPDX-License-Identifier: Apache-2.0
// The thread writes what it has to tell on a board; the window reads the board a few times a second, however often the
// thread writes.
#include "dialog/PrintRun.h"

#include <mutex>
#include <utility>

namespace tapeprint::dialog
{

namespace
{

constexpr int readIntervalMs = 100;

} // namespace

struct PrintRun::Board {
    std::mutex mutex;
    std::optional<job::SendProgress> progress; ///< under the lock, as all of it
    std::optional<job::JobNews> news;
};

PrintRun::PrintRun(Server server, QObject *parent) : QObject(parent), mServer(std::move(server))
{
    mReadTimer.setInterval(readIntervalMs);
    connect(&mReadTimer, &QTimer::timeout, this, &PrintRun::readBoard);
}

void PrintRun::start(Action action, bool isTape, std::size_t pieces)
{
    mPhase = Phase::Sending;
    mIsTape = isTape;
    mPieces = pieces;
    mPrinted.reset();
    mNews.reset();
    mBoard = std::make_shared<Board>();
    mReadTimer.start();
    Q_EMIT told(tr("Printing…"), -1);
    mWork.start(
        [this, action = std::move(action), board = mBoard](const std::atomic<bool> &stop) -> BackgroundWork::Delivery {
            const auto report = [&board](const job::SendProgress &progress) {
                const std::lock_guard lock(board->mutex);
                board->progress = progress;
            };
            job::Problem problem;
            std::optional<job::PrintedJob> printed = action(job::PrintWatch(stop, report), &problem);
            return [this, printed = std::move(printed), problem] { takeResult(printed, problem); };
        });
}

void PrintRun::takeResult(std::optional<job::PrintedJob> printed, const job::Problem &problem)
{
    if (!printed) {
        fail(problem);
        return;
    }
    mPrinted = std::move(printed);
    if (mPrinted->queue.isNull()) { // it is in a file
        mPhase = Phase::Idle;
        mReadTimer.stop();
        Q_EMIT ended();
        return;
    }
    mPhase = Phase::Following;
    mJob = {mPrinted->queue, mPrinted->job.id, mIsTape};
    Q_EMIT sent();
    follow();
}

void PrintRun::follow()
{
    mWork.start([this, job = mJob, follow = mServer.follow,
                 board = mBoard](const std::atomic<bool> &stop) -> BackgroundWork::Delivery {
        const auto report = [&board](const job::JobNews &news) {
            const std::lock_guard lock(board->mutex);
            board->news = news;
        };
        job::Problem problem;
        const std::optional<job::JobNews> last = follow(job, stop, report, &problem);
        return [this, last, problem] { takeEnd(last, problem); };
    });
}

void PrintRun::takeEnd(const std::optional<job::JobNews> &last, const job::Problem &problem)
{
    readBoard();
    if (mPhase != Phase::Following) {
        return;
    }
    if (!last) {
        fail(problem);
        return;
    }
    mPrinted->job.state = last->status.stateName();
    if (last->hasFailed()) {
        // The end may be heard of before the answer to who wanted it.
        const bool isByPerson = isCancelling() && last->status.state == IPP_JSTATE_CANCELED;
        fail({isByPerson ? job::Problem::Cancelled : job::Problem::FailedJob, last->sentence()});
        return;
    }
    mNews = last;
    mReadTimer.stop();
    if (last->isHeld()) {
        tellNews();
    } else {
        mPhase = Phase::Idle;
    }
    Q_EMIT ended();
}

void PrintRun::fail(const job::Problem &problem)
{
    mPhase = Phase::Idle;
    mReadTimer.stop();
    mPrinted.reset();
    Q_EMIT failed(problem);
}

job::Problem PrintRun::cancelledByPerson() const
{
    job::JobNews news{mJob, {}, false};
    news.status.state = IPP_JSTATE_CANCELED;
    return {job::Problem::Cancelled, news.sentence()};
}

void PrintRun::cancel()
{
    if (mPhase == Phase::Sending) {
        mWork.stop();
        Q_EMIT told(tr("Cancelling…"), -1);
    }
    if (mPhase != Phase::Following || isCancelling()) {
        return;
    }
    mCancelling.start(
        [this, job = mJob, cancel = mServer.cancel](const std::atomic<bool> &stop) -> BackgroundWork::Delivery {
            job::Problem problem;
            const bool isCancelled = cancel(job, stop, &problem);
            return [this, isCancelled, problem] {
                if (mPhase != Phase::Following) {
                    return; // it came to its end meanwhile
                }
                if (isCancelled) {
                    mWork.stop();
                    fail(cancelledByPerson());
                } else {
                    Q_EMIT notCancelled(problem);
                    tellNews(); // the last words were others
                }
            };
        });
    Q_EMIT told(tr("Cancelling…"), -1);
}

void PrintRun::leave()
{
    mPhase = Phase::Idle;
    mReadTimer.stop();
    mWork.stop();
}

void PrintRun::readBoard()
{
    std::optional<job::SendProgress> progress;
    std::optional<job::JobNews> news;
    {
        const std::lock_guard lock(mBoard->mutex);
        progress = std::exchange(mBoard->progress, std::nullopt);
        news = std::exchange(mBoard->news, std::nullopt);
    }
    if (news) {
        mNews = news;
        tellNews();
    } else if (progress && mPhase == Phase::Sending && progress->ofBytes > 0) {
        constexpr int whole = 100;
        Q_EMIT told(tr("Sending…"), static_cast<int>(whole * progress->bytes / progress->ofBytes));
    }
}

void PrintRun::tellNews()
{
    if (mPhase == Phase::Following && mNews) {
        Q_EMIT told(mNews->sentence(), mNews->percentOf(mPieces));
    }
}

} // namespace tapeprint::dialog
