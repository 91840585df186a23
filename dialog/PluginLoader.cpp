// SPDX-License-Identifier: Apache-2.0
// Loading bundles. Metadata is read first: code of a bundle that cannot serve is never run.
#include "dialog/PluginLoader.h"

#include "job/Texts.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonObject>
#include <QPluginLoader>
#include <QSet>
#include <QStandardPaths>

namespace tapeprint::dialog
{

namespace
{

const QLatin1String bundleEnding(".bundle");

/// Why a module's metadata says that it cannot serve here; null when it can.
QString reasonToSkip(const QPluginLoader &module)
{
    const QJsonObject root = module.metaData();
    if (root.isEmpty()) {
        return job::Texts::tr("its code is no plug-in that this Qt can load");
    }
    const QString interface = root.value(u"IID").toString();
    if (interface != QLatin1String(PDEKIT_PLUGIN_IID)) {
        return job::Texts::tr("it is made for another panel interface (%1)").arg(interface);
    }
    const QJsonObject data = root.value(u"MetaData").toObject();
    if (data.value(u"PrincipalClass").toString().isEmpty()) {
        return job::Texts::tr("its metadata names no principal class");
    }
    if (!data.value(u"PanelTypes").toArray().contains(pdekit::kPrinterModulePanelType)) {
        return job::Texts::tr("it does not serve printer panels");
    }
    return {};
}

/// Loads one bundle. \return why it cannot be used; null when it can.
QString loadBundle(const QString &path, LoadedBundle *loaded)
{
    const QString modulePath = path + u'/' + QFileInfo(path).completeBaseName() + QLatin1String(".so");
    if (!QFileInfo(modulePath).isFile()) {
        return job::Texts::tr("it has no file %1").arg(QFileInfo(modulePath).fileName());
    }
    QPluginLoader module(modulePath);
    QString reason = reasonToSkip(module);
    if (!reason.isNull()) {
        return reason;
    }
    QObject *root = module.instance();
    if (root == nullptr) {
        return job::Texts::tr("its code cannot be loaded: %1").arg(module.errorString().simplified());
    }
    auto *entry = qobject_cast<pdekit::PlugInEntry *>(root);
    const QString className = module.metaData().value(u"MetaData").toObject().value(u"PrincipalClass").toString();
    loaded->path = path;
    loaded->tape = job::TapeKeywords::fromMetadata(module.metaData().value(u"MetaData").toObject());
    loaded->bundle = pdekit::Bundle::bundleWithPath(path);
    loaded->principal = entry == nullptr ? nullptr : entry->newPrincipalObject(className);
    if (!loaded->principal) {
        return job::Texts::tr("it has no principal class %1").arg(className);
    }
    if (!loaded->principal->initWithBundle(loaded->bundle.get())) {
        return job::Texts::tr("it cannot serve on this system");
    }
    return {};
}

} // namespace

QStringList bundleSearchPath()
{
    QStringList folders = qEnvironmentVariable("TAPEPRINT_PLUGIN_PATH").split(u':', Qt::SkipEmptyParts);
    folders += QStandardPaths::locateAll(QStandardPaths::GenericDataLocation, QStringLiteral("tapeprint/bundles"),
                                         QStandardPaths::LocateDirectory);
    const QString programFolder = QCoreApplication::applicationDirPath();
    folders << programFolder + QLatin1String("/../bundles")
            << programFolder + QLatin1String("/../lib/tapeprint/bundles");
    return folders;
}

LoadedBundles loadBundles(const QStringList &folders)
{
    LoadedBundles result;
    QSet<QString> seenPaths;
    QSet<QString> usedNames;
    for (const QString &folder : folders) {
        const QFileInfoList entries = QDir(folder).entryInfoList({QLatin1Char('*') + bundleEnding},
                                                                 QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
        for (const QFileInfo &entry : entries) {
            const QString path = entry.canonicalFilePath();
            if (seenPaths.contains(path) || usedNames.contains(entry.fileName())) {
                continue;
            }
            seenPaths.insert(path);
            LoadedBundle loaded;
            const QString reason = loadBundle(path, &loaded);
            if (reason.isNull()) {
                usedNames.insert(entry.fileName());
                result.bundles.push_back(std::move(loaded));
            } else {
                result.problems.append(job::Texts::tr("The plug-in %1 is not used: %2. Printing works without it; "
                                                      "update or remove the bundle.")
                                           .arg(entry.filePath(), reason));
            }
        }
    }
    return result;
}

} // namespace tapeprint::dialog
