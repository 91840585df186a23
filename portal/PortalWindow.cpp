// SPDX-License-Identifier: Apache-2.0
// A panel's alert waits in a loop of its own, inside a call of the panel: nothing may be freed before that has
// returned.
#include "portal/PortalWindow.h"

#include "portal/Log.h"

#include <QThread>

#include <utility>

namespace tapeprint::portal
{

namespace
{

constexpr int lookMs = 20;
constexpr int waitMs = 250;

/// The document comes by a descriptor: it has no name by which a command could find it.
dialog::PrintDialog::Setup withoutCommand(dialog::PrintDialog::Setup setup)
{
    setup.showsCommand = false;
    return setup;
}

} // namespace

PortalWindow::PortalWindow(dialog::PrintDialog::Setup setup, dialog::PrintDialog::PrintAction print,
                           const QString &parentWindow, bool isModal)
    : mWindow(withoutCommand(std::move(setup)), std::move(print)), mParent(parentWindow)
{
    mDismissTimer.setInterval(lookMs);
    mQuietTimer.setInterval(lookMs);
    connect(&mDismissTimer, &QTimer::timeout, this, &PortalWindow::dismissNext);
    connect(&mQuietTimer, &QTimer::timeout, this, &PortalWindow::deleteIfQuiet);
    connect(&dialog(), &QDialog::finished, this, [this](int result) {
        mDismissTimer.stop();
        logWhatIsNotKept(dialog().printed());
        Q_EMIT closed(result == QDialog::Accepted);
    });
    mParent.adopt(dialog(), isModal);
    // A printer that opens at once is there when the window comes up, which then has its size.
    mShowTimer.setSingleShot(true);
    connect(&mShowTimer, &QTimer::timeout, this, &PortalWindow::show);
    connect(&dialog(), &dialog::PrintDialog::settled, &mShowTimer, [this] {
        if (mShowTimer.isActive()) {
            mShowTimer.start(0);
        }
    });
    mShowTimer.start(dialog().isSettled() ? 0 : waitMs);
}

void PortalWindow::show()
{
    dialog().show();
    dialog().raise();
    dialog().activateWindow();
}

void PortalWindow::dismiss()
{
    mShowTimer.stop();
    dialog().hide();
    mDismissTimer.start();
}

void PortalWindow::dismissNext()
{
    for (QDialog *over : dialog().findChildren<QDialog *>()) {
        if (over->isVisible()) {
            over->reject();
            return; // the loop that waited for it ends first
        }
    }
    dialog().reject(); // a job on its way is stopped by it; the window closes when that is done
}

void PortalWindow::deleteWhenQuiet()
{
    mQuietTimer.start();
}

void PortalWindow::deleteIfQuiet()
{
    if (QThread::currentThread()->loopLevel() <= 1) {
        mQuietTimer.stop();
        deleteLater();
    }
}

} // namespace tapeprint::portal
