// SPDX-License-Identifier: Apache-2.0
// The program has applied the paper and nothing else; whether it did, its pages tell.
#include "portal/SilentPrint.h"

#include "job/LaidOutJob.h"
#include "job/PageLayout.h"
#include "job/Printing.h"
#include "job/UsualOptions.h"
#include "portal/Log.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace tapeprint::portal
{

namespace
{

/// Programs round the paper to whole points or to hundredths of a millimetre.
constexpr double samePagePt = 1.0;
/// A job that has waited for so long in its queue goes on without being watched.
constexpr int followMs = 60000;

bool isSameSize(const QSizeF &left, const QSizeF &right)
{
    return std::abs(left.width() - right.width()) < samePagePt && std::abs(left.height() - right.height()) < samePagePt;
}

/// Whether every page is the paper itself, standing or lying.
bool isLaidOutOn(const QSizeF &paperPt, const std::vector<job::PageSizes> &documents)
{
    return std::all_of(documents.begin(), documents.end(), [&paperPt](const job::PageSizes &pages) {
        return std::all_of(pages.begin(), pages.end(), [&paperPt](const QSizeF &page) {
            return isSameSize(page, paperPt) || isSameSize(page.transposed(), paperPt);
        });
    });
}

/// The job that prints such pages as they are. Made to fit into the margins, or moved into their middle, the program's
/// own margins would count twice.
job::SettledJob asLaidOut(const job::SettledJob &job)
{
    job::SettledJob whole = job;
    whole.options.set(job::OptionName::printScaling, QStringLiteral("none"));
    whole.page.unprintablePt = {};
    whole.page.freeEndsPt = 0.0;
    return whole;
}

} // namespace

std::optional<job::PrintedJob> printChosen(const job::SettledJob &chosen, const QString &title, const QString &document,
                                           const job::PrintWatch &watch, job::Problem *error)
{
    job::SettledJob job = chosen;
    job.isRoomTold = false; // there were no pages to tell of
    const job::LayoutChoices layout = job::layoutChoicesOf(job.options);
    // Margins that leave nothing of the tape are refused by the job.
    if (!job.page.isTape || layout.scaling != job::Scaling::Auto || layout.pagesPerSheet > 1 ||
        job.page.layoutRect().isEmpty()) {
        return job::printJob(job, title, {document}, watch, error);
    }
    const std::optional<job::PdfDocuments> pages = job::collectPdfs(job, {document}, watch.stop, error);
    if (!pages) {
        return std::nullopt;
    }
    const bool isLaidOut = isLaidOutOn(job.page.sizePt, pages->sizes);
    return job::printJob(isLaidOut ? asLaidOut(job) : job, title, {document}, watch, error);
}

SilentPrint::SilentPrint(ChosenSettings settings, QString document, QObject *parent)
    : QObject(parent), mSettings(std::move(settings)), mDocument(std::move(document))
{
    mLeaveTimer.setSingleShot(true);
    mLeaveTimer.setInterval(followMs);
    connect(&mRun, &dialog::PrintRun::sent, this, [this] {
        logWhatIsNotKept(mRun.printed());
        mLeaveTimer.start();
        Q_EMIT sent();
    });
    connect(&mRun, &dialog::PrintRun::failed, this, &SilentPrint::failed);
    connect(&mRun, &dialog::PrintRun::ended, this, &SilentPrint::ended);
    connect(&mLeaveTimer, &QTimer::timeout, this, [this] {
        mRun.leave();
        Q_EMIT ended();
    });
}

void SilentPrint::start()
{
    mRun.start(
        [settings = mSettings, document = mDocument](const job::PrintWatch &watch, job::Problem *problem) {
            std::optional<job::PrintedJob> printed =
                printChosen(settings.job, settings.jobName, document, watch, problem);
            if (printed && settings.keep) {
                printed->isKept = settings.keep();
            }
            return printed;
        },
        mSettings.job.page.isTape);
}

void SilentPrint::cancel()
{
    mRun.cancel();
}

} // namespace tapeprint::portal
