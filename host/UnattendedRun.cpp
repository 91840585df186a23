// SPDX-License-Identifier: Apache-2.0
// The run without a window, in the order of the dialog: open, show the panels, save, ask their last word, print.
#include "host/UnattendedRun.h"

#include "host/DialogModel.h"
#include "host/Printing.h"

#include <pdekit/Alert.h>
#include <pdekit/Numbers.h>

namespace tapeprint
{

namespace
{

/// Alerts of the panels as lines, for as long as this object lives.
class AlertLines
{
public:
    AlertLines()
    {
        pdekit::setAlertHandler([this](const pdekit::AlertRequest &alert) { mLines.append(alert.text.simplified()); });
    }
    ~AlertLines() { pdekit::setAlertHandler({}); }
    AlertLines(const AlertLines &) = delete;
    AlertLines &operator=(const AlertLines &) = delete;

    const QStringList &lines() const { return mLines; }

private:
    QStringList mLines;
};

RunReport failure(const QString &sentence)
{
    return {{}, {sentence}, 1};
}

/// Whether two values say the same: the same text, or numbers such as 62 and 62.0.
bool sameValue(const QString &left, const QString &right)
{
    bool leftIsNumber = false;
    bool rightIsNumber = false;
    const double leftNumber = left.toDouble(&leftIsNumber);
    const double rightNumber = right.toDouble(&rightIsNumber);
    return left.compare(right, Qt::CaseInsensitive) == 0 ||
           (leftIsNumber && rightIsNumber && leftNumber >= rightNumber && leftNumber <= rightNumber);
}

/// A sentence for each option of the command line that the job carries with another value.
QStringList replacedOptions(const JobOptions &asked, const JobOptions &job)
{
    QStringList sentences;
    for (const auto &[name, value] : asked.entries()) {
        for (const auto &[jobName, jobValue] : job.entries()) {
            if (jobName.compare(name, Qt::CaseInsensitive) == 0 && !sameValue(value, jobValue)) {
                sentences.append(QStringLiteral("%1=%2 is not what the printer offers: the job carries %3=%4.")
                                     .arg(name, value, jobName, jobValue));
            }
        }
    }
    return sentences;
}

QStringList summaryLines(const DialogModel &model)
{
    QStringList lines;
    for (const PanelSummary &panel : model.summary()) {
        for (const auto &[title, value] : panel.lines) {
            lines.append(title + QLatin1String(": ") + value);
        }
    }
    return lines;
}

/// Shows the panels and lets them hand over their values. \return null, or the sentence that says why there is no job.
QString settleJob(DialogModel &model, const AlertLines &alerts)
{
    QString reason;
    model.showAllPanels();
    if (!model.saveValues(&reason)) {
        return reason;
    }
    if (!model.shouldPrint(&reason)) {
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
    std::optional<DocumentSpool> documents;
    if (!line.onlyShows()) {
        documents = DocumentSpool::collect(line.files, &error);
        if (!documents) {
            return failure(error);
        }
    }
    std::optional<Destination> destination = openDestination(line, &error);
    if (!destination) {
        return failure(error);
    }

    const AlertLines alerts;
    DialogModel model(bundleSearchPath());
    model.open(std::move(*destination), line.options);
    const QString refusal = settleJob(model, alerts);
    if (!refusal.isNull()) {
        return failure(refusal);
    }

    RunReport report;
    if (line.showOptions) {
        report.output += model.job().lines();
    }
    if (line.summary) {
        report.output += summaryLines(model);
    }
    if (!line.onlyShows()) {
        const std::optional<PrintedJob> printed = printJob(model, line, *documents, &error);
        if (!printed) {
            return failure(error);
        }
        if (!line.silent) {
            report.output.append(printed->sentence());
        }
    }
    report.messages = model.notices() + alerts.lines() + replacedOptions(line.options, model.job());
    model.windowWillClose(!line.onlyShows());
    return report;
}

} // namespace tapeprint
