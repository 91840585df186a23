// SPDX-License-Identifier: Apache-2.0
// Choosing the road of a job: a print queue, or filters alone.
#include "job/Printing.h"

#include "job/Conversion.h"
#include "job/OutputFile.h"
#include "job/PlainText.h"
#include "job/PreparedJob.h"
#include "job/PrivateFile.h"
#include "job/SavedPdf.h"
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

/// The queue's own description as a file, for a job that is to become bytes in a file all the same. Null without an
/// error when the job has a file of its own.
std::unique_ptr<PrivateFile> ppdOfQueue(const SettledJob &job, Problem *error)
{
    if (!job.ppdPath.isEmpty()) {
        return nullptr;
    }
    if (job.queuePpd.isEmpty()) {
        *error = {
            Problem::BadDescription,
            Texts::tr("The queue %1 has no printer description by which bytes for the printer could be made: save "
                      "a PDF instead.")
                .arg(harmless(job.queue->name))};
        return nullptr;
    }
    QString reason;
    std::unique_ptr<PrivateFile> file = PrivateFile::create(QStringLiteral("queue.ppd"), &reason);
    if (!file || !file->fill(job.queuePpd, &reason)) {
        *error = noRoomForTemporaryFiles(reason);
        return nullptr;
    }
    return file;
}

} // namespace

QString PrintedJob::sentence() const
{
    if (isPdf) {
        return Texts::tr("The PDF is in %1 (%2 bytes).").arg(outputName(output.path), QString::number(output.bytes));
    }
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
    return prepareJob(job, files, stop, error).has_value();
}

std::optional<PrintedJob> printJob(const SettledJob &job, const QString &title, const QStringList &files,
                                   const PrintWatch &watch, Problem *error)
{
    if (!job.pdfPath.isEmpty()) {
        const std::optional<FilterOutput> output = saveAsPdf(job, files, watch.stop, error);
        return output ? std::optional(PrintedJob{{}, {}, *output, true}) : std::nullopt;
    }
    const std::optional<PreparedJob> prepared = prepareJob(job, files, watch.stop, error);
    if (!prepared) {
        return std::nullopt;
    }
    if (job.isFile()) {
        const std::unique_ptr<PrivateFile> queuePpd = ppdOfQueue(job, error);
        if (job.ppdPath.isEmpty() && !queuePpd) {
            return std::nullopt;
        }
        const std::optional<FilterOutput> output =
            runFilters({queuePpd ? queuePpd->path() : job.ppdPath, job.title(title), prepared->options, prepared->files,
                        job.outputPath, job.mayReplaceOutput, job.trustsPpd, job.documents, &watch.stop},
                       error);
        return output ? std::optional(PrintedJob{{}, {}, *output}) : std::nullopt;
    }
    const std::optional<SubmittedJob> submitted =
        submitJob({*job.queue, job.title(title), prepared->options, prepared->files}, watch, error);
    return submitted ? std::optional(PrintedJob{job.queue->name, *submitted, {}}) : std::nullopt;
}

} // namespace tapeprint::job
