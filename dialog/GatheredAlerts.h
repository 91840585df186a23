// SPDX-License-Identifier: Apache-2.0
// Alerts of panels as lines, where there is no window yet, or never, to show them over.
#pragma once

#include <QStringList>

#include <pdekit/Alert.h>

namespace tapeprint::dialog
{

/// Gathers the panels' alerts for as long as it lives; then they are message boxes again.
class GatheredAlerts
{
public:
    GatheredAlerts()
    {
        pdekit::setAlertHandler([this](const pdekit::AlertRequest &alert) { mLines.append(alert.text.simplified()); });
    }
    ~GatheredAlerts() { pdekit::setAlertHandler({}); }
    GatheredAlerts(const GatheredAlerts &) = delete;
    GatheredAlerts &operator=(const GatheredAlerts &) = delete;

    const QStringList &lines() const { return mLines; }

private:
    QStringList mLines;
};

} // namespace tapeprint::dialog
