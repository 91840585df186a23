// SPDX-License-Identifier: Apache-2.0
// Layouts are walked, not places on the screen: a mirrored window and one that was never shown have the same order.
#include "dialog/TabOrder.h"

#include <QGridLayout>
#include <QScrollArea>
#include <QWidget>

#include <algorithm>
#include <vector>

namespace tapeprint::dialog
{

namespace
{

/// The items of a layout in the order of reading. Those of a grid stand in the order in which they were put there.
std::vector<QLayoutItem *> itemsOf(QLayout &layout)
{
    struct Placed {
        int row;
        int column;
        QLayoutItem *item;
    };
    std::vector<Placed> placed;
    auto *grid = qobject_cast<QGridLayout *>(&layout);
    for (int i = 0; i < layout.count(); ++i) {
        Placed next{0, 0, layout.itemAt(i)};
        if (grid != nullptr) {
            int rows = 0;
            int columns = 0;
            grid->getItemPosition(i, &next.row, &next.column, &rows, &columns);
        }
        placed.push_back(next);
    }
    std::stable_sort(placed.begin(), placed.end(), [](const Placed &left, const Placed &right) {
        return left.row != right.row ? left.row < right.row : left.column < right.column;
    });
    std::vector<QLayoutItem *> items;
    items.reserve(placed.size());
    for (const Placed &next : placed) {
        items.push_back(next.item);
    }
    return items;
}

class Walk
{
public:
    explicit Walk(const QWidget *keepOrder) : mKeepOrder(keepOrder) {}

    void through(QWidget *widget)
    {
        if (widget == mKeepOrder) {
            throughMade(*widget);
            return;
        }
        if (widget->focusPolicy() != Qt::NoFocus) {
            mStops.push_back(widget);
        }
        if (auto *area = qobject_cast<QScrollArea *>(widget); area != nullptr && area->widget() != nullptr) {
            through(area->widget());
        } else if (widget->layout() != nullptr) {
            through(*widget->layout());
        }
    }

    const std::vector<QWidget *> &stops() const { return mStops; }

private:
    void through(QLayout &layout)
    {
        for (QLayoutItem *item : itemsOf(layout)) {
            if (item->widget() != nullptr) {
                through(item->widget());
            } else if (item->layout() != nullptr) {
                through(*item->layout());
            }
        }
    }

    void throughMade(const QWidget &kept)
    {
        for (QWidget *next = kept.nextInFocusChain(); next != &kept; next = next->nextInFocusChain()) {
            if (kept.isAncestorOf(next) && next->focusPolicy() != Qt::NoFocus) {
                mStops.push_back(next);
            }
        }
    }

    const QWidget *mKeepOrder;
    std::vector<QWidget *> mStops;
};

} // namespace

void orderTabsByLayout(QWidget &window, const QWidget *keepOrder)
{
    Walk walk(keepOrder);
    if (window.layout() != nullptr) {
        walk.through(&window);
    }
    QWidget *last = nullptr;
    for (QWidget *stop : walk.stops()) {
        if (last != nullptr) {
            QWidget::setTabOrder(last, stop);
        }
        last = stop;
    }
}

} // namespace tapeprint::dialog
