// SPDX-License-Identifier: Apache-2.0
// From plan to picture.
#include "dialog/LabelPicture.h"

#include <QPainter>

#include <algorithm>
#include <atomic>
#include <cmath>

namespace tapeprint::dialog
{

namespace
{

/// Sizes go through floats and texts: what lies outside by less is inside.
constexpr double slackPt = 0.1;
/// A painter that makes a picture smaller than this skips dots.
constexpr double leastRatio = 0.6;

/// How large a unit of the painter is on its device.
double dotsOfUnit(const QPainter &painter)
{
    return std::sqrt(std::abs(painter.combinedTransform().determinant()));
}

/// The picture, made smaller beforehand where the painter would skip dots.
QImage smoothed(const job::RenderedPage &page, double dotsPerPoint)
{
    const double ratio = dotsPerPoint * page.rectPt.width() / page.image.width();
    if (!(ratio < leastRatio)) {
        return page.image;
    }
    const QSize size = (QSizeF(page.image.size()) * ratio).toSize().expandedTo({1, 1});
    return page.image.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

} // namespace

double scaleOf(const job::PlacedPage &page)
{
    return std::sqrt(std::abs(page.place.determinant()));
}

bool isCutOff(const job::PlacedPage &page, const QRectF &partPt)
{
    const QRectF covered = page.place.mapRect(partPt);
    return !partPt.isEmpty() && !page.clip.adjusted(-slackPt, -slackPt, slackPt, slackPt).contains(covered);
}

void drawPages(QPainter &painter, const job::Label &label, const PagePictures &pictures, bool isClipped)
{
    for (const job::PlacedPage &page : label) {
        const job::RenderedPage picture = pictures(page);
        if (picture.image.isNull() || (isClipped && page.clip.isEmpty())) {
            continue;
        }
        painter.save();
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        if (isClipped) {
            painter.setClipRect(page.clip, Qt::IntersectClip);
        }
        painter.setTransform(page.place, true);
        painter.drawImage(picture.rectPt, smoothed(picture, dotsOfUnit(painter)));
        painter.restore();
    }
}

QImage renderLabel(const job::LabelPlan &plan, std::size_t label, const PagePictures &pictures,
                   const QSizeF &dotsPerPoint, const QRectF &partPt)
{
    const QRectF part = partPt.isEmpty() ? plan.page.wholeRect() : partPt;
    constexpr double almostHalf = 0.499; // as the rasteriser has it
    const auto dots = [](double exact) { return static_cast<int>(exact + almostHalf); };
    QImage image(dots(part.width() * dotsPerPoint.width()), dots(part.height() * dotsPerPoint.height()),
                 QImage::Format_RGB32);
    image.fill(Qt::white);
    if (image.isNull() || label >= plan.labels.size()) {
        return image;
    }
    QPainter painter(&image);
    painter.scale(dotsPerPoint.width(), dotsPerPoint.height());
    painter.translate(-part.topLeft());
    drawPages(painter, plan.labels[label], pictures);
    painter.end();
    return image.convertToFormat(QImage::Format_Grayscale8);
}

PagePictures renderedAt(const QSizeF &dotsPerPoint, std::vector<const job::PdfPages *> documents)
{
    const double scale = std::max(dotsPerPoint.width(), dotsPerPoint.height());
    return [scale, documents = std::move(documents)](const job::PlacedPage &page) {
        static const std::atomic<bool> goOn = false;
        const job::PdfPages *document = page.document < documents.size() ? documents[page.document] : nullptr;
        return document == nullptr ? job::RenderedPage() : document->render(page.page, scale * scaleOf(page), goOn);
    };
}

QImage inkLayer(const QImage &picture, const QColor &ink)
{
    QImage layer = picture.convertToFormat(QImage::Format_RGB32).convertToFormat(QImage::Format_ARGB32);
    const QRgb colour = ink.rgb() & RGB_MASK;
    constexpr int white = 255;
    constexpr int alphaBits = 24;
    for (int y = 0; y < layer.height(); ++y) {
        auto *line = reinterpret_cast<QRgb *>(layer.scanLine(y));
        std::transform(line, line + layer.width(), line,
                       [colour](QRgb dot) { return colour | static_cast<QRgb>(white - qGray(dot)) << alphaBits; });
    }
    return layer;
}

} // namespace tapeprint::dialog
