// SPDX-License-Identifier: Apache-2.0
// A run as JSON. What there is not has no name in it.
#include "tapeprint/JsonReport.h"

#include <QJsonDocument>
#include <QRegularExpression>

namespace tapeprint
{

namespace
{

/// A number where a reader of the number has the whole text again, up to noughts at the end: a billing code of 0042 or
/// a choice named 1E3 is none.
QJsonValue valueOf(const QString &text)
{
    constexpr int mostDigits = 15; // of a double
    static const QRegularExpression plain(QStringLiteral("\\A-?(0|[1-9][0-9]*)(\\.[0-9]+)?\\z"));
    const bool isNumber = text.size() <= mostDigits && plain.match(text).hasMatch();
    return isNumber ? QJsonValue(text.toDouble()) : QJsonValue(text);
}

void putText(QJsonObject *object, const char *name, const QString &text)
{
    if (!text.isEmpty()) {
        object->insert(QLatin1String(name), text);
    }
}

} // namespace

QJsonObject jsonPrinter(const job::Destination &destination)
{
    QJsonObject printer;
    if (destination.queue) {
        putText(&printer, "queue", destination.queue->name);
        putText(&printer, "instance", destination.queue->instance);
    }
    putText(&printer, "ppd", destination.ppdPath);
    putText(&printer, "output", destination.outputPath);
    return printer;
}

QJsonObject jsonOptions(const job::JobOptions &options)
{
    QJsonObject object;
    for (const auto &[name, value] : options.entries()) {
        object.insert(name, valueOf(value));
    }
    return object;
}

QJsonArray jsonSummary(const dialog::Panels &panels)
{
    QJsonArray summary;
    for (const dialog::PanelSummary &panel : panels.summary()) {
        QJsonArray lines;
        for (const auto &[title, value] : panel.lines) {
            lines.append(QJsonObject{{QStringLiteral("title"), title}, {QStringLiteral("value"), value}});
        }
        summary.append(QJsonObject{{QStringLiteral("panel"), panel.panelName}, {QStringLiteral("lines"), lines}});
    }
    return summary;
}

QJsonObject jsonJob(const job::PrintedJob &printed)
{
    if (printed.queue.isNull()) {
        return {{QStringLiteral("output"), printed.output.path},
                {QStringLiteral("bytes"), static_cast<double>(printed.output.bytes)}};
    }
    return {{QStringLiteral("queue"), printed.queue},
            {QStringLiteral("id"), printed.job.id},
            {QStringLiteral("state"), printed.job.state}};
}

QByteArray jsonText(const RunReport &run)
{
    QJsonObject object = run.data;
    QStringList warnings = run.messages;
    object.insert(QStringLiteral("status"), run.status);
    object.insert(QStringLiteral("kind"), run.problem ? kindName(run.problem->kind) : QStringLiteral("done"));
    if (run.problem) {
        putText(&object, "message", run.problem->sentence);
        warnings.removeAll(run.problem->sentence);
    }
    object.insert(QStringLiteral("warnings"), QJsonArray::fromStringList(warnings));
    return QJsonDocument(object).toJson(QJsonDocument::Indented);
}

} // namespace tapeprint
