// SPDX-License-Identifier: Apache-2.0
// A document that comes through a descriptor: read to its end into a file that only the person can read.
#pragma once

#include "dialog/BackgroundWork.h"
#include "job/PrivateFile.h"
#include "job/Problem.h"

#include <QDBusUnixFileDescriptor>
#include <QObject>
#include <QString>

#include <atomic>
#include <memory>

namespace tapeprint::portal
{

/// How much is taken, in bytes.
struct ReceiveLimits {
    /// No label or letter comes near it; a caller that never ends does.
    qint64 most = qint64{4} << 30;
    /// So much stays free where temporary files are: it is often memory, and what prints needs room of its own.
    qint64 keptFree = qint64{256} << 20;
};

/// Reads a descriptor to its end. Files, pipes and sockets will do. \param stop when it becomes true, nobody wants the
/// document any more, and the answer comes soon, also where nothing is written to the other end.
/// \return null, and a sentence in *problem, on failure; without a sentence it was stopped.
std::shared_ptr<job::PrivateFile> receiveDocument(int descriptor, const ReceiveLimits &limits,
                                                  const std::atomic<bool> &stop, job::Problem *problem);

/// The same away from the window's thread.
class ReceivedDocument : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    void receive(const QDBusUnixFileDescriptor &descriptor);
    /// The file, when it has arrived. It goes with the last who holds it.
    const std::shared_ptr<job::PrivateFile> &file() const { return mFile; }

Q_SIGNALS:
    void arrived();
    void failed(const job::Problem &problem);

private:
    std::shared_ptr<job::PrivateFile> mFile;
    dialog::BackgroundWork mReading;
};

} // namespace tapeprint::portal
