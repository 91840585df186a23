// SPDX-License-Identifier: Apache-2.0
// Items are made when they are asked for.
#include "dialog/ChoiceModel.h"

#include "dialog/PlainText.h"

#include <algorithm>

namespace tapeprint::dialog
{

ChoiceModel::ChoiceModel(const job::OfferedOption &option, QObject *parent)
    : QAbstractListModel(parent), mChoices(option.choices), mHasCustom(!option.customValues.empty())
{
}

int ChoiceModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(mChoices.size()) + (mHasCustom ? 1 : 0);
}

QVariant ChoiceModel::data(const QModelIndex &index, int role) const
{
    const auto row = static_cast<std::size_t>(index.row());
    const bool isCustom = row >= mChoices.size();
    switch (role) {
    case Qt::DisplayRole:
        return isCustom ? tr("Custom…", "a choice that opens fields for a value of one's own") : mChoices[row].text;
    case Qt::ToolTipRole:
        return isCustom ? QVariant() : plainToolTip(mChoices[row].text);
    case Qt::UserRole:
        return isCustom ? QVariant() : mChoices[row].keyword;
    default:
        return {};
    }
}

int ChoiceModel::rowOf(const QString &keyword) const
{
    const auto found = std::find_if(mChoices.begin(), mChoices.end(),
                                    [&keyword](const job::OfferedChoice &choice) { return choice.keyword == keyword; });
    return found == mChoices.end() ? -1 : static_cast<int>(found - mChoices.begin());
}

} // namespace tapeprint::dialog
