// SPDX-License-Identifier: Apache-2.0
// Letters that were left out, put in, changed or swapped are counted.
#include "job/MistypedOptions.h"

#include "job/IppAttributeNames.h"
#include "job/LabelPlan.h"
#include "job/PageLayout.h"
#include "job/PlainText.h"
#include "job/PpdMarks.h"
#include "job/Texts.h"

#include <algorithm>
#include <cstdlib>
#include <vector>

namespace tapeprint::job
{

namespace
{

/// So many slips are taken for slips: in short names one letter makes another word.
int mostSlips(const QString &name)
{
    constexpr int shortName = 5;
    constexpr int longName = 9;
    return name.size() >= longName ? 2 : name.size() >= shortName ? 1 : 0;
}

bool isWithin(const QString &name, const QString &other, int slips)
{
    if (std::abs(name.size() - other.size()) > slips) {
        return false;
    }
    const QString a = name.toCaseFolded();
    const QString b = other.toCaseFolded();
    const auto width = static_cast<std::size_t>(b.size()) + 1;
    std::vector<int> beforeLast(width);
    std::vector<int> last(width);
    std::vector<int> row(width);
    for (std::size_t j = 0; j < width; ++j) {
        last[j] = static_cast<int>(j);
    }
    for (qsizetype i = 1; i <= a.size(); ++i) {
        row[0] = static_cast<int>(i);
        for (std::size_t j = 1; j < width; ++j) {
            const auto at = static_cast<qsizetype>(j) - 1;
            const bool isSame = a[i - 1] == b[at];
            row[j] = std::min({last[j] + 1, row[j - 1] + 1, last[j - 1] + (isSame ? 0 : 1)});
            const bool isSwapped = i > 1 && at > 0 && a[i - 1] == b[at - 1] && a[i - 2] == b[at];
            if (isSwapped) {
                row[j] = std::min(row[j], beforeLast[j - 2] + 1);
            }
        }
        if (*std::min_element(row.begin(), row.end()) > slips) {
            return false; // it only grows
        }
        beforeLast.swap(last);
        last.swap(row);
    }
    return last.back() <= slips;
}

bool isKnown(ppd_file_t *ppd, const QString &name)
{
    return findOption(ppd, name) != nullptr || isIppJobAttribute(name) ||
           !ippJobAttributeInOtherLetters(name).isNull() || // which is said apart
           layoutOptionNames().contains(name) || selectionOptionNames().contains(name);
}

/// What a name was meant to be; null when it is like nothing that is known.
QString meantBy(ppd_file_t *ppd, const QString &name)
{
    for (int slips = 1; slips <= mostSlips(name); ++slips) {
        QString found;
        const auto look = [&](const QString &known) {
            if (found.isNull() && isWithin(name, known, slips)) {
                found = known;
            }
        };
        forEachOption(ppd, [&look](const ppd_option_t &option) { look(QString::fromUtf8(option.keyword)); });
        for (const QString &attribute : ippJobAttributes()) {
            look(attribute);
        }
        if (!found.isNull()) {
            return found;
        }
    }
    return {};
}

} // namespace

QStringList mistypedOptions(ppd_file_t *ppd, const JobOptions &chosen)
{
    QStringList sentences;
    for (const auto &[name, value] : chosen.entries()) {
        if (const QString meant = isKnown(ppd, name) ? QString() : meantBy(ppd, name); !meant.isNull()) {
            sentences.append(Texts::tr("The printer has no option %1: is %2 meant?").arg(name, harmless(meant)));
        }
    }
    return sentences;
}

} // namespace tapeprint::job
