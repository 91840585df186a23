// SPDX-License-Identifier: Apache-2.0
// Handing every value to the dialog as a PPD option keyword and a choice keyword, and the panel's last word before the
// job goes out. Saving is idempotent: each call derives the value anew and sends it again.
#include "panel/ChoiceOption.h"
#include "panel/LengthOption.h"
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
    const QPointer<QObject> self(this);
    checkValues(false);
    if (self != nullptr) {
        saveAllSettings();
    }
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
    const QPointer<QObject> self(this);
    const bool answer = checkValues_dec && checkValues(false);
    if (self == nullptr) {
        return false;
    }
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
    const bool isQuality = option.itemType == ItemType::quality;
    if (controlExists(option)) {
        return isQuality ? indexForSaveQuality(mPrintQualityRdBtn) : selectedIndex(option);
    }
    if (mKeptValues) {
        const bool firstOnly = isQuality && mKeptValues->picks[ChoiceOption::Resolution] != 0;
        return firstOnly ? 0 : selectedIndex(option);
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

    const LengthOption &group = LengthOption::of(LengthOption::TapeLength);
    if (isShown(group)) {
        const QString paperText = paperLengthText(tape);
        if (takesOverPaper(paperText)) {
            setShownText(group, paperText);
        }
        choice_PaperSize = floatValue(paperText);
        enableLengthControls(getTapeState() == 0);
    }
    // Written whether or not the PPD has the option. Deliberate.
    tellDialog(group.keyword, tapeLengthToSave(tape));
}

void PageSettingPDE13_v100_::saveSetting_Margin()
{
    if (printSettings != nullptr && mMargin_Option != nullptr) {
        tellDialog(mMargin_Option->keyword, marginToSave(getTapeState() == 0));
    }
}

void PageSettingPDE13_v100_::saveSetting_PrintTapeLength()
{
    if (printSettings != nullptr && mPrintTapeLength_Option != nullptr) {
        tellDialog(mPrintTapeLength_Option->keyword, printTapeLengthToSave(getTapeState() == 0));
    }
}

QString PageSettingPDE13_v100_::paperLengthText(const TapeInfo &tape) const
{
    return lengths::paperLengthText(tape.paperLength, savingUnit(), isIntegerTapeLen());
}

bool PageSettingPDE13_v100_::takesOverPaper(const QString &paperText) const
{
    // A paper of another length is taken over only while the field still shows the length of the paper before.
    const bool paperIsAsBefore = floatValue(paperText) == choice_PaperSize;
    const bool personTyped = floatValue(shownText(LengthOption::of(LengthOption::TapeLength))) != choice_PaperSize;
    return !paperIsAsBefore && !personTyped;
}

QString PageSettingPDE13_v100_::tapeLengthToSave(const TapeInfo &tape) const
{
    const LengthOption &group = LengthOption::of(LengthOption::TapeLength);
    const QString paperText = paperLengthText(tape);
    const bool isPapers = !isShown(group) || takesOverPaper(paperText);
    return lengths::savedTapeLength(isPapers ? paperText : shownText(group), savingRulesOf(group),
                                    tape.fixedLength == 0);
}

QString PageSettingPDE13_v100_::marginToSave(bool clamp) const
{
    const LengthOption &group = LengthOption::of(LengthOption::Margin);
    return isShown(group) ? lengths::savedMargin(shownText(group), savingRulesOf(group), clamp)
                          : lengths::savedDefaultMargin(defaultNumber(*mMargin_Option), savingRulesOf(group), clamp);
}

QString PageSettingPDE13_v100_::printTapeLengthToSave(bool clamp) const
{
    const LengthOption &group = LengthOption::of(LengthOption::PrintTapeLength);
    return isShown(group) ? lengths::savedPrintTapeLength(shownText(group), savingRulesOf(group), clamp)
                          : lengths::savedDefaultPrintTapeLength(defaultNumber(*mPrintTapeLength_Option),
                                                                 savingRulesOf(group), clamp);
}

std::vector<std::pair<QString, QString>> PageSettingPDE13_v100_::currentValues() const
{
    std::vector<std::pair<QString, QString>> values;
    if (printSettings == nullptr || !isFilled(LengthOption::of(LengthOption::TapeLength))) {
        return values;
    }
    // Saving takes the tape's state over before it saves anything: here it is the tape's own.
    const TapeInfo tape = currentTapeInfo();
    const bool clamp = tape.fixedLength == 0;
    const auto add = [&values](const char *keyword, const QString &value) {
        if (const QString key = stringFromUtf8(keyword); !key.isNull()) {
            values.emplace_back(key, value);
        }
    };
    add(LengthOption::of(LengthOption::TapeLength).keyword, tapeLengthToSave(tape));
    if (mMargin_Option != nullptr) {
        add(mMargin_Option->keyword, marginToSave(clamp));
    }
    if (mPrintTapeLength_Option != nullptr) {
        add(mPrintTapeLength_Option->keyword, printTapeLengthToSave(clamp));
    }
    return values;
}

lengths::Unit PageSettingPDE13_v100_::savingUnit() const
{
    // Here every unit code but 0 means inches; elsewhere only 1 does.
    return getPDEUnit() != 0 ? lengths::Unit::Inches : lengths::Unit::Millimetres;
}

lengths::Rules PageSettingPDE13_v100_::savingRulesOf(const LengthOption &group) const
{
    return {savingUnit(), (this->*group.isInteger)(), (this->*group.min)(), (this->*group.max)()};
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
