// SPDX-License-Identifier: Apache-2.0
// Selecting pages and dealing them out to labels.
#include "job/LabelPlan.h"

#include "job/PageRanges.h"
#include "job/UsualOptions.h"

#include <algorithm>
#include <array>
#include <cmath>
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
            place, part.part};
}

bool isInSet(PageSet set, int number)
{
    return set == PageSet::All || (set == PageSet::Odd) == (number % 2 == 1);
}

/// A sheet as its pages are read, and how it then lies on the paper.
struct SheetOfPages {
    QRectF area;
    QTransform toPaper;
    bool turnsPages = false; ///< whether upright pages are turned against the clock, and lying ones are not
};

/// Whether the filters put so many pages on a sheet of paper that lies when one page would stand.
bool liesOnPaper(int pagesPerSheet)
{
    static constexpr std::array lying{2, 3, 6, 8, 10, 15};
    return std::find(lying.begin(), lying.end(), pagesPerSheet) != lying.end();
}

/// Several pages on paper as the filters lay them: the orientation turns the sheet and not its pages, and a sheet that
/// lies already comes to stand when it is to lie.
SheetOfPages sheetOfPaper(const QRectF &paper, const LayoutChoices &choices)
{
    const int asked = choices.turn == Turn::Right  ? 1
                      : choices.turn == Turn::Half ? 2
                      : choices.turn == Turn::Left ? 3
                                                   : 0;
    const bool isAskedToLie = asked % 2 == 1;
    const int more = !liesOnPaper(choices.pagesPerSheet) ? 0 : isAskedToLie ? 1 : 3;
    const int quarters = (asked + more) % 4;
    const std::array<QTransform, 4> turned{
        QTransform(1, 0, 0, 1, paper.left(), paper.top()), QTransform(0, 1, -1, 0, paper.right(), paper.top()),
        QTransform(-1, 0, 0, -1, paper.right(), paper.bottom()), QTransform(0, -1, 1, 0, paper.left(), paper.bottom())};
    const QSizeF size = quarters % 2 == 1 ? paper.size().transposed() : paper.size();
    return {QRectF(QPointF(), size), turned[static_cast<std::size_t>(quarters)], isAskedToLie};
}

bool lies(const QSizeF &page)
{
    return page.width() > page.height();
}

/// Pages dealt out to sheets. \param set which of the sheets are wanted when they hold several pages.
std::vector<Label> dealOut(const std::vector<PageOfAll> &pages, const TapePage &page, const LayoutChoices &choices,
                           PageSet set)
{
    // Paper is laid out on what can be printed of it, as the filters do; tape keeps its margins free as well.
    const bool isSheetTurned = !page.isTape && choices.pagesPerSheet > 1;
    const SheetOfPages sheetPages =
        isSheetTurned ? sheetOfPaper(page.layoutRect(), choices) : SheetOfPages{page.layoutRect(), QTransform()};
    const auto choicesFor = [&](const PageOfAll &source) {
        LayoutChoices own = choices;
        if (isSheetTurned) {
            own.turn = lies(source.size) != sheetPages.turnsPages ? Turn::Left : Turn::None;
        }
        return own;
    };
    const auto placesFor = [&](const PageOfAll &source) {
        if (!isSheetTurned) {
            return placesOnSheet(choices.pagesPerSheet, sheetPages.area, source.size, choices);
        }
        // The order is that of the sheet, whichever way its pages are turned.
        LayoutChoices upright = choices;
        upright.turn = Turn::None;
        const bool isTurned = choicesFor(source).turn == Turn::Left;
        return placesOnSheet(choices.pagesPerSheet, sheetPages.area, isTurned ? source.size.transposed() : source.size,
                             upright);
    };
    const auto perSheet = static_cast<std::size_t>(choices.pagesPerSheet);
    std::vector<Label> sheets;
    for (std::size_t first = 0; first < pages.size(); first += perSheet) {
        if (perSheet > 1 && !isInSet(set, static_cast<int>(first / perSheet) + 1)) {
            continue;
        }
        Label sheet;
        const std::size_t count = std::min(perSheet, pages.size() - first);
        // A sheet that is not full keeps the places of a full one.
        const std::vector<QRectF> places = placesFor(pages[first]);
        for (std::size_t i = 0; i < count; ++i) {
            const PageOfAll &source = pages[first + i];
            PlacedPage laid = placed(source, places[std::min(i, places.size() - 1)], choicesFor(source));
            laid.place *= sheetPages.toPaper;
            laid.clip = sheetPages.toPaper.mapRect(laid.clip);
            sheet.push_back(laid);
        }
        sheets.push_back(std::move(sheet));
    }
    return sheets;
}

/// Pages of which each is a sheet.
std::vector<Label> asTheyAre(const std::vector<PageOfAll> &pages)
{
    std::vector<Label> sheets;
    sheets.reserve(pages.size());
    for (const PageOfAll &page : pages) {
        sheets.push_back({{page.document, page.page, QTransform(), QRectF({}, page.size), QRectF({}, page.size)}});
    }
    return sheets;
}

} // namespace

std::size_t LabelPlan::sheetCount() const
{
    if (!page.isTwoSided) {
        return labelCount();
    }
    std::size_t sheets = 0;
    std::size_t sides = 0; // of the document so far
    for (std::size_t i = 0; i < labels.size(); ++i) {
        const bool isSameDocument = i > 0 && !labels[i].empty() && !labels[i - 1].empty() &&
                                    labels[i].front().document == labels[i - 1].front().document;
        sides = isSameDocument ? sides + 1 : 1;
        sheets += sides % 2;
    }
    return sheets * static_cast<std::size_t>(copies);
}

bool PlacedPage::isUnreadable() const
{
    const double leastPt = pointsFromMm(1.0);
    const double scale = std::hypot(place.m11(), place.m12());
    const QSizeF whole = place.mapRect(part).size() / scale; // turned as it is printed
    const QSizeF printed = printedPt();
    return (printed.width() < leastPt && whole.width() >= leastPt) ||
           (printed.height() < leastPt && whole.height() >= leastPt);
}

const PlacedPage *LabelPlan::unreadablePage() const
{
    if (!page.isTape) {
        return nullptr;
    }
    for (const Label &label : labels) {
        const auto found =
            std::find_if(label.begin(), label.end(), [](const PlacedPage &placed) { return placed.isUnreadable(); });
        if (found != label.end()) {
            return &*found;
        }
    }
    return nullptr;
}

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
                     const std::vector<DrawnRects> &drawn, const LaidOnSheets &laidOn)
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
        const bool areSheets = !page.isTape && first->document < laidOn.size() && laidOn[first->document];
        for (Label &sheet :
             areSheets ? asTheyAre({first, end}) : dealOut({first, end}, page, choices, pageSetOf(options))) {
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
