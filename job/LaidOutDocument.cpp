// SPDX-License-Identifier: Apache-2.0
// By a worker of the moment: its process waits for the next one.
#include "job/LaidOutDocument.h"

#include "job/PdfWorker.h"

namespace tapeprint::job
{

std::optional<PageSizes> pageSizesOf(const QString &pdf, Problem *error, const QString &shownAs)
{
    return PdfWorker().measure(pdf, shownAs, false, error);
}

bool writeLaidOut(const LabelPlan &plan, const QStringList &pdfs, RasterShift shift, const QString &path,
                  const std::atomic<bool> &stop, Problem *error)
{
    return PdfWorker().layOut(plan, pdfs, shift, path, stop, error);
}

} // namespace tapeprint::job
