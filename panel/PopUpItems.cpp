// SPDX-License-Identifier: Apache-2.0
// The items of a pop-up while it is being filled.
#include "panel/PopUpItems.h"

void PopUpItems::replaceItem(std::size_t index, const QString &title)
{
    if (index < mItems.size()) {
        mPlacesOfTitle[mItems[index].title].erase(placeOf(index));
        mItems[index] = {title, {}};
    } else {
        index = mItems.size();
        mItems.push_back({title, {}});
    }
    mPlacesOfTitle[title].insert(placeOf(index));
}

void PopUpItems::insertAtFront(std::span<const QString> titles)
{
    for (auto title = titles.rbegin(); title != titles.rend(); ++title) {
        mItems.push_front({*title, {}});
        ++mInsertedAtFront;
        mPlacesOfTitle[*title].insert(placeOf(0));
    }
}

void PopUpItems::setImageOfItemWithTitle(const QString &title, const QIcon &image)
{
    const auto places = mPlacesOfTitle.constFind(title);
    if (places != mPlacesOfTitle.constEnd() && !places->empty()) {
        mItems[static_cast<std::size_t>(*places->begin() + mInsertedAtFront)].image = image;
    }
}
