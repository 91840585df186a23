// SPDX-License-Identifier: Apache-2.0
// Reasons of strangers in sentences: one full stop, whatever they end with.
#include "job/Reason.h"
#include "tests/support/TextPrinting.h"

#include <gtest/gtest.h>

namespace
{

using tapeprint::job::reasonText;

TEST(Reason, WithinASentence_HasNoEndOfItsOwn)
{
    EXPECT_EQ(reasonText(u"No such file."_qs), u"No such file"_qs);
    EXPECT_EQ(reasonText(u"No such file.. \n"_qs), u"No such file"_qs);
    EXPECT_EQ(reasonText(u"no such file"_qs), u"no such file"_qs);
    EXPECT_EQ(reasonText(u"Really?"_qs), u"Really?"_qs);
    EXPECT_EQ(reasonText(u"\u3042\u3002"_qs), u"\u3042"_qs);
    EXPECT_EQ(reasonText(u"a\nb\x1B[31m"_qs), u"a b\\x1B[31m"_qs);
}

} // namespace
