// SPDX-License-Identifier: Apache-2.0
// The abstract panel: construction, the panel protocol's default behaviour, and the choice helpers.
#include "plugin/BasePDE13_v100_.h"

#include "pdekit/NotificationCenter.h"
#include "pdekit/StringEncoding.h"
#include "ppd/PDEUtilsMethod13.h"

#include <QApplication>

#include <algorithm>

using namespace pdekit;

namespace
{

/// The notice by which a view says that its area changed.
const QString kViewDidUpdateTrackingAreas = QStringLiteral("NSViewDidUpdateTrackingAreasNotification");

/// What a window needs around a panel, in points.
constexpr double kWindowMargin = 96.0;

/// The longest device URI that is kept, its NUL included. One less than the field has room for, deliberately.
constexpr std::size_t kDeviceURIBufferSize = 255;

} // namespace

/// The view of a panel that was released while the view was held.
struct BasePDE13_v100_::HeldView {
    HeldView() = default;
    HeldView(const HeldView &) = delete;
    HeldView &operator=(const HeldView &) = delete;
    ~HeldView()
    {
        if (view != nullptr) {
            view->deleteLater();
        }
    }
    QPointer<QWidget> view;
};

BasePDE13_v100_::BasePDE13_v100_() = default;

BasePDE13_v100_::~BasePDE13_v100_()
{
    // A view that the dialog has put into its own widget tree is the dialog's to delete.
    if (kPDEView == nullptr || kPDEView->parent() != nullptr) {
        return;
    }
    if (const std::shared_ptr<HeldView> held = mHeldView.lock()) {
        kPDEView->hide();
        held->view = kPDEView;
    } else {
        delete kPDEView;
    }
}

std::shared_ptr<void> BasePDE13_v100_::holdView()
{
    std::shared_ptr<HeldView> held = mHeldView.lock();
    if (held == nullptr) {
        held = std::make_shared<HeldView>();
        mHeldView = held;
    }
    return held;
}

bool BasePDE13_v100_::initWithCallback(std::shared_ptr<PanelCallback> callback, Bundle *bundle)
{
    if (callback == nullptr) {
        return false;
    }
    nsPDEBundle = bundle == nullptr ? nullptr : bundle->shared_from_this();
    pdePluginCallbackObject = std::move(callback);
    printSession = pdePluginCallbackObject->printSession();
    pmPrintSettings = pdePluginCallbackObject->printSettings();
    printSettings = pdePluginCallbackObject->printSettings();
    formatSettings = pdePluginCallbackObject->pageFormat();
    printer = pdePluginCallbackObject->PMPrinter();
    ppd = pdePluginCallbackObject->ppdFile();
    fetchDeviceURI();
    return true;
}

void BasePDE13_v100_::fetchDeviceURI()
{
    deviceURI.fill('\0');
    QString uri;
    if (PMPrinterCopyDeviceURI(printer, &uri) != kPMNoError || uri.isNull()) {
        return;
    }
    const auto bytes = bytesFromString(uri, systemEncoding());
    if (bytes && static_cast<std::size_t>(bytes->size()) < kDeviceURIBufferSize) {
        std::copy(bytes->begin(), bytes->end(), deviceURI.begin());
    }
}

QWidget *BasePDE13_v100_::panelView()
{
    if (kPDEView == nullptr && nsPDEBundle != nullptr) {
        std::unique_ptr<QWidget> view =
            nsPDEBundle->loadInterface(QStringLiteral("PageSettingPDE"), widgetFactories(),
                                       [this](const QString &name, QWidget *widget) { connectOutlet(name, widget); });
        if (view != nullptr) {
            kPDEView = view.release();
            viewDidLoad();
        }
    }
    return kPDEView;
}

QString BasePDE13_v100_::panelName()
{
    if (thePDEName.isNull()) {
        thePDEName = localized(QStringLiteral("PS_PANEL_NAME"));
    }
    return thePDEName;
}

QString BasePDE13_v100_::panelKind()
{
    return QStringLiteral("org.tapeprint.printer.cups.pde.KSLXMVPageSettingsPDEKind");
}

const QStringList *BasePDE13_v100_::supportedPPDOptionKeys()
{
    setValuesToKey();
    return nullptr;
}

void BasePDE13_v100_::willShow()
{
    initSetTitleTexts();
    initUI();
    updateUI();
}

bool BasePDE13_v100_::shouldHide()
{
    return true;
}

bool BasePDE13_v100_::shouldPrint()
{
    return true;
}

bool BasePDE13_v100_::shouldShowHelp()
{
    return false;
}

void BasePDE13_v100_::PPDOptionKeyValueDidChange(const QString & /*key*/, const QString & /*choice*/) {}

bool BasePDE13_v100_::restoreValuesAndReturnError(QString * /*error*/)
{
    setPDEItems2();
    updateUI();
    return true;
}

bool BasePDE13_v100_::saveValuesAndReturnError(QString * /*error*/)
{
    setValuesToKey();
    return true;
}

std::optional<QVariantMap> BasePDE13_v100_::summaryInfo()
{
    return std::nullopt;
}

void BasePDE13_v100_::printWindowWillClose(bool /*userPrinted*/) {}

void BasePDE13_v100_::initSetTitleTexts() {}

void BasePDE13_v100_::initUI() {}

void BasePDE13_v100_::updateUI()
{
    setPDEItems();
}

void BasePDE13_v100_::getValuesFromKey() {}

void BasePDE13_v100_::setValuesToKey() {}

