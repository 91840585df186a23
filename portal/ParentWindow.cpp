// SPDX-License-Identifier: Apache-2.0
// On X11 another program's window has a number. On Wayland it has a handle of the xdg-foreign protocol, which Qt 6.4
// gives no public way to import: the dialog then stands by itself.
#include "portal/ParentWindow.h"

#include "portal/Log.h"

#include <QGuiApplication>
#include <QWidget>

namespace tapeprint::portal
{

namespace
{

constexpr QLatin1String x11Prefix("x11:");
constexpr QLatin1String waylandPrefix("wayland:");
constexpr int hexadecimal = 16;

} // namespace

std::optional<WId> x11WindowIn(const QString &parentWindow)
{
    if (!parentWindow.startsWith(x11Prefix)) {
        return std::nullopt;
    }
    bool isNumber = false;
    const uint number = parentWindow.mid(x11Prefix.size()).toUInt(&isNumber, hexadecimal);
    return isNumber && number != 0 ? std::optional<WId>(number) : std::nullopt;
}

ParentWindow::ParentWindow(const QString &handle)
{
    if (handle.isEmpty()) {
        return;
    }
    const bool isX11 = QGuiApplication::platformName() == QLatin1String("xcb");
    if (const std::optional<WId> number = x11WindowIn(handle); number && isX11) {
        mWindow.reset(QWindow::fromWinId(*number));
    } else if (handle.startsWith(waylandPrefix)) {
        qCInfo(portalLog) << "the dialog stands by itself: windows of other programs cannot be had on Wayland";
    } else {
        qCWarning(portalLog) << "the caller's window cannot be used, the dialog stands by itself:" << handle.left(64);
    }
}

void ParentWindow::adopt(QWidget &window, bool isModal) const
{
    if (!mWindow) {
        return;
    }
    if (isModal) {
        window.setWindowModality(Qt::WindowModal);
    }
    window.winId(); // from now on it has a native window
    window.windowHandle()->setTransientParent(mWindow.get());
}

} // namespace tapeprint::portal
