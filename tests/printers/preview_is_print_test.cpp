// SPDX-License-Identifier: Apache-2.0
// The preview is the print: labels drawn by the dialog's own plan at the printer's resolution are, dot for dot, the
// raster that the program's job becomes in CUPS's filters.
//
// Each case prints nine pages of four kinds of document, so the table below compares more than a hundred combinations
// of tape, length, margin, resolution, page shape, turn, scaling, place and kind.
#include "tests/printers/LabelDocuments.h"
#include "tests/printers/PrintedTape.h"
#include "tests/printers/SamplePrinter.h"

#include "dialog/LabelPicture.h"
#include "dialog/Panels.h"
#include "job/LaidOutJob.h"
#include "job/PdfPages.h"
#include "tests/support/TextPrinting.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <memory>
#include <ostream>

namespace printertest
{

namespace
{

using namespace tapeprint; // NOLINT(google-build-using-namespace): the rooms under test

const std::atomic<bool> goOn = false;

struct Case {
    const char *name;
    QString printer;
    QStringList options;
    QSizeF sizeMm; ///< of the raster with the strips
};

void PrintTo(const Case &tested, std::ostream *stream)
{
    *stream << tested.name;
}

/// The labels as the dialog sees them.
struct Previewed {
    job::LabelPlan plan;
    job::PdfDocuments documents;
};

std::optional<Previewed> previewed(const QString &ppdPath, const QStringList &options, const QStringList &files)
{
    job::JobRequest request;
    request.ppdPath = ppdPath;
    request.outputPath = u"/dev/null"_qs;
    for (const QString &option : options) {
        request.options.set(option.section(u'=', 0, 0), option.section(u'=', 1));
    }
    job::Problem error;
    std::optional<job::Destination> destination = job::openDestination(request, &error);
    if (!destination) {
        ADD_FAILURE() << error.sentence.toStdString();
        return std::nullopt;
    }
    job::Job settings;
    dialog::Panels panels(settings, {QStringLiteral(TAPEPRINT_BUNDLE_DIR)});
    panels.open(std::move(*destination), request.options);
    EXPECT_TRUE(panels.settle(&error)) << error.sentence.toStdString();
    const job::SettledJob settled = job::settle(settings);
    std::optional<job::PdfDocuments> documents = job::collectPdfs(settled, files, goOn, &error);
    if (!documents) {
        ADD_FAILURE() << error.sentence.toStdString();
        return std::nullopt;
    }
    return Previewed{job::planLabels(documents->sizes, settled.page, settled.options, documents->drawn), *documents};
}

/// So many times finer than the printer a label is drawn along each side, that a dot's share of ink is seen.
constexpr int subdots = 4;

/// One label as the dialog draws it. \param finer how much finer than the printer.
QImage drawn(const Previewed &preview, std::size_t label, const QSize &dotsPerInch, int finer)
{
    std::vector<std::unique_ptr<job::PdfPages>> documents;
    std::vector<const job::PdfPages *> borrowed;
    for (const QString &pdf : preview.documents.pdfs) {
        job::Problem error;
        documents.push_back(job::PdfPages::open(pdf, &error));
        borrowed.push_back(documents.back().get());
        EXPECT_TRUE(documents.back()) << error.sentence.toStdString();
    }
    constexpr double pointsPerInch = 72.0;
    const QSizeF dotsPerPoint = QSizeF(dotsPerInch) * finer / pointsPerInch;
    return dialog::renderLabel(preview.plan, label, dialog::renderedAt(dotsPerPoint, borrowed), dotsPerPoint,
                               preview.plan.page.printableRect());
}

/// Whether the rasteriser would blacken a dot, as it does each that is touched: when a tenth of it is ink.
bool isInk(const QImage &image, int x, int y)
{
    constexpr double touched = 0.1;
    constexpr int black = 255;
    const QRect dot = QRect(x * subdots, y * subdots, subdots, subdots) & image.rect();
    int ink = 0;
    for (int row = dot.top(); row <= dot.bottom(); ++row) {
        const uchar *line = image.constScanLine(row);
        for (int column = dot.left(); column <= dot.right(); ++column) {
            ink += black - line[column];
        }
    }
    return ink > touched * black * subdots * subdots;
}

/// Which dots are black.
struct Dots {
    QSize size;
    std::vector<bool> black;

