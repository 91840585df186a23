// SPDX-License-Identifier: Apache-2.0
// Reading and mending lists of pages.
#include "job/PageRanges.h"

#include <QRegularExpression>
#include <QStringList>

#include <algorithm>
#include <limits>

#include <pdekit/Numbers.h>

namespace tapeprint::job
{

namespace
{

constexpr int openEnd = std::numeric_limits<int>::max();

QString rangeText(const PageRange &range)
{
    if (range.last == openEnd) {
        return QString::number(range.first) + u'-';
    }
    return range.first == range.last ? QString::number(range.first)
                                     : QStringLiteral("%1-%2").arg(range.first).arg(range.last);
}

} // namespace

std::vector<PageRange> pageRangesOf(const QString &text, int total)
{
    std::vector<PageRange> ranges;
    for (const QString &part : text.split(u',', Qt::SkipEmptyParts)) {
        const qsizetype dash = part.indexOf(u'-');
        const int first = pdekit::intValue(dash < 0 ? part : part.left(dash));
        const bool isOpen = dash >= 0 && part.mid(dash + 1).trimmed().isEmpty();
        const int last = dash < 0 ? first : isOpen ? total : pdekit::intValue(part.mid(dash + 1));
        ranges.push_back({std::max(first, 1), std::min(last, total)});
    }
    return ranges;
}

QString wellFormedPageRanges(const QString &text)
{
    // Nine digits are more pages than any document has, and fit into every reader's numbers.
    static const QRegularExpression list(
        QStringLiteral(R"(\A[1-9]\d{0,8}(-([1-9]\d{0,8})?)?(,[1-9]\d{0,8}(-([1-9]\d{0,8})?)?)*\z)"));
    static const QRegularExpression blanks(QStringLiteral("\\s+"));
    const QString bare = QString(text).remove(blanks);
    if (bare.isEmpty()) {
        return QStringLiteral("");
    }
    if (!list.match(bare).hasMatch()) {
        return {};
    }
    std::vector<PageRange> ranges = pageRangesOf(bare, openEnd);
    if (std::any_of(ranges.begin(), ranges.end(), [](const PageRange &range) { return range.last < range.first; })) {
        return {};
    }
    std::sort(ranges.begin(), ranges.end(),
              [](const PageRange &one, const PageRange &other) { return one.first < other.first; });
    std::vector<PageRange> joined;
    for (const PageRange &range : ranges) {
        if (!joined.empty() && range.first - 1 <= joined.back().last) {
            joined.back().last = std::max(joined.back().last, range.last);
        } else {
            joined.push_back(range);
        }
    }
    QStringList words;
    for (const PageRange &range : joined) {
        words.append(rangeText(range));
    }
    return words.join(u',');
}

} // namespace tapeprint::job
