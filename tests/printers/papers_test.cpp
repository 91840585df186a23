// SPDX-License-Identifier: Apache-2.0
// Papers say their round millimetres in the panel, and libcups takes every custom page that the tapes allow.
#include "tests/printers/SamplePrinter.h"
#include "tests/system/Client.h"
#include "tests/system/PrivateFolder.h"

#include <QFile>

#include <gtest/gtest.h>

#include <array>
#include <cmath>

namespace printertest
{

namespace
{

const std::array<QString, 6> printers{u"mm"_qs, u"mv"_qs, u"inch"_qs, u"plain"_qs, u"hn"_qs, u"fixed"_qs};

/// What the panel's summary says of the tape length on this paper.
QByteArray saidLength(const QString &printer, const QString &paper)
{
    const systemtest::PrivateFolder folder;
    const systemtest::Outcome outcome =
        systemtest::runClient({QStringLiteral(TAPEPRINT_BIN_DIR "/tapeprint"),
                               {u"--ppd"_qs, ppdPathOf(printer), u"-o"_qs, u"PageSize="_qs + paper, u"--summary"_qs},
                               {{u"QT_QPA_PLATFORM"_qs, u"offscreen"_qs},
                                {u"HOME"_qs, folder.path()},
                                {u"TAPEPRINT_PLUGIN_PATH"_qs, QStringLiteral(TAPEPRINT_BUNDLE_DIR)}}});
    for (const QByteArray &line : outcome.output.split('\n')) {
        if (line.startsWith("Tape Length: ")) {
            return line.mid(13).replace("\xc2\xa0", " "); // the blank before a unit does not break a line
        }
    }
    return "no tape length in: " + outcome.output + outcome.messages;
}

TEST(Paper, PanelOfTenthsOfAMillimetre_SaysItsRoundLength)
{
    for (const QString &printer : {u"mm"_qs, u"hn"_qs, u"fixed"_qs}) {
        EXPECT_EQ(saidLength(printer, u"24mm"_qs), "100.0 mm") << printer.toStdString();
        EXPECT_EQ(saidLength(printer, u"DC24x80"_qs), "80.0 mm") << printer.toStdString();
        EXPECT_EQ(saidLength(printer, u"AV36x100"_qs), "100.0 mm") << printer.toStdString();
        EXPECT_EQ(saidLength(printer, u"FL12x45"_qs), "45.0 mm") << printer.toStdString();
    }
}

TEST(Paper, PanelOfWholeMillimetres_SaysItsRoundLength)
{
    EXPECT_EQ(saidLength(u"mv"_qs, u"24mm"_qs), "100 mm");
    EXPECT_EQ(saidLength(u"mv"_qs, u"DC24x80"_qs), "80 mm");
    EXPECT_EQ(saidLength(u"mv"_qs, u"FL12x45"_qs), "45 mm");
}

TEST(Paper, PanelOfInches_SaysItsLengthToTheHundredth)
{
    // 100, 80 and 45 mm are 3.937, 3.150 and 1.772 inches.
    EXPECT_EQ(saidLength(u"inch"_qs, u"24mm"_qs), "3.94 in");
    EXPECT_EQ(saidLength(u"inch"_qs, u"DC24x80"_qs), "3.15 in");
    EXPECT_EQ(saidLength(u"inch"_qs, u"FL12x45"_qs), "1.77 in");
}

TEST(Paper, LengthInSinglePrecision_IsTheWholeMillimetreItself)
{
    // A panel of whole millimetres rounds up in one place and cuts off in another: only the number itself survives
    // both.
    for (const QString &printer : printers) {
        const Ppd ppd = openPpd(printer);
        ASSERT_TRUE(ppd);
        for (const ListedPaper &paper : listedPapers()) {
            const ppd_size_t *size = ppdPageSize(ppd.get(), paper.keyword.toLatin1().constData());
            ASSERT_NE(size, nullptr) << paper.keyword.toStdString();
            EXPECT_EQ(static_cast<float>(size->length / 72.0 / 0.0393701), static_cast<float>(paper.lengthMm))
                << printer.toStdString() << ' ' << paper.keyword.toStdString();
            // The true inch: a hundredth of a dot at 600 dpi.
            EXPECT_NEAR(size->width, paper.widthMm / 25.4 * 72.0, 0.0012);
            EXPECT_NEAR(size->length, paper.lengthMm / 25.4 * 72.0, 0.0012);
        }
    }
}

TEST(CustomPageLimits, SmallestAndLargestPiecesOfTape_AreWithin)
{
    for (const QString &printer : {u"mm"_qs, u"mv"_qs, u"inch"_qs, u"plain"_qs, u"hn"_qs}) {
        const Ppd ppd = openPpd(printer);
        ASSERT_TRUE(ppd);
        ASSERT_NE(ppd->variable_sizes, 0);
        for (const char *name : {"Custom.4x4mm", "Custom.36x4mm", "Custom.4x1000mm", "Custom.36x1000mm"}) {
            const ppd_size_t *size = ppdPageSize(ppd.get(), name);
            ASSERT_NE(size, nullptr) << name;
            EXPECT_GE(size->width, ppd->custom_min[0]) << name;
            EXPECT_GE(size->length, ppd->custom_min[1]) << name;
            EXPECT_LE(size->width, ppd->custom_max[0]) << name;
            EXPECT_LE(size->length, ppd->custom_max[1]) << name;
        }
        // By the panel's inch as well, which is longer, and no tenth of a millimetre more.
        EXPECT_LE(1000.0 * 0.0393701 * 72.0, ppd->custom_max[1]);
        EXPECT_LT(ppd->custom_max[1], 1000.1 / 25.4 * 72.0);
        EXPECT_LT(ppd->custom_max[0], 36.1 / 25.4 * 72.0);
        EXPECT_GT(ppd->custom_min[0], 3.9 / 25.4 * 72.0);
        EXPECT_GT(ppd->custom_min[1], 3.9 / 25.4 * 72.0);
    }
}

TEST(CustomPageLimits, DescriptionThatLeavesTheLengthToTheDriver_TakesNoCustomPage)
{
    const Ppd ppd = openPpd(u"fixed"_qs);
    ASSERT_TRUE(ppd);
    EXPECT_EQ(ppd->variable_sizes, 0);
    EXPECT_NE(ppdFindOption(ppd.get(), "KsTapeLength"), nullptr);
}

TEST(PrinterOfTheHnFamily, HasMoreResolutionsThanThePanelShows)
{
    const Ppd ppd = openPpd(u"hn"_qs);
    ASSERT_TRUE(ppd);
    const ppd_option_t *resolution = ppdFindOption(ppd.get(), "Resolution");
    ASSERT_NE(resolution, nullptr);
    EXPECT_EQ(resolution->num_choices, 4);
    const ppd_attr_t *family = ppdFindAttr(ppd.get(), "KsTapeType", nullptr);
    ASSERT_NE(family, nullptr);
    EXPECT_STREQ(family->value, "HN");
}

} // namespace

} // namespace printertest
