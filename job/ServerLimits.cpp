// SPDX-License-Identifier: Apache-2.0
// A server writes such a number as itself or as the end of a range.
#include "job/ServerLimits.h"

#include "job/Texts.h"
#include "job/UsualOptions.h"

#include <QStringList>

#include <algorithm>

#include <pdekit/Numbers.h>

namespace tapeprint::job
{

namespace
{

/// The dialog has no more; a server that says it takes any number is not believed to list them.
constexpr int mostPagesASheet = 16;

/// The numbers of an attribute up to a bound, rising.
std::vector<int> numbersIn(ipp_attribute_t *attribute, int most)
{
    std::vector<int> numbers;
    for (int i = 0; i < ippGetCount(attribute); ++i) {
        int last = 0;
        int first = 0;
        if (ippGetValueTag(attribute) == IPP_TAG_RANGE) {
            first = ippGetRange(attribute, i, &last);
        } else if (ippGetValueTag(attribute) == IPP_TAG_INTEGER) {
            first = last = ippGetInteger(attribute, i);
        }
        for (int number = std::max(first, 1); number <= std::min(last, most); ++number) {
            numbers.push_back(number);
        }
    }
    std::sort(numbers.begin(), numbers.end());
    numbers.erase(std::unique(numbers.begin(), numbers.end()), numbers.end());
    return numbers;
}

int lastIn(ipp_attribute_t *attribute)
{
    int last = 0;
    if (attribute != nullptr && ippGetValueTag(attribute) == IPP_TAG_RANGE) {
        ippGetRange(attribute, 0, &last);
    } else if (attribute != nullptr && ippGetValueTag(attribute) == IPP_TAG_INTEGER) {
        last = ippGetInteger(attribute, 0);
    }
    return std::max(last, 0);
}

} // namespace

bool ServerLimits::takesPagesASheet(int number) const
{
    return pagesASheet.empty() || std::find(pagesASheet.begin(), pagesASheet.end(), number) != pagesASheet.end();
}

ServerLimits limitsIn(ipp_t *response)
{
    return {lastIn(ippFindAttribute(response, "copies-supported", IPP_TAG_ZERO)),
            numbersIn(ippFindAttribute(response, "number-up-supported", IPP_TAG_ZERO), mostPagesASheet)};
}

std::optional<QString> beyondLimits(const ServerLimits &limits, const JobOptions &carried)
{
    const int copies = pdekit::intValue(carried.value(OptionName::copies));
    if (limits.mostCopies > 0 && copies > limits.mostCopies) {
        return Texts::tr("The print server makes %1 copies of a job at most, and not %2: ask for fewer.")
            .arg(limits.mostCopies)
            .arg(copies);
    }
    const int number = pdekit::intValue(carried.value(OptionName::numberUp));
    if (carried.contains(OptionName::numberUp) && !limits.takesPagesASheet(number)) {
        QStringList known;
        for (const int each : limits.pagesASheet) {
            known.append(QString::number(each));
        }
        return Texts::tr("The print server does not put %1 pages on a sheet (number-up): choose one of %2.")
            .arg(QString::number(number), known.join(QLatin1String(", ")));
    }
    return std::nullopt;
}

} // namespace tapeprint::job
