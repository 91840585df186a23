// SPDX-License-Identifier: Apache-2.0
// Confined in any case where that can be: only a program that does not come to life is asked whether the machine allows
// it at all.
#include "job/ConfinedProgram.h"

#include "job/Reason.h"
#include "job/Texts.h"

#include <QFile>
#include <QFileInfo>

#include <cerrno>

namespace tapeprint::job
{

namespace
{

using End = DrawerProcess::End;

ConfinedCommand commandFor(const QString &program)
{
    const QString path = QFileInfo(program).canonicalFilePath();
    ConfinedCommand command{path, {}, {path}};
    command.seesSettings = false;
    command.bindsItself = true;
    return command;
}

} // namespace

QString moduleFolder()
{
    // The toolkit knows it as well, but not before it has been started.
    static const QString program = QFile::symLinkTarget(QStringLiteral("/proc/self/exe"));
    return QFileInfo(program).path() + QLatin1String("/" TAPEPRINT_MODULE_PLACE);
}

std::unique_ptr<DrawerProcess> startAhead(const QString &program)
{
    return QFileInfo(program).isExecutable() ? DrawerProcess::start(confineUntried(commandFor(program))) : nullptr;
}

std::unique_ptr<DrawerProcess> startProgram(const QString &program, std::uint32_t greeting,
                                            const std::atomic<bool> &stop, QString *problem)
{
    const QFileInfo file(program);
    if (!file.isExecutable() || !file.isFile()) {
        *problem = reasonText(program + QLatin1String(": ") + qt_error_string(ENOENT));
        return nullptr;
    }
    const ConfinedCommand command = commandFor(program);
    for (const bool isTried : {false, true}) {
        const ConfinedLaunch launch = isTried ? confine(command) : confineUntried(command);
        std::unique_ptr<DrawerProcess> process = DrawerProcess::start(launch);
        if (!process) {
            *problem = reasonText(qt_error_string(errno));
            return nullptr;
        }
        const End end = process->greet(greeting, stop);
        if (end == End::Whole) {
            *problem = QString(); // of the first try
            return process;
        }
        *problem = reasonText(process->messages());
        if (end == End::Stopped || !launch.confined || confinementProblem().isNull()) {
            break;
        }
    }
    return nullptr;
}

QString partMissing(const QString &reason)
{
    return Texts::tr("The part of this program that draws pages cannot be loaded (%1): install it again.").arg(reason);
}

} // namespace tapeprint::job
