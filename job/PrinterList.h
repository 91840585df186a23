// SPDX-License-Identifier: Apache-2.0
// Every printer there is to choose from, with its state: queues, classes, and the instances that a person saved.
#pragma once

#include "job/Printers.h"
#include "job/SavedDestinations.h"
#include "job/StateReasons.h"

#include <QString>

#include <atomic>
#include <optional>
#include <vector>

#include <cups/cups.h>

namespace tapeprint::job
{

enum class PrinterState { Unknown, Idle, Processing, Stopped };

/// A queue, a class or an instance of one, as the server told of it.
struct Printer {
    QString name;
    QString instance; ///< empty for the queue itself
    QString info;     ///< the description that the administrator gave it
    QString location;
    PrinterState state = PrinterState::Unknown;
    QString stateMessage; ///< of a driver or an administrator, in their own words
    std::vector<StateReason> reasons;
    bool isAccepting = true;
    bool isDefault = false;
    bool isClass = false;
    bool isDiscovered = false; ///< found on the network; the server has no queue for it yet
    int configuredAt = 0;      ///< when its PPD or its settings were changed last, in the server's seconds

    /// QUEUE or QUEUE/INSTANCE.
    QString fullName() const { return QueueName{name, instance}.text(); }
    /// Whether it prints what it is sent, without somebody seeing to it first.
    bool isWorking() const;
    /// Whether there is something that the person should know before printing.
    bool isFine() const;
    /// The state in a few words, such as "Stopped: out of tape".
    QString stateWords(bool isTape) const;
    /// What the person should know before printing, as a sentence; null when all is fine.
    QString notice(bool isTape) const;

    bool operator==(const Printer &other) const = default;
};
using PrinterList = std::vector<Printer>;

/// The printers in the answer to CUPS-Get-Printers, each name once.
PrinterList printersIn(ipp_t *response);
/// The list with the instances that were saved, each behind its queue, and the default marked.
PrinterList withSaved(const PrinterList &printers, const SavedDestinations &saved);

/// Asks a server for all printers, by one request however many there are.
/// \return nothing when it does not answer; \param error takes why, without a sentence when it was stopped.
std::optional<PrinterList> readPrinters(const std::atomic<bool> *stop, Problem *error);

/// One look, of a second or two, at the printers on the network that the server has no queue for.
PrinterList findOnNetwork();

} // namespace tapeprint::job
