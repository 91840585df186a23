// SPDX-License-Identifier: Apache-2.0
// The table of the three length groups.
#include "panel/LengthOption.h"

#include <array>

std::span<const LengthOption, LengthOption::Count> LengthOption::all()
{
    static const std::array<LengthOption, Count> table = {{
        {.keyword = "KsTapeLength",
         .option = &Panel::mTapeLength_Option,
         .title = &Panel::mLengthStr,
         .field = &Panel::mLengthTxFld,
         .slider = &Panel::mLengthSlider,
         .unitLabel = &Panel::mLengthUnitStr,
         .secondUnitLabel = nullptr,
         .minLabel = &Panel::mLengthMinStr,
         .maxLabel = &Panel::mLengthMaxStr,
         .titleKey = "RS_TapeLength",
         .isInteger = &Panel::isIntegerTapeLen,
         .min = &Panel::minTapeLen,
         .max = &Panel::maxTapeLen,
         .hasInchForm = true,
         .slidText = lengths::slidTapeLengthText,
         .alertBelow = "RS_Alrt_LengthMin",
         .alertAbove = "RS_Alrt_LengthMax"},
        {.keyword = "KsMargin",
         .option = &Panel::mMargin_Option,
         .title = &Panel::mMarginStr,
         .field = &Panel::mMarginTxFld,
         .slider = &Panel::mMarginSlider,
         .unitLabel = &Panel::mMarginUnitStr,
         // The margin colours the tape length's unit too, after the tape length has. Deliberate.
         .secondUnitLabel = &Panel::mLengthUnitStr,
         .minLabel = &Panel::mMarginMinStr,
         .maxLabel = &Panel::mMarginMaxStr,
         .titleKey = "RS_Margin",
         .isInteger = &Panel::isIntegerMarginLen,
         .min = &Panel::minMargin,
         .max = &Panel::maxMargin,
         .hasInchForm = true,
         .slidText = lengths::slidText,
         .alertBelow = nullptr,
         .alertAbove = nullptr},
        {.keyword = "KsPrintTapeLength",
         .option = &Panel::mPrintTapeLength_Option,
         .title = &Panel::mTapeLengthStr,
         .field = &Panel::mTapeLengthTxFld,
         .slider = &Panel::mTapeLengthSlider,
         .unitLabel = &Panel::mTapeLengthUnitStr,
         .secondUnitLabel = nullptr,
         .minLabel = &Panel::mTapeLengthMinStr,
         .maxLabel = &Panel::mTapeLengthMaxStr,
         .titleKey = "RS_PrintTapeLength",
         .isInteger = &Panel::isIntegerPrintTapeLen,
         .min = &Panel::minPrintTapeLen,
         .max = &Panel::getMaxPrintTapeLen,
         .hasInchForm = false,
         .slidText = lengths::slidText,
         .alertBelow = "RS_Alrt_TapeLengthMin",
         .alertAbove = "RS_Alrt_TapeLengthMax"},
    }};
    return table;
}

const LengthOption &LengthOption::of(Item item)
{
    return all()[item];
}
