// SPDX-License-Identifier: Apache-2.0
// The reader of printer's bytes, on which the other tests lean: it must not take for a label what is none.
#include "tests/system/LabelBytes.h"

#include <gtest/gtest.h>

namespace
{

using systemtest::labelsIn;

const QByteArray oneLabel = "~DGR:CUPS.GRF,68,34,\n,:I01iF,\n^XA\n^PQ2, 0, 0, N\n^FO0,0^XGR:CUPS.GRF,1,1^FS\n^XZ\n"
                            "^XA\n^IDR:CUPS.GRF^FS\n^XZ\n^CN1\n";

TEST(LabelBytes, TwoLabels_AreCountedAndMeasured)
{
    const auto labels = labelsIn(oneLabel + oneLabel);
    ASSERT_EQ(labels.size(), 2U);
    EXPECT_EQ(labels[0].bytesPerRow, 34);
    EXPECT_EQ(labels[0].rows, 2);
    EXPECT_EQ(labels[1].copies, 2);
}

TEST(LabelBytes, DarknessBeforeALabel_BelongsToIt)
{
    EXPECT_EQ(labelsIn("~SD24\n" + oneLabel + "~SD24\n" + oneLabel).size(), 2U);
    EXPECT_TRUE(labelsIn(oneLabel + "~SD24\n").empty());
}

TEST(LabelBytes, AnythingElse_IsNoLabel)
{
    EXPECT_TRUE(labelsIn("").empty());
    EXPECT_TRUE(labelsIn("%!PS-Adobe-3.0\n").empty());
    EXPECT_TRUE(labelsIn(oneLabel.chopped(20)).empty());
    EXPECT_TRUE(labelsIn("x" + oneLabel).empty());
    EXPECT_TRUE(labelsIn(oneLabel + "x").empty());
    EXPECT_TRUE(labelsIn(QByteArray(oneLabel).replace(",68,", ",69,")).empty());
}

} // namespace
