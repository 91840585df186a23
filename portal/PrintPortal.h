// SPDX-License-Identifier: Apache-2.0
// The object of the backend on the bus: takes the portal's calls, checks them, and starts a conversation for each.
#pragma once

#include "portal/Conversation.h"
#include "portal/Tokens.h"

#include <QDBusConnection>
#include <QDBusContext>
#include <QDBusObjectPath>
#include <QDBusUnixFileDescriptor>
#include <QObject>
#include <QVariantMap>

namespace tapeprint::portal
{

class PrintPortal : public QObject, protected QDBusContext
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.impl.portal.Print")
    Q_PROPERTY(uint version READ version CONSTANT SCRIPTABLE true)

public:
    /// More calls than these that wait for an answer at once are answered as ended.
    static constexpr int mostCalls = 16;

    explicit PrintPortal(const QDBusConnection &bus, QObject *parent = nullptr);

    /// Puts the object on the bus. \return whether it stands there.
    bool publish();

    uint version() const { return 1; }
    /// Whether a call is under way, or a program holds settings for its pages.
    bool isBusy();

    // The calls, by the portal's contract. The answer follows when there is one: the first value is a Response.
    Q_SCRIPTABLE uint PreparePrint(const QDBusObjectPath &handle, const QString &app_id, const QString &parent_window,
                                   const QString &title, const QVariantMap &settings, const QVariantMap &page_setup,
                                   const QVariantMap &options, QVariantMap &results);
    Q_SCRIPTABLE uint Print(const QDBusObjectPath &handle, const QString &app_id, const QString &parent_window,
                            const QString &title, const QDBusUnixFileDescriptor &fd, const QVariantMap &options,
                            QVariantMap &results);

Q_SIGNALS:
    /// isBusy() may have changed.
    void busyChanged();

private:
    template <typename Make>
    uint converse(const QDBusObjectPath &handle, const Make &make);

    QDBusConnection mBus;
    Tokens mTokens;
    int mCalls = 0;         ///< that wait for an answer
    int mConversations = 0; ///< that are not at their end, answered or not
};

} // namespace tapeprint::portal
