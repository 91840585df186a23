// SPDX-License-Identifier: Apache-2.0
// Names one a line for scripts, everything about them with --json.
#include "tapeprint/PresetRun.h"

#include "job/PlainText.h"
#include "job/Presets.h"
#include "tapeprint/JsonReport.h"

#include <QJsonArray>
#include <QJsonObject>

namespace tapeprint
{

namespace
{

RunReport listPresets(const QString &queue)
{
    job::Problem error;
    const std::vector<job::Preset> presets = job::presetsOf(queue, &error);
    if (!error.isNull()) {
        return failedRun(error);
    }
    RunReport report;
    QJsonArray list;
    for (const job::Preset &preset : presets) {
        report.output.append(job::harmless(preset.name));
        list.append(QJsonObject{{QStringLiteral("name"), preset.name},
                                {QStringLiteral("default"), preset.isDefault},
                                {QStringLiteral("own"), preset.isOwn},
                                {QStringLiteral("options"), jsonOptions(preset.options)}});
    }
    report.data.insert(QStringLiteral("presets"), list);
    return report;
}

} // namespace

RunReport runPresets(const CommandLine &line)
{
    if (line.listPresets) {
        return listPresets(line.request.queue);
    }
    job::Problem error;
    if (!job::deletePreset(line.request.queue, line.deletePreset, &error)) {
        return failedRun(error);
    }
    RunReport report;
    if (!line.silent) {
        report.output.append(QStringLiteral("Preset %1/%2 is deleted.").arg(line.request.queue, line.deletePreset));
    }
    return report;
}

} // namespace tapeprint
