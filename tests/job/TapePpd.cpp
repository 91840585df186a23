// SPDX-License-Identifier: Apache-2.0
// The description is kept here, so that no test depends on a printer that others edit.
#include "tests/job/TapePpd.h"

#include <QFile>
#include <QTemporaryDir>

namespace jobtest
{

const QByteArray customPages = R"PPD(*HWMargins: 2 5 4 1
*VariablePaperSize: True
*MaxMediaWidth: "144"
*MaxMediaHeight: "720"
*NonUIOrderDependency: 100 AnySetup *CustomPageSize
*CustomPageSize True: "pop pop pop <</PageSize[5 -2 roll]/ImagingBBox null>>setpagedevice"
*ParamCustomPageSize Width: 1 points 36 144
*ParamCustomPageSize Height: 2 points 36 720
*ParamCustomPageSize WidthOffset: 3 points 0 0
*ParamCustomPageSize HeightOffset: 4 points 0 0
*ParamCustomPageSize Orientation: 5 int 0 0
)PPD";

QByteArray tapePpdText(const QByteArray &more)
{
    static const QByteArray text = R"PPD(*PPD-Adobe: "4.3"
*FormatVersion: "4.3"
*FileVersion: "1.0"
*LanguageVersion: English
*LanguageEncoding: ISOLatin1
*PCFileName: "JOBTEST.PPD"
*Product: "(Test)"
*Manufacturer: "Test"
*ModelName: "Test Tape"
*ShortNickName: "Test Tape"
*NickName: "Test Tape, 1.0"
*PSVersion: "(3010.000) 0"
*LanguageLevel: "3"
*ColorDevice: False
*DefaultColorSpace: Gray
*FileSystem: False
*cupsFilter: "application/vnd.cups-raster 0 -"
*OpenUI *PageSize/Tape: PickOne
*OrderDependency: 10 AnySetup *PageSize
*DefaultPageSize: T72
*PageSize T72/Tape: ""
*PageSize S72/Short tape: ""
*PageSize DC72/Label: ""
*CloseUI: *PageSize
*OpenUI *PageRegion: PickOne
*OrderDependency: 10 AnySetup *PageRegion
*DefaultPageRegion: T72
*PageRegion T72/Tape: ""
*PageRegion S72/Short tape: ""
*PageRegion DC72/Label: ""
*CloseUI: *PageRegion
*DefaultImageableArea: T72
*ImageableArea T72/Tape: "3 0 69 288"
*ImageableArea S72/Short tape: "0 0 72 144"
*ImageableArea DC72/Label: "3 6 67 212"
*DefaultPaperDimension: T72
*PaperDimension T72/Tape: "72 288"
*PaperDimension S72/Short tape: "72 144"
*PaperDimension DC72/Label: "72 216"
)PPD";
    return text + more;
}

tapeprint::job::PpdFile ppdOf(const QByteArray &text)
{
    const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("test.ppd")));
    if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size()) {
        qFatal("cannot write %s", qPrintable(file.fileName()));
    }
    file.close();
    tapeprint::job::Problem error;
    tapeprint::job::PpdFile ppd = tapeprint::job::openPpdFile(file.fileName(), &error);
    if (!ppd) {
        qFatal("%s", qPrintable(error.sentence));
    }
    return ppd;
}

tapeprint::job::TapeKeywords tapeKeywords()
{
    tapeprint::job::TapeKeywords keywords;
    keywords.lengthOption = QStringLiteral("Length");
    keywords.marginOption = QStringLiteral("Margin");
    keywords.minimumLengthAttribute = QStringLiteral("Least");
    keywords.maximumLengthAttribute = QStringLiteral("Most");
    keywords.wholeLengthAttribute = QStringLiteral("Whole");
    keywords.unitAttribute = QStringLiteral("Unit");
    keywords.fixedLengthPapers = {QStringLiteral("DC"), QStringLiteral("FL")};
    return keywords;
}

tapeprint::job::JobOptions options(std::initializer_list<tapeprint::job::JobOptions::Entry> entries)
{
    tapeprint::job::JobOptions result;
    for (const auto &[name, value] : entries) {
        result.set(name, value);
    }
    return result;
}

tapeprint::job::TapePage pageOf(const QByteArray &ppdText,
                                std::initializer_list<tapeprint::job::JobOptions::Entry> entries)
{
    const tapeprint::job::PpdFile ppd = ppdOf(ppdText);
    const tapeprint::job::JobOptions chosen = options(entries);
    const QString size = chosen.value(tapeprint::job::OptionName::pageSize);
    if (!size.isNull()) {
        ppdMarkOption(ppd.get(), "PageSize", size.toUtf8().constData());
    }
    return tapeprint::job::tapePageOf(ppd.get(), chosen, tapeKeywords());
}

} // namespace jobtest
