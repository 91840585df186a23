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
#include <xdg-foreign-v1-client-header.h>
#include <xdg-foreign-v1-private-code.h>
#include <xdg-foreign-v2-client-header.h>
#include <xdg-foreign-v2-private-code.h>
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

void sayNoSuchWindow()
{
    qCInfo(portalLog) << "the display does not know the caller's window (any more): the dialog stands by itself";
}

} // namespace

/// A window of another program, by whichever version of the protocol.
class BorrowedWindow
{
public:
    BorrowedWindow() = default;
    virtual ~BorrowedWindow() = default;
    BorrowedWindow(const BorrowedWindow &) = delete;
    BorrowedWindow &operator=(const BorrowedWindow &) = delete;

    virtual void beParentOf(wl_surface *surface) = 0;
};

namespace
{

struct Version1 {
    using Importer = zxdg_importer_v1;
    using Window = zxdg_imported_v1;
    using Listener = zxdg_imported_v1_listener;
    static constexpr const wl_interface *interface = &zxdg_importer_v1_interface;
    static constexpr auto borrow = zxdg_importer_v1_import;
    static constexpr auto listen = zxdg_imported_v1_add_listener;
    static constexpr auto setParentOf = zxdg_imported_v1_set_parent_of;
    static constexpr auto destroyImporter = zxdg_importer_v1_destroy;
    static constexpr auto destroyWindow = zxdg_imported_v1_destroy;
};

struct Version2 {
    using Importer = zxdg_importer_v2;
    using Window = zxdg_imported_v2;
    using Listener = zxdg_imported_v2_listener;
    static constexpr const wl_interface *interface = &zxdg_importer_v2_interface;
    static constexpr auto borrow = zxdg_importer_v2_import_toplevel;
    static constexpr auto listen = zxdg_imported_v2_add_listener;
    static constexpr auto setParentOf = zxdg_imported_v2_set_parent_of;
    static constexpr auto destroyImporter = zxdg_importer_v2_destroy;
    static constexpr auto destroyWindow = zxdg_imported_v2_destroy;
};

template <typename Version>
class WindowOf final : public BorrowedWindow
{
public:
    WindowOf(wl_registry *registry, std::uint32_t name, const char *handle)
        : mImporter(static_cast<typename Version::Importer *>(wl_registry_bind(registry, name, Version::interface, 1))),
          mWindow(Version::borrow(mImporter.get(), handle))
    {
        static constexpr typename Version::Listener fate{[](void *, typename Version::Window *) { sayNoSuchWindow(); }};
        Version::listen(mWindow.get(), &fate, nullptr);
    }
    void beParentOf(wl_surface *surface) override { Version::setParentOf(mWindow.get(), surface); }

private:
    Owned<typename Version::Importer, Version::destroyImporter> mImporter;
    Owned<typename Version::Window, Version::destroyWindow> mWindow;
};

} // namespace

struct WaylandParent::Objects {
    Owned<wl_registry, wl_registry_destroy> registry;
    Owned<wl_callback, wl_callback_destroy> listed; ///< when all globals have been told
    std::uint32_t version1 = 0;                     ///< the global's name; 0: the display has none
    std::uint32_t version2 = 0;
    std::unique_ptr<BorrowedWindow> window;
};

bool isWaylandHandle(const QByteArray &text)
{
    // GNOME makes them of any printable characters, blanks among them.
    constexpr auto isPrintable = [](char c) { return c >= ' ' && c <= '~'; };
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
    static constexpr wl_callback_listener end{
        [](void *self, wl_callback *, std::uint32_t) { static_cast<WaylandParent *>(self)->borrow(); }};
    mObjects->listed.reset(wl_display_sync(display));
    wl_callback_add_listener(mObjects->listed.get(), &end, this);
    mChild.installEventFilter(this);
}

WaylandParent::~WaylandParent() = default;

void WaylandParent::takeGlobal(void *self, wl_registry * /*registry*/, std::uint32_t name, const char *interface,
                               std::uint32_t /*version*/)
{
    Objects &objects = *static_cast<WaylandParent *>(self)->mObjects;
    if (std::strcmp(interface, zxdg_importer_v1_interface.name) == 0) {
        objects.version1 = name;
    } else if (std::strcmp(interface, zxdg_importer_v2_interface.name) == 0) {
        objects.version2 = name;
    }
}

/// The later version where both are there: such a display knows a window in both by the same handle.
void WaylandParent::borrow()
{
    wl_registry *registry = mObjects->registry.get();
    if (mObjects->version2 != 0) {
        mObjects->window = std::make_unique<WindowOf<Version2>>(registry, mObjects->version2, mHandle.constData());
    } else if (mObjects->version1 != 0) {
        mObjects->window = std::make_unique<WindowOf<Version1>>(registry, mObjects->version1, mHandle.constData());
    } else {
        qCInfo(portalLog) << "the dialog stands by itself: the display has no windows of other programs to give";
    }
    standOver();
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
    if (mIsOver || !mObjects->window || !mChild.isExposed()) {
        return;
    }
    if (wl_surface *surface = surfaceOf(mChild)) {
        mObjects->window->beParentOf(surface);
        mIsOver = true;
    }
}

} // namespace tapeprint::portal
