// SPDX-License-Identifier: Apache-2.0
// Each page of a document becomes a form on its label, placed by one matrix. libqpdf copies what the form is made of
// and leaves it as it is.
#include "drawing/PdfLayout.h"

#include "drawing/PageBoxes.h"

#include <charconv>
#include <exception>
#include <limits>
#include <map>
#include <memory>

#include <qpdf/Pipeline.hh>
#include <qpdf/QPDF.hh>
#include <qpdf/QPDFAcroFormDocumentHelper.hh>
#include <qpdf/QPDFExc.hh>
#include <qpdf/QPDFPageDocumentHelper.hh>
#include <qpdf/QPDFPageObjectHelper.hh>
#include <qpdf/QPDFWriter.hh>

namespace tapeprint::drawing
{

namespace
{

using job::DrawerPage;
using job::PagesAnswer;
using job::PagesPlaced;

constexpr int decimals = 5;
/// Factors are multiplied by coordinates, of a page of ten metres by 28,000.
constexpr int factorDecimals = 10;

std::string fixed(double value, int precision)
{
    // Sign, the digits of the largest double, point, decimals.
    std::string text(static_cast<std::size_t>(std::numeric_limits<double>::max_exponent10 + 4 + precision), '\0');
    const std::to_chars_result result =
        std::to_chars(text.data(), text.data() + text.size(), value, std::chars_format::fixed, precision);
    text.resize(static_cast<std::size_t>(result.ptr - text.data()));
    return text;
}

std::string number(double value)
{
    return fixed(value, decimals);
}

std::string factor(double value)
{
    return fixed(value, factorDecimals);
}

/// Maps points as a row times the matrix.
struct Matrix {
    double m11 = 1.0;
    double m12 = 0.0;
    double m21 = 0.0;
    double m22 = 1.0;
    double dx = 0.0;
    double dy = 0.0;

    /// Whether it turns nothing.
    bool isUpright() const { return m12 == 0.0 && m21 == 0.0; }

    /// First this, then the other.
    Matrix operator*(const Matrix &other) const
    {
        if (isUpright() && other.isUpright()) { // by the rule below a zero may come out negative, and be written so
            return {m11 * other.m11, 0.0, 0.0, m22 * other.m22, dx * other.m11 + other.dx, dy * other.m22 + other.dy};
        }
        return {m11 * other.m11 + m12 * other.m21,          m11 * other.m12 + m12 * other.m22,
                m21 * other.m11 + m22 * other.m21,          m21 * other.m12 + m22 * other.m22,
                dx * other.m11 + dy * other.m21 + other.dx, dx * other.m12 + dy * other.m22 + other.dy};
    }

    std::string text() const
    {
        return factor(m11) + ' ' + factor(m12) + ' ' + factor(m21) + ' ' + factor(m22) + ' ' + number(dx) + ' ' +
               number(dy);
    }
};

/// One page of a document: its form in the target, and which part of it is the page.
struct SourcePage {
    QPDFObjectHandle form;
    DrawerPage box;

