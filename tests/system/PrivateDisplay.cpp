// SPDX-License-Identifier: Apache-2.0
// Xvfb chooses a free display by itself and says which.
#include "tests/system/PrivateDisplay.h"

#include "tests/system/Client.h"

#include <QElapsedTimer>
#include <QStandardPaths>

namespace systemtest
{

PrivateDisplay::PrivateDisplay() = default;

PrivateDisplay::~PrivateDisplay()
{
    endProcess(mServer);
}

QString PrivateDisplay::reasonToSkip()
{
    for (const char *program : {"Xvfb", "xdotool", "import"}) {
        if (QStandardPaths::findExecutable(QString::fromLatin1(program)).isEmpty()) {
            return QStringLiteral("%1 is missing: install xvfb, xdotool and imagemagick.")
                .arg(QString::fromLatin1(program));
        }
    }
    return {};
}

QString PrivateDisplay::start()
{
    dieWithTest(mServer);
    mServer.start(QStringLiteral("Xvfb"),
                  {QStringLiteral("-displayfd"), QStringLiteral("1"), QStringLiteral("-screen"), QStringLiteral("0"),
                   QStringLiteral("1280x1024x24"), QStringLiteral("-nolisten"), QStringLiteral("tcp"),
                   QStringLiteral("-noreset")});
    QElapsedTimer time;
    time.start();
    QByteArray number;
    while (!number.endsWith('\n') && mServer.state() != QProcess::NotRunning && !time.hasExpired(patienceMs)) {
        mServer.waitForReadyRead(pollMs);
        number += mServer.readAllStandardOutput();
    }
    if (!number.endsWith('\n')) {
        return QStringLiteral("Xvfb does not start: %1").arg(QString::fromUtf8(mServer.readAllStandardError()));
    }
    mName = QLatin1Char(':') + QString::fromLatin1(number.trimmed());
    return {};
}

QByteArray PrivateDisplay::run(const QString &program, const QStringList &arguments) const
{
    const Outcome outcome = runClient({program, arguments, {{QStringLiteral("DISPLAY"), mName}}});
    return outcome.status == 0 ? QByteArray("") + outcome.output : QByteArray();
}

QByteArray PrivateDisplay::xdotool(const QStringList &arguments) const
{
    return run(QStringLiteral("xdotool"), arguments);
}

bool PrivateDisplay::takePicture(const QString &window, const QString &path) const
{
    return !run(QStringLiteral("import"), {QStringLiteral("-window"), window, path}).isNull();
}

} // namespace systemtest
