// SPDX-License-Identifier: Apache-2.0
// The run without a window, in the order of the dialog: open, show the panels, save, ask their last word, print.
#include "tapeprint/UnattendedRun.h"

#include "dialog/GatheredAlerts.h"
#include "dialog/Panels.h"
#include "job/DocumentSpool.h"
#include "job/LaidOutJob.h"
#include "job/PageLayout.h"
#include "job/Printing.h"
#include "tapeprint/JobWait.h"
#include "tapeprint/OutputPath.h"

#include <QScopeGuard>

#include <atomic>

#include <pdekit/Alert.h>

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

/// Shows the panels and lets them hand over their values. \param error takes why there is no job.
bool settleJob(dialog::Panels &panels, const dialog::GatheredAlerts &alerts, job::Problem *error)
{
    if (!panels.settle(error)) {
        return false;
    }
    if (QString panel; !panels.shouldPrint(&panel)) {
        const QString said = alerts.lines().join(u' ');
        *error = {job::Problem::RefusedValue,
                  QStringLiteral("Nothing was printed, because the panel \"%1\" does not accept the values given. %2")
                      .arg(panel, said.isEmpty() ? QStringLiteral("Change them with -o.") : said)};
        return false;
    }
    return true;
}

const std::atomic<bool> neverStopped{false};

/// Makes the tape as long as the documents need. \param messages takes what the person should know of it.
bool fitLength(job::Job &job, const QStringList &files, QStringList &messages, job::Problem *error)
{
    if (!job.page().isTape) {
        *error = {job::Problem::BadUsage,
                  QStringLiteral("--fit-length is for tape, and this printer prints on paper: leave it out.")};
        return false;
    }
    if (job.laidDown().contains(job.tape().lengthOption)) {
        *error = {job::Problem::BadUsage,
                  QStringLiteral("--fit-length and -o %1 both say how long the tape is: give one of them.")
                      .arg(job.tape().lengthOption)};
        return false;
    }
    if (job.page().hasFixedLength) {
        messages.append(
            QStringLiteral("The length of %1 is fixed: --fit-length does not change it.").arg(job.page().pageSize));
        return true;
    }
    const job::SettledJob settled = job::settle(job);
    const std::optional<job::PdfDocuments> documents = job::collectPdfs(settled, files, neverStopped, error);
    if (!documents) {
        return false;
    }
    const std::optional<job::AutomaticLength> length = job::automaticLength(settled, *documents);
    if (!length) {
        messages.append(QStringLiteral("Nothing is drawn on the document: the tape keeps its length."));
        return true;
    }
    if (length->isHeld) {
        messages.append(QStringLiteral("The document needs more tape than the printer takes: it is made smaller."));
    }
    job.changePaperLength(length->lengthMm);
    return true;
}

} // namespace

RunReport runUnattended(const CommandLine &line)
{
    job::Problem error;
    job::JobRequest request = line.request;
    const bool fitsLength = job::layoutChoicesOf(request.options).fitLength; // by --fit-length or by -o
    std::optional<job::DocumentSpool> documents;
    if (!line.onlyShows() || fitsLength) {
        documents = job::DocumentSpool::collect(line.files, &error);
        if (!documents) {
            return failedRun(error);
        }
        request.documents = documents->sources();
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
    // However it ends, the panels hear of it.
    bool printed = false;
    const auto close = qScopeGuard([&panels, &printed] { panels.windowWillClose(printed); });

    RunReport report;
    if (fitsLength && !fitLength(job, documents->files(), report.messages, &error)) {
        return failedRun(error);
    }
    if (!settleJob(panels, alerts, &error)) {
        return failedRun(error);
    }
    if (line.showOptions) {
        report.output += job::settle(job).carried().lines();
    }
    if (line.summary) {
        report.output += summaryLines(panels);
    }
    if (!line.onlyShows()) {
        std::optional<job::PrintedJob> result;
        if (job::areUnchanged(documents->sources(), &error)) {
            result = job::printJob(job::settle(job), documents->title(request.title), documents->files(), neverStopped,
                                   &error);
        }
        if (!result) {
            return failedRun(error);
        }
        printed = true;
        if (line.wait && !waitForJob(*result, job.page().isTape, &error)) {
            return failedRun(error);
        }
        if (!line.silent) {
            report.output.append(result->sentence());
        }
    }
    const QString notice = job::lengthNotice(job.page());
    report.messages +=
        job.notices() + panels.notices() + alerts.lines() + (notice.isNull() ? QStringList() : QStringList{notice});
    return report;
}

} // namespace tapeprint
