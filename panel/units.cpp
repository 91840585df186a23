// SPDX-License-Identifier: Apache-2.0
// The unit of the panel and the rules of its lengths, read from the PPD's vendor attributes each time they are needed.
#include "panel/ChoiceOption.h"
#include "panel/PageSettingPDE13_v100_.h"

#include "pdekit/Numbers.h"
#include "pdekit/StringEncoding.h"
#include "ppd/PDEUtilsMethod13.h"

using namespace pdekit;

namespace
{

/// The bits of the image mode flag that choose the print tape length limit of cloth and of the 15 mm tape.
constexpr std::uint32_t kClothOr15mm = 0x11;

} // namespace

QString PageSettingPDE13_v100_::attribute(const char *name) const
{
    return PDEUtilsMethod13::ppdAttrValStr(ppd, name);
}

bool PageSettingPDE13_v100_::flagAttribute(const char *name) const
{
    return attribute(name) == QLatin1StringView("True");
}

float PageSettingPDE13_v100_::lengthAttribute(const char *name) const
{
    return floatValue(attribute(name));
}

void PageSettingPDE13_v100_::loadUnit()
{
    const QString value = attribute("KsUnitType");
    if (!value.isEmpty()) {
        setPDEUnit(value == QLatin1StringView("inch") ? 1 : 0);
    }
}

lengths::Unit PageSettingPDE13_v100_::unit() const
{
    return mPDEUnit == 1 ? lengths::Unit::Inches : lengths::Unit::Millimetres;
}

double PageSettingPDE13_v100_::getOneDotMM() const
{
    int row = 0;
    if (mResolutionRdBtn != nullptr && mResolutionRdBtn->isEnabledTo(mResolutionRdBtn->parentWidget())) {
        row = mResolutionRdBtn->selectedRow();
    }
    // The margin's integer rule decides, though the dot is added to a tape length. Deliberate.
    const bool isInteger = isIntegerMarginLen();
    if (mResolution_Option == nullptr || row < 0 || row >= mResolution_Option->num_choices) {
        return lengths::entryStepMm(unit(), isInteger);
    }
    return lengths::oneDotMm(stringFromUtf8(mResolution_Option->choices[row].choice), unit(), isInteger);
}

bool PageSettingPDE13_v100_::isIntegerTapeLen() const
{
    return flagAttribute("KsIsIntegerTapeLength");
}

bool PageSettingPDE13_v100_::isIntegerMarginLen() const
{
    return flagAttribute("KsIsIntegerMargin");
}

bool PageSettingPDE13_v100_::isIntegerPrintTapeLen() const
{
    return flagAttribute("KsIsIntegerPrintTapeLength");
}

float PageSettingPDE13_v100_::minTapeLen() const
{
    return lengthAttribute("KsMinTapeLength");
}

float PageSettingPDE13_v100_::maxTapeLen() const
{
    return lengthAttribute("KsMaxTapeLength");
}

float PageSettingPDE13_v100_::minMargin() const
{
    return lengthAttribute("KsMinMargin");
}

float PageSettingPDE13_v100_::maxMargin() const
{
    return lengthAttribute("KsMaxMargin");
}

float PageSettingPDE13_v100_::minPrintTapeLen() const
{
    return lengthAttribute("KsMinPrintTapeLength");
}

float PageSettingPDE13_v100_::maxPrintTapeLenForClothOr15mm() const
{
    return lengthAttribute("KsMaxPrintTapeLengthForClothOr15mm");
}

float PageSettingPDE13_v100_::maxPrintTapeLenForOther() const
{
    return lengthAttribute("KsMaxPrintTapeLengthForOther");
}

float PageSettingPDE13_v100_::getMaxPrintTapeLen() const
{
    return (mImageModeFlag & kClothOr15mm) != 0 ? maxPrintTapeLenForClothOr15mm() : maxPrintTapeLenForOther();
}
