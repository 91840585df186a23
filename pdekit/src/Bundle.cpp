// SPDX-License-Identifier: Apache-2.0
// Bundles: finding resources, the bundle's own translations, images, and interface files.
#include "pdekit/Bundle.h"

#include "InterfaceLoader.h"
#include "pdekit/Log.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>
#include <QLocale>
#include <QPixmap>
#include <QTranslator>

#include <memory>

#include <dirent.h>

namespace pdekit
{

namespace
{

const QString kCatalogueType = QStringLiteral("qm");
/// What a person reads whose languages the bundle lacks.
const QString kFallbackLanguage = QStringLiteral("en");

/// The catalogues that serve a language tag, the closest first: "zh-Hans-SG" is served by zh_Hans_SG, zh_SG, zh_CN, zh.
QStringList catalogueNames(const QString &tag)
{
    const QLocale locale(tag);
    const QLocale usual(locale.language(), locale.script(), QLocale::AnyTerritory);
    return {QString(tag).replace(QLatin1Char('-'), QLatin1Char('_')), locale.name(), usual.name(),
            tag.section(QLatin1Char('-'), 0, 0)};
}

} // namespace

std::shared_ptr<Bundle> Bundle::bundleWithPath(const QString &path)
{
    return std::shared_ptr<Bundle>(new Bundle(path));
}

Bundle::Bundle(const QString &path) : mPath(QDir(path).absolutePath())
{
    loadCatalogueOfSession();
}

Bundle::~Bundle() = default;

QString Bundle::bundlePath() const
{
    return mPath;
}

QString Bundle::pathForResource(const QString &name, const QString &type) const
{
    const QString fileName = type.isEmpty() ? name : name + QLatin1Char('.') + type;
    // Names come from PPDs too, which are no more to be trusted than any file.
    if (name.isEmpty() || fileName.contains(QChar(u'\0')) ||
        fileName.split(QLatin1Char('/')).contains(QLatin1String(".."))) {
        return {};
    }
    const QString path = mPath + QLatin1String("/Resources/") + fileName;
    return QFileInfo(path).isFile() ? path : QString();
}

QStringList Bundle::namesOfResources(const QString &type) const
{
    const QByteArray ending = '.' + type.toUtf8();
    const QString folder = mPath + QLatin1String("/Resources/");
    QStringList names;
    // The system's own listing: the toolkit's costs as much as asking for a few dozen names one by one.
    const std::unique_ptr<DIR, int (*)(DIR *)> directory(opendir(QFile::encodeName(folder).constData()), closedir);
    while (const dirent *entry = directory ? readdir(directory.get()) : nullptr) {
        const QByteArray fileName =
            QByteArray::fromRawData(entry->d_name, static_cast<qsizetype>(qstrlen(entry->d_name)));
        if (!fileName.endsWith(ending)) {
            continue;
        }
        const QString name = QFile::decodeName(fileName);
        if (entry->d_type == DT_REG || QFileInfo(folder + name).isFile()) {
            names.append(name.chopped(1 + type.size()));
        }
    }
    return names;
}

std::optional<QIcon> Bundle::imageForResource(const QString &name, const QString &type) const
{
    const QString key = name + QLatin1Char('.') + type;
    if (const auto known = mImages.constFind(key); known != mImages.constEnd()) {
        return *known;
    }
    const QString path = pathForResource(name, type);
    if (path.isNull()) {
        return std::nullopt;
    }
    QImageReader reader(path);
    const QImage image = reader.read();
    if (image.isNull()) {
        qCWarning(lcPde).noquote() << path << reader.errorString();
        return std::nullopt;
    }
    return *mImages.insert(key, QIcon(QPixmap::fromImage(image)));
}

QString Bundle::localizedStringForKey(const QString &key, const QString &value, const QString &table) const
{
    if (mCatalogue && table.isEmpty()) {
        // Id-based catalogues keep their entries without a context.
        QString text = mCatalogue->translate(nullptr, key.toUtf8().constData());
        if (!text.isNull()) {
            return text;
        }
    }
    return value.isNull() ? key : value;
}

bool Bundle::setLanguage(const QString &language)
{
    if (pathForResource(language, kCatalogueType).isNull()) {
        return false;
    }
    auto catalogue = std::make_unique<QTranslator>();
    if (!catalogue->load(language, mPath + QLatin1String("/Resources"))) {
        return false;
    }
    mCatalogue = std::move(catalogue);
    return true;
}

void Bundle::loadCatalogueOfSession()
{
    const QStringList tags = QLocale().uiLanguages();
    for (const QString &tag : tags) {
        const QStringList names = catalogueNames(tag);
        for (const QString &name : names) {
            if (setLanguage(name)) {
                return;
            }
        }
    }
    setLanguage(kFallbackLanguage);
}

std::unique_ptr<QWidget>
Bundle::loadInterface(const QString &name, const WidgetFactories &factories,
                      const std::function<void(const QString &name, QWidget *widget)> &connectOutlet) const
{
    const QString path = pathForResource(name, QStringLiteral("ui"));
    QFile file(path);
    if (path.isNull() || !file.open(QIODevice::ReadOnly)) {
        qCWarning(lcPde).noquote() << "There is no interface file" << name << "in" << mPath;
        return nullptr;
    }
    InterfaceLoader loader(factories);
    std::unique_ptr<QWidget> view = loader.loadView(&file);
    if (!view) {
        qCWarning(lcPde).noquote() << path << "cannot be used:" << loader.reason();
        return nullptr;
    }
    if (connectOutlet) {
        loader.connectOutlets(connectOutlet);
    }
    return view;
}

} // namespace pdekit
