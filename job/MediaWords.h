// SPDX-License-Identifier: Apache-2.0
// What the words of the option media mean to a printer: besides a size, a tray or a kind of paper.
#pragma once

#include "job/JobOptions.h"

#include <QString>

#include <cups/ppd.h>

namespace tapeprint::job
{

/// The option, InputSlot or MediaType, that lists a word as a choice of its own; null when neither does. libcups marks
/// nothing for such a word.
QString trayNamed(ppd_file_t *ppd, const QString &word);

/// Whether a word is a keyword that libcups makes of one of the printer's trays or kinds of paper, such as tray-1 of
/// Tray1. The marks of the PPD are as before.
bool isKeywordOfTray(ppd_file_t *ppd, const QString &word);

/// The size of one's own that media gives by its measures, such as custom_label_24x50mm, by the name that jobs have for
/// it. libcups rounds it to whole points, or takes a listed size that is two millimetres away. Null when media gives
/// none, when the printer cuts none, or when the size is the marked one of those that the printer lists.
QString ownSizeIn(ppd_file_t *ppd, const QString &media);

} // namespace tapeprint::job
