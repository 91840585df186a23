// SPDX-License-Identifier: Apache-2.0
// One press of Print, from the first byte to the printer's last word, away from the window's thread.
#pragma once

#include "dialog/BackgroundWork.h"
#include "job/JobFollowing.h"
#include "job/Printing.h"

#include <QObject>
#include <QTimer>

#include <atomic>
#include <functional>
#include <memory>
#include <optional>

namespace tapeprint::dialog
{

class PrintRun : public QObject
{
    Q_OBJECT

public:
    /// Prints, in a thread of its own; as job::printJob() does it.
    using Action = std::function<std::optional<job::PrintedJob>(const job::PrintWatch &watch, job::Problem *error)>;
    /// What the server does for a job that it has; for tests another than the real one.
    struct Server {
        std::function<std::optional<job::JobNews>(const job::JobName &, const std::atomic<bool> &,
                                                  const job::JobReport &, job::Problem *)>
            follow = job::followJob;
        std::function<bool(const job::JobName &, const std::atomic<bool> &, job::Problem *)> cancel =
            job::cancelSentJob;
    };
    enum class Phase {
        Idle,
        Sending,   ///< it is being laid out and sent; stop() ends it with nothing printed
        Following, ///< the server has it, also one that it holds; it goes on without this object as well
    };

    explicit PrintRun(QObject *parent = nullptr) : PrintRun(Server(), parent) {}
    explicit PrintRun(Server server, QObject *parent = nullptr);

    /// \param isTape whether the printer prints on tape. \param pieces how many labels or sheets are to come out; 0
    /// when that is not known.
    void start(Action action, bool isTape, std::size_t pieces = 0);
    Phase phase() const { return mPhase; }

    /// The person has changed their mind: ends sending, or has the server cancel the job.
    void cancel();
    /// Whether the server has been asked to cancel the job, and has not answered.
    bool isCancelling() const { return mCancelling.isRunning(); }
    /// Follows the job no longer. It goes on.
    void leave();

    /// What became of it; nothing when nothing was printed.
    const std::optional<job::PrintedJob> &printed() const { return mPrinted; }
    /// What became of an earlier job is of no interest any more. Only while nothing is printed.
    void forget() { mPrinted.reset(); }
    /// The last news of a job that is followed.
    const std::optional<job::JobNews> &news() const { return mNews; }

Q_SIGNALS:
    /// There is something new to be said. \param percent how much is sent, then how much is printed; below 0
    /// while that is not known.
    void told(const QString &words, int percent);
    /// The server has taken the job, and it is followed from now on.
    void sent();
    /// Nothing is printed, or not as it should be. The person may have wanted it so (Cancelled), and there may be no
    /// sentence then.
    void failed(const job::Problem &problem);
    /// All is done that can be waited for. A held job can still be cancelled, and is to be left.
    void ended();
    /// The server does not cancel the job; it is followed as before.
    void notCancelled(const job::Problem &problem);

private:
    struct Board;

    void takeResult(std::optional<job::PrintedJob> printed, const job::Problem &problem);
    void follow();
    void takeEnd(const std::optional<job::JobNews> &last, const job::Problem &problem);
    void readBoard();
    void tellNews();
    job::Problem cancelledByPerson() const;
    void fail(const job::Problem &problem);

    Server mServer;
    Phase mPhase = Phase::Idle;
    bool mIsTape = false;
    std::size_t mPieces = 0;
    job::JobName mJob;
    std::optional<job::PrintedJob> mPrinted;
    std::optional<job::JobNews> mNews;
    std::shared_ptr<Board> mBoard; ///< what threads have said and the window has not read yet
    QTimer mReadTimer;
    BackgroundWork mWork;
    BackgroundWork mCancelling;
};

} // namespace tapeprint::dialog
