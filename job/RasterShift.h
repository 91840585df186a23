// SPDX-License-Identifier: Apache-2.0
// What a rasteriser does to a page beside drawing it, so that the layout can undo it.
#pragma once

#include "job/TapePage.h"

#include <cups/ppd.h>

namespace tapeprint::job
{

/// How a rasteriser of the filters moves a page's content, to be undone by the layout.
struct RasterShift {
    double downPt = 0.0; ///< how far too low the content comes out
};

/// The shift of a printer. Ghostscript's raster device counts rows from a page height in whole points: what it draws on
/// a page of another height comes out lower or higher by the difference. Printers that take no CUPS raster have none.
RasterShift rasterShiftOf(const ppd_file_t *ppd, const TapePage &page);

} // namespace tapeprint::job
