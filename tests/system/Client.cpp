// SPDX-License-Identifier: Apache-2.0
// A client that hangs is ended with the test's patience, and counts as one that failed.
#include "tests/system/Client.h"

#include "tests/system/PrivateFolder.h"

#include <QProcess>

namespace systemtest
{

QProcessEnvironment clientEnvironment(const std::vector<std::pair<QString, QString>> &variables)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char *name :
         {"DISPLAY", "WAYLAND_DISPLAY", "XDG_RUNTIME_DIR", "XDG_DATA_HOME", "QT_QPA_PLATFORM", "LPDEST", "PRINTER",
          "CUPS_USER", "IPP_PORT", "LANGUAGE", "LANG", "LC_NUMERIC", "LC_MESSAGES", "TAPEPRINT_PLUGIN_PATH"}) {
        environment.remove(QString::fromLatin1(name));
    }
    environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C.UTF-8"));
    // Bundles that are installed on the machine are not the ones that were built.
    environment.insert(QStringLiteral("XDG_DATA_DIRS"), QStringLiteral("/nonexistent"));
    // No desktop's services are asked, and none is started for the sake of the test.
    environment.insert(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"), QStringLiteral("unix:path=/nonexistent"));
    for (const auto &[name, value] : variables) {
        environment.insert(name, value);
    }
    return environment;
}

Outcome runClient(const Client &client)
{
    QProcess process;
    dieWithTest(process);
    process.setProcessEnvironment(clientEnvironment(client.variables));
    if (!client.folder.isEmpty()) {
        process.setWorkingDirectory(client.folder);
    }
    process.start(client.program, client.arguments);
    process.write(client.input);
    process.closeWriteChannel();
    Outcome outcome;
    const bool ended = process.waitForFinished(patienceMs);
    if (!ended) {
        endProcess(process);
    }
    outcome.output = process.readAllStandardOutput();
    outcome.messages = process.readAllStandardError();
    if (ended && process.exitStatus() == QProcess::NormalExit) {
        outcome.status = process.exitCode();
    }
    return outcome;
}

} // namespace systemtest
