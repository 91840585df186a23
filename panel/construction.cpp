// SPDX-License-Identifier: Apache-2.0
// The panel's construction: what it learns from the printer and the PPD, which options it announces, the order in which
// its controls are built, and how the interface file is connected.
#include "panel/BundleImages.h"
#include "panel/ChoiceOption.h"
#include "panel/PageSettingPDE13_v100_.h"
#include "panel/PanelFactory.h"

#include "pdekit/NotificationCenter.h"
#include "ppd/PDEUtilsMethod13.h"

#include <array>

using namespace pdekit;

namespace
{

/// Every item in the order in which controls and marked selections are refreshed.
constexpr std::array<std::int32_t, 10> kItems = {
    ItemType::tapeLength,   ItemType::margin,   ItemType::quality,   ItemType::resolution, ItemType::compression,
    ItemType::ksResolution, ItemType::tapeType, ItemType::tapeColor, ItemType::inkColor,   ItemType::printTapeLength,
};

} // namespace

std::shared_ptr<Panel> newPageSettingPanel(std::shared_ptr<PanelCallback> callback, Bundle *bundle)
{
    auto panel = std::make_shared<PageSettingPDE13_v100_>();
    if (!panel->initWithCallback(std::move(callback), bundle)) {
        return nullptr;
    }
    return panel;
}

PageSettingPDE13_v100_::PageSettingPDE13_v100_() = default;

PageSettingPDE13_v100_::~PageSettingPDE13_v100_()
{
    NotificationCenter::defaultCenter().removeObserver(this);
}

bool PageSettingPDE13_v100_::initWithCallback(std::shared_ptr<PanelCallback> callback, Bundle *bundle)
{
    if (!BasePDE13_v100_::initWithCallback(std::move(callback), bundle)) {
        return false;
    }
    readConnection();
    readPageSetup();
    loadUnit();
    findOptions();
    NotificationCenter::defaultCenter().addObserver(
        this, [this](const Notification &notification) { checkPageSizeChange(notification); },
        QStringLiteral("PMPrintDestinationPaperDidChangeNotification"));
    return true;
}

void PageSettingPDE13_v100_::readConnection()
{
    QString uri;
    if (PMPrinterCopyDeviceURI(pdePluginCallbackObject->PMPrinter(), &uri) != kPMNoError) {
        return;
    }
    // Letter by letter, in the case it is written in: "USB" is no USB connection. Deliberate.
    const QString scheme = uri.section(QLatin1Char(':'), 0, 0);
    usb_dec = uri.contains(QLatin1Char(':')) &&
              (scheme == QLatin1StringView("usb") || scheme == QLatin1StringView("KSLXUSB"));
}

void PageSettingPDE13_v100_::findOptions()
{
    if (ppd == nullptr) {
        return;
    }
    mMargin_Option = ppdFindOption(ppd, "KsMargin");
    for (const ChoiceOption &option : ChoiceOption::all()) {
        this->*option.option = ppdFindOption(ppd, option.keyword);
        this->*option.choices = PDEUtilsMethod13::arrayFromPPDOption(this->*option.option);
    }
    mPrintTapeLength_Option = ppdFindOption(ppd, "KsPrintTapeLength");
    mTapeLength_Option = ppdFindOption(ppd, "KsTapeLength");
}

const QStringList *PageSettingPDE13_v100_::supportedPPDOptionKeys()
{
    if (supportedOptions() != nullptr) {
        return supportedOptions().get();
    }
    saveAllSettings();

    // "KsTapeLength" is looked up at construction but never announced. Deliberate.
    const std::array<std::pair<const char *, const ppd_option_t *>, 9> announced = {{
        {"KsPriority", mQuality_Option},
        {"KsMargin", mMargin_Option},
        {"Resolution", mResolution_Option},
        {"KsCompress", mCompress_Option},
        {"KsResolution", mKsResolution_Option},
        {"KsTapeMaterial", mTapeType_Option},
        {"KsInkColor", mInkColor_Option},
        {"KsTapeColor", mTapeColor_Option},
        {"KsPrintTapeLength", mPrintTapeLength_Option},
    }};
    auto keys = std::make_shared<QStringList>();
    for (const auto &[keyword, option] : announced) {
        if (option != nullptr) {
            keys->append(QString::fromLatin1(keyword));
        }
    }
    setSupportedOptions(std::move(keys));
    return supportedOptions().get();
}

void PageSettingPDE13_v100_::saveAllSettings()
{
    saveSetting_Length();
    saveSetting_Margin();
    saveSetting_Quality();
    saveSetting_Resolution();
    saveSetting_Compress();
    saveSetting_KsResolution();
    saveSetting_TapeType();
    saveSetting_TapeColor();
    saveSetting_InkColor();
    saveSetting_PrintTapeLength();
}

void PageSettingPDE13_v100_::initUI()
{
    if (set_formatSetting) {
        return;
    }
    buildControls();
    saveAllSettings();
    set_formatSetting = true;
}

void PageSettingPDE13_v100_::buildControls()
{
    initializeUI_Width();
    initializeUI_Length();
    initializeUI_Margin();
    initializeUI_Quality();
    initializeUI_Resolution();
    initializeUI_Compress();
    initializeUI_KsResolution();
    initializeUI_TapeType();
    initializeUI_TapeColor();
    initializeUI_InkColor();
    // Last: its limits follow from the tape width and the tape material found above.
    initializeUI_PrintTapeLength();
}

void PageSettingPDE13_v100_::setPDEItems()
{
    for (const std::int32_t item : kItems) {
        updateUIItem(item);
    }
}

void PageSettingPDE13_v100_::setPDEItems2()
{
    for (const std::int32_t item : kItems) {
        updateMarkedSelections(item);
    }
}

void PageSettingPDE13_v100_::initSetTitleTexts() {}

void PageSettingPDE13_v100_::getValuesFromKey() {}

void PageSettingPDE13_v100_::awakeFromNib() {}

void PageSettingPDE13_v100_::printWindowWillClose(bool /*userPrinted*/) {}

bool PageSettingPDE13_v100_::shouldShowHelp()
{
    return false;
}

TapeInfo PageSettingPDE13_v100_::currentTapeInfo(OSStatus *status) const
{
    TapeInfo tape;
    const OSStatus result = GetTapeInfo(printSession, pdePluginCallbackObject->printSettings(),
                                        pdePluginCallbackObject->pageFormat(), ppd, &tape);
    if (status != nullptr) {
        *status = result;
    }
    return tape;
}
