// SPDX-License-Identifier: Apache-2.0
// The bus has a configuration of the test's own: the machine's would start the machine's services.
#include "tests/system/PrivateBus.h"

#include "tests/system/Client.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusReply>
#include <QElapsedTimer>

namespace systemtest
{

namespace
{

const char configuration[] = "<!DOCTYPE busconfig PUBLIC \"-//freedesktop//DTD D-Bus Bus Configuration 1.0//EN\" "
                             "\"http://www.freedesktop.org/standards/dbus/1.0/busconfig.dtd\">\n"
                             "<busconfig>\n<type>session</type>\n<listen>unix:dir=%1</listen>\n%2"
                             "<policy context=\"default\">\n<allow send_destination=\"*\" eavesdrop=\"true\"/>\n"
                             "<allow eavesdrop=\"true\"/>\n<allow own=\"*\"/>\n</policy>\n</busconfig>\n";

} // namespace

PrivateBus::~PrivateBus()
{
    end();
}

void PrivateBus::end()
{
    endProcess(mDaemon);
}

QString PrivateBus::start(const std::vector<std::pair<QString, QString>> &variables, const QStringList &dataFolders)
{
    QByteArray services;
    for (const QString &folder : dataFolders) {
        services += "<servicedir>" + folder.toLocal8Bit() + "/dbus-1/services</servicedir>\n";
    }
    QByteArray text(configuration);
    text.replace("%1", mFolder.path().toLocal8Bit()).replace("%2", services);
    const QString file = writeFile(mFolder.path(QStringLiteral("session.conf")), text);
    dieWithTest(mDaemon);
    mDaemon.setProcessEnvironment(clientEnvironment(variables));
    mDaemon.start(QStringLiteral("dbus-daemon"), {QStringLiteral("--config-file=") + file, QStringLiteral("--nofork"),
                                                  QStringLiteral("--print-address=1")});
    QElapsedTimer time;
    time.start();
    QByteArray address;
    while (!address.endsWith('\n') && mDaemon.state() != QProcess::NotRunning && !time.hasExpired(patienceMs)) {
        mDaemon.waitForReadyRead(pollMs);
        address += mDaemon.readAllStandardOutput();
    }
    mAddress = QString::fromLocal8Bit(address.trimmed());
    return mAddress.isEmpty() ? QStringLiteral("dbus-daemon does not start: %1").arg(QString::fromUtf8(messages()))
                              : QString();
}

qint64 PrivateBus::processOf(const QString &name) const
{
    const QString connection = QStringLiteral("asking");
    qint64 process = 0;
    {
        const QDBusConnection bus = QDBusConnection::connectToBus(mAddress, connection);
        if (bus.isConnected()) {
            const QDBusReply<uint> reply = bus.interface()->servicePid(name);
            process = reply.isValid() ? reply.value() : 0;
        }
    }
    QDBusConnection::disconnectFromBus(connection);
    return process;
}

QByteArray PrivateBus::messages()
{
    mDaemon.waitForReadyRead(0);
    mMessages += mDaemon.readAllStandardError();
    return mMessages;
}

} // namespace systemtest
