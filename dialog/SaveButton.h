// SPDX-License-Identifier: Apache-2.0
// The button beside Print for a job that goes into a file: as a PDF, or as the printer's bytes.
#pragma once

#include "dialog/MenuButton.h"

#include <QString>

class QAction;

namespace tapeprint::dialog
{

class SaveButton : public MenuButton
{
    Q_OBJECT

public:
    /// What is saved.
    enum class Kind { Pdf, PrinterData };

    /// \param title of the job: the file's name is made of it.
    SaveButton(const QString &title, QWidget *parent);

    /// Whether there is a printer description by whose filters printer's bytes can be made.
    void setHasPrinterData(bool has);

Q_SIGNALS:
    /// The person named a file, and agreed when one of this name was there.
    void wanted(tapeprint::dialog::SaveButton::Kind kind, const QString &path);

private:
    void ask(Kind kind);

    QString mName;
    QString mFolder; ///< where a file was saved last; empty: nowhere yet
    QAction *mPrinterData = nullptr;
};

} // namespace tapeprint::dialog
