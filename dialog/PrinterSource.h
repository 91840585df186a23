// SPDX-License-Identifier: Apache-2.0
// Where the window has its printers from. Every function is called in threads of its own and may take its time.
#pragma once

#include "job/Destination.h"
#include "job/PrinterList.h"

#include <atomic>
#include <chrono>
#include <functional>
#include <optional>

namespace tapeprint::dialog
{

/// Null functions: the window shows the destination that it was opened with, and offers no other.
struct PrinterSource {
    /// All printers of the server; nothing, and a problem, when it does not answer.
    std::function<std::optional<job::PrinterList>(const std::atomic<bool> &stop, job::Problem *problem)> list;
    /// One look at the network.
    std::function<job::PrinterList()> network;
    /// Opens a destination; nothing, and a problem, on failure.
    std::function<std::optional<job::Destination>(const job::JobRequest &request, const std::atomic<bool> &stop,
                                                  job::Problem *problem)>
        open;

    /// The queue, or QUEUE/INSTANCE, that a program used last: it is opened in place of the default printer, as long as
    /// it is there. Empty: none is known.
    QString lastUsed = {};

    /// How long the server is left alone after each reading.
    std::chrono::milliseconds pause{1000};

    /// The print server of libcups's settings.
    static PrinterSource server()
    {
        PrinterSource source;
        source.list = [](const std::atomic<bool> &stop, job::Problem *problem) {
            return job::readPrinters(&stop, problem);
        };
        source.network = job::findOnNetwork;
        source.open = [](const job::JobRequest &request, const std::atomic<bool> &stop, job::Problem *problem) {
            return job::openDestination(request, problem, &stop);
        };
        return source;
    }
};

} // namespace tapeprint::dialog
