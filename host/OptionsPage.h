// SPDX-License-Identifier: Apache-2.0
// A page of pop-ups made from the PPD: every option that neither a panel nor the dialog's own controls show.
#pragma once

#include "host/DialogModel.h"

#include <QWidget>

#include <vector>

class QComboBox;

namespace tapeprint
{

class OptionsPage : public QWidget
{
    Q_OBJECT

public:
    /// \param model the dialog's objects, not owned; the page shows its PPD as it is now and is remade with another.
    OptionsPage(const DialogModel &model, QWidget *parent);

    bool isEmpty() const { return mPopUps.empty(); }
    /// The pop-ups follow the PPD's marks.
    void follow();

Q_SIGNALS:
    /// The person picked a choice.
    void picked(const QString &key, const QString &choice);

private:
    void addOption(const ppd_option_t &option);

    const DialogModel &mModel;
    std::vector<QComboBox *> mPopUps; ///< owned by the widget tree; each is named by its option's keyword
};

/// Fills a pop-up with the choices of a PPD option: their texts, and their keywords as data. The choice "Custom" needs
/// values that a pop-up cannot give and stands there only while it is marked.
void fillWithChoices(QComboBox *popUp, const ppd_option_t &option);

/// Selects the item of a choice keyword. Sends no action.
void selectChoice(QComboBox *popUp, const QString &choice);

} // namespace tapeprint
