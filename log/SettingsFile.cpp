// SPDX-License-Identifier: Apache-2.0
// Writing a dump of print settings.
#include "log/SettingsFile.h"

#include <QByteArray>
#include <QSaveFile>

namespace pdelog
{

QString settingsPath(const QString &name)
{
    return QStringLiteral("/KsPDE_") + name + QStringLiteral(".plist");
}

void writeSettings(const pdekit::PrintSettings &settings, const QString &path)
{
    QByteArray data;
    if (pdekit::PMPrintSettingsCreateDataRepresentation(&settings, &data) != pdekit::kPMNoError || data.isEmpty()) {
        return;
    }
    QSaveFile file(path);
    if (file.open(QIODevice::WriteOnly) && file.write(data) == data.size()) {
        file.commit();
    }
}

} // namespace pdelog
