// SPDX-License-Identifier: Apache-2.0
// The sample printers' resolutions, strips and papers, written down here a second time on purpose.
#include "tests/printers/SamplePrinter.h"

#include <QFile>

#include <cmath>
#include <map>
#include <ostream>

namespace printertest
{

namespace
{

constexpr double stripMm = 0.5;

SamplePrinter at(const QString &name, int across, int along, double strip = stripMm)
{
    return {name,
            QSize(across, along),
            strip,
            {QStringLiteral("Resolution=%1x%2dpi").arg(QString::number(across), QString::number(along))}};
}

int dots(double mm, int dotsPerInch)
{
    return static_cast<int>(std::lround(mm / 25.4 * dotsPerInch));
}

} // namespace

std::vector<SamplePrinter> customPagePrinters()
{
    return {
        at(u"mm"_qs, 300, 300),
        at(u"mm"_qs, 300, 600),
        {u"mv"_qs, QSize(300, 300), stripMm, {u"KsResolution=KsResolQ300300"_qs, u"Resolution=300x600dpi"_qs}},
        {u"mv"_qs, QSize(300, 600), stripMm, {u"KsResolution=KsResolQ300600"_qs, u"Resolution=300x300dpi"_qs}},
        at(u"inch"_qs, 180, 360),
        at(u"inch"_qs, 360, 360),
        {u"plain"_qs, QSize(180, 180), stripMm},
        at(u"hn"_qs, 180, 180, 0.0),
        at(u"hn"_qs, 300, 300, 0.0),
        at(u"hn"_qs, 300, 600, 0.0),
        at(u"hn"_qs, 600, 600, 0.0),
    };
}

std::vector<SamplePrinter> printersAtTheirFinest()
{
    std::map<QString, SamplePrinter> finest;
    for (const SamplePrinter &printer : customPagePrinters()) {
        finest.insert_or_assign(printer.name, printer); // the finest is the last
    }
    finest.emplace(u"fixed"_qs, at(u"fixed"_qs, 300, 600));
    std::vector<SamplePrinter> printers;
    printers.reserve(finest.size());
    for (const auto &[name, printer] : finest) {
        printers.push_back(printer);
    }
    return printers;
}

QSize expectedDots(const SamplePrinter &printer, double widthMm, double lengthMm)
{
    return {dots(widthMm - 2.0 * printer.stripMm, printer.dotsPerInch.width()),
            dots(lengthMm, printer.dotsPerInch.height())};
}

QString ppdPathOf(const QString &name)
{
    return QStringLiteral(TAPEPRINT_PRINTER_DIR "/tapeprint-%1.ppd").arg(name);
}

Ppd openPpd(const QString &name)
{
    Ppd ppd(ppdOpenFile(QFile::encodeName(ppdPathOf(name)).constData()));
    if (ppd) {
        ppdMarkDefaults(ppd.get());
    }
    return ppd;
}

const std::vector<ListedPaper> &listedPapers()
{
    static const std::vector<ListedPaper> papers{
        {u"4mm"_qs, 4, 100},     {u"6mm"_qs, 6, 100},       {u"9mm"_qs, 9, 100},     {u"12mm"_qs, 12, 100},
        {u"15mm"_qs, 15, 100},   {u"18mm"_qs, 18, 100},     {u"24mm"_qs, 24, 100},   {u"36mm"_qs, 36, 100},
        {u"DC24x80"_qs, 24, 80}, {u"AV36x100"_qs, 36, 100}, {u"FL12x45"_qs, 12, 45},
    };
    return papers;
}

std::string parameterName(const SamplePrinter &printer)
{
    return QStringLiteral("%1_%2x%3")
        .arg(printer.name, QString::number(printer.dotsPerInch.width()), QString::number(printer.dotsPerInch.height()))
        .toStdString();
}

void PrintTo(const SamplePrinter &printer, std::ostream *stream)
{
    *stream << parameterName(printer);
}

} // namespace printertest
