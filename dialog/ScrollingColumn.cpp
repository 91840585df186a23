// SPDX-License-Identifier: Apache-2.0
// A scroll area gives a column with wrapped texts its usual height and never less, unless it is told the least height
// itself.
#include "dialog/ScrollingColumn.h"

#include <QResizeEvent>
#include <QVBoxLayout>

#include <algorithm>

namespace tapeprint::dialog
{

namespace
{

/// Hides from the scroll area that the height depends on the width, and asks for the least height at its width.
class Column : public QWidget
{
public:
    using QWidget::QWidget;

    bool hasHeightForWidth() const override { return false; }

    QSize minimumSizeHint() const override
    {
        const QSize least = layout()->minimumSize();
        return layout()->hasHeightForWidth() ? QSize(least.width(), layout()->minimumHeightForWidth(width())) : least;
    }

protected:
    void resizeEvent(QResizeEvent *event) override
    {
        QWidget::resizeEvent(event);
        if (event->size().width() != event->oldSize().width()) {
            updateGeometry();
        }
    }
};

} // namespace

ScrollingColumn::ScrollingColumn(QWidget *parent) : QScrollArea(parent)
{
    setWidgetResizable(true);
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFocusPolicy(Qt::NoFocus); // what is in it takes the keys, and is scrolled to
    auto *content = new QWidget;
    auto *outer = new QVBoxLayout(content);
    outer->setContentsMargins({});
    auto *column = new Column(content);
    mColumn = new QVBoxLayout(column);
    mColumn->setContentsMargins({});
    outer->addWidget(column);
    setWidget(content);
}

QSize ScrollingColumn::sizeHint() const
{
    return widget()->sizeHint();
}

QSize ScrollingColumn::minimumSizeHint() const
{
    return {std::max(widget()->minimumSizeHint().width(), mLeast.width()), mLeast.height()};
}

bool ScrollingColumn::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == widget() && event->type() == QEvent::LayoutRequest) {
        updateGeometry();
    }
    return QScrollArea::eventFilter(watched, event);
}

} // namespace tapeprint::dialog
