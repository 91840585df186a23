// SPDX-License-Identifier: Apache-2.0
// The arithmetic of laying out, and the table of the options that choose it.
#include "job/PageLayout.h"

#include <algorithm>
#include <array>
#include <cmath>

#include <pdekit/Numbers.h>

namespace tapeprint::job
{

namespace
{

constexpr double gapPt = 3.0; ///< between two pages on one sheet
/// A page that is larger than its place by no more than this is as large: sizes go through floats and texts.
constexpr double slackPt = 0.05;

template <typename Value>
struct Word {
    QLatin1String word;
    Value value;
};

constexpr std::array scalings{
    Word<Scaling>{QLatin1String("auto"), Scaling::Auto}, Word<Scaling>{QLatin1String("auto-fit"), Scaling::Auto},
    Word<Scaling>{QLatin1String("fit"), Scaling::Fit},   Word<Scaling>{QLatin1String("fill"), Scaling::Fill},
    Word<Scaling>{QLatin1String("none"), Scaling::None},
};

// IPP's orientation-requested: landscape is turned against the clock.
constexpr std::array turns{
    Word<Turn>{QLatin1String("3"), Turn::None},
    Word<Turn>{QLatin1String("4"), Turn::Left},
    Word<Turn>{QLatin1String("5"), Turn::Right},
    Word<Turn>{QLatin1String("6"), Turn::Half},
};

struct Position {
    Place across;
    Place along;
};

constexpr std::array positions{
    Word<Position>{QLatin1String("center"), {Place::Middle, Place::Middle}},
    Word<Position>{QLatin1String("top"), {Place::Middle, Place::Start}},
    Word<Position>{QLatin1String("bottom"), {Place::Middle, Place::End}},
    Word<Position>{QLatin1String("left"), {Place::Start, Place::Middle}},
    Word<Position>{QLatin1String("right"), {Place::End, Place::Middle}},
    Word<Position>{QLatin1String("top-left"), {Place::Start, Place::Start}},
    Word<Position>{QLatin1String("top-right"), {Place::End, Place::Start}},
    Word<Position>{QLatin1String("bottom-left"), {Place::Start, Place::End}},
    Word<Position>{QLatin1String("bottom-right"), {Place::End, Place::End}},
};

constexpr std::array orders{
    Word<SheetOrder>{QLatin1String("lrtb"), {false, false, false}},
    Word<SheetOrder>{QLatin1String("lrbt"), {false, true, false}},
    Word<SheetOrder>{QLatin1String("rltb"), {true, false, false}},
    Word<SheetOrder>{QLatin1String("rlbt"), {true, true, false}},
    Word<SheetOrder>{QLatin1String("tblr"), {false, false, true}},
    Word<SheetOrder>{QLatin1String("btlr"), {false, true, true}},
    Word<SheetOrder>{QLatin1String("tbrl"), {true, false, true}},
    Word<SheetOrder>{QLatin1String("btrl"), {true, true, true}},
};

template <typename Value, std::size_t size>
const Value *meaning(const std::array<Word<Value>, size> &words, const QString &text)
{
    const auto found =
        std::find_if(words.begin(), words.end(), [&text](const auto &word) { return text == word.word; });
    return found == words.end() ? nullptr : &found->value;
}

bool isTrue(const QString &value)
{
    return value.compare(QLatin1String("true"), Qt::CaseInsensitive) == 0 || value == QLatin1String("1") ||
           value.compare(QLatin1String("yes"), Qt::CaseInsensitive) == 0 ||
           value.compare(QLatin1String("on"), Qt::CaseInsensitive) == 0;
}

int quarterTurns(Turn turn, const QSizeF &pagePt)
{
    switch (turn) {
    case Turn::Automatic:
        // A page that lies is turned against the clock: on the lying tape it is then seen as it is read.
        return pagePt.width() > pagePt.height() ? 3 : 0;
    case Turn::None:
        return 0;
    case Turn::Right:
        return 1;
    case Turn::Half:
        return 2;
    case Turn::Left:
        return 3;
    }
    return 0;
}

double scaleFor(Scaling scaling, const QSizeF &turned, const QSizeF &place)
{
    const double across = place.width() / turned.width();
    const double along = place.height() / turned.height();
    const bool isLarger = turned.width() > place.width() + slackPt || turned.height() > place.height() + slackPt;
    switch (scaling) {
    case Scaling::Auto:
        return isLarger ? std::min(across, along) : 1.0;
    case Scaling::Fit:
        return std::min(across, along);
    case Scaling::Fill:
        return std::max(across, along);
    case Scaling::None:
        return 1.0;
    }
    return 1.0;
}

double offsetFor(Place place, double room)
{
    switch (place) {
    case Place::Start:
        return 0.0;
    case Place::Middle:
        return room / 2.0;
    case Place::End:
        return room;
    }
    return 0.0;
}

QSizeF turnedSize(const QSizeF &pagePt, int quarters)
{
    return quarters % 2 == 0 ? pagePt : pagePt.transposed();
}

struct Cell {
    int column;
    int row;
};

/// Where a page of a sheet stands. The order is that of the pages as they are read: where they are turned, so is it.
Cell cellOf(int index, int columns, int rows, const SheetOrder &order, int quarters)
{
    const bool lies = quarters % 2 == 1;
    const int readColumns = lies ? rows : columns;
    const int readRows = lies ? columns : rows;
    int column = order.columnsFirst ? index / readRows : index % readColumns;
    int row = order.columnsFirst ? index % readRows : index / readColumns;
    column = order.rightToLeft ? readColumns - 1 - column : column;
    row = order.bottomToTop ? readRows - 1 - row : row;
    switch (quarters) {
    case 1:
        return {columns - 1 - row, column};
    case 2:
        return {columns - 1 - column, rows - 1 - row};
    case 3:
        return {row, rows - 1 - column};
    default:
        return {column, row};
    }
}

} // namespace

const QStringList &layoutOptionNames()
{
    static const QStringList names{QStringLiteral("print-scaling"),
                                   QStringLiteral("fit-to-page"),
                                   QStringLiteral("fitplot"),
                                   QStringLiteral("scaling"),
                                   QStringLiteral("natural-scaling"),
                                   QStringLiteral("ppi"),
                                   QStringLiteral("orientation-requested"),
                                   QStringLiteral("landscape"),
                                   QStringLiteral("position"),
                                   QStringLiteral("number-up"),
                                   QStringLiteral("number-up-layout"),
                                   QStringLiteral("page-border"),
                                   QStringLiteral("page-left"),
                                   QStringLiteral("page-right"),
                                   QStringLiteral("page-top"),
                                   QStringLiteral("page-bottom"),
                                   QStringLiteral("pdfAutorotate"),
                                   QStringLiteral("nopdfAutorotate"),
                                   OptionName::fitLength};
    return names;
}

LayoutChoices layoutChoicesOf(const JobOptions &options)
{
    LayoutChoices choices;
    if (const Scaling *scaling = meaning(scalings, options.value(QStringLiteral("print-scaling")))) {
        choices.scaling = *scaling;
    } else if (isTrue(options.value(QStringLiteral("fit-to-page"))) ||
               isTrue(options.value(QStringLiteral("fitplot")))) {
        choices.scaling = Scaling::Fit;
    }
    if (const Turn *turn = meaning(turns, options.value(QStringLiteral("orientation-requested")))) {
        choices.turn = *turn;
    } else if (isTrue(options.value(QStringLiteral("landscape")))) {
        choices.turn = Turn::Left;
    }
    if (const Position *position = meaning(positions, options.value(QStringLiteral("position")))) {
        choices.across = position->across;
        choices.along = position->along;
    }
    constexpr int mostPages = 16;
    choices.pagesPerSheet = std::clamp(pdekit::intValue(options.value(QStringLiteral("number-up"))), std::int32_t{1},
                                       std::int32_t{mostPages});
    if (const SheetOrder *order = meaning(orders, options.value(QStringLiteral("number-up-layout")))) {
        choices.order = *order;
    }
    choices.fitLength = isTrue(options.value(OptionName::fitLength));
    if (choices.fitLength) {
        choices.pagesPerSheet = 1;
    }
    return choices;
}

int pagesPerPaper(int asked)
{
    // The other numbers make no rows and columns that the filters know; they then leave a page a sheet.
    static constexpr std::array known{2, 3, 4, 6, 8, 9, 10, 12, 15, 16};
    return std::find(known.begin(), known.end(), asked) == known.end() ? 1 : asked;
}

PagePart partThatCounts(const QSizeF &pagePt, const QRectF &drawnPt, const LayoutChoices &choices)
{
    static constexpr std::array turnOfQuarters{Turn::None, Turn::Right, Turn::Half, Turn::Left};
    const int quarters = quarterTurns(choices.turn, pagePt);
    PagePart part{QRectF(QPointF(), pagePt), turnOfQuarters[static_cast<std::size_t>(quarters)]};
    if (choices.fitLength && !drawnPt.isEmpty()) {
        if (quarters % 2 == 0) {
            part.part.setTop(drawnPt.top());
            part.part.setBottom(drawnPt.bottom());
        } else {
            part.part.setLeft(drawnPt.left());
            part.part.setRight(drawnPt.right());
        }
    }
    return part;
}

double lengthNeeded(const PagePart &part, double width, const LayoutChoices &choices)
{
    const bool isTurned = part.turn == Turn::Left || part.turn == Turn::Right;
    const QSizeF turned = isTurned ? part.part.size().transposed() : part.part.size();
    if (turned.isEmpty() || !(width > 0.0)) {
        return 0.0;
    }
    const double across = width / turned.width();
    // Without a bound along the tape, fitting and filling both go by the width alone.
    const bool byWidth = choices.scaling == Scaling::Fit || choices.scaling == Scaling::Fill ||
                         (choices.scaling == Scaling::Auto && turned.width() > width + slackPt);
    return turned.height() * (byWidth ? across : 1.0);
}

QTransform placePage(const QSizeF &pagePt, const QRectF &area, const LayoutChoices &choices)
{
    if (pagePt.isEmpty() || area.isEmpty()) {
        return {};
    }
    const int quarters = quarterTurns(choices.turn, pagePt);
    const QSizeF turned = turnedSize(pagePt, quarters);
    const double scale = scaleFor(choices.scaling, turned, area.size());
    const double left = area.left() + offsetFor(choices.across, area.width() - turned.width() * scale);
    const double top = area.top() + offsetFor(choices.along, area.height() - turned.height() * scale);

    // Turned about its corner, moved back into the first quadrant, scaled, and put to its place. Whole quarter turns
    // are written out: a rotation by an angle would leave the last bits of its sine in the matrix.
    static const std::array<QTransform, 4> rotations{QTransform(1, 0, 0, 1, 0, 0), QTransform(0, 1, -1, 0, 0, 0),
                                                     QTransform(-1, 0, 0, -1, 0, 0), QTransform(0, -1, 1, 0, 0, 0)};
    const std::array<QPointF, 4> backs{QPointF(0, 0), QPointF(pagePt.height(), 0),
                                       QPointF(pagePt.width(), pagePt.height()), QPointF(0, pagePt.width())};
    const auto turn = static_cast<std::size_t>(quarters);
    return rotations[turn] * QTransform::fromTranslate(backs[turn].x(), backs[turn].y()) *
           QTransform::fromScale(scale, scale) * QTransform::fromTranslate(left, top);
}

std::vector<QRectF> placesOnSheet(int count, const QRectF &area, const QSizeF &pagePt, const LayoutChoices &choices)
{
    if (count <= 1 || area.isEmpty()) {
        return {area};
    }
    const int quarters = quarterTurns(choices.turn, pagePt);
    // A page without a size must not bring the others on its sheet on top of each other.
    const QSizeF turned = pagePt.isEmpty() ? area.size() : turnedSize(pagePt, quarters);
    int bestColumns = 1;
    double bestScale = 0.0;
    for (int columns = 1; columns <= count; ++columns) {
        const int rows = (count + columns - 1) / columns;
        const double scale = std::min((area.width() - gapPt * (columns - 1)) / columns / turned.width(),
                                      (area.height() - gapPt * (rows - 1)) / rows / turned.height());
        if (scale > bestScale) {
            bestScale = scale;
            bestColumns = columns;
        }
    }
    const int rows = (count + bestColumns - 1) / bestColumns;
    const QSizeF place((area.width() - gapPt * (bestColumns - 1)) / bestColumns,
                       (area.height() - gapPt * (rows - 1)) / rows);
    std::vector<QRectF> places;
    places.reserve(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i) {
        const auto [column, row] = cellOf(i, bestColumns, rows, choices.order, quarters);
        places.emplace_back(
            QPointF(area.left() + column * (place.width() + gapPt), area.top() + row * (place.height() + gapPt)),
            place);
    }
    return places;
}

} // namespace tapeprint::job
