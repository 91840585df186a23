// SPDX-License-Identifier: Apache-2.0
// The object that stands on the bus while a call is busy, so that the caller can end it.
#pragma once

#include <QDBusConnection>
#include <QDBusContext>
#include <QDBusServiceWatcher>
#include <QObject>
#include <QString>

namespace tapeprint::portal
{

class PortalRequest : public QObject, protected QDBusContext
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.impl.portal.Request")

public:
    /// \param path where the object is to stand. \param caller the one connection that may end the call; when it goes,
    /// the call has ended.
    PortalRequest(const QDBusConnection &bus, const QString &path, const QString &caller, QObject *parent);
    ~PortalRequest() override;

    /// Whether it stands there; it does not where another one does.
    bool isThere() const { return mIsThere; }

    /// The call, on the bus.
    Q_SCRIPTABLE void Close();

Q_SIGNALS:
    /// The caller has ended the call, or is gone. Sent once.
    void closed();

private:
    void end();

    QDBusConnection mBus;
    QString mPath;
    QString mCaller;
    QDBusServiceWatcher mWatcher;
    bool mIsThere = false;
    bool mIsClosed = false;
};

} // namespace tapeprint::portal
