// SPDX-License-Identifier: Apache-2.0
// The table of the seven choice options.
#include "panel/ChoiceOption.h"

#include <array>

namespace
{

constexpr std::array kQualityTitles = {"RS_QualitySpeed", "RS_QualityQuality"};
constexpr std::array kResolutionTitles = {"RS_Resol300300", "RS_Resol300600"};
constexpr std::array kCompressTitles = {"RS_CompressOFF", "RS_CompressON"};
constexpr std::array kKsResolutionTitles = {"RS_KsResolS300300", "RS_KsResolQ300300", "RS_KsResolQ300600"};
constexpr std::array kTapeTypeTitles = {"RS_KsTapeTypeOPP", "RS_KsTapeTypePET", "RS_KsTapeTypeCloth"};
constexpr std::array kTapeColorTitles = {"RS_TapeColorWhite",      "RS_TapeColorBlue",      "RS_TapeColorRed",
                                         "RS_TapeColorYellow",     "RS_TapeColorPink",      "RS_TapeColorClear",
                                         "RS_TapeColorPastelBlue", "RS_TapeColorPastelRed", "RS_TapeColorDeepBlue"};
constexpr std::array kInkColorTitles = {"RS_InkColorBlack", "RS_InkColorBlue", "RS_InkColorRed",
                                        "RS_InkColorWhite", "RS_InkColorGold", "RS_InkColorSilver"};

constexpr std::array kTapeTypeKeywords = {"KsTapeMaterialOPP", "KsTapeMaterialPET", "KsTapeMaterialCloth"};
constexpr std::array kTapeColorKeywords = {"KsTapeColorWhite",      "KsTapeColorBlue",      "KsTapeColorRed",
                                           "KsTapeColorYellow",     "KsTapeColorPink",      "KsTapeColorClear",
                                           "KsTapeColorPastelBlue", "KsTapeColorPastelRed", "KsTapeColorDeepBlue"};
constexpr std::array kInkColorKeywords = {"KsInkColorBlack", "KsInkColorBlue", "KsInkColorRed",
                                          "KsInkColorWhite", "KsInkColorGold", "KsInkColorSilver"};

} // namespace

// NOLINTNEXTLINE(readability-function-size): no steps, only the rows of one table
std::span<const ChoiceOption, ChoiceOption::Count> ChoiceOption::all()
{
    static const std::array<ChoiceOption, Count> table = {{
        {.keyword = "KsPriority",
         .itemType = ItemType::quality,
         .option = &Panel::mQuality_Option,
         .choices = &Panel::mQuality_Choices,
         .selection = &Panel::mQuality_Selection,
         .label = &Panel::mPrintQualityStr,
         .matrix = &Panel::mPrintQualityRdBtn,
         .popUp = nullptr,
         .titleKey = "RS_Quality",
         .fallbackTitles = kQualityTitles},
        {.keyword = "Resolution",
         .itemType = ItemType::resolution,
         .option = &Panel::mResolution_Option,
         .choices = &Panel::mResolution_Choices,
         .selection = &Panel::mResolution_Selection,
         .label = &Panel::mPrintResolutionStr,
         .matrix = &Panel::mResolutionRdBtn,
         .popUp = nullptr,
         .titleKey = "RS_Resolution",
         .fallbackTitles = kResolutionTitles,
         .decidesEnabledQuality = true},
        {.keyword = "KsCompress",
         .itemType = ItemType::compression,
         .option = &Panel::mCompress_Option,
         .choices = &Panel::mCompress_Choices,
         .selection = &Panel::mCompress_Selection,
         .label = &Panel::mPrintCompressStr,
         .matrix = &Panel::mCompressRdBtn,
         .popUp = nullptr,
         .titleKey = "RS_Compress",
         .fallbackTitles = kCompressTitles,
         .enabled = Enabled::OverUsbWithResolution, // deliberate: see Enabled
         .decidesEnabledQuality = true},
        {.keyword = "KsResolution",
         .itemType = ItemType::ksResolution,
         .option = &Panel::mKsResolution_Option,
         .choices = &Panel::mKsResolution_Choices,
         .selection = &Panel::mKsResolution_Selection,
         .label = &Panel::mPrintKsResolutionStr,
         .matrix = nullptr,
         .popUp = &Panel::mKsResolutionPUBtn,
         .titleKey = "RS_Quality", // the quality key, deliberately
         .fallbackTitles = kKsResolutionTitles,
         .firstSelection = FirstSelection::DefaultOfResolution, // deliberate: see FirstSelection
         .decidesEnabledQuality = true},
        {.keyword = "KsTapeMaterial",
         .itemType = ItemType::tapeType,
         .option = &Panel::mTapeType_Option,
         .choices = &Panel::mTapeType_Choices,
         .selection = &Panel::mTapeType_Selection,
         .label = &Panel::mTapeTypeStr,
         .matrix = nullptr,
         .popUp = &Panel::mTapeTypePopBtn,
         .titleKey = "RS_TapeType",
         .fallbackTitles = kTapeTypeTitles,
         .firstSelection = FirstSelection::TicketOrDefault,
         .setsClothBit = true,
         .ticketCode = &TapeInfo::labelMaterial,
         .ticketKeywords = kTapeTypeKeywords},
        {.keyword = "KsTapeColor",
         .itemType = ItemType::tapeColor,
         .option = &Panel::mTapeColor_Option,
         .choices = &Panel::mTapeColor_Choices,
         .selection = &Panel::mTapeColor_Selection,
         .label = &Panel::mTapeColorStr,
         .matrix = nullptr,
         .popUp = &Panel::mTapeColorPopBtn,
         .titleKey = "RS_TapeColor",
         .fallbackTitles = kTapeColorTitles,
         .firstSelection = FirstSelection::TicketOrDefault,
         .hasImages = true,
         .ticketCode = &TapeInfo::labelColor,
         .ticketKeywords = kTapeColorKeywords},
        {.keyword = "KsInkColor",
         .itemType = ItemType::inkColor,
         .option = &Panel::mInkColor_Option,
         .choices = &Panel::mInkColor_Choices,
         .selection = &Panel::mInkColor_Selection,
         .label = &Panel::mInkColorStr,
         .matrix = nullptr,
         .popUp = &Panel::mInkColorPopBtn,
         .titleKey = "RS_InkColor",
         .fallbackTitles = kInkColorTitles,
         .firstSelection = FirstSelection::TicketOrDefault,
         .hasImages = true,
         .ticketCode = &TapeInfo::inkColor,
         .ticketKeywords = kInkColorKeywords},
    }};
    return table;
}

const ChoiceOption &ChoiceOption::of(Item item)
{
    return all()[item];
}
