// SPDX-License-Identifier: Apache-2.0
// The abstract panel: gathers the dialog's objects, and turns each call of the dialog into a fixed order of template
// operations that the concrete panel overrides.
#pragma once

#include "pdekit/Bundle.h"
#include "pdekit/PanelProtocol.h"
#include "ppd/PDEChoice.h"

#include <QObject>
#include <QPointer>
#include <QStringList>

#include <array>
#include <cstdint>
#include <memory>

/// The base of panels.
///
///   willShow                      -> initSetTitleTexts, initUI, updateUI -> setPDEItems
///   restoreValuesAndReturnError   -> setPDEItems2, updateUI -> setPDEItems
///   saveValuesAndReturnError      -> setValuesToKey
///   supportedPPDOptionKeys        -> setValuesToKey (in the base)
///   selectionForItem              -> updateMarkedSelections
class BasePDE13_v100_ : public QObject, public pdekit::Panel
{
    Q_OBJECT

public:
    BasePDE13_v100_();
    ~BasePDE13_v100_() override;

    /// Construction proper: keeps the callback and the bundle, and fetches the dialog's objects.
    /// \param bundle may be null: every text then shows as its key and there is no view.
    /// \return false when there is no callback; the object is of no use then.
    virtual bool initWithCallback(std::shared_ptr<pdekit::PanelCallback> callback, pdekit::Bundle *bundle);

    // The panel protocol.
    QWidget *panelView() override;
    QString panelName() override;
    QString panelKind() override;
    const QStringList *supportedPPDOptionKeys() override;
    void willShow() override;
    bool shouldHide() override;
    bool shouldPrint() override;
    bool shouldShowHelp() override;
    void PPDOptionKeyValueDidChange(const QString &key, const QString &choice) override;
    bool restoreValuesAndReturnError(QString *error) override;
    bool saveValuesAndReturnError(QString *error) override;
    std::optional<QVariantMap> summaryInfo() override;
    void printWindowWillClose(bool userPrinted) override;

    // Template operations, empty here. Nothing calls getValuesFromKey; it belongs to the set all the same.
    virtual void initSetTitleTexts();
    virtual void initUI();
    virtual void updateUI();
    virtual void getValuesFromKey();
    virtual void setValuesToKey();
    virtual void setPDEItems();
    virtual void setPDEItems2();
    virtual void updateUIItem(std::int32_t itemType);
    virtual void updateMarkedSelections(std::int32_t itemType);
    virtual std::int32_t indexForSummary(const char *keyword);

    /// The PPD's "FileVersion"; null without a PPD.
    QString fileVerString() const;
    /// Whether the PPD's "KsTapeType" is exactly "MV", or "HN".
    bool isMVPrinter() const;
    bool isHNPrinter() const;
    /// Bit 1: the tape is 15 mm wide; bit 16: the tape material is cloth.
    std::uint32_t imageModeFlag() const { return mImageModeFlag; }

    /// A pick: tells the dialog the choice at an index and refreshes the marked selections of the item.
    /// \return the choice; null, and nothing told, when there is none at the index.
    const PDEChoice *selectionForItem(std::int64_t index, const QString &key, const PDEChoiceArray *choices,
                                      std::int32_t itemType);
    /// The index of the choice that the PPD has marked, or -1.
    std::int64_t indexOfMarkedOption(const PDEChoiceArray *choices, const QString &key) const;
    /// The index of the first choice with that keyword, or -1.
    std::int64_t indexOfChoices(const PDEChoiceArray *choices, const QString &value) const;
    /// The index of the PPD's default choice; -1 when none is the default, but 0 when there are no choices at all.
    std::int64_t indexOfDefaultOption(const PDEChoiceArray *choices) const;
    /// Tells the dialog the PPD default of an option that has no marked choice.
    void setDefaultChoices(const ppd_option_t *option, const PDEChoiceArray *choices, const char *cStrKey,
                           const QString &nStrKey);

    void setSupportedOptions(std::shared_ptr<QStringList> options);
    const std::shared_ptr<QStringList> &supportedOptions() const { return mSupportedOptions; }

    /// Resizes the view (points) and tells a dialog that can follow, at once or when its window has room.
    /// For panels whose height changes; nothing here calls it.
    void setViewFrameSize(double width, double height);

protected:
    /// Connects a named widget of the interface file to the member of that name.
    virtual void connectOutlet(const QString &name, QWidget *widget);
    /// The classes of the plug-in's own that the interface file names.
    virtual pdekit::WidgetFactories widgetFactories() const;
    /// Called once when the interface file has been loaded and every outlet is set.
    virtual void viewDidLoad();
    /// To be held while an alert is up. A view of the panel's own that the alert was raised from has its event handlers
    /// on the stack below: when the panel is released meanwhile, the view is hidden and goes once they have returned.
    [[nodiscard]] std::shared_ptr<void> holdView();
    /// A text of the bundle; the key itself when it has none.
    QString localized(const QString &key) const;

    std::shared_ptr<pdekit::PanelCallback> pdePluginCallbackObject;
    QPointer<QWidget> kPDEView; ///< owned until the dialog puts it into its own widget tree
    QString thePDEName;
    std::shared_ptr<pdekit::Bundle> nsPDEBundle;
    ppd_file_t *ppd = nullptr; ///< borrowed from the dialog, like the five below
    QString paperSizeName;     ///< the current paper's PPD name; null until it is known
    std::uint32_t mImageModeFlag = 0;
    pdekit::PMPrintSession printSession = nullptr;
    pdekit::PMPrintSettings pmPrintSettings = nullptr;
    pdekit::PMPrintSettings printSettings = nullptr; ///< the same object as pmPrintSettings, fetched a second time
    pdekit::PMPageFormat formatSettings = nullptr;
    pdekit::Printer *printer = nullptr;
    std::array<char, 256> deviceURI = {}; ///< NUL-terminated, in the system's encoding; empty when there is none
    std::shared_ptr<QStringList> mSupportedOptions;
    bool mLoadedNibFlg = false;     ///< declared, and neither set nor read by anything
    bool mFormattedItemFlg = false; ///< declared, and neither set nor read by anything

private:
    struct HeldView;
    std::weak_ptr<HeldView> mHeldView;

    void fetchDeviceURI();
    void dialogDidExpand();
    bool isTapeType(const char *family) const;
};
