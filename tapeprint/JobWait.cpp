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
    const auto report = [said = QString()](const job::JobNews &news) mutable {
        const QString words = news.waitsForPerson() ? job::harmless(news.sentence()) : QString();
        if (!words.isNull() && words != said) { // other news come as well, such as another label that is out
            std::fprintf(stderr, "tapeprint: %s\n", words.toLocal8Bit().constData());
        }
        said = words;
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
