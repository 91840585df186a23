// SPDX-License-Identifier: Apache-2.0
// cupsfilter chooses and runs the filters; libcups reads the raster.
#include "tests/printers/FilterChain.h"

#include "tests/printers/SamplePrinter.h"
#include "tests/system/Client.h"
#include "tests/system/PrivateFolder.h"

#include <cups/raster.h>

#include <algorithm>
#include <memory>

#include <gtest/gtest.h>

namespace printertest
{

namespace
{

/// \param extra the type that is asked for.
QByteArray filtered(const QString &printer, const QStringList &options, const QByteArray &pdf, const QStringList &extra)
{
    const systemtest::PrivateFolder folder;
    QStringList arguments{u"-p"_qs, ppdPathOf(printer)};
    arguments += extra;
    for (const QString &option : options) {
        arguments << u"-o"_qs << option;
    }
    arguments << systemtest::writeFile(folder.path(u"page.pdf"_qs), pdf);
    const systemtest::Outcome outcome = systemtest::runClient({u"/usr/sbin/cupsfilter"_qs, arguments, {}});
    EXPECT_EQ(outcome.status, 0) << outcome.messages.toStdString();
    return outcome.status == 0 ? outcome.output : QByteArray();
}

struct RasterDeleter {
    void operator()(cups_raster_t *raster) const { cupsRasterClose(raster); }
};

/// What is left of the bytes, for libcups to read from.
struct Rest {
    const QByteArray &bytes;
    qsizetype at = 0;
};

ssize_t readRest(void *context, unsigned char *buffer, std::size_t length)
{
    auto &rest = *static_cast<Rest *>(context);
    const qsizetype count = std::min(static_cast<qsizetype>(length), rest.bytes.size() - rest.at);
    std::copy_n(rest.bytes.constData() + rest.at, count, buffer);
    rest.at += count;
    return count;
}

} // namespace

bool RasterPage::isBlack(int x, int y) const
{
    const auto byte = static_cast<unsigned char>(bits.at(static_cast<qsizetype>(y) * bytesPerLine + x / 8));
    return ((byte >> (7 - x % 8)) & 1) != 0;
}

QRect RasterPage::blackIn(const QRect &area) const
{
    QRect black;
    const QRect inside = area & QRect(QPoint(), size);
    for (int y = inside.top(); y <= inside.bottom(); ++y) {
        for (int x = inside.left(); x <= inside.right(); ++x) {
            if (isBlack(x, y)) {
                black |= QRect(x, y, 1, 1);
            }
        }
    }
    return black;
}

std::vector<RasterPage> rasterOf(const QString &printer, const QStringList &options, const QByteArray &pdf)
{
    return rasterPagesIn(filtered(printer, options, pdf, {u"-m"_qs, u"application/vnd.cups-raster"_qs}));
}

std::vector<RasterPage> rasterPagesIn(const QByteArray &bytes)
{
    Rest rest{bytes};
    const std::unique_ptr<cups_raster_t, RasterDeleter> raster(cupsRasterOpenIO(readRest, &rest, CUPS_RASTER_READ));
    std::vector<RasterPage> pages;
    cups_page_header2_t header{};
    while (raster && cupsRasterReadHeader2(raster.get(), &header) != 0) {
        RasterPage page{QSize(static_cast<int>(header.cupsWidth), static_cast<int>(header.cupsHeight)),
                        QSize(static_cast<int>(header.HWResolution[0]), static_cast<int>(header.HWResolution[1])),
                        static_cast<int>(header.cupsBytesPerLine),
                        {},
                        std::max(1, static_cast<int>(header.NumCopies))};
        page.bits.resize(static_cast<qsizetype>(header.cupsBytesPerLine) * header.cupsHeight);
        const auto wanted = static_cast<unsigned>(page.bits.size());
        const unsigned read =
            cupsRasterReadPixels(raster.get(), reinterpret_cast<unsigned char *>(page.bits.data()), wanted);
        if (header.cupsBitsPerPixel != 1 || read != wanted) {
            ADD_FAILURE() << "a page of " << header.cupsBitsPerPixel << " bits a dot, " << read << " of " << wanted;
            return {};
        }
        pages.push_back(std::move(page));
    }
    return pages;
}

QByteArray printedBy(const QString &printer, const QStringList &options, const QByteArray &pdf)
{
    // -e: with the PPD's own filter at the end.
    return filtered(printer, options, pdf, {u"-m"_qs, u"printer/foo"_qs, u"-e"_qs});
}

QStringList customPage(double widthMm, double lengthMm)
{
    return {QStringLiteral("PageSize=Custom.%1x%2mm").arg(QString::number(widthMm), QString::number(lengthMm)),
            u"print-scaling=none"_qs};
}

} // namespace printertest
