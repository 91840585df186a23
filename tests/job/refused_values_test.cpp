// SPDX-License-Identifier: Apache-2.0
// A value that CUPS would pass over in silence, and print as if nobody had asked for it, is refused beforehand.
#include "tests/job/TapePpd.h"

#include "job/RefusedValues.h"
#include "tests/support/TextPrinting.h"

#include <gtest/gtest.h>

namespace
{

using namespace tapeprint::job; // NOLINT(google-build-using-namespace): the test is about all of it
using jobtest::customPages;
using jobtest::options;
using jobtest::ppdOf;
using jobtest::tapePpdText;

class RefusedValuesTest : public testing::Test
{
protected:
    static bool isRefused(const PpdFile &ppd, const QString &name, const QString &value)
    {
        const auto noPanels = [](const QString &, const QString &) { return false; };
        return !refusedValues(ppd.get(), options({{name, value}}), noPanels).isEmpty();
    }
};

TEST_F(RefusedValuesTest, SizeThatThePrinterHasNot_IsRefusedByEveryNameOfIt)
{
    // Sizes of 25.4 mm and 50.8, 76.2 and 101.6 mm, and no others.
    const PpdFile listed = ppdOf(tapePpdText(""));
    for (const char *name : {"iso_a4_210x297mm", "iso-a4", "custom_24x50mm_24x50mm"}) {
        EXPECT_TRUE(isRefused(listed, u"media"_qs, QString::fromLatin1(name))) << name;
    }
    EXPECT_FALSE(isRefused(listed, u"media"_qs, u"custom_tape_25.4x101.6mm"_qs));
    EXPECT_FALSE(isRefused(listed, u"media"_qs, u"custom_tape_25.2x101.8mm"_qs)); // as near as CUPS looks
    // Up to 50.8 x 254 mm are cut.
    const PpdFile cutting = ppdOf(tapePpdText(customPages));
    EXPECT_FALSE(isRefused(cutting, u"media"_qs, u"custom_24x50mm_24x50mm"_qs));
    EXPECT_TRUE(isRefused(cutting, u"media"_qs, u"custom_60x50mm_60x50mm"_qs));
    EXPECT_TRUE(isRefused(cutting, u"media"_qs, u"iso_a4_210x297mm"_qs));
}

TEST_F(RefusedValuesTest, WordOfATray_IsRefusedWhereThereAreNone)
{
    EXPECT_TRUE(isRefused(ppdOf(tapePpdText()), u"media"_qs, u"tray-1"_qs));
    const PpdFile trays =
        ppdOf(tapePpdText(customPages + "*OpenUI *InputSlot: PickOne\n*OrderDependency: 30 AnySetup *InputSlot\n"
                                        "*DefaultInputSlot: Tray1\n*InputSlot Tray1/One: \"\"\n"
                                        "*InputSlot Tray2/Two: \"\"\n*CloseUI: *InputSlot\n"));
    EXPECT_FALSE(isRefused(trays, u"media"_qs, u"tray-1"_qs));
    EXPECT_FALSE(isRefused(trays, u"media"_qs, u"T72,Tray2"_qs));
    EXPECT_TRUE(isRefused(trays, u"media"_qs, u"foo"_qs));
    EXPECT_TRUE(isRefused(trays, u"media"_qs, u"T72,tray-3"_qs));
    EXPECT_FALSE(isRefused(trays, u"media"_qs, u"Custom.24x50mm,Tray2"_qs));
    EXPECT_TRUE(isRefused(trays, u"media"_qs, u"Custom.24x50mm,foo"_qs));
    EXPECT_TRUE(isRefused(trays, u"media"_qs, u"Tray2,Custom.24xmm"_qs));
}

TEST_F(RefusedValuesTest, ValuesThatCupsDoesNotRead_AreRefused)
{
    const PpdFile ppd = ppdOf(tapePpdText());
    for (const auto &[name, read, unread] : {std::tuple{"collate", "true", "foo"},
                                             {"landscape", "yes", "maybe"},
                                             {"mirror", "false", "1mm"},
                                             {"job-hold-until", "23:59", "24:00"},
                                             {"job-hold-until", "indefinite", "tomorrow"},
                                             {"page-border", "double-thick", "thick"},
                                             {"number-up-layout", "lrtb", "lrlr"},
                                             {"page-ranges", "1-3,7", "4-2"},
                                             {"page-ranges", "2-", "0"}}) {
        EXPECT_FALSE(isRefused(ppd, QString::fromLatin1(name), QString::fromLatin1(read))) << name << ' ' << read;
        EXPECT_TRUE(isRefused(ppd, QString::fromLatin1(name), QString::fromLatin1(unread))) << name << ' ' << unread;
    }
}

} // namespace
