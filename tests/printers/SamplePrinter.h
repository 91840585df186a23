// SPDX-License-Identifier: Apache-2.0
// The sample printers as the tests know them, told apart from the descriptions that they check.
#pragma once

#include <QSize>
#include <QString>
#include <QStringList>

#include <cups/ppd.h>

#include <iosfwd>
#include <memory>
#include <vector>

namespace printertest
{

/// A printer at one of its resolutions.
struct SamplePrinter {
    QString name;          ///< "mm" for tapeprint-mm.ppd
    QSize dotsPerInch;     ///< across the tape and along it
    double stripMm = 0.0;  ///< at each edge of the tape, where nothing can be printed
    QStringList options{}; ///< that choose this resolution
};

/// The sample printers that take custom pages, at all their resolutions, coarse to fine.
std::vector<SamplePrinter> customPagePrinters();
/// All sample printers, at their finest resolution.
std::vector<SamplePrinter> printersAtTheirFinest();

/// The raster that a page of the tape has to become: nearest dots of its true millimetres, without the strips.
QSize expectedDots(const SamplePrinter &printer, double widthMm, double lengthMm);

QString ppdPathOf(const QString &name);

struct PpdDeleter {
    void operator()(ppd_file_t *ppd) const { ppdClose(ppd); }
};
using Ppd = std::unique_ptr<ppd_file_t, PpdDeleter>;

/// Reads a sample printer's description, with its defaults marked. Null when it cannot be read.
Ppd openPpd(const QString &name);

/// A listed paper, by what its name says.
struct ListedPaper {
    QString keyword;
    double widthMm;
    double lengthMm;
};

/// The papers that every sample printer lists.
const std::vector<ListedPaper> &listedPapers();

/// GoogleTest shows it, and names the test's parameter after it: "mm_300x600".
void PrintTo(const SamplePrinter &printer, std::ostream *stream);
std::string parameterName(const SamplePrinter &printer);

} // namespace printertest