void BasePDE13_v100_::setPDEItems() {}

void BasePDE13_v100_::setPDEItems2() {}

void BasePDE13_v100_::updateUIItem(std::int32_t /*itemType*/) {}

void BasePDE13_v100_::updateMarkedSelections(std::int32_t /*itemType*/) {}

std::int32_t BasePDE13_v100_::indexForSummary(const char * /*keyword*/)
{
    return 0;
}

QString BasePDE13_v100_::fileVerString() const
{
    return PDEUtilsMethod13::ppdAttrValStr(ppd, "FileVersion");
}

bool BasePDE13_v100_::isTapeType(const char *family) const
{
    return PDEUtilsMethod13::ppdAttrValStr(ppd, "KsTapeType") == QLatin1StringView(family);
}

bool BasePDE13_v100_::isMVPrinter() const
{
    return isTapeType("MV");
}

bool BasePDE13_v100_::isHNPrinter() const
{
    return isTapeType("HN");
}

const PDEChoice *BasePDE13_v100_::selectionForItem(std::int64_t index, const QString &key,
                                                   const PDEChoiceArray *choices, std::int32_t itemType)
{
    if (choices == nullptr) {
        return nullptr;
    }
    // A control without a selection gives -1: there is no such choice either.
    if (index < 0 || index > static_cast<std::int64_t>(choices->size()) - 1) {
        return nullptr;
    }
    const PDEChoice *choice = &(*choices)[static_cast<std::size_t>(index)];
    pdePluginCallbackObject->willChangePPDOptionKeyValue(key, choice->ppdTitle());
    updateMarkedSelections(itemType);
    return choice;
}

std::int64_t BasePDE13_v100_::indexOfMarkedOption(const PDEChoiceArray *choices, const QString &key) const
{
    const ppd_choice_t *marked = ppd == nullptr ? nullptr : ppdFindMarkedChoice(ppd, key.toUtf8().constData());
    return marked == nullptr ? -1 : indexOfChoices(choices, stringFromAscii(marked->choice));
}

std::int64_t BasePDE13_v100_::indexOfChoices(const PDEChoiceArray *choices, const QString &value) const
{
    if (value.isNull() || choices == nullptr) {
        return -1;
    }
    const auto found = std::find_if(choices->begin(), choices->end(),
                                    [&value](const PDEChoice &choice) { return choice.hasPPDTitle(value); });
    return found == choices->end() ? -1 : found - choices->begin();
}

std::int64_t BasePDE13_v100_::indexOfDefaultOption(const PDEChoiceArray *choices) const
{
    if (choices == nullptr || choices->empty()) {
        return 0;
    }
    const auto found = std::find_if(choices->begin(), choices->end(),
                                    [](const PDEChoice &choice) { return choice.isDefaultChoice(); });
    return found == choices->end() ? -1 : found - choices->begin();
}

void BasePDE13_v100_::setDefaultChoices(const ppd_option_t *option, const PDEChoiceArray *choices, const char *cStrKey,
                                        const QString &nStrKey)
{
    if (option == nullptr || (ppd != nullptr && ppdFindMarkedChoice(ppd, cStrKey) != nullptr)) {
        return;
    }
    const std::int64_t index = indexOfDefaultOption(choices);
    if (index >= 0 && index < option->num_choices) {
        // The keyword comes straight from the option's own list, not from the array.
        pdePluginCallbackObject->willChangePPDOptionKeyValue(nStrKey, stringFromUtf8(option->choices[index].choice));
    }
    // Made and thrown away: part of the contract of this operation, without effect. Deliberate.
    PDEUtilsMethod13::arrayFromPPDOption(option);
}

void BasePDE13_v100_::setSupportedOptions(std::shared_ptr<QStringList> options)
{
    mSupportedOptions = std::move(options);
}

void BasePDE13_v100_::setViewFrameSize(double width, double height)
{
    auto *resizing = dynamic_cast<PanelViewResizing *>(pdePluginCallbackObject.get());
    if (resizing == nullptr) {
        return;
    }
    if (kPDEView != nullptr) {
        kPDEView->resize(qRound(width), qRound(height));
    }
    const QWidget *keyWindow = QApplication::activeWindow();
    const double windowHeight = keyWindow == nullptr ? 0.0 : keyWindow->frameGeometry().height();
    if (windowHeight > height + kWindowMargin) {
        resizing->panelViewDidResize();
        return;
    }
    NotificationCenter::defaultCenter().addObserver(
        this, [this](const Notification &) { dialogDidExpand(); }, kViewDidUpdateTrackingAreas, kPDEView.data());
}

void BasePDE13_v100_::dialogDidExpand()
{
    NotificationCenter::defaultCenter().removeObserver(this, kViewDidUpdateTrackingAreas, kPDEView.data());
    if (auto *resizing = dynamic_cast<PanelViewResizing *>(pdePluginCallbackObject.get())) {
        resizing->panelViewDidResize();
    }
}

void BasePDE13_v100_::connectOutlet(const QString &name, QWidget *widget)
{
    if (name == QLatin1StringView("kPDEView")) {
        kPDEView = widget;
    }
}

WidgetFactories BasePDE13_v100_::widgetFactories() const
{
    return {};
}

void BasePDE13_v100_::viewDidLoad() {}

QString BasePDE13_v100_::localized(const QString &key) const
{
    return nsPDEBundle == nullptr ? key : nsPDEBundle->localizedStringForKey(key);
}
