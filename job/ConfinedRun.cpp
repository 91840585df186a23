// SPDX-License-Identifier: Apache-2.0
// A process and all its children are one: a room of its own dies with its first process, and where there is none they
// are a process group that is killed as a whole.
#include "job/ConfinedRun.h"

#include "job/DeathWatch.h"

#include <QElapsedTimer>
#include <QProcess>

#include <csignal>
#include <limits>

#include <linux/close_range.h>
#include <unistd.h>

namespace tapeprint::job
{

namespace
{

constexpr int startTimeoutMs = 10000;
constexpr int stepMs = 50;
/// So much is kept of either end of the messages: a filter may write them without end.
constexpr qsizetype keptMessageBytes = 65536;

void addMessages(QByteArray &messages, const QByteArray &more)
{
    messages += more;
    if (messages.size() > 2 * keptMessageBytes) {
        messages = messages.left(keptMessageBytes) + "\n" + messages.right(keptMessageBytes);
    }
}

class Run
{
public:
    Run(const ConfinedLaunch &launch, const TakeBytes &take) : mTake(take)
    {
        mProcess.setProcessChannelMode(QProcess::SeparateChannels);
        mProcess.setStandardInputFile(QProcess::nullDevice());
        mProcess.setProgram(launch.program);
        mProcess.setArguments(launch.arguments);
        mProcess.setEnvironment(launch.environment);
        mHasGroup = !launch.confined;
        mProcess.setChildProcessModifier([hasGroup = mHasGroup] {
            // A file that some library has open is not for others: a handle would reach past the room's walls.
            close_range(STDERR_FILENO + 1, std::numeric_limits<unsigned>::max(), CLOSE_RANGE_CLOEXEC);
            if (hasGroup) {
                setpgid(0, 0);
            }
        });
    }
    ~Run() { kill(); }
    Run(const Run &) = delete;
    Run &operator=(const Run &) = delete;

    bool start()
    {
        mProcess.start(QIODevice::ReadOnly);
        if (!mProcess.waitForStarted(startTimeoutMs)) {
            return false;
        }
        if (mHasGroup) {
            mWatch = DeathWatch::killing(static_cast<pid_t>(mProcess.processId()));
        }
        return true;
    }

    /// Waits a moment for more. \return whether take() wants it to go on.
    bool step()
    {
        mProcess.waitForReadyRead(stepMs);
        addMessages(mMessages, mProcess.readAllStandardError());
        const QByteArray bytes = mProcess.readAllStandardOutput();
        return bytes.isEmpty() || mTake(bytes);
    }

    bool isRunning() const { return mProcess.state() != QProcess::NotRunning; }

    void kill()
    {
        if (!isRunning()) {
            return;
        }
        if (mHasGroup) {
            ::kill(-static_cast<pid_t>(mProcess.processId()), SIGKILL);
        }
        mProcess.kill();
        mProcess.waitForFinished();
    }

    QProcess &process() { return mProcess; }
    const QByteArray &messages() const { return mMessages; }

private:
    QProcess mProcess;
    const TakeBytes &mTake;
    bool mHasGroup = false;
    std::unique_ptr<DeathWatch> mWatch;
    QByteArray mMessages;
};

/// Follows a run that was started. \return how it ended.
ConfinedRun::End follow(Run &run, const std::atomic<bool> *stop, std::chrono::milliseconds longest)
{
    QElapsedTimer time;
    time.start();
    while (run.isRunning()) {
        if (!run.step()) {
            return ConfinedRun::End::refused;
        }
        if (stop != nullptr && *stop) {
            return ConfinedRun::End::stopped;
        }
        if (time.hasExpired(longest.count())) {
            return ConfinedRun::End::tooLong;
        }
    }
    // What was written last may not have been read yet.
    if (!run.step()) {
        return ConfinedRun::End::refused;
    }
    return run.process().exitStatus() == QProcess::NormalExit ? ConfinedRun::End::finished : ConfinedRun::End::crashed;
}

ConfinedRun runOnce(const ConfinedLaunch &launch, const TakeBytes &take, const std::atomic<bool> *stop,
                    std::chrono::milliseconds longest)
{
    ConfinedRun result;
    Run run(launch, take);
    if (!run.start()) {
        result.reason = run.process().errorString();
        return result;
    }
    result.end = follow(run, stop, longest);
    run.kill();
    result.exitCode = run.process().exitCode();
    result.messages = run.messages();
    return result;
}

} // namespace

ConfinedRun runConfined(const ConfinedCommand &command, const TakeBytes &take, const std::atomic<bool> *stop,
                        std::chrono::milliseconds longest)
{
    bool hasWritten = false;
    const TakeBytes takeAndNote = [&take, &hasWritten](const QByteArray &bytes) {
        hasWritten = true;
        return take(bytes);
    };
    const ConfinedLaunch launch = confineUntried(command);
    ConfinedRun result = runOnce(launch, takeAndNote, stop, longest);
    if (!launch.confined || result.end != ConfinedRun::End::finished) {
        return result;
    }
    if (result.exitCode == 0) {
        if (command.seesSettings) {
            noteThatTheRoomWorks();
        }
    } else if (!hasWritten && !confinementProblem().isNull()) {
        result = runOnce(confine(command), take, stop, longest); // there was no room, and it has not run yet
    }
    return result;
}

} // namespace tapeprint::job
