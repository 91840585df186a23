// SPDX-License-Identifier: Apache-2.0
// Confinement by bubblewrap, which needs no rights of its own where the kernel lets users make name spaces.
#include "job/Confinement.h"

#include "job/ConfinedBounds.h"
#include "job/PlainText.h"
#include "job/Texts.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>

#include <algorithm>
#include <array>
#include <atomic>

namespace tapeprint::job
{

namespace
{

/// The temporary folder is memory: a document and its copy between two filters have to fit.
constexpr qint64 mostTemporaryBytes = qint64(2) << 30;
constexpr int probeTimeoutMs = 10000;

constexpr QLatin1String insideTemporary("/tmp");

/// What of the system is seen beside /etc, where it exists. Nothing of /run: sockets of the session and of services
/// would be reached through it without a network.
constexpr std::array systemFolders{"/usr",
                                   "/opt",
                                   "/bin",
                                   "/sbin",
                                   "/lib",
                                   "/lib32",
                                   "/lib64",
                                   "/libx32",
                                   "/var/lib/ghostscript",
                                   "/var/cache/fontconfig"};

/// Where among the settings something may stand that is not for everybody; root, who may read it, does not show it.
constexpr std::array settingsFolders{"/etc", "/etc/cups"};

/// Settings that every program is loaded by, and finds fonts by.
constexpr std::array fontSettings{"/etc/ld.so.cache", "/etc/fonts"};

QStringList systemArguments()
{
    QStringList arguments;
    for (const char *name : systemFolders) {
        const QString path = QString::fromLatin1(name);
        const QFileInfo info(path);
        // A machine whose /bin is /usr/bin is shown with the same link.
        if (info.isSymLink()) {
            arguments << QStringLiteral("--symlink") << QFile::symLinkTarget(path) << path;
        } else if (info.isDir()) {
            arguments << QStringLiteral("--ro-bind") << path << path;
        }
    }
    return arguments;
}

QStringList settingsArguments()
{
    QStringList arguments{QStringLiteral("--ro-bind"), QStringLiteral("/etc"), QStringLiteral("/etc")};
    for (const char *folder : settingsFolders) {
        const QDir entries(QString::fromLatin1(folder));
        for (const QFileInfo &entry : entries.entryInfoList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot)) {
            if (entry.isSymLink() || (entry.permissions() & QFile::ReadOther) != 0) {
                continue;
            }
            if (entry.isDir()) {
                arguments << QStringLiteral("--tmpfs") << entry.filePath();
            } else if (entry.isFile()) {
                arguments << QStringLiteral("--ro-bind") << QStringLiteral("/dev/null") << entry.filePath();
            }
        }
    }
    return arguments;
}

/// What is memory beside the temporary folder takes no data: it would not be bounded.
QStringList sealedDevices()
{
    return {QStringLiteral("--dev"), QStringLiteral("/dev"), QStringLiteral("--remount-ro"), QStringLiteral("/dev")};
}

/// What every program needs of the settings to be loaded and to find fonts.
QStringList fontArguments()
{
    QStringList arguments;
    for (const char *name : fontSettings) {
        arguments << QStringLiteral("--ro-bind-try") << QString::fromLatin1(name) << QString::fromLatin1(name);
    }
    return arguments;
}

QStringList makeRoomArguments(bool seesSettings)
{
    // Root would keep its rights over the room, and could make what is shown read-only writable.
    return QStringList{QStringLiteral("--unshare-all"), QStringLiteral("--die-with-parent"),
                       QStringLiteral("--new-session"), QStringLiteral("--cap-drop"), QStringLiteral("ALL")} +
           systemArguments() + (seesSettings ? settingsArguments() + sealedDevices() : fontArguments()) +
           QStringList{QStringLiteral("--proc"),  QStringLiteral("/proc"),  QStringLiteral("--perms"),
                       QStringLiteral("0700"),    QStringLiteral("--size"), QString::number(mostTemporaryBytes),
                       QStringLiteral("--tmpfs"), insideTemporary};
}

/// Everything up to the files of a command.
const QStringList &roomArguments(bool seesSettings)
{
    if (seesSettings) { // looks at every file of the settings: not for who sees none
        static const QStringList withSettings = makeRoomArguments(true);
        return withSettings;
    }
    static const QStringList without = makeRoomArguments(false);
    return without;
}

/// As sealedDevices(), for what holds everything.
QStringList sealArguments()
{
    return {QStringLiteral("--remount-ro"), QStringLiteral("/"), QStringLiteral("--chdir"), insideTemporary};
}

QStringList environmentOf(const ConfinedCommand &command, const QString &temporaryFolder)
{
    QStringList variables{QStringLiteral("PATH=/usr/bin:/bin:/usr/sbin:/sbin"),
                          QStringLiteral("HOME=") + temporaryFolder, QStringLiteral("TMPDIR=") + temporaryFolder,
                          QStringLiteral("USER=") + qEnvironmentVariable("USER", QStringLiteral("nobody")),
                          QStringLiteral("LANG=C.UTF-8")};
    for (const auto &[name, value] : command.environment) {
        variables.removeIf([&prefix = name](const QString &variable) { return variable.startsWith(prefix + u'='); });
        variables << name + u'=' + value;
    }
    return variables;
}

/// What sets the bounds. A run without a room has the same.
QString findBinder()
{
    const QString path = QStandardPaths::findExecutable(QStringLiteral("prlimit"), {QStringLiteral("/usr/bin")});
    return path.isEmpty() ? QStringLiteral("/usr/bin/prlimit") : path;
}

/// The command's program and its arguments, by way of what sets its bounds where it does not do that itself.
QStringList boundWords(const ConfinedCommand &command)
{
    QStringList words;
    if (!command.bindsItself) {
        words << findBinder() << QStringLiteral("--as=%1").arg(mostMemoryBytes)
              << QStringLiteral("--cpu=%1").arg(mostProcessorSeconds) << QStringLiteral("--core=0")
              << QStringLiteral("--");
    }
    return words << command.program << command.arguments;
}

QString findBubblewrap()
{
    return QStandardPaths::findExecutable(QStringLiteral("bwrap"));
}

/// The other temporary folder is the same as the one, unless something of its own is to be seen in it: nothing can be
/// put at a place below a link.
QStringList otherTemporaryArguments(const ConfinedCommand &command)
{
    const QString other = QStringLiteral("/var/tmp");
    const QStringList paths = command.readable + command.writable;
    const bool isShown = std::any_of(paths.begin(), paths.end(),
                                     [&other](const QString &path) { return path.startsWith(other + u'/'); });
    return isShown ? QStringList{QStringLiteral("--dir"), other}
                   : QStringList{QStringLiteral("--symlink"), insideTemporary, other};
}

QStringList confinedArguments(const ConfinedCommand &command)
{
    QStringList arguments = roomArguments(command.seesSettings) + otherTemporaryArguments(command);
    for (const QString &path : command.readable) {
        arguments << QStringLiteral("--ro-bind") << path << path;
    }
    for (const QString &path : command.writable) {
        arguments << QStringLiteral("--bind") << path << path;
    }
    return arguments << sealArguments() << QStringLiteral("--") << boundWords(command);
}

ConfinedLaunch inRoom(const QString &bubblewrap, const ConfinedCommand &command)
{
    return {bubblewrap, confinedArguments(command), environmentOf(command, insideTemporary), true};
}

ConfinedLaunch withBoundsAlone(const ConfinedCommand &command)
{
    const QStringList words = boundWords(command);
    return {words.first(), words.mid(1), environmentOf(command, QDir::tempPath()), false};
}

/// What keeps this machine from confining anything.
struct Obstacle {
    bool isMissing = false; ///< bubblewrap is not there
    QString reason;         ///< null: nothing does
};

/// Tries the room itself: a kernel or an administrator may forbid it, and says so only then.
Obstacle findObstacle()
{
    const QString bubblewrap = findBubblewrap();
    if (bubblewrap.isEmpty()) {
        return {true, {}};
    }
    QProcess process;
    process.setStandardInputFile(QProcess::nullDevice());
    const ConfinedLaunch launch = inRoom(bubblewrap, {QStringLiteral("/usr/bin/true"), {}});
    process.setEnvironment(launch.environment);
    process.start(launch.program, launch.arguments, QIODevice::ReadOnly);
    if (process.waitForFinished(probeTimeoutMs) && process.exitStatus() == QProcess::NormalExit &&
        process.exitCode() == 0) {
        return {};
    }
    const QString said = QString::fromLocal8Bit(process.readAllStandardError()).simplified();
    const QString reason = said.isEmpty() ? process.errorString() : said;
    process.kill();
    process.waitForFinished();
    return {false, harmless(reason)};
}

std::atomic<bool> &isTried()
{
    static std::atomic<bool> answer{false};
    return answer;
}

std::atomic<bool> &hasWorked()
{
    static std::atomic<bool> answer{false};
    return answer;
}

const Obstacle &obstacle()
{
    static const Obstacle found = [] {
        Obstacle tried = hasWorked() ? Obstacle() : findObstacle();
        isTried() = true;
        return tried;
    }();
    return found;
}

bool isPossible()
{
    return !obstacle().isMissing && obstacle().reason.isNull();
}

} // namespace

QString confinementProblem()
{
    if (obstacle().isMissing) {
        return Texts::tr("The printer's filters run without confinement, because bubblewrap is missing: install the "
                         "package bubblewrap.");
    }
    return isPossible() ? QString()
                        : Texts::tr("The printer's filters run without confinement, because this machine does not "
                                    "allow it (%1): let users make name spaces.")
                              .arg(obstacle().reason);
}

ConfinedLaunch confine(const ConfinedCommand &command)
{
    return isPossible() ? confineUntried(command) : withBoundsAlone(command);
}

ConfinedLaunch confineUntried(const ConfinedCommand &command)
{
    const QString bubblewrap = findBubblewrap();
    const bool isForbidden = bubblewrap.isEmpty() || (isTried() && !isPossible());
    return isForbidden ? withBoundsAlone(command) : inRoom(bubblewrap, command);
}

void noteThatTheRoomWorks()
{
    hasWorked() = true;
}

} // namespace tapeprint::job
