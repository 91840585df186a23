// SPDX-License-Identifier: Apache-2.0
// One run of a confined program, from its start to its end or to the moment when nobody wants it any more.
#pragma once

#include "job/Confinement.h"

#include <QByteArray>

#include <atomic>
#include <chrono>
#include <functional>

namespace tapeprint::job
{

/// Takes what the program writes on standard output, piece by piece. \return false: stop, there is no place for it.
using TakeBytes = std::function<bool(const QByteArray &)>;

/// How long a run may take. 2,000 labels take the filters half a minute; a machine may be fifty times as slow.
constexpr std::chrono::seconds longestRun{1800};

struct ConfinedRun {
    enum class End {
        finished,   ///< it came to its end: see exitCode
        crashed,    ///< a signal ended it
        notStarted, ///< see reason
        refused,    ///< take() answered false
        stopped,    ///< the stop flag was set
        tooLong,    ///< the time was up
    };
    End end = End::notStarted;
    int exitCode = -1;
    QString reason;      ///< of a run that could not be started, as the system says it
    QByteArray messages; ///< what it wrote on standard error: the beginning and the end when there is much
};

/// Runs a program confined and waits for its end. A run that ends in any way but by itself leaves no process behind,
/// and neither does one whose starter is killed. Needs no event loop; may be called in any thread that goes on until
/// then.
/// \param stop looked at at least ten times a second; null: nobody will stop it.
ConfinedRun runConfined(const ConfinedCommand &command, const TakeBytes &take, const std::atomic<bool> *stop = nullptr,
                        std::chrono::milliseconds longest = longestRun);

} // namespace tapeprint::job
