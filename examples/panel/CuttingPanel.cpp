// SPDX-License-Identifier: Apache-2.0
// A plug-in with one panel: how the printers of an invented maker cut their labels. Its PPDs have the option AlderCut.
#include <QComboBox>
#include <QFormLayout>
#include <QPointer>

#include <pdekit/Bundle.h>
#include <pdekit/PlugIn.h>

namespace
{

const char *const optionKeyword = "AlderCut";

class CuttingPanel final : public pdekit::Panel
{
public:
    CuttingPanel(pdekit::Bundle *bundle, std::shared_ptr<pdekit::PanelCallback> dialog)
        : mBundle(bundle->shared_from_this()), mDialog(std::move(dialog)), mChoice(markedChoice())
    {
    }
    // The view belongs to the dialog's widgets once it is shown; whichever goes first, the other may still go.
    ~CuttingPanel() override { delete mView; }

    QWidget *panelView() override
    {
        if (mView != nullptr) {
            return mView;
        }
        mView = new QWidget;
        mPopUp = new QComboBox;
        const ppd_option_t *option = ppdFindOption(mDialog->ppdFile(), optionKeyword);
        for (int i = 0; i < option->num_choices; ++i) {
            mPopUp->addItem(QString::fromUtf8(option->choices[i].text), QString::fromUtf8(option->choices[i].choice));
        }
        (new QFormLayout(mView))->addRow(text("cutting.option"), mPopUp);
        showChoice();
        // "activated" is sent by people alone: setting a control by code must not send anything.
        QObject::connect(mPopUp, &QComboBox::activated, mView, [this](int row) {
            mChoice = mPopUp->itemData(row).toString();
            mDialog->willChangePPDOptionKeyValue(mKeywords.first(), mChoice);
        });
        return mView;
    }

    QString panelName() override { return text("cutting.name"); }
    QString panelKind() override { return QStringLiteral("com.example.alder.cutting"); }
    const QStringList *supportedPPDOptionKeys() override { return &mKeywords; }
    void willShow() override { showChoice(); }
    bool shouldHide() override { return true; }
    bool shouldPrint() override { return true; }
    bool shouldShowHelp() override { return false; }

    void PPDOptionKeyValueDidChange(const QString &key, const QString &choice) override
    {
        if (key == mKeywords.first()) {
            mChoice = choice;
            showChoice(); // and nothing is sent: the dialog knows
        }
    }

    bool restoreValuesAndReturnError(QString * /*error*/) override
    {
        mChoice = markedChoice();
        showChoice();
        return true;
    }

    bool saveValuesAndReturnError(QString *error) override
    {
        if (!mDialog->willChangePPDOptionKeyValue(mKeywords.first(), mChoice)) {
            if (error != nullptr) {
                *error = text("cutting.refused");
            }
            return false;
        }
        return true;
    }

    std::optional<QVariantMap> summaryInfo() override
    {
        ppd_option_t *option = ppdFindOption(mDialog->ppdFile(), optionKeyword);
        const ppd_choice_t *choice = ppdFindChoice(option, mChoice.toUtf8().constData());
        const QString title = text("cutting.option");
        return QVariantMap{{title, choice == nullptr ? mChoice : QString::fromUtf8(choice->text)},
                           {pdekit::kSummaryDisplayOrder, QStringList{title}}};
    }

    void printWindowWillClose(bool /*userPrinted*/) override {}

private:
    QString text(const char *key) const { return mBundle->localizedStringForKey(QLatin1String(key)); }

    /// The choice that the job has now.
    QString markedChoice() const
    {
        const ppd_choice_t *choice = ppdFindMarkedChoice(mDialog->ppdFile(), optionKeyword);
        return choice == nullptr ? QString() : QString::fromUtf8(choice->choice);
    }

    void showChoice()
    {
        if (mView != nullptr) {
            mPopUp->setCurrentIndex(mPopUp->findData(mChoice));
        }
    }

    std::shared_ptr<pdekit::Bundle> mBundle;
    std::shared_ptr<pdekit::PanelCallback> mDialog;
    QStringList mKeywords{QString::fromLatin1(optionKeyword)};
    QString mChoice;
    QPointer<QWidget> mView;
    QComboBox *mPopUp = nullptr; ///< the view's
};

class CuttingPlugIn final : public pdekit::PlugIn
{
public:
    bool initWithBundle(pdekit::Bundle *bundle) override
    {
        mBundle = bundle;
        return true;
    }

    const pdekit::PanelArray *PDEPanelsForType(const QString &type,
                                               std::shared_ptr<pdekit::PanelCallback> dialog) override
    {
        mPanels.clear();
        // A PPD may name the bundle without having the option: then there is nothing to show.
        if (type == pdekit::kPrinterModulePanelType && ppdFindOption(dialog->ppdFile(), optionKeyword) != nullptr) {
            mPanels.push_back(std::make_shared<CuttingPanel>(mBundle, std::move(dialog)));
        }
        return &mPanels;
    }

private:
    pdekit::Bundle *mBundle = nullptr; ///< the dialog's, which keeps it longer
    pdekit::PanelArray mPanels;
};

} // namespace

class CuttingEntry final : public QObject, public pdekit::PlugInEntry
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID PDEKIT_PLUGIN_IID FILE "CuttingPanel.json")
    Q_INTERFACES(pdekit::PlugInEntry)

public:
    std::unique_ptr<pdekit::PlugIn> newPrincipalObject(const QString &className) override
    {
        return className == QLatin1String("CuttingPlugIn") ? std::make_unique<CuttingPlugIn>() : nullptr;
    }
};

#include "CuttingPanel.moc"
