// SPDX-License-Identifier: Apache-2.0
// libqpdf copies pages with all that they are made of.
#include "job/ChosenPages.h"

#include "job/Conversion.h"
#include "job/PdfFailure.h"
#include "job/PdfWriting.h"
#include "job/PlainText.h"
#include "job/Reason.h"
#include "job/Texts.h"

#include <QFile>

#include <exception>
#include <memory>

#include <qpdf/QPDF.hh>
#include <qpdf/QPDFPageDocumentHelper.hh>
#include <qpdf/QPDFPageObjectHelper.hh>
#include <qpdf/QPDFSystemError.hh>

namespace tapeprint::job
{

namespace
{

/// A document that stays open while pages are copied out of it.
class OpenDocument
{
public:
    explicit OpenDocument(const QString &path)
    {
        mPdf.setSuppressWarnings(true);
        mPdf.processFile(QFile::encodeName(path).constData());
        QPDFPageDocumentHelper helper(mPdf);
        helper.pushInheritedAttributesToPage();
        mPages = helper.getAllPages();
    }

    const QPDFPageObjectHelper &page(int index) const { return mPages.at(static_cast<std::size_t>(index)); }

private:
    QPDF mPdf;
    std::vector<QPDFPageObjectHelper> mPages;
};

} // namespace

std::vector<ChosenPage> chosenPages(const std::vector<PageSizes> &documents, const JobOptions &options)
{
    std::vector<ChosenPage> all;
    for (std::size_t document = 0; document < documents.size(); ++document) {
        for (std::size_t page = 0; page < documents[document].size(); ++page) {
            all.push_back({document, static_cast<int>(page)});
        }
    }
    std::vector<ChosenPage> chosen;
    for (const int index : selectedPages(static_cast<int>(all.size()), options)) {
        chosen.push_back(all[static_cast<std::size_t>(index)]);
    }
    return chosen;
}

bool writeChosenPages(const std::vector<ChosenPage> &pages, const QStringList &pdfs, const QString &path,
                      const std::atomic<bool> &stop, Problem *error)
{
    QPDF target;
    target.emptyPDF();
    std::vector<std::unique_ptr<OpenDocument>> documents;
    QString current;
    try {
        for (const QString &pdf : pdfs) {
            current = harmless(pdf);
            documents.push_back(std::make_unique<OpenDocument>(pdf));
        }
    } catch (const std::exception &failure) {
        *error = {Problem::BadDocument, pdfOpeningFailure(current, failure)};
        return false;
    }
    try {
        QPDFPageDocumentHelper targetPages(target);
        for (const ChosenPage &chosen : pages) {
            if (stop) {
                return false;
            }
            targetPages.addPage(documents.at(chosen.document)->page(chosen.page), false);
        }
        writePdf(target, path);
    } catch (const QPDFSystemError &failure) {
        *error = noRoomForTemporaryFiles(reasonText(qt_error_string(failure.getErrno())));
        return false;
    } catch (const std::exception &failure) {
        *error = {Problem::BadDocument,
                  Texts::tr("The chosen pages cannot be put together (%1): see that the document is whole and that "
                            "there is room for temporary files.")
                      .arg(pdfFailureReason(failure))};
        return false;
    }
    return true;
}

} // namespace tapeprint::job
