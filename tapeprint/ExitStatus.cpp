// SPDX-License-Identifier: Apache-2.0
// The statuses are an interface: a number keeps its meaning, and a new kind gets the next one.
#include "tapeprint/ExitStatus.h"

#include <algorithm>
#include <array>

namespace tapeprint
{

namespace
{

using job::Problem;

struct Status {
    Problem::Kind kind;
    int status;
    const char *name;
    const char *meaning;
};

constexpr std::array statuses{
    Status{Problem::General, 1, "general", "something else, such as no display or no room for temporary files"},
    Status{Problem::BadUsage, 2, "bad-usage", "the command line is wrong"},
    Status{Problem::BadDocument, 3, "bad-document", "a document is unreadable, broken, protected or empty"},
    Status{Problem::Conflict, 4, "conflict", "the printer cannot do the options together"},
    Status{Problem::RefusedValue, 5, "refused-value", "a value that the printer or a panel does not take as it is"},
    Status{Problem::NoSuchPrinter, 6, "no-such-printer", "no such queue or instance, or no default printer"},
    Status{Problem::Unreachable, 7, "unreachable", "the print server does not answer"},
    Status{Problem::RejectedJob, 8, "rejected-job", "the print server or the queue does not take the job"},
    Status{Problem::UnwritableOutput, 9, "unwritable-output", "the output cannot be written"},
    Status{Problem::BadDescription, 10, "bad-description", "the PPD file is wrong, or may not be used"},
    Status{Problem::FailedJob, 11, "failed-job", "the job was taken and then could not be printed"},
    Status{Problem::Cancelled, 12, "cancelled", "the person pressed Cancel"},
};

const Status &statusOf(Problem::Kind kind)
{
    const auto *const found =
        std::find_if(statuses.begin(), statuses.end(), [kind](const Status &status) { return status.kind == kind; });
    return found != statuses.end() ? *found : statuses.front();
}

} // namespace

int exitStatus(Problem::Kind kind)
{
    return statusOf(kind).status;
}

QString kindName(Problem::Kind kind)
{
    return QString::fromLatin1(statusOf(kind).name);
}

QString exitStatusHelp()
{
    QString text = QStringLiteral("Exit status:\n   0  done\n");
    for (const Status &status : statuses) {
        text += QStringLiteral("  %1  %2\n").arg(status.status, 2).arg(QLatin1String(status.meaning));
    }
    return text;
}

} // namespace tapeprint
