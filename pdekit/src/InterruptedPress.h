// SPDX-License-Identifier: Apache-2.0
// A press that takes the focus from a field may raise a modal alert before it reaches the control below the pointer.
// The person lets the button go while the alert is up, and that release goes nowhere: the control completes it itself.
#pragma once

class QMouseEvent;
class QWidget;

namespace pdekit
{

/// Lives while an alert is up, and notes whether it takes the release of the press being handled: the button is let go
/// meanwhile, or the alert blocks the pressed window, whereupon the toolkit forgets what was pressed in it.
class AlertDuringPress
{
public:
    AlertDuringPress();
    ~AlertDuringPress();
    AlertDuringPress(const AlertDuringPress &) = delete;
    AlertDuringPress &operator=(const AlertDuringPress &) = delete;

private:
    bool mIsDuringPress;
    int mBlockedBefore;
};

/// Called by a control when it has handled a press: sends it the release, at the place of the press, that an alert
/// took. The control may be gone afterwards.
void completePress(QWidget *control, const QMouseEvent &press);

} // namespace pdekit
