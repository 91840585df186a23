// SPDX-License-Identifier: Apache-2.0
// The notification centre. A bundle may be unloaded once its objects are gone, so a handler is dropped in the moment
// its observer goes away, not when the next notice happens to pass.
#include "pdekit/NotificationCenter.h"

#include <algorithm>
#include <utility>

namespace pdekit
{

struct NotificationCenter::Registration {
    QPointer<QObject> observer;
    Handler handler;
    QString name;
    const void *sender = nullptr;
    QMetaObject::Connection observerGone;

    bool isLive() const { return !observer.isNull() && handler; }
    bool matches(const QString &postedName, const void *object) const
    {
        return (name.isNull() || name == postedName) && (sender == nullptr || sender == object);
    }
    void end()
    {
        QObject::disconnect(observerGone);
        handler = nullptr;
    }
};

NotificationCenter::NotificationCenter() = default;

NotificationCenter::~NotificationCenter()
{
    for (const std::shared_ptr<Registration> &registration : mRegistrations) {
        registration->end();
    }
}

NotificationCenter &NotificationCenter::defaultCenter()
{
    static NotificationCenter center;
    return center;
}

void NotificationCenter::addObserver(QObject *observer, Handler handler, const QString &name, const void *sender)
{
    std::erase_if(mRegistrations, [](const auto &registration) { return !registration->isLive(); });
    if (observer == nullptr || !handler) {
        return;
    }
    auto registration = std::make_shared<Registration>();
    registration->observer = observer;
    registration->handler = std::move(handler);
    registration->name = name;
    registration->sender = sender;
    // Weak: the registration may have ended, and the centre may be gone, long before the observer goes.
    registration->observerGone =
        QObject::connect(observer, &QObject::destroyed, [weak = std::weak_ptr<Registration>(registration)] {
            if (const std::shared_ptr<Registration> gone = weak.lock()) {
                gone->handler = nullptr;
            }
        });
    mRegistrations.push_back(std::move(registration));
}

void NotificationCenter::removeObserver(const QObject *observer)
{
    std::erase_if(mRegistrations, [observer](const auto &registration) {
        const bool ends = !registration->isLive() || registration->observer == observer;
        if (ends) {
            registration->end();
        }
        return ends;
    });
}

void NotificationCenter::removeObserver(const QObject *observer, const QString &name, const void *sender)
{
    std::erase_if(mRegistrations, [&](const auto &registration) {
        const bool ends = registration->observer == observer && registration->sender == sender &&
                          registration->name.isNull() == name.isNull() && registration->name == name;
        if (ends) {
            registration->end();
        }
        return ends;
    });
}

void NotificationCenter::postNotification(const QString &name, const void *object, const QString &text)
{
    const Notification notification{name, object, text};
    // Handlers change the list while it is walked: walk a copy, and ask each entry again when its turn comes.
    const std::vector<std::shared_ptr<Registration>> registrations = mRegistrations;
    for (const std::shared_ptr<Registration> &registration : registrations) {
        if (!registration->isLive() || !registration->matches(name, object)) {
            continue;
        }
        // A copy, as the handler may end its own registration while it runs.
        const Handler handler = registration->handler;
        handler(notification);
    }
    std::erase_if(mRegistrations, [](const auto &registration) { return !registration->isLive(); });
}

} // namespace pdekit
