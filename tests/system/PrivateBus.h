// SPDX-License-Identifier: Apache-2.0
// A session bus of the test's own, that starts services as a desktop's does.
#pragma once

#include "tests/system/PrivateFolder.h"

#include <QProcess>
#include <QString>

#include <utility>
#include <vector>

namespace systemtest
{

class PrivateBus
{
public:
    PrivateBus() = default;
    ~PrivateBus();
    PrivateBus(const PrivateBus &) = delete;
    PrivateBus &operator=(const PrivateBus &) = delete;

    /// \param variables of the session, which the services that the bus starts get. \param dataFolders where services
    /// are named, in dbus-1/services. \return null, or why it does not start.
    QString start(const std::vector<std::pair<QString, QString>> &variables, const QStringList &dataFolders);
    /// Ends the bus under everybody's hands.
    void end();

    QString address() const { return mAddress; }
    /// The process behind a name on the bus; 0 when nobody has it.
    qint64 processOf(const QString &name) const;
    /// What the bus and the services have said on standard error until now.
    QByteArray messages();

private:
    PrivateFolder mFolder;
    QProcess mDaemon;
    QString mAddress;
    QByteArray mMessages;
};

} // namespace systemtest
