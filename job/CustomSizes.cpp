// SPDX-License-Identifier: Apache-2.0
// Sizes are kept by the names that jobs have for them, which no locale changes.
#include "job/CustomSizes.h"

#include "job/PlainText.h"
#include "job/PpdMarks.h"
#include "job/TapePage.h"
#include "job/Texts.h"

#include <QRegularExpression>
#include <QSettings>
#include <QStandardPaths>

#include <algorithm>
#include <cmath>

#include <cups/pwg.h>
#include <pdekit/Numbers.h>

namespace tapeprint::job
{

namespace
{

/// A thousandth of a millimetre is an eightieth of a dot at 300 dots an inch.
constexpr int customDecimals = 3;
/// libcups keeps limits and sizes as floats, which may lie this far beside what a PPD says.
constexpr double limitSlackPt = 0.01;
/// More would be no list to choose from.
constexpr int mostNamed = 200;

const QString sizesEntry = QStringLiteral("sizes");
const QString nameEntry = QStringLiteral("name");
const QString sizeEntry = QStringLiteral("size");

QString shortMm(double points)
{
    QString text = pdekit::fixedDecimals(mmFromPoints(points), customDecimals);
    while (text.endsWith(u'0')) {
        text.chop(1);
    }
    return text.endsWith(u'.') ? text.chopped(1) : text;
}

bool isNamed(const NamedSize &size, const QString &name)
{
    return size.name.compare(name, Qt::CaseInsensitive) == 0;
}

} // namespace

QString customSizeName(const QSizeF &sizePt)
{
    return QStringLiteral("Custom.%1x%2mm").arg(shortMm(sizePt.width()), shortMm(sizePt.height()));
}

std::optional<QSizeF> customSizeOf(const QString &value)
{
    static const QRegularExpression form(QStringLiteral(R"(\ACustom\.([0-9.]+)x([0-9.]+)(mm|cm|m|in|ft|pt)?\z)"),
                                         QRegularExpression::CaseInsensitiveOption);
    const QRegularExpressionMatch match = form.match(value);
    const std::optional<double> width = pointsOfLength(match.captured(1) + match.captured(3));
    const std::optional<double> height = pointsOfLength(match.captured(2) + match.captured(3));
    return match.hasMatch() && width && height && *width > 0.0 && *height > 0.0 ? std::optional(QSizeF(*width, *height))
                                                                                : std::nullopt;
}

std::vector<CustomParameter> customSizeParameters(const ppd_file_t *ppd)
{
    if (ppd == nullptr || ppd->variable_sizes == 0) {
        return {};
    }
    std::vector<CustomParameter> parameters{
        {QStringLiteral("Width"), Texts::tr("Width", "of a page"), CustomKind::Length,
         static_cast<double>(ppd->custom_min[0]), static_cast<double>(ppd->custom_max[0])},
        {QStringLiteral("Height"), Texts::tr("Height", "of a page"), CustomKind::Length,
         static_cast<double>(ppd->custom_min[1]), static_cast<double>(ppd->custom_max[1])}};
    const auto isSound = [](const CustomParameter &parameter) {
        return std::isfinite(parameter.most) && parameter.most > 0.0 && parameter.least <= parameter.most;
    };
    return std::all_of(parameters.begin(), parameters.end(), isSound) ? parameters : std::vector<CustomParameter>();
}

bool takesCustomSize(const ppd_file_t *ppd, const QSizeF &sizePt)
{
    const auto holds = [](double value, float least, float most) {
        return value >= static_cast<double>(least) - limitSlackPt && value <= static_cast<double>(most) + limitSlackPt;
    };
    return ppd->variable_sizes != 0 && holds(sizePt.width(), ppd->custom_min[0], ppd->custom_max[0]) &&
           holds(sizePt.height(), ppd->custom_min[1], ppd->custom_max[1]);
}

QSizeF standardSize(const QSizeF &sizePt)
{
    constexpr double mostApartPt = 1.0;
    constexpr double unitsPerMm = 100.0; // libcups counts so
    const auto isWhole = [](double points) { return std::abs(points - std::round(points)) < limitSlackPt; };
    if (!isWhole(sizePt.width()) || !isWhole(sizePt.height())) {
        return sizePt; // nobody rounded it
    }
    const bool lies = sizePt.width() > sizePt.height();
    const QSizeF upright = lies ? sizePt.transposed() : sizePt;
    const auto units = [](double points) { return qRound(mmFromPoints(points) * unitsPerMm); };
    // Where no standard is near it makes one up, of about the size asked for.
    const pwg_media_t *media = pwgMediaForSize(units(upright.width()), units(upright.height()));
    if (media == nullptr || QLatin1String(media->pwg).startsWith(QLatin1String("custom_"))) {
        return sizePt;
    }
    const QSizeF standard(pointsFromMm(media->width / unitsPerMm), pointsFromMm(media->length / unitsPerMm));
    const bool isNear = std::abs(standard.width() - upright.width()) <= mostApartPt &&
                        std::abs(standard.height() - upright.height()) <= mostApartPt;
    return !isNear ? sizePt : lies ? standard.transposed() : standard;
}

NamedSizes::NamedSizes(const QString &path)
    : mPath(path.isEmpty() ? QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
                                 QStringLiteral("/tapeprint/sizes.ini")
                           : path)
{
    QSettings settings(mPath, QSettings::IniFormat);
    const int count = std::min(settings.beginReadArray(sizesEntry), mostNamed);
    for (int i = 0; i < count; ++i) {
        settings.setArrayIndex(i);
        const QString name = settings.value(nameEntry).toString();
        const std::optional<QSizeF> size = customSizeOf(settings.value(sizeEntry).toString());
        if (!name.isEmpty() && size) {
            mSizes.push_back({name, *size});
        }
    }
}

bool NamedSizes::add(const NamedSize &size, Problem *error)
{
    const auto found = std::find_if(mSizes.begin(), mSizes.end(),
                                    [&size](const NamedSize &other) { return isNamed(other, size.name); });
    if (found != mSizes.end()) {
        *found = size;
    } else {
        mSizes.push_back(size);
    }
    return write(error);
}

bool NamedSizes::remove(const QString &name, Problem *error)
{
    mSizes.erase(
        std::remove_if(mSizes.begin(), mSizes.end(), [&name](const NamedSize &size) { return isNamed(size, name); }),
        mSizes.end());
    return write(error);
}

bool NamedSizes::write(Problem *error) const
{
    QSettings settings(mPath, QSettings::IniFormat);
    settings.remove(sizesEntry);
    settings.beginWriteArray(sizesEntry, static_cast<int>(mSizes.size()));
    for (std::size_t i = 0; i < mSizes.size(); ++i) {
        settings.setArrayIndex(static_cast<int>(i));
        settings.setValue(nameEntry, mSizes[i].name);
        settings.setValue(sizeEntry, customSizeName(mSizes[i].sizePt));
    }
    settings.endArray();
    settings.sync();
    if (settings.status() == QSettings::NoError) {
        return true;
    }
    *error = Texts::tr("The sizes are not remembered, because %1 cannot be written.").arg(harmless(mPath));
    return false;
}

} // namespace tapeprint::job
