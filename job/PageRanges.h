// SPDX-License-Identifier: Apache-2.0
// Lists of pages such as 1-4,7,9-: what is one, and which pages it means.
#pragma once

#include <QString>

#include <vector>

namespace tapeprint::job
{

/// First and last page of a range, counted from 1.
struct PageRange {
    int first = 1;
    int last = 1;

    bool holds(int page) const { return page >= first && page <= last; }
};

/// The ranges that a list names among \p total pages; an open end goes to the last page there is. What is no number
/// counts as nothing: wellFormedPageRanges() says whether a list is one.
std::vector<PageRange> pageRangesOf(const QString &text, int total);

/// A list of pages as it goes into a job: without blanks, ascending, and no page twice, for print servers refuse other
/// lists. Empty for an empty text; null for a text that is no such list.
QString wellFormedPageRanges(const QString &text);

/// What is wrong with a text that is no such list, in one sentence; null for a list and for an empty text.
QString pageRangesProblem(const QString &text);

} // namespace tapeprint::job
