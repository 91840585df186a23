// SPDX-License-Identifier: Apache-2.0
// The seven choice options: filling their controls, their first selection, picks, the dialog's notices, and the rule by
// which the resolution enables the quality.
#include "panel/BundleImages.h"
#include "panel/ChoiceOption.h"
#include "panel/PageSettingPDE13_v100_.h"
#include "panel/PlainLabel.h"
#include "panel/PopUpItems.h"

#include "pdekit/NotificationCenter.h"
#include "pdekit/StringEncoding.h"
#include "ppd/PDEUtilsMethod13.h"

#include <algorithm>
#include <optional>
#include <vector>

using namespace pdekit;

namespace
{

/// The cloth bit of the image mode flag.
constexpr std::uint32_t kClothBit = 16;

/// Whether a control is enabled by itself, whatever the dialog does with the view around it.
bool isEnabledByItself(const QWidget &control)
{
    return control.isEnabledTo(control.parentWidget());
}

/// The index of the first default choice among the first `count`, or -1.
int firstDefault(const PDEChoiceArray &choices, std::size_t count)
{
    const auto end = choices.begin() + static_cast<std::ptrdiff_t>(std::min(count, choices.size()));
    const auto found =
        std::find_if(choices.begin(), end, [](const PDEChoice &choice) { return choice.isDefaultChoice(); });
    return found == end ? -1 : static_cast<int>(found - choices.begin());
}

} // namespace

// ---- Filling the controls ----------------------------------------------------------------------------------------

void PageSettingPDE13_v100_::initializeUI_Quality()
{
    fillChoiceControl(ChoiceOption::of(ChoiceOption::Quality));
}

void PageSettingPDE13_v100_::initializeUI_Resolution()
{
    fillChoiceControl(ChoiceOption::of(ChoiceOption::Resolution));
}

void PageSettingPDE13_v100_::initializeUI_Compress()
{
    fillChoiceControl(ChoiceOption::of(ChoiceOption::Compress));
}

void PageSettingPDE13_v100_::initializeUI_KsResolution()
{
    fillChoiceControl(ChoiceOption::of(ChoiceOption::KsResolution));
}

void PageSettingPDE13_v100_::initializeUI_TapeType()
{
    fillChoiceControl(ChoiceOption::of(ChoiceOption::TapeType));
}

void PageSettingPDE13_v100_::initializeUI_TapeColor()
{
    fillChoiceControl(ChoiceOption::of(ChoiceOption::TapeColor));
}

void PageSettingPDE13_v100_::initializeUI_InkColor()
{
    fillChoiceControl(ChoiceOption::of(ChoiceOption::InkColor));
}

void PageSettingPDE13_v100_::fillChoiceControl(const ChoiceOption &option)
{
    const bool isCompression = option.enabled == ChoiceOption::Enabled::OverUsbWithResolution;
    const bool enabled = isCompression ? usb_dec && mResolution_Option != nullptr : this->*option.option != nullptr;
    if (isCompression) {
        // The compression label alone is coloured even when the PPD has no compression. Deliberate.
        PDEUtilsMethod13::setEnabledForText(enabled, this->*option.label);
    }
    if (this->*option.choices == nullptr) {
        return;
    }
    PDEUtilsMethod13::setEnabledForText(enabled, this->*option.label);
    titleChoiceLabel(option);
    if (option.matrix != nullptr) {
        if (RadioMatrix *matrix = this->*option.matrix) {
            matrix->setEnabled(enabled);
            fillRadioMatrix(option);
        }
    } else if (QComboBox *popUp = this->*option.popUp) {
        popUp->setEnabled(enabled);
        fillPopUp(option);
    }
    selectFirstChoice(option);
}

void PageSettingPDE13_v100_::titleChoiceLabel(const ChoiceOption &option)
{
    const QString title = PDEUtilsMethod13::newOptionTitle(this->*option.option);
    QWidget *control = option.matrix != nullptr ? static_cast<QWidget *>(this->*option.matrix) : this->*option.popUp;
    showTitle(this->*option.label, control,
              localized(title.isNull() ? QString::fromLatin1(option.titleKey) : title + QLatin1StringView(" : ")));
}

void PageSettingPDE13_v100_::fillRadioMatrix(const ChoiceOption &option)
{
    RadioMatrix *matrix = this->*option.matrix;
    const ppd_option_t *ppdOption = this->*option.option;
    for (int i = 0; i < ppdOption->num_choices; ++i) {
        const QString title = PDEUtilsMethod13::newChoiceTitle(&ppdOption->choices[i]);
        if (!title.isNull()) {
            if (i < matrix->numberOfRows()) { // a choice beyond the rows has no cell
                matrix->setTitleOfCell(localized(title), i, 0);
            }
            continue;
        }
        // One unreadable choice gives every row its fallback title; rows that come later are titled again.
        for (std::size_t row = 0; row < option.fallbackTitles.size(); ++row) {
            matrix->setTitleOfCell(localized(QString::fromLatin1(option.fallbackTitles[row])), static_cast<int>(row),
                                   0);
        }
    }
}

