// SPDX-License-Identifier: Apache-2.0
// Choosing the road of a job: a print queue, or filters alone.
#include "host/Printing.h"

#include "host/FilterRun.h"
#include "host/JobSubmission.h"
#include "host/Texts.h"

#include <array>

namespace tapeprint
{

namespace
{

/// The states of a job, named here for the translation catalogues.
[[maybe_unused]] constexpr std::array jobStates{
    QT_TRANSLATE_NOOP("tapeprint::Texts", "pending"),    QT_TRANSLATE_NOOP("tapeprint::Texts", "pending-held"),
    QT_TRANSLATE_NOOP("tapeprint::Texts", "processing"), QT_TRANSLATE_NOOP("tapeprint::Texts", "processing-stopped"),
    QT_TRANSLATE_NOOP("tapeprint::Texts", "canceled"),   QT_TRANSLATE_NOOP("tapeprint::Texts", "aborted"),
    QT_TRANSLATE_NOOP("tapeprint::Texts", "completed"),  QT_TRANSLATE_NOOP("tapeprint::Texts", "sent"),
};

/// The PPD of the queue. A queue without one is printed to all the same.
std::optional<Destination> withQueuePpd(Destination destination, QString *error)
{
    QString reason;
    destination.ppd = openQueuePpd(*destination.queue, &reason);
    if (!reason.isNull()) {
        *error = reason;
        return std::nullopt;
    }
    return destination;
}

} // namespace

std::optional<Destination> openDestination(const CommandLine &line, QString *error)
{
    Destination destination;
    if (!line.ppdPath.isEmpty()) {
        destination.ppdPath = line.ppdPath;
        destination.ppd = openPpdFile(line.ppdPath, error);
        if (!destination.ppd) {
            return std::nullopt;
        }
        if (line.queue.isEmpty()) {
            return destination;
        }
    }
    destination.queue = findQueue(line.queue, line.instance, error);
    if (!destination.queue) {
        return std::nullopt;
    }
    return destination.ppd ? std::optional(std::move(destination)) : withQueuePpd(std::move(destination), error);
}

std::optional<Destination> openDestination(const QString &queue, const QString &instance, QString *error)
{
    Destination destination;
    destination.queue = findQueue(queue, instance, error);
    return destination.queue ? withQueuePpd(std::move(destination), error) : std::nullopt;
}

QString PrintedJob::sentence() const
{
    if (queue.isNull()) {
        return Texts::tr("The printer's bytes are in %1 (%2 bytes).").arg(output.path, QString::number(output.bytes));
    }
    return Texts::tr("Job %1-%2 is %3.")
        .arg(queue, QString::number(job.id), Texts::tr(job.state.toLatin1().constData()));
}

std::optional<PrintedJob> printJob(const DialogModel &model, const CommandLine &line, const DocumentSpool &documents,
                                   QString *error)
{
    const Destination &destination = model.destination();
    const QString title = line.title.isEmpty() ? documents.defaultTitle() : line.title;
    if (destination.queue && line.outputPath.isEmpty()) {
        const std::optional<SubmittedJob> job =
            submitJob(*destination.queue, title, model.job(), documents.files(), error);
        if (!job) {
            return std::nullopt;
        }
        return PrintedJob{destination.queue->name, *job, {}};
    }
    FilterJob filterJob{destination.ppdPath, title, model.job(), documents.files(), line.outputPath};
    if (filterJob.outputPath.isEmpty()) {
        filterJob.outputPath = freeOutputPath(documents.defaultTitle());
    }
    const std::optional<FilterOutput> output = runFilters(filterJob, error);
    if (!output) {
        return std::nullopt;
    }
    return PrintedJob{{}, {}, *output};
}

} // namespace tapeprint
