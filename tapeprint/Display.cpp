// SPDX-License-Identifier: Apache-2.0
// A display is there when its local socket takes a connection; displays on other machines are taken at their word.
#include "tapeprint/Display.h"

#include "tapeprint/JsonReport.h"
#include "tapeprint/RunReport.h"

#include <QByteArray>
#include <QFile>
#include <QLoggingCategory>
#include <QString>

#include <algorithm>
#include <csignal>
#include <cstddef>
#include <cstring>
#include <utility>
#include <vector>

#include <fcntl.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace tapeprint
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

job::Problem unusableDisplay()
{
    const QByteArray xDisplay = qgetenv("DISPLAY");
    const QString name = QString::fromLocal8Bit(xDisplay.isEmpty() ? qgetenv("WAYLAND_DISPLAY") : xDisplay);
    return {job::Problem::General,
            QStringLiteral("The display %1 cannot be used: see that it runs and lets you in, or print without a window "
                           "with --no-dialog.")
                .arg(name)};
}

// What is said when the toolkit cannot start: put together beforehand, because a signal handler may not.
constexpr unsigned patienceSeconds = 10;
QByteArray lastWords;
int lastWordsGoTo = STDERR_FILENO;
std::vector<std::pair<QtMsgType, QString>> remarks;
QtMessageHandler nextMessageHandler = nullptr;

[[noreturn]] void endHere()
{
    const ssize_t written = write(lastWordsGoTo, lastWords.constData(), static_cast<std::size_t>(lastWords.size()));
    static_cast<void>(written); // there is nobody left to tell
    _exit(1);
}

void keepRemark(QtMsgType type, const QMessageLogContext & /*context*/, const QString &text)
{
    if (type == QtFatalMsg) {
        endHere();
    }
    remarks.emplace_back(type, text);
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

job::Problem displayProblem()
{
    const QByteArray platform = qgetenv("QT_QPA_PLATFORM");
    const bool isBlind = platform.startsWith("offscreen") || platform.startsWith("minimal");
    const QByteArray xDisplay = qgetenv("DISPLAY");
    const QByteArray waylandDisplay = qgetenv("WAYLAND_DISPLAY");
    if (isBlind || (xDisplay.isEmpty() && waylandDisplay.isEmpty())) {
        return {job::Problem::General, QStringLiteral("There is no display for the window: set DISPLAY, or print "
                                                      "without a window with --no-dialog.")};
    }
    const bool answers = (!xDisplay.isEmpty() && xServerAnswers(xDisplay)) ||
                         (!waylandDisplay.isEmpty() && waylandAnswers(waylandDisplay));
    return answers ? job::Problem() : unusableDisplay();
}

ToolkitStart::ToolkitStart(bool showsWindow, bool asJson)
{
    const RunReport report = failedRun(
        showsWindow ? unusableDisplay()
                    : job::Problem(job::Problem::General,
                                   QStringLiteral("The toolkit cannot start: see that it is installed as a whole.")));
    lastWords = asJson ? jsonText(report) : "tapeprint: " + report.messages.first().toLocal8Bit() + '\n';
    lastWordsGoTo = asJson ? STDOUT_FILENO : STDERR_FILENO;
    remarks.clear();
    nextMessageHandler = qInstallMessageHandler(keepRemark);
    if (!showsWindow) {
        return;
    }
    // A display that lets nobody in has its refusal written to standard error by the library below the toolkit.
    mStandardError = fcntl(STDERR_FILENO, F_DUPFD_CLOEXEC, STDERR_FILENO + 1);
    if (const int nowhere = open("/dev/null", O_WRONLY | O_CLOEXEC); mStandardError >= 0 && nowhere >= 0) {
        dup2(nowhere, STDERR_FILENO);
        close(nowhere);
    }
    if (!asJson && mStandardError >= 0) {
        lastWordsGoTo = mStandardError;
    }
    std::signal(SIGALRM, [](int) { endHere(); });
    alarm(patienceSeconds);
}

ToolkitStart::~ToolkitStart()
{
    alarm(0);
    std::signal(SIGALRM, SIG_DFL);
    if (mStandardError >= 0) {
        dup2(mStandardError, STDERR_FILENO);
        close(mStandardError);
    }
    qInstallMessageHandler(nextMessageHandler);
    for (const auto &[type, text] : remarks) {
        qt_message_output(type, QMessageLogContext(), text);
    }
}

} // namespace tapeprint