    bool at(int x, int y) const
    {
        return black[static_cast<std::size_t>(y) * static_cast<std::size_t>(size.width()) +
                     static_cast<std::size_t>(x)];
    }
    /// Whether a dot of this colour is within two dots.
    bool isNear(int x, int y, bool isBlack) const
    {
        constexpr int reach = 2;
        for (int row = std::max(y - reach, 0); row <= std::min(y + reach, size.height() - 1); ++row) {
            for (int column = std::max(x - reach, 0); column <= std::min(x + reach, size.width() - 1); ++column) {
                if (at(column, row) == isBlack) {
                    return true;
                }
            }
        }
        return false;
    }
    QRect bounds() const
    {
        QRect rect;
        for (int y = 0; y < size.height(); ++y) {
            for (int x = 0; x < size.width(); ++x) {
                rect |= at(x, y) ? QRect(x, y, 1, 1) : QRect();
            }
        }
        return rect;
    }
};

template <typename IsBlack>
Dots dotsOf(const QSize &size, const IsBlack &isBlack)
{
    Dots dots{size, {}};
    dots.black.reserve(static_cast<std::size_t>(size.width()) * static_cast<std::size_t>(size.height()));
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            dots.black.push_back(isBlack(x, y));
        }
    }
    return dots;
}

/// At least 98 of 100 dots are equal, and 999 of 1,000 have their like in the other within two dots (the rasteriser
/// puts letters on whole dots, the preview does not); what is drawn begins and ends at the same dot or beside it.
void expectSameContent(const QImage &image, const RasterPage &raster, const QString &label)
{
    const Dots preview = dotsOf(raster.size, [&image](int x, int y) { return isInk(image, x, y); });
    const Dots print = dotsOf(raster.size, [&raster](int x, int y) { return raster.isBlack(x, y); });
    qint64 different = 0;
    qint64 misplaced = 0;
    for (int y = 0; y < raster.size.height(); ++y) {
        for (int x = 0; x < raster.size.width(); ++x) {
            if (preview.at(x, y) != print.at(x, y)) {
                ++different;
                misplaced += preview.isNear(x, y, print.at(x, y)) && print.isNear(x, y, preview.at(x, y)) ? 0 : 1;
            }
        }
    }
    const double dots = static_cast<double>(raster.size.width()) * raster.size.height();
    EXPECT_LE(static_cast<double>(different) / dots, 0.02) << label.toStdString();
    EXPECT_LE(static_cast<double>(misplaced) / dots, 0.001) << label.toStdString();
    const QRect ink = preview.bounds();
    const QRect black = print.bounds();
    EXPECT_FALSE(black.isEmpty()) << label.toStdString();
    EXPECT_NEAR(ink.left(), black.left(), 1) << label.toStdString();
    EXPECT_NEAR(ink.top(), black.top(), 1) << label.toStdString();
    EXPECT_NEAR(ink.right(), black.right(), 1) << label.toStdString();
    EXPECT_NEAR(ink.bottom(), black.bottom(), 1) << label.toStdString();
}

class PreviewIsPrint : public testing::TestWithParam<Case>
{
};

