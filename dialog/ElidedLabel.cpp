// SPDX-License-Identifier: Apache-2.0
// Dots at the end of what is too long, and the whole in a tooltip made as it is asked for.
#include "dialog/ElidedLabel.h"

#include "dialog/PlainText.h"

#include <QHelpEvent>
#include <QStyle>
#include <QStylePainter>
#include <QToolTip>

#include <algorithm>

namespace tapeprint::dialog
{

namespace
{

constexpr int leastLetters = 4;

} // namespace

ElidedLabel::ElidedLabel(QWidget *parent) : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
}

bool ElidedLabel::isCut() const
{
    return fontMetrics().horizontalAdvance(text()) > contentsRect().width();
}

QSize ElidedLabel::minimumSizeHint() const
{
    const QSize whole = QLabel::minimumSizeHint();
    return {std::min(whole.width(), leastLetters * fontMetrics().averageCharWidth()), whole.height()};
}

bool ElidedLabel::event(QEvent *event)
{
    if (event->type() == QEvent::ToolTip && toolTip().isEmpty() && isCut()) {
        QToolTip::showText(static_cast<QHelpEvent *>(event)->globalPos(), plainToolTip(text()), this);
        return true;
    }
    return QLabel::event(event);
}

void ElidedLabel::paintEvent(QPaintEvent *event)
{
    if (!isCut()) {
        QLabel::paintEvent(event);
        return;
    }
    QStylePainter painter(this);
    const QRect place = contentsRect();
    const QString shown = fontMetrics().elidedText(text(), Qt::ElideRight, place.width());
    const auto aligned = static_cast<int>(QStyle::visualAlignment(layoutDirection(), this->alignment()));
    painter.drawItemText(place, aligned, palette(), isEnabled(), shown, foregroundRole());
}

} // namespace tapeprint::dialog