void PageSettingPDE13_v100_::fillPopUp(const ChoiceOption &option)
{
    std::vector<QString> fallbackTitles;
    for (const char *key : option.fallbackTitles) {
        fallbackTitles.push_back(localized(QString::fromLatin1(key)));
    }

    // Placeholders of the interface file are not kept: an item that is no choice would be there to pick.
    PopUpItems items;
    if (option.hasImages && mImages == nullptr) {
        mImages = std::make_unique<BundleImages>(nsPDEBundle, QStringLiteral("tiff"));
    }
    const ppd_option_t *ppdOption = this->*option.option;
    for (int i = 0; i < ppdOption->num_choices; ++i) {
        const ppd_choice_t &choice = ppdOption->choices[i];
        const QString text = PDEUtilsMethod13::newChoiceTitle(&choice);
        if (text.isNull()) {
            items.insertAtFront(fallbackTitles);
            continue;
        }
        const QString title = localized(text);
        items.replaceItem(static_cast<std::size_t>(i), title);
        if (option.hasImages) {
            if (const std::optional<QIcon> image = mImages->imageNamed(choice.choice)) {
                items.setImageOfItemWithTitle(title, *image);
            }
        }
    }

    // The pop-up keeps its selection, though replacing items moves the toolkit's index.
    QComboBox *popUp = this->*option.popUp;
    const int selected = std::max(popUp->currentIndex(), 0);
    popUp->clear();
    // All titles at once: adding items one by one tells the pop-up's views of each.
    QStringList titles;
    for (const PopUpItems::Item &item : items.items()) {
        titles.append(item.title);
    }
    popUp->addItems(titles);
    for (std::size_t i = 0; i < items.items().size(); ++i) {
        const QIcon &image = items.items()[i].image;
        const bool isGiven = image.cacheKey() != 0; // isNull() would read the image
        if (isGiven) {
            popUp->setItemIcon(static_cast<int>(i), image);
        }
    }
    popUp->setCurrentIndex(selected);
}

void PageSettingPDE13_v100_::selectFirstChoice(const ChoiceOption &option)
{
    const PDEChoiceArray &choices = *(this->*option.choices);
    int index = -1;
    if (option.firstSelection == ChoiceOption::FirstSelection::DefaultOfResolution) {
        index = mResolution_Choices == nullptr ? -1 : firstDefault(*mResolution_Choices, choices.size());
    } else {
        index = firstDefault(choices, choices.size());
    }
    if (option.firstSelection == ChoiceOption::FirstSelection::TicketOrDefault) {
        if (const std::uint32_t code = currentTapeInfo().*option.ticketCode; code != 0) {
            // Not checked against the items: a place beyond them leaves the pop-up without a selection.
            index = static_cast<int>(code) - 1;
            if (option.setsClothBit) {
                setClothBit(index == ChoiceOption::kClothIndex);
            }
        }
    }
    if (index >= 0) {
        selectInControl(option, index);
    }

    // Tape material, tape colour and ink colour have no stored selection until the dialog reports one: a stored one
    // would undo the person's next pick when the controls are refreshed.
    if (option.firstSelection != ChoiceOption::FirstSelection::TicketOrDefault) {
        const int selected = controlExists(option) ? selectedIndex(option) : index;
        const bool exists = selected >= 0 && static_cast<std::size_t>(selected) < choices.size();
        this->*option.selection = exists ? &choices[static_cast<std::size_t>(selected)] : nullptr;
    }
}

bool PageSettingPDE13_v100_::controlExists(const ChoiceOption &option) const
{
    return option.matrix != nullptr ? this->*option.matrix != nullptr : this->*option.popUp != nullptr;
}

int PageSettingPDE13_v100_::selectedIndex(const ChoiceOption &option) const
{
    if (!controlExists(option)) {
        return mKeptValues ? mKeptValues->picks[option.place()] : 0;
    }
    return option.matrix != nullptr ? (this->*option.matrix)->selectedRow() : (this->*option.popUp)->currentIndex();
}

void PageSettingPDE13_v100_::selectInControl(const ChoiceOption &option, int index)
{
    if (!controlExists(option)) {
        if (mKeptValues) {
            mKeptValues->picks[option.place()] = index;
        }
        return;
    }
    if (option.matrix != nullptr) {
        (this->*option.matrix)->selectCellAtRow(index, 0);
    } else {
        (this->*option.popUp)->setCurrentIndex(index);
    }
}

void PageSettingPDE13_v100_::setClothBit(bool cloth)
{
    mImageModeFlag = cloth ? mImageModeFlag | kClothBit : mImageModeFlag & ~kClothBit;
}

bool PageSettingPDE13_v100_::isCloth() const
{
    return (mImageModeFlag & kClothBit) != 0;
}

// ---- A person's pick -----------------------------------------------------------------------------------------------

void PageSettingPDE13_v100_::changeQuality(QObject *sender)
{
    pick(ChoiceOption::of(ChoiceOption::Quality), sender);
}

