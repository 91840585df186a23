// SPDX-License-Identifier: Apache-2.0
// What the shells' completions ask the program for, so that each of them stays thin and none knows an option by itself.
#pragma once

#include "tapeprint/CommandLine.h"

#include <QString>

#include <utility>
#include <vector>

namespace tapeprint
{

/// A word that may stand on the command line, and what it means.
using Completion = std::pair<QString, QString>;

/// The words that a command line with --complete asks for: "arguments" are this program's options, "files" as a meaning
/// standing for a value that is a file's name, "queue" and "option" for the next two; "queues" are the queues and
/// instances, "options" the job's options, with "=", "choices:NAME" the values of one. Nothing where the printer cannot
/// be asked: a shell has nobody to tell.
std::vector<Completion> completions(const CommandLine &line);

/// Writes them to standard output, one a line, the meaning behind a tabulator. \return the exit status.
int writeCompletions(const CommandLine &line);

} // namespace tapeprint
