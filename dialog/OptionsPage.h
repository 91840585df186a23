// SPDX-License-Identifier: Apache-2.0
// A page made from the PPD: every option that neither a panel nor the dialog's own controls show, in the PPD's groups;
// what is built into the printer stands below, apart from what is the job's.
#pragma once

#include "dialog/MeasureUnit.h"
#include "dialog/Panels.h"
#include "job/Job.h"
#include "job/OptionGroups.h"

#include <QHash>
#include <QTimer>
#include <QWidget>

#include <vector>

class QFormLayout;
class QVBoxLayout;

namespace tapeprint::dialog
{

class OptionRow;

class OptionsPage : public QWidget
{
    Q_OBJECT

public:
    /// \param job not owned; the page shows its PPD as it is now and is remade with another. \param panels what they
    /// announced is left to them. \param unit not owned; of lengths.
    OptionsPage(const job::Job &job, const Panels &panels, const MeasureUnit &unit, QWidget *parent);

    bool isEmpty() const { return mGroups.empty(); }
    /// The controls follow the PPD's marks.
    void follow();
    /// Marks the options that are in conflict. \param sentences by keyword, what they do not go with.
    void markConflicts(const QHash<QString, QString> &sentences);
    /// Takes over what is being typed in a field.
    void commit();
    /// A page with hundreds of rows makes the later ones while the window is shown already: whether all are there.
    bool isWhole() const { return mNextGroup == mGroups.size(); }
    /// Makes all rows now.
    void finish();

Q_SIGNALS:
    /// The person picked a choice, or entered a value.
    void picked(const QString &key, const QString &choice);
    /// The last row has been made while the window was shown.
    void completed();

private:
    void makeSome();
    void makeRow();

    const job::Job &mJob;
    const MeasureUnit &mUnit;
    std::vector<job::OptionGroup> mGroups;
    std::size_t mNextGroup = 0;
    std::size_t mNextOption = 0;
    QVBoxLayout *mSection = nullptr; ///< of the group whose rows are being made
    QFormLayout *mForm = nullptr;    ///< of the rows that are being made
    std::vector<OptionRow *> mRows;  ///< owned by the widget tree, in their order
    QHash<QString, QString> mConflicts;
    QTimer mMaking;
};

} // namespace tapeprint::dialog
