// SPDX-License-Identifier: Apache-2.0
// The front end passes on what programs say without looking at it.
#include "portal/PrintPortal.h"

#include "portal/AskConversation.h"
#include "portal/Log.h"
#include "portal/PortalRequest.h"
#include "portal/PrintConversation.h"

#include <QDBusMessage>

#include <memory>
#include <utility>

namespace tapeprint::portal
{

namespace
{

const QString objectPath = QStringLiteral("/org/freedesktop/portal/desktop");

QVariantList wordsOf(Response response, const QVariantMap &results)
{
    return {QVariant::fromValue(static_cast<uint>(response)), results};
}

Caller callerOf(const QString &program, const QString &parentWindow, const QString &title, const QVariantMap &options)
{
    return {program, parentWindow, title, truthIn(options, QStringLiteral("modal"), true)};
}

} // namespace

PrintPortal::PrintPortal(const QDBusConnection &bus, QObject *parent) : QObject(parent), mBus(bus) {}

bool PrintPortal::publish()
{
    // The toolkit tells what an object can do by the names of its types, and knows these two only once they were used.
    qRegisterMetaType<QDBusObjectPath>();
    qRegisterMetaType<QDBusUnixFileDescriptor>();
    return mBus.registerObject(
        objectPath, this, QDBusConnection::ExportScriptableInvokables | QDBusConnection::ExportScriptableProperties);
}

bool PrintPortal::isBusy()
{
    return mConversations > 0 || !mTokens.isEmpty();
}

/// \param make makes the conversation; called when the call is sound. \return what the bus is not told, for the answer
/// comes later.
template <typename Make>
uint PrintPortal::converse(const QDBusObjectPath &handle, const Make &make)
{
    setDelayedReply(true);
    const QDBusMessage call = message();
    if (mCalls >= mostCalls) {
        qCWarning(portalLog) << "too many requests at once: one is refused";
        mBus.send(call.createReply(wordsOf(Response::Ended, {})));
        return 0;
    }
    auto request = std::make_unique<PortalRequest>(mBus, handle.path(), call.service(), nullptr);
    if (!request->isThere()) {
        qCWarning(portalLog) << "a request is busy already under the handle" << handle.path();
        mBus.send(call.createReply(wordsOf(Response::Ended, {})));
        return 0;
    }
    Conversation *conversation = make();
    request->setParent(conversation);
    PortalRequest *const standing = request.release();
    ++mCalls;
    ++mConversations;
    connect(conversation, &Conversation::answered, this,
            [this, bus = mBus, call, standing](Response response, const QVariantMap &results) {
                --mCalls;
                standing->deleteLater();
                bus.send(call.createReply(wordsOf(response, results)));
            });
    connect(standing, &PortalRequest::closed, conversation, &Conversation::close);
    connect(conversation, &Conversation::ended, this, [this, conversation] {
        --mConversations;
        conversation->deleteLater();
        Q_EMIT busyChanged();
    });
    Q_EMIT busyChanged();
    return 0;
}

uint PrintPortal::PreparePrint(const QDBusObjectPath &handle, const QString &app_id, const QString &parent_window,
                               const QString &title, const QVariantMap &settings, const QVariantMap &page_setup,
                               const QVariantMap &options, QVariantMap & /*results*/)
{
    return converse(handle, [&] {
        return new AskConversation(callerOf(app_id, parent_window, title, options), askedSettings(settings, page_setup),
                                   buttonText(textIn(options, QStringLiteral("accept_label"))), mTokens, this);
    });
}

uint PrintPortal::Print(const QDBusObjectPath &handle, const QString &app_id, const QString &parent_window,
                        const QString &title, const QDBusUnixFileDescriptor &fd, const QVariantMap &options,
                        QVariantMap & /*results*/)
{
    return converse(handle, [&] {
        const uint token = numberIn(options, QStringLiteral("token"));
        std::optional<ChosenSettings> settings = mTokens.take(token, app_id);
        if (token != 0 && !settings) {
            qCWarning(portalLog) << "a program's token is unknown, used or too old: the dialog is shown";
        }
        return new PrintConversation(callerOf(app_id, parent_window, title, options), std::move(settings), fd, this);
    });
}

} // namespace tapeprint::portal
