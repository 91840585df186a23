// SPDX-License-Identifier: Apache-2.0
// The Page Settings panel: tape width, three lengths and seven choices of a tape printer.
#pragma once

#include "controls/PDETextField13_v100_.h"
#include "pagesettings/Exports.h"
#include "panel/LengthArithmetic.h"
#include "panel/ShownValues.h"
#include "pdekit/NotificationCenter.h"
#include "pdekit/RadioMatrix.h"
#include "pdekit/Slider.h"
#include "plugin/BasePDE13_v100_.h"

#include <QComboBox>
#include <QFrame>
#include <QLabel>
#include <QLineEdit>

#include <optional>
#include <utility>
#include <vector>

class BundleImages;
struct ChoiceOption;
struct LengthOption;
struct SummaryChoice;

/// Item codes. They are tested with a bitwise AND, never compared, and the last four overlap on purpose: see
/// updateUIItem.
namespace ItemType
{
inline constexpr std::int32_t tapeLength = 0x1;
inline constexpr std::int32_t margin = 0x2;
inline constexpr std::int32_t quality = 0x4;
inline constexpr std::int32_t resolution = 0x8;
inline constexpr std::int32_t compression = 0x10;
inline constexpr std::int32_t ksResolution = 0x20000;
inline constexpr std::int32_t tapeType = 0x50000;
inline constexpr std::int32_t tapeColor = 0x60000;
inline constexpr std::int32_t inkColor = 0x70000;
inline constexpr std::int32_t printTapeLength = 0x90000;
} // namespace ItemType

/// The one concrete panel. Its operations stand in three groups: building the controls (KSLXMVPS_initialize), handing
/// values to the dialog (KSLXMVPS_Save), and the person's actions with their checks (KSLXMVPS_IBAction).
///
/// Every control may be missing, before the interface file is loaded and after the dialog has deleted the view. What a
/// deleted view showed is kept, stands for its controls while there are none, and fills the next view.
///
/// A dialog may release the panel while an alert of the panel is up: whatever may say something with an alert looks
/// afterwards whether the panel is still there.
class PageSettingPDE13_v100_ : public BasePDE13_v100_, public pdekit::PanelLiveValues
{
    Q_OBJECT

public:
    PageSettingPDE13_v100_();
    ~PageSettingPDE13_v100_() override;

    bool initWithCallback(std::shared_ptr<pdekit::PanelCallback> callback, pdekit::Bundle *bundle) override;

    const QStringList *supportedPPDOptionKeys() override;
    bool shouldPrint() override;
    bool shouldShowHelp() override;
    void PPDOptionKeyValueDidChange(const QString &key, const QString &choice) override;
    std::optional<QVariantMap> summaryInfo() override;
    void printWindowWillClose(bool userPrinted) override;

    /// Empty until the controls have been filled, too: an unfilled field says nothing.
    std::vector<std::pair<QString, QString>> currentValues() const override;

    void initSetTitleTexts() override;
    void initUI() override;
    void getValuesFromKey() override;
    void setValuesToKey() override;
    void setPDEItems() override;
    void setPDEItems2() override;
    void updateUIItem(std::int32_t itemType) override;
    void updateMarkedSelections(std::int32_t itemType) override;
    /// Always 0.
    std::int32_t indexForSummary(const char *keyword) override;
    /// The interface file is loaded; there is nothing left to do.
    virtual void awakeFromNib();

    // ---- KSLXMVPS_initialize: building the controls ---------------------------------------------------------------

    virtual void initializeUI_Width();
    virtual void initializeUI_Length();
    virtual void initializeUI_Margin();
    virtual void initializeUI_Quality();
    virtual void initializeUI_Resolution();
    virtual void initializeUI_Compress();
    virtual void initializeUI_KsResolution();
    virtual void initializeUI_TapeType();
    virtual void initializeUI_TapeColor();
    virtual void initializeUI_InkColor();
    virtual void initializeUI_PrintTapeLength();
    /// Does nothing, and nothing calls it.
    void initializeUI_OtherStr();

