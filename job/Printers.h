// SPDX-License-Identifier: Apache-2.0
// One print queue of the server: its name, what was laid down for it, its PPD.
#pragma once

#include "job/JobOptions.h"
#include "job/PpdFile.h"
#include "job/Problem.h"
#include "job/ServerConnection.h"
#include "job/ServerLimits.h"

#include <QByteArray>
#include <QString>

#include <optional>

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
    QString deviceUri;    ///< null when the server does not say
    int configuredAt = 0; ///< when its PPD or its settings were changed last, in the server's seconds
    JobOptions options;   ///< what the person saved for the queue or instance
    ServerLimits limits;  ///< what the server takes in a job, as far as it says

    /// QUEUE or QUEUE/INSTANCE.
    QString fullName() const { return QueueName{name, instance}.text(); }
};

/// Why a call on a connection failed. Without a sentence when it was stopped.
Problem serverProblem(const ServerConnection &server);

/// The queue of a name; an empty name stands for the default printer.
std::optional<PrintQueue> findQueue(const ServerConnection &server, const QueueName &named, Problem *error);

/// The PPD of a queue, from the server. Null without an error when the queue has none.
/// \param digest takes what tells two PPDs apart.
PpdFile openQueuePpd(const ServerConnection &server, const PrintQueue &queue, QByteArray *digest, Problem *error);

} // namespace tapeprint::job
