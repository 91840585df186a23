// SPDX-License-Identifier: Apache-2.0
// One label at scale, with the pages on it and its measures beside it: tape lying on its side, paper standing.
#pragma once

#include "dialog/LabelPicture.h"
#include "dialog/TapeLook.h"
#include "job/LabelPlan.h"

#include <QWidget>

#include <vector>

class QPainterPath;

namespace tapeprint::dialog
{

/// What there is to draw.
struct ShownLabel {
    job::TapePage page; ///< nothing is drawn when it is empty
    job::Label label;   ///< the pages on it
    QRectF contentPt;   ///< what of the label they cover
    bool isCutOff = false;
    TapeLook look;
    QString position = {}; ///< which label of how many, in words; empty for the only one
};

class TapePreview : public QWidget
{
    Q_OBJECT

public:
    explicit TapePreview(QWidget *parent = nullptr);

    void showLabel(ShownLabel label);
    /// Whether the printer is one that is loaded with tape, whatever the page in it: it is then called tape.
    void setIsTapePrinter(bool isTapePrinter);
    /// Where pictures of pages come from; asked at each painting. Call update() when others have come.
    void setPictures(PagePictures pictures) { mPictures = std::move(pictures); }

    /// The scale of the drawing: dots of the screen to a point of the label.
    double dotsPerPoint() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    /// The drawing takes another scale because the widget was resized.
    void scaleChanged();

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    /// A stretch of the label as it is drawn: from and to in the drawing's own dots, and where its beginning comes to.
    struct Stretch {
        double from;
        double to;
        double at;
    };

    bool isPaper() const;
    QString describe() const;
    QRectF room() const;
    QSizeF drawnSizePt() const;
    double scale() const;
    std::vector<Stretch> stretches(double width, double length) const;
    QTransform fromLabel() const;
    QImage inkOf(const QTransform &fromLabel, const QRectF &on, bool isClipped) const;
    void drawStretch(QPainter &painter, const QPainterPath &outline, const QTransform &fromLabel);
    void drawBase(QPainter &painter, const QPainterPath &outline) const;
    void drawInk(QPainter &painter, const QTransform &fromLabel, const QRectF &on, bool isClipped) const;
    void drawLimits(QPainter &painter, const QTransform &fromLabel) const;
    void drawMeasures(QPainter &painter, const QRectF &strip) const;

    void nameIt();

    ShownLabel mShown;
    bool mIsTapePrinter = false;
    PagePictures mPictures;
    QString mLengthText; ///< beside the drawing's width
    QString mWidthText;  ///< beside its height
};

} // namespace tapeprint::dialog
