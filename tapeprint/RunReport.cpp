// SPDX-License-Identifier: Apache-2.0
// Text of strangers reaches a terminal as what it looks like. JSON has its own way of writing it, and readers of their
// own.
#include "tapeprint/RunReport.h"

#include "job/PlainText.h"
#include "tapeprint/JsonReport.h"

#include <cstdio>

namespace tapeprint
{

namespace
{

/// Writes lines. \return whether all of them could be written.
bool writeLines(const QStringList &lines, std::FILE *stream, const char *prefix)
{
    for (const QString &line : lines) {
        std::fprintf(stream, "%s%s\n", prefix, job::harmless(line).toLocal8Bit().constData());
    }
    return std::fflush(stream) == 0;
}

bool writeJson(const RunReport &run)
{
    const QByteArray text = jsonText(run);
    std::fwrite(text.constData(), 1, static_cast<std::size_t>(text.size()), stdout);
    return std::fflush(stdout) == 0;
}

} // namespace

int writeReport(const RunReport &run, bool asJson)
{
    int status = run.status;
    QStringList messages = asJson ? QStringList() : run.messages;
    if (!(asJson ? writeJson(run) : writeLines(run.output, stdout, ""))) {
        messages = {QStringLiteral("Standard output cannot be written: send it elsewhere.")};
        status = exitStatus(job::Problem::UnwritableOutput);
    }
    writeLines(messages, stderr, "tapeprint: ");
    return status;
}

} // namespace tapeprint
