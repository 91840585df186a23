// SPDX-License-Identifier: Apache-2.0
// Choosing the road of a job: a print queue, or filters alone.
#include "job/Printing.h"

#include "job/LaidOutJob.h"
#include "job/Texts.h"

#include <QTemporaryDir>

#include <array>

namespace tapeprint::job
{

namespace
{

/// The states of a job, named here for the translation catalogues.
[[maybe_unused]] constexpr std::array jobStates{
    QT_TRANSLATE_NOOP("tapeprint::job::Texts", "pending"),
    QT_TRANSLATE_NOOP("tapeprint::job::Texts", "pending-held"),
    QT_TRANSLATE_NOOP("tapeprint::job::Texts", "processing"),
    QT_TRANSLATE_NOOP("tapeprint::job::Texts", "processing-stopped"),
    QT_TRANSLATE_NOOP("tapeprint::job::Texts", "canceled"),
    QT_TRANSLATE_NOOP("tapeprint::job::Texts", "aborted"),
    QT_TRANSLATE_NOOP("tapeprint::job::Texts", "completed"),
    QT_TRANSLATE_NOOP("tapeprint::job::Texts", "sent"),
};

} // namespace

QString PrintedJob::sentence() const
{
    if (queue.isNull()) {
        return Texts::tr("The printer's bytes are in %1 (%2 bytes).").arg(output.path, QString::number(output.bytes));
    }
    return Texts::tr("Job %1-%2 is %3.")
        .arg(queue, QString::number(job.id), Texts::tr(job.state.toLatin1().constData()));
}

std::optional<PrintedJob> printJob(const SettledJob &job, const QString &title, const QStringList &files,
                                   const std::atomic<bool> &stop, QString *error)
{
    QTemporaryDir folder;
    QStringList printed = files;
    if (job.page.isTape) {
        const std::optional<PdfDocuments> documents = collectPdfs(job, files, stop, error);
        printed = {folder.filePath(QStringLiteral("labels.pdf"))};
        if (!documents || !layOutJob(job, *documents, printed.first(), stop, error)) {
            return std::nullopt;
        }
    }
    if (job.isFile()) {
        const std::optional<FilterOutput> output =
            runFilters({job.ppdPath, title, job.carried(), printed, job.outputPath}, error);
        return output ? std::optional(PrintedJob{{}, {}, *output}) : std::nullopt;
    }
    const std::optional<SubmittedJob> submitted = submitJob(*job.queue, title, job.carried(), printed, error);
    return submitted ? std::optional(PrintedJob{job.queue->name, *submitted, {}}) : std::nullopt;
}

} // namespace tapeprint::job
