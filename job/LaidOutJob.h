// SPDX-License-Identifier: Apache-2.0
// A job for tape on its way to the printer: its documents as PDFs, the plan of its labels, and the one document that
// they become.
#pragma once

#include "job/Job.h"
#include "job/LabelPlan.h"

#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include <atomic>
#include <optional>

namespace tapeprint::job
{

/// The documents of a job as PDFs. Those that had to be converted lie in a private folder that goes with this object.
struct PdfDocuments {
    QStringList files;             ///< as they were named
    QStringList pdfs;              ///< one each, in their order; a document that is a PDF is itself
    std::vector<PageSizes> sizes;  ///< of each one's pages
    std::vector<DrawnRects> drawn; ///< what is drawn on each one's pages; empty until it was asked for
    std::shared_ptr<QTemporaryDir> folder;
};

/// Makes PDFs of documents, which are only read. \param textPagePt the page that text is set on, as it is read.
/// \param error takes a sentence about the first document that cannot be used.
std::optional<PdfDocuments> collectPdfs(const QStringList &files, const QSizeF &textPagePt,
                                        const std::atomic<bool> &stop, QString *error);

/// The page that text is set on for a job's page: what is laid out on, lying, so that lines run along the tape.
QSizeF textPageOf(const TapePage &page);

/// A sentence about a page whose length is not the one that was chosen; null when there is nothing to say.
QString lengthNotice(const TapePage &page);

/// Lays a job's documents out on its page. \param path the PDF to write. \return the plan that was followed.
std::optional<LabelPlan> layOutJob(const Job &job, const PdfDocuments &documents, const QString &path,
                                   const std::atomic<bool> &stop, QString *error);

} // namespace tapeprint::job
