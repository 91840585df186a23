// SPDX-License-Identifier: Apache-2.0
// Modal alerts of panels, behind a handler that a dialog without a window replaces.
#pragma once

#include "pdekit/Export.h"

#include <QString>

#include <functional>

namespace pdekit
{

/// An alert: its title, its text and the label of its one button.
struct AlertRequest {
    QString title;         ///< of the window
    QString text;          ///< plain text, in the person's language
    QString defaultButton; ///< the button's text
};

/// Shows an alert and returns when the person has closed it.
using AlertHandler = std::function<void(const AlertRequest &alert)>;

/// Shows a modal alert with one button. Returns when it has been closed; the dialog in front is its parent.
///
/// While it is up, anything may happen: the caller may be gone when it returns. When it was raised by a press of the
/// left button that ended an editing elsewhere, a Slider or RadioMatrix under the pointer completes that press
/// afterwards, as the release went to the alert.
PDEKIT_EXPORT void NSRunAlertPanel(const QString &title, const QString &text, const QString &defaultButton);

/// How many alerts have been run in this process. A dialog sees by it whether a panel that refuses has said why.
PDEKIT_EXPORT int alertsRun();

/// Replaces how alerts are shown, for the whole process. An empty handler sets the message box back.
PDEKIT_EXPORT void setAlertHandler(AlertHandler handler);

} // namespace pdekit
