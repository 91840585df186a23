// SPDX-License-Identifier: Apache-2.0
// The fake answers as job/ does: with the same kinds of problems, and with nothing when it was stopped.
#include "FakeServer.h"

#include <algorithm>
#include <chrono>
#include <thread>

namespace hosttest
{

using namespace tapeprint;

FakeServer::Queue *FakeServer::find(const QString &name)
{
    const auto found = std::find_if(mQueues.begin(), mQueues.end(),
                                    [&name](const Queue &queue) { return queue.printer.name == name; });
    return found == mQueues.end() ? nullptr : &*found;
}

void FakeServer::add(const QString &name, const QByteArray &morePpd)
{
    locked([&] {
        job::Printer printer;
        printer.name = name;
        printer.state = job::PrinterState::Idle;
        printer.configuredAt = 1;
        mQueues.push_back({printer, morePpd});
    });
}

void FakeServer::change(const QString &name, const std::function<void(job::Printer &)> &change)
{
    locked([&] { change(find(name)->printer); });
}

void FakeServer::remove(const QString &name)
{
    locked([&] { std::erase_if(mQueues, [&name](const Queue &queue) { return queue.printer.name == name; }); });
}

void FakeServer::describe(const QString &name, const QByteArray &morePpd)
{
    locked([&] {
        Queue *queue = find(name);
        queue->morePpd = morePpd;
        ++queue->printer.configuredAt;
    });
}

std::vector<job::JobRequest> FakeServer::opened() const
{
    return locked([&] { return mOpened; });
}

int FakeServer::readings() const
{
    return locked([&] { return mReadings; });
}

std::optional<job::PrinterList> FakeServer::list(job::Problem *problem)
{
    return locked([&]() -> std::optional<job::PrinterList> {
        ++mReadings;
        if (mIsSilent) {
            *problem = {job::Problem::Unreachable, u"silence"_qs};
            return std::nullopt;
        }
        job::PrinterList printers;
        for (const Queue &queue : mQueues) {
            printers.push_back(queue.printer);
        }
        return printers;
    });
}

std::optional<job::Destination> FakeServer::open(const job::JobRequest &request, const std::atomic<bool> &stop,
                                                 job::Problem *problem)
{
    locked([&] { mOpened.push_back(request); });
    while (!stop && locked([&] { return mHeld.contains(request.queue); })) {
        std::this_thread::sleep_for(std::chrono::milliseconds(2));
    }
    return locked([&]() -> std::optional<job::Destination> {
        if (mIsSilent || mFails) {
            *problem = {job::Problem::Unreachable, u"silence"_qs};
            return std::nullopt;
        }
        if (mIsDeclined) {
            *problem = {mDeclinedAs, u"no password"_qs};
            return std::nullopt;
        }
        const Queue *queue = find(request.queue.isEmpty() ? mDefault : request.queue);
        if (stop || queue == nullptr) {
            *problem = {job::Problem::NoSuchPrinter, u"no queue "_qs + request.queue};
            return std::nullopt;
        }
        job::Destination destination;
        destination.queue.emplace();
        destination.queue->name = queue->printer.name;
        destination.queue->instance = request.instance;
        destination.queue->configuredAt = queue->printer.configuredAt;
        destination.queue->limits = queue->limits;
        destination.outputPath = request.outputPath;
        destination.ppdPath = request.ppdPath;
        destination.ppdDigest = queue->morePpd + "digest";
        const QString path = writeFile(mFolder, QStringLiteral("fake%1.ppd").arg(++mFiles), testPpd(queue->morePpd));
        destination.ppd = job::openPpdFile(path, problem);
        return destination;
    });
}

dialog::PrinterSource FakeServer::source(int pauseMs)
{
    dialog::PrinterSource source;
    source.list = [self = shared_from_this()](const std::atomic<bool> & /*stop*/, job::Problem *problem) {
        return self->list(problem);
    };
    source.open = [self = shared_from_this()](const job::JobRequest &request, const std::atomic<bool> &stop,
                                              job::Problem *problem) { return self->open(request, stop, problem); };
    source.pause = std::chrono::milliseconds(pauseMs);
    return source;
}

} // namespace hosttest
