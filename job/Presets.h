// SPDX-License-Identifier: Apache-2.0
// Presets: options that a person saved under a name for a queue. CUPS calls them instances, and every program that
// prints through it has them: lp -d QUEUE/PRESET.
#pragma once

#include "job/JobOptions.h"
#include "job/Problem.h"

#include <QString>
#include <QStringList>

#include <vector>

#include <cups/ppd.h>

namespace tapeprint::job
{

struct Preset {
    QString name;
    JobOptions options;
    bool isDefault = false; ///< the person prints with it who names no printer
    bool isOwn = true;      ///< false: it is for everybody on this machine, and not the person's to rename or delete
};

/// The presets of a queue, by name. Nobody is asked but two small files. \param error takes a sentence when one of them
/// cannot be read.
std::vector<Preset> presetsOf(const QString &queue, Problem *error);

/// What the person saved for the queue itself. \param error as above.
JobOptions savedForQueue(const QString &queue, Problem *error);

/// Saves a preset; one of that name is replaced. The name's letters stay as they were when they differ by case alone.
/// This and the following \return false, with a sentence, and everything as it was, when it cannot be done.
bool savePreset(const QString &queue, const QString &name, const JobOptions &options, Problem *error);
/// \param newName no other preset has it.
bool renamePreset(const QString &queue, const QString &name, const QString &newName, Problem *error);
bool deletePreset(const QString &queue, const QString &name, Problem *error);
/// Makes the preset where the person prints who names no printer. \param name empty: the queue without a preset.
bool makePresetDefault(const QString &queue, const QString &name, Problem *error);

/// Why CUPS cannot keep a preset of this name, as a sentence; null when it can.
QString problemWithPresetName(const QString &name);
/// A name like the one that is wished for and that CUPS can keep; empty when nothing is left of it.
QString suitablePresetName(const QString &wish);

/// A sentence for each option of a preset that the queue no longer has. \param ppd of the queue; null: nothing is
/// known.
QStringList optionsThatAreGone(const JobOptions &preset, ppd_file_t *ppd);
/// A preset's options without those that the queue no longer has.
JobOptions withoutGone(const JobOptions &preset, ppd_file_t *ppd);

} // namespace tapeprint::job
