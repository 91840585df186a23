// SPDX-License-Identifier: Apache-2.0
// A page of how documents lie on tape or paper: size, turn, place, and how many pages go on a label or sheet.
#pragma once

#include "job/Job.h"

#include <QWidget>

class QComboBox;
class QFormLayout;

namespace tapeprint::dialog
{

class LayoutPage : public QWidget
{
    Q_OBJECT

public:
    /// \param job not owned; the page shows its options and asks for changes of them.
    LayoutPage(const job::Job &job, QWidget *parent);

    /// The pop-ups follow the job's options.
    void follow();

Q_SIGNALS:
    /// The person picked something: an option of the job and its value.
    void picked(const QString &key, const QString &value);

private:
    void addSizes(QFormLayout *form);
    void addTurns(QFormLayout *form);
    void addPlaces(QFormLayout *form);
    void addNumbers(QFormLayout *form);
    /// \param option what a pick of the pop-up sets; null: whoever made it says.
    QComboBox *addPopUp(QFormLayout *form, const QString &label, const char *name, const QString &option = QString());
    QString chosenOr(const QString &option, const QString &usual) const;
    void pickPlace();

    const job::Job &mJob;
    const bool mIsTape;
    QComboBox *mSize = nullptr;
    QComboBox *mTurn = nullptr;
    QComboBox *mAlong = nullptr;  ///< for tape alone, as the next
    QComboBox *mAcross = nullptr; ///< filters turn and place pages on paper by themselves
    QComboBox *mNumber = nullptr;
    QComboBox *mOrder = nullptr;
    QComboBox *mBorder = nullptr; ///< for paper alone: filters draw it
};

} // namespace tapeprint::dialog
