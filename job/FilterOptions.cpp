// SPDX-License-Identifier: Apache-2.0
// Pages are selected, placed and scaled once: what the layout has applied is not asked of a filter again.
#include "job/FilterOptions.h"

#include "job/LabelPlan.h"
#include "job/PageLayout.h"

namespace tapeprint::job
{

JobOptions filterOptions(const JobOptions &options, const TapePage &page)
{
    JobOptions result = options;
    result.remove(OptionName::fitLength); // the dialog's own
    if (!page.isTape) {
        return result;
    }
    for (const QString &name : layoutOptionNames() + selectionOptionNames()) {
        result.remove(name);
    }
    // One name for the size: "media" is rounded to whole points on its way through the server.
    result.remove(OptionName::media);
    result.remove(OptionName::pageRegion);
    if (!page.pageSize.isNull()) {
        result.set(OptionName::pageSize, page.pageSize);
    }
    result.set(QStringLiteral("print-scaling"), QStringLiteral("none"));
    return result;
}

} // namespace tapeprint::job
