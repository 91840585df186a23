// SPDX-License-Identifier: Apache-2.0
// Frame, text and arrow are the style's own, each drawn by itself.
#include "dialog/MenuButton.h"

#include <QStyleOptionToolButton>
#include <QStylePainter>

namespace tapeprint::dialog
{

namespace
{

constexpr int arrowSize = 8;
constexpr int besideArrow = 4;

} // namespace

MenuButton::MenuButton(QWidget *parent) : QToolButton(parent)
{
    setPopupMode(QToolButton::InstantPopup);
    setFocusPolicy(Qt::StrongFocus);
}

void MenuButton::setShowsArrow(bool shows)
{
    mShowsArrow = shows;
    updateGeometry();
}

QSize MenuButton::sizeHint() const
{
    return QToolButton::sizeHint() + QSize(mShowsArrow ? arrowSize + besideArrow : 0, 0);
}

void MenuButton::paintEvent(QPaintEvent * /*event*/)
{
    QStylePainter painter(this);
    QStyleOptionToolButton option;
    initStyleOption(&option);
    option.features &= ~QStyleOptionToolButton::HasMenu; // its arrow is the one in the corner
    if (!mShowsArrow) {
        painter.drawComplexControl(QStyle::CC_ToolButton, option);
        return;
    }
    QStyleOptionToolButton frame(option);
    frame.text.clear();
    painter.drawComplexControl(QStyle::CC_ToolButton, frame);

    const QRect arrow(width() - arrowSize - besideArrow, (height() - arrowSize) / 2, arrowSize, arrowSize);
    const QRect beforeArrow(0, 0, arrow.left(), height());
    option.rect = QStyle::visualRect(layoutDirection(), rect(), beforeArrow);
    painter.drawControl(QStyle::CE_ToolButtonLabel, option);
    option.rect = QStyle::visualRect(layoutDirection(), rect(), arrow);
    painter.drawPrimitive(QStyle::PE_IndicatorArrowDown, option);
}

} // namespace tapeprint::dialog
