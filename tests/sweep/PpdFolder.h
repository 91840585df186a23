// SPDX-License-Identifier: Apache-2.0
// The PPDs that a sweep goes through.
#pragma once

#include <QStringList>

#include <functional>

namespace sweeptest
{

/// Every PPD file below the folder that TAPEPRINT_SWEEP_PPDS names, else below the spread of the tests; sorted.
QStringList ppdFiles();

/// Calls a check for every PPD that libcups opens. A check answers what is wrong, or a null string. Fails with the
/// first findings, and when fewer than 250 PPDs could be checked; prints how many there were and how long it took.
void forEveryPpd(const std::function<QString(const QString &path)> &check);

} // namespace sweeptest
