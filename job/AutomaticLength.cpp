// SPDX-License-Identifier: Apache-2.0
// The longest of the pages decides: a job is printed on tape of one length.
#include "job/AutomaticLength.h"

#include <algorithm>
#include <cmath>

#include <pdekit/Numbers.h>

namespace tapeprint::job
{

namespace
{

constexpr double mmPerInch = 25.4;
constexpr double wholeStep = 1.0;
constexpr double tenthStep = 0.1;
/// Lengths in inches are kept in hundredths and saved in tenths of a millimetre: half of such a tenth may get lost.
constexpr double inchStep = 0.01;
constexpr double lostInInches = 0.05;
/// What a length may be beyond a whole step without needing the next one: sums of floats.
constexpr double slackMm = 0.001;

QString attribute(ppd_file_t *ppd, const QString &name)
{
    const ppd_attr_t *found =
        ppd == nullptr || name.isEmpty() ? nullptr : ppdFindAttr(ppd, name.toUtf8().constData(), nullptr);
    return found == nullptr ? QString() : QString::fromUtf8(found->value);
}

double roundedUp(double mm, const LengthRules &rules)
{
    if (rules.inInches) {
        return std::ceil((mm + lostInInches) / mmPerInch / inchStep) * inchStep * mmPerInch;
    }
    return std::ceil((mm - slackMm) / rules.step) * rules.step;
}

} // namespace

LengthRules lengthRulesOf(ppd_file_t *ppd, const TapeKeywords &keywords)
{
    LengthRules rules;
    rules.least = pdekit::doubleValue(attribute(ppd, keywords.minimumLengthAttribute));
    rules.most = pdekit::doubleValue(attribute(ppd, keywords.maximumLengthAttribute));
    rules.step = attribute(ppd, keywords.wholeLengthAttribute) == u"True" ? wholeStep : tenthStep;
    rules.inInches = attribute(ppd, keywords.unitAttribute) == u"inch";
    return rules;
}

std::optional<AutomaticLength> automaticLength(const std::vector<PageSizes> &documents,
                                               const std::vector<DrawnRects> &drawn, const TapePage &page,
                                               const JobOptions &options, const LengthRules &rules)
{
    LayoutChoices choices = layoutChoicesOf(options);
    choices.fitLength = true;
    JobOptions fitting = options;
    fitting.set(OptionName::fitLength, QStringLiteral("true"));

    double longestPt = 0.0;
    for (const Label &label : planLabels(documents, page, fitting, drawn).labels) {
        for (const PlacedPage &placed : label) {
            const QRectF &rect = drawn.at(placed.document).at(static_cast<std::size_t>(placed.page));
            if (!rect.isEmpty()) {
                const QSizeF &size = documents.at(placed.document).at(static_cast<std::size_t>(placed.page));
                const PagePart part = partThatCounts(size, rect, choices);
                longestPt = std::max(longestPt, lengthNeeded(part, page.printableRect().width(), choices));
            }
        }
    }
    if (!(longestPt > 0.0)) {
        return std::nullopt;
    }
    const double endsPt =
        std::max(page.freeEndsPt, page.unprintablePt.top()) + std::max(page.freeEndsPt, page.unprintablePt.bottom());
    const double wanted = roundedUp(mmFromPoints(longestPt + endsPt), rules);
    const double most = rules.most > 0.0 ? rules.most : wanted;
    const double held = std::max(std::min(wanted, most), rules.least);
    return AutomaticLength{held, held < wanted};
}

} // namespace tapeprint::job
