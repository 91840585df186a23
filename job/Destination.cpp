// SPDX-License-Identifier: Apache-2.0
// Finding the queue and the PPD of a request. A queue without a PPD is printed to all the same.
#include "job/Destination.h"

#include <QFileInfo>

namespace tapeprint::job
{

namespace
{

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

QString Destination::title() const
{
    if (!queue) {
        return ppd != nullptr && ppd->nickname != nullptr ? QString::fromUtf8(ppd->nickname)
                                                          : QFileInfo(ppdPath).fileName();
    }
    return queue->fullName();
}

std::optional<Destination> openDestination(const JobRequest &request, QString *error)
{
    Destination destination;
    destination.outputPath = request.outputPath;
    if (!request.ppdPath.isEmpty()) {
        destination.ppdPath = request.ppdPath;
        destination.ppd = openPpdFile(request.ppdPath, error);
        if (!destination.ppd) {
            return std::nullopt;
        }
        if (request.queue.isEmpty()) {
            return destination;
        }
    }
    destination.queue = findQueue(request.queue, request.instance, error);
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

} // namespace tapeprint::job
