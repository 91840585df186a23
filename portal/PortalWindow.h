// SPDX-License-Identifier: Apache-2.0
// The dialog of one call: over the program's window, gone when the call has ended.
#pragma once

#include "dialog/JobWindow.h"
#include "portal/ParentWindow.h"

#include <QObject>
#include <QTimer>

namespace tapeprint::portal
{

class PortalWindow : public QObject
{
    Q_OBJECT

public:
    /// \param parentWindow as the portal names it. \param isModal whether that window is to wait for ours.
    PortalWindow(dialog::PrintDialog::Setup setup, dialog::PrintDialog::PrintAction print, const QString &parentWindow,
                 bool isModal);

    const job::Job &job() const { return mWindow.job(); }
    dialog::PrintDialog &dialog() { return mWindow.dialog(); }

    /// The call has ended: the window goes. What is open over it goes first, for a panel may be waiting for it.
    void dismiss();
    /// Deletes the window as soon as no call of it, or of its panels, is under way.
    void deleteWhenQuiet();

Q_SIGNALS:
    /// The person has closed the window, or it was dismissed. \param isAccepted whether they printed.
    void closed(bool isAccepted);

private:
    void show();
    void dismissNext();
    void deleteIfQuiet();

    dialog::JobWindow mWindow;
    ParentWindow mParent;
    QTimer mShowTimer;
    QTimer mDismissTimer;
    QTimer mQuietTimer;
};

} // namespace tapeprint::portal
