// SPDX-License-Identifier: Apache-2.0
// A job through CUPS's own filters, as a queue of a sample printer would run them.
#pragma once

#include <QByteArray>
#include <QRect>
#include <QSize>
#include <QString>
#include <QStringList>

#include <vector>

namespace printertest
{

/// One page as the rasteriser wrote it, a bit a dot.
struct RasterPage {
    QSize size;
    QSize dotsPerInch;
    int bytesPerLine = 0;
    QByteArray bits;
    int copies = 1; ///< that the printer is told to make

    bool isBlack(int x, int y) const;
    /// The smallest rectangle with all black dots inside \p area.
    QRect blackIn(const QRect &area) const;
};

/// Pages of a CUPS raster of one bit a dot. None, and a failure, for any other.
std::vector<RasterPage> rasterPagesIn(const QByteArray &bytes);

/// Pages of the CUPS raster that the job becomes. None when a filter fails.
std::vector<RasterPage> rasterOf(const QString &printer, const QStringList &options, const QByteArray &pdf);

/// The bytes that reach the printer. Empty when a filter fails.
QByteArray printedBy(const QString &printer, const QStringList &options, const QByteArray &pdf);

/// "PageSize=Custom.24x99.5mm", and that the page is taken as it is.
QStringList customPage(double widthMm, double lengthMm);

} // namespace printertest
