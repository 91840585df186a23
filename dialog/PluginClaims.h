// SPDX-License-Identifier: Apache-2.0
// Which printers a plug-in belongs to: those whose PPD has a keyword that the plug-in claims in its metadata, and those
// whose PPD names its bundle.
#pragma once

#include <QJsonObject>
#include <QString>

#include <vector>

#include <cups/ppd.h>

namespace tapeprint::dialog
{

/// The ending of a bundle's folder.
inline const QString bundleEnding = QStringLiteral(".bundle");

/// Whether a PPD has one of the keywords, as an option or as an attribute, that a plug-in claims: its metadata's list
/// "PPDKeywords". \param metadata the plug-in's own part; without the list it claims nothing.
bool claimsPrinter(const QJsonObject &metadata, ppd_file_t *ppd);

/// A bundle that a PPD names by its attribute APDialogExtension.
struct NamedBundle {
    QString name; ///< the last component of the attribute's value, ending in bundleEnding
    QString path; ///< the value itself when it is an absolute path, cleaned; else null. It is only compared with paths
                  ///< inside the search path's folders, and is no road to code elsewhere.
};

/// The bundles that a PPD names, in its order. Values that do not end as a bundle does, such as those meant for another
/// system's plug-ins, name none.
std::vector<NamedBundle> namedBundles(ppd_file_t *ppd);

} // namespace tapeprint::dialog
