// SPDX-License-Identifier: Apache-2.0
// The picture of a label: pages put where the plan says, without a widget. The preview and whoever compares it with
// what a printer's filters make draw with the same functions.
#pragma once

#include "job/LabelPlan.h"
#include "job/PdfPages.h"

#include <QColor>
#include <QImage>
#include <QSizeF>

#include <functional>
#include <vector>

class QPainter;

namespace tapeprint::dialog
{

/// Hands out the picture of a page, at whatever scale; null when there is none.
using PagePictures = std::function<job::RenderedPage(const job::PlacedPage &page)>;

/// How much larger a page is on its label.
double scaleOf(const job::PlacedPage &page);

/// Whether a page is cut off: something of a part of it lies outside of what it may cover.
/// \param partPt the part that counts, in points of the page: all of it, or what is drawn on.
bool isCutOff(const job::PlacedPage &page, const QRectF &partPt);

/// Draws a label's pages. \param painter whose units are points of the label. \param isClipped whether what is cut off
/// stays undrawn, as it does in the printer.
void drawPages(QPainter &painter, const job::Label &label, const PagePictures &pictures, bool isClipped = true);

/// A label as it comes out: black ink on white, the page standing, without the turn by which tape lies in the preview.
/// \param dotsPerPoint across and along. \param partPt the part of the page, in points; an empty one means the whole.
/// The picture has as many dots as the filters make of that part (half a dot goes down); its top left is the part's.
QImage renderLabel(const job::LabelPlan &plan, std::size_t label, const PagePictures &pictures,
                   const QSizeF &dotsPerPoint, const QRectF &partPt = QRectF());

/// Pictures that are rendered when they are asked for, for a label drawn at this scale.
/// \param documents not owned; those of the plan, null where one cannot be shown.
PagePictures renderedAt(const QSizeF &dotsPerPoint, std::vector<const job::PdfPages *> documents);

/// Ink on nothing: opaque where the picture is black, transparent where it is white, whatever its colours are.
QImage inkLayer(const QImage &picture, const QColor &ink);

} // namespace tapeprint::dialog
