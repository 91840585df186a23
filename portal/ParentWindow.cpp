// SPDX-License-Identifier: Apache-2.0
// On X11 another program's window has a number, on Wayland a handle. One of the other kind than the display is of no
// use: the dialog then stands by itself.
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

QByteArray waylandHandleIn(const QString &parentWindow)
{
    if (!parentWindow.startsWith(waylandPrefix)) {
        return {};
    }
    const QByteArray handle = parentWindow.mid(waylandPrefix.size()).toUtf8();
    return isWaylandHandle(handle) ? handle : QByteArray();
}

ParentWindow::ParentWindow(const QString &handle)
{
    if (handle.isEmpty()) {
        return;
    }
    const QString platform = QGuiApplication::platformName();
    const bool isX11 = platform == QLatin1String("xcb");
    const bool isWayland = platform.startsWith(QLatin1String("wayland"));
    if (const std::optional<WId> number = x11WindowIn(handle); number && isX11) {
        mWindow.reset(QWindow::fromWinId(*number));
    } else if (mWaylandHandle = waylandHandleIn(handle); mWaylandHandle.isEmpty() || !isWayland) {
        mWaylandHandle.clear();
        qCWarning(portalLog) << "the caller's window cannot be used, the dialog stands by itself:" << handle.left(64);
    }
}

void ParentWindow::adopt(QWidget &window, bool isModal)
{
    if (!mWindow && mWaylandHandle.isEmpty()) {
        return;
    }
    if (isModal) {
        window.setWindowModality(Qt::WindowModal);
    }
    window.winId(); // from now on it has a native window
    if (mWindow) {
        window.windowHandle()->setTransientParent(mWindow.get());
    } else {
        mForeign = std::make_unique<WaylandParent>(mWaylandHandle, *window.windowHandle());
    }
}

} // namespace tapeprint::portal
