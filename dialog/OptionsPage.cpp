// SPDX-License-Identifier: Apache-2.0
// Pop-ups of a PPD's options in the PPD's order, under the texts that the PPD gives them.
#include "dialog/OptionsPage.h"

#include "dialog/ChoicePopUp.h"
#include "dialog/PlainText.h"
#include "job/PpdMarks.h"

#include <QComboBox>
#include <QFormLayout>
#include <QLabel>

namespace tapeprint::dialog
{

namespace
{

/// Whether an option is one that the dialog's other controls do not show, and a pop-up can.
bool isShown(const job::TapeKeywords &tape, const Panels &panels, const ppd_option_t &option)
{
    const QString key = QString::fromUtf8(option.keyword);
    if (key == tape.lengthOption || key == tape.marginOption) { // a panel's, announced or not
        return false;
    }
    const bool isOneOf = option.ui == PPD_UI_PICKONE || option.ui == PPD_UI_BOOLEAN;
    return isOneOf && option.num_choices > 0 && key != job::OptionName::pageSize &&
           key != job::OptionName::pageRegion && !panels.announced(key);
}

} // namespace

OptionsPage::OptionsPage(const job::Job &job, const Panels &panels, QWidget *parent) : QWidget(parent), mJob(job)
{
    auto *form = new QFormLayout(this);
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    job::forEachOption(job.ppd(), [this, &panels](const ppd_option_t &option) {
        if (isShown(mJob.tape(), panels, option)) {
            addOption(option);
        }
    });
    follow();
}

void OptionsPage::addOption(const ppd_option_t &option)
{
    auto *popUp = new QComboBox(this);
    const QString key = QString::fromUtf8(option.keyword);
    popUp->setObjectName(key);
    popUp->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    fillWithChoices(popUp, option);
    connect(popUp, &QComboBox::activated, this,
            [this, popUp, key] { Q_EMIT picked(key, popUp->currentData().toString()); });
    const QString text = tr("%1:", "name of an option").arg(QString::fromUtf8(option.text));
    qobject_cast<QFormLayout *>(layout())->addRow(plainLabel(text, popUp), popUp);
    mPopUps.push_back(popUp);
}

void OptionsPage::follow()
{
    for (QComboBox *popUp : mPopUps) {
        selectChoice(popUp, job::markedChoice(mJob.ppd(), popUp->objectName()));
    }
}

} // namespace tapeprint::dialog
