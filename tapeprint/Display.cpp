// SPDX-License-Identifier: Apache-2.0
// The toolkit's start is watched over by an alarm and a handler of its messages.
#include "tapeprint/Display.h"

#include "dialog/DisplayCheck.h"
#include "tapeprint/JsonReport.h"
#include "tapeprint/RunReport.h"

#include <QByteArray>
#include <QFile>
#include <QLoggingCategory>
#include <QString>

#include <algorithm>
#include <csignal>
#include <utility>
#include <vector>

#include <fcntl.h>
#include <unistd.h>

namespace tapeprint
{

namespace
{

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

} // namespace

job::Problem displayProblem()
{
    switch (dialog::checkDisplay()) {
    case dialog::DisplayState::There:
        return {};
    case dialog::DisplayState::None:
        return {job::Problem::General, QStringLiteral("There is no display for the window: set DISPLAY, or print "
                                                      "without a window with --no-dialog.")};
    case dialog::DisplayState::Silent:
        break;
    }
    return unusableDisplay();
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
