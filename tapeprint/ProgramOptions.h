// SPDX-License-Identifier: Apache-2.0
// Every option of the program in one table: the parser, --help and the shells' completions read it.
#pragma once

#include "tapeprint/CommandLine.h"

#include <QString>
#include <QStringList>

#include <span>

namespace tapeprint
{

/// What a value of an option is, for completing it.
enum class ValueKind { None, Text, Queue, JobOption, File, Time };

/// An option as it is written: one letter with lp's meaning, or a long one of the dialog's own.
struct ProgramOption {
    const char *name;      ///< with its dashes: "-d", "--ppd"
    const char *valueName; ///< as --help writes it; null: the option takes no value
    ValueKind valueKind;
    /// Takes the option into the command line. \param value null for an option without one. \param error takes a
    /// sentence when the value is none.
    bool (*take)(CommandLine &line, const QString &value, job::Problem *error);
    const char *help; ///< lines; null: the option is not for people

    bool takesValue() const { return valueName != nullptr; }
    bool isLong() const { return name[1] == '-'; }
};

/// All options, in the order of --help.
std::span<const ProgramOption> programOptions();

/// The words that -H takes; it takes times of the clock, too.
QStringList holdWords();

/// What to use instead of a letter of lp that this program does not take; null for any other.
QString insteadOfLetter(QChar letter);

} // namespace tapeprint
