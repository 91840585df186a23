// SPDX-License-Identifier: Apache-2.0
// The tape at scale, lying on its side, with the document's first page on it and its measures beside it.
#pragma once

#include "dialog/PageRenderer.h"
#include "job/JobOptions.h"

#include <QWidget>

#include <optional>

#include <pdekit/PrintingCore.h>

class QPainterPath;

namespace tapeprint::dialog
{

/// The dialog does not know a tape's colour: the tape is drawn in the colours of the person's theme.
class TapePreview : public QWidget
{
    Q_OBJECT

public:
    explicit TapePreview(QWidget *parent = nullptr);

    /// Shows a document's first page as soon as it is rendered. A document that cannot be rendered leaves the tape
    /// empty.
    void setDocument(const QString &path) { mRenderer.start(path); }
    /// Shows the tape of a job. \param paper the page format's; no tape is drawn without one. \param job its tape
    /// length, when it has one, is the paper's length.
    void follow(const std::optional<pdekit::Paper> &paper, const job::JobOptions &job);

    /// Whether the document is still being rendered.
    bool isRendering() const { return mRenderer.isRunning(); }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void showPage(const QImage &page);
    void layPage();
    QRectF room() const;
    void drawBroken(QPainter &painter, const QRectF &strip, double scale);
    void drawPiece(QPainter &painter, const QPainterPath &piece, const QRectF &page);
    QRectF placeOfPage(const QRectF &tape, double scale) const;
    void drawMeasures(QPainter &painter, const QRectF &strip) const;

    PageRenderer mRenderer;
    QSizeF mTapePt; ///< length by width; empty when there is no tape
    QString mLengthText;
    QString mWidthText;
    QImage mRendered; ///< as rendered; null when there is none
    QImage mPage;     ///< as it lies on the tape drawn
    QSizeF mPagePt;   ///< its size
    QImage mScaled;   ///< mPage in the size last drawn
};

} // namespace tapeprint::dialog
