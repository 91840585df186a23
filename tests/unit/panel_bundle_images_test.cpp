// SPDX-License-Identifier: Apache-2.0
// The images of choices: found by name, read when they are first seen.
#include "panel/BundleImages.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace pdekit;

namespace
{

class BundleImagesTest : public testing::Test
{
protected:
    void SetUp() override { ASSERT_TRUE(QDir(folder.path()).mkpath(QStringLiteral("Resources"))); }

    QString path(const QString &name) const { return folder.filePath(QStringLiteral("Resources/") + name); }
    void addImage(const QString &name, const QColor &colour) const
    {
        QImage image(4, 4, QImage::Format_RGB32);
        image.fill(colour);
        ASSERT_TRUE(image.save(path(name), "TIFF"));
    }
    void addText(const QString &name) const
    {
        QFile file(path(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_EQ(file.write("no image"), 8);
    }
    BundleImages images() const { return {Bundle::bundleWithPath(folder.path()), QStringLiteral("tiff")}; }

    QTemporaryDir folder;
};

QColor colourOf(const QIcon &icon)
{
    return icon.pixmap(4, 4).toImage().pixelColor(1, 1);
}

} // namespace

TEST_F(BundleImagesTest, ImageOfTheBundle_IsFoundByName)
{
    addImage(QStringLiteral("Red.tiff"), Qt::red);
    const auto image = images().imageNamed("Red");
    ASSERT_TRUE(image.has_value());
    EXPECT_FALSE(image->isNull());
    EXPECT_EQ(colourOf(*image), QColor(Qt::red));
    EXPECT_EQ(image->actualSize(QSize(16, 16)), QSize(4, 4));
}

TEST_F(BundleImagesTest, NamesThatTheBundleLacks_AreNotFound)
{
    addImage(QStringLiteral("Red.tiff"), Qt::red);
    EXPECT_FALSE(images().imageNamed("red").has_value());
    EXPECT_FALSE(images().imageNamed("").has_value());
    EXPECT_FALSE(images().imageNamed("../Resources/Red").has_value());
}

TEST_F(BundleImagesTest, NameBeyondAscii_IsNotFound)
{
    addImage(QStringLiteral("R\u00F6t.tiff"), Qt::red);
    EXPECT_FALSE(images().imageNamed("R\xC3\xB6t").has_value());
}

TEST_F(BundleImagesTest, FileThatIsNoImage_IsANullImage)
{
    addText(QStringLiteral("Red.tiff"));
    const auto image = images().imageNamed("Red");
    ASSERT_TRUE(image.has_value());
    EXPECT_TRUE(image->isNull());
    EXPECT_TRUE(image->pixmap(4, 4).isNull());
}

TEST_F(BundleImagesTest, Image_IsReadWhenItIsFirstSeen)
{
    addImage(QStringLiteral("Red.tiff"), Qt::red);
    const auto image = images().imageNamed("Red");
    addImage(QStringLiteral("Red.tiff"), Qt::blue);
    ASSERT_TRUE(image.has_value());
    EXPECT_EQ(colourOf(*image), QColor(Qt::blue));
    // Once read it stays.
    addImage(QStringLiteral("Red.tiff"), Qt::green);
    EXPECT_EQ(colourOf(*image), QColor(Qt::blue));
}

TEST(BundleImages, WithoutABundle_ThereAreNone)
{
    EXPECT_FALSE(BundleImages(nullptr, QStringLiteral("tiff")).imageNamed("Red").has_value());
}

TEST_F(BundleImagesTest, ImageOnAFineScreen_HasTwiceTheDotsAndTheSameSize)
{
    QImage large(32, 32, QImage::Format_RGB32);
    large.fill(Qt::red);
    ASSERT_TRUE(large.save(path(QStringLiteral("Red.tiff")), "TIFF"));
    const auto image = images().imageNamed("Red");
    ASSERT_TRUE(image.has_value());
    const QPixmap shown = image->pixmap(QSize(8, 8), 2.0);
    EXPECT_EQ(shown.size(), QSize(16, 16));
    EXPECT_EQ(shown.devicePixelRatio(), 2.0);
}