    /// The current paper's PPD name: on the first call from the page format, later from the settings; null when it is
    /// not to be had.
    QString readPageSetup();
    /// The dialog's paper changed: shows the new width and the limits that follow from it.
    void checkPageSizeChange(const pdekit::Notification &notification);

    void setTapeState(std::uint32_t state) { mTapeState = state; }
    /// 0: the tape length is free; 1: the paper fixes it.
    std::uint32_t getTapeState() const { return mTapeState; }

    void setPDEUnit(std::int32_t unit) { mPDEUnit = unit; }
    /// 0 millimetres, 1 inches.
    std::int32_t getPDEUnit() const { return mPDEUnit; }
    /// Takes the unit from the PPD; a PPD that does not say leaves it.
    void loadUnit();
    double MiriToInch(double millimetres) const { return ::MiriToInch(millimetres); }
    double InchToMiri(double inches) const { return ::InchToMiri(inches); }
    std::int64_t ksCeilInteger(float value) const { return lengths::ksCeilInteger(value); }
    double ksCeildouble(float value) const { return lengths::ksCeildouble(value); }
    /// The length of one dot at the selected resolution, in millimetres.
    double getOneDotMM() const;

    // The PPD's rules: whole numbers only; limits in millimetres, those of the print tape length in its own unit.
    bool isIntegerTapeLen() const;
    bool isIntegerMarginLen() const;
    bool isIntegerPrintTapeLen() const;
    float minTapeLen() const;
    float maxTapeLen() const;
    float minMargin() const;
    float maxMargin() const;
    float minPrintTapeLen() const;
    float maxPrintTapeLenForClothOr15mm() const;
    float maxPrintTapeLenForOther() const;
    /// The largest print tape length for the tape as it is now.
    float getMaxPrintTapeLen() const;

    // ---- KSLXMVPS_Save: handing values to the dialog --------------------------------------------------------------

    virtual void saveSetting_Length();
    virtual void saveSetting_Margin();
    virtual void saveSetting_Quality();
    virtual void saveSetting_Resolution();
    virtual void saveSetting_Compress();
    virtual void saveSetting_KsResolution();
    virtual void saveSetting_TapeType();
    virtual void saveSetting_TapeColor();
    virtual void saveSetting_InkColor();
    virtual void saveSetting_PrintTapeLength();
    /// The quality that may be saved: the first one unless the first resolution is selected.
    std::int32_t indexForSaveQuality(const QWidget *control) const;

    // ---- KSLXMVPS_IBAction: the person's actions and the checks ---------------------------------------------------

    // Each takes its sender; null when called from code.
    void changeQuality(QObject *sender);
    void changeResolution(QObject *sender);
    void changeCompress(QObject *sender);
    void changeKsResolution(QObject *sender);
    void changeKsTapeType(QObject *sender);
    void changeKsTapeColor(QObject *sender);
    void changeKsInkColor(QObject *sender);
    void changeLength(QObject *sender);
    void changeMargin(QObject *sender);
    void changeKsPrintTapeLength(QObject *sender);

    /// Does nothing: typed characters are filtered by the formatter alone.
    void controlTextDidChange(QObject *field);
    void controlTextDidEndEditing(QObject *field);

    /// Quality is offered at the first resolution only.
    void enabledCheck_BS();

    /// Corrects tape length and margin without an alert for a length out of range. \param silent no alert for a margin
    /// that does not fit either. \return whether the values are acceptable now.
    virtual bool checkValues(bool silent);
    /// Corrects the margin, and lengthens the tape for a margin that does not fit. Always true.
    bool checkLengthByMargin(bool silent);
    void checkTapeLength();
    void checkKsPrintTapeLength();

protected:
    void connectOutlet(const QString &name, QWidget *widget) override;
    pdekit::WidgetFactories widgetFactories() const override;
    void viewDidLoad() override;

private:
    friend struct ChoiceOption; // the tables of options name the members
    friend struct LengthOption;

