// SPDX-License-Identifier: Apache-2.0
// Handing every value to the dialog as a PPD option keyword and a choice keyword, and the panel's last word before the
// job goes out. Saving is idempotent: each call derives the value anew and sends it again.
#include "panel/ChoiceOption.h"
#include "panel/PageSettingPDE13_v100_.h"

#include "pdekit/Numbers.h"
#include "pdekit/StringEncoding.h"
#include "ppd/PDEUtilsMethod13.h"

#include <algorithm>

using namespace pdekit;

namespace
{

/// A PPD default choice as a number.
double defaultNumber(const ppd_option_t &option)
{
    return doubleValue(stringFromSystemEncoding(option.defchoice));
}

} // namespace

void PageSettingPDE13_v100_::tellDialog(const char *keyword, const QString &choice)
{
    const QString key = stringFromUtf8(keyword);
    if (!key.isNull() && !choice.isNull()) {
        pdePluginCallbackObject->willChangePPDOptionKeyValue(key, choice);
    }
}

void PageSettingPDE13_v100_::setValuesToKey()
{
    checkValues(false);
    saveAllSettings();
}

bool PageSettingPDE13_v100_::shouldPrint()
{
    saveSetting_Length();
    saveSetting_InkColor();
    saveSetting_TapeColor();
    saveSetting_TapeType();
    for (const auto item :
         {ChoiceOption::Quality, ChoiceOption::Resolution, ChoiceOption::KsResolution, ChoiceOption::Compress}) {
        const ChoiceOption &option = ChoiceOption::of(item);
        setDefaultChoices(this->*option.option, (this->*option.choices).get(), option.keyword,
                          QString::fromLatin1(option.keyword));
    }
    BasePDE13_v100_::shouldPrint();
    // A check that failed refuses the print once, in silence; the next request checks again. Deliberate.
    const bool answer = checkValues_dec && checkValues(false);
    checkValues_dec = true;
    return answer;
}

// ---- Choice options ------------------------------------------------------------------------------------------------

void PageSettingPDE13_v100_::saveSetting_Quality()
{
    saveChoice(ChoiceOption::of(ChoiceOption::Quality));
}

void PageSettingPDE13_v100_::saveSetting_Resolution()
{
    saveChoice(ChoiceOption::of(ChoiceOption::Resolution));
}

void PageSettingPDE13_v100_::saveSetting_Compress()
{
    saveChoice(ChoiceOption::of(ChoiceOption::Compress));
}

void PageSettingPDE13_v100_::saveSetting_KsResolution()
{
    saveChoice(ChoiceOption::of(ChoiceOption::KsResolution));
}

void PageSettingPDE13_v100_::saveSetting_TapeType()
{
    saveChoice(ChoiceOption::of(ChoiceOption::TapeType));
}

void PageSettingPDE13_v100_::saveSetting_TapeColor()
{
    saveChoice(ChoiceOption::of(ChoiceOption::TapeColor));
}

void PageSettingPDE13_v100_::saveSetting_InkColor()
{
    saveChoice(ChoiceOption::of(ChoiceOption::InkColor));
}

void PageSettingPDE13_v100_::saveChoice(const ChoiceOption &option)
{
    const PDEChoiceArray *choices = (this->*option.choices).get();
    if (choices == nullptr || printSettings == nullptr || choices->empty()) {
        return;
    }
    const auto last = static_cast<std::int64_t>(choices->size()) - 1;
    const std::int64_t index = std::clamp(indexForSave(option), std::int64_t{0}, last);
    tellDialog((this->*option.option)->keyword,
               stringFromUtf8((*choices)[static_cast<std::size_t>(index)].choice()->choice));
}

std::int64_t PageSettingPDE13_v100_::indexForSave(const ChoiceOption &option) const
{
    if (controlExists(option)) {
        const bool isQuality = option.itemType == ItemType::quality;
        return isQuality ? indexForSaveQuality(mPrintQualityRdBtn) : selectedIndex(option);
    }
    const PDEChoiceArray *choices = (this->*option.choices).get();
    const std::uint32_t code = option.ticketCode == nullptr ? 0 : currentTapeInfo().*option.ticketCode;
    std::int64_t index = -1;
    if (code == 0) {
        index = indexOfMarkedOption(choices, QString::fromLatin1(option.keyword));
    } else {
        // Every code beyond the last named one means the last keyword. Deliberate.
        const std::size_t place = std::min<std::size_t>(code, option.ticketKeywords.size()) - 1;
        index = indexOfChoices(choices, QString::fromLatin1(option.ticketKeywords[place]));
    }
    return index == -1 ? indexOfDefaultOption(choices) : index;
}