    /// From the page's own units, y upwards, to points of the page as it is read, from its top left.
    Matrix asRead() const
    {
        const double unit = box.unitPt;
        const DrawerPage::Rect &page = box.page;
        const Matrix upright{unit, 0.0, 0.0, -unit, -page.x * unit, (page.y + page.height) * unit};
        const double width = page.width * unit;
        const double height = page.height * unit;
        switch (box.turn) {
        case 90:
            return upright * Matrix{0.0, 1.0, -1.0, 0.0, height, 0.0};
        case 180:
            return upright * Matrix{-1.0, 0.0, 0.0, -1.0, width, height};
        case 270:
            return upright * Matrix{0.0, -1.0, 1.0, 0.0, 0.0, width};
        default:
            return upright;
        }
    }
};

void open(QPDF &pdf, const Bytes &document)
{
    pdf.setSuppressWarnings(true);
    pdf.processMemoryFile("document", document.bytes == nullptr ? "" : document.bytes, document.length);
}

/// A document as libqpdf reads it, with forms and notes drawn into its pages.
class Source
{
public:
    explicit Source(const Bytes &document)
    {
        open(mPdf, document);
        QPDFAcroFormDocumentHelper(mPdf).generateAppearancesIfNeeded();
        QPDFPageDocumentHelper helper(mPdf);
        helper.flattenAnnotations(an_print, an_hidden | an_no_view);
        mPages = helper.getAllPages();
    }

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
        const DrawerPage::Rect &box = copied.box.page;
        form.getDict().replaceKey(
            "/BBox", QPDFObjectHandle::newFromRectangle({box.x, box.y, box.x + box.width, box.y + box.height}));
        copied.form = target.copyForeignObject(form);
        return mCopied.emplace(index, copied).first->second;
    }

private:
    QPDF mPdf;
    std::vector<QPDFPageObjectHelper> mPages;
    std::map<int, SourcePage> mCopied;
};

/// A document that stays open while pages are copied out of it.
class PlainSource
{
public:
    explicit PlainSource(const Bytes &document)
    {
        open(mPdf, document);
        QPDFPageDocumentHelper helper(mPdf);
        helper.pushInheritedAttributesToPage();
        mPages = helper.getAllPages();
    }

    const QPDFPageObjectHelper &page(int index) const { return mPages.at(static_cast<std::size_t>(index)); }

private:
    QPDF mPdf;
    std::vector<QPDFPageObjectHelper> mPages;
};

/// Operators that put one page on its label. \param toPdf from points of the label, y down, to the label's page.
std::string placedForm(const std::string &name, const PagesPlaced &placed, const SourcePage &source,
                       const Matrix &toPdf)
{
    const DrawerPage::Rect &clip = placed.clip;
    const std::array<double, 6> &to = placed.place;
    const Matrix place{to[0], to[1], to[2], to[3], to[4], to[5]};
    return "q " + number(clip.x) + ' ' + number(clip.y) + ' ' + number(clip.width) + ' ' + number(clip.height) +
           " re W n " + (source.asRead() * place * toPdf).text() + " cm " + name + " Do Q\n";
}

QPDFObjectHandle labelPage(QPDF &target, const std::vector<PagesPlaced> &label, const Labels &labels,
                           const std::vector<std::unique_ptr<Source>> &sources)
{
    const Matrix toPdf{1.0, 0.0, 0.0, -1.0, 0.0, labels.height + labels.downPt};
    QPDFObjectHandle forms = QPDFObjectHandle::newDictionary();
    std::string content;
    int count = 0;
    for (const PagesPlaced &placed : label) {
        const SourcePage &source = sources.at(placed.document)->page(placed.page, target);
        const std::string name = "/P" + std::to_string(++count);
        forms.replaceKey(name, source.form);
        if (placed.clip.width > 0.0 && placed.clip.height > 0.0) {
            content += placedForm(name, placed, source, toPdf);
        }
    }
    QPDFObjectHandle resources = QPDFObjectHandle::newDictionary();
    resources.replaceKey("/XObject", forms);
    QPDFObjectHandle dictionary = QPDFObjectHandle::newDictionary();
    dictionary.replaceKey("/Type", QPDFObjectHandle::newName("/Page"));
    QPDFObjectHandle box = QPDFObjectHandle::newArray();
    for (const double corner : {0.0, 0.0, labels.width, labels.height}) {
        box.appendItem(QPDFObjectHandle::newReal(corner, decimals));
    }
    dictionary.replaceKey("/MediaBox", box);
    dictionary.replaceKey("/Resources", resources);
    dictionary.replaceKey("/Contents", QPDFObjectHandle::newStream(&target, content));
    return target.makeIndirectObject(dictionary);
}

/// libqpdf's way of giving away what it writes, in pieces that are worth a word.
class OutputPipe : public Pipeline
{
public:
    explicit OutputPipe(Output &output) : Pipeline("output", nullptr), mOutput(output) {}

