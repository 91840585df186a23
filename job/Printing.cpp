// SPDX-License-Identifier: Apache-2.0
// Choosing the road of a job: a print queue, or filters alone.
#include "job/Printing.h"

#include "job/Conversion.h"
#include "job/DocumentCheck.h"
#include "job/LaidOutJob.h"
#include "job/OutputFile.h"
#include "job/PrivateFile.h"
#include "job/Texts.h"

#include <array>
#include <memory>

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

/// The documents as one of labels.
std::unique_ptr<PrivateFile> layOut(const SettledJob &job, const QStringList &files, const std::atomic<bool> &stop,
                                    Problem *error)
{
    QString reason;
    std::unique_ptr<PrivateFile> labels = PrivateFile::create(QStringLiteral("labels.pdf"), &reason);
    if (!labels) {
        *error = noRoomForTemporaryFiles(reason);
        return nullptr;
    }
    const std::optional<PdfDocuments> documents = collectPdfs(job, files, stop, error);
    return documents && layOutJob(job, *documents, labels->path(), stop, error) ? std::move(labels) : nullptr;
}

} // namespace

QString PrintedJob::sentence() const
{
    if (queue.isNull() && isStandardOutput(output.path)) {
        return Texts::tr("The printer's bytes went to standard output (%1 bytes).").arg(QString::number(output.bytes));
    }
    if (queue.isNull()) {
        return Texts::tr("The printer's bytes are in %1 (%2 bytes).")
            .arg(outputName(output.path), QString::number(output.bytes));
    }
    return Texts::tr("Job %1-%2 is %3.")
        .arg(queue, QString::number(job.id), Texts::tr(job.state.toLatin1().constData()));
}

bool isPrintable(const SettledJob &job, const QStringList &files, const std::atomic<bool> &stop, Problem *error)
{
    return job.page.isTape ? layOut(job, files, stop, error) != nullptr : areWhole(files, error);
}

std::optional<PrintedJob> printJob(const SettledJob &job, const QString &title, const QStringList &files,
                                   const PrintWatch &watch, Problem *error)
{
    QStringList printed = files;
    std::unique_ptr<PrivateFile> labels;
    if (job.page.isTape) {
        labels = layOut(job, files, watch.stop, error);
        if (!labels) {
            return std::nullopt;
        }
        printed = {labels->path()};
    } else if (!areWhole(files, error)) {
        return std::nullopt;
    }
    if (job.isFile()) {
        const std::optional<FilterOutput> output =
            runFilters({job.ppdPath, title, job.carried(), printed, job.outputPath, job.mayReplaceOutput, job.trustsPpd,
                        job.documents, &watch.stop},
                       error);
        return output ? std::optional(PrintedJob{{}, {}, *output}) : std::nullopt;
    }
    const std::optional<SubmittedJob> submitted = submitJob({*job.queue, title, job.carried(), printed}, watch, error);
    return submitted ? std::optional(PrintedJob{job.queue->name, *submitted, {}}) : std::nullopt;
}

} // namespace tapeprint::job
