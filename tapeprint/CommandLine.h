// SPDX-License-Identifier: Apache-2.0
// The command line: lp's letters with lp's meanings, and the dialog's own long options.
#pragma once

#include "job/Destination.h"
#include "job/Problem.h"

#include <QString>
#include <QStringList>

#include <optional>

namespace tapeprint
{

/// What the command line asks for.
struct CommandLine {
    /// -d QUEUE/INSTANCE, -t TITLE, --ppd FILE, --trust-ppd, --output FILE; the options of -o, -n and -P in the order
    /// given.
    job::JobRequest request;
    bool noDialog = false;
    bool fitLength = false; ///< the tape becomes as long as the document needs
    bool showOptions = false;
    bool summary = false;
    bool help = false;
    bool version = false;
    bool trustPpd = false;
    bool wait = false;   ///< the run ends when the job does
    bool silent = false; ///< -s: say nothing about a job that went well
    QStringList files;   ///< none: standard input

    /// Whether the options are only shown and nothing is printed.
    bool onlyShows() const { return showOptions || summary; }
};

/// Reads the arguments that follow the program's name. \param error takes a sentence about what is wrong.
std::optional<CommandLine> parseCommandLine(const QStringList &arguments, job::Problem *error);

/// What --help prints.
QString commandLineHelp();

} // namespace tapeprint
