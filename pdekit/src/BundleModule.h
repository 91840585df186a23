// SPDX-License-Identifier: Apache-2.0
// The module of a bundle as a file: where it stands, and whether its code may be run as far as can be said without
// running it.
#pragma once

#include <QJsonObject>
#include <QPluginLoader>
#include <QString>

namespace pdekit
{

/// The file of a bundle's code: NAME.bundle/NAME.so. \param bundlePath the bundle's folder, links followed.
QString modulePath(const QString &bundlePath);

/// The plug-in's own part of a module's metadata; empty when the module has none.
QJsonObject ownMetadata(const QPluginLoader &module);

/// Why a bundle is not to be loaded, as part of a sentence; null when it may be.
QString reasonAgainst(const QString &bundlePath, const QPluginLoader &module, const QString &panelType);

} // namespace pdekit
