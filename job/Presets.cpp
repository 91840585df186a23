// SPDX-License-Identifier: Apache-2.0
// Presets in the two files that libcups reads: the machine's and the person's, which has the last word. The person's is
// changed; root's own is the machine's.
#include "job/Presets.h"

#include "job/FileStamp.h"
#include "job/IppAttributeNames.h"
#include "job/LpOptionsFile.h"
#include "job/PlainText.h"
#include "job/PpdMarks.h"
#include "job/Texts.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <chrono>
#include <functional>
#include <thread>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace tapeprint::job
{

namespace
{

/// What libcups takes of a queue's or instance's name.
constexpr qsizetype longestName = 127;

struct Paths {
    QString shared; ///< read first
    QString personal;
    QString own; ///< one of them, in which changes are made
};

/// Where libcups looks.
Paths paths()
{
    const QString serverRoot = qEnvironmentVariable("CUPS_SERVERROOT", QStringLiteral("/etc/cups"));
    Paths paths{serverRoot + QLatin1String("/lpoptions"), QDir::homePath() + QLatin1String("/.cups/lpoptions"), {}};
    paths.own = getuid() == 0 ? paths.shared : paths.personal;
    return paths;
}

struct OwnedEntry {
    LpOptionsFile::Entry entry;
    bool isOwn = false;
};

/// What both files say of a queue and its instances.
std::vector<OwnedEntry> entriesOf(const QString &queue, Problem *error)
{
    std::vector<OwnedEntry> entries;
    const Paths where = paths();
    for (const QString &path : {where.shared, where.personal}) {
        const std::optional<LpOptionsFile> file = LpOptionsFile::read(path, error);
        if (!file) {
            continue;
        }
        const std::vector<LpOptionsFile::Entry> inFile = file->entries();
        if (std::any_of(inFile.begin(), inFile.end(), [](const auto &entry) { return entry.isDefault; })) {
            for (OwnedEntry &known : entries) {
                known.entry.isDefault = false; // the person's word counts more than the machine's
            }
        }
        for (const LpOptionsFile::Entry &entry : inFile) {
            if (entry.queue.compare(queue, Qt::CaseInsensitive) != 0) {
                continue;
            }
            const auto known = std::find_if(entries.begin(), entries.end(), [&entry](const OwnedEntry &one) {
                return one.entry.instance.compare(entry.instance, Qt::CaseInsensitive) == 0;
            });
            if (known == entries.end()) {
                entries.push_back({entry, path == where.own});
                continue;
            }
            for (const auto &[name, value] : entry.options.entries()) {
                known->entry.options.set(name, value);
            }
            known->entry.isDefault = known->entry.isDefault || entry.isDefault;
        }
    }
    return entries;
}

constexpr int mostTries = 5;

/// Held while a file is read, changed and written anew: whoever else does that waits. The folder is locked, because the
/// file is another one afterwards. A folder that cannot be locked within seconds holds nobody up.
class WriterLock
{
public:
    explicit WriterLock(const QString &path)
        : mFolder(open(QFile::encodeName(QFileInfo(path).path()).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC))
    {
        constexpr int mostWaits = 1500;
        constexpr auto wait = std::chrono::milliseconds(2); // another writer is done in a few of them
        for (int i = 0; mFolder >= 0 && flock(mFolder, LOCK_EX | LOCK_NB) != 0 && i < mostWaits; ++i) {
            std::this_thread::sleep_for(wait);
        }
    }
    WriterLock(const WriterLock &) = delete;
    WriterLock &operator=(const WriterLock &) = delete;
    ~WriterLock()
    {
        if (mFolder >= 0) {
            close(mFolder);
        }
    }

private:
    int mFolder;
};

bool isSameState(const std::optional<FileStamp> &before, const std::optional<FileStamp> &now)
{
    return before && now ? before->isUnchanged(*now) : before.has_value() == now.has_value();
}

/// Changes the person's file. \param change \return false, with a sentence, when nothing is to be written.
bool changeOwn(const std::function<bool(LpOptionsFile &file)> &change, Problem *error)
{
    const QString path = paths().own;
    const WriterLock lock(path);
    for (int tries = mostTries;;) {
        const std::optional<FileStamp> before = FileStamp::ofPath(path);
        std::optional<LpOptionsFile> file = LpOptionsFile::read(path, error);
        if (!file || !change(*file)) {
            return false;
        }
        // lpoptions knows no lock: what it wrote in the meantime is read first.
        if (--tries == 0 || isSameState(before, FileStamp::ofPath(path))) {
            return file->write(error);
        }
    }
}

bool mayStandInName(QChar letter)
{
    static const QString forbidden = QStringLiteral("/\\\"'`#<>");
    return letter.isPrint() && !letter.isSpace() && !forbidden.contains(letter);
}

/// Options that only a PPD can define have capitals in their names; those of IPP and of CUPS's filters have none.
bool isGone(const QString &name, ppd_file_t *ppd)
{
    const bool hasCapital = std::any_of(name.begin(), name.end(), [](QChar letter) { return letter.isUpper(); });
    return ppd != nullptr && hasCapital && !isIppJobAttribute(name) && findOption(ppd, name) == nullptr;
}

Problem notThere(const QString &queue, const QString &name)
{
    return {Problem::BadUsage, Texts::tr("%1 has no preset %2 of yours.").arg(harmless(queue), harmless(name))};
}

} // namespace

std::vector<Preset> presetsOf(const QString &queue, Problem *error)
{
    std::vector<Preset> presets;
    for (const OwnedEntry &owned : entriesOf(queue, error)) {
        if (!owned.entry.instance.isEmpty()) {
            presets.push_back({owned.entry.instance, owned.entry.options, owned.entry.isDefault, owned.isOwn});
        }
    }
    std::sort(presets.begin(), presets.end(), [](const Preset &left, const Preset &right) {
        return left.name.compare(right.name, Qt::CaseInsensitive) < 0;
    });
    return presets;
}

JobOptions savedForQueue(const QString &queue, Problem *error)
{
    for (const OwnedEntry &owned : entriesOf(queue, error)) {
        if (owned.entry.instance.isEmpty()) {
            return owned.entry.options;
        }
    }
    return {};
}

bool savePreset(const QString &queue, const QString &name, const JobOptions &options, Problem *error)
{
    if (const QString problem = problemWithPresetName(name); !problem.isNull()) {
        *error = {Problem::BadUsage, problem};
        return false;
    }
    return changeOwn(
        [&](LpOptionsFile &file) {
            const std::optional<LpOptionsFile::Entry> old = file.find(queue, name);
            return file.set(queue, old ? old->instance : name, options, error);
        },
        error);
}

bool renamePreset(const QString &queue, const QString &name, const QString &newName, Problem *error)
{
    if (const QString problem = problemWithPresetName(newName); !problem.isNull()) {
        *error = {Problem::BadUsage, problem};
        return false;
    }
    return changeOwn(
        [&](LpOptionsFile &file) {
            const bool isOtherName = name.compare(newName, Qt::CaseInsensitive) != 0;
            if (isOtherName && file.find(queue, newName)) {
                *error = {Problem::BadUsage, Texts::tr("There is a preset %1 already.").arg(harmless(newName))};
                return false;
            }
            if (!file.find(queue, name)) {
                *error = notThere(queue, name);
                return false;
            }
            file.rename(queue, name, newName);
            return true;
        },
        error);
}

bool deletePreset(const QString &queue, const QString &name, Problem *error)
{
    return changeOwn(
        [&](LpOptionsFile &file) {
            if (name.isEmpty() || !file.find(queue, name)) {
                *error = notThere(queue, name);
                return false;
            }
            file.remove(queue, name);
            return true;
        },
        error);
}

bool makePresetDefault(const QString &queue, const QString &name, Problem *error)
{
    return changeOwn(
        [&](LpOptionsFile &file) {
            file.makeDefault(queue, name);
            return true;
        },
        error);
}

QString problemWithPresetName(const QString &name)
{
    if (name.isEmpty()) {
        return Texts::tr("A preset needs a name.");
    }
    if (!std::all_of(name.begin(), name.end(), mayStandInName)) {
        return Texts::tr("CUPS cannot keep a preset whose name has blanks, slashes, quotes or one of # < >.");
    }
    if (name.toUtf8().size() > longestName) {
        return Texts::tr("This name is longer than CUPS can keep.");
    }
    return {};
}

QString suitablePresetName(const QString &wish)
{
    QString name;
    for (const QChar letter : wish.simplified()) {
        if (mayStandInName(letter)) {
            name.append(letter);
        } else if (!name.endsWith(u'-')) {
            name.append(u'-');
        }
    }
    while (name.startsWith(u'-')) {
        name.remove(0, 1);
    }
    while (name.endsWith(u'-') || name.toUtf8().size() > longestName) {
        name.chop(name.size() > 1 && name.back().isLowSurrogate() ? 2 : 1);
    }
    return name;
}

QStringList optionsThatAreGone(const JobOptions &preset, ppd_file_t *ppd)
{
    QStringList sentences;
    for (const auto &[name, value] : preset.entries()) {
        if (isGone(name, ppd)) {
            sentences.append(Texts::tr("The preset's option %1=%2 is none of this printer's any more. The preset keeps "
                                       "it until you save over it.")
                                 .arg(harmless(name), harmless(value)));
        }
    }
    return sentences;
}

JobOptions withoutGone(const JobOptions &preset, ppd_file_t *ppd)
{
    JobOptions left;
    for (const auto &[name, value] : preset.entries()) {
        if (!isGone(name, ppd)) {
            left.set(name, value);
        }
    }
    return left;
}

} // namespace tapeprint::job
