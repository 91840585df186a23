// SPDX-License-Identifier: Apache-2.0
// Options that a printer cannot do together, as its description says, and what to change so that it can.
#pragma once

#include "job/JobOptions.h"

#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

#include <cups/ppd.h>

namespace tapeprint::job
{

/// An option that takes part in a conflict, with the choice that is marked.
struct ConflictingChoice {
    QString key;
    QString choice;
    QString text;             ///< for people: "Option: Choice"
    bool isInstalled = false; ///< says what is built into the printer
};

/// Choices that do not go together.
struct Conflict {
    std::vector<ConflictingChoice> choices; ///< at least one; the job's own before what is built in

    QString sentence() const;
};

/// The conflicts among the marked choices, each once however often the description says it. Constraints that name
/// options or choices which are not there say nothing. \param ppd may be null.
std::vector<Conflict> conflictsOf(ppd_file_t *ppd);

/// The sentences of conflicts.
QStringList sentencesOf(const std::vector<Conflict> &conflicts);

/// What is to be changed so that no conflict is left.
struct Resolution {
    struct Change {
        QString key;
        QString choice;
        QString sentence; ///< for people: which option changes, from what to what
    };
    std::vector<Change> changes;

    /// All that it changes.
    QString sentence() const;
};

/// Finds a way out of the conflicts, as cupsResolveConflicts does where it knows one; nothing when there is none. What
/// is built into the printer stays as it is, and so does, where that is possible, an option that the person wants. The
/// marks are as they were afterwards. \param wanted keywords in any letters, the one that counts most first: of those
/// that are in a conflict the first that can stay does.
std::optional<Resolution> resolutionOf(ppd_file_t *ppd, const QStringList &wanted);

/// The names of options, the latest first: of what is laid down for a job that is what was asked for before what was
/// saved.
QStringList latestFirst(const JobOptions &options);

} // namespace tapeprint::job
