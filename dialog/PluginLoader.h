// SPDX-License-Identifier: Apache-2.0
// Finds plug-in bundles and loads those that belong to a printer; names those that it wanted and skips, and why.
#pragma once

#include "job/TapeKeywords.h"

#include <QString>
#include <QStringList>

#include <memory>
#include <vector>

#include <pdekit/Bundle.h>
#include <pdekit/PlugIn.h>

#include <cups/ppd.h>

namespace tapeprint::dialog
{

/// A bundle whose code is loaded. The principal object goes before its bundle; the code stays loaded for the rest of
/// the process, because panels' views may still hold objects of its classes.
struct LoadedBundle {
    QString path; ///< the bundle's directory
    std::shared_ptr<pdekit::Bundle> bundle;
    std::unique_ptr<pdekit::PlugIn> principal;
    job::TapeKeywords tape; ///< what its metadata says of tapes
};

struct LoadedBundles {
    std::vector<LoadedBundle> bundles;
    QStringList problems; ///< a sentence for each bundle that the printer wants and that is not used
};

/// Folders that hold bundles, in the order of search: $TAPEPRINT_PLUGIN_PATH, the person's and the system's data
/// folders, the build that the program stands in, the place beside an installed program.
QStringList bundleSearchPath();

/// Loads the bundles of some folders that belong to a printer: those that claim a keyword of its PPD, and those that
/// the PPD names. No code of another one runs, and what is wrong with it is no concern of that printer's. Of bundles
/// with the same name the first that can be used is used. \param ppd of the printer; without one there is no bundle.
LoadedBundles loadBundles(const QStringList &folders, ppd_file_t *ppd);

} // namespace tapeprint::dialog
