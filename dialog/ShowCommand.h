// SPDX-License-Identifier: Apache-2.0
// The dialog's settings as commands for a shell, to be copied.
#pragma once

#include <QDialog>

class QVBoxLayout;

namespace tapeprint::dialog
{

class ShowCommand : public QDialog
{
    Q_OBJECT

public:
    /// \param tapeprint the command of this program; \param lp that of lp, null when there is none. Both are quoted for
    /// a shell already.
    ShowCommand(const QString &tapeprint, const QString &lp, QWidget *parent);

    /// How large it opens on a screen: the button below is to be seen on the smallest.
    static QSize sizeOn(QSize screen);

private:
    void addCommand(QVBoxLayout *layout, const QString &title, const QString &command, const QString &name);
};

} // namespace tapeprint::dialog
