// SPDX-License-Identifier: Apache-2.0
// The key is replaced before the field hears of it: the field itself would refuse it, with a beep.
#include "dialog/DecimalKey.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QLocale>

namespace tapeprint::dialog
{

DecimalKey::DecimalKey(std::function<bool(const QWidget &)> isPanels, QObject *parent)
    : QObject(parent), mIsPanels(std::move(isPanels))
{
}

bool DecimalKey::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::KeyPress && event->type() != QEvent::KeyRelease) {
        return false;
    }
    const auto *key = static_cast<const QKeyEvent *>(event);
    const auto *field = qobject_cast<QLineEdit *>(watched);
    if (field == nullptr || !isForPoint(*field, *key)) {
        return false;
    }
    QKeyEvent point(key->type(), Qt::Key_Period, key->modifiers(), QStringLiteral("."), key->isAutoRepeat(),
                    static_cast<quint16>(key->count()));
    QCoreApplication::sendEvent(watched, &point);
    return true;
}

bool DecimalKey::isForPoint(const QWidget &field, const QKeyEvent &event) const
{
    const QString decimal = QLocale().decimalPoint();
    constexpr auto commands = Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;
    return event.text() == decimal && decimal != QLatin1String(".") && !(event.modifiers() & commands) &&
           field.inputMethodHints().testFlag(Qt::ImhFormattedNumbersOnly) && mIsPanels(field);
}

} // namespace tapeprint::dialog
