// SPDX-License-Identifier: Apache-2.0
// A print server of closures: what it lists, what it opens, and how long it takes is up to the test.
#pragma once

#include "TestPrinter.h"

#include "dialog/PrinterSource.h"

#include <QSet>

#include <memory>
#include <mutex>
#include <vector>

namespace hosttest
{

/// Called from the window's threads and from the test's; a thread that is late keeps it alive.
class FakeServer : public std::enable_shared_from_this<FakeServer>
{
    template <typename Function>
    auto locked(const Function &function) const
    {
        const std::lock_guard lock(mMutex);
        return function();
    }

public:
    /// \param folder where descriptions are written.
    explicit FakeServer(const QTemporaryDir &folder) : mFolder(folder) {}

    /// A queue that stands ready, with the test description and more lines.
    void add(const QString &name, const QByteArray &morePpd = {});
    /// Changes what is told of a queue.
    void change(const QString &name, const std::function<void(tapeprint::job::Printer &)> &change);
    void remove(const QString &name);
    /// A queue gets another description.
    void describe(const QString &name, const QByteArray &morePpd);
    void setDefault(const QString &name)
    {
        locked([&] { mDefault = name; });
    }
    /// What the server takes in a job for a queue.
    void limit(const QString &name, const tapeprint::job::ServerLimits &limits)
    {
        locked([&] { find(name)->limits = limits; });
    }
    /// A server that is silent answers that it does not answer.
    void setSilent(bool isSilent)
    {
        locked([&] { mIsSilent = isSilent; });
    }
    /// Openings of printers fail, though the server lists them.
    void setFails(bool fails)
    {
        locked([&] { mFails = fails; });
    }
    /// Openings of printers want a password, which the person declines to give; RejectedJob: gives wrong ones.
    void setDeclined(bool isDeclined, tapeprint::job::Problem::Kind kind = tapeprint::job::Problem::Cancelled)
    {
        locked([&] {
            mIsDeclined = isDeclined;
            mDeclinedAs = kind;
        });
    }
    /// A queue gets another description in the second in which it was configured before.
    void describeInTheSameSecond(const QString &name, const QByteArray &morePpd)
    {
        locked([&] { find(name)->morePpd = morePpd; });
    }
    /// Holds the opening of a printer up until it is let go; the window's change of mind ends it as well.
    void hold(const QString &name)
    {
        locked([&] { mHeld.insert(name); });
    }
    void letGo(const QString &name)
    {
        locked([&] { mHeld.remove(name); });
    }

    /// Everything that was asked to be opened, in its order.
    std::vector<tapeprint::job::JobRequest> opened() const;
    /// How often the list was asked for.
    int readings() const;

    /// \param pauseMs between two readings.
    tapeprint::dialog::PrinterSource source(int pauseMs = 20);

private:
    struct Queue {
        tapeprint::job::Printer printer;
        QByteArray morePpd;
        tapeprint::job::ServerLimits limits = {};
    };

    Queue *find(const QString &name);
    std::optional<tapeprint::job::PrinterList> list(tapeprint::job::Problem *problem);
    std::optional<tapeprint::job::Destination> open(const tapeprint::job::JobRequest &request,
                                                    const std::atomic<bool> &stop, tapeprint::job::Problem *problem);

    const QTemporaryDir &mFolder;
    mutable std::mutex mMutex;
    std::vector<Queue> mQueues;
    QString mDefault;
    QSet<QString> mHeld;
    std::vector<tapeprint::job::JobRequest> mOpened;
    int mReadings = 0;
    int mFiles = 0;
    bool mIsSilent = false;
    bool mFails = false;
    bool mIsDeclined = false;
    tapeprint::job::Problem::Kind mDeclinedAs = tapeprint::job::Problem::Cancelled;
};

} // namespace hosttest
