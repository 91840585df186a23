// SPDX-License-Identifier: Apache-2.0
// X's damage extension reports every changed rectangle of the root window, those of its children included.
#include "dialogs/ScreenWatch.h"

#include <chrono>
#include <cstdio>
#include <cstdlib>

#include <poll.h>
#include <xcb/damage.h>
#include <xcb/xcb.h>

namespace bench
{

namespace
{

/// A blinking text cursor is smaller.
constexpr int cursorPixels = 100;

[[noreturn]] void give(const char *what)
{
    std::fprintf(stderr, "dialog_bench: %s\n", what);
    std::exit(2);
}

} // namespace

double now()
{
    return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count();
}

struct ScreenWatch::Connection {
    xcb_connection_t *server = nullptr;
    std::uint8_t damageEvent = 0;

    /// The next event that is there, or nothing after the time. \return whether it is a change of the screen.
    bool isChanged(double seconds) const
    {
        xcb_generic_event_t *event = xcb_poll_for_event(server);
        if (event == nullptr) {
            pollfd input{xcb_get_file_descriptor(server), POLLIN, 0};
            poll(&input, 1, static_cast<int>(seconds * 1000.0));
            event = xcb_poll_for_event(server);
        }
        bool changed = false;
        if (event != nullptr && (event->response_type & 0x7FU) == damageEvent) {
            const auto *notice = reinterpret_cast<const xcb_damage_notify_event_t *>(event);
            changed = notice->area.width * notice->area.height > cursorPixels;
        }
        std::free(event); // the library's events are the caller's
        return changed;
    }
};

ScreenWatch::ScreenWatch(const std::string &display) : mConnection(std::make_unique<Connection>())
{
    mConnection->server = xcb_connect(display.c_str(), nullptr);
    const xcb_query_extension_reply_t *extension = xcb_get_extension_data(mConnection->server, &xcb_damage_id);
    if (xcb_connection_has_error(mConnection->server) != 0 || extension == nullptr || extension->present == 0) {
        give("the display cannot be watched: it needs X's damage extension");
    }
    mConnection->damageEvent = static_cast<std::uint8_t>(extension->first_event + XCB_DAMAGE_NOTIFY);
    const xcb_damage_query_version_cookie_t version =
        xcb_damage_query_version(mConnection->server, XCB_DAMAGE_MAJOR_VERSION, XCB_DAMAGE_MINOR_VERSION);
    std::free(xcb_damage_query_version_reply(mConnection->server, version, nullptr));
    const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(mConnection->server)).data->root;
    xcb_damage_create(mConnection->server, xcb_generate_id(mConnection->server), root,
                      XCB_DAMAGE_REPORT_LEVEL_RAW_RECTANGLES);
    xcb_flush(mConnection->server);
}

ScreenWatch::~ScreenWatch()
{
    xcb_disconnect(mConnection->server);
}

void ScreenWatch::clear()
{
    constexpr double quietSeconds = 0.2;
    double changed = now();
    while (now() - changed < quietSeconds) {
        if (mConnection->isChanged(quietSeconds)) {
            changed = now();
        }
    }
}

std::optional<Paints> ScreenWatch::watch(double restSeconds, double patienceSeconds)
{
    constexpr double stepSeconds = 0.05;
    const double began = now();
    std::optional<Paints> paints;
    while (now() - began < 2.0 * patienceSeconds) {
        if (mConnection->isChanged(stepSeconds)) {
            const double at = now();
            paints = {paints ? paints->first : at, at};
        } else if (paints ? now() - paints->last > restSeconds : now() - began > patienceSeconds) {
            return paints;
        }
    }
    return std::nullopt;
}

} // namespace bench
