// SPDX-License-Identifier: Apache-2.0
// What went wrong: a sentence for a person, and a kind for whoever has to act on it without reading.
#pragma once

#include <QString>

#include <utility>

namespace tapeprint::job
{

/// A problem that kept something from being done. Without one its sentence is null.
struct Problem {
    /// What kind of problem it is. A front end makes of it what it needs, such as an exit status.
    enum Kind {
        General,          ///< what no other kind says: no room for temporary files, a program that is missing
        BadUsage,         ///< what was asked for does not go together or cannot be understood
        BadDocument,      ///< a document that cannot be read, is broken, protected, empty or has changed
        BadDescription,   ///< a printer description (PPD) that cannot be read or may not be used
        Conflict,         ///< options that the printer cannot do together
        RefusedValue,     ///< a value that the printer or a panel does not take
        NoSuchPrinter,    ///< a queue or instance that the server does not know, or no default printer
        Unreachable,      ///< a print server that does not answer, or no longer
        RejectedJob,      ///< a job that the server does not take: the queue rejects jobs, the person may not print
        FailedJob,        ///< a job that was taken, and then could not be printed
        UnwritableOutput, ///< a file or stream that the result cannot be written to
        Cancelled,        ///< the person has changed their mind
    };

    Problem() = default;
    /// A problem of no special kind.
    Problem(QString text) : sentence(std::move(text)) {} // NOLINT(*-explicit-*): a sentence is one
    Problem(Kind what, QString text) : kind(what), sentence(std::move(text)) {}

    /// Whether there is none.
    bool isNull() const { return sentence.isNull(); }

    Kind kind = General;
    QString sentence; ///< what is wrong and what to do, in the language of the moment
};

} // namespace tapeprint::job
