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
    QString title;
    QString text;
    QString defaultButton;
};

/// Shows an alert and returns when the person has closed it.
using AlertHandler = std::function<void(const AlertRequest &alert)>;

/// Shows a modal alert with one button. Returns when it has been closed; the dialog in front is its parent.
PDEKIT_EXPORT void NSRunAlertPanel(const QString &title, const QString &text, const QString &defaultButton);

/// Replaces how alerts are shown, for the whole process. An empty handler sets the message box back.
PDEKIT_EXPORT void setAlertHandler(AlertHandler handler);

} // namespace pdekit
