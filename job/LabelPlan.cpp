// SPDX-License-Identifier: Apache-2.0
// Selecting pages and dealing them out to labels.
#include "job/LabelPlan.h"

#include "job/PageRanges.h"
#include "job/UsualOptions.h"

#include <algorithm>
#include <array>
#include <utility>

#include <pdekit/Numbers.h>

namespace tapeprint::job
{

namespace
{

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

bool isInSet(PageSet set, int number)
{
    return set == PageSet::All || (set == PageSet::Odd) == (number % 2 == 1);
}

/// Whether the filters put so many pages on a sheet of paper that lies, and turn it against the clock.
bool liesOnPaper(int pagesPerSheet)
{
    static constexpr std::array lying{2, 3, 6, 8, 10, 15};
    return std::find(lying.begin(), lying.end(), pagesPerSheet) != lying.end();
}

/// Pages dealt out to sheets. \param set which of the sheets are wanted when they hold several pages.
std::vector<Label> dealOut(const std::vector<PageOfAll> &pages, const TapePage &page, const LayoutChoices &choices,
                           PageSet set)
{
    // Paper is laid out on what can be printed of it, as the filters do; tape keeps its margins free as well.
    const QRectF upright = page.layoutRect();
    const bool lies = !page.isTape && choices.turn == Turn::Automatic && liesOnPaper(choices.pagesPerSheet);
    const QRectF area = lies ? QRectF(QPointF(), upright.size().transposed()) : upright;
    const QTransform backUp = lies ? QTransform(0, -1, 1, 0, upright.left(), upright.bottom()) : QTransform();
    const auto perSheet = static_cast<std::size_t>(choices.pagesPerSheet);
    std::vector<Label> sheets;
    for (std::size_t first = 0; first < pages.size(); first += perSheet) {
        if (perSheet > 1 && !isInSet(set, static_cast<int>(first / perSheet) + 1)) {
            continue;
        }
        Label sheet;
        const std::size_t count = std::min(perSheet, pages.size() - first);
        // A sheet that is not full keeps the places of a full one.
        const std::vector<QRectF> places = placesOnSheet(choices.pagesPerSheet, area, pages[first].size, choices);
        for (std::size_t i = 0; i < count; ++i) {
            PlacedPage laid = placed(pages[first + i], places[std::min(i, places.size() - 1)], choices);
            laid.place *= backUp;
            laid.clip = backUp.mapRect(laid.clip);
            sheet.push_back(laid);
        }
        sheets.push_back(std::move(sheet));
    }
    return sheets;
}

} // namespace

double LabelPlan::tapeLengthMm() const
{
    return mmFromPoints(page.sizePt.height()) * static_cast<double>(labelCount());
}

const QStringList &selectionOptionNames()
{
    static const QStringList names{OptionName::pageRanges, OptionName::pageSet, OptionName::outputOrder,
                                   QStringLiteral("OutputOrder")};
    return names;
}

std::vector<int> selectedPages(int total, const JobOptions &options)
{
    const std::vector<PageRange> ranges = pageRangesOf(options.value(OptionName::pageRanges), total);
    const PageSet set = layoutChoicesOf(options).pagesPerSheet > 1 ? PageSet::All : pageSetOf(options);
    std::vector<int> pages;
    for (int number = 1; number <= total; ++number) {
        const bool isInRange =
            ranges.empty() ||
            std::any_of(ranges.begin(), ranges.end(), [number](const PageRange &range) { return range.holds(number); });
        if (isInRange && isInSet(set, number)) {
            pages.push_back(number - 1);
        }
    }
    return pages;
}

LabelPlan planLabels(const std::vector<PageSizes> &documents, const TapePage &page, const JobOptions &options,
                     const std::vector<DrawnRects> &drawn)
{
    LabelPlan plan;
    plan.page = page;
    plan.copies = std::max(1, static_cast<int>(pdekit::intValue(options.value(OptionName::copies))));
    LayoutChoices choices = layoutChoicesOf(options);
    if (!page.isTape) {
        choices.pagesPerSheet = pagesPerPaper(choices.pagesPerSheet);
    }
    const std::vector<PageOfAll> all = allPages(documents, drawn);
    std::vector<PageOfAll> selected;
    for (const int index : selectedPages(static_cast<int>(all.size()), options)) {
        selected.push_back(all[static_cast<std::size_t>(index)]);
    }
    // The labels of a tape are one document. Paper is laid out by filters, one document at a time.
    auto first = selected.cbegin();
    while (first != selected.cend()) {
        const auto end =
            page.isTape ? selected.cend() : std::find_if(first, selected.cend(), [first](const PageOfAll &source) {
                return source.document != first->document;
            });
        for (Label &sheet : dealOut({first, end}, page, choices, pageSetOf(options))) {
            plan.labels.push_back(std::move(sheet));
        }
        first = end;
    }
    if (isReversed(options)) {
        std::reverse(plan.labels.begin(), plan.labels.end());
    }
    return plan;
}

} // namespace tapeprint::job
