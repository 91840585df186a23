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
    bool wait = false;     ///< without a window: the run ends when the job does
    bool silent = false;   ///< -s: say nothing about a job that went well
    bool adjusts = false;  ///< a value that is not taken as it is does not keep the job from being printed
    QString server;        ///< -h HOST:PORT; empty: the one that CUPS is set up for
    QString user;          ///< -U USER; empty: the person's own
    bool encrypts = false; ///< -E: no connection that is not encrypted
    QStringList files;     ///< none: standard input

    QString savePreset;       ///< the settings are saved under this name; empty: they are not
    QString deletePreset;     ///< the preset of this name is deleted; empty: none is
    bool listPresets = false; ///< the names of the queue's presets are shown

    bool check = false;   ///< see whether the job would be printed
    bool resolve = false; ///< options that do not go together are changed
    bool json = false;    ///< everything that is said is one JSON object
    QString complete;     ///< what a shell asks for to complete a line; null: nothing

    /// Whether presets are looked at or deleted, and nothing else is done.
    bool onlyManagesPresets() const { return listPresets || !deletePreset.isEmpty(); }
    /// Whether the options are only shown or saved.
    bool onlyShows() const { return (showOptions || summary || !savePreset.isEmpty()) && !check; }
    /// Whether there is to be a job at all.
    bool submits() const { return !onlyManagesPresets() && !onlyShows() && !check; }
    /// Whether the documents are needed.
    bool readsDocuments() const { return !onlyShows(); }
};

/// Reads the arguments that follow the program's name. \param error takes a sentence about what is wrong.
std::optional<CommandLine> parseCommandLine(const QStringList &arguments, job::Problem *error);

/// What --help prints.
QString commandLineHelp();

} // namespace tapeprint
