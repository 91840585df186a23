// SPDX-License-Identifier: Apache-2.0
// What is said names the display and a way to print without one.
#include "tapeprint/Display.h"

#include "dialog/DisplayCheck.h"
#include "tapeprint/JsonReport.h"
#include "tapeprint/RunReport.h"

#include <QString>

namespace tapeprint
{

namespace
{

job::Problem unusableDisplay()
{
    const QByteArray xDisplay = qgetenv("DISPLAY");
    const bool isWayland = xDisplay.isEmpty();
    const QString name = QString::fromLocal8Bit(isWayland ? qgetenv("WAYLAND_DISPLAY") : xDisplay);
    const QString more = isWayland ? QStringLiteral(" and that Qt has its part for Wayland (qt6-wayland)") : QString();
    return {job::Problem::General,
            QStringLiteral("The display %1 cannot be used: see that it runs and lets you in%2, or print without a "
                           "window with --no-dialog.")
                .arg(name, more)};
}

} // namespace

job::Problem displayProblem()
{
    switch (dialog::checkDisplay()) {
    case dialog::DisplayState::There:
        return {};
    case dialog::DisplayState::None:
        return {job::Problem::General, QStringLiteral("There is no display for the window: set DISPLAY, or print "
                                                      "without a window with --no-dialog.")};
    case dialog::DisplayState::Silent:
        break;
    }
    return unusableDisplay();
}

QByteArray wordsForNoStart(bool showsWindow, bool asJson)
{
    const RunReport report = failedRun(
        showsWindow ? unusableDisplay()
                    : job::Problem(job::Problem::General,
                                   QStringLiteral("The toolkit cannot start: see that it is installed as a whole.")));
    return asJson ? jsonText(report) : "tapeprint: " + report.messages.first().toLocal8Bit() + '\n';
}

} // namespace tapeprint
