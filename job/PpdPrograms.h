// SPDX-License-Identifier: Apache-2.0
// What a printer description has run on the machine that prints with it. A description is data: whoever prints with one
// that they were sent must not run its author's programs.
#pragma once

#include "job/Problem.h"

#include <QString>
#include <QStringList>

#include <vector>

#include <cups/ppd.h>

namespace tapeprint::job
{

/// Something that a description brings to be run, beside CUPS's own filters.
struct ForeignProgram {
    QString keyword; ///< of the description, such as "cupsFilter" or "FoomaticRIPCommandLine"
    QString text;    ///< what it says there
};

/// The folder of CUPS's own filters.
QString cupsFilterFolder();

/// Whether a filter goes by a plain name of the folder and nobody but root can have changed it. "-" is no filter.
bool isOwnFilter(const QString &program, const QString &folder = cupsFilterFolder());

/// What the description would run that is not CUPS's own: filters by path, filters that do not stand in CUPS's folder
/// or that others than root can change, command lines and what goes into them, and filters that hand the description's
/// text to a shell. Each once.
std::vector<ForeignProgram> foreignPrograms(ppd_file_t *ppd);

/// The filters among them that CUPS would find, as absolute paths.
QStringList foreignFilterPaths(const std::vector<ForeignProgram> &programs);

/// What the description would run as a line of text, for a person who has to decide.
QString describe(const std::vector<ForeignProgram> &programs);

/// Whether the file lies in a folder where the machine keeps its printer descriptions, with nobody but root able to
/// change it.
bool isSystemDescription(const QString &ppdPath);

/// Whether a description's filters may run: it brings nothing of its own, or it is the machine's, or it is trusted.
/// \param error takes a sentence with everything that it would run.
bool mayRunPrograms(const QString &ppdPath, ppd_file_t *ppd, bool isTrusted, Problem *error);

} // namespace tapeprint::job
