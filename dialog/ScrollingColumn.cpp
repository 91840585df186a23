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

void ScrollingColumn::setIsLying(bool isLying)
{
    mIsLying = isLying;
    const auto direction = isLying ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom;
    mColumn->setDirection(direction);
    for (int i = 0; i < mColumn->count(); ++i) { // and what stands together in it
        if (auto *inner = qobject_cast<QBoxLayout *>(mColumn->itemAt(i)->layout()); inner != nullptr) {
            inner->setDirection(direction);
        }
    }
    updateGeometry();
}

void ScrollingColumn::setIsModest(bool isModest)
{
    if (isModest != mIsModest) {
        mIsModest = isModest;
        updateGeometry();
    }
}

void ScrollingColumn::setLeastSize(const QSize &size)
{
    mLeast = size;
    updateGeometry();
}

QSize ScrollingColumn::sizeHint() const
{
    const QSize whole = widget()->sizeHint();
    return {mIsModest ? minimumSizeHint().width() : whole.width(),
            mIsLying ? std::max(mLeast.height(), widget()->minimumSizeHint().height()) : whole.height()};
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
