// SPDX-License-Identifier: Apache-2.0
// The program printing on a sample printer whose own filter is left out, so that what comes out is the CUPS raster.
#pragma once

#include "tests/printers/FilterChain.h"
#include "tests/system/Client.h"
#include "tests/system/PrivateFolder.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <vector>

namespace printertest
{

/// A sample printer's description that ends with the raster, written into a folder. \return its path.
QString rasterPpd(const systemtest::PrivateFolder &folder, const QString &printer);

/// What the program said and what came out of the printer.
struct PrintedTape {
    systemtest::Outcome outcome;
    std::vector<RasterPage> labels;
};

/// Runs the program without a window and without a print server. \param options each after an -o; \param more
/// arguments, the documents among them.
PrintedTape printTape(const systemtest::PrivateFolder &folder, const QString &printer, const QStringList &options,
                      const QStringList &more);

/// The program's other arguments, for a run that is not to print.
systemtest::Outcome runTapeprint(const systemtest::PrivateFolder &folder, const QStringList &arguments,
                                 const QByteArray &input = {});

} // namespace printertest
