// SPDX-License-Identifier: Apache-2.0
// Throws are caught where the toolkit hands an event out, which is next to the panel's own code, and events that do not
// end are noticed there; crashes can only be named.
#include "dialog/Application.h"

#include "dialog/CallWatch.h"
#include "dialog/Panels.h"

#include <QPointer>
#include <QThread>

#include <array>
#include <csignal>
#include <cstring>
#include <exception>
#include <optional>

#include <unistd.h>

namespace tapeprint::dialog
{

namespace
{

/// Nothing but what may be called in a handler of signals.
void nameAndEnd(int signal)
{
    const char *who = PanelCalls::whoIsInCall();
    if (*who != '\0') {
        for (const char *part : {"tapeprint: ", who, " has crashed. Remove its bundle to print without it.\n"}) {
            if (write(STDERR_FILENO, part, std::strlen(part)) < 0) {
                break;
            }
        }
    }
    raise(signal); // which is left to the system by now
}

} // namespace

bool Application::deliver(QObject *receiver, const std::function<bool()> &delivery)
{
    const QPointer<QObject> known(receiver);
    std::optional<CallWatch::Part> part; // threads beside the window's have events as well
    if (QThread::currentThread() == instance()->thread()) {
        part.emplace(CallWatch::Work::Event, Panels::nameOfWhoseView(receiver));
    }
    try {
        return delivery();
    } catch (const std::exception &thrown) {
        if (!Panels::takeThrow(known, QString::fromLocal8Bit(thrown.what()))) {
            throw;
        }
    } catch (...) {
        if (!Panels::takeThrow(known, QString())) {
            throw;
        }
    }
    return true;
}

void nameCrashingPanels()
{
    // A handler needs a stack of its own where the thread's is used up.
    static std::array<char, 65536> stack;
    stack_t place{};
    place.ss_sp = stack.data();
    place.ss_size = stack.size();
    sigaltstack(&place, nullptr);
    struct sigaction action {
    };
    action.sa_handler = nameAndEnd;
    action.sa_flags = static_cast<int>(SA_ONSTACK | SA_RESETHAND);
    for (const int signal : {SIGSEGV, SIGBUS, SIGFPE, SIGILL, SIGABRT}) {
        sigaction(signal, &action, nullptr);
    }
}

} // namespace tapeprint::dialog
