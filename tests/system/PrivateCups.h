// SPDX-License-Identifier: Apache-2.0
// A print server of the test's own: its own folders and socket, real filters, queues that print into files, and a
// record of what each run of a printer's filter was given.
#pragma once

#include "tests/system/PrivateFolder.h"

#include <QByteArrayList>
#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

namespace systemtest
{

/// One run of the printer's filter, with its arguments as the operating system handed them over.
struct FilterCall {
    QByteArrayList arguments; ///< argv[1] and the following: job, user, title, copies, options, file if any

    QByteArray title() const { return arguments.value(2); }
    QByteArray copies() const { return arguments.value(3); }
    QByteArray options() const { return arguments.value(4); } ///< argv[5]
};

/// A job as the server knows it.
struct ServerJob {
    int id = 0;
    QString queue;
    QString title;
    int state = 0; ///< an IPP job state: 9 is completed
};

class PrivateCups
{
public:
    PrivateCups();
    ~PrivateCups();
    PrivateCups(const PrivateCups &) = delete;
    PrivateCups &operator=(const PrivateCups &) = delete;

    /// Why no server can be run on this machine; null when one can.
    static QString reasonToSkip();

    /// Adds a line to the server's configuration, before it is started.
    void configure(const QByteArray &line) { mMoreConfiguration += line + '\n'; }
    /// Queues "many-0", "many-1" and so on, without descriptions, before the server is started.
    void configureManyQueues(int count) { mManyQueues = count; }
    /// Jobs are taken of one user alone, who gives a password; before the server is started. It then listens at
    /// guardedServer(), too: at its socket, root would need none.
    void requirePassword(const QByteArray &user, const QByteArray &password);
    /// The server's address for those who are asked for a password, as CUPS_SERVER takes it.
    QString guardedServer() const { return QStringLiteral("127.0.0.1:%1").arg(mGuardedPort); }
    /// Starts the server and waits until it answers. \return null, or why it does not.
    QString start();

    QString socket() const { return mFolder.path(QStringLiteral("cups.sock")); }
    /// What the server has written into its log.
    QByteArray errorLog() const;

    /// A queue of one of our descriptions, "mm" for tapeprint-mm.ppd, whose filter is recorded and then run.
    /// \return null, or what lpadmin says.
    /// \param more lines added to the description.
    QString addRecordedQueue(const QString &name, const QString &description, const QByteArray &more = {});
    /// A queue whose printer's filter is a shell script of the test's own.
    QString addScriptedQueue(const QString &name, const QString &description, const QByteArray &script);
    /// A queue of the description as it is shipped.
    QString addPlainQueue(const QString &name, const QString &description);
    /// Runs one of the server's commands, such as cupsdisable. \return null, or what it says.
    QString run(const QString &program, const QStringList &arguments) const;
    /// What the queue's printer got of its last job.
    QByteArray printedBy(const QString &queue) const;

    /// All jobs, in the order in which they came.
    std::vector<ServerJob> jobs() const;
    /// An attribute of a job, as text.
    QByteArray attributeOfJob(int jobId, const char *name) const;
    /// Waits for a job to end. \return it; null when the server does not know it or it does not end.
    std::optional<ServerJob> waitForEnd(int jobId) const;
    /// The runs of the printer's filter for a job, in their order.
    std::vector<FilterCall> filterCalls(int jobId) const;

    /// Environment variables that make clients use this server and no file of the user's or the machine's.
    std::vector<std::pair<QString, QString>> clientVariables() const;
    /// Sets them in this process. Threads that are started from now on read them.
    void useHere() const;
    /// Starts the server with a recorded queue "tape", and uses it here. \return null, or what went wrong.
    QString startWithTape();

private:
    void guard(QByteArray &configuration);
    QString addQueue(const QString &name, const QString &ppdPath);
    QString outputPath(const QString &queue) const { return mFolder.path(QStringLiteral("out/%1.prn").arg(queue)); }
    QString recordingFilter();
    QString addFilteredQueue(const QString &name, const QString &description, const QString &filter,
                             const QByteArray &more = {});

    PrivateFolder mFolder;
    QByteArray mMoreConfiguration;
    int mManyQueues = 0;
    int mGuardedPort = 0;
    QByteArray mPassword; ///< USER:PASSWORD; empty where none is wanted
    QProcess mServer;
};

} // namespace systemtest
