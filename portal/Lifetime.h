// SPDX-License-Identifier: Apache-2.0
// When the backend leaves: it is started whenever it is needed, and no one's background program.
#pragma once

#include "portal/PrintPortal.h"

#include <QObject>
#include <QSocketNotifier>
#include <QTimer>

#include <chrono>

namespace tapeprint::portal
{

/// Ends the program's event loop when nothing has been asked for during a while and no program holds settings, when
/// the bus goes, and when the program is told to end.
class Lifetime : public QObject
{
    Q_OBJECT

public:
    static constexpr std::chrono::seconds usualPatience{45};

    Lifetime(PrintPortal &portal, const QDBusConnection &bus, std::chrono::seconds patience);
    ~Lifetime() override;

private Q_SLOTS:
    void leaveBus();

private:
    void rest();
    void leaveIfIdle();

    PrintPortal &mPortal;
    QTimer mTimer;
    int mSignals = -1; ///< SIGTERM, SIGINT and SIGHUP come here
    QSocketNotifier mNotifier;
};

} // namespace tapeprint::portal
