// SPDX-License-Identifier: Apache-2.0
// One process of the program that draws pages, confined, and the conversation with it: bounded in time, and ended when
// nobody wants the answer any more.
#pragma once

#include "job/Confinement.h"
#include "job/DrawerWords.h"
#include "job/MemoryFile.h"

#include <QString>

#include <atomic>
#include <cstddef>
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

    /// Waits until the program has been started.
    End greet(const std::atomic<bool> &stop);
    /// Asks. \param document a handle that the process is given; -1: none.
    bool ask(const DrawerQuestion &question, int document = -1) const;
    /// Takes so many bytes of the answer, within a minute.
    End take(void *bytes, std::size_t length, const std::atomic<bool> &stop);
    template <typename Word>
    End take(Word *word, const std::atomic<bool> &stop)
    {
        return take(word, sizeof *word, stop);
    }
    /// What the program wrote on standard error.
    QString messages() const;
    /// How many there are in this program.
    static int living();

private:
    DrawerProcess(pid_t process, int socket, bool isConfined, std::unique_ptr<MemoryFile> messages);

    pid_t mProcess;
    int mSocket;
    std::unique_ptr<MemoryFile> mMessages;
    std::unique_ptr<DeathWatch> mWatch; ///< of one that is not confined
    bool mIsIdle = false;
};

} // namespace tapeprint::job
