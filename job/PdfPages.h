// SPDX-License-Identifier: Apache-2.0
// A PDF document's pages: how many, how large, what they look like, and what of them is drawn on. For the preview and
// for the length that a document needs.
#pragma once

#include "job/Problem.h"

#include <QImage>
#include <QRectF>
#include <QSizeF>
#include <QString>

#include <atomic>
#include <memory>
#include <optional>

namespace tapeprint::job
{

/// A picture of a page or of a part of it, and the rectangle of the page that it shows, dot for dot: in points from the
/// page's top left. It is the part asked for widened to whole dots, and so may begin or end up to a dot beyond the
/// page.
struct RenderedPage {
    QImage image; ///< opaque, on white; null when there is none
    QRectF rectPt;
};

/// Used by one thread at a time. Opened and rendered away from a window's thread.
class PdfPages
{
public:
    ~PdfPages();
    PdfPages(const PdfPages &) = delete;
    PdfPages &operator=(const PdfPages &) = delete;

    /// Opens a document, which is only read. \param error takes a sentence about one that is no PDF, is broken, wants a
    /// password, or has no page. \param shownAs how the sentence names it; null: by its path.
    static std::unique_ptr<PdfPages> open(const QString &path, Problem *error, const QString &shownAs = QString());

    int count() const;
    /// The size of a page as it is read, /Rotate applied, in points; empty for a page that is broken. Which of its
    /// boxes is the page says PageBox.h.
    QSizeF sizePt(int page) const;

    /// Renders a part of a page on white, anti-aliased. \param dotsPerPoint scale; \param partPt the part, in points
    /// from the page's top left; an empty one means the whole page. \param stop when it becomes true, rendering ends
    /// and the picture is null. \return a null picture as well for a page that is broken or a picture larger than
    /// memory should hold (64 million dots).
    RenderedPage render(int page, double dotsPerPoint, const std::atomic<bool> &stop,
                        const QRectF &partPt = QRectF()) const;

    /// The rectangle of a page that is drawn on (not white), in points from its top left; nothing when the page is
    /// blank or when it was stopped. The rectangle is never smaller than what is drawn, and larger by less than a dot
    /// of 300 dots an inch at each side; of a page of more than a square metre by a little more.
    std::optional<QRectF> drawnRect(int page, const std::atomic<bool> &stop) const;

private:
    struct Document;
    explicit PdfPages(std::unique_ptr<Document> document);
    std::unique_ptr<Document> mDocument;
};

} // namespace tapeprint::job
