// SPDX-License-Identifier: Apache-2.0
// A page of what any job can be asked for: its title, which pages in which order, and when it is printed.
#pragma once

#include "job/Job.h"

#include <QWidget>

class QCheckBox;
class QComboBox;
class QFormLayout;
class QLabel;
class QLineEdit;
class QSpinBox;
class QTimeEdit;

namespace tapeprint::dialog
{

class JobPage : public QWidget
{
    Q_OBJECT

public:
    /// \param job not owned; the page shows its options and asks for changes of them. \param documentTitle the title of
    /// a job that is given none.
    JobPage(const job::Job &job, const QString &documentTitle, QWidget *parent);

    /// The controls follow the job's options. What the person is typing stays.
    void follow();

    /// Whether what is typed can be printed. When not, the field says why and takes the focus.
    bool isReady();

Q_SIGNALS:
    /// The person set an option of the job.
    void picked(const QString &key, const QString &value);
    /// The person took an option of the job back.
    void dropped(const QString &key);

private:
    void addPages(QFormLayout *form);
    void addQueue(QFormLayout *form);
    void pick(const QString &key, const QString &value);
    void showPagesProblem();
    void pickPages(const QString &typed);
    void pickCollating(bool collated);
    void pickHold();
    void followPages();
    void followQueue();
    void followHold();
    QString chosenPages() const;

    const job::Job &mJob;
    QLineEdit *mTitle = nullptr;
    // Null where the printer has no description: then nobody chooses pages out of a document.
    QLineEdit *mPages = nullptr;
    QLabel *mPagesProblem = nullptr;
    QComboBox *mPageSet = nullptr;
    QCheckBox *mReverse = nullptr;
    QCheckBox *mCollate = nullptr;
    // Null where the job goes to no queue.
    QSpinBox *mPriority = nullptr;
    QComboBox *mHold = nullptr;
    QTimeEdit *mHoldTime = nullptr;
    QLineEdit *mBilling = nullptr;
};

} // namespace tapeprint::dialog
