// SPDX-License-Identifier: Apache-2.0
// The server tells it among a queue's attributes.
#include "job/QueueCheck.h"

#include "job/PlainText.h"
#include "job/ServerConnection.h"
#include "job/Texts.h"

#include <memory>

#include <cups/cups.h>

namespace tapeprint::job
{

namespace
{

struct DestinationDeleter {
    void operator()(cups_dest_t *destination) const { cupsFreeDests(1, destination); }
};

QString attributeOf(const cups_dest_t &destination, const char *name)
{
    return QString::fromUtf8(cupsGetOption(name, destination.num_options, destination.options));
}

} // namespace

bool takesJobs(const PrintQueue &queue, Problem *error)
{
    const std::unique_ptr<ServerConnection> server = ServerConnection::open(nullptr);
    if (!server->isOpen()) {
        *error = {Problem::Unreachable, server->problem()};
        return false;
    }
    const std::unique_ptr<cups_dest_t, DestinationDeleter> destination(
        cupsGetNamedDest(server->http(), queue.name.toUtf8().constData(), nullptr));
    if (!destination) {
        *error = server->isUnreachable()
                     ? Problem(Problem::Unreachable, server->problem())
                     : Problem(Problem::NoSuchPrinter,
                               Texts::tr("The queue %1 cannot be reached (%2): see lpstat -e for the queues there are.")
                                   .arg(harmless(queue.name), server->problem()));
        return false;
    }
    if (attributeOf(*destination, "printer-is-accepting-jobs") == u"false") {
        *error = {Problem::RejectedJob, Texts::tr("The queue %1 takes no jobs: see lpstat -a %1.").arg(queue.name)};
        return false;
    }
    return true;
}

} // namespace tapeprint::job
