// SPDX-License-Identifier: Apache-2.0
// What a run of the program says when it is over.
#pragma once

#include <QStringList>

namespace tapeprint
{

/// Lines for standard output and standard error, and the exit status.
struct RunReport {
    QStringList output;
    QStringList messages;
    int status = 0;
};

/// The report of a run that failed. \param sentence what is wrong and what to do.
inline RunReport failedRun(const QString &sentence)
{
    return {{}, {sentence}, 1};
}

} // namespace tapeprint