std::int32_t PageSettingPDE13_v100_::indexForSaveQuality(const QWidget *control) const
{
    const auto *matrix = qobject_cast<const RadioMatrix *>(control);
    if (matrix == nullptr || (mResolutionRdBtn != nullptr && mResolutionRdBtn->selectedRow() != 0)) {
        return 0;
    }
    return matrix->selectedRow();
}

// ---- Lengths -------------------------------------------------------------------------------------------------------

void PageSettingPDE13_v100_::saveSetting_Length()
{
    if (printSettings == nullptr) {
        return;
    }
    const TapeInfo tape = currentTapeInfo();
    setTapeState(tape.fixedLength);

    const lengths::Rules rules = {savingUnit(), isIntegerTapeLen(), minTapeLen(), maxTapeLen()};
    const QString paperText = lengths::paperLengthText(tape.paperLength, rules.unit, rules.isInteger);
    QString shownText = paperText;
    if (mLengthTxFld != nullptr) {
        // A paper of another length is taken over only while the field still shows the length of the paper before.
        const float paperLength = floatValue(paperText);
        const bool paperIsAsBefore = paperLength == choice_PaperSize;
        const bool personTyped = floatValue(mLengthTxFld->text()) != choice_PaperSize;
        if (paperIsAsBefore || personTyped) {
            shownText = mLengthTxFld->text();
        } else {
            mLengthTxFld->setText(paperText);
        }
        choice_PaperSize = paperLength;
        enableLengthControls(getTapeState() == 0);
    }
    // Written whether or not the PPD has the option. Deliberate.
    tellDialog("KsTapeLength", lengths::savedTapeLength(shownText, rules, getTapeState() == 0));
}

void PageSettingPDE13_v100_::saveSetting_Margin()
{
    if (printSettings == nullptr || mMargin_Option == nullptr) {
        return;
    }
    const lengths::Rules rules = {savingUnit(), isIntegerMarginLen(), minMargin(), maxMargin()};
    const bool clamp = getTapeState() == 0;
    tellDialog(mMargin_Option->keyword,
               mMarginTxFld != nullptr ? lengths::savedMargin(mMarginTxFld->text(), rules, clamp)
                                       : lengths::savedDefaultMargin(defaultNumber(*mMargin_Option), rules, clamp));
}

void PageSettingPDE13_v100_::saveSetting_PrintTapeLength()
{
    if (printSettings == nullptr || mPrintTapeLength_Option == nullptr) {
        return;
    }
    const lengths::Rules rules = {savingUnit(), isIntegerPrintTapeLen(), minPrintTapeLen(), getMaxPrintTapeLen()};
    const bool clamp = getTapeState() == 0;
    tellDialog(mPrintTapeLength_Option->keyword,
               mTapeLengthTxFld != nullptr
                   ? lengths::savedPrintTapeLength(mTapeLengthTxFld->text(), rules, clamp)
                   : lengths::savedDefaultPrintTapeLength(defaultNumber(*mPrintTapeLength_Option), rules, clamp));
}

lengths::Unit PageSettingPDE13_v100_::savingUnit() const
{
    // Here every unit code but 0 means inches; elsewhere only 1 does.
    return getPDEUnit() != 0 ? lengths::Unit::Inches : lengths::Unit::Millimetres;
}

void PageSettingPDE13_v100_::enableLengthControls(bool enabled)
{
    for (QLabel *label : {mLengthStr.data(), mLengthMinStr.data(), mLengthMaxStr.data(), mLengthUnitStr.data(),
                          mMarginStr.data(), mMarginMinStr.data(), mMarginMaxStr.data(), mMarginUnitStr.data()}) {
        PDEUtilsMethod13::setEnabledForText(enabled, label);
    }
    for (QWidget *control : {static_cast<QWidget *>(mLengthTxFld), static_cast<QWidget *>(mLengthSlider),
                             static_cast<QWidget *>(mMarginTxFld), static_cast<QWidget *>(mMarginSlider)}) {
        if (control != nullptr) {
            control->setEnabled(enabled);
        }
    }
}
