// SPDX-License-Identifier: Apache-2.0
// Comparing what was laid down with what the job carries, name by name.
#include "job/ReplacedOptions.h"

#include "job/PpdMarks.h"
#include "job/Texts.h"

#include <cmath>

namespace tapeprint::job
{

namespace
{

bool sameValue(const QString &left, const QString &right)
{
    const double leftNumber = left.toDouble();
    const double rightNumber = right.toDouble();
    return left.compare(right, Qt::CaseInsensitive) == 0 ||
           (isNumber(left) && isNumber(right) && leftNumber >= rightNumber && leftNumber <= rightNumber);
}

} // namespace

bool ReplacedOption::isRounding() const
{
    constexpr double finestStep = 0.1;
    return isNumber(laidDown.second) && isNumber(carried.second) &&
           std::abs(laidDown.second.toDouble() - carried.second.toDouble()) < finestStep;
}

QString ReplacedOption::sentence(ppd_file_t *ppd, const QString &panel) const
{
    const auto &[name, value] = laidDown;
    const auto &[jobName, jobValue] = carried;
    if (!listedChoice(ppd, name, value).isNull()) {
        return Texts::tr("The panel \"%1\" does not offer %2=%3, which the printer has: the job carries %4=%5.")
            .arg(panel, name, value, jobName, jobValue);
    }
    if (isNumber(value) && isNumber(jobValue)) {
        return Texts::tr("The panel \"%1\" holds %2 within its limits and steps: instead of %3 the job carries %4.")
            .arg(panel, jobName, value, jobValue);
    }
    return Texts::tr("%1=%2 is none of the choices that the printer's PPD lists: the job carries %3=%4.")
        .arg(name, value, jobName, jobValue);
}

std::vector<ReplacedOption> replacedOptions(const JobOptions &laidDown, const JobOptions &job)
{
    std::vector<ReplacedOption> replaced;
    for (const JobOptions::Entry &entry : laidDown.entries()) {
        for (const JobOptions::Entry &carried : job.entries()) {
            if (carried.first.compare(entry.first, Qt::CaseInsensitive) == 0 &&
                !sameValue(entry.second, carried.second)) {
                replaced.push_back({entry, carried});
            }
        }
    }
    return replaced;
}

} // namespace tapeprint::job
