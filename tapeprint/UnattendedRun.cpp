// SPDX-License-Identifier: Apache-2.0
// The run without a window, in the order of the dialog: open, show the panels, save, ask their last word, print.
#include "tapeprint/UnattendedRun.h"

#include "dialog/GatheredAlerts.h"
#include "dialog/Panels.h"
#include "job/DocumentSpool.h"
#include "job/Printing.h"
#include "tapeprint/OutputPath.h"

namespace tapeprint
{

namespace
{

QStringList summaryLines(const dialog::Panels &panels)
{
    QStringList lines;
    for (const dialog::PanelSummary &panel : panels.summary()) {
        for (const auto &[title, value] : panel.lines) {
            lines.append(title + QLatin1String(": ") + value);
        }
    }
    return lines;
}

/// Shows the panels and lets them hand over their values. \return null, or the sentence that says why there is no job.
QString settleJob(dialog::Panels &panels, const dialog::GatheredAlerts &alerts)
{
    QString reason;
    if (!panels.settle(&reason)) {
        return reason;
    }
    if (!panels.shouldPrint(&reason)) {
        const QString said = alerts.lines().join(u' ');
        return QStringLiteral("Nothing was printed, because the panel \"%1\" does not accept the values given. %2")
            .arg(reason, said.isEmpty() ? QStringLiteral("Change them with -o.") : said);
    }
    return {};
}

} // namespace

RunReport runUnattended(const CommandLine &line)
{
    QString error;
    job::JobRequest request = line.request;
    std::optional<job::DocumentSpool> documents;
    if (!line.onlyShows()) {
        documents = job::DocumentSpool::collect(line.files, &error);
        if (!documents) {
            return failedRun(error);
        }
        nameOutput(request, documents->title(QString()));
    }
    std::optional<job::Destination> destination = job::openDestination(request, &error);
    if (!destination) {
        return failedRun(error);
    }

    const dialog::GatheredAlerts alerts;
    job::Job job;
    dialog::Panels panels(job, dialog::bundleSearchPath());
    panels.open(std::move(*destination), request.options);
    const QString refusal = settleJob(panels, alerts);
    if (!refusal.isNull()) {
        panels.windowWillClose(false);
        return failedRun(refusal);
    }

    RunReport report;
    if (line.showOptions) {
        report.output += job.options().lines();
    }
    if (line.summary) {
        report.output += summaryLines(panels);
    }
    if (!line.onlyShows()) {
        const std::optional<job::PrintedJob> printed =
            job::printJob(job, documents->title(request.title), documents->files(), &error);
        if (!printed) {
            panels.windowWillClose(false);
            return failedRun(error);
        }
        if (!line.silent) {
            report.output.append(printed->sentence());
        }
    }
    report.messages = job.notices() + panels.notices() + alerts.lines();
    panels.windowWillClose(!line.onlyShows());
    return report;
}

} // namespace tapeprint
