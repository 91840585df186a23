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
    mHasText = std::any_of(mFiles.begin(), mFiles.end(),
                           [](const QString &file) { return job::dependsOnTextPage(job::documentKindOf(file)); });
}

bool DocumentDesk::follow(const job::SettledJob &job)
{
    const Needs needs{job.page.isTape, job.fitsLength(), mHasText ? job::textPageOf(job) : QSizeF()};
    if (mFiles.isEmpty() || mNeeds == needs) {
        return false;
    }
    mNeeds = needs;
    if (!needs.isTape) {
        // Filters lay paper out: the preview shows what it can read by itself.
        mDocuments = job::PdfDocuments{mFiles, mFiles, {}, {}, {}};
        mProblem = QString();
        Q_EMIT changed();
        return false;
    }
    mWork.start([this, job, files = mFiles](const std::atomic<bool> &stop) -> BackgroundWork::Delivery {
        job::Problem problem;
        std::optional<job::PdfDocuments> documents = job::collectPdfs(job, files, stop, &problem);
        return [this, documents = std::move(documents), problem] {
            mDocuments = documents;
            mProblem = problem.sentence;
            Q_EMIT changed();
        };
    });
    return true;
}

} // namespace tapeprint::dialog
