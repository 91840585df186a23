// SPDX-License-Identifier: Apache-2.0
// What CUPS's filters make of page-ranges, page-set and outputorder was measured on pdftopdf.
#include "job/PreparedJob.h"

#include "job/ChosenPages.h"
#include "job/Conversion.h"
#include "job/DocumentCheck.h"
#include "job/LaidOutDocument.h"
#include "job/LaidOutJob.h"
#include "job/PageLayout.h"
#include "job/ServerLimits.h"
#include "job/TextEncoding.h"
#include "job/UsualOptions.h"

#include <algorithm>
#include <utility>

namespace tapeprint::job
{

namespace
{

bool selectsOtherThanFilters(const JobOptions &options, qsizetype documents)
{
    const bool hasRanges = !options.value(OptionName::pageRanges).isEmpty();
    const bool hasSheets = pagesPerPaper(layoutChoicesOf(options).pagesPerSheet) > 1;
    const bool hasSet = pageSetOf(options) != PageSet::All;
    return (hasRanges && hasSheets) || (documents > 1 && (hasRanges || (hasSet && !hasSheets)));
}

/// Whether the filters would find nothing to print among the pages of paper that they are told to print: they make an
/// empty document of it, and the print server calls the job done. Where pages cannot be counted, they are told.
bool selectsNothing(const SettledJob &job, const QStringList &files, const std::atomic<bool> &stop)
{
    if (job.options.value(OptionName::pageRanges).isEmpty() && pageSetOf(job.options) != PageSet::Even) {
        return false;
    }
    Problem unknown;
    const PdfDocuments documents = collectForPaper(job, files, stop, &unknown);
    if (!unknown.isNull() || stop) {
        return false;
    }
    std::vector<PageSizes> sizes;
    for (const QString &pdf : documents.pdfs) {
        sizes.push_back(pageSizesOf(pdf, &unknown).value_or(PageSizes()));
    }
    return unknown.isNull() && planLabels(sizes, job.page, job.options, {}, documents.laidOn).labels.empty();
}

/// A file of the job's own, which goes with it. \param create one way to make it or the other. \return its path; null,
/// and a sentence in *error, when there is no room.
QString newFile(PreparedJob &job, const QString &name, Problem *error,
                decltype(&PrivateFile::create) create = PrivateFile::create)
{
    QString reason;
    std::unique_ptr<PrivateFile> file = create(name, &reason);
    if (!file) {
        *error = noRoomForTemporaryFiles(reason);
        return {};
    }
    job.made.push_back(std::move(file));
    return job.made.back()->path();
}

/// Puts the chosen pages of each document in its place; documents without one go.
bool choosePages(PreparedJob &paper, const SettledJob &job, const std::atomic<bool> &stop, Problem *error)
{
    const std::optional<PdfDocuments> documents = collectPdfs(job, paper.files, stop, error);
    if (!documents) {
        return false;
    }
    std::vector<std::vector<ChosenPage>> chosen(documents->sizes.size());
    for (const ChosenPage &page : chosenPages(documents->sizes, job.options)) {
        chosen[page.document].push_back(page);
    }
    paper.files.clear();
    for (const std::vector<ChosenPage> &pages : chosen) {
        if (pages.empty()) {
            continue;
        }
        const QString file = newFile(paper, QStringLiteral("pages.pdf"), error);
        if (file.isNull() || !writeChosenPages(pages, documents->pdfs, file, stop, error)) {
            return false;
        }
        paper.files.append(file);
    }
    if (paper.files.isEmpty()) {
        *error = noPageIsChosen();
        return false;
    }
    paper.options.remove(OptionName::pageRanges);
    if (pagesPerPaper(layoutChoicesOf(job.options).pagesPerSheet) <= 1) {
        paper.options.remove(OptionName::pageSet);
    }
    return true;
}

/// Puts texts that the filters would not read to their end in a form that they do. A queue without a description may
/// want its bytes as they are.
bool writeTexts(PreparedJob &paper, const SettledJob &job, Problem *error)
{
    const bool isRaw = job.ppdPath.isEmpty() && job.queuePpd.isEmpty();
    if (isRaw || job.options.contains(QStringLiteral("raw")) ||
        job.options.contains(QStringLiteral("document-format"))) {
        return true;
    }
    for (QString &file : paper.files) {
        if (documentKindOf(file) != DocumentKind::Text || isFilterText(file)) {
            continue;
        }
        const QString text = newFile(paper, QStringLiteral("text.txt"), error);
        QString reason;
        if (text.isNull()) {
            return false;
        }
        if (!writeFilterText(file, text, &reason)) {
            *error = noRoomForTemporaryFiles(reason);
            return false;
        }
        file = text;
    }
    return true;
}

bool layOut(PreparedJob &tape, const SettledJob &job, const QStringList &files, const std::atomic<bool> &stop,
            Problem *error)
{
    // Filters look at the name; a queue's document goes by the job's title.
    const QString labels = newFile(tape, QStringLiteral("labels.pdf"), error,
                                   job.isFile() ? PrivateFile::create : PrivateFile::createUnnamed);
    if (labels.isNull()) {
        return false;
    }
    tape.files = QStringList{labels};
    const std::optional<PdfDocuments> documents = collectPdfs(job, files, stop, error);
    return documents && layOutJob(job, *documents, labels, stop, error);
}

} // namespace

std::optional<PreparedJob> prepareJob(const SettledJob &job, const QStringList &files, const std::atomic<bool> &stop,
                                      Problem *error)
{
    PreparedJob prepared{files, job.carried(), {}};
    const bool goesToServer = !job.isFile() && job.pdfPath.isEmpty();
    if (const std::optional<QString> refusal =
            goesToServer ? beyondLimits(job.queue->limits, prepared.options) : std::nullopt) {
        *error = {Problem::RefusedValue, *refusal};
        return std::nullopt;
    }
    if (job.page.isTape) {
        return layOut(prepared, job, files, stop, error) ? std::optional(std::move(prepared)) : std::nullopt;
    }
    if (!areWhole(files, error)) {
        return std::nullopt;
    }
    if (selectsNothing(job, files, stop)) {
        *error = noPageIsChosen();
        return std::nullopt;
    }
    if (selectsOtherThanFilters(job.options, files.size()) && !choosePages(prepared, job, stop, error)) {
        return std::nullopt;
    }
    if (!writeTexts(prepared, job, error)) {
        return std::nullopt;
    }
    if (isReversed(job.options)) {
        std::reverse(prepared.files.begin(), prepared.files.end()); // the filters reverse each document
    }
    return prepared;
}

} // namespace tapeprint::job
