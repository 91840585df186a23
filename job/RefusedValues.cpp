// SPDX-License-Identifier: Apache-2.0
// CUPS takes a value that it cannot read for none at all, and prints. What it reads is held here as patterns.
#include "job/RefusedValues.h"

#include "job/CustomSizes.h"
#include "job/CustomValues.h"
#include "job/IppAttributeNames.h"
#include "job/MediaWords.h"
#include "job/PageRanges.h"
#include "job/PpdMarks.h"
#include "job/TapePage.h"
#include "job/Texts.h"
#include "job/UsualOptions.h"

#include <QHash>
#include <QRegularExpression>
#include <QSizeF>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <optional>
#include <span>
#include <vector>

#include <cups/pwg.h>

namespace tapeprint::job
{

namespace
{

const QString wholeNumber = QStringLiteral(R"([1-9]\d{0,8})");
const QString truth = QStringLiteral("true|false|yes|no|on|off|1|0");

/// What CUPS and this program read in options that are no choices of a PPD; each pattern stands for the whole value.
const QHash<QString, QString> &patterns()
{
    static const QHash<QString, QString> known{
        {OptionName::copies, wholeNumber},
        {OptionName::fitLength, truth},
        {OptionName::collate, truth},
        {QStringLiteral("fit-to-page"), truth},
        {QStringLiteral("landscape"), truth},
        {QStringLiteral("mirror"), truth},
        {QStringLiteral("job-priority"), QStringLiteral(R"([1-9]\d?|100)")},
        {OptionName::holdUntil, QStringLiteral("no-hold|indefinite|day-time|evening|night|weekend|second-shift|"
                                               R"(third-shift|([01]?\d|2[0-3]):[0-5]\d(:[0-5]\d)?)")},
        {QStringLiteral("number-up"), QStringLiteral("[1-9]|1[0-6]")}, // on tape; paper has fewer, which is said
        {QStringLiteral("orientation-requested"), QStringLiteral("[3-7]")},
        {QStringLiteral("print-scaling"), QStringLiteral("auto|auto-fit|fit|fill|none")},
        {QStringLiteral("print-quality"), QStringLiteral("[3-5]|draft|normal|high")},
        {QStringLiteral("page-set"), QStringLiteral("all|odd|even")},
        {QStringLiteral("outputorder"), QStringLiteral("normal|reverse")},
        {QStringLiteral("position"), QStringLiteral("center|top|bottom|left|right|(top|bottom)-(left|right)")},
        {OptionName::pageBorder, QStringLiteral("none|(single|double)(-thick)?")},
        {OptionName::numberUpLayout, QStringLiteral("[lr]{2}[tb]{2}|[tb]{2}[lr]{2}")},
        {QStringLiteral("sides"), QStringLiteral("one-sided|two-sided-(long|short)-edge")},
    };
    return known;
}

bool matches(const QString &pattern, const QString &value)
{
    const QRegularExpression whole(QRegularExpression::anchoredPattern(pattern),
                                   QRegularExpression::CaseInsensitiveOption);
    return whole.match(value).hasMatch();
}

bool isCustom(const QString &value)
{
    return value.startsWith(QLatin1String("Custom."), Qt::CaseInsensitive);
}

/// Whether a printer takes a size: each side within the PPD's limits, but for what a unit's rounding takes away.
bool isWithinLimits(ppd_file_t *ppd, const QSizeF &sizePt)
{
    constexpr double roundingPt = 0.5;
    const auto within = [](double side, float least, float most) {
        return side >= static_cast<double>(least) - roundingPt && side <= static_cast<double>(most) + roundingPt;
    };
    return within(sizePt.width(), ppd->custom_min[0], ppd->custom_max[0]) &&
           within(sizePt.height(), ppd->custom_min[1], ppd->custom_max[1]);
}

QString customSizeProblem(ppd_file_t *ppd, const QString &name, const QString &value)
{
    const std::optional<QSizeF> sizePt = customSizeOf(value);
    if (!sizePt) {
        return Texts::tr("%1=%2 is no size: write it as Custom.WIDTHxLENGTHmm, or with in, cm or pt.").arg(name, value);
    }
    if (ppd != nullptr && listedChoice(ppd, OptionName::pageSize, value).isNull()) {
        return Texts::tr("%1=%2: the printer takes no sizes other than those that it has.").arg(name, value);
    }
    if (ppd != nullptr && !isWithinLimits(ppd, *sizePt)) {
        return Texts::tr("%1=%2 is smaller or larger than the printer can take.").arg(name, value);
    }
    return {};
}

/// Why the parameters of an own value do not take it; null when they do, or when it is no own value.
QString customValueProblem(ppd_file_t *ppd, const QString &name, const QString &value)
{
    const std::vector<CustomParameter> parameters = customParameters(ppd, name);
    if (!isCustomValue(value) || parameters.empty()) {
        return {};
    }
    const QStringList values = customValuesIn(parameters, value);
    for (std::size_t i = 0; i < parameters.size(); ++i) {
        const QString problem = customProblem(parameters[i], values.value(static_cast<qsizetype>(i)), false);
        if (!problem.isNull()) {
            return Texts::tr("%1=%2: %3").arg(name, withoutSecret(ppd, name, value), problem);
        }
    }
    return {};
}

/// Whether a value says that it is an own one and then nothing of it: CUPS would take zeros, or what was there before.
bool lacksItsOwnValue(ppd_file_t *ppd, const QString &name, const QString &value)
{
    const bool isSize = name == OptionName::media || name.compare(OptionName::pageSize, Qt::CaseInsensitive) == 0;
    const bool takesOwn = isSize ? ppd == nullptr || ppd->variable_sizes != 0 : !customParameters(ppd, name).empty();
    return takesOwn && value.compare(QLatin1String("Custom"), Qt::CaseInsensitive) == 0;
}

/// Whether a printer has a paper of this size, as near as CUPS looks for one, or cuts one.
bool hasSize(ppd_file_t *ppd, const pwg_media_t &media)
{
    constexpr double unitsPerMm = 100.0;
    constexpr double nearMm = 0.5;
    const QSizeF sizePt(pointsFromMm(media.width / unitsPerMm), pointsFromMm(media.length / unitsPerMm));
    const auto isNear = [](double side, float listed) {
        return std::abs(mmFromPoints(side - static_cast<double>(listed))) <= nearMm;
    };
    const std::span<const ppd_size_t> sizes(ppd->sizes, static_cast<std::size_t>(ppd->num_sizes));
    return (ppd->variable_sizes != 0 && isWithinLimits(ppd, sizePt)) ||
           std::any_of(sizes.begin(), sizes.end(), [&](const ppd_size_t &size) {
               return isNear(sizePt.width(), size.width) && isNear(sizePt.height(), size.length);
           });
}

/// Whether CUPS finds a paper, a tray or a kind of paper by a name in the option media.
bool isMedia(ppd_file_t *ppd, const QString &name)
{
    if (!listedChoice(ppd, OptionName::pageSize, name).isNull() || !trayNamed(ppd, name).isNull()) {
        return true;
    }
    const QByteArray bytes = name.toUtf8();
    const pwg_media_t *size = pwgMediaForPWG(bytes.constData());
    if (size == nullptr) {
        size = pwgMediaForLegacy(bytes.constData());
    }
    return size != nullptr ? hasSize(ppd, *size) : isKeywordOfTray(ppd, name);
}

QString mediaProblem(ppd_file_t *ppd, const QString &value)
{
    for (const QString &name : value.split(u',')) {
        if (isCustom(name)) {
            if (QString problem = customSizeProblem(ppd, OptionName::media, name); !problem.isNull()) {
                return problem;
            }
        } else if (ppd != nullptr && !isMedia(ppd, name)) {
            return Texts::tr("media=%1 is none of the choices that the printer's PPD lists.").arg(name);
        }
    }
    return {};
}

QString problemOf(ppd_file_t *ppd, const QString &name, const QString &value, const AnswersFor &isPanels)
{
    if (lacksItsOwnValue(ppd, name, value)) {
        return Texts::tr("%1=%2 is none of the choices that the printer's PPD lists.").arg(name, value);
    }
    if (name == OptionName::media) {
        return mediaProblem(ppd, value);
    }
    if (name == OptionName::pageRanges && wellFormedPageRanges(value).isNull()) {
        return QStringLiteral("%1=%2: %3").arg(name, value, pageRangesProblem(value));
    }
    if (name.compare(OptionName::pageSize, Qt::CaseInsensitive) == 0 && isCustom(value)) {
        return customSizeProblem(ppd, name, value);
    }
    const ppd_option_t *option = isIppJobAttribute(name) ? nullptr : findOption(ppd, name);
    if (option == nullptr) {
        const QString pattern = patterns().value(name);
        return pattern.isNull() || matches(pattern, value)
                   ? QString()
                   : Texts::tr("%1=%2 is no value that CUPS knows for %1.").arg(name, value);
    }
    if (QString problem = customValueProblem(ppd, name, value); !problem.isNull()) {
        return problem;
    }
    return isPanels(QString::fromUtf8(option->keyword), value) || !listedChoice(ppd, name, value).isNull()
               ? QString()
               : Texts::tr("%1=%2 is none of the choices that the printer's PPD lists.").arg(name, value);
}

} // namespace

QStringList ownValuesNotTaken(ppd_file_t *ppd, const JobOptions &options)
{
    QStringList sentences;
    for (const auto &[name, value] : options.entries()) {
        if (!isCustomValue(value) || listedChoice(ppd, name, value).isNull()) {
            continue;
        }
        const QString sentence =
            name == OptionName::pageSize ? customSizeProblem(ppd, name, value) : customValueProblem(ppd, name, value);
        if (!sentence.isNull()) {
            sentences.append(sentence);
        }
    }
    return sentences;
}

QStringList refusedValues(ppd_file_t *ppd, const JobOptions &asked, const AnswersFor &isPanels)
{
    QStringList sentences;
    for (const auto &[name, value] : asked.entries()) {
        if (const QString sentence = problemOf(ppd, name, value, isPanels); !sentence.isNull()) {
            sentences.append(sentence);
        }
    }
    return sentences;
}

} // namespace tapeprint::job
