// SPDX-License-Identifier: Apache-2.0
// Another program's window on Wayland, which is known by a handle of the xdg-foreign protocol: Qt 6.4 has nothing for
// it, so that protocol is spoken here.
#pragma once

#include <QByteArray>
#include <QObject>
#include <QWindow>

#include <cstdint>
#include <memory>

struct wl_registry;

namespace tapeprint::portal
{

/// Whether a caller's text can be a handle: what is too long for a message would end the connection to the display.
bool isWaylandHandle(const QByteArray &text);

class WaylandParent : public QObject
{
public:
    /// \param handle one that isWaylandHandle() takes. \param child the window that is to stand over it, whenever it is
    /// shown; it outlives this. What does not succeed is logged, and the child stands by itself.
    WaylandParent(QByteArray handle, QWindow &child);
    ~WaylandParent() override;

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    static void takeGlobal(void *self, wl_registry *registry, std::uint32_t name, const char *interface, std::uint32_t);
    void borrow();
    void standOver();

    struct Objects;
    const QByteArray mHandle;
    QWindow &mChild;
    std::unique_ptr<Objects> mObjects; ///< what the display knows of it
    bool mIsOver = false;              ///< since the child was shown last
};

} // namespace tapeprint::portal
