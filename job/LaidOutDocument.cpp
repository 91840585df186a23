// SPDX-License-Identifier: Apache-2.0
// Each page of a document becomes a form on its label, placed by one matrix. libqpdf copies what the form is made of
// and leaves it as it is.
#include "job/LaidOutDocument.h"

#include "job/Conversion.h"
#include "job/PageBox.h"
#include "job/PdfFailure.h"
#include "job/PdfWriting.h"
#include "job/PlainText.h"
#include "job/Reason.h"
#include "job/Texts.h"

#include <QFile>

#include <algorithm>
#include <cmath>
#include <exception>
#include <map>
#include <memory>
#include <vector>

#include <pdekit/Numbers.h>

#include <qpdf/QPDF.hh>
#include <qpdf/QPDFAcroFormDocumentHelper.hh>
#include <qpdf/QPDFPageDocumentHelper.hh>
#include <qpdf/QPDFPageObjectHelper.hh>
#include <qpdf/QPDFSystemError.hh>

namespace tapeprint::job
{

namespace
{

constexpr int decimals = 5;
/// Factors are multiplied by coordinates, of a page of ten metres by 28,000.
constexpr int factorDecimals = 10;

std::string number(double value)
{
    return pdekit::fixedDecimals(value, decimals).toStdString();
}

std::string factor(double value)
{
    return pdekit::fixedDecimals(value, factorDecimals).toStdString();
}

std::string matrixText(const QTransform &matrix)
{
    return factor(matrix.m11()) + ' ' + factor(matrix.m12()) + ' ' + factor(matrix.m21()) + ' ' + factor(matrix.m22()) +
           ' ' + number(matrix.dx()) + ' ' + number(matrix.dy());
}

/// One page of a document: its form in the target, and which part of it is the page.
struct SourcePage {
    QPDFObjectHandle form;
    PageBox box;

    /// From the page's own units, y upwards, to points of the page as it is read, from its top left.
    QTransform asRead() const
    {
        const double unit = box.unitPt;
        const QRectF &page = box.page;
        const QTransform upright(unit, 0, 0, -unit, -page.left() * unit, (page.top() + page.height()) * unit);
        const double width = page.width() * unit;
        const double height = page.height() * unit;
        switch (box.turn) {
        case 90:
            return upright * QTransform(0, 1, -1, 0, height, 0);
        case 180:
            return upright * QTransform(-1, 0, 0, -1, width, height);
        case 270:
            return upright * QTransform(0, -1, 1, 0, 0, width);
        default:
            return upright;
        }
    }
};

/// A document as libqpdf reads it, with forms and notes drawn into its pages.
class Source
{
public:
    explicit Source(const QString &path) : mPath(path)
    {
        mPdf.setSuppressWarnings(true);
        mPdf.processFile(QFile::encodeName(path).constData());
        QPDFAcroFormDocumentHelper(mPdf).generateAppearancesIfNeeded();
        QPDFPageDocumentHelper helper(mPdf);
        helper.flattenAnnotations(an_print, an_hidden | an_no_view);
        mPages = helper.getAllPages();
    }

    const QString &path() const { return mPath; }

