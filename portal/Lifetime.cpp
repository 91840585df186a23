// SPDX-License-Identifier: Apache-2.0
// Signals are read like a file: a handler could do next to nothing.
#include "portal/Lifetime.h"

#include "portal/Log.h"

#include <QApplication>
#include <QDBusConnection>
#include <QWidget>

#include <algorithm>
#include <csignal>

#include <sys/signalfd.h>
#include <unistd.h>

namespace tapeprint::portal
{

namespace
{

int openSignals()
{
    sigset_t wanted;
    sigemptyset(&wanted);
    for (const int number : {SIGTERM, SIGINT, SIGHUP}) {
        sigaddset(&wanted, number);
    }
    // Threads that are started from now on inherit it.
    pthread_sigmask(SIG_BLOCK, &wanted, nullptr);
    return signalfd(-1, &wanted, SFD_CLOEXEC | SFD_NONBLOCK);
}

} // namespace

Lifetime::Lifetime(PrintPortal &portal, const QDBusConnection &bus, std::chrono::seconds patience)
    : mPortal(portal), mSignals(openSignals()), mNotifier(mSignals, QSocketNotifier::Read)
{
    mTimer.setSingleShot(true);
    mTimer.setInterval(patience);
    connect(&mTimer, &QTimer::timeout, this, &Lifetime::leaveIfIdle);
    connect(&mPortal, &PrintPortal::busyChanged, this, &Lifetime::rest);
    connect(&mNotifier, &QSocketNotifier::activated, qApp, &QCoreApplication::quit);
    // The library tells of the bus's end by a signal on the bus, which is connected to by names alone.
    QDBusConnection(bus).connect(QString(), QStringLiteral("/org/freedesktop/DBus/Local"),
                                 QStringLiteral("org.freedesktop.DBus.Local"), QStringLiteral("Disconnected"), this,
                                 SLOT(leaveBus()));
    rest();
}

Lifetime::~Lifetime()
{
    if (mSignals >= 0) {
        close(mSignals);
    }
}

void Lifetime::leaveBus()
{
    qCInfo(portalLog) << "the session's bus is gone";
    QCoreApplication::quit();
}

void Lifetime::rest()
{
    mTimer.start();
}

void Lifetime::leaveIfIdle()
{
    // A sentence that nobody has read yet keeps it, too.
    const QWidgetList windows = QApplication::topLevelWidgets();
    const bool isSeen =
        std::any_of(windows.begin(), windows.end(), [](const QWidget *window) { return window->isVisible(); });
    if (mPortal.isBusy() || isSeen) {
        rest();
        return;
    }
    QCoreApplication::quit();
}

} // namespace tapeprint::portal
