// SPDX-License-Identifier: Apache-2.0
// Pages are selected, ordered and copied once: what comes out of CUPS's filters without a queue, on tape and on paper.
#include "tests/printers/LabelDocuments.h"
#include "tests/printers/PrintedTape.h"
#include "tests/support/TextPrinting.h"

#include <gtest/gtest.h>

#include <cmath>

namespace printertest
{

namespace
{

constexpr double dotsPerMm = 180 / 25.4;
using Pages = std::vector<long>;

class PagesAndCopies : public testing::TestWithParam<const char *>
{
protected:
    /// The pages that come out of a document of so many, each told by its block of as many millimetres, with the copies
    /// that the printer makes. Of several pages on a label the widest counts.
    Pages printed(int pages, const QStringList &arguments) const
    {
        std::vector<ShapedPage> shaped;
        for (int page = 1; page <= pages; ++page) {
            shaped.push_back({24, 100, {{3, 10, static_cast<double>(2 * page), 4}}});
        }
        const QString document = systemtest::writeFile(folder.path(u"document.pdf"_qs), pdfWith(shaped));
        const PrintedTape tape = printTape(folder, QString::fromLatin1(GetParam()), {u"Resolution=180x180dpi"_qs},
                                           arguments + QStringList{document});
        EXPECT_EQ(tape.outcome.status, 0) << tape.outcome.messages.toStdString();
        Pages numbers;
        for (const RasterPage &label : tape.labels) {
            const double mm = label.blackIn(QRect(QPoint(), label.size)).width() / dotsPerMm;
            numbers.insert(numbers.end(), static_cast<std::size_t>(label.copies), std::lround(mm / 2));
        }
        return numbers;
    }

    systemtest::PrivateFolder folder;
};

TEST_P(PagesAndCopies, Copies_AreMadeOnce)
{
    EXPECT_EQ(printed(3, {u"-n"_qs, u"2"_qs}), Pages({1, 1, 2, 2, 3, 3}));
    EXPECT_EQ(printed(3, {u"-n"_qs, u"2"_qs, u"-o"_qs, u"collate=True"_qs}), Pages({1, 2, 3, 1, 2, 3}));
}

TEST_P(PagesAndCopies, SelectionAndOrder_AreAppliedOnce)
{
    EXPECT_EQ(printed(5, {u"-P"_qs, u"2-4"_qs}), Pages({2, 3, 4}));
    EXPECT_EQ(printed(5, {u"-P"_qs, u"2-"_qs, u"-o"_qs, u"page-set=even"_qs, u"-o"_qs, u"outputorder=reverse"_qs,
                          u"-n"_qs, u"2"_qs}),
              Pages({4, 4, 2, 2}));
}

TEST_P(PagesAndCopies, SeveralPagesOnOne_AreCountedAfterTheRange)
{
    EXPECT_EQ(printed(5, {u"-P"_qs, u"2-4"_qs, u"-o"_qs, u"number-up=2"_qs}).size(), 2U);
    EXPECT_EQ(printed(5, {u"-o"_qs, u"number-up=2"_qs, u"-o"_qs, u"page-set=odd"_qs}).size(), 2U);
    EXPECT_EQ(printed(5, {u"-o"_qs, u"number-up=2"_qs, u"-n"_qs, u"3"_qs}).size(), 9U);
}

// A printer for tape and one for paper.
INSTANTIATE_TEST_SUITE_P(Printers, PagesAndCopies, testing::Values("hn", "plain"));

} // namespace

} // namespace printertest
