// SPDX-License-Identifier: Apache-2.0
// Each option that the filter can honour changes what the printer is sent.
#include "tests/printers/EdgedPage.h"
#include "tests/printers/FilterChain.h"

#include <QRegularExpression>

#include <gtest/gtest.h>

namespace printertest
{

namespace
{

/// The commands of a 24 x 30 mm label, a line each, without the image.
QStringList commands(const QString &printer, const QStringList &options)
{
    const QByteArray bytes = printedBy(printer, customPage(24, 30) + options, pageWith(24, 30));
    return QString::fromLatin1(bytes).split(u'\n').filter(QRegularExpression(u"^[\\^~]"_qs));
}

/// The commands that begin with these letters.
QStringList commands(const QString &printer, const QStringList &options, const QString &beginning)
{
    return commands(printer, options).filter(QRegularExpression(u'^' + QRegularExpression::escape(beginning)));
}

TEST(LabelCommands, PrintQuality_IsTheDarkness)
{
    for (const QString &printer : {u"mm"_qs, u"inch"_qs, u"hn"_qs, u"fixed"_qs}) {
        // 30 * 40 / 100 and 30 * 80 / 100.
        EXPECT_EQ(commands(printer, {u"KsPriority=KsPrioritySpeed"_qs}, u"~SD"_qs), QStringList{u"~SD12"_qs});
        EXPECT_EQ(commands(printer, {u"KsPriority=KsPriorityQuality"_qs}, u"~SD"_qs), QStringList{u"~SD24"_qs});
    }
}

TEST(LabelCommands, VendorResolution_IsDarknessAndResolution)
{
    // 30 mm are 354.3 rows at 300 dpi and 708.7 at 600.
    const auto darknessAndLength = [](const QString &choice) {
        // The other resolution and the quality say something else, and come earlier in the job.
        const QStringList options{u"KsResolution="_qs + choice, u"Resolution=300x600dpi"_qs,
                                  u"KsPriority=KsPrioritySpeed"_qs};
        return commands(u"mv"_qs, options, u"~SD"_qs) + commands(u"mv"_qs, options, u"^LL"_qs);
    };
    EXPECT_EQ(darknessAndLength(u"KsResolS300300"_qs), (QStringList{u"~SD12"_qs, u"^LL354"_qs}));
    EXPECT_EQ(darknessAndLength(u"KsResolQ300300"_qs), (QStringList{u"~SD24"_qs, u"^LL354"_qs}));
    EXPECT_EQ(darknessAndLength(u"KsResolQ300600"_qs), (QStringList{u"~SD24"_qs, u"^LL709"_qs}));
}

TEST(LabelCommands, TapeMaterial_IsTheKindOfPrint)
{
    for (const QString &printer : {u"mm"_qs, u"mv"_qs, u"inch"_qs, u"hn"_qs, u"fixed"_qs}) {
        const auto kind = [&](const QString &material) {
            return commands(printer, {u"KsTapeMaterial=KsTapeMaterial"_qs + material}, u"^MT"_qs);
        };
        EXPECT_EQ(kind(u"OPP"_qs), QStringList{u"^MTD"_qs});
        EXPECT_EQ(kind(u"PET"_qs), QStringList{u"^MTT"_qs});
        EXPECT_EQ(kind(u"Cloth"_qs), QStringList{u"^MTT"_qs});
    }
}

TEST(LabelCommands, Cut_IsACutAfterTheLabel)
{
    for (const QString &printer : {u"mm"_qs, u"mv"_qs, u"inch"_qs, u"plain"_qs, u"hn"_qs, u"fixed"_qs}) {
        EXPECT_EQ(commands(printer, {u"CutMedia=Label"_qs}, u"^CN"_qs), QStringList{u"^CN1"_qs});
        EXPECT_EQ(commands(printer, {u"CutMedia=None"_qs}, u"^CN"_qs), QStringList());
    }
}

TEST(LabelCommands, PrintSpeed_IsThePrintRate)
{
    for (const QString &printer : {u"mm"_qs, u"plain"_qs}) {
        EXPECT_EQ(commands(printer, {}, u"^PR"_qs), QStringList());
        EXPECT_EQ(commands(printer, {u"zePrintRate=2"_qs}, u"^PR"_qs), QStringList{u"^PR2,2,2"_qs});
        EXPECT_EQ(commands(printer, {u"zePrintRate=6"_qs}, u"^PR"_qs), QStringList{u"^PR6,6,6"_qs});
    }
}

TEST(LabelCommands, MediaTracking_OfATapeTellsTheLabelsLength)
{
    EXPECT_EQ(commands(u"mm"_qs, {}, u"^MN"_qs), QStringList{u"^MNN"_qs});
    EXPECT_EQ(commands(u"mm"_qs, {}, u"^LL"_qs), QStringList{u"^LL354"_qs});
    EXPECT_EQ(commands(u"mm"_qs, {u"zeMediaTracking=Web"_qs}, u"^MN"_qs), QStringList{u"^MNY"_qs});
    EXPECT_EQ(commands(u"mm"_qs, {u"zeMediaTracking=Mark"_qs}, u"^MN"_qs), QStringList{u"^MNM"_qs});
    EXPECT_EQ(commands(u"mm"_qs, {u"zeMediaTracking=Web"_qs}, u"^LL"_qs), QStringList());
}

TEST(LabelCommands, MarginAndLengthOfTheTape_MoveNothing)
{
    // The page is what it is: who laid it out has left the margin free.
    const QByteArray page = pageWith(24, 30, {{2, 2, 10, 10}});
    const QByteArray plain = printedBy(u"mm"_qs, customPage(24, 30), page);
    ASSERT_TRUE(plain.contains("^LT0\n")) << "the label's top is not the printer's";
    EXPECT_EQ(printedBy(u"mm"_qs, customPage(24, 30) << u"KsMargin=10.0"_qs << u"KsTapeLength=50.0"_qs, page), plain);
}

} // namespace

} // namespace printertest
