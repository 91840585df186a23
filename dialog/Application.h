// SPDX-License-Identifier: Apache-2.0
// The application object of a program with panels: what a panel throws out of a click or a key ends the click, not the
// program.
#pragma once

#include <QApplication>

#include <functional>

namespace tapeprint::dialog
{

class Application : public QApplication
{
    Q_OBJECT

public:
    using QApplication::QApplication;

    bool notify(QObject *receiver, QEvent *event) override
    {
        return deliver(receiver, [this, receiver, event] { return QApplication::notify(receiver, event); });
    }

    /// Delivers an event. Thrown by a part of a panel's view it is kept as a sentence about that panel; thrown by
    /// anybody else it is thrown on. \return what the delivery answers; true when it threw.
    static bool deliver(QObject *receiver, const std::function<bool()> &delivery);
};

/// From now on a crash within a call of a panel, also one that has used up the stack, writes a line on standard error
/// that names the panel before the program ends by the signal.
void nameCrashingPanels();

} // namespace tapeprint::dialog
