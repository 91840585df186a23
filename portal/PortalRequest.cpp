// SPDX-License-Identifier: Apache-2.0
// Every process of the session can reach the object; only the one whose call it is may use it.
#include "portal/PortalRequest.h"

#include "portal/Log.h"

#include <QDBusError>
#include <QDBusMessage>

#include <utility>

namespace tapeprint::portal
{

PortalRequest::PortalRequest(const QDBusConnection &bus, const QString &path, const QString &caller, QObject *parent)
    : QObject(parent), mBus(bus), mPath(path), mCaller(caller)
{
    mIsThere = mBus.registerObject(path, this, QDBusConnection::ExportScriptableInvokables);
    mWatcher.setConnection(mBus);
    mWatcher.setWatchMode(QDBusServiceWatcher::WatchForUnregistration);
    mWatcher.addWatchedService(caller);
    connect(&mWatcher, &QDBusServiceWatcher::serviceUnregistered, this, &PortalRequest::end);
}

PortalRequest::~PortalRequest()
{
    if (mIsThere) {
        mBus.unregisterObject(mPath);
    }
}

void PortalRequest::Close()
{
    if (calledFromDBus() && message().service() != mCaller) {
        qCWarning(portalLog) << "a stranger wants to end a request; it goes on";
        sendErrorReply(QDBusError::AccessDenied, QStringLiteral("This request is another program's."));
        return;
    }
    end();
}

void PortalRequest::end()
{
    if (!std::exchange(mIsClosed, true)) {
        Q_EMIT closed();
    }
}

} // namespace tapeprint::portal
