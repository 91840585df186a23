// SPDX-License-Identifier: Apache-2.0
// One process of a program that reads documents, confined, and the conversation with it: bounded in time, and ended
// when nobody wants the answer any more.
#pragma once

#include "job/Confinement.h"
#include "job/MemoryFile.h"

#include <QString>

#include <atomic>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <memory>

#include <sys/types.h>

namespace tapeprint::job
{

class DeathWatch;

/// Used by one thread at a time. A confined process ends with the thread that started it.
class DrawerProcess
{
public:
    /// How a wait for bytes ended. After any but Whole nothing more can be asked.
    enum class End {
        Whole,
        Stopped, ///< the stop flag was set
        Broken,  ///< the process has died, or the time was up
    };

    /// Starts the program, and does not wait until it is ready. \return null when no process can be made: errno says
    /// why.
    static std::unique_ptr<DrawerProcess> start(const ConfinedLaunch &launch);
    /// Ends the process, which has a moment to do that by itself when it waits for a question.
    ~DrawerProcess();
    DrawerProcess(const DrawerProcess &) = delete;
    DrawerProcess &operator=(const DrawerProcess &) = delete;

    /// Waits until the program has been started, the first time. \param word what it says then.
    End greet(std::uint32_t word, const std::atomic<bool> &stop);
    /// Says a part of a question. \param document a handle that the process is given; -1: none.
    End say(const void *bytes, std::size_t length, const std::atomic<bool> &stop, int document = -1);
    template <typename Word>
    End say(const Word &word, const std::atomic<bool> &stop, int document = -1)
    {
        return say(&word, sizeof word, stop, document);
    }
    /// Takes so many bytes of the answer, within the longest time.
    End take(void *bytes, std::size_t length, const std::atomic<bool> &stop);
    template <typename Word>
    End take(Word *word, const std::atomic<bool> &stop)
    {
        return take(word, sizeof *word, stop);
    }
    /// How long a part of an answer may take: a minute, by itself.
    void setLongest(std::chrono::milliseconds longest) { mLongest = longest; }
    /// Whether it waits for a question.
    bool isWaiting() const;
    /// Ends it when this object goes, without the moment: this program is at its own end.
    void hurry() { mIsIdle = false; }
    /// Whether it has answered nothing yet.
    bool isFresh() const { return mAnswers <= 1; } // the greeting
    /// Whether it lives as long as this thread: it ends with the one that started it, and the main thread's is there
    /// for all.
    bool isForThisThread() const;
    /// What the program wrote on standard error.
    QString messages() const;

private:
    DrawerProcess(pid_t process, int socket, bool isConfined, std::unique_ptr<MemoryFile> messages);
    template <typename Move>
    End converse(std::size_t length, short events, const std::atomic<bool> &stop, const Move &move);

    pid_t mProcess;
    int mSocket;
    std::unique_ptr<MemoryFile> mMessages;
    std::unique_ptr<DeathWatch> mWatch;                           ///< of one that is not confined
    std::chrono::milliseconds mLongest = std::chrono::minutes(1); ///< no printer draws a page that takes longer
    pid_t mThread;                                                ///< that started it
    bool mHasGreeted = false;
    int mAnswers = 0;
    bool mIsIdle = false;
};

} // namespace tapeprint::job
