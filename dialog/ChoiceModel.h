// SPDX-License-Identifier: Apache-2.0
// The choices of an option for a pop-up, which asks for those that it shows: ten thousand cost no more than ten.
#pragma once

#include "job/OptionGroups.h"

#include <QAbstractListModel>

namespace tapeprint::dialog
{

class ChoiceModel : public QAbstractListModel
{
    Q_OBJECT

public:
    /// \param option a last item stands for a value of one's own when it takes one.
    ChoiceModel(const job::OfferedOption &option, QObject *parent);

    int rowCount(const QModelIndex &parent = {}) const override;
    /// The text, and the keyword as user data; null for the item of own values.
    QVariant data(const QModelIndex &index, int role) const override;

    /// The row of a choice's keyword; -1 when there is none.
    int rowOf(const QString &keyword) const;
    /// The row of own values; -1 when the option takes none.
    int customRow() const { return mHasCustom ? static_cast<int>(mChoices.size()) : -1; }

private:
    std::vector<job::OfferedChoice> mChoices;
    bool mHasCustom;
};

} // namespace tapeprint::dialog