    // Construction and option discovery.
    void readConnection();
    void findOptions();
    void saveAllSettings();
    void buildControls();
    void fillLaterView();
    void keepShownValues();
    void putBackShownValues(const ShownValues &shown);

    void localizeInterface();

    // Choice options: one algorithm each over the table of options.
    void fillChoiceControl(const ChoiceOption &option);
    void titleChoiceLabel(const ChoiceOption &option);
    void fillRadioMatrix(const ChoiceOption &option);
    void fillPopUp(const ChoiceOption &option);
    void selectFirstChoice(const ChoiceOption &option);
    void pick(const ChoiceOption &option, QObject *sender);
    void selectInControl(const ChoiceOption &option, int index);
    void selectStoredChoice(const ChoiceOption &option);
    int selectedIndex(const ChoiceOption &option) const;
    bool controlExists(const ChoiceOption &option) const;
    void saveChoice(const ChoiceOption &option);
    std::int64_t indexForSave(const ChoiceOption &option) const;
    void setClothBit(bool cloth);
    bool isCloth() const;
    void set15mmBit(bool is15mm);

    // Lengths: one algorithm each over the table of the three groups.
    void fillLengthGroup(const LengthOption &group, const QString &initialText, float millimetres, bool enabled);
    void showLength(const LengthOption &group, const lengths::Rewritten &length);
    bool isShown(const LengthOption &group) const;
    bool isFilled(const LengthOption &group) const;
    QString shownText(const LengthOption &group) const;
    void setShownText(const LengthOption &group, const QString &text);
    void checkRange(const LengthOption &group);
    void slide(const LengthOption &group, QObject *sender);
    [[nodiscard]] bool sayWithAlert(const char *key);
    bool checksAreSkipped();
    lengths::Rules rulesOf(const LengthOption &group) const;
    lengths::Unit unit() const;
    lengths::Unit savingUnit() const;
    lengths::Rules savingRulesOf(const LengthOption &group) const;
    QString paperLengthText(const TapeInfo &tape) const;
    bool takesOverPaper(const QString &paperText) const;
    QString tapeLengthToSave(const TapeInfo &tape) const;
    QString marginToSave(bool clamp) const;
    QString printTapeLengthToSave(bool clamp) const;
    QString attribute(const char *name) const;
    bool flagAttribute(const char *name) const;
    float lengthAttribute(const char *name) const;

    void enableLengthControls(bool enabled);
    void tellDialog(const char *keyword, const QString &choice);
    TapeInfo currentTapeInfo(pdekit::OSStatus *status = nullptr) const;
    QString widthText(const TapeInfo &tape) const;

    QString summaryTitle(const ppd_option_t *option, const char *titleKey) const;
    QString summaryChoiceValue(const SummaryChoice &entry) const;
    QString summaryUnit() const;
    QString summaryTapeLength(const TapeInfo &tape) const;
    QString summaryMargin() const;
    QString summaryPrintTapeLength() const;

    // Outlets: the widgets of the interface file, under their own names.
    QPointer<QLabel> mWidthStr;
    QPointer<QLabel> mLengthStr;
    QPointer<QLabel> mMarginStr;
    QPointer<QLabel> mLengthUnitStr;
    QPointer<QLabel> mMarginUnitStr;
    QPointer<QLabel> mLengthMinStr;
    QPointer<QLabel> mLengthMaxStr;
    QPointer<QLabel> mMarginMinStr;
    QPointer<QLabel> mMarginMaxStr;
    QPointer<pdekit::Slider> mLengthSlider;
    QPointer<pdekit::Slider> mMarginSlider;
    QPointer<QLineEdit> mWidthTxFld;
    QPointer<PDETextField13_v100_> mLengthTxFld;
    QPointer<PDETextField13_v100_> mMarginTxFld;
    QPointer<QFrame> mSeparateLine1;

