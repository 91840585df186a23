// SPDX-License-Identifier: Apache-2.0
// The table of the choices in the panel's summary.
#include "panel/SummaryChoice.h"

#include <array>

namespace
{

constexpr std::array kVendorResolutions = {"RS_KsResolS300300", "RS_KsResolQ300300", "RS_KsResolQ300600"};
constexpr std::array kQualities = {"RS_QualitySpeed", "RS_QualityQuality"};
constexpr std::array kTapeMaterials = {"RS_TapeTypeOPP", "RS_TapeTypePET", "RS_TapeTypeCloth"};
constexpr std::array kTapeColours = {"RS_TapeColorWhite",      "RS_TapeColorBlue",      "RS_TapeColorRed",
                                     "RS_TapeColorYellow",     "RS_TapeColorPink",      "RS_TapeColorClear",
                                     "RS_TapeColorPastelBlue", "RS_TapeColorPastelRed", "RS_TapeColorDeepBlue"};
constexpr std::array kInkColours = {"RS_InkColorBlack", "RS_InkColorBlue", "RS_InkColorRed",
                                    "RS_InkColorWhite", "RS_InkColorGold", "RS_InkColorSilver"};
constexpr std::array kResolutionsOfMV = {"RS_Resol300300", "RS_Resol300600"};
constexpr std::array kResolutionsOfOthers = {"RS_Resol180360", "RS_Resol360360", "RS_Resol360720"};
constexpr std::array kCompressions = {"RS_CompressOFF", "RS_CompressON"};

} // namespace

const SummaryChoice &SummaryChoice::vendorResolution()
{
    // Presented as the quality, deliberately.
    static const SummaryChoice entry = {ChoiceOption::KsResolution, "RS_STitle_Quality", kVendorResolutions};
    return entry;
}

const SummaryChoice &SummaryChoice::quality()
{
    static const SummaryChoice entry = {ChoiceOption::Quality, "RS_STitle_Quality", kQualities};
    return entry;
}

const SummaryChoice &SummaryChoice::tapeMaterial()
{
    static const SummaryChoice entry = {ChoiceOption::TapeType, "RS_STitle_TapeType", kTapeMaterials};
    return entry;
}

const SummaryChoice &SummaryChoice::tapeColour()
{
    static const SummaryChoice entry = {ChoiceOption::TapeColor, "RS_STitle_TapeColor", kTapeColours};
    return entry;
}

const SummaryChoice &SummaryChoice::inkColour()
{
    static const SummaryChoice entry = {ChoiceOption::InkColor, "RS_STitle_InkColor", kInkColours};
    return entry;
}

const SummaryChoice &SummaryChoice::resolution(bool isMV)
{
    static const SummaryChoice ofMV = {ChoiceOption::Resolution, "RS_STitle_Resolution", kResolutionsOfMV};
    static const SummaryChoice ofOthers = {ChoiceOption::Resolution, "RS_STitle_Resolution", kResolutionsOfOthers};
    return isMV ? ofMV : ofOthers;
}

const SummaryChoice &SummaryChoice::compression()
{
    static const SummaryChoice entry = {ChoiceOption::Compress, "RS_STitle_Compress", kCompressions};
    return entry;
}
