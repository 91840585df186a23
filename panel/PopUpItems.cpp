// SPDX-License-Identifier: Apache-2.0
// The items of a pop-up while it is being filled.
#include "panel/PopUpItems.h"

void PopUpItems::replaceItem(std::size_t index, const QString &title)
{
    if (index < mItems.size()) {
        if (mTitlesAreIndexed) {
            mPlacesOfTitle[mItems[index].title].erase(placeOf(index));
        }
        mItems[index] = {title, {}};
    } else {
        index = mItems.size();
        mItems.push_back({title, {}});
    }
    indexTitle(index);
}

void PopUpItems::insertAtFront(std::span<const QString> titles)
{
    for (auto title = titles.rbegin(); title != titles.rend(); ++title) {
        mItems.push_front({*title, {}});
        ++mInsertedAtFront;
        indexTitle(0);
    }
}

void PopUpItems::setImageOfItemWithTitle(const QString &title, const QIcon &image)
{
    indexTitles();
    const auto places = mPlacesOfTitle.constFind(title);
    if (places == mPlacesOfTitle.constEnd() || places->empty()) {
        return;
    }
    Item &item = mItems[static_cast<std::size_t>(*places->begin() + mInsertedAtFront)];
    // Whether an image can be shown is asked only where it decides: it may have to be read for that.
    if (item.image.isNull() || !image.isNull()) {
        item.image = image;
    }
}

void PopUpItems::indexTitles()
{
    if (mTitlesAreIndexed) {
        return;
    }
    mTitlesAreIndexed = true;
    for (std::size_t i = 0; i < mItems.size(); ++i) {
        indexTitle(i);
    }
}

void PopUpItems::indexTitle(std::size_t index)
{
    if (mTitlesAreIndexed) {
        mPlacesOfTitle[mItems[index].title].insert(placeOf(index));
    }
}
