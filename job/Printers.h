// SPDX-License-Identifier: Apache-2.0
// The print queues of the server: which there are, which is the default, what was laid down for them, their PPDs.
#pragma once

#include "job/JobOptions.h"
#include "job/PpdFile.h"
#include "job/Problem.h"

#include <QString>

#include <optional>
#include <vector>

namespace tapeprint::job
{

/// QUEUE or QUEUE/INSTANCE, as lp and the dialog write it. An instance is a set of options that a person saved.
struct QueueName {
    QString queue;
    QString instance; ///< empty for the queue itself

    static QueueName parse(const QString &text);
    QString text() const { return instance.isEmpty() ? queue : queue + u'/' + instance; }
};

/// A print queue, or an instance of one.
struct PrintQueue {
    QString name;
    QString instance; ///< empty for the queue itself
    QString info;     ///< the description that the administrator gave it
    QString makeModel;
    QString deviceUri;  ///< null when the server does not say
    JobOptions options; ///< what the person saved for the queue or instance

    /// QUEUE or QUEUE/INSTANCE.
    QString fullName() const { return QueueName{name, instance}.text(); }
};

/// Whether the print server can be reached. \param error takes a sentence that names the server.
bool serverAnswers(Problem *error);

/// Every queue and instance.
std::vector<PrintQueue> listQueues();

/// The queue of a name; an empty name stands for the default printer.
std::optional<PrintQueue> findQueue(const QString &name, const QString &instance, Problem *error);

/// The PPD of a queue, from the server. Null without an error when the queue has none.
PpdFile openQueuePpd(const PrintQueue &queue, Problem *error);

} // namespace tapeprint::job
