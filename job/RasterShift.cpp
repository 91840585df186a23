// SPDX-License-Identifier: Apache-2.0
// Measured on the chain of pdftopdf and gstoraster.
#include "job/RasterShift.h"

#include <QByteArray>

#include <algorithm>
#include <cmath>
#include <span>

namespace tapeprint::job
{

RasterShift rasterShiftOf(const ppd_file_t *ppd, const TapePage &page)
{
    if (ppd == nullptr) {
        return {};
    }
    const std::span filters(ppd->filters, static_cast<std::size_t>(std::max(ppd->num_filters, 0)));
    const bool takesRaster = std::any_of(filters.begin(), filters.end(), [](const char *filter) {
        return QByteArray(filter).startsWith("application/vnd.cups-raster");
    });
    const double height = page.sizePt.height();
    return {takesRaster ? std::floor(height + 0.5) - height : 0.0};
}

} // namespace tapeprint::job
