// SPDX-License-Identifier: Apache-2.0
// The program tapeprint-portal: the print dialog for programs that print through the desktop portal. The session's bus
// starts it when it is needed.
#include "dialog/Application.h"
#include "dialog/ContrastStyle.h"
#include "dialog/DisplayCheck.h"
#include "dialog/PasswordQuestion.h"
#include "dialog/ToolkitStart.h"
#include "dialog/Translations.h"
#include "portal/Lifetime.h"
#include "portal/PrintPortal.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusError>
#include <QIcon>

#include <csignal>
#include <cstdio>
#include <optional>

#include <unistd.h>

namespace
{

using tapeprint::portal::Lifetime;

const QString busName = QStringLiteral("org.freedesktop.impl.portal.desktop.tapeprint");

QByteArray lineOf(const QString &sentence)
{
    return "tapeprint-portal: " + sentence.toLocal8Bit() + '\n';
}

int fail(const QString &sentence)
{
    std::fputs(lineOf(sentence).constData(), stderr);
    return 1;
}

/// What the command line asks for; nothing, with everything said, when the program is not to run.
std::optional<std::chrono::seconds> patienceIn(const QStringList &arguments, int *status)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral(
        "Shows Tape Print's dialog to programs that print through the desktop portal. The session's bus starts it."));
    const QCommandLineOption idle(QStringLiteral("idle"),
                                  QStringLiteral("Leave after so many seconds without anything to do."),
                                  QStringLiteral("SECONDS"), QString::number(Lifetime::usualPatience.count()));
    const QCommandLineOption help = parser.addHelpOption();
    const QCommandLineOption version(QStringList{QStringLiteral("v"), QStringLiteral("version")},
                                     QStringLiteral("Show the version."));
    parser.addOptions({idle, version});
    bool isNumber = false;
    const bool isParsed = parser.parse(arguments) && parser.positionalArguments().isEmpty();
    const int seconds = parser.value(idle).toInt(&isNumber);
    if (!isParsed || !isNumber || seconds <= 0) {
        *status = fail(QStringLiteral("This is understood: --idle SECONDS, --help, --version."));
        return std::nullopt;
    }
    *status = 0;
    if (parser.isSet(help)) {
        std::fputs(parser.helpText().toLocal8Bit().constData(), stdout);
        return std::nullopt;
    }
    if (parser.isSet(version)) {
        std::puts("tapeprint-portal " TAPEPRINT_VERSION);
        return std::nullopt;
    }
    return std::chrono::seconds(seconds);
}

QStringList argumentsOf(int argc, char **argv)
{
    QStringList arguments;
    for (int i = 0; i < argc; ++i) {
        arguments.append(QString::fromLocal8Bit(argv[i]));
    }
    return arguments;
}

QString unusableDisplay()
{
    return QStringLiteral("The display of the session cannot be used: see that it runs and lets you in, and, on "
                          "Wayland, that Qt has its part for that (qt6-wayland).");
}

QString displayTrouble()
{
    switch (tapeprint::dialog::checkDisplay()) {
    case tapeprint::dialog::DisplayState::There:
        return {};
    case tapeprint::dialog::DisplayState::None:
        return QStringLiteral("There is no display for the dialog: the session has set neither DISPLAY nor "
                              "WAYLAND_DISPLAY for programs that its bus starts.");
    case tapeprint::dialog::DisplayState::Silent:
        return unusableDisplay();
    }
    return {};
}

} // namespace

int main(int argc, char **argv)
{
    int status = 0;
    const std::optional<std::chrono::seconds> patience = patienceIn(argumentsOf(argc, argv), &status);
    if (!patience) {
        return status;
    }
    if (const QString trouble = displayTrouble(); !trouble.isNull()) {
        return fail(trouble);
    }
    std::signal(SIGPIPE, SIG_IGN); // a server or a caller that goes away is said, not died of
    auto start = std::make_optional<tapeprint::dialog::ToolkitStart>(lineOf(unusableDisplay()), STDERR_FILENO, true);
    const tapeprint::dialog::Application application(argc, argv);
    tapeprint::dialog::nameCrashingPanels();
    tapeprint::dialog::ContrastStyle::takeWhereWanted();
    start.reset();
    QApplication::setApplicationName(QStringLiteral("tapeprint-portal"));
    // Whose icon a Wayland desktop shows; on X11 the window has to bring it.
    QApplication::setDesktopFileName(QStringLiteral("org.tapeprint.TapePrint"));
    QApplication::setWindowIcon(QIcon::fromTheme(QStringLiteral("org.tapeprint.TapePrint")));
    QApplication::setQuitOnLastWindowClosed(false);

    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected()) {
        return fail(QStringLiteral("There is no session bus to be called on (%1): tapeprint prints without one.")
                        .arg(bus.lastError().message()));
    }
    const tapeprint::dialog::Translations translations;
    const tapeprint::dialog::PasswordDesk passwords;
    tapeprint::portal::PrintPortal portal(bus);
    const Lifetime lifetime(portal, bus, *patience);
    if (!portal.publish() || !bus.registerService(busName)) {
        return fail(QStringLiteral("The name %1 cannot be had on the session's bus: another one has it.").arg(busName));
    }
    return QApplication::exec();
}
