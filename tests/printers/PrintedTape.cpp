// SPDX-License-Identifier: Apache-2.0
// The program is run as built, with the bundle that was built beside it, where no print server answers.
#include "tests/printers/PrintedTape.h"

#include "tests/printers/SamplePrinter.h"

#include <QFile>

#include <gtest/gtest.h>

namespace printertest
{

QString rasterPpd(const systemtest::PrivateFolder &folder, const QString &printer)
{
    QByteArrayList lines = systemtest::contentsOf(ppdPathOf(printer)).split('\n');
    int filters = 0;
    for (QByteArray &line : lines) {
        if (line.startsWith("*cupsFilter:")) {
            line = "*cupsFilter: \"application/vnd.cups-raster 0 -\"";
            ++filters;
        }
    }
    EXPECT_EQ(filters, 1) << printer.toStdString();
    return systemtest::writeFile(folder.path(u"raster-%1.ppd"_qs.arg(printer)), lines.join('\n'));
}

systemtest::Outcome runTapeprint(const systemtest::PrivateFolder &folder, const QStringList &arguments,
                                 const QByteArray &input)
{
    return systemtest::runClient({QStringLiteral(TAPEPRINT_BIN_DIR "/tapeprint"),
                                  arguments,
                                  {{u"CUPS_SERVER"_qs, folder.path(u"nobody.sock"_qs)}, {u"HOME"_qs, folder.path()}},
                                  folder.path(),
                                  input});
}

PrintedTape printTape(const systemtest::PrivateFolder &folder, const QString &printer, const QStringList &options,
                      const QStringList &more)
{
    const QString output = folder.path(u"printed.ras"_qs);
    QFile::remove(output);
    QStringList arguments{u"--ppd"_qs, rasterPpd(folder, printer), u"--no-dialog"_qs, u"--output"_qs, output};
    for (const QString &option : options) {
        arguments << u"-o"_qs << option;
    }
    PrintedTape printed{runTapeprint(folder, arguments + more), {}};
    if (printed.outcome.status == 0) {
        printed.labels = rasterPagesIn(systemtest::contentsOf(output));
    } else {
        EXPECT_FALSE(QFile::exists(output)) << "a failed job left its bytes behind";
    }
    return printed;
}

} // namespace printertest
