// SPDX-License-Identifier: Apache-2.0
// Text of strangers on its way to a terminal or a message.
#include "job/PlainText.h"

#include "tests/support/TextPrinting.h"

#include <gtest/gtest.h>

namespace
{

using tapeprint::job::harmless;

struct TextCase {
    QString text;
    QString shown;
};

class HarmlessText : public testing::TestWithParam<TextCase>
{
};

TEST_P(HarmlessText, WritesOutWhatWouldSteer)
{
    EXPECT_EQ(harmless(GetParam().text), GetParam().shown);
}

INSTANTIATE_TEST_SUITE_P(
    Table, HarmlessText,
    testing::Values(TextCase{u"Étiquette 24 mm <b>&amp;"_qs, u"Étiquette 24 mm <b>&amp;"_qs},
                    TextCase{u"a\nb\tc"_qs, u"a\\nb\\tc"_qs}, TextCase{u"\x1b[31mred\a"_qs, u"\\x1B[31mred\\x07"_qs},
                    TextCase{QString(QChar(0)), u"\\x00"_qs}, TextCase{QString(QChar(0x7F)), u"\\x7F"_qs},
                    TextCase{QString(QChar(0x9B)) + u"2J"_qs, u"\\x9B2J"_qs},
                    TextCase{QString(QChar(0xA0)), QString(QChar(0xA0))},
                    TextCase{u"exe"_qs + QChar(0x202E) + u"fdp"_qs, u"exe\\u202Efdp"_qs},
                    TextCase{QString(QChar(0x2029)), u"\\u2029"_qs}, TextCase{QString(QChar(0xD83D)), u"\\uD83D"_qs},
                    TextCase{u"\U0001F3F7"_qs, u"\U0001F3F7"_qs}));

} // namespace
