// SPDX-License-Identifier: Apache-2.0
// Everything that printing needs of the PPD is worked out here, so that the PPD itself stays behind.
#include "job/SettledJob.h"

#include "job/Advice.h"
#include "job/FilterOptions.h"
#include "job/PageLayout.h"
#include "job/UsualOptions.h"

namespace tapeprint::job
{

namespace
{

bool isReversedBy(ppd_file_t *ppd)
{
    const ppd_attr_t *order = ppd == nullptr ? nullptr : ppdFindAttr(ppd, "DefaultOutputOrder", nullptr);
    return order != nullptr && order->value != nullptr &&
           QString::fromUtf8(order->value).compare(QLatin1String("reverse"), Qt::CaseInsensitive) == 0;
}

} // namespace

bool SettledJob::fitsLength() const
{
    return page.isTape && !page.hasFixedLength && layoutChoicesOf(options).fitLength;
}

QString SettledJob::title(const QString &otherwise) const
{
    const QString own = jobTitle(options.value(OptionName::jobName));
    return own.isEmpty() ? jobTitle(otherwise) : own;
}

JobOptions SettledJob::carried() const
{
    JobOptions carried = filterOptions(options, page);
    if (page.isTape && isReversedByPpd) {
        carried.set(OptionName::outputOrder, QStringLiteral("normal")); // the labels are in their order already
    }
    return carried;
}

SettledJob settle(const Job &job)
{
    const Destination &destination = job.destination();
    const TapePage page = job.page();
    return {destination.queue,
            destination.ppdPath,
            destination.outputPath,
            destination.pdfPath,
            destination.mayReplaceOutput,
            destination.trustsPpd,
            destination.ppdPath.isEmpty() ? destination.ppd.get_deleter().source : QByteArray(),
            destination.documents,
            job.options(),
            page,
            rasterShiftOf(job.ppd(), page),
            isReversedBy(job.ppd()),
            lengthRulesOf(job.ppd(), job.tape()),
            isAtTheWindow()}; // it stands beside the preview there
}

} // namespace tapeprint::job
