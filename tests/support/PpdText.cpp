// SPDX-License-Identifier: Apache-2.0
// Small printer descriptions for tests.
#include "PpdText.h"

#include <QTemporaryFile>

#include <gtest/gtest.h>

namespace
{

QByteArray points(double value)
{
    return QByteArray::number(value, 'f', 4);
}

} // namespace

PpdText::PpdText()
{
    pageSizes({{"24mm", "24 mm", 68.0, 283.46472},
               {"15mm", "15 mm", 42.5, 283.46472},
               {"12mm", "12 mm", 34.0, 283.46472},
               {"DC24x80", "Label 24 x 80", 68.0, 226.771776}},
              "24mm");
}

PpdText &PpdText::pageSizes(std::vector<PageSize> sizes, const QByteArray &defaultKeyword)
{
    mSizes = std::move(sizes);
    mDefaultSize = defaultKeyword;
    return *this;
}

PpdText &PpdText::option(const QByteArray &keyword, const QByteArray &text, const std::vector<Choice> &choices,
                         const QByteArray &defaultKeyword)
{
    withoutOption(keyword);
    mOptions.push_back({keyword, text, choices, defaultKeyword});
    return *this;
}

PpdText &PpdText::withoutOption(const QByteArray &keyword)
{
    std::erase_if(mOptions, [&keyword](const Option &option) { return option.keyword == keyword; });
    return *this;
}

PpdText &PpdText::defaultChoice(const QByteArray &keyword, const QByteArray &choice)
{
    for (Option &option : mOptions) {
        if (option.keyword == keyword) {
            option.defaultKeyword = choice;
        }
    }
    return *this;
}

PpdText &PpdText::attribute(const QByteArray &name, const QByteArray &value)
{
    withoutAttribute(name);
    mAttributes.emplace_back(name, value);
    return *this;
}

PpdText &PpdText::withoutAttribute(const QByteArray &name)
{
    std::erase_if(mAttributes, [&name](const auto &attribute) { return attribute.first == name; });
    return *this;
}

PpdText &PpdText::line(const QByteArray &text)
{
    mLines += text + "\n";
    return *this;
}

PpdText PpdText::withEveryOption()
{
    PpdText ppd;
    ppd.option("KsTapeLength", "Tape Length", {{"100.0", "100.0 mm"}}, "100.0")
        .option("KsMargin", "Margin", {{"2.0", "2.0 mm"}, {"5.0", "5.0 mm"}}, "2.0")
        .option("KsPriority", "Priority", {{"KsPrioritySpeed", "Speed"}, {"KsPriorityQuality", "Quality"}},
                "KsPrioritySpeed")
        .option("Resolution", "Resolution", {{"300x300dpi", "300 dpi"}, {"300x600dpi", "300 x 600 dpi"}}, "300x300dpi")
        .option("KsCompress", "Compression", {{"KsCompressOFF", "Off"}, {"KsCompressON", "On"}}, "KsCompressOFF")
        .option("KsResolution", "Print Mode",
                {{"KsResolS300300", "Fast"}, {"KsResolQ300300", "Good"}, {"KsResolQ300600", "Best"}}, "KsResolQ300300")
        .option("KsTapeMaterial", "Material",
                {{"KsTapeMaterialOPP", "OPP"}, {"KsTapeMaterialPET", "PET"}, {"KsTapeMaterialCloth", "Cloth"}},
                "KsTapeMaterialOPP")
        .option("KsInkColor", "Ink",
                {{"KsInkColorBlack", "Black"}, {"KsInkColorBlue", "Blue Ink"}, {"KsInkColorRed", "Red Ink"}},
                "KsInkColorBlack")
        .option("KsTapeColor", "Tape",
                {{"KsTapeColorWhite", "White"}, {"KsTapeColorBlue", "Blue"}, {"KsTapeColorRed", "Red"}},
                "KsTapeColorWhite")
        .option("KsPrintTapeLength", "Print Tape Length", {{"3.0", "3.0 m"}, {"5.0", "5.0 m"}}, "3.0")
        .attribute("KsMinTapeLength", "4.0")
        .attribute("KsMaxTapeLength", "1000.0")
        .attribute("KsMinMargin", "1.0")
        .attribute("KsMaxMargin", "100.0")
        .attribute("KsMinPrintTapeLength", "1.0")
        .attribute("KsMaxPrintTapeLengthForClothOr15mm", "12.0")
        .attribute("KsMaxPrintTapeLengthForOther", "8.0");
    return ppd;
}

QByteArray PpdText::text() const
{
    QByteArray text = "*PPD-Adobe: \"4.3\"\n*FormatVersion: \"4.3\"\n*FileVersion: \"1.0\"\n*LanguageVersion: English\n"
                      "*LanguageEncoding: UTF-8\n*PCFileName: \"TEST.PPD\"\n*Product: \"(Test)\"\n"
                      "*Manufacturer: \"Test\"\n*ModelName: \"Test\"\n*ShortNickName: \"Test\"\n*NickName: \"Test\"\n"
                      "*PSVersion: \"(3010.000) 0\"\n*LanguageLevel: \"3\"\n*ColorDevice: False\n";
    if (!mSizes.empty()) {
        QByteArray sizes;
        QByteArray regions;
        QByteArray areas;
        QByteArray dimensions;
        for (const PageSize &size : mSizes) {
            sizes += "*PageSize " + size.keyword + "/" + size.text + ": \"\"\n";
            regions += "*PageRegion " + size.keyword + "/" + size.text + ": \"\"\n";
            areas += "*ImageableArea " + size.keyword + ": \"0 0 " + points(size.widthPt) + " " +
                     points(size.heightPt) + "\"\n";
            dimensions += "*PaperDimension " + size.keyword + ": \"" + points(size.widthPt) + " " +
                          points(size.heightPt) + "\"\n";
        }
        text += "*OpenUI *PageSize/Tape: PickOne\n*DefaultPageSize: " + mDefaultSize + "\n" + sizes +
                "*CloseUI: *PageSize\n*OpenUI *PageRegion/Tape: PickOne\n*DefaultPageRegion: " + mDefaultSize + "\n" +
                regions + "*CloseUI: *PageRegion\n*DefaultImageableArea: " + mDefaultSize + "\n" + areas +
                "*DefaultPaperDimension: " + mDefaultSize + "\n" + dimensions;
    }
    for (const Option &option : mOptions) {
        text += "*OpenUI *" + option.keyword + "/" + option.text + ": PickOne\n*Default" + option.keyword + ": " +
                option.defaultKeyword + "\n";
        for (const auto &[choice, choiceText] : option.choices) {
            text += "*" + option.keyword + " " + choice + "/" + choiceText + ": \"\"\n";
        }
        text += "*CloseUI: *" + option.keyword + "\n";
    }
    for (const auto &[name, value] : mAttributes) {
        text += "*" + name + ": \"" + value + "\"\n";
    }
    return text + mLines;
}

OpenPpd PpdText::open() const
{
    QTemporaryFile file;
    if (!file.open() || file.write(text()) != text().size() || !file.flush()) {
        ADD_FAILURE() << "The printer description could not be written.";
        return nullptr;
    }
    return openPpd(file.fileName().toUtf8());
}

OpenPpd openPpd(const QByteArray &path)
{
    OpenPpd ppd(ppdOpenFile(path.constData()));
    if (ppd == nullptr) {
        int line = 0;
        const ppd_status_t status = ppdLastError(&line);
        ADD_FAILURE() << path.toStdString() << ":" << line << ": " << ppdErrorString(status);
        return nullptr;
    }
    ppdMarkDefaults(ppd.get());
    return ppd;
}
