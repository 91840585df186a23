// SPDX-License-Identifier: Apache-2.0
// A job is known by its number, the person and its title together, and by the documents that it still lacks.
#include "job/LeftJobs.h"

#include "job/JobRequests.h"

#include <algorithm>
#include <mutex>
#include <optional>
#include <utility>
#include <vector>

namespace tapeprint::job
{

namespace
{

struct Kept {
    std::mutex mutex;
    std::vector<LeftJob> jobs; ///< under the lock
};

Kept &kept()
{
    static Kept ofAll;
    return ofAll;
}

} // namespace

bool takeBack(const ServerConnection &server, const LeftJob &job)
{
    const std::optional<std::vector<int>> found = unfinishedJobs(server, job.queue, job.title, job.documents);
    if (!found) {
        return false;
    }
    if (job.id != 0) {
        return std::find(found->begin(), found->end(), job.id) == found->end() || cancelJob(server, job.id);
    }
    // Of several, others may belong to somebody who is about to fill them.
    return found->size() != 1 || cancelJob(server, found->front());
}

void rememberLeftJob(const LeftJob &job)
{
    const std::lock_guard lock(kept().mutex);
    kept().jobs.push_back(job);
}

void takeBackLeftJobs(const ServerConnection &server)
{
    std::vector<LeftJob> jobs;
    {
        const std::lock_guard lock(kept().mutex);
        jobs = std::exchange(kept().jobs, {});
    }
    for (const LeftJob &job : jobs) {
        if (!takeBack(server, job)) {
            rememberLeftJob(job);
        }
    }
}

} // namespace tapeprint::job
