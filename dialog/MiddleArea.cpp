// SPDX-License-Identifier: Apache-2.0
// Which of the two it is follows from what all pages need, not from the one that is seen: the window does not change
// under a person who turns the pages.
#include "dialog/MiddleArea.h"

#include "dialog/SameWidth.h"
#include "dialog/ScrollingColumn.h"

#include <QBoxLayout>
#include <QEvent>
#include <QScrollArea>
#include <QStackedWidget>

namespace tapeprint::dialog
{

namespace
{

constexpr int smallGap = 4;
constexpr QSize leastBeside(250, 64);
/// A short summary with a tape beside it.
constexpr QSize leastBelow(250, 96);

} // namespace

void MiddleArea::setPages(QWidget *pagesArea, QScrollArea *scroller, QStackedWidget *pages)
{
    mPagesArea = pagesArea;
    mScroller = scroller;
    mPages = pages;
    mLeastPages = scroller->minimumHeight();
    mLayout = new QBoxLayout(QBoxLayout::LeftToRight, this);
    mLayout->setContentsMargins({});
    mLayout->setSpacing(smallGap);
    mLayout->addWidget(pagesArea);
}

void MiddleArea::setResult(ScrollingColumn *result, SameWidth *rows)
{
    mResult = result;
    mRows = rows;
    mLayout->addWidget(result);
    setPlace(Place::Beside, mLeastPages);
}

bool MiddleArea::event(QEvent *event)
{
    const bool isDone = QWidget::event(event);
    if (event->type() == QEvent::LayoutRequest && mRoom.isValid()) { // something in it needs more or less than before
        arrange(mRoom);
    }
    return isDone;
}

void MiddleArea::arrange(const QSize &room)
{
    mRoom = room;
    if (mPlace != Place::Below) {
        mUsualWidth = mResult->usualWidth();
        mLeastWidth = mResult->minimumSizeHint().width();
    }
    const QMargins margins = window()->layout()->contentsMargins();
    const QSize own(room.width() - margins.left() - margins.right(),
                    room.height() - (window()->minimumSizeHint().height() - minimumSizeHint().height()));
    const QSize needed = tooWide(own.width() - smallGap - mLeastWidth);
    const int abovePages = mPagesArea->minimumSizeHint().height() - mScroller->minimumHeight();
    const int height = needed.height() + abovePages + smallGap + leastBelow.height();
    Place place = Place::Beside;
    int leastPages = mLeastPages;
    if (!needed.isEmpty() && needed.width() <= own.width() && height <= own.height()) {
        place = Place::Below;
        leastPages = needed.height();
    } else if (needed.isEmpty() && !tooWide(own.width() - smallGap - mUsualWidth).isEmpty()) {
        place = Place::BesideModestly;
    }
    if (place != mPlace || leastPages != mScroller->minimumHeight()) {
        setPlace(place, leastPages);
    }
}

/// \return the room that the pages need which are wider; nothing when none is.
QSize MiddleArea::tooWide(int width) const
{
    const int frame = 2 * mScroller->frameWidth();
    QSize needed;
    for (int i = 0; i < mPages->count(); ++i) {
        const QWidget *page = mPages->widget(i);
        const QSize least = page->minimumSizeHint().expandedTo(page->minimumSize()) + QSize(frame, frame);
        if (least.width() > width) {
            needed = needed.expandedTo(least);
        }
    }
    return needed;
}

/// \param leastPages the height below which the pages scroll.
void MiddleArea::setPlace(Place place, int leastPages)
{
    mPlace = place;
    const bool isBelow = place == Place::Below;
    mLayout->setDirection(isBelow ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
    // Below, the pages get what they need, and the result what is left.
    mLayout->setStretchFactor(mResult, isBelow ? 1 : 0);
    mScroller->setMinimumHeight(leastPages);
    mResult->setLeastSize(isBelow ? leastBelow : leastBeside);
    mResult->setIsLying(isBelow);
    mResult->setIsModest(place == Place::BesideModestly);
    mRows->follow(isBelow ? nullptr : mResult);
}

} // namespace tapeprint::dialog
