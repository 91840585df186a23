// SPDX-License-Identifier: Apache-2.0
// A job as a command line for a shell: what a person has set in the window, to be kept in a script.
#pragma once

#include "job/JobOptions.h"
#include "job/SettledJob.h"

#include <QString>
#include <QStringList>

namespace tapeprint::job
{

/// A word as a POSIX shell reads it back: as it is, or in single quotes.
QString shellWord(const QString &text);

/// An option as -o takes it: NAME=VALUE, the value in quotes where CUPS would take it for several.
QString optionWord(const QString &name, const QString &value);

/// What a command is made of.
struct CommandSource {
    SettledJob job;
    QString title;     ///< of the job; empty: none is given
    QStringList files; ///< none: standard input
    /// The options to show in the place of the job's own: passwords in asterisks.
    JobOptions options;
    JobOptions carried;
};

/// The command that does the same job without a window.
QString tapeprintCommand(const CommandSource &source);

/// The command that sends the documents with the same options by lp, which lays nothing out on labels; null when there
/// is no queue.
QString lpCommand(const CommandSource &source);

} // namespace tapeprint::job
