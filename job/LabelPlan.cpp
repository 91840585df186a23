// SPDX-License-Identifier: Apache-2.0
// Selecting pages and dealing them out to labels.
#include "job/LabelPlan.h"

#include <algorithm>
#include <utility>

#include <pdekit/Numbers.h>

namespace tapeprint::job
{

namespace
{

/// Page ranges such as 1-4,7,9- as first and last page from 1; an open end goes to the last page there is.
std::vector<std::pair<int, int>> rangesOf(const QString &text, int total)
{
    std::vector<std::pair<int, int>> ranges;
    for (const QString &part : text.split(u',', Qt::SkipEmptyParts)) {
        const qsizetype dash = part.indexOf(u'-');
        const int first = pdekit::intValue(dash < 0 ? part : part.left(dash));
        const bool isOpen = dash >= 0 && part.mid(dash + 1).trimmed().isEmpty();
        const int last = dash < 0 ? first : isOpen ? total : pdekit::intValue(part.mid(dash + 1));
        ranges.emplace_back(std::max(first, 1), std::min(last, total));
    }
    return ranges;
}

bool isSelected(int number, const std::vector<std::pair<int, int>> &ranges)
{
    return ranges.empty() || std::any_of(ranges.begin(), ranges.end(), [number](const auto &range) {
               return number >= range.first && number <= range.second;
           });
}

/// A page of all documents, numbered through.
struct PageOfAll {
    std::size_t document;
    int page;
    QSizeF size;
    QRectF drawn;
};

QRectF drawnRect(const std::vector<DrawnRects> &drawn, std::size_t document, std::size_t page)
{
    return document < drawn.size() && page < drawn[document].size() ? drawn[document][page] : QRectF();
}

std::vector<PageOfAll> allPages(const std::vector<PageSizes> &documents, const std::vector<DrawnRects> &drawn)
{
    std::vector<PageOfAll> pages;
    for (std::size_t document = 0; document < documents.size(); ++document) {
        for (std::size_t page = 0; page < documents[document].size(); ++page) {
            pages.push_back(
                {document, static_cast<int>(page), documents[document][page], drawnRect(drawn, document, page)});
        }
    }
    return pages;
}

PlacedPage placed(const PageOfAll &source, const QRectF &place, const LayoutChoices &choices)
{
    const PagePart part = partThatCounts(source.size, source.drawn, choices);
    LayoutChoices turned = choices;
    turned.turn = part.turn; // what a whole page would do, also when little of it counts
    return {source.document, source.page,
            QTransform::fromTranslate(-part.part.left(), -part.part.top()) * placePage(part.part.size(), place, turned),
            place};
}

} // namespace

double LabelPlan::tapeLengthMm() const
{
    return mmFromPoints(page.sizePt.height()) * static_cast<double>(labelCount());
}

const QStringList &selectionOptionNames()
{
    static const QStringList names{OptionName::pageRanges, QStringLiteral("page-set"), QStringLiteral("outputorder"),
                                   QStringLiteral("OutputOrder")};
    return names;
}

std::vector<int> selectedPages(int total, const JobOptions &options)
{
    const std::vector<std::pair<int, int>> ranges = rangesOf(options.value(OptionName::pageRanges), total);
    const QString set = options.value(QStringLiteral("page-set"));
    std::vector<int> pages;
    for (int number = 1; number <= total; ++number) {
        const bool isInSet = (set != u"even" || number % 2 == 0) && (set != u"odd" || number % 2 == 1);
        if (isInSet && isSelected(number, ranges)) {
            pages.push_back(number - 1);
        }
    }
    const QString order = options.contains(QStringLiteral("outputorder"))
                              ? options.value(QStringLiteral("outputorder"))
                              : options.value(QStringLiteral("OutputOrder"));
    if (order.compare(QLatin1String("reverse"), Qt::CaseInsensitive) == 0) {
        std::reverse(pages.begin(), pages.end());
    }
    return pages;
}

LabelPlan planLabels(const std::vector<PageSizes> &documents, const TapePage &page, const JobOptions &options,
                     const std::vector<DrawnRects> &drawn)
{
    LabelPlan plan;
    plan.page = page;
    plan.copies = std::max(1, static_cast<int>(pdekit::intValue(options.value(OptionName::copies))));
    const LayoutChoices choices = layoutChoicesOf(options);
    // Paper is laid out on what can be printed of it, as the filters do; tape keeps its margins free as well.
    const QRectF area = page.layoutRect();
    const std::vector<PageOfAll> all = allPages(documents, drawn);
    const std::vector<int> selected = selectedPages(static_cast<int>(all.size()), options);
    const auto perSheet = static_cast<std::size_t>(choices.pagesPerSheet);
    for (std::size_t first = 0; first < selected.size(); first += perSheet) {
        Label label;
        const std::size_t count = std::min(perSheet, selected.size() - first);
        // A sheet that is not full keeps the places of a full one.
        const std::vector<QRectF> places =
            placesOnSheet(choices.pagesPerSheet, area, all[static_cast<std::size_t>(selected[first])].size, choices);
        for (std::size_t i = 0; i < count; ++i) {
            const PageOfAll &source = all[static_cast<std::size_t>(selected[first + i])];
            const QRectF &place = places[std::min(i, places.size() - 1)];
            label.push_back(placed(source, place, choices));
        }
        plan.labels.push_back(std::move(label));
    }
    return plan;
}

} // namespace tapeprint::job
