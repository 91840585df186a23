// SPDX-License-Identifier: Apache-2.0
// Any bytes as the file in which CUPS keeps presets. What is written into it is read back, by libcups's own parser, and
// nothing else in it changes.
#include "fuzz/Invariants.h"
#include "fuzz/MemoryFile.h"

#include "job/LpOptionsFile.h"
#include "job/Presets.h"
#include "job/SavedDestinations.h"

#include <algorithm>

using namespace tapeprint::job;
using fuzz::require;

namespace
{

using Entry = LpOptionsFile::Entry;

bool areSame(const JobOptions &left, const JobOptions &right)
{
    QStringList ours = left.lines();
    QStringList theirs = right.lines();
    ours.sort();
    theirs.sort();
    return ours == theirs;
}

bool isAbout(const Entry &entry, const QString &queue, const QString &instance)
{
    return entry.queue.compare(queue, Qt::CaseInsensitive) == 0 &&
           entry.instance.compare(instance, Qt::CaseInsensitive) == 0;
}

/// Every other entry is as it was.
void checkOthers(const std::vector<Entry> &before, const std::vector<Entry> &after, const QString &queue,
                 const QString &instance)
{
    for (const Entry &old : before) {
        const auto found = std::find_if(after.begin(), after.end(), [&old](const Entry &entry) {
            return entry.queue == old.queue && entry.instance == old.instance;
        });
        require(isAbout(old, queue, instance) || (found != after.end() && areSame(found->options, old.options)));
    }
}

/// The options of one entry, saved under another name and deleted there.
void checkSaving(const LpOptionsFile &file, const QString &name, const JobOptions &options)
{
    const QString queue = QStringLiteral("tape");
    const std::vector<Entry> before = file.entries();
    LpOptionsFile changed = file;
    Problem error;
    if (!changed.set(queue, name, options, &error)) {
        require(!error.sentence.isEmpty());
        require(changed.entries().size() == before.size());
        return;
    }
    const std::optional<Entry> saved = changed.find(queue, name);
    require(saved && areSame(saved->options, options));
    checkOthers(before, changed.entries(), queue, name);
    changed.makeDefault(queue, name);
    const std::vector<Entry> entries = changed.entries();
    require(std::count_if(entries.begin(), entries.end(), [](const Entry &entry) { return entry.isDefault; }) == 1);
    changed.remove(queue, name);
    require(!changed.find(queue, name));
    checkOthers(before, changed.entries(), queue, name);
}

/// A name that is allowed is kept; one that is offered in a bad one's place is allowed.
void checkName(const LpOptionsFile &file, const QString &wish)
{
    const QString suitable = suitablePresetName(wish);
    require(suitable.isEmpty() || problemWithPresetName(suitable).isNull());
    JobOptions options;
    options.set(QStringLiteral("KsMargin"), QStringLiteral("2.0"));
    if (problemWithPresetName(wish).isNull()) {
        Problem error;
        LpOptionsFile changed = file;
        require(changed.set(QStringLiteral("tape"), wish, options, &error));
        checkSaving(file, wish, options);
    }
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static const fuzz::MemoryFile memory;
    Problem error;
    const std::optional<LpOptionsFile> file = LpOptionsFile::read(memory.hold(data, size), &error);
    require(file.has_value());
    SavedDestinations saved;
    saved.add(QByteArray(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size)));
    for (const QueueName &name : saved.instances) {
        require(!name.instance.isEmpty() && saved.hasInstance(name));
    }
    int looked = 0;
    constexpr int mostLooked = 8; // each look reads the whole file a few times
    for (const Entry &entry : file->entries()) {
        if (++looked <= mostLooked) {
            checkSaving(*file, QStringLiteral("label"), entry.options);
            checkName(*file, entry.instance);
        }
    }
    checkName(*file, fuzz::inputText(data, size));
    return 0;
}
