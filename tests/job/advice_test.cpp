// SPDX-License-Identifier: Apache-2.0
// Who sits at a window is given no option to type.
#include "job/Advice.h"
#include "job/ServerConnection.h"
#include "tests/support/TextPrinting.h"

#include <gtest/gtest.h>

namespace
{

using namespace tapeprint::job;

TEST(Advice, IsForTheWindowAsLongAsThereIsOne)
{
    EXPECT_EQ(advice(u"choose"_qs, u"type"_qs), u"type"_qs);
    {
        const AdviceForTheWindow first;
        {
            const AdviceForTheWindow second;
        }
        EXPECT_EQ(advice(u"choose"_qs, u"type"_qs), u"choose"_qs);
    }
    EXPECT_EQ(advice(u"choose"_qs, u"type"_qs), u"type"_qs);
}

TEST(Advice, OfASilentServer_NamesNoOptionInTheWindow)
{
    EXPECT_TRUE(ServerConnection::noAnswer().contains(u"--ppd"_qs));
    const AdviceForTheWindow window;
    EXPECT_FALSE(ServerConnection::noAnswer().contains(u"--"_qs)) << ServerConnection::noAnswer().toStdString();
}

} // namespace
