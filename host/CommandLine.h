// SPDX-License-Identifier: Apache-2.0
// The command line: lp's letters with lp's meanings, and the dialog's own long options.
#pragma once

#include "host/JobOptions.h"

#include <QString>
#include <QStringList>

#include <optional>

namespace tapeprint
{

/// What the command line asks for.
struct CommandLine {
    QString queue;    ///< -d QUEUE; empty: the default printer
    QString instance; ///< -d QUEUE/INSTANCE
    /// Options laid down by -o, -n and -P, in the order given.
    JobOptions options;
    QString title;      ///< -t TITLE; empty: the document's name
    QString ppdPath;    ///< --ppd FILE
    QString outputPath; ///< --output FILE
    bool noDialog = false;
    bool showOptions = false;
    bool summary = false;
    bool help = false;
    bool version = false;
    bool silent = false; ///< -s: say nothing about a job that went well
    QStringList files;   ///< none: standard input

    /// Whether the options are only shown and nothing is printed.
    bool onlyShows() const { return showOptions || summary; }
};

/// Reads the arguments that follow the program's name. \param error takes a sentence about what is wrong.
std::optional<CommandLine> parseCommandLine(const QStringList &arguments, QString *error);

/// What --help prints.
QString commandLineHelp();

} // namespace tapeprint