void PageSettingPDE13_v100_::changeResolution(QObject *sender)
{
    pick(ChoiceOption::of(ChoiceOption::Resolution), sender);
}

void PageSettingPDE13_v100_::changeCompress(QObject *sender)
{
    pick(ChoiceOption::of(ChoiceOption::Compress), sender);
}

void PageSettingPDE13_v100_::changeKsResolution(QObject *sender)
{
    pick(ChoiceOption::of(ChoiceOption::KsResolution), sender);
}

void PageSettingPDE13_v100_::changeKsTapeType(QObject *sender)
{
    pick(ChoiceOption::of(ChoiceOption::TapeType), sender);
}

void PageSettingPDE13_v100_::changeKsTapeColor(QObject *sender)
{
    pick(ChoiceOption::of(ChoiceOption::TapeColor), sender);
}

void PageSettingPDE13_v100_::changeKsInkColor(QObject *sender)
{
    pick(ChoiceOption::of(ChoiceOption::InkColor), sender);
}

void PageSettingPDE13_v100_::pick(const ChoiceOption &option, QObject *sender)
{
    const int index = selectedIndex(option);
    selectionForItem(index, QString::fromLatin1(option.keyword), (this->*option.choices).get(), option.itemType);
    updateUIItem(option.itemType);
    if (option.decidesEnabledQuality) {
        enabledCheck_BS();
    }
    const QPointer<QObject> self(this);
    if (sender != nullptr) {
        checkValues(false);
    }
    if (self != nullptr && option.setsClothBit) {
        setClothBit(index == ChoiceOption::kClothIndex);
        initializeUI_PrintTapeLength();
    }
}

void PageSettingPDE13_v100_::enabledCheck_BS()
{
    if (mPrintQualityRdBtn == nullptr) {
        return;
    }
    const int row = mResolutionRdBtn == nullptr ? 0 : mResolutionRdBtn->selectedRow();
    const bool enabled = isEnabledByItself(*mPrintQualityRdBtn);
    if ((row == 1 && enabled) || (row == 0 && !enabled)) {
        mPrintQualityRdBtn->setEnabled(!enabled);
        PDEUtilsMethod13::setEnabledForText(!enabled, mPrintQualityStr);
    }
}

// ---- Following marks and notices -----------------------------------------------------------------------------------

void PageSettingPDE13_v100_::updateMarkedSelections(std::int32_t itemType)
{
    // Tape material, tape colour and ink colour are never refreshed here; their codes share a bit with the vendor
    // resolution, which therefore is. Deliberate.
    for (const auto item :
         {ChoiceOption::Quality, ChoiceOption::Resolution, ChoiceOption::Compress, ChoiceOption::KsResolution}) {
        const ChoiceOption &option = ChoiceOption::of(item);
        if ((itemType & option.itemType) == 0 || this->*option.option == nullptr) {
            continue;
        }
        const PDEChoiceArray *choices = (this->*option.choices).get();
        std::int64_t index = indexOfMarkedOption(choices, QString::fromLatin1(option.keyword));
        if (index == -1) {
            index = indexOfDefaultOption(choices);
        }
        const bool exists = index >= 0 && static_cast<std::size_t>(index) < choices->size();
        this->*option.selection = exists ? &(*choices)[static_cast<std::size_t>(index)] : nullptr;
    }
}

void PageSettingPDE13_v100_::updateUIItem(std::int32_t itemType)
{
    saveSetting_Length();
    initializeUI_Width();
    saveSetting_PrintTapeLength();

    for (const auto item :
         {ChoiceOption::Quality, ChoiceOption::Resolution, ChoiceOption::Compress, ChoiceOption::KsResolution,
          ChoiceOption::TapeType, ChoiceOption::InkColor, ChoiceOption::TapeColor}) {
        const ChoiceOption &option = ChoiceOption::of(item);
        if ((itemType & option.itemType) != 0) {
            selectStoredChoice(option);
        }
    }
    enabledCheck_BS();
}

void PageSettingPDE13_v100_::selectStoredChoice(const ChoiceOption &option)
{
    const PDEChoice *selection = this->*option.selection;
    if (selection != nullptr && this->*option.choices != nullptr) {
        // The place of that very element, which the array holds.
        selectInControl(option, static_cast<int>(selection - (this->*option.choices)->data()));
    }
}

void PageSettingPDE13_v100_::PPDOptionKeyValueDidChange(const QString &key, const QString &choice)
{
    if (key.isNull() || choice.isNull()) {
        return;
    }
    for (const ChoiceOption &option : ChoiceOption::all()) {
        if (key == QLatin1StringView(option.keyword)) {
            // The control follows when the dialog next shows the panel.
            this->*option.selection = PDEUtilsMethod13::findChoiceForString(choice, (this->*option.choices).get());
            return;
        }
    }
    if (key == QLatin1StringView("PageSize")) {
        NotificationCenter::defaultCenter().postNotification(
            QStringLiteral("PMPrintDestinationPaperDidChangeNotification"), static_cast<QObject *>(this));
    }
}
