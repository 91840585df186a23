// SPDX-License-Identifier: Apache-2.0
// The dialog's side of plug-ins: finds the bundles that belong to a printer and loads them, so that every dialog does
// so by the same rules.
#pragma once

#include "pdekit/Bundle.h"
#include "pdekit/Export.h"
#include "pdekit/PlugIn.h"
#include "pdekit/Ppd.h"

#include <QJsonObject>
#include <QString>
#include <QStringList>

#include <memory>
#include <vector>

namespace pdekit
{

/// The ending of a bundle's folder.
inline const QString kBundleEnding = QStringLiteral(".bundle");

/// Whether a PPD has one of the keywords, as an option or as an attribute, that a plug-in claims: its metadata's list
/// "PPDKeywords". \param metadata the plug-in's own part; without the list it claims nothing. \param ppd borrowed; null
/// has no keyword.
PDEKIT_EXPORT bool claimsPrinter(const QJsonObject &metadata, ppd_file_t *ppd);

/// A bundle that a PPD names by its attribute APDialogExtension.
struct NamedBundle {
    QString name; ///< the last component of the attribute's value, ending in kBundleEnding
    QString path; ///< the value itself when it is an absolute path, cleaned; else null. It is only compared with paths
                  ///< inside the search path's folders, and is no road to code elsewhere.
};

/// The bundles that a PPD names, in its order. Values that do not end as a bundle does, such as those meant for another
/// system's plug-ins, name none. \param ppd borrowed; null names none.
PDEKIT_EXPORT std::vector<NamedBundle> namedBundles(ppd_file_t *ppd);

/// A bundle in use. The order of the members is that of lifetimes: the principal object goes before its bundle. The
/// code stays loaded for the rest of the process and is never unloaded, because views and closures of its panels may
/// still hold objects of its classes.
struct LoadedBundle {
    QString path;                      ///< the bundle's folder, links followed
    QJsonObject metadata;              ///< the plug-in's own part: the JSON file named in Q_PLUGIN_METADATA
    std::shared_ptr<Bundle> bundle;    ///< never null
    std::unique_ptr<PlugIn> principal; ///< never null; initWithBundle() has answered true
};

/// What a search found.
struct LoadedBundles {
    std::vector<LoadedBundle> bundles; ///< in the order of the search path, in a folder by name
    /// A sentence for each bundle that the printer wants and that is not used, and for each that is used in place of
    /// another of its name. In the language of an installed QTranslator that has texts of "pdekit::LoadingTexts", else
    /// in English. They hold names and reasons of strangers as these stand.
    QStringList problems;
};

/// The folders that hold bundles, in the order of search: those of the environment variable TAPEPRINT_PLUGIN_PATH
/// (separated by ":"), "tapeprint/bundles" in the person's and the system's data folders, "../bundles" and
/// "../lib/tapeprint/bundles" as seen from the program, and the folder that goes with this library. Needs an
/// application object.
PDEKIT_EXPORT QStringList bundleSearchPath();

/// Loads the bundles that belong to a printer: those whose metadata claims a keyword of its PPD ("PPDKeywords"), and
/// those that the PPD names (APDialogExtension). No code of another one runs, and what is wrong with it is no concern
/// of that printer's. Of bundles with the same name the first that can be used is used.
///
/// Before code runs: the module has to be made for this version of the interface or an earlier one of the same
/// generation and to serve the panel type, and module, bundle and the folder that holds it have to belong to the person
/// or to root, with nobody but their groups allowed to write there. See BundleGuard for a bundle that ends the program.
///
/// Call it on the user-interface thread; code of bundles runs in it. Nothing is thrown; what a bundle throws is a
/// problem.
/// \param folders such as bundleSearchPath(). \param ppd of the printer, borrowed for the call; without one there is no
/// bundle. \param panelType which the bundles have to serve.
PDEKIT_EXPORT LoadedBundles loadBundles(const QStringList &folders, ppd_file_t *ppd,
                                        const QString &panelType = kPrinterModulePanelType);

/// While one of these lives, code of a bundle runs that may end the program or never come back. If it does, the next
/// guard of that bundle and step knows. loadBundles() guards its own step; a dialog guards the making of panels.
///
/// Of code that does not come back for five seconds a line on standard error names the bundle, and once it has been
/// away for a minute the guards of other programs leave it out.
///
/// The marks are files in $XDG_STATE_HOME/tapeprint/plug-ins (~/.local/state without the variable). Where they cannot
/// be written, nothing is left out.
class PDEKIT_EXPORT BundleGuard
{
public:
    /// What runs while a guard lives; each has marks of its own.
    enum class Step {
        Loading,      ///< from the module's first code to PlugIn::initWithBundle()
        MakingPanels, ///< PlugIn::PDEPanelsForType() and what a dialog calls of new panels before it shows them
    };

    /// \param bundlePath the bundle's folder.
    BundleGuard(const QString &bundlePath, Step step);
    /// The code has come back.
    ~BundleGuard();
    BundleGuard(const BundleGuard &) = delete;
    BundleGuard &operator=(const BundleGuard &) = delete;

    /// Why the code is not to be run, as part of a sentence; null when it may run. After a program ended in it, it is
    /// left out once; after two in a row until the module has changed or the mark is removed; and as long as another
    /// program waits for it.
    QString reasonToSkip() const { return mReason; }

private:
    class Waiting;
    void takeMark(const QString &bundlePath, Step step);

    int mFile = -1; ///< locked while the code runs
    QString mPath;
    QString mReason;
    std::unique_ptr<Waiting> mWaiting; ///< null when the code is not run
};

} // namespace pdekit
