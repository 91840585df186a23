// SPDX-License-Identifier: Apache-2.0
// Watches the application's input events. A click reaches the window before it moves the focus, so a field that ends
// its editing because of a click sees the mouse button as the current event.
#include "pdekit/CurrentEvent.h"

#include "InterruptedPress.h"

#include <QAbstractEventDispatcher>
#include <QCoreApplication>
#include <QEvent>
#include <QGuiApplication>
#include <QMouseEvent>
#include <QObject>
#include <QWidget>

#include <optional>
#include <utility>

namespace pdekit
{

namespace
{

EventType &currentType()
{
    static EventType type = EventType::None;
    return type;
}

/// The release of the press being handled went to an alert.
bool &releaseIsLost()
{
    static bool lost = false;
    return lost;
}

/// How often a window has been blocked by a modal one.
int &blockedWindows()
{
    static int count = 0;
    return count;
}

bool isLeftButtonDown()
{
    return QGuiApplication::mouseButtons().testFlag(Qt::LeftButton);
}

EventType buttonEvent(const QEvent *event, EventType leftButton)
{
    return static_cast<const QMouseEvent *>(event)->button() == Qt::LeftButton ? leftButton : EventType::None;
}

/// What an input event counts as; std::nullopt for events that are no input of their own: a hover or a change of focus
/// belongs to the input that caused it.
std::optional<EventType> typeOf(const QEvent *event)
{
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
        return buttonEvent(event, EventType::LeftMouseDown);
    case QEvent::MouseButtonRelease:
        return buttonEvent(event, EventType::LeftMouseUp);
    case QEvent::MouseMove:
        return static_cast<const QMouseEvent *>(event)->buttons().testFlag(Qt::LeftButton) ? EventType::LeftMouseDragged
                                                                                           : EventType::None;
    // A key that is a shortcut arrives as ShortcutOverride alone.
    case QEvent::ShortcutOverride:
    case QEvent::KeyPress:
        return EventType::KeyDown;
    case QEvent::KeyRelease:
    case QEvent::Wheel:
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
    case QEvent::TouchCancel:
    case QEvent::TabletPress:
    case QEvent::TabletMove:
    case QEvent::TabletRelease:
    case QEvent::NativeGesture:
    case QEvent::InputMethod:
        return EventType::None;
    default:
        return std::nullopt;
    }
}

/// Lives as long as the application object and sees every event of its thread first.
class EventWatcher : public QObject
{
public:
    explicit EventWatcher(QCoreApplication *application) : QObject(application)
    {
        application->installEventFilter(this);
        if (QAbstractEventDispatcher *dispatcher = QAbstractEventDispatcher::instance()) {
            connect(dispatcher, &QAbstractEventDispatcher::awake, this, &EventWatcher::forget);
            connect(dispatcher, &QAbstractEventDispatcher::aboutToBlock, this, &EventWatcher::forget);
        }
    }
    ~EventWatcher() override { forget(); }

    bool eventFilter(QObject *receiver, QEvent *event) override
    {
        // A press reaches the window first: this is the next one.
        if (event->type() == QEvent::MouseButtonPress && receiver->isWindowType()) {
            releaseIsLost() = false;
        } else if (event->type() == QEvent::WindowBlocked) {
            ++blockedWindows();
        }
        if (const std::optional<EventType> type = typeOf(event)) {
            currentType() = *type;
            forgetAtNextTurn();
        }
        return false;
    }

protected:
    void customEvent(QEvent *) override
    {
        mForgetPosted = false;
        forget();
    }

private:
    static void forget()
    {
        currentType() = EventType::None;
        releaseIsLost() = false;
    }

    /// Not every dispatcher tells of its turns when it does not wait: an event of our own, before all others that are
    /// posted, ends the current one in any case.
    void forgetAtNextTurn()
    {
        if (currentType() != EventType::None && !mForgetPosted) {
            mForgetPosted = true;
            QCoreApplication::postEvent(this, new QEvent(QEvent::User), Qt::HighEventPriority);
        }
    }

    bool mForgetPosted = false;
};

/// Runs when the application object is made, or at once when the library is loaded into a running application.
void watchEvents()
{
    new EventWatcher(QCoreApplication::instance());
}

} // namespace

Q_COREAPP_STARTUP_FUNCTION(watchEvents)

EventType currentEventType()
{
    return currentType();
}

AlertDuringPress::AlertDuringPress()
    : mIsDuringPress(currentType() == EventType::LeftMouseDown && isLeftButtonDown()), mBlockedBefore(blockedWindows())
{
}

AlertDuringPress::~AlertDuringPress()
{
    if (mIsDuringPress && (!isLeftButtonDown() || blockedWindows() != mBlockedBefore)) {
        releaseIsLost() = true;
    }
}

void completePress(QWidget *control, const QMouseEvent &press)
{
    if (press.button() != Qt::LeftButton || !std::exchange(releaseIsLost(), false)) {
        return;
    }
    QMouseEvent release(QEvent::MouseButtonRelease, press.position(), press.scenePosition(), press.globalPosition(),
                        Qt::LeftButton, Qt::NoButton, press.modifiers(), press.pointingDevice());
    QCoreApplication::sendEvent(control, &release);
}

} // namespace pdekit
