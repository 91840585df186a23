// SPDX-License-Identifier: Apache-2.0
// The window of the program that prints, over which ours is to stand.
#pragma once

#include "portal/WaylandParent.h"

#include <QString>
#include <QWindow>

#include <memory>
#include <optional>

namespace tapeprint::portal
{

/// The number of an X11 window in a caller's "x11:XID", hexadecimal; nothing for any other text.
std::optional<WId> x11WindowIn(const QString &parentWindow);

/// The handle in a caller's "wayland:HANDLE"; empty for any other text, and for one that no display gives out.
QByteArray waylandHandleIn(const QString &parentWindow);

class ParentWindow
{
public:
    /// \param handle as the portal names windows: "x11:XID", "wayland:HANDLE", or empty for none. What cannot be used
    /// is logged, and the window stands by itself.
    explicit ParentWindow(const QString &handle);

    /// Puts a window over it, before that one is shown; the window outlives this. \param isModal whether the program's
    /// window is to wait for it.
    void adopt(QWidget &window, bool isModal);

private:
    std::unique_ptr<QWindow> mWindow;        ///< stands for the other program's; null when there is none
    QByteArray mWaylandHandle;               ///< the other program's window on Wayland; empty when there is none
    std::unique_ptr<WaylandParent> mForeign; ///< the same, from adopt() on
};

} // namespace tapeprint::portal
