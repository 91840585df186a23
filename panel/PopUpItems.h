// SPDX-License-Identifier: Apache-2.0
// The items of a pop-up while it is being filled, without a widget: replacing, inserting, and finding by title, each
// in a time that does not grow with the square of the items.
#pragma once

#include <QHash>
#include <QIcon>
#include <QString>

#include <cstdint>
#include <deque>
#include <set>
#include <span>

class PopUpItems
{
public:
    struct Item {
        QString title;
        QIcon image;
    };

    /// Removes the item at an index, if there is one, and inserts the title there.
    void replaceItem(std::size_t index, const QString &title);
    /// Inserts titles at the indexes 0, 1, 2, ... before what is there.
    void insertAtFront(std::span<const QString> titles);
    /// Gives an image to the first item with that title. A null image takes none away.
    void setImageOfItemWithTitle(const QString &title, const QIcon &image);

    const std::deque<Item> &items() const { return mItems; }

private:
    /// Places count from where the first item stood at the beginning, so that inserting at the front moves none.
    using Place = std::int64_t;
    Place placeOf(std::size_t index) const { return static_cast<Place>(index) - mInsertedAtFront; }
    /// Pop-ups without images never pay for finding titles.
    void indexTitles();
    void indexTitle(std::size_t index);

    std::deque<Item> mItems;
    Place mInsertedAtFront = 0;
    bool mTitlesAreIndexed = false;
    QHash<QString, std::set<Place>> mPlacesOfTitle;
};
