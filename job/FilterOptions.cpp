// SPDX-License-Identifier: Apache-2.0
// Pages are selected, placed and scaled once: what the layout has applied is not asked of a filter again.
#include "job/FilterOptions.h"

#include "job/LabelPlan.h"
#include "job/PageLayout.h"
#include "job/PageRanges.h"
#include "job/Texts.h"
#include "job/UsualOptions.h"

#include <pdekit/Numbers.h>

namespace tapeprint::job
{

namespace
{

/// No turn that CUPS knows stands for "as it fits best": that is what the filters do by themselves.
const QString automaticTurn = QStringLiteral("0");

/// Tape is laid out here, without these.
const QStringList ignoredOnTape{QStringLiteral("scaling"),   QStringLiteral("natural-scaling"),
                                QStringLiteral("ppi"),       OptionName::pageBorder,
                                QStringLiteral("page-left"), QStringLiteral("page-right"),
                                QStringLiteral("page-top"),  QStringLiteral("page-bottom")};

/// What print servers and filters would refuse is put as they take it.
void forPaper(JobOptions &options)
{
    if (options.value(OptionName::orientation) == automaticTurn) {
        options.remove(OptionName::orientation);
    }
    if (const QString pages = wellFormedPageRanges(options.value(OptionName::pageRanges)); !pages.isEmpty()) {
        options.set(OptionName::pageRanges, pages);
    }
}

} // namespace

JobOptions filterOptions(const JobOptions &options, const TapePage &page)
{
    JobOptions result = options;
    result.remove(OptionName::fitLength); // the dialog's own
    result.remove(OptionName::jobName);   // goes as the title
    if (!page.isTape) {
        forPaper(result);
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

QStringList optionsWithoutEffect(const JobOptions &chosen, const TapePage &page)
{
    QStringList sentences;
    const QString number = chosen.value(OptionName::numberUp);
    const int asked = pdekit::intValue(number);
    if (!page.isTape && asked > 1 && pagesPerPaper(asked) == 1) {
        sentences.append(Texts::tr("number-up=%1 is none of the numbers that the print system knows: each page has a "
                                   "sheet of its own.")
                             .arg(number));
    }
    for (const QString &name : page.isTape ? ignoredOnTape : QStringList()) {
        if (chosen.contains(name) && chosen.value(name) != u"none") {
            sentences.append(Texts::tr("Option %1 changes nothing on tape: say how pages lie on it by print-scaling, "
                                       "orientation-requested, position and number-up.")
                                 .arg(name));
        }
    }
    return sentences;
}

} // namespace tapeprint::job
