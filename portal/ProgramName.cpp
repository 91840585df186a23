// SPDX-License-Identifier: Apache-2.0
// Desktop entries are read as far as a name needs it.
#include "portal/ProgramName.h"

#include "job/PlainText.h"

#include <QFile>
#include <QLocale>
#include <QRegularExpression>
#include <QStandardPaths>

namespace tapeprint::portal
{

namespace
{

/// What is longer is no name, and would push the rest of a title away.
constexpr qsizetype mostCharacters = 64;
constexpr qint64 mostBytes = 262144;

/// The value of a key in the entry's own group; null when it does not have it.
QString valueOf(const QStringList &lines, const QString &key)
{
    bool isOwn = false;
    for (const QString &line : lines) {
        if (line.startsWith(u'[')) {
            isOwn = line.trimmed() == u"[Desktop Entry]";
        } else if (isOwn && line.section(u'=', 0, 0).trimmed() == key) {
            return line.section(u'=', 1).trimmed();
        }
    }
    return {};
}

QString nameIn(const QStringList &lines)
{
    const QString locale = QLocale().name(); // de_DE
    for (const QString &key : {QStringLiteral("Name[%1]").arg(locale),
                               QStringLiteral("Name[%1]").arg(locale.section(u'_', 0, 0)), QStringLiteral("Name")}) {
        if (QString name = valueOf(lines, key); !name.isEmpty()) {
            return name;
        }
    }
    return {};
}

} // namespace

QString programName(const QString &identity)
{
    // It becomes part of a path.
    static const QRegularExpression wellFormed(QStringLiteral("\\A[A-Za-z0-9_-]+(\\.[A-Za-z0-9_-]+)*\\z"));
    if (identity.size() > mostBytes || !wellFormed.match(identity).hasMatch()) {
        return job::harmless(identity.left(mostCharacters));
    }
    QFile entry(QStandardPaths::locate(QStandardPaths::ApplicationsLocation, identity + QLatin1String(".desktop")));
    const QString name = !entry.fileName().isEmpty() && entry.open(QIODevice::ReadOnly)
                             ? nameIn(QString::fromUtf8(entry.read(mostBytes)).split(u'\n'))
                             : QString();
    return job::harmless((name.isEmpty() ? identity : name).left(mostCharacters));
}

} // namespace tapeprint::portal
