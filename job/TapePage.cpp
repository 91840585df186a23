// SPDX-License-Identifier: Apache-2.0
// From paper, length and margin to the page that the filters rasterise. The rules of the filters that matter here were
// measured on the chain of pdftopdf and gstoraster and stand beside what they cause.
#include "job/TapePage.h"

#include "job/CustomSizes.h"
#include "job/UsualOptions.h"

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

std::span<const ppd_size_t> sizesOf(const ppd_file_t *ppd)
{
    return {ppd->sizes, static_cast<std::size_t>(std::max(ppd->num_sizes, 0))};
}

/// Whether a number of a description can be the side of a page: libcups reads whatever looks like one, infinity, too.
bool isMeasure(float sidePt)
{
    constexpr float longest = 1e6F; // 350 metres
    return sidePt > 0.0F && sidePt < longest;
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

QSizeF wholeOf(const ppd_size_t &size)
{
    return {static_cast<double>(size.width), static_cast<double>(size.length)};
}

QSizeF printableOf(const ppd_size_t &size)
{
    return {static_cast<double>(size.right - size.left), static_cast<double>(size.top - size.bottom)};
}

bool isNamed(const ppd_size_t &size)
{
    // libcups lists the custom size among the others.
    return size.width > 0.0F && size.length > 0.0F && QLatin1String(size.name) != QLatin1String("Custom");
}

/// How far a custom size lies beside what was measured of a named one, as the rasteriser compares them; nothing when it
/// is no match.
std::optional<double> mismatch(const QSizeF &sizePt, const QSizeF &measured, const QSizeF &named)
{
    constexpr double mostApart = 0.01;
    constexpr double offset = 0.0001;
    const double across = std::abs(sizePt.width() - measured.width()) / named.width() + offset;
    const double along = std::abs(sizePt.height() - measured.height()) / named.height() + offset;
    return across < mostApart && along < mostApart ? std::optional(across * along) : std::nullopt;
}

/// The rasteriser takes a named size of the PPD in place of a custom one that lies within a hundredth of it in both
/// directions, whatever the custom size's own measures are.
const ppd_size_t *namedSizeTaken(const ppd_file_t *ppd, const QSizeF &sizePt, const ppd_size_t &paper)
{
    const ppd_size_t *best = nullptr;
    double least = 0.0;
    for (const ppd_size_t &size : sizesOf(ppd)) {
        const std::optional<double> apart =
            isNamed(size) ? mismatch(sizePt, wholeOf(size), wholeOf(size)) : std::nullopt;
        const bool isBetter = apart && (best == nullptr || *apart < least || (*apart == least && &size == &paper));
        if (isBetter) {
            best = &size;
            least = *apart;
        }
    }
    return best;
}

/// Failing that, it takes a named size of which the custom one is the printable area, or which lies across it: then the
/// content comes out displaced by the strips, or turned.
bool isTakenAskew(const ppd_file_t *ppd, const QSizeF &sizePt)
{
    const std::span<const ppd_size_t> sizes = sizesOf(ppd);
    return std::any_of(sizes.begin(), sizes.end(), [&sizePt](const ppd_size_t &size) {
        return isNamed(size) && (mismatch(sizePt, printableOf(size), wholeOf(size)) ||
                                 mismatch(sizePt.transposed(), wholeOf(size), wholeOf(size)) ||
                                 mismatch(sizePt.transposed(), printableOf(size), wholeOf(size)));
    });
}

/// A page of that length that the rasteriser takes as it is: a little wider than the tape where nothing else helps.
/// \return nothing when the PPD takes no such page.
std::optional<QSizeF> takenAsItIs(const ppd_file_t *ppd, const QSizeF &sizePt)
{
    constexpr double step = 0.0101; // just over what the rasteriser lets pass
    constexpr int mostSteps = 3;
    for (int i = 0; i <= mostSteps; ++i) {
        const QSizeF size(pointsFromMm(roundedMm(sizePt.width() * (1.0 + i * step))), sizePt.height());
        if (!isTakenAskew(ppd, size)) {
            return takesCustomSize(ppd, size) ? std::optional(size) : std::nullopt;
        }
    }
    return std::nullopt;
}

bool isOfFixedLength(const QString &paper, const TapeKeywords &keywords)
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

void takeNamedSize(TapePage &page, const ppd_size_t &named, const ppd_size_t &paper, double lengthPt)
{
    if (&named == &paper) {
        page.length = PageLength::PaperForNear;
        return;
    }
    takePaper(page, named);
    page.length = isPapersOwn(lengthPt, named) ? PageLength::Chosen : PageLength::NamedForNear;
    page.pageSize = customSizeName(page.sizePt);
}

void takeChosenLength(TapePage &page, const ppd_file_t *ppd, const ppd_size_t &paper, double lengthPt)
{
    // The page is what the custom name says, to the last decimal.
    const QSizeF wanted(pointsFromMm(roundedMm(static_cast<double>(paper.width))), pointsFromMm(roundedMm(lengthPt)));
    if (!takesCustomSize(ppd, wanted)) {
        page.length = PageLength::LeftToDriver;
        return;
    }
    if (const ppd_size_t *named = namedSizeTaken(ppd, wanted, paper)) {
        takeNamedSize(page, *named, paper, lengthPt);
        return;
    }
    const std::optional<QSizeF> taken = takenAsItIs(ppd, wanted);
    if (!taken) {
        page.length = PageLength::LeftToDriver;
        return;
    }
    page.length = PageLength::Chosen;
    page.sizePt = *taken;
    page.unprintablePt = customMargins(ppd);
    page.unprintablePt.setRight(page.unprintablePt.right() + taken->width() - wanted.width());
    page.pageSize = customSizeName(page.sizePt);
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
    if (paper == nullptr || !isMeasure(paper->width) || !isMeasure(paper->length)) {
        return page;
    }
    const QString name = QString::fromUtf8(paper->name);
    takePaper(page, *paper);
    const bool isCustom = name == QLatin1String("Custom");
    page.pageSize = isCustom ? options.value(OptionName::pageSize) : name;

    const std::optional<double> lengthPt = positiveLengthPt(options, keywords.lengthOption);
    page.isTape = !keywords.isEmpty() && lengthPt.has_value();
    if (!page.isTape) {
        page.isTwoSided = isTwoSided(options, ppd);
        return page;
    }
    page.freeEndsPt = positiveLengthPt(options, keywords.marginOption).value_or(0.0);
    page.hasFixedLength = isOfFixedLength(name, keywords);
    if (!page.hasFixedLength && !isPapersOwn(*lengthPt, *paper)) {
        takeChosenLength(page, ppd, *paper, *lengthPt);
    }
    return page;
}

} // namespace tapeprint::job
