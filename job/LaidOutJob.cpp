// SPDX-License-Identifier: Apache-2.0
// The steps from documents to labels, in their order.
#include "job/LaidOutJob.h"

#include "job/LaidOutDocument.h"
#include "job/PageDrawer.h"
#include "job/PdfPages.h"
#include "job/PdfWorker.h"
#include "job/PlainText.h"
#include "job/Texts.h"

#include <algorithm>

#include <pdekit/Numbers.h>

namespace tapeprint::job
{

namespace
{

/// A sentence about the first page of a plan that has no size; null when each has one.
QString pageWithoutSize(const LabelPlan &plan, const PdfDocuments &documents)
{
    for (const Label &label : plan.labels) {
        for (const PlacedPage &placed : label) {
            if (documents.sizes.at(placed.document).at(static_cast<std::size_t>(placed.page)).isEmpty()) {
                return Texts::tr("Page %1 of the document %2 has no size: leave it out or make it anew.")
                    .arg(QString::number(placed.page + 1),
                         harmless(documents.files.value(static_cast<qsizetype>(placed.document))));
            }
        }
    }
    return {};
}

/// The sizes of a document's pages. In a window the process that will draw them has been started already, and tells.
std::optional<PageSizes> sizesOf(const QString &pdf, const QString &file, PdfWorker &worker,
                                 const std::atomic<bool> &stop, Problem *error)
{
    const std::optional<std::vector<PageBox>> boxes = PageDrawer::measureAhead(pdf, stop);
    if (!boxes) {
        return worker.measure(pdf, file, stop, error);
    }
    PageSizes sizes(boxes->size());
    std::transform(boxes->begin(), boxes->end(), sizes.begin(), [](const PageBox &box) { return box.sizePt(); });
    return sizes;
}

QString lengthText(double points)
{
    return pdekit::fixedDecimals(mmFromPoints(points), 1);
}

} // namespace

std::optional<PdfDocuments> collectPdfs(const SettledJob &job, const QStringList &files, const std::atomic<bool> &stop,
                                        Problem *error)
{
    const QSizeF textPagePt = textPageOf(job);
    PdfWorker worker;
    PdfDocuments documents;
    documents.files = files;
    for (const QString &file : files) {
        QString pdf = file;
        if (documentKindOf(file) != DocumentKind::Pdf) {
            QString reason;
            documents.made.push_back(PrivateFile::create(QStringLiteral("document.pdf"), &reason));
            if (!documents.made.back()) {
                *error = noRoomForTemporaryFiles(reason);
                return std::nullopt;
            }
            pdf = documents.made.back()->path();
            if (!convertToPdf(file, textPagePt, pdf, stop, error)) {
                return std::nullopt;
            }
        }
        const std::optional<PageSizes> sizes = sizesOf(pdf, file, worker, stop, error);
        if (!sizes) {
            return std::nullopt;
        }
        documents.pdfs.append(pdf);
        documents.sizes.push_back(*sizes);
    }
    if (job.fitsLength() && !findDrawnRects(documents, stop, error)) {
        return std::nullopt;
    }
    return documents;
}

PaperSheet paperSheetOf(const SettledJob &job)
{
    PaperSheet sheet{job.page.sizePt, job.page.unprintablePt, {}};
    for (const char *name : {"orientation-requested",
                             "landscape",
                             "print-scaling",
                             "fit-to-page",
                             "fitplot",
                             "fill",
                             "crop-to-fit",
                             "scaling",
                             "natural-scaling",
                             "ppi",
                             "position",
                             "mirror",
                             "cpi",
                             "lpi",
                             "columns",
                             "prettyprint",
                             "wrap",
                             "page-left",
                             "page-right",
                             "page-top",
                             "page-bottom"}) {
        const QString option = QString::fromLatin1(name);
        const QString value = job.options.value(option);
        const bool isWord = std::all_of(value.begin(), value.end(), [](QChar letter) {
            return letter.isLetterOrNumber() || letter == u'-' || letter == u'.';
        });
        if (!value.isEmpty() && isWord) {
            sheet.options.append(option + u'=' + value);
        }
    }
    return sheet;
}

PdfDocuments collectForPaper(const SettledJob &job, const QStringList &files, const std::atomic<bool> &stop,
                             Problem *error)
{
    const PaperSheet sheet = paperSheetOf(job);
    PdfDocuments documents;
    for (const QString &file : files) {
        const DocumentKind kind = documentKindOf(file);
        QString pdf = file;
        if (kind != DocumentKind::Pdf) {
            QString reason;
            Problem problem;
            const std::shared_ptr<PrivateFile> made = PrivateFile::create(QStringLiteral("document.pdf"), &reason);
            if (!made) {
                problem = noRoomForTemporaryFiles(reason);
            }
            if (!made || !convertForPaper(file, sheet, made->path(), stop, &problem)) {
                if (error->isNull()) {
                    *error = problem;
                }
                continue;
            }
            pdf = made->path();
            documents.made.push_back(made);
        }
        documents.files.append(file);
        documents.pdfs.append(pdf);
        documents.laidOn.push_back(kind == DocumentKind::Picture);
    }
    return documents;
}

bool findDrawnRects(PdfDocuments &documents, const std::atomic<bool> &stop, Problem *error)
{
    documents.drawn.clear();
    for (const QString &pdf : documents.pdfs) {
        const QString shownAs = documents.files.value(documents.pdfs.indexOf(pdf));
        const std::unique_ptr<PdfPages> pages = PdfPages::open(pdf, error, shownAs);
        if (!pages) {
            return false;
        }
        DrawnRects drawn;
        for (int page = 0; page < pages->count() && !stop; ++page) {
            drawn.push_back(pages->drawnRect(page, stop).value_or(QRectF()));
        }
        documents.drawn.push_back(std::move(drawn));
    }
    return !stop;
}

QSizeF textPageOf(const SettledJob &job)
{
    const TapePage page = job.page;
    const QSizeF area = page.layoutRect().size();
    if (!page.isTape) {
        return area;
    }
    const double mostMm = job.lengths.most;
    if (job.fitsLength() && mostMm > 0.0) {
        return {std::max(area.height(), pointsFromMm(mostMm) - 2.0 * page.freeEndsPt), area.width()};
    }
    return area.height() > area.width() ? area.transposed() : area;
}

std::optional<AutomaticLength> automaticLength(const SettledJob &job, const PdfDocuments &documents)
{
    return automaticLength(documents.sizes, documents.drawn, job.page, job.options, job.lengths);
}

Problem noPageIsChosen()
{
    return {Problem::RefusedValue, Texts::tr("None of the document's pages is chosen: change the page range.")};
}

QString lengthNotice(const TapePage &page)
{
    switch (page.length) {
    case PageLength::LeftToDriver:
        return Texts::tr(
                   "This printer's description takes no page of the chosen length: the page stays %1 mm long, and "
                   "the length is left to the driver.")
            .arg(lengthText(page.sizePt.height()));
    case PageLength::PaperForNear:
        return Texts::tr("The print system makes a length so near to the tape's own into that: %1 mm.")
            .arg(lengthText(page.sizePt.height()));
    case PageLength::NamedForNear:
        return Texts::tr("The print system makes a length so near to that of another paper into that: %1 mm.")
            .arg(lengthText(page.sizePt.height()));
    case PageLength::Paper:
    case PageLength::Chosen:
        break;
    }
    return {};
}

QString roomProblem(const LabelPlan &plan)
{
    if (plan.page.layoutRect().isEmpty()) {
        return Texts::tr("The margins leave nothing of the tape to print on: make the tape longer or the margin "
                         "smaller.");
    }
    const PlacedPage *page = plan.unreadablePage();
    if (page == nullptr) {
        return {};
    }
    const QSizeF printed = page->printedPt();
    return Texts::tr("Page %1 would come out %2 mm wide and %3 mm long, which nobody can read: choose a longer tape, a "
                     "smaller margin or fewer pages on a label.")
        .arg(QString::number(page->page + 1), lengthText(printed.width()), lengthText(printed.height()));
}

std::optional<LabelPlan> layOutJob(const SettledJob &job, const PdfDocuments &documents, const QString &path,
                                   const std::atomic<bool> &stop, Problem *error)
{
    LabelPlan plan = planLabels(documents.sizes, job.page, job.options, documents.drawn);
    const bool isTold = job.isRoomTold && !job.page.layoutRect().isEmpty();
    const QString problem = isTold ? QString() : roomProblem(plan);
    if (!problem.isNull()) {
        *error = {Problem::RefusedValue, problem};
        return std::nullopt;
    }
    if (plan.labels.empty()) {
        *error = noPageIsChosen();
        return std::nullopt;
    }
    if (const QString without = pageWithoutSize(plan, documents); !without.isNull()) {
        *error = {Problem::BadDocument, without};
        return std::nullopt;
    }
    if (!writeLaidOut(plan, documents.pdfs, job.shift, path, stop, error)) {
        return std::nullopt;
    }
    return plan;
}

} // namespace tapeprint::job