    /// A page with its form copied into another document; each page is copied once.
    const SourcePage &page(int index, QPDF &target)
    {
        const auto known = mCopied.find(index);
        if (known != mCopied.end()) {
            return known->second;
        }
        QPDFPageObjectHelper &page = mPages.at(static_cast<std::size_t>(index));
        SourcePage copied{{}, pageBoxOf(page)};
        QPDFObjectHandle form = page.getFormXObjectForPage(false);
        const QRectF &box = copied.box.page;
        form.getDict().replaceKey(
            "/BBox", QPDFObjectHandle::newFromRectangle({box.left(), box.top(), box.right(), box.bottom()}));
        copied.form = target.copyForeignObject(form);
        return mCopied.emplace(index, copied).first->second;
    }

private:
    QString mPath;
    QPDF mPdf;
    std::vector<QPDFPageObjectHelper> mPages;
    std::map<int, SourcePage> mCopied;
};

/// Operators that put one page on its label. \param toPdf from points of the label, y down, to the label's page.
std::string placedForm(const std::string &name, const PlacedPage &placed, const SourcePage &source,
                       const QTransform &toPdf)
{
    const QRectF clip = toPdf.mapRect(placed.clip);
    return "q " + number(clip.left()) + ' ' + number(clip.top()) + ' ' + number(clip.width()) + ' ' +
           number(clip.height()) + " re W n " + matrixText(source.asRead() * placed.place * toPdf) + " cm " + name +
           " Do Q\n";
}

QPDFObjectHandle labelPage(QPDF &target, const Label &label, const TapePage &page, RasterShift shift,
                           std::vector<std::unique_ptr<Source>> &sources)
{
    const QTransform toPdf(1, 0, 0, -1, 0, page.sizePt.height() + shift.downPt);
    QPDFObjectHandle forms = QPDFObjectHandle::newDictionary();
    std::string content;
    int count = 0;
    for (const PlacedPage &placed : label) {
        const SourcePage &source = sources.at(placed.document)->page(placed.page, target);
        const std::string name = "/P" + std::to_string(++count);
        forms.replaceKey(name, source.form);
        if (!placed.clip.isEmpty()) {
            content += placedForm(name, placed, source, toPdf);
        }
    }
    QPDFObjectHandle resources = QPDFObjectHandle::newDictionary();
    resources.replaceKey("/XObject", forms);
    QPDFObjectHandle dictionary = QPDFObjectHandle::newDictionary();
    dictionary.replaceKey("/Type", QPDFObjectHandle::newName("/Page"));
    QPDFObjectHandle box = QPDFObjectHandle::newArray();
    for (const double corner : {0.0, 0.0, page.sizePt.width(), page.sizePt.height()}) {
        box.appendItem(QPDFObjectHandle::newReal(corner, decimals));
    }
    dictionary.replaceKey("/MediaBox", box);
    dictionary.replaceKey("/Resources", resources);
    dictionary.replaceKey("/Contents", QPDFObjectHandle::newStream(&target, content));
    return target.makeIndirectObject(dictionary);
}

} // namespace

std::optional<PageSizes> pageSizesOf(const QString &pdf, Problem *error, const QString &shownAs)
{
    const QString name = harmless(shownAs.isNull() ? pdf : shownAs);
    try {
        QPDF document;
        document.setSuppressWarnings(true);
        document.processFile(QFile::encodeName(pdf).constData());
        PageSizes sizes;
        for (const PageBox &box : pageBoxesOf(document)) {
            sizes.push_back(box.sizePt());
        }
        if (sizes.empty()) {
            *error = {Problem::BadDocument,
                      Texts::tr("The document %1 has no page: name one with something to print.").arg(name)};
            return std::nullopt;
        }
        return sizes;
    } catch (const std::exception &failure) {
        *error = {Problem::BadDocument, pdfOpeningFailure(name, failure)};
        return std::nullopt;
    }
}

bool writeLaidOut(const LabelPlan &plan, const QStringList &pdfs, RasterShift shift, const QString &path,
                  const std::atomic<bool> &stop, Problem *error)
{
    QPDF target;
    target.emptyPDF();
    std::vector<std::unique_ptr<Source>> sources;
    QString current;
    try {
        for (const QString &pdf : pdfs) {
            current = harmless(pdf);
            sources.push_back(std::make_unique<Source>(pdf));
        }
    } catch (const std::exception &failure) {
        *error = {Problem::BadDocument, pdfOpeningFailure(current, failure)};
        return false;
    }
    try {
        for (const Label &label : plan.labels) {
            if (stop) {
                return false;
            }
            target.addPage(labelPage(target, label, plan.page, shift, sources), false);
        }
        writePdf(target, path);
    } catch (const QPDFSystemError &failure) {
        *error = noRoomForTemporaryFiles(reasonText(qt_error_string(failure.getErrno())));
        return false;
    } catch (const std::exception &failure) {
        *error = {Problem::BadDocument,
                  Texts::tr("The labels cannot be laid out (%1): see that the document is whole and that there is room "
                            "for temporary files.")
                      .arg(pdfFailureReason(failure))};
        return false;
    }
    return true;
}

} // namespace tapeprint::job
