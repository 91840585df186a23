// SPDX-License-Identifier: Apache-2.0
// Pages are selected, ordered and copied once through a print server as well: what the printer gets, on tape and paper.
#include "tests/system/SystemTest.h"

#include <numeric>

namespace
{

using systemtest::Label;
using systemtest::labelsIn;
using systemtest::Outcome;
using systemtest::SystemTest;

class PagesOnAQueue : public SystemTest
{
protected:
    /// What the printer got of a job.
    std::vector<Label> labels(const QString &queue, const QStringList &arguments) const
    {
        const Outcome outcome = tapeprint(QStringList{u"-d"_qs, queue, u"--no-dialog"_qs} + arguments);
        EXPECT_FALSE(filterCallsOf(outcome).empty()) << outcome.messages.toStdString();
        return labelsIn(cups.printedBy(queue));
    }
};

int count(const std::vector<Label> &labels)
{
    return std::accumulate(labels.begin(), labels.end(), 0,
                           [](int sum, const Label &label) { return sum + label.copies; });
}

// One server for both printers: starting it takes longer than a job.
TEST_F(PagesOnAQueue, SelectionOrderAndCopies_AreAppliedOnceOnTapeAndPaper)
{
    ASSERT_TRUE(cups.addRecordedQueue(u"paper"_qs, u"plain"_qs).isNull());
    const QString five = documentOf(5);
    for (const QString &queue : {u"tape"_qs, u"paper"_qs}) {
        SCOPED_TRACE(queue.toStdString());
        EXPECT_EQ(count(labels(queue, {u"-n"_qs, u"2"_qs, five})), 10);
        // Each of the copies is a label of its own, for they are not made by the printer.
        EXPECT_EQ(labels(queue, {u"-n"_qs, u"2"_qs, u"-o"_qs, u"collate=True"_qs, five}).size(), 10U);
        EXPECT_EQ(count(labels(queue, {u"-o"_qs, u"page-ranges=4,1-2"_qs, u"-o"_qs, u"outputorder=reverse"_qs, five})),
                  3);
        EXPECT_EQ(count(labels(queue, {u"-P"_qs, u"2-4"_qs, u"-o"_qs, u"number-up=2"_qs, u"-n"_qs, u"3"_qs, five})), 6);
    }
    // Pages of several documents are numbered through.
    EXPECT_EQ(count(labels(u"paper"_qs, {u"-P"_qs, u"5-6"_qs, five, five})), 2);
}

TEST_F(PagesOnAQueue, TitleWithControlCharacters_IsReadOnTheServer)
{
    const auto calls = filterCallsOf(
        tapeprint({u"-d"_qs, u"tape"_qs, u"--no-dialog"_qs, u"-t"_qs, u"Labels\nfor\tMay"_qs, documentOf(1)}));
    ASSERT_EQ(calls.size(), 1U);
    EXPECT_EQ(calls[0].title(), "Labels for May");
}

} // namespace
