// SPDX-License-Identifier: Apache-2.0
// The watch is an alarm and a handler of the toolkit's messages.
#include "dialog/ToolkitStart.h"

#include <QLoggingCategory>
#include <QString>

#include <csignal>
#include <cstddef>
#include <cstdio>
#include <utility>
#include <vector>

#include <fcntl.h>
#include <unistd.h>

namespace tapeprint::dialog
{

namespace
{

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

} // namespace

ToolkitStart::ToolkitStart(const QByteArray &words, int descriptor, bool showsWindow)
{
    lastWords = words;
    lastWordsGoTo = descriptor;
    remarks.clear();
    nextMessageHandler = qInstallMessageHandler(keepRemark);
    // Where a session has no folder for sockets the toolkit, which looks into it for a display, would make one among
    // the temporary files and leave it behind.
    if (qEnvironmentVariableIsEmpty("XDG_RUNTIME_DIR")) {
        mTemporary = qgetenv("TMPDIR");
        mTemporary = mTemporary.isEmpty() ? QByteArrayLiteral(P_tmpdir) : mTemporary;
        qputenv("TMPDIR", "/proc"); // where nobody can make any
    }
    if (!showsWindow) {
        return;
    }
    // The desktop's look may be read through GTK, which on Wayland asks the desktop's portal then; and the portal
    // waits, for 25 seconds, for its backend to start, which is one of the programs that start here.
    qunsetenv("GTK_USE_PORTAL");
    // A display that lets nobody in has its refusal written to standard error by the library below the toolkit.
    mStandardError = fcntl(STDERR_FILENO, F_DUPFD_CLOEXEC, STDERR_FILENO + 1);
    if (const int nowhere = open("/dev/null", O_WRONLY | O_CLOEXEC); mStandardError >= 0 && nowhere >= 0) {
        dup2(nowhere, STDERR_FILENO);
        close(nowhere);
    }
    if (descriptor == STDERR_FILENO && mStandardError >= 0) {
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
    if (!mTemporary.isEmpty()) {
        qputenv("TMPDIR", mTemporary); // never taken away again: other threads may be reading the environment by now
    }
    qInstallMessageHandler(nextMessageHandler);
    for (const auto &[type, text] : remarks) {
        qt_message_output(type, QMessageLogContext(), text);
    }
}

} // namespace tapeprint::dialog
