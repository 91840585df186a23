// SPDX-License-Identifier: Apache-2.0
// Nothing here waits for the display: its answers come while the event loop runs, and the child may be shown before or
// after them.
#include "portal/WaylandParent.h"

#include "portal/Log.h"

#include <QEvent>
#include <QGuiApplication>
#include <QLibraryInfo>

#include <algorithm>
#include <cstring>
#include <utility>

#include <qpa/qplatformnativeinterface.h>
#include <wayland-client.h>

extern "C" {
#include <xdg-foreign-client-header.h>
#include <xdg-foreign-private-code.h>
}

namespace tapeprint::portal
{

namespace
{

constexpr qsizetype longestHandle = 256;

template <auto destroy>
struct Destroy {
    template <typename Object>
    void operator()(Object *object) const
    {
        destroy(object);
    }
};
template <typename Object, auto destroy>
using Owned = std::unique_ptr<Object, Destroy<destroy>>;

/// Qt's own objects of the display. Another version of Qt than the one built with may keep them otherwise: no one then.
QPlatformNativeInterface *nativeInterface()
{
    const QVersionNumber running = QLibraryInfo::version();
    const bool isAsBuilt = running.majorVersion() == QT_VERSION_MAJOR && running.minorVersion() == QT_VERSION_MINOR;
    return isAsBuilt ? QGuiApplication::platformNativeInterface() : nullptr;
}

template <typename Object>
Object *nativeObject(const char *name)
{
    QPlatformNativeInterface *native = nativeInterface();
    return native ? static_cast<Object *>(native->nativeResourceForIntegration(name)) : nullptr;
}

/// The child's surface; null as long as it is no window on the screen, for only such a one may have a parent.
wl_surface *surfaceOf(QWindow &child)
{
    QPlatformNativeInterface *native = nativeInterface();
    if (!native || !child.handle() || !native->nativeResourceForWindow("xdg_toplevel", &child)) {
        return nullptr;
    }
    return static_cast<wl_surface *>(native->nativeResourceForWindow("surface", &child));
}

void sayNoSuchWindow(void * /*self*/, zxdg_imported_v2 * /*imported*/)
{
    qCInfo(portalLog) << "the display does not know the caller's window (any more): the dialog stands by itself";
}

} // namespace

struct WaylandParent::Objects {
    Owned<wl_registry, wl_registry_destroy> registry;
    Owned<wl_callback, wl_callback_destroy> listed; ///< when all globals have been told
    Owned<zxdg_importer_v2, zxdg_importer_v2_destroy> importer;
    Owned<zxdg_imported_v2, zxdg_imported_v2_destroy> imported;
};

bool isWaylandHandle(const QByteArray &text)
{
    constexpr auto isPrintable = [](char c) { return c > ' ' && c <= '~'; };
    return !text.isEmpty() && text.size() <= longestHandle && std::all_of(text.begin(), text.end(), isPrintable);
}

WaylandParent::WaylandParent(QByteArray handle, QWindow &child)
    : mHandle(std::move(handle)), mChild(child), mObjects(std::make_unique<Objects>())
{
    auto *display = nativeObject<wl_display>("wl_display");
    if (!display) {
        qCInfo(portalLog) << "the dialog stands by itself: this version of Qt does not lend its display";
        return;
    }
    static constexpr wl_registry_listener globals{takeGlobal, [](void *, wl_registry *, std::uint32_t) {}};
    mObjects->registry.reset(wl_display_get_registry(display));
    wl_registry_add_listener(mObjects->registry.get(), &globals, this);
    static constexpr wl_callback_listener end{[](void *self, wl_callback *, std::uint32_t) {
        if (!static_cast<WaylandParent *>(self)->mObjects->imported) {
            qCInfo(portalLog) << "the dialog stands by itself: the display has no windows of other programs to give";
        }
    }};
    mObjects->listed.reset(wl_display_sync(display));
    wl_callback_add_listener(mObjects->listed.get(), &end, this);
    mChild.installEventFilter(this);
}

WaylandParent::~WaylandParent() = default;

void WaylandParent::takeGlobal(void *self, wl_registry *registry, std::uint32_t name, const char *interface,
                               std::uint32_t /*version*/)
{
    auto *parent = static_cast<WaylandParent *>(self);
    Objects &objects = *parent->mObjects;
    if (objects.importer || std::strcmp(interface, zxdg_importer_v2_interface.name) != 0) {
        return;
    }
    static constexpr zxdg_imported_v2_listener fate{sayNoSuchWindow};
    objects.importer.reset(
        static_cast<zxdg_importer_v2 *>(wl_registry_bind(registry, name, &zxdg_importer_v2_interface, 1)));
    objects.imported.reset(zxdg_importer_v2_import_toplevel(objects.importer.get(), parent->mHandle.constData()));
    zxdg_imported_v2_add_listener(objects.imported.get(), &fate, parent);
    parent->standOver();
}

bool WaylandParent::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Expose) {
        // Hidden, it gives its surface back; shown again, it has a new one, which has no parent.
        mIsOver = mIsOver && mChild.isExposed();
        standOver();
    }
    return QObject::eventFilter(watched, event);
}

void WaylandParent::standOver()
{
    if (mIsOver || !mObjects->imported || !mChild.isExposed()) {
        return;
    }
    if (wl_surface *surface = surfaceOf(mChild)) {
        zxdg_imported_v2_set_parent_of(mObjects->imported.get(), surface);
        mIsOver = true;
    }
}

} // namespace tapeprint::portal
