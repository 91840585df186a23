// SPDX-License-Identifier: Apache-2.0
// Jobs that were begun on a server that then went away: they are taken back when it is there again.
#pragma once

#include <QString>

namespace tapeprint::job
{

class ServerConnection;

/// A job that was begun and neither completed nor cancelled.
struct LeftJob {
    QString queue;
    QString title;
    int id = 0;        ///< 0 when the server's answer with it was lost
    int documents = 1; ///< it has fewer than so many: with more it is no job that was left
};

/// Cancels the job, if it is there. A server that was killed may have given its number to another job meanwhile, which
/// is left alone, and so are several of which nobody can tell which is meant. \return whether nothing is left of it.
bool takeBack(const ServerConnection &server, const LeftJob &job);

/// Keeps a job in mind that could not be taken back, as long as the program runs. From any thread.
void rememberLeftJob(const LeftJob &job);

/// Takes back what is kept in mind. From any thread.
void takeBackLeftJobs(const ServerConnection &server);

} // namespace tapeprint::job
