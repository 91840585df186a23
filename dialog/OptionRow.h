// SPDX-License-Identifier: Apache-2.0
// The controls of one PPD option: a pop-up, with fields for a value of one's own where it takes one, or check boxes
// where it takes several choices; and beside them a mark while the option is in a conflict.
#pragma once

#include "job/Job.h"
#include "job/OptionGroups.h"

#include <QWidget>

#include <vector>

class QCheckBox;
class QLabel;

namespace tapeprint::dialog
{

class ChoiceModel;
class CustomFields;
class MeasureUnit;
class PopUp;

class OptionRow : public QWidget
{
    Q_OBJECT

public:
    /// \param unit not owned; of lengths.
    OptionRow(const job::OfferedOption &option, const MeasureUnit &unit, QWidget *parent);

    const QString &key() const { return mKey; }
    /// The control that the option's name leads to.
    QWidget *firstControl() const;
    /// The controls follow the job.
    void follow(const job::Job &job);
    /// A sentence about a conflict; null takes the mark away.
    void markConflict(const QString &sentence);
    /// Takes over what is being typed.
    void commit();

Q_SIGNALS:
    /// The person picked a choice, or entered a value.
    void picked(const QString &key, const QString &value);

private:
    void makePopUp(const job::OfferedOption &option, const MeasureUnit &unit);
    void makeBoxes(const job::OfferedOption &option);
    void pickRow(int row);
    void pickBoxes(QCheckBox *clicked);

    QString mKey;
    PopUp *mPopUp = nullptr;         ///< null where there are check boxes
    ChoiceModel *mChoices = nullptr; ///< the pop-up's
    std::vector<QCheckBox *> mBoxes;
    CustomFields *mFields = nullptr; ///< null where there are no own values
    bool mWantsOwn = false;          ///< the person picked "Custom…", and the job may have no such value yet
    QString mFollowed;               ///< the job's value when it was last looked at
    QLabel *mMark = nullptr;
};

} // namespace tapeprint::dialog
