// SPDX-License-Identifier: Apache-2.0
// A job for tape on its way to the printer: its documents as PDFs, the plan of its labels, and the one document that
// they become.
#pragma once

#include "job/Conversion.h"
#include "job/LabelPlan.h"
#include "job/PrivateFile.h"
#include "job/Problem.h"
#include "job/SettledJob.h"

#include <QString>
#include <QStringList>

#include <atomic>
#include <memory>
#include <optional>
#include <vector>

namespace tapeprint::job
{

/// The documents of a job as PDFs. Those that had to be converted go with this object.
struct PdfDocuments {
    QStringList files;                              ///< as they were named
    QStringList pdfs;                               ///< one each, in their order; a document that is a PDF is itself
    std::vector<PageSizes> sizes;                   ///< of each one's pages
    std::vector<DrawnRects> drawn;                  ///< what is drawn on each one's pages; empty until it was asked for
    std::vector<std::shared_ptr<PrivateFile>> made; ///< those of the PDFs that were made here
    LaidOnSheets laidOn = {};                       ///< which of them the filters have laid on sheets already
};

/// Makes PDFs of a job's documents, which are only read. With fit-length it also looks at what is drawn on them.
/// \param error takes a sentence about the first document that cannot be used.
std::optional<PdfDocuments> collectPdfs(const SettledJob &job, const QStringList &files, const std::atomic<bool> &stop,
                                        Problem *error);

/// The sheet for documents of a job for paper that are no PDFs.
PaperSheet paperSheetOf(const SettledJob &job);

/// Makes PDFs of the documents of a job for paper, for being shown and counted. One that cannot be used is left out.
/// \param error takes a sentence about the first of those.
PdfDocuments collectForPaper(const SettledJob &job, const QStringList &files, const std::atomic<bool> &stop,
                             Problem *error);

/// Looks at what is drawn on the pages of documents. \return false when it was stopped or a document cannot be read.
bool findDrawnRects(PdfDocuments &documents, const std::atomic<bool> &stop, Problem *error);

/// The page that text is set on for a job: what is laid out on, lying, so that lines run along the tape. With
/// fit-length it is as long as the tape may become, so that no line is broken for want of tape. Paper stands.
QSizeF textPageOf(const SettledJob &job);

/// The length that the job's documents need, for fit-length; nothing when nothing is drawn on their selected pages.
std::optional<AutomaticLength> automaticLength(const SettledJob &job, const PdfDocuments &documents);

/// The problem of a job whose options select no page.
Problem noPageIsChosen();

/// A sentence about a page whose length is not the one that was chosen; null when there is nothing to say.
QString lengthNotice(const TapePage &page);

/// A sentence about margins that leave nothing of the tape, or so little of it that a page cannot be read; null when
/// there is nothing to say.
QString roomProblem(const LabelPlan &plan);

/// Lays a job's documents out on its page. \param path the PDF to write. \return the plan that was followed.
std::optional<LabelPlan> layOutJob(const SettledJob &job, const PdfDocuments &documents, const QString &path,
                                   const std::atomic<bool> &stop, Problem *error);

} // namespace tapeprint::job