    QPointer<QLabel> mTapeLengthStr;
    QPointer<QLabel> mTapeLengthUnitStr;
    QPointer<QLabel> mTapeLengthMinStr;
    QPointer<QLabel> mTapeLengthMaxStr;
    QPointer<pdekit::Slider> mTapeLengthSlider;
    QPointer<PDETextField13_v100_> mTapeLengthTxFld;

    QPointer<QLabel> mPrintQualityStr;
    QPointer<pdekit::RadioMatrix> mPrintQualityRdBtn;
    QPointer<QLabel> mPrintResolutionStr;
    QPointer<pdekit::RadioMatrix> mResolutionRdBtn;
    QPointer<QLabel> mPrintCompressStr;
    QPointer<pdekit::RadioMatrix> mCompressRdBtn;
    QPointer<QLabel> mPrintKsResolutionStr;
    QPointer<QComboBox> mKsResolutionPUBtn;
    QPointer<QLabel> mTapeTypeStr;
    QPointer<QComboBox> mTapeTypePopBtn;
    QPointer<QLabel> mInkColorStr;
    QPointer<QComboBox> mInkColorPopBtn;
    QPointer<QLabel> mTapeColorStr;
    QPointer<QComboBox> mTapeColorPopBtn;

    // Options of the PPD, borrowed; null when the PPD lacks them.
    ppd_option_t *mMargin_Option = nullptr;
    ppd_option_t *mQuality_Option = nullptr;
    ppd_option_t *mResolution_Option = nullptr;
    ppd_option_t *mCompress_Option = nullptr;
    ppd_option_t *mKsResolution_Option = nullptr;
    ppd_option_t *mTapeType_Option = nullptr;
    ppd_option_t *mInkColor_Option = nullptr;
    ppd_option_t *mTapeColor_Option = nullptr;
    ppd_option_t *mPrintTapeLength_Option = nullptr;
    ppd_option_t *mTapeLength_Option = nullptr;

    // Their choices in the PPD's order; null when the PPD lacks the option.
    std::unique_ptr<PDEChoiceArray> mQuality_Choices;
    std::unique_ptr<PDEChoiceArray> mResolution_Choices;
    std::unique_ptr<PDEChoiceArray> mCompress_Choices;
    std::unique_ptr<PDEChoiceArray> mKsResolution_Choices;
    std::unique_ptr<PDEChoiceArray> mTapeType_Choices;
    std::unique_ptr<PDEChoiceArray> mInkColor_Choices;
    std::unique_ptr<PDEChoiceArray> mTapeColor_Choices;

    // The selected element of each array, or null.
    const PDEChoice *mQuality_Selection = nullptr;
    const PDEChoice *mResolution_Selection = nullptr;
    const PDEChoice *mCompress_Selection = nullptr;
    const PDEChoice *mKsResolution_Selection = nullptr;
    const PDEChoice *mTapeType_Selection = nullptr;
    const PDEChoice *mInkColor_Selection = nullptr;
    const PDEChoice *mTapeColor_Selection = nullptr;

    std::optional<ShownValues> mKeptValues; ///< of a view that the dialog deleted, until there is another
    /// The receiver of all that the view's controls send. A view of the panel's own goes after it, with the base: an
    /// edit that ends then reaches nobody.
    std::unique_ptr<QObject> mReceiver;

    std::unique_ptr<BundleImages> mImages; ///< of the choices; null until a control with images is filled

    std::int32_t mPDEUnit = 0;
    std::uint32_t mTapeState = 0;
    bool usb_dec = false;           ///< the printer is reached over USB
    float choice_PaperSize = 0.0F;  ///< the paper length last taken over, in the shown unit
    bool column_dec = false;        ///< gate of checkValues; nothing ever closes it
    bool set_formatSetting = false; ///< the controls have been built and the first settings written
    bool checkValues_dec = true;    ///< the outcome of the last check
};