TEST_P(PreviewIsPrint, SameSizeToADotAndSameContent)
{
    const Case &tested = GetParam();
    const systemtest::PrivateFolder folder;
    const QStringList files = labelDocuments(folder);
    const PrintedTape printed = printTape(folder, tested.printer, tested.options, files);
    ASSERT_EQ(printed.outcome.status, 0) << printed.outcome.messages.toStdString();
    const std::optional<Previewed> preview = previewed(rasterPpd(folder, tested.printer), tested.options, files);
    ASSERT_TRUE(preview);
    ASSERT_EQ(printed.labels.size(), static_cast<std::size_t>(labelDocumentPages));
    ASSERT_EQ(preview->plan.labels.size(), printed.labels.size());
    const double strip = tested.printer == u"hn" ? 0.0 : 1.0; // of both edges
    for (std::size_t label = 0; label < printed.labels.size(); ++label) {
        const RasterPage &raster = printed.labels[label];
        const auto dots = [](double mm, int perInch) { return static_cast<int>(std::lround(mm / 25.4 * perInch)); };
        EXPECT_EQ(raster.size.width(), dots(tested.sizeMm.width() - strip, raster.dotsPerInch.width()));
        EXPECT_EQ(raster.size.height(), dots(tested.sizeMm.height(), raster.dotsPerInch.height()));
        EXPECT_EQ(drawn(*preview, label, raster.dotsPerInch, 1).size(), raster.size);
        expectSameContent(drawn(*preview, label, raster.dotsPerInch, subdots), raster,
                          QStringLiteral("label %1").arg(label));
    }
}

std::vector<Case> cases()
{
    const auto with = [](const char *options) { return QString::fromLatin1(options).split(u' '); };
    return {
        {"Paper", u"mm"_qs, with("KsMargin=2 Resolution=300x300dpi"), {24, 100}},
        {"Short_Fit", u"mm"_qs, with("KsTapeLength=21 KsMargin=1 Resolution=300x300dpi print-scaling=fit"), {24, 21}},
        {"HighAlong_TopLeft",
         u"mm"_qs,
         with("PageSize=18mm KsTapeLength=33.3 KsMargin=3.5 Resolution=300x600dpi position=top-left"),
         {18, 33.3}},
        {"NearThePaper",
         u"mm"_qs,
         with("KsTapeLength=99.5 KsMargin=2 Resolution=300x300dpi position=bottom"),
         {24, 100}},
        {"NearALabel", u"mm"_qs, with("PageSize=12mm KsTapeLength=44.8 KsMargin=2 Resolution=300x300dpi"), {12, 45}},
        {"FixedLabel_None", u"mm"_qs, with("PageSize=DC24x80 Resolution=300x300dpi print-scaling=none"), {24, 80}},
        {"AddressLabel_Fill",
         u"mm"_qs,
         with("PageSize=AV36x100 KsMargin=4 Resolution=300x600dpi print-scaling=fill"),
         {36, 100}},
        {"Upright_Right",
         u"mv"_qs,
         with("KsTapeLength=63 KsMargin=2 orientation-requested=3 position=right"),
         {24, 63}},
        {"Inch_UpsideDown",
         u"inch"_qs,
         with("PageSize=24mm KsTapeLength=50.8 KsMargin=2.54 Resolution=180x360dpi orientation-requested=6"),
         {24, 50.8}},
        {"Inch_TurnedLeft",
         u"inch"_qs,
         with("PageSize=36mm KsTapeLength=50.8 KsMargin=2.54 Resolution=360x360dpi orientation-requested=4 "
              "print-scaling=fit"),
         {36, 50.8}},
        {"EdgeToEdge_Fill",
         u"hn"_qs,
         with("KsTapeLength=77.7 KsMargin=1 Resolution=180x180dpi print-scaling=fill"),
         {24, 77.7}},
        {"EdgeToEdge_TurnedRight",
         u"hn"_qs,
         with("PageSize=9mm KsTapeLength=150 KsMargin=5 Resolution=300x300dpi orientation-requested=5 position=left"),
         {9, 150}},
        {"LengthLeftToTheDriver",
         u"fixed"_qs,
         with("KsTapeLength=60 KsMargin=2 Resolution=300x300dpi print-scaling=fit"),
         {24, 100}},
    };
}

std::string nameOf(const testing::TestParamInfo<Case> &tested)
{
    return tested.param.name;
}

INSTANTIATE_TEST_SUITE_P(Tapes, PreviewIsPrint, testing::ValuesIn(cases()), nameOf);

} // namespace

} // namespace printertest
