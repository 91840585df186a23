// SPDX-License-Identifier: Apache-2.0
// The middle of the window: the pages of settings, and what comes of them.
#pragma once

#include <QWidget>

class QBoxLayout;
class QScrollArea;
class QStackedWidget;

namespace tapeprint::dialog
{

class SameWidth;
class ScrollingColumn;

/// Pages and result side by side. On a screen that is too narrow for a page beside the result, such as a panel that is
/// as wide as its maker made it, the result lies below the pages: nothing has to be scrolled sideways then.
class MiddleArea : public QWidget
{
    Q_OBJECT

public:
    using QWidget::QWidget;

    /// \param pagesArea where the pages are, with what stands above them. \param scroller what scrolls the pages.
    void setPages(QWidget *pagesArea, QScrollArea *scroller, QStackedWidget *pages);
    /// \param rows follow the result as long as it stands beside the pages.
    void setResult(ScrollingColumn *result, SameWidth *rows);

    /// Lays the result below the pages if that brings a page into the window whole.
    /// \param room for the window's contents.
    void arrange(const QSize &room);

protected:
    bool event(QEvent *event) override;

private:
    /// Of the result. Modestly: it leaves the pages whatever it can do without.
    enum class Place { Beside, BesideModestly, Below };

    QSize tooWide(int width) const;
    void setPlace(Place place, int leastPages);

    QBoxLayout *mLayout = nullptr;
    QWidget *mPagesArea = nullptr;
    QScrollArea *mScroller = nullptr;
    QStackedWidget *mPages = nullptr;
    ScrollingColumn *mResult = nullptr;
    SameWidth *mRows = nullptr;
    QSize mRoom; ///< that there was last
    Place mPlace = Place::Beside;
    int mLeastPages = 0; ///< in pixels, beside the result
    int mUsualWidth = 0; ///< that the result would like beside the pages
    int mLeastWidth = 0; ///< that it needs there
};

} // namespace tapeprint::dialog
