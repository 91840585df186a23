// SPDX-License-Identifier: Apache-2.0
// Everything that printing needs of the PPD is worked out here, so that the PPD itself stays behind.
#include "job/SettledJob.h"

#include "job/FilterOptions.h"
#include "job/PageLayout.h"

namespace tapeprint::job
{

bool SettledJob::fitsLength() const
{
    return page.isTape && !page.hasFixedLength && layoutChoicesOf(options).fitLength;
}

JobOptions SettledJob::carried() const
{
    return filterOptions(options, page);
}

SettledJob settle(const Job &job)
{
    const Destination &destination = job.destination();
    const TapePage page = job.page();
    return {destination.queue,
            destination.ppdPath,
            destination.outputPath,
            destination.mayReplaceOutput,
            destination.trustsPpd,
            destination.documents,
            job.options(),
            page,
            rasterShiftOf(job.ppd(), page),
            lengthRulesOf(job.ppd(), job.tape())};
}

} // namespace tapeprint::job
