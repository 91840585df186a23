// SPDX-License-Identifier: Apache-2.0
// A page of pop-ups made from the PPD: every option that neither a panel nor the dialog's own controls show.
#pragma once

#include "dialog/Panels.h"
#include "job/Job.h"

#include <QWidget>

#include <vector>

class QComboBox;

namespace tapeprint::dialog
{

class OptionsPage : public QWidget
{
    Q_OBJECT

public:
    /// \param job not owned; the page shows its PPD as it is now and is remade with another. \param panels what they
    /// announced is left to them.
    OptionsPage(const job::Job &job, const Panels &panels, QWidget *parent);

    bool isEmpty() const { return mPopUps.empty(); }
    /// The pop-ups follow the PPD's marks.
    void follow();

Q_SIGNALS:
    /// The person picked a choice.
    void picked(const QString &key, const QString &choice);

private:
    void addOption(const ppd_option_t &option);

    const job::Job &mJob;
    std::vector<QComboBox *> mPopUps; ///< owned by the widget tree; each is named by its option's keyword
};

} // namespace tapeprint::dialog
