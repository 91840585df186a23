// SPDX-License-Identifier: Apache-2.0
// The window of the program that prints, over which ours is to stand.
#pragma once

#include <QString>
#include <QWindow>

#include <memory>
#include <optional>

namespace tapeprint::portal
{

/// The number of an X11 window in a caller's "x11:XID", hexadecimal; nothing for any other text.
std::optional<WId> x11WindowIn(const QString &parentWindow);

class ParentWindow
{
public:
    /// \param handle as the portal names windows: "x11:XID", "wayland:HANDLE", or empty for none. What cannot be used
    /// is logged, and the window stands by itself.
    explicit ParentWindow(const QString &handle);

    /// Puts a window over it, before that one is shown. \param isModal whether the program's window is to wait for it.
    void adopt(QWidget &window, bool isModal) const;

private:
    std::unique_ptr<QWindow> mWindow; ///< stands for the other program's; null when there is none
};

} // namespace tapeprint::portal
