// SPDX-License-Identifier: Apache-2.0
// The PPDs that a sweep goes through, and what comes of it.
#pragma once

#include "job/Destination.h"
#include "job/PpdFile.h"

#include <QStringList>

#include <functional>

namespace sweeptest
{

/// Every PPD file below the folder that TAPEPRINT_SWEEP_PPDS names, else below the spread of the tests; sorted. With
/// TAPEPRINT_SWEEP_PART=N/M, the N-th of every M in a row, counted from 1.
QStringList ppdFiles();

/// Calls a check for every PPD that libcups opens, or for every n-th of them. A check answers what is wrong, "class:
/// what", or a null string. Fails with one line a class, of its smallest PPD, and when fewer PPDs could be checked than
/// TAPEPRINT_SWEEP_LEAST says (else the spread's own number, over \p every); prints how many there were and how long it
/// took. When a check crashes or takes a minute, the last line names the PPD.
void forEveryPpd(const std::function<QString(const QString &path)> &check, int every = 1);

/// A PPD as libcups alone sees it, with its defaults marked. Of a PPD's translations libcups keeps the German ones.
tapeprint::job::PpdFile libcupsView(const QString &path);

/// A PPD as the dialog opens it.
tapeprint::job::Destination destinationOf(const QString &path);

} // namespace sweeptest
