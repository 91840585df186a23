// SPDX-License-Identifier: Apache-2.0
// The session's variables are those of the bus: services get them from it.
#include "tests/system/PortalSession.h"

#include "tests/system/Client.h"

#include <QDBusMessage>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QTest>

#include <cups/cups.h>

namespace systemtest
{

const QString portalName = QStringLiteral("org.freedesktop.portal.Desktop");
const QString portalPath = QStringLiteral("/org/freedesktop/portal/desktop");
const QString backendName = QStringLiteral("org.freedesktop.impl.portal.desktop.tapeprint");

namespace
{

const QString portalProgram = QStringLiteral("/usr/libexec/xdg-desktop-portal");
const QString dataFolder = QStringLiteral(TAPEPRINT_PORTAL_DATA_DIR);

} // namespace

bool waitWithEvents(const std::function<bool()> &condition, int timeoutMs)
{
    return QTest::qWaitFor(condition, timeoutMs);
}

void PortalSession::SetUp()
{
    if (const QString reason = PrivateDisplay::reasonToSkip(); !reason.isNull()) {
        GTEST_SKIP() << reason.toStdString();
    }
    const QString problem = display.start();
    ASSERT_TRUE(problem.isNull()) << problem.toStdString();
}

void PortalSession::startSession(bool withServer)
{
    if (withServer) {
        ASSERT_NO_FATAL_FAILURE(SystemTest::SetUp());
        ASSERT_TRUE(cups.run(QStringLiteral("lpadmin"), {QStringLiteral("-d"), QStringLiteral("tape")}).isNull());
    }
    const QString problem = bus.start(sessionVariables(), {dataFolder, QStringLiteral("/usr/share")});
    ASSERT_TRUE(problem.isNull()) << problem.toStdString();
    session = QDBusConnection::connectToBus(bus.address(), QStringLiteral("session"));
    ASSERT_TRUE(session->isConnected());
}

void PortalSession::TearDown()
{
    session.reset();
    QDBusConnection::disconnectFromBus(QStringLiteral("session"));
    endProcess(portal);
    const qint64 backend = bus.address().isEmpty() ? 0 : bus.processOf(backendName);
    bus.end();
    if (HasFailure()) {
        ADD_FAILURE() << "the session said:\n" << bus.messages().right(4000).toStdString();
    }
    // The bus's end is what ends it, long before it would leave for having nothing to do. One that has ended and whose
    // parent has not looked yet has no command line.
    const QString commandLine = QStringLiteral("/proc/%1/cmdline").arg(backend);
    EXPECT_TRUE(backend == 0 || waitUntil([&] { return contentsOf(commandLine).isEmpty(); }, soonMs))
        << "the backend is still there";
}

std::vector<std::pair<QString, QString>> PortalSession::sessionVariables() const
{
    std::vector<std::pair<QString, QString>> variables{
        {QStringLiteral("CUPS_SERVER"), folder.path(QStringLiteral("nobody.sock"))},
        {QStringLiteral("HOME"), folder.makeFolder(QStringLiteral("home"))},
        {QStringLiteral("XDG_RUNTIME_DIR"), folder.makeFolder(QStringLiteral("run"), 0700)},
        {QStringLiteral("TMPDIR"), folder.makeFolder(QStringLiteral("tmp"))}};
    if (QFileInfo::exists(cups.socket())) {
        variables = cups.clientVariables();
    }
    variables.insert(variables.end(), {{QStringLiteral("DISPLAY"), display.name()},
                                       {QStringLiteral("XDG_DATA_DIRS"), dataFolder + QLatin1String(":/usr/share")},
                                       {QStringLiteral("XDG_CURRENT_DESKTOP"), QStringLiteral("GNOME")},
                                       {QStringLiteral("XDG_DESKTOP_PORTAL_DIR"),
                                        dataFolder + QLatin1String("/xdg-desktop-portal/portals")},
                                       {QStringLiteral("GTK_USE_PORTAL"), QStringLiteral("1")},
                                       {QStringLiteral("GSETTINGS_BACKEND"), QStringLiteral("memory")},
                                       {QStringLiteral("NO_AT_BRIDGE"), QStringLiteral("1")}});
    if (!bus.address().isEmpty()) {
        variables.emplace_back(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"), bus.address());
    }
    variables.insert(variables.end(), moreOfSession.begin(), moreOfSession.end());
    return variables;
}

void PortalSession::startProgram(QProcess &program, const QString &file, const QStringList &arguments)
{
    dieWithTest(program);
    program.setProcessEnvironment(clientEnvironment(sessionVariables()));
    program.setWorkingDirectory(workFolder);
    program.start(file, arguments);
    ASSERT_TRUE(program.waitForStarted()) << "install " << file.toStdString();
}

void PortalSession::startPortal()
{
    ASSERT_NO_FATAL_FAILURE(startProgram(portal, portalProgram, {}));
    // The test itself may be the desktop that it asks.
    ASSERT_TRUE(waitWithEvents([this] { return bus.processOf(portalName) != 0; }))
        << portal.readAllStandardError().toStdString();
}

QDBusPendingCall PortalSession::callBackend(const QString &method, const QVariantList &arguments)
{
    QDBusMessage call = QDBusMessage::createMethodCall(backendName, portalPath,
                                                       QStringLiteral("org.freedesktop.impl.portal.Print"), method);
    call.setArguments(arguments);
    return session->asyncCall(call, patienceMs);
}

void PortalSession::openDialog(WindowUnderTest &dialog, const QStringList &known)
{
    qint64 backend = 0;
    ASSERT_TRUE(waitUntil([&] { return (backend = bus.processOf(backendName)) != 0; })) << "no backend is started";
    const QString problem = dialog.adopt(backend, known);
    ASSERT_TRUE(problem.isNull()) << problem.toStdString();
}

std::vector<FilterCall> PortalSession::printedJob(int id)
{
    if (!waitUntil([this, id] { return cups.jobs().size() >= static_cast<std::size_t>(id); })) {
        ADD_FAILURE() << "no job has come";
        return {};
    }
    const std::optional<ServerJob> job = cups.waitForEnd(id);
    EXPECT_TRUE(job && job->state == IPP_JSTATE_COMPLETED);
    return cups.filterCalls(id);
}

bool PortalSession::backendSays(const QByteArray &words)
{
    return waitUntil([&] { return bus.messages().contains(words); });
}

} // namespace systemtest
