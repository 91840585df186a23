// SPDX-License-Identifier: Apache-2.0
// Bundles made in a temporary folder: resources, languages, images and interface files.
#include "TextPrinting.h"
#include "pdekit/Bundle.h"
#include "pdekit/RadioMatrix.h"
#include "pdekit/Slider.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QLineEdit>
#include <QLocale>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace pdekit;

namespace
{

class BundleTest : public testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(folder.isValid());
        ASSERT_TRUE(QDir(folder.path()).mkpath(u"Test.bundle/Resources"_qs));
    }
    void TearDown() override { QLocale::setDefault(mBefore); }

    QString bundlePath() const { return folder.filePath(u"Test.bundle"_qs); }
    QString resource(const QString &fileName) const { return bundlePath() + u"/Resources/"_qs + fileName; }
    static void write(const QString &path, const QByteArray &content)
    {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_EQ(file.write(content), content.size());
    }
    void addCatalogue(const QString &language) const
    {
        ASSERT_TRUE(QFile::copy(QStringLiteral(PDEKIT_TEST_CATALOGUES "/") + language + u".qm"_qs,
                                resource(language + u".qm"_qs)));
    }
    void addAllCatalogues() const
    {
        for (const QString &language : {u"en"_qs, u"de"_qs, u"pt"_qs, u"zh_CN"_qs}) {
            addCatalogue(language);
        }
    }
    /// A file whose view holds the given elements.
    void addInterface(const QByteArray &elements) const
    {
        write(resource(u"View.ui"_qs), R"(<?xml version="1.0" encoding="UTF-8"?><ui version="4.0"><class>View</class>)"
                                       R"(<widget class="QWidget" name="view">)" +
                                           elements + "</widget></ui>");
    }

    QTemporaryDir folder;

private:
    const QLocale mBefore;
};

TEST_F(BundleTest, PathForResource_FindsFilesInResourcesAlone)
{
    write(resource(u"red.tiff"_qs), "x");
    write(bundlePath() + u"/outside.tiff"_qs, "x");
    const auto bundle = Bundle::bundleWithPath(bundlePath());
    EXPECT_EQ(bundle->pathForResource(u"red"_qs, u"tiff"_qs), resource(u"red.tiff"_qs));
    EXPECT_TRUE(bundle->pathForResource(u"blue"_qs, u"tiff"_qs).isNull());
    EXPECT_TRUE(bundle->pathForResource(QString(), u"tiff"_qs).isNull());
    EXPECT_TRUE(bundle->pathForResource(u"../outside"_qs, u"tiff"_qs).isNull());
    EXPECT_TRUE(bundle->pathForResource(u"../Resources/red"_qs, u"tiff"_qs).isNull());
    EXPECT_TRUE(bundle->pathForResource(u"red"_qs, u"/../red.tiff"_qs).isNull());
    EXPECT_TRUE(bundle->pathForResource(bundlePath() + u"/outside"_qs, u"tiff"_qs).isNull());
    EXPECT_TRUE(bundle->pathForResource(u"."_qs, QString()).isNull());
}

TEST_F(BundleTest, BundlePath_IsAbsolute)
{
    EXPECT_EQ(Bundle::bundleWithPath(bundlePath() + u"/../Test.bundle/"_qs)->bundlePath(), bundlePath());
    EXPECT_TRUE(QDir::isAbsolutePath(Bundle::bundleWithPath(u"no/such"_qs)->bundlePath()));
}

TEST_F(BundleTest, BundleThatDoesNotExist_HasNoResources)
{
    const auto bundle = Bundle::bundleWithPath(folder.filePath(u"none"_qs));
    EXPECT_EQ(bundle->localizedStringForKey(u"KEY"_qs), u"KEY");
    EXPECT_FALSE(bundle->imageForResource(u"red"_qs, u"tiff"_qs).has_value());
    EXPECT_EQ(bundle->loadInterface(u"View"_qs, {}, nullptr), nullptr);
    EXPECT_FALSE(bundle->setLanguage(u"de"_qs));
}

TEST_F(BundleTest, Image_IsReadFromTiff)
{
    QImage image(3, 2, QImage::Format_RGB32);
    image.fill(QColor(200, 10, 30));
    ASSERT_TRUE(image.save(resource(u"red.tiff"_qs), "TIFF"));
    write(resource(u"broken.tiff"_qs), "no image");
    const auto bundle = Bundle::bundleWithPath(bundlePath());
    const auto icon = bundle->imageForResource(u"red"_qs, u"tiff"_qs);
    ASSERT_TRUE(icon.has_value());
    const QImage read = icon->pixmap(3, 2).toImage();
    ASSERT_EQ(read.size(), QSize(3, 2));
    EXPECT_EQ(read.pixelColor(1, 1), QColor(200, 10, 30));
    EXPECT_FALSE(bundle->imageForResource(u"broken"_qs, u"tiff"_qs).has_value());
    EXPECT_FALSE(bundle->imageForResource(u"none"_qs, u"tiff"_qs).has_value());
}

