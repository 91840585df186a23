// SPDX-License-Identifier: Apache-2.0
// Choosing the road of a job: a print queue, or filters alone.
#include "host/Printing.h"

#include "host/FilterRun.h"
#include "host/JobSubmission.h"

namespace tapeprint
{

namespace
{

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

std::optional<QString> printJob(const DialogModel &model, const CommandLine &line, const DocumentSpool &documents,
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
        return QStringLiteral("Job %1-%2 is %3.").arg(destination.queue->name, QString::number(job->id), job->state);
    }
    FilterJob filterJob{destination.ppdPath, title, model.job(), documents.files(), line.outputPath};
    if (filterJob.outputPath.isEmpty()) {
        filterJob.outputPath = freeOutputPath(documents.defaultTitle());
    }
    const std::optional<FilterOutput> output = runFilters(filterJob, error);
    if (!output) {
        return std::nullopt;
    }
    return QStringLiteral("The printer's bytes are in %1 (%2 bytes).")
        .arg(output->path, QString::number(output->bytes));
}

} // namespace tapeprint
