// SPDX-License-Identifier: Apache-2.0
// Loading bundles. Metadata is read first: code of a bundle that cannot serve is never run.
#include "dialog/PluginLoader.h"

#include "dialog/PluginClaims.h"
#include "job/Reason.h"
#include "job/Texts.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonObject>
#include <QPluginLoader>
#include <QSet>
#include <QStandardPaths>

#include <algorithm>
#include <utility>

namespace tapeprint::dialog
{

namespace
{

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

/// A bundle's own part of its module's metadata.
QJsonObject ownMetadata(const QPluginLoader &module)
{
    return module.metaData().value(u"MetaData").toObject();
}

/// Loads the code of one bundle. \return why it cannot be used; null when it can.
QString loadBundle(const QString &path, QPluginLoader &module, LoadedBundle *loaded)
{
    if (!QFileInfo(module.fileName()).isFile()) {
        return job::Texts::tr("it has no file %1").arg(QFileInfo(path).completeBaseName() + QLatin1String(".so"));
    }
    QString reason = reasonToSkip(module);
    if (!reason.isNull()) {
        return reason;
    }
    QObject *root = module.instance();
    if (root == nullptr) {
        return job::Texts::tr("its code cannot be loaded: %1").arg(job::reasonText(module.errorString()));
    }
    auto *entry = qobject_cast<pdekit::PlugInEntry *>(root);
    const QString className = ownMetadata(module).value(u"PrincipalClass").toString();
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

/// The place of a bundle that a PPD names by a path; null when that is not inside one of the folders, links followed.
QString placeInside(const QStringList &folders, const QString &path)
{
    for (const QString &folder : folders) {
        const QString canonicalFolder = QFileInfo(folder).canonicalFilePath() + u'/';
        // Only a path that is spelled as one inside is looked at: nothing else on the machine is touched for a PPD.
        if (path.startsWith(canonicalFolder) || path.startsWith(QDir::cleanPath(folder) + u'/')) {
            const QFileInfo place(QFileInfo(path).canonicalFilePath());
            if (place.filePath().startsWith(canonicalFolder) && place.fileName().endsWith(bundleEnding) &&
                place.isDir()) {
                return place.filePath();
            }
        }
    }
    return {};
}

/// One search for the bundles of one printer.
class BundleSearch
{
public:
    BundleSearch(const QStringList &folders, ppd_file_t *ppd) : mFolders(folders), mPpd(ppd), mNamed(namedBundles(ppd))
    {
    }

    LoadedBundles run()
    {
        for (const QString &folder : mFolders) {
            const QFileInfoList entries =
                QDir(folder).entryInfoList({u'*' + bundleEnding}, QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
            for (const QFileInfo &entry : entries) {
                take(entry, isNamed(entry.fileName()));
            }
        }
        // The search path's order comes first; a path of the PPD finds what lies deeper in a folder.
        for (const NamedBundle &named : mNamed) {
            if (const QString place = placeInside(mFolders, named.path); !place.isNull()) {
                take(QFileInfo(place), true);
            }
            if (!mFound.contains(named.name)) {
                mFound.insert(named.name); // said once
                mResult.problems.append(job::Texts::tr("The printer's description asks for the plug-in %1, which is "
                                                       "not installed. Printing works without it.")
                                            .arg(named.name));
            }
        }
        return std::move(mResult);
    }

private:
    bool isNamed(const QString &name) const
    {
        return std::any_of(mNamed.begin(), mNamed.end(),
                           [&name](const NamedBundle &named) { return named.name == name; });
    }

    /// Loads a bundle if it belongs to the printer and none of its name is in use.
    void take(const QFileInfo &entry, bool isNamed)
    {
        const QString path = entry.canonicalFilePath();
        if (mSeenPaths.contains(path) || mUsedNames.contains(entry.fileName())) {
            return;
        }
        QPluginLoader module(path + u'/' + QFileInfo(path).completeBaseName() + QLatin1String(".so"));
        if (!isNamed && !claimsPrinter(ownMetadata(module), mPpd)) {
            return;
        }
        mSeenPaths.insert(path);
        mFound.insert(entry.fileName());
        LoadedBundle loaded;
        const QString reason = loadBundle(path, module, &loaded);
        if (reason.isNull()) {
            mUsedNames.insert(entry.fileName());
            mResult.bundles.push_back(std::move(loaded));
        } else {
            mResult.problems.append(job::Texts::tr("The plug-in %1 is not used: %2. Printing works without it; "
                                                   "update or remove the bundle.")
                                        .arg(entry.filePath(), reason));
        }
    }

    const QStringList &mFolders;
    ppd_file_t *mPpd;
    std::vector<NamedBundle> mNamed;
    LoadedBundles mResult;
    QSet<QString> mSeenPaths;
    QSet<QString> mUsedNames;
    QSet<QString> mFound; ///< names of bundles that the printer wants and that are there
};

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

LoadedBundles loadBundles(const QStringList &folders, ppd_file_t *ppd)
{
    return ppd == nullptr ? LoadedBundles() : BundleSearch(folders, ppd).run();
}

} // namespace tapeprint::dialog
