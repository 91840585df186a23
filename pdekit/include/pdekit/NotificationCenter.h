// SPDX-License-Identifier: Apache-2.0
// Named notices between objects that do not know each other, delivered at once on the posting thread.
#pragma once

#include "pdekit/Export.h"

#include <QPointer>
#include <QString>
#include <QVariantMap>

#include <functional>
#include <memory>
#include <vector>

namespace pdekit
{

/// A notice: a name and the object it is about (null when it is about none).
struct Notification {
    QString name;                 ///< never null
    const void *object = nullptr; ///< an identity to compare, not to be followed
    QString text;                 ///< a text that came with the notice; null when none did
};

/// The centre. Observers are named by a QObject; one that has gone away is never called and its entry is dropped.
class PDEKIT_EXPORT NotificationCenter
{
public:
    /// Called with each notice that an observer registered for. What it throws is not caught.
    using Handler = std::function<void(const Notification &)>;

    /// The one centre of the process, shared by the dialog and every bundle.
    static NotificationCenter &defaultCenter();

    /// Registers a handler. \param name null for notices of every name; \param sender null for every sender.
    void addObserver(QObject *observer, Handler handler, const QString &name, const void *sender = nullptr);

    /// Ends every registration of an observer.
    void removeObserver(const QObject *observer);

    /// Ends the registrations of an observer for one name and sender, as they were given to addObserver.
    void removeObserver(const QObject *observer, const QString &name, const void *sender);

    /// Calls every matching handler, in the order of registration, before it returns. Handlers may register, remove and
    /// post; an observer that is removed on the way is no longer called.
    void postNotification(const QString &name, const void *object, const QString &text = QString());

    NotificationCenter();
    ~NotificationCenter();
    NotificationCenter(const NotificationCenter &) = delete;
    NotificationCenter &operator=(const NotificationCenter &) = delete;

private:
    struct Registration;
    std::vector<std::shared_ptr<Registration>> mRegistrations;
};

} // namespace pdekit
