// SPDX-License-Identifier: Apache-2.0
// The toolkit asks a greyed control for its tooltip as it asks any other.
#include "dialog/GreyedReason.h"

#include "dialog/PlainText.h"

#include <QApplication>
#include <QHelpEvent>
#include <QToolTip>

#include <algorithm>
#include <utility>

namespace tapeprint::dialog
{

namespace
{

bool isSwitchedOffItself(const QWidget &control)
{
    return control.testAttribute(Qt::WA_ForceDisabled);
}

const QWidget &whatIsOff(const QWidget &control)
{
    const QWidget *off = &control;
    while (!isSwitchedOffItself(*off) && off->parentWidget() != nullptr) {
        off = off->parentWidget();
    }
    return *off;
}

/// The control that the person is at: a list that is open is a part of its pop-up.
const QWidget *controlInUse()
{
    const QWidget *widget = QApplication::focusWidget();
    const bool isInList = widget != nullptr && widget->window()->windowType() == Qt::Popup;
    return isInList ? widget->window()->parentWidget() : widget;
}

} // namespace

GreyedReason::GreyedReason(QWidget *window, Reason reason)
    : QObject(window), mWindow(*window), mReason(std::move(reason))
{
}

bool GreyedReason::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::ToolTip && event->type() != QEvent::EnabledChange) {
        return false;
    }
    auto *control = qobject_cast<QWidget *>(watched);
    if (control == nullptr || !mWindow.isAncestorOf(control)) {
        return false;
    }
    if (event->type() == QEvent::EnabledChange) {
        note(*control);
        return false;
    }
    if (control->isEnabled() || !control->toolTip().isEmpty()) {
        return false;
    }
    const QWidget &off = whatIsOff(*control);
    const QString reason = mReason(off, changedWith(off));
    if (reason.isEmpty()) {
        return false;
    }
    QToolTip::showText(static_cast<QHelpEvent *>(event)->globalPos(), plainToolTip(reason), control);
    return true;
}

/// Remembers what the person was at when a control went off. It may go off again with others, and be gone.
void GreyedReason::note(const QWidget &control)
{
    mSwitchedOff.erase(std::remove_if(mSwitchedOff.begin(), mSwitchedOff.end(),
                                      [&control](const SwitchedOff &each) {
                                          return each.control == nullptr || each.control == &control;
                                      }),
                       mSwitchedOff.end());
    if (const QWidget *changed = controlInUse(); changed != nullptr && isSwitchedOffItself(control)) {
        mSwitchedOff.push_back({&control, changed});
    }
}

const QWidget *GreyedReason::changedWith(const QWidget &off) const
{
    const auto found = std::find_if(mSwitchedOff.begin(), mSwitchedOff.end(),
                                    [&off](const SwitchedOff &each) { return each.control == &off; });
    return found == mSwitchedOff.end() ? nullptr : found->changed.data();
}

} // namespace tapeprint::dialog
