// SPDX-License-Identifier: Apache-2.0
// The tape length on a real queue: the printer gets labels of the chosen length, as many as pages and copies make.
#include "tests/system/SystemTest.h"

#include <cmath>
#include <numeric>

namespace
{

using systemtest::Label;
using systemtest::labelsIn;
using systemtest::SystemTest;

class TapeOnAQueue : public SystemTest
{
protected:
    /// What the printer got of a job on the queue "tape".
    std::vector<Label> labels(const QStringList &arguments) const
    {
        EXPECT_FALSE(printed(arguments).empty());
        return labelsIn(cups.printedBy(u"tape"_qs));
    }
};

/// How many labels come out, with the copies that the printer itself makes.
int labelCount(const std::vector<Label> &labels)
{
    return std::accumulate(labels.begin(), labels.end(), 0,
                           [](int sum, const Label &label) { return sum + label.copies; });
}

// One server for all of them: starting it takes longer than a job.
TEST_F(TapeOnAQueue, LengthsResolutionsPagesAndCopies_ComeOutOfThePrinter)
{
    for (const int along : {300, 600}) {
        for (const int length : {30, 50, 100}) {
            SCOPED_TRACE(testing::Message() << length << " mm at " << along);
            const std::vector<Label> got = labels({u"-o"_qs, QStringLiteral("KsTapeLength=%1").arg(length), u"-o"_qs,
                                                   QStringLiteral("Resolution=300x%1dpi").arg(along), document});
            ASSERT_EQ(got.size(), 1U);
            EXPECT_EQ(got[0].rows, std::lround(length / 25.4 * along));
            // 24 mm less a millimetre of strips are 271.7 dots, in 34 bytes.
            EXPECT_EQ(got[0].bytesPerRow, 34);
        }
    }
    // Pages 2 and 4 to 5 of five, three times.
    const std::vector<Label> got =
        labels({u"-o"_qs, u"KsTapeLength=30"_qs, u"-P"_qs, u"2,4-"_qs, u"-n"_qs, u"3"_qs, documentOf(5)});
    EXPECT_EQ(labelCount(got), 9);
    for (const Label &label : got) {
        EXPECT_EQ(label.rows, 354); // 30 mm
    }
    EXPECT_EQ(labelCount(labels({u"-o"_qs, u"number-up=2"_qs, documentOf(5)})), 3);
}

TEST_F(TapeOnAQueue, FitLength_ComesOutOfThePrinter)
{
    // Blocks of 100, 200 and 300 dots at 300 dots an inch: the longest is 25.4 mm. The page is as wide as the tape, of
    // which 23 mm can be printed: 23 / 24 of it are 24.34 mm, and twice 2 mm.
    const std::vector<Label> got = labels({u"--fit-length"_qs, documentOf(3)});
    ASSERT_EQ(got.size(), 3U);
    for (const Label &label : got) {
        EXPECT_NEAR(label.rows, 28.34 / 25.4 * 300, 3.0); // a tenth of a millimetre and what measuring adds
    }
}

} // namespace
