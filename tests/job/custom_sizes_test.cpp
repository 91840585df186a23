// SPDX-License-Identifier: Apache-2.0
// Page sizes of one's own: their names in a job, the limits of a printer, and the file that remembers them.
#include "tests/job/TapePpd.h"

#include "job/CustomSizes.h"
#include "tests/support/TextPrinting.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace
{

using namespace tapeprint::job;
using jobtest::ppdOf;
using jobtest::tapePpdText;

TEST(CustomSize, IsNamedInMillimetres)
{
    EXPECT_EQ(customSizeName({72.0, 144.0}), u"Custom.25.4x50.8mm"_qs);
    EXPECT_EQ(customSizeName({pointsFromMm(50.0), pointsFromMm(30.1234)}), u"Custom.50x30.123mm"_qs);
}

TEST(CustomSize, IsReadInEveryUnitThatCupsKnows)
{
    for (const QString &name : {u"Custom.72x144"_qs, u"Custom.1x2in"_qs, u"Custom.25.4x50.8mm"_qs,
                                u"custom.2.54x5.08cm"_qs, u"Custom.0.0254x0.0508m"_qs}) {
        const std::optional<QSizeF> size = customSizeOf(name);
        ASSERT_TRUE(size) << name.toStdString();
        EXPECT_NEAR(size->width(), 72.0, 1e-6) << name.toStdString();
        EXPECT_NEAR(size->height(), 144.0, 1e-6) << name.toStdString();
    }
    for (const QString &name : {u"Custom.72"_qs, u"Custom.72x"_qs, u"Custom.0x5"_qs, u"Custom.1.2.3x5"_qs, u"T72"_qs,
                                u"Custom.-1x5mm"_qs, u"Custom.1x5km"_qs, u"Custom.1x5mm "_qs}) {
        EXPECT_FALSE(customSizeOf(name)) << name.toStdString();
    }
}

TEST(CustomSize, LimitsAreTheDescriptions)
{
    const PpdFile ppd = ppdOf(tapePpdText());
    const std::vector<CustomParameter> parameters = customSizeParameters(ppd.get());
    ASSERT_EQ(parameters.size(), 2U);
    EXPECT_EQ(customProblem(parameters[0], u"2.1in"_qs, true), u"Give a length from 0.5 to 2 in."_qs); // 36 to 144 pt
    EXPECT_EQ(customProblem(parameters[1], u"254.1mm"_qs, false),
              u"Give a length from 12.7 to 254 mm."_qs); // 36 to 720 pt
    EXPECT_TRUE(takesCustomSize(ppd.get(), {144.0, 720.0}));
    EXPECT_FALSE(takesCustomSize(ppd.get(), {144.1, 720.0}));
    EXPECT_TRUE(customSizeParameters(ppdOf(tapePpdText("")).get()).empty());
    EXPECT_TRUE(customSizeParameters(nullptr).empty());
}

TEST(StandardSize, IsSaidForOneInWholePointsAndNoOther)
{
    const auto expectMm = [](const QSizeF &points, double width, double height) {
        EXPECT_NEAR(mmFromPoints(points.width()), width, 0.001);
        EXPECT_NEAR(mmFromPoints(points.height()), height, 0.001);
    };
    expectMm(standardSize({595.0, 842.0}), 210.0, 297.0);          // A4
    expectMm(standardSize({842.0, 595.0}), 297.0, 210.0);          // lying
    expectMm(standardSize({420.0, 595.0}), 148.0, 210.0);          // A5
    expectMm(standardSize({612.0, 792.0}), 215.9, 279.4);          // Letter
    EXPECT_EQ(standardSize({597.0, 842.0}), QSizeF(597.0, 842.0)); // two points wider than A4
    const QSizeF own(pointsFromMm(209.9), pointsFromMm(297.0));    // somebody's own, a little narrower
    EXPECT_EQ(standardSize(own), own);
    EXPECT_EQ(standardSize({}), QSizeF());
}

TEST(NamedSizes, AreRememberedReplacedAndForgotten)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"sub/sizes.ini"_qs);
    Problem error;
    {
        NamedSizes sizes(path);
        EXPECT_TRUE(sizes.all().empty());
        EXPECT_TRUE(sizes.add({u"Shelf, \"wide\" ü"_qs, {72.0, 144.0}}, &error)) << error.sentence.toStdString();
        EXPECT_TRUE(sizes.add({u"Door"_qs, {72.0, 100.0}}, &error));
        EXPECT_TRUE(sizes.add({u"door"_qs, {72.0, 216.0}}, &error));
    }
    NamedSizes again(path);
    ASSERT_EQ(again.all().size(), 2U);
    EXPECT_EQ(again.all()[0].name, u"Shelf, \"wide\" ü"_qs);
    EXPECT_NEAR(again.all()[0].sizePt.width(), 72.0, 0.01);
    EXPECT_EQ(again.all()[1].name, u"door"_qs);
    EXPECT_NEAR(again.all()[1].sizePt.height(), 216.0, 0.01);
    EXPECT_TRUE(again.remove(u"Door"_qs, &error));
    EXPECT_EQ(NamedSizes(path).all().size(), 1U);
}

TEST(NamedSizes, FileThatCannotBeWritten_IsSaidAndTheSizeIsKnownAllTheSame)
{
    const QTemporaryDir folder;
    // A file where the folder would have to be: no rights help against that.
    QFile file(folder.filePath(u"home"_qs));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    NamedSizes sizes(folder.filePath(u"home/sizes.ini"_qs));
    Problem error;
    EXPECT_FALSE(sizes.add({u"Door"_qs, {72.0, 100.0}}, &error));
    EXPECT_EQ(error.sentence, u"The sizes are not remembered, because "_qs + folder.filePath(u"home/sizes.ini"_qs) +
                                  u" cannot be written."_qs);
    EXPECT_EQ(sizes.all().size(), 1U);
}

TEST(NamedSizes, FileOfSomethingElse_NamesNone)
{
    const QTemporaryDir folder;
    QFile file(folder.filePath(u"sizes.ini"_qs));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(
        "[sizes]\nsize=3\n1\\name=A\n1\\size=Custom.axb\n2\\size=Custom.1x1in\n3\\name=C\n3\\size=Custom.1x2in\n");
    file.close();
    const NamedSizes sizes(file.fileName());
    ASSERT_EQ(sizes.all().size(), 1U);
    EXPECT_EQ(sizes.all()[0].name, u"C"_qs);
}

} // namespace
