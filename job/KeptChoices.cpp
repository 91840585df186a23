// SPDX-License-Identifier: Apache-2.0
// Only what a person changed is carried along: each printer's own defaults stay its own.
#include "job/KeptChoices.h"

#include "job/CustomValues.h"
#include "job/IppAttributeNames.h"
#include "job/PpdMarks.h"

#include <algorithm>
#include <cmath>
#include <span>
#include <vector>

namespace tapeprint::job
{

namespace
{

/// PPDs round the size of the same paper each in their own way.
constexpr double samePaperPt = 1.5;

bool isSameSize(const ppd_size_t &size, const pdekit::Paper &paper)
{
    return std::abs(static_cast<double>(size.width) - paper.widthPt) < samePaperPt &&
           std::abs(static_cast<double>(size.length) - paper.heightPt) < samePaperPt;
}

std::span<ppd_size_t> sizesOf(ppd_file_t *ppd)
{
    return ppd == nullptr ? std::span<ppd_size_t>()
                          : std::span(ppd->sizes, static_cast<std::size_t>(std::max(ppd->num_sizes, 0)));
}

/// The size of a paper that the PPD lists.
std::optional<pdekit::Paper> paperNamed(ppd_file_t *ppd, const QString &name)
{
    for (const ppd_size_t &size : sizesOf(ppd)) {
        if (name.compare(QString::fromUtf8(size.name), Qt::CaseInsensitive) == 0) {
            return pdekit::Paper{name, static_cast<double>(size.width), static_cast<double>(size.length)};
        }
    }
    return std::nullopt;
}

/// A size that the person made up: only one within the printer's limits.
QString fittingCustomSize(ppd_file_t *ppd, const QString &name)
{
    if (listedChoice(ppd, OptionName::pageSize, name).isNull()) {
        return {};
    }
    const ppd_size_t *size = ppdPageSize(ppd, name.toUtf8().constData());
    const bool isWithin = size != nullptr && size->width >= ppd->custom_min[0] && size->width <= ppd->custom_max[0] &&
                          size->length >= ppd->custom_min[1] && size->length <= ppd->custom_max[1];
    return isWithin ? name : QString();
}

/// A choice as the PPD spells it; null when it lists none such, or does not take such an own value.
QString fittingChoice(ppd_file_t *ppd, const QString &name, const QString &value)
{
    if (isCustomValue(value)) {
        const std::vector<CustomParameter> parameters = customParameters(ppd, name);
        const QStringList values = customValuesIn(parameters, value);
        for (std::size_t i = 0; i < parameters.size(); ++i) {
            if (!customProblem(parameters[i], values.at(static_cast<qsizetype>(i)), false).isNull()) {
                return {};
            }
        }
    }
    return listedChoice(ppd, name, value);
}

bool isMatterOfPpd(ppd_file_t *ppd, const QString &name)
{
    return name == OptionName::pageSize || (!isIppJobAttribute(name) && findOption(ppd, name) != nullptr);
}

} // namespace

void KeptChoices::leave(const JobOptions &opened, const JobOptions &left, ppd_file_t *ppd)
{
    for (const auto &[name, value] : left.entries()) {
        if (opened.value(name) == value) {
            continue;
        }
        if (!isMatterOfPpd(ppd, name)) {
            mGeneral.set(name, value);
            continue;
        }
        mOfPpd.set(name, value);
        if (listedChoice(ppd, name, value).isNull()) {
            mUnlisted.insert(name);
        } else {
            mUnlisted.remove(name);
        }
        if (name == OptionName::pageSize) {
            mPaper = paperNamed(ppd, value);
        }
    }
}

QString KeptChoices::fittingPaper(ppd_file_t *ppd, const QString &name) const
{
    if (!mPaper) {
        return fittingCustomSize(ppd, name);
    }
    if (const std::optional<pdekit::Paper> namesake = paperNamed(ppd, name);
        namesake && std::abs(namesake->widthPt - mPaper->widthPt) < samePaperPt &&
        std::abs(namesake->heightPt - mPaper->heightPt) < samePaperPt) {
        return name;
    }
    for (const ppd_size_t &size : sizesOf(ppd)) {
        QString other = QString::fromUtf8(size.name);
        if (isSameSize(size, *mPaper) && !listedChoice(ppd, OptionName::pageSize, other).isNull()) {
            return other;
        }
    }
    return {};
}

JobOptions KeptChoices::fitting(ppd_file_t *ppd, const JobOptions &saved) const
{
    JobOptions fitting;
    for (const auto &[name, value] : mGeneral.entries()) {
        if (!saved.contains(name)) {
            fitting.set(name, value);
        }
    }
    for (const auto &[name, value] : mOfPpd.entries()) {
        if (saved.contains(name) || findOption(ppd, name) == nullptr) {
            continue;
        }
        const bool isPanels = isNumber(value) && mUnlisted.contains(name);
        const QString kept = name == OptionName::pageSize ? fittingPaper(ppd, value)
                             : isPanels                   ? value
                                                          : fittingChoice(ppd, name, value);
        if (!kept.isNull()) {
            fitting.set(name, kept);
        }
    }
    return fitting;
}

} // namespace tapeprint::job
