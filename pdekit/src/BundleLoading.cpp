// SPDX-License-Identifier: Apache-2.0
// Searching and loading bundles. Metadata is read first: code of a bundle that cannot serve is never run.
#include "pdekit/BundleLoading.h"

#include "BundleModule.h"
#include "LoadingTexts.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QPluginLoader>
#include <QSet>
#include <QStandardPaths>

#include <algorithm>
#include <exception>
#include <utility>

#include <dlfcn.h>

namespace pdekit
{

namespace
{

/// A stranger's reason within a sentence: in one line, without the full stop that it may end with.
QString withoutEnd(const QString &reason)
{
    const QString text = reason.simplified();
    return text.endsWith(u'.') ? text.chopped(1) : text;
}

/// Runs the code of one bundle. \return why it cannot be used; null when it can.
QString start(QPluginLoader &module, LoadedBundle *loaded)
{
    QObject *root = module.instance();
    if (root == nullptr) {
        return LoadingTexts::tr("its code cannot be loaded: %1").arg(withoutEnd(module.errorString()));
    }
    // By the identifier that the module was built with: an earlier minor version's is another text than ours.
    const QByteArray identifier = module.metaData().value(u"IID").toString().toUtf8();
    auto *entry = static_cast<PlugInEntry *>(root->qt_metacast(identifier.constData()));
    if (entry == nullptr) {
        return LoadingTexts::tr("its code is not what its metadata says");
    }
    const QString className = loaded->metadata.value(u"PrincipalClass").toString();
    loaded->principal = entry->newPrincipalObject(className);
    if (!loaded->principal) {
        return LoadingTexts::tr("it has no principal class %1").arg(className);
    }
    if (!loaded->principal->initWithBundle(loaded->bundle.get())) {
        return LoadingTexts::tr("it cannot serve on this system");
    }
    return {};
}

/// The same, whatever the bundle's code does.
QString startGuarded(QPluginLoader &module, LoadedBundle *loaded)
{
    const BundleGuard guard(loaded->path, BundleGuard::Step::Loading);
    if (!guard.reasonToSkip().isNull()) {
        return guard.reasonToSkip();
    }
    try {
        return start(module, loaded);
    } catch (const std::exception &exception) {
        return LoadingTexts::tr("it failed while it was starting: %1")
            .arg(withoutEnd(QString::fromLocal8Bit(exception.what())));
    } catch (...) {
        return LoadingTexts::tr("it failed while it was starting");
    }
}

QString loadBundle(const QString &path, QPluginLoader &module, const QString &panelType, LoadedBundle *loaded)
{
    if (QString reason = reasonAgainst(path, module, panelType); !reason.isNull()) {
        return reason;
    }
    loaded->path = path;
    loaded->metadata = ownMetadata(module);
    loaded->bundle = Bundle::bundleWithPath(path);
    return startGuarded(module, loaded);
}

/// The place of a bundle that a PPD names by a path; null when that is not inside one of the folders, links followed.
QString placeInside(const QStringList &folders, const QString &path)
{
    for (const QString &folder : folders) {
        const QString canonicalFolder = QFileInfo(folder).canonicalFilePath() + u'/';
        // Only a path that is spelled as one inside is looked at: nothing else on the machine is touched for a PPD.
        if (path.startsWith(canonicalFolder) || path.startsWith(QDir::cleanPath(folder) + u'/')) {
            const QFileInfo place(QFileInfo(path).canonicalFilePath());
            if (place.filePath().startsWith(canonicalFolder) && place.fileName().endsWith(kBundleEnding) &&
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
    BundleSearch(const QStringList &folders, ppd_file_t *ppd, const QString &panelType)
        : mFolders(folders), mPpd(ppd), mPanelType(panelType), mNamed(namedBundles(ppd))
    {
    }

    LoadedBundles run()
    {
        for (const QString &folder : mFolders) {
            const QFileInfoList entries =
                QDir(folder).entryInfoList({u'*' + kBundleEnding}, QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
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
                mResult.problems.append(LoadingTexts::tr("The printer's description asks for the plug-in %1, which is "
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
        if (mSeenPaths.contains(path)) {
            return;
        }
        QPluginLoader module(modulePath(path));
        if (!isNamed && !claimsPrinter(ownMetadata(module), mPpd)) {
            return;
        }
        mSeenPaths.insert(path);
        mFound.insert(entry.fileName());
        if (const QString used = mUsed.value(entry.fileName()); !used.isNull()) {
            mResult.problems.append(
                LoadingTexts::tr("The plug-in %1 is used in place of %2.").arg(used, entry.filePath()));
            return;
        }
        LoadedBundle loaded;
        const QString reason = loadBundle(path, module, mPanelType, &loaded);
        if (reason.isNull()) {
            mUsed.insert(entry.fileName(), entry.filePath());
            mResult.bundles.push_back(std::move(loaded));
        } else {
            mResult.problems.append(LoadingTexts::tr("The plug-in %1 is not used: %2. Printing works without it; "
                                                     "update or remove the bundle.")
                                        .arg(entry.filePath(), reason));
        }
    }

    const QStringList &mFolders;
    ppd_file_t *mPpd;
    const QString &mPanelType;
    std::vector<NamedBundle> mNamed;
    LoadedBundles mResult;
    QSet<QString> mSeenPaths;
    QHash<QString, QString> mUsed; ///< path by name
    QSet<QString> mFound;          ///< names of bundles that the printer wants and that are there
};

/// The folder of bundles that is installed with this library; null when it is not known where that is.
QString folderOfLibrary()
{
    Dl_info library{};
    if (dladdr(reinterpret_cast<const void *>(&bundleSearchPath), &library) == 0) {
        return {};
    }
    return QFileInfo(QFile::decodeName(library.dli_fname)).canonicalPath() +
           QLatin1String("/" PDEKIT_BUNDLES_FROM_LIBRARY);
}

} // namespace

QStringList bundleSearchPath()
{
    QStringList folders = qEnvironmentVariable("TAPEPRINT_PLUGIN_PATH").split(u':', Qt::SkipEmptyParts);
    folders += QStandardPaths::locateAll(QStandardPaths::GenericDataLocation, QStringLiteral("tapeprint/bundles"),
                                         QStandardPaths::LocateDirectory);
    const QString programFolder = QCoreApplication::applicationDirPath();
    folders << programFolder + QLatin1String("/../bundles")
            << programFolder + QLatin1String("/../" PDEKIT_INSTALLED_BUNDLES) << folderOfLibrary();
    return folders;
}

LoadedBundles loadBundles(const QStringList &folders, ppd_file_t *ppd, const QString &panelType)
{
    return ppd == nullptr ? LoadedBundles() : BundleSearch(folders, ppd, panelType).run();
}

} // namespace pdekit
