// SPDX-License-Identifier: Apache-2.0
// The file that a dump of print settings goes to, and how it is written.
#pragma once

#include "pdekit/PrintingCore.h"

#include <QString>

namespace pdelog
{

/// The absolute path of a dump: "/KsPDE_<name>.plist", in the root directory.
QString settingsPath(const QString &name);

/// Writes settings as an XML property list, in one step: at every moment the path holds the older file, or none, or the
/// new one whole. Settings that are no property list leave it as it is; so does a path that cannot be written.
void writeSettings(const pdekit::PrintSettings &settings, const QString &path);

} // namespace pdelog
