// SPDX-License-Identifier: Apache-2.0
// The run without a window, in the order of the dialog: open, show the panels, save, ask their last word, print.
#include "tapeprint/UnattendedRun.h"

#include "dialog/GatheredAlerts.h"
#include "dialog/Panels.h"
#include "job/Conflicts.h"
#include "job/CustomValues.h"
#include "job/DocumentSpool.h"
#include "job/LaidDownOptions.h"
#include "job/LaidOutJob.h"
#include "job/PageLayout.h"
#include "job/PresetOptions.h"
#include "job/Presets.h"
#include "job/Printing.h"
#include "job/QueueCheck.h"
#include "job/RefusedValues.h"
#include "tapeprint/JobWait.h"
#include "tapeprint/JsonReport.h"
#include "tapeprint/OutputPath.h"

#include <QJsonArray>

#include <atomic>

#include <pdekit/Alert.h>
#include <pdekit/BundleLoading.h>

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
                  QStringLiteral("Nothing was printed: %1 does not accept the values given. %2")
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

/// A sentence for each value that the command line asks for and the job does not carry as it was asked.
QStringList notCarriedAsAsked(const job::Job &job, const dialog::Panels &panels, const job::JobOptions &options)
{
    const job::JobOptions asked = job::withNamedSize(options, job.ppd());
    // A panel takes numbers that the PPD does not list; and what it has replaced is said as that.
    const auto isPanels = [&job, &panels](const QString &key, const QString &value) {
        const bool owns = panels.announced(key) || key == job.tape().lengthOption || key == job.tape().marginOption;
        return owns && (job::isNumber(value) || job.options().value(key).compare(value, Qt::CaseInsensitive) != 0);
    };
    return job::refusedValues(job.ppd(), asked, isPanels) + panels.replacements(asked);
}

/// The run, step by step. A step that fails leaves a problem, and the run ends with it.
class UnattendedRun
{
public:
    explicit UnattendedRun(const CommandLine &line) : mLine(line), mPanels(mJob, pdekit::bundleSearchPath()) {}

    RunReport run()
    {
        const bool isDone = open() && settle() && settleConflicts() && show() &&
                            (mLine.savePreset.isEmpty() || save()) && (!mLine.check || check()) &&
                            (!mLine.submits() || print());
        if (mIsOpen) { // however it ends, the panels hear of it
            addNotices();
            mPanels.windowWillClose(mIsPrinted);
        }
        if (!isDone) {
            mReport.problem = mProblem;
            mReport.status = exitStatus(mProblem.kind);
            mReport.output.clear();
            mReport.messages = {mProblem.sentence};
        } else if (!mRefusals.isEmpty() && !mLine.adjusts) {
            // Shown all the same: one sees what would become of the values.
            mReport.problem = refusal();
            mReport.status = exitStatus(job::Problem::RefusedValue);
        }
        return mReport;
    }

private:
    bool open()
    {
        job::JobRequest request = mLine.request;
        const bool fitsLength = job::layoutChoicesOf(request.options).fitLength && // by --fit-length or by -o
                                mLine.savePreset.isEmpty();                        // which keeps the wish
        if (mLine.readsDocuments() || fitsLength) {
            mDocuments = job::DocumentSpool::collect(mLine.files, &mProblem);
            if (!mDocuments) {
                return false;
            }
            request.documents = mDocuments->sources();
            nameOutput(request, mDocuments->title(QString()));
        }
        std::optional<job::Destination> destination = job::openDestination(request, &mProblem);
        if (!destination) {
            return false;
        }
        mReport.data.insert(QStringLiteral("printer"), jsonPrinter(*destination));
        mPanels.open(std::move(*destination), request.options);
        mIsOpen = true;
        if (const QStringList dropped = job::bracedForNobody(mJob.ppd(), mJob.options()); !dropped.isEmpty()) {
            mProblem = {job::Problem::BadUsage, dropped.join(u' ')};
            return false;
        }
        return !fitsLength || fitLength(mJob, mDocuments->files(), mReport.messages, &mProblem);
    }

    bool settle()
    {
        if (!settleJob(mPanels, mAlerts, &mProblem)) {
            return false;
        }
        mRefusals = notCarriedAsAsked(mJob, mPanels, mLine.request.options);
        if (!mRefusals.isEmpty() && !mLine.adjusts && !mLine.onlyShows()) {
            mProblem = refusal();
            return false;
        }
        return true;
    }

    /// Names the options that do not go together, and resolves them when that is asked for.
    bool settleConflicts()
    {
        QStringList sentences = job::sentencesOf(job::conflictsOf(mJob.ppd()));
        if (sentences.isEmpty()) {
            return true;
        }
        mReport.data.insert(QStringLiteral("conflicts"), QJsonArray::fromStringList(sentences));
        const std::optional<job::Resolution> resolution =
            mLine.resolve ? job::resolutionOf(mJob.ppd(), job::latestFirst(mJob.laidDown())) : std::nullopt;
        if (resolution) {
            mPanels.apply(*resolution);
            if (!mPanels.saveValues(&mProblem)) {
                return false;
            }
            mReport.messages += sentences + QStringList{resolution->sentence()};
            sentences = job::sentencesOf(job::conflictsOf(mJob.ppd())); // a panel may hold on to its own value
        } else if (mLine.onlyShows()) {
            mReport.messages += sentences;
            return true;
        }
        if (sentences.isEmpty()) {
            return true;
        }
        sentences.append(mLine.resolve ? QStringLiteral("There is no way out of it: choose others with -o.")
                                       : QStringLiteral("Choose others with -o, or let --resolve change them."));
        mProblem = {job::Problem::Conflict, sentences.join(u' ')};
        return false;
    }

