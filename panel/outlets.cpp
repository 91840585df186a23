// SPDX-License-Identifier: Apache-2.0
// The one place where the interface file meets the panel: outlets by name, actions, and the delegate of the text
// fields.
#include "panel/ChoiceOption.h"
#include "panel/PageSettingPDE13_v100_.h"
#include "panel/PlainLabel.h"

#include "ppd/PDEUtilsMethod13.h"

#include <QHash>

using namespace pdekit;

namespace
{

template <typename Widget>
void setOutlet(QPointer<Widget> &outlet, QWidget *widget)
{
    // A widget of another class than the outlet's is left unconnected: the panel does without it.
    outlet = qobject_cast<Widget *>(widget);
}

} // namespace

WidgetFactories PageSettingPDE13_v100_::widgetFactories() const
{
    return {{QStringLiteral("PDETextField13_v100_"),
             [](QWidget *parent) -> QWidget * { return new PDETextField13_v100_(parent); }}};
}

void PageSettingPDE13_v100_::connectOutlet(const QString &name, QWidget *widget)
{
    using Self = PageSettingPDE13_v100_;
    using Setter = void (*)(Self &, QWidget *);
#define OUTLET(member)                                                                                                 \
    {                                                                                                                  \
        QStringLiteral(#member), [](Self &panel, QWidget *outlet) { setOutlet(panel.member, outlet); }                 \
    }
    static const QHash<QString, Setter> outlets = {
        OUTLET(mWidthStr),          OUTLET(mWidthTxFld),
        OUTLET(mSeparateLine1),     OUTLET(mLengthStr),
        OUTLET(mLengthTxFld),       OUTLET(mLengthUnitStr),
        OUTLET(mLengthSlider),      OUTLET(mLengthMinStr),
        OUTLET(mLengthMaxStr),      OUTLET(mMarginStr),
        OUTLET(mMarginTxFld),       OUTLET(mMarginUnitStr),
        OUTLET(mMarginSlider),      OUTLET(mMarginMinStr),
        OUTLET(mMarginMaxStr),      OUTLET(mTapeLengthStr),
        OUTLET(mTapeLengthTxFld),   OUTLET(mTapeLengthUnitStr),
        OUTLET(mTapeLengthSlider),  OUTLET(mTapeLengthMinStr),
        OUTLET(mTapeLengthMaxStr),  OUTLET(mPrintQualityStr),
        OUTLET(mPrintQualityRdBtn), OUTLET(mPrintResolutionStr),
        OUTLET(mResolutionRdBtn),   OUTLET(mPrintCompressStr),
        OUTLET(mCompressRdBtn),     OUTLET(mPrintKsResolutionStr),
        OUTLET(mKsResolutionPUBtn), OUTLET(mTapeTypeStr),
        OUTLET(mTapeTypePopBtn),    OUTLET(mInkColorStr),
        OUTLET(mInkColorPopBtn),    OUTLET(mTapeColorStr),
        OUTLET(mTapeColorPopBtn),
    };
#undef OUTLET
    if (const auto setter = outlets.constFind(name); setter != outlets.constEnd()) {
        (*setter)(*this, widget);
    } else {
        BasePDE13_v100_::connectOutlet(name, widget);
    }
}

void PageSettingPDE13_v100_::viewDidLoad()
{
    using Self = PageSettingPDE13_v100_;
    mReceiver = std::make_unique<QObject>();
    // Each signal is sent for a person's act only, never for a control set by code.
    const auto onMatrix = [this](RadioMatrix *matrix, void (Self::*handler)(QObject *)) {
        if (matrix != nullptr) {
            connect(matrix, &RadioMatrix::action, mReceiver.get(),
                    [this, matrix, handler] { (this->*handler)(matrix); });
        }
    };
    const auto onPopUp = [this](QComboBox *popUp, void (Self::*handler)(QObject *)) {
        if (popUp != nullptr) {
            connect(popUp, &QComboBox::activated, mReceiver.get(),
                    [this, popUp, handler](int) { (this->*handler)(popUp); });
        }
    };
    const auto onSlider = [this](Slider *slider, void (Self::*handler)(QObject *)) {
        if (slider != nullptr) {
            connect(slider, &Slider::action, mReceiver.get(), [this, slider, handler] { (this->*handler)(slider); });
        }
    };
    const auto onField = [this](PDETextField13_v100_ *field) {
        if (field != nullptr) {
            connect(field, &PDETextField13_v100_::editingEnded, mReceiver.get(),
                    [this, field] { controlTextDidEndEditing(field); });
        }
    };

    onMatrix(mPrintQualityRdBtn, &Self::changeQuality);
    onMatrix(mResolutionRdBtn, &Self::changeResolution);
    onMatrix(mCompressRdBtn, &Self::changeCompress);
    onPopUp(mKsResolutionPUBtn, &Self::changeKsResolution);
    onPopUp(mTapeTypePopBtn, &Self::changeKsTapeType);
    onPopUp(mTapeColorPopBtn, &Self::changeKsTapeColor);
    onPopUp(mInkColorPopBtn, &Self::changeKsInkColor);
    onSlider(mLengthSlider, &Self::changeLength);
    onSlider(mMarginSlider, &Self::changeMargin);
    onSlider(mTapeLengthSlider, &Self::changeKsPrintTapeLength);
    onField(mLengthTxFld);
    onField(mMarginTxFld);
    onField(mTapeLengthTxFld);
    // The view's controls are still whole when the view says that it goes.
    connect(kPDEView, &QObject::destroyed, mReceiver.get(), [this] { keepShownValues(); });
    localizeInterface();
    awakeFromNib();
    if (set_formatSetting) {
        fillLaterView();
    }
}

void PageSettingPDE13_v100_::localizeInterface()
{
    // What the PPD does not replace is in the person's language too, and looks as disabled as its control is.
    const QList<QLabel *> labels = kPDEView->findChildren<QLabel *>();
    for (QLabel *label : labels) {
        label->setText(localized(label->text()));
        makePlain(*label);
    }
    for (const ChoiceOption &option : ChoiceOption::all()) {
        const QWidget *control = option.popUp == nullptr ? nullptr : (this->*option.popUp).data();
        if (option.matrix != nullptr && this->*option.matrix != nullptr) {
            RadioMatrix *matrix = this->*option.matrix;
            for (int row = 0; row < matrix->numberOfRows(); ++row) {
                matrix->setTitleOfCell(localized(matrix->titles().at(row)), row, 0);
            }
            control = matrix;
        }
        PDEUtilsMethod13::setEnabledForText(control != nullptr && control->isEnabledTo(kPDEView), this->*option.label);
    }
}
