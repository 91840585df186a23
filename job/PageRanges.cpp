// SPDX-License-Identifier: Apache-2.0
// Reading and mending lists of pages.
#include "job/PageRanges.h"

#include "job/PlainText.h"
#include "job/Texts.h"

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

/// What is wrong with one of the parts between the commas; null when nothing is.
QString partProblem(const QString &part)
{
    constexpr qsizetype mostShown = 16;
    static const QRegularExpression pages(QStringLiteral(R"(\A(\d{1,9})(-(\d{1,9})?)?\z)"));
    const QRegularExpressionMatch match = pages.match(part);
    const QString first = match.captured(1);
    const QString last = match.captured(3);
    if (!match.hasMatch()) {
        return Texts::tr("“%1” is no list of pages: write them as 1-3,7.").arg(harmless(part.left(mostShown)));
    }
    if (first.startsWith(u'0') || last.startsWith(u'0')) {
        return Texts::tr("There is no page %1: pages are counted from 1.").arg(first.startsWith(u'0') ? first : last);
    }
    if (!last.isEmpty() && last.toInt() < first.toInt()) {
        return Texts::tr("The pages %1-%2 run backwards: write %2-%1.").arg(first, last);
    }
    return {};
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

QString pageRangesProblem(const QString &text)
{
    if (!wellFormedPageRanges(text).isNull()) {
        return {};
    }
    static const QRegularExpression blanks(QStringLiteral("\\s+"));
    const QString bare = QString(text).remove(blanks);
    for (const QString &part : bare.split(u',', Qt::SkipEmptyParts)) {
        if (QString problem = partProblem(part); !problem.isNull()) {
            return problem;
        }
    }
    return partProblem(bare); // a comma too many
}

} // namespace tapeprint::job
