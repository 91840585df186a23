// SPDX-License-Identifier: Apache-2.0
// The room that foreign data is worked on in: filters and converters see the system read-only, the files they are given
// and a temporary folder of their own; no network, no home, no other process.
#pragma once

#include <QString>
#include <QStringList>

#include <utility>
#include <vector>

namespace tapeprint::job
{

/// A program to be run confined.
struct ConfinedCommand {
    QString program; ///< absolute
    QStringList arguments;
    /// Absolute paths of files and folders outside the system that the program may read, at the same path inside. None
    /// may lie in /proc, /sys or /dev: what comes from there is copied into a private file first.
    QStringList readable = {};
    /// As readable, for what it may also write.
    QStringList writable = {};
    /// Variables beside the few that every program gets (PATH, HOME, TMPDIR, USER, LANG); a later one replaces them.
    std::vector<std::pair<QString, QString>> environment = {};
    /// Whether it sees the machine's settings and devices, as filters need them. A program that is handed its files
    /// open does without, which is quicker to set up: it has fonts alone.
    bool seesSettings = true;
    /// Whether it sets the bounds of ConfinedBounds.h on itself. Another's program has them set on it by one more.
    bool bindsItself = false;
};

/// What a process is started with.
struct ConfinedLaunch {
    QString program;
    QStringList arguments;
    /// All its variables, each NAME=VALUE. It must not be started with any of the starter's: those of the room's own
    /// first process can be read in the room.
    QStringList environment;
    bool confined = false; ///< false: the program runs with the person's rights, but with the same bounds
};

/// How to start a program so that it runs confined, or, where this machine does not allow that, with bounds alone. Ends
/// with the process that started it when it is confined; runConfined() sees to that in either case.
ConfinedLaunch confine(const ConfinedCommand &command);

/// The same without waiting until it has been tried whether this machine allows it. When the program does not come to
/// life, confinementProblem() says whether that was the reason.
ConfinedLaunch confineUntried(const ConfinedCommand &command);

/// A program that sees the settings has done its work in the room: that this machine allows it needs no trial any more.
void noteThatTheRoomWorks();

/// Why nothing can be confined on this machine, in a sentence for the person; null when it can be. Asked once, then
/// remembered; safe to call in any thread.
QString confinementProblem();

} // namespace tapeprint::job
