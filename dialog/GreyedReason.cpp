// SPDX-License-Identifier: Apache-2.0
// The toolkit asks a greyed control for its tooltip as it asks any other.
#include "dialog/GreyedReason.h"

#include "dialog/PlainText.h"

#include <QHelpEvent>
#include <QToolTip>
#include <QWidget>

namespace tapeprint::dialog
{

GreyedReason::GreyedReason(QWidget *window, std::function<QString(const QWidget &)> reason)
    : QObject(window), mWindow(*window), mReason(std::move(reason))
{
}

bool GreyedReason::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::ToolTip) {
        return false;
    }
    auto *control = qobject_cast<QWidget *>(watched);
    if (control == nullptr || control->isEnabled() || !mWindow.isAncestorOf(control)) {
        return false;
    }
    const QString reason = mReason(*control);
    if (reason.isEmpty() || !control->toolTip().isEmpty()) {
        return false;
    }
    QToolTip::showText(static_cast<QHelpEvent *>(event)->globalPos(), plainToolTip(reason), control);
    return true;
}

} // namespace tapeprint::dialog
