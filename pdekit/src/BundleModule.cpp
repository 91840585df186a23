// SPDX-License-Identifier: Apache-2.0
// What stands on the disk decides whether code is run: whose the files are, and what the metadata says.
#include "BundleModule.h"

#include "LoadingTexts.h"
#include "pdekit/Version.h"

#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QRegularExpression>

#include <sys/stat.h>
#include <unistd.h>

namespace pdekit
{

namespace
{

/// Why a file or folder may have been put there by somebody else; null when it cannot.
/// \param isShared whether names in a folder may be everybody's, if each is its owner's to change, as in /tmp.
QString reasonToDistrust(const QString &path, bool isShared)
{
    struct stat status {
    };
    if (stat(QFile::encodeName(path).constData(), &status) != 0) {
        return LoadingTexts::tr("%1 cannot be read").arg(path);
    }
    if (status.st_uid != 0 && status.st_uid != geteuid()) {
        return LoadingTexts::tr("%1 belongs to somebody else").arg(path);
    }
    if ((status.st_mode & S_IWOTH) != 0 && !(isShared && (status.st_mode & S_ISVTX) != 0)) {
        return LoadingTexts::tr("everybody may write to %1").arg(path);
    }
    return {};
}

QString reasonAgainstOwner(const QString &bundlePath)
{
    const QFileInfo module(QFileInfo(modulePath(bundlePath)).canonicalFilePath()); // it may be a link
    for (const QString &path : {bundlePath, module.filePath()}) {
        if (QString reason = reasonToDistrust(path, false); !reason.isNull()) {
            return reason;
        }
    }
    // Who may rename things in a folder may put others in their place.
    for (const QString &folder : {QFileInfo(bundlePath).path(), module.path()}) {
        if (QString reason = reasonToDistrust(folder, true); !reason.isNull()) {
            return reason;
        }
    }
    return {};
}

/// An interface identifier is the interface's name and a version: NAME/MAJOR.MINOR. Of the same major version, this
/// library knows all that an earlier minor one knew.
QString reasonAgainstInterface(const QString &identifier)
{
    static const QRegularExpression form(QStringLiteral(R"(\A(.+/\d+)\.(\d{1,6})\z)"));
    static const QRegularExpressionMatch own = form.match(QStringLiteral(PDEKIT_PLUGIN_IID));
    const QRegularExpressionMatch other = form.match(identifier);
    if (!other.hasMatch() || other.captured(1) != own.captured(1)) {
        return LoadingTexts::tr("it is made for another panel interface (%1)").arg(identifier);
    }
    if (other.captured(2).toInt() > own.captured(2).toInt()) {
        return LoadingTexts::tr("it is made for a later version of the panel interface (%1)").arg(identifier);
    }
    return {};
}

} // namespace

QString modulePath(const QString &bundlePath)
{
    return bundlePath + u'/' + QFileInfo(bundlePath).completeBaseName() + QLatin1String(".so");
}

QJsonObject ownMetadata(const QPluginLoader &module)
{
    return module.metaData().value(u"MetaData").toObject();
}

QString reasonAgainst(const QString &bundlePath, const QPluginLoader &module, const QString &panelType)
{
    if (const QFileInfo file(modulePath(bundlePath)); !file.isFile()) {
        return LoadingTexts::tr("it has no file %1").arg(file.fileName());
    }
    if (QString reason = reasonAgainstOwner(bundlePath); !reason.isNull()) {
        return reason;
    }
    const QJsonObject root = module.metaData();
    if (root.isEmpty()) {
        return LoadingTexts::tr("its code is no plug-in that this Qt can load");
    }
    if (QString reason = reasonAgainstInterface(root.value(u"IID").toString()); !reason.isNull()) {
        return reason;
    }
    const QJsonObject data = ownMetadata(module);
    if (data.value(u"PrincipalClass").toString().isEmpty()) {
        return LoadingTexts::tr("its metadata names no principal class");
    }
    if (!data.value(u"PanelTypes").toArray().contains(panelType)) {
        return LoadingTexts::tr("it does not serve printer panels");
    }
    return {};
}

} // namespace pdekit
