// SPDX-License-Identifier: Apache-2.0
// A display is there when its local socket takes a connection; displays on other machines are taken at their word.
#include "dialog/DisplayCheck.h"

#include <QByteArray>
#include <QByteArrayList>

#include <cstddef>
#include <cstring>

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace tapeprint::dialog
{

namespace
{

/// \param path a socket's path; with isAbstract its name in the abstract namespace, where X servers listen as well.
bool takesConnection(const QByteArray &path, bool isAbstract)
{
    sockaddr_un address{};
    const std::size_t offset = isAbstract ? 1 : 0;
    if (static_cast<std::size_t>(path.size()) + offset >= sizeof address.sun_path) {
        return false;
    }
    address.sun_family = AF_UNIX;
    std::memcpy(address.sun_path + offset, path.constData(), static_cast<std::size_t>(path.size()));
    const auto length = static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) + offset +
                                               static_cast<std::size_t>(path.size()) + (isAbstract ? 0 : 1));
    const int descriptor = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    if (descriptor < 0) {
        return false;
    }
    // The socket interface takes every kind of address through this one type.
    const bool connected = connect(descriptor, reinterpret_cast<const sockaddr *>(&address), length) == 0;
    close(descriptor);
    return connected;
}

bool xServerAnswers(const QByteArray &display)
{
    const auto colon = display.lastIndexOf(':');
    if (colon < 0) {
        return false;
    }
    if (const QByteArray host = display.left(colon); !host.isEmpty() && host != "unix") {
        return true;
    }
    const QByteArray number = display.mid(colon + 1).split('.').value(0);
    const QByteArray path = "/tmp/.X11-unix/X" + number;
    return takesConnection(path, false) || takesConnection(path, true);
}

bool waylandAnswers(const QByteArray &display)
{
    const QByteArray path = display.startsWith('/') ? display : qgetenv("XDG_RUNTIME_DIR") + '/' + display;
    return takesConnection(path, false);
}

} // namespace

DisplayState checkDisplay()
{
    const QByteArray platform = qgetenv("QT_QPA_PLATFORM");
    const bool isBlind = platform.startsWith("offscreen") || platform.startsWith("minimal");
    const QByteArray xDisplay = qgetenv("DISPLAY");
    const QByteArray waylandDisplay = qgetenv("WAYLAND_DISPLAY");
    if (isBlind || (xDisplay.isEmpty() && waylandDisplay.isEmpty())) {
        return DisplayState::None;
    }
    const bool answers = (!xDisplay.isEmpty() && xServerAnswers(xDisplay)) ||
                         (!waylandDisplay.isEmpty() && waylandAnswers(waylandDisplay));
    return answers ? DisplayState::There : DisplayState::Silent;
}

} // namespace tapeprint::dialog
