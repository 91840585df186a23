// SPDX-License-Identifier: Apache-2.0
// PDFs are made anew only when what they depend on has changed.
#include "dialog/DocumentDesk.h"

#include "job/Conversion.h"

#include <algorithm>
#include <utility>

namespace tapeprint::dialog
{

DocumentDesk::DocumentDesk(QStringList files, QObject *parent) : QObject(parent), mFiles(std::move(files))
{
    for (const QString &file : mFiles) {
        const job::DocumentKind kind = job::documentKindOf(file);
        mHasText = mHasText || job::dependsOnTextPage(kind);
        mArePdfs = mArePdfs && kind == job::DocumentKind::Pdf;
    }
}

bool DocumentDesk::follow(const job::SettledJob &job)
{
    const bool isTape = job.page.isTape;
    Needs needs{isTape, isTape && job.fitsLength(), isTape && mHasText ? job::textPageOf(job) : QSizeF(), {}};
    if (!isTape && !mArePdfs && !job.page.isEmpty()) {
        needs.sheet = job::paperSheetOf(job);
    }
    if (mFiles.isEmpty() || mNeeds == needs) {
        return false;
    }
    mNeeds = needs;
    if (!needs.isTape && !needs.sheet) {
        // Filters lay paper out: the preview shows what it can read by itself.
        mDocuments = job::PdfDocuments{mFiles, mFiles, {}, {}, {}};
        mProblem = QString();
        Q_EMIT changed();
        return false;
    }
    mWork.start([this, job, files = mFiles](const std::atomic<bool> &stop) -> BackgroundWork::Delivery {
        job::Problem problem;
        std::optional<job::PdfDocuments> documents = job.page.isTape ? job::collectPdfs(job, files, stop, &problem)
                                                                     : job::collectForPaper(job, files, stop, &problem);
        return [this, documents = std::move(documents), problem] {
            mDocuments = documents;
            mProblem = problem.sentence;
            Q_EMIT changed();
        };
    });
    return true;
}

} // namespace tapeprint::dialog
