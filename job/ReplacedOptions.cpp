// SPDX-License-Identifier: Apache-2.0
// Comparing what was laid down with what the job carries, name by name.
#include "job/ReplacedOptions.h"

namespace tapeprint::job
{

namespace
{

bool sameValue(const QString &left, const QString &right)
{
    bool leftIsNumber = false;
    bool rightIsNumber = false;
    const double leftNumber = left.toDouble(&leftIsNumber);
    const double rightNumber = right.toDouble(&rightIsNumber);
    return left.compare(right, Qt::CaseInsensitive) == 0 ||
           (leftIsNumber && rightIsNumber && leftNumber >= rightNumber && leftNumber <= rightNumber);
}

} // namespace

QStringList replacedOptions(const JobOptions &laidDown, const JobOptions &job)
{
    QStringList sentences;
    for (const auto &[name, value] : laidDown.entries()) {
        for (const auto &[jobName, jobValue] : job.entries()) {
            if (jobName.compare(name, Qt::CaseInsensitive) == 0 && !sameValue(value, jobValue)) {
                sentences.append(QStringLiteral("%1=%2 is not what the printer offers: the job carries %3=%4.")
                                     .arg(name, value, jobName, jobValue));
            }
        }
    }
    return sentences;
}

} // namespace tapeprint::job
