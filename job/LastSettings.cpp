// SPDX-License-Identifier: Apache-2.0
// A group a queue: under "tapes" a list of NAME=VALUE for each tape, and beside it which tape was the last.
#include "job/LastSettings.h"

#include "job/PlainText.h"
#include "job/Texts.h"

#include <QSettings>
#include <QStandardPaths>
#include <QStringList>

namespace tapeprint::job
{

namespace
{

const QString latestKey = QStringLiteral("latest");
const QString tapesGroup = QStringLiteral("tapes/");

QString settingsPath()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
           QLatin1String("/tapeprint/last-settings.ini");
}

/// Each length of a custom size would be a tape of its own.
QString tapeKey(const QString &tape)
{
    const bool isCustom = tape.startsWith(QLatin1String("Custom."), Qt::CaseInsensitive);
    return tapesGroup + (isCustom || tape.isEmpty() ? QStringLiteral("Custom") : tape);
}

JobOptions optionsFrom(const QStringList &lines)
{
    JobOptions options;
    for (const QString &line : lines) {
        if (const qsizetype equals = line.indexOf(u'='); equals > 0) {
            options.set(line.left(equals), line.mid(equals + 1));
        }
    }
    return options;
}

} // namespace

bool keepLastSettings(const QString &queue, const QString &tape, const JobOptions &options, Problem *error)
{
    QSettings settings(settingsPath(), QSettings::IniFormat);
    settings.beginGroup(queue);
    settings.setValue(tapeKey(tape), options.lines());
    settings.setValue(latestKey, tapeKey(tape));
    settings.sync();
    if (settings.status() == QSettings::NoError) {
        return true;
    }
    *error = {Problem::UnwritableOutput, lastSettingsNotKept()};
    return false;
}

QString lastSettingsNotKept()
{
    return Texts::tr("The settings cannot be kept for the next time: %1 cannot be written.")
        .arg(harmless(settingsPath()));
}

std::optional<JobOptions> lastSettings(const QString &queue, const QString &tape)
{
    QSettings settings(settingsPath(), QSettings::IniFormat);
    settings.beginGroup(queue);
    const QString ofTape = tapeKey(tape);
    const QString key = settings.contains(ofTape) ? ofTape : settings.value(latestKey).toString();
    return key.isEmpty() || !settings.contains(key) ? std::nullopt
                                                    : std::optional(optionsFrom(settings.value(key).toStringList()));
}

} // namespace tapeprint::job
