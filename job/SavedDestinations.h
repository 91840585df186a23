// SPDX-License-Identifier: Apache-2.0
// Which instances of queues a person has saved, and which printer they call their own: the files that lpoptions writes.
#pragma once

#include "job/Printers.h"

#include <QByteArray>

#include <optional>
#include <vector>

namespace tapeprint::job
{

/// The printer that the variable LPDEST or else PRINTER names; of an empty name when neither does. The value "lp" of
/// PRINTER is what many systems set for everybody.
QueueName namedByVariable();

struct SavedDestinations {
    std::vector<QueueName> instances; ///< in the files' order; each once
    QueueName preferred;              ///< the person's own default; of an empty name when there is none

    /// Reads the machine's file, the person's, which has the last word, and the variables LPDEST and PRINTER, which
    /// have the very last. Asks no server.
    static SavedDestinations read();
    /// Adds what one file says: lines "Dest NAME/INSTANCE OPTIONS" and "Default NAME/INSTANCE OPTIONS".
    void add(const QByteArray &text);

    /// Whether there is such an instance. As for libcups, letters' case does not count.
    bool hasInstance(const QueueName &name) const;
};

} // namespace tapeprint::job
