// SPDX-License-Identifier: Apache-2.0
// Finding the queue and the PPD of a request. A queue without a PPD is printed to all the same.
#include "job/Destination.h"

#include "job/OutputFile.h"
#include "job/PpdPrograms.h"
#include "job/SampleDescriptions.h"

#include <QFileInfo>

namespace tapeprint::job
{

namespace
{

std::optional<Destination> withQueuePpd(const ServerConnection &server, Destination destination, Problem *error)
{
    Problem reason;
    destination.ppd = openQueuePpd(server, *destination.queue, &destination.ppdDigest, &reason);
    if (!reason.isNull() || server.isStopped()) {
        *error = reason;
        return std::nullopt;
    }
    return destination;
}

/// Whether the job can be done by the PPD file's filters: asked before there is a window, and again before they run.
bool mayRun(const Destination &destination, Problem *error)
{
    if (!destination.outputPath.isEmpty() &&
        !mayWriteTo({destination.outputPath, destination.mayReplaceOutput, destination.documents}, error)) {
        return false;
    }
    return mayRunPrograms(destination.ppdPath, destination.ppd.get(), destination.trustsPpd, error);
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

std::optional<Destination> openDestination(const JobRequest &request, Problem *error, const std::atomic<bool> *stop)
{
    Destination destination;
    destination.outputPath = request.outputPath;
    destination.pdfPath = request.pdfPath;
    destination.mayReplaceOutput = request.mayReplaceOutput;
    destination.trustsPpd = request.trustsPpd;
    destination.documents = request.documents;
    if (!request.ppdPath.isEmpty()) {
        destination.ppdPath = descriptionFile(request.ppdPath);
        destination.ppd = openPpdFile(destination.ppdPath, error);
        if (!destination.ppd) {
            return std::nullopt;
        }
        if (const std::optional<FileStamp> description = FileStamp::ofPath(destination.ppdPath)) {
            destination.documents.push_back(*description);
        }
        const bool isOnItsOwn = (request.queue.isEmpty() || !request.outputPath.isEmpty()) && request.pdfPath.isEmpty();
        if (isOnItsOwn && !request.onlyShows && !mayRun(destination, error)) {
            return std::nullopt;
        }
        if (request.queue.isEmpty()) {
            return destination;
        }
    }
    const auto server = ServerConnection::open(stop);
    destination.queue = findQueue(*server, {request.queue, request.instance}, error);
    if (!destination.queue) {
        return std::nullopt;
    }
    return destination.ppd ? std::optional(std::move(destination))
                           : withQueuePpd(*server, std::move(destination), error);
}

} // namespace tapeprint::job