    bool show()
    {
        const job::JobOptions carried = job::withoutSecrets(mJob.ppd(), job::settle(mJob).carried());
        if (mLine.showOptions) {
            mReport.output += carried.lines();
        }
        if (mLine.summary) {
            mReport.output += summaryLines(mPanels);
        }
        mReport.data.insert(QStringLiteral("options"), jsonOptions(carried));
        mReport.data.insert(QStringLiteral("summary"), jsonSummary(mPanels));
        return true;
    }

    /// Saves the settings as a preset. Values that are not taken as they were given are not saved without a word.
    bool save()
    {
        if (!mJob.destination().queue) {
            mProblem = {job::Problem::BadUsage,
                        QStringLiteral("--save-preset goes with a print queue: name one with -d.")};
            return false;
        }
        if (!mRefusals.isEmpty() && !mLine.adjusts) {
            mProblem = refusal();
            return false;
        }
        const QString queue = mJob.destination().queue->name;
        const job::JobOptions options = job::optionsForPreset(mJob.options(), mJob.ppd());
        if (!job::savePreset(queue, mLine.savePreset, job::withoutGone(options, mJob.ppd()), &mProblem)) {
            return false;
        }
        if (!mLine.silent) {
            mReport.output.append(QStringLiteral("Preset %1/%2 is saved.").arg(queue, mLine.savePreset));
        }
        return true;
    }

    /// Everything that printing would stumble over, as far as it can be known without doing it.
    bool check()
    {
        const job::SettledJob settled = settledForPrinting();
        if (!job::isPrintable(settled, mDocuments->files(), neverStopped, &mProblem)) {
            adviseToAdjust(settled);
            return false;
        }
        if (!settled.isFile() && !job::takesJobs(*settled.queue, &mProblem)) {
            return false;
        }
        if (!mLine.silent) {
            mReport.output.append(QStringLiteral("Everything is in order: nothing was printed."));
        }
        return true;
    }

    bool print()
    {
        if (!job::areUnchanged(mDocuments->sources(), &mProblem)) {
            return false;
        }
        const job::SettledJob settled = settledForPrinting();
        std::optional<job::PrintedJob> printed = job::printJob(settled, mDocuments->title(mLine.request.title),
                                                               mDocuments->files(), neverStopped, &mProblem);
        if (!printed) {
            adviseToAdjust(settled);
            return false;
        }
        mIsPrinted = true;
        if (mLine.wait && !waitForJob(*printed, mJob.page().isTape, &mProblem)) {
            return false;
        }
        mReport.data.insert(QStringLiteral("job"), jsonJob(*printed));
        if (!mLine.silent) {
            mReport.output.append(printed->sentence());
        }
        return true;
    }

    /// With --adjust a page that comes out too small to be read is said, and printed all the same.
    job::SettledJob settledForPrinting()
    {
        job::SettledJob settled = job::settle(mJob);
        job::Problem tooSmall;
        if (mLine.adjusts && isOnlyTooSmall(settled, &tooSmall)) {
            settled.isRoomTold = true;
            mReport.messages.append(tooSmall.sentence);
        }
        return settled;
    }

    void adviseToAdjust(const job::SettledJob &settled)
    {
        job::Problem tooSmall;
        if (mProblem.kind == job::Problem::RefusedValue && isOnlyTooSmall(settled, &tooSmall)) {
            mProblem.sentence += QStringLiteral(" Nothing was printed; --adjust prints it all the same.");
        }
    }

    bool isOnlyTooSmall(const job::SettledJob &settled, job::Problem *tooSmall) const
    {
        job::SettledJob told = settled;
        told.isRoomTold = true;
        job::Problem other;
        return settled.page.isTape && !settled.isRoomTold &&
               !job::isPrintable(settled, mDocuments->files(), neverStopped, tooSmall) &&
               tooSmall->kind == job::Problem::RefusedValue &&
               job::isPrintable(told, mDocuments->files(), neverStopped, &other);
    }

    void addNotices()
    {
        const QString notice = job::lengthNotice(mJob.page());
        mReport.messages += mRefusals + mJob.notices() + mPanels.notices() + mAlerts.lines() +
                            (notice.isNull() ? QStringList() : QStringList{notice});
        mReport.messages.removeDuplicates();
    }

    job::Problem refusal() const
    {
        return {job::Problem::RefusedValue,
                mRefusals.join(u' ') + QStringLiteral(" Nothing was printed: give other values, or repeat with "
                                                      "--adjust to print all the same.")};
    }

    const CommandLine &mLine;
    const dialog::GatheredAlerts mAlerts;
    job::Job mJob;
    dialog::Panels mPanels;
    std::optional<job::DocumentSpool> mDocuments;
    QStringList mRefusals;
    job::Problem mProblem;
    RunReport mReport;
    bool mIsOpen = false;
    bool mIsPrinted = false;
};

} // namespace

RunReport runUnattended(const CommandLine &line)
{
    return UnattendedRun(line).run();
}

} // namespace tapeprint
