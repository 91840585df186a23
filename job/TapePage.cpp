// SPDX-License-Identifier: Apache-2.0
// From paper, length and margin to the page that the filters rasterise. The rules of the filters that matter here were
// measured on the chain of pdftopdf and gstoraster and stand beside what they cause.
#include "job/TapePage.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <span>

#include <pdekit/Numbers.h>

namespace tapeprint::job
{

namespace
{

constexpr double pointsPerInch = 72.0;
constexpr double mmPerInch = 25.4;
/// A custom size is written in thousandths of a millimetre: an eightieth of a dot at 300 dots an inch.
constexpr int customDecimals = 3;
/// libcups keeps limits and sizes as floats, which may lie this far beside what a PPD says.
constexpr double limitSlackPt = 0.01;

std::span<const ppd_size_t> sizesOf(const ppd_file_t *ppd)
{
    return {ppd->sizes, static_cast<std::size_t>(std::max(ppd->num_sizes, 0))};
}

QMarginsF marginsOf(const ppd_size_t &size)
{
    return {static_cast<double>(size.left), static_cast<double>(size.length - size.top),
            static_cast<double>(size.width - size.right), static_cast<double>(size.bottom)};
}

/// *HWMargins, which a PPD lists as left, bottom, right, top.
QMarginsF customMargins(const ppd_file_t *ppd)
{
    const std::span<const float, 4> margins(ppd->custom_margins);
    return {static_cast<double>(margins[0]), static_cast<double>(margins[3]), static_cast<double>(margins[2]),
            static_cast<double>(margins[1])};
}

double roundedMm(double points)
{
    const double step = std::pow(10.0, customDecimals);
    return std::round(mmFromPoints(points) * step) / step;
}

QString shortNumber(double value)
{
    QString text = pdekit::fixedDecimals(value, customDecimals);
    while (text.endsWith(u'0')) {
        text.chop(1);
    }
    return text.endsWith(u'.') ? text.chopped(1) : text;
}

QString customName(const QSizeF &sizePt)
{
    return QStringLiteral("Custom.%1x%2mm")
        .arg(shortNumber(roundedMm(sizePt.width())), shortNumber(roundedMm(sizePt.height())));
}

bool takesCustomSize(const ppd_file_t *ppd, const QSizeF &sizePt)
{
    const auto holds = [](double value, float least, float most) {
        return value >= static_cast<double>(least) - limitSlackPt && value <= static_cast<double>(most) + limitSlackPt;
    };
    return ppd->variable_sizes != 0 && holds(sizePt.width(), ppd->custom_min[0], ppd->custom_max[0]) &&
           holds(sizePt.height(), ppd->custom_min[1], ppd->custom_max[1]);
}

/// How far beside a named size a custom one lies, as the rasteriser compares them; nothing when it is no match.
std::optional<double> mismatch(const QSizeF &sizePt, const ppd_size_t &size)
{
    constexpr double mostApart = 0.01;
    constexpr double offset = 0.0001;
    const auto apart = [](double value, float named) {
        return std::abs(value - static_cast<double>(named)) / static_cast<double>(named) + offset;
    };
    if (!(size.width > 0.0F) || !(size.length > 0.0F)) {
        return std::nullopt;
    }
    const double across = apart(sizePt.width(), size.width);
    const double along = apart(sizePt.height(), size.length);
    return across < mostApart && along < mostApart ? std::optional(across * along) : std::nullopt;
}

/// The rasteriser takes a named size of the PPD in place of a custom one that lies within a hundredth of it in both
/// directions, whatever the custom size's own measures are.
const ppd_size_t *namedSizeTaken(const ppd_file_t *ppd, const QSizeF &sizePt)
{
    const ppd_size_t *best = nullptr;
    double least = 0.0;
    for (const ppd_size_t &size : sizesOf(ppd)) {
        const std::optional<double> apart = mismatch(sizePt, size);
        const bool isNamed = QLatin1String(size.name) != QLatin1String("Custom"); // libcups lists it among the others
        if (isNamed && apart && (best == nullptr || *apart < least)) {
            best = &size;
            least = *apart;
        }
    }
    return best;
}

bool hasFixedLength(const QString &paper, const TapeKeywords &keywords)
{
    return std::any_of(keywords.fixedLengthPapers.begin(), keywords.fixedLengthPapers.end(),
                       [&paper](const QString &beginning) { return paper.startsWith(beginning); });
}

std::optional<double> positiveLengthPt(const JobOptions &options, const QString &name)
{
    const double mm = name.isEmpty() ? 0.0 : pdekit::doubleValue(options.value(name));
    return mm > 0.0 && std::isfinite(mm) ? std::optional(pointsFromMm(mm)) : std::nullopt;
}

void takePaper(TapePage &page, const ppd_size_t &size)
{
    page.sizePt = {static_cast<double>(size.width), static_cast<double>(size.length)};
    page.unprintablePt = marginsOf(size);
}

/// Whether a chosen length says no more than the paper does: panels show it in tenths or whole millimetres.
bool isPapersOwn(double lengthPt, const ppd_size_t &size)
{
    constexpr double halfADotMm = 0.02;
    return std::abs(mmFromPoints(lengthPt - static_cast<double>(size.length))) < halfADotMm;
}

void takeChosenLength(TapePage &page, const ppd_file_t *ppd, const ppd_size_t &paper, double lengthPt)
{
    // The page is what the custom name says, to the last decimal.
    const QSizeF wanted(pointsFromMm(roundedMm(static_cast<double>(paper.width))), pointsFromMm(roundedMm(lengthPt)));
    if (!takesCustomSize(ppd, wanted)) {
        page.length = PageLength::LeftToDriver;
        return;
    }
    const ppd_size_t *named = namedSizeTaken(ppd, wanted);
    if (named == &paper) {
        page.length = PageLength::PaperForNear;
        return;
    }
    page.length = PageLength::Chosen;
    page.unprintablePt = customMargins(ppd);
    page.sizePt = wanted;
    if (named != nullptr) {
        takePaper(page, *named);
    }
    page.pageSize = customName(page.sizePt);
}

} // namespace

double pointsFromMm(double mm)
{
    return mm / mmPerInch * pointsPerInch;
}

double mmFromPoints(double points)
{
    return points / pointsPerInch * mmPerInch;
}

QRectF TapePage::layoutRect() const
{
    QRectF rect = printableRect();
    rect.setTop(std::max(rect.top(), freeEndsPt));
    rect.setBottom(std::min(rect.bottom(), sizePt.height() - freeEndsPt));
    return rect.width() > 0.0 && rect.height() > 0.0 ? rect : QRectF();
}

TapePage tapePageOf(ppd_file_t *ppd, const JobOptions &options, const TapeKeywords &keywords)
{
    TapePage page;
    const ppd_size_t *paper = ppd == nullptr ? nullptr : ppdPageSize(ppd, nullptr);
    if (paper == nullptr || !(paper->width > 0.0F) || !(paper->length > 0.0F)) {
        return page;
    }
    const QString name = QString::fromUtf8(paper->name);
    takePaper(page, *paper);
    const bool isCustom = name == QLatin1String("Custom");
    page.pageSize = isCustom ? options.value(OptionName::pageSize) : name;

    const std::optional<double> lengthPt = positiveLengthPt(options, keywords.lengthOption);
    page.isTape = !keywords.isEmpty() && lengthPt.has_value();
    if (!page.isTape) {
        return page;
    }
    page.freeEndsPt = positiveLengthPt(options, keywords.marginOption).value_or(0.0);
    if (!hasFixedLength(name, keywords) && !isPapersOwn(*lengthPt, *paper)) {
        takeChosenLength(page, ppd, *paper, *lengthPt);
    }
    return page;
}

} // namespace tapeprint::job
