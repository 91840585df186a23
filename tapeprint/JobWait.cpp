// SPDX-License-Identifier: Apache-2.0
#include "tapeprint/JobWait.h"

#include "job/JobFollowing.h"
#include "job/PlainText.h"

#include <atomic>
#include <cstdio>

namespace tapeprint
{

bool waitForJob(job::PrintedJob &printed, bool isTape, job::Problem *problem)
{
    if (printed.queue.isNull()) {
        return true;
    }
    const auto report = [](const job::JobNews &news) {
        if (news.waitsForPerson()) {
            std::fprintf(stderr, "tapeprint: %s\n", job::harmless(news.sentence()).toLocal8Bit().constData());
        }
    };
    static const std::atomic<bool> neverStopped{false};
    const std::optional<job::JobNews> last =
        job::followJob({printed.queue, printed.job.id, isTape}, neverStopped, report, problem);
    if (last && last->hasFailed()) {
        *problem = {job::Problem::FailedJob, last->sentence()};
        return false;
    }
    if (last && !last->isLost) {
        printed.job.state = last->status.stateName();
    }
    return last.has_value();
}

} // namespace tapeprint