    void write(const unsigned char *bytes, std::size_t length) override
    {
        mPiece.append(reinterpret_cast<const char *>(bytes), length);
        if (mPiece.size() >= pieceBytes) {
            flush();
        }
    }

    void finish() override {} // the writer says so after each stream

    void flush()
    {
        if (!mPiece.empty()) {
            mOutput.take(reinterpret_cast<const unsigned char *>(mPiece.data()), mPiece.size());
            mPiece.clear();
        }
    }

private:
    static constexpr std::size_t pieceBytes = 65536;

    Output &mOutput;
    std::string mPiece;
};

void write(QPDF &pdf, Output &output)
{
    OutputPipe pipe(output);
    QPDFWriter writer(pdf);
    writer.setOutputPipeline(&pipe);
    writer.setStaticID(true);
    writer.write();
    pipe.flush();
}

std::string reasonOf(const std::exception &failure)
{
    const auto *pdf = dynamic_cast<const QPDFExc *>(&failure);
    return pdf != nullptr ? pdf->getMessageDetail() : failure.what();
}

Failure openingFailure(std::size_t document, const std::exception &failure)
{
    const auto *pdf = dynamic_cast<const QPDFExc *>(&failure);
    const bool isLocked = pdf != nullptr && pdf->getErrorCode() == qpdf_e_password;
    return {isLocked ? PagesAnswer::Locked : PagesAnswer::Damaged, static_cast<std::uint32_t>(document),
            reasonOf(failure)};
}

template <typename Opened>
std::optional<Failure> openAll(const std::vector<Bytes> &documents, std::vector<std::unique_ptr<Opened>> *opened)
{
    try {
        for (const Bytes &document : documents) {
            opened->push_back(std::make_unique<Opened>(document));
        }
    } catch (const std::exception &failure) {
        return openingFailure(opened->size(), failure);
    }
    return std::nullopt;
}

/// Makes a document out of others. \param fill adds its pages, with the others opened.
template <typename Opened, typename Fill>
std::optional<Failure> make(const std::vector<Bytes> &documents, Output &output, const Fill &fill)
{
    QPDF target;
    target.emptyPDF();
    std::vector<std::unique_ptr<Opened>> sources;
    if (std::optional<Failure> failure = openAll(documents, &sources)) {
        return failure;
    }
    try {
        fill(target, sources);
        write(target, output);
    } catch (const std::exception &failure) {
        return Failure{PagesAnswer::Other, 0, reasonOf(failure)};
    }
    return std::nullopt;
}

} // namespace

std::optional<Failure> measure(const Bytes &document, std::vector<DrawerPage> *pages)
{
    try {
        QPDF pdf;
        open(pdf, document);
        *pages = pageBoxesOf(pdf);
    } catch (const std::exception &failure) {
        return openingFailure(0, failure);
    }
    return std::nullopt;
}

std::optional<Failure> layOut(const Labels &labels, const std::vector<Bytes> &documents, Output &output)
{
    return make<Source>(documents, output, [&](QPDF &target, const std::vector<std::unique_ptr<Source>> &sources) {
        for (const std::vector<PagesPlaced> &label : labels.pages) {
            target.addPage(labelPage(target, label, labels, sources), false);
            output.tellProgress();
        }
    });
}

std::optional<Failure> choose(const std::vector<PagesPlaced> &pages, const std::vector<Bytes> &documents,
                              Output &output)
{
    return make<PlainSource>(documents, output,
                             [&](QPDF &target, const std::vector<std::unique_ptr<PlainSource>> &sources) {
                                 QPDFPageDocumentHelper targetPages(target);
                                 for (const PagesPlaced &chosen : pages) {
                                     targetPages.addPage(sources.at(chosen.document)->page(chosen.page), false);
                                     output.tellProgress();
                                 }
                             });
}

} // namespace tapeprint::drawing
