// SPDX-License-Identifier: Apache-2.0
// A page of how documents lie on tape: size, turn, and place along and across.
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
    QComboBox *addPopUp(QFormLayout *form, const QString &label, const char *name);
    void pickPlace();

    const job::Job &mJob;
    QComboBox *mSize = nullptr;
    QComboBox *mTurn = nullptr;
    QComboBox *mAlong = nullptr;
    QComboBox *mAcross = nullptr;
};

} // namespace tapeprint::dialog
