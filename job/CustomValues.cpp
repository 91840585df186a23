// SPDX-License-Identifier: Apache-2.0
// Braces are read twice on their way, by whoever parses the job's options and by libcups: the texts in them are written
// so that both readings leave them whole.
#include "job/CustomValues.h"

#include "job/CupsOptions.h"
#include "job/PpdMarks.h"
#include "job/PpdTexts.h"
#include "job/TapePage.h"
#include "job/Texts.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

#include <pdekit/Numbers.h>

namespace tapeprint::job
{

namespace
{

const QLatin1String customPrefix("Custom.");
constexpr double pointsPerInch = 72.0;
/// libcups keeps limits as floats, which may lie this far beside what a PPD says, in parts of the limit.
constexpr double limitSlack = 1e-5;

struct Limits {
    double least;
    double most;
};

Limits limitsOf(const ppd_cparam_t &parameter)
{
    const ppd_cplimit_t &least = parameter.minimum;
    const ppd_cplimit_t &most = parameter.maximum;
    switch (parameter.type) {
    case PPD_CUSTOM_CURVE:
        return {static_cast<double>(least.custom_curve), static_cast<double>(most.custom_curve)};
    case PPD_CUSTOM_INVCURVE:
        return {static_cast<double>(least.custom_invcurve), static_cast<double>(most.custom_invcurve)};
    case PPD_CUSTOM_POINTS:
        return {static_cast<double>(least.custom_points), static_cast<double>(most.custom_points)};
    case PPD_CUSTOM_REAL:
        return {static_cast<double>(least.custom_real), static_cast<double>(most.custom_real)};
    case PPD_CUSTOM_PASSCODE:
        return {static_cast<double>(least.custom_passcode), static_cast<double>(most.custom_passcode)};
    case PPD_CUSTOM_PASSWORD:
        return {static_cast<double>(least.custom_password), static_cast<double>(most.custom_password)};
    case PPD_CUSTOM_STRING:
        return {static_cast<double>(least.custom_string), static_cast<double>(most.custom_string)};
    default:
        return {static_cast<double>(least.custom_int), static_cast<double>(most.custom_int)};
    }
}

std::optional<CustomKind> kindOf(ppd_cptype_t type)
{
    switch (type) {
    case PPD_CUSTOM_CURVE:
        return CustomKind::Curve;
    case PPD_CUSTOM_INT:
        return CustomKind::Integer;
    case PPD_CUSTOM_INVCURVE:
        return CustomKind::InverseCurve;
    case PPD_CUSTOM_PASSCODE:
        return CustomKind::Passcode;
    case PPD_CUSTOM_PASSWORD:
        return CustomKind::Password;
    case PPD_CUSTOM_POINTS:
        return CustomKind::Length;
    case PPD_CUSTOM_REAL:
        return CustomKind::Real;
    case PPD_CUSTOM_STRING:
        return CustomKind::Text;
    default:
        return std::nullopt;
    }
}

/// A text between quotes that it does not hold itself.
QString quoted(const QString &text)
{
    if (!text.contains(u'\'')) {
        return u'\'' + QString(text).replace(u'\\', QLatin1String("\\\\")) + u'\'';
    }
    return u'"' + QString(text).replace(u'\\', QLatin1String("\\\\")).replace(u'"', QLatin1String("\\\"")) + u'"';
}

QString shortLimit(double value, int decimals = 3)
{
    QString text = pdekit::fixedDecimals(value, decimals);
    while (text.contains(u'.') && (text.endsWith(u'0') || text.endsWith(u'.'))) {
        text.chop(1);
    }
    return text;
}

/// A limit of a length as people write it. PPDs have it in points: 4 mm become 3.997. \param inwards 1.0 for the least,
/// -1.0 for the most: a tidy length is only said when it is taken.
QString lengthLimit(double value, double inwards)
{
    constexpr double tidyDigits = 10.0;
    constexpr double near = 0.01;
    const double tidy = std::round(value * tidyDigits) / tidyDigits;
    const double beyond = (tidy - value) * inwards;
    return beyond >= 0.0 && beyond < near ? shortLimit(tidy, 1) : shortLimit(value);
}

QString textProblem(const CustomParameter &parameter, const QString &value)
{
    const auto length = static_cast<double>(value.toUcs4().size());
    const auto isDigit = [](QChar character) { return character >= u'0' && character <= u'9'; };
    if (length < parameter.least || (parameter.most > 0.0 && length > parameter.most) ||
        (parameter.kind == CustomKind::Passcode && !std::all_of(value.begin(), value.end(), isDigit))) {
        return customLimits(parameter, false);
    }
    // The print system ends a text at a brace that none opened.
    int depth = 0;
    const auto breaksOff = [&depth](QChar character) {
        depth += character == u'{' ? 1 : character == u'}' ? -1 : 0;
        return character < u' ' || depth < 0;
    };
    if (std::any_of(value.begin(), value.end(), breaksOff) || depth != 0) {
        return Texts::tr("Leave out single braces and characters that cannot be seen.");
    }
    return {};
}

QString numberProblem(const CustomParameter &parameter, const QString &value, bool inInches)
{
    std::optional<double> number;
    if (parameter.isLength()) {
        number = pointsOfLength(value);
    } else if (isNumber(value)) {
        number = pdekit::doubleValue(value);
    }
    const bool isTooFine = number && parameter.isWhole() && std::floor(*number) < *number;
    const double slack = limitSlack * std::max(std::abs(parameter.least), std::abs(parameter.most));
    const bool isTaken =
        number && !isTooFine && *number >= parameter.least - slack && *number <= parameter.most + slack;
    return isTaken ? QString() : customLimits(parameter, inInches);
}

} // namespace

std::vector<CustomParameter> customParameters(ppd_file_t *ppd, const QString &key)
{
    std::vector<CustomParameter> parameters;
    if (findOption(ppd, key) == nullptr || key.compare(OptionName::pageSize, Qt::CaseInsensitive) == 0) {
        return parameters;
    }
    for (const ppd_cparam_t *found : parametersOf(ppdFindCustomOption(ppd, key.toUtf8().constData()))) {
        const std::optional<CustomKind> kind = kindOf(found->type);
        if (!kind) {
            return {}; // nobody can tell what belongs there
        }
        Limits limits = limitsOf(*found);
        if (limits.least > limits.most) {
            std::swap(limits.least, limits.most);
        }
        const QString text = ppdText(found->text);
        parameters.push_back({QString::fromUtf8(found->name), text.isEmpty() ? ppdText(found->name) : text, *kind,
                              limits.least, limits.most});
    }
    return parameters;
}

bool isCustomValue(const QString &value)
{
    return value.startsWith(u'{') || value.startsWith(customPrefix, Qt::CaseInsensitive);
}

QString customValue(const std::vector<CustomParameter> &parameters, const QStringList &values)
{
    if (parameters.size() == 1) {
        return customPrefix + values.value(0);
    }
    QStringList words;
    for (std::size_t i = 0; i < parameters.size(); ++i) {
        const QString &value = values.value(static_cast<qsizetype>(i));
        words.append(parameters[i].name + u'=' + (parameters[i].isText() ? quoted(value) : value));
    }
    return u'{' + words.join(u' ') + u'}';
}

QStringList customValuesIn(const std::vector<CustomParameter> &parameters, const QString &value)
{
    QStringList values(static_cast<qsizetype>(parameters.size()));
    if (value.startsWith(customPrefix, Qt::CaseInsensitive) && !values.isEmpty()) {
        values.first() = value.mid(customPrefix.size());
    } else if (value.startsWith(u'{')) {
        CupsOptions parsed;
        parsed.parse(value.toUtf8());
        for (const cups_option_t &option : parsed) {
            const QString name = QString::fromUtf8(option.name);
            for (std::size_t i = 0; i < parameters.size(); ++i) {
                if (parameters[i].name.compare(name, Qt::CaseInsensitive) == 0) {
                    values[static_cast<qsizetype>(i)] = QString::fromUtf8(option.value);
                }
            }
        }
    }
    return values;
}

std::optional<double> pointsOfLength(const QString &length)
{
    struct Unit {
        QLatin1String name;
        double points;
    };
    static const std::array units{Unit{QLatin1String("mm"), pointsPerInch / 25.4},
                                  Unit{QLatin1String("cm"), pointsPerInch / 2.54},
                                  Unit{QLatin1String("in"), pointsPerInch},
                                  Unit{QLatin1String("ft"), 12.0 * pointsPerInch},
                                  Unit{QLatin1String("pt"), 1.0},
                                  Unit{QLatin1String("m"), pointsPerInch / 0.0254}};
    double points = 1.0;
    QString number = length;
    for (const Unit &unit : units) {
        if (length.endsWith(unit.name, Qt::CaseInsensitive)) {
            points = unit.points;
            number = length.chopped(unit.name.size());
            break;
        }
    }
    return isNumber(number) ? std::optional(pdekit::doubleValue(number) * points) : std::nullopt;
}

QString customLimits(const CustomParameter &parameter, bool inInches)
{
    const double unit = !parameter.isLength() ? 1.0 : inInches ? pointsPerInch : pointsFromMm(1.0);
    const bool isInMm = parameter.isLength() && !inInches;
    const QString least = isInMm ? lengthLimit(parameter.least / unit, 1.0) : shortLimit(parameter.least / unit);
    const QString most = isInMm ? lengthLimit(parameter.most / unit, -1.0) : shortLimit(parameter.most / unit);
    switch (parameter.kind) {
    case CustomKind::Text:
    case CustomKind::Password:
        return parameter.most > 0.0 ? Texts::tr("Give %1 to %2 characters.").arg(least, most)
                                    : Texts::tr("Give %1 characters or more.").arg(least);
    case CustomKind::Passcode:
        return parameter.most > 0.0 ? Texts::tr("Give %1 to %2 digits.").arg(least, most)
                                    : Texts::tr("Give %1 digits or more.").arg(least);
    case CustomKind::Length:
        return inInches ? Texts::tr("Give a length from %1 to %2 in.").arg(least, most)
                        : Texts::tr("Give a length from %1 to %2 mm.").arg(least, most);
    case CustomKind::Integer:
        return Texts::tr("Give a whole number from %1 to %2.").arg(least, most);
    case CustomKind::Curve:
    case CustomKind::InverseCurve:
    case CustomKind::Real:
        break;
    }
    return Texts::tr("Give a number from %1 to %2.").arg(least, most);
}

QString customProblem(const CustomParameter &parameter, const QString &value, bool inInches)
{
    return parameter.isText() ? textProblem(parameter, value) : numberProblem(parameter, value, inInches);
}

QStringList bracedForNobody(ppd_file_t *ppd, const JobOptions &options)
{
    QStringList sentences;
    for (const auto &[key, value] : options.entries()) {
        if (value.startsWith(u'{') && customParameters(ppd, key).empty()) {
            sentences.append(Texts::tr("The value of option %1 is in braces, which the print server drops: give %1 a "
                                       "plain value.")
                                 .arg(key));
        }
    }
    return sentences;
}

QString withoutSecret(ppd_file_t *ppd, const QString &key, const QString &value)
{
    const std::vector<CustomParameter> parameters =
        isCustomValue(value) ? customParameters(ppd, key) : std::vector<CustomParameter>();
    const auto isSecret = [](const CustomParameter &parameter) { return parameter.isSecret(); };
    if (std::none_of(parameters.begin(), parameters.end(), isSecret)) {
        return value;
    }
    QStringList values = customValuesIn(parameters, value);
    for (std::size_t i = 0; i < parameters.size(); ++i) {
        if (parameters[i].isSecret()) {
            values[static_cast<qsizetype>(i)] = QStringLiteral("***"); // not even how long it is
        }
    }
    return customValue(parameters, values);
}

JobOptions withoutSecrets(ppd_file_t *ppd, const JobOptions &options)
{
    JobOptions shown;
    for (const auto &[key, value] : options.entries()) {
        shown.set(key, withoutSecret(ppd, key, value));
    }
    return shown;
}

} // namespace tapeprint::job