TEST_F(BundleTest, NamesOfResources_AreThoseOfFilesOfTheTypeInResourcesAlone)
{
    write(resource(u"red.tiff"_qs), "x");
    write(resource(u"blue.v2.tiff"_qs), "x");
    write(resource(u"green.png"_qs), "x");
    write(resource(u"notiff"_qs), "x");
    write(bundlePath() + u"/outside.tiff"_qs, "x");
    ASSERT_TRUE(QDir(resource(QString())).mkdir(u"folder.tiff"_qs));
    ASSERT_TRUE(QFile::link(resource(u"red.tiff"_qs), resource(u"linked.tiff"_qs)));
    QStringList names = Bundle::bundleWithPath(bundlePath())->namesOfResources(u"tiff"_qs);
    names.sort();
    EXPECT_EQ(names, (QStringList{u"blue.v2"_qs, u"linked"_qs, u"red"_qs}));
    EXPECT_TRUE(Bundle::bundleWithPath(folder.filePath(u"none"_qs))->namesOfResources(u"tiff"_qs).isEmpty());
}

struct LanguageCase {
    QString locale;
    QString text;
};

class BundleLanguageTest : public BundleTest, public testing::WithParamInterface<LanguageCase>
{
};

TEST_P(BundleLanguageTest, SessionLanguage_ChoosesTheCatalogue)
{
    addAllCatalogues();
    QLocale::setDefault(QLocale(GetParam().locale));
    EXPECT_EQ(Bundle::bundleWithPath(bundlePath())->localizedStringForKey(u"TEST_Margin"_qs), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(Locales, BundleLanguageTest,
                         testing::Values(LanguageCase{u"de_AT"_qs, u"Rand"_qs}, LanguageCase{u"pt_BR"_qs, u"Margem"_qs},
                                         LanguageCase{u"zh_CN"_qs, u"\u8FB9\u8DDD"_qs},
                                         LanguageCase{u"zh_SG"_qs, u"\u8FB9\u8DDD"_qs},
                                         LanguageCase{u"en_GB"_qs, u"Margin"_qs},
                                         LanguageCase{u"fi_FI"_qs, u"Margin"_qs}, LanguageCase{u"C"_qs, u"Margin"_qs}));

TEST_F(BundleTest, LocalizedString_MissingKey_ShowsTheValueOrItself)
{
    addAllCatalogues();
    const auto bundle = Bundle::bundleWithPath(bundlePath());
    EXPECT_EQ(bundle->localizedStringForKey(u"NONE"_qs), u"NONE");
    EXPECT_EQ(bundle->localizedStringForKey(u"NONE"_qs, u"value"_qs), u"value");
    EXPECT_EQ(bundle->localizedStringForKey(u"NONE"_qs, u""_qs), u"");
    EXPECT_EQ(bundle->localizedStringForKey(u"TEST_Margin"_qs, QString(), u"Other"_qs), u"TEST_Margin");
}

TEST_F(BundleTest, LocalizedString_KeyMayBeATextOfAPpd)
{
    addAllCatalogues();
    const auto bundle = Bundle::bundleWithPath(bundlePath());
    ASSERT_TRUE(bundle->setLanguage(u"de"_qs));
    EXPECT_EQ(bundle->localizedStringForKey(u"Tape Width : "_qs), u"[de] : ");
    EXPECT_EQ(bundle->localizedStringForKey(u"Tape Width"_qs), u"Tape Width");
}

TEST_F(BundleTest, SetLanguage_HoldsFromThenOn_UnlessTheBundleLacksIt)
{
    addAllCatalogues();
    const auto bundle = Bundle::bundleWithPath(bundlePath());
    EXPECT_TRUE(bundle->setLanguage(u"zh_CN"_qs));
    EXPECT_FALSE(bundle->setLanguage(u"fr"_qs));
    EXPECT_FALSE(bundle->setLanguage(u"../Resources/de"_qs));
    EXPECT_EQ(bundle->localizedStringForKey(u"TEST_Margin"_qs), u"\u8FB9\u8DDD");
}

TEST_F(BundleTest, Catalogue_IsTheBundlesAlone)
{
    addAllCatalogues();
    const auto german = Bundle::bundleWithPath(bundlePath());
    const auto portuguese = Bundle::bundleWithPath(bundlePath());
    ASSERT_TRUE(german->setLanguage(u"de"_qs));
    ASSERT_TRUE(portuguese->setLanguage(u"pt"_qs));
    EXPECT_EQ(german->localizedStringForKey(u"TEST_Margin"_qs), u"Rand");
    EXPECT_EQ(portuguese->localizedStringForKey(u"TEST_Margin"_qs), u"Margem");
    EXPECT_EQ(qtTrId("TEST_Margin"), u"TEST_Margin");
}

TEST_F(BundleTest, Interface_HandsEachNamedWidgetToItsOutletOnce)
{
    addInterface(
        R"(<widget class="QComboBox" name="popUp"><property name="editable"><bool>true</bool></property></widget>
        <widget class="QLineEdit" name="field"/>
        <widget class="Line" name="line"/>
        <widget class="pdekit::Slider" name="slider"><property name="orientation"><enum>Qt::Horizontal</enum></property></widget>
        <widget class="pdekit::RadioMatrix" name="radio"><property name="titles"><stringlist><string>One</string>
          <string>Two</string></stringlist></property></widget>)");
    std::map<QString, QWidget *> outlets;
    int calls = 0;
    const auto view =
        Bundle::bundleWithPath(bundlePath())->loadInterface(u"View"_qs, {}, [&](const QString &name, QWidget *widget) {
            outlets[name] = widget;
            ++calls;
        });
    ASSERT_NE(view, nullptr);
    EXPECT_EQ(calls, 6);
    EXPECT_EQ(outlets[u"view"_qs], view.get());
    EXPECT_NE(qobject_cast<QComboBox *>(outlets[u"popUp"_qs]), nullptr);
    EXPECT_NE(qobject_cast<Slider *>(outlets[u"slider"_qs]), nullptr);
    const auto *radio = qobject_cast<RadioMatrix *>(outlets[u"radio"_qs]);
    ASSERT_NE(radio, nullptr);
    EXPECT_EQ(radio->titles(), (QStringList{u"One"_qs, u"Two"_qs}));
    EXPECT_EQ(outlets[u"field"_qs]->parentWidget(), view.get());
}

class OwnField : public QLineEdit
{
public:
    using QLineEdit::QLineEdit;
};

TEST_F(BundleTest, Interface_LoadsNoPlugInOfTheInterfaceEditor_AndLeavesTheToolkitItsOwn)
{
    // Strangers' code, and libraries that cost more than the view. Where none is installed there is none to load.
    const QStringList paths = QCoreApplication::libraryPaths();
    addInterface(R"(<widget class="QLineEdit" name="field"/>)");
    ASSERT_NE(Bundle::bundleWithPath(bundlePath())->loadInterface(u"View"_qs, {}, nullptr), nullptr);
    QFile maps(u"/proc/self/maps"_qs);
    ASSERT_TRUE(maps.open(QIODevice::ReadOnly));
    EXPECT_FALSE(maps.readAll().contains("/plugins/designer/"));
    EXPECT_EQ(QCoreApplication::libraryPaths(), paths);
    EXPECT_FALSE(paths.isEmpty());
}

TEST_F(BundleTest, Interface_MakesThePlugInsOwnClasses)
{
    addInterface(
        R"(<widget class="OwnField" name="field"><property name="maxLength"><number>7</number></property></widget>)");
    QWidget *field = nullptr;
    const WidgetFactories factories{{u"OwnField"_qs, [](QWidget *parent) { return new OwnField(parent); }}};
    const auto view = Bundle::bundleWithPath(bundlePath())
                          ->loadInterface(u"View"_qs, factories, [&](const QString &name, QWidget *widget) {
                              if (name == u"field") {
                                  field = widget;
                              }
                          });
    ASSERT_NE(view, nullptr);
    auto *own = dynamic_cast<OwnField *>(field);
    ASSERT_NE(own, nullptr);
    EXPECT_EQ(own->maxLength(), 7);
    EXPECT_EQ(own->parentWidget(), view.get());
}

TEST_F(BundleTest, Interface_WithAnUnknownClass_GivesNoViewAndNoOutlets)
{
    addInterface(R"(<widget class="QLineEdit" name="field"/><widget class="Mystery" name="mystery"/>)");
    int calls = 0;
    const auto bundle = Bundle::bundleWithPath(bundlePath());
    EXPECT_EQ(bundle->loadInterface(u"View"_qs, {}, [&](const QString &, QWidget *) { ++calls; }), nullptr);
    EXPECT_EQ(calls, 0);
}

TEST_F(BundleTest, Interface_PromotedUnknownClass_GivesNoViewEither)
{
    write(resource(u"View.ui"_qs),
          R"(<ui version="4.0"><class>V</class><widget class="QWidget" name="view"><widget class="Mystery" name="m"/>)"
          R"(</widget><customwidgets><customwidget><class>Mystery</class><extends>QLineEdit</extends></customwidget>)"
          R"(</customwidgets></ui>)");
    EXPECT_EQ(Bundle::bundleWithPath(bundlePath())->loadInterface(u"View"_qs, {}, nullptr), nullptr);
}

TEST_F(BundleTest, Interface_MissingOrBroken_GivesNoView)
{
    write(resource(u"Broken.ui"_qs), "<ui version=\"4.0\"><widget class=\"QWidget\"");
    write(resource(u"Empty.ui"_qs), "");
    write(resource(u"Other.ui"_qs), "<html/>");
    const auto bundle = Bundle::bundleWithPath(bundlePath());
    for (const QString &name : {u"Broken"_qs, u"Empty"_qs, u"Other"_qs, u"None"_qs, u"../Resources/Broken"_qs}) {
        EXPECT_EQ(bundle->loadInterface(name, {}, nullptr), nullptr) << name.toStdString();
    }
}

} // namespace
